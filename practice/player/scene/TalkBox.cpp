#include "player/scene/TalkBox.h"

#include "player/scene/Game.h"
#include "player/scene/TalkPanels.h"

#include <QCoreApplication>

namespace player {

namespace {

using Sign = TalkText::Token::Kind;

/// Game pixels between two lines of scrolling text.
constexpr int kScrollLine = 32;

bool isKey(const Input &input)
{
    return input.isPressed(GameKey::kAct) || input.isPressed(GameKey::kCancel);
}

int power(int digits)
{
    int power = 1;
    for (int digit = 0; digit < digits; ++digit) {
        power *= 10;
    }
    return power;
}

} // namespace

void TalkBox::say(const Message &message)
{
    m_kind = Kind::kMessage;
    m_message = message;
    m_hasMessage = true;
    m_page = -1;
}

void TalkBox::ask(const Choices &choices)
{
    m_kind = Kind::kChoices;
    m_choices = choices;
    m_cursor = RowCursor(int(choices.texts.size()), 1, choices.first);
    if (choices.first < 0) {
        m_cursor.setNone();
    }
}

void TalkBox::askNumber(const NumberInput &input)
{
    m_kind = Kind::kNumber;
    m_digits = qBound(1, input.digits, 8);
    m_number = qBound(0, input.start, power(m_digits) - 1);
    m_cursor = RowCursor(m_digits, m_digits, 0);
}

void TalkBox::askItem(const ItemInput &input)
{
    m_kind = Kind::kItems;
    m_itemInput = input;
    m_items.clear();
    m_cursor = RowCursor();
}

void TalkBox::scrollText(const ScrollingText &text)
{
    m_kind = Kind::kScroll;
    m_scroll = text;
    m_scrollLines.clear();
    m_scrolled = -TalkPanels::all().height();
}

void TalkBox::end(int answer)
{
    m_kind = Kind::kNothing;
    m_hasMessage = false;
    m_answer = answer;
}

void TalkBox::tick(const Input &input, Game *game)
{
    switch (m_kind) {
    case Kind::kNothing:
        break;
    case Kind::kMessage:
        tickMessage(input, game);
        break;
    case Kind::kChoices:
        tickChoices(input, game);
        break;
    case Kind::kNumber:
        tickNumber(input);
        break;
    case Kind::kItems:
        tickItems(input, game);
        break;
    case Kind::kScroll:
        tickScroll(input, *game);
        break;
    }
}

void TalkBox::readMessage(const Game &game)
{
    m_allLines.clear();
    const int width = TalkPanels::lineOf(TalkPanels::message(m_message.place)) -
                      (m_message.face.isEmpty() ? 0 : TalkPanels::kFace);
    for (const QString &line : qAsConst(m_message.lines)) {
        m_allLines += TalkText::wrapped(TalkText::read(line, game), width);
    }
    m_page = 0;
    beginPage();
}

void TalkBox::beginPage()
{
    m_lines = m_allLines.mid(m_page, TalkPanels::kLinesOfPage);
    m_done = 0;
    m_pause = 0;
    m_isInstant = false;
    m_waitsForKey = false;
    m_endsByItself = false;
}

void TalkBox::finishPage(const Game &game)
{
    if (m_page < 0) {
        readMessage(game);
    }
    m_done = lettersOfPage();
}

int TalkBox::lettersOfPage() const
{
    int total = 0;
    for (const QVector<TalkText::Token> &line : m_lines) {
        total += int(line.size());
    }
    return total;
}

/// The letters of a page are counted through all its lines.
void TalkBox::typeLetters(bool all)
{
    int total = 0;
    for (const QVector<TalkText::Token> &line : qAsConst(m_lines)) {
        for (const TalkText::Token &token : line) {
            if (total++ < m_done) {
                continue;
            }
            ++m_done;
            switch (token.kind) {
            case Sign::kLetter:
                if (!all && !m_isInstant) {
                    return;
                }
                break;
            case Sign::kPause:
                if (!all) {
                    m_pause = token.ticks;
                    return;
                }
                break;
            case Sign::kKey:
                m_waitsForKey = true;
                return;
            case Sign::kInstantly:
                m_isInstant = true;
                break;
            case Sign::kSlowly:
                m_isInstant = false;
                break;
            case Sign::kNoKey:
                m_endsByItself = true;
                break;
            }
        }
    }
}

void TalkBox::tickMessage(const Input &input, Game *game)
{
    if (m_page < 0) {
        readMessage(*game);
    }
    if (m_waitsForKey) {
        m_waitsForKey = !isKey(input);
        return;
    }
    if (m_done < lettersOfPage()) {
        if (isKey(input)) {
            m_pause = 0;
            typeLetters(true);
        } else if (m_pause > 0) {
            --m_pause;
        } else {
            typeLetters(false);
        }
        return;
    }
    const bool isLast = m_page + TalkPanels::kLinesOfPage >= m_allLines.size();
    if (isLast && m_message.asksNext) {
        m_kind = Kind::kNothing; // the message stays
    } else if (m_endsByItself || isKey(input)) {
        endPage();
    }
}

void TalkBox::endPage()
{
    m_page += TalkPanels::kLinesOfPage;
    if (m_page < m_allLines.size()) {
        beginPage();
    } else {
        end(0);
    }
}

void TalkBox::tickChoices(const Input &input, Game *)
{
    const RowCursor::Result result = m_cursor.tick(input);
    if (result == RowCursor::Result::kChosen) {
        end(m_cursor.current());
    } else if (result == RowCursor::Result::kCancelled && m_choices.whenCancelled != -1) {
        end(kNothingChosen);
    }
}

void TalkBox::tickNumber(const Input &input)
{
    const int whole = power(m_digits);
    for (const QChar letter : input.typed) {
        if (letter.digitValue() >= 0) {
            m_number = int((qint64(m_number) * 10 + letter.digitValue()) % whole);
        }
    }
    for (const GameKey key : input.pressed) {
        const int place = power(m_digits - 1 - m_cursor.current());
        const int digit = m_number / place % 10;
        if (key == GameKey::kUp) {
            m_number += digit == 9 ? -9 * place : place;
        } else if (key == GameKey::kDown) {
            m_number += digit == 0 ? 9 * place : -place;
        } else if (key == GameKey::kLeft || key == GameKey::kRight) {
            m_cursor.tick({{}, {key}, {}, {}, {}});
        } else if (key == GameKey::kAct) {
            end(m_number);
            return;
        }
    }
    if (input.row) {
        m_cursor.setCurrent(*input.row);
    }
}

void TalkBox::tickItems(const Input &input, Game *game)
{
    if (m_items.isEmpty()) {
        const QList<int> held = game->state().items.keys();
        for (const int id : held) {
            const ItemEntry *const item = game->data().items.find(id);
            if (item != nullptr && item->isKey == m_itemInput.onlyKeyItems) {
                m_items.append(id);
            }
        }
        m_cursor.setRows(int(m_items.size()), 2);
        if (m_items.isEmpty()) {
            // There is nothing to choose from: a key goes on.
            if (isKey(input)) {
                end(kNothingChosen);
            }
            return;
        }
    }
    const RowCursor::Result result = m_cursor.tick(input);
    if (result == RowCursor::Result::kChosen) {
        end(m_items.at(m_cursor.current()));
    } else if (result == RowCursor::Result::kCancelled) {
        end(kNothingChosen);
    }
}

void TalkBox::readScroll(const Game &game)
{
    for (const QString &line : qAsConst(m_scroll.lines)) {
        const QVector<QVector<TalkText::Token>> parts =
            TalkText::wrapped(TalkText::read(line, game), TalkPanels::lineOf(TalkPanels::all()));
        for (const QVector<TalkText::Token> &part : parts) {
            m_scrollLines.append(TalkText::shown(part, int(part.size())));
        }
    }
}

void TalkBox::tickScroll(const Input &input, const Game &game)
{
    if (m_scrollLines.isEmpty()) {
        readScroll(game);
    }
    const bool isFast =
        !m_scroll.cannotBeSpedUp && (input.isHeld(GameKey::kAct) || input.isPressed(GameKey::kAct));
    m_scrolled += m_scroll.speed * (isFast ? 1.5 : 0.3);
    if (m_scrolled >= double(m_scrollLines.size()) * kScrollLine) {
        end(0);
    }
}

void TalkBox::show(const Game &game, Frame *frame) const
{
    if (m_hasMessage && m_page >= 0) {
        Panel panel;
        panel.role = QStringLiteral("message");
        panel.rect = TalkPanels::message(m_message.place);
        panel.background = Panel::Background(qBound(0, m_message.background, 2));
        panel.face = m_message.face;
        panel.title =
            m_message.speaker.isEmpty() ? QString() : TalkText::shown(m_message.speaker, game).text();
        int left = m_done;
        for (const QVector<TalkText::Token> &line : m_lines) {
            panel.lines.append(TalkText::shown(line, left));
            left = qMax(0, left - int(line.size()));
        }
        const bool isDone = m_waitsForKey || m_done >= lettersOfPage();
        panel.isWaiting = m_kind == Kind::kMessage && isDone && !m_endsByItself;
        frame->panels.append(panel);
    }
    const int messagePlace = m_hasMessage ? m_message.place : 2;
    Panel panel;
    if (m_kind == Kind::kChoices) {
        panel.role = QStringLiteral("choices");
        panel.background = Panel::Background(qBound(0, m_choices.background, 2));
        QStringList texts;
        for (const QString &text : m_choices.texts) {
            texts.append(TalkText::shown(text, game).text());
            panel.rows.append({texts.constLast(), {}, true});
        }
        panel.rect = TalkPanels::choices(texts, m_choices.place, messagePlace);
    } else if (m_kind == Kind::kNumber) {
        panel.role = QStringLiteral("number");
        panel.rect = TalkPanels::number(m_digits, messagePlace);
        const QString digits = QStringLiteral("%1").arg(m_number, m_digits, 10, QLatin1Char('0'));
        for (const QChar digit : digits) {
            panel.rows.append({QString(digit), {}, true});
        }
    } else if (m_kind == Kind::kItems) {
        panel.role = QStringLiteral("items");
        panel.rect = TalkPanels::items(messagePlace);
        for (const int id : m_items) {
            panel.rows.append(
                {game.data().items.name(id), QString::number(game.state().count(Goods::kItem, id)), true});
        }
        if (m_items.isEmpty()) {
            panel.lines.append(
                PanelLine(QCoreApplication::translate("TestPlay", "There is nothing to choose from.")));
            panel.isWaiting = true;
        }
    } else if (m_kind == Kind::kScroll) {
        panel.role = QStringLiteral("scroll");
        panel.rect = TalkPanels::all();
        panel.background = Panel::Background::kDim;
        panel.scrolled = m_scrolled;
        panel.lines = m_scrollLines;
    } else {
        return;
    }
    if (!panel.rows.isEmpty()) {
        m_cursor.show(&panel);
    }
    frame->panels.append(panel);
}

} // namespace player
