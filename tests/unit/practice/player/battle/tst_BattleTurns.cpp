#include "../SlimeGame.h"
#include "player/battle/Battle.h"

#include <QTest>

Q_DECLARE_METATYPE(player::Fighter)
Q_DECLARE_METATYPE(player::Battle::Result)

using namespace player;

namespace {

const Fighter kMila{false, 0};
const Fighter kToma{false, 1};
const Fighter kSlime{true, 0};

/// Who does something in this turn, in order.
QVector<Fighter> doers(Battle *battle)
{
    QVector<Fighter> doers;
    while (battle->hasNext()) {
        const QVector<Note> notes = battle->next();
        if (!notes.isEmpty()) {
            doers.append(notes.constFirst().who);
        }
    }
    return doers;
}

void give(Battle *battle, Deed::Kind kind)
{
    battle->give({kind, kMila, 0, kSlime});
    battle->give({kind, kToma, 0, kSlime});
}

} // namespace

class tst_BattleTurns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFastestActsFirstAndThePartyBeforeItsEquals_data();
    void theFastestActsFirstAndThePartyBeforeItsEquals();
    void whoGuardsIsGuardedFromTheBeginningOfTheTurn();
    void onlyThoseWhoCanChooseAreAsked();
    void fleeingSucceedsAtTheThirdTryAtTheLatest();
    void fromSomeBattlesNobodyCanFlee();
    void theBattleIsWonLostOrAborted_data();
    void theBattleIsWonLostOrAborted();
    void aForcedActionComesFirst();
    void afterTheBattleItsStatesAreGone();
    void afterADefeatAllStandUp();
    void aTroopWithNobodyToFightIsTold_data();
    void aTroopWithNobodyToFightIsTold();
    void anActionPatternThatLeadsNowhereIsTold();
    void aBattleInWhichNobodyCanActEnds();
    void theSameSeedGivesTheSameBattle();
};

void tst_BattleTurns::theFastestActsFirstAndThePartyBeforeItsEquals_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<QVector<Fighter>>("order");
    QTest::newRow("slower") << 100 << QVector<Fighter>({kMila, kToma, kSlime});
    QTest::newRow("as fast as both") << 110 << QVector<Fighter>({kMila, kToma, kSlime});
    QTest::newRow("faster") << 120 << QVector<Fighter>({kSlime, kMila, kToma});
}

void tst_BattleTurns::theFastestActsFirstAndThePartyBeforeItsEquals()
{
    QFETCH(int, rate);
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [&](EnemyEntry *slime) {
        slime->hp = 500;
        slime->traits = {{QStringLiteral("agilityRate"), rate}};
    });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    battle.beginTurn();
    give(&battle, Deed::Kind::kAttack);
    battle.order();
    QTEST(doers(&battle), "order");
}

void tst_BattleTurns::whoGuardsIsGuardedFromTheBeginningOfTheTurn()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->traits = {{QStringLiteral("agilityRate"), 500}};
    });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    battle.beginTurn();
    give(&battle, Deed::Kind::kGuard);
    battle.order();
    // 7 points, halved.
    QCOMPARE(battle.next().constLast().amount, 4);
}

void tst_BattleTurns::onlyThoseWhoCanChooseAreAsked()
{
    SlimeGame game;
    SlimeGame::change(&game.data->actors, 2, [](ActorEntry *toma) { toma->actsAlone = true; });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    battle.beginTurn();
    QVERIFY(battle.asks(kMila));
    QVERIFY(!battle.asks(kToma));
    QVERIFY(!battle.asks(kSlime) || battle.fighters().actor(kSlime) == nullptr);
    game.actor(1).addState(SlimeGame::kAsleep, *game.data, 2);
    QVERIFY(!battle.asks(kMila));
    battle.order();
    // Toma attacks by himself.
    QCOMPARE(doers(&battle), QVector<Fighter>({kMila, kToma, kSlime}));
}

