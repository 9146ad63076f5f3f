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

class tst_ClickThrough : public QObject
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

void tst_ClickThrough::announcesOnceExposed()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    QVERIFY(clickThrough->announced.isEmpty());
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
    QCOMPARE(clickThrough->announced.first(), overlay.windowHandle());
}

void tst_ClickThrough::announcesAfterEachShow()
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

void tst_ClickThrough::followsARecreatedWindow()
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

void tst_ClickThrough::adoptsAWindowThatExistsAlready()
{
    QWidget overlay(nullptr, kFlags);
    overlay.show();
    QVERIFY(QTest::qWaitForWindowExposed(&overlay));
    overlay.hide();
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
}

void tst_ClickThrough::ignoresAnUnexposedWindow()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.winId();
    QVERIFY(overlay.windowHandle() != nullptr);
    QExposeEvent event{QRegion()};
    QCoreApplication::sendEvent(overlay.windowHandle(), &event);
    QVERIFY(clickThrough->announced.isEmpty());
}

void tst_ClickThrough::leavesTheFlagsAsTheyWere()
{
    QWidget overlay(nullptr, kFlags);
    auto *const clickThrough = new CountingClickThrough(&overlay);
    overlay.show();
    QTRY_VERIFY(!clickThrough->announced.isEmpty());
    QCOMPARE(overlay.windowFlags(), kFlags);
    QCOMPARE(overlay.windowHandle()->flags(), kFlags);
}

void tst_ClickThrough::belongsToTheClickThroughOverlays()
{
    FakeOverlayHost host;
    const TestIndicator indicator(&host);
    const EditorTooltip tooltip(nullptr, &host);
    QCOMPARE(indicator.tooltip()->findChildren<ClickThrough *>().size(), 1);
    QCOMPARE(tooltip.findChildren<ClickThrough *>().size(), 1);
}

QTEST_MAIN(tst_ClickThrough)
#include "tst_ClickThrough.moc"
