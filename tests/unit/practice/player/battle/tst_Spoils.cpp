#include "../SlimeGame.h"
#include "player/battle/Fighters.h"
#include "player/battle/Spoils.h"

#include <QTest>

#include <limits>

using namespace player;

class tst_Spoils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fallenEnemiesGiveExpAndGold();
    void itemsDropOnceInSoManyTimes_data();
    void itemsDropOnceInSoManyTimes();
    void everybodyWhoStandsGetsAllExpAndRises();
    void aLevelTeachesItsSkills();
    void wildFiguresStayWithinBounds();
};

void tst_Spoils::fallenEnemiesGiveExpAndGold()
{
    SlimeGame game;
    game.setTroop(3);
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    fighters.changeHp({true, 0}, -99);
    fighters.changeHp({true, 2}, -99);
    const Spoils spoils = Spoils::of(*game.data, fighters, &game.state);
    QCOMPARE(spoils.exp, 24);
    QCOMPARE(spoils.gold, 6);
    QVERIFY(spoils.items.isEmpty());
}

void tst_Spoils::itemsDropOnceInSoManyTimes_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("always") << int(SlimeGame::kHerb) << 1 << 400 << 400;
    QTest::newRow("once in four") << int(SlimeGame::kHerb) << 4 << 70 << 130;
    QTest::newRow("never") << int(SlimeGame::kHerb) << 0 << 0 << 0;
    QTest::newRow("a wild item") << 999 << 1 << 0 << 0;
}

void tst_Spoils::itemsDropOnceInSoManyTimes()
{
    QFETCH(int, item);
    QFETCH(int, denominator);
    QFETCH(int, least);
    QFETCH(int, most);
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [&](EnemyEntry *slime) {
        slime->drops = {{item, denominator}};
    });
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    fighters.changeHp({true, 0}, -99);
    int dropped = 0;
    for (int time = 0; time < 400; ++time) {
        dropped += Spoils::of(*game.data, fighters, &game.state).items.value(item);
    }
    QVERIFY2(dropped >= least && dropped <= most, qPrintable(QString::number(dropped)));
}

void tst_Spoils::everybodyWhoStandsGetsAllExpAndRises()
{
    SlimeGame game;
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    fighters.changeHp({false, 1}, -99);
    Spoils spoils;
    spoils.exp = 18;
    spoils.gold = 7;
    spoils.items = {{SlimeGame::kHerb, 2}};
    const QVector<Rise> rises = share(spoils, *game.data, fighters, &game.state);
    // 6 points make level 2, and 18 level 3.
    QCOMPARE(rises.size(), 1);
    QCOMPARE(rises.at(0).actor, 1);
    QCOMPARE(rises.at(0).from, 1);
    QCOMPARE(rises.at(0).to, 3);
    QCOMPARE(game.actor(1).maxHp(*game.data), 60);
    QCOMPARE(game.actor(2).level, 1);
    QCOMPARE(game.state.gold, 7);
    QCOMPARE(game.state.count(Goods::kItem, SlimeGame::kHerb), 2);
}

void tst_Spoils::aLevelTeachesItsSkills()
{
    SlimeGame game;
    SlimeGame::change(&game.data->classes, 1, [](ClassEntry *entry) {
        entry->traits = {{QStringLiteral("expRate"), 50}};
    });
    game.begin();
    const Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    QVERIFY(!game.actor(1).skills.contains(SlimeGame::kHeal));
    Spoils spoils;
    spoils.exp = 20;
    const QVector<Rise> rises = share(spoils, *game.data, fighters, &game.state);
    QCOMPARE(rises.at(0).exp, 10);
    QCOMPARE(rises.at(0).skills, QVector<int>({SlimeGame::kHeal}));
    QVERIFY(game.actor(1).skills.contains(SlimeGame::kHeal));
}

void tst_Spoils::wildFiguresStayWithinBounds()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->exp = std::numeric_limits<int>::max();
        slime->gold = std::numeric_limits<int>::max();
    });
    game.setTroop(8);
    game.begin();
    Fighters fighters(*game.data, &game.state, game.data->troops.find(1));
    const QVector<Fighter> troop = fighters.troop();
    for (const Fighter &enemy : troop) {
        fighters.changeHp(enemy, -99);
    }
    const Spoils spoils = Spoils::of(*game.data, fighters, &game.state);
    QVERIFY(spoils.exp > 0);
    QVERIFY(spoils.gold > 0);
    const QVector<Rise> rises = share(spoils, *game.data, fighters, &game.state);
    QCOMPARE(rises.at(0).to, 99);
    QCOMPARE(game.state.gold, GameState::kMostGold);
}

QTEST_GUILESS_MAIN(tst_Spoils)
#include "tst_Spoils.moc"
