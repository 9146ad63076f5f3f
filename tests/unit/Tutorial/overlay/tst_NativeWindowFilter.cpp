#include "EveryOverlay.h"
#include "Tutorial/overlay/MayLeaveScreen.h"
#include "Tutorial/overlay/NativeWindowFilter.h"
#include "Tutorial/overlay/OwnWindowGroup.h"
#include "Tutorial/overlay/StayHidden.h"

#include <QWindow>
#include <QtTest>

namespace {

constexpr auto kFlags = Qt::Tool | Qt::FramelessWindowHint;

class CountingFilter final : public NativeWindowFilter
{
public:
    using NativeWindowFilter::NativeWindowFilter;
    QVector<WId> created;
    bool wasTooLate = false;

protected:
    void onWindowCreated(QWindow *window) override
    {
        created += window->winId();
        wasTooLate = wasTooLate || window->isVisible();
    }
};

} // namespace

class tst_NativeWindowFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfAWindowBeforeItIsShown();
    void tellsOfEachNativeWindow();
    void followsARecreatedWidget();
    void makesNoNativeWindow();
    void itsKindsBelongToTheOverlays();
};

void tst_NativeWindowFilter::tellsOfAWindowBeforeItIsShown()
{
    QWidget overlay(nullptr, kFlags);
    auto *const filter = new CountingFilter(&overlay);
    overlay.show();
    QCOMPARE(filter->created, QVector<WId>{overlay.windowHandle()->winId()});
    QVERIFY(!filter->wasTooLate);
}

void tst_NativeWindowFilter::tellsOfEachNativeWindow()
{
    QWidget overlay(nullptr, kFlags);
    auto *const filter = new CountingFilter(&overlay);
    new StayHidden(&overlay);
    for (int round = 1; round <= 3; ++round) {
        filter->created.clear();
        overlay.show();
        QVERIFY(filter->created.contains(overlay.windowHandle()->winId()));
        overlay.hide(); // which takes the native window away
        QCOMPARE(overlay.windowHandle()->handle(), nullptr);
    }
}

void tst_NativeWindowFilter::followsARecreatedWidget()
{
    QWidget overlay(nullptr, kFlags);
    auto *const filter = new CountingFilter(&overlay);
    overlay.show();
    QWidget parent;
    overlay.setParent(&parent);
    overlay.setParent(nullptr, kFlags);
    filter->created.clear();
    overlay.show();
    QVERIFY(filter->created.contains(overlay.windowHandle()->winId()));
    QVERIFY(!filter->wasTooLate);
}

void tst_NativeWindowFilter::makesNoNativeWindow()
{
    QWidget overlay(nullptr, kFlags);
    const auto *const filter = new CountingFilter(&overlay);
    QVERIFY(filter->created.isEmpty());
    QVERIFY(overlay.windowHandle() == nullptr || overlay.windowHandle()->handle() == nullptr);
}

void tst_NativeWindowFilter::itsKindsBelongToTheOverlays()
{
    const EveryOverlay every;
    const QList<const QWidget *> overlays = every.windows();
    for (const QWidget *overlay : overlays) {
        QCOMPARE(overlay->findChildren<OwnWindowGroup *>().size(), 1);
    }
    QCOMPARE(every.bubble()->findChildren<MayLeaveScreen *>().size(), 1);
    QCOMPARE(every.editorTooltip()->findChildren<MayLeaveScreen *>().size(), 1);
}

QTEST_MAIN(tst_NativeWindowFilter)
#include "tst_NativeWindowFilter.moc"
