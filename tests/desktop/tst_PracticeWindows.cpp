#include "PracticeTest.h"
#include "player/view/PlayerWindow.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

/// What a learner may do beside the lesson, in real windows and with the real companion.
class tst_PracticeWindows : public PracticeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theArrowFollowsTheMainWindow();
    void theOverlaysGoAndComeWithTheEditor();
    void aStepIsSkippedWhileADialogIsOpen();
    void theArrowComesBackToADialogThatWasClosed();
    void anotherDialogDoesNotTakeTheArrowAway();
    void theArrowPointsAtTheButtonThatPutsBack();
    void startAgainClosesTheDialogs();
    void beginningAnewEndsTheGame();
    void theOverlaysDoNotCoverTheListOfLessons();
    void aPopupIsAbandonedToTheCompanion();
    void theStripSaysWhatTheBubbleSays();
};

void tst_PracticeWindows::init()
{
    start(options());
    waitForTheLesson();
}

void tst_PracticeWindows::theArrowFollowsTheMainWindow()
{
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 3, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    const QPoint before = *m_editor->session().bubbleTarget();
    mainWindow()->move(mainWindow()->pos() + QPoint(60, 50));
    QTRY_VERIFY_WITH_TIMEOUT(*m_editor->session().bubbleTarget() != before, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QVERIFY(clickSpot());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 4, kSoonMs);
}

void tst_PracticeWindows::theOverlaysGoAndComeWithTheEditor()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    // Something else to turn to: openbox would give the focus to an overlay, and one in use stays.
    QWidget elsewhere;
    elsewhere.setGeometry(1150, 850, 100, 80);
    elsewhere.show();
    QVERIFY(QTest::qWaitForWindowExposed(&elsewhere, kSoonMs));
    QVERIFY(clickOn(&elsewhere));
    QTRY_VERIFY_WITH_TIMEOUT(elsewhere.isActiveWindow(), kSoonMs);
    mainWindow()->showMinimized();
    QTRY_VERIFY_WITH_TIMEOUT(!overlays().bubble, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(overlays().buttons.isEmpty(), kSoonMs);
    mainWindow()->showNormal();
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(overlays().buttons.size(), 1, kSoonMs);
    QCOMPARE(stepId(), 4);
}

void tst_PracticeWindows::aStepIsSkippedWhileADialogIsOpen()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 5, kSoonMs);
    QVERIFY(m_windows->openWindows().contains(QStringLiteral("NewProject")));
}

void tst_PracticeWindows::theArrowComesBackToADialogThatWasClosed()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    const QLabel *status = stripText();
    const QString step = status->text();
    QVERIFY(clickOn(m_windows->window(QStringLiteral("NewProject"))
                        ->findChild<QAbstractButton *>(QStringLiteral("cancel"))));
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")}, kSoonMs);
    QCOMPARE(stepId(), 4);
    QTRY_COMPARE_WITH_TIMEOUT(status->text(), m_editor->session().hint(), kSoonMs);
    QVERIFY(clickOn(mainWindow()->findChild<QAbstractButton *>(QStringLiteral("fileNew"))));
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(status->text(), step, kSoonMs);
}

void tst_PracticeWindows::anotherDialogDoesNotTakeTheArrowAway()
{
    m_windows->project()->run(QStringLiteral("newProject.create"), m_windows->project()->files());
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 3, kSoonMs);
    m_windows->open(QStringLiteral("MapProperties"));
    // It points the way back, and then at the step again.
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QVERIFY(clickOn(m_windows->window(QStringLiteral("MapProperties"))
                        ->findChild<QAbstractButton *>(QStringLiteral("cancel"))));
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")}, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QVERIFY(clickSpot());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 4, kSoonMs);
}

void tst_PracticeWindows::theArrowPointsAtTheButtonThatPutsBack()
{
    // Whoever has no project finds nothing to open.
    const QTemporaryDir nothing;
    m_windows->setProjectsFolder(nothing.path());
    LessonSession &session = m_editor->session();
    session.request(QStringLiteral("TutorialStep2"));
    QTRY_VERIFY_WITH_TIMEOUT(session.runner().isRunning(), kSoonMs);
    session.skipStep();
    session.answer(false);
    QCOMPARE(stepId(), 6);
    session.skipStep();
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 7, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(session.isAstray() && session.canPutBack(), kSoonMs);
    const auto *const button = find<QAbstractButton>("putBackButton");
    const auto isPointedAt = [&session, button] {
        const std::optional<QPoint> target = session.bubbleTarget();
        return target && *target + LessonWords::kTip == button->mapToGlobal(button->rect().center());
    };
    QTRY_VERIFY_WITH_TIMEOUT(isPointedAt() && isPointing(), kSoonMs);
    QVERIFY(clickOn(button));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 6, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
}

