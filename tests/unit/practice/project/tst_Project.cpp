#include "ProjectFixture.h"
#include "Unprivileged.h"
#include "project/MapTree.h"

#include <QDir>

#include <sys/stat.h>

/// The open project, from the files that it is read from to those that it leaves behind.
class tst_Project : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOpenAtFirst();
    void everyCommandIsSafeWithNoProject();
    void everyNameIsKnown();
    void whatWasDrawnIsThereAgain();
    void undoAndRedoShowTheMapThatTheyChange();
    void savingClearsModified();
    void aFailedSaveIsToldAndLosesNothing();
    void projectsOfTheFolderAreListed();
    void whatWouldBeLostIsKnown();
    void whatIsTypedEndsWithTheProject();
    void aBrokenProjectIsNotOpened();
    void dataFilesReplaceWhatIsOpen();
    void dataFilesOfASampleProjectAreSavedAsTheyAre_data();
    void dataFilesOfASampleProjectAreSavedAsTheyAre();
    void statusTellsOfTheMap();
};

void tst_Project::nothingIsOpenAtFirst()
{
    ProjectRoom room;
    QVERIFY(!room.project.isOpen());
    QCOMPARE(room.project.name(), QString());
    QVERIFY(room.map() == nullptr);
    QVERIFY(room.texts("maps").isEmpty());
    QCOMPARE(room.field("status").toString(), str("No project is open. Choose New to make one."));
    QCOMPARE(room.field("newProject.name").toString(), str("My first game"));
    QCOMPARE(room.field("newProject.location").toString(), room.folder());
}

void tst_Project::everyCommandIsSafeWithNoProject()
{
    const QStringList commands = ProjectRoom().project.commands().names();
    QVERIFY(commands.size() > 20);
    for (const QString &command : commands) {
        ProjectRoom room;
        const QSignalSpy changed(&room.project, &Project::changed);
        room.project.run(command, room.layer());
        QVERIFY(!changed.isEmpty());
        QCOMPARE(room.map() != nullptr, command == str("newProject.create"));
        QCOMPARE(room.failures, QStringList());
        DataLayer *draft = room.project.drafts().begin();
        room.project.run(command, *draft);
        room.project.drafts().drop(draft);
    }
}

void tst_Project::everyNameIsKnown()
{
    ProjectRoom room;
    room.create();
    const QStringList fields = room.project.fields().names();
    for (const QString &field : fields) {
        QVERIFY2(room.project.fields().value(field, room.layer()).isValid(), qPrintable(field));
    }
    const QStringList sources = room.project.sources().names();
    // Nothing is being edited or looked for.
    const QStringList empty{str("choice.number"), str("command/entries"), str("eventPages"), str("found")};
    QCOMPARE(sources,
             (QStringList{str("battleEnemies"), str("battleEnemiesOrAll"), str("choice.number"),
                          str("command/entries"), str("commandTab"), str("commandsOfTab"), str("eventPages"),
                          str("found"), str("maps"), str("projects"), str("routeTargets"), str("sampleMaps"),
                          str("tileSets"), str("tileTab"), str("tiles")}));
    for (const QString &source : sources) {
        QVERIFY2(room.row(qPrintable(source)) == (empty.contains(source) ? -1 : 0), qPrintable(source));
    }
    QVERIFY(!room.field("other").isValid());
    QCOMPARE(room.row("other"), -1);
    QVERIFY(room.texts("other").isEmpty());
    QVERIFY(!room.isOn(str("edit.undo")).has_value());
}

void tst_Project::whatWasDrawnIsThereAgain()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 2);
    room.choose("tiles", 4);
    room.run("tool.rectangle");
    MapBoard &board = room.project.board();
    board.beginStroke();
    board.paint(board.cellsOfStroke({2, 3}, {6, 7}));
    const GameMap::Layers drawn = room.map()->layers;
    room.run("project.save");
    QCOMPARE(room.failures, QStringList());
    QVERIFY(!room.project.isModified());
    const QByteArray saved = room.bytes(str("Quest/data/Map003.json"));

    ProjectRoom other;
    other.project.setProjectsFolder(room.folder());
    other.choose("projects", 0);
    other.run("project.open");
    QCOMPARE(other.failures, QStringList());
    QCOMPARE(other.project.name(), str("Quest"));
    other.choose("maps", 2);
    QVERIFY(other.map()->layers == drawn);
    QCOMPARE(other.map()->tile(0, {6, 7}), 4);
    other.run("project.save");
    QCOMPARE(room.bytes(str("Quest/data/Map003.json")), saved);
}

