#include "FakeOverlayHost.h"
#include "TestIndicator.h"
#include "TestTooltip.h"
#include "Tutorial/overlay/OverlayStyle.h"
#include "XWindows.h"

#include <QMouseEvent>
#include <QScreen>
#include <QtTest>

namespace {

constexpr int kSoonMs = 30000;

// A window under the overlays that counts what the mouse does to it.
class WindowBelow final : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        Q_UNUSED(event)
        ++presses;
    }
};

// Where the X server has the window, in root coordinates: Qt's own idea of it may differ.
QPoint positionOf(const QWidget *widget)
{
    return XWindows::positionOf(widget->winId());
}

bool clickOn(const QWidget *button, const QPoint &spot)
{
    const auto isReady = [button, spot] {
        return XWindows::takesClick(button->winId(), positionOf(button) + spot);
    };
    if (!QTest::qWaitFor(isReady, kSoonMs)) {
        return false;
    }
    XWindows::click(positionOf(button) + spot);
    return true;
}

} // namespace

class tst_OverlayWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void clicksPassThroughTheBubble();
    void clicksPassThroughTheTooltip();
    void buttonsTakeTheirClicks();
    void focusStaysBelow();
    void bubbleReachesBeyondTheScreen_data();
    void bubbleReachesBeyondTheScreen();
    void tooltipReachesBeyondTheScreen();

private:
    void waitUntilClickThrough(QWidget *overlay, const QPoint &spot);
    void verifyPassesThrough(QWidget *overlay, const QVector<QPoint> &spots);

    FakeOverlayHost m_host;
    std::unique_ptr<TestTooltip> m_tooltip;
    std::unique_ptr<WindowBelow> m_below;
    std::unique_ptr<TestIndicator> m_indicator;
};

void tst_OverlayWindows::initTestCase()
{
    OverlayStyle::apply();
}

void tst_OverlayWindows::init()
{
    m_host = FakeOverlayHost();
    m_below = std::make_unique<WindowBelow>();
    m_below->setGeometry(60, 60, 900, 700);
    m_below->show();
    m_below->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_below.get(), kSoonMs));
    m_indicator = std::make_unique<TestIndicator>(&m_host);
    m_tooltip = std::make_unique<TestTooltip>(&m_host);
}

void tst_OverlayWindows::cleanup()
{
    m_tooltip.reset();
    m_indicator.reset();
    m_below.reset();
}

// The window manager may be a moment behind; from then on, all clicks must arrive.
void tst_OverlayWindows::waitUntilClickThrough(QWidget *overlay, const QPoint &spot)
{
    QVERIFY(QTest::qWaitForWindowExposed(overlay, kSoonMs));
    QTRY_VERIFY_WITH_TIMEOUT(XWindows::takesClick(m_below->winId(), positionOf(overlay) + spot), kSoonMs);
}

void tst_OverlayWindows::verifyPassesThrough(QWidget *overlay, const QVector<QPoint> &spots)
{
    for (int round = 0; round < 3; ++round) {
        waitUntilClickThrough(overlay, spots.first());
        if (QTest::currentTestFailed()) {
            return;
        }
        m_below->presses = 0;
        int clicks = 0;
        for (const QPoint &spot : spots) {
            XWindows::click(positionOf(overlay) + spot);
            ++clicks;
            QTRY_COMPARE_WITH_TIMEOUT(m_below->presses, clicks, kSoonMs);
        }
        overlay->hide();
        QTRY_VERIFY_WITH_TIMEOUT(!overlay->windowHandle()->isExposed(), kSoonMs);
        overlay->show();
    }
}

void tst_OverlayWindows::clicksPassThroughTheBubble()
{
    m_indicator->setHint(QStringLiteral("Click through this text."));
    m_indicator->setTargetWindowOffset(200, 200, QString(), true);
    m_indicator->showTooltip();
    m_indicator->tick(60);
    const QRect text = m_indicator->textEdit()->geometry();
    verifyPassesThrough(m_indicator->tooltip(),
                        {text.center(), {64, 64}, {150, 20}, {500, 400}, text.topLeft()});
}

void tst_OverlayWindows::clicksPassThroughTheTooltip()
{
    m_tooltip->show(QStringLiteral("Click through this tooltip"), 400, 300);
    m_tooltip->setWindowOpacity(1.0);
    verifyPassesThrough(m_tooltip.get(), {{10, 10}, {60, 12}, {200, 200}});
}

