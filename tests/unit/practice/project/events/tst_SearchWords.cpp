#include "EventsFixture.h"

/// Events are found by name, switch and variable, and shown.
class tst_SearchWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsEvents_data();
    void findsEvents();
    void findsTheVariableThatACommandTakes_data();
    void findsTheVariableThatACommandTakes();
    void showsWhatWasFound();
};

void tst_SearchWords::findsEvents_data()
{
    QTest::addColumn<int>("by");
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("by a part of the name") << 0 << QVariant(str("PI")) << QStringList{str("Pip")};
    QTest::newRow("all names") << 0 << QVariant(QString()) << QStringList{str("Pip"), str("Gate")};
    QTest::newRow("no name") << 0 << QVariant(str("Nobody")) << QStringList();
    QTest::newRow("a switch in the conditions") << 1 << QVariant(4) << QStringList{str("Gate")};
    QTest::newRow("a switch that a range turns on") << 1 << QVariant(7) << QStringList{str("Pip")};
    QTest::newRow("a switch that a route turns on") << 1 << QVariant(9) << QStringList{str("Gate")};
    QTest::newRow("a switch of nobody") << 1 << QVariant(1) << QStringList();
    QTest::newRow("a variable") << 2 << QVariant(3) << QStringList{str("Pip")};
    QTest::newRow("a variable in a branch") << 2 << QVariant(4) << QStringList{str("Gate")};
    QTest::newRow("a branch that asks a switch of that number") << 2 << QVariant(5) << QStringList();
}

void tst_SearchWords::findsEvents()
{
    QFETCH(int, by);
    QFETCH(QVariant, wanted);
    QFETCH(QStringList, found);
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.setField("data/Map{maps}/events/{events}/name", str("Pip"));
    room.setField(kList, QJsonDocument::fromJson(R"([{"code": 121, "indent": 0, "parameters": [6, 8, 0]},
        {"code": 122, "indent": 0, "parameters": [3, 3, 1, 0, 1]},
        {"code": 0, "indent": 0, "parameters": []}])")
                             .array()
                             .toVariantList());
    makeEvent(room, {2, 3});
    room.setField("data/Map{maps}/events/{events}/name", str("Gate"));
    room.setField("data/Map{maps}/events/{events}/pages/{eventPages}/conditions/switchId", 4);
    room.setField(kList, QJsonDocument::fromJson(R"([{"code": 111, "indent": 0, "parameters": [1, 4, 0]},
        {"code": 111, "indent": 0, "parameters": [0, 5, 0]},
        {"code": 205, "indent": 0, "parameters": [-1, {"list": [{"code": 17, "parameters": [9]}]}]},
        {"code": 0, "indent": 0, "parameters": []}])")
                             .array()
                             .toVariantList());
    DataLayer *window = room.project.drafts().begin();
    room.run("search.begin");
    room.setField("search/by", by);
    room.setField(by == 0 ? "search/name" : by == 1 ? "search/switchId" : "search/variableId", wanted);
    QStringList names;
    const QStringList rows = room.texts("found");
    for (const QString &row : rows) {
        names.append(row.section(str(": "), 1).section(str(" ("), 0, 0));
    }
    QCOMPARE(names, found);
    room.project.drafts().drop(window);
}

void tst_SearchWords::findsTheVariableThatACommandTakes_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("variable");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char *name, const char *command, int variable, bool isFound) {
        QTest::newRow(name) << QByteArray(command) << variable << isFound;
    };
    row("a number that is typed", R"({"code": 103, "parameters": [7, 2]})", 7, true);
    row("its digits", R"({"code": 103, "parameters": [7, 2]})", 2, false);
    row("an item that is chosen", R"({"code": 104, "parameters": [7, 0]})", 7, true);
    row("a branch that compares with it", R"({"code": 111, "parameters": [1, 2, 0, 0, 1, 7, "A"]})", 7, true);
    row("a branch that compares with a number", R"({"code": 111, "parameters": [1, 2, 0, 0, 0, 7, "A"]})", 7,
        false);
    row("a range", R"({"code": 122, "parameters": [6, 8, 0, 0, 1]})", 7, true);
    row("a range, the last one first", R"({"code": 122, "parameters": [8, 6, 0, 0, 1]})", 7, true);
    row("a range without it", R"({"code": 122, "parameters": [8, 9, 0, 0, 1]})", 7, false);
    row("what is added", R"({"code": 122, "parameters": [2, 2, 1, 1, 7]})", 7, true);
    row("a number that is added", R"({"code": 122, "parameters": [2, 2, 1, 0, 7]})", 7, false);
    row("gold", R"({"code": 125, "parameters": [0, 1, 7]})", 7, true);
    row("so much gold", R"({"code": 125, "parameters": [0, 0, 7]})", 7, false);
    row("items", R"({"code": 126, "parameters": [1, 0, 1, 7]})", 7, true);
    row("a place", R"({"code": 201, "parameters": [1, 2, 3, 7, 0, 0]})", 7, true);
    row("another place", R"({"code": 201, "parameters": [0, 2, 3, 7, 0, 0]})", 7, false);
    row("where a picture is", R"({"code": 231, "parameters": [1, "moon", 0, 1, 2, 7, 100, 100, 255, 0]})", 7,
        true);
    row("whose HP", R"({"code": 311, "parameters": [1, 7, 0, 0, 1, false]})", 7, true);
    row("how many HP", R"({"code": 311, "parameters": [0, 1, 0, 1, 7, false]})", 7, true);
    row("a text", R"({"code": 401, "parameters": ["You have \\V[7] left."]})", 7, true);
    row("a text with another one", R"({"code": 401, "parameters": ["You have \\v[77] left."]})", 7, false);
}

void tst_SearchWords::findsTheVariableThatACommandTakes()
{
    QFETCH(QByteArray, command);
    QFETCH(int, variable);
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    const QJsonObject taking = QJsonDocument::fromJson(command).object();
    QVERIFY(!taking.isEmpty());
    room.setField(kList, QJsonArray({taking}).toVariantList());
    DataLayer *window = room.project.drafts().begin();
    room.run("search.begin");
    room.setField("search/by", 2);
    room.setField("search/variableId", variable);
    QTEST(!room.texts("found").isEmpty(), "isFound");
    room.project.drafts().drop(window);
}

void tst_SearchWords::showsWhatWasFound()
{
    ProjectRoom room;
    begin(room, {1, 1});
    room.choose("maps", 1);
    makeEvent(room, {5, 2});
    room.choose("maps", 0);
    DataLayer *window = room.project.drafts().begin();
    room.run("search.begin");
    QCOMPARE(room.texts("found").size(), 1);
    room.run("search.show");
    room.project.drafts().drop(window);
    QCOMPARE(room.project.board().number(), 2);
    QCOMPARE(room.project.board().cursor(), QPoint(5, 2));
    QVERIFY(room.project.tools().isEventMode());
}

QTEST_GUILESS_MAIN(tst_SearchWords)
#include "tst_SearchWords.moc"
