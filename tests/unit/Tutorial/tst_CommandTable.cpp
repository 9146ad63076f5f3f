#include "LogCapture.h"
#include "PatchBytes.h"
#include "Tutorial/AuthoringCalls.h"
#include "Tutorial/CommandTable.h"
#include "Tutorial/localisation/Languages.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialLog.h"
#include "Tutorial/overlay/TutorialTooltip.h"
#include "Tutorial/playback/Playback.h"
#include "playback/OverlayWindows.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimerEvent>
#include <QTranslator>

#include <memory>

namespace {

const QString kSource =
    QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");

/// A command from fields with blanks between them.
QString command(const QString &fields)
{
    return QString(fields).replace(QLatin1Char(' '), QChar(1));
}

} // namespace

/// What each command of the host editor does, without a link.
class tst_CommandTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ignoresWhatItDoesNotKnow_data();
    void ignoresWhatItDoesNotKnow();
    void takesEveryWordWithoutItsFields_data();
    void takesEveryWordWithoutItsFields();
    void survivesHostileNumbers();

    void greets();
    void greetsAgainWithoutNewOverlays();
    void startsAndStops();
    void keepsTheRectangleWhenStartHasTooFewFields();
    void takesTheRectangleWhileRunning();
    void keepsRectanglesSmallEnoughToReckonWith();

    void showsAStep();
    void dropsAStepBeforeTheGreeting();
    void movesTheTarget();
    void hidesAndShows();
    void keepsTheStackOfWindows();
    void keepsPositionsOfBothKindsInOneTable();
    void keepsTheSizeOfTheApplication();
    void showsAndHidesTheTooltip();

    void answersWithTheListOfLessons();
    void handsALessonOver();
    void handsOverTheDocumentAsItStandsAfterAnUnknownName();
    void saysWhatDidNotLoad();
    void answersWithPresetData();
    void translatesPresetDataByItsTable();
    void answersNothingWithoutPresetData_data();
    void answersNothingWithoutPresetData();

private:
    void run(const QString &fields) { m_commands->run(command(fields)); }
    [[nodiscard]] static QVariantMap step()
    {
        return topLevels<TutorialIndicator>().constFirst()->getSettings();
    }

    /// Puts a data file into the preset data of step 1.
    [[nodiscard]] bool addActors(const QByteArray &text) const;

    std::unique_ptr<Languages> m_languages;
    std::unique_ptr<Playback> m_playback;
    std::unique_ptr<AuthoringCalls> m_authoring;
    std::unique_ptr<CommandTable> m_commands;
    std::unique_ptr<QTemporaryDir> m_program;
    QStringList m_sent;
};

void tst_CommandTable::init()
{
    QSettings().clear();
    m_sent.clear();
    m_program = std::make_unique<QTemporaryDir>();
    m_languages = std::make_unique<Languages>();
    m_playback = std::make_unique<Playback>();
    m_authoring = std::make_unique<AuthoringCalls>(*m_languages, HistorySource());
    m_commands = std::make_unique<CommandTable>(
        CommandTable::Parts{*m_playback, *m_authoring, *m_languages,
                            [this](const QString &text) { m_sent << text; }, m_program->path()});
}

