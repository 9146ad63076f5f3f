#include "CompanionWindowsTest.h"

#include <QtTest>

/// Where the program's windows are, what they show and what they let through, as the X server has them.
class tst_CompanionWindows : public CompanionWindowsTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowsAreOverlays();
    void restsThreePixelsShort();
    void mirrorsAndReturns();
    void turnsUpsideDownAndBack();
    void reachesBeyondTheScreen_data();
    void reachesBeyondTheScreen();
    void noTargetKeepsTheBubbleInPlace();
    void clicksReachTheWindowBelow();
    void eachClickOnAButtonIsOneCommand();
    void staysOnTop();
    void arrowIsPaintedAtBothEnds_data();
    void arrowIsPaintedAtBothEnds();

private:
    void verifyClicksPass(const QVector<QPoint> &spots);
};

void tst_CompanionWindows::windowsAreOverlays()
{
    play();
    update(400, 300, QStringLiteral("Hint"), kNext | kYesNo | kArrow);
    m_host->send(
        {QStringLiteral("showTooltip"), QStringLiteral("Tip"), QStringLiteral("700"), QStringLiteral("600")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    QCOMPARE(overlays(kBubble).size(), 1);
    QCOMPARE(overlays(kButton).size(), 3);
    QCOMPARE(overlays(kTooltip).size(), 1);
    QCOMPARE(overlays(kLog).size(), 1);
    const QVector<XWindows::Window> windows = overlays();
    for (const XWindows::Window &window : windows) {
        const QString type = XWindows::property(window.id, QStringLiteral("_NET_WM_WINDOW_TYPE"));
        QVERIFY2(type.startsWith(QStringLiteral("_NET_WM_WINDOW_TYPE_UTILITY")), qPrintable(type));
        QTRY_VERIFY_WITH_TIMEOUT(XWindows::property(window.id, QStringLiteral("_NET_WM_STATE"))
                                     .contains(QStringLiteral("_NET_WM_STATE_ABOVE")),
                                 kSoonMs);
        // No decorations.
        const QString hints = XWindows::property(window.id, QStringLiteral("_MOTIF_WM_HINTS"));
        QCOMPARE(hints.section(QStringLiteral(", "), 2, 2), QStringLiteral("0x0"));
        const QString group = XWindows::run(QStringLiteral("xprop"),
                                            {QStringLiteral("-id"), window.id, QStringLiteral("WM_HINTS")})
                                  .section(QStringLiteral("group leader: "), 1)
                                  .trimmed();
        QCOMPARE(group, window.id);
    }
}

void tst_CompanionWindows::restsThreePixelsShort()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    update(300, 200, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({300, 200});
    m_host->send({QStringLiteral("indicator"), QStringLiteral("updateXy"), QStringLiteral("310"),
                  QStringLiteral("150")});
    verifyBubbleAt({307, 150});
}

void tst_CompanionWindows::mirrorsAndReturns()
{
    play();
    update(300, 200, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({297, 197});
    // It passes the mirrored place on its way and comes back to it from the right.
    update(1000, 197, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({1000 - 180 - 128, 197});
    // In the band between the two limits nothing changes.
    update(880, 197, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({880 - 180 - 128, 197});
    update(600, 197, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 197});
}

void tst_CompanionWindows::turnsUpsideDownAndBack()
{
    play();
    update(600, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 297});
    update(597, -5, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, -5 + 165});
    update(597, 64, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 64 + 165 - 3});
    update(597, 65, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 65});
}

void tst_CompanionWindows::reachesBeyondTheScreen_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QPoint>("bubble");
    QTest::addColumn<QPoint>("spot");
    QTest::newRow("left") << QPoint(-100, 300) << QPoint(-97, 297) << QPoint(2, 300);
    QTest::newRow("below") << QPoint(400, 800) << QPoint(397, 797) << QPoint(700, 958);
    QTest::newRow("right") << QPoint(1270, 300) << QPoint(962, 297) << QPoint(1278, 300);
    QTest::newRow("below and right") << QPoint(1270, 800) << QPoint(962, 797) << QPoint(1278, 958);
}

