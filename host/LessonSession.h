#pragma once

#include "host/HostCommands.h"
#include "host/ScenarioRunner.h"

#include <QHash>
#include <QMap>
#include <QPoint>
#include <QSize>
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
    /// Ends the lesson that runs.
    void stop();
    /// Forgets the lesson that runs, as its companion is gone.
    void abandon();

    /// A command of the companion, fields separated by the byte 0x01.
    void receive(const QString &command);

    static constexpr int kHandOverMs = 5000;

    [[nodiscard]] QString lessonName() const { return m_lessonName; }
    [[nodiscard]] const ScenarioRunner &runner() const { return m_runner; }
    void skipStep() { m_runner.skip(); }

    /// Where the bubble's window was sent for the present step, in global screen pixels; nothing when the
    /// step points nowhere or its window is not open.
    [[nodiscard]] std::optional<QPoint> bubbleTarget() const;
    /// Where the bubble's window was sent last: for the present step, or before it when that one has no
    /// place; in global screen pixels. Nothing before the first lesson.
    [[nodiscard]] std::optional<QPoint> bubblePlace() const { return m_place; }
    /// Whether the present step points into a window that is not open.
    [[nodiscard]] bool lacksWindow() const;
    /// What the person has to open next for the present step: its window, or, as long as that one is opened
    /// from windows that are closed too, the nearest of these that can be opened now. Empty when the step
    /// lacks no window.
    [[nodiscard]] QString windowToOpen() const;

Q_SIGNALS:
    /// A command for the companion, as HostCommands builds them.
    void sends(const QString &command);
    void lessonsListed(const QVector<LessonSession::Lesson> &lessons);
    void started();
    void stepReached();
    /// The companion was told the step: it was reached, or its window closed or opened again.
    void stepTold();
    /// The lesson was played to its end.
    void finished();
    /// The companion was asked for data files.
    void filesRequested();
    /// The data files of a step came, file name to text.
    void filesReceived(const QMap<QString, QString> &files);
    /// The companion has not handed over the lesson that was asked for.
    void refused(const QString &lessonName);
    /// Something in what the companion sent is wrong; the session goes on as well as it can.
    void problemFound(const QString &problem);

private:
    void begin(const QString &scenarioText, int id);
    void end();
    void runCommand(const QString &command);
    void onStepReached();
    void onMoved(const QString &windowKey, const QPoint &origin);
    void onWindowGone();
    void sendPush(const QString &windowKey);
    void sendPop();
    void sendWindows();
    /// A step without a position leaves the bubble where it is, and before the first it is in the screen's
    /// corner: the middle of the main window is where a person looks.
    void sendFirstPlace();
    void sendApplicationSize();
    void sendStep();
    void sendPlace(const QPoint &place);

    HostEditor *m_editor;
    ScenarioRunner m_runner;
    QTimer m_wait;
    QTimer m_handOver;
    QString m_lessonName;
    /// What the companion was told last: it points at the window of the step, or nowhere.
    bool m_pointing = false;
    std::optional<QPoint> m_place;
    QSize m_applicationSize;
};
