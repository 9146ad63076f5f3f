#pragma once

#include <QJsonValue>
#include <QString>
#include <QVector>

class ChoiceSets;
class DataLayer;
class RowSources;

/// The text of a row, written with members of its entry in braces:
///
///     {name}                  the member, or what a JSON pointer without its first slash leads to; the name
///     of
///                             a text is the text itself
///     {itemId>data/Items}     the name of the entry with this number in a list
///     {kind:effectKinds}      the text that a set of choices has for this value
///     {@name} {@value}        of an entry with one member
///     {@number}               of the entry in its list
///     {} {>data/Actors}       the entry itself
///
/// Where a choice has a text for rows, that stands for it, with the members of the entry in its braces.
class RowText
{
public:
    /// @p sources and @p choices outlive the text.
    RowText(const QString &text, const RowSources *sources, const ChoiceSets *choices);

    /// What is wrong with the text and how to mend it; empty when nothing is.
    [[nodiscard]] const QString &problem() const { return m_problem; }

    /// Numbers that no entry has, or one without a name, and values that are no choice, are shown as they
    /// are.
    [[nodiscard]] QString text(const QJsonValue &entry, int number, const DataLayer &layer) const;

private:
    /// The row of a choice shows other choices by their texts alone, so that rows cannot go round in circles.
    enum class Kind { kRow, kRowOfChoice };

    RowText(const QString &text, const RowSources *sources, const ChoiceSets *choices, Kind kind);

    struct Piece
    {
        /// The text ahead of the braces.
        QString before;
        /// JSON pointer without its first slash; empty for the entry itself.
        QString member;
        QString list;
        QString set;
    };

    [[nodiscard]] QString problemOf(const Piece &piece) const;
    [[nodiscard]] QString text(const Piece &piece, const QJsonValue &entry, int number,
                               const DataLayer &layer) const;

    const RowSources *m_sources;
    const ChoiceSets *m_choices;
    Kind m_kind;
    QVector<Piece> m_pieces;
    QString m_end;
    QString m_problem;
};
