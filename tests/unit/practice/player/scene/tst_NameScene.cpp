#include "SceneRun.h"
#include "player/scene/NameScene.h"

#include <QTest>

using namespace player;

class tst_NameScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameIsTyped();
    void aNameIsChosenLetterByLetter();
    void theNameThatIsThereIsTakenByOneKey();
    void aKeyForWhatWasBeforeTakesNoName();
    void whatIsToBeDoneNextIsPointedAt();
    void aNameHasNoMoreThanItsLetters();
    void anEmptyNameIsNotTaken();
    void whatLooksLikeOneLetterIsOne();
    void anActorWhoIsNotThereIsNoHarm();

private:
    static QString pointed(const SceneRun &run)
    {
        return run.list() != nullptr ? run.list()->rows.value(run.list()->current).text : QString();
    }
    static void type(SceneRun *run, const QString &text)
    {
        Input input;
        input.typed = text;
        run->game.tick(input);
    }
    static void eraseAll(SceneRun *run)
    {
        for (int time = 0; time < 16; ++time) {
            run->cancel();
        }
    }
    static void done(SceneRun *run) { QVERIFY(run->choose(QStringLiteral("Done"))); }
};

void tst_NameScene::aNameIsTyped()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 8);
    Scene *scene = run.game.scene();
    eraseAll(&run);
    type(&run, QStringLiteral("Lia"));
    done(&run);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("Lia"));
    QVERIFY(run.game.scene() != scene);
}

void tst_NameScene::aNameIsChosenLetterByLetter()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 8);
    eraseAll(&run);
    QVERIFY(run.choose(QStringLiteral("B")));
    QVERIFY(run.choose(QStringLiteral("o")));
    QVERIFY(run.choose(QStringLiteral("x")));
    QVERIFY(run.choose(QStringLiteral("⌫")));
    QVERIFY(run.choose(QStringLiteral("b")));
    done(&run);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("Bob"));
}

void tst_NameScene::theNameThatIsThereIsTakenByOneKey()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 8);
    Scene *scene = run.game.scene();
    run.wait(20);
    run.act();
    QVERIFY(run.game.scene() != scene);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("Mila"));
}

void tst_NameScene::aKeyForWhatWasBeforeTakesNoName()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 8);
    const Scene *const scene = run.game.scene();
    run.act();
    run.act();
    QCOMPARE(run.game.scene(), scene);
    // Who types is here already.
    type(&run, QStringLiteral("x"));
    run.act();
    QVERIFY(run.game.scene() != scene);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("Milax"));
}

void tst_NameScene::whatIsToBeDoneNextIsPointedAt()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 5);
    QCOMPARE(pointed(run), QStringLiteral("Done"));
    eraseAll(&run);
    QCOMPARE(pointed(run), QStringLiteral("A"));
    for (int letter = 0; letter < 4; ++letter) {
        run.act();
        QCOMPARE(pointed(run), QStringLiteral("A"));
    }
    // The fifth letter is the last one.
    run.act();
    QCOMPARE(pointed(run), QStringLiteral("Done"));
    run.act();
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("AAAAA"));
}

void tst_NameScene::aNameHasNoMoreThanItsLetters()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 5);
    type(&run, QStringLiteral("xyz"));
    QCOMPARE(run.help(), QStringLiteral("A name has 5 letters at most."));
    QVERIFY(!run.isEnabled(0));
    done(&run);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("Milax"));
}

void tst_NameScene::anEmptyNameIsNotTaken()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 8);
    Scene *scene = run.game.scene();
    eraseAll(&run);
    type(&run, QStringLiteral("   "));
    done(&run);
    QCOMPARE(run.game.scene(), scene);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("Mila"));
}

void tst_NameScene::whatLooksLikeOneLetterIsOne()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(1, 3);
    eraseAll(&run);
    // A letter of two code units, one with an accent of its own, and a third.
    type(&run, QStringLiteral("𠮷é明x"));
    done(&run);
    QCOMPARE(run.game.state().knownActor(1)->name, QStringLiteral("𠮷é明"));
}

void tst_NameScene::anActorWhoIsNotThereIsNoHarm()
{
    SlimeGame small;
    small.begin();
    SceneRun run(small);
    run.open<NameScene>(99, -5);
    Scene *scene = run.game.scene();
    type(&run, QStringLiteral("Q"));
    done(&run);
    QVERIFY(run.game.scene() != scene);
}

QTEST_GUILESS_MAIN(tst_NameScene)
#include "tst_NameScene.moc"
