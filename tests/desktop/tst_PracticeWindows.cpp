#include "PracticeEditor.h"
#include "XWindows.h"
#include "lesson/Scenario.h"
#include "pilot/ArrowSpot.h"
#include "pilot/x11/XEye.h"
#include "window/EditorWindowSet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kSoonMs = 30000;
constexpr int kLooks = 100;

/// A click of the real mouse at a place in a widget, as soon as the X server would give it to the widget's
/// window: one that is only just shown, or still lies below a window on its way out, gets none.
bool clickOn(const QWidget *widget, const QPoint &place, int button = 1)
{
    const QWidget *window = widget->window();
    const auto onScreen = [widget, window, place] {
        return XWindows::positionOf(window->winId()) + widget->mapTo(window, place);
    };
    if (!QTest::qWaitFor([&] { return XWindows::takesClick(window->winId(), onScreen()); }, kSoonMs)) {
        return false;
    }
    XWindows::click(onScreen(), button);
    return true;
}

bool clickOn(const QWidget *widget)
{
    return clickOn(widget, widget->rect().center());
}

template<typename Widget>
Widget *find(const char *name)
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *topLevel : topLevels) {
        if (auto *widget = topLevel->findChild<Widget *>(QString::fromLatin1(name))) {
            return widget;
        }
    }
    qFatal("there is no %s", name);
}

/// What the lesson strip says; a control of a window may have the same name.
const QLabel *stripText()
{
    return find<QWidget>("lessonStrip")->findChild<QLabel *>(QStringLiteral("textLabel"));
}

} // namespace

/// What a learner may do beside the lesson, in real windows and with the real companion.
class tst_PracticeWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theArrowFollowsTheMainWindow();
    void theOverlaysGoAndComeWithTheEditor();
    void aStepIsSkippedWhileADialogIsOpen();
    void theArrowComesBackToADialogThatWasClosed();
    void anotherDialogDoesNotTakeTheArrowAway();
    void startAgainClosesTheDialogs();
    void theOverlaysDoNotCoverTheListOfLessons();
    void aPopupIsAbandonedToTheCompanion();
    void theStripSaysWhatTheBubbleSays();

private:
    [[nodiscard]] SeenOverlays overlays() const;
    /// Whether the bubble of a step without a place rests in the middle of the main window, beside its
    /// button.
    [[nodiscard]] bool isReadable() const;
    /// Whether the arrow on the screen points at the spot of the present step.
    [[nodiscard]] bool isPointing() const;
    [[nodiscard]] int stepId() const;
    [[nodiscard]] bool clickSpot() const;
    /// The contents of the main window, and the window around them.
    [[nodiscard]] QWidget *contents() const { return m_windows->window(QStringLiteral("MainWindow")); }
    [[nodiscard]] QWidget *mainWindow() const { return contents()->window(); }
    void openNewProject();

    QTemporaryDir m_projects;
    EditorWindowSet *m_windows = nullptr;
    std::unique_ptr<PracticeEditor> m_editor;
    std::unique_ptr<XEye> m_eye;
};

void tst_PracticeWindows::initTestCase()
{
    QString error;
    const std::shared_ptr<const XConnection> x = XConnection::open(&error);
    QVERIFY2(x != nullptr, qPrintable(error));
    m_eye = std::make_unique<XEye>(x);
}

void tst_PracticeWindows::init()
{
    QStringList errors;
    std::unique_ptr<EditorWindowSet> windows = EditorWindowSet::create(QStringLiteral("en_US"), &errors);
    QVERIFY2(windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    m_windows = windows.get();
    PracticeEditor::Options options;
    options.lesson = 1;
    options.locale = QStringLiteral("en_US");
    options.companionProgram = QStringLiteral(TUTORIAL_PROGRAM);
    options.projectsFolder = m_projects.path();
    m_editor = std::make_unique<PracticeEditor>(options, std::move(windows));
    connect(m_editor.get(), &PracticeEditor::companionConnected, this,
            [this](qint64 pid) { m_eye->setCompanion(pid); });
    QString error;
    QVERIFY2(m_editor->start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(m_editor->session().runner().isRunning(), kSoonMs);
    // The first two steps are read; the third asks for a click on "New". Until it rests, the bubble takes its
    // button along, and a click would come too late for the place that was looked up.
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kSoonMs);
}

void tst_PracticeWindows::cleanup()
{
    m_editor.reset();
}

SeenOverlays tst_PracticeWindows::overlays() const
{
    // A look fails when a window of anyone's goes away under it.
    std::optional<SeenOverlays> seen;
    for (int look = 0; look < kLooks && !seen; ++look) {
        seen = m_eye->overlays();
    }
    return seen.value_or(SeenOverlays());
}

bool tst_PracticeWindows::isReadable() const
{
    const SeenOverlays seen = overlays();
    const QPoint middle = contents()->mapToGlobal(contents()->rect().center());
    return seen.buttons.size() == 1 && seen.bubble &&
           arrowSpot(seen.bubble->topLeft(), middle - LessonWords::kTip);
}

bool tst_PracticeWindows::isPointing() const
{
    const SeenOverlays seen = overlays();
    const std::optional<QPoint> target = m_editor->session().bubbleTarget();
    return seen.bubble && target && arrowSpot(seen.bubble->topLeft(), *target);
}

int tst_PracticeWindows::stepId() const
{
    return m_editor->session().runner().isRunning() ? m_editor->session().runner().step().id : -1;
}

/// Clicks what the arrow points at in the main window, once it does.
bool tst_PracticeWindows::clickSpot() const
{
    std::optional<QPoint> spot;
    const auto isReady = [this, &spot] {
        const SeenOverlays seen = overlays();
        const std::optional<QPoint> target = m_editor->session().bubbleTarget();
        spot = seen.bubble && target ? arrowSpot(seen.bubble->topLeft(), *target) : std::nullopt;
        return spot && XWindows::takesClick(mainWindow()->winId(), *spot);
    };
    if (!QTest::qWaitFor(isReady, kSoonMs)) {
        return false;
    }
    XWindows::click(*spot);
    return true;
}

/// Skips to the step at "New", and does it.
void tst_PracticeWindows::openNewProject()
{
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    QVERIFY(clickOn(find<QAbstractButton>("skipButton")));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 3, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QVERIFY(clickSpot());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 4, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
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
