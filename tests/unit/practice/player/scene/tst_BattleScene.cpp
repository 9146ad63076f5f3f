#include "SceneRun.h"
#include "player/scene/BattleScene.h"

#include <QTest>

using namespace player;

namespace {

/// Below a battle: keeps what it ended with.
class Listener : public Scene
{
public:
    explicit Listener(QVector<int> *results)
        : m_results(results)
    {
    }

    void tick(const Input &, Game *) override {}
    void show(const Game &, Frame *) const override {}
    void resume(int result, Game *) override { m_results->append(result); }

private:
    QVector<int> *m_results;
};

struct BattleRun : SceneRun
{
    explicit BattleRun(const SlimeGame &small, bool canFlee = true, bool canLose = true, bool isTest = false)
        : SceneRun(small)
    {
        game.begin(std::make_unique<Listener>(&results));
        wait(1);
        open<BattleScene>(BattleWish{1, canFlee, canLose}, isTest, game);
    }

    /// Acts until the battle has ended.
    bool finish(int ticks = 5000)
    {
        for (int tick = 0; tick < ticks && results.isEmpty(); ++tick) {
            Input input;
            input.pressed = {GameKey::kAct};
            game.tick(input);
        }
        return !results.isEmpty();
    }

    QVector<int> results;
};

TroopPage page(const TroopConditions &conditions, const CommandList &list)
{
    return {conditions, 0, list};
}

} // namespace

class tst_BattleScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBattleIsFoughtToItsVictory();
    void aBattleThatIsLostSaysSo();
    void fleeingEndsIt();
    void whatCannotBeChosenSaysWhy();
    void cancellingLeadsBackToTheOneBefore();
    void aSkillIsChosenWithItsTarget();
    void anAnimationIsSeenOverThoseOfTheParty();
    void anAnimationIsSeenOnceForEachDeed();
    void anAnimationOverTheScreenIsSeenOnceForAllTargets_data();
    void anAnimationOverTheScreenIsSeenOnceForAllTargets();
    void aBattleEventRunsAtItsTime();
    void anAbortedBattleCountsAsFled();
    void aTroopWithoutMembersEndsAtOnceAndIsTold();
    void noTickDoesMoreThanOneDeed();
    void aTrialIsLeftWhereNothingCanBeCancelled_data();
    void aTrialIsLeftWhereNothingCanBeCancelled();
};

void tst_BattleScene::aBattleIsFoughtToItsVictory()
{
    SlimeGame small;
    small.setTroop(2);
    SlimeGame::change(&small.data->enemies, 1, [](EnemyEntry *slime) { slime->hp = 4; });
    small.begin();
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QCOMPARE(run.game.frame().battlers.size(), 2);
    QCOMPARE(run.game.frame().battlers.at(0).name, QStringLiteral("Slime A"));
    QVERIFY(run.finish());
    QCOMPARE(run.results, QVector<int>({int(BattleOutcome::kWon)}));
    QCOMPARE(run.game.state().gold, 6);
    // 24 points: level 3 begins with 18, level 4 with 36.
    QCOMPARE(run.game.state().knownActor(1)->level, 3);
}

void tst_BattleScene::aBattleThatIsLostSaysSo()
{
    SlimeGame small;
    SlimeGame::change(&small.data->enemies, 1, [](EnemyEntry *slime) {
        slime->hp = 999;
        slime->attack = 500;
    });
    small.begin();
    BattleRun run(small);
    QVERIFY(run.finish());
    QCOMPARE(run.results, QVector<int>({int(BattleOutcome::kLost)}));
    QCOMPARE(run.game.state().gold, 0);
}

void tst_BattleScene::fleeingEndsIt()
{
    SlimeGame small;
    small.begin();
    BattleRun run(small);
    for (int turn = 0; turn < 3 && run.results.isEmpty(); ++turn) {
        QVERIFY(run.hurry("commands"));
        QVERIFY(run.choose(QStringLiteral("Flee")));
        for (int tick = 0; tick < 2000 && run.results.isEmpty() && run.role() != QLatin1String("commands");
             ++tick) {
            run.game.tick();
        }
    }
    QCOMPARE(run.results, QVector<int>({int(BattleOutcome::kFled)}));
}

void tst_BattleScene::whatCannotBeChosenSaysWhy()
{
    SlimeGame small;
    small.begin();
    BattleRun run(small, false);
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.pointAt(QStringLiteral("Flee")));
    QVERIFY(!run.isEnabled(run.list()->current));
    QCOMPARE(run.help(), QStringLiteral("There is no way out of this battle."));
    run.act();
    QCOMPARE(run.role(), QStringLiteral("commands"));
    QVERIFY(run.pointAt(QStringLiteral("Items")));
    QCOMPARE(run.help(), QStringLiteral("The bag is empty."));
}

