#pragma once

#include "player/game/GameState.h"
#include "player/scene/ListPanel.h"
#include "player/scene/Scene.h"
#include "player/script/Stage.h"

#include <QCoreApplication>

namespace player {

/// Buying and selling.
class ShopScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(ShopScene)

public:
    ShopScene(const QVector<ShopGoods> &goods, bool onlyBuys);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    enum class Step { kCommands, kBuy, kSell, kHowMany };
    enum Command { kBuy, kSell, kLeave };

    void listCommands();
    void listGoods(const Game &game);
    void listBag(const Game &game);
    /// The rows of the list anew, after a deal.
    void refresh(const Game &game);
    void chosen(Game *game);
    void askHowMany(const Game &game);
    void tickHowMany(const Input &input, Game *game);
    void deal(Game *game);
    [[nodiscard]] bool isSelling() const { return m_before == Step::kSell; }
    [[nodiscard]] const ShopGoods *current() const;
    [[nodiscard]] Panel howMany(const GameData &data) const;
    /// What the goods would change for everybody, and how many are in the bag.
    [[nodiscard]] Panel comparison(const ShopGoods &goods, const Game &game) const;

    /// What is sold, and what is in the bag at the price that is paid for it.
    QVector<ShopGoods> m_goods;
    QVector<ShopGoods> m_bag;
    bool m_onlyBuys;
    Step m_step = Step::kCommands;
    /// The list that is asked about, while it is asked how many.
    Step m_before = Step::kBuy;
    ListPanel m_commands;
    ListPanel m_list;
    int m_number = 1;
    int m_most = 1;
    bool m_isListed = false;
};

} // namespace player
