#include "SlimeGame.h"
#include "SmallGame.h"
#include "player/battle/Battle.h"
#include "player/scene/BattleOrders.h"
#include "player/script/Interpreter.h"

#include <QTest>

using namespace player;

namespace {

/// A battle without a picture: what an event of the troop asks for is done at once.
class BattleStage final : public Stage
{
public:
    explicit BattleStage(Battlefield *field)
        : m_field(field)
    {
    }

    void say(const Message &) override {}
    void ask(const Choices &) override {}
    void askNumber(const NumberInput &) override {}
    void askItem(const ItemInput &) override {}
    void scrollText(const ScrollingText &) override {}
    [[nodiscard]] bool isTalking() const override { return false; }
    [[nodiscard]] int answer() const override { return 0; }
    void play(const Sound &) override {}
    void setMusic(const Sound &, int) override {}
    Battlefield *battlefield() override { return m_field; }

private:
    Battlefield *m_field;
};

SlimeGame twoSlimesAndOneLater()
{
    SlimeGame small;
    small.setTroop(3);
    SlimeGame::change(&small.data->troops, 1, [](TroopEntry *troop) { troop->members[2].isHidden = true; });
    small.begin();
    return small;
}

struct Fight
{
    SlimeGame small = twoSlimesAndOneLater();
    Battle battle{*small.data, &small.state, 1, true};
    BattleOrders orders{&battle, small.data.get(), &small.state.random};
    BattleStage stage{&orders};
    QVector<Problem> problems;
    Interpreter run{small.data.get(), &small.state, &stage, [this](const Problem &problem) {
                        problems.append(problem);
                    }};

    /// Runs commands, as JSON without the brackets around them.
    void order(const QByteArray &commands)
    {
        run.start(commandsFromJson(smallGame::json("[" + commands + "]")), {});
        run.tick();
    }

    /// HP, MP and states of each enemy.
    QString enemies()
    {
        QStringList all;
        const QVector<Fighter> troop = battle.fighters().troop();
        for (const Fighter &fighter : troop) {
            const Enemy *const enemy = battle.fighters().enemy(fighter);
            QStringList words{QString::number(enemy->hp), QString::number(enemy->mp)};
            const QList<int> states = enemy->states.keys();
            for (const int state : states) {
                words.append(QStringLiteral("state %1").arg(state));
            }
            all.append(enemy->hasAppeared ? words.join(QLatin1Char(' ')) : QStringLiteral("later"));
        }
        return all.join(QStringLiteral(", "));
    }
};

} // namespace

/// What battle commands do to a battle that is on.
class tst_BattleOrders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCommandDoesWhatItSays_data();
    void aCommandDoesWhatItSays();
    void whoIsNotThereYetIsNamed();
    void aForcedActionFindsItsTarget_data();
    void aForcedActionFindsItsTarget();
    void whoCannotBeForcedIsNamed_data();
    void whoCannotBeForcedIsNamed();
    void whoHasFallenIsNotForced();
    void anAbortedBattleIsOver();
};

void tst_BattleOrders::aCommandDoesWhatItSays_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QString>("enemies");
    const auto add = [](const char *name, const char *commands, const char *enemies) {
        QTest::newRow(name) << QByteArray(commands) << QString::fromLatin1(enemies);
    };
    const char *const fall = R"({"code":331,"indent":0,"parameters":[0,1,0,99,true]},)";
    const auto afterFall = [&](const char *name, const char *command, const char *enemies) {
        add(name, QByteArray(fall).append(command).constData(), enemies);
    };
    add("331 HP of one", R"({"code":331,"indent":0,"parameters":[1,1,0,6,true]})", "15 100, 9 100, later");
    add("331 HP of all", R"({"code":331,"indent":0,"parameters":[-1,1,0,6,true]})", "9 100, 9 100, later");
    add("331 nobody falls", R"({"code":331,"indent":0,"parameters":[-1,1,0,99,false]})",
        "1 100, 1 100, later");
    add("331 one may fall", R"({"code":331,"indent":0,"parameters":[0,1,0,99,true]})",
        "0 100 state 1, 15 100, later");
    afterFall("331 who has fallen stays so", R"({"code":331,"indent":0,"parameters":[0,0,0,9,true]})",
              "0 100 state 1, 15 100, later");
    add("332 MP", R"({"code":332,"indent":0,"parameters":[0,1,0,30]})", "15 70, 15 100, later");
    add("333 a state", R"({"code":333,"indent":0,"parameters":[-1,0,2]})",
        "15 100 state 2, 15 100 state 2, later");
    add("333 a state is gone",
        R"({"code":333,"indent":0,"parameters":[-1,0,2]},{"code":333,"indent":0,"parameters":[1,1,2]})",
        "15 100 state 2, 15 100, later");
    afterFall("333 who has fallen stands up", R"({"code":333,"indent":0,"parameters":[0,1,1]})",
              "1 100, 15 100, later");
    afterFall("334 recovery", R"({"code":334,"indent":0,"parameters":[0]})", "15 100, 15 100, later");
    add("335 an enemy appears", R"({"code":335,"indent":0,"parameters":[2]})", "15 100, 15 100, 15 100");
}

