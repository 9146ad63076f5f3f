#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/ScenarioItem.h"

#include <QStringList>

/// Reads a scenario file line by line and holds it to the exact form that the document writer gives, which is
/// stricter than what the companion needs to load it: a file in this form comes back unchanged from a save.
class ScenarioReader
{
public:
    /// @p file names the file in the findings.
    explicit ScenarioReader(QString file);

    /// Returns the items that can be read. What deviates from the form is added to findings(), with one
    /// finding for a line at most: what else may be wrong with it shows when that is mended.
    [[nodiscard]] ScenarioItems read(const QByteArray &bytes);

    [[nodiscard]] const Findings &findings() const { return m_findings; }

private:
    void readItem(ScenarioItems &steps);
    struct Places;

    void readFields(int first, int count, ScenarioItem &step);
    void readField(int at, const QString &ending, Places &places, ScenarioItem &step);
    void reportForeignLine(int at, const QString &name, const QString &text, Places &places,
                           const ScenarioItem &step);
    void report(int line, const ScenarioItem *step, const QString &name, const QString &text);

    QString m_file;
    QStringList m_lines;
    int m_at = 0; ///< index of the next line
    Findings m_findings;
};
