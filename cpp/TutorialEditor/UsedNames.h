#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// The names that are taken. Gives what uniqueName gives for the same names, without going through all of
/// them each time.
class UsedNames
{
public:
    UsedNames() = default;
    explicit UsedNames(const QStringList &names);

    void add(const QString &name);
    /// See uniqueName.
    [[nodiscard]] QString unique(const QString &base, int digits);

private:
    int highestSuffix(const QString &base);

    QStringList m_names;
    QSet<QString> m_taken;
    QHash<QString, int> m_highestBracket; // by what stands before the bracket
    QHash<QString, int> m_highestSuffix;  // by base, for the bases that were asked for
};
