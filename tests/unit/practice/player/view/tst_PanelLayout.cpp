#include "player/view/PanelLayout.h"

#include <QtTest>

using namespace player;

namespace {

Panel panelWith(int rows, const QRect &rect = {100, 50, 200, 120})
{
    Panel panel;
    panel.role = QStringLiteral("choices");
    panel.rect = rect;
    for (int row = 0; row < rows; ++row) {
        panel.rows.append({QString::number(row), {}, true});
    }
    panel.current = 0;
    return panel;
}

} // namespace

/// Where rows, lines, face and heading of a panel stand, in game pixels.
class tst_PanelLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsStandBelowEachOther();
    void rowsShareTheWidthOfColumns();
    void rowsWithTextsAtTheRightStandApart();
    void linesAndHeadingStandAboveTheRows();
    void aFaceTakesRoomFromTheText();
    void theSpeakerOfAMessageStandsOutside();
    void rowsScrollToTheCurrentOne();
    void placesAreFoundAgain();
    void wildPanelsAreHarmless();
};

void tst_PanelLayout::rowsStandBelowEachOther()
{
    const PanelLayout layout(panelWith(4));
    QCOMPARE(layout.row(0), QRect(112, 62, 176, 24));
    QCOMPARE(layout.row(3), QRect(112, 134, 176, 24));
    QVERIFY(layout.row(4).isEmpty());
    QVERIFY(!layout.hasRowsAbove());
    QVERIFY(!layout.hasRowsBelow());
}

void tst_PanelLayout::rowsShareTheWidthOfColumns()
{
    Panel panel = panelWith(5);
    panel.columns = 2;
    const PanelLayout layout(panel);
    QCOMPARE(layout.row(0), QRect(112, 62, 88, 24));
    QCOMPARE(layout.row(1), QRect(200, 62, 88, 24));
    QCOMPARE(layout.row(4), QRect(112, 110, 88, 24));
}

void tst_PanelLayout::rowsWithTextsAtTheRightStandApart()
{
    Panel panel = panelWith(3);
    panel.columns = 2;
    panel.rows[1].rightText = QStringLiteral("× 1");
    const PanelLayout layout(panel);
    QCOMPARE(layout.row(0), QRect(112, 62, 76, 24));
    QCOMPARE(layout.row(1), QRect(212, 62, 76, 24));
    QCOMPARE(layout.rowAt({200, 70}), -1);
}

void tst_PanelLayout::linesAndHeadingStandAboveTheRows()
{
    Panel panel = panelWith(1);
    panel.title = QStringLiteral("Heading");
    panel.lines = {QStringLiteral("a"), QStringLiteral("b")};
    const PanelLayout layout(panel);
    QCOMPARE(layout.heading(), QRect(112, 62, 176, 24));
    QCOMPARE(layout.line(1), QRect(112, 110, 176, 24));
    QCOMPARE(layout.row(0), QRect(112, 134, 176, 24));
}

void tst_PanelLayout::aFaceTakesRoomFromTheText()
{
    Panel panel = panelWith(0, {8, 232, 624, 120});
    panel.face = QStringLiteral("mila");
    const PanelLayout layout(panel);
    QCOMPARE(layout.face(), QRect(20, 244, 96, 96));
    QCOMPARE(layout.line(0).left(), 20 + 96 + 12);
}

void tst_PanelLayout::theSpeakerOfAMessageStandsOutside()
{
    Panel panel = panelWith(0);
    panel.role = QStringLiteral("message");
    panel.title = QStringLiteral("Mila");
    panel.lines = {QStringLiteral("a")};
    const PanelLayout layout(panel);
    QVERIFY(layout.heading().isEmpty());
    QCOMPARE(layout.line(0).top(), 62);
}

void tst_PanelLayout::rowsScrollToTheCurrentOne()
{
    Panel panel = panelWith(50);
    panel.current = 49;
    const PanelLayout last(panel);
    QCOMPARE(last.row(49), QRect(112, 134, 176, 24));
    QVERIFY(last.row(45).isEmpty());
    QVERIFY(last.hasRowsAbove());
    QVERIFY(!last.hasRowsBelow());
    panel.current = 20;
    const PanelLayout middle(panel);
    QVERIFY(!middle.row(20).isEmpty());
    QVERIFY(middle.hasRowsAbove());
    QVERIFY(middle.hasRowsBelow());
}

void tst_PanelLayout::placesAreFoundAgain()
{
    Panel panel = panelWith(9);
    panel.columns = 2;
    panel.current = 8;
    const PanelLayout layout(panel);
    for (int row = 0; row < 9; ++row) {
        if (!layout.row(row).isEmpty()) {
            QCOMPARE(layout.rowAt(QRectF(layout.row(row)).center()), row);
        }
    }
    QCOMPARE(layout.rowAt({0, 0}), -1);
}

void tst_PanelLayout::wildPanelsAreHarmless()
{
    for (const int columns : {-3, 0, 1, 1000}) {
        for (const int current : {-5, 0, 900}) {
            Panel panel = panelWith(3, {0, 0, 4, 4});
            panel.columns = columns;
            panel.current = current;
            panel.face = QStringLiteral("mila");
            const PanelLayout layout(panel);
            QVERIFY(layout.rowAt({2, 2}) < 3);
        }
    }
}

QTEST_GUILESS_MAIN(tst_PanelLayout)
#include "tst_PanelLayout.moc"
