#pragma once

#include "FakeEditor.h"
#include "PilotScene.h"
#include "host/LessonSession.h"

#include <QTest>

#include <memory>
#include <optional>

inline constexpr int kSoonMs = 10000;
inline constexpr QRect kBubble(100, 170, 640, 480); // where the steps below that point send it
inline constexpr QRect kMiddle(601, 417, 640, 480); // where it is sent before the first step
inline const SeenOverlays::Window kNext{QRect(300, 500, 64, 32), 7};
inline const QString kClicking = QStringLiteral(
    R"({"id":1,"x":10,"y":-20,"windowKey":"MainWindow","condition":"list,2","hint":"Choose","icon":"click"})");
inline const QString kTyping = QStringLiteral(
    R"({"id":2,"x":10,"y":-20,"windowKey":"MainWindow","condition":"textLength,name,2","hint":"Name","icon":"keyboard"})");
inline const QString kReading = QStringLiteral(
    R"({"id":3,"x":-9999,"y":-9999,"windowKey":"","condition":"click,","hint":"Read","icon":"eye"})");
inline const QString kReadingOn = QStringLiteral(
    R"({"id":4,"x":-9999,"y":-9999,"windowKey":"","condition":"click,","hint":"On","icon":"eye"})");

/// A pilot in a lesson that stands on a screen of the test's own, which shows the bubble and no button at
/// first.
class PilotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_overlays = {kBubble, {}};
        m_scene = {};
        m_scene.look = [this] {
            return m_overlays;
        };
        m_steps.clear();
        m_failures.reset();
        m_editor = std::make_unique<FakeEditor>();
        m_session = std::make_unique<LessonSession>(m_editor.get());
        makePilot(settings());
    }
    void cleanup()
    {
        m_pilot.reset();
        m_session.reset();
        m_editor.reset();
    }

protected:
    static Pilot::Settings settings()
    {
        Pilot::Settings settings;
        settings.title = QStringLiteral("lesson 1 (en_US, yes)");
        return settings;
    }

    void makePilot(const Pilot::Settings &settings)
    {
        m_pilot = std::make_unique<Pilot>(m_session.get(), settings, std::make_unique<SceneEye>(&m_scene),
                                          std::make_unique<SceneHand>(&m_scene));
        connect(m_pilot.get(), &Pilot::stepReached, this,
                [this](int, int, const QString &line) { m_steps += line; });
        connect(m_pilot.get(), &Pilot::ended, this,
                [this](const QStringList &failures) { m_failures = failures; });
    }

    void begin(const QStringList &steps)
    {
        m_session->receive(
            QStringLiteral("start\u0001var scenario = [%1];\u0001-1").arg(steps.join(QLatin1Char(','))));
        QVERIFY(m_session->runner().isRunning());
    }

    Scene m_scene;
    SeenOverlays m_overlays;
    std::unique_ptr<FakeEditor> m_editor;
    std::unique_ptr<LessonSession> m_session;
    std::unique_ptr<Pilot> m_pilot;
    QStringList m_steps;
    std::optional<QStringList> m_failures; ///< once the play is over
};
