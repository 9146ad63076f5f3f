#include "pilot/DragWay.h"

#include <QTest>

class tst_DragWay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesWhereTheHintSays_data();
    void goesWhereTheHintSays();
};

void tst_DragWay::goesWhereTheHintSays_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QPoint>("way");
    const auto row = [](const char *hint, const QPoint &way) {
        QTest::newRow(hint) << QString::fromUtf8(hint) << way;
    };
    const QPoint lowerRight(96, 64);
    const QPoint right(96, 0);
    row("Press the mouse button here, drag to the lower right and let go. That is your pond.", lowerRight);
    row("ここでマウスのボタンを押し、右下へドラッグして離してください。池ができます。", lowerRight);
    row("在这里按下鼠标左键，向右下方拖动后松开，池塘就画好了。", lowerRight);
    row("Press here, drag to the right and let go. Flowers grow all along the way.", right);
    row("ここでマウスのボタンを押し、右へドラッグして離してください。なぞった所に花が並びます。", right);
    row("在这里按下鼠标左键，向右拖动后松开，沿途就会开出一排花。", right);
    row("Press the left mouse button here and drag to the right.", right);
    row("Drag up.", QPoint(0, -64));
    row("左上へドラッグしてください。", QPoint(-96, -64));
    // Somewhere, then.
    row("Drag the mouse.", lowerRight);
}

void tst_DragWay::goesWhereTheHintSays()
{
    QFETCH(QString, hint);
    QTEST(dragWay(hint), "way");
}

QTEST_APPLESS_MAIN(tst_DragWay)
#include "tst_DragWay.moc"
