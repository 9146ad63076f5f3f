#include "PracticeTest.h"

#include "lesson/LessonWords.h"

#include <QAbstractButton>
#include <QLabel>

namespace {

constexpr int kLooks = 100;

} // namespace

void PracticeTest::initTestCase()
{
    QString error;
    const std::shared_ptr<const XConnection> x = XConnection::open(&error);
    QVERIFY2(x != nullptr, qPrintable(error));
    m_eye = std::make_unique<XEye>(x);
}

void PracticeTest::cleanup()
{
    m_editor.reset();
}

PracticeEditor::Options PracticeTest::options() const
{
    PracticeEditor::Options options;
    options.lesson = 1;
    options.locale = QStringLiteral("en_US");
    options.companionProgram = QStringLiteral(TUTORIAL_PROGRAM);
    options.projectsFolder = m_projects.path();
    return options;
}

void PracticeTest::start(const PracticeEditor::Options &options)
{
    QStringList errors;
    std::unique_ptr<EditorWindowSet> windows = EditorWindowSet::create(options.locale, &errors);
    QVERIFY2(windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    m_windows = windows.get();
    m_editor = std::make_unique<PracticeEditor>(options, std::move(windows));
    connect(m_editor.get(), &PracticeEditor::companionConnected, this,
            [this](qint64 pid) { m_eye->setCompanion(pid); });
    QString error;
    QVERIFY2(m_editor->start(&error), qPrintable(error));
}

void PracticeTest::waitForTheLesson()
{
    QTRY_VERIFY_WITH_TIMEOUT(m_editor->session().runner().isRunning(), kSoonMs);
    // Until it rests, the bubble takes its button along, and a click would come too late for the place that
    // was looked up.
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kSoonMs);
}

bool PracticeTest::clickOn(const QWidget *widget, const QPoint &place, int button)
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

bool PracticeTest::clickOn(const QWidget *widget)
{
    return clickOn(widget, widget->rect().center());
}

const QLabel *PracticeTest::stripText()
{
    return find<QWidget>("lessonStrip")->findChild<QLabel *>(QStringLiteral("textLabel"));
}

SeenOverlays PracticeTest::overlays() const
{
    // A look fails when a window of anyone's goes away under it.
    std::optional<SeenOverlays> seen;
    for (int look = 0; look < kLooks && !seen; ++look) {
        seen = m_eye->overlays();
    }
    return seen.value_or(SeenOverlays());
}

bool PracticeTest::isReadable() const
{
    const SeenOverlays seen = overlays();
    const QPoint middle = contents()->mapToGlobal(contents()->rect().center());
    return seen.buttons.size() == 1 && seen.bubble &&
           arrowSpot(seen.bubble->topLeft(), middle - LessonWords::kTip);
}

bool PracticeTest::isPointing() const
{
    const SeenOverlays seen = overlays();
    const std::optional<QPoint> target = m_editor->session().bubbleTarget();
    return seen.bubble && target && arrowSpot(seen.bubble->topLeft(), *target);
}

int PracticeTest::stepId() const
{
    return m_editor->session().runner().isRunning() ? m_editor->session().runner().step().id : -1;
}

bool PracticeTest::clickSpot() const
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

void PracticeTest::openNewProject()
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
