#pragma once

#include "lesson/Scenario.h"

#include <QObject>
#include <QTimer>

#include <optional>

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
class LessonHandOver : public QObject
{
    Q_OBJECT

public:
    explicit LessonHandOver(QObject *parent = nullptr);

    /// How long a lesson is waited for.
    static constexpr int kMs = 5000;

    /// The names of the lessons that the companion has.
    void setListed(const QStringList &lessonNames) { m_listed = lessonNames; }

    /// Asks for the lesson.
    void request(const QString &lessonName);
    /// The lesson that comes next is this one, and the host's own.
    void expectOwn(const QString &lessonName);
    /// Waits no more.
    void stop() { m_wait.stop(); }

    /// Takes what was handed over. Nothing when it is not to be played; then refused() or stopped() has said
    /// so.
    [[nodiscard]] std::optional<Scenario> take(const QString &scenarioText);

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
    [[nodiscard]] bool isAsked(const Scenario &scenario) const;

    QTimer m_wait;
    QString m_lessonName;
    QStringList m_listed;
    /// What was handed over last, and for which lesson.
    Scenario m_lastScenario;
    QString m_lastName;
};
