#include "ProjectFixture.h"
#include "Unprivileged.h"
#include "project/MapTree.h"

#include <QDir>

#include <sys/stat.h>

/// The project from the dialog that makes it to the files that it leaves behind.
class tst_Project : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOpenAtFirst();
    void createWritesTheStartFilesAndOpensThem();
    void startFilesAreThoseOfTheSampleProject();
    void aNameThatIsTakenGetsANumber();
    void whatIsBeingMadeIsMadeOnce();
    void aNameThatIsNoneIsRefused();
    void whatCannotBeMadeIsKnownBefore();
    void aProjectThatCannotBeMadeLeavesWhatWasOpen();
    void aDroppedNameIsOfferedNoMore();
    void everyCommandIsSafeWithNoProject();
    void everyNameIsKnown();
    void whatWasDrawnIsThereAgain();
    void undoAndRedoShowTheMapThatTheyChange();
    void savingClearsModified();
    void aFailedSaveIsToldAndLosesNothing();
    void theDialogShowsThePlaceThatIsUsed();
    void aPlaceWithoutARootIsBelowThatOfProjects();
    void aPlaceThatWasOpenedFromIsOfferedAgain();
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

void tst_Project::createWritesTheStartFilesAndOpensThem()
{
    ProjectRoom room;
    QSignalSpy created(&room.project, &Project::created);
    const QString games = room.path(str("games"));
    room.setField("newProject.name", str("Quest"));
    room.setField("newProject.location", games);
    QCOMPARE(room.field("newProject.location").toString(), games);
    room.run("newProject.accept");
    QVERIFY(!room.project.isOpen());
    room.run("newProject.create");
    QCOMPARE(room.failures, QStringList());
    QVERIFY(room.project.isOpen());
    QVERIFY(!room.project.isModified());
    QCOMPARE(room.project.name(), str("Quest"));
    QCOMPARE(created.size(), 1);
    QCOMPARE(created.constFirst(), QVariantList{str("Quest")});
    QCOMPARE(room.texts("maps"),
             (QStringList{str("Village"), str("Forest path"), str("Harbor"), str("Oasis")}));
    QCOMPARE(room.row("maps"), 0);
    const QVector<Row> rows = room.project.sources().rows(str("maps"), room.layer());
    QCOMPARE(QVector<int>({rows.at(0).level, rows.at(1).level, rows.at(2).level, rows.at(3).level}),
             QVector<int>({0, 1, 1, 0}));
    QCOMPARE(room.project.files().folder(), games + str("/Quest"));
    QVERIFY(QFile::exists(games + str("/Quest/data/Map004.json")));
}

