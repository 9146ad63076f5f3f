#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

/// The fields of one command. A field that the sender left out reads as empty text, and as the number 0.
class CommandFields
{
public:
    static constexpr QChar kSeparator{1};
    /// Far more than any command has. The last one holds all that follows it, separators included: a list of
    /// Qt has no room for the fields of a command that consists of separators.
    static constexpr int kMostFields = 1 << 16;

    explicit CommandFields(const QString &command);

    /// Number of fields, the command word included; at least 1.
    [[nodiscard]] int count() const { return m_fields.size(); }

    [[nodiscard]] const QStringList &all() const { return m_fields; }

    [[nodiscard]] QString text(int index) const { return m_fields.value(index); }

    /// The field as a decimal number, 0 when it is none.
    [[nodiscard]] int number(int index) const { return text(index).toInt(nullptr, 10); }

    /// Field 0 of a command, without a look at the others.
    [[nodiscard]] static QStringView word(const QString &command)
    {
        const int end = command.indexOf(kSeparator);
        return QStringView(command).left(end < 0 ? command.size() : end);
    }

    /// Joins fields to a command.
    [[nodiscard]] static QString join(const QStringList &fields) { return fields.join(kSeparator); }

private:
    QStringList m_fields;
};
