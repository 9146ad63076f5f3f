#include "FakeEditor.h"
#include "host/LessonSession.h"

#include <QSignalSpy>
#include <QTest>

namespace {

QString startCommand(const QString &items, const QString &id = QStringLiteral("-1"))
{
    return QStringLiteral("start\u0001var scenario = [%1];\u0001%2").arg(items, id);
}

const QString kPointing = QStringLiteral(
    R"({"id":1,"x":10,"y":-20,"windowKey":"MainWindow","condition":"list,2","hint":"Choose","icon":"doubleClick"})");
const QString kReading = QStringLiteral(
    R"({"id":2,"x":-9999,"y":-9999,"windowKey":"","condition":"click,","hint":"Read","icon":"eye"})");

} // namespace

class tst_LessonSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void greetsAndAsksForTheList();
    void listsTheLessons();
    void asksForALessonAndIsRefused();
    void aScenarioThatCannotBeReadIsRefused();
    void tellsTheWindowsBeforeTheFirstStep();
    void tellsEachStepWithItsFlagsAndIcon_data();
    void tellsEachStepWithItsFlagsAndIcon();
    void pointsIntoWindows_data();
    void pointsIntoWindows();
    void pointsIntoAWindowAtTheCornerOfTheScreen();
    void followsTheWindowOfTheStep();
    void pointsAgainWhenTheWindowComesBack();
    void passesOnWhatTheWindowsDo();
    void tellsTheStackAnewAfterAnAbandonedPopup();
    void knowsWhenTheWindowOfTheStepIsClosed();
    void namesTheWindowToOpenNext_data();
    void namesTheWindowToOpenNext();
    void stopsAtTheEnd();
    void theCompanionsButtonsGoOn();
    void waitsByTheClock();
    void asksForPresetDataAndPassesItOn();
    void saysWhatItDoesNotUnderstand_data();
    void saysWhatItDoesNotUnderstand();
    void aLessonWithAnUnknownWordIsNotPlayed_data();
    void aLessonWithAnUnknownWordIsNotPlayed();
    void neverPlaysOneLessonUnderTheNameOfAnother();
    void refusesALessonThatIsInNoList();
    void showsTheEditorsTooltips();
    void anotherLessonStopsTheOneThatRuns();
    void anAbandonedLessonSaysNothing();

private:
    /// The commands since the last call, fields joined by "|".
    QStringList sent();

    FakeEditor *m_windows = nullptr;
    LessonSession *m_session = nullptr;
    QStringList m_sent;
    QStringList m_problems;
    QVector<LessonSession::Lesson> m_lessons; // as listed last
    QMap<QString, QString> m_files;           // as received last
};

void tst_LessonSession::init()
{
    m_windows = new FakeEditor;
    m_session = new LessonSession(m_windows, m_windows);
    m_sent.clear();
    m_problems.clear();
    connect(m_session, &LessonSession::sends, this,
            [this](QString command) { m_sent << command.replace(QChar(1), QLatin1Char('|')); });
    connect(m_session, &LessonSession::problemFound, this,
            [this](const QString &problem) { m_problems << problem; });
}

void tst_LessonSession::cleanup()
{
    delete m_windows;
}

QStringList tst_LessonSession::sent()
{
    return std::exchange(m_sent, {});
}

void tst_LessonSession::greetsAndAsksForTheList()
{
    m_session->greet(QStringLiteral("ja_JP"));
    QCOMPARE(sent(), (QStringList{QStringLiteral("fromServer|ja_JP"), QStringLiteral("tutorialList")}));
}

