#pragma once

#include <QByteArray>
#include <QPoint>
#include <QString>
#include <QVector>

#include <optional>

/// One step as it was recorded: what an author did, in the words of a lesson.
struct RecordedStep
{
    /// A note for authors.
    QString name;
    /// "x" and "y"; nothing for a step that points nowhere.
    std::optional<QPoint> position;
    QString windowKey;
    QString condition;
    QString icon;
};

/// A lesson that is being recorded: its scenario file, and beside it a catalogue for each language with a
/// text for each step that is still to be written.
class LessonRecord
{
public:
    /// The scenario goes to the file @p path, the texts beside it as ScenarioFile looks for them.
    explicit LessonRecord(const QString &path)
        : m_path(path)
    {
    }

    /// Why the lesson cannot be recorded there, such as a file that is there already; empty when it can.
    [[nodiscard]] QString problem() const;

    void add(const RecordedStep &step) { m_steps.append(step); }
    [[nodiscard]] const QVector<RecordedStep> &steps() const { return m_steps; }

    /// Writes each file whole or not at all. Empty, or a sentence that names the file and what is wrong.
    [[nodiscard]] QString write() const;

    /// What the scenario file holds.
    [[nodiscard]] QByteArray scenario() const;
    /// What a catalogue holds.
    [[nodiscard]] QByteArray catalogue(const QString &locale) const;

private:
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString cataloguePath(const QString &locale) const;

    QString m_path;
    QVector<RecordedStep> m_steps;
};
