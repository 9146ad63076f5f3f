#include "CpuTime.h"
#include "IndicatorTest.h"
#include "LogCapture.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTextDocument>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

} // namespace

/// What a step sets: its target, hint, icon and buttons.
class tst_IndicatorStep : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void targetIsStoredAndLogged();
    void noTargetTurnsTheArrowOff();
    void oneCoordinateAloneIsATarget_data();
    void oneCoordinateAloneIsATarget();
    void newXyMovesTheTargetOnly();
    void hintIsShownAsLiteralText();
    void hintDocumentIsKeptForTheNextHint();
    void hintTakesTheFontThatItComesWith();
    void emptyHintHidesTheTextAndKeepsItsHeight();
    void hintOfMegabytesDoesNotHoldUpTheLoop();
    void emptyHintKeepsAPendingMeasurement();
    void initShowsTheButtonsOfTheStep_data();
    void initShowsTheButtonsOfTheStep();
    void initRestartsTheBounce();
    void showButtonsHidesNothing();
    void hideButtonsKeepsWhatTheStepWants();
    void anyIconKindIsTaken_data();
    void anyIconKindIsTaken();
    void anyTargetIsTaken_data();
    void anyTargetIsTaken();
};

void tst_IndicatorStep::targetIsStoredAndLogged()
{
    LogCapture log;
    m_indicator->setTargetWindowOffset(300, 200, QStringLiteral("MainWindow"), true);
    QCOMPARE(log.debugs(), QStringList(QStringLiteral(
                               "..\\..\\tutorial\\cpp\\Tutorial\\overlay\\TutorialIndicator.cpp "
                               "TutorialIndicator::setTargetWindowOffset 102 300 200 \"MainWindow\" true")));
    QCOMPARE(m_indicator->state("newX").toInt(), 300);
    QCOMPARE(m_indicator->state("newY").toInt(), 200);
    QCOMPARE(m_indicator->state("offsetX").toInt(), 300);
    QCOMPARE(m_indicator->state("offsetY").toInt(), 200);
    QCOMPARE(m_indicator->state("windowKey").toString(), QStringLiteral("MainWindow"));
    QVERIFY(m_indicator->arrowVisible());
    m_indicator->setTargetWindowOffset(310, 210, QStringLiteral("MainWindow"), false);
    QVERIFY(!m_indicator->arrowVisible());
}

void tst_IndicatorStep::noTargetTurnsTheArrowOff()
{
    m_indicator->setTargetWindowOffset(300, 200, QStringLiteral("MainWindow"), true);
    m_indicator->tick(60);
    const QPoint before = m_indicator->tooltip()->pos();
    m_indicator->setTargetWindowOffset(-9999, -9999, QStringLiteral("Other"), true);
    QVERIFY(!m_indicator->arrowVisible());
    QCOMPARE(m_indicator->state("newX").toInt(), 300);
    QCOMPARE(m_indicator->state("newY").toInt(), 200);
    QCOMPARE(m_indicator->state("offsetX").toInt(), -9999);
    QCOMPARE(m_indicator->state("offsetY").toInt(), -9999);
    QCOMPARE(m_indicator->state("windowKey").toString(), QStringLiteral("Other"));
    m_indicator->tick(10);
    QCOMPARE(m_indicator->tooltip()->pos(), before);
}

void tst_IndicatorStep::oneCoordinateAloneIsATarget_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::newRow("x alone") << -9999 << 5;
    QTest::newRow("y alone") << 5 << -9999;
}

void tst_IndicatorStep::oneCoordinateAloneIsATarget()
{
    QFETCH(int, x);
    QFETCH(int, y);
    m_indicator->setTargetWindowOffset(x, y, QString(), true);
    QVERIFY(m_indicator->arrowVisible());
    QCOMPARE(m_indicator->state("newX").toInt(), x);
    QCOMPARE(m_indicator->state("newY").toInt(), y);
}

void tst_IndicatorStep::newXyMovesTheTargetOnly()
{
    const QVariantMap before = m_indicator->getSettings();
    m_indicator->setNewXy(-9999, -9999);
    QVariantMap after = m_indicator->getSettings();
    QCOMPARE(after.value(QStringLiteral("newX")).toInt(), -9999);
    QCOMPARE(after.value(QStringLiteral("newY")).toInt(), -9999);
    after.insert(QStringLiteral("newX"), 0);
    after.insert(QStringLiteral("newY"), 0);
    QCOMPARE(after, before);
}