void tst_Project::undoAndRedoShowTheMapThatTheyChange()
{
    ProjectRoom room;
    room.create();
    room.choose("tiles", 4);
    room.project.board().paint({{2, 2}});
    room.choose("maps", 3);
    room.run("edit.undo");
    QCOMPARE(room.row("maps"), 0);
    room.choose("maps", 3);
    room.run("edit.redo");
    QCOMPARE(room.row("maps"), 0);
}

void tst_Project::savingClearsModified()
{
    ProjectRoom room;
    room.create();
    room.choose("tiles", 4);
    room.project.board().paint({{0, 0}});
    QVERIFY(room.project.isModified());
    room.run("project.save");
    QVERIFY(!room.project.isModified());
}

void tst_Project::aFailedSaveIsToldAndLosesNothing()
{
    ProjectRoom room;
    room.create();
    room.choose("tiles", 4);
    room.project.board().paint({{0, 0}});
    const QByteArray before = room.bytes(str("Quest/data/Map001.json"));
    const QByteArray data = QFile::encodeName(room.path(str("Quest/data")));
    QCOMPARE(chmod(qPrintable(room.folder()), 0755), 0);
    QCOMPARE(chmod(data.constData(), 0555), 0);
    {
        const Unprivileged nobody;
        room.run("project.save");
    }
    QCOMPARE(chmod(data.constData(), 0755), 0);
    QCOMPARE(room.failures.size(), 1);
    QVERIFY2(room.failures.constFirst().contains(room.path(str("Quest/data/Map001.json"))),
             qPrintable(room.failures.constFirst()));
    QCOMPARE(room.bytes(str("Quest/data/Map001.json")), before);
    QVERIFY(room.project.isModified());
    QCOMPARE(room.map()->tile(0, {0, 0}), 4);
    room.run("project.save");
    QVERIFY(room.bytes(str("Quest/data/Map001.json")) != before);
    QVERIFY(!room.project.isModified());
}

void tst_Project::whatWouldBeLostIsKnown()
{
    ProjectRoom room;
    room.create();
    const QStringList leaving{str("newProject.accept"), str("project.open")};
    for (const QString &command : leaving) {
        QVERIFY(!room.project.losesChanges(command));
    }
    room.choose("tiles", 4);
    room.project.board().paint({{0, 0}});
    for (const QString &command : leaving) {
        QVERIFY(room.project.losesChanges(command));
    }
    QVERIFY(!room.project.losesChanges(str("project.save")));
    QVERIFY(!room.project.losesChanges(QString()));
    room.run("edit.undo");
    QVERIFY(!room.project.losesChanges(leaving.constFirst()));
}

void tst_Project::projectsOfTheFolderAreListed()
{
    ProjectRoom room;
    QVERIFY(room.texts("projects").isEmpty());
    room.run("project.open");
    QVERIFY(!room.project.isOpen());
    room.create("b");
    room.create("A");
    QVERIFY(QDir(room.folder()).mkpath(str("no project/data")));
    QCOMPARE(room.texts("projects"), (QStringList{str("A"), str("b")}));
    room.choose("projects", 1);
    room.run("project.open");
    QCOMPARE(room.project.name(), str("b"));
    QCOMPARE(room.failures, QStringList());
}

void tst_Project::whatIsTypedEndsWithTheProject()
{
    ProjectRoom room;
    room.create("b");
    room.create("A");
    DataLayer *draft = room.project.drafts().begin();
    room.setField("data/Map{maps}/displayName", str("typed for A"));
    // A window above a dialog selects in the dialog's draft.
    room.choose("projects", 1);
    QSignalSpy left(&room.project, &Project::left);
    room.run("project.open");
    QCOMPARE(left.size(), 1);
    QCOMPARE(room.project.name(), str("b"));
    QCOMPARE(room.project.drafts().top(), draft);
    QCOMPARE(room.field("data/Map{maps}/displayName").toString(), str("Village"));
    draft->accept();
    QVERIFY(!room.project.isModified());
}