// The buttons are not asked for here: some window managers keep these on the screen whole.
void tst_CompanionWindows::reachesBeyondTheScreen()
{
    QFETCH(QPoint, target);
    QFETCH(QPoint, bubble);
    QFETCH(QPoint, spot);
    play();
    update(target.x(), target.y(), QString(), kArrow);
    QTRY_VERIFY2_WITH_TIMEOUT(bubbleIsAt(bubble),
                              qPrintable(XWindows::placesOf(overlays()).join(QStringLiteral("; "))), kSoonMs);
    m_host->send({QStringLiteral("showTooltip"), QStringLiteral("Centred on the spot"),
                  QString::number(spot.x()), QString::number(spot.y())});
    // The text is in the top left part of the window, and the spot in the middle of the text.
    const auto tooltipIsAtTheSpot = [this, spot] {
        const QVector<XWindows::Window> tooltips = overlays(kTooltip);
        const QPoint middle = spot - tooltips.value(0).rect.topLeft();
        return tooltips.size() == 1 && QRect(40, 10, 100, 30).contains(middle);
    };
    QTRY_VERIFY2_WITH_TIMEOUT(tooltipIsAtTheSpot(),
                              qPrintable(XWindows::placesOf(overlays()).join(QStringLiteral("; "))), kSoonMs);
    const QStringList places = XWindows::placesOf(overlays());
    // Also when it comes back.
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::placesOf(overlays()), places, kSoonMs);
    // Whoever wanted them elsewhere has had a second for it.
    QVERIFY(waitForBeats(2));
    QCOMPARE(XWindows::placesOf(overlays()), places);
    QCOMPARE(XWindows::activeWindow(), m_below->winId());
}

void tst_CompanionWindows::noTargetKeepsTheBubbleInPlace()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    update(-9999, -9999, QString(), kNext | kYesNo | kArrow);
    QVERIFY(m_host->sync());
    QCOMPARE(lastDifference({397, 297, 128, 144}, QImage(), {}), QString());
    verifyBubbleAt({397, 297});
}

void tst_CompanionWindows::verifyClicksPass(const QVector<QPoint> &spots)
{
    for (const QPoint &spot : spots) {
        // The window manager hears after the window itself that clicks are to pass.
        QTRY_VERIFY_WITH_TIMEOUT(XWindows::takesClick(m_below->winId(), spot), kSoonMs);
        const int before = m_below->presses;
        XWindows::click(spot);
        QTRY_COMPARE_WITH_TIMEOUT(m_below->presses, before + 1, kSoonMs);
    }
}

void tst_CompanionWindows::clicksReachTheWindowBelow()
{
    play();
    update(400, 300, QStringLiteral("Click through this text."), kArrow, 0);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    m_host->send({QStringLiteral("showTooltip"), QStringLiteral("Through this one too"),
                  QStringLiteral("700"), QStringLiteral("650")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 1, kSoonMs);
    const QPoint tooltip = overlays(kTooltip).constFirst().rect.topLeft();
    // The arrow, the icon, the hint, nothing in particular; and the tooltip's text and the rest of it.
    const QVector<QPoint> spots{{397 + 40, 297 + 80},  {397 + 150, 297 + 25},    {397 + 200, 297 + 66},
                                {397 + 40, 297 + 400}, tooltip + QPoint(10, 10), tooltip + QPoint(200, 200)};
    verifyClicksPass(spots);
    if (QTest::currentTestFailed()) {
        return;
    }
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 3, kSoonMs);
    verifyClicksPass(spots);
}

