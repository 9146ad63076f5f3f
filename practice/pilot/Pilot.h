#pragma once

#include "pilot/OverlayWatch.h"

#include <QElapsedTimer>
#include <QObject>
#include <QQueue>
#include <QStringList>
#include <QTimer>

#include <optional>

class LessonSession;
class QWindow;
struct Step;

/// Plays a lesson as a learner does: it looks where the companion's windows are on the screen, acts with real
/// mouse and key events at the spot that the arrow points at, in the way that the icon says, and clicks the
/// real buttons. What it knows beyond that is which step is on, to tell when the bubble has arrived and what
/// text to type.
///
/// A step whose condition does not come true that way is a broken lesson. Needs an X display and xdotool.
class Pilot : public QObject
{
    Q_OBJECT

public:
    struct Settings
    {
        /// How the lesson is called in messages, such as "lesson 1 (ja_JP)".
        QString title;
        /// Which button it presses where a step asks a question: Yes, else No.
        bool answersYes = true;
        /// Pictures of the whole screen go here, one for each step; none when empty.
        QString shotsFolder;
    };

    /// @p session stays the caller's and outlives this.
    Pilot(LessonSession *session, const Settings &settings, QObject *parent = nullptr);

    /// Whose windows are the overlays.
    void setCompanionPid(qint64 pid) { m_pid = pid; }

    /// Ends the play as a failure.
    void fail(const QString &reason);

Q_SIGNALS:
    /// A line of progress.
    void progress(const QString &line);
    /// The play is over; @p failure is empty when the lesson was played to its end.
    void ended(const QString &failure);

private:
    enum class Phase { kIdle, kWatching, kActing, kAwaiting, kEnding, kOver };

    void onStepReached();
    void onFinished();
    void tick();
    void watch();
    void watchEnd();
    /// What is on the screen; nothing when the look failed.
    std::optional<OverlayWatch> look();
    void planAction(const Step &step, const std::optional<QPoint> &spot);
    void planKeys(const Step &step);
    void actOnce();
    void pressButton();
    bool run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr,
             QByteArray *errors = nullptr);
    bool takeShot(const QString &name);
    /// The editor's window that a click at @p spot, in global screen pixels, would reach; nullptr when none
    /// would.
    [[nodiscard]] static QWindow *windowAt(const QPoint &spot);
    /// Whether keys go to the window at the spot.
    [[nodiscard]] bool hasFocus() const;
    [[nodiscard]] bool settled(const Step &step) const;
    [[nodiscard]] QString stepText() const;

    LessonSession *m_session;
    Settings m_settings;
    qint64 m_pid = 0;
    Phase m_phase = Phase::kIdle;
    QTimer m_ticks;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sincePhase;
    QElapsedTimer m_sinceClick;
    QElapsedTimer m_sinceMoved;
    OverlayWatch m_seen;
    int m_steps = 0;
    int m_shots = 0;
    QString m_current;
    /// What is left to do in this step: arguments of xdotool, one call a tick; an empty list is the button.
    QQueue<QStringList> m_actions;
    QString m_done;
    /// Where the step is done, in global screen pixels.
    QPoint m_spot;
};
