#include "ProjectFixture.h"

#include <QDir>

/// A project that is made: its name, its place, and the files that it begins with.
class tst_NewProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createWritesTheStartFilesAndOpensThem();
    void startFilesAreThoseOfTheSampleProject();
    void aNameThatIsTakenGetsANumber();
    void whatIsBeingMadeIsMadeOnce();
    void aNameThatIsNoneIsRefused();
    void whatCannotBeMadeIsKnownBefore();
    void aProjectThatCannotBeMadeLeavesWhatWasOpen();
    void aDroppedNameIsOfferedNoMore();
    void theDialogShowsThePlaceThatIsUsed();
    void aPlaceWithoutARootIsBelowThatOfProjects();
    void aPlaceThatWasOpenedFromIsOfferedAgain();
};

void tst_NewProject::createWritesTheStartFilesAndOpensThem()
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

void tst_NewProject::startFilesAreThoseOfTheSampleProject()
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

void tst_NewProject::aNameThatIsTakenGetsANumber()
{
    ProjectRoom room;
    room.create();
    room.create();
    QCOMPARE(room.project.name(), str("Quest (2)"));
    QCOMPARE(room.texts("maps").size(), 4);
    QCOMPARE(room.texts("projects"), (QStringList{str("Quest"), str("Quest (2)")}));
}

void tst_NewProject::whatIsBeingMadeIsMadeOnce()
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

void tst_NewProject::aNameThatIsNoneIsRefused()
{
    ProjectRoom room;
    QSignalSpy created(&room.project, &Project::created);
    const QVariant place = room.field("newProject.location");
    room.setField("newProject.location", str("elsewhere"));
    room.create("a/b");
    QCOMPARE(room.failures.size(), 1);
    // Nor is its place the one that is offered.
    room.run("newProject.begin");
    QCOMPARE(room.field("newProject.location"), place);
    QVERIFY2(room.failures.constFirst().contains(str("a/b")), qPrintable(room.failures.constFirst()));
    QVERIFY(!room.project.isOpen());
    QVERIFY(created.isEmpty());
}

void tst_NewProject::whatCannotBeMadeIsKnownBefore()
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

void tst_NewProject::aProjectThatCannotBeMadeLeavesWhatWasOpen()
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

void tst_NewProject::aDroppedNameIsOfferedNoMore()
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

void tst_NewProject::theDialogShowsThePlaceThatIsUsed()
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

void tst_NewProject::aPlaceWithoutARootIsBelowThatOfProjects()
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

void tst_NewProject::aPlaceThatWasOpenedFromIsOfferedAgain()
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

QTEST_GUILESS_MAIN(tst_NewProject)
#include "tst_NewProject.moc"
