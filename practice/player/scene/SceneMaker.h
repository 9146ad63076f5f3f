#pragma once

#include "player/scene/Scene.h"
#include "player/script/Stage.h"

#include <QVector>

#include <memory>

namespace player {

/// Makes the scenes of a game, so that none of them needs to know the others.
class SceneMaker
{
public:
    SceneMaker() = default;
    SceneMaker(const SceneMaker &) = delete;
    SceneMaker &operator=(const SceneMaker &) = delete;
    virtual ~SceneMaker();

    [[nodiscard]] virtual std::unique_ptr<Scene> title() const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> map(Game *game) const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> battle(const BattleWish &wish, bool isTest,
                                                        const Game &game) const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> menu() const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> save() const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> shop(const QVector<ShopGoods> &goods,
                                                      bool onlyBuys) const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> nameInput(int actor, int letters) const = 0;
    [[nodiscard]] virtual std::unique_ptr<Scene> gameOver() const = 0;
};

} // namespace player
