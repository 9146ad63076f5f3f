#pragma once

#include "player/battle/Fighters.h"

#include <QVector>

namespace player {

struct GameState;

/// Carries out what somebody is to do in a turn, as far as her states let her. Owns nothing: what it is
/// given has to outlive it.
class Deeds
{
public:
    Deeds(const GameData &data, GameState *state, Fighters *fighters);

    /// Nobody guards any more.
    void beginTurn() { m_guarding.clear(); }
    /// Guards from now on, until the next turn.
    void guard(const Fighter &fighter) { m_guarding.append(fighter); }
    [[nodiscard]] bool isGuarding(const Fighter &fighter) const { return m_guarding.contains(fighter); }

    /// Empty for somebody who has fallen.
    [[nodiscard]] QVector<Note> carryOut(const Deed &deed);
    /// What the states of @p fighter do at the end of a turn, and those that end then.
    [[nodiscard]] QVector<Note> endTurn(const Fighter &fighter);

    /// The common events that effects have asked for since the last call.
    [[nodiscard]] QVector<int> takeCommonEvents();
    /// Who was aimed at last.
    [[nodiscard]] Fighter lastTarget() const { return m_lastTarget; }

private:
    QVector<Note> attack(const Deed &deed);
    QVector<Note> useSkill(const Deed &deed);
    QVector<Note> useItem(const Deed &deed);
    QVector<Note> restricted(const Fighter &doer, int restriction);
    QVector<Note> strikeAll(const Fighter &doer, const QVector<Fighter> &targets,
                            const QVector<int> &elements);
    QVector<Note> applyToAll(const Fighter &doer, const QVector<Fighter> &targets,
                             const NamedNumbers &effects);
    /// Those whom a deed of this scope concerns.
    QVector<Fighter> targets(const Deed &deed, int scope);
    Fighter anyOf(const QVector<Fighter> &fighters);
    QVector<Note> passTime(const Fighter &fighter, int timing);

    const GameData &m_data;
    GameState *m_state;
    Fighters *m_fighters;
    QVector<Fighter> m_guarding;
    QVector<int> m_commonEvents;
    Fighter m_lastTarget;
};

} // namespace player
