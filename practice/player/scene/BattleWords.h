#pragma once

#include "player/battle/Fighter.h"
#include "player/battle/Spoils.h"

#include <QCoreApplication>

namespace player {

class Fighters;
struct GameState;

/// What a battle says.
class BattleWords
{
    Q_DECLARE_TR_FUNCTIONS(BattleWords)

public:
    /// Empty where nothing is said of it.
    [[nodiscard]] static QString of(const Note &note, const Fighters &fighters, const GameData &data);
    /// One line for each enemy that is there.
    [[nodiscard]] static QStringList appear(const Fighters &fighters);
    /// What is won, and what becomes of everybody by it.
    [[nodiscard]] static QStringList won(const Spoils &spoils, const QVector<Rise> &rises,
                                         const GameState &state, const GameData &data);
    [[nodiscard]] static QString lost();

private:
    static QString stateText(const Note &note, const QString &name, const GameData &data);
};

} // namespace player
