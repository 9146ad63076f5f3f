#include "TestPlay.h"
#include "host/LessonSession.h"
#include "player/view/GameView.h"
#include "player/view/LogPane.h"
#include "player/view/PlayerWindow.h"
#include "window/SampleEditor.h"

#include <QApplication>
#include <QListWidget>

using player::GameView;
using player::PlayerWindow;

namespace {

constexpr int kSoonMs = 20000;

} // namespace

/// The project runs as a game beside the editor, which is afterwards as it was.
class tst_TestPlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aGameRunsInAWindowOfItsOwn();
    void theEscapeKeyLeadsBackToTheEditorAsItWas();
    void closingTheWindowLeadsBack();
    void theEditorEndsTheGameForAPerson();
    void theGameIsTheProjectAsItStands();
    void aSecondGameTakesThePlaceOfTheFirst();
    void theGameBeginsAnewWithWhatTheProjectIsNow();
    void aBattleIsTriedFromItsDialog();
    void theGameWaitsWhileTheEditorIsUsed();
    void anotherProjectEndsTheGame();
    void aProblemLeadsToItsEvent();
    void aProblemOfTheDatabaseLeadsToItsEntry();
    void theStripStaysInSight();
    void aLessonSeesWhereTheGameLiesAndHowItIsLeft();
    void aDialogThatIsUsedLiesAboveTheGame();

private:
    void play() { m_editor->click("MainWindow", "play"); }
    /// The window of the game; nullptr while none runs.
    static PlayerWindow *window()
    {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            auto *found = qobject_cast<PlayerWindow *>(widget);
            if (found != nullptr && found->isVisible()) {
                return found;
            }
        }
        return nullptr;
    }

    std::unique_ptr<SampleEditor> m_editor;
    std::unique_ptr<LessonSession> m_session;
    QWidget *m_strip = nullptr;
    std::unique_ptr<TestPlay> m_play;
    int m_ended = 0;
};

void tst_TestPlay::init()
{
    m_editor = std::make_unique<SampleEditor>();
    m_session = std::make_unique<LessonSession>(m_editor->operator->());
    m_strip = new QWidget;
    m_strip->setFixedHeight(96);
    (*m_editor)->dock(m_strip);
    m_play = std::make_unique<TestPlay>(m_editor->operator->(), m_session.get(), m_strip);
    m_ended = 0;
    connect(m_play.get(), &TestPlay::ended, m_play.get(), [this] { ++m_ended; });
    m_editor->takeTold();
}

void tst_TestPlay::cleanup()
{
    m_play.reset();
    m_session.reset();
    m_editor.reset();
}

