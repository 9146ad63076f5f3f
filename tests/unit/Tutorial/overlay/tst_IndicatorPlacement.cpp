#include "IndicatorTest.h"

#include <QPaintEvent>
#include <QTextDocument>
#include <QtTest>

namespace {

// Writes down the bounding rectangle of what a widget is asked to paint.
class PaintedRects final : public QObject
{
public:
    explicit PaintedRects(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            rects += static_cast<QPaintEvent *>(event)->region().boundingRect();
        }
        return QObject::eventFilter(watched, event);
    }
    QVector<QRect> rects;
};

} // namespace

class tst_IndicatorPlacement : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowsEaseTogether();
    void windowsComeToRestThreePixelsShort();
    void mirroringMovesTheTextAside();
    void nullHostRectMirrors();
    void hostRectCountsFromItsLeft();
    void upsideDownMovesTheWindowBelow();
    void measuringSetsTheHeightOnTheNextTick();
    void measuringMovesTheButtonsAtRest();
    void measuringOneRowShortOfTheTargetMovesNothing();
    void measuringWorksBeforeTheBubbleWasEverShown();
    void replacedBubbleIsAsHighAsItsHint();
    void restingWindowIsNotMoved();
    void eachTickRepaintsTheArrow_data();
    void eachTickRepaintsTheArrow();
    void flipRepaintsTheWholeWindow();

private:
    void settleAt(int x, int y);
};

void tst_IndicatorPlacement::settleAt(int x, int y)
{
    m_indicator->setTargetWindowOffset(x, y, QString(), true);
    m_indicator->tick(60);
}

void tst_IndicatorPlacement::windowsEaseTogether()
{
    m_indicator->setTargetWindowOffset(400, 200, QString(), true);
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip()->pos(), QPoint(100, 50));
    QCOMPARE(TestIndicator::next()->pos(), QPoint(100 + 128, 50 + 64 + 56));
    QCOMPARE(TestIndicator::yes()->pos(), QPoint(100 + 128, 50 + 64 + 56));
    QCOMPARE(TestIndicator::no()->pos(), QPoint(100 + 128 + 56, 50 + 64 + 56));
    QCOMPARE(m_indicator->state("lastX").toInt(), 100);
    QCOMPARE(m_indicator->state("lastY").toInt(), 50);
}

void tst_IndicatorPlacement::windowsComeToRestThreePixelsShort()
{
    settleAt(400, 200);
    QCOMPARE(m_indicator->tooltip()->pos(), QPoint(397, 197));
    settleAt(300, 100);
    QCOMPARE(m_indicator->tooltip()->pos(), QPoint(300, 100));
    QCOMPARE(TestIndicator::no()->pos(), QPoint(300 + 128 + 56, 100 + 64 + 56));
}

void tst_IndicatorPlacement::mirroringMovesTheTextAside()
{
    QCOMPARE(m_indicator->textEdit()->pos(), QPoint(128, 56));
    settleAt(1537, 300);
    QVERIFY(m_indicator->state("mirror").toBool());
    QCOMPARE(m_indicator->textEdit()->pos(), QPoint(0, 56));
    const QPoint window = m_indicator->tooltip()->pos();
    QVERIFY(qAbs(window.x() - (1537 - 180 - 128)) <= 3);
    // The buttons stay where they would be without the mirror.
    QCOMPARE(TestIndicator::next()->pos(), window + QPoint(128, 64 + 56));
    settleAt(1510, 300);
    QVERIFY(m_indicator->state("mirror").toBool());
    settleAt(1509, 300);
    QVERIFY(!m_indicator->state("mirror").toBool());
    QCOMPARE(m_indicator->textEdit()->pos(), QPoint(128, 56));
}

void tst_IndicatorPlacement::nullHostRectMirrors()
{
    m_indicator->setHostRect(QRect());
    settleAt(100, 100);
    QVERIFY(m_indicator->state("mirror").toBool());
    QCOMPARE(m_indicator->textEdit()->pos(), QPoint(0, 56));
}

void tst_IndicatorPlacement::hostRectCountsFromItsLeft()
{
    m_indicator->setHostRect({100, 50, 900, 700}); // ends at column 1000
    settleAt(1000 - 384, 300);
    QVERIFY(!m_indicator->state("mirror").toBool());
    settleAt(1000 - 383, 300);
    QVERIFY(m_indicator->state("mirror").toBool());
}

void tst_IndicatorPlacement::upsideDownMovesTheWindowBelow()
{
    settleAt(300, 100);
    settleAt(300, -1);
    QVERIFY(m_indicator->state("upsideDown").toBool());
    QVERIFY(qAbs(m_indicator->tooltip()->y() - (-1 + 165)) <= 3);
    settleAt(300, 64);
    QVERIFY(m_indicator->state("upsideDown").toBool());
    settleAt(300, 65);
    QVERIFY(!m_indicator->state("upsideDown").toBool());
    QCOMPARE(m_indicator->tooltip()->y(), 65);
}

