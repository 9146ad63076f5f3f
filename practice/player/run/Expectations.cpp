#include "player/run/Expectations.h"

#include "player/run/Expecting.h"
#include "player/scene/MapScene.h"

namespace player {

using namespace Expecting;

namespace {

Seen switchIs(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(1), [&] { return hand->state().isOn(values.at(0).toInt()); });
}

Seen selfSwitchIs(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(3), [&] {
        return hand->state().isSelfSwitchOn(values.at(0).toInt(), values.at(1).toInt(), values.at(2));
    });
}

Seen variableIs(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2),
                  [&] { return hand->state().variable(values.at(0).toInt()); });
}

Seen goldIs(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(0), values.at(1), [&] { return hand->state().gold; });
}

template<Goods kind>
Seen goods(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2),
                  [&] { return hand->state().count(kind, values.at(0).toInt()); });
}

Seen mapIs(Hand *hand, const QStringList &values)
{
    return number(hand, QStringLiteral("="), values.at(0), [&] { return hand->state().map; });
}

Seen heroIsAt(Hand *hand, const QStringList &values)
{
    return text(hand, values.join(QLatin1Char(' ')), [hand] {
        const QPoint now = hand->state().hero.cell;
        return QStringLiteral("%1 %2").arg(now.x()).arg(now.y());
    });
}

QString partyOf(const Hand &hand)
{
    QStringList numbers;
    for (const int actor : hand.state().party) {
        numbers.append(QString::number(actor));
    }
    return numbers.join(QLatin1Char(' '));
}

Seen partyIs(Hand *hand, const QStringList &values)
{
    return text(hand, values.join(QLatin1Char(' ')), [hand] { return partyOf(*hand); });
}

Seen isMember(Hand *hand, const QStringList &values)
{
    const int actor = values.at(0).toInt();
    const bool holds = hand->until(kPatience, [&] { return hand->state().party.contains(actor); });
    return {holds, partyOf(*hand)};
}

Seen isNoMember(Hand *hand, const QStringList &values)
{
    const int actor = values.at(0).toInt();
    const bool holds = hand->until(kPatience, [&] { return !hand->state().party.contains(actor); });
    return {holds, partyOf(*hand)};
}

/// The event as it is on the map of the game; nullptr while it is not there.
const World::Event *eventOf(const Hand &hand, const QString &number)
{
    if (const MapScene *const map = hand.map()) {
        for (const World::Event &event : map->world().events()) {
            if (event.entry->id == number.toInt() && event.page != nullptr && !event.isErased) {
                return &event;
            }
        }
    }
    return nullptr;
}

QString placeOf(const Hand &hand, const QString &number)
{
    const World::Event *const event = eventOf(hand, number);
    return event != nullptr
               ? QStringLiteral("%1 %2").arg(event->character.cell.x()).arg(event->character.cell.y())
               : QStringLiteral("not there");
}

Seen eventIsThere(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] { return eventOf(*hand, values.at(0)) != nullptr; });
    return {holds, placeOf(*hand, values.at(0))};
}

Seen eventIsGone(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(
        kPatience, [&] { return hand->map() != nullptr && eventOf(*hand, values.at(0)) == nullptr; });
    return {holds, placeOf(*hand, values.at(0))};
}

Seen eventIsAt(Hand *hand, const QStringList &values)
{
    return text(hand, values.mid(1).join(QLatin1Char(' ')), [&] { return placeOf(*hand, values.at(0)); });
}

/// It is there and stands on another cell.
Seen eventIsNotAt(Hand *hand, const QStringList &values)
{
    const QString wrong = values.mid(1).join(QLatin1Char(' '));
    const bool holds = hand->until(kPatience, [&] {
        return eventOf(*hand, values.at(0)) != nullptr && placeOf(*hand, values.at(0)) != wrong;
    });
    return {holds, placeOf(*hand, values.at(0))};
}

Seen eventLooks(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(1), [&] {
        const World::Event *const event = eventOf(*hand, values.at(0));
        return event != nullptr ? event->character.image : QStringLiteral("not there");
    });
}

Seen eventPage(Hand *hand, const QStringList &values)
{
    return number(hand, QStringLiteral("="), values.at(1), [&] {
        const World::Event *const event = eventOf(*hand, values.at(0));
        return event != nullptr ? event->pageNumber : 0;
    });
}

Seen heroLooks(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(0), [hand] { return hand->state().hero.image; });
}

QString problemsOf(const Hand &hand)
{
    QStringList texts;
    for (const Problem &problem : hand.problems()) {
        texts.append(problem.toString());
    }
    return texts.isEmpty() ? QStringLiteral("no problem") : texts.join(QStringLiteral("; "));
}

Seen problem(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] { return problemsOf(*hand).contains(values.at(0)); });
    return {holds, problemsOf(*hand)};
}

Seen noProblems(Hand *hand, const QStringList &)
{
    return {hand->problems().isEmpty(), problemsOf(*hand)};
}

} // namespace

void addExpectations(WordTable *table)
{
    table->add("expect switch # *", &switchIs);
    table->add("expect self switch # # * *", &selfSwitchIs);
    table->add("expect variable # * #", &variableIs);
    table->add("expect gold * #", &goldIs);
    table->add("expect item # * #", &goods<Goods::kItem>);
    table->add("expect weapon # * #", &goods<Goods::kWeapon>);
    table->add("expect armor # * #", &goods<Goods::kArmor>);
    table->add("expect map #", &mapIs);
    table->add("expect at # #", &heroIsAt);
    table->add("expect hero looks *", &heroLooks);
    table->add("expect event #", &eventIsThere);
    table->add("expect no event #", &eventIsGone);
    table->add("expect event # at # #", &eventIsAt);
    table->add("expect event # not at # #", &eventIsNotAt);
    table->add("expect event # looks *", &eventLooks);
    table->add("expect event # page #", &eventPage);
    table->add("expect party ...", &partyIs);
    table->add("expect member #", &isMember);
    table->add("expect no member #", &isNoMember);
    table->add("expect problem *", &problem);
    table->add("expect no problems", &noProblems);
}

} // namespace player