void tst_BattleOrders::aCommandDoesWhatItSays()
{
    QFETCH(QByteArray, commands);
    QFETCH(QString, enemies);
    Fight fight;
    QCOMPARE(fight.enemies(), QStringLiteral("15 100, 15 100, later"));
    fight.order(commands);
    QCOMPARE(fight.enemies(), enemies);
    QVERIFY(fight.problems.isEmpty());
}

void tst_BattleOrders::whoIsNotThereYetIsNamed()
{
    Fight fight;
    fight.order(R"({"code":331,"indent":0,"parameters":[2,1,0,6,true]})");
    QCOMPARE(fight.problems.size(), 1);
    QVERIFY(fight.problems.constFirst().text.contains(QStringLiteral("no enemy 3")));
    // Whoever has not appeared is nobody to be beaten.
    fight.order(R"({"code":331,"indent":0,"parameters":[-1,1,0,99,true]})");
    QVERIFY(fight.battle.result() == Battle::Result::kWon);
}

void tst_BattleOrders::aForcedActionFindsItsTarget_data()
{
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<bool>("isEnemy");
    QTest::addColumn<int>("place");
    // Spark is for an enemy of who uses it, and takes 10 HP.
    QTest::newRow("an enemy against the second of the party") << QByteArray("0,1,3,1") << false << 1;
    QTest::newRow("an actor against the second enemy") << QByteArray("1,1,3,1") << true << 1;
    QTest::newRow("the last target") << QByteArray("1,1,3,-2") << true << 0;
}

void tst_BattleOrders::aForcedActionFindsItsTarget()
{
    QFETCH(QByteArray, parameters);
    QFETCH(bool, isEnemy);
    QFETCH(int, place);
    Fight fight;
    // Toma aims at the first enemy, whom that leaves standing.
    fight.battle.beginTurn();
    QVERIFY(fight.battle.force({Deed::Kind::kSkill, {false, 1}, SlimeGame::kSpores, {true, 0}}));
    QVERIFY(!fight.battle.next().isEmpty());
    const Fighter target{isEnemy, place};
    const int before = fight.battle.fighters().hp(target);
    fight.order(R"({"code":336,"indent":0,"parameters":[)" + parameters + "]}");
    QVERIFY(fight.problems.isEmpty());
    QVERIFY(fight.battle.hasForced());
    QVERIFY(!fight.battle.next().isEmpty());
    QCOMPARE(fight.battle.fighters().hp(target), before - 10);
    QVERIFY(!fight.battle.hasForced());
}

void tst_BattleOrders::whoCannotBeForcedIsNamed_data()
{
    QTest::addColumn<QByteArray>("parameters");
    QTest::newRow("an enemy that there is not") << QByteArray("0,9,3,0");
    QTest::newRow("an actor who is elsewhere") << QByteArray("1,9,3,0");
    QTest::newRow("a skill that there is not") << QByteArray("0,0,77,0");
    QTest::newRow("an enemy that appears later") << QByteArray("0,2,3,0");
}

void tst_BattleOrders::whoCannotBeForcedIsNamed()
{
    QFETCH(QByteArray, parameters);
    Fight fight;
    fight.order(R"({"code":336,"indent":0,"parameters":[)" + parameters + "]}");
    QVERIFY(!fight.battle.hasForced());
    QCOMPARE(fight.problems.size(), 1);
}

void tst_BattleOrders::whoHasFallenIsNotForced()
{
    Fight fight;
    fight.order(R"({"code":331,"indent":0,"parameters":[0,1,0,99,true]})");
    QVERIFY(fight.problems.isEmpty());
    fight.order(R"({"code":336,"indent":0,"parameters":[0,0,3,0]})");
    QVERIFY(!fight.battle.hasForced());
    QCOMPARE(fight.problems.size(), 1);
    // The last blow may be what the page waited for.
    fight.order(R"({"code":331,"indent":0,"parameters":[-1,1,0,99,true]})");
    QVERIFY(fight.battle.result() == Battle::Result::kWon);
    fight.order(R"({"code":336,"indent":0,"parameters":[0,0,3,0]})");
    QVERIFY(!fight.battle.hasForced());
    QCOMPARE(fight.problems.size(), 1);
}

void tst_BattleOrders::anAbortedBattleIsOver()
{
    Fight fight;
    fight.order(R"({"code":337,"indent":0,"parameters":[]})");
    QVERIFY(fight.battle.result() == Battle::Result::kAborted);
}

QTEST_GUILESS_MAIN(tst_BattleOrders)
#include "tst_BattleOrders.moc"
