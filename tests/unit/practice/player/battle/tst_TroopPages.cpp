#include "../SlimeGame.h"
#include "player/battle/Fighters.h"
#include "player/battle/TroopPages.h"

#include <QTest>

Q_DECLARE_METATYPE(player::TroopConditions)

using namespace player;

class tst_TroopPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageIsDueWhenAllItsConditionsHold_data();
    void aPageIsDueWhenAllItsConditionsHold();
    void aPageIsDueAsOftenAsItsSpanSays_data();
    void aPageIsDueAsOftenAsItsSpanSays();
    void pagesComeInTheirOrder();
};

void tst_TroopPages::aPageIsDueWhenAllItsConditionsHold_data()
{
    QTest::addColumn<TroopConditions>("conditions");
    QTest::addColumn<bool>("isDue");
    // In turn 2; the slime has 5 of 15 HP, Mila 20 of 40; switch 3 is on.
    const auto row = [](const char *name, bool isDue, int turn, int enemy, int enemyHp, int actor,
                        int actorHp, int switchId) {
        QTest::newRow(name) << TroopConditions{turn, enemy, enemyHp, actor, actorHp, switchId} << isDue;
    };
    row("none", true, -1, 0, -1, 1, -1, 0);
    row("from turn 0", true, 0, 0, -1, 1, -1, 0);
    row("from turn 2", true, 2, 0, -1, 1, -1, 0);
    row("from turn 3", false, 3, 0, -1, 1, -1, 0);
    row("enemy's HP low enough", true, -1, 0, 34, 1, -1, 0);
    row("enemy's HP too high", false, -1, 0, 33, 1, -1, 0);
    row("an enemy who is not there", false, -1, 7, 100, 1, -1, 0);
    row("actor's HP low enough", true, -1, 0, -1, 1, 50, 0);
    row("actor's HP too high", false, -1, 0, -1, 1, 49, 0);
    row("an actor who is not there", false, -1, 0, -1, 9, 100, 0);
    row("switch on", true, -1, 0, -1, 1, -1, 3);
    row("switch off", false, -1, 0, -1, 1, -1, 4);
    row("one of two", false, 2, 0, -1, 1, -1, 4);
}

void tst_TroopPages::aPageIsDueWhenAllItsConditionsHold()
{
    QFETCH(TroopConditions, conditions);
    QFETCH(bool, isDue);
    SlimeGame game;
    game.begin();
    game.state.setSwitch(3, true);
    game.actor(1).hp = 20;
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    fighters.changeHp({true, 0}, -10);
    TroopPages pages({{conditions, 0, {}}});
    pages.beginMoment();
    QCOMPARE(pages.next(fighters, game.state, 2), isDue ? 0 : -1);
}

void tst_TroopPages::aPageIsDueAsOftenAsItsSpanSays_data()
{
    QTest::addColumn<int>("span");
    QTest::addColumn<int>("times");
    // Three turns of two moments each.
    QTest::newRow("once a battle") << 0 << 1;
    QTest::newRow("once a turn") << 1 << 3;
    QTest::newRow("each time") << 2 << 6;
    QTest::newRow("a wild one") << 99 << 6;
}

void tst_TroopPages::aPageIsDueAsOftenAsItsSpanSays()
{
    QFETCH(int, span);
    SlimeGame game;
    game.begin();
    const Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    TroopPages pages({{{}, span, {}}});
    int times = 0;
    for (int turn = 1; turn <= 3; ++turn) {
        pages.beginTurn();
        for (int moment = 0; moment < 2; ++moment) {
            pages.beginMoment();
            for (int ask = 0; ask < 5; ++ask) {
                times += pages.next(fighters, game.state, turn) == 0 ? 1 : 0;
            }
        }
    }
    QTEST(times, "times");
}

void tst_TroopPages::pagesComeInTheirOrder()
{
    SlimeGame game;
    game.begin();
    const Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    TroopPages pages({{{}, 0, {}}, {{}, 2, {}}, {{}, 0, {}}});
    pages.beginMoment();
    QCOMPARE(pages.next(fighters, game.state, 0), 0);
    QCOMPARE(pages.next(fighters, game.state, 0), 1);
    QCOMPARE(pages.next(fighters, game.state, 0), 2);
    QCOMPARE(pages.next(fighters, game.state, 0), -1);
}

QTEST_GUILESS_MAIN(tst_TroopPages)
#include "tst_TroopPages.moc"
