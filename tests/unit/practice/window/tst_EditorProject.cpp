#include "window/EditorProject.h"

#include <QtTest>

namespace {

ProjectData data()
{
    QStringList errors;
    return ProjectData::read(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/data/project.json"),
                             QStringLiteral("en_US"), &errors);
}

QStringList names(const EditorProject &project, const QString &source)
{
    QStringList names;
    const auto rows = project.rows(source);
    for (const EditorProject::Row &row : rows)
        names.append(row.text);
    return names;
}

const QString kMaps = QStringLiteral("maps");

} // namespace

class tst_EditorProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOpenAtFirst();
    void createOpensTheStartMapsUnderTheTypedName();
    void everyCommandIsSafeWithNoProject();
    void everyNameIsKnown();
    void dataFilesReplaceWhatIsOpen();
    void toolsModesAndLayersReplaceEachOther_data();
    void toolsModesAndLayersReplaceEachOther();
    void zoomStaysInItsBounds();
    void strokesAreUndoneAndRedone();
    void eraserEmptiesCellsOfTheLayer();
    void toolsCoverTheirCells();
    void tabChoosesTheTilesOfTheList();
    void propertiesChangeTheMapOnlyWhenAccepted();
    void draftIsAlwaysThatOfTheMapOnShow();
    void newMapStandsBelowTheSelectedOne();
    void deletingTheLastMapSelectsTheOneBefore();
    void sampleMapIsAddedAndShown();
    void tileSetIsChosenInTwoSteps();
    void savingClearsModified();
    void statusTellsOfTheMap();
};

void tst_EditorProject::nothingIsOpenAtFirst()
{
    const EditorProject project(data());
    QVERIFY(!project.isOpen());
    QVERIFY(project.map() == nullptr);
    QVERIFY(project.rows(kMaps).isEmpty());
    QCOMPARE(project.field(QStringLiteral("status")).toString(),
             QStringLiteral("No project is open. Choose New to make one."));
}

void tst_EditorProject::createOpensTheStartMapsUnderTheTypedName()
{
    EditorProject project(data());
    project.setField(QStringLiteral("newProject.name"), QStringLiteral("Quest"));
    project.setField(QStringLiteral("newProject.location"), QStringLiteral("/games"));
    QCOMPARE(project.field(QStringLiteral("newProject.location")).toString(), QStringLiteral("/games"));
    project.run(QStringLiteral("newProject.accept"));
    QVERIFY(!project.isOpen());
    project.run(QStringLiteral("newProject.create"));
    QVERIFY(project.isOpen());
    QVERIFY(!project.isModified());
    QCOMPARE(project.name(), QStringLiteral("Quest"));
    QCOMPARE(names(project, kMaps), (QStringList{QStringLiteral("Village"), QStringLiteral("Forest path"),
                                                 QStringLiteral("Harbor"), QStringLiteral("Oasis")}));
    QCOMPARE(project.currentRow(kMaps), 0);

    project.run(QStringLiteral("newProject.accept"));
    project.run(QStringLiteral("newProject.create"));
    QCOMPARE(project.rows(kMaps).size(), 4);
}

void tst_EditorProject::everyCommandIsSafeWithNoProject()
{
    const QStringList commands = EditorProject::commands();
    for (const QString &command : commands) {
        EditorProject project(data());
        const QSignalSpy changed(&project, &EditorProject::changed);
        project.run(command);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(project.map() != nullptr, command == QLatin1String("newProject.create"));
        project.beginStroke();
        project.paint({{0, 0}});
    }
}

void tst_EditorProject::everyNameIsKnown()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    ProjectContents contents;
    contents.maps = {GameMap::blank(QSize(2, 2), 0)};
    const QStringList listSources = ProjectContents::sources();
    for (const QString &source : listSources) {
        QCOMPARE(project.currentRow(source), -1);
        contents.names.insert(source, {QStringLiteral("One"), QStringLiteral("Two")});
    }
    project.show(contents);
    project.run(QStringLiteral("map.edit"));
    const QStringList fields = EditorProject::fields();
    for (const QString &field : fields)
        QVERIFY2(project.field(field).isValid(), qPrintable(field));
    const QStringList sources = EditorProject::sources();
    for (const QString &source : sources)
        QVERIFY2(project.currentRow(source) == 0, qPrintable(source));
    QVERIFY(!project.field(QStringLiteral("other")).isValid());
    QCOMPARE(project.currentRow(QStringLiteral("other")), -1);
    QVERIFY(project.rows(QStringLiteral("other")).isEmpty());
    QVERIFY(!project.isOn(QStringLiteral("map.undo")).has_value());
}

