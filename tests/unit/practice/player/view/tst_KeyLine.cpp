#include "player/view/KeyLine.h"

#include <QTest>

using player::KeyLine;

/// What the keys do, below a game of any width.
class tst_KeyLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allKeysAreToldInTheUsualSizes();
    void inANarrowWindowTheFirstOnesAreTold();
    void theKeyThatBeginsAnewIsAmongThem();
    void whatIsDrawnStaysWithinTheLine();
};

void tst_KeyLine::allKeysAreToldInTheUsualSizes()
{
    const KeyLine line;
    for (const int width : {640, 960, 1280}) {
        QCOMPARE(line.toldWithin(width), line.count());
    }
}

void tst_KeyLine::inANarrowWindowTheFirstOnesAreTold()
{
    const KeyLine line;
    const int told = line.toldWithin(320);
    QVERIFY(told >= 1);
    QVERIFY(told < line.count());
    QCOMPARE(line.toldWithin(0), 0);
}

void tst_KeyLine::theKeyThatBeginsAnewIsAmongThem()
{
    const KeyLine line;
    QVERIFY2(line.accessibleName().contains(QStringLiteral("F5: Begin anew")),
             qPrintable(line.accessibleName()));
}

void tst_KeyLine::whatIsDrawnStaysWithinTheLine()
{
    KeyLine line;
    for (const int width : {200, 320, 480, 640, 1280}) {
        line.resize(width, line.sizeHint().height());
        const QImage image = line.grab().toImage();
        const QColor ground = image.pixelColor(0, 0);
        bool isDrawn = false;
        for (int y = 0; y < image.height(); ++y) {
            QCOMPARE(image.pixelColor(1, y), ground);
            QCOMPARE(image.pixelColor(image.width() - 2, y), ground);
            for (int x = 0; x < image.width(); ++x) {
                isDrawn = isDrawn || image.pixelColor(x, y) != ground;
            }
        }
        QVERIFY(isDrawn);
    }
}

QTEST_MAIN(tst_KeyLine)
#include "tst_KeyLine.moc"