void tst_IndicatorStep::hintIsShownAsLiteralText()
{
    m_indicator->setHint(QStringLiteral("<b>C:\\maps</b>\n\"two\" & more"));
    QVERIFY(!m_indicator->textEdit()->isHidden());
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("<b>C:\\maps</b>\n\"two\" & more"));
    QCOMPARE(m_indicator->state("hint").toString(), QStringLiteral("<b>C:\\maps</b>\n\"two\" & more"));
    QVERIFY(m_indicator->state("updateTextEditSize").toBool());
}

void tst_IndicatorStep::hintDocumentIsKeptForTheNextHint()
{
    m_indicator->setHint(QStringLiteral("one"));
    const QPointer<QTextDocument> document = m_indicator->textEdit()->document();
    QCOMPARE(document->parent(), nullptr);
    m_indicator->setHint(QStringLiteral("two"));
    QCOMPARE(m_indicator->textEdit()->document(), document.data());
    m_indicator->close();
    m_indicator.reset();
    QVERIFY(!document.isNull());
    m_indicator = std::make_unique<TestIndicator>(&m_host);
    m_indicator->setHint(QStringLiteral("three"));
    QCOMPARE(m_indicator->textEdit()->document(), document.data());
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("three"));
}

void tst_IndicatorStep::hintTakesTheFontThatItComesWith()
{
    m_indicator->setHint(QStringLiteral("one"));
    m_indicator->font = QFont(QStringLiteral("Another Family"));
    m_indicator->setHint(QStringLiteral("two"));
    QCOMPARE(m_indicator->textEdit()->document()->defaultFont().family(), QStringLiteral("Another Family"));
    // Becoming visible must not swap it for the widget's own font.
    m_indicator->tooltip()->show();
    QCOMPARE(m_indicator->textEdit()->document()->defaultFont().family(), QStringLiteral("Another Family"));
}

void tst_IndicatorStep::emptyHintHidesTheTextAndKeepsItsHeight()
{
    m_indicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    m_indicator->setTargetWindowOffset(300, 200, QString(), true);
    m_indicator->tick(60);
    const int height = m_indicator->state("hintHeight").toInt();
    const QPoint button = TestIndicator::next()->pos();
    QVERIFY(height > 64);
    m_indicator->setHint(QString());
    m_indicator->tick(2);
    QVERIFY(m_indicator->textEdit()->isHidden());
    QCOMPARE(m_indicator->state("hint").toString(), QString());
    QCOMPARE(m_indicator->state("hintHeight").toInt(), height);
    QCOMPARE(TestIndicator::next()->pos(), button);
}

void tst_IndicatorStep::hintOfMegabytesDoesNotHoldUpTheLoop()
{
    m_indicator->setTargetWindowOffset(300, 200, QString(), true);
    const QString front = QStringLiteral("the front ");
    const CpuTime time;
    m_indicator->setHint(front + QString(1000000, QLatin1Char('x')));
    m_indicator->tooltip()->show();
    m_indicator->tick(3);
    QVERIFY2(time.elapsedMs() < 10000, qPrintable(QString::number(time.elapsedMs())));
    QVERIFY(m_indicator->textEdit()->toPlainText().startsWith(front));
}

void tst_IndicatorStep::emptyHintKeepsAPendingMeasurement()
{
    m_indicator->setHint(QString());
    QVERIFY(!m_indicator->state("updateTextEditSize").toBool());
    m_indicator->setHint(QStringLiteral("one"));
    m_indicator->setHint(QString());
    QVERIFY(m_indicator->state("updateTextEditSize").toBool());
}

void tst_IndicatorStep::initShowsTheButtonsOfTheStep_data()
{
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("yesNo");
    for (const bool next : {false, true}) {
        for (const bool yesNo : {false, true}) {
            QTest::addRow("next %d, yes and no %d", next, yesNo) << next << yesNo;
        }
    }
}

