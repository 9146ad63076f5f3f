#include "../SlimeGame.h"
#include "player/battle/TrialParty.h"

#include <QTest>

using namespace player;

class tst_TrialParty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePartyHasItsLevelsAndEquipmentAndAllPoints();
    void withoutATrialPartyTheUsualOneFights();
    void wildEntriesAreLeftOut();
};

void tst_TrialParty::thePartyHasItsLevelsAndEquipmentAndAllPoints()
{
    SlimeGame game;
    GearEntry sword;
    sword.id = 3;
    game.data->weapons.insert(sword);
    game.data->system.testBattlers = {{2, 4, 3, 0}};
    game.begin();
    game.actor(2).changeHp(-30, *game.data);
    joinTrialParty(*game.data, &game.state);
    QCOMPARE(game.state.party, QVector<int>({2}));
    QCOMPARE(game.actor(2).level, 4);
    QCOMPARE(game.actor(2).hp, 70);
    QCOMPARE(game.actor(2).mp, 16);
    QCOMPARE(game.actor(2).weapon, 3);
    QVERIFY(game.actor(2).skills.contains(SlimeGame::kHeal));
}

void tst_TrialParty::withoutATrialPartyTheUsualOneFights()
{
    SlimeGame game;
    game.begin();
    joinTrialParty(*game.data, &game.state);
    QCOMPARE(game.state.party, QVector<int>({1, 2}));
}

void tst_TrialParty::wildEntriesAreLeftOut()
{
    SlimeGame game;
    game.data->system.testBattlers = {{99, 5, 1, 1}, {1, -3, 999, -1}, {1, 9, 0, 0}, {2, 1000, 0, 0}};
    game.begin();
    joinTrialParty(*game.data, &game.state);
    QCOMPARE(game.state.party, QVector<int>({1, 2}));
    QCOMPARE(game.actor(1).level, 1);
    QCOMPARE(game.actor(1).weapon, 0);
    QCOMPARE(game.actor(2).level, 99);
}

QTEST_GUILESS_MAIN(tst_TrialParty)
#include "tst_TrialParty.moc"