void tst_Project::startFilesAreThoseOfTheSampleProject()
{
    ProjectRoom room;
    room.create();
    const QDir sample(str(TUTORIAL_SOURCE_DIR "/resource/preset/step2/data"));
    const auto keysOf = [](const QJsonValue &value) {
        return value.toObject().keys();
    };
    QStringList names = sample.entryList(QDir::Files);
    for (int map = 2; map < 10; ++map) {
        names.removeAll(str("Map00%1.json").arg(map));
    }
    QVERIFY(names.size() > 10);
    for (const QString &name : qAsConst(names)) {
        QFile file(sample.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonDocument wanted = QJsonDocument::fromJson(file.readAll());
        const QJsonValue made = room.project.files().file(str("data/") + name);
        QVERIFY2(!made.isUndefined(), qPrintable(name));
        QCOMPARE(made.isArray(), wanted.isArray());
        QCOMPARE(keysOf(made), wanted.object().keys());
        if (name == str("MapInfos.json") || name == str("Tilesets.json")) {
            QCOMPARE(keysOf(made.toArray().at(1)), keysOf(wanted.array().at(1)));
        }
    }
}

void tst_Project::aNameThatIsTakenGetsANumber()
{
    ProjectRoom room;
    room.create();
    room.create();
    QCOMPARE(room.project.name(), str("Quest (2)"));
    QCOMPARE(room.texts("maps").size(), 4);
    QCOMPARE(room.texts("projects"), (QStringList{str("Quest"), str("Quest (2)")}));
}

void tst_Project::whatIsBeingMadeIsMadeOnce()
{
    ProjectRoom room;
    const QString games = room.path(str("games"));
    room.setField("newProject.location", games);
    room.setField("newProject.name", str("Quest"));
    room.run("newProject.accept");
    const QJsonObject beingMade = room.project.states().save();
    room.run("newProject.create");
    // The window that makes it comes back with the state of then, in this run or another.
    room.project.files().close();
    room.project.states().load(beingMade);
    room.run("newProject.create");
    QCOMPARE(room.project.name(), str("Quest"));
    QCOMPARE(QDir(games).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{str("Quest")});
    // One that is gone is made again.
    QVERIFY(QDir(games + str("/Quest")).removeRecursively());
    room.project.states().load(beingMade);
    room.run("newProject.create");
    QCOMPARE(room.project.name(), str("Quest"));
    QCOMPARE(room.texts("maps").size(), 4);
    // And whoever asks for another one gets another one.
    room.run("newProject.accept");
    room.run("newProject.create");
    QCOMPARE(room.project.name(), str("Quest (2)"));
    QCOMPARE(room.failures, QStringList());
}

void tst_Project::aNameThatIsNoneIsRefused()
{
    ProjectRoom room;
    QSignalSpy created(&room.project, &Project::created);
    room.create("a/b");
    QCOMPARE(room.failures.size(), 1);
    QVERIFY2(room.failures.constFirst().contains(str("a/b")), qPrintable(room.failures.constFirst()));
    QVERIFY(!room.project.isOpen());
    QVERIFY(created.isEmpty());
}

void tst_Project::whatCannotBeMadeIsKnownBefore()
{
    ProjectRoom room;
    const auto canBeMade = [&room](const char *name, const QString &location) {
        room.setField("newProject.name", str(name));
        room.setField("newProject.location", location);
        return room.project.commands().canRun(str("newProject.accept"), room.layer());
    };
    const QString games = room.path(str("games/of/mine"));
    QVERIFY(canBeMade("Quest", games));
    QCOMPARE(room.field("newProject.folder").toString(), str("Quest"));
    for (const char *name : {"a/b", "..", "/"}) {
        QVERIFY2(!canBeMade(name, games), name);
        QCOMPARE(room.field("newProject.folder").toString(), str("Choose another name, without “/”."));
    }
    QVERIFY(!canBeMade("", games));
    // A file is no place for a folder.
    QFile file(room.path(str("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!canBeMade("Quest", file.fileName()));
    QVERIFY(!canBeMade("Quest", file.fileName() + str("/games")));
    QCOMPARE(room.field("newProject.folder").toString(), str("No folder can be made at this place."));
}

void tst_Project::aProjectThatCannotBeMadeLeavesWhatWasOpen()
{
    ProjectRoom room;
    room.create();
    room.choose("tiles", 4);
    room.project.board().paint({{0, 0}});
    room.run("newProject.accept");
    QVERIFY(!room.project.isOpen());
    room.create("a/b");
    QCOMPARE(room.failures.size(), 1);
    QCOMPARE(room.project.name(), str("Quest"));
    QCOMPARE(room.map()->tile(0, {0, 0}), 4);
    QVERIFY(room.project.isModified());
    room.run("project.save");
    QVERIFY(!room.project.isModified());

    // What is past is not taken back.
    room.run("newProject.accept");
    room.create("Other");
    room.create("a/b");
    QCOMPARE(room.project.name(), str("Other"));
}

void tst_Project::aDroppedNameIsOfferedNoMore()
{
    ProjectRoom room;
    room.create();
    room.setField("newProject.name", str("Other"));
    room.setField("newProject.location", str("/elsewhere"));
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.name").toString(), str("Quest"));
    QCOMPARE(room.field("newProject.location").toString(), room.folder());
    QSignalSpy changed(&room.project, &Project::changed);
    room.project.setProjectsFolder(room.path(str("games")));
    QVERIFY(!changed.isEmpty());
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.location").toString(), room.path(str("games")));
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

void tst_Project::theDialogShowsThePlaceThatIsUsed()
{
    ProjectRoom room;
    const QString games = room.path(str("elsewhere"));
    const QSignalSpy changed(&room.project, &Project::changed);
    room.project.setProjectsFolder(games);
    QCOMPARE(changed.size(), 1);
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.location").toString(), games);
    const int before = changed.size();
    room.setField("newProject.name", str("Quest"));
    QVERIFY(changed.size() > before);
    QCOMPARE(room.field("newProject.folder").toString(), str("Quest"));
    room.run("newProject.create");
    QCOMPARE(room.project.files().folder(), games + str("/Quest"));
    // The name is taken now.
    QCOMPARE(room.field("newProject.folder").toString(), str("Quest (2)"));
    room.run("newProject.create");
    QCOMPARE(room.project.files().folder(), games + str("/Quest (2)"));
    room.setField("newProject.location", room.path(str("more")));
    QCOMPARE(room.field("newProject.folder").toString(), str("Quest"));
    room.setField("newProject.name", QString());
    QCOMPARE(room.field("newProject.folder").toString(), QString());
}

void tst_Project::aPlaceWithoutARootIsBelowThatOfProjects()
{
    ProjectRoom room;
    const QString games = room.path(str("games"));
    room.project.setProjectsFolder(games);
    room.run("newProject.begin");
    room.setField("newProject.name", str("Quest"));
    room.setField("newProject.location", str("mine/../of May "));
    room.run("newProject.create");
    QCOMPARE(room.project.files().folder(), games + str("/of May/Quest"));
    // It is shown as what it is, and found there again.
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.location").toString(), games + str("/of May"));
    QCOMPARE(room.texts("projects"), QStringList{str("Quest")});
    room.setField("newProject.location", QString());
    room.run("newProject.create");
    QCOMPARE(room.project.files().folder(), games + str("/Quest"));
    QVERIFY(!QFile::exists(QDir::current().filePath(str("of May"))));
}

void tst_Project::aPlaceThatWasOpenedFromIsOfferedAgain()
{
    ProjectRoom room;
    const QString games = room.path(str("games"));
    room.project.setProjectsFolder(games);
    room.run("newProject.create");
    room.project.setProjectsFolder(room.path(str("others")));
    room.setField("newProject.location", games);
    QCOMPARE(room.texts("projects"), QStringList{str("My first game")});
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.location").toString(), room.path(str("others")));
    room.setField("newProject.location", games);
    room.run("project.open");
    QCOMPARE(room.project.files().folder(), games + str("/My first game"));
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.location").toString(), games);
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
