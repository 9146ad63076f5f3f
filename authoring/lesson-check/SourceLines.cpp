#include "lesson-check/SourceLines.h"

SourceLines::SourceLines(const QString &file, const QByteArray &bytes, LineEnd lineEnd, Findings &findings)
{
    QByteArray text = bytes;
    const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");
    if (text.startsWith(mark)) {
        text.remove(0, mark.size());
    } else {
        findings.append({Finding::Kind::kError,
                         file,
                         1,
                         {},
                         {},
                         QStringLiteral("the file has to begin with the byte order mark EF BB BF")});
    }

    // This takes one mark off too, and sets another character for what is no UTF-8.
    const QString decoded = QString::fromUtf8(bytes.constData(), bytes.size());
    if (decoded.toUtf8() != text) {
        findings.append(
            {Finding::Kind::kError, file, 0, {}, {}, QStringLiteral("the file is not valid UTF-8")});
    }

    m_lines = decoded.split(QLatin1Char('\n'));
    checkLineEnds(file, lineEnd, findings);
}

void SourceLines::checkLineEnds(const QString &file, LineEnd lineEnd, Findings &findings)
{
    const int ends = m_lines.size() - 1; // nothing ends the last line
    bool wantsReturn = lineEnd == LineEnd::kCrLf || (ends > 0 && m_lines.first().endsWith(QLatin1Char('\r')));
    bool reported = false;
    for (int i = 0; i < m_lines.size(); ++i) {
        const bool hasReturn = m_lines.at(i).endsWith(QLatin1Char('\r'));
        if (hasReturn) {
            m_lines[i].chop(1);
        }
        if (i < ends && hasReturn != wantsReturn && !reported) {
            reported = true;
            const QString wanted = wantsReturn ? QStringLiteral("CRLF") : QStringLiteral("LF");
            findings.append({Finding::Kind::kError,
                             file,
                             i + 1,
                             {},
                             {},
                             QStringLiteral("this line does not end in %1 as it has to").arg(wanted)});
        }
    }
    if (ends > 0 && m_lines.last().isEmpty()) {
        findings.append({Finding::Kind::kError,
                         file,
                         ends,
                         {},
                         {},
                         QStringLiteral("the file has to end with the closing bracket, without a line end")});
    }
    while (m_lines.size() > 1 && m_lines.last().isEmpty()) {
        m_lines.removeLast();
    }
}
