#include "ProjectFixture.h"

class tst_EditorTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolsModesAndLayersReplaceEachOther_data();
    void toolsModesAndLayersReplaceEachOther();
    void zoomStaysInItsBounds();
    void gridGoesOnAndOff();
    void tabChoosesTheTilesOfTheList();
    void everyChoiceIsTold();
};

void tst_EditorTools::toolsModesAndLayersReplaceEachOther_data()
{
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("tools") << QStringList{str("tool.pencil"), str("tool.rectangle"), str("tool.ellipse"),
                                          str("tool.fill"), str("tool.eraser")};
    QTest::newRow("layers") << QStringList{str("layer.1"), str("layer.2"), str("layer.3")};
    QTest::newRow("modes") << QStringList{str("mode.map"), str("mode.event")};
}

void tst_EditorTools::toolsModesAndLayersReplaceEachOther()
{
    QFETCH(QStringList, commands);
    ProjectRoom room;
    QCOMPARE(room.isOn(commands.first()), std::optional<bool>(true));
    for (const QString &chosen : commands) {
        room.project.run(chosen, room.layer());
        for (const QString &command : commands) {
            QCOMPARE(room.isOn(command), std::optional<bool>(command == chosen));
        }
    }
}

void tst_EditorTools::zoomStaysInItsBounds()
{
    ProjectRoom room;
    const EditorTools &tools = room.project.tools();
    QCOMPARE(tools.cellPixels(), 32);
    for (int expected : {64, 64}) {
        room.run("view.zoomIn");
        QCOMPARE(tools.cellPixels(), expected);
    }
    for (int expected : {32, 16, 8, 8}) {
        room.run("view.zoomOut");
        QCOMPARE(tools.cellPixels(), expected);
    }
    room.run("view.zoomActual");
    QCOMPARE(tools.cellPixels(), 32);
}

void tst_EditorTools::gridGoesOnAndOff()
{
    ProjectRoom room;
    for (const bool expected : {true, false}) {
        room.run("view.grid");
        QCOMPARE(room.project.tools().hasGrid(), expected);
        QCOMPARE(room.isOn(str("view.grid")), std::optional<bool>(expected));
    }
}

void tst_EditorTools::tabChoosesTheTilesOfTheList()
{
    ProjectRoom room;
    QCOMPARE(room.texts("tiles").at(0), str("Grass"));
    room.choose("tileTab", 1);
    QCOMPARE(room.texts("tiles").at(0), str("Tree"));
    QCOMPARE(room.project.sources().rows(str("tiles"), room.layer()).at(0).tile,
             int(StartData::kTilesPerTab));
    QCOMPARE(room.row("tiles"), -1);
    room.choose("tiles", 2);
    QCOMPARE(room.row("tiles"), 2);
    QCOMPARE(room.project.tools().tile(), StartData::kTilesPerTab + 2);
    room.choose("tileTab", 0);
    QCOMPARE(room.row("tiles"), -1);
}

void tst_EditorTools::everyChoiceIsTold()
{
    ProjectRoom room;
    QSignalSpy changed(&room.project.tools(), &EditorTools::changed);
    room.run("tool.fill");
    room.run("layer.3");
    room.run("mode.event");
    room.run("view.zoomIn");
    room.run("view.grid");
    room.choose("tileTab", 2);
    room.choose("tiles", 1);
    QCOMPARE(changed.size(), 7);
}

QTEST_GUILESS_MAIN(tst_EditorTools)
#include "tst_EditorTools.moc"
