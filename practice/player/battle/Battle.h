#pragma once

#include "player/battle/Deeds.h"
#include "player/battle/Fighters.h"
#include "player/battle/TroopPages.h"
#include "player/game/Problem.h"

#include <QCoreApplication>
#include <QVector>

namespace player {

struct GameState;

/// A battle, driven from outside: beginTurn(), give() for everybody who asks, order(), next() until there is
/// no more, endTurn(), and again, until it is over. Nothing of it takes time, and no call does more than one
/// deed. The party's points and states are those in the state of the game.
class Battle
{
    Q_DECLARE_TR_FUNCTIONS(Battle)

public:
    enum class Result { kGoesOn, kWon, kLost, kFled, kAborted };

    /// Data and state have to outlive it.
    Battle(const GameData &data, GameState *state, int troop, bool canFlee);

    [[nodiscard]] Fighters &fighters() { return m_fighters; }
    [[nodiscard]] const Fighters &fighters() const { return m_fighters; }
    [[nodiscard]] TroopPages &pages() { return m_pages; }
    [[nodiscard]] int troop() const { return m_troop; }
    /// 0 before the first turn.
    [[nodiscard]] int turn() const { return m_turn; }
    [[nodiscard]] bool canFlee() const { return m_canFlee; }
    [[nodiscard]] Result result() const;

    void beginTurn();
    /// Whether this one of the party is to be asked what to do; the others do it by themselves.
    [[nodiscard]] bool asks(const Fighter &fighter) const;
    /// What the one whom the deed names does in this turn, in place of what was given before.
    void give(const Deed &deed);
    /// The party tries to flee, in place of its deeds: once in two times at first, then three times in four,
    /// then always.
    Note flee();
    /// Everybody has her deed: the enemies choose theirs, and all are put in order: by agility, the fastest
    /// first; of those who are equally fast, the party first.
    void order();
    /// An action that an event forces is to be done, ahead of the others.
    [[nodiscard]] bool hasForced() const { return !m_forced.isEmpty(); }
    [[nodiscard]] bool hasNext() const { return !m_forced.isEmpty() || !m_queue.isEmpty(); }
    /// Does the next deed.
    [[nodiscard]] QVector<Note> next();
    [[nodiscard]] QVector<Note> endTurn();
    /// Takes away the states that end with a battle; after a defeat, those who have fallen stand up with 1
    /// HP.
    void end();

    /// Done before all others, at no cost of the doer's turn; by nobody once the battle is decided. False
    /// where the doer is not there or does not stand, or there is no such skill.
    bool force(const Deed &deed);
    /// With the last target for the place -2.
    [[nodiscard]] Fighter forcedTarget(bool ofEnemies, int place) const;
    void abort() { m_isAborted = true; }
    [[nodiscard]] QVector<int> takeCommonEvents() { return m_deeds.takeCommonEvents(); }
    [[nodiscard]] QVector<Problem> takeProblems();

private:
    void tellOfTroop();
    void tell(const QString &file, const QString &text, int enemy = 0);

    const GameData &m_data;
    GameState *m_state;
    int m_troop;
    bool m_canFlee;
    Fighters m_fighters;
    Deeds m_deeds;
    TroopPages m_pages;
    QVector<Deed> m_given;
    QVector<Deed> m_queue;
    QVector<Deed> m_forced;
    QVector<Problem> m_problems;
    int m_turn = 0;
    int m_triesToFlee = 0;
    /// Turns in which nobody could do anything, one after the other.
    int m_idleTurns = 0;
    bool m_somebodyActed = false;
    bool m_hasFled = false;
    bool m_isAborted = false;
};

} // namespace player
