#include "Tutorial/playback/PlaybackVisibility.h"

#include <QTest>

using Showing = PlaybackVisibility::Showing;

class tst_PlaybackVisibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shows_nothing_without_a_playback();
    void starts_and_stops_once();
    void asks_to_hide_one_tick_after_the_host_hid();
    void stays_visible_while_this_process_is_active();
    void counts_no_hidden_ticks_while_this_process_is_active();
    void shows_again_one_tick_after_the_host_came_back();
    void rebuilds_after_30_hidden_ticks_and_not_after_29_data();
    void rebuilds_after_30_hidden_ticks_and_not_after_29();
    void ignores_a_second_show_for_ten_ticks();
    void counts_hidden_ticks_anew_at_every_hide();
    void keeps_the_hidden_ticks_when_it_has_rebuilt();
};

void tst_PlaybackVisibility::shows_nothing_without_a_playback()
{
    PlaybackVisibility visibility;
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
    visibility.hostHid();
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
    visibility.setApplicationActive(true);
    QCOMPARE(visibility.showing(), Showing::kNoPlayback);
}

void tst_PlaybackVisibility::starts_and_stops_once()
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

void tst_PlaybackVisibility::asks_to_hide_one_tick_after_the_host_hid()
{
    PlaybackVisibility visibility;
    visibility.start();
    QVERIFY(!visibility.tick().hide);
    visibility.hostHid();
    QCOMPARE(visibility.showing(), Showing::kHostHidden);
    QVERIFY(visibility.tick().hide);
    QVERIFY(!visibility.tick().hide);
}

void tst_PlaybackVisibility::stays_visible_while_this_process_is_active()
{
    PlaybackVisibility visibility;
    visibility.start();
    visibility.setApplicationActive(true);
    visibility.hostHid();
    QCOMPARE(visibility.showing(), Showing::kShown);
    visibility.setApplicationActive(false);
    QCOMPARE(visibility.showing(), Showing::kHostHidden);
}

void tst_PlaybackVisibility::counts_no_hidden_ticks_while_this_process_is_active()
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

void tst_PlaybackVisibility::shows_again_one_tick_after_the_host_came_back()
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

void tst_PlaybackVisibility::rebuilds_after_30_hidden_ticks_and_not_after_29_data()
{
    QTest::addColumn<int>("hiddenTicks");
    QTest::addColumn<bool>("rebuild");
    QTest::newRow("29") << 29 << false;
    QTest::newRow("30") << 30 << true;
    QTest::newRow("31") << 31 << true;
}

void tst_PlaybackVisibility::rebuilds_after_30_hidden_ticks_and_not_after_29()
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

void tst_PlaybackVisibility::ignores_a_second_show_for_ten_ticks()
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

void tst_PlaybackVisibility::counts_hidden_ticks_anew_at_every_hide()
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

void tst_PlaybackVisibility::keeps_the_hidden_ticks_when_it_has_rebuilt()
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
