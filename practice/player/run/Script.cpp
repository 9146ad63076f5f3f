#include "player/run/Script.h"

namespace player::Script {

namespace {

/// False when a quotation mark is never closed.
bool readWords(const QString &line, QStringList *words)
{
    QString word;
    bool isQuoted = false;
    bool hasWord = false;
    for (const QChar sign : line) {
        if (sign == QLatin1Char('"')) {
            isQuoted = !isQuoted;
            hasWord = true;
        } else if (isQuoted) {
            word += sign;
        } else if (sign == QLatin1Char('#')) {
            break;
        } else if (sign.isSpace() || sign == QLatin1Char(',')) {
            if (hasWord) {
                words->append(word);
            }
            word.clear();
            hasWord = false;
        } else {
            word += sign;
            hasWord = true;
        }
    }
    if (hasWord) {
        words->append(word);
    }
    return !isQuoted;
}

} // namespace

QVector<ScriptLine> read(const QString &text, QStringList *errors)
{
    QVector<ScriptLine> lines;
    const QStringList all = text.split(QLatin1Char('\n'));
    for (int i = 0; i < all.size(); ++i) {
        ScriptLine line{i + 1, all.at(i).trimmed(), {}};
        if (!readWords(line.text, &line.words)) {
            errors->append(
                QStringLiteral("line %1: a quotation mark is not closed: %2").arg(i + 1).arg(line.text));
        } else if (!line.words.isEmpty()) {
            lines.append(line);
        }
    }
    return lines;
}

} // namespace player::Script
