#pragma once

#include "player/game/GameData.h"
#include "player/game/GameState.h"

#include <memory>

/// A game of few entries and round figures: Mila and Toma, who have 40 HP and 10 MP at level 1, against
/// slimes of 15 HP. Tests change what they are about, and begin.
struct SlimeGame
{
    enum Skill { kStrike = 1, kHeal, kSpark, kSpores, kFlame, kQuake, kShield, kLullaby };
    enum State { kFainted = 1, kPoisoned, kAsleep, kProtected, kAngry };
    enum Item { kHerb = 1, kTonic, kBomb, kStone };

    std::shared_ptr<player::GameData> data = std::make_shared<player::GameData>();
    player::GameState state;

    SlimeGame()
    {
        player::ClassEntry traveler;
        traveler.id = 1;
        traveler.name = QStringLiteral("Traveler");
        traveler.hp = {40, 10};
        traveler.mp = {10, 2};
        traveler.learnings = {{1, kStrike}, {2, kHeal}};
        data->classes.insert(traveler);
        addActor(1, QStringLiteral("Mila"));
        addActor(2, QStringLiteral("Toma"));
        addSkills();
        addStates();
        addItems();
        player::EnemyEntry slime;
        slime.id = 1;
        slime.name = QStringLiteral("Slime");
        slime.hp = 15;
        slime.attack = 4;
        slime.defense = 1;
        slime.exp = 12;
        slime.gold = 3;
        data->enemies.insert(slime);
        setTroop(1);
        data->system.party = {1, 2};
    }

    /// Troop 1 are so many slimes.
    void setTroop(int slimes, const QVector<player::TroopPage> &pages = {})
    {
        player::TroopEntry troop;
        troop.id = 1;
        troop.name = QStringLiteral("Slimes");
        for (int place = 0; place < slimes; ++place) {
            troop.members.append({1, QPoint(200 + 100 * place, 200), false});
        }
        troop.pages = pages;
        data->troops.insert(troop);
    }

    template<typename T, typename Change>
    static void change(player::Entries<T> *entries, int id, const Change &change)
    {
        T entry = *entries->find(id);
        change(&entry);
        entries->insert(entry);
    }

    void begin(quint64 seed = 1) { state = player::GameState::begin(*data, seed); }
    player::Actor &actor(int id) { return *state.actor(id, *data); }

private:
    void addActor(int id, const QString &name)
    {
        player::ActorEntry actor;
        actor.id = id;
        actor.name = name;
        actor.classId = 1;
        data->actors.insert(actor);
    }

    void addSkill(int id, const QString &name, int scope, int cost, const player::NamedNumbers &effects)
    {
        player::SkillEntry skill;
        skill.id = id;
        skill.name = name;
        skill.scope = scope;
        skill.mpCost = cost;
        skill.effects = effects;
        data->skills.insert(skill);
    }

    void addSkills()
    {
        using namespace player;
        addSkill(kStrike, QStringLiteral("Strike"), kScopeEnemy, 0, {});
        addSkill(kHeal, QStringLiteral("Heal"), kScopeAlly, 4, {{QStringLiteral("hp"), 20}});
        addSkill(kSpark, QStringLiteral("Spark"), kScopeEnemy, 3, {{QStringLiteral("hp"), -10}});
        addSkill(kSpores, QStringLiteral("Spores"), kScopeEnemy, 0,
                 {{QStringLiteral("addState"), kPoisoned}});
        addSkill(kFlame, QStringLiteral("Flame"), kScopeEnemy, 0,
                 {{QStringLiteral("hp"), -6}, {QStringLiteral("element"), 1}});
        addSkill(kQuake, QStringLiteral("Quake"), kScopeEnemies, 0, {{QStringLiteral("hp"), -5}});
        addSkill(kShield, QStringLiteral("Shield"), kScopeAllies, 0,
                 {{QStringLiteral("addState"), kProtected}});
        addSkill(kLullaby, QStringLiteral("Lullaby"), kScopeEnemy, 0,
                 {{QStringLiteral("addState"), kAsleep}});
    }

    void addState(int id, const QString &name, int restriction, int timing, int turns,
                  const player::NamedNumbers &traits)
    {
        player::StateEntry entry;
        entry.id = id;
        entry.name = name;
        entry.restriction = restriction;
        entry.autoRemovalTiming = timing;
        entry.minTurns = turns;
        entry.maxTurns = turns;
        entry.endsWithBattle = true;
        entry.traits = traits;
        data->states.insert(entry);
    }

    void addStates()
    {
        addState(kFainted, QStringLiteral("Fainted"), 4, 0, 0, {});
        addState(kPoisoned, QStringLiteral("Poisoned"), 0, 0, 0, {{QStringLiteral("hpEachTurn"), -3}});
        addState(kAsleep, QStringLiteral("Asleep"), 4, 2, 2, {});
        addState(kProtected, QStringLiteral("Protected"), 0, 2, 1, {{QStringLiteral("defenseRate"), 200}});
        addState(kAngry, QStringLiteral("Angry"), 1, 1, 2, {});
    }

    void addItem(int id, const QString &name, int price, const player::NamedNumbers &effects)
    {
        player::ItemEntry item;
        item.id = id;
        item.name = name;
        item.price = price;
        item.effects = effects;
        data->items.insert(item);
    }

    void addItems()
    {
        addItem(kHerb, QStringLiteral("Herb"), 8, {{QStringLiteral("hp"), 30}});
        addItem(kTonic, QStringLiteral("Tonic"), 30, {{QStringLiteral("removeState"), kFainted}});
        addItem(kBomb, QStringLiteral("Bomb"), 20, {{QStringLiteral("hp"), -8}});
        addItem(kStone, QStringLiteral("Stone"), 0, {});
    }
};
