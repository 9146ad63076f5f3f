#pragma once

#include "player/battle/Fighter.h"
#include "player/scene/ListPanel.h"

#include <QCoreApplication>
#include <QVector>

namespace player {

class Battle;
class Fighters;
struct GameData;
struct GameState;

/// Asks the party, one after the other, what to do in a turn, and gives it to the battle.
class BattleMenu
{
    Q_DECLARE_TR_FUNCTIONS(BattleMenu)

public:
    enum class Answer { kNone, kReady, kFlee };

    /// Ready at once when nobody is to be asked.
    void begin(const Battle &battle);
    Answer tick(const Input &input, Battle *battle, const GameData &data, const GameState &state);
    void show(Frame *frame) const;

    /// The list that is open takes the place of the party.
    [[nodiscard]] bool isWide() const;
    /// Whether the cancel key leads back to a list or to the one who was asked before.
    [[nodiscard]] bool canGoBack() const { return m_open.size() > 1 || m_place > 0; }
    /// Who is asked; nobody while none is.
    [[nodiscard]] Fighter asked() const;
    /// The fighter whom the cursor is on.
    [[nodiscard]] Fighter aimedAt() const;

private:
    enum class Step { kCommands, kSkills, kItems, kTargets };
    enum Command { kAttack, kSkills, kItems, kGuard, kFlee };

    Answer chosen(Battle *battle, const GameData &data, const GameState &state);
    Answer chosenCommand(int command, Battle *battle, const GameData &data, const GameState &state);
    /// Asks for a target where the scope has a choice; gives the deed otherwise.
    Answer aim(Battle *battle, int scope);
    Answer give(Battle *battle);
    void back(Battle *battle, const GameData &data, const GameState &state);
    void listCommands(const Battle &battle, const GameData &data, const GameState &state);
    void listSkills(const Battle &battle, const GameData &data);
    void listItems(const GameData &data, const GameState &state);
    void listTargets(const Fighters &fighters, bool ofEnemies);
    void open(Step step, const ListPanel &list);

    QVector<Fighter> m_asked;
    int m_place = 0;
    Deed m_deed;
    bool m_isAimingAtEnemies = false;
    bool m_isListed = false;
    struct Open
    {
        Step step;
        ListPanel list;
    };
    /// The lists that are open, the uppermost last.
    QVector<Open> m_open;
};

} // namespace player
