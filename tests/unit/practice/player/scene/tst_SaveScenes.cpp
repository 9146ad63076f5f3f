#include "SceneRun.h"
#include "player/scene/SaveFiles.h"
#include "player/scene/SaveScene.h"
#include "player/scene/TitleScene.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace player;

namespace {

/// A game that stands on a map, with a folder for saved games.
struct SaveGround
{
    QTemporaryDir folder;
    SlimeGame small;
    GameSettings settings;
    SaveFiles files{folder.filePath(QStringLiteral("saves"))};

    SaveGround()
    {
        MapData map;
        map.id = 3;
        map.name = QStringLiteral("Amberfield");
        map.size = QSize(4, 3);
        map.tiles = QVector<int>(4 * 3 * MapData::kLayers, 1);
        map.floor = QVector<bool>(12, true);
        small.data->maps.insert(map);
        small.data->fingerprint = QStringLiteral("one");
        small.data->system.startMap = 3;
        small.begin();
        small.state.gold = 55;
        small.state.ticks = 60 * 3661;
        settings.saveFolder = folder.filePath(QStringLiteral("saves"));
    }

    void put(int slot, const QByteArray &bytes) const
    {
        QDir().mkpath(settings.saveFolder);
        QFile file(files.path(slot));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

} // namespace

class tst_SaveScenes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGameIsSavedAndGoneOnWith();
    void aSlotTellsPlacePartyAndTime();
    void theNewestSaveIsPointedAt_data();
    void theNewestSaveIsPointedAt();
    void whatIsThereIsReplacedOnlyWhenAsked();
    void aBrokenSaveSaysSoAndIsNotLoaded_data();
    void aBrokenSaveSaysSoAndIsNotLoaded();
    void aSaveOfAnotherVersionAsksFirst();
    void aFolderThatCannotBeWrittenIsTold();
    void withoutSavesThereIsNothingToContinue();
    void theTitleHasTheProjectsCommands();
    void aTitleThatNobodyHasMadeHasTheProjectsName_data();
    void aTitleThatNobodyHasMadeHasTheProjectsName();
    void wildTitleCommandsLeaveANewGame();
};

void tst_SaveScenes::aGameIsSavedAndGoneOnWith()
{
    SaveGround ground;
    SceneRun run(ground.small, ground.settings);
    run.open<SaveScene>();
    run.press(GameKey::kDown);
    run.act();
    QCOMPARE(run.help(), QStringLiteral("The game is saved."));
    QVERIFY(!ground.files.read(0, *ground.small.data).state);
    const SaveSlot slot = ground.files.read(1, *ground.small.data);
    QVERIFY2(slot.state.has_value(), qPrintable(slot.error));
    QCOMPARE(slot.state->gold, 55);
    QVERIFY(slot.warning.isEmpty());

    SceneRun title(ground.small, ground.settings);
    title.game.state().gold = 0;
    title.game.begin(std::make_unique<TitleScene>());
    title.wait(3);
    QVERIFY(title.choose(QStringLiteral("Continue")));
    title.wait(1);
    QCOMPARE(title.role(), QStringLiteral("load"));
    // The one that is there is pointed at.
    QCOMPARE(title.list()->current, 1);
    QVERIFY(title.choose(QStringLiteral("2  Amberfield")));
    title.wait(2);
    QCOMPARE(title.game.state().gold, 55);
    QCOMPARE(title.game.state().map, 3);
}

void tst_SaveScenes::aSlotTellsPlacePartyAndTime()
{
    SaveGround ground;
    QString error;
    QVERIFY2(ground.files.write(0, ground.small.state, *ground.small.data, &error), qPrintable(error));
    SceneRun run(ground.small, ground.settings);
    run.open<SaveScene>();
    QCOMPARE(run.rows().at(0), QStringLiteral("1  Amberfield · Mila Level 1, Toma"));
    QCOMPARE(run.list()->rows.at(0).rightText, QStringLiteral("1:01:01"));
    QCOMPARE(run.rows().at(1), QStringLiteral("2  —"));
    QCOMPARE(run.rows().size(), SaveFiles::kSlots);
}

void tst_SaveScenes::theNewestSaveIsPointedAt_data()
{
    QTest::addColumn<bool>("saves");
    QTest::newRow("to save") << true;
    QTest::newRow("to load") << false;
}

void tst_SaveScenes::theNewestSaveIsPointedAt()
{
    QFETCH(bool, saves);
    SaveGround ground;
    const QDateTime now = QDateTime::currentDateTime();
    const QVector<int> hours = {5, 2, 8};
    for (int slot = 0; slot < hours.size(); ++slot) {
        QString error;
        QVERIFY2(ground.files.write(slot, ground.small.state, *ground.small.data, &error), qPrintable(error));
        QFile file(ground.files.path(slot));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(now.addSecs(-3600 * hours.at(slot)), QFileDevice::FileModificationTime));
    }
    ground.put(3, "no game at all");
    SceneRun run(ground.small, ground.settings);
    run.open<SaveScene>(saves ? SaveScene::Mode::kSave : SaveScene::Mode::kLoad);
    QCOMPARE(run.list()->current, 1);
}

