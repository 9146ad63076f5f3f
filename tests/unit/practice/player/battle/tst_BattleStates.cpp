#include "Field.h"

#include <QTest>

using namespace player;

class tst_BattleStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attacksCauseTheStatesOfTheirTraits();
    void aResistedStateDoesNotCome();
    void aStateEndsAfterItsTurns();
    void aStateEndsAfterItsActions();
    void poisonHurtsEachTurnAndCanKnockOut();
    void whoCannotActDoesNothing();
    void whoIsRestrictedAttacksWhomTheStateSays_data();
    void whoIsRestrictedAttacksWhomTheStateSays();
};

void tst_BattleStates::attacksCauseTheStatesOfTheirTraits()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->traits = {{QStringLiteral("attackState"), SlimeGame::kPoisoned}};
    });
    game.begin();
    Field field(&game);
    const QVector<Note> notes = field.deeds.carryOut({Deed::Kind::kAttack, kSlime, 0, kMila});
    QCOMPARE(notes.at(2).kind, Note::Kind::kGetsState);
    QCOMPARE(notes.at(2).id, int(SlimeGame::kPoisoned));
    QVERIFY(game.actor(1).hasState(SlimeGame::kPoisoned));
}

void tst_BattleStates::aResistedStateDoesNotCome()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->traits = {{QStringLiteral("resistState"), SlimeGame::kPoisoned}};
    });
    game.begin();
    Field field(&game);
    QCOMPARE(kinds(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kSpores, kSlime))),
             QVector<Note::Kind>({Note::Kind::kUsesSkill, Note::Kind::kNoEffect}));
    QVERIFY(field.fighters.states(kSlime).isEmpty());
}

void tst_BattleStates::aStateEndsAfterItsTurns()
{
    SlimeGame game;
    game.begin();
    Field field(&game);
    QCOMPARE(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kLullaby, kSlime)).at(1).kind,
             Note::Kind::kGetsState);
    QVERIFY(field.deeds.endTurn(kSlime).isEmpty());
    QVERIFY(field.fighters.states(kSlime).contains(SlimeGame::kAsleep));
    QCOMPARE(kinds(field.deeds.endTurn(kSlime)), QVector<Note::Kind>({Note::Kind::kLosesState}));
    QVERIFY(field.fighters.states(kSlime).isEmpty());
}

void tst_BattleStates::aStateEndsAfterItsActions()
{
    SlimeGame game;
    game.begin();
    game.actor(1).addState(SlimeGame::kAngry, *game.data);
    Field field(&game);
    const Deed guard{Deed::Kind::kGuard, kMila, 0, {}};
    QVERIFY(field.deeds.endTurn(kMila).isEmpty());
    QCOMPARE(kinds(field.deeds.carryOut(guard)).constLast(), Note::Kind::kLosesHp);
    QVERIFY(game.actor(1).hasState(SlimeGame::kAngry));
    QCOMPARE(kinds(field.deeds.carryOut(guard)).constLast(), Note::Kind::kLosesState);
    QVERIFY(!game.actor(1).hasState(SlimeGame::kAngry));
}

void tst_BattleStates::poisonHurtsEachTurnAndCanKnockOut()
{
    SlimeGame game;
    game.begin();
    game.actor(1).hp = 5;
    game.actor(1).addState(SlimeGame::kPoisoned, *game.data);
    Field field(&game);
    QCOMPARE(kinds(field.deeds.endTurn(kMila)),
             QVector<Note::Kind>({Note::Kind::kKeepsState, Note::Kind::kLosesHp}));
    QCOMPARE(game.actor(1).hp, 2);
    QCOMPARE(kinds(field.deeds.endTurn(kMila)),
             QVector<Note::Kind>({Note::Kind::kKeepsState, Note::Kind::kLosesHp, Note::Kind::kGetsState}));
    QVERIFY(!field.fighters.isStanding(kMila));
    QVERIFY(field.deeds.endTurn(kMila).isEmpty());
}

void tst_BattleStates::whoCannotActDoesNothing()
{
    SlimeGame game;
    game.begin();
    game.actor(1).addState(SlimeGame::kAsleep, *game.data, 2);
    Field field(&game);
    QCOMPARE(kinds(field.deeds.carryOut({Deed::Kind::kAttack, kMila, 0, kSlime})),
             QVector<Note::Kind>({Note::Kind::kKeepsState}));
    QCOMPARE(field.fighters.hp(kSlime), 15);
}

void tst_BattleStates::whoIsRestrictedAttacksWhomTheStateSays_data()
{
    QTest::addColumn<int>("restriction");
    QTest::addColumn<bool>("hitsEnemies");
    QTest::addColumn<bool>("hitsAllies");
    QTest::newRow("an enemy") << 1 << true << false;
    QTest::newRow("anyone") << 2 << true << true;
    QTest::newRow("an ally") << 3 << false << true;
}

void tst_BattleStates::whoIsRestrictedAttacksWhomTheStateSays()
{
    QFETCH(int, restriction);
    QFETCH(bool, hitsEnemies);
    QFETCH(bool, hitsAllies);
    SlimeGame game;
    SlimeGame::change(&game.data->states, SlimeGame::kAngry, [&](StateEntry *angry) {
        angry->restriction = restriction;
        angry->autoRemovalTiming = 0;
    });
    game.begin();
    game.actor(1).addState(SlimeGame::kAngry, *game.data);
    Field field(&game);
    for (int time = 0; time < 40; ++time) {
        QCOMPARE(field.deeds.carryOut({Deed::Kind::kGuard, kMila, 0, {}}).at(0).kind, Note::Kind::kAttacks);
        field.fighters.recover(kSlime);
        QCOMPARE(game.actor(1).hp, 40); // never herself
    }
    int enemies = 0;
    int allies = 0;
    for (int time = 0; time < 40; ++time) {
        game.actor(2).recoverAll(*game.data);
        field.fighters.recover(kSlime);
        static_cast<void>(field.deeds.carryOut({Deed::Kind::kGuard, kMila, 0, {}}));
        enemies += field.fighters.hp(kSlime) < 15 ? 1 : 0;
        allies += game.actor(2).hp < 40 ? 1 : 0;
    }
    QCOMPARE(enemies > 0, hitsEnemies);
    QCOMPARE(allies > 0, hitsAllies);
    QCOMPARE(enemies + allies, 40);
}

QTEST_GUILESS_MAIN(tst_BattleStates)
#include "tst_BattleStates.moc"
