#include "ProjectFixture.h"
#include "project/MapTree.h"

#include <QJsonObject>

namespace {

/// A window's draft, as the map's properties are one.
class Dialog
{
public:
    explicit Dialog(ProjectRoom *room)
        : m_drafts(&room->project.drafts())
        , m_draft(m_drafts->begin())
    {
    }
    ~Dialog() { m_drafts->drop(m_draft); }
    Q_DISABLE_COPY_MOVE(Dialog)

private:
    Drafts *m_drafts;
    DataLayer *m_draft;
};

const char *const kName = "data/MapInfos/{maps}/name";
const char *const kWidth = "data/Map{maps}/width";
const char *const kHeight = "data/Map{maps}/height";
const char *const kTileSet = "data/Map{maps}/tilesetId";

} // namespace

/// The tree of maps, and what the properties of a map do with it.
class tst_Maps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesChangeTheMapOnlyWhenAccepted();
    void acceptedPropertiesAreOneStep();
    void halfANumberDoesNotCutTheMap();
    void eventsAndMusicStayWhenTheSizeChanges();
    void newMapStandsBehindTheSelectedOneAndThoseBelowIt();
    void newMapThatIsNotAcceptedIsGone();
    void newMapHasTheSizeThatWasTyped();
    void aMapThatIsTooLargeKeepsItsCells();
    void newMapIsOneStepAndIsUndone();
    void deletingTheLastMapSelectsTheOneBefore();
    void deletedMapComesBackWithItsCells();
    void sampleMapIsAddedAndShown();
    void tileSetIsChosenInTwoSteps();
    void namesAreShownUnlessTheFileSaysNo();
};

void tst_Maps::propertiesChangeTheMapOnlyWhenAccepted()
{
    ProjectRoom room;
    room.create();
    const Dialog dialog(&room);
    room.setField(kName, str("Town"));
    room.setField("data/Map{maps}/displayName", str("The town"));
    room.setField("map.showName", false);
    room.setField(kWidth, 8);
    room.setField(kHeight, 20);
    QCOMPARE(room.field(kName).toString(), str("Town"));
    QCOMPARE(room.map()->name, str("Village"));
    QCOMPARE(room.map()->size, QSize(24, 16));
    QVERIFY(!room.project.isModified());
    room.run("map.accept");
    QCOMPARE(room.map()->name, str("Town"));
    QCOMPARE(room.map()->displayName, str("The town"));
    QCOMPARE(room.field("map.showName"), QVariant(false));
    QCOMPARE(room.map()->size, QSize(8, 20));
    QCOMPARE(room.map()->tile(0, {7, 19}), 0);
    QVERIFY(room.project.isModified());
}

void tst_Maps::acceptedPropertiesAreOneStep()
{
    ProjectRoom room;
    room.create();
    const GameMap::Layers before = room.map()->layers;
    {
        const Dialog dialog(&room);
        room.setField(kName, str("Town"));
        room.setField(kWidth, 8);
        room.run("map.accept");
    }
    QCOMPARE(room.project.files().history().count(), 1);
    room.run("edit.undo");
    QCOMPARE(room.map()->name, str("Village"));
    QVERIFY(room.map()->layers == before);
}

void tst_Maps::halfANumberDoesNotCutTheMap()
{
    ProjectRoom room;
    room.create();
    const GameMap::Layers before = room.map()->layers;
    const Dialog dialog(&room);
    for (const int width : {8, 30, 24}) {
        room.setField(kWidth, width);
    }
    room.run("map.accept");
    QVERIFY(room.map()->layers == before);
    QCOMPARE(room.project.files().history().count(), 0);
}

void tst_Maps::eventsAndMusicStayWhenTheSizeChanges()
{
    ProjectRoom room;
    room.create();
    room.setField("data/Map{maps}/music/file", str("theme"));
    const Dialog dialog(&room);
    room.setField(kWidth, 30);
    room.run("map.accept");
    QCOMPARE(room.field("data/Map{maps}/music/file").toString(), str("theme"));
    QCOMPARE(room.project.files().value(MapTree::fileOf(1), str("/data")).toArray().size(), 3 * 30 * 16);
}

void tst_Maps::newMapStandsBehindTheSelectedOneAndThoseBelowIt()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 1);
    {
        const Dialog dialog(&room);
        room.run("map.new");
        QCOMPARE(room.field(kName).toString(), str("New map"));
        QCOMPARE(room.field("data/Map{maps}/displayName").toString(), QString());
        room.setField(kName, str("Cave"));
        QCOMPARE(room.project.sources().rows(str("maps"), room.project.files()).size(), 4);
        room.run("map.accept");
    }
    QCOMPARE(room.texts("maps").size(), 5);
    QCOMPARE(room.row("maps"), 2);
    const Row cave = room.project.sources().rows(str("maps"), room.layer()).at(2);
    QCOMPARE(cave.text, str("Cave"));
    QCOMPARE(cave.level, 1);
    room.choose("maps", 0);
    room.run("map.new");
    QCOMPARE(room.row("maps"), 4);
    QCOMPARE(room.texts("maps").at(4), str("New map"));
}

void tst_Maps::newMapThatIsNotAcceptedIsGone()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 2);
    {
        const Dialog dialog(&room);
        room.run("map.new");
        // What the window behind shows is the map that was on show.
        QCOMPARE(room.map()->name, str("Harbor"));
    }
    QCOMPARE(room.texts("maps").size(), 4);
    QCOMPARE(room.map()->name, str("Harbor"));
    QVERIFY(!room.project.isModified());
    const Dialog dialog(&room);
    QCOMPARE(room.field(kName).toString(), str("Harbor"));
}