void tst_BattleTurns::fleeingSucceedsAtTheThirdTryAtTheLatest()
{
    QVector<int> tries(4, 0);
    for (quint64 seed = 1; seed <= 200; ++seed) {
        SlimeGame game;
        game.begin(seed);
        Battle battle(*game.data, &game.state, 1, true);
        int count = 0;
        while (battle.result() == Battle::Result::kGoesOn && count < 3) {
            battle.beginTurn();
            ++count;
            const Note note = battle.flee();
            QCOMPARE(note.kind == Note::Kind::kFlees, battle.result() == Battle::Result::kFled);
        }
        QCOMPARE(battle.result(), Battle::Result::kFled);
        ++tries[count];
    }
    // Of 200 one half, then three quarters of the rest.
    QVERIFY2(tries.at(1) > 70 && tries.at(1) < 130, qPrintable(QString::number(tries.at(1))));
    QVERIFY(tries.at(2) > tries.at(3));
    QVERIFY(tries.at(3) > 0);
}

void tst_BattleTurns::fromSomeBattlesNobodyCanFlee()
{
    SlimeGame game;
    game.begin();
    Battle battle(*game.data, &game.state, 1, false);
    for (int time = 0; time < 10; ++time) {
        battle.beginTurn();
        QCOMPARE(battle.flee().kind, Note::Kind::kCannotFlee);
    }
    QCOMPARE(battle.result(), Battle::Result::kGoesOn);
}

void tst_BattleTurns::theBattleIsWonLostOrAborted_data()
{
    QTest::addColumn<bool>("partyFalls");
    QTest::addColumn<bool>("troopFalls");
    QTest::addColumn<bool>("isAborted");
    QTest::addColumn<Battle::Result>("result");
    QTest::newRow("nobody") << false << false << false << Battle::Result::kGoesOn;
    QTest::newRow("the troop") << false << true << false << Battle::Result::kWon;
    QTest::newRow("the party") << true << false << false << Battle::Result::kLost;
    QTest::newRow("both") << true << true << false << Battle::Result::kLost;
    QTest::newRow("an event aborts it") << false << false << true << Battle::Result::kAborted;
}

void tst_BattleTurns::theBattleIsWonLostOrAborted()
{
    QFETCH(bool, partyFalls);
    QFETCH(bool, troopFalls);
    QFETCH(bool, isAborted);
    SlimeGame game;
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    if (partyFalls) {
        battle.fighters().changeHp(kMila, -99);
        battle.fighters().changeHp(kToma, -99);
    }
    if (troopFalls) {
        battle.fighters().changeHp(kSlime, -99);
    }
    if (isAborted) {
        battle.abort();
    }
    QTEST(battle.result(), "result");
}

void tst_BattleTurns::aForcedActionComesFirst()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) { slime->hp = 500; });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    battle.beginTurn();
    give(&battle, Deed::Kind::kAttack);
    battle.order();
    QVERIFY(battle.force({Deed::Kind::kSkill, kSlime, SlimeGame::kQuake, {}}));
    QVERIFY(!battle.force({Deed::Kind::kSkill, kSlime, 999, {}}));
    QVERIFY(!battle.force({Deed::Kind::kSkill, {true, 9}, SlimeGame::kQuake, {}}));
    QCOMPARE(doers(&battle), QVector<Fighter>({kSlime, kMila, kToma, kSlime}));
}

void tst_BattleTurns::afterTheBattleItsStatesAreGone()
{
    SlimeGame game;
    SlimeGame::change(&game.data->states, SlimeGame::kPoisoned,
                      [](StateEntry *poisoned) { poisoned->endsWithBattle = false; });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    battle.fighters().addState(kMila, SlimeGame::kPoisoned, 0);
    battle.fighters().addState(kMila, SlimeGame::kAsleep, 2);
    battle.fighters().changeHp(kToma, -99);
    battle.fighters().changeHp(kSlime, -99);
    battle.end();
    QCOMPARE(game.actor(1).states.keys(), QList<int>({SlimeGame::kPoisoned}));
    QCOMPARE(game.actor(2).hp, 1); // fainting ends with the battle
}

