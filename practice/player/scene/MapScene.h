#pragma once

#include "player/scene/MapEvents.h"
#include "player/scene/MapHero.h"
#include "player/scene/MapView.h"
#include "player/scene/Scene.h"
#include "player/scene/TalkBox.h"
#include "player/script/Stage.h"

namespace player {

/// The hero on a map: where most of a game takes place, and the stage of its events.
class MapScene final : public Scene, private Stage
{
public:
    /// On the map of the state, which is entered anew.
    explicit MapScene(Game *game);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;
    void resume(int result, Game *game) override;

    /// An event runs, or a talk or transfer is on: the hero cannot walk.
    [[nodiscard]] bool isBusy() const;
    [[nodiscard]] const World &world() const { return m_world; }
    bool fight(const BattleWish &wish) override;
    [[nodiscard]] int result() const override { return m_result; }

private:
    // Of the stage.
    void say(const Message &message) override { m_talk.say(message); }
    void ask(const Choices &choices) override { m_talk.ask(choices); }
    void askNumber(const NumberInput &input) override { m_talk.askNumber(input); }
    void askItem(const ItemInput &input) override { m_talk.askItem(input); }
    void scrollText(const ScrollingText &text) override { m_talk.scrollText(text); }
    [[nodiscard]] bool isTalking() const override { return m_talk.isTalking(); }
    [[nodiscard]] int answer() const override { return m_talk.answer(); }
    void play(const Sound &sound) override;
    void setMusic(const Sound &music, int fadeTicks) override;
    Character *character(int id) override { return m_world.character(id); }
    bool transfer(const Transfer &transfer) override;
    [[nodiscard]] bool isTransferring() const override { return m_transferPhase != Phase::kNone; }
    bool scrollMap(int direction, int cells, int speed) override;
    [[nodiscard]] bool isScrolling() const override { return m_view.isScrolling(); }
    void erase(int event) override { m_world.erase(event); }
    int randomTroop() override;
    bool openMenu() override;
    bool openSave() override;
    bool openShop(const QVector<ShopGoods> &goods, bool onlyBuys) override;
    bool openNameInput(int actor, int letters) override;
    bool gameOver() override;
    bool toTitle() override;
    [[nodiscard]] bool isAway() const override { return m_isAway; }

    enum class Phase { kNone, kLeaves, kArrives };

    void go(std::unique_ptr<Scene> scene);
    void enterMap(bool takesMusic);
    void tickTransfer();
    void tellStuck(const Character &who);
    void tickHero(const Input &input);
    void heroArrived();
    void countStep();

    Game *m_game;
    World m_world;
    TalkBox m_talk;
    MapEvents m_events;
    MapHero m_hero;
    MapView m_view;
    Transfer m_transfer;
    Phase m_transferPhase = Phase::kNone;
    Sliding m_fade;
    bool m_isAway = false;
    int m_result = 0;
    bool m_isFighting = false;
    bool m_canLose = false;
    Sound m_musicBefore;
    int m_stepsToEncounter = 0;
    /// The cell on which the hero stood when the last step was over.
    QPoint m_heroCell;
};

} // namespace player
