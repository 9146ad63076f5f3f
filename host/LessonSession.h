#pragma once

#include "host/CompanionScreen.h"
#include "host/HostCommands.h"
#include "host/LessonBubble.h"
#include "host/LessonGuide.h"
#include "host/LessonHandOver.h"
#include "host/LessonHistory.h"
#include "host/ScenarioRunner.h"

#include <QElapsedTimer>
#include <QMap>
#include <QPoint>
#include <QTimer>

class HostEditor;

/// One lesson between the companion and the windows: asks for it, runs it, and keeps the companion's picture
/// of the windows true. It speaks in commands; who carries them is not its business.
class LessonSession : public QObject
{
    Q_OBJECT

public:
    using Lesson = CompanionCommand::Lesson;

    /// @p editor stays the caller's and outlives this.
    explicit LessonSession(HostEditor *editor, QObject *parent = nullptr);

    /// Says hello, in the words of the link, and asks for the list of lessons.
    void greet(const QString &locale);
    /// Asks for the lesson. A lesson that runs is stopped first.
    void request(const QString &lessonName);
    /// Begins a lesson that the host has itself, such as one from a file on disk, at the step with this id.
    /// The lesson that is played at that step goes on there, as when its file has changed, and Back leads to
    /// the steps before it.
    void play(const QString &lessonName, const QString &scenarioText, int id);
    /// The lesson that is asked for next begins at the step with this id.
    void setFirstStep(int id) { m_firstStep = id; }
    /// Ends the lesson that runs, and waits no more for one that was asked for.
    void stop();
    /// Forgets the lesson that runs, as its companion is gone. Its bookmark() stays.
    void abandon();

    /// A command of the companion, fields separated by the byte 0x01.
    void receive(const QString &command);

    /// A button of the host's own that stands for the companion's Next, or its Yes and No. Next does the
    /// click that the step asks for where nobody has made it: what comes next may need what it does.
    void next();
    void answer(bool yes);

    static constexpr int kHandOverMs = LessonHandOver::kMs;
    static constexpr int kDoublePressMs = 400;

    [[nodiscard]] QString lessonName() const { return m_handOver.lessonName(); }
    [[nodiscard]] const ScenarioRunner &runner() const { return m_runner; }

    /// Whether the step cannot go on as things stand: its window is closed, another one is on top, a context
    /// menu is gone, what it points at means something else, or another project is open. The companion then
    /// shows what leads back in place of the step.
    [[nodiscard]] bool isAstray() const { return m_guide.isAstray(); }
    /// What to use next to get back: that is where the arrow points. Nothing when the person is not astray,
    /// and when no control leads back.
    [[nodiscard]] std::optional<Way> wayBack() const { return m_guide.wayBack(); }
    /// Whether putBack() would mend something: the data are not what they were when the step was reached, and
    /// there were wrong moves; what the step points at is not there; or it was used in vain again and again.
    [[nodiscard]] bool canPutBack() const { return m_guide.canPutBack(); }
    /// Brings back what there was when the step was reached. Where the step cannot be done even so, it goes
    /// back to the one in which something went wrong, and a step further where that did not help.
    void putBack();

    /// Whether there is a step before this one that was played.
    [[nodiscard]] bool canGoBack() const { return m_runner.isRunning() && m_history.canGoBack(); }
    /// Goes back to it, and to what there was when it was reached. Steps in which the person only waits are
    /// passed over: they would come to this one by themselves.
    void back();
    /// Shows where the step points: the arrow glides in again. Called once more in the same step, does it.
    void showMe();
    /// Goes on. What the step asks for is done, as far as the editor can do it.
    void skipStep();

    /// What resume() needs to go on at the present step, or at the one that was the last when the lesson was
    /// left. Empty before the first step and after the end of a lesson. It holds the editor's state when the
    /// step was reached.
    [[nodiscard]] QJsonObject bookmark() const { return m_bookmark; }
    /// Asks for the lesson of the bookmark, to go on at its step with its state.
    void resume(const QJsonObject &bookmark);

    /// Help is offered in a step that was not done for so long, in milliseconds.
    void setHelpAfterMs(int ms) { m_guide.setHelpAfterMs(ms); }
    /// A press of the companion's buttons that comes so soon behind another one, in milliseconds, is the rest
    /// of a double click: the button of the next step may stand at the same place.
    void setDoublePressMs(int ms) { m_doublePressMs = ms; }