void tst_SaveScenes::whatIsThereIsReplacedOnlyWhenAsked()
{
    SaveGround ground;
    ground.put(0, "keep");
    SceneRun run(ground.small, ground.settings);
    run.open<SaveScene>();
    run.act();
    QCOMPARE(run.help(), QStringLiteral("Replace what is saved here?"));
    // The same key once more.
    run.act();
    QVERIFY(!ground.files.read(0, *ground.small.data).state);
    run.act();
    QVERIFY(run.choose(QStringLiteral("Yes")));
    QVERIFY(ground.files.read(0, *ground.small.data).state.has_value());
}

void tst_SaveScenes::aBrokenSaveSaysSoAndIsNotLoaded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("half a fi");
    QTest::newRow("a list") << QByteArray("[1, 2]");
    QTest::newRow("an empty object") << QByteArray("{}");
    QTest::newRow("another form") << QByteArray("{\"form\": 99, \"map\": 3}");
}

void tst_SaveScenes::aBrokenSaveSaysSoAndIsNotLoaded()
{
    QFETCH(QByteArray, bytes);
    SaveGround ground;
    ground.put(0, bytes);
    const SaveSlot slot = ground.files.read(0, *ground.small.data);
    QVERIFY(!slot.isEmpty);
    QVERIFY(!slot.state);
    QVERIFY(!slot.error.isEmpty());
    SceneRun run(ground.small, ground.settings);
    run.open<SaveScene>(SaveScene::Mode::kLoad);
    Scene *scene = run.game.scene();
    QCOMPARE(run.help(), slot.error);
    run.act();
    QCOMPARE(run.game.scene(), scene);
}

void tst_SaveScenes::aSaveOfAnotherVersionAsksFirst()
{
    SaveGround ground;
    QString error;
    QVERIFY(ground.files.write(0, ground.small.state, *ground.small.data, &error));
    ground.small.data->fingerprint = QStringLiteral("two");
    ground.small.state.gold = 0;
    SceneRun run(ground.small, ground.settings);
    run.open<SaveScene>(SaveScene::Mode::kLoad);
    const QString warning = ground.files.read(0, *ground.small.data).warning;
    QVERIFY(!warning.isEmpty());
    QCOMPARE(run.help(), warning);
    run.act();
    QCOMPARE(run.role(), QStringLiteral("choices"));
    QVERIFY(run.choose(QStringLiteral("No")));
    QCOMPARE(run.game.state().gold, 0);
    run.act();
    QVERIFY(run.choose(QStringLiteral("Yes")));
    QCOMPARE(run.game.state().gold, 55);
}

