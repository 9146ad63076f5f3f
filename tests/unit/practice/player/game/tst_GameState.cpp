#include "SmallGame.h"

#include <QTest>

/// What a game remembers, within its bounds, and how it is saved.
class tst_GameState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goodsAndGoldHaveBounds();
    void levelsComeAndGoWithExp();
    void whatWasForgottenStaysForgotten();
    void whoJoinsAnewBeginsAnew();
    void equipmentComesFromTheBag();
    void traitsCount();
    void aSavedGameIsTheSameGame();
    void aSavedGameOfAnotherVersionSaysSo();
    void whatIsNoSavedGameIsRefused_data();
    void whatIsNoSavedGameIsRefused();
    void theGeneratorRepeats();
};

namespace {

std::shared_ptr<const player::GameData> data()
{
    return player::GameReader::read(smallGame::files({QJsonValue()}), sample::tileNames());
}

/// A game in which something has happened.
player::GameState played(const player::GameData &data)
{
    player::GameState state = player::GameState::begin(data, 5);
    state.setSwitch(3, true);
    state.setVariable(2, -77);
    state.setSelfSwitch(1, 4, QStringLiteral("B"), true);
    state.addGold(120);
    state.addGoods(player::Goods::kItem, 1, 3);
    state.addGoods(player::Goods::kWeapon, 2, 1);
    state.join(2, data);
    state.actor(1, data)->name = QStringLiteral("Milla");
    state.actor(1, data)->changeExp(35, data);
    state.actor(1, data)->changeHp(-11, data);
    state.actor(2, data)->addState(2, data, 3);
    state.hero.cell = {4, 5};
    state.hero.direction = player::kUp;
    state.hero.speed = 3;
    state.hero.frequency = 2;
    state.hero.isThrough = true;
    state.hero.opacity = 90;
    state.timerTicks = 90;
    state.isTimerOn = true;
    state.ticks = 12345;
    state.screen.red = player::Sliding(30);
    state.screen.weather = 2;
    state.screen.weatherPower = player::Sliding(4);
    player::Picture picture;
    picture.name = QStringLiteral("lamp");
    picture.x = player::Sliding(12);
    state.screen.pictures.insert(7, picture);
    state.music.file = QStringLiteral("village");
    (void)state.random.between(1, 100);
    return state;
}

} // namespace

void tst_GameState::goodsAndGoldHaveBounds()
{
    player::GameState state;
    state.addGold(qint64(1) << 40);
    QCOMPARE(state.gold, player::GameState::kMostGold);
    state.addGold(-(qint64(1) << 40));
    QCOMPARE(state.gold, 0);
    state.addGoods(player::Goods::kItem, 1, 2000000000);
    QCOMPARE(state.count(player::Goods::kItem, 1), 99);
    state.addGoods(player::Goods::kItem, 1, -2000000000);
    QCOMPARE(state.count(player::Goods::kItem, 1), 0);
    state.setVariable(1, qint64(1) << 50);
    QCOMPARE(state.variable(1), player::GameState::kLargestVariable);
}

void tst_GameState::levelsComeAndGoWithExp()
{
    const auto entries = data();
    player::GameState state = player::GameState::begin(*entries, 1);
    player::Actor *const mila = state.actor(1, *entries);
    QCOMPARE(mila->maxHp(*entries), 40);
    mila->changeExp(17, *entries);
    QCOMPARE(mila->level, 2);
    QVERIFY(!mila->knows(2, *entries));
    mila->changeExp(1, *entries);
    QCOMPARE(mila->level, 3);
    QVERIFY(mila->knows(2, *entries));
    QCOMPARE(mila->maxHp(*entries), 56);
    mila->changeLevel(100, *entries);
    QCOMPARE(mila->level, 10);
    mila->recoverAll(*entries);
    mila->changeLevel(-9, *entries);
    QCOMPARE(mila->level, 1);
    QCOMPARE(mila->exp, 0);
    QCOMPARE(mila->hp, 40);
}

void tst_GameState::whatWasForgottenStaysForgotten()
{
    const auto entries = data();
    player::GameState state = player::GameState::begin(*entries, 1);
    player::Actor *const mila = state.actor(1, *entries);
    mila->forget(1);
    mila->changeExp(17, *entries);
    mila->changeExp(1, *entries);
    QCOMPARE(mila->level, 3);
    QCOMPARE(mila->skills, QVector<int>{2});
    mila->forget(2);
    const player::Actor loaded = player::Actor::fromJson(mila->toJson(), *entries);
    QCOMPARE(loaded.level, 3);
    QCOMPARE(loaded.skills, QVector<int>());
    // Who comes to a level once more learns what it teaches once more.
    mila->changeLevel(-1, *entries);
    mila->changeLevel(1, *entries);
    QCOMPARE(mila->skills, QVector<int>{2});
    // No level more or less is no change.
    mila->changeExp(5, *entries);
    mila->changeLevel(0, *entries);
    QCOMPARE(mila->exp, 23);
}

void tst_GameState::whoJoinsAnewBeginsAnew()
{
    const auto entries = data();
    player::GameState state = player::GameState::begin(*entries, 1);
    state.actor(1, *entries)->changeExp(35, *entries);
    state.join(1, *entries, true);
    QCOMPARE(state.party, QVector<int>{1});
    QVERIFY(state.knownActor(1) != nullptr);
    QCOMPARE(state.knownActor(1)->level, 1);
    QVERIFY(!state.isDefeated(*entries));
}

