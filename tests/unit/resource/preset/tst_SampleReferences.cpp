#include "SampleEvents.h"
#include "SampleReferences.h"
#include "SampleTest.h"

/// What the sample project's files say of one another holds in each step.
class tst_SampleReferences : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void refersToWhatIsThere();
    void findsAReferenceThatLeadsNowhere_data();
    void findsAReferenceThatLeadsNowhere();
    void findsAReferenceInAListOfCommands_data();
    void findsAReferenceInAListOfCommands();
    void findsAMissingMap();
    void turnsOnEachSwitchThatAPageWaitsFor();
    void findsASwitchThatNothingTurnsOn();
    void letsNobodyWinByFleeing();
    void findsABattleWonByFleeing();
    void beginsWithMilaAloneAndLetsTheOthersJoin();
    void findsSomebodyWhoDoesNotJoin();
    void endsWhatHoldsForANumberOfTurns();
};

using sample::changed;
using sample::kFirstStep;
using sample::kLastStep;
using sample::readStep;
using sample::stepName;

namespace {

/// The place of the page's commands of the first event called @p name on the map: "events/3/pages/0/list".
QString commandsOf(const sample::Files &files, int map, const QString &name)
{
    const QJsonArray events = sample::objectsIn(sample::map(files, map), "events");
    for (int id = 1; id < events.size(); ++id) {
        if (events.at(id).toObject().value(QStringLiteral("name")).toString() == name) {
            return QStringLiteral("events/%1/pages/0/list").arg(id);
        }
    }
    return QString();
}

QJsonObject command(int code, const QJsonArray &parameters)
{
    return {{QStringLiteral("code"), code},
            {QStringLiteral("indent"), 0},
            {QStringLiteral("parameters"), parameters}};
}

/// The place of the first command with this code in the list at @p path.
QString firstCommand(const sample::Files &files, int map, const QString &path, int code)
{
    const int id = path.section(QLatin1Char('/'), 1, 1).toInt();
    const QJsonArray events = sample::objectsIn(sample::map(files, map), "events");
    const QJsonArray list = sample::objectsIn(sample::objectsIn(events.at(id), "pages").at(0), "list");
    for (int i = 0; i < list.size(); ++i) {
        if (sample::number(list.at(i), "code") == code) {
            return QStringLiteral("%1/%2").arg(path).arg(i);
        }
    }
    return QString();
}

const QString kToma = QStringLiteral("#54");
const QString kWarden = QStringLiteral("#143");
constexpr int kVillage = 1;
constexpr int kMine = 8;
constexpr int kProtected = 3;

} // namespace

void tst_SampleReferences::refersToWhatIsThere()
{
    QCOMPARE(firstFinding(sample::danglingReferences), QString());
}

void tst_SampleReferences::findsAReferenceThatLeadsNowhere_data()
{
    addChangeColumns();
    addChange("class", "Actors.json", "2/classId", 9, "Actors.json entry 2: no entry 9 in Classes");
    addChange("no class", "Actors.json", "2/classId", 0, "Actors.json entry 2: no entry 0 in Classes");
    addChange("weapon", "Actors.json", "1/equips/0", 99, "Actors.json entry 1: no entry 99 in Weapons");
    addChange("armor", "Actors.json", "1/equips/1", 99, "Actors.json entry 1: no entry 99 in Armors");
    addChange("skill of a class", "Classes.json", "1/learnings/0/skillId", 99, "no entry 99 in Skills");
    addChange("animation", "Skills.json", "1/animationId", 99, "no entry 99 in Animations");
    addChange("state of a skill", "Skills.json", "4/effects/0/addState", 99, "no entry 99 in States");
    addChange("state of an item", "Items.json", "2/effects/0/removeState", 99, "no entry 99 in States");
    addChange("state of a trait", "Enemies.json", "6/traits/0/resistState", 99, "no entry 99 in States");
    addChange("dropped item", "Enemies.json", "1/dropItems/0/itemId", 99, "no entry 99 in Items");
    addChange("action", "Enemies.json", "6/actions/1/skillId", 99, "no entry 99 in Skills");
    addChange("enemy", "Troops.json", "1/members/0/enemyId", 99, "no entry 99 in Enemies");
    addChange("enemy that a battle waits for", "Troops.json", "6/pages/0/conditions/enemyIndex", 3,
              "Troops.json entry 6: no enemy 3 in the troop");
    addChange("no enemy to wait for", "Troops.json", "6/pages/0/conditions/enemyIndex", QJsonValue(),
              "Troops.json entry 6: no enemy -1 in the troop");
    addChange("troop of a map", "Map002.json", "encounterList/0/troopId", 99, "no entry 99 in Troops");
    addChange("tile set", "Map001.json", "tilesetId", 7, "Map001.json: no entry 7 in Tilesets");
    addChange("parent", "MapInfos.json", "3/parentId", 99, "no entry 99 in MapInfos");
    addChange("party", "System.json", "partyMembers/0", 99, "System.json: no entry 99 in Actors");
    addChange("start map", "System.json", "startMapId", 99, "System.json: no map 99");
    addChange("start cell", "System.json", "startX", 24, "System.json: no cell (24, 11) in map 1");
    addChange("nameless switch", "System.json", "switches/2", QString(), "no name for switch 2");
    addChange("variable", "System.json", "variables", QJsonArray{QJsonValue()}, "no variables 1 to 1");
    addChange("event off the map", "Map001.json", "events/1/y", 16,
              "Map001.json event 1: no cell (13, 16) in map 1");
    addChange("switch of a page", "Map001.json", "events/1/pages/0/conditions/switchId", 99,
              "no name for switch 99");
    addChange("direction of a patrol", "Map001.json", "events/11/pages/0/moveRoute/list/0/code", 5,
              "Map001.json event 11: no direction 5");
    addChange("self switch of a page", "Map001.json", "events/1/pages/0/conditions/selfSwitch",
              QStringLiteral("E"), "no self switch \"E\"");
}

