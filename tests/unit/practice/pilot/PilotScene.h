#pragma once

#include "pilot/Pilot.h"

#include <functional>

/// What the screen and the editor show is the test's to say.
struct Scene
{
    std::function<std::optional<SeenOverlays>()> look;
    std::function<bool(const QPoint &)> takesClicks = [](const QPoint &) {
        return true;
    };
    bool takesPresses = true;
    bool takesKeys = true;
    bool hasList = true;
    QStringList rows;
    bool hearsClicks = true;
    bool takesPictures = true;
    int looks = 0;
    int questionsForKeys = 0;
    int questionsForLists = 0;
    int questionsForPresses = 0;
    int questionsForClicks = 0;
    QStringList pictures;
    QVector<Action> acts;
    /// What comes of an action; every action is done when there is nothing to say.
    std::function<Hand::Result(const Action &)> perform;
};

class SceneEye : public Eye
{
public:
    explicit SceneEye(Scene *scene)
        : m_scene(scene)
    {
    }

    std::optional<SeenOverlays> overlays() override
    {
        ++m_scene->looks;
        return m_scene->look();
    }
    bool takesClickAt(const QPoint &spot) override { return m_scene->takesClicks(spot); }
    bool takesPressAt(quint32 window, const QPoint &place) override
    {
        Q_UNUSED(window)
        Q_UNUSED(place)
        ++m_scene->questionsForPresses;
        return m_scene->takesPresses;
    }
    bool takesKeysAt(const QPoint &spot) override
    {
        Q_UNUSED(spot)
        ++m_scene->questionsForKeys;
        return m_scene->takesKeys;
    }
    int clicksHeard() override
    {
        ++m_scene->questionsForClicks;
        return m_scene->hearsClicks ? int(m_scene->acts.size()) : 0;
    }
    bool seesList() override
    {
        ++m_scene->questionsForLists;
        return m_scene->hasList;
    }
    QStringList listRows() override { return m_scene->rows; }
    QString windows() override { return QStringLiteral("\"Editor\""); }
    bool takePicture(const QString &path) override
    {
        m_scene->pictures += path.section(QLatin1Char('/'), -1);
        return m_scene->takesPictures;
    }

private:
    Scene *m_scene;
};

class SceneHand : public Hand
{
public:
    explicit SceneHand(Scene *scene)
        : m_scene(scene)
    {
    }

    Result perform(const Action &action) override
    {
        m_scene->acts.append(action);
        return m_scene->perform ? m_scene->perform(action) : Result::kDone;
    }

private:
    Scene *m_scene;
};
