#include "player/script/Stage.h"

namespace player {

Stage::~Stage() = default;

Character *Stage::character(int)
{
    return nullptr;
}

bool Stage::transfer(const Transfer &)
{
    return false;
}

bool Stage::isTransferring() const
{
    return false;
}

bool Stage::scrollMap(int, int, int)
{
    return false;
}

bool Stage::isScrolling() const
{
    return false;
}

void Stage::erase(int) {}

int Stage::randomTroop()
{
    return 0;
}

bool Stage::openMenu()
{
    return false;
}

bool Stage::openSave()
{
    return false;
}

bool Stage::openShop(const QVector<ShopGoods> &, bool)
{
    return false;
}

bool Stage::openNameInput(int, int)
{
    return false;
}

bool Stage::fight(const BattleWish &)
{
    return false;
}

bool Stage::gameOver()
{
    return false;
}

bool Stage::toTitle()
{
    return false;
}

bool Stage::isAway() const
{
    return false;
}

int Stage::result() const
{
    return 0;
}

Battlefield *Stage::battlefield()
{
    return nullptr;
}

} // namespace player