void tst_TestPlay::aGameRunsInAWindowOfItsOwn()
{
    QVERIFY(!m_play->isOn());
    play();
    QVERIFY(m_play->isOn());
    QVERIFY(window() != nullptr);
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,open in MainWindow")});
    QVERIFY(window()->isWindow());
    QVERIFY(!window()->windowTitle().isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(window()->view()->frame().panel("title") != nullptr, kSoonMs);
    // The windows of the editor are what they were.
    QCOMPARE((*m_editor)->openWindows(), QStringList{str("MainWindow")});
}

void tst_TestPlay::theEscapeKeyLeadsBackToTheEditorAsItWas()
{
    m_editor->run("tool.fill");
    m_editor->run("mode.event");
    m_editor->clickRow("MapEditTreeBox", "maps", 2);
    auto *const focus = QApplication::focusWidget();
    const QJsonObject before = (*m_editor)->state().toJson();
    play();
    QTRY_VERIFY_WITH_TIMEOUT(window()->view()->isOutermost(), kSoonMs);
    m_editor->takeTold();
    QTest::keyClick(window()->view(), Qt::Key_Escape);
    QVERIFY(!m_play->isOn());
    QVERIFY(window() == nullptr);
    QCOMPARE(m_ended, 1);
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,close in ")});
    QCOMPARE((*m_editor)->state().toJson(), before);
    QTRY_COMPARE_WITH_TIMEOUT(QApplication::focusWidget(), focus, kSoonMs);
}

void tst_TestPlay::closingTheWindowLeadsBack()
{
    play();
    window()->close();
    QVERIFY(!m_play->isOn());
    QCOMPARE(m_ended, 1);
    QCOMPARE(m_editor->told.constLast(), str("action,play,close in "));
}

void tst_TestPlay::theEditorEndsTheGameForAPerson()
{
    const ControlUse end{{str("MainWindow"), {}, -1}, ControlUse::Kind::kEnd, str("play"), false};
    play();
    m_editor->takeTold();
    QVERIFY((*m_editor)->perform(end));
    QVERIFY(!m_play->isOn());
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,close in ")});
    // There is none any more.
    QVERIFY((*m_editor)->perform(end));
    QCOMPARE(m_editor->takeTold(), QStringList());
}

void tst_TestPlay::theGameIsTheProjectAsItStands()
{
    DataFiles &files = (*m_editor)->project()->files();
    QVERIFY(files.set(str("data/System.json"), str("/gameTitle"), str("Not saved yet")));
    play();
    QCOMPARE(window()->game().data().system.gameTitle, str("Not saved yet"));
    QVERIFY(window()->windowTitle().contains(str("Not saved yet")));
    QVERIFY((*m_editor)->project()->isModified());
}

void tst_TestPlay::aSecondGameTakesThePlaceOfTheFirst()
{
    play();
    const QPointer<PlayerWindow> first = window();
    m_editor->takeTold();
    play();
    QCOMPARE(m_editor->takeTold(),
             (QStringList{str("action,play,close in "), str("action,play,open in MainWindow")}));
    QTRY_VERIFY_WITH_TIMEOUT(first.isNull(), kSoonMs);
    QVERIFY(m_play->isOn());
}

void tst_TestPlay::theGameBeginsAnewWithWhatTheProjectIsNow()
{
    play();
    const QPointer<PlayerWindow> first = window();
    DataFiles &files = (*m_editor)->project()->files();
    QVERIFY(files.set(str("data/System.json"), str("/gameTitle"), str("Changed since")));
    QTest::keyClick(first->view(), Qt::Key_F5);
    QTRY_VERIFY_WITH_TIMEOUT(first.isNull(), kSoonMs);
    QVERIFY(m_play->isOn());
    QCOMPARE(window()->game().data().system.gameTitle, str("Changed since"));
    QTRY_VERIFY_WITH_TIMEOUT(window()->view()->frame().panel("title") != nullptr, kSoonMs);
}

void tst_TestPlay::aBattleIsTriedFromItsDialog()
{
    m_editor->openDatabase(7);
    m_editor->click("DatabaseMain", "battleTest");
    m_editor->click("BattleTest", "start");
    QVERIFY(m_play->isOn());
    QTRY_VERIFY_WITH_TIMEOUT(!window()->view()->frame().battlers.isEmpty(), kSoonMs);
    const QPointer<PlayerWindow> first = window();
    QTest::keyClick(first->view(), Qt::Key_F5);
    QTRY_VERIFY_WITH_TIMEOUT(first.isNull(), kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(!window()->view()->frame().battlers.isEmpty(), kSoonMs);
    QTest::keyClick(window()->view(), Qt::Key_Escape);
    QVERIFY(!m_play->isOn());
    QCOMPARE((*m_editor)->openWindows(),
             (QStringList{str("MainWindow"), str("DatabaseMain"), str("BattleTest")}));
}

void tst_TestPlay::theGameWaitsWhileTheEditorIsUsed()
{
    play();
    QVERIFY(QTest::qWaitForWindowActive(window(), kSoonMs));
    QTRY_VERIFY_WITH_TIMEOUT(window()->view()->frame().tick > 0, kSoonMs);
    m_editor->frame()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_editor->frame(), kSoonMs));
    QTRY_VERIFY_WITH_TIMEOUT(!window()->isActiveWindow(), kSoonMs);
    const qint64 tick = window()->view()->frame().tick;
    // Far longer than a tick, told by the clock that the game itself goes by.
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(200)) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    QCOMPARE(window()->view()->frame().tick, tick);
    m_play->takeFocus();
    QTRY_VERIFY_WITH_TIMEOUT(window()->view()->frame().tick > tick, kSoonMs);
}

