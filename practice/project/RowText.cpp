#include "project/RowText.h"

#include "project/ChoiceSets.h"
#include "project/JsonPointer.h"
#include "project/RowSources.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

QString written(const QJsonValue &value)
{
    return value.toVariant().toString();
}

} // namespace

RowText::RowText(const QString &text, const RowSources *sources, const ChoiceSets *choices)
    : RowText(text, sources, choices, Kind::kRow)
{
}

RowText::RowText(const QString &text, const RowSources *sources, const ChoiceSets *choices, Kind kind)
    : m_sources(sources)
    , m_choices(choices)
    , m_kind(kind)
{
    // A list may have braces of its own, for the entries on the way to it.
    static const QRegularExpression braces(
        QStringLiteral("\\{([^{}>:]*)(?:>((?:[^{}]|\\{[^{}]*\\})+)|:(\\w+))?\\}"));
    int end = 0;
    QRegularExpressionMatchIterator matches = braces.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const Piece piece{text.mid(end, int(match.capturedStart()) - end), match.captured(1),
                          match.captured(2), match.captured(3)};
        if (m_problem.isEmpty()) {
            m_problem = problemOf(piece);
        }
        m_pieces.append(piece);
        end = int(match.capturedEnd());
    }
    m_end = text.mid(end);
    const auto hasBrace = [](const QString &plain) {
        return plain.contains(QLatin1Char('{')) || plain.contains(QLatin1Char('}'));
    };
    if (hasBrace(m_end) || std::any_of(m_pieces.cbegin(), m_pieces.cend(),
                                       [&hasBrace](const Piece &piece) { return hasBrace(piece.before); })) {
        m_problem = QStringLiteral("\"%1\" has braces that hold no member; write {member}, {member>list} or "
                                   "{member:choices}")
                        .arg(text);
    }
}

QString RowText::problemOf(const Piece &piece) const
{
    if (!piece.list.isEmpty()) {
        return m_sources->problemOf(piece.list);
    }
    if (piece.set.isEmpty()) {
        return {};
    }
    QString problem = m_choices->problemOf(piece.set);
    if (!problem.isEmpty() || m_kind == Kind::kRowOfChoice) {
        return problem;
    }
    const QVector<Choice> choices = m_choices->choices(piece.set);
    for (const Choice &choice : choices) {
        const QString ofRow = RowText(choice.row, m_sources, m_choices, Kind::kRowOfChoice).problem();
        if (!ofRow.isEmpty()) {
            return QStringLiteral("choices/%1.json: row: %2").arg(piece.set, ofRow);
        }
    }
    return {};
}

QString RowText::text(const QJsonValue &entry, int number, const DataLayer &layer) const
{
    QString text;
    for (const Piece &piece : m_pieces) {
        text += piece.before + this->text(piece, entry, number, layer);
    }
    return text + m_end;
}

QString RowText::text(const Piece &piece, const QJsonValue &entry, int number, const DataLayer &layer) const
{
    if (piece.member == QLatin1String("@number")) {
        return QString::number(number);
    }
    if (piece.member == QLatin1String("@place")) {
        return QString::number(number + 1);
    }
    // A text is called what it says, as in a list of switches.
    const bool isItself =
        piece.member.isEmpty() || (entry.isString() && piece.member == QLatin1String("name"));
    const QJsonValue value = isItself ? entry : JsonPointer::value(entry, QLatin1Char('/') + piece.member);
    if (!piece.set.isEmpty()) {
        const Choice choice = m_choices->choice(piece.set, value.isUndefined() ? QJsonValue(0) : value);
        if (!choice.row.isEmpty() && m_kind == Kind::kRow) {
            return RowText(choice.row, m_sources, m_choices, Kind::kRowOfChoice).text(entry, number, layer);
        }
        return choice.text.isEmpty() ? written(value) : choice.text;
    }
    if (!piece.list.isEmpty() && !value.isUndefined()) {
        const QVector<Row> rows = m_sources->rows(piece.list, layer);
        const auto isIt = [&value](const Row &row) {
            return row.chosen() == value;
        };
        const auto found = std::find_if(rows.cbegin(), rows.cend(), isIt);
        return found != rows.cend() && !found->text.isEmpty() ? found->text : written(value);
    }
    return written(value);
}
