#include "TestPlay.h"
#include "XWindows.h"
#include "host/LessonSession.h"
#include "player/view/GameView.h"
#include "player/view/PlayerWindow.h"
#include "window/EditorWindowSet.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace {

constexpr int kSoonMs = 30000;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A key of the real keyboard, in the words of xdotool.
void press(const char *key)
{
    XWindows::run(str("xdotool"), {str("key"), QString::fromLatin1(key)});
}

void type(const char *text)
{
    XWindows::run(str("xdotool"), {str("type"), QString::fromLatin1(text)});
}

} // namespace

/// The practice editor on a small screen with a window manager, used from the keyboard. No lesson is played.
class tst_PracticeDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everythingIsOnTheScreen();
    void placesAreToldInThePixelsOfTheScreen();
    void aDialogIsFilledInByKeys();
    void aContextMenuIsUsedByKeys();
    void keysOfTheMenuBarAreNotThoseOfADialog();
    void aGameIsPlayedAndLeftByKeys();

private:
    [[nodiscard]] EditorWindow *window(const char *key) const { return m_windows->window(str(key)); }
    [[nodiscard]] QWidget *frame() const { return window("MainWindow")->window(); }

    std::unique_ptr<QTemporaryDir> m_projects;
    std::unique_ptr<EditorWindowSet> m_windows;
    /// Of the main window.
    QWidget *m_strip = nullptr;
};

void tst_PracticeDesk::init()
{
    QStringList errors;
    m_projects = std::make_unique<QTemporaryDir>();
    m_windows = EditorWindowSet::create(str("en_US"), &errors);
    QVERIFY2(m_windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    m_windows->setUnattended(true);
    m_windows->setProjectsFolder(m_projects->path());
    m_strip = new QWidget;
    m_strip->setFixedHeight(96);
    m_windows->dock(m_strip);
    m_windows->open(str("MainWindow"));
    m_windows->project()->run(str("newProject.create"), m_windows->project()->files());
    QVERIFY(QTest::qWaitForWindowActive(frame(), kSoonMs));
}

void tst_PracticeDesk::cleanup()
{
    m_windows.reset();
}

void tst_PracticeDesk::everythingIsOnTheScreen()
{
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    QCOMPARE(screen.size(), QSize(1024, 768));
    QTRY_VERIFY_WITH_TIMEOUT(screen.contains(frame()->frameGeometry()), kSoonMs);
    const QRect contents = window("MainWindow")->rect();
    for (const char *name : {"viewGrid", "layer3", "tiles", "status"}) {
        QVERIFY2(contents.contains(window("MainWindow")->findChild<QWidget *>(str(name))->geometry()), name);
    }
    QVERIFY(contents.contains(window("MapEditTreeBox")->geometry()));
    QVERIFY(contents.contains(window("MainWindowClient_mapEditorView")->geometry()));
}

void tst_PracticeDesk::placesAreToldInThePixelsOfTheScreen()
{
    const auto onScreen = [this] {
        return XWindows::positionOf(frame()->winId()) + window("MainWindow")->pos();
    };
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->origin(str("MainWindow")).value(), onScreen(), kSoonMs);
    m_windows->open(str("NewProject"));
    QVERIFY(QTest::qWaitForWindowExposed(window("NewProject"), kSoonMs));
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->origin(str("NewProject")).value(),
                              XWindows::positionOf(window("NewProject")->winId()), kSoonMs);
}

void tst_PracticeDesk::aDialogIsFilledInByKeys()
{
    press("ctrl+n");
    QTRY_VERIFY_WITH_TIMEOUT(window("NewProject")->isActiveWindow(), kSoonMs);
    type("Meadow");
    QTRY_COMPARE_WITH_TIMEOUT(window("NewProject")->findChild<QLineEdit *>(str("name"))->text(),
                              str("Meadow"), kSoonMs);
    press("Return");
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->project()->name(), str("Meadow"), kSoonMs);
}

void tst_PracticeDesk::aContextMenuIsUsedByKeys()
{
    auto *maps = window("MapEditTreeBox")->findChild<QListWidget *>(str("maps"));
    maps->setFocus();
    for (const char *key : {"Menu", "shift+F10"}) {
        press(key);
        QTRY_COMPARE_WITH_TIMEOUT(m_windows->openWindows().constLast(), str("Popup"), kSoonMs);
        // It takes no activation from the window below.
        QVERIFY(frame()->isActiveWindow());
        press("Down");
        press("Return");
        QTRY_VERIFY_WITH_TIMEOUT(window("MapProperties")->isActiveWindow(), kSoonMs);
        press("Escape");
        QTRY_COMPARE_WITH_TIMEOUT(m_windows->openWindows(), QStringList{str("MainWindow")}, kSoonMs);
        QTRY_VERIFY_WITH_TIMEOUT(frame()->isActiveWindow(), kSoonMs);
        QVERIFY(maps->hasFocus());
    }
}

void tst_PracticeDesk::keysOfTheMenuBarAreNotThoseOfADialog()
{
    m_windows->open(str("MapProperties"));
    QTRY_VERIFY_WITH_TIMEOUT(window("MapProperties")->isActiveWindow(), kSoonMs);
    press("ctrl+g");
    press("Escape");
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->openWindows(), QStringList{str("MainWindow")}, kSoonMs);
    QVERIFY(!m_windows->project()->tools().hasGrid());
    QTRY_VERIFY_WITH_TIMEOUT(frame()->isActiveWindow(), kSoonMs);
    press("ctrl+g");
    QTRY_VERIFY_WITH_TIMEOUT(m_windows->project()->tools().hasGrid(), kSoonMs);
}

void tst_PracticeDesk::aGameIsPlayedAndLeftByKeys()
{
    const LessonSession session(m_windows.get());
    const TestPlay play(m_windows.get(), &session, m_strip);
    press("F5");
    QTRY_VERIFY_WITH_TIMEOUT(play.isOn(), kSoonMs);
    const QWidget *const focus = frame()->focusWidget();
    auto *const game = frame()->findChild<player::PlayerWindow *>();
    QVERIFY(game != nullptr);
    QTRY_VERIFY_WITH_TIMEOUT(game->isActiveWindow() && game->view()->isOutermost(), kSoonMs);
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    QTRY_VERIFY_WITH_TIMEOUT(screen.contains(game->frameGeometry()), kSoonMs);
    // The first row of the title begins the game.
    press("Return");
    QTRY_VERIFY_WITH_TIMEOUT(game->view()->frame().map != 0 && game->view()->isOutermost(), kSoonMs);
    press("Escape");
    QTRY_VERIFY_WITH_TIMEOUT(!play.isOn(), kSoonMs);
    m_windows->open(str("MainWindow"));
    QTRY_VERIFY_WITH_TIMEOUT(frame()->isActiveWindow(), kSoonMs);
    QCOMPARE(frame()->focusWidget(), focus);
}

QTEST_MAIN(tst_PracticeDesk)
#include "tst_PracticeDesk.moc"
