#include "player/game/Problem.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace player {

QString Problem::toString() const
{
    QStringList place;
    if (!file.isEmpty()) {
        place.append(file);
    }
    const auto add = [&place](const QString &words, int number) {
        if (number > 0) {
            place.append(words.arg(number));
        }
    };
    add(QCoreApplication::translate("TestPlay", "event %1"), event);
    add(QCoreApplication::translate("TestPlay", "page %1"), page);
    add(QCoreApplication::translate("TestPlay", "line %1"), line);
    return place.isEmpty() ? text
                           : QCoreApplication::translate("TestPlay", "%1: %2",
                                                         "a place in the project, and what is wrong")
                                 .arg(place.join(QStringLiteral(", ")), text);
}

bool Problem::addTo(QVector<Problem> *problems) const
{
    const auto same = std::find(problems->begin(), problems->end(), *this);
    if (same == problems->end()) {
        problems->append(*this);
        return true;
    }
    same->times += qMin(times, std::numeric_limits<int>::max() - same->times);
    return false;
}

} // namespace player