void tst_Maps::newMapHasTheSizeThatWasTyped()
{
    ProjectRoom room;
    room.create();
    const Dialog dialog(&room);
    room.run("map.new");
    room.setField(kWidth, 10);
    room.setField(kHeight, 9);
    room.run("map.accept");
    QCOMPARE(room.map()->size, QSize(10, 9));
    QCOMPARE(room.map()->layers[0], GameMap::Layer(90, 0));
    QCOMPARE(room.map()->layers[1], GameMap::Layer(90, GameMap::kEmpty));
}

void tst_Maps::aMapThatIsTooLargeKeepsItsCells()
{
    ProjectRoom room;
    room.create();
    const QString large = MapTree::fileOf(1);
    QJsonArray cells;
    for (int cell = 0; cell < 300 * 2; ++cell) {
        cells.append(cell % 7);
    }
    room.project.files().change(
        {{large, QJsonObject{{str("width"), 300}, {str("height"), 2}, {str("data"), cells}}}}, QString());
    room.choose("tiles", 4);
    room.project.board().paint({{0, 1}, {5, 0}});
    QCOMPARE(room.project.files().value(large, str("/data")), QJsonValue(cells));
    const Dialog dialog(&room);
    room.setField("data/Map{maps}/displayName", str("Desert"));
    room.run("map.accept");
    QCOMPARE(room.project.files().value(large, str("/displayName")).toString(), str("Desert"));
    QCOMPARE(room.project.files().value(large, str("/width")).toInt(), 300);
    QCOMPARE(room.project.files().value(large, str("/data")), QJsonValue(cells));
}

void tst_Maps::newMapIsOneStepAndIsUndone()
{
    ProjectRoom room;
    room.create();
    {
        const Dialog dialog(&room);
        room.run("map.new");
        room.run("map.accept");
    }
    QCOMPARE(room.project.files().changedFiles(), (QStringList{str("data/Map005.json"), MapTree::file()}));
    room.run("edit.undo");
    QCOMPARE(room.texts("maps").size(), 4);
    QVERIFY(room.map() != nullptr);
    QVERIFY(!room.project.isModified());
    room.run("edit.redo");
    QCOMPARE(room.texts("maps").size(), 5);
    QCOMPARE(room.map()->name, str("New map"));
}

void tst_Maps::deletingTheLastMapSelectsTheOneBefore()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 3);
    for (int left : {2, 1, 0, -1}) {
        room.run("map.delete");
        QCOMPARE(room.row("maps"), left);
    }
    QVERIFY(room.map() == nullptr);
    QCOMPARE(room.field("status").toString(), QString());
    room.run("map.delete");
    QCOMPARE(room.texts("maps"), QStringList());
}

void tst_Maps::deletedMapComesBackWithItsCells()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 1);
    const GameMap::Layers before = room.map()->layers;
    room.run("map.delete");
    QCOMPARE(room.map()->name, str("Harbor"));
    room.run("project.save");
    QVERIFY(room.bytes(str("Quest/data/Map002.json")).isEmpty());
    room.run("edit.undo");
    QCOMPARE(room.map()->name, str("Forest path"));
    QVERIFY(room.map()->layers == before);
    room.run("project.save");
    QVERIFY(!room.bytes(str("Quest/data/Map002.json")).isEmpty());
}

void tst_Maps::sampleMapIsAddedAndShown()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 3);
    room.choose("sampleMaps", 5);
    QCOMPARE(room.texts("sampleMaps").size(), 6);
    room.run("sampleMap.accept");
    QCOMPARE(room.map()->name, str("Castle yard"));
    QCOMPARE(room.map()->displayName, str("Castle yard"));
    QCOMPARE(room.row("maps"), 4);
    QCOMPARE(room.map()->layers[0], room.project.start().sampleMaps.at(5).layers[0]);
}

void tst_Maps::tileSetIsChosenInTwoSteps()
{
    ProjectRoom room;
    room.create();
    QCOMPARE(room.texts("tileSets").at(2), str("Winter"));
    const Dialog properties(&room);
    {
        const Dialog selector(&room);
        QCOMPARE(room.field(kTileSet).toInt(), 1);
        room.setField(kTileSet, 3);
    }
    QCOMPARE(room.field(kTileSet).toInt(), 1);
    {
        const Dialog selector(&room);
        room.setField(kTileSet, 3);
        room.run("draft.accept");
    }
    QCOMPARE(room.field(kTileSet).toInt(), 3);
    QCOMPARE(room.map()->tileSet, 0);
    room.run("map.accept");
    QCOMPARE(room.map()->tileSet, 2);
}

void tst_Maps::namesAreShownUnlessTheFileSaysNo()
{
    ProjectRoom room;
    room.create();
    QCOMPARE(room.field("map.showName"), QVariant(true));
    QVERIFY(!room.bytes(str("Quest/data/Map001.json")).contains("showName"));
    room.setField("map.showName", false);
    QCOMPARE(room.field("map.showName"), QVariant(false));
    QVERIFY(room.project.files().value(MapTree::fileOf(1), str("/showName")).isBool());
}

QTEST_GUILESS_MAIN(tst_Maps)
#include "tst_Maps.moc"
