#include "PracticeTranslator.h"
#include "Unprivileged.h"
#include "host/LessonSession.h"
#include "project/LessonProject.h"
#include "window/EditorWindowSet.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

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

class tst_LessonProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aReplyBecomesTheFolderAndTheLists();
    void filesStandInTheProjectOnceBothAreThere_data();
    void filesStandInTheProjectOnceBothAreThere();
    void leavesAnExistingFolderAlone();
    void ignoresWhatNoLessonWaitsFor();
    void dropsWhatAnEarlierLessonLeft();
    void saysWhyThereIsNoFolder();
    void waitsForAnotherProjectAfterAFailure();
    void filesThatCannotBeWrittenWaitForTheNextProject();
    void lateFilesLeaveAnotherProjectAlone();
    void saysWhenTheFilesDoNotCome();

private:
    /// The person makes a new project.
    void makeProject(const QString &name);

    QStringList m_problems;
    std::unique_ptr<QTemporaryDir> m_room;
    std::unique_ptr<EditorWindowSet> m_windows;
    std::unique_ptr<LessonProject> m_lesson;
    /// Folders into which the lesson's files were put.
    QStringList m_made;
    Files m_files;
};

void tst_LessonProject::initTestCase()
{
    m_files = sampleFiles();
    QVERIFY(m_files.contains(QStringLiteral("data/MapInfos.json")));
}

