#include "FakeOverlayHost.h"
#include "TestIndicator.h"
#include "Tutorial/overlay/ClickThrough.h"
#include "Tutorial/overlay/EditorTooltip.h"

#include <QPointer>
#include <QWindow>
#include <QtTest>

namespace {

class CountingClickThrough final : public ClickThrough
{
public:
    using ClickThrough::ClickThrough;
    QVector<QWindow *> announced;

protected:
    void announceInputShape(QWindow *window) override
    {
        announced += window;
        ClickThrough::announceInputShape(window);
    }
};

constexpr auto kFlags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowTransparentForInput;

} // namespace

class TestClickThrough : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void announcesOnceExposed();
    void announcesAfterEachShow();
    void followsARecreatedWindow();
    void adoptsAWindowThatExistsAlready();
    void ignoresAnUnexposedWindow();
    void leavesTheFlagsAsTheyWere();
    void belongsToTheClickThroughOverlays();
};

void TestClickThrough::announcesOnceExposed()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    QVERIFY(clickThrough->announced.isEmpty());
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
    QCOMPARE(clickThrough->announced.first(), overlay.windowHandle());
}

void TestClickThrough::announcesAfterEachShow()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    for (int i = 0; i < 3; ++i) {
        clickThrough->announced.clear();
        overlay.show();
        QTRY_VERIFY(!clickThrough->announced.isEmpty());
        overlay.hide();
        QTRY_VERIFY(!overlay.windowHandle()->isExposed());
    }
}

void TestClickThrough::followsARecreatedWindow()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
    const QPointer<QWindow> first = overlay.windowHandle();
    QWidget parent;
    overlay.setParent(&parent);
    overlay.setParent(nullptr, kFlags);
    QVERIFY(first.isNull() || first != overlay.windowHandle() || !first->isExposed());
    clickThrough->announced.clear();
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
    QCOMPARE(clickThrough->announced.last(), overlay.windowHandle());
}

void TestClickThrough::adoptsAWindowThatExistsAlready()
{
    QWidget overlay(nullptr, kFlags);
    overlay.show();
    QVERIFY(QTest::qWaitForWindowExposed(&overlay));
    overlay.hide();
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
}

void TestClickThrough::ignoresAnUnexposedWindow()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.winId();
    QVERIFY(overlay.windowHandle() != nullptr);
    QExposeEvent event{QRegion()};
    QCoreApplication::sendEvent(overlay.windowHandle(), &event);
    QVERIFY(clickThrough->announced.isEmpty());
}

void TestClickThrough::leavesTheFlagsAsTheyWere()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
    QCOMPARE(overlay.windowFlags(), kFlags);
    QCOMPARE(overlay.windowHandle()->flags(), kFlags);
}

void TestClickThrough::belongsToTheClickThroughOverlays()
{
    FakeOverlayHost host;
    const TestIndicator indicator(&host);
    const EditorTooltip tooltip(nullptr, &host);
    QCOMPARE(indicator.tooltip()->findChildren<ClickThrough *>().size(), 1);
    QCOMPARE(tooltip.findChildren<ClickThrough *>().size(), 1);
}

QTEST_MAIN(TestClickThrough)
#include "tst_ClickThrough.moc"
