#include "EventsFixture.h"
#include "project/MapTree.h"
#include "project/events/QuickEvents.h"

/// What windows do with the events of the map on show, by the words of their descriptions.
class tst_EventWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewEventIsDroppedWithItsDraft();
    void aNewEventStandsUnderTheCursor();
    void theEventUnderTheCursorIsEdited();
    void copiesPastesAndDeletes();
    void pastesOnAFreeCellAlone();
    void pagesComeAndGo();
    void theLastPageStays();
    void movingIsOneStep();
    void aSmallerMapTakesItsEventsIn();
    void eachEventBeginsWithTheFirstCommand();
    void aCommandIsInsertedByItsForm();
    void aCommandIsChangedByItsForm();
    void aDroppedFormChangesNothing();
    void formsAreNeverSaved();
    void unknownCommandsAreShownAndKept();
    void aPlaceIsChosenForSeveralFields();
    void aRouteIsWrittenStepByStep();
    void theRouteOfThePlayerBeginsWhereItIs();
    void quickEvents_data();
    void quickEvents();

private:
    static QJsonArray events(ProjectRoom &room)
    {
        return room.layer().value(MapTree::fileOf(1), str("/events")).toArray();
    }
};

void tst_EventWords::aNewEventIsDroppedWithItsDraft()
{
    ProjectRoom room;
    begin(room, {3, 4});
    DataLayer *draft = room.project.drafts().begin();
    room.run("event.edit");
    QCOMPARE(room.field("data/Map{maps}/events/{events}/name").toString(), str("Event 1"));
    room.project.drafts().drop(draft);
    QCOMPARE(events(room).size(), 1);
    QVERIFY(!room.project.isModified());
}

void tst_EventWords::aNewEventStandsUnderTheCursor()
{
    ProjectRoom room;
    begin(room, {3, 4});
    QCOMPARE(room.field("event.isThere").toBool(), false);
    makeEvent(room, {3, 4});
    const QJsonObject event = events(room).at(1).toObject();
    QCOMPARE(event.value(str("x")), QJsonValue(3));
    QCOMPARE(event.value(str("y")), QJsonValue(4));
    QCOMPARE(event.value(str("pages")).toArray().size(), 1);
    QCOMPARE(room.field("event.isThere").toBool(), true);
    QCOMPARE(room.project.files().history().count(), 1);
    room.run("edit.undo");
    QCOMPARE(events(room).size(), 1);
}

void tst_EventWords::theEventUnderTheCursorIsEdited()
{
    ProjectRoom room;
    begin(room, {3, 4});
    makeEvent(room, {3, 4});
    makeEvent(room, {5, 5});
    room.project.board().setCursor({3, 4});
    DataLayer *draft = room.project.drafts().begin();
    room.run("event.edit");
    room.setField("data/Map{maps}/events/{events}/name", str("Pip"));
    room.setField("data/Map{maps}/events/{events}/pages/{eventPages}/trigger", 3);
    room.run("draft.accept");
    room.project.drafts().drop(draft);
    QCOMPARE(events(room).size(), 3);
    QCOMPARE(events(room).at(1)[QLatin1String("name")], QJsonValue(str("Pip")));
    QCOMPARE(events(room).at(1)[QLatin1String("pages")][0][QLatin1String("trigger")], QJsonValue(3));
}

void tst_EventWords::copiesPastesAndDeletes()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.run("event.copy");
    room.project.board().setCursor({7, 2});
    room.run("event.paste");
    QCOMPARE(events(room).at(2)[QLatin1String("x")], QJsonValue(7));
    QCOMPARE(events(room).at(2)[QLatin1String("id")], QJsonValue(2));
    QCOMPARE(events(room).at(2)[QLatin1String("pages")], events(room).at(1)[QLatin1String("pages")]);
    room.run("event.remove");
    QCOMPARE(events(room).size(), 2);
    room.run("edit.undo");
    QCOMPARE(events(room).size(), 3);
}

void tst_EventWords::pastesOnAFreeCellAlone()
{
    ProjectRoom room;
    begin(room, {1, 1});
    const auto can = [&room](const char *command) {
        return room.project.commands().canRun(str(command), room.layer());
    };
    QVERIFY(!can("event.copy"));
    QVERIFY(!can("event.remove"));
    QVERIFY(!can("event.paste"));
    makeEvent(room, {1, 1});
    room.run("event.copy");
    QVERIFY(!can("event.paste"));
    QVERIFY(can("event.remove"));
    room.project.board().setCursor({2, 1});
    QVERIFY(can("event.paste"));
}

