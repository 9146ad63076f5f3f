#include "Tutorial/overlay/BubblePainter.h"
#include "Tutorial/overlay/IndicatorPictures.h"
#include "Tutorial/overlay/IndicatorState.h"

#include <QPainter>
#include <QtTest>

#include <limits>

namespace {

const QColor kBefore(200, 30, 60);
const QColor kArrow(20, 160, 40);
const QColor kIcon(30, 60, 220);
constexpr QSize kWindow(400, 200);

QPixmap filled(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

IndicatorPictures plainPictures()
{
    IndicatorPictures pictures;
    pictures.arrow = filled({40, 30}, kArrow);
    pictures.icons[2] = filled({20, 10}, kIcon);
    return pictures;
}

QImage paint(const IndicatorState &state, const IndicatorPictures &pictures, qint64 elapsedMs = 0)
{
    QImage image(kWindow, QImage::Format_ARGB32_Premultiplied);
    image.fill(kBefore);
    QPainter painter(&image);
    paintBubble(painter, kWindow, state, pictures, elapsedMs);
    return image;
}

// The bounding rectangle of all pixels of one colour.
QRect whereIs(const QColor &color, const QImage &image)
{
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return found;
}

} // namespace

/// The painting of the bubble without a window.
class tst_BubblePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowAndIconStandWhereTheStateSays_data();
    void arrowAndIconStandWhereTheStateSays();
    void onlyWhatIsRedrawnIsErased();
    void wholeWindowIsErasedWhenAskedFor();
    void arrowThatIsOffIsErasedOnly();
    void kindWithoutAnIconDrawsNone_data();
    void kindWithoutAnIconDrawsNone();
    void picturesThatDidNotLoadDrawNothing();
    void ownPicturesAreThere();
    void ownArrowEndsInAPoint_data();
    void ownArrowEndsInAPoint();
};

void tst_BubblePainter::arrowAndIconStandWhereTheStateSays_data()
{
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<qint64>("elapsedMs");
    QTest::addColumn<QRect>("arrow");
    QTest::addColumn<QRect>("icon");
    const QRect leftIcon(40, 0, 20, 10);
    const QRect rightIcon(256 - 20, 0, 20, 10);
    QTest::newRow("plain") << false << false << qint64(0) << QRect(0, 16, 40, 30) << leftIcon;
    QTest::newRow("risen") << false << false << qint64(1500) << QRect(0, 0, 40, 30) << leftIcon;
    QTest::newRow("mirrored") << false << true << qint64(0) << QRect(256, 16, 40, 30) << rightIcon;
    QTest::newRow("upside down, risen") << true << false << qint64(1500) << QRect(0, 6, 40, 30) << leftIcon;
    QTest::newRow("both, risen") << true << true << qint64(1500) << QRect(256, 6, 40, 30) << rightIcon;
    // At rest it is cut off at the window's top.
    QTest::newRow("upside down") << true << false << qint64(0) << QRect(0, 0, 40, 20) << leftIcon;
}

void tst_BubblePainter::arrowAndIconStandWhereTheStateSays()
{
    QFETCH(qint64, elapsedMs);
    QFETCH(bool, upsideDown);
    QFETCH(bool, mirror);
    IndicatorState state;
    state.iconKind = 2;
    state.placement.upsideDown = upsideDown;
    state.placement.mirror = mirror;
    const QImage image = paint(state, plainPictures(), elapsedMs);
    QTEST(whereIs(kArrow, image), "arrow");
    QTEST(whereIs(kIcon, image), "icon");
}

void tst_BubblePainter::onlyWhatIsRedrawnIsErased()
{
    for (const bool mirror : {false, true}) {
        IndicatorState state;
        state.placement.mirror = mirror;
        const QImage image = paint(state, {});
        QImage expected(kWindow, QImage::Format_ARGB32_Premultiplied);
        expected.fill(kBefore);
        QPainter painter(&expected);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(mirror ? QRect(200, 0, 56, 56) : QRect(0, 0, 56, 56), Qt::black);
        painter.end();
        QCOMPARE(image, expected);
    }
}

