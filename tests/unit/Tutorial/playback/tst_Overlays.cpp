#include "FakeOverlayHost.h"
#include "OverlayWindows.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialIndicator.h"
#include "Tutorial/overlay/TutorialTooltip.h"
#include "Tutorial/playback/Overlays.h"
#include "Tutorial/playback/Playback.h"

#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QTest>

class tst_Overlays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aReplacedOverlayStaysUntilTheNextRebuild();
    void windowsDoNotPileUp();
    void theFirstTooltipIsMadeAndLaterOnesAreThatOne();
    void aClosedTooltipIsMadeAnew();
    void aRebuiltIndicatorGoesByTheSameHost();
};

namespace {

void make(Overlays &overlays)
{
    overlays.createLog();
    overlays.createIndicator({});
    overlays.indicator()->init(true, true);
    overlays.showTooltip(QStringLiteral("tooltip"), {300, 200}, {});
}

void deleteWhatIsDue()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void tst_Overlays::cleanup()
{
    // They must not hear of anything any more: their host has just gone.
    deleteOverlays();
}

void tst_Overlays::aReplacedOverlayStaysUntilTheNextRebuild()
{
    FakeOverlayHost host;
    Overlays overlays(host);
    make(overlays);
    const QPointer<TutorialIndicator> indicator = overlays.indicator();
    const QPointer<EditorTooltip> tooltip = overlays.editorTooltip();

    overlays.rebuild({});
    deleteWhatIsDue();
    QVERIFY(!indicator.isNull() && indicator != overlays.indicator());
    QVERIFY(!tooltip.isNull() && tooltip != overlays.editorTooltip());

    overlays.rebuild({});
    QVERIFY(!indicator.isNull() && !tooltip.isNull());
    deleteWhatIsDue();
    QVERIFY(indicator.isNull() && tooltip.isNull());
    QVERIFY(overlays.indicator() != nullptr && overlays.editorTooltip() != nullptr);
}

void tst_Overlays::windowsDoNotPileUp()
{
    FakeOverlayHost host;
    Overlays overlays(host);
    make(overlays);
    overlays.rebuild({});
    overlays.rebuild({});
    deleteWhatIsDue();
    const int windows = QApplication::topLevelWidgets().size();
    QVERIFY(windows > 0);
    for (int i = 0; i < 5; ++i) {
        overlays.rebuild({});
        deleteWhatIsDue();
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }
}

void tst_Overlays::theFirstTooltipIsMadeAndLaterOnesAreThatOne()
{
    FakeOverlayHost host;
    Overlays overlays(host);
    overlays.showTooltip(QStringLiteral("one"), {300, 200}, {});
    EditorTooltip *const first = overlays.editorTooltip();
    QVERIFY(first != nullptr && first->isVisible());
    overlays.showTooltip(QStringLiteral("two"), {300, 200}, {});
    QCOMPARE(overlays.editorTooltip(), first);
    QCOMPARE(first->getSettings().value(QStringLiteral("text")).toString(), QStringLiteral("two"));
}

void tst_Overlays::aClosedTooltipIsMadeAnew()
{
    Playback playback; // whom the tooltip tells that it was closed
    playback.showTooltip(QStringLiteral("one"), {300, 200});
    const QList<EditorTooltip *> first = topLevels<EditorTooltip>();
    QCOMPARE(first.size(), 1);
    first.constFirst()->close();
    QCOMPARE(playback.editorTooltip(), nullptr);
    playback.showTooltip(QStringLiteral("two"), {300, 200});
    QVERIFY(playback.editorTooltip() != nullptr);
    QVERIFY(playback.editorTooltip() != first.constFirst());
}

void tst_Overlays::aRebuiltIndicatorGoesByTheSameHost()
{
    FakeOverlayHost host;
    Overlays overlays(host);
    overlays.setHostRect({0, 0, 4000, 600}); // so wide that the bubble never hangs to the left
    overlays.setRunning(true);
    overlays.createIndicator({});
    overlays.moveTarget({1000, 200});
    overlays.rebuild({});
    // A bubble that was closed comes back while a playback is on, on the next tick.
    overlays.indicator()->tooltip()->close();
    QTRY_VERIFY(overlays.indicator()->tooltip() != nullptr);
    QTRY_VERIFY(overlays.indicator()->getSettings().value(QStringLiteral("lastX")).toInt() > 990);
    QVERIFY(!overlays.indicator()->getSettings().value(QStringLiteral("mirror")).toBool());
}

QTEST_MAIN(tst_Overlays)
#include "tst_Overlays.moc"
