#pragma once

#include "player/game/Database.h"

#include <QSet>

namespace player {

class Fighters;
struct GameState;

/// Which battle events are due. They are asked for at a moment: when the battle begins, when a turn begins or
/// ends, and after each deed. At one moment a page is due once at most, whatever its span.
class TroopPages
{
public:
    TroopPages() = default;
    explicit TroopPages(const QVector<TroopPage> &pages)
        : m_pages(pages)
    {
    }

    void beginTurn() { m_doneInTurn.clear(); }
    void beginMoment() { m_doneNow.clear(); }
    /// The place of a page that is due, from 0, which is not due again until its span is over; -1 for none.
    int next(const Fighters &fighters, const GameState &state, int turn);
    [[nodiscard]] CommandList commands(int page) const { return m_pages.at(page).list; }

private:
    QVector<TroopPage> m_pages;
    QSet<int> m_done;
    QSet<int> m_doneInTurn;
    QSet<int> m_doneNow;
};

} // namespace player