void tst_BattleScene::cancellingLeadsBackToTheOneBefore()
{
    SlimeGame small;
    small.begin();
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QCOMPARE(run.list()->title, QStringLiteral("Mila"));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    QCOMPARE(run.list()->title, QStringLiteral("Toma"));
    run.cancel();
    QCOMPARE(run.list()->title, QStringLiteral("Mila"));
    QVERIFY(run.choose(QStringLiteral("Attack")));
    QCOMPARE(run.role(), QStringLiteral("enemies"));
    QVERIFY(run.game.frame().battlers.at(0).isSelected);
    run.cancel();
    QCOMPARE(run.role(), QStringLiteral("commands"));
}

void tst_BattleScene::aSkillIsChosenWithItsTarget()
{
    SlimeGame small;
    small.begin();
    small.actor(1).learn(SlimeGame::kHeal);
    small.actor(1).learn(SlimeGame::kShield);
    small.actor(2).hp = 15;
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.choose(QStringLiteral("Skills")));
    QVERIFY(run.choose(QStringLiteral("Heal")));
    QCOMPARE(run.role(), QStringLiteral("party"));
    QVERIFY(run.choose(QStringLiteral("Toma")));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.game.state().knownActor(2)->hp >= 31); // 15 + 20, less 4 at most
    QCOMPARE(run.game.state().knownActor(1)->mp, 6);
}

void tst_BattleScene::anAnimationIsSeenOverThoseOfTheParty()
{
    SlimeGame small;
    AnimationEntry spark;
    spark.id = 3;
    spark.frames = 20;
    small.data->animations.insert(spark);
    SlimeGame::change(&small.data->skills, SlimeGame::kHeal, [](SkillEntry *heal) { heal->animation = 3; });
    small.begin();
    small.actor(1).learn(SlimeGame::kHeal);
    small.actor(1).hp = 5;
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.choose(QStringLiteral("Skills")));
    QVERIFY(run.choose(QStringLiteral("Heal")));
    QVERIFY(run.choose(QStringLiteral("Mila")));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    QVector<int> pictures;
    for (int tick = 0; tick < 600; ++tick) {
        run.game.tick();
        const Frame &frame = run.game.frame();
        for (const FrameAnimation &shown : frame.animations) {
            QCOMPARE(shown.animation, 3);
            // On her line, the first one.
            const QRect party = frame.panel("status")->rect;
            QVERIFY(party.contains(shown.around.center()));
            QVERIFY(shown.around.center().y() < party.top() + 36);
            if (!pictures.contains(shown.animationFrame)) {
                pictures.append(shown.animationFrame);
            }
        }
    }
    // All of it, though it takes longer than one reads the line.
    QCOMPARE(pictures.size(), 20);
    QCOMPARE(pictures.constLast(), 19);
}

void tst_BattleScene::anAnimationIsSeenOnceForEachDeed()
{
    SlimeGame small;
    AnimationEntry spark;
    spark.id = 3;
    spark.frames = 2;
    small.data->animations.insert(spark);
    SlimeGame::change(&small.data->skills, SlimeGame::kSpores, [](SkillEntry *spores) {
        spores->animation = 3;
        spores->effects.prepend({QStringLiteral("hp"), -2});
    });
    SlimeGame::change(&small.data->classes, 1, [](ClassEntry *traveler) {
        traveler->learnings = {{1, SlimeGame::kSpores}};
    });
    small.begin();
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.choose(QStringLiteral("Skills")));
    QVERIFY(run.choose(QStringLiteral("Spores")));
    QVERIFY(run.choose(QStringLiteral("Slime")));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    int begun = 0;
    bool wasSeen = false;
    for (int tick = 0; tick < 600; ++tick) {
        run.game.tick();
        const FrameBattler slime = run.game.frame().battlers.value(0);
        const bool isSeen = slime.animation == 3 && slime.animationFrame == 0;
        begun += isSeen && !wasSeen ? 1 : 0;
        wasSeen = isSeen;
    }
    QCOMPARE(begun, 1);
}

void tst_BattleScene::anAnimationOverTheScreenIsSeenOnceForAllTargets_data()
{
    QTest::addColumn<bool>("isOnScreen");
    QTest::addColumn<int>("times");
    QTest::newRow("over the whole screen") << true << 1;
    QTest::newRow("over each of them") << false << 2;
}

