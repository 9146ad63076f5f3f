#include "PracticeEditor.h"
#include "pilot/OverlayWatch.h"
#include "pilot/Placement.h"
#include "runner/Scenario.h"
#include "window/EditorWindowSet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int kSoonMs = 15000;

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// A click of the real mouse, at a place on the screen.
void click(const QPoint &spot, int button = 1)
{
    outputOf(QStringLiteral("xdotool"),
             {QStringLiteral("mousemove"), QString::number(spot.x()), QString::number(spot.y()),
              QStringLiteral("click"), QString::number(button)});
}

void click(const QWidget *widget)
{
    click(widget->mapToGlobal(widget->rect().center()));
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

} // namespace

/// What a learner may do beside the lesson, in real windows and with the real companion.
class TestPracticeWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theArrowFollowsTheMainWindow();
    void theOverlaysGoAndComeWithTheEditor();
    void aStepIsSkippedWhileADialogIsOpen();
    void theArrowComesBackToADialogThatWasClosed();
    void anotherDialogDoesNotTakeTheArrowAway();
    void startAgainClosesTheDialogs();
    void aPopupIsAbandonedToTheCompanion();

private:
    [[nodiscard]] OverlayWatch overlays() const;
    /// Whether the bubble of a step without a place rests in the middle of the main window, beside its
    /// button.
    [[nodiscard]] bool isReadable() const;
    /// Whether the arrow on the screen points at the spot of the present step.
    [[nodiscard]] bool isPointing() const;
    [[nodiscard]] int stepId() const;
    [[nodiscard]] QPoint spot() const;
    [[nodiscard]] QWidget *mainWindow() const { return m_windows->window(QStringLiteral("MainWindow")); }
    void openNewProject();

    EditorWindowSet *m_windows = nullptr;
    std::unique_ptr<PracticeEditor> m_editor;
    QString m_companion;
};

void TestPracticeWindows::init()
{
    QStringList errors;
    std::unique_ptr<EditorWindowSet> windows = EditorWindowSet::create(QStringLiteral("en_US"), &errors);
    QVERIFY2(windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    m_windows = windows.get();
    PracticeEditor::Options options;
    options.lesson = 1;
    options.locale = QStringLiteral("en_US");
    options.companionProgram = QStringLiteral(TUTORIAL_PROGRAM);
    m_editor = std::make_unique<PracticeEditor>(options, std::move(windows));
    QString error;
    QVERIFY2(m_editor->start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(m_editor->session().runner().isRunning(), kSoonMs);
    m_companion = QString::fromLatin1(
        outputOf(QStringLiteral("pgrep"),
                 {QStringLiteral("-n"), QStringLiteral("-P"),
                  QString::number(QCoreApplication::applicationPid()), QStringLiteral("Tutorial")})
            .trimmed());
    QVERIFY(!m_companion.isEmpty());
    // The first two steps are read; the third asks for a click on "New". Until it rests, the bubble takes its
    // button along, and a click would come too late for the place that was looked up.
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kSoonMs);
}

void TestPracticeWindows::cleanup()
{
    m_editor.reset();
}

OverlayWatch TestPracticeWindows::overlays() const
{
    return OverlayWatch::parse(
        outputOf(QStringLiteral("xdotool"),
                 {QStringLiteral("search"), QStringLiteral("--all"), QStringLiteral("--onlyvisible"),
                  QStringLiteral("--pid"), m_companion, QStringLiteral("--name"), QString(),
                  QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), QStringLiteral("%@")}));
}

bool TestPracticeWindows::isReadable() const
{
    const OverlayWatch seen = overlays();
    const QPoint middle = mainWindow()->mapToGlobal(mainWindow()->rect().center());
    return seen.buttons.size() == 1 && seen.bubble &&
           arrowSpot(seen.bubble->topLeft(), middle - ScenarioStep::kTip);
}

bool TestPracticeWindows::isPointing() const
{
    const OverlayWatch seen = overlays();
    const std::optional<QPoint> target = m_editor->session().bubbleTarget();
    return seen.bubble && target && arrowSpot(seen.bubble->topLeft(), *target);
}

int TestPracticeWindows::stepId() const
{
    return m_editor->session().runner().isRunning() ? m_editor->session().runner().step().id : -1;
}

QPoint TestPracticeWindows::spot() const
{
    return arrowSpot(overlays().bubble->topLeft(), *m_editor->session().bubbleTarget()).value();
}

/// Skips to the step at "New", and does it.
void TestPracticeWindows::openNewProject()
{
    click(find<QAbstractButton>("skipButton"));
    QTRY_COMPARE(stepId(), 2);
    click(find<QAbstractButton>("skipButton"));
    QTRY_COMPARE(stepId(), 3);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    click(spot());
    QTRY_COMPARE(stepId(), 4);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
}

