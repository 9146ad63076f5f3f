#pragma once

#include "player/game/GameState.h"

#include <QCoreApplication>

namespace player {

struct GameData;

/// The words that several screens of a game have in common.
class Terms
{
    Q_DECLARE_TR_FUNCTIONS(Terms)

public:
    static QString level() { return tr("Level"); }
    static QString exp() { return tr("EXP"); }
    static QString hp() { return QStringLiteral("HP"); }
    static QString mp() { return QStringLiteral("MP"); }
    static QString attack() { return tr("Attack"); }
    static QString defense() { return tr("Defense"); }
    static QString agility() { return tr("Agility"); }
    static QString weapon() { return tr("Weapon"); }
    static QString armor() { return tr("Armor"); }
    static QString items() { return tr("Items"); }
    static QString skills() { return tr("Skills"); }
    static QString nothing() { return tr("Nothing"); }
    static QString yes() { return tr("Yes"); }
    static QString no() { return tr("No"); }
    /// The project's own, or the usual one.
    static QString currency(const GameData &data);
    static QString gold(int amount, const GameData &data);
    /// "HP 30/40  MP 3/4".
    static QString points(const Actor &actor, const GameData &data);
    /// "Mila, Toma".
    static QString list(const QStringList &names);
    /// The names of the states, with a comma between; empty for none.
    static QString states(const QMap<int, int> &states, const GameData &data);
    /// "1:05:00": hours, minutes and seconds.
    static QString playTime(qint64 ticks);
    static QString thing(Goods kind, int id, const GameData &data);
};

} // namespace player