void tst_EventWords::pagesComeAndGo()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.setField("data/Map{maps}/events/{events}/pages/{eventPages}/image", str("chest"));
    room.run("eventPage.copy");
    room.run("eventPage.new");
    QCOMPARE(room.texts("eventPages"), (QStringList{str("1"), str("2")}));
    QCOMPARE(room.row("eventPages"), 1);
    QCOMPARE(room.field("data/Map{maps}/events/{events}/pages/{eventPages}/image").toString(), QString());
    room.run("eventPage.paste");
    QCOMPARE(room.row("eventPages"), 2);
    QCOMPARE(room.field("data/Map{maps}/events/{events}/pages/{eventPages}/image").toString(), str("chest"));
    room.run("eventPage.remove");
    QCOMPARE(room.texts("eventPages").size(), 2);
    QCOMPARE(room.row("eventPages"), 1);
}

void tst_EventWords::theLastPageStays()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    QVERIFY(!room.project.commands().canRun(str("eventPage.remove"), room.layer()));
    room.run("eventPage.remove");
    QCOMPARE(room.texts("eventPages").size(), 1);
}

void tst_EventWords::movingIsOneStep()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    makeEvent(room, {2, 1});
    MapBoard &board = room.project.board();
    QVERIFY(!board.moveEvent({1, 1}, {2, 1}));
    QVERIFY(!board.moveEvent({1, 1}, {99, 1}));
    QVERIFY(!board.moveEvent({5, 5}, {6, 6}));
    const int steps = room.project.files().history().count();
    QVERIFY(board.moveEvent({1, 1}, {8, 7}));
    QCOMPARE(room.project.files().history().count(), steps + 1);
    QCOMPARE(board.cursor(), QPoint(8, 7));
    room.run("edit.undo");
    QCOMPARE(events(room).at(1)[QLatin1String("x")], QJsonValue(1));
}

void tst_EventWords::aSmallerMapTakesItsEventsIn()
{
    ProjectRoom room;
    begin(room, {20, 3});
    makeEvent(room, {20, 3});
    DataLayer *draft = room.project.drafts().begin();
    QCOMPARE(room.field("map.pushes"), QVariant(false));
    room.setField("data/Map{maps}/width", 10);
    QCOMPARE(room.field("map.pushes"), QVariant(true));
    QCOMPARE(room.field("map.pushed"), QVariant(1));
    room.run("map.accept");
    room.project.drafts().drop(draft);
    QCOMPARE(events(room).at(1)[QLatin1String("x")], QJsonValue(9));
    QCOMPARE(events(room).at(1)[QLatin1String("y")], QJsonValue(3));
    room.run("edit.undo");
    QCOMPARE(events(room).at(1)[QLatin1String("x")], QJsonValue(20));
    QCOMPARE(room.map()->size.width(), 24);
}

void tst_EventWords::eachEventBeginsWithTheFirstCommand()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.choose("commandTab", 6);
    room.choose("commandsOfTab", 2);
    QCOMPARE(room.texts("commandsOfTab").value(2), str("Play sound"));
    room.run("event.edit");
    QCOMPARE(room.row("commandTab"), 0);
    QCOMPARE(room.row("commandsOfTab"), 0);
    QCOMPARE(room.texts("commandsOfTab").value(0), str("Show message"));
}

void tst_EventWords::aCommandIsInsertedByItsForm()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    DataLayer *event = room.project.drafts().begin();
    room.run("event.edit");
    room.run((QByteArray("commands.of ") + kList).constData());
    room.choose("commandTab", 0);
    QCOMPARE(room.texts("commandsOfTab").value(0), str("Show message"));
    DataLayer *form = room.project.drafts().begin();
    room.run("command.new");
    QCOMPARE(room.field("command.name").toString(), str("Show message"));
    room.setField("command/lines", str("Hello!\nHow are you?"));
    room.setField("command/4", str("Pip"));
    room.run("command.accept");
    room.project.drafts().drop(form);
    QCOMPARE(room.texts((QByteArray("commands ") + kList).constData()),
             (QStringList{str("Message: Pip: Hello! How are you?"), str("+")}));
    QCOMPARE(room.row((QByteArray("commands ") + kList).constData()), 1);
    QVERIFY(!room.project.isModified() || room.project.files().history().count() == 1);
    room.run("draft.accept");
    room.project.drafts().drop(event);
    const QJsonValue list = events(room).at(1)[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list.toArray().size(), 4);
    QCOMPARE(list[0][QLatin1String("parameters")], (QJsonArray{QString(), 0, 0, 2, str("Pip")}));
    QCOMPARE(list[1][QLatin1String("parameters")], QJsonArray{str("Hello!")});
    QCOMPARE(room.project.files().history().count(), 2);
}

