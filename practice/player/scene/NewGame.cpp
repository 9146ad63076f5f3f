#include "player/scene/NewGame.h"

#include "player/scene/BattleScene.h"
#include "player/scene/GameOverScene.h"
#include "player/scene/MapScene.h"
#include "player/scene/MenuScene.h"
#include "player/scene/NameScene.h"
#include "player/scene/SaveScene.h"
#include "player/scene/ShopScene.h"
#include "player/scene/TitleScene.h"

#include <utility>

namespace player {

namespace {

class AllScenes final : public SceneMaker
{
public:
    [[nodiscard]] std::unique_ptr<Scene> title() const override { return std::make_unique<TitleScene>(); }
    [[nodiscard]] std::unique_ptr<Scene> map(Game *game) const override
    {
        return std::make_unique<MapScene>(game);
    }
    [[nodiscard]] std::unique_ptr<Scene> battle(const BattleWish &wish, bool isTest,
                                                const Game &game) const override
    {
        return std::make_unique<BattleScene>(wish, isTest, game);
    }
    [[nodiscard]] std::unique_ptr<Scene> menu() const override { return std::make_unique<MenuScene>(); }
    [[nodiscard]] std::unique_ptr<Scene> save() const override { return std::make_unique<SaveScene>(); }
    [[nodiscard]] std::unique_ptr<Scene> shop(const QVector<ShopGoods> &goods, bool onlyBuys) const override
    {
        return std::make_unique<ShopScene>(goods, onlyBuys);
    }
    [[nodiscard]] std::unique_ptr<Scene> nameInput(int actor, int letters) const override
    {
        return std::make_unique<NameScene>(actor, letters);
    }
    [[nodiscard]] std::unique_ptr<Scene> gameOver() const override
    {
        return std::make_unique<GameOverScene>();
    }
};

} // namespace

std::unique_ptr<Game> newGame(std::shared_ptr<const GameData> data, const GameSettings &settings)
{
    return std::make_unique<Game>(std::move(data), settings, std::make_unique<AllScenes>());
}

} // namespace player
