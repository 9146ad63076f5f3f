#pragma once

#include "player/battle/Fighter.h"
#include "player/scene/Frame.h"

#include <QStringList>
#include <QVector>

namespace player {

class Battle;
struct GameData;

/// What is seen of a battle, apart from what is asked.
struct BattleView
{
    /// Who is asked, and whom the cursor is on.
    Fighter asked;
    Fighter aimedAt;
    /// What was said last, of which the last lines are seen.
    QStringList log;
    /// What has just happened to somebody, and how many ticks ago.
    Note latest;
    bool hasLatest = false;
    int ticks = 0;
    /// Number of an animation that is shown over whom the latest note is about; 0 for none.
    int animation = 0;

    /// Something lies over the places of these.
    bool hidesParty = false;
    bool hidesLog = false;

    /// What happens from now on is seen when it is told, by follow(), and at once again after seeAll().
    void keep(const Battle &battle);
    void follow(const Note &note);
    void seeAll() { m_kept.clear(); }

    /// How long it takes, 0 for one that is not there.
    [[nodiscard]] static int ticksOf(int animation, const GameData &data);

    void show(const Battle &battle, const GameData &data, Frame *frame) const;

private:
    struct Kept
    {
        Fighter who;
        int hp = 0;
    };

    [[nodiscard]] int hpOf(const Battle &battle, const Fighter &fighter) const;
    /// The picture of the animation that is due now, -1 for none.
    [[nodiscard]] int picture(const GameData &data) const;
    void showEnemies(const Battle &battle, const GameData &data, Frame *frame) const;
    void showParty(const Battle &battle, const GameData &data, Frame *frame) const;
    void showLog(Frame *frame) const;

    /// HP as they have been told.
    QVector<Kept> m_kept;
};

} // namespace player
