#include "player/battle/Deeds.h"

#include "player/battle/Effects.h"
#include "player/game/GameData.h"
#include "player/game/GameState.h"

namespace player {

namespace {

enum Restriction { kAttacksEnemy = 1, kAttacksAnyone = 2, kAttacksAlly = 3, kCannotAct = 4 };
enum Timing { kAfterAction = 1, kAfterTurn = 2 };

} // namespace

Deeds::Deeds(const GameData &data, GameState *state, Fighters *fighters)
    : m_data(data)
    , m_state(state)
    , m_fighters(fighters)
{
}

QVector<Note> Deeds::carryOut(const Deed &deed)
{
    if (!m_fighters->isStanding(deed.doer)) {
        return {};
    }
    const int restriction = m_fighters->restriction(deed.doer);
    QVector<Note> notes;
    if (restriction != 0) {
        notes = restricted(deed.doer, restriction);
    } else if (deed.kind == Deed::Kind::kAttack) {
        notes = attack(deed);
    } else if (deed.kind == Deed::Kind::kSkill) {
        notes = useSkill(deed);
    } else if (deed.kind == Deed::Kind::kItem) {
        notes = useItem(deed);
    } else if (deed.kind == Deed::Kind::kGuard) {
        notes = {{Note::Kind::kGuards, deed.doer}};
    }
    return notes + passTime(deed.doer, kAfterAction);
}

QVector<Note> Deeds::attack(const Deed &deed)
{
    return QVector<Note>{{Note::Kind::kAttacks, deed.doer}} +
           strikeAll(deed.doer, targets(deed, kScopeEnemy), {});
}

QVector<Note> Deeds::useSkill(const Deed &deed)
{
    const SkillEntry *skill = m_data.skills.find(deed.id);
    if (skill == nullptr) {
        return {};
    }
    if (!m_fighters->canUse(deed.doer, *skill)) {
        return {{Note::Kind::kCannotPay, deed.doer, deed.id}};
    }
    m_fighters->changeMp(deed.doer, -skill->mpCost);
    const QVector<Note> use{{Note::Kind::kUsesSkill, deed.doer, deed.id}};
    const QVector<Fighter> concerned = targets(deed, skill->scope);
    if (Effects::isAttack(*skill)) {
        return use + strikeAll(deed.doer, concerned, Effects::valuesOf(skill->effects, "element"));
    }
    return use + applyToAll(deed.doer, concerned, skill->effects);
}

QVector<Note> Deeds::useItem(const Deed &deed)
{
    const ItemEntry *item = m_data.items.find(deed.id);
    if (item == nullptr || m_state->count(Goods::kItem, deed.id) <= 0) {
        return {{Note::Kind::kNoEffect, deed.doer}};
    }
    if (item->isConsumable) {
        m_state->addGoods(Goods::kItem, deed.id, -1);
    }
    return QVector<Note>{{Note::Kind::kUsesItem, deed.doer, deed.id}} +
           applyToAll(deed.doer, targets(deed, Effects::scopeOf(*item)), item->effects);
}

QVector<Note> Deeds::restricted(const Fighter &doer, int restriction)
{
    if (restriction >= kCannotAct) {
        QVector<Note> notes;
        const QMap<int, int> states = m_fighters->states(doer);
        for (auto state = states.cbegin(); state != states.cend(); ++state) {
            const StateEntry *entry = m_data.states.find(state.key());
            if (entry != nullptr && entry->restriction >= kCannotAct) {
                notes.append({Note::Kind::kKeepsState, doer, state.key()});
            }
        }
        return notes;
    }
    QVector<Fighter> possible;
    if (restriction != kAttacksAlly) {
        possible += m_fighters->standing(!doer.isEnemy);
    }
    if (restriction != kAttacksEnemy) {
        possible += m_fighters->standing(doer.isEnemy);
    }
    possible.removeAll(doer);
    if (possible.isEmpty()) {
        return {};
    }
    return QVector<Note>{{Note::Kind::kAttacks, doer}} + strikeAll(doer, {anyOf(possible)}, {});
}

QVector<Note> Deeds::strikeAll(const Fighter &doer, const QVector<Fighter> &targets,
                               const QVector<int> &elements)
{
    QVector<Note> notes;
    for (const Fighter &target : targets) {
        notes += Effects::strike({m_data, m_fighters, &m_state->random, doer, target, isGuarding(target)},
                                 elements);
    }
    return notes;
}

QVector<Note> Deeds::applyToAll(const Fighter &doer, const QVector<Fighter> &targets,
                                const NamedNumbers &effects)
{
    const QVector<int> events = Effects::valuesOf(effects, "commonEvent");
    m_commonEvents += events;
    QVector<Note> notes;
    for (const Fighter &target : targets) {
        const QVector<Note> done =
            Effects::apply({m_data, m_fighters, &m_state->random, doer, target, isGuarding(target)}, effects);
        notes += done;
        // Of several, nobody asks what became of those who have fallen.
        const bool isMissed = targets.size() == 1 || m_fighters->isStanding(target);
        if (done.isEmpty() && events.isEmpty() && isMissed) {
            notes.append({Note::Kind::kNoEffect, target});
        }
    }
    return notes;
}

QVector<Fighter> Deeds::targets(const Deed &deed, int scope)
{
    const QVector<Fighter> allies = m_fighters->standing(deed.doer.isEnemy);
    const QVector<Fighter> enemies = m_fighters->standing(!deed.doer.isEnemy);
    switch (scope) {
    case kScopeEnemies:
        return enemies;
    case kScopeAllies:
        return m_fighters->present(deed.doer.isEnemy);
    case kScopeUser:
        return {deed.doer};
    case kScopeEnemy:
    case kScopeAlly:
        break;
    default:
        return {};
    }
    const bool isForAlly = scope == kScopeAlly;
    const QVector<Fighter> possible = isForAlly ? allies : enemies;
    Fighter target = deed.target;
    const bool isOfThatSide = m_fighters->side(isForAlly == deed.doer.isEnemy).contains(target);
    if (target.place < 0 || !isOfThatSide) {
        target = anyOf(possible);
    } else if (!isForAlly && !possible.contains(target) && !possible.isEmpty()) {
        target = possible.constFirst(); // who was aimed at has fallen meanwhile
    }
    m_lastTarget = target;
    return target.place < 0 ? QVector<Fighter>() : QVector<Fighter>{target};
}

Fighter Deeds::anyOf(const QVector<Fighter> &fighters)
{
    if (fighters.isEmpty()) {
        return {};
    }
    return fighters.at(m_state->random.between(0, int(fighters.size()) - 1));
}

QVector<Note> Deeds::endTurn(const Fighter &fighter)
{
    if (!m_fighters->isStanding(fighter)) {
        return {};
    }
    QVector<Note> notes;
    const QMap<int, int> states = m_fighters->states(fighter);
    for (auto state = states.cbegin(); state != states.cend(); ++state) {
        const StateEntry *entry = m_data.states.find(state.key());
        if (entry != nullptr &&
            (Actor::sum(entry->traits, "hpEachTurn") != 0 || Actor::sum(entry->traits, "mpEachTurn") != 0)) {
            notes.append({Note::Kind::kKeepsState, fighter, state.key()});
        }
    }
    const NamedNumbers traits = m_fighters->traits(fighter);
    const NamedNumbers points{{QStringLiteral("hp"), Actor::sum(traits, "hpEachTurn")},
                              {QStringLiteral("mp"), Actor::sum(traits, "mpEachTurn")}};
    notes += Effects::apply({m_data, m_fighters, &m_state->random, fighter, fighter, false},
                            points.at(0).value == 0 ? points.mid(1) : points);
    return notes + passTime(fighter, kAfterTurn);
}

QVector<Note> Deeds::passTime(const Fighter &fighter, int timing)
{
    QVector<Note> notes;
    const QMap<int, int> states = m_fighters->states(fighter);
    for (auto state = states.cbegin(); state != states.cend(); ++state) {
        const StateEntry *entry = m_data.states.find(state.key());
        if (entry == nullptr || entry->autoRemovalTiming != timing || !m_fighters->isStanding(fighter)) {
            continue;
        }
        // A state that an event gave has no turns of its own yet.
        const int left = (state.value() > 0 ? state.value() : Effects::turnsOf(*entry, &m_state->random)) - 1;
        if (left > 0) {
            m_fighters->setTurns(fighter, state.key(), left);
        } else {
            m_fighters->removeState(fighter, state.key());
            notes.append({Note::Kind::kLosesState, fighter, state.key()});
        }
    }
    return notes;
}

QVector<int> Deeds::takeCommonEvents()
{
    QVector<int> events;
    events.swap(m_commonEvents);
    return events;
}

} // namespace player