void tst_CommandTable::cleanup()
{
    m_commands.reset();
    m_authoring.reset();
    m_playback.reset();
    m_languages.reset();
    deleteOverlays();
    qDeleteAll(qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
}

bool tst_CommandTable::addActors(const QByteArray &text) const
{
    const QString data = m_program->filePath(QStringLiteral("resource/patch/step1/data"));
    QFile file(data + QStringLiteral("/Actors.json-patch"));
    const QByteArray patch = PatchBytes::insertion(text);
    return QDir().mkpath(data) && file.open(QIODevice::WriteOnly) && file.write(patch) == patch.size();
}

void tst_CommandTable::ignoresWhatItDoesNotKnow_data()
{
    QTest::addColumn<QString>("fields");
    for (const char *fields :
         {"", " ", "nonsense 1 2", "Start", "START", "tutorialLists", "alive", "eventLog coords 1 2", "bye",
          "contents", "log append text", "log", "state sideways", "state Hide", "windowStack shuffle a",
          "indicator vanish 1 2"}) {
        QTest::newRow(*fields == '\0' ? "nothing" : fields) << QString::fromLatin1(fields);
    }
    // A blank stands for the separator, so these get theirs in another way.
    QTest::newRow("a blank behind the word") << QStringLiteral("tutorialList\u00a0");
    QTest::newRow("long contents") << QStringLiteral("contents ") + QString(1000000, QLatin1Char('x'));
}

void tst_CommandTable::ignoresWhatItDoesNotKnow()
{
    QFETCH(QString, fields);
    const QSignalSpy windows(m_playback.get(), &Playback::currentWindowKeyChanged);
    LogCapture log;
    run(fields);
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(m_sent, QStringList());
    QCOMPARE(windows.size(), 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    QVERIFY(!m_playback->running());
}

void tst_CommandTable::takesEveryWordWithoutItsFields_data()
{
    QTest::addColumn<int>("answers");
    QTest::addColumn<QString>("lastLine");
    const auto add = [](const char *word, int answers, const QString &line) {
        QTest::newRow(word) << answers << line;
    };
    for (const char *word : {"stop", "contents", "indicator", "state", "log", "windowStack", "windowPosition",
                             "controlPosition", "hideTooltip", "start"}) {
        add(word, 0, QString());
    }
    add("tutorialList", 1, QString());
    add("tutorial", 1, QString());
    add("applicationWindowSize", 0, kSource + QStringLiteral("setApplicationWindowSize 596 0 0"));
    add("fromServer", 0, QString());
    add("requestPresetData", 0, kSource + QStringLiteral("onReceived 989 Failed to get stepNumber \"\""));
    add("showTooltip", 0, QString());
}

void tst_CommandTable::takesEveryWordWithoutItsFields()
{
    QFETCH(int, answers);
    QFETCH(QString, lastLine);
    LogCapture log;
    run(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(m_sent.size(), answers);
    if (!lastLine.isEmpty()) {
        QCOMPARE(log.lines().constLast(), lastLine);
    }
}

void tst_CommandTable::survivesHostileNumbers()
{
    const QStringList numbers = {QStringLiteral("2147483647"),  QStringLiteral("-2147483648"),
                                 QStringLiteral("-9999"),       QStringLiteral("0"),
                                 QStringLiteral("99999999999"), QStringLiteral("x")};
    run(QStringLiteral("fromServer en_US"));
    for (const QString &a : numbers) {
        for (const QString &b : numbers) {
            run(QStringLiteral("start %1 %2 %2 %1").arg(a, b));
            run(QStringLiteral("indicator update %1 %2 key hint %1 %2").arg(a, b));
            run(QStringLiteral("showTooltip text %1 %2").arg(a, b));
            // One tick of the indicator, which is what computes with the numbers.
            QTimerEvent tick(0);
            QCoreApplication::sendEvent(topLevels<TutorialIndicator>().constFirst(), &tick);
            QCoreApplication::processEvents();
        }
    }
    QVERIFY(m_playback->running());
}

void tst_CommandTable::greets()
{
    const QSignalSpy font(m_languages.get(), &Languages::fontLocaleChanged);
    LogCapture log;
    run(QStringLiteral("fromServer ja_JP more"));
    QCOMPARE(log.lines().mid(0, 2),
             (QStringList{kSource + QStringLiteral("onReceived 905 (\"fromServer\", \"ja_JP\", \"more\")"),
                          kSource + QStringLiteral("onReceived 921 \":/translations/ja_JP\" true")}));
    QCOMPARE(font.size(), 1);
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    QVERIFY(!topLevels<TutorialTooltip>().constFirst()->isVisible());
    QCOMPARE(m_sent, QStringList());
}

void tst_CommandTable::greetsAgainWithoutNewOverlays()
{
    run(QStringLiteral("fromServer en_US"));
    run(QStringLiteral("fromServer zh_CN"));
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    QCOMPARE(topLevels<TutorialTooltip>().size(), 1);
}

void tst_CommandTable::startsAndStops()
{
    run(QStringLiteral("fromServer en_US"));
    run(QStringLiteral("start"));
    QVERIFY(m_playback->running());
    QVERIFY(topLevels<TutorialTooltip>().constFirst()->isVisible());
    QVERIFY(topLevels<TutorialLog>().constFirst()->isVisible());
    QVERIFY(!topLevels<TutorialIndicator>().constFirst()->isVisible());
    run(QStringLiteral("stop"));
    QVERIFY(!m_playback->running());
    QVERIFY(!topLevels<TutorialTooltip>().constFirst()->isVisible());
    QVERIFY(!topLevels<TutorialLog>().constFirst()->isVisible());
}

void tst_CommandTable::keepsTheRectangleWhenStartHasTooFewFields()
{
    QVERIFY(m_playback->hostRect().isNull());
    run(QStringLiteral("start 1 2 3 4"));
    QCOMPARE(m_playback->hostRect(), QRect(1, 2, 3, 4));
    run(QStringLiteral("stop"));
    run(QStringLiteral("start 9 9"));
    QCOMPARE(m_playback->hostRect(), QRect(1, 2, 3, 4));
    QVERIFY(m_playback->running());
    run(QStringLiteral("start 9 9 9"));
    QCOMPARE(m_playback->hostRect(), QRect(1, 2, 3, 4));
}

void tst_CommandTable::takesTheRectangleWhileRunning()
{
    run(QStringLiteral("start"));
    run(QStringLiteral("windowStack push NewProject"));
    run(QStringLiteral("start 0 0 1280 960 more"));
    QCOMPARE(m_playback->hostRect(), QRect(0, 0, 1280, 960));
    // It is the same playback still.
    QCOMPARE(m_playback->windows().current(), QStringLiteral("NewProject"));
}

void tst_CommandTable::keepsRectanglesSmallEnoughToReckonWith()
{
    run(QStringLiteral("start 2147483647 -2147483648 2147483647 -2147483648"));
    constexpr int kFarthest = 1 << 29;
    QCOMPARE(m_playback->hostRect(), QRect(kFarthest, -kFarthest, kFarthest, -kFarthest));
}

void tst_CommandTable::showsAStep()
{
    run(QStringLiteral("fromServer en_US"));
    const TutorialTooltip *const bubble = topLevels<TutorialTooltip>().constFirst();
    QVERIFY(!bubble->isVisible());
    run(QStringLiteral("indicator update 11 22 NewProject hint 5 3"));
    QVERIFY(bubble->isVisible());
    const QVariantMap settings = step();
    QCOMPARE(settings.value(QStringLiteral("newX")).toInt(), 11);
    QCOMPARE(settings.value(QStringLiteral("newY")).toInt(), 22);
    QCOMPARE(settings.value(QStringLiteral("windowKey")).toString(), QStringLiteral("NewProject"));
    QCOMPARE(settings.value(QStringLiteral("hint")).toString(), QStringLiteral("hint"));
    QCOMPARE(settings.value(QStringLiteral("nextWindowEnabled")).toBool(), true);
    QCOMPARE(settings.value(QStringLiteral("yesNoWindowEnabled")).toBool(), false);
    QCOMPARE(settings.value(QStringLiteral("arrowVisible")).toBool(), true);
    QCOMPARE(settings.value(QStringLiteral("iconKind")).toInt(), 3);
}

void tst_CommandTable::dropsAStepBeforeTheGreeting()
{
    LogCapture log;
    run(QStringLiteral("indicator update 1 2 MainWindow hint 7 0"));
    run(QStringLiteral("indicator updateXy 1 2"));
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

void tst_CommandTable::movesTheTarget()
{
    run(QStringLiteral("fromServer en_US"));
    run(QStringLiteral("indicator update 30 40 NewProject hint 0 0"));
    run(QStringLiteral("indicator updateXy 50 60"));
    const QVariantMap settings = step();
    QCOMPARE(settings.value(QStringLiteral("newX")).toInt(), 50);
    QCOMPARE(settings.value(QStringLiteral("newY")).toInt(), 60);
    QCOMPARE(settings.value(QStringLiteral("offsetX")).toInt(), 30);
}

void tst_CommandTable::hidesAndShows()
{
    run(QStringLiteral("fromServer en_US"));
    run(QStringLiteral("start"));
    m_playback->setApplicationState(Qt::ApplicationInactive);
    const TutorialLog *const overlay = topLevels<TutorialLog>().constFirst();
    run(QStringLiteral("state hide"));
    QVERIFY(overlay->isVisible());
    m_playback->tick();
    QVERIFY(!overlay->isVisible());
    LogCapture log;
    run(QStringLiteral("state show"));
    run(QStringLiteral("state show"));
    QVERIFY(overlay->isVisible());
    QCOMPARE(log.debugs().filter(QStringLiteral("TutorialManager")),
             QStringList{kSource + QStringLiteral("onReceived 672 m_logHideIgnoreTimeout set to 10")});
}

void tst_CommandTable::keepsTheStackOfWindows()
{
    const QSignalSpy spy(m_playback.get(), &Playback::currentWindowKeyChanged);
    run(QStringLiteral("windowStack pop"));
    QCOMPARE(spy.size(), 0);
    run(QStringLiteral("windowStack push MainWindow"));
    run(QStringLiteral("windowStack push NewProject more"));
    QCOMPARE(m_playback->windows().current(), QStringLiteral("NewProject"));
    run(QStringLiteral("windowStack pop"));
    QCOMPARE(m_playback->windows().current(), QStringLiteral("MainWindow"));
    QCOMPARE(spy.size(), 3);
    run(QStringLiteral("start"));
    QCOMPARE(m_playback->windows().current(), QStringLiteral("ApplicationWindow"));
}

void tst_CommandTable::keepsPositionsOfBothKindsInOneTable()
{
    run(QStringLiteral("windowPosition MainWindow 12 -34"));
    run(QStringLiteral("controlPosition saveButton 5 6"));
    run(QStringLiteral("controlPosition  7 8"));
    const HostWindows &windows = m_playback->windows();
    QCOMPARE(windows.position(QStringLiteral("MainWindow")), QPoint(12, -34));
    QCOMPARE(windows.position(QStringLiteral("saveButton")), QPoint(5, 6));
    QCOMPARE(windows.position(QString()), QPoint(0, 0));
    run(QStringLiteral("controlPosition MainWindow 1 2"));
    QCOMPARE(windows.position(QStringLiteral("MainWindow")), QPoint(1, 2));
}

void tst_CommandTable::keepsTheSizeOfTheApplication()
{
    LogCapture log;
    run(QStringLiteral("applicationWindowSize 1280 960"));
    QCOMPARE(m_playback->windows().applicationSize(), QSize(1280, 960));
    QCOMPARE(log.lines(), QStringList{kSource + QStringLiteral("setApplicationWindowSize 596 1280 960")});
}

void tst_CommandTable::showsAndHidesTheTooltip()
{
    run(QStringLiteral("hideTooltip"));
    QCOMPARE(topLevels<EditorTooltip>().size(), 0);
    run(QStringLiteral("showTooltip text 100 100"));
    QCOMPARE(topLevels<EditorTooltip>().size(), 1);
    QVERIFY(topLevels<EditorTooltip>().constFirst()->isVisible());
    run(QStringLiteral("hideTooltip"));
    QVERIFY(!topLevels<EditorTooltip>().constFirst()->isVisible());
}

void tst_CommandTable::answersWithTheListOfLessons()
{
    run(QStringLiteral("tutorialList"));
    QCOMPARE(m_sent, QStringList{QStringLiteral("tutorialList\x01") + m_authoring->lessonList()});
    QVERIFY(m_sent.constFirst().contains(QStringLiteral("\"TutorialStep19\"")));
}

void tst_CommandTable::handsALessonOver()
{
    run(QStringLiteral("tutorial TutorialStep1"));
    QCOMPARE(m_sent, QStringList{m_authoring->startCommand(-1)});
    QVERIFY(m_sent.constFirst().contains(QStringLiteral("\"id\":1,")));
    QCOMPARE(m_authoring->tutorialName(), QStringLiteral("TutorialStep1"));
    QVERIFY(!m_playback->running());
}

void tst_CommandTable::handsOverTheDocumentAsItStandsAfterAnUnknownName()
{
    run(QStringLiteral("tutorial TutorialStep1"));
    LogCapture log;
    run(QStringLiteral("tutorial NoSuchLesson"));
    QCOMPARE(m_sent.size(), 2);
    QCOMPARE(m_sent.at(1), m_sent.at(0));
    QCOMPARE(log.warnings().filter(QStringLiteral("loadAndFeedback")).size(), 0);
}

void tst_CommandTable::saysWhatDidNotLoad()
{
    LogCapture log;
    // A file that is there and is no scenario.
    run(QStringLiteral("tutorial TutorialList"));
    QCOMPARE(log.warnings().constLast(),
             kSource + QStringLiteral("loadAndFeedback 1477 Failed to loadTutorial \"json is not array\""));
    QCOMPARE(m_sent, QStringList());
}

void tst_CommandTable::answersWithPresetData()
{
    QVERIFY(addActors("[ ]\n"));
    LogCapture log;
    run(QStringLiteral("requestPresetData step1"));
    QCOMPARE(m_sent, QStringList{QStringLiteral("feedbackPresetData\x01{\"data/Actors.json\":\"[]\"}")});
    QCOMPARE(log.debugs().constFirst(),
             kSource + QStringLiteral("onReceived 971 (\"requestPresetData\", \"step1\")"));
}

void tst_CommandTable::translatesPresetDataByItsTable()
{
    QVERIFY(addActors(R"([{"name":"Next","nickname":"Next"}])"));
    CommandTable::Parts parts{*m_playback, *m_authoring, *m_languages,
                              [this](const QString &text) { m_sent << text; }, m_program->path()};
    QCOMPARE(parts.sampleTable, buildSampleTable());
    const QStringList row{QStringLiteral("translateArrayKeyText"), QStringLiteral("tutorial"),
                          QStringLiteral("TutorialIndicator"), QStringLiteral("nickname")};
    parts.sampleTable = {{QStringLiteral("Actors.json"), {row}}};
    m_commands = std::make_unique<CommandTable>(parts);
    run(QStringLiteral("fromServer ja_JP"));
    run(QStringLiteral("requestPresetData step1"));
    QCOMPARE(m_sent,
             QStringList{QStringLiteral("feedbackPresetData\x01{\"data/Actors.json\":\"[{\\\"name\\\":"
                                        "\\\"Next\\\",\\\"nickname\\\":\\\"\u6b21\u3078\\\"}]\"}")});
}

void tst_CommandTable::answersNothingWithoutPresetData_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no step") << QStringLiteral("stepX")
                             << QStringLiteral("989 Failed to get stepNumber \"stepX\"");
    QTest::newRow("not there") << QStringLiteral("step4711")
                               << QStringLiteral("1001 presetData not found \"%1/tutorial-win/resource/patch/"
                                                 "step4711\" \"step4711\"");
}

void tst_CommandTable::answersNothingWithoutPresetData()
{
    QFETCH(QString, step);
    QFETCH(QString, warning);
    LogCapture log;
    run(QStringLiteral("requestPresetData ") + step);
    QCOMPARE(m_sent, QStringList());
    QCOMPARE(log.warnings(), QStringList{kSource + QStringLiteral("onReceived ") +
                                         warning.replace(QStringLiteral("%1"), m_program->path())});
}

int main(int argc, char **argv)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tutorial"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELMORAN"));
    QApplication::setQuitOnLastWindowClosed(false);
    tst_CommandTable test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_CommandTable.moc"
