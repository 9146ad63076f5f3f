#pragma once

#include "host/StepStart.h"
#include "host/Way.h"
#include "lesson/Scenario.h"

#include <QObject>
#include <QTimer>

class HostEditor;

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
    void beginStep(const Step &step);
    void end();

    /// Whether the event, which meets the step's condition if @p meets, is what the step asks for. To be told
    /// of every event.
    [[nodiscard]] bool counts(const EditorEvent &event, bool meets);

    /// The control, row, tab or cell that the step's position names.
    [[nodiscard]] const std::optional<ControlSpot> &pointed() const { return m_pointed; }
    [[nodiscard]] const StepStart &start() const { return m_start; }

    [[nodiscard]] bool isAstray() const { return m_stray != Stray::kNot; }
    /// What to use next to get back. Nothing when the person is not astray or no control leads back.
    [[nodiscard]] const std::optional<Way> &wayBack() const { return m_way; }
    /// Whether something has gone wrong that restore() mends.
    [[nodiscard]] bool canPutBack() const;

    /// Brings back what there was at the start of the step, or at another one.
    bool restore(const StepStart &start);
    bool putBack() { return restore(m_start); }
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
    enum class Stray {
        kNot,
        /// Other windows are open than the step needs, or they came up in another way.
        kWindows,
        /// What the step points at means something else.
        kMeaning,
        /// A context menu lies over it.
        kCovered,
        /// Another project is open.
        kProject,
    };

    void follow();
    void endTurn();
    void takeStart();
    void blame(const EditorEvent &event);
    void offerHelp();
    [[nodiscard]] bool wantsEvent() const;
    [[nodiscard]] bool isThere(const OpenWindows &open) const;
    [[nodiscard]] bool hasOtherMeaning() const;
    [[nodiscard]] Stray strayed() const;
    [[nodiscard]] std::optional<Way> findWay(Stray stray) const;
    [[nodiscard]] std::optional<Way> wayToWindows() const;
    /// The first of what was chosen when the step began and is not now.
    [[nodiscard]] std::optional<Way> wayToChosen() const;

    HostEditor *m_editor;
    WindowTrail m_trail;
    bool m_runs = false;
    Step m_step;
    int m_number = 0;
    /// Number of the step in which the mouse button went down last.
    int m_pressedIn = 0;
    std::optional<ControlSpot> m_pointed;
    StepStart m_start;
    /// What there was when the step was reached was taken at the end of its turn.
    bool m_settled = false;
    bool m_restoring = false;
    int m_wrongMoves = 0;
    int m_wrongClicks = 0;
    /// One click may report several things.
    bool m_blamed = false;
    bool m_offered = false;
    Stray m_stray = Stray::kNot;
    std::optional<Way> m_way;
    bool m_couldPutBack = false;
    QTimer m_turn;
    QTimer m_help;
};
