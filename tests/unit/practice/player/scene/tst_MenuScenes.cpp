#include "SceneRun.h"
#include "player/scene/MenuScene.h"

#include <QTest>

using namespace player;

namespace {

struct MenuRun : SceneRun
{
    explicit MenuRun(const SlimeGame &small)
        : SceneRun(small)
    {
        open<MenuScene>();
    }
};

} // namespace

class tst_MenuScenes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anItemIsUsedOnSomebody();
    void anItemThatWouldDoNothingIsKept();
    void whatCannotBeUsedSaysWhy();
    void gearInTheBagTellsWhatItIsAndWhereItIsPutOn();
    void aSkillCostsItsMp();
    void equipmentShowsWhatWouldChangeAndIsPutOn();
    void theStatusTellsFiguresAndTurnsToTheOthers();
    void withoutAPlaceToSaveThatIsSaid();
    void anItemWithACommonEventClosesTheMenu();
    void anEmptyBagSaysSoOnce();
    void theWayToTheTitleAsksFirst();
    void anEmptyPartyIsNoHarm();
};

void tst_MenuScenes::anItemIsUsedOnSomebody()
{
    SlimeGame small;
    small.begin();
    small.state.addGoods(Goods::kItem, SlimeGame::kHerb, 2);
    small.actor(2).hp = 5;
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Items")));
    run.wait(1);
    QVERIFY(run.choose(QStringLiteral("Herb")));
    QCOMPARE(run.role(), QStringLiteral("party"));
    QVERIFY(run.choose(QStringLiteral("Toma")));
    QCOMPARE(run.game.state().knownActor(2)->hp, 35);
    QCOMPARE(run.game.state().count(Goods::kItem, SlimeGame::kHerb), 1);
}

void tst_MenuScenes::anItemThatWouldDoNothingIsKept()
{
    SlimeGame small;
    small.begin();
    small.state.addGoods(Goods::kItem, SlimeGame::kHerb, 1);
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Items")));
    run.wait(1);
    QVERIFY(run.choose(QStringLiteral("Herb")));
    QVERIFY(run.choose(QStringLiteral("Mila")));
    QCOMPARE(run.help(), QStringLiteral("It would do nothing."));
    QCOMPARE(run.game.state().count(Goods::kItem, SlimeGame::kHerb), 1);
}

void tst_MenuScenes::whatCannotBeUsedSaysWhy()
{
    SlimeGame small;
    small.begin();
    small.state.addGoods(Goods::kItem, SlimeGame::kBomb, 1);
    small.state.addGoods(Goods::kItem, SlimeGame::kStone, 1);
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Items")));
    run.wait(1);
    QVERIFY(run.pointAt(QStringLiteral("Bomb")));
    QVERIFY(!run.isEnabled(run.list()->current));
    QCOMPARE(run.help(), QStringLiteral("It is of use in battle only."));
    QVERIFY(run.pointAt(QStringLiteral("Stone")));
    QCOMPARE(run.help(), QStringLiteral("It cannot be used."));
}

void tst_MenuScenes::gearInTheBagTellsWhatItIsAndWhereItIsPutOn()
{
    SlimeGame small;
    small.begin();
    GearEntry knife;
    knife.id = 90;
    knife.name = QStringLiteral("Knife");
    knife.description = QStringLiteral("Short and quick.");
    small.data->weapons.insert(knife);
    small.state.addGoods(Goods::kWeapon, knife.id, 1);
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Items")));
    run.wait(1);
    QVERIFY(run.pointAt(QStringLiteral("Knife")));
    QVERIFY(!run.isEnabled(run.list()->current));
    QCOMPARE(run.help(), QStringLiteral("Short and quick. Put it on in the menu, under Equipment."));
}

void tst_MenuScenes::aSkillCostsItsMp()
{
    SlimeGame small;
    small.begin();
    small.actor(1).learn(SlimeGame::kHeal);
    small.actor(2).hp = 5;
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Skills")));
    QVERIFY(run.choose(QStringLiteral("Mila")));
    run.wait(1);
    QVERIFY(run.choose(QStringLiteral("Heal")));
    QVERIFY(run.choose(QStringLiteral("Toma")));
    QCOMPARE(run.game.state().knownActor(2)->hp, 25);
    QCOMPARE(run.game.state().knownActor(1)->mp, 6);
}

