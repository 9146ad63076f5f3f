#include "SessionTest.h"

/// What the bubble says and where it points.
class tst_LessonBubble : public SessionTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachStepWithItsFlagsAndIcon_data();
    void tellsEachStepWithItsFlagsAndIcon();
    void pointsIntoWindows_data();
    void pointsIntoWindows();
    void pointsIntoAWindowAtTheCornerOfTheScreen();
    void followsTheWindowOfTheStep();
    void pointsAgainWhenTheWindowComesBack();
    void knowsWhenTheWindowOfTheStepIsClosed();
    void namesTheWindowToOpenNext_data();
    void namesTheWindowToOpenNext();
};

void tst_LessonBubble::tellsEachStepWithItsFlagsAndIcon_data()
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

void tst_LessonBubble::tellsEachStepWithItsFlagsAndIcon()
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

void tst_LessonBubble::pointsIntoWindows_data()
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

void tst_LessonBubble::pointsIntoWindows()
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

void tst_LessonBubble::pointsIntoAWindowAtTheCornerOfTheScreen()
{
    m_windows->move(QStringLiteral("MainWindow"), QPoint(0, 0));
    m_session->receive(startCommand(kPointing));
    QCOMPARE(m_session->bubbleTarget(), QPoint(10, -20));
    QVERIFY(!m_session->lacksWindow());
}

void tst_LessonBubble::followsTheWindowOfTheStep()
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

void tst_LessonBubble::pointsAgainWhenTheWindowComesBack()
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

void tst_LessonBubble::knowsWhenTheWindowOfTheStepIsClosed()
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

void tst_LessonBubble::namesTheWindowToOpenNext_data()
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

void tst_LessonBubble::namesTheWindowToOpenNext()
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

QTEST_GUILESS_MAIN(tst_LessonBubble)
#include "tst_LessonBubble.moc"