void tst_CompanionWindows::eachClickOnAButtonIsOneCommand()
{
    play();
    update(400, 300, QString(), kNext);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kButton).size(), 1, kSoonMs);
    const QPoint place(397 + 128, 297 + 64 + 56);
    QVERIFY(clickButton(place, {20, 16}));
    QVERIFY(m_host->waitForPayloads(1));
    QVERIFY(m_host->syncBothWays());
    QCOMPARE(m_host->payloads(), QStringList(QStringLiteral("next")));
    QCOMPARE(overlays(kButton).size(), 1);

    update(400, 300, QString(), kYesNo);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kButton).size(), 2, kSoonMs);
    QVERIFY(clickButton(place, {20, 16}));
    QVERIFY(m_host->waitForPayloads(2));
    QVERIFY(clickButton(place + QPoint(56, 0), {40, 16}));
    QVERIFY(m_host->waitForPayloads(3));
    QVERIFY(m_host->syncBothWays());
    QCOMPARE(m_host->payloads(),
             QStringList({QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no")}));
    QCOMPARE(m_below->presses, 0);
}

void tst_CompanionWindows::staysOnTop()
{
    play();
    update(400, 300, QStringLiteral("Hint"), kNext | kArrow);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    const auto isAbove = [this] {
        const QStringList order =
            XWindows::run(QStringLiteral("xprop"),
                          {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")})
                .section(QStringLiteral("# "), 1)
                .trimmed()
                .split(QStringLiteral(", "));
        const int below =
            order.indexOf(QStringLiteral("0x%1").arg(static_cast<quint64>(m_below->winId()), 0, 16));
        const QStringList ids = idsOf(overlays());
        return below >= 0 && ids.size() == 3 && std::all_of(ids.cbegin(), ids.cend(), [&](const QString &id) {
                   return order.indexOf(id) > below;
               });
    };
    QTRY_VERIFY_WITH_TIMEOUT(isAbove(), kSoonMs);
    const QString below = QString::number(m_below->winId());
    for (const char *const action : {"windowraise", "windowactivate"}) {
        XWindows::run(QStringLiteral("xdotool"), {QString::fromLatin1(action), below});
        QTRY_VERIFY_WITH_TIMEOUT(isAbove(), kSoonMs);
    }
    XWindows::click({60, 800});
    QTRY_COMPARE_WITH_TIMEOUT(m_below->presses, 1, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isAbove(), kSoonMs);
}

void tst_CompanionWindows::arrowIsPaintedAtBothEnds_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QPoint>("bubble");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<bool>("upsideDown");
    QTest::newRow("upright") << QPoint(400, 300) << QPoint(397, 297) << false << false;
    QTest::newRow("mirrored") << QPoint(1000, 300) << QPoint(692, 297) << true << false;
    QTest::newRow("upside down") << QPoint(400, -5) << QPoint(397, 157) << false << true;
    QTest::newRow("upside down and mirrored") << QPoint(1000, -5) << QPoint(692, 157) << true << true;
}

void tst_CompanionWindows::arrowIsPaintedAtBothEnds()
{
    QFETCH(QPoint, target);
    QFETCH(QPoint, bubble);
    QFETCH(bool, mirror);
    QFETCH(bool, upsideDown);
    play();
    update(target.x(), target.y(), QString(), kArrow, 3);
    QTRY_VERIFY2_WITH_TIMEOUT(bubbleIsAt(bubble),
                              qPrintable(XWindows::placesOf(overlays()).join(QStringLiteral("; "))), kSoonMs);
    const QImage arrow = picture(QStringLiteral("arrow")).mirrored(mirror, upsideDown);
    const QRect area(bubble + QPoint(mirror ? 256 : 0, 0), QSize(128, 144));
    // For half of every two seconds it stands at the one end, and stays near the other for a quarter of one.
    // Upside down that is -5.x, cut to -5: -6 itself lasts no longer than a moment.
    for (const int row : {upsideDown ? -10 : 16, upsideDown ? 5 : 0}) {
        QCOMPARE(lastDifference(area, arrow, {0, row}), QString());
        QVERIFY(m_host->sync());
    }
    const QImage eye = picture(QStringLiteral("eye"));
    const QRect icon(bubble + QPoint(mirror ? 256 - eye.width() : 128, 0), eye.size());
    QCOMPARE(lastDifference(icon, eye, {}), QString());
}

QTEST_MAIN(tst_CompanionWindows)
#include "tst_CompanionWindows.moc"
