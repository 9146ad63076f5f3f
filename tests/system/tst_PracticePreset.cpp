#include "host/HostLink.h"
#include "host/LessonSession.h"
#include "project/LessonProject.h"
#include "window/EditorWindowSet.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

/// From the command of a lesson's step to the project on disk and in the windows, with the real companion.
class tst_PracticePreset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aStepsCommandBringsTheProjectInTheLearnersLanguage_data();
    void aStepsCommandBringsTheProjectInTheLearnersLanguage();

private:
    QTemporaryDir m_settings;
};

namespace {

constexpr int kSoonMs = 60000;

QStringList rowsOf(Project &project, const char *source)
{
    QStringList texts;
    const QVector<Row> rows = project.sources().rows(QString::fromLatin1(source), project.files());
    for (const Row &row : rows) {
        texts.append(row.text);
    }
    return texts;
}

} // namespace

void tst_PracticePreset::initTestCase()
{
    // The companion keeps its language in its settings.
    QVERIFY(m_settings.isValid());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_settings.path()));
}

void tst_PracticePreset::aStepsCommandBringsTheProjectInTheLearnersLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("maps");
    QTest::addColumn<QStringList>("heroes");
    QTest::newRow("English") << QStringLiteral("en_US")
                             << QStringList{QStringLiteral("Amberfield"),    QStringLiteral("Mila's house"),
                                            QStringLiteral("Shop"),          QStringLiteral("Inn"),
                                            QStringLiteral("Hilltop"),       QStringLiteral("Forest path"),
                                            QStringLiteral("Mine entrance"), QStringLiteral("Old mine")}
                             << QStringList{QStringLiteral("Mila"), QStringLiteral("Toma")};
    QTest::newRow("Japanese") << QStringLiteral("ja_JP")
                              << QStringList{QStringLiteral("アンバー村"), QStringLiteral("ミラの家"),
                                             QStringLiteral("お店"),       QStringLiteral("宿屋"),
                                             QStringLiteral("丘の上"),     QStringLiteral("森の小道"),
                                             QStringLiteral("鉱山の入口"), QStringLiteral("古い鉱山")}
                              << QStringList{QStringLiteral("ミラ"), QStringLiteral("トーマ")};
    QTest::newRow("Chinese") << QStringLiteral("zh_CN")
                             << QStringList{QStringLiteral("琥珀村"),   QStringLiteral("米拉的家"),
                                            QStringLiteral("商店"),     QStringLiteral("旅店"),
                                            QStringLiteral("山岗"),     QStringLiteral("林间小路"),
                                            QStringLiteral("矿洞入口"), QStringLiteral("旧矿洞")}
                             << QStringList{QStringLiteral("米拉"), QStringLiteral("托马")};
}

void tst_PracticePreset::aStepsCommandBringsTheProjectInTheLearnersLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, maps);
    QFETCH(QStringList, heroes);
    const QTemporaryDir room;
    QStringList errors;
    const auto windows = EditorWindowSet::create(locale, &errors);
    QVERIFY2(windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    windows->setProjectsFolder(room.path());
    Project *const project = windows->project();
    LessonSession session(windows.get());
    LessonProject lessonProject;
    HostLink link(QStringLiteral(TUTORIAL_PROGRAM), QString(), locale);
    connect(&session, &LessonSession::sends, &link, &HostLink::send);
    connect(&link, &HostLink::received, &session, &LessonSession::receive);
    connect(&link, &HostLink::connected, &session, [&session, locale] { session.greet(locale); });
    connect(&session, &LessonSession::filesRequested, &lessonProject, &LessonProject::begin);
    connect(&session, &LessonSession::filesReceived, &lessonProject, &LessonProject::takeFiles);
    connect(windows.get(), &EditorWindows::projectCreated, &lessonProject, &LessonProject::takeProject);
    QString path;
    connect(&lessonProject, &LessonProject::complete, windows.get(),
            [&windows, &lessonProject, &path](const LessonProject::Files &files) {
                if (windows->replaceFiles(files)) {
                    path = windows->projectFolder();
                    lessonProject.drop();
                }
            });
    HostLink::Failure failure;
    QVERIFY2(link.start(&failure), qPrintable(failure.reason));
    QTRY_VERIFY_WITH_TIMEOUT(link.isConnected(), kSoonMs);

    // A lesson of one step. What it asks for arrives while the person still names the project, or after.
    session.receive(QStringLiteral("start\u0001var scenario = "
                                   "[{\"id\":1,\"condition\":\"click,\",\"command\":\"presetData,step4\"}];"
                                   "\u0001-1"));
    project->fields().setValue(QStringLiteral("newProject.name"), QStringLiteral("Quest"), project->files());
    project->run(QStringLiteral("newProject.create"), project->files());
    QTRY_COMPARE_WITH_TIMEOUT(path, room.filePath(QStringLiteral("Quest")), kSoonMs);

    QCOMPARE(rowsOf(*project, "maps"), maps);
    QCOMPARE(rowsOf(*project, "data/Actors"), heroes);
    const QDir source(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset/step4/data"));
    const QDir written(path + QStringLiteral("/data"));
    QCOMPARE(written.entryList(QDir::Files), source.entryList(QDir::Files));
    QFile actors(written.filePath(QStringLiteral("Actors.json")));
    QVERIFY(actors.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(actors.readAll()).array().at(1)[QLatin1String("name")].toString(),
             heroes.first());
    link.stop();
}

QTEST_MAIN(tst_PracticePreset)
#include "tst_PracticePreset.moc"
