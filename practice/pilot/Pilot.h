#pragma once

#include "pilot/ActionPlan.h"
#include "pilot/Eye.h"
#include "pilot/Hand.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

class LessonSession;

/// Plays a lesson as a learner does: it looks where the companion's windows are on the screen, acts at the
/// spot that the arrow points at, in the way that the icon says, and clicks the real buttons. What it knows
/// beyond that is which step is on, to tell when the bubble has arrived and what text to type.
///
/// A step whose condition does not come true that way is a broken lesson.
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
        /// How long the overlays and the focus may take to come, and a condition to come true, in
        /// milliseconds. Only what is broken takes so long, on a machine with much else to do as well.
        int settleMs = 30000;
        int conditionMs = 20000;
    };

    /// @p session stays the caller's and outlives this.
    Pilot(const LessonSession *session, const Settings &settings, std::unique_ptr<Eye> eye,
          std::unique_ptr<Hand> hand, QObject *parent = nullptr);

    /// Ends the play as a failure.
    void fail(const QString &reason);

Q_SIGNALS:
    /// A line of progress.
    void progress(const QString &line);
    /// The play is over; @p failure is empty when the lesson was played to its end.
    void ended(const QString &failure);

private:
    enum class Phase {
        /// No lesson yet.
        kIdle,
        /// Until the overlays of the step are there and at rest.
        kWatching,
        /// Through the actions of the plan.
        kActing,
        /// Until the condition comes true.
        kAwaiting,
        /// Until the overlays are gone.
        kEnding,
        kOver,
    };

    void enter(Phase phase, int limitMs);
    void onStepReached();
    void onFinished();
    void onTick();
    void onLimit();
    void watch();
    void act();
    void watchEnd();
    void end(const QString &failure);
    /// Looks, and tells whether the overlays stand still. False also when the look failed.
    [[nodiscard]] bool isAtRest();
    /// False when it cannot be written. True also where no pictures are asked for.
    [[nodiscard]] bool takeShot(const QString &name);
    [[nodiscard]] QString shotProblem() const;
    [[nodiscard]] QString stepText() const;

    const LessonSession *m_session;
    Settings m_settings;
    std::unique_ptr<Eye> m_eye;
    std::unique_ptr<Hand> m_hand;
    Phase m_phase = Phase::kIdle;
    QTimer m_ticks;
    QTimer m_limit;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceMoved;
    QElapsedTimer m_sinceClick;
    SeenOverlays m_seen;
    ActionPlan m_plan;
    /// How many of the plan's actions are done, and which, in words.
    int m_next = 0;
    QStringList m_done;
    int m_steps = 0;
    int m_shots = 0;
    QString m_current;
};