void tst_IndicatorPlacement::measuringSetsTheHeightOnTheNextTick()
{
    m_indicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    m_indicator->showTooltip();
    QCOMPARE(m_indicator->textEdit()->height(), 64);
    m_indicator->tick();
    const int height = static_cast<int>(m_indicator->textEdit()->document()->size().height());
    QVERIFY(height > 64);
    QCOMPARE(m_indicator->state("hintHeight").toInt(), height);
    QCOMPARE(m_indicator->textEdit()->height(), height);
    QCOMPARE(m_indicator->textEdit()->minimumHeight(), height);
    QCOMPARE(m_indicator->textEdit()->maximumHeight(), height);
    QCOMPARE(m_indicator->textEdit()->width(), 256);
    QVERIFY(!m_indicator->state("updateTextEditSize").toBool());
}

void tst_IndicatorPlacement::measuringMovesTheButtonsAtRest()
{
    settleAt(300, 100);
    settleAt(300, 100);
    const QPoint window = m_indicator->tooltip()->pos();
    m_indicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    m_indicator->showTooltip();
    m_indicator->tick();
    const int height = m_indicator->state("hintHeight").toInt();
    QCOMPARE(TestIndicator::next()->pos(), window + QPoint(128, height + 56));
    QCOMPARE(m_indicator->tooltip()->pos(), window);
    QCOMPARE(m_indicator->state("lastY").toInt(), window.y());
}

void tst_IndicatorPlacement::measuringOneRowShortOfTheTargetMovesNothing()
{
    settleAt(300, 100);
    settleAt(290, 90); // reached exactly, from above
    QCOMPARE(m_indicator->tooltip()->pos(), QPoint(290, 90));
    const QPoint button = TestIndicator::next()->pos();
    // The offset that makes a resting window move cancels a step of one row down.
    m_indicator->setTargetWindowOffset(290, 91, QString(), true);
    m_indicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    m_indicator->showTooltip();
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip()->pos(), QPoint(290, 90));
    QCOMPARE(TestIndicator::next()->pos(), button);
    QCOMPARE(m_indicator->state("lastY").toInt(), 91);
}

void tst_IndicatorPlacement::measuringWorksBeforeTheBubbleWasEverShown()
{
    const QString hint =
        QStringLiteral("A hint that is long enough to be broken into several lines at 256 pixels, "
                       "so that its height depends on the width that it is laid out with.");
    m_indicator->setHint(hint);
    m_indicator->tick();
    const int hidden = m_indicator->state("hintHeight").toInt();
    m_indicator->showTooltip();
    m_indicator->setHint(hint);
    m_indicator->tick();
    QCOMPARE(hidden, m_indicator->state("hintHeight").toInt());
}

void tst_IndicatorPlacement::replacedBubbleIsAsHighAsItsHint()
{
    m_indicator->setRunning(true);
    m_indicator->showTooltip();
    m_indicator->setHint(
        QStringLiteral("A hint that is long enough to be broken into several lines at 256 pixels, "
                       "so that its height depends on the width that it is laid out with."));
    settleAt(300, 100);
    m_indicator->tooltip()->close();
    m_indicator->tick(); // makes the new one and measures what it holds, which nobody has seen yet
    const int height = m_indicator->state("hintHeight").toInt();
    QVERIFY(height > 64);
    QCOMPARE(m_indicator->textEdit()->height(), height);
    QCOMPARE(TestIndicator::next()->pos(), m_indicator->tooltip()->pos() + QPoint(128, height + 56));
    m_indicator->showTooltip();
    QCOMPARE(static_cast<int>(m_indicator->textEdit()->document()->size().height()), height);
}

void tst_IndicatorPlacement::restingWindowIsNotMoved()
{
    settleAt(300, 100);
    m_indicator->tooltip()->move(11, 12);
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip()->pos(), QPoint(11, 12));
}

void tst_IndicatorPlacement::eachTickRepaintsTheArrow_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("plain") << 300 << QRect(0, 0, 128 + 56, 128 + 72);
    QTest::newRow("mirrored") << 1700 << QRect(256, 0, 128 + 56, 128 + 72);
}

void tst_IndicatorPlacement::eachTickRepaintsTheArrow()
{
    QFETCH(int, x);
    QFETCH(QRect, rect);
    m_indicator->showTooltip();
    settleAt(x, 300);
    QCoreApplication::processEvents();
    PaintedRects painted(m_indicator->tooltip());
    m_indicator->tick(3);
    QCOMPARE(painted.rects, QVector<QRect>({rect, rect, rect}));
    m_indicator->hideTooltip();
    painted.rects.clear();
    m_indicator->tick();
    QVERIFY(painted.rects.isEmpty());
}

void tst_IndicatorPlacement::flipRepaintsTheWholeWindow()
{
    m_indicator->showTooltip();
    settleAt(300, 100);
    QCoreApplication::processEvents();
    m_indicator->setTargetWindowOffset(300, -1, QString(), true);
    PaintedRects painted(m_indicator->tooltip());
    m_indicator->tick(2);
    QCOMPARE(painted.rects, QVector<QRect>({QRect(0, 0, 640, 480), QRect(0, 0, 128 + 56, 128 + 72)}));
    QVERIFY(!m_indicator->state("repaintAll").toBool());
    // Hidden, the wish to repaint all stays until there is something to paint.
    m_indicator->hideTooltip();
    settleAt(300, 65);
    QVERIFY(m_indicator->state("repaintAll").toBool());
}

QTEST_MAIN(tst_IndicatorPlacement)
#include "tst_IndicatorPlacement.moc"
