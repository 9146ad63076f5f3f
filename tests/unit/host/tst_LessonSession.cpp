#include "SessionTest.h"

/// The run of a lesson between the companion and the windows.
class tst_LessonSession : public SessionTest
{
    Q_OBJECT

private Q_SLOTS:
    void greetsAndAsksForTheList();
    void listsTheLessons();
    void stopsAtTheEnd();
    void theCompanionsButtonsGoOn();
    void theSecondPressOfADoubleClickIsNone();
    void waitsByTheClock();
    void asksForPresetDataAndPassesItOn();
    void saysWhatItDoesNotUnderstand_data();
    void saysWhatItDoesNotUnderstand();
    void anotherLessonStopsTheOneThatRuns();
    void anAbandonedLessonSaysNothing();

private:
    QVector<LessonSession::Lesson> m_lessons; // as listed last
    QMap<QString, QString> m_files;           // as received last
};

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

void tst_LessonSession::theSecondPressOfADoubleClickIsNone()
{
    QSignalSpy arrived(m_session, &LessonSession::nextArrived);
    m_session->setDoublePressMs(200);
    m_session->receive(
        startCommand(QStringLiteral(R"({"id":1},{"id":2},{"id":3,"condition":"yesNo"},{"id":4})")));
    const auto press = [this](const char *button) {
        m_session->receive(QString::fromLatin1(button));
        return m_session->runner().step().id;
    };
    QCOMPARE(press("next"), 2);
    QCOMPARE(press("next"), 2);
    QCOMPARE(arrived.size(), 2); // the focus goes back all the same
    // A button of the host's own is not the companion's.
    m_session->next();
    QCOMPARE(m_session->runner().step().id, 3);
    QCOMPARE(press("yes"), 3);
    QTRY_COMPARE(press("yes"), 4);
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
