#include "Tutorial/playback/PlaybackVisibility.h"

#include <QTest>

using Showing = PlaybackVisibility::Showing;

class tst_PlaybackVisibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsNothingWithoutAPlayback();
    void startsAndStopsOnce();
    void asksToHideOneTickAfterTheHostHid();
    void staysVisibleWhileThisProcessIsActive();
    void countsNoHiddenTicksWhileThisProcessIsActive();
    void showsAgainOneTickAfterTheHostCameBack();
    void rebuildsAfter30HiddenTicksAndNotAfter29_data();
    void rebuildsAfter30HiddenTicksAndNotAfter29();
    void ignoresASecondShowForTenTicks();
    void countsHiddenTicksAnewAtEveryHide();
    void keepsTheHiddenTicksWhenItHasRebuilt();
};

void tst_PlaybackVisibility::showsNothingWithoutAPlayback()
{
    PlaybackVisibility visibility;
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
    visibility.hostHid();
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
    visibility.setApplicationActive(true);
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
}

void tst_PlaybackVisibility::startsAndStopsOnce()
{
    PlaybackVisibility visibility;
    QVERIFY(!visibility.stop());
    QVERIFY(visibility.start());
    QVERIFY(visibility.running());
    QVERIFY(!visibility.start());
    QCOMPARE(visibility.showing(), Showing::kShown);
    QVERIFY(visibility.stop());
    QVERIFY(!visibility.running());
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
}

void tst_PlaybackVisibility::asksToHideOneTickAfterTheHostHid()
{
    PlaybackVisibility visibility;
    visibility.start();
    QVERIFY(!visibility.tick().hide);
    visibility.hostHid();
    QCOMPARE(visibility.showing(), Showing::kHostHidden);
    QVERIFY(visibility.tick().hide);
    QVERIFY(!visibility.tick().hide);
}

void tst_PlaybackVisibility::staysVisibleWhileThisProcessIsActive()
{
    PlaybackVisibility visibility;
    visibility.start();
    visibility.setApplicationActive(true);
    visibility.hostHid();
    QCOMPARE(visibility.showing(), Showing::kShown);
    visibility.setApplicationActive(false);
    QCOMPARE(visibility.showing(), Showing::kHostHidden);
}

void tst_PlaybackVisibility::countsNoHiddenTicksWhileThisProcessIsActive()
{
    PlaybackVisibility visibility;
    visibility.start();
    visibility.setApplicationActive(true);
    visibility.hostHid();
    for (int tick = 0; tick < 40; ++tick) {
        (void)visibility.tick();
    }
    visibility.beginShow();
    visibility.hostCameBack();
    const PlaybackVisibility::Tick due = visibility.tick();
    QCOMPARE(due.hiddenTicks, 0);
    QVERIFY(!due.rebuild);
}

void tst_PlaybackVisibility::showsAgainOneTickAfterTheHostCameBack()
{
    PlaybackVisibility visibility;
    visibility.start();
    visibility.hostHid();
    (void)visibility.tick();
    visibility.beginShow();
    visibility.hostCameBack();
    QCOMPARE(visibility.showing(), Showing::kShown);
    QVERIFY(visibility.tick().showAgain);
    QVERIFY(!visibility.tick().showAgain);
}

void tst_PlaybackVisibility::rebuildsAfter30HiddenTicksAndNotAfter29_data()
{
    QTest::addColumn<int>("hiddenTicks");
    QTest::addColumn<bool>("rebuild");
    QTest::newRow("29") << 29 << false;
    QTest::newRow("30") << 30 << true;
    QTest::newRow("31") << 31 << true;
}

void tst_PlaybackVisibility::rebuildsAfter30HiddenTicksAndNotAfter29()
{
    QFETCH(int, hiddenTicks);
    QFETCH(bool, rebuild);
    PlaybackVisibility visibility;
    visibility.start();
    visibility.hostHid();
    for (int tick = 0; tick < hiddenTicks; ++tick) {
        (void)visibility.tick();
    }
    visibility.beginShow();
    visibility.hostCameBack();
    const PlaybackVisibility::Tick due = visibility.tick();
    QVERIFY(due.showAgain);
    QCOMPARE(due.hiddenTicks, hiddenTicks);
    QCOMPARE(due.rebuild, rebuild);
}

void tst_PlaybackVisibility::ignoresASecondShowForTenTicks()
{
    PlaybackVisibility visibility;
    visibility.start();
    QVERIFY(visibility.takesShow());
    visibility.beginShow();
    for (int left = 9; left >= 0; --left) {
        QVERIFY(!visibility.takesShow());
        const PlaybackVisibility::Tick due = visibility.tick();
        QVERIFY(due.ignoringShow);
        QCOMPARE(due.ignoreShowTicks, left);
    }
    QVERIFY(visibility.takesShow());
    QVERIFY(!visibility.tick().ignoringShow);
}

void tst_PlaybackVisibility::countsHiddenTicksAnewAtEveryHide()
{
    PlaybackVisibility visibility;
    visibility.start();
    visibility.hostHid();
    for (int tick = 0; tick < 29; ++tick) {
        (void)visibility.tick();
    }
    visibility.hostHid();
    (void)visibility.tick();
    visibility.beginShow();
    visibility.hostCameBack();
    QCOMPARE(visibility.tick().hiddenTicks, 1);
}

void tst_PlaybackVisibility::keepsTheHiddenTicksWhenItHasRebuilt()
{
    PlaybackVisibility visibility;
    visibility.start();
    visibility.hostHid();
    for (int tick = 0; tick < 30; ++tick) {
        (void)visibility.tick();
    }
    // The host editor shows itself twice, and hides only once: either time the overlays are built anew.
    for (int shown = 0; shown < 2; ++shown) {
        visibility.beginShow();
        visibility.hostCameBack();
        const PlaybackVisibility::Tick due = visibility.tick();
        QVERIFY(due.rebuild);
        QCOMPARE(due.hiddenTicks, 30);
        while (!visibility.takesShow()) {
            (void)visibility.tick();
        }
    }
    visibility.hostHid();
    visibility.beginShow();
    visibility.hostCameBack();
    QCOMPARE(visibility.tick().hiddenTicks, 0);
}

QTEST_APPLESS_MAIN(tst_PlaybackVisibility)
#include "tst_PlaybackVisibility.moc"
