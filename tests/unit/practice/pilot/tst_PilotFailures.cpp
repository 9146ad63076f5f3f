#include "PilotTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

/// What the pilot tells of a step that is broken, and how it goes on.
class tst_PilotFailures : public PilotTest
{
    Q_OBJECT

private Q_SLOTS:
    void aConditionThatStaysFalseIsBroken();
    void playsOnBehindABrokenStep();
    void threeBrokenStepsInARowAreEnough();
    void aFastClockLengthensTheLimits();
    void overlaysThatDoNotComeAreBroken();
    void aFocusThatDoesNotComeIsBroken();
    void aButtonThatStaysCoveredIsBroken();
    void aPressThatAlwaysComesToNothingIsBroken();
    void overlaysThatDoNotGoAreBroken();
    void aKeyThatIsMissingIsBroken();
    void aPictureThatCannotBeWrittenEndsThePlay();
    void aRefusedLessonIsBroken();
    void aLessonThatIsStoppedIsBroken();
};

void tst_PilotFailures::aConditionThatStaysFalseIsBroken()
{
    Pilot::Settings hasty = settings();
    hasty.conditionMs = 100;
    hasty.picturesFolder = QDir::tempPath();
    makePilot(hasty);
    begin({kClicking});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.pictures, QStringList(QStringLiteral("001-id1-broken.png")), kSoonMs);
    m_overlays = {};
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures,
             QStringList(
                 QStringLiteral(
                     "lesson 1 (en_US, yes): item 1, list,2: the condition does not come true; done: a "
                     "click at (138, 302); seen: the bubble at (100, 170), no button, windows: \"Editor\"; "
                     "picture: %1/001-id1-broken.png")
                     .arg(QDir::tempPath())));
}

void tst_PilotFailures::playsOnBehindABrokenStep()
{
    Pilot::Settings hasty = settings();
    hasty.conditionMs = 100;
    makePilot(hasty);
    m_scene.perform = [this](const Action &action) {
        m_overlays.buttons = {kNext};
        if (action.kind == Action::Kind::kPressButton) {
            m_overlays = {};
            QTimer::singleShot(0, m_session.get(), [this] { m_session->receive(QStringLiteral("next")); });
        }
        return Hand::Result::kDone;
    };
    begin({kClicking, kReading});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(m_failures->size(), 1);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("item 1, list,2: the condition")),
             qPrintable(m_failures->constFirst()));
    QCOMPARE(m_steps.size(), 2);
}

void tst_PilotFailures::threeBrokenStepsInARowAreEnough()
{
    Pilot::Settings hasty = settings();
    hasty.settleMs = 100;
    makePilot(hasty);
    m_overlays = {};
    begin({kClicking, kReading, kTyping, kReadingOn});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(m_failures->size(), 4);
    QVERIFY2(m_failures->at(2).contains(QStringLiteral("the bubble does not come to rest")),
             qPrintable(m_failures->at(2)));
    QCOMPARE(m_failures->at(3),
             QStringLiteral("lesson 1 (en_US, yes): given up after 3 broken steps in a row"));
    QCOMPARE(m_steps.size(), 3);
}

void tst_PilotFailures::aFastClockLengthensTheLimits()
{
    Pilot::Settings fast = settings();
    fast.conditionMs = 50;
    fast.speed = 20;
    makePilot(fast);
    QElapsedTimer clock;
    m_scene.perform = [&](const Action &) {
        clock.start();
        return Hand::Result::kDone;
    };
    begin({kClicking});
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.acts.size() == 1, kSoonMs);
    m_overlays = {};
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(clock.elapsed() >= 1000, qPrintable(QString::number(clock.elapsed())));
}

void tst_PilotFailures::overlaysThatDoNotComeAreBroken()
{
    Pilot::Settings hasty = settings();
    hasty.settleMs = 100;
    makePilot(hasty);
    m_overlays = {};
    begin({kClicking});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("the bubble does not come to rest")),
             qPrintable(m_failures->constFirst()));
}