void tst_PracticeWindows::startAgainClosesTheDialogs()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    QSignalSpy started(&m_editor->session(), &LessonSession::started);
    QVERIFY(clickOn(find<QAbstractButton>("startAgainButton")));
    const auto isAsked = [] {
        return qobject_cast<QMessageBox *>(QApplication::activeModalWidget()) != nullptr;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isAsked(), kSoonMs);
    const auto *const question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    QCOMPARE(question->objectName(), QStringLiteral("startAgainMessageBox"));
    QVERIFY(clickOn(question->buttons().constFirst()));
    QTRY_COMPARE_WITH_TIMEOUT(started.size(), 1, kSoonMs);
    QCOMPARE(stepId(), 1);
    QCOMPARE(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")});
}

void tst_PracticeWindows::beginningAnewEndsTheGame()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    QVERIFY(clickOn(
        m_windows->window(QStringLiteral("NewProject"))->findChild<QAbstractButton *>(QStringLiteral("ok"))));
    QTRY_VERIFY_WITH_TIMEOUT(!m_editor->projectFolder().isEmpty(), kSoonMs);
    m_windows->play();
    const QPointer<player::PlayerWindow> game = mainWindow()->findChild<player::PlayerWindow *>();
    QVERIFY(game != nullptr);
    QSignalSpy started(&m_editor->session(), &LessonSession::started);
    QVERIFY(clickOn(find<QAbstractButton>("startAgainButton")));
    const auto question = [] {
        return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    };
    QTRY_VERIFY_WITH_TIMEOUT(question() != nullptr, kSoonMs);
    QVERIFY(clickOn(question()->buttons().constFirst()));
    QTRY_COMPARE_WITH_TIMEOUT(started.size(), 1, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(game == nullptr, kSoonMs);
}

void tst_PracticeWindows::theOverlaysDoNotCoverTheListOfLessons()
{
    QVERIFY(clickOn(find<QAbstractButton>("lessonsButton")));
    QTRY_VERIFY_WITH_TIMEOUT(!overlays().bubble && overlays().buttons.isEmpty(), kSoonMs);
    QVERIFY(clickOn(find<QAbstractButton>("closeButton")));
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kSoonMs);
}

void tst_PracticeWindows::aPopupIsAbandonedToTheCompanion()
{
    m_windows->project()->run(QStringLiteral("newProject.create"), m_windows->project()->files());
    QSignalSpy abandoned(m_windows, &EditorWindows::popupAbandoned);
    QSignalSpy popped(m_windows, &EditorWindows::popped);
    const auto *const maps =
        find<QWidget>("MapEditTreeBox")->findChild<QListWidget *>(QStringLiteral("maps"));
    QVERIFY(clickOn(maps->viewport(), maps->visualItemRect(maps->item(1)).center(), 3));
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->openWindows().constLast(), QStringLiteral("Popup"), kSoonMs);
    const QRect next = overlays().buttons.constFirst().rect;
    XWindows::click(next.center());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(abandoned.size(), 1, kSoonMs);
    QCOMPARE(popped.size(), 0);
    QCOMPARE(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")});
}

void tst_PracticeWindows::theStripSaysWhatTheBubbleSays()
{
    const QString selector = QStringLiteral("ImageSelector");
    const QString properties = QStringLiteral("MapProperties");
    const ScenarioRunner &runner = m_editor->session().runner();
    while (runner.isRunning() && runner.step().windowKey != selector) {
        find<QPushButton>("skipButton")->click();
    }
    QVERIFY(runner.isRunning());
    const QLabel *const strip = stripText();
    QTRY_COMPARE_WITH_TIMEOUT(strip->text(), m_editor->session().hint(), kSoonMs);
    m_windows->open(properties);
    QTRY_COMPARE_WITH_TIMEOUT(strip->text(), m_editor->session().hint(), kSoonMs);
    m_windows->close(properties);
    QTRY_COMPARE_WITH_TIMEOUT(strip->text(), m_editor->session().hint(), kSoonMs);
}

QTEST_MAIN(tst_PracticeWindows)
#include "tst_PracticeWindows.moc"
