#pragma once

#include "player/game/Database.h"

#include <QJsonObject>
#include <QMap>

namespace player {

struct GameData;

enum class Goods { kItem = 0, kWeapon = 1, kArmor = 2 };

/// Somebody of the party, as he or she is now.
struct Actor
{
    /// The state of those who are knocked out.
    static constexpr int kKnockedOut = 1;
    static constexpr int kLargestLevel = 99;

    int id = 0;
    QString name;
    QString image;
    int classId = 0;
    int level = 1;
    int maxLevel = kLargestLevel;
    /// In all, since level 1.
    int exp = 0;
    int hp = 1;
    int mp = 0;
    int weapon = 0;
    int armor = 0;
    QVector<int> skills;
    /// States by number, with the turns that they last still; 0 for those that do not end by themselves.
    QMap<int, int> states;

    /// As the database has the actor at the beginning.
    [[nodiscard]] static Actor begin(const ActorEntry &entry, const GameData &data);

    [[nodiscard]] bool isKnockedOut() const { return hp <= 0; }
    [[nodiscard]] bool hasState(int state) const { return states.contains(state); }

    /// Traits of class, equipment and states.
    [[nodiscard]] NamedNumbers traits(const GameData &data) const;
    [[nodiscard]] int maxHp(const GameData &data) const;
    [[nodiscard]] int maxMp(const GameData &data) const;
    [[nodiscard]] int attack(const GameData &data) const;
    [[nodiscard]] int defense(const GameData &data) const;
    [[nodiscard]] int agility(const GameData &data) const;
    [[nodiscard]] bool knows(int skill, const GameData &data) const;
    /// Those that are learned and those that traits give, without those that are sealed.
    [[nodiscard]] QVector<int> usableSkills(const GameData &data) const;

    /// Within 0 and the greatest; without @p mayKnockOut, 1 is left. 0 HP is the state kKnockedOut, too.
    void changeHp(int amount, const GameData &data, bool mayKnockOut = true);
    void changeMp(int amount, const GameData &data);
    /// Does nothing for a state that is resisted or not in the database. @p turns as in states.
    void addState(int state, const GameData &data, int turns = 0);
    void removeState(int state, const GameData &data);
    void recoverAll(const GameData &data);
    /// What is there of HP and MP stays within what there can be, after a change of what is worn.
    void fitPoints(const GameData &data);
    void learn(int skill);
    void forget(int skill) { skills.removeAll(skill); }
    /// With the levels that it makes and takes; skills of new levels are learned, and what was forgotten of
    /// earlier ones stays so. What traits add is in @p amount already.
    void changeExp(qint64 amount, const GameData &data);
    void changeLevel(int levels, const GameData &data);
    /// EXP that a level begins with.
    [[nodiscard]] static int expOfLevel(int level);
    /// The product of all rates of this name among the traits, in percent.
    [[nodiscard]] static int rate(const NamedNumbers &traits, const char *name);
    [[nodiscard]] static int sum(const NamedNumbers &traits, const char *name);
    [[nodiscard]] static bool has(const NamedNumbers &traits, const char *name, int value);

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static Actor fromJson(const QJsonObject &json, const GameData &data);

private:
    /// What the class teaches from one level to another.
    void learnOfLevels(int first, int last, const GameData &data);
};

} // namespace player
