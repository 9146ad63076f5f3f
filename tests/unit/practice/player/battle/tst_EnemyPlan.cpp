#include "../SlimeGame.h"
#include "player/battle/EnemyPlan.h"

#include <QTest>

using namespace player;

namespace {

const Fighter kSlime{true, 0};

} // namespace

class tst_EnemyPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anActionCountsWhenItsConditionHolds_data();
    void anActionCountsWhenItsConditionHolds();
    void actionsAreAsFrequentAsTheirPriorities();
    void whatIsDoneOnceIsNotDoneAgain();
    void withoutAnActionItAttacks_data();
    void withoutAnActionItAttacks();
};

void tst_EnemyPlan::anActionCountsWhenItsConditionHolds_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("isChosen");
    // In turn 3, with 5 of 15 HP, poisoned.
    QTest::newRow("always") << 0 << 0 << true;
    QTest::newRow("from turn 3 on") << 1 << 3 << true;
    QTest::newRow("from turn 4 on") << 1 << 4 << false;
    QTest::newRow("HP 34 %") << 2 << 34 << true;
    QTest::newRow("HP 33 %") << 2 << 33 << false;
    QTest::newRow("poisoned") << 3 << int(SlimeGame::kPoisoned) << true;
    QTest::newRow("asleep") << 3 << int(SlimeGame::kAsleep) << false;
}

void tst_EnemyPlan::anActionCountsWhenItsConditionHolds()
{
    QFETCH(int, type);
    QFETCH(int, value);
    QFETCH(bool, isChosen);
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [&](EnemyEntry *slime) {
        slime->actions = {{SlimeGame::kSpark, 5, type, value, false}};
    });
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    fighters.changeHp(kSlime, -10);
    fighters.addState(kSlime, SlimeGame::kPoisoned, 0);
    const Deed deed = EnemyPlan::choose(*game.data, kSlime, 3, &fighters, &game.state.random);
    QCOMPARE(deed.kind, isChosen ? Deed::Kind::kSkill : Deed::Kind::kAttack);
}

void tst_EnemyPlan::actionsAreAsFrequentAsTheirPriorities()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->actions = {{SlimeGame::kStrike, 6, 0, 0, false}, {SlimeGame::kSpores, 2, 0, 0, false}};
    });
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    int spores = 0;
    for (int time = 0; time < 400; ++time) {
        const Deed deed = EnemyPlan::choose(*game.data, kSlime, 1, &fighters, &game.state.random);
        spores += deed.id == SlimeGame::kSpores ? 1 : 0;
    }
    // 2 of 8.
    QVERIFY2(spores > 70 && spores < 130, qPrintable(QString::number(spores)));
}

void tst_EnemyPlan::whatIsDoneOnceIsNotDoneAgain()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->actions = {{SlimeGame::kSpores, 5, 0, 0, true}};
    });
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    const auto choose = [&] {
        return EnemyPlan::choose(*game.data, kSlime, 1, &fighters, &game.state.random).kind;
    };
    QCOMPARE(choose(), Deed::Kind::kSkill);
    QCOMPARE(choose(), Deed::Kind::kAttack);
}

void tst_EnemyPlan::withoutAnActionItAttacks_data()
{
    QTest::addColumn<int>("skill");
    QTest::addColumn<int>("rating");
    QTest::addColumn<int>("mp");
    QTest::newRow("a wild skill") << 999 << 5 << 100;
    QTest::newRow("no priority") << int(SlimeGame::kSpark) << 0 << 100;
    QTest::newRow("a priority below 0") << int(SlimeGame::kSpark) << -3 << 100;
    QTest::newRow("no MP") << int(SlimeGame::kSpark) << 5 << 2;
}

void tst_EnemyPlan::withoutAnActionItAttacks()
{
    QFETCH(int, skill);
    QFETCH(int, rating);
    QFETCH(int, mp);
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [&](EnemyEntry *slime) {
        slime->mp = mp;
        slime->actions = {{skill, rating, 0, 0, false}};
    });
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    QCOMPARE(EnemyPlan::choose(*game.data, kSlime, 1, &fighters, &game.state.random).kind,
             Deed::Kind::kAttack);
    QCOMPARE(EnemyPlan::choose(*game.data, {true, 9}, 1, &fighters, &game.state.random).kind,
             Deed::Kind::kAttack);
}

QTEST_GUILESS_MAIN(tst_EnemyPlan)
#include "tst_EnemyPlan.moc"
