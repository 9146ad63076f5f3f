#include "lesson/QuotedRow.h"

#include <QRegularExpression>

#include <algorithm>

QStringList quotedIn(const QString &hint)
{
    static const QRegularExpression marks(QStringLiteral("“([^”]+)”|「([^」]+)」"));
    QStringList texts;
    for (auto match = marks.globalMatch(hint); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        texts.append(found.captured(found.lastCapturedIndex()));
    }
    return texts;
}

int quotedRow(const QString &hint, const QStringList &rows, const QString &own)
{
    QStringList texts = quotedIn(hint);
    for (const QString &text : qAsConst(texts)) {
        const int row = int(rows.indexOf(text));
        if (row >= 0) {
            return row;
        }
    }
    if (!own.isEmpty()) {
        texts.append(own);
    }
    for (const QString &text : qAsConst(texts)) {
        const auto row = std::find_if(rows.cbegin(), rows.cend(),
                                      [&text](const QString &one) { return one.contains(text); });
        if (row != rows.cend()) {
            return int(row - rows.cbegin());
        }
    }
    return -1;
}
