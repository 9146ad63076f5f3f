#include "SceneRun.h"
#include "player/scene/ShopScene.h"

#include <QTest>

using namespace player;

namespace {

const QVector<ShopGoods> kGoods{{0, SlimeGame::kHerb, 8}, {0, SlimeGame::kTonic, 30}, {1, 1, 60}};

SlimeGame rich(int gold)
{
    SlimeGame small;
    GearEntry sword;
    sword.id = 1;
    sword.name = QStringLiteral("Sword");
    sword.price = 60;
    sword.attack = 6;
    small.data->weapons.insert(sword);
    small.begin();
    small.state.gold = gold;
    return small;
}

} // namespace

class tst_ShopScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goodsAreBoughtAsManyAsOneLikes();
    void nobodyBuysMoreThanTheMoneyIsFor();
    void whatIsTooDearSaysSo();
    void whatIsTooDearStillSaysWhatItIs();
    void oneListAloneHasACursorThatMoves();
    void weaponsAreComparedWithWhatIsHeld();
    void thingsAreSoldForHalfTheirPrice();
    void keyThingsAreNotBought();
    void aShopThatOnlySellsSaysSo();
    void aShopWithoutGoodsIsLeft();
};

void tst_ShopScene::goodsAreBoughtAsManyAsOneLikes()
{
    const SlimeGame small = rich(100);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Buy")));
    QVERIFY(run.choose(QStringLiteral("Herb")));
    QCOMPARE(run.role(), QStringLiteral("number"));
    run.press(GameKey::kRight);
    run.press(GameKey::kRight);
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Herb × 3")}));
    run.act();
    QCOMPARE(run.game.state().gold, 76);
    QCOMPARE(run.game.state().count(Goods::kItem, SlimeGame::kHerb), 3);
    QCOMPARE(run.role(), QStringLiteral("goods"));
}

void tst_ShopScene::nobodyBuysMoreThanTheMoneyIsFor()
{
    const SlimeGame small = rich(100);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Buy")));
    QVERIFY(run.choose(QStringLiteral("Herb")));
    for (int time = 0; time < 5; ++time) {
        run.press(GameKey::kUp);
    }
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Herb × 12")}));
    run.press(GameKey::kDown);
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Herb × 2")}));
    run.press(GameKey::kDown);
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Herb × 1")}));
    run.cancel();
    QCOMPARE(run.game.state().gold, 100);
}

void tst_ShopScene::whatIsTooDearSaysSo()
{
    const SlimeGame small = rich(20);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Buy")));
    QVERIFY(run.choose(QStringLiteral("Tonic")));
    QCOMPARE(run.role(), QStringLiteral("goods"));
    QCOMPARE(run.help(), QStringLiteral("You do not have enough money."));
}

void tst_ShopScene::whatIsTooDearStillSaysWhatItIs()
{
    const SlimeGame small = rich(20);
    ItemEntry tonic = *small.data->items.find(SlimeGame::kTonic);
    tonic.description = QStringLiteral("Wakes up an ally.");
    small.data->items.insert(tonic);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Buy")));
    QVERIFY(run.pointAt(QStringLiteral("Tonic")));
    QCOMPARE(run.help(), QStringLiteral("Wakes up an ally. You do not have enough money."));
}

void tst_ShopScene::oneListAloneHasACursorThatMoves()
{
    const SlimeGame small = rich(100);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QCOMPARE(run.role(), QStringLiteral("shop"));
    QCOMPARE(run.game.frame().panel("goods")->current, -1);
    QVERIFY(run.choose(QStringLiteral("Buy")));
    QCOMPARE(run.game.frame().panel("goods")->current, 0);
}

void tst_ShopScene::weaponsAreComparedWithWhatIsHeld()
{
    const SlimeGame small = rich(100);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Buy")));
    QVERIFY(run.pointAt(QStringLiteral("Sword")));
    const Panel *compare = run.game.frame().panel("compare");
    QVERIFY(compare != nullptr);
    QCOMPARE(compare->lines.size(), 3);
    QCOMPARE(compare->lines.at(1).text(), QStringLiteral("Mila  Attack 1 → 7"));
}

void tst_ShopScene::thingsAreSoldForHalfTheirPrice()
{
    SlimeGame small = rich(0);
    small.state.addGoods(Goods::kItem, SlimeGame::kTonic, 2);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Sell")));
    QVERIFY(run.choose(QStringLiteral("Tonic")));
    run.press(GameKey::kRight);
    run.press(GameKey::kRight);
    run.act();
    QCOMPARE(run.game.state().gold, 30);
    QCOMPARE(run.game.state().count(Goods::kItem, SlimeGame::kTonic), 0);
    const Panel *const bag = run.game.frame().panel("bag");
    QVERIFY(bag->rows.isEmpty());
    // Once is enough.
    QCOMPARE(bag->texts(), QStringList(QStringLiteral("The bag is empty.")));
    QCOMPARE(run.help(), QString());
}

void tst_ShopScene::keyThingsAreNotBought()
{
    SlimeGame small = rich(0);
    small.state.addGoods(Goods::kItem, SlimeGame::kStone, 1);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, false);
    QVERIFY(run.choose(QStringLiteral("Sell")));
    QVERIFY(run.choose(QStringLiteral("Stone")));
    QCOMPARE(run.role(), QStringLiteral("bag"));
    QCOMPARE(run.help(), QStringLiteral("The shop does not buy this."));
}

void tst_ShopScene::aShopThatOnlySellsSaysSo()
{
    const SlimeGame small = rich(0);
    SceneRun run(small);
    run.open<ShopScene>(kGoods, true);
    QVERIFY(run.choose(QStringLiteral("Sell")));
    QCOMPARE(run.role(), QStringLiteral("shop"));
    QCOMPARE(run.help(), QStringLiteral("This shop only sells."));
}

void tst_ShopScene::aShopWithoutGoodsIsLeft()
{
    const SlimeGame small = rich(10);
    SceneRun run(small);
    run.open<ShopScene>(QVector<ShopGoods>(), false);
    Scene *shop = run.game.scene();
    QVERIFY(run.choose(QStringLiteral("Buy")));
    run.act();
    run.cancel();
    QVERIFY(run.choose(QStringLiteral("Leave")));
    QVERIFY(run.game.scene() != shop);
}

QTEST_GUILESS_MAIN(tst_ShopScene)
#include "tst_ShopScene.moc"
