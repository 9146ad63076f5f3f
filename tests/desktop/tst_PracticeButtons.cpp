#include "PracticeTest.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>

namespace {

constexpr int kAttempts = 20;
/// Of the 400 ms in which a press is swallowed, as the mouse is read a little later.
constexpr int kSoonEnoughMs = 300;

/// When the mouse was pressed in this program's windows last.
class PressClock : public QObject
{
public:
    PressClock() { qApp->installEventFilter(this); }

    void begin()
    {
        m_pressedAt = -1;
        m_isReleased = false;
        m_since.start();
    }
    /// In milliseconds since begin(); -1 before a press.
    [[nodiscard]] qint64 pressedAt() const { return m_pressedAt; }
    [[nodiscard]] bool isReleased() const { return m_isReleased; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // What is swallowed never gets to a widget.
        if (watched->isWindowType()) {
            if (event->type() == QEvent::MouseButtonPress && m_pressedAt < 0) {
                m_pressedAt = m_since.elapsed();
            }
            m_isReleased = m_isReleased || event->type() == QEvent::MouseButtonRelease;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QElapsedTimer m_since;
    qint64 m_pressedAt = -1;
    bool m_isReleased = false;
};

void press(const char *key)
{
    XWindows::run(QStringLiteral("xdotool"), {QStringLiteral("key"), QString::fromLatin1(key)});
}

} // namespace

/// The companion's buttons and tips between the editor's windows, with the real mouse and keyboard.
class tst_PracticeButtons : public PracticeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aDoubleClickOnNextGoesOnByOneStep();
    void aPressBehindNextIsSwallowed();
    void enterReachesTheDialogBehindNext();
    void aTipShowsWhileTheMouseRestsOnAButton();

private:
    /// Whether there is one button, where it was at the last look.
    [[nodiscard]] bool buttonRests()
    {
        const SeenOverlays seen = overlays();
        const bool rests = seen.buttons.size() == 1 && seen.buttons == m_seen.buttons;
        m_seen = seen;
        return rests;
    }
    /// The middle of the companion's button, once it rests.
    [[nodiscard]] QPoint nextButton() const { return overlays().buttons.constFirst().rect.center(); }

    SeenOverlays m_seen;
};

void tst_PracticeButtons::init()
{
    start(options());
    waitForTheLesson();
}

void tst_PracticeButtons::aDoubleClickOnNextGoesOnByOneStep()
{
    QSignalSpy arrived(&m_editor->session(), &LessonSession::nextArrived);
    // The next step has no place either, so its button stands where this one does.
    const QPoint next = nextButton();
    XWindows::run(QStringLiteral("xdotool"),
                  {QStringLiteral("mousemove"), QString::number(next.x()), QString::number(next.y()),
                   QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                   QStringLiteral("--delay"), QStringLiteral("120"), QStringLiteral("1")});
    QTRY_COMPARE_WITH_TIMEOUT(arrived.size(), 2, kSoonMs);
    QCOMPARE(stepId(), 2);
}

void tst_PracticeButtons::aPressBehindNextIsSwallowed()
{
    Project *const project = m_windows->project();
    project->run(QStringLiteral("newProject.create"), project->files());
    PressClock clock;
    connect(&m_editor->session(), &LessonSession::nextArrived, &clock, [&clock] { clock.begin(); });
    // One try may follow the other as fast as the presses of a double click on Next.
    m_editor->session().setDoublePressMs(0);
    m_editor->session().skipStep();
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    // The desktop may be too slow for one try.
    bool wasSoonEnough = false;
    for (int attempt = 0; attempt < kAttempts && !wasSoonEnough; ++attempt) {
        QTRY_VERIFY_WITH_TIMEOUT(buttonRests(), kSoonMs);
        const QPoint at = nextButton();
        XWindows::click(at);
        QTRY_COMPARE_WITH_TIMEOUT(stepId(), 3, kSoonMs);
        // The button is gone, and below it is the map.
        QTRY_VERIFY_WITH_TIMEOUT(XWindows::takesClick(mainWindow()->winId(), at), kSoonMs);
        XWindows::click(at);
        QTRY_VERIFY_WITH_TIMEOUT(clock.isReleased(), kSoonMs);
        wasSoonEnough = clock.pressedAt() < kSoonEnoughMs;
        QVERIFY(!wasSoonEnough || !project->isModified());
        m_editor->session().back();
        QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    }
    QVERIFY(wasSoonEnough);
}

void tst_PracticeButtons::enterReachesTheDialogBehindNext()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    auto *const name =
        m_windows->window(QStringLiteral("NewProject"))->findChild<QLineEdit *>(QStringLiteral("name"));
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("Harbor"));
    QTRY_VERIFY_WITH_TIMEOUT(buttonRests(), kSoonMs);
    XWindows::click(nextButton());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 5, kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::activeWindow(), quintptr(name->window()->winId()), kSoonMs);
    press("Return");
    QTRY_COMPARE_WITH_TIMEOUT(m_windows->project()->name(), QStringLiteral("Harbor"), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 7, kSoonMs);
}

void tst_PracticeButtons::aTipShowsWhileTheMouseRestsOnAButton()
{
    const auto *const button = find<QWidget>("fileSave");
    const QPoint on =
        XWindows::positionOf(mainWindow()->winId()) + button->mapTo(mainWindow(), button->rect().center());
    const QRect below(on + QPoint(-30, button->height() / 2 + 12), QSize(60, 24));
    QTRY_VERIFY_WITH_TIMEOUT(XWindows::takesClick(mainWindow()->winId(), on + QPoint(0, 300)), kSoonMs);
    const QImage without = XWindows::screenshot(below);
    QVERIFY(!without.isNull());
    // The mouse is put there, and away again.
    QVERIFY(XWindows::takesClick(mainWindow()->winId(), on));
    QTRY_VERIFY_WITH_TIMEOUT(XWindows::screenshot(below) != without, kSoonMs);
    QVERIFY(XWindows::takesClick(mainWindow()->winId(), on + QPoint(0, 300)));
    QTRY_VERIFY_WITH_TIMEOUT(XWindows::screenshot(below) == without, kSoonMs);
}

QTEST_MAIN(tst_PracticeButtons)
#include "tst_PracticeButtons.moc"
