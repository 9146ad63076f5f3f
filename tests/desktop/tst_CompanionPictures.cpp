#include "CompanionWindowsTest.h"

#include <QElapsedTimer>
#include <QtTest>

#include <optional>

namespace {

constexpr int kIconSide = 56;
constexpr int kTextTop = 56;
constexpr int kTextWidth = 256;
constexpr int kArrowSide = 128;
constexpr int kHop = 16;
/// From where a bubble was sent to the spot that its arrow points at, however the arrow is turned.
constexpr QPoint kTip(38, 132);
constexpr int kListRow = 28;

/// The outermost row of an arrow, and the columns that are painted in it.
struct Tip
{
    int row = 0;
    int left = 0;
    int right = 0;
};

/// @p seen: the arrow on a ground of one colour, which fills the corner to the right of the tip.
std::optional<Tip> tipIn(const QImage &seen, bool upsideDown)
{
    const QRgb ground = seen.pixel(seen.width() - 1, upsideDown ? 0 : seen.height() - 1);
    for (int i = 0; i < seen.height(); ++i) {
        std::optional<Tip> tip;
        const int row = upsideDown ? i : seen.height() - 1 - i;
        for (int x = 0; x < seen.width(); ++x) {
            if (seen.pixel(x, row) != ground) {
                tip = Tip{row, tip ? tip->left : x, x};
            }
        }
        if (tip) {
            return tip;
        }
    }
    return {};
}

} // namespace

/// What the program's bubble shows while it stands where it is: the screen's pixels, step after step.
class tst_CompanionPictures : public CompanionWindowsTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachStepShowsItsOwnIcon_data();
    void eachStepShowsItsOwnIcon();
    void eachStepShowsItsOwnHint_data();
    void eachStepShowsItsOwnHint();
    void arrowPointsWithItsTip_data();
    void arrowPointsWithItsTip();

private:
    void verifyRestsAt(const QPoint &place);
};

void tst_CompanionPictures::verifyRestsAt(const QPoint &place)
{
    QTRY_VERIFY2_WITH_TIMEOUT(bubbleIsAt(place),
                              qPrintable(XWindows::placesOf(overlays()).join(QStringLiteral("; "))), kSoonMs);
}

void tst_CompanionPictures::eachStepShowsItsOwnIcon_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QPoint>("bubble");
    QTest::addColumn<bool>("mirror");
    QTest::newRow("upright") << QPoint(400, 300) << QPoint(397, 297) << false;
    QTest::newRow("mirrored") << QPoint(1000, 300) << QPoint(692, 297) << true;
    QTest::newRow("upside down") << QPoint(400, -5) << QPoint(397, 157) << false;
    QTest::newRow("upside down and mirrored") << QPoint(1000, -5) << QPoint(692, 157) << true;
}

void tst_CompanionPictures::eachStepShowsItsOwnIcon()
{
    QFETCH(QPoint, target);
    QFETCH(QPoint, bubble);
    QFETCH(bool, mirror);
    const QStringList names{QStringLiteral("click"),
                            QStringLiteral("double_click"),
                            QStringLiteral("right_click"),
                            QStringLiteral("eye"),
                            QStringLiteral("wait"),
                            QStringLiteral("keyboard"),
                            QString()};
    const QRect area(bubble + QPoint(mirror ? kTextWidth - kIconSide : 128, 0), QSize(kIconSide, kIconSide));
    play();
    update(target.x(), target.y(), QString(), kArrow);
    verifyRestsAt(bubble);
    // From large to small, from wide to high, and to none and back.
    for (const int kind : {0, 5, 1, 3, 2, 6, 4, 3, 5, 0, 6}) {
        update(target.x(), target.y(), QString(), kArrow, kind);
        const QImage icon = names[kind].isEmpty() ? QImage() : picture(names[kind]);
        const QPoint at(mirror ? kIconSide - icon.width() : 0, 0);
        const QString last = lastDifference(area, icon, at);
        QVERIFY2(last.isEmpty(), qPrintable(QStringLiteral("icon %1: %2").arg(kind).arg(last)));
    }
}

