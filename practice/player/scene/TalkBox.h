#pragma once

#include "player/game/Input.h"
#include "player/scene/Frame.h"
#include "player/scene/RowCursor.h"
#include "player/script/Talk.h"

#include <QVector>

namespace player {

class Game;

/// Messages, choices, numbers, items and scrolling text, one after the other: what map and battle have in
/// common. Also for what the game itself has to say.
class TalkBox
{
public:
    void say(const Message &message);
    void ask(const Choices &choices);
    void askNumber(const NumberInput &input);
    void askItem(const ItemInput &input);
    void scrollText(const ScrollingText &text);

    /// Something is shown, or waits for a key or an answer.
    [[nodiscard]] bool isTalking() const { return m_kind != Kind::kNothing; }
    /// The choice, number or item; kCancelled.
    [[nodiscard]] int answer() const { return m_answer; }

    void tick(const Input &input, Game *game);
    void show(const Game &game, Frame *frame) const;

private:
    enum class Kind { kNothing, kMessage, kChoices, kNumber, kItems, kScroll };

    void tickMessage(const Input &input, Game *game);
    void tickChoices(const Input &input);
    void tickNumber(const Input &input);
    void tickItems(const Input &input);
    void tickScroll(const Input &input);
    void end(int answer);
    void showMessage(const Game &game, Frame *frame) const;
    void showChoices(const Game &game, Frame *frame) const;
    void showNumber(Frame *frame) const;
    void showItems(const Game &game, Frame *frame) const;
    void showScroll(const Game &game, Frame *frame) const;

    Kind m_kind = Kind::kNothing;
    Message m_message;
    /// The message is shown while its answer is asked for.
    bool m_hasMessage = false;
    int m_letters = 0;
    int m_pause = 0;
    Choices m_choices;
    NumberInput m_number;
    ItemInput m_itemInput;
    QVector<int> m_items;
    ScrollingText m_scroll;
    double m_scrolled = 0;
    RowCursor m_cursor;
    QVector<int> m_digits;
    int m_answer = 0;
};

} // namespace player
