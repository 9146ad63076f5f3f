#include "Tutorial/overlay/BubbleGeometry.h"

#include <QtTest>

namespace {

constexpr QSize kArrow(128, 128);

} // namespace

class tst_BubbleGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowIsLeftOfTheHint();
    void mirroredArrowIsRightOfTheHint();
    void iconStandsAgainstTheArrow();
    void tickHoldsArrowAndIcon();
    void everythingLiesInTheWindow_data();
    void everythingLiesInTheWindow();
    void anyPictureSizeIsTaken();
};

void tst_BubbleGeometry::arrowIsLeftOfTheHint()
{
    QCOMPARE(BubbleGeometry::arrowRect(false, kArrow), QRect(0, 0, 128, 144));
    QCOMPARE(BubbleGeometry::hintPlace(false, kArrow.width()), QPoint(128, 56));
    QCOMPARE(BubbleGeometry::iconRect(false, kArrow.width()), QRect(128, 0, 56, 56));
}

void tst_BubbleGeometry::mirroredArrowIsRightOfTheHint()
{
    QCOMPARE(BubbleGeometry::arrowRect(true, kArrow), QRect(256, 0, 128, 144));
    QCOMPARE(BubbleGeometry::hintPlace(true, kArrow.width()), QPoint(0, 56));
    QCOMPARE(BubbleGeometry::iconRect(true, kArrow.width()), QRect(200, 0, 56, 56));
}

void tst_BubbleGeometry::iconStandsAgainstTheArrow()
{
    QCOMPARE(BubbleGeometry::iconPlace(false, kArrow.width(), 48), QPoint(128, 0));
    QCOMPARE(BubbleGeometry::iconPlace(true, kArrow.width(), 48), QPoint(208, 0));
    QCOMPARE(BubbleGeometry::iconPlace(true, kArrow.width(), 56), QPoint(200, 0));
}

void tst_BubbleGeometry::tickHoldsArrowAndIcon()
{
    const QRect plain = BubbleGeometry::tickRect(false, kArrow);
    QCOMPARE(plain, QRect(0, 0, 128 + 56, 128 + 72));
    QVERIFY(plain.contains(BubbleGeometry::arrowRect(false, kArrow)));
    QVERIFY(plain.contains(BubbleGeometry::iconRect(false, kArrow.width())));
    const QRect mirrored = BubbleGeometry::tickRect(true, kArrow);
    QCOMPARE(mirrored, QRect(256, 0, 128 + 56, 128 + 72));
    QVERIFY(mirrored.contains(BubbleGeometry::arrowRect(true, kArrow)));
    QVERIFY(!mirrored.intersects(BubbleGeometry::iconRect(true, kArrow.width())));
}

void tst_BubbleGeometry::everythingLiesInTheWindow_data()
{
    QTest::addColumn<bool>("mirror");
    QTest::newRow("plain") << false;
    QTest::newRow("mirrored") << true;
}

void tst_BubbleGeometry::everythingLiesInTheWindow()
{
    QFETCH(bool, mirror);
    const QRect window(QPoint(0, 0), BubbleGeometry::kWindow);
    QCOMPARE(window, QRect(0, 0, 640, 480));
    QVERIFY(window.contains(BubbleGeometry::tickRect(mirror, kArrow)));
    QVERIFY(window.contains(BubbleGeometry::iconRect(mirror, kArrow.width())));
    const QSize largest(BubbleGeometry::kHintWidth, BubbleGeometry::kMostHintHeight);
    QCOMPARE(largest, QSize(256, 424));
    const QRect hint(BubbleGeometry::hintPlace(mirror, kArrow.width()), largest);
    QVERIFY(window.contains(hint));
    QCOMPARE(hint.bottom(), window.bottom());
    QVERIFY(!hint.intersects(BubbleGeometry::iconRect(mirror, kArrow.width())));
    QVERIFY(!hint.intersects(BubbleGeometry::arrowRect(mirror, kArrow)));
}

void tst_BubbleGeometry::anyPictureSizeIsTaken()
{
    QCOMPARE(BubbleGeometry::arrowRect(true, QSize(0, 0)), QRect(256, 0, 0, 16));
    QCOMPARE(BubbleGeometry::hintPlace(false, 0), QPoint(0, 56));
    QCOMPARE(BubbleGeometry::tickRect(false, QSize(10, 20)), QRect(0, 0, 66, 92));
}

QTEST_APPLESS_MAIN(tst_BubbleGeometry)
#include "tst_BubbleGeometry.moc"
