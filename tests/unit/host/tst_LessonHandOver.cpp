#include "SessionTest.h"

/// Asking for a lesson, and what is handed over.
class tst_LessonHandOver : public SessionTest
{
    Q_OBJECT

private Q_SLOTS:
    void asksForALessonAndIsRefused();
    void aScenarioThatCannotBeReadIsRefused();
    void refusesALessonThatIsInNoList();
    void whoHearsOfARefusalMayChangeTheNameThatWasAskedFor();
    void neverPlaysOneLessonUnderTheNameOfAnother();
    void aLessonThatComesLateIsNotPlayedUnderTheNameOfAnother();
    void aLessonThatComesLateIsKnownWhenItComesAgain();
    void aLessonThatWasGivenUpIsNotPlayed();
    void knowsAnOldLessonBehindOneOfTheHostsOwn();
    void forgetsWhatACompanionBeforeOwedIt();
    void saysThatThereIsNoItemToBeginAt();
    void aLessonWithAWordThatTheEditorDoesNotKnowIsNotPlayed();
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

void tst_LessonHandOver::whoHearsOfARefusalMayChangeTheNameThatWasAskedFor()
{
    QString wanted = QStringLiteral("TutorialStep77");
    connect(m_session, &LessonSession::refused, this, [&wanted] { wanted.clear(); });
    QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->receive(
        QStringLiteral("tutorialList\u0001[{\"filename\":\"TutorialStep1\",\"title\":\"Maps\"}]"));
    m_session->request(wanted);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.constFirst().constFirst().toString(), QStringLiteral("TutorialStep77"));
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

void tst_LessonHandOver::saysThatThereIsNoItemToBeginAt()
{
    m_session->setFirstStep(9);
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->receive(startCommand(kReading + QLatin1Char(',') + kPointing));
    QCOMPARE(m_session->runner().step().id, 2);
    QCOMPARE(m_problems.size(), 1);
    QVERIFY2(m_problems.constFirst().contains(QStringLiteral("TutorialStep1 has no item 9")),
             qPrintable(m_problems.constFirst()));
}

void tst_LessonHandOver::aLessonThatComesLateIsNotPlayedUnderTheNameOfAnother()
{
    const QSignalSpy listed(m_session, &LessonSession::lessonsListed);
    m_session->request(QStringLiteral("TutorialStep1"));
    sent();
    m_session->request(QStringLiteral("TutorialStep2"));
    QCOMPARE(sent(), (QStringList{QStringLiteral("tutorialList"), QStringLiteral("tutorial|TutorialStep2")}));
    // The companion answers in order.
    m_session->receive(startCommand(kReading));
    QVERIFY(!m_session->runner().isRunning());
    m_session->receive(QStringLiteral("tutorialList\u0001[]"));
    QCOMPARE(listed.size(), 0); // it was not asked for by anybody outside
    m_session->receive(startCommand(kPointing));
    QVERIFY(m_session->runner().isRunning());
    QCOMPARE(m_session->lessonName(), QStringLiteral("TutorialStep2"));
    QCOMPARE(m_session->runner().step().id, 1);
}

void tst_LessonHandOver::aLessonThatComesLateIsKnownWhenItComesAgain()
{
    const QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->request(QStringLiteral("TutorialStep2"));
    m_session->receive(startCommand(kReading));
    m_session->receive(QStringLiteral("tutorialList\u0001[]"));
    m_session->receive(startCommand(kReading)); // the second one has no file
    QVERIFY(!m_session->runner().isRunning());
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.constFirst().constFirst().toString(), QStringLiteral("TutorialStep2"));
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->receive(startCommand(kReading));
    QVERIFY(m_session->runner().isRunning());
}

void tst_LessonHandOver::aLessonThatWasGivenUpIsNotPlayed()
{
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->stop();
    m_session->receive(startCommand(kReading));
    QVERIFY(!m_session->runner().isRunning());
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->play(QStringLiteral("Harbor"), QStringLiteral("[%1]").arg(kPointing), -1);
    m_session->receive(startCommand(kReading));
    QCOMPARE(m_session->lessonName(), QStringLiteral("Harbor"));
    QCOMPARE(m_session->runner().step().id, 1);
}

void tst_LessonHandOver::knowsAnOldLessonBehindOneOfTheHostsOwn()
{
    const QSignalSpy refused(m_session, &LessonSession::refused);
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->receive(startCommand(kReading));
    m_session->play(QStringLiteral("Harbor"), QStringLiteral("[%1]").arg(kPointing), -1);
    QVERIFY(m_session->runner().isRunning());
    m_session->request(QStringLiteral("TutorialStep2"));
    m_session->receive(startCommand(kReading)); // the second one has no file
    QVERIFY(!m_session->runner().isRunning());
    QCOMPARE(refused.size(), 1);
}

void tst_LessonHandOver::forgetsWhatACompanionBeforeOwedIt()
{
    m_session->request(QStringLiteral("TutorialStep1"));
    m_session->request(QStringLiteral("TutorialStep2"));
    m_session->abandon();
    m_session->greet(QStringLiteral("en_US"));
    const QSignalSpy listed(m_session, &LessonSession::lessonsListed);
    m_session->receive(QStringLiteral("tutorialList\u0001[]"));
    QCOMPARE(listed.size(), 1);
    sent();
    m_session->request(QStringLiteral("TutorialStep2"));
    QCOMPARE(sent(), QStringList{QStringLiteral("tutorial|TutorialStep2")});
    m_session->receive(startCommand(kPointing));
    QVERIFY(m_session->runner().isRunning());
}

void tst_LessonHandOver::aLessonWithAWordThatTheEditorDoesNotKnowIsNotPlayed()
{
    LessonFault told;
    connect(m_session, &LessonSession::stopped, this, [&told](const LessonFault &fault) { told = fault; });
    m_windows->m_unknown = QStringList{QStringLiteral("MainWindow")};
    m_session->request(QStringLiteral("TutorialStep3"));
    m_session->receive(startCommand(kReading));
    QVERIFY(m_session->runner().isRunning());
    m_session->request(QStringLiteral("TutorialStep4"));
    m_session->receive(startCommand(kReading + QLatin1Char(',') + kPointing));
    QVERIFY(!m_session->runner().isRunning());
    QCOMPARE(told.lesson, QStringLiteral("TutorialStep4"));
    QCOMPARE(told.item, 1);
    QCOMPARE(told.word, QStringLiteral("MainWindow"));
    QVERIFY2(told.message().contains(QStringLiteral("there is no such window")), qPrintable(told.message()));
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
