#pragma once

#include "player/game/Character.h"
#include "player/game/Sound.h"
#include "player/script/Talk.h"

#include <QPoint>
#include <QVector>

namespace player {

class Battlefield;

struct Transfer
{
    int map = 0;
    QPoint cell;
    /// 0 as it is.
    int direction = 0;
    /// 0 black, 1 white, 2 none.
    int fade = 0;
};

struct ShopGoods
{
    /// 0 item, 1 weapon, 2 armor.
    int kind = 0;
    int id = 0;
    int price = 0;
};

enum class BattleOutcome { kWon = 0, kFled = 1, kLost = 2 };

struct BattleWish
{
    int troop = 0;
    bool canFlee = false;
    bool canLose = false;
};

/// What the commands of an event need beyond the state of the game: whoever shows it. By default nothing
/// happens and nobody is there, as for a battle event that tries to move somebody on the map.
///
/// One talk, one walk over the map and one scene are on at a time; the interpreter waits until is...() says
/// that it is over.
class Stage
{
public:
    Stage() = default;
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;
    virtual ~Stage();

    virtual void say(const Message &message) = 0;
    /// The message that is shown stays until it is answered.
    virtual void ask(const Choices &choices) = 0;
    virtual void askNumber(const NumberInput &input) = 0;
    virtual void askItem(const ItemInput &input) = 0;
    virtual void scrollText(const ScrollingText &text) = 0;
    [[nodiscard]] virtual bool isTalking() const = 0;
    /// The number of the choice, the number that was put in, the item; kNothingChosen.
    [[nodiscard]] virtual int answer() const = 0;

    virtual void play(const Sound &sound) = 0;
    virtual void setMusic(const Sound &music, int fadeTicks) = 0;

    /// The hero for Character::kHero, or an event of the map that is shown; nullptr when there is none.
    virtual Character *character(int id);
    /// False when nobody can go anywhere here.
    virtual bool transfer(const Transfer &transfer);
    [[nodiscard]] virtual bool isTransferring() const;
    /// @p speed is 1 to 6. False where there is no map.
    virtual bool scrollMap(int direction, int cells, int speed);
    [[nodiscard]] virtual bool isScrolling() const;
    virtual void erase(int event);
    /// Troops of the map's random encounters: one of them by weight, 0 for none.
    virtual int randomTroop();

    // Another scene; false when there is none here.
    virtual bool openMenu();
    virtual bool openSave();
    virtual bool openShop(const QVector<ShopGoods> &goods, bool onlyBuys);
    virtual bool openNameInput(int actor, int letters);
    virtual bool fight(const BattleWish &wish);
    virtual bool gameOver();
    virtual bool toTitle();
    /// Another scene is on.
    [[nodiscard]] virtual bool isAway() const;
    /// What that scene ended with.
    [[nodiscard]] virtual int result() const;

    /// nullptr outside of a battle.
    virtual Battlefield *battlefield();
};

} // namespace player