void tst_EditorProject::dataFilesReplaceWhatIsOpen()
{
    ProjectContents contents;
    contents.maps = {GameMap::blank(QSize(3, 2), 4)};
    contents.maps[0].name = QStringLiteral("Cellar");
    const QString items = QStringLiteral("items");
    contents.names.insert(items, {QStringLiteral("Herb"), QStringLiteral("Bread")});

    EditorProject project(data());
    project.show(contents);
    QVERIFY(!project.isOpen());
    QVERIFY(project.rows(items).isEmpty());

    // The place of the new project, at which the data files are awaited.
    const QSignalSpy created(&project, &EditorProject::created);
    project.setField(QStringLiteral("newProject.name"), QStringLiteral("Quest"));
    project.setField(QStringLiteral("newProject.location"), QStringLiteral("/games"));
    project.run(QStringLiteral("newProject.create"));
    QCOMPARE(created.count(), 1);
    QCOMPARE(created.first(), (QVariantList{QStringLiteral("/games"), QStringLiteral("Quest")}));

    const QSignalSpy changed(&project, &EditorProject::changed);
    project.beginStroke();
    project.paint({{0, 0}});
    project.show(contents);
    QVERIFY(!changed.isEmpty());
    QVERIFY(!project.isModified());
    QCOMPARE(project.name(), QStringLiteral("Quest"));
    QCOMPARE(names(project, kMaps), QStringList{QStringLiteral("Cellar")});
    QCOMPARE(project.map()->size, QSize(3, 2));
    QCOMPARE(names(project, items), (QStringList{QStringLiteral("Herb"), QStringLiteral("Bread")}));
    project.setCurrentRow(items, 1);
    QCOMPARE(project.currentRow(items), 1);
    project.setCurrentRow(items, 7);
    QCOMPARE(project.currentRow(items), 1);

    project.run(QStringLiteral("newProject.accept"));
    QVERIFY(project.rows(items).isEmpty());
}

void tst_EditorProject::toolsModesAndLayersReplaceEachOther_data()
{
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("tools") << QStringList{QStringLiteral("tool.pencil"), QStringLiteral("tool.rectangle"),
                                          QStringLiteral("tool.ellipse"), QStringLiteral("tool.fill"),
                                          QStringLiteral("tool.eraser")};
    QTest::newRow("layers") << QStringList{QStringLiteral("layer.1"), QStringLiteral("layer.2"),
                                           QStringLiteral("layer.3")};
    QTest::newRow("modes") << QStringList{QStringLiteral("mode.map"), QStringLiteral("mode.event")};
}

void tst_EditorProject::toolsModesAndLayersReplaceEachOther()
{
    QFETCH(QStringList, commands);
    EditorProject project(data());
    QCOMPARE(project.isOn(commands.first()), std::optional<bool>(true));
    for (const QString &chosen : commands) {
        project.run(chosen);
        for (const QString &command : commands)
            QCOMPARE(project.isOn(command), std::optional<bool>(command == chosen));
    }
}

void tst_EditorProject::zoomStaysInItsBounds()
{
    EditorProject project(data());
    QCOMPARE(project.cellPixels(), 32);
    for (int expected : {64, 64}) {
        project.run(QStringLiteral("view.zoomIn"));
        QCOMPARE(project.cellPixels(), expected);
    }
    for (int expected : {32, 16, 8, 8}) {
        project.run(QStringLiteral("view.zoomOut"));
        QCOMPARE(project.cellPixels(), expected);
    }
    project.run(QStringLiteral("view.zoomActual"));
    QCOMPARE(project.cellPixels(), 32);
    project.run(QStringLiteral("view.grid"));
    QVERIFY(project.hasGrid());
    project.run(QStringLiteral("view.grid"));
    QVERIFY(!project.hasGrid());
}

