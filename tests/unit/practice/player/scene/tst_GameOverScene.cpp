#include "SceneRun.h"
#include "player/scene/GameOverScene.h"

#include <QTest>

using namespace player;

class tst_GameOverScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysForTheBattleDoNotEndIt();
    void aKeyThatIsStillDownIsNoAnswer();
};

namespace {

constexpr int kSeen = 120;

bool isWaiting(const SceneRun &run)
{
    const Panel *const panel = run.game.frame().panel("gameOver");
    return panel != nullptr && panel->isWaiting;
}

QString textOf(const SceneRun &run)
{
    const Panel *const panel = run.game.frame().panel("gameOver");
    return panel != nullptr ? panel->texts().value(0) : QString();
}

} // namespace

void tst_GameOverScene::keysForTheBattleDoNotEndIt()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<GameOverScene>();
    // Somebody who hurries on, six times a second.
    for (int time = 0; time < 8; ++time) {
        run.act();
        run.wait(8);
        QVERIFY(!isWaiting(run));
        QCOMPARE(textOf(run), QString());
    }
    run.wait(kSeen);
    QVERIFY(isWaiting(run));
    QCOMPARE(textOf(run), QStringLiteral("Press Enter to return to the title."));
    run.act();
    run.wait(2);
    QCOMPARE(run.role(), QStringLiteral("title"));
}

void tst_GameOverScene::aKeyThatIsStillDownIsNoAnswer()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<GameOverScene>();
    Input held;
    held.held = {GameKey::kAct};
    for (int tick = 0; tick < kSeen; ++tick) {
        run.game.tick(held);
    }
    QVERIFY(!isWaiting(run));
    held.pressed = {GameKey::kAct};
    run.game.tick(held);
    run.wait(1);
    QVERIFY(run.game.frame().panel("gameOver") != nullptr);
    QVERIFY(isWaiting(run));
    run.act();
    run.wait(2);
    QCOMPARE(run.role(), QStringLiteral("title"));
}

QTEST_GUILESS_MAIN(tst_GameOverScene)
#include "tst_GameOverScene.moc"
