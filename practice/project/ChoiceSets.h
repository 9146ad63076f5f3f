#pragma once

#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// One of the values that a member of a data file can have, and what the person reads for it.
struct Choice
{
    QJsonValue value;
    QString text;
    /// How a row of a list shows an entry with this value, where the text alone would not do: in the words of
    /// RowText. May be empty.
    QString row;
    /// What an entry with one member holds when this becomes the member's name; undefined where it keeps what
    /// it holds.
    QJsonValue start = QJsonValue::Undefined;
    /// The part of the set that it belongs to; may be empty.
    QString group;
};

/// The values that members of data files can have, by the name of the set, or of a set and one of its groups,
/// such as "traits/states". Texts are those of one locale.
class ChoiceSets
{
public:
    /// Reads "<name>.json" for each set there is in @p folder; none where there is no such folder. Adds a
    /// line to @p errors for each thing that is wrong, naming the file, the place and the mend; the result is
    /// then of no use.
    static ChoiceSets read(const QString &folder, const QString &locale, QStringList *errors);

    [[nodiscard]] QStringList names() const { return m_sets.keys(); }
    /// What is wrong with the name and how to mend it; empty when nothing is.
    [[nodiscard]] QString problemOf(const QString &set) const;

    /// None for a name that is not there.
    [[nodiscard]] QVector<Choice> choices(const QString &set) const { return m_sets.value(set); }
    /// The choice with this value; one with an empty text when there is none.
    [[nodiscard]] Choice choice(const QString &set, const QJsonValue &value) const;
    /// What the person reads for the value; empty when no choice has it.
    [[nodiscard]] QString text(const QString &set, const QJsonValue &value) const
    {
        return choice(set, value).text;
    }

    /// Whether a field that holds @p value holds what was wished for. Nothing at all counts as 0, as the
    /// empty text and as false.
    [[nodiscard]] static bool isSame(const QJsonValue &value, const QJsonValue &wished);

private:
    QMap<QString, QVector<Choice>> m_sets;
};