void tst_SaveScenes::aFolderThatCannotBeWrittenIsTold()
{
    SaveGround ground;
    // A file stands where the folder is to be.
    QFile file(ground.settings.saveFolder);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QString error;
    QVERIFY(!ground.files.write(0, ground.small.state, *ground.small.data, &error));
    QVERIFY2(error.contains(QStringLiteral("could not be saved")), qPrintable(error));
    QVERIFY(!SaveFiles({}).write(0, ground.small.state, *ground.small.data, &error));
    QVERIFY2(error.contains(QStringLiteral("no place to save")), qPrintable(error));
}

void tst_SaveScenes::withoutSavesThereIsNothingToContinue()
{
    SaveGround ground;
    SceneRun run(ground.small, ground.settings);
    run.game.begin(std::make_unique<TitleScene>());
    run.wait(3);
    QCOMPARE(run.rows(),
             QStringList({QStringLiteral("New game"), QStringLiteral("Continue"), QStringLiteral("Quit")}));
    QVERIFY(run.choose(QStringLiteral("Continue")));
    QCOMPARE(run.role(), QStringLiteral("title"));
    QCOMPARE(run.help(), QStringLiteral("There is no saved game yet."));
    QVERIFY(!run.game.isOver());
    QVERIFY(run.choose(QStringLiteral("Quit")));
    QVERIFY(run.game.isOver());
}

void tst_SaveScenes::theTitleHasTheProjectsCommands()
{
    SaveGround ground;
    SystemEntry &system = ground.small.data->system;
    system.titleBackdrop = QStringLiteral("lamp");
    system.showsTitle = true;
    system.gameTitle = QStringLiteral("The lamp");
    system.titleCommands = {{QStringLiteral("newGame"), QStringLiteral("Set out")},
                            {QStringLiteral("credits"), {}}};
    SceneRun run(ground.small, ground.settings);
    run.game.begin(std::make_unique<TitleScene>());
    run.wait(3);
    QCOMPARE(run.game.frame().title, QStringLiteral("lamp"));
    QCOMPARE(run.game.frame().panel("gameTitle")->title, QStringLiteral("The lamp"));
    QCOMPARE(run.rows(), QStringList({QStringLiteral("Set out"), QStringLiteral("Credits")}));
    QVERIFY(!run.isEnabled(1));
}

void tst_SaveScenes::aTitleThatNobodyHasMadeHasTheProjectsName_data()
{
    QTest::addColumn<QString>("backdrop");
    QTest::addColumn<QString>("gameTitle");
    QTest::addColumn<QString>("seen");
    QTest::newRow("nothing at all") << QString() << QString() << QStringLiteral("Lanterns");
    QTest::newRow("only a name") << QString() << QStringLiteral("The lamp") << QStringLiteral("The lamp");
    // Its maker has chosen a picture, and no title on it.
    QTest::newRow("only a picture") << QStringLiteral("lamp") << QStringLiteral("The lamp") << QString();
}

void tst_SaveScenes::aTitleThatNobodyHasMadeHasTheProjectsName()
{
    QFETCH(QString, backdrop);
    QFETCH(QString, gameTitle);
    SaveGround ground;
    ground.settings.name = QStringLiteral("Lanterns");
    ground.small.data->system.titleBackdrop = backdrop;
    ground.small.data->system.gameTitle = gameTitle;
    SceneRun run(ground.small, ground.settings);
    run.game.begin(std::make_unique<TitleScene>());
    run.wait(3);
    const Panel *const title = run.game.frame().panel("gameTitle");
    QTEST(title != nullptr ? title->title : QString(), "seen");
}

void tst_SaveScenes::wildTitleCommandsLeaveANewGame()
{
    SaveGround ground;
    ground.small.data->system.titleCommands = {{QStringLiteral("dance"), QStringLiteral("Dance")}};
    SceneRun run(ground.small, ground.settings);
    run.game.begin(std::make_unique<TitleScene>());
    run.wait(3);
    QCOMPARE(run.rows(), QStringList({QStringLiteral("New game")}));
}

QTEST_GUILESS_MAIN(tst_SaveScenes)
#include "tst_SaveScenes.moc"
