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
    void aClickOnAKeyPressesIt();
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

void tst_KeyLine::aClickOnAKeyPressesIt()
{
    KeyLine line;
    line.resize(960, line.sizeHint().height());
    QVector<Qt::Key> pressed;
    connect(&line, &KeyLine::pressed, &line, [&pressed](Qt::Key key) { pressed.append(key); });
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Left, Qt::Key_F5}) {
        QVERIFY(line.rect().contains(line.capOf(key)));
        QTest::mouseClick(&line, Qt::LeftButton, {}, line.capOf(key).center());
    }
    QCOMPARE(pressed, (QVector<Qt::Key>{Qt::Key_Escape, Qt::Key_Left, Qt::Key_F5}));
    // Beside them, on what is said of them.
    QTest::mouseClick(&line, Qt::LeftButton, {}, line.capOf(Qt::Key_Escape).center() + QPoint(60, 0));
    QTest::mouseClick(&line, Qt::LeftButton, {}, QPoint(1, 1));
    QCOMPARE(pressed.size(), 3);
    line.resize(200, line.height());
    QVERIFY(line.capOf(Qt::Key_F5).isEmpty());
}

QTEST_MAIN(tst_KeyLine)
#include "tst_KeyLine.moc"
