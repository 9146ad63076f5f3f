#pragma once

#include <QRect>
#include <QVector>

namespace player {

/// Where the window of a game comes up: as large as the screen has room for it beside what is to stay in
/// sight, or, where there is no such room, in its smallest size where it hides the least of that.
class WindowSpot
{
public:
    /// All in pixels of the screen. @p around is what the window has around the game's screen: key line and
    /// frame.
    WindowSpot(const QRect &screen, const QVector<QRect> &inSight, const QMargins &around);

    /// The rectangle of the game's screen alone.
    [[nodiscard]] QRect game() const;

private:
    [[nodiscard]] qint64 hidden(const QRect &window) const;

    QRect m_screen;
    QVector<QRect> m_inSight;
    QMargins m_around;
};

} // namespace player