void TestPracticeWindows::theArrowFollowsTheMainWindow()
{
    click(find<QAbstractButton>("skipButton"));
    click(find<QAbstractButton>("skipButton"));
    QTRY_COMPARE(stepId(), 3);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    const QPoint before = *m_editor->session().bubbleTarget();
    mainWindow()->move(mainWindow()->pos() + QPoint(60, 50));
    QTRY_VERIFY(*m_editor->session().bubbleTarget() != before);
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    click(spot());
    QTRY_COMPARE(stepId(), 4);
}

void TestPracticeWindows::theOverlaysGoAndComeWithTheEditor()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    const QWidget *strip = find<QAbstractButton>("skipButton")->window();
    // Something else to turn to: openbox would give the focus to an overlay, and one in use stays.
    QWidget elsewhere;
    elsewhere.setGeometry(1150, 850, 100, 80);
    elsewhere.show();
    QVERIFY(QTest::qWaitForWindowExposed(&elsewhere));
    click(&elsewhere);
    QTRY_VERIFY(elsewhere.isActiveWindow());
    mainWindow()->showMinimized();
    QTRY_VERIFY_WITH_TIMEOUT(!overlays().bubble, kSoonMs);
    QVERIFY(overlays().buttons.isEmpty());
    QVERIFY(!strip->isVisible());
    mainWindow()->showNormal();
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(overlays().buttons.size(), 1, kSoonMs);
    QVERIFY(strip->isVisible());
    QCOMPARE(stepId(), 4);
}

void TestPracticeWindows::aStepIsSkippedWhileADialogIsOpen()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    click(find<QAbstractButton>("skipButton"));
    QTRY_COMPARE(stepId(), 5);
    QVERIFY(m_windows->openWindows().contains(QStringLiteral("NewProject")));
}

void TestPracticeWindows::theArrowComesBackToADialogThatWasClosed()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    const QLabel *status = find<QLabel>("statusLabel");
    const QString step = status->text();
    click(m_windows->window(QStringLiteral("NewProject"))
              ->findChild<QAbstractButton *>(QStringLiteral("cancel")));
    QTRY_COMPARE(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")});
    QCOMPARE(stepId(), 4);
    QVERIFY2(status->text().contains(QStringLiteral("\"New project\"")), qPrintable(status->text()));
    click(mainWindow()->findChild<QAbstractButton *>(QStringLiteral("fileNew")));
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    QCOMPARE(status->text(), step);
}

void TestPracticeWindows::anotherDialogDoesNotTakeTheArrowAway()
{
    m_windows->project()->run(QStringLiteral("newProject.create"));
    click(find<QAbstractButton>("skipButton"));
    click(find<QAbstractButton>("skipButton"));
    QTRY_COMPARE(stepId(), 3);
    m_windows->open(QStringLiteral("MapProperties"));
    QTRY_VERIFY_WITH_TIMEOUT(isPointing(), kSoonMs);
    click(m_windows->window(QStringLiteral("MapProperties"))
              ->findChild<QAbstractButton *>(QStringLiteral("cancel")));
    QTRY_COMPARE(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")});
    QVERIFY(isPointing());
    click(spot());
    QTRY_COMPARE(stepId(), 4);
}

void TestPracticeWindows::startAgainClosesTheDialogs()
{
    openNewProject();
    if (QTest::currentTestFailed()) {
        return;
    }
    QSignalSpy started(&m_editor->session(), &LessonSession::started);
    click(find<QAbstractButton>("startButton"));
    QTRY_COMPARE_WITH_TIMEOUT(started.size(), 1, kSoonMs);
    QCOMPARE(stepId(), 1);
    QCOMPARE(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")});
}

void TestPracticeWindows::aPopupIsAbandonedToTheCompanion()
{
    m_windows->project()->run(QStringLiteral("newProject.create"));
    QSignalSpy abandoned(m_windows, &EditorWindows::popupAbandoned);
    QSignalSpy popped(m_windows, &EditorWindows::popped);
    auto *maps = find<QListWidget>("maps");
    click(maps->viewport()->mapToGlobal(maps->visualItemRect(maps->item(1)).center()), 3);
    QTRY_COMPARE(m_windows->openWindows().constLast(), QStringLiteral("Popup"));
    const QRect next = overlays().buttons.constFirst();
    click(next.center());
    QTRY_COMPARE(stepId(), 2);
    QTRY_COMPARE(abandoned.size(), 1);
    QCOMPARE(popped.size(), 0);
    QCOMPARE(m_windows->openWindows(), QStringList{QStringLiteral("MainWindow")});
}

QTEST_MAIN(TestPracticeWindows)
#include "tst_PracticeWindows.moc"