void tst_IndicatorStep::initShowsTheButtonsOfTheStep()
{
    QFETCH(bool, next);
    QFETCH(bool, yesNo);
    m_indicator->init(!next, !yesNo);
    LogCapture log;
    m_indicator->init(next, yesNo);
    // Some platforms make a window active when it is shown, which has a line of its own.
    const QStringList lines = log.debugs().filter(QStringLiteral("TutorialIndicator::init "));
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.constFirst().endsWith(QStringLiteral("TutorialIndicator::init 139 %1 %2")
                                            .arg(QVariant(next).toString(), QVariant(yesNo).toString())));
    QCOMPARE(TestIndicator::next()->isVisible(), next);
    QCOMPARE(TestIndicator::yes()->isVisible(), yesNo);
    QCOMPARE(TestIndicator::no()->isVisible(), yesNo);
    QCOMPARE(m_indicator->state("nextWindowEnabled").toBool(), next);
    QCOMPARE(m_indicator->state("yesNoWindowEnabled").toBool(), yesNo);
}

void tst_IndicatorStep::initRestartsTheBounce()
{
    class ClockReader : public TutorialIndicator
    {
    public:
        using TutorialIndicator::elapsedMs;
        using TutorialIndicator::TutorialIndicator;
    };
    ClockReader indicator(nullptr, &m_host, {});
    QTRY_VERIFY(indicator.elapsedMs() >= 300);
    indicator.setTargetWindowOffset(10, 10, QString(), true);
    indicator.setHint(QStringLiteral("another step"), {});
    QVERIFY(indicator.elapsedMs() >= 300);
    QElapsedTimer sinceInit;
    sinceInit.start();
    indicator.init(false, false);
    QVERIFY(indicator.elapsedMs() <= sinceInit.elapsed());
}

void tst_IndicatorStep::showButtonsHidesNothing()
{
    m_indicator->showButtons();
    QVERIFY(TestIndicator::next()->isHidden());
    QVERIFY(TestIndicator::yes()->isHidden());
    QVERIFY(TestIndicator::no()->isHidden());
    TestIndicator::next()->show();
    m_indicator->showButtons();
    QVERIFY(TestIndicator::next()->isVisible());
}

void tst_IndicatorStep::hideButtonsKeepsWhatTheStepWants()
{
    m_indicator->init(true, true);
    m_indicator->hideButtons();
    QVERIFY(TestIndicator::next()->isHidden());
    QVERIFY(TestIndicator::yes()->isHidden());
    QVERIFY(TestIndicator::no()->isHidden());
    m_indicator->showButtons();
    QVERIFY(TestIndicator::next()->isVisible());
    QVERIFY(TestIndicator::yes()->isVisible());
    QVERIFY(TestIndicator::no()->isVisible());
}

void tst_IndicatorStep::anyIconKindIsTaken_data()
{
    QTest::addColumn<int>("kind");
    for (const int kind : {kMin, -1, 0, 5, 6, 7, kMax}) {
        QTest::addRow("%d", kind) << kind;
    }
}

void tst_IndicatorStep::anyIconKindIsTaken()
{
    QFETCH(int, kind);
    m_indicator->showTooltip();
    m_indicator->setIconKind(6);
    m_indicator->tick();
    const QImage withoutIcon = m_indicator->tooltip()->grab().toImage();
    m_indicator->setIconKind(kind);
    LogCapture log;
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip()->grab().toImage() != withoutIcon, kind >= 0 && kind < 6);
    QVERIFY(log.warnings().isEmpty());
    QCOMPARE(m_indicator->state("iconKind").toInt(), kind);
}

void tst_IndicatorStep::anyTargetIsTaken_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    for (const int x : {kMin, -70000, 70000, kMax}) {
        for (const int y : {kMin, -70000, 70000, kMax}) {
            QTest::addRow("%d, %d", x, y) << x << y;
        }
    }
}

void tst_IndicatorStep::anyTargetIsTaken()
{
    QFETCH(int, x);
    QFETCH(int, y);
    m_indicator->init(true, true);
    m_indicator->showTooltip();
    m_indicator->setTargetWindowOffset(x, y, QString(), true);
    m_indicator->setHint(QStringLiteral("far away"));
    m_indicator->tick(150);
    QVERIFY(std::abs(m_indicator->state("lastX").toDouble() - x) < 1000.0);
    QVERIFY(std::abs(m_indicator->state("lastY").toDouble() - y) < 1000.0);
    m_indicator->setTargetWindowOffset(100, 100, QString(), true);
    m_indicator->tick(150);
    QVERIFY(std::abs(m_indicator->tooltip()->x() - 100) <= 3);
    QVERIFY(std::abs(m_indicator->tooltip()->y() - 100) <= 3);
}

QTEST_MAIN(tst_IndicatorStep)
#include "tst_IndicatorStep.moc"