void tst_LessonProject::init()
{
    m_problems.clear();
    m_made.clear();
    m_room = std::make_unique<QTemporaryDir>();
    QStringList errors;
    m_windows = EditorWindowSet::create(QStringLiteral("ja_JP"), &errors);
    QVERIFY2(m_windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    m_windows->setProjectsFolder(m_room->path());
    m_lesson = std::make_unique<LessonProject>();
    connect(m_windows.get(), &EditorWindows::projectLeft, m_lesson.get(), &LessonProject::leaveProject);
    connect(m_windows.get(), &EditorWindows::projectCreated, m_lesson.get(), &LessonProject::takeProject);
    connect(m_windows.get(), &EditorWindows::problemFound, this,
            [this](const QString &text) { m_problems.append(text); });
    connect(m_lesson.get(), &LessonProject::complete, this, [this](const Files &files) {
        if (m_windows->replaceFiles(files)) {
            m_lesson->drop();
            m_made.append(m_windows->projectFolder());
        }
    });
}

void tst_LessonProject::cleanup()
{
    m_lesson.reset();
    m_windows.reset();
    m_room.reset();
}

void tst_LessonProject::makeProject(const QString &name)
{
    Project *project = m_windows->project();
    project->fields().setValue(QStringLiteral("newProject.name"), name, project->files());
    project->run(QStringLiteral("newProject.accept"), project->files());
    project->run(QStringLiteral("newProject.create"), project->files());
}

void tst_LessonProject::aReplyBecomesTheFolderAndTheLists()
{
    LessonSession session(m_windows.get());
    connect(&session, &LessonSession::filesReceived, m_lesson.get(), &LessonProject::takeFiles);
    m_lesson->begin();
    session.receive(reply(m_files));
    makeProject(kName);

    QCOMPARE(filesIn(m_room->filePath(kName)), m_files);
    Project *project = m_windows->project();
    QCOMPARE(project->name(), kName);
    QVERIFY(!project->isModified());
    const auto rows = project->sources().rows(QStringLiteral("maps"), project->files());
    QVERIFY(rows.size() >= 3);
    for (const Row &row : rows) {
        QVERIFY(row.text.startsWith(QStringLiteral("文")));
        QVERIFY(m_files.contains(QStringLiteral("data/Map00%1.json").arg(row.number)));
    }
    const auto items = project->sources().rows(QStringLiteral("data/Items"), project->files());
    QVERIFY(!items.isEmpty() && items.constFirst().text.startsWith(QStringLiteral("文")));
    // The ground of the first map is drawn with the editor's tiles.
    QVERIFY(!project->board().map()->layers[0].contains(GameMap::kEmpty));
}

void tst_LessonProject::filesStandInTheProjectOnceBothAreThere_data()
{
    QTest::addColumn<bool>("filesFirst");
    QTest::newRow("files first") << true;
    QTest::newRow("project first") << false;
}

void tst_LessonProject::filesStandInTheProjectOnceBothAreThere()
{
    QFETCH(bool, filesFirst);
    m_lesson->begin();
    if (filesFirst) {
        m_lesson->takeFiles(m_files);
        QVERIFY(QDir(m_room->path()).isEmpty());
        makeProject(kName);
    } else {
        makeProject(kName);
        QVERIFY(filesIn(m_room->filePath(kName)) != m_files);
        QVERIFY(m_made.isEmpty());
        m_lesson->takeFiles(m_files);
    }
    QCOMPARE(m_made, QStringList{m_room->filePath(kName)});
    QCOMPARE(filesIn(m_room->filePath(kName)), m_files);

    // The next project is the person's own.
    makeProject(QStringLiteral("Other"));
    m_lesson->takeFiles(m_files);
    QCOMPARE(m_made.size(), 1);
    QVERIFY(filesIn(m_room->filePath(QStringLiteral("Other"))) != m_files);
}

void tst_LessonProject::leavesAnExistingFolderAlone()
{
    const QString own = QStringLiteral("[\"my own\"]");
    QVERIFY(QDir(m_room->path()).mkpath(kName + QStringLiteral("/data")));
    QFile file(m_room->filePath(kName + QStringLiteral("/data/Items.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(own.toUtf8());
    file.close();

    m_lesson->begin();
    m_lesson->takeFiles(m_files);
    makeProject(kName);
    QCOMPARE(m_made, QStringList{m_room->filePath(QStringLiteral("Quest (2)"))});
    QCOMPARE(filesIn(m_room->filePath(kName)), (Files{{QStringLiteral("data/Items.json"), own}}));
    QCOMPARE(filesIn(m_room->filePath(QStringLiteral("Quest (2)"))), m_files);
}

void tst_LessonProject::ignoresWhatNoLessonWaitsFor()
{
    makeProject(kName);
    m_lesson->takeFiles(m_files);
    m_lesson->begin();
    m_lesson->takeFiles(m_files);
    m_lesson->drop();
    makeProject(kName);
    QVERIFY(m_made.isEmpty());
}

void tst_LessonProject::dropsWhatAnEarlierLessonLeft()
{
    m_lesson->begin();
    makeProject(QStringLiteral("Early"));
    m_lesson->begin();
    m_lesson->takeFiles(m_files);
    QVERIFY(m_made.isEmpty());
    makeProject(kName);
    QCOMPARE(m_made, QStringList{m_room->filePath(kName)});
    QVERIFY(filesIn(m_room->filePath(QStringLiteral("Early"))) != m_files);
}

void tst_LessonProject::saysWhyThereIsNoFolder()
{
    QFile inTheWay(m_room->filePath(QStringLiteral("file")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    m_windows->setProjectsFolder(inTheWay.fileName());
    m_lesson->begin();
    m_lesson->takeFiles(m_files);
    makeProject(kName);
    QVERIFY(m_made.isEmpty());
    QCOMPARE(m_problems.size(), 1);
    QVERIFY(m_problems.constFirst().contains(inTheWay.fileName()));
}

void tst_LessonProject::waitsForAnotherProjectAfterAFailure()
{
    m_lesson->begin();
    m_lesson->takeFiles(m_files);
    makeProject(QStringLiteral("a/b"));
    QCOMPARE(m_problems.size(), 1);
    makeProject(kName);
    QCOMPARE(m_problems.size(), 1);
    QCOMPARE(m_made.size(), 1);
    QCOMPARE(filesIn(m_room->filePath(kName)), m_files);
}

void tst_LessonProject::filesThatCannotBeWrittenWaitForTheNextProject()
{
    m_lesson->begin();
    makeProject(QStringLiteral("Locked"));
    const QByteArray data = QFile::encodeName(m_room->filePath(QStringLiteral("Locked/data")));
    QCOMPARE(chmod(qPrintable(m_room->path()), 0755), 0);
    QCOMPARE(chmod(data.constData(), 0555), 0);
    {
        const Unprivileged nobody;
        m_lesson->takeFiles(m_files);
    }
    QCOMPARE(m_problems.size(), 1);
    QVERIFY(m_made.isEmpty());
    makeProject(kName);
    QCOMPARE(m_made, QStringList{m_room->filePath(kName)});
    QCOMPARE(filesIn(m_room->filePath(kName)), m_files);
}

void tst_LessonProject::lateFilesLeaveAnotherProjectAlone()
{
    makeProject(QStringLiteral("Own"));
    const Files own = filesIn(m_room->filePath(QStringLiteral("Own")));
    m_lesson->begin();
    makeProject(kName);
    Project *project = m_windows->project();
    project->sources().setCurrentRow(QStringLiteral("projects"), 0, project->files());
    project->run(QStringLiteral("project.open"), project->files());
    QCOMPARE(project->name(), QStringLiteral("Own"));
    m_lesson->takeFiles(m_files);
    QVERIFY(m_made.isEmpty());
    QCOMPARE(filesIn(m_room->filePath(QStringLiteral("Own"))), own);
    // They are for the next project that the person makes.
    makeProject(QStringLiteral("Next"));
    QCOMPARE(m_made, QStringList{m_room->filePath(QStringLiteral("Next"))});
    QCOMPARE(filesIn(m_room->filePath(QStringLiteral("Next"))), m_files);
}

void tst_LessonProject::saysWhenTheFilesDoNotCome()
{
    const PracticeTranslator translator(QStringLiteral("ja_JP"));
    QSignalSpy failed(m_lesson.get(), &LessonProject::failed);
    m_lesson->begin();
    makeProject(kName);
    QVERIFY(failed.wait(LessonProject::kFilesMs + 3000));
    const QString error = failed.constFirst().constFirst().toString();
    QVERIFY2(error.startsWith(QStringLiteral("レッスンのデータファイルが届いていないため、「Quest」")),
             qPrintable(error));
    QVERIFY(m_made.isEmpty());
    // Late, and not too late.
    m_lesson->takeFiles(m_files);
    QCOMPARE(m_made.size(), 1);
    QCOMPARE(filesIn(m_room->filePath(kName)), m_files);
}

QTEST_MAIN(tst_LessonProject)
#include "tst_LessonProject.moc"