void tst_EditorProject::strokesAreUndoneAndRedone()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    const int before = project.map()->tile(0, {2, 2});
    project.setCurrentRow(QStringLiteral("tiles"), 4);
    const QSignalSpy cells(&project, &EditorProject::cellsChanged);
    project.beginStroke();
    project.paint({{2, 2}, {3, 2}});
    QCOMPARE(cells.count(), 1);
    QVERIFY(project.isModified());
    QCOMPARE(project.map()->tile(0, {3, 2}), 4);
    project.run(QStringLiteral("map.undo"));
    QCOMPARE(project.map()->tile(0, {2, 2}), before);
    project.run(QStringLiteral("map.undo"));
    project.run(QStringLiteral("map.redo"));
    QCOMPARE(project.map()->tile(0, {2, 2}), 4);
    project.run(QStringLiteral("map.undo"));
    project.beginStroke();
    project.paint({{5, 5}});
    project.run(QStringLiteral("map.redo"));
    QCOMPARE(project.map()->tile(0, {2, 2}), before);
    QCOMPARE(project.map()->tile(0, {5, 5}), 4);
}

void tst_EditorProject::eraserEmptiesCellsOfTheLayer()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    const int ground = project.map()->tile(0, {0, 0});
    QVERIFY(project.map()->tile(1, {0, 0}) != GameMap::kEmpty);
    project.run(QStringLiteral("layer.2"));
    project.run(QStringLiteral("tool.eraser"));
    project.paint({{0, 0}});
    QCOMPARE(project.map()->tile(1, {0, 0}), GameMap::kEmpty);
    QCOMPARE(project.map()->tile(0, {0, 0}), ground);
}

void tst_EditorProject::toolsCoverTheirCells()
{
    EditorProject project(data());
    project.run(QStringLiteral("tool.fill"));
    QVERIFY(project.cellsOfStroke({0, 0}, {4, 4}).isEmpty());
    project.run(QStringLiteral("newProject.create"));
    const QPoint from(1, 1);
    const QPoint to(5, 5);
    QCOMPARE(project.cellsOfStroke(from, to), project.map()->connected(0, to));
    project.run(QStringLiteral("tool.pencil"));
    QCOMPARE(project.cellsOfStroke(from, to).size(), 5);
    project.run(QStringLiteral("tool.rectangle"));
    QCOMPARE(project.cellsOfStroke(from, to).size(), 25);
    project.run(QStringLiteral("tool.ellipse"));
    QCOMPARE(project.cellsOfStroke(from, to).size(), 21);
    project.run(QStringLiteral("tool.eraser"));
    QCOMPARE(project.cellsOfStroke(from, to).size(), 5);
}

void tst_EditorProject::tabChoosesTheTilesOfTheList()
{
    EditorProject project(data());
    const QString tiles = QStringLiteral("tiles");
    QCOMPARE(names(project, tiles).at(0), QStringLiteral("Grass"));
    project.setCurrentRow(QStringLiteral("tileTab"), 1);
    QCOMPARE(names(project, tiles).at(0), QStringLiteral("Tree"));
    QCOMPARE(project.rows(tiles).at(0).tile, ProjectData::kTilesPerTab);
    QCOMPARE(project.currentRow(tiles), -1);
    project.setCurrentRow(tiles, 2);
    QCOMPARE(project.currentRow(tiles), 2);
    project.setCurrentRow(QStringLiteral("tileTab"), 0);
    QCOMPARE(project.currentRow(tiles), -1);
}

void tst_EditorProject::propertiesChangeTheMapOnlyWhenAccepted()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.run(QStringLiteral("map.edit"));
    project.setField(QStringLiteral("map.name"), QStringLiteral("Town"));
    project.setField(QStringLiteral("map.displayName"), QStringLiteral("The town"));
    project.setField(QStringLiteral("map.showName"), false);
    project.setField(QStringLiteral("map.width"), 8);
    project.setField(QStringLiteral("map.height"), 20);
    QCOMPARE(project.map()->name, QStringLiteral("Village"));
    QCOMPARE(project.map()->size, QSize(24, 16));
    project.run(QStringLiteral("map.accept"));
    QCOMPARE(project.map()->name, QStringLiteral("Town"));
    QCOMPARE(project.map()->displayName, QStringLiteral("The town"));
    QVERIFY(!project.map()->showName);
    QCOMPARE(project.map()->size, QSize(8, 20));
    QCOMPARE(project.map()->tile(0, {7, 19}), 0);
    QVERIFY(project.isModified());
}