void tst_LessonSession::listsTheLessons()
{
    connect(m_session, &LessonSession::lessonsListed, this,
            [this](const QVector<LessonSession::Lesson> &listed) { m_lessons = listed; });
    m_session->receive(
        QStringLiteral("tutorialList\u0001[{\"filename\":\"TutorialStep1\",\"title\":\"Maps\"},"
                       "{\"filename\":\"TutorialStep2\",\"title\":\"\u5730\u56fe\"}]"));
    QCOMPARE(m_lessons.size(), 2);
    QCOMPARE(m_lessons.at(1).name, QStringLiteral("TutorialStep2"));
    QCOMPARE(m_lessons.at(1).title, QStringLiteral("\u5730\u56fe"));
}

void tst_LessonSession::asksForALessonAndIsRefused()
{
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->request(QStringLiteral("TutorialStep9"));
    QCOMPARE(sent(), QStringList{QStringLiteral("tutorial|TutorialStep9")});
    QVERIFY(refused.wait(LessonSession::kHandOverMs + 3000));
    QCOMPARE(refused.constFirst().constFirst().toString(), QStringLiteral("TutorialStep9"));
}

void tst_LessonSession::aScenarioThatCannotBeReadIsRefused()
{
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->receive(startCommand(QStringLiteral("{\"id\":1")));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(m_problems.size(), 1);
    QCOMPARE(sent(), QStringList());
}

void tst_LessonSession::tellsTheWindowsBeforeTheFirstStep()
{
    m_windows->open(QStringLiteral("Copying"));
    sent();
    m_session->receive(startCommand(kReading));
    QCOMPARE(sent(),
             (QStringList{QStringLiteral("start|0|0|1280|960"), QStringLiteral("windowStack|push|MainWindow"),
                          QStringLiteral("windowPosition|MainWindow|90|190"),
                          QStringLiteral("windowStack|push|Copying"),
                          QStringLiteral("windowPosition|Copying|300|400"),
                          QStringLiteral("applicationWindowSize|1100|720"),
                          // the middle of the main window, less the way from the bubble to the arrow's tip
                          QStringLiteral("indicator|updateXy|601|417"),
                          QStringLiteral("indicator|update|-9999|-9999||Read|5|3")}));
    QCOMPARE(m_session->bubblePlace(), QPoint(601, 417));
    QCOMPARE(m_problems, QStringList());
}

void tst_LessonSession::tellsEachStepWithItsFlagsAndIcon_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("showArrow");
    QTest::addColumn<QString>("tail");
    const auto row = [](const char *name, const char *condition, const char *icon, const char *arrow,
                        const char *tail) {
        QTest::newRow(name) << QString::fromLatin1(condition) << QString::fromLatin1(icon)
                            << QString::fromLatin1(arrow) << QString::fromLatin1(tail);
    };
    row("next", "click,", "eye", "true", "|5|3");
    row("next without arrow", "click,", "eye", "false", "|1|3");
    row("yes and no", "yesNo", "eye", "true", "|6|3");
    row("yes and no without arrow", "yesNo", "eye", "false", "|2|3");
    row("an event", "list,1", "click", "true", "|4|0");
    row("an event without arrow", "list,1", "doubleClick", "false", "|0|1");
    row("right click", "list,1", "rightClick", "true", "|4|2");
    row("wait", "list,1", "wait", "true", "|4|4");
    row("keyboard", "list,1", "keyboard", "true", "|4|5");
    row("no icon", "list,1", "", "true", "|4|6");
}

void tst_LessonSession::tellsEachStepWithItsFlagsAndIcon()
{
    QFETCH(QString, condition);
    QFETCH(QString, icon);
    QFETCH(QString, showArrow);
    QFETCH(QString, tail);
    m_session->receive(startCommand(
        QStringLiteral(
            R"({"id":1,"x":1,"y":2,"windowKey":"MainWindow","condition":"%1","icon":"%2","showArrow":%3})")
            .arg(condition, icon, showArrow)));
    QCOMPARE(sent().constLast(), QStringLiteral("indicator|update|91|192|MainWindow|") + tail);
}

