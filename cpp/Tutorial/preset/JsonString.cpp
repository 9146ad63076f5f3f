#include "Tutorial/preset/JsonString.h"

namespace {

/// The letter behind the backslash for the characters that have a short escape, else null.
QChar shortEscape(ushort character)
{
    switch (character) {
    case '"':
    case '\\':
        return QChar(character);
    case '\b':
        return QLatin1Char('b');
    case '\f':
        return QLatin1Char('f');
    case '\n':
        return QLatin1Char('n');
    case '\r':
        return QLatin1Char('r');
    case '\t':
        return QLatin1Char('t');
    default:
        return {};
    }
}

} // namespace

void appendJsonString(QString &json, const QString &text)
{
    json += QLatin1Char('"');
    int copied = 0;
    for (int i = 0; i < text.size(); ++i) {
        const ushort character = text.at(i).unicode();
        if (character >= 0x20 && character != '"' && character != '\\') {
            continue;
        }
        json.append(text.constData() + copied, i - copied);
        copied = i + 1;
        const QChar letter = shortEscape(character);
        if (letter.isNull()) {
            json += QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'));
        } else {
            json += QLatin1Char('\\');
            json += letter;
        }
    }
    json.append(text.constData() + copied, text.size() - copied);
    json += QLatin1Char('"');
}