void tst_Project::aBrokenProjectIsNotOpened()
{
    ProjectRoom room;
    room.create("b");
    room.create("A");
    QFile file(room.path(str("b/data/Items.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[\n{]");
    file.close();
    room.choose("projects", 1);
    room.run("project.open");
    QCOMPARE(room.project.name(), str("A"));
    QCOMPARE(room.failures.size(), 1);
    QVERIFY2(room.failures.constFirst().contains(file.fileName()), qPrintable(room.failures.constFirst()));
    QVERIFY2(room.failures.constFirst().contains(str("line 2")), qPrintable(room.failures.constFirst()));
}

void tst_Project::dataFilesReplaceWhatIsOpen()
{
    const DataFiles::Texts texts{
        {str("data/MapInfos.json"), str(R"([null,{"id":1,"name":"Cellar","parentId":0,"order":1}])")},
        {str("data/Map001.json"), str(R"({"width":3,"height":2,"data":[5,5,5,5,5,5]})")},
        {str("data/Items.json"), str(R"([null,{"name":"Herb"},{"name":"Bread"}])")}};
    ProjectRoom room;
    QVERIFY(!room.project.replaceFiles(texts));
    QVERIFY(!room.project.isOpen());
    QVERIFY(room.texts("data/Items").isEmpty());

    room.create();
    room.project.board().paint({{0, 0}});
    const QSignalSpy changed(&room.project, &Project::changed);
    QVERIFY(room.project.replaceFiles(texts));
    QVERIFY(!changed.isEmpty());
    QVERIFY(!room.project.isModified());
    QCOMPARE(room.project.name(), str("Quest"));
    QCOMPARE(room.texts("maps"), QStringList{str("Cellar")});
    QCOMPARE(room.map()->size, QSize(3, 2));
    QCOMPARE(room.texts("data/Items"), (QStringList{str("Herb"), str("Bread")}));
    room.choose("data/Items", 1);
    QCOMPARE(room.row("data/Items"), 1);
    room.choose("data/Items", 7);
    QCOMPARE(room.row("data/Items"), 1);
    QCOMPARE(QDir(room.path(str("Quest/data"))).entryList(QDir::Files, QDir::Name),
             (QStringList{str("Items.json"), str("Map001.json"), str("MapInfos.json")}));

    room.run("newProject.accept");
    QVERIFY(room.texts("data/Items").isEmpty());
}

void tst_Project::dataFilesOfASampleProjectAreSavedAsTheyAre_data()
{
    QTest::addColumn<int>("step");
    for (const int step : {2, 8, 19}) {
        QTest::addRow("step %d", step) << step;
    }
}

void tst_Project::dataFilesOfASampleProjectAreSavedAsTheyAre()
{
    QFETCH(int, step);
    const QDir sample(str(TUTORIAL_SOURCE_DIR "/resource/preset/step%1/data").arg(step));
    DataFiles::Texts texts;
    const QStringList names = sample.entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(sample.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        texts.insert(str("data/") + name, QString::fromUtf8(file.readAll()));
    }
    ProjectRoom room;
    room.create();
    QVERIFY(room.project.replaceFiles(texts));
    // Through all maps and back, one cell painted and taken back, all saved in between.
    for (int map = 0; map < room.texts("maps").size(); ++map) {
        room.choose("maps", map);
        room.choose("tiles", room.map()->tile(0, {3, 3}) == 1 ? 2 : 1);
        room.project.board().beginStroke();
        room.project.board().paint({{3, 3}});
        QVERIFY(room.project.isModified());
        room.run("project.save");
        room.run("edit.undo");
        room.run("project.save");
    }
    QCOMPARE(room.failures, QStringList());
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        QCOMPARE(room.bytes(str("Quest/") + text.key()), text.value().toUtf8());
    }
}

void tst_Project::statusTellsOfTheMap()
{
    ProjectRoom room;
    room.create();
    room.run("view.zoomOut");
    QCOMPARE(room.field("status").toString(), str("Village: 24 \u00d7 16 cells. Zoom 50 %."));
}

QTEST_GUILESS_MAIN(tst_Project)
#include "tst_Project.moc"