void tst_MenuScenes::equipmentShowsWhatWouldChangeAndIsPutOn()
{
    SlimeGame small;
    GearEntry sword;
    sword.id = 1;
    sword.name = QStringLiteral("Sword");
    sword.attack = 6;
    small.data->weapons.insert(sword);
    small.begin();
    small.state.addGoods(Goods::kWeapon, 1, 1);
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Equipment")));
    QVERIFY(run.choose(QStringLiteral("Mila")));
    run.wait(1);
    QVERIFY(run.choose(QStringLiteral("Weapon")));
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Sword"), QStringLiteral("Nothing")}));
    const Panel *figures = run.game.frame().panel("figures");
    QVERIFY(figures != nullptr);
    QCOMPARE(figures->lines.at(2).text(), QStringLiteral("Attack  1 → 7"));
    QVERIFY(run.choose(QStringLiteral("Sword")));
    QCOMPARE(run.game.state().knownActor(1)->weapon, 1);
    QCOMPARE(run.game.state().count(Goods::kWeapon, 1), 0);
    QVERIFY(run.choose(QStringLiteral("Weapon")));
    QVERIFY(run.choose(QStringLiteral("Nothing")));
    QCOMPARE(run.game.state().knownActor(1)->weapon, 0);
    QCOMPARE(run.game.state().count(Goods::kWeapon, 1), 1);
}

void tst_MenuScenes::theStatusTellsFiguresAndTurnsToTheOthers()
{
    SlimeGame small;
    small.begin();
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Status")));
    QVERIFY(run.choose(QStringLiteral("Mila")));
    run.wait(1);
    const auto name = [&run] {
        return run.game.frame().panel("status")->lines.value(0).text();
    };
    QVERIFY(name().startsWith(QStringLiteral("Mila")));
    run.press(GameKey::kRight);
    QVERIFY(name().startsWith(QStringLiteral("Toma")));
    run.press(GameKey::kRight);
    QVERIFY(name().startsWith(QStringLiteral("Mila")));
    run.cancel();
    QCOMPARE(run.role(), QStringLiteral("party"));
}

void tst_MenuScenes::withoutAPlaceToSaveThatIsSaid()
{
    SlimeGame small;
    small.begin();
    MenuRun run(small);
    QVERIFY(run.pointAt(QStringLiteral("Save")));
    QVERIFY(!run.isEnabled(run.list()->current));
    QVERIFY(run.help().contains(QStringLiteral("save the project")));
}

void tst_MenuScenes::anItemWithACommonEventClosesTheMenu()
{
    SlimeGame small;
    SlimeGame::change(&small.data->items, SlimeGame::kStone, [](ItemEntry *stone) {
        stone->effects = {{QStringLiteral("commonEvent"), 7}};
    });
    small.begin();
    small.state.addGoods(Goods::kItem, SlimeGame::kStone, 1);
    MenuRun run(small);
    Scene *menu = run.game.scene();
    QVERIFY(run.choose(QStringLiteral("Items")));
    run.wait(1);
    QVERIFY(run.choose(QStringLiteral("Stone")));
    QVERIFY(run.choose(QStringLiteral("Mila")));
    run.wait(2);
    QCOMPARE(run.game.state().waitingCommonEvent, 7);
    QVERIFY(run.game.scene() != menu);
}

void tst_MenuScenes::anEmptyBagSaysSoOnce()
{
    SlimeGame small;
    small.begin();
    MenuRun run(small);
    QVERIFY(run.choose(QStringLiteral("Items")));
    run.wait(1);
    QStringList texts;
    for (const Panel &panel : run.game.frame().panels) {
        texts += panel.texts();
    }
    QCOMPARE(texts.count(QStringLiteral("The bag is empty.")), 1);
}

void tst_MenuScenes::theWayToTheTitleAsksFirst()
{
    SlimeGame small;
    small.begin();
    MenuRun run(small);
    const Scene *const menu = run.game.scene();
    QVERIFY(run.choose(QStringLiteral("To the title")));
    QCOMPARE(run.help(), QStringLiteral("Leave this game? What is not saved is lost."));
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Yes"), QStringLiteral("No")}));
    // The same key once more changes nothing.
    run.act();
    QCOMPARE(run.game.scene(), menu);
    QCOMPARE(run.role(), QStringLiteral("menu"));
    run.act();
    run.cancel();
    QCOMPARE(run.game.scene(), menu);
    QCOMPARE(run.role(), QStringLiteral("menu"));
    run.act();
    QVERIFY(run.choose(QStringLiteral("Yes")));
    run.wait(2);
    QCOMPARE(run.role(), QStringLiteral("title"));
}

void tst_MenuScenes::anEmptyPartyIsNoHarm()
{
    SlimeGame small;
    small.data->system.party.clear();
    small.begin();
    MenuRun run(small);
    QVERIFY(run.pointAt(QStringLiteral("Skills")));
    QVERIFY(!run.isEnabled(run.list()->current));
    QCOMPARE(run.help(), QStringLiteral("There is nobody in the party."));
}

QTEST_GUILESS_MAIN(tst_MenuScenes)
#include "tst_MenuScenes.moc"