void tst_EventWords::aCommandIsChangedByItsForm()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.setField(kList, QJsonDocument::fromJson(R"([{"code": 230, "indent": 0, "parameters": [60]},
        {"code": 0, "indent": 0, "parameters": []}])")
                             .array()
                             .toVariantList());
    DataLayer *event = room.project.drafts().begin();
    room.run((QByteArray("commands.of ") + kList).constData());
    room.choose((QByteArray("commands ") + kList).constData(), 0);
    QCOMPARE(room.field("commands.kind").toString(), str("form"));
    DataLayer *form = room.project.drafts().begin();
    room.run("command.edit");
    room.setField("command/0", 90);
    room.run("command.accept");
    room.project.drafts().drop(form);
    room.run("commands.copy");
    room.run("commands.paste");
    room.choose((QByteArray("commands ") + kList).constData(), 2);
    QCOMPARE(room.field("commands.kind").toString(), str("empty"));
    QVERIFY(!room.project.commands().canRun(str("commands.remove"), room.layer()));
    room.run("draft.accept");
    room.project.drafts().drop(event);
    QCOMPARE(room.field(kList).toList().size(), 3);
    QCOMPARE(
        events(room).at(1)[QLatin1String("pages")][0][QLatin1String("list")][1][QLatin1String("parameters")],
        QJsonArray{90});
}

void tst_EventWords::aDroppedFormChangesNothing()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    const QJsonArray before = events(room);
    DataLayer *event = room.project.drafts().begin();
    room.run((QByteArray("commands.of ") + kList).constData());
    DataLayer *form = room.project.drafts().begin();
    room.run("command.new");
    room.setField("command/lines", str("Hello!"));
    room.project.drafts().drop(form);
    QVERIFY(room.layer().file(str("command")).isUndefined());
    room.run("draft.accept");
    room.project.drafts().drop(event);
    QCOMPARE(events(room), before);
}

void tst_EventWords::formsAreNeverSaved()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    DataLayer *event = room.project.drafts().begin();
    room.run((QByteArray("commands.of ") + kList).constData());
    room.run("command.new");
    room.run("search.begin");
    room.run("draft.accept");
    room.project.drafts().drop(event);
    const QStringList names = room.project.files().names();
    for (const QString &name : names) {
        QVERIFY2(name.startsWith(str("data/")), qPrintable(name));
    }
    room.run("command.new");
    QCOMPARE(room.project.files().names(), names);
    QCOMPARE(room.project.files().history().count(), 1);
}

void tst_EventWords::unknownCommandsAreShownAndKept()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    const QVariantList list =
        QJsonDocument::fromJson(R"([{"code": 999, "indent": 0, "parameters": ["x"], "more": 1},
        {"code": 0, "indent": 0, "parameters": []}])")
            .array()
            .toVariantList();
    room.setField(kList, list);
    QCOMPARE(room.texts((QByteArray("commands ") + kList).constData()),
             (QStringList{str("(code 999)"), str("+")}));
    DataLayer *event = room.project.drafts().begin();
    room.run((QByteArray("commands.of ") + kList).constData());
    room.choose((QByteArray("commands ") + kList).constData(), 0);
    QCOMPARE(room.field("commands.kind").toString(), str("command"));
    room.run("command.edit");
    room.run("command.accept");
    room.project.drafts().drop(event);
    QCOMPARE(room.field(kList).toList(), list);
}

void tst_EventWords::aPlaceIsChosenForSeveralFields()
{
    ProjectRoom room;
    begin(room, {1, 1});
    DataLayer *quick = room.project.drafts().begin();
    room.run("quick.begin transfer");
    DataLayer *place = room.project.drafts().begin();
    room.run("place.begin quick/map quick/x quick/y quick/direction");
    QCOMPARE(room.field("place/map").toInt(), 1);
    QCOMPARE(room.field("place.hasDirection").toBool(), true);
    room.setField("place/map", 2);
    room.setField("place/x", 6);
    room.setField("place/y", 7);
    room.setField("place/direction", 4);
    room.run("place.accept");
    room.project.drafts().drop(place);
    QCOMPARE(room.field("quick/map").toInt(), 2);
    QCOMPARE(room.field("quick/x").toInt(), 6);
    QCOMPARE(room.field("quick/y").toInt(), 7);
    QCOMPARE(room.field("quick/direction").toInt(), 4);
    place = room.project.drafts().begin();
    room.run("place.begin quick/map quick/x quick/y");
    QCOMPARE(room.field("place.hasDirection").toBool(), false);
    room.project.drafts().drop(place);
    room.project.drafts().drop(quick);
    QVERIFY(!room.project.isModified());
}