void tst_CompanionPictures::eachStepShowsItsOwnHint_data()
{
    eachStepShowsItsOwnIcon_data();
}

void tst_CompanionPictures::eachStepShowsItsOwnHint()
{
    QFETCH(QPoint, target);
    QFETCH(QPoint, bubble);
    QFETCH(bool, mirror);
    const QString brief = QStringLiteral("Click here.");
    const QRect area(bubble + QPoint(mirror ? 0 : 128, kTextTop), QSize(kTextWidth, 400));
    play();
    update(target.x(), target.y(), QString(), kArrow);
    verifyRestsAt(bubble);
    update(target.x(), target.y(), brief, kArrow);
    // Wherever the bubble stands, a step like the first looks like the first.
    QTRY_VERIFY_WITH_TIMEOUT(!difference(area, QImage(), {}).isEmpty(), kSoonMs);
    QVERIFY(waitForBeats(1));
    const QImage first = XWindows::screenshot(area);
    for (const QString &hint : {QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix"), QString()}) {
        update(target.x(), target.y(), hint, kArrow);
        QTRY_VERIFY_WITH_TIMEOUT(XWindows::screenshot(area) != first, kSoonMs);
        update(target.x(), target.y(), brief, kArrow);
        QTRY_COMPARE_WITH_TIMEOUT(XWindows::screenshot(area), first, kSoonMs);
    }
    update(target.x(), target.y(), QString(), kArrow);
    QCOMPARE(lastDifference(area, QImage(), {}), QString());
}

void tst_CompanionPictures::arrowPointsWithItsTip_data()
{
    eachStepShowsItsOwnIcon_data();
}

void tst_CompanionPictures::arrowPointsWithItsTip()
{
    QFETCH(QPoint, target);
    QFETCH(QPoint, bubble);
    QFETCH(bool, mirror);
    const bool upsideDown = target.y() < 0;
    play();
    update(target.x(), target.y(), QString(), kArrow);
    verifyRestsAt(bubble);
    // What the companion's easing leaves the bubble short of its place, it leaves the arrow short of the
    // spot.
    const QPoint rest = bubble + QPoint(mirror ? 308 : 0, upsideDown ? -165 : 0);
    const QPoint spot = rest + kTip;
    const int left = bubble.x() + (mirror ? kTextWidth : 0);
    const QRect area(QPoint(left, upsideDown ? bubble.y() - kHop : bubble.y()),
                     QSize(kArrowSide, kArrowSide + 2 * kHop));
    int highest = area.bottom() + 1;
    int lowest = area.top() - 1;
    QElapsedTimer clock;
    clock.start();
    while (lowest - highest < kHop - 2 && !clock.hasExpired(kSoonMs)) {
        const std::optional<Tip> tip = tipIn(XWindows::screenshot(area), upsideDown);
        QVERIFY(tip);
        // A point on the middle of two columns, wherever it is on its hop.
        QCOMPARE(area.left() + tip->left, spot.x() - 1);
        QCOMPARE(area.left() + tip->right, spot.x());
        highest = qMin(highest, area.top() + tip->row);
        lowest = qMax(lowest, area.top() + tip->row);
    }
    QVERIFY2(lowest - highest >= kHop - 2, "the arrow does not hop");
    if (upsideDown) {
        QVERIFY2(highest >= spot.y() + 33, qPrintable(QString::number(highest - spot.y())));
        QVERIFY2(lowest <= spot.y() + 33 + kHop, qPrintable(QString::number(lowest - spot.y())));
    } else {
        // In the row of a list that it points at, but for the very top of the hop.
        QVERIFY2(lowest < spot.y() + kListRow / 2, qPrintable(QString::number(lowest - spot.y())));
        QVERIFY2(highest >= spot.y() - kListRow / 2 - 1, qPrintable(QString::number(highest - spot.y())));
        QCOMPARE(lowest, spot.y() + 1);
    }
}

QTEST_MAIN(tst_CompanionPictures)
#include "tst_CompanionPictures.moc"
