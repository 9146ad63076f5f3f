#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// What a lesson of a scenario file leaves in the data files of the project, once that is saved: what stands
/// in "Harbor.outcome.json" beside "Harbor.js", if there is such a file.
///
/// It has up to three objects, "always", "yes" and "no", the latter two for those who answered so, with the
/// places and what is to stand there: {"always": {"data/Items/2/price": 25}}. A place is the file's name
/// without its ending, and the words of a JSON pointer.
class Outcome
{
public:
    explicit Outcome(const QString &scenarioPath);

    /// What is otherwise in the project in @p folder after the way @p way, "yes" or "no", a line each. The
    /// file itself has a line when it cannot be read.
    [[nodiscard]] QStringList problems(const QString &folder, const QString &way) const;

private:
    QString m_name;
    QString m_fault;
    QJsonObject m_ways;
};
