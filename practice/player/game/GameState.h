#pragma once

#include "player/game/Actor.h"
#include "player/game/Character.h"
#include "player/game/Random.h"
#include "player/game/Screen.h"
#include "player/game/Sound.h"

#include <QJsonObject>
#include <QMap>
#include <QSet>

#include <optional>

namespace player {

struct GameData;

/// What a game is at a moment: a value. Where the events of the map are is not part of it: they stand anew
/// when a map is entered, also by loading a game.
struct GameState
{
    static constexpr int kTicksPerSecond = 60;
    static constexpr int kMostGold = 9999999;
    static constexpr int kMostGoods = 99;
    static constexpr int kLargestVariable = 99999999;
    static constexpr int kLargestParty = 4;

    QSet<int> switches;
    QMap<int, int> variables;
    /// "map event letter".
    QSet<QString> selfSwitches;

    int gold = 0;
    QMap<int, int> items;
    QMap<int, int> weapons;
    QMap<int, int> armors;

    /// Numbers of actors, the leader first; those beyond kLargestParty do not fight.
    QVector<int> party;
    /// Everybody who ever was in the party, or was changed by an event.
    QMap<int, Actor> actors;

    /// 0 before the game is on a map.
    int map = 0;
    Character hero;

    /// A common event that an item or skill calls, to begin as soon as the map has the screen; 0 for none.
    int waitingCommonEvent = 0;

    int timerTicks = 0;
    bool isTimerOn = false;
    qint64 ticks = 0;
    Screen screen;
    Sound music;
    Random random;

    [[nodiscard]] bool isOn(int switchId) const { return switches.contains(switchId); }
    void setSwitch(int switchId, bool isOn);
    [[nodiscard]] int variable(int id) const { return variables.value(id); }
    /// Within the bounds of a variable.
    void setVariable(int id, qint64 value);
    [[nodiscard]] bool isSelfSwitchOn(int mapId, int event, const QString &letter) const;
    void setSelfSwitch(int mapId, int event, const QString &letter, bool isOn);

    /// Within 0 to the most that there can be.
    void addGold(qint64 amount);
    [[nodiscard]] int count(Goods kind, int id) const;
    void addGoods(Goods kind, int id, int number);
    /// Puts a weapon or armor from the bag on somebody, and what was worn into it; 0 for none. False when the
    /// bag has none.
    bool equip(Actor *actor, Goods kind, int entry, const GameData &data);

    /// The actor as it is, made from the database when it is the first time; nullptr when there is none
    /// there.
    Actor *actor(int id, const GameData &data);
    [[nodiscard]] const Actor *knownActor(int id) const;
    /// Does nothing for one who is there already, or is not in the database.
    void join(int actorId, const GameData &data, bool beginsAnew = false);
    void leave(int actorId) { party.removeAll(actorId); }
    /// The members who fight, those that are knocked out included.
    [[nodiscard]] QVector<int> fighters() const { return party.mid(0, kLargestParty); }
    [[nodiscard]] bool isDefeated(const GameData &data) const;

    /// Seconds that are left, rounded up.
    [[nodiscard]] int timerSeconds() const { return (timerTicks + kTicksPerSecond - 1) / kTicksPerSecond; }

    /// A new game: the party of the database at the start, with nothing.
    [[nodiscard]] static GameState begin(const GameData &data, quint64 seed);

    /// As it is saved; @p data tells which version of the project it belongs to.
    [[nodiscard]] QJsonObject toJson(const GameData &data) const;
    /// Nothing, with a text for the person in @p error, when @p json is no saved game of this project. One of
    /// another version of its data is read as far as it fits, and @p warning says so.
    [[nodiscard]] static std::optional<GameState> fromJson(const QJsonObject &json, const GameData &data,
                                                           QString *error, QString *warning);
};

} // namespace player