void tst_LessonSession::pointsIntoWindows_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("position");
    QTest::newRow("an open window") << QStringLiteral("MainWindow") << 5 << -6 << QStringLiteral("95|184");
    QTest::newRow("the screen") << QString() << 5 << 6 << QStringLiteral("5|6");
    QTest::newRow("nowhere") << QStringLiteral("MainWindow") << -9999 << -9999
                             << QStringLiteral("-9999|-9999");
    QTest::newRow("far left") << QStringLiteral("MainWindow") << -9999 << 10 << QStringLiteral("-9909|200");
    QTest::newRow("a window that is not open")
        << QStringLiteral("Copying") << 5 << 6 << QStringLiteral("-9999|-9999");
}

void tst_LessonSession::pointsIntoWindows()
{
    QFETCH(QString, key);
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(QString, position);
    m_session->receive(
        startCommand(QStringLiteral(R"({"id":1,"x":%1,"y":%2,"windowKey":"%3","condition":"list,1"})")
                         .arg(x)
                         .arg(y)
                         .arg(key)));
    QCOMPARE(sent().constLast(), QStringLiteral("indicator|update|%1|%2||4|0").arg(position, key));
}

void tst_LessonSession::pointsIntoAWindowAtTheCornerOfTheScreen()
{
    m_windows->move(QStringLiteral("MainWindow"), QPoint(0, 0));
    m_session->receive(startCommand(kPointing));
    QCOMPARE(m_session->bubbleTarget(), QPoint(10, -20));
    QVERIFY(!m_session->lacksWindow());
}

void tst_LessonSession::followsTheWindowOfTheStep()
{
    QVERIFY(!m_session->bubblePlace());
    m_session->receive(startCommand(kPointing));
    QCOMPARE(m_session->bubblePlace(), QPoint(100, 170));
    sent();
    m_windows->move(QStringLiteral("MainWindow"), QPoint(0, 50));
    QCOMPARE(m_session->bubblePlace(), QPoint(10, 30));
    QCOMPARE(sent(), (QStringList{QStringLiteral("windowPosition|MainWindow|0|50"),
                                  QStringLiteral("indicator|updateXy|10|30")}));
    m_windows->move(QStringLiteral("Copying"), QPoint(7, 7));
    QCOMPARE(sent(), QStringList{QStringLiteral("windowPosition|Copying|7|7")});
}

void tst_LessonSession::pointsAgainWhenTheWindowComesBack()
{
    m_windows->open(QStringLiteral("Copying"));
    m_session->receive(startCommand(
        QStringLiteral(R"({"id":1,"x":1,"y":2,"windowKey":"Copying","condition":"list,1","hint":"h"})")));
    sent();
    m_windows->close(QStringLiteral("Copying"));
    QCOMPARE(sent().constLast(), QStringLiteral("indicator|update|-9999|-9999|Copying|h|4|0"));
    QVERIFY(!m_session->bubbleTarget());
    m_windows->open(QStringLiteral("Copying"));
    QCOMPARE(sent().constLast(), QStringLiteral("indicator|update|301|402|Copying|h|4|0"));
    QCOMPARE(*m_session->bubbleTarget(), QPoint(301, 402));
}

void tst_LessonSession::passesOnWhatTheWindowsDo()
{
    m_session->receive(startCommand(kReading));
    sent();
    Q_EMIT m_windows->pushed(QStringLiteral("Popup"));
    Q_EMIT m_windows->popped(QStringLiteral("Popup"));
    Q_EMIT m_windows->controlMoved(QStringLiteral("ok"), QPoint(3, 4));
    Q_EMIT m_windows->visibilityChanged(false);
    Q_EMIT m_windows->visibilityChanged(true);
    QCOMPARE(sent(), (QStringList{QStringLiteral("windowStack|push|Popup"), QStringLiteral("windowStack|pop"),
                                  QStringLiteral("controlPosition|ok|3|4"), QStringLiteral("state|hide"),
                                  QStringLiteral("state|show")}));
}

