#include "player/run/Expectations.h"
#include "player/run/Expecting.h"
#include "player/scene/BattleScene.h"

namespace player {

using namespace Expecting;

namespace {

const Actor *actorOf(const Hand &hand, const QString &number)
{
    return hand.state().knownActor(number.toInt());
}

/// A number of an actor; -1 while nobody knows this one.
template<int Actor::*fact>
Seen actorFact(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2), [&] {
        const Actor *const actor = actorOf(*hand, values.at(0));
        return actor != nullptr ? actor->*fact : -1;
    });
}

template<int (Actor::*figure)(const GameData &) const>
Seen actorFigure(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2), [&] {
        const Actor *const actor = actorOf(*hand, values.at(0));
        return actor != nullptr ? (actor->*figure)(hand->game().data()) : -1;
    });
}

Seen actorName(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(1), [&] {
        const Actor *const actor = actorOf(*hand, values.at(0));
        return actor != nullptr ? actor->name : QString();
    });
}

Seen actorState(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(2), [&] {
        const Actor *const actor = actorOf(*hand, values.at(0));
        return actor != nullptr && actor->hasState(values.at(1).toInt());
    });
}

Seen actorSkill(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(2), [&] {
        const Actor *const actor = actorOf(*hand, values.at(0));
        return actor != nullptr && actor->knows(values.at(1).toInt(), hand->game().data());
    });
}

Seen inBattle(Hand *hand, const QStringList &)
{
    return onScreen(hand, [hand] { return hand->isBattle(); });
}

template<BattleOutcome outcome>
Seen battleEnded(Hand *hand, const QStringList &)
{
    return onScreen(hand, [hand] { return hand->lastBattle() == outcome; });
}

/// nullptr when none is on.
const BattleScene *battleOf(const Hand &hand)
{
    return dynamic_cast<const BattleScene *>(hand.scene());
}

Seen troopIs(Hand *hand, const QStringList &values)
{
    return number(hand, QStringLiteral("="), values.at(0), [hand] {
        const BattleScene *const battle = battleOf(*hand);
        return battle != nullptr ? battle->troop() : 0;
    });
}

QString enemiesOf(const Hand &hand)
{
    QStringList numbers;
    if (const BattleScene *const battle = battleOf(hand)) {
        const QVector<int> enemies = battle->enemies();
        for (const int enemy : enemies) {
            numbers.append(QString::number(enemy));
        }
    }
    return numbers.join(QLatin1Char(' '));
}

Seen enemiesAre(Hand *hand, const QStringList &values)
{
    return text(hand, values.join(QLatin1Char(' ')), [hand] { return enemiesOf(*hand); });
}

} // namespace

void addExpectationsOfBattle(WordTable *table)
{
    table->add("expect level # * #", &actorFact<&Actor::level>);
    table->add("expect exp # * #", &actorFact<&Actor::exp>);
    table->add("expect hp # * #", &actorFact<&Actor::hp>);
    table->add("expect mp # * #", &actorFact<&Actor::mp>);
    table->add("expect class of # * #", &actorFact<&Actor::classId>);
    table->add("expect weapon of # * #", &actorFact<&Actor::weapon>);
    table->add("expect armor of # * #", &actorFact<&Actor::armor>);
    table->add("expect attack of # * #", &actorFigure<&Actor::attack>);
    table->add("expect defense of # * #", &actorFigure<&Actor::defense>);
    table->add("expect agility of # * #", &actorFigure<&Actor::agility>);
    table->add("expect most hp of # * #", &actorFigure<&Actor::maxHp>);
    table->add("expect most mp of # * #", &actorFigure<&Actor::maxMp>);
    table->add("expect name # *", &actorName);
    table->add("expect state # # *", &actorState);
    table->add("expect skill # # *", &actorSkill);
    table->add("expect battle", &inBattle);
    table->add("expect battle won", &battleEnded<BattleOutcome::kWon>);
    table->add("expect battle lost", &battleEnded<BattleOutcome::kLost>);
    table->add("expect battle fled", &battleEnded<BattleOutcome::kFled>);
    table->add("expect troop #", &troopIs);
    table->add("expect enemies ...", &enemiesAre);
}

} // namespace player