void tst_PilotFailures::aFocusThatDoesNotComeIsBroken()
{
    Pilot::Settings hasty = settings();
    hasty.settleMs = 1000;
    makePilot(hasty);
    m_scene.takesKeys = false;
    begin({kTyping});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral(
                 "the window does not get the focus, or another one covers the companion's button; done: a "
                 "click at (138, 302); seen: ")),
             qPrintable(m_failures->constFirst()));
}

void tst_PilotFailures::aButtonThatStaysCoveredIsBroken()
{
    Pilot::Settings hasty = settings();
    hasty.settleMs = 500;
    makePilot(hasty);
    m_overlays = {kMiddle, {kNext}};
    m_scene.takesPresses = false;
    begin({kReading});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY(m_scene.acts.isEmpty());
    QVERIFY2(m_failures->constFirst().contains(
                 QStringLiteral("item 3, click,: the window does not get the focus, or another one covers")),
             qPrintable(m_failures->constFirst()));
}

void tst_PilotFailures::aPressThatAlwaysComesToNothingIsBroken()
{
    Pilot::Settings hasty = settings();
    hasty.conditionMs = 100;
    makePilot(hasty);
    QStringList again;
    connect(m_pilot.get(), &Pilot::pressedAgain, this, [&again](const QString &line) { again += line; });
    m_overlays = {kMiddle, {kNext}};
    m_scene.perform = [this](const Action &) {
        if (m_scene.acts.size() == 4) {
            m_overlays = {};
        }
        return Hand::Result::kDone;
    };
    begin({kReading});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(m_scene.acts.size(), 4);
    QCOMPARE(again.size(), 3);
    QVERIFY2(again.constFirst().startsWith(QStringLiteral(
                 "lesson 1 (en_US, yes): item 3, click,: the press of a button came to nothing "
                 "and is made again; done: a click on the companion's button; seen: ")),
             qPrintable(again.constFirst()));
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("item 3, click,: the condition does not come")),
             qPrintable(m_failures->constFirst()));
}

void tst_PilotFailures::overlaysThatDoNotGoAreBroken()
{
    Pilot::Settings hasty = settings();
    hasty.settleMs = 1000;
    makePilot(hasty);
    begin({kClicking});
    m_editor->report(QStringLiteral("list"), QStringLiteral("2"));
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("stay on the screen")),
             qPrintable(m_failures->constFirst()));
}

void tst_PilotFailures::aKeyThatIsMissingIsBroken()
{
    m_scene.perform = [this](const Action &action) {
        if (action.kind != Action::Kind::kType) {
            return Hand::Result::kDone;
        }
        m_overlays = {};
        return Hand::Result::kImpossible;
    };
    begin({kTyping});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(
                 QStringLiteral("typing \"aa\" cannot be done: the keyboard lacks a key")),
             qPrintable(m_failures->constFirst()));
}

void tst_PilotFailures::aPictureThatCannotBeWrittenEndsThePlay()
{
    Pilot::Settings withShots = settings();
    withShots.picturesFolder = QDir::tempPath();
    withShots.picturesOfAll = true;
    makePilot(withShots);
    m_scene.takesPictures = false;
    begin({kClicking});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QDir::tempPath()), qPrintable(m_failures->constFirst()));
    QVERIFY(m_scene.acts.isEmpty());
}

void tst_PilotFailures::aRefusedLessonIsBroken()
{
    const QSignalSpy refusals(m_pilot.get(), &Pilot::refused);
    m_session->request(QStringLiteral("TutorialStep9"));
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("does not hand it over")),
             qPrintable(m_failures->constFirst()));
    QCOMPARE(refusals.size(), 1);
}

void tst_PilotFailures::aLessonThatIsStoppedIsBroken()
{
    Pilot::Settings hasty = settings();
    hasty.settleMs = 300;
    makePilot(hasty);
    begin({kClicking});
    m_session->stop();
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY(m_scene.acts.isEmpty());
}

QTEST_GUILESS_MAIN(tst_PilotFailures)
#include "tst_PilotFailures.moc"