void tst_EditorProject::draftIsAlwaysThatOfTheMapOnShow()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    QCOMPARE(project.draft().name, QStringLiteral("Village"));
    project.run(QStringLiteral("map.new"));
    project.setCurrentRow(kMaps, 2);
    QCOMPARE(project.draft().name, QStringLiteral("Harbor"));
    project.beginStroke();
    project.paint({{2, 2}});
    const GameMap::Layers painted = project.map()->layers;
    project.run(QStringLiteral("map.accept"));
    QCOMPARE(project.rows(kMaps).size(), 4);
    QVERIFY(project.map()->layers == painted);
    project.run(QStringLiteral("map.delete"));
    QCOMPARE(project.draft().name, QStringLiteral("Oasis"));
}

void tst_EditorProject::newMapStandsBelowTheSelectedOne()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.setCurrentRow(kMaps, 1);
    project.run(QStringLiteral("map.new"));
    QCOMPARE(project.field(QStringLiteral("map.name")).toString(), QStringLiteral("New map"));
    project.setField(QStringLiteral("map.name"), QStringLiteral("Cave"));
    QCOMPARE(project.rows(kMaps).size(), 4);
    project.run(QStringLiteral("map.accept"));
    QCOMPARE(project.rows(kMaps).size(), 5);
    QCOMPARE(project.currentRow(kMaps), 2);
    QCOMPARE(project.rows(kMaps).at(2), (EditorProject::Row{QStringLiteral("Cave"), 1, GameMap::kEmpty}));
}

void tst_EditorProject::deletingTheLastMapSelectsTheOneBefore()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.setCurrentRow(kMaps, 3);
    for (int left : {2, 1, 0, -1}) {
        project.run(QStringLiteral("map.delete"));
        QCOMPARE(project.currentRow(kMaps), left);
    }
    QVERIFY(project.map() == nullptr);
    QCOMPARE(project.field(QStringLiteral("status")).toString(), QString());
}

void tst_EditorProject::sampleMapIsAddedAndShown()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.setCurrentRow(QStringLiteral("sampleMaps"), 5);
    QCOMPARE(names(project, QStringLiteral("sampleMaps")).size(), 6);
    project.run(QStringLiteral("sampleMap.accept"));
    QCOMPARE(project.map()->name, QStringLiteral("Castle yard"));
    QCOMPARE(project.currentRow(kMaps), 1);
}

void tst_EditorProject::tileSetIsChosenInTwoSteps()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.run(QStringLiteral("map.edit"));
    project.run(QStringLiteral("tileSet.choose"));
    QCOMPARE(project.currentRow(QStringLiteral("tileSets")), 0);
    project.setCurrentRow(QStringLiteral("tileSets"), 2);
    QCOMPARE(names(project, QStringLiteral("tileSets")).at(2), QStringLiteral("Winter"));
    QCOMPARE(project.draft().tileSet, 0);
    project.run(QStringLiteral("tileSet.accept"));
    QCOMPARE(project.draft().tileSet, 2);
    QCOMPARE(project.map()->tileSet, 0);
    project.run(QStringLiteral("map.accept"));
    QCOMPARE(project.map()->tileSet, 2);
}

void tst_EditorProject::savingClearsModified()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.beginStroke();
    project.paint({{0, 0}});
    QVERIFY(project.isModified());
    project.run(QStringLiteral("project.save"));
    QVERIFY(!project.isModified());
}

void tst_EditorProject::statusTellsOfTheMap()
{
    EditorProject project(data());
    project.run(QStringLiteral("newProject.create"));
    project.run(QStringLiteral("view.zoomOut"));
    QCOMPARE(project.field(QStringLiteral("status")).toString(),
             QStringLiteral("Village: 24 \u00d7 16 cells. Zoom 50 %."));
}

QTEST_GUILESS_MAIN(tst_EditorProject)
#include "tst_EditorProject.moc"
