#pragma once

#include "player/scene/BattleMenu.h"
#include "player/scene/BattleView.h"
#include "player/scene/Scene.h"
#include "player/scene/TalkBox.h"
#include "player/script/Stage.h"

#include <memory>

namespace player {

class Battle;
class BattleOrders;
class Game;
class Interpreter;

/// A battle: asks what to do, tells what happens, and runs the events of the troop. It ends with the number
/// of a BattleOutcome; what that leads to, and the music afterwards, is left to the scene below.
class BattleScene : public Scene, public Stage
{
public:
    /// A trial battle, @p isTest, is fought by the party that the database has for it.
    BattleScene(const BattleWish &wish, bool isTest, const Game &game);
    ~BattleScene() override;

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

    void say(const Message &message) override { m_talk.say(message); }
    void ask(const Choices &choices) override { m_talk.ask(choices); }
    void askNumber(const NumberInput &input) override { m_talk.askNumber(input); }
    void askItem(const ItemInput &input) override { m_talk.askItem(input); }
    void scrollText(const ScrollingText &text) override { m_talk.scrollText(text); }
    [[nodiscard]] bool isTalking() const override { return m_talk.isTalking(); }
    [[nodiscard]] int answer() const override { return m_talk.answer(); }
    void play(const Sound &sound) override;
    void setMusic(const Sound &music, int fadeTicks) override;
    bool gameOver() override;
    bool toTitle() override;
    [[nodiscard]] bool isAway() const override { return m_phase == Phase::kLeaves; }
    Battlefield *battlefield() override;

    /// Number of the troop.
    [[nodiscard]] int troop() const { return m_wish.troop; }
    /// Numbers of the enemies that stand, in their order.
    [[nodiscard]] QVector<int> enemies() const;

private:
    enum class Phase { kTurnBegins, kCommands, kDeeds, kEnds, kLeaves };

    void begin(Game *game);
    /// The next thing that does not wait for anybody.
    void goOn(const Input &input, Game *game);
    /// A common event that a skill or item asks for, or a page of the troop. False when none is due.
    bool beginEvent();
    void tell(const QVector<Note> &notes);
    /// True while a line is being read.
    bool tickLog(const Input &input, Game *game);
    void finish(Game *game);
    void leave(Game *game);
    void sound(const Note &note, Game *game);

    BattleWish m_wish;
    bool m_isTest;
    /// While a tick is on.
    Game *m_game = nullptr;
    std::unique_ptr<Battle> m_battle;
    std::unique_ptr<BattleOrders> m_orders;
    std::unique_ptr<Interpreter> m_interpreter;
    TalkBox m_talk;
    BattleMenu m_menu;
    BattleView m_view;
    Phase m_phase = Phase::kTurnBegins;
    /// What is to be told, line by line.
    struct Told
    {
        QString text;
        Note note;
        bool hasNote = false;
        int animation = 0;
    };
    QVector<Told> m_told;
    int m_lineTicks = 0;
    QVector<int> m_commonEvents;
    QVector<Message> m_lastWords;
    bool m_hadEnemies = false;
};

} // namespace player
