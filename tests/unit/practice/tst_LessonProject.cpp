#include "PracticeTranslator.h"
#include "host/LessonSession.h"
#include "project/LessonProject.h"
#include "window/EditorWindowSet.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Files = QMap<QString, QString>;

const QString kName = QStringLiteral("Quest");

/// The data files of the sample project at a step, with texts of their own.
Files sampleFiles()
{
    Files files;
    const QDir directory(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset/step8/data"));
    const QStringList names = directory.entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(
                QStringLiteral("data/") + name,
                QString::fromUtf8(file.readAll()).replace(QStringLiteral("\"#"), QStringLiteral("\"文")));
        }
    }
    return files;
}

/// The answer of the companion that holds @p files.
QString reply(const Files &files)
{
    QJsonObject members;
    for (auto file = files.begin(); file != files.end(); ++file) {
        members.insert(file.key(), file.value());
    }
    return QStringLiteral("feedbackPresetData\x01") +
           QString::fromUtf8(QJsonDocument(members).toJson(QJsonDocument::Compact));
}

Files filesIn(const QString &folder)
{
    Files files;
    const QStringList names = QDir(folder + QStringLiteral("/data")).entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(QStringLiteral("%1/data/%2").arg(folder, name));
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(QStringLiteral("data/") + name, QString::fromUtf8(file.readAll()));
        }
    }
    return files;
}

} // namespace

class TestLessonProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aReplyBecomesTheFolderAndTheLists();
    void writesOnceBothHalvesAreThere_data();
    void writesOnceBothHalvesAreThere();
    void leavesAnExistingFolderAlone();
    void ignoresWhatNoLessonWaitsFor();
    void dropsWhatAnEarlierLessonLeft();
    void saysWhyThereIsNoFolder();
    void waitsForAnotherPlaceAfterAFailure();
    void saysWhenTheFilesDoNotCome();

private:
    Files m_files;
};

void TestLessonProject::initTestCase()
{
    qRegisterMetaType<Files>("QMap<QString,QString>");
    m_files = sampleFiles();
    QVERIFY(m_files.contains(QStringLiteral("data/MapInfos.json")));
}