void tst_BubblePainter::wholeWindowIsErasedWhenAskedFor()
{
    IndicatorState state;
    state.repaintAll = true;
    state.iconKind = 2;
    const QImage image = paint(state, plainPictures());
    QVERIFY(whereIs(kBefore, image).isNull());
    QCOMPARE(whereIs(kArrow, image), QRect(0, 16, 40, 30));
    QCOMPARE(whereIs(kIcon, image), QRect(40, 0, 20, 10));
    QVERIFY(state.repaintAll); // whoever paints says so, the painter does not
}

void tst_BubblePainter::arrowThatIsOffIsErasedOnly()
{
    IndicatorState state;
    state.arrowVisible = false;
    state.iconKind = 2;
    const QImage image = paint(state, plainPictures());
    QVERIFY(whereIs(kArrow, image).isNull());
    QCOMPARE(image.pixelColor(20, 20).alpha(), 0);
    QCOMPARE(whereIs(kIcon, image), QRect(40, 0, 20, 10));
}

void tst_BubblePainter::kindWithoutAnIconDrawsNone_data()
{
    QTest::addColumn<int>("kind");
    for (const int kind : {-1, 6, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", kind) << kind;
    }
}

void tst_BubblePainter::kindWithoutAnIconDrawsNone()
{
    QFETCH(int, kind);
    IndicatorPictures pictures = plainPictures();
    pictures.icons.fill(filled({20, 10}, kIcon));
    QCOMPARE(pictures.icon(kind), nullptr);
    IndicatorState state;
    state.iconKind = kind;
    QVERIFY(whereIs(kIcon, paint(state, pictures)).isNull());
}

void tst_BubblePainter::picturesThatDidNotLoadDrawNothing()
{
    IndicatorState state;
    state.iconKind = 2;
    state.repaintAll = true;
    QImage nothing(kWindow, QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    QCOMPARE(paint(state, {}), nothing);
}

void tst_BubblePainter::ownPicturesAreThere()
{
    const IndicatorPictures pictures = IndicatorPictures::load();
    QCOMPARE(pictures.arrow.size(), QSize(128, 128));
    const QVector<QSize> sizes{{48, 56}, {48, 56}, {48, 56}, {56, 40}, {48, 56}, {56, 32}};
    for (int kind = 0; kind < sizes.size(); ++kind) {
        QVERIFY(pictures.icon(kind) != nullptr);
        QCOMPARE(pictures.icon(kind)->size(), sizes.at(kind));
    }
}

void tst_BubblePainter::ownArrowEndsInAPoint_data()
{
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<QRect>("tip"); // the outermost row
    QTest::newRow("upright") << false << false << QRect(37, 133, 2, 1);
    QTest::newRow("mirrored") << false << true << QRect(345, 133, 2, 1);
    QTest::newRow("upside down") << true << false << QRect(37, 0, 2, 1);
    QTest::newRow("both") << true << true << QRect(345, 0, 2, 1);
}

void tst_BubblePainter::ownArrowEndsInAPoint()
{
    QFETCH(bool, upsideDown);
    IndicatorState state;
    state.placement.upsideDown = upsideDown;
    QFETCH(bool, mirror);
    state.placement.mirror = mirror;
    state.repaintAll = true;
    const QImage image = paint(state, IndicatorPictures::load(), 500);
    QRect painted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            painted |= image.pixelColor(x, y).alpha() > 0 ? QRect(x, y, 1, 1) : QRect();
        }
    }
    const int row = upsideDown ? painted.top() : painted.bottom();
    QRect tip;
    for (int x = 0; x < image.width(); ++x) {
        tip |= image.pixelColor(x, row).alpha() > 0 ? QRect(x, row, 1, 1) : QRect();
    }
    QTEST(tip, "tip");
}

QTEST_MAIN(tst_BubblePainter)
#include "tst_BubblePainter.moc"
