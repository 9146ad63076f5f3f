#include "player/scene/TalkText.h"

#include "player/scene/Game.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace player {

namespace {

using Token = TalkText::Token;
using Kind = TalkText::Token::Kind;

constexpr int kShortPause = 15;
constexpr int kLongPause = 60;

QString currencyOf(const GameData &data)
{
    return data.system.currency.isEmpty() ? QCoreApplication::translate("TestPlay", "G", "the currency")
                                          : data.system.currency;
}

QString actorName(const Game &game, int id)
{
    const Actor *const known = game.state().knownActor(id);
    return known != nullptr ? known->name : game.data().actors.name(id);
}

/// The control characters that stand for a text.
QString replaced(const QString &line, const Game &game)
{
    static const QRegularExpression word(QStringLiteral("\\\\(?:([vnpVNP])\\[(\\d{1,9})\\]|([gG])|\\\\)"));
    QString text;
    int end = 0;
    QRegularExpressionMatchIterator matches = word.globalMatch(line);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        text.append(line.constData() + end, int(match.capturedStart()) - end);
        end = int(match.capturedEnd());
        const QString kind = match.captured(1).toLower();
        const int number = match.captured(2).toInt();
        if (kind == QLatin1String("v")) {
            text += QString::number(game.state().variable(number));
        } else if (kind == QLatin1String("n")) {
            text += actorName(game, number);
        } else if (kind == QLatin1String("p")) {
            text += actorName(game, game.state().party.value(number - 1));
        } else if (!match.captured(3).isEmpty()) {
            text += currencyOf(game.data());
        } else {
            text += match.captured();
        }
    }
    text.append(line.constData() + end, int(line.size()) - end);
    return text;
}

/// What a control character without a number does; a letter for the others.
Token tokenOf(QChar sign)
{
    switch (sign.unicode()) {
    case '.':
        return {Kind::kPause, {}, 0, kShortPause};
    case '|':
        return {Kind::kPause, {}, 0, kLongPause};
    case '!':
        return {Kind::kKey, {}, 0, 0};
    case '>':
        return {Kind::kInstantly, {}, 0, 0};
    case '<':
        return {Kind::kSlowly, {}, 0, 0};
    case '^':
        return {Kind::kNoKey, {}, 0, 0};
    default:
        return {Kind::kLetter, {}, 0, 0};
    }
}

/// Takes the number of a colour out of a word such as "\\c[2]" that stands at @p at. Gives how long the word
/// is; 0 where another one stands.
int colourWord(const QString &text, int at, int *colour)
{
    constexpr int kMostDigits = 3;
    int end = at + 3;
    if (end > text.size() || text.at(at + 1).toLower() != QLatin1Char('c') ||
        text.at(at + 2) != QLatin1Char('[')) {
        return 0;
    }
    int number = 0;
    int digits = 0;
    for (; end < text.size() && text.at(end) >= QLatin1Char('0') && text.at(end) <= QLatin1Char('9'); ++end) {
        number = 10 * number + text.at(end).digitValue();
        if (++digits > kMostDigits) {
            return 0;
        }
    }
    if (digits == 0 || end >= text.size() || text.at(end) != QLatin1Char(']')) {
        return 0;
    }
    *colour = number;
    return end + 1 - at;
}

constexpr int kNarrow = 9;
constexpr int kWide = 18;
constexpr int kWideInLine = 16;
constexpr ushort kFirstWide = 0x2E80;

bool isWide(const QString &letter)
{
    return !letter.isEmpty() && letter.at(0).unicode() >= kFirstWide;
}

bool isBlank(const Token &token)
{
    return token.kind == Kind::kLetter && token.letter == QLatin1String(" ");
}

/// Whether a line may end behind one letter and the next one begin with the other.
bool mayPart(const Token &last, const Token &next)
{
    static const QString closing =
        QStringLiteral("、。，．！？：；）」』】》〉”’…ー々ぁぃぅぇぉっゃゅょァィゥェォッャュョ,.!?:;)");
    static const QString opening = QStringLiteral("（「『【《〈“‘(");
    if (isBlank(last) || next.kind != Kind::kLetter || isBlank(next)) {
        return isBlank(last) && !isBlank(next);
    }
    return (isWide(last.letter) || isWide(next.letter)) && !closing.contains(next.letter) &&
           !opening.contains(last.letter);
}

} // namespace

QVector<QVector<Token>> TalkText::wrapped(const QVector<Token> &tokens, int width)
{
    QVector<QVector<Token>> lines(1);
    int filled = 0;
    // Where the line that is being filled may end, 0 for nowhere yet, and what of it is filled up to there.
    int part = 0;
    int filledToPart = 0;
    for (const Token &token : tokens) {
        const int size = token.kind != Kind::kLetter ? 0 : (isWide(token.letter) ? kWideInLine : kNarrow);
        QVector<Token> &line = lines.last();
        if (!line.isEmpty() && mayPart(line.constLast(), token)) {
            part = int(line.size());
            filledToPart = filled;
        }
        // A blank at the end of a line needs no room.
        if (filled + size > width && filled > 0 && !isBlank(token)) {
            const int end = part > 0 ? part : int(line.size());
            const QVector<Token> rest = line.mid(end);
            filled -= part > 0 ? filledToPart : filled;
            line.resize(end);
            lines.append(rest);
            part = 0;
        }
        lines.last().append(token);
        filled += size;
    }
    return lines;
}

QVector<TalkText::Token> TalkText::read(const QString &line, const Game &game)
{
    const QString text = replaced(line, game);
    QVector<Token> tokens;
    int colour = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar sign = text.at(i);
        if (sign == QLatin1Char('\\') && i + 1 < text.size()) {
            if (const int length = colourWord(text, i, &colour); length > 0) {
                i += length - 1;
                continue;
            }
            const Token token = tokenOf(text.at(i + 1));
            if (token.kind != Kind::kLetter || text.at(i + 1) == QLatin1Char('\\')) {
                ++i;
                tokens.append(token.kind != Kind::kLetter
                                  ? token
                                  : Token{Kind::kLetter, QStringLiteral("\\"), colour, 0});
                continue;
            }
        }
        if (sign.isLowSurrogate() && !tokens.isEmpty()) {
            tokens.last().letter += sign;
        } else {
            tokens.append({Kind::kLetter, QString(sign), colour, 0});
        }
    }
    return tokens;
}

PanelLine TalkText::shown(const QVector<Token> &tokens, int count)
{
    PanelLine line;
    for (int i = 0; i < qMin(count, int(tokens.size())); ++i) {
        const Token &token = tokens.at(i);
        if (token.kind != Kind::kLetter) {
            continue;
        }
        if (line.runs.isEmpty() || line.runs.constLast().colour != token.colour) {
            line.runs.append({QString(), token.colour});
        }
        line.runs.last().text += token.letter;
    }
    return line;
}

PanelLine TalkText::shown(const QString &line, const Game &game)
{
    const QVector<Token> tokens = read(line, game);
    return shown(tokens, int(tokens.size()));
}

int TalkText::width(const QString &text)
{
    int width = 0;
    for (const QChar letter : text) {
        width += letter.unicode() >= kFirstWide ? kWide : kNarrow;
    }
    return width;
}

} // namespace player
