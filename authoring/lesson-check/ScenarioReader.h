#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/ScenarioStep.h"

#include <QStringList>

/// Reads a scenario file line by line and holds it to the exact form that the document writer gives, which is
/// stricter than what the companion needs to load it: a file in this form comes back unchanged from a save.
class ScenarioReader
{
public:
    /// @p file names the file in the findings.
    explicit ScenarioReader(QString file);

    /// Returns the items that can be read. What deviates from the form is added to findings().
    [[nodiscard]] ScenarioSteps read(const QByteArray &bytes);

    [[nodiscard]] const Findings &findings() const { return m_findings; }

private:
    void readItem(ScenarioSteps &steps);
    void readFields(int first, int count, ScenarioStep &step);
    void readValue(int line, int index, const QString &value, ScenarioStep &step);
    void report(int line, const ScenarioStep *step, const QString &name, const QString &text);

    QString m_file;
    QStringList m_lines;
    int m_at = 0; ///< index of the next line
    Findings m_findings;
};