void tst_BattleTurns::afterADefeatAllStandUp()
{
    SlimeGame game;
    SlimeGame::change(&game.data->states, SlimeGame::kFainted,
                      [](StateEntry *fainted) { fainted->endsWithBattle = false; });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    battle.fighters().changeHp(kMila, -99);
    battle.fighters().changeHp(kToma, -99);
    battle.end();
    QCOMPARE(game.actor(1).hp, 1);
    QCOMPARE(game.actor(2).hp, 1);
}

void tst_BattleTurns::aTroopWithNobodyToFightIsTold_data()
{
    QTest::addColumn<int>("troop");
    QTest::addColumn<QString>("text");
    QTest::newRow("no such troop") << 77 << QStringLiteral("There is no troop 77");
    QTest::newRow("no members") << 1 << QStringLiteral("The troop “Slimes” has no members");
    QTest::newRow("a wild member") << 2 << QStringLiteral("a member that is enemy 99");
}

void tst_BattleTurns::aTroopWithNobodyToFightIsTold()
{
    QFETCH(int, troop);
    QFETCH(QString, text);
    SlimeGame game;
    game.setTroop(0);
    TroopEntry wild;
    wild.id = 2;
    wild.members = {{99, QPoint(), false}, {99, QPoint(), false}};
    game.data->troops.insert(wild);
    game.begin();
    Battle battle(*game.data, &game.state, troop, true);
    QCOMPARE(battle.result(), Battle::Result::kWon);
    const QVector<Problem> problems = battle.takeProblems();
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.at(0).text.contains(text), qPrintable(problems.at(0).text));
    QCOMPARE(problems.at(0).file, QStringLiteral("data/Troops.json"));
    QCOMPARE(problems.at(0).event, troop);
}

void tst_BattleTurns::anActionPatternThatLeadsNowhereIsTold()
{
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [](EnemyEntry *slime) {
        slime->actions = {{999, 5, 0, 0, false}};
    });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    QCOMPARE(battle.takeProblems().size(), 1);
    battle.beginTurn();
    give(&battle, Deed::Kind::kGuard);
    battle.order();
    QCOMPARE(doers(&battle), QVector<Fighter>({kMila, kToma, kSlime}));
}

void tst_BattleTurns::aBattleInWhichNobodyCanActEnds()
{
    SlimeGame game;
    SlimeGame::change(&game.data->states, SlimeGame::kAsleep,
                      [](StateEntry *asleep) { asleep->autoRemovalTiming = 0; });
    game.begin();
    Battle battle(*game.data, &game.state, 1, true);
    const QVector<Fighter> all = battle.fighters().all();
    for (const Fighter &fighter : all) {
        battle.fighters().addState(fighter, SlimeGame::kAsleep, 0);
    }
    int turns = 0;
    while (battle.result() == Battle::Result::kGoesOn && turns < 1000) {
        battle.beginTurn();
        QVERIFY(!battle.asks(kMila));
        battle.order();
        QVERIFY(doers(&battle).size() <= 3);
        static_cast<void>(battle.endTurn());
        ++turns;
    }
    QCOMPARE(turns, 100);
    QCOMPARE(battle.result(), Battle::Result::kAborted);
    QCOMPARE(battle.takeProblems().size(), 1);
}

void tst_BattleTurns::theSameSeedGivesTheSameBattle()
{
    const auto play = [] {
        SlimeGame game;
        game.setTroop(3);
        game.begin(42);
        Battle battle(*game.data, &game.state, 1, true);
        QVector<int> story;
        while (battle.result() == Battle::Result::kGoesOn) {
            battle.beginTurn();
            give(&battle, Deed::Kind::kAttack);
            battle.order();
            while (battle.hasNext() && battle.result() == Battle::Result::kGoesOn) {
                const QVector<Note> notes = battle.next();
                for (const Note &note : notes) {
                    story += {int(note.kind), int(note.who.isEnemy), note.who.place, note.amount};
                }
            }
        }
        return story;
    };
    const QVector<int> story = play();
    QVERIFY(story.size() > 20);
    QCOMPARE(play(), story);
}

QTEST_GUILESS_MAIN(tst_BattleTurns)
#include "tst_BattleTurns.moc"