void tst_GameState::equipmentComesFromTheBag()
{
    const auto entries = data();
    player::GameState state = player::GameState::begin(*entries, 1);
    player::Actor *const mila = state.actor(1, *entries);
    QCOMPARE(mila->attack(*entries), 5);
    QVERIFY(!state.equip(mila, player::Goods::kWeapon, 2, *entries));
    state.addGoods(player::Goods::kWeapon, 2, 1);
    QVERIFY(state.equip(mila, player::Goods::kWeapon, 2, *entries));
    QCOMPARE(mila->attack(*entries), 10);
    QCOMPARE(state.count(player::Goods::kWeapon, 1), 1);
    QCOMPARE(state.count(player::Goods::kWeapon, 2), 0);
    QVERIFY(state.equip(mila, player::Goods::kWeapon, 0, *entries));
    QCOMPARE(mila->attack(*entries), 1);
    QCOMPARE(state.count(player::Goods::kWeapon, 2), 1);
}

void tst_GameState::traitsCount()
{
    auto files = smallGame::files({QJsonValue()});
    files.insert(QStringLiteral("data/Armors.json"),
                 smallGame::json(R"([null,{"id":1,"name":"Cloak","defense":2,"traits":
                     [{"hpRate":150},{"resistState":2},{"resistState":1},{"addSkill":2},{"sealSkill":1}]}])"));
    const auto entries = player::GameReader::read(files, sample::tileNames());
    player::GameState state = player::GameState::begin(*entries, 1);
    player::Actor *const mila = state.actor(1, *entries);
    QCOMPARE(mila->maxHp(*entries), 60);
    QCOMPARE(mila->usableSkills(*entries), QVector<int>{2});
    mila->addState(2, *entries);
    QVERIFY(!mila->hasState(2));
    mila->addState(1, *entries);
    QVERIFY(!mila->isKnockedOut());
    QVERIFY(state.equip(mila, player::Goods::kArmor, 0, *entries));
    QCOMPARE(mila->hp, 40);
}

void tst_GameState::aSavedGameIsTheSameGame()
{
    const auto entries = data();
    const player::GameState state = played(*entries);
    const QJsonObject json = state.toJson(*entries);
    QString error;
    QString warning;
    const auto read = player::GameState::fromJson(json, *entries, &error, &warning);
    QVERIFY2(read.has_value(), qPrintable(error));
    QCOMPARE(warning, QString());
    // What is said of it is all that there is to say.
    QCOMPARE(read->toJson(*entries), json);
    QVERIFY(read->isOn(3));
    QVERIFY(read->isSelfSwitchOn(1, 4, QStringLiteral("B")));
    QCOMPARE(read->hero.cell, QPoint(4, 5));
    QCOMPARE(read->knownActor(1)->level, 3);
    QCOMPARE(read->knownActor(1)->name, QStringLiteral("Milla"));
    QCOMPARE(read->knownActor(1)->hp, state.knownActor(1)->hp);
    QCOMPARE(read->knownActor(2)->states.value(2), 3);
    QCOMPARE(read->screen.pictures.value(7).name, QStringLiteral("lamp"));
}

void tst_GameState::aSavedGameOfAnotherVersionSaysSo()
{
    const auto entries = data();
    const QJsonObject json = played(*entries).toJson(*entries);
    auto files = smallGame::files({QJsonValue()});
    files.insert(QStringLiteral("data/Weapons.json"), QJsonArray{QJsonValue()});
    const auto later = player::GameReader::read(files, sample::tileNames());
    QString error;
    QString warning;
    const auto read = player::GameState::fromJson(json, *later, &error, &warning);
    QVERIFY(read.has_value());
    QVERIFY2(warning.contains(QStringLiteral("changed")), qPrintable(warning));
    QVERIFY(read->weapons.isEmpty());
    QCOMPARE(read->knownActor(1)->weapon, 0);
    QCOMPARE(read->gold, 120);
}

void tst_GameState::whatIsNoSavedGameIsRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("another form") << QByteArray(R"({"form":99,"map":1})");
    QTest::newRow("a map that is gone") << QByteArray(R"({"form":1,"map":77,"x":1,"y":1})");
    QTest::newRow("a cell that is gone") << QByteArray(R"({"form":1,"map":1,"x":100,"y":1})");
}

void tst_GameState::whatIsNoSavedGameIsRefused()
{
    QFETCH(QByteArray, json);
    QString error;
    QString warning;
    QVERIFY(!player::GameState::fromJson(smallGame::json(json).toObject(), *data(), &error, &warning));
    QVERIFY(!error.isEmpty());
}

void tst_GameState::theGeneratorRepeats()
{
    player::Random first(9);
    player::Random second(9);
    QSet<int> seen;
    for (int i = 0; i < 1000; ++i) {
        const int number = first.between(-2, 3);
        QCOMPARE(second.between(3, -2), number);
        seen.insert(number);
    }
    QCOMPARE(seen, (QSet<int>{-2, -1, 0, 1, 2, 3}));
}

QTEST_GUILESS_MAIN(tst_GameState)
#include "tst_GameState.moc"
