#include "lesson/description/Spot.h"

#include <algorithm>

namespace {

constexpr int kCellPixels = 32; ///< of the map at full size

} // namespace

Spot::Spot(const QVector<ControlDescription> &controls, const QStringList &words)
{
    const QString name = words.value(0);
    const auto isIt = [&](const ControlDescription &control) {
        return control.name == name;
    };
    const auto control = std::find_if(controls.cbegin(), controls.cend(), isIt);
    if (control == controls.cend()) {
        m_problem = QStringLiteral("the window has no control \"%1\"").arg(name);
        return;
    }
    QVector<int> numbers;
    for (int i = 2; i < words.size(); ++i) {
        bool isNumber = false;
        numbers.append(words.at(i).toInt(&isNumber));
        if (!isNumber || numbers.constLast() < 0) {
            m_problem = QStringLiteral("\"%1\" is not a number from 0").arg(words.at(i));
            return;
        }
    }

    const QRect &place = control->geometry;
    const QString what = words.value(1);
    const QPoint middle(place.x() + place.width() / 2, place.y() + place.height() / 2);
    if (words.size() == 1) {
        m_point = middle;
    } else if (what == QLatin1String("row") && numbers.size() == 1 && control->rowHeight > 0) {
        m_point = {middle.x(), place.y() + numbers.at(0) * control->rowHeight + control->rowHeight / 2};
    } else if (what == QLatin1String("tab") && numbers.size() == 1 && !control->tabWidths.isEmpty()) {
        m_point = {place.x() + control->tabLeft(numbers.at(0)) + control->tabWidth(numbers.at(0)) / 2,
                   middle.y()};
    } else if (what == QLatin1String("cell") && numbers.size() == 2) {
        m_point = place.topLeft() + QPoint(numbers.at(0), numbers.at(1)) * kCellPixels +
                  QPoint(kCellPixels / 2, kCellPixels / 2);
    } else {
        m_problem =
            QStringLiteral("\"%1\" has no \"%2\"; there are row N in lists, tab N in tab rows and cell "
                           "COLUMN ROW in maps")
                .arg(name, words.mid(1).join(QLatin1Char(' ')));
        return;
    }
    if (!place.contains(m_point)) {
        m_problem = QStringLiteral("\"%1\" ends before that").arg(name);
    }
}
