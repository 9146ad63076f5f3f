#include "lesson-check/LessonList.h"

#include "lesson-check/SourceLines.h"

#include <QRegularExpression>
#include <QSet>

LessonList::LessonList(const QString &file, const QByteArray &bytes, Findings &findings)
{
    const QStringList lines = SourceLines(file, bytes, SourceLines::LineEnd::kCrLf, findings).lines();
    const auto report = [&](int line, const QString &text) {
        findings.append({Finding::Kind::kError, file, line, {}, {}, text});
    };
    if (lines.constFirst() != QLatin1String("var list = [")) {
        report(1, QStringLiteral("the first line has to be \"var list = [\""));
    }
    if (lines.constLast() != QLatin1String("];")) {
        report(lines.size(), QStringLiteral("the last line has to be \"];\""));
    }

    static const QRegularExpression form(
        QStringLiteral("^\\t\\{\"filename\":\"(\\w+)\",\"title\":qsTr\\(\"#([1-9][0-9]*)\"\\)\\}(,?)$"));
    QSet<QString> names;
    for (int i = 1; i < lines.size() - 1; ++i) {
        const QRegularExpressionMatch match = form.match(lines.at(i));
        if (!match.hasMatch()) {
            report(i + 1, QStringLiteral(
                              "an entry has the form <tab>{\"filename\":\"...\",\"title\":qsTr(\"#N\")}"));
            continue;
        }
        const bool isLast = i == lines.size() - 2;
        if (match.captured(3).isEmpty() != isLast) {
            report(i + 1, QStringLiteral("a comma stands between two entries and not behind the last"));
        }
        if (names.contains(match.captured(1))) {
            report(i + 1, QStringLiteral("%1 stands in the list twice").arg(match.captured(1)));
        }
        names.insert(match.captured(1));
        m_entries.append({i + 1, match.captured(1), match.captured(2).toInt()});
    }
}