void tst_EventWords::aRouteIsWrittenStepByStep()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    DataLayer *window = room.project.drafts().begin();
    room.run("route.begin data/Map{maps}/events/{events}/pages/{eventPages}/moveRoute");
    QCOMPARE(room.field("route.hasTarget").toBool(), false);
    QCOMPARE(room.field("route.start").toPoint(), QPoint(1, 1));
    for (const int code : {1, 3}) {
        room.project.run(str("route.add route/list"), room.layer(), QJsonObject{{str("code"), code}});
    }
    QVERIFY(room.project.commands().canRun(str("route.remove"), room.layer()));
    room.project.run(str("route.add route/list"), room.layer(),
                     QJsonObject{{str("code"), 15}, {str("parameters"), QJsonArray{30}}});
    QCOMPARE(room.field("route.hasValue").toBool(), true);
    room.setField("route/list/{list}/parameters/0", 45);
    room.run("draft.accept");
    room.project.drafts().drop(window);
    const QJsonValue route = events(room).at(1)[QLatin1String("pages")][0][QLatin1String("moveRoute")];
    QCOMPARE(
        QJsonDocument(route.toObject()).toJson(QJsonDocument::Compact),
        QByteArray(
            R"({"list":[{"code":1},{"code":3},{"code":15,"parameters":[45]},{"code":0}],"repeat":true})"));
}

void tst_EventWords::theRouteOfThePlayerBeginsWhereItIs()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {2, 5});
    room.setField("data/System/startMapId", 1);
    room.setField("data/System/startX", 7);
    room.setField("data/System/startY", 3);
    DataLayer *event = room.project.drafts().begin();
    room.run("event.edit");
    room.setField(kList, QJsonDocument::fromJson(R"([
        {"code": 205, "indent": 0, "parameters": [-1, {"list": [{"code": 4}, {"code": 0}]}]},
        {"code": 0, "indent": 0, "parameters": []}])")
                             .array()
                             .toVariantList());
    room.run((QByteArray("commands.of ") + kList).constData());
    room.choose((QByteArray("commands ") + kList).constData(), 0);
    DataLayer *form = room.project.drafts().begin();
    room.run("command.edit");
    room.run("route.begin command/1 command/0");
    QCOMPARE(room.field("route.target").toInt(), -1);
    QCOMPARE(room.field("route.start").toPoint(), QPoint(7, 3));
    // Where the game begins elsewhere, the event is the best that is known.
    room.setField("data/System/startMapId", 2);
    QCOMPARE(room.field("route.start").toPoint(), QPoint(2, 5));
    room.project.drafts().drop(form);
    room.project.drafts().drop(event);
}

void tst_EventWords::quickEvents_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<int>("pages");
    QTest::newRow("passage") << QByteArray("transfer") << 1;
    QTest::newRow("inn") << QByteArray("inn") << 1;
    QTest::newRow("treasure") << QByteArray("treasure") << 2;
    QTest::newRow("resting place") << QByteArray("base") << 1;
}

void tst_EventWords::quickEvents()
{
    QFETCH(QByteArray, kind);
    QFETCH(int, pages);
    ProjectRoom room;
    begin(room, {4, 4});
    DataLayer *window = room.project.drafts().begin();
    room.run(("quick.begin " + kind).constData());
    room.run("quick.accept");
    room.project.drafts().drop(window);
    const QJsonObject event = events(room).at(1).toObject();
    QCOMPARE(event.value(str("pages")).toArray().size(), pages);
    QCOMPARE(event.value(str("x")), QJsonValue(4));
    QVERIFY(!event.value(str("name")).toString().isEmpty());
    // No text is missing in what it says.
    QVERIFY(!QJsonDocument(event).toJson().contains("%1"));
    QCOMPARE(room.project.files().history().count(), 1);
    // Each list is one that the editor's own table makes: all of it belongs to commands and their ends.
    const EventCommands &table = room.project.start().eventCommands;
    const QJsonArray all = event.value(str("pages")).toArray();
    for (const QJsonValue &page : all) {
        const QJsonArray list = page[QLatin1String("list")].toArray();
        CommandList edited(&table, list);
        const QVector<int> rows = edited.rows();
        for (const int row : rows) {
            QVERIFY2(edited.codeAt(row) == EventCommands::kEnd || table.find(edited.codeAt(row)) != nullptr,
                     qPrintable(QString::number(edited.codeAt(row))));
            edited.change(row, edited.form(row));
        }
        QCOMPARE(edited.entries(), list);
    }
    room.run("edit.undo");
    QCOMPARE(events(room).size(), 1);
}

QTEST_GUILESS_MAIN(tst_EventWords)
#include "tst_EventWords.moc"
