#include "player/battle/Battle.h"

#include "player/battle/EnemyPlan.h"
#include "player/game/GameData.h"
#include "player/game/GameState.h"

#include <algorithm>

namespace player {

namespace {

/// After so many turns in which nobody can act, nobody ever will.
constexpr int kMostIdleTurns = 100;

bool isDone(Note::Kind kind)
{
    return kind != Note::Kind::kKeepsState && kind != Note::Kind::kLosesState;
}

} // namespace

Battle::Battle(const GameData &data, GameState *state, int troop, bool canFlee)
    : m_data(data)
    , m_state(state)
    , m_troop(troop)
    , m_canFlee(canFlee)
    , m_fighters(data, state, data.troops.find(troop))
    , m_deeds(data, state, &m_fighters)
{
    if (const TroopEntry *entry = data.troops.find(troop)) {
        m_pages = TroopPages(entry->pages);
    }
    tellOfTroop();
}

void Battle::tellOfTroop()
{
    const TroopEntry *entry = m_data.troops.find(m_troop);
    const QString file = QStringLiteral("data/Troops.json");
    if (entry == nullptr) {
        //: %1 is a number.
        tell(file,
             tr("There is no troop %1, so there is nobody to fight. Choose a troop that the database has.")
                 .arg(m_troop));
        return;
    }
    QVector<int> told;
    for (const TroopMember &member : entry->members) {
        if (told.contains(member.enemy)) {
            continue;
        }
        told.append(member.enemy);
        if (m_data.enemies.find(member.enemy) == nullptr) {
            //: %1 is the name of a troop, %2 a number.
            tell(file, tr("The troop “%1” has a member that is enemy %2, which the database does not have.")
                           .arg(entry->name, QString::number(member.enemy)));
        } else if (EnemyPlan::leadsNowhere(m_data, member.enemy)) {
            //: %1 is the name of an enemy.
            tell(QStringLiteral("data/Enemies.json"),
                 tr("The actions of “%1” name skills that the database does not have, so it just attacks.")
                     .arg(m_data.enemies.name(member.enemy)),
                 member.enemy);
        }
    }
    if (entry->members.isEmpty()) {
        //: %1 is the name of a troop.
        tell(file, tr("The troop “%1” has no members, so there is nobody to fight.").arg(entry->name));
    }
}

void Battle::tell(const QString &file, const QString &text, int enemy)
{
    Problem problem;
    problem.file = file;
    problem.event = file.endsWith(QLatin1String("Troops.json")) ? m_troop : 0;
    problem.entry = enemy;
    problem.text = text;
    m_problems.append(problem);
}

Battle::Result Battle::result() const
{
    if (m_isAborted) {
        return Result::kAborted;
    }
    if (m_hasFled) {
        return Result::kFled;
    }
    if (m_fighters.standing(false).isEmpty()) {
        return Result::kLost;
    }
    return m_fighters.standing(true).isEmpty() ? Result::kWon : Result::kGoesOn;
}

void Battle::beginTurn()
{
    ++m_turn;
    m_deeds.beginTurn();
    m_pages.beginTurn();
    m_given.clear();
    m_queue.clear();
    m_somebodyActed = false;
}

bool Battle::asks(const Fighter &fighter) const
{
    const Actor *actor = m_fighters.actor(fighter);
    const ActorEntry *entry = actor != nullptr ? m_data.actors.find(actor->id) : nullptr;
    return m_fighters.isStanding(fighter) && m_fighters.restriction(fighter) == 0 &&
           (entry == nullptr || !entry->actsAlone);
}

void Battle::give(const Deed &deed)
{
    m_given.erase(std::remove_if(m_given.begin(), m_given.end(),
                                 [&](const Deed &given) { return given.doer == deed.doer; }),
                  m_given.end());
    m_given.append(deed);
}

Note Battle::flee()
{
    const Fighter leader{false, 0};
    m_given.clear();
    const QVector<Fighter> party = m_fighters.standing(false);
    for (const Fighter &fighter : party) {
        m_given.append({Deed::Kind::kNothing, fighter, 0, {}});
    }
    m_somebodyActed = true;
    ++m_triesToFlee;
    m_hasFled = m_canFlee && m_state->random.between(1, 4) <= m_triesToFlee + 1;
    return {m_hasFled ? Note::Kind::kFlees : Note::Kind::kCannotFlee, leader};
}

void Battle::order()
{
    const QVector<Fighter> fighters = m_fighters.standing(false) + m_fighters.standing(true);
    QVector<QPair<int, Deed>> deeds;
    for (const Fighter &fighter : fighters) {
        const auto given = std::find_if(m_given.cbegin(), m_given.cend(),
                                        [&](const Deed &deed) { return deed.doer == fighter; });
        const Deed deed = given != m_given.cend()
                              ? *given
                              : EnemyPlan::choose(m_data, fighter, m_turn, &m_fighters, &m_state->random);
        if (deed.kind == Deed::Kind::kGuard && m_fighters.restriction(fighter) == 0) {
            m_deeds.guard(fighter);
        }
        deeds.append({m_fighters.agility(fighter), deed});
    }
    std::stable_sort(deeds.begin(), deeds.end(),
                     [](const auto &left, const auto &right) { return left.first > right.first; });
    m_queue.clear();
    for (const auto &deed : qAsConst(deeds)) {
        m_queue.append(deed.second);
    }
}

QVector<Note> Battle::next()
{
    const Deed deed = m_forced.isEmpty() ? m_queue.takeFirst() : m_forced.takeFirst();
    QVector<Note> notes = m_deeds.carryOut(deed);
    m_somebodyActed = m_somebodyActed || std::any_of(notes.cbegin(), notes.cend(),
                                                     [](const Note &note) { return isDone(note.kind); });
    return notes;
}

QVector<Note> Battle::endTurn()
{
    QVector<Note> notes;
    const QVector<Fighter> fighters = m_fighters.all();
    for (const Fighter &fighter : fighters) {
        notes += m_deeds.endTurn(fighter);
    }
    m_idleTurns = m_somebodyActed ? 0 : m_idleTurns + 1;
    if (m_idleTurns >= kMostIdleTurns && result() == Result::kGoesOn) {
        tell(QStringLiteral("data/Troops.json"), tr("For %1 turns nobody in this battle could act, so it was "
                                                    "ended. Give the states that forbid to "
                                                    "act an end.")
                                                     .arg(kMostIdleTurns));
        abort();
    }
    return notes;
}

void Battle::end()
{
    const bool isLost = result() == Result::kLost;
    const QVector<Fighter> party = m_fighters.party();
    for (const Fighter &fighter : party) {
        const QMap<int, int> states = m_fighters.states(fighter);
        for (auto state = states.cbegin(); state != states.cend(); ++state) {
            const StateEntry *entry = m_data.states.find(state.key());
            if (entry != nullptr && entry->endsWithBattle) {
                m_fighters.removeState(fighter, state.key());
            }
        }
        if (isLost && m_fighters.hp(fighter) <= 0) {
            m_fighters.changeHp(fighter, 1);
        }
    }
}

bool Battle::force(const Deed &deed)
{
    const bool isThere = m_fighters.side(deed.doer.isEnemy).contains(deed.doer);
    if (!isThere || m_data.skills.find(deed.id) == nullptr) {
        return false;
    }
    // A page that came due by the last blow may want something of who lies there: nothing is wrong with it.
    if (result() != Result::kGoesOn) {
        return true;
    }
    if (!m_fighters.isStanding(deed.doer)) {
        return false;
    }
    m_forced.append(deed);
    return true;
}

Fighter Battle::forcedTarget(bool ofEnemies, int place) const
{
    if (place == -2) {
        return m_deeds.lastTarget();
    }
    return place < 0 ? Fighter() : Fighter{ofEnemies, place};
}

QVector<Problem> Battle::takeProblems()
{
    QVector<Problem> problems;
    problems.swap(m_problems);
    return problems;
}

} // namespace player