void tst_OverlayWindows::buttonsTakeTheirClicks()
{
    m_indicator->setTargetWindowOffset(200, 200, QString(), true);
    m_indicator->init(false, true);
    m_indicator->showTooltip();
    m_indicator->tick(60);
    QVERIFY(QTest::qWaitForWindowExposed(TestIndicator::yes(), kSoonMs));
    QVERIFY(QTest::qWaitForWindowExposed(TestIndicator::no(), kSoonMs));
    waitUntilClickThrough(m_indicator->tooltip(), {500, 400});
    if (QTest::currentTestFailed()) {
        return;
    }
    // No stands 56 pixels to the right and lies above the last 8 of Yes.
    QVERIFY(clickOn(TestIndicator::yes(), {20, 16}));
    QTRY_COMPARE_WITH_TIMEOUT(m_host.sent, QStringList(QStringLiteral("yes")), kSoonMs);
    QVERIFY(clickOn(TestIndicator::no(), {40, 16}));
    QTRY_COMPARE_WITH_TIMEOUT(m_host.sent, QStringList({QStringLiteral("yes"), QStringLiteral("no")}),
                              kSoonMs);
    QCOMPARE(m_below->presses, 0);
}

void tst_OverlayWindows::focusStaysBelow()
{
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::activeWindow(), quintptr(m_below->winId()), kSoonMs);
    m_indicator->setHint(QStringLiteral("Here"));
    m_indicator->init(true, true);
    m_indicator->showTooltip();
    m_tooltip->show(QStringLiteral("There"), 400, 300);
    QVERIFY(QTest::qWaitForWindowExposed(m_indicator->tooltip(), kSoonMs));
    QVERIFY(QTest::qWaitForWindowExposed(TestIndicator::no(), kSoonMs));
    QVERIFY(QTest::qWaitForWindowExposed(m_tooltip.get(), kSoonMs));
    QCOMPARE(XWindows::activeWindow(), quintptr(m_below->winId()));
    QCOMPARE(QApplication::activeWindow(), m_below.get());
}

void tst_OverlayWindows::bubbleReachesBeyondTheScreen_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::newRow("right") << QPoint(880, 300);
    QTest::newRow("bottom") << QPoint(300, 800);
    QTest::newRow("both") << QPoint(880, 800);
    QTest::newRow("left") << QPoint(-80, 300);
}

void tst_OverlayWindows::bubbleReachesBeyondTheScreen()
{
    QFETCH(QPoint, target);
    m_indicator->setHostRect({QPoint(0, 0), QGuiApplication::primaryScreen()->size()});
    m_indicator->setTargetWindowOffset(target.x(), target.y(), QString(), true);
    m_indicator->tick(80);
    const QPoint rest(m_indicator->state("lastX").toInt(), m_indicator->state("lastY").toInt());
    QVERIFY((rest - target).manhattanLength() <= 6);
    for (int round = 0; round < 3; ++round) {
        m_indicator->showTooltip();
        QVERIFY(QTest::qWaitForWindowExposed(m_indicator->tooltip(), kSoonMs));
        QTRY_COMPARE_WITH_TIMEOUT(positionOf(m_indicator->tooltip()), rest, kSoonMs);
        // Qt hears of it later than the X server.
        QTRY_COMPARE_WITH_TIMEOUT(m_indicator->state("tooltipX").toInt(), rest.x(), kSoonMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_indicator->state("tooltipY").toInt(), rest.y(), kSoonMs);
        m_indicator->hideTooltip();
        QTRY_VERIFY_WITH_TIMEOUT(!m_indicator->tooltip()->windowHandle()->isExposed(), kSoonMs);
    }
}

void tst_OverlayWindows::tooltipReachesBeyondTheScreen()
{
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const QPoint point(screen.width() - 60, screen.height() - 40);
    m_tooltip->show(QStringLiteral("At the edge"), point.x(), point.y());
    const QWidget *const text = m_tooltip->findChild<QTextEdit *>();
    QVERIFY(QTest::qWaitForWindowExposed(m_tooltip.get(), kSoonMs));
    QTRY_COMPARE_WITH_TIMEOUT(positionOf(m_tooltip.get()),
                              point - QPoint(text->width() / 2, text->height() / 2), kSoonMs);
}

QTEST_MAIN(tst_OverlayWindows)
#include "tst_OverlayWindows.moc"
