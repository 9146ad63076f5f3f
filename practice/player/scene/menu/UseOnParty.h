#pragma once

#include "player/game/Database.h"
#include "player/scene/ListPanel.h"

#include <QCoreApplication>

namespace player {

class Game;

/// Chooses on whom of the party a skill or item is used, outside of battles, and does it.
class UseOnParty
{
    Q_DECLARE_TR_FUNCTIONS(UseOnParty)

public:
    enum class Result { kNone, kUsed, kCancelled };

    UseOnParty();

    /// Why these effects are of no use outside of battles; empty when they are.
    [[nodiscard]] static QString reasonAgainst(const NamedNumbers &effects, int scope);

    /// @p doer is a place in the party; for an item the first one.
    void begin(const NamedNumbers &effects, int scope, int doer, const Game &game);
    [[nodiscard]] bool isAsking() const { return m_isAsking; }
    /// Done at once where there is nothing to choose.
    Result tick(const Input &input, Game *game);
    /// Whether it did anything, and the common event that it asks for; 0 for none.
    [[nodiscard]] bool hasWorked() const { return m_hasWorked; }
    [[nodiscard]] int commonEvent() const { return m_commonEvent; }
    [[nodiscard]] Panel panel() const { return m_list.panel(); }
    [[nodiscard]] QString help() const;

private:
    void use(int target, Game *game);

    NamedNumbers m_effects;
    int m_scope = 0;
    int m_doer = 0;
    bool m_isAsking = false;
    bool m_hasWorked = false;
    int m_commonEvent = 0;
    ListPanel m_list;
};

} // namespace player