void tst_SampleReferences::findsAReferenceThatLeadsNowhere()
{
    QFETCH(QString, finding);
    const QString findings = sample::danglingReferences(lastWithChange()).join(QLatin1Char('\n'));
    QVERIFY2(findings.contains(finding), qPrintable(findings));
}

void tst_SampleReferences::findsAReferenceInAListOfCommands_data()
{
    QTest::addColumn<QJsonObject>("command");
    QTest::addColumn<QString>("finding");
    const QJsonValue route = QJsonObject();
    QTest::newRow("common event") << command(117, {9}) << "no entry 9 in CommonEvents";
    QTest::newRow("switches") << command(121, {6, 7, 0}) << "no name for switch 7";
    QTest::newRow("switch 0") << command(121, {0, 0, 0}) << "no name for switch 0";
    QTest::newRow("variables") << command(122, {1, 2, 0, 0, 1}) << "no variables 1 to 2";
    QTest::newRow("self switch") << command(123, {QStringLiteral("a"), 0}) << "no self switch \"a\"";
    QTest::newRow("item") << command(126, {9, 0, 0, 1}) << "no entry 9 in Items";
    QTest::newRow("actor") << command(129, {9, 0, false}) << "no entry 9 in Actors";
    QTest::newRow("map") << command(201, {0, 9, 1, 1, 1, 0}) << "no map 9";
    QTest::newRow("column") << command(201, {0, 3, 12, 1, 1, 0}) << "no cell (12, 1) in map 3";
    QTest::newRow("row") << command(201, {0, 3, 1, 9, 1, 0}) << "no cell (1, 9) in map 3";
    QTest::newRow("left of all") << command(201, {0, 3, -1, 1, 1, 0}) << "no cell (-1, 1) in map 3";
    QTest::newRow("mover") << command(205, {99, route}) << "no event 99 on the map";
    QTest::newRow("direction") << command(201, {0, 3, 1, 1, 9, 0}) << "no direction 9";
    const QJsonValue sideways =
        QJsonObject{{QStringLiteral("list"), QJsonArray{QJsonObject{{QStringLiteral("code"), 5}}}}};
    QTest::newRow("direction of a route") << command(205, {-1, sideways}) << "no direction 5";
    QTest::newRow("troop") << command(301, {0, 9, true, false}) << "no entry 9 in Troops";
    QTest::newRow("goods") << command(302, {1, 9, 0, 0, false}) << "no entry 9 in Weapons";
    QTest::newRow("further goods") << command(605, {2, 9, 0, 0}) << "no entry 9 in Armors";
    QTest::newRow("kind of goods") << command(605, {3, 1, 0, 0}) << "no goods of kind 3";
    QTest::newRow("recovered actor") << command(314, {0, 9}) << "no entry 9 in Actors";
    QTest::newRow("enemy outside of a troop")
        << command(331, {0, 0, 0, 30, false}) << "no enemy 0 in the troop";
    QTest::newRow("state") << command(333, {-1, 0, 9}) << "no entry 9 in States";
    QTest::newRow("unknown code") << command(999, {}) << "command 999 is not known here";
}

void tst_SampleReferences::findsAReferenceInAListOfCommands()
{
    QFETCH(QJsonObject, command);
    QFETCH(QString, finding);
    const sample::Files files =
        changed(m_last, sample::mapFile(kVillage), QStringLiteral("events/1/pages/0/list/0"), command);
    QCOMPARE(sample::danglingReferences(files),
             QStringList{QStringLiteral("Map001.json event 1: ") + finding});
    const sample::Files common =
        changed(m_last, QStringLiteral("CommonEvents.json"), QStringLiteral("1/list/0"), command);
    const QString findings = sample::danglingReferences(common).join(QLatin1Char('\n'));
    const bool isOfMap = finding.contains(QStringLiteral("on the map"));
    QVERIFY2(isOfMap || findings == QStringLiteral("CommonEvents.json entry 1: ") + finding,
             qPrintable(findings));
}

