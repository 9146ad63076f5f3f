#pragma once

#include "host/ControlUse.h"
#include "host/StepAhead.h"
#include "host/Whereabouts.h"

#include <QObject>
#include <QTimer>

class HostEditor;
class ScenarioRunner;

/// Watches over the person within a step: tells what counts for it from wrong moves, knows when the person
/// has strayed and what leads back, and when help is due. It speaks to nobody but its owner.
///
/// What happens in one turn of the event loop belongs together: a click that opens a window reports the
/// window and the click. So a step begins, and a wrong move shows, at the end of a turn.
class LessonGuide : public QObject
{
    Q_OBJECT

public:
    /// @p editor outlives the guide.
    explicit LessonGuide(HostEditor *editor, QObject *parent = nullptr);

    /// A lesson begins: nothing is known of how windows came up, but for what @p known says.
    void beginLesson(const StepStart &known);
    /// The present step of @p runner begins. @p canGoBack: there are steps before it to go back to.
    void beginStep(const ScenarioRunner &runner, bool canGoBack);
    void end();

    /// What an event is for the step.
    enum class Verdict {
        /// Nothing that ends it.
        kNothing,
        /// What it asks for.
        kDone,
        /// It waits for Next, and this is what the step behind it asks for.
        kRanAhead,
    };
    /// To be told of every event.
    [[nodiscard]] Verdict judge(const EditorEvent &event);

    /// What to do for a step that waits for Next, but asks for a click before that which nobody has made.
    /// Nothing where all was done, and for what the editor cannot do in a person's place, such as typing.
    [[nodiscard]] std::optional<ControlUse> leftUndone() const;

    /// Chooses the tabs, tools and rows of the start of the step again, as far as they are in reach, where
    /// the step only shows something: whoever has looked at others meanwhile goes on with the lesson's.
    void chooseAsBefore();

    /// The control, row, tab or cell that the step's position names.
    [[nodiscard]] const std::optional<ControlSpot> &pointed() const { return m_needs.pointed; }
    [[nodiscard]] const StepStart &start() const { return m_needs.start; }

    [[nodiscard]] bool isAstray() const { return m_stray != Stray::kNot; }
    /// What to use next to get back. Nothing when the person is not astray or no control leads back.
    [[nodiscard]] const std::optional<Way> &wayBack() const { return m_way; }
    /// Astray only in that something goes on above the step, or has ended before it: what the editor can do
    /// of the way back. Nothing where it is something else, which restore() mends.
    [[nodiscard]] std::optional<ControlUse> mendOfActivity() const;
    /// Whether something has gone wrong that bringing back an earlier state mends: that of the start of the
    /// step, or, where isLost(), that of a step before.
    [[nodiscard]] bool canPutBack() const;
    /// Whether the step cannot be done even as it began: what went wrong did so earlier.
    [[nodiscard]] bool isLost() const;
    /// Whether canPutBack() was so before what happened last, for more than another choice of rows.
    [[nodiscard]] bool wasDamaged() const { return m_wasDamaged; }

    /// Brings back what there was at the start of the step, or at another one.
    bool restore(const StepStart &start);
    /// The project has changed without the person: that is how the step begins.
    void takeStartAnew();

    static constexpr int kHelpAfterMs = 30000;
    static constexpr int kHelpAfterClicks = 3;
    void setHelpAfterMs(int ms) { m_help.setInterval(ms); }

Q_SIGNALS:
    /// The person strayed, came one use of a control nearer, or is back.
    void changed();
    /// Something may stand elsewhere: at the end of each turn in which something happened.
    void turned();
    void helpOffered();

private:
    void follow();
    /// A control was used of which no event tells: what it has changed counts as well.
    void takeUse(const ControlSpot &spot);
    void noteUse(const ControlSpot &spot);
    void endTurn();
    [[nodiscard]] Stray lookAround(const Whereabouts &now);
    /// What leads back, if that can be used and has not come to nothing so far.
    [[nodiscard]] std::optional<Way> usableWay(const Whereabouts &now, Stray stray);
    void takeStart();
    /// What the step points at was used in this turn, maybe once too often.
    void countUse();
    void blame(const EditorEvent &event);
    void offerHelp();
    /// There is a state to bring back.
    [[nodiscard]] bool canRestore() const;
    /// Data, project or windows are not what the step needs, beyond what a control leads back to.
    [[nodiscard]] bool isDamaged() const;
    /// Whether a wrong move, which was made in this turn for @p isBlamed, has chosen something else.
    void lookWhatIsChosen(bool isBlamed);
    /// Keeps what a wrong move of the step that ends has left.
    void noteLeftBehind();
    /// Whoever goes back to what an earlier step had chosen has not strayed from a step that began elsewhere.
    void takeReturn();
    [[nodiscard]] bool wantsEvent() const;
    /// Whether the person is to do something in the editor, be it with Next behind it.
    [[nodiscard]] bool asksForAct() const;
    /// The step asks for nothing but to look, or for an answer.
    [[nodiscard]] bool isLook() const;
    /// What was chosen when the step began and is not now.
    [[nodiscard]] QVector<ControlSpot> left() const;
    [[nodiscard]] bool looksElsewhere() const;
    [[nodiscard]] bool wantsWindow() const;
    /// What the step asks for was done, and nothing came of it: the editor is in another state than it needs.
    [[nodiscard]] bool isInVain() const;

    HostEditor *m_editor;
    WindowTrail m_trail;
    bool m_runs = false;
    StepNeeds m_needs;
    bool m_canGoBack = false;
    std::optional<Step> m_behind;
    StepAhead m_ahead;
    int m_number = 0;
    /// Number of the step in which the mouse button went down last.
    int m_pressedIn = 0;
    /// What there was when the step was reached was taken at the end of its turn.
    bool m_settled = false;
    bool m_restoring = false;
    int m_wrongMoves = 0;
    int m_wrongClicks = 0;
    /// What the step points at was used.
    bool m_isUsed = false;
    /// Where that adds up: how often it has changed the data, and what they were at the end of the last turn.
    int m_changes = 0;
    QString m_lastMark;
    /// It was used in this turn, and in how many turns without an end of the step, which is to open a window.
    bool m_isUsedNow = false;
    int m_vainSteps = 0;
    /// In a step to look at, something else was chosen than what it began with, at the end of the last turn.
    bool m_looksElsewhere = false;
    /// In a step to do, a wrong move has chosen another tab, tool or row, and it is chosen still.
    bool m_choosesElsewhere = false;
    /// What wrong moves of earlier steps have left and nobody has chosen again.
    QVector<ControlSpot> m_leftBehind;
    /// Some of it was chosen again in this step, and the meaning of what it points at is to be taken anew.
    bool m_hasReturned = false;
    /// left() at the end of the last turn.
    QVector<ControlSpot> m_left;
    /// One click may report several things.
    bool m_blamed = false;
    bool m_offered = false;
    Stray m_stray = Stray::kNot;
    std::optional<Way> m_way;
    /// The step began with the person astray.
    bool m_beganAstray = false;
    /// The control of m_way was used in this turn.
    bool m_isWayUsed = false;
    /// In how many turns it was used and still was what leads back.
    int m_vainUses = 0;
    /// It was used in an earlier turn already.
    bool m_hasUsedWay = false;
    /// Ways back that were gone since the person was on track, each as often as another one took its place.
    QVector<Way> m_goneWays;
    bool m_couldPutBack = false;
    bool m_wasDamaged = false;
    /// What the step points at was not there at the end of the last turn.
    bool m_wasGone = false;
    QTimer m_turn;
    QTimer m_help;
};
