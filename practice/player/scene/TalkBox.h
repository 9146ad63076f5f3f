#pragma once

#include "player/game/Input.h"
#include "player/scene/Frame.h"
#include "player/scene/RowCursor.h"
#include "player/scene/TalkText.h"
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
    /// The choice, number or item; kNothingChosen.
    [[nodiscard]] int answer() const { return m_answer; }

    void tick(const Input &input, Game *game);
    void show(const Game &game, Frame *frame) const;
    /// Shows all letters of the message's page at once, whatever they wait for.
    void finishPage(const Game &game);

private:
    enum class Kind { kNothing, kMessage, kChoices, kNumber, kItems, kScroll };

    void readMessage(const Game &game);
    void beginPage();
    [[nodiscard]] int lettersOfPage() const;
    void tickMessage(const Input &input, Game *game);
    /// Shows further letters, up to a pause or a key; all of them with @p all.
    void typeLetters(bool all);
    void endPage();
    void tickChoices(const Input &input, Game *game);
    void tickNumber(const Input &input);
    void tickItems(const Input &input, Game *game);
    void readScroll(const Game &game);
    void tickScroll(const Input &input, const Game &game);
    void end(int answer);

    Kind m_kind = Kind::kNothing;

    Message m_message;
    /// The message is on the screen, also while its answer is asked for.
    bool m_hasMessage = false;
    /// All lines that it has on the screen.
    QVector<QVector<TalkText::Token>> m_allLines;
    /// The first line of the page that is shown; -1 before the message is read.
    int m_page = -1;
    QVector<QVector<TalkText::Token>> m_lines;
    /// Tokens of the page that are done with.
    int m_done = 0;
    int m_pause = 0;
    bool m_isInstant = false;
    bool m_waitsForKey = false;
    bool m_endsByItself = false;

    Choices m_choices;
    int m_digits = 1;
    int m_number = 0;
    ItemInput m_itemInput;
    QVector<int> m_items;
    ScrollingText m_scroll;
    QVector<PanelLine> m_scrollLines;
    double m_scrolled = 0;
    RowCursor m_cursor;
    int m_answer = 0;
};

} // namespace player
