#include "player/run/Steps.h"

#include "player/scene/MapScene.h"

#include <QHash>

#include <algorithm>

namespace player {

namespace {

constexpr int kSecond = GameState::kTicksPerSecond;
/// The longest walk.
constexpr int kWalk = 120 * kSecond;
/// So long somebody waits for a way to be free, or for something to begin.
constexpr int kPatience = 3 * kSecond;
constexpr int kMostAnswers = 10 * kSecond;

/// Clicks a cell until @p isThere; the hero walks as far as nothing happens on the way.
Seen go(Hand *hand, const std::function<QPoint()> &cell, const std::function<bool()> &isThere)
{
    const int map = hand->state().map;
    int idle = 0;
    for (int ticks = 0; ticks < kWalk; ++ticks) {
        if (isThere() || hand->state().map != map) {
            return {true, hand->whereabouts()};
        }
        if (hand->isBattle()) {
            return {false, QStringLiteral("a battle begins; ") + hand->whereabouts()};
        }
        Input input;
        if (hand->isFree()) {
            input.cell = cell();
            ++idle;
        } else if (hand->isAsked()) {
            return {false, hand->whereabouts()};
        } else if (hand->state().hero.isMoving()) {
            idle = 0;
        }
        if (idle > kPatience) {
            return {false, QStringLiteral("there is no way; ") + hand->whereabouts()};
        }
        hand->tick(input);
    }
    return {false, hand->whereabouts()};
}

Seen walkTo(Hand *hand, const QStringList &values)
{
    const QPoint cell(values.at(0).toInt(), values.at(1).toInt());
    const Seen seen = go(
        hand, [cell] { return cell; },
        [hand, cell] { return hand->state().hero.cell == cell && !hand->state().hero.isMoving(); });
    // What begins on arrival, such as a way out, is seen to its end, or to where it asks something.
    hand->tick();
    hand->tick();
    (void)hand->until(kPatience, [hand] { return hand->isFree() || hand->isAsked() || hand->isBattle(); });
    return {seen.isDone, seen.isDone ? hand->whereabouts() : seen.text};
}

Seen ask(Hand *hand, const std::function<QPoint()> &cell)
{
    if (!hand->until(kPatience, [hand] { return hand->isFree(); })) {
        return {false, QStringLiteral("the hero is not free; ") + hand->whereabouts()};
    }
    return go(hand, cell, [hand] { return hand->map() == nullptr || hand->map()->isBusy(); });
}

Seen askCell(Hand *hand, const QStringList &values)
{
    const QPoint cell(values.at(0).toInt(), values.at(1).toInt());
    return ask(hand, [cell] { return cell; });
}

/// Also one that walks about.
Seen askEvent(Hand *hand, const QStringList &values)
{
    const int wanted = values.at(0).toInt();
    return ask(hand, [hand, wanted] {
        if (const MapScene *const map = hand->map()) {
            for (const World::Event &event : map->world().events()) {
                if (event.entry->id == wanted && event.page != nullptr) {
                    return event.character.cell;
                }
            }
        }
        return QPoint(-1, -1);
    });
}

Seen act(Hand *hand, const QStringList &)
{
    hand->press(GameKey::kAct);
    return {true, hand->seen()};
}

Seen press(Hand *hand, const QStringList &values)
{
    static const QHash<QString, GameKey> keys = {
        {QStringLiteral("up"), GameKey::kUp},     {QStringLiteral("down"), GameKey::kDown},
        {QStringLiteral("left"), GameKey::kLeft}, {QStringLiteral("right"), GameKey::kRight},
        {QStringLiteral("act"), GameKey::kAct},   {QStringLiteral("cancel"), GameKey::kCancel},
        {QStringLiteral("menu"), GameKey::kMenu}};
    const auto key = keys.constFind(values.at(0));
    if (key == keys.constEnd()) {
        return {false, QStringLiteral("there is no key \"%1\", but: up, down, left, right, act, cancel, menu")
                           .arg(values.at(0))};
    }
    hand->press(*key);
    return {true, hand->seen()};
}

Seen pressOften(Hand *hand, const QStringList &values)
{
    Seen seen{true, {}};
    for (int i = 0; i < qBound(0, values.at(1).toInt(), 1000) && seen.isDone; ++i) {
        seen = press(hand, values);
    }
    return seen;
}

Seen type(Hand *hand, const QStringList &values)
{
    Input input;
    input.typed = values.at(0);
    hand->tick(input);
    return {true, hand->seen()};
}

Seen waitTicks(Hand *hand, const QStringList &values)
{
    const int ticks = qBound(0, values.at(0).toInt(), 60 * kWalk);
    for (int done = 0; done < ticks; ++done) {
        hand->tick();
    }
    return {true, hand->seen()};
}

Seen waitUntilFree(Hand *hand, const QStringList &)
{
    hand->tick();
    hand->tick();
    const bool isThere = hand->until(kWalk, [hand] { return hand->isFree() || hand->isAsked(); });
    return {isThere, hand->whereabouts()};
}

/// One page of a message, which is waited for.
Seen readPage(Hand *hand, const QStringList &)
{
    const auto isWaiting = [hand] {
        const Panel *const shown = hand->frame().panel("message");
        return shown != nullptr && shown->isWaiting;
    };
    if (!hand->until(kMostAnswers, isWaiting)) {
        return {false, QStringLiteral("no message waits to be read; ") + hand->whereabouts()};
    }
    hand->press(GameKey::kAct);
    return {true, hand->seen()};
}

Seen goOn(Hand *hand, const QStringList &)
{
    return {hand->goOn(), hand->whereabouts()};
}

/// Waits for something to choose from, and chooses the row.
Seen chooseRow(Hand *hand, const std::function<int(const Panel &)> &rowOf)
{
    const auto isThere = [hand, &rowOf] {
        const Panel *const list = hand->frame().list();
        return list != nullptr && rowOf(*list) >= 0;
    };
    for (int ticks = 0; ticks < kMostAnswers && !isThere(); ++ticks) {
        // What is said before is read.
        if (hand->frame().list() == nullptr && hand->isAsked()) {
            hand->press(GameKey::kAct);
        } else {
            hand->tick();
        }
    }
    if (!isThere()) {
        return {false, hand->seen()};
    }
    const Panel list = *hand->frame().list();
    Input input;
    input.row = rowOf(list);
    hand->tick(input);
    return {true, QStringLiteral("chose ") + list.rows.at(*input.row).text};
}

Seen chooseNumber(Hand *hand, const QStringList &values)
{
    const int row = values.at(0).toInt() - 1;
    return chooseRow(hand,
                     [row](const Panel &list) { return row >= 0 && row < list.rows.size() ? row : -1; });
}

Seen chooseText(Hand *hand, const QStringList &values)
{
    const QString &text = values.at(0);
    return chooseRow(hand, [&text](const Panel &list) {
        for (int row = 0; row < list.rows.size(); ++row) {
            if (list.rows.at(row).text == text) {
                return row;
            }
        }
        return -1;
    });
}

Seen enter(Hand *hand, const QStringList &values)
{
    const auto panel = [hand] {
        return hand->frame().panel("number");
    };
    if (!hand->until(kMostAnswers, [&panel] { return panel() != nullptr; })) {
        return {false, QStringLiteral("no number is asked for, but there is ") + hand->seen()};
    }
    const int digits = int(panel()->rows.size());
    Input input;
    input.typed = values.at(0).rightJustified(digits, QLatin1Char('0'));
    hand->tick(input);
    hand->press(GameKey::kAct);
    return {true, hand->seen()};
}

Seen newGame(Hand *hand, const QStringList &)
{
    const QVector<TitleCommand> commands = hand->game().data().system.titleCommands;
    const auto found = std::find_if(commands.begin(), commands.end(), [](const TitleCommand &command) {
        return command.command == QLatin1String("newGame");
    });
    const int row = found == commands.end() ? 0 : int(found - commands.begin());
    const Seen seen =
        chooseRow(hand, [row](const Panel &list) { return list.role == QLatin1String("title") ? row : -1; });
    if (!seen.isDone) {
        return {false, QStringLiteral("there is no title screen, but ") + seen.text};
    }
    const bool isThere = hand->until(kMostAnswers, [hand] { return hand->map() != nullptr; });
    return {isThere, hand->whereabouts()};
}

template<BattleOutcome outcome>
Seen endBattle(Hand *hand, const QStringList &)
{
    if (!hand->until(kMostAnswers, [hand] { return hand->isBattle(); })) {
        return {false, QStringLiteral("there is no battle; ") + hand->whereabouts()};
    }
    hand->game().pop(int(outcome));
    hand->tick();
    return {true, hand->whereabouts()};
}

Seen fight(Hand *hand, const QStringList &)
{
    if (!hand->until(kMostAnswers, [hand] { return hand->isBattle(); })) {
        return {false, QStringLiteral("there is no battle; ") + hand->whereabouts()};
    }
    // The first command and the first enemy, over and over.
    for (int ticks = 0; ticks < kWalk && hand->isBattle(); ++ticks) {
        hand->press(GameKey::kAct);
    }
    return {!hand->isBattle(), hand->whereabouts()};
}

} // namespace

void addSteps(WordTable *table)
{
    table->add("new game", &newGame);
    table->add("walk to # #", &walkTo);
    table->add("ask # #", &askCell);
    table->add("ask event #", &askEvent);
    table->add("act", &act);
    table->add("press *", &press);
    table->add("press * #", &pressOften);
    table->add("type *", &type);
    table->add("wait", &waitUntilFree);
    table->add("wait #", &waitTicks);
    table->add("read", &readPage);
    table->add("go on", &goOn);
    table->add("choose #", &chooseNumber);
    table->add("choose *", &chooseText);
    table->add("enter #", &enter);
    table->add("fight", &fight);
    table->add("win battle", &endBattle<BattleOutcome::kWon>);
    table->add("lose battle", &endBattle<BattleOutcome::kLost>);
    table->add("flee battle", &endBattle<BattleOutcome::kFled>);
}

} // namespace player
