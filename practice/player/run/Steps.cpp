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

QString here(const Hand &hand)
{
    const GameState &state = hand.state();
    return QStringLiteral("the hero stands on map %1 at %2 %3, and there is %4")
        .arg(state.map)
        .arg(state.hero.cell.x())
        .arg(state.hero.cell.y())
        .arg(hand.seen());
}

/// Clicks a cell until @p isThere; the hero walks as far as nothing happens on the way.
Seen go(Hand *hand, const std::function<QPoint()> &cell, const std::function<bool()> &isThere)
{
    const int map = hand->state().map;
    int idle = 0;
    for (int ticks = 0; ticks < kWalk; ++ticks) {
        if (isThere() || hand->state().map != map) {
            return {true, here(*hand)};
        }
        if (hand->isBattle()) {
            return {false, QStringLiteral("a battle begins; ") + here(*hand)};
        }
        Input input;
        if (hand->isFree()) {
            input.cell = cell();
            ++idle;
        } else if (hand->isAsked()) {
            return {false, here(*hand)};
        } else if (hand->state().hero.isMoving()) {
            idle = 0;
        }
        if (idle > kPatience) {
            return {false, QStringLiteral("there is no way; ") + here(*hand)};
        }
        hand->tick(input);
    }
    return {false, here(*hand)};
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
    return {seen.isDone, seen.isDone ? here(*hand) : seen.text};
}

Seen ask(Hand *hand, const std::function<QPoint()> &cell)
{
    if (!hand->until(kPatience, [hand] { return hand->isFree(); })) {
        return {false, QStringLiteral("the hero is not free; ") + here(*hand)};
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
    return {isThere, here(*hand)};
}

Seen goOn(Hand *hand, const QStringList &)
{
    return {hand->goOn(), here(*hand)};
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
    return {isThere, here(*hand)};
}

Seen winBattle(Hand *hand, const QStringList &)
{
    if (!hand->until(kMostAnswers, [hand] { return hand->isBattle(); })) {
        return {false, QStringLiteral("there is no battle; ") + here(*hand)};
    }
    hand->game().pop(int(BattleOutcome::kWon));
    hand->tick();
    return {true, here(*hand)};
}

Seen loseBattle(Hand *hand, const QStringList &)
{
    if (!hand->until(kMostAnswers, [hand] { return hand->isBattle(); })) {
        return {false, QStringLiteral("there is no battle; ") + here(*hand)};
    }
    hand->game().pop(int(BattleOutcome::kLost));
    hand->tick();
    return {true, here(*hand)};
}

Seen fleeBattle(Hand *hand, const QStringList &)
{
    if (!hand->until(kMostAnswers, [hand] { return hand->isBattle(); })) {
        return {false, QStringLiteral("there is no battle; ") + here(*hand)};
    }
    hand->game().pop(int(BattleOutcome::kFled));
    hand->tick();
    return {true, here(*hand)};
}

Seen fight(Hand *hand, const QStringList &)
{
    if (!hand->until(kMostAnswers, [hand] { return hand->isBattle(); })) {
        return {false, QStringLiteral("there is no battle; ") + here(*hand)};
    }
    // The first command and the first enemy, over and over.
    for (int ticks = 0; ticks < kWalk && hand->isBattle(); ++ticks) {
        hand->press(GameKey::kAct);
    }
    return {!hand->isBattle(), here(*hand)};
}

Seen setEncounters(Hand *hand, const QStringList &values)
{
    hand->game().setEncounters(values.at(0) != QLatin1String("off"));
    return {true, {}};
}

Seen setSeed(Hand *hand, const QStringList &values)
{
    hand->game().state().random = Random(values.at(0).toULongLong());
    return {true, {}};
}

Seen setSwitch(Hand *hand, const QStringList &values)
{
    hand->game().state().setSwitch(values.at(0).toInt(), values.at(1) == QLatin1String("on"));
    return {true, {}};
}

Seen setVariable(Hand *hand, const QStringList &values)
{
    hand->game().state().setVariable(values.at(0).toInt(), values.at(1).toInt());
    return {true, {}};
}

Seen giveGold(Hand *hand, const QStringList &values)
{
    hand->game().state().addGold(values.at(0).toInt());
    return {true, {}};
}

Seen giveItem(Hand *hand, const QStringList &values)
{
    hand->game().state().addGoods(Goods::kItem, values.at(0).toInt(), 1);
    return {true, {}};
}

Seen joinParty(Hand *hand, const QStringList &values)
{
    const int actor = values.at(0).toInt();
    hand->game().state().join(actor, hand->game().data());
    return {hand->state().party.contains(actor), QStringLiteral("the database has no actor %1").arg(actor)};
}

Seen place(Hand *hand, const QStringList &values)
{
    const int map = values.at(0).toInt();
    const QPoint cell(values.at(1).toInt(), values.at(2).toInt());
    const MapData *const found = hand->game().data().maps.find(map);
    if (found == nullptr || !found->contains(cell)) {
        return {false, QStringLiteral("there is no such place")};
    }
    GameState state = hand->state();
    state.map = map;
    state.hero.cell = cell;
    state.hero.at = cell;
    hand->game().beginSaved(state);
    hand->tick();
    return {true, here(*hand)};
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
    table->add("go on", &goOn);
    table->add("choose #", &chooseNumber);
    table->add("choose *", &chooseText);
    table->add("enter #", &enter);
    table->add("fight", &fight);
    table->add("win battle", &winBattle);
    table->add("lose battle", &loseBattle);
    table->add("flee battle", &fleeBattle);
    table->add("encounters *", &setEncounters);
    table->add("seed #", &setSeed);
    table->add("set switch # *", &setSwitch);
    table->add("set variable # = #", &setVariable);
    table->add("give gold #", &giveGold);
    table->add("give item #", &giveItem);
    table->add("join #", &joinParty);
    table->add("place # # #", &place);
}

} // namespace player
