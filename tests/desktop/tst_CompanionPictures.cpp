#include "CompanionWindowsTest.h"

#include <QtTest>

namespace {

constexpr int kIconSide = 56;
constexpr int kTextTop = 56;
constexpr int kTextWidth = 256;

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

QTEST_MAIN(tst_CompanionPictures)
#include "tst_CompanionPictures.moc"
