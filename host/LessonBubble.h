#pragma once

#include "host/CompanionScreen.h"

#include <QObject>
#include <QTimer>

class HostEditor;
class LessonGuide;
class ScenarioRunner;

/// The companion's bubble in a lesson: what it says and where it points, for the present step or for what
/// leads back to it.
class LessonBubble : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this.
    LessonBubble(HostEditor *editor, CompanionScreen *screen, const ScenarioRunner *runner,
                 const LessonGuide *guide, QObject *parent = nullptr);

    /// Tells the companion the step, or what leads back to it, as things stand.
    void tell();
    /// The same, after a moment in the middle of the main window, so that the eye follows it from there.
    void glideIn();
    /// What glideIn() has begun is over.
    void settle() { m_glide.stop(); }
    /// Moves it where its place is now, if that is another one.
    void follow();

    /// As LessonSession has them.
    [[nodiscard]] std::optional<QPoint> target() const;
    [[nodiscard]] QString hint() const { return m_hint; }
    [[nodiscard]] bool lacksWindow() const;
    [[nodiscard]] QString windowToOpen() const;

Q_SIGNALS:
    /// The companion was told.
    void told();

private:
    void onMoved(const QString &windowKey);
    void onWindowGone();

    HostEditor *m_editor;
    CompanionScreen *m_screen;
    const ScenarioRunner *m_runner;
    const LessonGuide *m_guide;
    QTimer m_glide;
    QString m_hint;
    /// What the companion was told last: it points at the window of the step, or nowhere.
    bool m_pointing = false;
    /// It points at what a person clicks to put things back.
    bool m_isAtPutBack = false;
};