void TestLessonProject::aReplyBecomesTheFolderAndTheLists()
{
    const QTemporaryDir room;
    QStringList errors;
    const auto windows = EditorWindowSet::create(QStringLiteral("ja_JP"), &errors);
    QVERIFY2(windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    windows->setProjectsFolder(room.path());
    EditorProject *project = windows->project();
    QCOMPARE(project->field(QStringLiteral("newProject.location")).toString(), room.path());
    LessonSession session(windows.get());
    LessonProject lessonProject;
    connect(&session, &LessonSession::filesReceived, &lessonProject, &LessonProject::takeFiles);
    connect(windows.get(), &EditorWindows::projectCreated, &lessonProject, &LessonProject::takePlace);
    connect(&lessonProject, &LessonProject::made, windows.get(),
            [&windows](const QString & /*path*/, const Files &files) { windows->showProject(files); });

    lessonProject.begin();
    session.receive(reply(m_files));
    project->setField(QStringLiteral("newProject.name"), kName);
    project->run(QStringLiteral("newProject.accept"));
    project->run(QStringLiteral("newProject.create"));

    QCOMPARE(filesIn(room.filePath(kName)), m_files);
    QCOMPARE(project->name(), kName);
    const auto rows = project->rows(QStringLiteral("maps"));
    const ProjectContents contents = ProjectContents::read(m_files, 1);
    QCOMPARE(rows.size(), contents.maps.size());
    QVERIFY(rows.size() >= 3);
    for (int row = 0; row < rows.size(); ++row) {
        QCOMPARE(rows.at(row).text, contents.maps.at(row).name);
        QVERIFY(rows.at(row).text.startsWith(QStringLiteral("文")));
    }
    const auto items = project->rows(QStringLiteral("items"));
    QCOMPARE(items.size(), contents.names.value(QStringLiteral("items")).size());
    QVERIFY(!items.isEmpty() && items.constFirst().text.startsWith(QStringLiteral("文")));
    // The ground of the first map is drawn with the editor's tiles.
    QVERIFY(!project->map()->layers[0].contains(GameMap::kEmpty));
}

void TestLessonProject::writesOnceBothHalvesAreThere_data()
{
    QTest::addColumn<bool>("filesFirst");
    QTest::newRow("files first") << true;
    QTest::newRow("place first") << false;
}

void TestLessonProject::writesOnceBothHalvesAreThere()
{
    QFETCH(bool, filesFirst);
    const QTemporaryDir room;
    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    project.begin();
    if (filesFirst) {
        project.takeFiles(m_files);
    } else {
        project.takePlace(room.path(), kName);
    }
    QVERIFY(made.isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
    if (filesFirst) {
        project.takePlace(room.path(), kName);
    } else {
        project.takeFiles(m_files);
    }
    QCOMPARE(made.size(), 1);
    QCOMPARE(made.constFirst().constFirst().toString(), room.filePath(kName));
    QCOMPARE(filesIn(room.filePath(kName)), m_files);

    // The next project is the person's own.
    project.takePlace(room.path(), QStringLiteral("Other"));
    project.takeFiles(m_files);
    QCOMPARE(made.size(), 1);
}

void TestLessonProject::leavesAnExistingFolderAlone()
{
    const QTemporaryDir room;
    const QString own = QStringLiteral("[\"my own\"]");
    QVERIFY(QDir(room.path()).mkpath(kName + QStringLiteral("/data")));
    QFile file(room.filePath(kName + QStringLiteral("/data/Items.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(own.toUtf8());
    file.close();

    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    project.begin();
    project.takeFiles(m_files);
    project.takePlace(room.path(), kName);
    QCOMPARE(made.size(), 1);
    QCOMPARE(made.constFirst().constFirst().toString(), room.filePath(QStringLiteral("Quest (2)")));
    QCOMPARE(filesIn(room.filePath(kName)), (Files{{QStringLiteral("data/Items.json"), own}}));
    QCOMPARE(filesIn(room.filePath(QStringLiteral("Quest (2)"))), m_files);
}

void TestLessonProject::ignoresWhatNoLessonWaitsFor()
{
    const QTemporaryDir room;
    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    project.takePlace(room.path(), kName);
    project.takeFiles(m_files);
    project.begin();
    project.takeFiles(m_files);
    project.drop();
    project.takePlace(room.path(), kName);
    QVERIFY(made.isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
}

void TestLessonProject::dropsWhatAnEarlierLessonLeft()
{
    const QTemporaryDir room;
    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    project.begin();
    project.takePlace(room.path(), QStringLiteral("Early"));
    project.begin();
    project.takeFiles(m_files);
    QVERIFY(made.isEmpty());
    project.takePlace(room.path(), kName);
    QCOMPARE(made.size(), 1);
    QCOMPARE(QDir(room.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{kName});
}

void TestLessonProject::saysWhyThereIsNoFolder()
{
    const QTemporaryDir room;
    QFile inTheWay(room.filePath(QStringLiteral("file")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    QSignalSpy failed(&project, &LessonProject::failed);
    project.begin();
    project.takeFiles(m_files);
    project.takePlace(inTheWay.fileName(), kName);
    QVERIFY(made.isEmpty());
    QCOMPARE(failed.size(), 1);
    QVERIFY(failed.constFirst().constFirst().toString().contains(inTheWay.fileName()));
}

void TestLessonProject::waitsForAnotherPlaceAfterAFailure()
{
    const QTemporaryDir room;
    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    QSignalSpy failed(&project, &LessonProject::failed);
    project.begin();
    project.takeFiles(m_files);
    project.takePlace(room.path(), QStringLiteral("a/b"));
    QCOMPARE(failed.size(), 1);
    project.takePlace(room.path(), kName);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(made.size(), 1);
    QCOMPARE(filesIn(room.filePath(kName)), m_files);
}

void TestLessonProject::saysWhenTheFilesDoNotCome()
{
    const PracticeTranslator translator(QStringLiteral("ja_JP"));
    const QTemporaryDir room;
    LessonProject project;
    QSignalSpy made(&project, &LessonProject::made);
    QSignalSpy failed(&project, &LessonProject::failed);
    project.begin();
    project.takePlace(room.path(), kName);
    QVERIFY(failed.wait(LessonProject::kFilesMs + 3000));
    const QString error = failed.constFirst().constFirst().toString();
    QVERIFY2(error.startsWith(QStringLiteral("レッスンのデータファイルが届いていないため、「Quest」")),
             qPrintable(error));
    QVERIFY(made.isEmpty());
    // Late, and not too late.
    project.takeFiles(m_files);
    QCOMPARE(made.size(), 1);
    QCOMPARE(filesIn(room.filePath(kName)), m_files);
}

QTEST_MAIN(TestLessonProject)
#include "tst_LessonProject.moc"
