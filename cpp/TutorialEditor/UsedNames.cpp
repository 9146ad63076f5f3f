#include "TutorialEditor/UsedNames.h"

#include "TutorialEditor/NameNumbers.h"

#include <QtGlobal>

#include <utility>

UsedNames::UsedNames(const QStringList &names)
{
    for (const QString &name : names) {
        add(name);
    }
}

void UsedNames::add(const QString &name)
{
    m_names.append(name);
    m_taken.insert(name);
    // A number has no bracket of its own, so the last bracket is the only one that can open it.
    const int open = name.lastIndexOf(QLatin1Char('('));
    if (open >= 0) {
        const QString base = name.left(open);
        if (const auto number = bracketNumber(name, base)) {
            int &highest = m_highestBracket[base];
            highest = qMax(highest, *number);
        }
    }
    for (auto highest = m_highestSuffix.begin(); highest != m_highestSuffix.end(); ++highest) {
        *highest = qMax(*highest, suffixNumber(name, highest.key()).value_or(0));
    }
}

QString UsedNames::unique(const QString &base, int digits)
{
    if (digits >= 0) {
        return numberedName(base, highestSuffix(base), digits);
    }
    if (digits != kAlwaysBracket && !m_taken.contains(base)) {
        return base;
    }
    return bracketedName(base, m_highestBracket.value(base));
}

int UsedNames::highestSuffix(const QString &base)
{
    const auto known = m_highestSuffix.constFind(base);
    if (known != m_highestSuffix.constEnd()) {
        return *known;
    }
    int highest = 0;
    for (const QString &name : std::as_const(m_names)) {
        highest = qMax(highest, suffixNumber(name, base).value_or(0));
    }
    m_highestSuffix.insert(base, highest);
    return highest;
}
