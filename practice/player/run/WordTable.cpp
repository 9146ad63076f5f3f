#include "player/run/WordTable.h"

#include <algorithm>

namespace player {

namespace {

/// Whether the words fit the pattern, with what stands where it is open.
bool fits(const QStringList &pattern, const QStringList &words, QStringList *values)
{
    values->clear();
    for (int i = 0; i < pattern.size(); ++i) {
        const QString &wanted = pattern.at(i);
        if (wanted == QLatin1String("...")) {
            *values += words.mid(i);
            return true;
        }
        if (i >= words.size()) {
            return false;
        }
        bool isNumber = false;
        (void)words.at(i).toInt(&isNumber);
        if (wanted == QLatin1String("*") || (wanted == QLatin1String("#") && isNumber)) {
            values->append(words.at(i));
        } else if (wanted != words.at(i)) {
            return false;
        }
    }
    return words.size() == pattern.size();
}

} // namespace

void WordTable::add(const char *pattern, Doing doing)
{
    m_rows.append({QString::fromLatin1(pattern).split(QLatin1Char(' ')), doing});
}

std::optional<Seen> WordTable::run(Hand *hand, const QStringList &words) const
{
    QStringList values;
    for (const Row &row : m_rows) {
        if (fits(row.pattern, words, &values)) {
            return row.doing(hand, values);
        }
    }
    return std::nullopt;
}

bool WordTable::knows(const QStringList &words) const
{
    QStringList values;
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [&](const Row &row) { return fits(row.pattern, words, &values); });
}

QStringList WordTable::patterns() const
{
    QStringList patterns;
    for (const Row &row : m_rows) {
        patterns.append(row.pattern.join(QLatin1Char(' ')));
    }
    return patterns;
}

} // namespace player
