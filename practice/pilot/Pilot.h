#pragma once

#include "pilot/ActionPlan.h"
#include "pilot/Eye.h"
#include "pilot/Hand.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class LessonSession;

/// Plays a lesson as a learner does: it looks where the companion's windows are on the screen, acts at the
/// spot that the arrow points at, in the way that the icon says, and clicks the real buttons. What it knows
/// beyond that is which step is on, to tell when the bubble has arrived, what text to type and where to drag.
///
/// A step whose condition does not come true that way is broken. The pilot tells of it, passes it by, and
/// plays on, since the next may be broken for a reason of its own.
///
/// As a beginner it does something wrong in each step first, and then follows the arrow back.
class Pilot : public QObject
{
    Q_OBJECT

public:
    struct Settings
    {
        /// How the play is called in messages, such as "lesson 1 (ja_JP, yes)".
        QString title;
        /// Which button it presses where a step asks a question, one question after the other: Yes, else
        /// No. The last answer holds for all further questions; there is one at least.
        QVector<bool> answers{true};
        /// Pictures of the whole screen go here, of each broken step, or of every step; none when empty.
        QString picturesFolder;
        bool picturesOfAll = false;
        /// How long the overlays and the focus may take to come, and a condition to come true, in
        /// milliseconds of the X server's clock. Only what is broken takes so long, on a machine with much
        /// else to do as well.
        int settleMs = 30000;
        int conditionMs = 20000;
        /// How many times as fast as the X server's clock that of this program and the companion's runs. The
        /// machine is no faster for it, and the server tells by its own clock what is a double click.
        int speed = 1;
        bool isBeginner = false;
        /// Where a click puts back what went wrong, in global screen pixels, for a beginner; nothing where it
        /// cannot be clicked.
        std::function<std::optional<QPoint>()> putBackPlace;
    };

    /// A play is given up after so many broken steps in a row: what follows them tells nothing.
    static constexpr int kMostInARow = 3;

    /// @p session stays the caller's and outlives this.
    Pilot(LessonSession *session, const Settings &settings, std::unique_ptr<Eye> eye,
          std::unique_ptr<Hand> hand, QObject *parent = nullptr);

    /// Ends the play as a failure.
    void fail(const QString &reason);

Q_SIGNALS:
    /// A step was reached, the @p index th of @p count, counted from 1; @p line names it.
    void stepReached(int index, int count, const QString &line);
    /// The companion does not hand over the lesson.
    void refused();
    /// A press of the companion's button came to nothing and is made again, as a person would; @p line tells
    /// what was seen before that.
    void pressedAgain(const QString &line);
    /// The play is over; @p failures has a line for each broken step, and none when the lesson was played to
    /// its end.
    void ended(const QStringList &failures);

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
    /// What the actions of the plan are for.
    enum class Intent { kStep, kMistake, kReturn };

    /// @p limitMs of the X server's clock.
    void enter(Phase phase, int limitMs);
    void onStepReached();
    void onFinished();
    void onTick();
    void onLimit();
    void watch();
    /// Whether it now closes a list that a mistake has dropped down: that may cover what comes next.
    bool foldsUp();
    /// A beginner has left the way of the step.
    [[nodiscard]] bool isLost() const;
    /// What is to be done as things are seen; nothing as long as they are not ready for it.
    [[nodiscard]] std::optional<ActionPlan> planned() const;
    [[nodiscard]] std::optional<ActionPlan> returning() const;
    void begin(const ActionPlan &plan, Intent intent);
    /// Begins to do something wrong. False when in this step there is nothing to do wrong any more.
    [[nodiscard]] bool err(const ActionPlan &plan);
    void act();
    [[nodiscard]] bool canAct(const Action &action, const ActionPlan &plan);
    /// What is done in the list that has dropped down.
    [[nodiscard]] Action choiceFor(const QString &hint) const;
    /// A list has to drop down before it goes on.
    [[nodiscard]] bool awaitsList() const;
    /// Whether what was done is done again when nothing comes of it.
    [[nodiscard]] bool triesAgain() const;
    /// Whether the press that ended what was done is made again, and that alone.
    [[nodiscard]] bool pressesAgain() const;
    /// How long the condition may take before something is done again, or before the step is broken.
    [[nodiscard]] int patienceMs() const;
    void endActing();
    void watchEnd();
    void end();
    /// Writes down that the present step is broken, and passes it by.
    void breakStep(const QString &why);
    /// What a message tells beside the reason: what was done, what is seen, and where the picture is.
    [[nodiscard]] QString evidence();
    /// Lets go of what is being dragged.
    void letGo();
    /// Looks, and tells whether the overlays stand still. False also when the look failed.
    [[nodiscard]] bool isAtRest();
    /// Whether a click there now would be the second half of a double click with the last one, or of a
    /// person's who is too quick.
    [[nodiscard]] bool isTooSoon(const ActionPlan &plan) const;
    /// Where the mouse acts next, on the screen; nothing when the keyboard does.
    [[nodiscard]] std::optional<QPoint> mousePlace(const Action &action) const;
    /// Leaves a picture of the screen in a file with this name; its path, empty when there is none.
    QString takePicture(const QString &name);
    /// False, and the play is over, when a picture is asked for and cannot be written.
    [[nodiscard]] bool takeShot(const QString &name);
    [[nodiscard]] QString stepText() const;
    /// Its answer to the question of the present step.
    [[nodiscard]] bool answersYes() const;

    LessonSession *m_session;
    Settings m_settings;
    std::unique_ptr<Eye> m_eye;
    std::unique_ptr<Hand> m_hand;
    Phase m_phase = Phase::kIdle;
    QTimer m_ticks;
    QTimer m_limit;
    QElapsedTimer m_sinceMoved;
    QElapsedTimer m_sinceClick;
    QPoint m_lastClick;
    /// Since the editor heard that a button of the companion was pressed.
    QElapsedTimer m_sinceHeard;
    SeenOverlays m_seen;
    ActionPlan m_plan;
    Intent m_intent = Intent::kStep;
    /// How many of the plan's actions are done, and which, in words.
    int m_next = 0;
    QStringList m_done;
    int m_pictures = 0;
    int m_brokenInARow = 0;
    /// Ids of the steps that have asked a question so far.
    QVector<int> m_questions;
    bool m_isPassing = false;
    /// How often a way back was gone in this step.
    int m_returns = 0;
    /// In all of the play, and whether one of them in this step.
    int m_mistakes = 0;
    bool m_hasErred = false;
    int m_tries = 0;
    /// Of what the step asks for only the press of the companion's button is left to be done.
    bool m_isPressLeft = false;
    QElapsedTimer m_sinceDone;
    /// The editor had heard of so many clicks before the last one, if that was in this plan.
    std::optional<int> m_clicksBefore;
    QStringList m_failures;
};
