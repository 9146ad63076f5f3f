#include "player/battle/Effects.h"

#include "player/battle/Fighters.h"
#include "player/game/Actor.h"
#include "player/game/GameData.h"
#include "player/game/Random.h"

#include <algorithm>

namespace player::Effects {

namespace {

/// More points than anybody has.
constexpr int kMostPoints = 99999;

bool isNamed(const NamedNumber &effect, const char *name)
{
    return effect.name == QLatin1String(name);
}

/// Doubled for who is weak to one of the elements, halved for who resists one, and for who guards.
int dealt(const Stroke &stroke, int damage, const QVector<int> &elements)
{
    const NamedNumbers traits = stroke.fighters->traits(stroke.target);
    const auto touches = [&](const char *trait) {
        return std::any_of(elements.cbegin(), elements.cend(),
                           [&](int element) { return Actor::has(traits, trait, element); });
    };
    qint64 points = damage;
    points = touches("weakTo") ? points * 2 : points;
    points = touches("resistsElement") ? (points + 1) / 2 : points;
    points = stroke.isGuarding ? (points + 1) / 2 : points;
    return int(qMin<qint64>(points, kMostPoints));
}

void addState(const Stroke &stroke, int state, QVector<Note> *notes)
{
    const StateEntry *entry = stroke.data.states.find(state);
    if (entry == nullptr || !stroke.fighters->isStanding(stroke.target)) {
        return;
    }
    const bool had = stroke.fighters->states(stroke.target).contains(state);
    stroke.fighters->addState(stroke.target, state, turnsOf(*entry, stroke.random));
    if (!had && stroke.fighters->states(stroke.target).contains(state)) {
        notes->append({Note::Kind::kGetsState, stroke.target, state});
    }
}

void removeState(const Stroke &stroke, int state, QVector<Note> *notes)
{
    if (stroke.fighters->states(stroke.target).contains(state)) {
        stroke.fighters->removeState(stroke.target, state);
        notes->append({Note::Kind::kLosesState, stroke.target, state});
    }
}

void hurt(const Stroke &stroke, int points, QVector<Note> *notes)
{
    if (!stroke.fighters->isStanding(stroke.target)) {
        return;
    }
    stroke.fighters->changeHp(stroke.target, -points);
    notes->append({Note::Kind::kLosesHp, stroke.target, 0, points});
    if (!stroke.fighters->isStanding(stroke.target)) {
        notes->append({Note::Kind::kGetsState, stroke.target, Actor::kKnockedOut});
    }
}

void changeHp(const Stroke &stroke, int points, const QVector<int> &elements, QVector<Note> *notes)
{
    if (points < 0) {
        hurt(stroke, dealt(stroke, -points, elements), notes);
        return;
    }
    const int before = stroke.fighters->hp(stroke.target);
    if (before > 0) {
        stroke.fighters->changeHp(stroke.target, points);
        const int gained = stroke.fighters->hp(stroke.target) - before;
        if (gained > 0) {
            notes->append({Note::Kind::kGainsHp, stroke.target, 0, gained});
        }
    }
}

void changeMp(const Stroke &stroke, int points, QVector<Note> *notes)
{
    const int before = stroke.fighters->mp(stroke.target);
    if (stroke.fighters->isStanding(stroke.target)) {
        stroke.fighters->changeMp(stroke.target, points);
    }
    const int change = stroke.fighters->mp(stroke.target) - before;
    if (change != 0) {
        notes->append(
            {change < 0 ? Note::Kind::kLosesMp : Note::Kind::kGainsMp, stroke.target, 0, qAbs(change)});
    }
}

void learn(const Stroke &stroke, int skill, QVector<Note> *notes)
{
    Actor *actor = stroke.fighters->actor(stroke.target);
    if (actor != nullptr && stroke.data.skills.find(skill) != nullptr && !actor->skills.contains(skill)) {
        actor->learn(skill);
        notes->append({Note::Kind::kLearns, stroke.target, skill});
    }
}

} // namespace

int blow(int attack, int defense)
{
    return int(qBound(qint64(1), 2 * qint64(attack) - defense, qint64(kMostPoints)));
}

int turnsOf(const StateEntry &state, Random *random)
{
    if (state.autoRemovalTiming == 0) {
        return 0;
    }
    return qMax(1, random->between(state.minTurns, state.maxTurns));
}

QVector<int> valuesOf(const NamedNumbers &numbers, const char *name)
{
    QVector<int> values;
    for (const NamedNumber &number : numbers) {
        if (isNamed(number, name)) {
            values.append(number.value);
        }
    }
    return values;
}

bool isAttack(const SkillEntry &skill)
{
    const bool concernsEnemies = skill.scope == kScopeEnemy || skill.scope == kScopeEnemies;
    return concernsEnemies &&
           std::all_of(skill.effects.cbegin(), skill.effects.cend(),
                       [](const NamedNumber &effect) { return isNamed(effect, "element"); });
}

bool revive(const NamedNumbers &effects)
{
    return valuesOf(effects, "removeState").contains(Actor::kKnockedOut);
}

int scopeOf(const ItemEntry &item)
{
    const bool harms = std::any_of(item.effects.cbegin(), item.effects.cend(), [](const NamedNumber &effect) {
        return (isNamed(effect, "hp") || isNamed(effect, "mp")) && effect.value < 0;
    });
    return harms && item.scope == kScopeAlly ? int(kScopeEnemy) : item.scope;
}

QVector<Note> strike(const Stroke &stroke, const QVector<int> &elements)
{
    const NamedNumbers traits = stroke.fighters->traits(stroke.doer);
    const int points = blow(stroke.fighters->attack(stroke.doer), stroke.fighters->defense(stroke.target));
    QVector<Note> notes;
    hurt(stroke, dealt(stroke, points, elements.isEmpty() ? valuesOf(traits, "attackElement") : elements),
         &notes);
    const QVector<int> states = valuesOf(traits, "attackState");
    for (const int state : states) {
        addState(stroke, state, &notes);
    }
    return notes;
}

QVector<Note> apply(const Stroke &stroke, const NamedNumbers &effects)
{
    const QVector<int> elements = valuesOf(effects, "element");
    QVector<Note> notes;
    for (const NamedNumber &effect : effects) {
        const int points = qBound(-kMostPoints, effect.value, kMostPoints);
        if (isNamed(effect, "hp")) {
            changeHp(stroke, points, elements, &notes);
        } else if (isNamed(effect, "mp")) {
            changeMp(stroke, points, &notes);
        } else if (isNamed(effect, "addState")) {
            addState(stroke, effect.value, &notes);
        } else if (isNamed(effect, "removeState")) {
            removeState(stroke, effect.value, &notes);
        } else if (isNamed(effect, "learnSkill")) {
            learn(stroke, effect.value, &notes);
        }
    }
    return notes;
}

} // namespace player::Effects
