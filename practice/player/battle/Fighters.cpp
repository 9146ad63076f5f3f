#include "player/battle/Fighters.h"

#include "player/game/GameData.h"
#include "player/game/GameState.h"

namespace player {

Fighters::Fighters(const GameData &data, GameState *state, const TroopEntry *troop)
    : m_data(data)
    , m_state(state)
{
    if (troop == nullptr) {
        return;
    }
    for (const TroopMember &member : troop->members) {
        m_enemies.append(Enemy::begin(member, data));
    }
}

QVector<Fighter> Fighters::party() const
{
    QVector<Fighter> party;
    for (int place = 0; place < m_state->fighters().size(); ++place) {
        party.append({false, place});
    }
    return party;
}

QVector<Fighter> Fighters::troop() const
{
    QVector<Fighter> troop;
    for (int place = 0; place < m_enemies.size(); ++place) {
        troop.append({true, place});
    }
    return troop;
}

QVector<Fighter> Fighters::present(bool ofEnemies) const
{
    QVector<Fighter> present;
    const QVector<Fighter> fighters = side(ofEnemies);
    for (const Fighter &fighter : fighters) {
        const Enemy *its = enemy(fighter);
        if (its == nullptr || its->hasAppeared) {
            present.append(fighter);
        }
    }
    return present;
}

QVector<Fighter> Fighters::standing(bool ofEnemies) const
{
    QVector<Fighter> standing;
    const QVector<Fighter> fighters = present(ofEnemies);
    for (const Fighter &fighter : fighters) {
        if (hp(fighter) > 0) {
            standing.append(fighter);
        }
    }
    return standing;
}

bool Fighters::isStanding(const Fighter &fighter) const
{
    const Enemy *its = enemy(fighter);
    return hp(fighter) > 0 && (its == nullptr || its->hasAppeared);
}

Actor *Fighters::actor(const Fighter &fighter) const
{
    const QVector<int> party = m_state->fighters();
    if (fighter.isEnemy || fighter.place < 0 || fighter.place >= party.size()) {
        return nullptr;
    }
    return m_state->actor(party.at(fighter.place), m_data);
}

Enemy *Fighters::enemy(const Fighter &fighter)
{
    const bool isThere = fighter.isEnemy && fighter.place >= 0 && fighter.place < m_enemies.size();
    return isThere ? &m_enemies[fighter.place] : nullptr;
}

const Enemy *Fighters::enemy(const Fighter &fighter) const
{
    const bool isThere = fighter.isEnemy && fighter.place >= 0 && fighter.place < m_enemies.size();
    return isThere ? &m_enemies.at(fighter.place) : nullptr;
}

template<typename Answer, typename Question>
Answer Fighters::ask(const Fighter &fighter, const Question &question) const
{
    if (const Enemy *its = enemy(fighter)) {
        return question(*its);
    }
    const Actor *hers = actor(fighter);
    return hers != nullptr ? question(*hers) : Answer();
}

template<typename Deal>
void Fighters::change(const Fighter &fighter, const Deal &deal)
{
    if (Enemy *its = enemy(fighter)) {
        deal(*its);
    } else if (Actor *hers = actor(fighter)) {
        deal(*hers);
    }
}

QString Fighters::name(const Fighter &fighter) const
{
    const Enemy *its = enemy(fighter);
    if (its == nullptr) {
        return ask<QString>(fighter, [](const auto &who) { return who.name; });
    }
    int before = 0;
    int all = 0;
    for (int place = 0; place < m_enemies.size(); ++place) {
        const bool isSame = m_enemies.at(place).id == its->id;
        all += isSame ? 1 : 0;
        before += isSame && place < fighter.place ? 1 : 0;
    }
    // Beyond the letters, numbers.
    const QString mark = before < 26 ? QString(QChar('A' + before)) : QString::number(before + 1);
    return all < 2 ? its->name : its->name + QLatin1Char(' ') + mark;
}

int Fighters::hp(const Fighter &fighter) const
{
    return ask<int>(fighter, [](const auto &who) { return who.hp; });
}

int Fighters::maxHp(const Fighter &fighter) const
{
    return ask<int>(fighter, [this](const auto &who) { return who.maxHp(m_data); });
}

int Fighters::mp(const Fighter &fighter) const
{
    return ask<int>(fighter, [](const auto &who) { return who.mp; });
}

int Fighters::maxMp(const Fighter &fighter) const
{
    return ask<int>(fighter, [this](const auto &who) { return who.maxMp(m_data); });
}

int Fighters::attack(const Fighter &fighter) const
{
    return ask<int>(fighter, [this](const auto &who) { return who.attack(m_data); });
}

int Fighters::defense(const Fighter &fighter) const
{
    return ask<int>(fighter, [this](const auto &who) { return who.defense(m_data); });
}

int Fighters::agility(const Fighter &fighter) const
{
    return ask<int>(fighter, [this](const auto &who) { return who.agility(m_data); });
}

NamedNumbers Fighters::traits(const Fighter &fighter) const
{
    return ask<NamedNumbers>(fighter, [this](const auto &who) { return who.traits(m_data); });
}

QMap<int, int> Fighters::states(const Fighter &fighter) const
{
    return ask<QMap<int, int>>(fighter, [](const auto &who) { return who.states; });
}

bool Fighters::hasHpUpTo(const Fighter &fighter, int percent) const
{
    return qint64(hp(fighter)) * 100 <= qint64(maxHp(fighter)) * percent;
}

int Fighters::restriction(const Fighter &fighter) const
{
    int strictest = 0;
    const QMap<int, int> its = states(fighter);
    for (auto state = its.cbegin(); state != its.cend(); ++state) {
        if (const StateEntry *entry = m_data.states.find(state.key())) {
            strictest = qMax(strictest, entry->restriction);
        }
    }
    return strictest;
}

bool Fighters::canUse(const Fighter &fighter, const SkillEntry &skill) const
{
    return skill.mpCost <= mp(fighter) && !Actor::has(traits(fighter), "sealSkill", skill.id);
}

void Fighters::changeHp(const Fighter &fighter, int amount, bool mayKnockOut)
{
    change(fighter, [&](auto &who) { who.changeHp(amount, m_data, mayKnockOut); });
}

void Fighters::changeMp(const Fighter &fighter, int amount)
{
    change(fighter, [&](auto &who) { who.changeMp(amount, m_data); });
}

void Fighters::addState(const Fighter &fighter, int state, int turns)
{
    change(fighter, [&](auto &who) { who.addState(state, m_data, turns); });
}

void Fighters::removeState(const Fighter &fighter, int state)
{
    change(fighter, [&](auto &who) { who.removeState(state, m_data); });
}

void Fighters::setTurns(const Fighter &fighter, int state, int turns)
{
    change(fighter, [&](auto &who) {
        if (who.states.contains(state)) {
            who.states.insert(state, turns);
        }
    });
}

void Fighters::recover(const Fighter &fighter)
{
    change(fighter, [this](auto &who) { who.recoverAll(m_data); });
}

} // namespace player
