#include "PracticeTest.h"
#include "lesson/LessonWords.h"

#include <QAbstractButton>
#include <QScreen>

namespace {

/// Turned, the bubble's text is at the left of the arrow.
constexpr int kTurned = 256;

} // namespace

/// The editor goes from one screen to the other in a lesson.
class tst_TwoScreens : public PracticeTest
{
    Q_OBJECT

private Q_SLOTS:
    void theArrowIsTrueOnBothScreens();
    void theBubbleTurnsOnNeitherScreenWhileThereIsRoom();
    void aDialogOpensOnTheScreenOfTheEditor();

private:
    /// The screens from left to right.
    [[nodiscard]] static QVector<QScreen *> screens();
    /// Moves the main window to a place on the screen, and waits until the arrow has followed.
    void goTo(const QScreen *screen, const QPoint &place);
    /// At the step that points at "New".
    void begin();
    /// How far the bubble's window begins left of the arrow's spot.
    [[nodiscard]] int bubbleToSpot() const;
};

QVector<QScreen *> tst_TwoScreens::screens()
{
    QVector<QScreen *> screens = QGuiApplication::screens().toVector();
    std::sort(screens.begin(), screens.end(), [](const QScreen *one, const QScreen *other) {
        return one->geometry().left() < other->geometry().left();
    });
    return screens;
}

void tst_TwoScreens::goTo(const QScreen *screen, const QPoint &place)
{
    mainWindow()->move(screen->geometry().topLeft() + place);
    const auto isThere = [this, screen] {
        const std::optional<QPoint> target = m_editor->session().bubbleTarget();
        return target && screen->geometry().contains(*target + LessonWords::kTip) && isPointing();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isThere(), kSoonMs);
}

void tst_TwoScreens::begin()
{
    QCOMPARE(screens().size(), 2);
    start(options());
    waitForTheLesson();
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 3, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
}

int tst_TwoScreens::bubbleToSpot() const
{
    const SeenOverlays seen = overlays();
    const std::optional<QPoint> target = m_editor->session().bubbleTarget();
    return seen.bubble && target ? target->x() + LessonWords::kTip.x() - seen.bubble->left() : -1;
}

void tst_TwoScreens::theArrowIsTrueOnBothScreens()
{
    begin();
    for (const int number : {1, 0, 1}) {
        goTo(screens().at(number), {40, 60});
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    QVERIFY(clickSpot());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 4, kSoonMs);
}

void tst_TwoScreens::theBubbleTurnsOnNeitherScreenWhileThereIsRoom()
{
    begin();
    // There is room at the right of "New" on both screens.
    for (QScreen *const screen : screens()) {
        goTo(screen, {40, 60});
        QTRY_VERIFY_WITH_TIMEOUT(bubbleToSpot() >= 0 && bubbleToSpot() < kTurned, kSoonMs);
    }
}

void tst_TwoScreens::aDialogOpensOnTheScreenOfTheEditor()
{
    begin();
    goTo(screens().constLast(), {40, 60});
    QVERIFY(clickSpot());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 4, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    const QWidget *const dialog = m_windows->window(QStringLiteral("NewProject"));
    QVERIFY(screens().constLast()->geometry().contains(dialog->frameGeometry()));
    QVERIFY(
        screens().constLast()->geometry().contains(*m_editor->session().bubbleTarget() + LessonWords::kTip));
}

QTEST_MAIN(tst_TwoScreens)
#include "tst_TwoScreens.moc"