void tst_TestPlay::anotherProjectEndsTheGame()
{
    play();
    m_editor->run("newProject.create");
    QVERIFY(!m_play->isOn());
    QCOMPARE(m_ended, 1);
}

void tst_TestPlay::aProblemLeadsToItsEvent()
{
    play();
    const player::Problem problem{str("data/Map001.json"), 1, 1, 1, 1, str("what")};
    Q_EMIT window()->placeAsked(problem);
    QCOMPARE((*m_editor)->openWindows(), (QStringList{str("MainWindow"), str("EventEditorMain")}));
    QVERIFY(m_play->isOn());
}

void tst_TestPlay::aProblemOfTheDatabaseLeadsToItsEntry()
{
    play();
    player::Problem problem;
    problem.file = str("data/Enemies.json");
    problem.entry = 3;
    Q_EMIT window()->placeAsked(problem);
    QCOMPARE((*m_editor)->openWindows(), (QStringList{str("MainWindow"), str("DatabaseMain")}));
    QCOMPARE(m_editor->find<QTabBar>("DatabaseMain", "tabs")->currentIndex(), 6);
    QCOMPARE(m_editor->find<RowList>("DatabaseMain", "enemies")->currentRow(), 2);
    QVERIFY(m_play->isOn());
}

void tst_TestPlay::theStripStaysInSight()
{
    play();
    const QRect strip(m_strip->mapToGlobal(QPoint()), m_strip->size());
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    const QRect game(window()->mapToGlobal(QPoint()), window()->size());
    QVERIFY(screen.contains(game));
    // Unless the screen has no room beside it.
    if (screen.height() - strip.height() > game.height() + 40) {
        QVERIFY(!game.intersects(strip));
    }
}

void tst_TestPlay::aLessonSeesWhereTheGameLiesAndHowItIsLeft()
{
    QSignalSpy changed(m_editor->operator->(), &HostEditor::viewChanged);
    QVERIFY(!(*m_editor)->activities().first().isOn);
    play();
    QVERIFY(!changed.isEmpty());
    const Activity game = (*m_editor)->activities().first();
    QCOMPARE(game.action, str("play"));
    QVERIFY(game.isOn);
    QCOMPARE(game.rect, window()->frameGeometry());
    const std::optional<QRect> end = (*m_editor)->rectOf(game.end.by);
    QVERIFY(end);
    QVERIFY(game.rect.contains(*end));
    QTRY_VERIFY_WITH_TIMEOUT(window()->view()->isOutermost(), kSoonMs);
    QWidget *const keys = window()->childAt(window()->mapFromGlobal(end->center()));
    QVERIFY(keys != nullptr);
    changed.clear();
    QTest::mouseClick(keys, Qt::LeftButton, {}, keys->mapFromGlobal(end->center()));
    QVERIFY(!m_play->isOn());
    QVERIFY(!changed.isEmpty());
    QVERIFY(!(*m_editor)->activities().first().isOn);
    QVERIFY(!(*m_editor)->rectOf(game.end.by));
}

void tst_TestPlay::aDialogThatIsUsedLiesAboveTheGame()
{
    play();
    QTRY_VERIFY_WITH_TIMEOUT(window()->isActiveWindow(), kSoonMs);
    (*m_editor)->open(str("DatabaseMain"));
    QWidget *const dialog = (*m_editor)->window(str("DatabaseMain"))->window();
    dialog->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT((*m_editor)->activities().first().rect.isEmpty(), kSoonMs);
    QVERIFY((*m_editor)->activities().first().isOn);
    // Without a window manager it is not always the one that asks for it.
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(window(), &activation);
    QCOMPARE((*m_editor)->activities().first().rect, window()->frameGeometry());
    // The main window stays below the game, whichever of them has the keyboard.
    (*m_editor)->close(str("DatabaseMain"));
    m_strip->window()->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(m_strip->window()->isActiveWindow(), kSoonMs);
    QCOMPARE((*m_editor)->activities().first().rect, window()->frameGeometry());
}

QTEST_MAIN(tst_TestPlay)
#include "tst_TestPlay.moc"
