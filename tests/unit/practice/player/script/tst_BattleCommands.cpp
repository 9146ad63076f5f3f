#include "SmallGame.h"
#include "player/script/Battlefield.h"
#include "player/script/Interpreter.h"

#include <QTest>

/// The commands of battle events, as the battle gets them.
class tst_BattleCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCommandReachesTheBattle_data();
    void aCommandReachesTheBattle();
    void anEnemyThatIsNotThereIsNamed();
    void aBranchAsksTheBattle();
};

namespace {

/// Notes what it is told. There are enemies 0 to 2; number 1 is asleep.
class NotedBattle final : public player::Battlefield
{
public:
    bool changeHp(int enemy, int amount, bool mayKnockOut) override
    {
        return note(enemy, QStringLiteral("hp %1 %2 %3").arg(enemy).arg(amount).arg(int(mayKnockOut)));
    }
    bool changeMp(int enemy, int amount) override
    {
        return note(enemy, QStringLiteral("mp %1 %2").arg(enemy).arg(amount));
    }
    bool addState(int enemy, int state) override
    {
        return note(enemy, QStringLiteral("add %1 %2").arg(enemy).arg(state));
    }
    bool removeState(int enemy, int state) override
    {
        return note(enemy, QStringLiteral("remove %1 %2").arg(enemy).arg(state));
    }
    bool recover(int enemy) override { return note(enemy, QStringLiteral("recover %1").arg(enemy)); }
    bool appear(int enemy) override { return note(enemy, QStringLiteral("appear %1").arg(enemy)); }
    bool forceAction(bool isActor, int who, int skill, int target) override
    {
        return note(who,
                    QStringLiteral("force %1 %2 %3 %4").arg(int(isActor)).arg(who).arg(skill).arg(target));
    }
    void abort() override { told.append(QStringLiteral("abort")); }
    [[nodiscard]] bool hasAppeared(int enemy) const override { return enemy < 2; }
    [[nodiscard]] bool hasState(int enemy, int state) const override { return enemy == 1 && state == 2; }

    QStringList told;

private:
    bool note(int enemy, const QString &text)
    {
        told.append(text);
        return enemy < 3;
    }
};

class BattleStage final : public player::Stage
{
public:
    void say(const player::Message &) override {}
    void ask(const player::Choices &) override {}
    void askNumber(const player::NumberInput &) override {}
    void askItem(const player::ItemInput &) override {}
    void scrollText(const player::ScrollingText &) override {}
    [[nodiscard]] bool isTalking() const override { return false; }
    [[nodiscard]] int answer() const override { return 0; }
    void play(const player::Sound &) override {}
    void setMusic(const player::Sound &, int) override {}
    player::Battlefield *battlefield() override { return &battle; }

    NotedBattle battle;
};

struct Troop
{
    explicit Troop(const QByteArray &commands)
        : data(player::GameReader::read(smallGame::filesWith(commands), sample::tileNames()))
        , run(data.get(), &state, &stage,
              [this](const player::Problem &problem) { problems.append(problem); })
    {
        state.setVariable(4, 12);
        run.start(data->maps.find(1)->event(1)->pages.constFirst().list,
                  {QStringLiteral("data/Troops.json"), 0, 1, 1});
        run.tick();
    }

    std::shared_ptr<const player::GameData> data;
    player::GameState state;
    BattleStage stage;
    QVector<player::Problem> problems;
    player::Interpreter run;
};

} // namespace

void tst_BattleCommands::aCommandReachesTheBattle_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("told");
    QTest::newRow("331") << QByteArray(R"({"code":331,"indent":0,"parameters":[1,1,0,30,true]})")
                         << QStringLiteral("hp 1 -30 1");
    QTest::newRow("331 all") << QByteArray(R"({"code":331,"indent":0,"parameters":[-1,0,1,4,false]})")
                             << QStringLiteral("hp -1 12 0");
    QTest::newRow("332") << QByteArray(R"({"code":332,"indent":0,"parameters":[0,1,0,5]})")
                         << QStringLiteral("mp 0 -5");
    QTest::newRow("333 add") << QByteArray(R"({"code":333,"indent":0,"parameters":[-1,0,2]})")
                             << QStringLiteral("add -1 2");
    QTest::newRow("333 remove") << QByteArray(R"({"code":333,"indent":0,"parameters":[2,1,2]})")
                                << QStringLiteral("remove 2 2");
    QTest::newRow("334") << QByteArray(R"({"code":334,"indent":0,"parameters":[0]})")
                         << QStringLiteral("recover 0");
    QTest::newRow("335") << QByteArray(R"({"code":335,"indent":0,"parameters":[2]})")
                         << QStringLiteral("appear 2");
    QTest::newRow("336") << QByteArray(R"({"code":336,"indent":0,"parameters":[1,1,2,-2]})")
                         << QStringLiteral("force 1 1 2 -2");
    QTest::newRow("337") << QByteArray(R"({"code":337,"indent":0,"parameters":[]})")
                         << QStringLiteral("abort");
}

void tst_BattleCommands::aCommandReachesTheBattle()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, told);
    const Troop troop(command);
    QCOMPARE(troop.stage.battle.told, QStringList(told));
    QVERIFY(troop.problems.isEmpty());
    QVERIFY(!troop.run.isRunning());
}

void tst_BattleCommands::anEnemyThatIsNotThereIsNamed()
{
    const Troop troop(R"({"code":334,"indent":0,"parameters":[7]})");
    QCOMPARE(troop.problems.size(), 1);
    QCOMPARE(troop.problems.constFirst().file, QStringLiteral("data/Troops.json"));
    QVERIFY(troop.problems.constFirst().text.contains(QStringLiteral("no enemy 8")));
}

void tst_BattleCommands::aBranchAsksTheBattle()
{
    const QByteArray branches = R"({"code":111,"indent":0,"parameters":[5,1,0,0,5,2,""]},
        {"code":121,"indent":1,"parameters":[1,1,0]},{"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]},
        {"code":111,"indent":0,"parameters":[5,2,0,0,0,0,""]},
        {"code":121,"indent":1,"parameters":[2,2,0]},{"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]})";
    const Troop troop(branches);
    QVERIFY(troop.state.isOn(1));
    QVERIFY(!troop.state.isOn(2));
}

QTEST_GUILESS_MAIN(tst_BattleCommands)
#include "tst_BattleCommands.moc"