void tst_LessonSession::tellsTheStackAnewAfterAnAbandonedPopup()
{
    m_windows->open(QStringLiteral("Copying"));
    m_session->receive(startCommand(kPointing));
    Q_EMIT m_windows->pushed(QStringLiteral("Popup"));
    sent();
    Q_EMIT m_windows->popupAbandoned();
    const QStringList told = sent();

    // What the companion makes of it, whether it took "Popup" away by itself before, or did not.
    for (QStringList stack :
         {QStringList{QStringLiteral("MainWindow"), QStringLiteral("Copying")},
          QStringList{QStringLiteral("MainWindow"), QStringLiteral("Copying"), QStringLiteral("Popup")}}) {
        for (const QString &command : told) {
            if (command == QLatin1String("windowStack|pop")) {
                if (!stack.isEmpty()) {
                    stack.removeLast();
                }
            } else {
                QVERIFY2(command.startsWith(QLatin1String("windowStack|push|")), qPrintable(command));
                stack.append(command.section(QLatin1Char('|'), 2));
            }
        }
        QCOMPARE(stack, m_windows->openWindows());
    }
}

void tst_LessonSession::knowsWhenTheWindowOfTheStepIsClosed()
{
    QSignalSpy told(m_session, &LessonSession::stepTold);
    QVERIFY(!m_session->lacksWindow());
    m_session->receive(startCommand(
        QStringLiteral(R"({"id":1,"x":1,"y":2,"windowKey":"Copying","condition":"list,1","hint":"h"})")));
    QCOMPARE(told.size(), 1);
    QVERIFY(m_session->lacksWindow());
    m_windows->open(QStringLiteral("Copying"));
    QCOMPARE(told.size(), 2);
    QVERIFY(!m_session->lacksWindow());
    m_windows->close(QStringLiteral("Copying"));
    QCOMPARE(told.size(), 3);
    QVERIFY(m_session->lacksWindow());
    m_session->receive(startCommand(kReading));
    QVERIFY(!m_session->lacksWindow());
}

void tst_LessonSession::namesTheWindowToOpenNext_data()
{
    using From = QHash<QString, QStringList>;
    const QString main = QStringLiteral("MainWindow");
    const QString properties = QStringLiteral("MapProperties");
    const QString selector = QStringLiteral("ImageSelector");
    const QString other = QStringLiteral("Other");
    QTest::addColumn<From>("ways");
    QTest::addColumn<QStringList>("open");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown ways") << From() << QStringList() << selector;
    QTest::newRow("from an open window") << From{{selector, {main}}} << QStringList() << selector;
    QTest::newRow("from a closed window")
        << From{{selector, {properties}}, {properties, {main}}} << QStringList() << properties;
    QTest::newRow("from one that was opened again")
        << From{{selector, {properties}}, {properties, {main}}} << QStringList{properties} << selector;
    QTest::newRow("the nearer of two ways")
        << From{{selector, {other, properties}}, {other, {QStringLiteral("Far")}}, {properties, {main}}}
        << QStringList() << properties;
    QTest::newRow("that of two ways which the lesson knows")
        << From{{selector, {other, properties}}, {other, {main}}, {properties, {main}}} << QStringList()
        << properties;
    QTest::newRow("in a circle") << From{{selector, {properties}}, {properties, {selector}}} << QStringList()
                                 << selector;
    QTest::newRow("none is lacking") << From{{selector, {main}}} << QStringList{selector} << QString();
}