    /// Where the bubble's window belongs at present, in global screen pixels: for the step, or for what leads
    /// back to it. Nothing when that points nowhere or cannot be seen.
    [[nodiscard]] std::optional<QPoint> bubbleTarget() const { return m_bubble.target(); }
    /// Where the bubble's window was sent last: for the present step, or before it when that one has no
    /// place; in global screen pixels. Nothing before the first lesson.
    [[nodiscard]] std::optional<QPoint> bubblePlace() const { return m_screen.place(); }
    /// What the bubble says: the hint of the step, or of what leads back to it.
    [[nodiscard]] QString hint() const { return m_bubble.hint(); }
    /// Whether the present step points into a window that is not open.
    [[nodiscard]] bool lacksWindow() const { return m_bubble.lacksWindow(); }
    /// What the person has to open next for the present step: its window, or, as long as that one is opened
    /// from windows that are closed too, the nearest of these that can be opened now. Empty when the step
    /// lacks no window.
    [[nodiscard]] QString windowToOpen() const { return m_bubble.windowToOpen(); }

Q_SIGNALS:
    /// A command for the companion, as HostCommands builds them.
    void sends(const QString &command);
    void lessonsListed(const QVector<LessonSession::Lesson> &lessons);
    void started();
    void stepReached();
    /// The companion was told the step, or what leads back to it: it was reached, or things changed.
    void stepTold();
    /// The lesson was played to its end.
    void finished();
    /// The companion was asked for data files.
    void filesRequested();
    /// The data files of a step came, file name to text.
    void filesReceived(const QMap<QString, QString> &files);
    /// The companion has not handed over the lesson that was asked for: nothing came, nothing that can be
    /// read, or another lesson, as when the file of this one is missing.
    void refused(const QString &lessonName);
    /// The lesson has a word that nobody knows, so it is not played.
    void stopped(const LessonFault &fault);

    /// isAstray(), wayBack() or canPutBack() changed.
    void astrayChanged();
    /// The person may want help: half a minute has passed in a step that asks for something, or there were
    /// three wrong clicks.
    void helpOffered();
    /// What the step points at, or leads back to it, is to catch the eye.
    void showRequested(const ControlSpot &spot);
    void bookmarkChanged();
    /// back() or putBack() could not bring back all that there was, as when the project is gone.
    void stateLost();
    /// A button of the companion was pressed. The editor's top window wants the focus again, and a second
    /// press, of a double click, is not meant for what lies below.
    void nextArrived();
    /// Something in what the companion sent is wrong; the session goes on as well as it can.
    void problemFound(const QString &problem);

private:
    void connectParts();
    void begin(const std::optional<Scenario> &scenario, int id);
    /// Brings back the state of the bookmark that is to be resumed, if one is. Gives the id of its step, or
    /// @p id.
    int takeUp(int id);
    void goBackTo(const LessonHistory::Visit &visit);
    void restore(const StepStart &start);
    [[nodiscard]] bool passesByItself(int id) const;
    void end();
    void stopRun();
    /// Leaves the lesson without a word.
    void halt();
    void runCommand(const QString &command);
    void onPressed(CompanionCommand::Kind button);
    void onHappened(const EditorEvent &event);
    void onStepReached();
    void onTurned();
    void onFinished();
    /// Does what the step asks for, or nothing where that cannot be done.
    void doStep();
    /// Goes on from a step that waits for Next.
    void passStep();
    void setBookmark(const QJsonObject &bookmark);

    HostEditor *m_editor;
    LessonHandOver m_handOver;
    CompanionScreen m_screen;
    ScenarioRunner m_runner;
    LessonGuide m_guide;
    LessonBubble m_bubble;
    LessonHistory m_history;
    QJsonObject m_bookmark;
    /// The present step has to be written into the bookmark.
    bool m_bookmarkDue = false;
    /// To be resumed when its lesson comes.
    QJsonObject m_resumed;
    /// What begins next is what was played, at its step.
    bool m_goesOn = false;
    std::optional<int> m_firstStep;
    QTimer m_wait;
    /// Since a button of the companion was pressed.
    QElapsedTimer m_pressed;
    int m_doublePressMs = kDoublePressMs;
    /// How many steps were reached.
    int m_reached = 0;
    /// Id of the step from which putBack() has led to an earlier one.
    std::optional<int> m_lostIn;
    /// How often it has led away from that one again.
    int m_lostAgain = 0;
    /// The step was shown by showMe() already.
    bool m_shown = false;
};