void tst_SampleReferences::findsAMissingMap()
{
    sample::Files files = m_last;
    files.remove(sample::mapFile(kMine));
    const QStringList findings = sample::danglingReferences(files);
    QVERIFY2(findings.contains(QStringLiteral("MapInfos.json entry 8: no map 8")),
             qPrintable(findings.join(QLatin1Char('\n'))));
    files = changed(m_last, QStringLiteral("MapInfos.json"), QStringLiteral("8"), QJsonValue());
    QVERIFY(
        sample::danglingReferences(files).contains(QStringLiteral("Map008.json: no entry 8 in MapInfos")));
}

void tst_SampleReferences::turnsOnEachSwitchThatAPageWaitsFor()
{
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        // The gate that stands ready waits for the lever, to which lesson 9 gives its switch.
        const QStringList expected = step <= 9 ? QStringList{QStringLiteral("4")} : QStringList();
        QVERIFY2(sample::unsetSwitches(readStep(step)) == expected, qPrintable(stepName(step)));
    }
}

void tst_SampleReferences::findsASwitchThatNothingTurnsOn()
{
    const QString map = sample::mapFile(kMine);
    const QString turnsOn = firstCommand(m_last, kMine, commandsOf(m_last, kMine, kWarden), 121);
    QVERIFY(!turnsOn.isEmpty());
    const sample::Files never = changed(m_last, map, turnsOn, command(0, {}));
    QCOMPARE(sample::unsetSwitches(never), QStringList{QStringLiteral("5")});
    const sample::Files off = changed(m_last, map, turnsOn + QStringLiteral("/parameters/2"), 1);
    QCOMPARE(sample::unsetSwitches(off), QStringList{QStringLiteral("5")});
}

void tst_SampleReferences::letsNobodyWinByFleeing()
{
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        QVERIFY2(sample::battlesWonByFleeing(readStep(step)).isEmpty(), qPrintable(stepName(step)));
    }
}

void tst_SampleReferences::findsABattleWonByFleeing()
{
    const QString battle = firstCommand(m_last, kMine, commandsOf(m_last, kMine, kWarden), 301);
    QVERIFY(!battle.isEmpty());
    for (const char *parameter : {"/parameters/2", "/parameters/3"}) {
        const sample::Files files =
            changed(m_last, sample::mapFile(kMine), battle + QLatin1String(parameter), true);
        QCOMPARE(sample::battlesWonByFleeing(files), QStringList{QStringLiteral("Map008.json event 3")});
    }
}

void tst_SampleReferences::beginsWithMilaAloneAndLetsTheOthersJoin()
{
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const sample::Files files = readStep(step);
        const QJsonObject system = files.value(QStringLiteral("System.json")).object();
        QVERIFY2(system.value(QStringLiteral("partyMembers")).toArray() == QJsonArray{1},
                 qPrintable(stepName(step)));
        QList<int> expected;
        expected += step >= 6 ? QList<int>{2} : QList<int>();
        expected += step >= 17 ? QList<int>{3} : QList<int>();
        QVERIFY2(sample::companions(files) == expected, qPrintable(stepName(step)));
    }
}

void tst_SampleReferences::findsSomebodyWhoDoesNotJoin()
{
    const QString list = commandsOf(m_last, kVillage, kToma);
    const QString map = sample::mapFile(kVillage);
    for (int code : {129, 123}) {
        const QString place = firstCommand(m_last, kVillage, list, code);
        QVERIFY(!place.isEmpty());
        QCOMPARE(sample::companions(changed(m_last, map, place, command(0, {}))), QList<int>{3});
    }
    const QString picture =
        QString(list).replace(QStringLiteral("pages/0/list"), QStringLiteral("pages/1/image"));
    QCOMPARE(sample::companions(changed(m_last, map, picture, QStringLiteral("toma"))), QList<int>{3});
}

void tst_SampleReferences::endsWhatHoldsForANumberOfTurns()
{
    constexpr int kEndOfTurn = 2;
    for (int step = 16; step <= kLastStep; ++step) {
        const QJsonObject state =
            sample::entries(readStep(step), QStringLiteral("States.json")).at(kProtected).toObject();
        QCOMPARE(sample::number(state, "autoRemovalTiming"), kEndOfTurn);
        QCOMPARE(sample::number(state, "minTurns"), 1);
        QCOMPARE(sample::number(state, "maxTurns"), 1);
    }
}

QTEST_GUILESS_MAIN(tst_SampleReferences)
#include "tst_SampleReferences.moc"
