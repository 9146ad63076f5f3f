#include "player/view/WindowSpot.h"

#include "player/view/ScreenScale.h"

#include <algorithm>
#include <limits>

namespace player {

namespace {

/// Pixels of a cell: twice, one and a half times and once the size of the editor's map, and half of it for
/// very small screens.
constexpr int kCells[] = {2 * Frame::kCell, 3 * Frame::kCell / 2, Frame::kCell, Frame::kCell / 2};

qint64 area(const QRect &rect)
{
    return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height();
}

} // namespace

WindowSpot::WindowSpot(const QRect &screen, const QVector<QRect> &inSight, const QMargins &around)
    : m_screen(screen)
    , m_inSight(inSight)
    , m_around(around)
{
}

qint64 WindowSpot::hidden(const QRect &window) const
{
    qint64 sum = 0;
    for (const QRect &rect : m_inSight) {
        sum += area(rect.intersected(window));
    }
    return sum;
}

QRect WindowSpot::game() const
{
    // It stands best against something: an edge of the screen, or of what is to stay in sight.
    QRect best;
    qint64 leastHidden = std::numeric_limits<qint64>::max();
    for (const int cell : kCells) {
        const QRect window = QRect(QPoint(), ScreenScale::sizeWith(cell)).marginsAdded(m_around);
        const QPoint last(m_screen.right() + 1 - window.width(), m_screen.bottom() + 1 - window.height());
        const QPoint first = m_screen.topLeft();
        if (last.x() < first.x() || last.y() < first.y()) {
            continue;
        }
        QVector<int> lefts{(first.x() + last.x()) / 2, first.x(), last.x()};
        QVector<int> tops{(first.y() + last.y()) / 2, first.y(), last.y()};
        for (const QRect &rect : m_inSight) {
            lefts += {rect.right() + 1, rect.left() - window.width()};
            tops += {rect.bottom() + 1, rect.top() - window.height()};
        }
        for (const int top : qAsConst(tops)) {
            for (const int left : qAsConst(lefts)) {
                const QRect there(QPoint(qBound(first.x(), left, last.x()), qBound(first.y(), top, last.y())),
                                  window.size());
                if (const qint64 hides = hidden(there); hides < leastHidden) {
                    leastHidden = hides;
                    best = there.marginsRemoved(m_around);
                }
            }
        }
        if (leastHidden == 0) {
            return best;
        }
        // A smaller one hides less, but a game in half of its size is hard to play.
        if (cell == Frame::kCell) {
            break;
        }
    }
    return best.isEmpty() ? QRect(m_screen.topLeft(), ScreenScale::sizeWith(Frame::kCell / 2)) : best;
}

} // namespace player
