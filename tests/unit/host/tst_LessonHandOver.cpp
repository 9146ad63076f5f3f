#include "SessionTest.h"

/// Asking for a lesson, and what is handed over.
class tst_LessonHandOver : public SessionTest
{
    Q_OBJECT

private Q_SLOTS:
    void asksForALessonAndIsRefused();
    void aScenarioThatCannotBeReadIsRefused();
    void refusesALessonThatIsInNoList();
    void neverPlaysOneLessonUnderTheNameOfAnother();
    void aLessonWithAnUnknownWordIsNotPlayed_data();
    void aLessonWithAnUnknownWordIsNotPlayed();
};

void tst_LessonHandOver::asksForALessonAndIsRefused()
{
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->request(QStringLiteral("TutorialStep9"));
    QCOMPARE(sent(), QStringList{QStringLiteral("tutorial|TutorialStep9")});
    QVERIFY(refused.wait(LessonSession::kHandOverMs + 3000));
    QCOMPARE(refused.constFirst().constFirst().toString(), QStringLiteral("TutorialStep9"));
}

void tst_LessonHandOver::aScenarioThatCannotBeReadIsRefused()
{
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->receive(startCommand(QStringLiteral("{\"id\":1")));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(m_problems.size(), 1);
    QCOMPARE(sent(), QStringList());
}

void tst_LessonHandOver::refusesALessonThatIsInNoList()
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

void tst_LessonHandOver::neverPlaysOneLessonUnderTheNameOfAnother()
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

void tst_LessonHandOver::aLessonWithAnUnknownWordIsNotPlayed_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("word");
    QTest::newRow("a condition") << QStringLiteral(R"("condition":"dance,2")") << QStringLiteral("dance,2");
    QTest::newRow("a command") << QStringLiteral(R"("command":"dance,2")") << QStringLiteral("dance,2");
}

void tst_LessonHandOver::aLessonWithAnUnknownWordIsNotPlayed()
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

QTEST_GUILESS_MAIN(tst_LessonHandOver)
#include "tst_LessonHandOver.moc"
