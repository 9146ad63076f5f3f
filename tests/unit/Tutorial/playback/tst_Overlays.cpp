#include "FakeOverlayHost.h"
#include "OverlayWindows.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialIndicator.h"
#include "Tutorial/playback/Overlays.h"

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
};

namespace {

void make(Overlays &overlays, FakeOverlayHost &host)
{
    overlays.createLog();
    overlays.createIndicator();
    overlays.indicator()->init(true, true);
    overlays.setEditorTooltip(new EditorTooltip(nullptr, &host));
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
    make(overlays, host);
    const QPointer<TutorialIndicator> indicator = overlays.indicator();
    const QPointer<EditorTooltip> tooltip = overlays.editorTooltip();

    overlays.rebuild();
    deleteWhatIsDue();
    QVERIFY(!indicator.isNull() && indicator != overlays.indicator());
    QVERIFY(!tooltip.isNull() && tooltip != overlays.editorTooltip());

    overlays.rebuild();
    QVERIFY(!indicator.isNull() && !tooltip.isNull());
    deleteWhatIsDue();
    QVERIFY(indicator.isNull() && tooltip.isNull());
    QVERIFY(overlays.indicator() != nullptr && overlays.editorTooltip() != nullptr);
}

void tst_Overlays::windowsDoNotPileUp()
{
    FakeOverlayHost host;
    Overlays overlays(host);
    make(overlays, host);
    overlays.rebuild();
    overlays.rebuild();
    deleteWhatIsDue();
    const int windows = QApplication::topLevelWidgets().size();
    QVERIFY(windows > 0);
    for (int i = 0; i < 5; ++i) {
        overlays.rebuild();
        deleteWhatIsDue();
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }
}

QTEST_MAIN(tst_Overlays)
#include "tst_Overlays.moc"