void tst_LessonSession::namesTheWindowToOpenNext()
{
    using From = QHash<QString, QStringList>;
    QFETCH(From, ways);
    QFETCH(QStringList, open);
    m_windows->m_openedFrom = ways;
    QCOMPARE(m_session->windowToOpen(), QString());
    m_session->receive(startCommand(QStringLiteral(
        R"({"id":1,"x":1,"y":2,"windowKey":"ImageSelector","condition":"list,1","hint":"h"},
           {"id":2,"windowKey":"MapProperties","condition":"click,","hint":"h"})")));
    for (const QString &key : qAsConst(open)) {
        m_windows->open(key);
    }
    QTEST(m_session->windowToOpen(), "named");
}

void tst_LessonSession::stopsAtTheEnd()
{
    QSignalSpy finished(m_session, &LessonSession::finished);
    m_session->receive(startCommand(kPointing));
    sent();
    m_windows->report(QStringLiteral("list"), QStringLiteral("2"));
    QCOMPARE(sent(), QStringList{QStringLiteral("stop")});
    QCOMPARE(finished.size(), 1);
}

void tst_LessonSession::theCompanionsButtonsGoOn()
{
    m_session->receive(
        startCommand(kReading + QStringLiteral(R"(,{"id":3,"condition":"yesNo","jump":5,"jumpNo":4},)"
                                               R"({"id":4},{"id":5})")));
    m_session->receive(QStringLiteral("next"));
    QCOMPARE(m_session->runner().step().id, 3);
    m_session->receive(QStringLiteral("no"));
    QCOMPARE(m_session->runner().step().id, 4);
    m_session->receive(startCommand(
        QStringLiteral(R"({"id":3,"condition":"yesNo","jump":5,"jumpNo":4},{"id":4},{"id":5})")));
    m_session->receive(QStringLiteral("yes"));
    QCOMPARE(m_session->runner().step().id, 5);
}

void tst_LessonSession::waitsByTheClock()
{
    QSignalSpy finished(m_session, &LessonSession::finished);
    m_session->receive(startCommand(QStringLiteral(R"({"id":1,"condition":"wait,30"})")));
    QVERIFY(finished.wait(5000));
}

void tst_LessonSession::asksForPresetDataAndPassesItOn()
{
    QSignalSpy requested(m_session, &LessonSession::filesRequested);
    connect(m_session, &LessonSession::filesReceived, this,
            [this](const QMap<QString, QString> &received) { m_files = received; });
    m_session->receive(
        startCommand(QStringLiteral(R"({"id":1,"condition":"click","command":"presetData,step2"})")));
    QVERIFY(sent().contains(QStringLiteral("requestPresetData|step2")));
    QCOMPARE(requested.size(), 1);
    m_session->receive(
        QStringLiteral("feedbackPresetData\u0001{\"data/Actors.json\":\"[null,{\\\"id\\\":1}]\"}"));
    QCOMPARE(m_files.size(), 1);
    QCOMPARE(m_files.value(QStringLiteral("data/Actors.json")), QStringLiteral("[null,{\"id\":1}]"));
    QCOMPARE(m_problems, QStringList());
}

void tst_LessonSession::saysWhatItDoesNotUnderstand_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("problem");
    QTest::newRow("a word") << QStringLiteral("dance\u00011") << QStringLiteral("\"dance\"");
    QTest::newRow("no list") << QStringLiteral("tutorialList\u0001") << QStringLiteral("list of lessons");
    QTest::newRow("no files") << QStringLiteral("feedbackPresetData\u0001[1]")
                              << QStringLiteral("data files");
    QTest::newRow("no id") << startCommand(kReading, QStringLiteral("x")) << QStringLiteral("names no step");
}

void tst_LessonSession::saysWhatItDoesNotUnderstand()
{
    QFETCH(QString, command);
    QFETCH(QString, problem);
    m_session->receive(command);
    QCOMPARE(m_problems.size(), 1);
    QVERIFY2(m_problems.constFirst().contains(problem), qPrintable(m_problems.constFirst()));
}

void tst_LessonSession::aLessonWithAnUnknownWordIsNotPlayed_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("word");
    QTest::newRow("a condition") << QStringLiteral(R"("condition":"dance,2")") << QStringLiteral("dance,2");
    QTest::newRow("a command") << QStringLiteral(R"("command":"dance,2")") << QStringLiteral("dance,2");
}