void tst_BattleScene::anAnimationOverTheScreenIsSeenOnceForAllTargets()
{
    QFETCH(bool, isOnScreen);
    QFETCH(int, times);
    SlimeGame small;
    AnimationEntry quake;
    quake.id = 3;
    quake.frames = 2;
    quake.isOnScreen = isOnScreen;
    small.data->animations.insert(quake);
    small.setTroop(2);
    SlimeGame::change(&small.data->skills, SlimeGame::kQuake,
                      [](SkillEntry *skill) { skill->animation = 3; });
    SlimeGame::change(&small.data->classes, 1, [](ClassEntry *traveler) {
        traveler->learnings = {{1, SlimeGame::kQuake}};
    });
    small.begin();
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.choose(QStringLiteral("Skills")));
    QVERIFY(run.choose(QStringLiteral("Quake")));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    int begun = 0;
    int wasOver = -1;
    for (int tick = 0; tick < 600; ++tick) {
        run.game.tick();
        const QVector<FrameBattler> battlers = run.game.frame().battlers;
        int isOver = -1;
        for (int place = 0; place < battlers.size(); ++place) {
            isOver = battlers.at(place).animation == 3 ? place : isOver;
        }
        begun += isOver >= 0 && isOver != wasOver ? 1 : 0;
        wasOver = isOver;
    }
    QCOMPARE(begun, times);
}

void tst_BattleScene::aBattleEventRunsAtItsTime()
{
    SlimeGame small;
    TroopConditions fromTurnTwo;
    fromTurnTwo.turn = 2;
    // Switch 5 is turned on.
    small.setTroop(1, {page(fromTurnTwo, {{121, 0, {5, 5, 0}}})});
    SlimeGame::change(&small.data->enemies, 1, [](EnemyEntry *slime) { slime->hp = 500; });
    small.begin();
    BattleRun run(small);
    QVERIFY(run.hurry("commands"));
    QVERIFY(!run.game.state().isOn(5));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    QVERIFY(run.choose(QStringLiteral("Guard")));
    QVERIFY(run.hurry("commands"));
    QVERIFY(run.game.state().isOn(5));
}

void tst_BattleScene::anAbortedBattleCountsAsFled()
{
    SlimeGame small;
    small.setTroop(1, {page({}, {{331, 0, {0, 1, 0, 5, false}}, {337, 0, {}}})});
    small.begin();
    BattleRun run(small);
    QVERIFY(run.finish());
    QCOMPARE(run.results, QVector<int>({int(BattleOutcome::kFled)}));
    QCOMPARE(run.game.state().gold, 0);
}

void tst_BattleScene::aTroopWithoutMembersEndsAtOnceAndIsTold()
{
    SlimeGame small;
    small.setTroop(0);
    small.begin();
    BattleRun run(small);
    QVERIFY(run.finish(50));
    QCOMPARE(run.results, QVector<int>({int(BattleOutcome::kWon)}));
    const QVector<Problem> problems = run.game.takeProblems();
    QVERIFY(!problems.isEmpty());
    QVERIFY2(problems.constLast().text.contains(QStringLiteral("no members")),
             qPrintable(problems.constLast().text));
}

void tst_BattleScene::noTickDoesMoreThanOneDeed()
{
    SlimeGame small;
    SlimeGame::change(&small.data->enemies, 1, [](EnemyEntry *slime) { slime->hp = 9999; });
    // Nobody is asked: a battle that goes on by itself for ever.
    SlimeGame::change(&small.data->actors, 1, [](ActorEntry *mila) { mila->actsAlone = true; });
    SlimeGame::change(&small.data->actors, 2, [](ActorEntry *toma) { toma->actsAlone = true; });
    small.begin();
    BattleRun run(small);
    int before = 9999;
    int largest = 0;
    for (int tick = 0; tick < 600; ++tick) {
        run.game.tick();
        const int now = run.game.frame().battlers.value(0).hp;
        if (now > 0) {
            largest = qMax(largest, before - now);
            before = now;
        }
    }
    QVERIFY(before < 9999);
    QCOMPARE(largest, 1); // attack 1 against defense 1
}

void tst_BattleScene::aTrialIsLeftWhereNothingCanBeCancelled_data()
{
    QTest::addColumn<bool>("isTest");
    QTest::newRow("a trial") << true;
    QTest::newRow("a battle of the game") << false;
}

void tst_BattleScene::aTrialIsLeftWhereNothingCanBeCancelled()
{
    QFETCH(bool, isTest);
    SlimeGame small;
    small.begin();
    BattleRun run(small, true, true, isTest);
    QCOMPARE(run.game.frame().isTrialAtRest, isTest); // enemies are appearing
    QVERIFY(run.hurry("commands"));
    QCOMPARE(run.game.frame().isTrialAtRest, isTest);
    QVERIFY(run.choose(QStringLiteral("Attack")));
    QCOMPARE(run.role(), QStringLiteral("enemies"));
    QVERIFY(!run.game.frame().isTrialAtRest);
    run.cancel();
    QCOMPARE(run.game.frame().isTrialAtRest, isTest);
}

QTEST_GUILESS_MAIN(tst_BattleScene)
#include "tst_BattleScene.moc"
