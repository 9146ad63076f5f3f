#pragma once

#include "player/game/Command.h"

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVector>

namespace player {

/// A member of "effects" or "traits": a name, such as "hp" or "attackRate", and its number. The sets of
/// choices "effects" and "traits" of the editor have the names.
struct NamedNumber
{
    QString name;
    int value = 0;
};
using NamedNumbers = QVector<NamedNumber>;

/// All entries have the fields that follow; what a file lacks is 0, empty or false.
struct Entry
{
    int id = 0;
    QString name;
    QString note;
};

struct ActorEntry : Entry
{
    int classId = 0;
    int initialLevel = 1;
    int maxLevel = 99;
    /// Character on the map, and face.
    QString image;
    int weapon = 0;
    int armor = 0;
    /// Acts in battle by itself.
    bool actsAlone = false;
};

/// What grows with the level: a value at level 1, and what each further level adds.
struct Growth
{
    int first = 0;
    int each = 0;

    [[nodiscard]] qint64 at(int level) const { return first + qint64(each) * (level - 1); }
};

struct Learning
{
    int level = 1;
    int skill = 0;
};

struct ClassEntry : Entry
{
    Growth hp;
    Growth mp;
    QVector<Learning> learnings;
    NamedNumbers traits;
};

enum Scope {
    kScopeNone = 0,
    kScopeEnemy = 1,
    kScopeEnemies = 2,
    kScopeAlly = 7,
    kScopeAllies = 8,
    kScopeUser = 11,
};

struct SkillEntry : Entry
{
    QString description;
    /// Follows the name of who uses it.
    QString message;
    int mpCost = 0;
    int scope = kScopeNone;
    int animation = 0;
    NamedNumbers effects;
};

struct ItemEntry : Entry
{
    QString description;
    int price = 0;
    bool isKey = false;
    bool isConsumable = true;
    int scope = kScopeAlly;
    NamedNumbers effects;
};

/// A weapon or an armor.
struct GearEntry : Entry
{
    QString description;
    int price = 0;
    int attack = 0;
    int defense = 0;
    NamedNumbers traits;
};

struct Drop
{
    int item = 0;
    /// It drops once in so many times; never for 0.
    int denominator = 1;
};

struct EnemyAction
{
    int skill = 0;
    int rating = 5;
    /// 0 always; 1 from this turn on; 2 HP at most, in percent; 3 in this state.
    int conditionType = 0;
    int conditionValue = 0;
    bool onlyOnce = false;
};

struct EnemyEntry : Entry
{
    QString image;
    int hp = 1;
    int mp = 100;
    int attack = 0;
    int defense = 0;
    int exp = 0;
    int gold = 0;
    QVector<Drop> drops;
    QVector<EnemyAction> actions;
    NamedNumbers traits;
};

struct TroopMember
{
    int enemy = 0;
    /// Where its feet are, in game pixels.
    QPoint at;
    /// Is not there until it appears.
    bool isHidden = false;
};

/// Conditions of a battle event; those that are -1 or 0 do not count. With none, the page is due at
/// once.
struct TroopConditions
{
    /// From the beginning of the turn that ends with this number, from 0.
    int turn = -1;
    /// Place in the troop, and HP at most, in percent.
    int enemy = 0;
    int enemyHp = -1;
    int actor = 1;
    int actorHp = -1;
    int switchId = 0;
};

struct TroopPage
{
    TroopConditions conditions;
    /// 0 once in a battle, 1 once in a turn, 2 whenever they hold.
    int span = 0;
    CommandList list;
};

struct TroopEntry : Entry
{
    QVector<TroopMember> members;
    QVector<TroopPage> pages;
};

struct StateEntry : Entry
{
    /// What is said of an actor who gets it, of an enemy who does, while it lasts, and when it is over.
    QVector<QString> messages = QVector<QString>(4);
    /// 0 none, 1 attacks an enemy, 2 anyone, 3 an ally, 4 cannot act.
    int restriction = 0;
    bool endsWithBattle = false;
    /// 2 at the end of a turn; 0 not by itself.
    int autoRemovalTiming = 0;
    int minTurns = 0;
    int maxTurns = 0;
    NamedNumbers traits;
};

struct AnimationEntry : Entry
{
    int frames = 1;
    bool isOnScreen = false;
};

enum class CommonTrigger { kCalled = 0, kByItself = 1, kParallel = 2 };

struct CommonEventEntry : Entry
{
    CommonTrigger trigger = CommonTrigger::kCalled;
    /// 0 for none: it runs at any time.
    int switchId = 0;
    CommandList list;
};

struct TileSetEntry : Entry
{
    QString image;
};

struct TestBattler
{
    int actor = 0;
    int level = 1;
    int weapon = 0;
    int armor = 0;
};

struct TitleCommand
{
    /// "newGame", "continue", "options", "credits" or "quit".
    QString command;
    /// Empty for the usual word.
    QString text;
};

struct SystemEntry
{
    QString gameTitle;
    int version = 0;
    QVector<int> party;
    int startMap = 0;
    QPoint startCell;
    /// Of the game's own words, such as "ja_JP"; empty for that of the editor.
    QString locale;
    /// Empty for the usual word.
    QString currency;
    /// Names of switches and variables by number; place 0 is empty.
    QStringList switches;
    QStringList variables;
    QString titleBackdrop;
    bool showsTitle = false;
    QVector<TitleCommand> titleCommands;
    Sound titleMusic;
    Sound battleMusic;
    QVector<TestBattler> testBattlers;
};

} // namespace player