void tst_LessonSession::aLessonWithAnUnknownWordIsNotPlayed()
{
    QFETCH(QString, fields);
    QFETCH(QString, word);
    LessonFault told;
    connect(m_session, &LessonSession::stopped, this, [&told](const LessonFault &fault) { told = fault; });
    m_session->request(QStringLiteral("TutorialStep3"));
    sent();
    m_session->receive(startCommand(kReading + QStringLiteral(R"(,{"id":8,%1})").arg(fields)));
    QVERIFY(!m_session->runner().isRunning());
    QCOMPARE(sent(), QStringList());
    QCOMPARE(told.lesson, QStringLiteral("TutorialStep3"));
    QCOMPARE(told.item, 8);
    QCOMPARE(told.word, word);
    for (const QString &part : {QStringLiteral("TutorialStep3"), QStringLiteral("item 8"), word}) {
        QVERIFY2(told.message().contains(part), qPrintable(told.message()));
    }
}

void tst_LessonSession::neverPlaysOneLessonUnderTheNameOfAnother()
{
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->receive(startCommand(kReading));
    QVERIFY(m_session->runner().isRunning());
    m_session->request(QStringLiteral("TutorialStep2"));
    // The texts are those that the new lesson has under the same numbers.
    m_session->receive(startCommand(QString(kReading).replace(QStringLiteral("Read"), QStringLiteral("#2"))));
    QVERIFY(!m_session->runner().isRunning());
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.constFirst().constFirst().toString(), QStringLiteral("TutorialStep2"));
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->receive(startCommand(kReading));
    QVERIFY(m_session->runner().isRunning());
    m_session->request(QStringLiteral("TutorialStep2"));
    m_session->receive(startCommand(kPointing));
    QVERIFY(m_session->runner().isRunning());
    QCOMPARE(refused.size(), 1);
}

void tst_LessonSession::refusesALessonThatIsInNoList()
{
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->receive(
        QStringLiteral("tutorialList\u0001[{\"filename\":\"TutorialStep1\",\"title\":\"Maps\"}]"));
    m_session->request(QStringLiteral("TutorialStep77"));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(sent(), QStringList());
    m_session->request(QStringLiteral("TutorialStep1"));
    QCOMPARE(sent(), QStringList{QStringLiteral("tutorial|TutorialStep1")});
}

void tst_LessonSession::showsTheEditorsTooltips()
{
    Q_EMIT m_windows->hovered(QStringLiteral("Save (Ctrl+S)"), QPoint(30, 40));
    Q_EMIT m_windows->unhovered();
    QCOMPARE(sent(),
             (QStringList{QStringLiteral("showTooltip|Save (Ctrl+S)|30|40"), QStringLiteral("hideTooltip")}));
    m_session->receive(startCommand(kReading));
    sent();
    Q_EMIT m_windows->unhovered();
    // One that is hidden while a lesson plays would come back.
    QCOMPARE(sent(), QStringList{QStringLiteral("showTooltip||0|0")});
}

void tst_LessonSession::anotherLessonStopsTheOneThatRuns()
{
    m_session->receive(startCommand(kReading));
    sent();
    m_session->request(QStringLiteral("TutorialStep2"));
    QCOMPARE(sent(), (QStringList{QStringLiteral("stop"), QStringLiteral("tutorial|TutorialStep2")}));
    QVERIFY(!m_session->runner().isRunning());
}

void tst_LessonSession::anAbandonedLessonSaysNothing()
{
    m_session->receive(startCommand(kPointing));
    sent();
    m_session->abandon();
    m_windows->report(QStringLiteral("list"), QStringLiteral("2"));
    QCOMPARE(sent(), QStringList());
    QVERIFY(!m_session->bubbleTarget());
}

QTEST_GUILESS_MAIN(tst_LessonSession)
#include "tst_LessonSession.moc"
