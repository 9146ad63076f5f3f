#pragma once

#include "lesson/Scenario.h"

#include <QObject>
#include <QTimer>

#include <optional>

class HostEditor;

/// A word in a lesson that nobody knows.
struct LessonFault
{
    QString lesson;
    int item = 0;
    /// The condition or command as it stands there.
    QString word;
    /// A sentence that says what is wrong with it.
    QString problem;

    /// All of it, and what to do, in English.
    [[nodiscard]] QString message() const;
};

/// The hand-over of a lesson: asks the companion for it, and sees to it that what comes is that lesson and
/// can be played.
///
/// What comes does not say which lesson it is, and may come late. But the companion answers in order: where a
/// lesson is given up, its list of lessons is asked for once more, and what comes ahead of that is not the
/// next lesson.
class LessonHandOver : public QObject
{
    Q_OBJECT

public:
    /// @p editor outlives this.
    explicit LessonHandOver(const HostEditor *editor, QObject *parent = nullptr);

    /// How long a lesson is waited for.
    static constexpr int kMs = 5000;

    /// A companion is there: asks it for its lessons.
    void begin();
    /// Takes the names of the lessons that the companion has. False for a list that nobody has asked for but
    /// this.
    [[nodiscard]] bool takeList(const QStringList &lessonNames);

    /// Asks for the lesson. One that was asked for before is given up.
    void request(const QString &lessonName);
    /// Gives up the lesson that was asked for.
    void stop();
    /// The companion is gone, with all that it was asked for.
    void abandon();

    /// Whether what was handed over is a lesson that was given up.
    [[nodiscard]] bool passOver(const QString &scenarioText);
    /// Takes what was handed over. Nothing when it is not to be played; then refused() or stopped() has said
    /// so.
    [[nodiscard]] std::optional<Scenario> take(const QString &scenarioText);
    /// Takes a lesson of the host's own, which the companion is not asked for; else as take().
    [[nodiscard]] std::optional<Scenario> takeOwn(const QString &lessonName, const QString &scenarioText);

    /// Name of the lesson that was asked for last.
    [[nodiscard]] QString lessonName() const { return m_lessonName; }

Q_SIGNALS:
    /// A command for the companion, as HostCommands builds them.
    void sends(const QString &command);
    /// The lesson has not come: nothing, nothing that can be read, or another lesson.
    void refused(const QString &lessonName);
    /// The lesson has a word that nobody knows.
    void stopped(const LessonFault &fault);
    /// Something in the lesson is wrong, which keeps nobody from playing it.
    void problemFound(const QString &problem);

private:
    void refuse();
    void askForList(const QString &givenUp);
    [[nodiscard]] Scenario read(const QString &scenarioText);
    void remember(const QString &lessonName, const Scenario &scenario);
    [[nodiscard]] bool isAsked(const Scenario &scenario) const;
    /// Nothing, and says so, when the lesson has a word that nobody knows.
    [[nodiscard]] std::optional<Scenario> ifKnown(const Scenario &scenario);
    [[nodiscard]] std::optional<UnknownWord> unknownWord(const Scenario &scenario) const;

    const HostEditor *m_editor;
    QTimer m_wait;
    /// The lesson that was asked for has not come.
    bool m_isAwaited = false;
    /// For each list that is still to come the lesson that was given up before it was asked for; empty for
    /// none.
    QStringList m_listsDue;
    QString m_lessonName;
    QStringList m_listed;
    /// What was handed over last, and for which lesson first.
    Scenario m_lastScenario;
    QString m_lastName;
};
