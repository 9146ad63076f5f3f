#include "FakeOverlayHost.h"
#include "LogCapture.h"
#include "TestIndicator.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QSignalSpy>
#include <QTextDocument>
#include <QtTest>
#include <limits>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

void activate(QWidget *widget)
{
    widget->show();
    widget->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), widget);
}

} // namespace

class TestTutorialIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void methodTableIsComplete();
    void isBuiltHidden();
    void buttonsAreBuiltAlike();
    void picturesHaveTheirSizes();
    void ticksTenTimesASecond();
    void targetIsStoredAndLogged();
    void noTargetTurnsTheArrowOff();
    void oneCoordinateAloneIsATarget_data();
    void oneCoordinateAloneIsATarget();
    void newXyMovesTheTargetOnly();
    void hintIsShownAsLiteralText();
    void hintDocumentIsKeptForTheNextHint();
    void hintFontIsFetchedEachTime();
    void emptyHintHidesTheTextAndKeepsItsHeight();
    void emptyHintKeepsAPendingMeasurement();
    void hintOfMegabytesDoesNotHoldUpTheLoop();
    void initShowsTheButtonsOfTheStep_data();
    void initShowsTheButtonsOfTheStep();
    void initRestartsTheBounce();
    void showButtonsHidesNothing();
    void hideButtonsKeepsWhatTheStepWants();
    void tooltipIsShownAndHidden();
    void clickSendsOneCommand_data();
    void clickSendsOneCommand();
    void isActiveFollowsTheActiveWindow();
    void activationOfAnotherWindowIsPassedOn();
    void ownActivationEndsThePopup();
    void otherChangesAreNotPassedOn();
    void lostActivationIsTakenBackOnTheNextTick();
    void closeEndsTimerAndWindows();
    void closedIndicatorToleratesEverything();
    void closedTooltipIsReplaced();
    void destructionLogsAndDeletesTheWindows();
    void anyIconKindIsTaken_data();
    void anyIconKindIsTaken();
    void anyTargetIsTaken_data();
    void anyTargetIsTaken();

private:
    FakeOverlayHost m_host;
    std::unique_ptr<TestIndicator> m_indicator;
};

void TestTutorialIndicator::init()
{
    m_host = FakeOverlayHost();
    m_indicator = std::make_unique<TestIndicator>(&m_host);
}

void TestTutorialIndicator::cleanup()
{
    m_indicator.reset();
}

void TestTutorialIndicator::methodTableIsComplete()
{
    const QMetaObject &meta = TutorialIndicator::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        slotNames += QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(slotNames, QStringList({QStringLiteral("nextClicked()"), QStringLiteral("yesClicked()"),
                                     QStringLiteral("noClicked()"), QStringLiteral("changeEvent(QEvent*)")}));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void TestTutorialIndicator::isBuiltHidden()
{
    QVERIFY(m_indicator->isHidden());
    QVERIFY(m_indicator->isWindow());
    QVERIFY(m_indicator->tooltip() != nullptr);
    QVERIFY(m_indicator->tooltip()->isHidden());
    QVERIFY(m_indicator->arrowVisible());
    QCOMPARE(m_indicator->state("iconKind").toInt(), 6);
    QCOMPARE(m_indicator->state("offsetX").toInt(), -9999);
    QCOMPARE(m_indicator->state("offsetY").toInt(), -9999);
    QCOMPARE(m_indicator->state("hintHeight").toInt(), 64);
    QCOMPARE(m_indicator->state("updateTextEditSize").toBool(), false);
    QCOMPARE(m_indicator->state("repaintAll").toBool(), false);
    QCOMPARE(m_indicator->state("lastX").toInt(), 0);
    QCOMPARE(m_indicator->state("newY").toInt(), 0);
    QVERIFY(m_host.calls.isEmpty());
    QVERIFY(m_host.sent.isEmpty());
}

void TestTutorialIndicator::buttonsAreBuiltAlike()
{
    m_indicator.reset();
    m_host.font = QFont(QStringLiteral("Some Family"));
    m_host.fontRequests = 0;
    m_indicator = std::make_unique<TestIndicator>(&m_host);
    QCOMPARE(m_host.fontRequests, 1);
    const QList<QPair<QPushButton *, QString>> buttons{{TestIndicator::next(), QStringLiteral("Next")},
                                                       {TestIndicator::yes(), QStringLiteral("Yes")},
                                                       {TestIndicator::no(), QStringLiteral("No")}};
    for (const auto &[button, caption] : buttons) {
        QVERIFY(button != nullptr);
        QCOMPARE(button->text(), caption);
        QCOMPARE(button->parentWidget(), nullptr);
        QCOMPARE(button->windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        QCOMPARE(button->minimumSize(), QSize(64, 32));
        QCOMPARE(button->maximumSize(), QSize(64, 32));
        QVERIFY(button->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(button->testAttribute(Qt::WA_ShowWithoutActivating));
        QCOMPARE(button->font().family(), QStringLiteral("Some Family"));
        QVERIFY(button->isHidden());
    }
}

void TestTutorialIndicator::picturesHaveTheirSizes()
{
    const QList<QPair<const char *, QSize>> pictures{
        {"arrow", {128, 128}}, {"click", {48, 56}}, {"double_click", {48, 56}}, {"right_click", {48, 56}},
        {"eye", {56, 40}},     {"wait", {48, 56}},  {"keyboard", {56, 32}}};
    for (const auto &[name, size] : pictures) {
        QCOMPARE(QPixmap(QStringLiteral(":/resource/png/%1.png").arg(QLatin1String(name))).size(), size);
    }
}

void TestTutorialIndicator::ticksTenTimesASecond()
{
    const auto timers = timersOf(m_indicator.get());
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 100);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
}

void TestTutorialIndicator::targetIsStoredAndLogged()
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

void TestTutorialIndicator::noTargetTurnsTheArrowOff()
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

void TestTutorialIndicator::oneCoordinateAloneIsATarget_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::newRow("x alone") << -9999 << 5;
    QTest::newRow("y alone") << 5 << -9999;
}

void TestTutorialIndicator::oneCoordinateAloneIsATarget()
{
    QFETCH(int, x);
    QFETCH(int, y);
    m_indicator->setTargetWindowOffset(x, y, QString(), true);
    QVERIFY(m_indicator->arrowVisible());
    QCOMPARE(m_indicator->state("newX").toInt(), x);
    QCOMPARE(m_indicator->state("newY").toInt(), y);
}

void TestTutorialIndicator::newXyMovesTheTargetOnly()
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

void TestTutorialIndicator::hintIsShownAsLiteralText()
{
    m_indicator->setHint(QStringLiteral("<b>C:\\maps</b>\n\"two\" & more"));
    QVERIFY(!m_indicator->textEdit()->isHidden());
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("<b>C:\\maps</b>\n\"two\" & more"));
    QCOMPARE(m_indicator->state("hint").toString(), QStringLiteral("<b>C:\\maps</b>\n\"two\" & more"));
    QVERIFY(m_indicator->state("updateTextEditSize").toBool());
}

void TestTutorialIndicator::hintDocumentIsKeptForTheNextHint()
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

void TestTutorialIndicator::hintFontIsFetchedEachTime()
{
    m_indicator->setHint(QStringLiteral("one"));
    m_host.font = QFont(QStringLiteral("Another Family"));
    m_host.fontRequests = 0;
    m_indicator->setHint(QStringLiteral("two"));
    QCOMPARE(m_host.fontRequests, 1);
    QCOMPARE(m_indicator->textEdit()->document()->defaultFont().family(), QStringLiteral("Another Family"));
    // Becoming visible must not swap it for the widget's own font.
    m_indicator->tooltip()->show();
    QCOMPARE(m_indicator->textEdit()->document()->defaultFont().family(), QStringLiteral("Another Family"));
}

void TestTutorialIndicator::emptyHintHidesTheTextAndKeepsItsHeight()
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

void TestTutorialIndicator::hintOfMegabytesDoesNotHoldUpTheLoop()
{
    m_indicator->setTargetWindowOffset(300, 200, QString(), true);
    const QString front = QStringLiteral("the front ");
    QElapsedTimer timer;
    timer.start();
    m_indicator->setHint(front + QString(1000000, QLatin1Char('x')));
    m_indicator->tooltip()->show();
    m_indicator->tick(3);
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(m_indicator->textEdit()->toPlainText().startsWith(front));
}

void TestTutorialIndicator::emptyHintKeepsAPendingMeasurement()
{
    m_indicator->setHint(QString());
    QVERIFY(!m_indicator->state("updateTextEditSize").toBool());
    m_indicator->setHint(QStringLiteral("one"));
    m_indicator->setHint(QString());
    QVERIFY(m_indicator->state("updateTextEditSize").toBool());
}

void TestTutorialIndicator::initShowsTheButtonsOfTheStep_data()
{
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("yesNo");
    for (const bool next : {false, true}) {
        for (const bool yesNo : {false, true}) {
            QTest::addRow("next %d, yes and no %d", next, yesNo) << next << yesNo;
        }
    }
}

void TestTutorialIndicator::initShowsTheButtonsOfTheStep()
{
    QFETCH(bool, next);
    QFETCH(bool, yesNo);
    m_indicator->init(!next, !yesNo);
    LogCapture log;
    m_indicator->init(next, yesNo);
    QCOMPARE(log.debugs().size(), 1);
    QVERIFY(
        log.debugs().constFirst().endsWith(QStringLiteral("TutorialIndicator::init 139 %1 %2")
                                               .arg(QVariant(next).toString(), QVariant(yesNo).toString())));
    QCOMPARE(TestIndicator::next()->isVisible(), next);
    QCOMPARE(TestIndicator::yes()->isVisible(), yesNo);
    QCOMPARE(TestIndicator::no()->isVisible(), yesNo);
    QCOMPARE(m_indicator->state("nextWindowEnabled").toBool(), next);
    QCOMPARE(m_indicator->state("yesNoWindowEnabled").toBool(), yesNo);
}

void TestTutorialIndicator::initRestartsTheBounce()
{
    class ClockReader : public TutorialIndicator
    {
    public:
        using TutorialIndicator::elapsedMs;
        using TutorialIndicator::TutorialIndicator;
    };
    ClockReader indicator(nullptr, &m_host);
    QTRY_VERIFY(indicator.elapsedMs() >= 300);
    indicator.setTargetWindowOffset(10, 10, QString(), true);
    indicator.setHint(QStringLiteral("another step"));
    QVERIFY(indicator.elapsedMs() >= 300);
    indicator.init(false, false);
    QVERIFY(indicator.elapsedMs() < 300);
}

void TestTutorialIndicator::showButtonsHidesNothing()
{
    m_indicator->showButtons();
    QVERIFY(TestIndicator::next()->isHidden());
    QVERIFY(TestIndicator::yes()->isHidden());
    QVERIFY(TestIndicator::no()->isHidden());
    TestIndicator::next()->show();
    m_indicator->showButtons();
    QVERIFY(TestIndicator::next()->isVisible());
}

void TestTutorialIndicator::hideButtonsKeepsWhatTheStepWants()
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

void TestTutorialIndicator::tooltipIsShownAndHidden()
{
    m_indicator->showTooltip();
    QVERIFY(m_indicator->tooltip()->isVisible());
    m_indicator->hideTooltip();
    QVERIFY(m_indicator->tooltip()->isHidden());
}

void TestTutorialIndicator::clickSendsOneCommand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("command");
    QTest::newRow("next") << QStringLiteral("nextButton") << QStringLiteral("next");
    QTest::newRow("yes") << QStringLiteral("yesButton") << QStringLiteral("yes");
    QTest::newRow("no") << QStringLiteral("noButton") << QStringLiteral("no");
}

void TestTutorialIndicator::clickSendsOneCommand()
{
    QFETCH(QString, name);
    QFETCH(QString, command);
    m_indicator->init(true, true);
    const QVariantMap before = m_indicator->getSettings();
    QTest::mouseClick(TestIndicator::button(qPrintable(name)), Qt::LeftButton);
    QCOMPARE(m_host.sent, QStringList(command));
    QCOMPARE(m_indicator->getSettings(), before);
    QVERIFY(TestIndicator::next()->isVisible());
    QVERIFY(TestIndicator::yes()->isVisible());
    QVERIFY(TestIndicator::no()->isVisible());
}

void TestTutorialIndicator::isActiveFollowsTheActiveWindow()
{
    QWidget other;
    activate(&other);
    QVERIFY(!m_indicator->isActive());
    m_indicator->init(true, true);
    for (QPushButton *button : {TestIndicator::next(), TestIndicator::yes(), TestIndicator::no()}) {
        activate(button);
        QVERIFY(m_indicator->isActive());
    }
    m_indicator->showTooltip();
    activate(m_indicator->tooltip());
    QVERIFY(!m_indicator->isActive());
    activate(m_indicator.get());
    QVERIFY(m_indicator->isActive());
}

void TestTutorialIndicator::activationOfAnotherWindowIsPassedOn()
{
    QWidget other;
    activate(&other);
    LogCapture log;
    QEvent event(QEvent::ActivationChange);
    QCoreApplication::sendEvent(m_indicator.get(), &event);
    QCOMPARE(m_host.calls, QStringList(QStringLiteral("visibility")));
    QCOMPARE(log.debugs().size(), 1);
    QVERIFY(log.debugs().constFirst().endsWith(QStringLiteral("TutorialIndicator::changeEvent 286 false")));
}

void TestTutorialIndicator::ownActivationEndsThePopup()
{
    m_indicator->init(true, false);
    activate(TestIndicator::next());
    m_host.calls.clear();
    QEvent event(QEvent::ActivationChange);
    QCoreApplication::sendEvent(m_indicator.get(), &event);
    QCOMPARE(m_host.calls, QStringList({QStringLiteral("activated"), QStringLiteral("visibility")}));
}

void TestTutorialIndicator::otherChangesAreNotPassedOn()
{
    LogCapture log;
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_indicator.get(), &event);
    QVERIFY(m_host.calls.isEmpty());
    QVERIFY(log.lines().isEmpty());
}

void TestTutorialIndicator::lostActivationIsTakenBackOnTheNextTick()
{
    // Shown here only so that there is something to activate.
    m_indicator->show();
    QWidget other;
    activate(&other);
    QTRY_VERIFY(!m_host.calls.isEmpty());
    QEvent event(QEvent::ActivationChange);
    QCoreApplication::sendEvent(m_indicator.get(), &event);
    m_indicator->tick();
    QTRY_COMPARE(QApplication::activeWindow(), m_indicator.get());
    // Once only: without a further change the next tick leaves the activation where it is.
    m_indicator->tick();
    activate(&other);
    m_indicator->tick(); // takes back what the change above asked for
    QTRY_COMPARE(QApplication::activeWindow(), m_indicator.get());
}

void TestTutorialIndicator::closeEndsTimerAndWindows()
{
    m_indicator->init(true, true);
    m_indicator->showTooltip();
    const QPointer<QPushButton> next = TestIndicator::next();
    const QPointer<QPushButton> yes = TestIndicator::yes();
    const QPointer<QPushButton> no = TestIndicator::no();
    const QPointer<TutorialTooltip> tooltip = m_indicator->tooltip();
    const QSignalSpy lastWindowClosed(qApp, &QGuiApplication::lastWindowClosed);
    m_indicator->close();
    QVERIFY(timersOf(m_indicator.get()).isEmpty());
    QCOMPARE(m_indicator->tooltip(), nullptr);
    QVERIFY(!m_indicator->state("tooltip").toBool());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(next && next->isHidden());
    QVERIFY(yes && yes->isHidden());
    QVERIFY(no && no->isHidden());
    QVERIFY(tooltip && tooltip->isHidden());
    QCOMPARE(tooltip->findChild<QTextEdit *>(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(lastWindowClosed.count(), 0);
    // Closed twice is closed.
    m_indicator->close();
    QVERIFY(timersOf(m_indicator.get()).isEmpty());
}

void TestTutorialIndicator::closedIndicatorToleratesEverything()
{
    m_indicator->close();
    m_indicator->init(true, true);
    m_indicator->showButtons();
    m_indicator->hideButtons();
    m_indicator->showTooltip();
    m_indicator->hideTooltip();
    QVERIFY(!m_indicator->isActive());
    const QVariantMap settings = m_indicator->getSettings();
    QVERIFY(!settings.contains(QStringLiteral("textEditX")));
    QVERIFY(!settings.value(QStringLiteral("tooltip")).toBool());
    m_indicator->setSettings(settings);
    QVERIFY(TestIndicator::next()->isHidden());
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip(), nullptr);
}

void TestTutorialIndicator::closedTooltipIsReplaced()
{
    m_indicator->setHint(QStringLiteral("kept"));
    m_indicator->tick();
    TutorialTooltip *const first = m_indicator->tooltip();
    first->close();
    QCOMPARE(m_indicator->tooltip(), nullptr);
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip(), nullptr);
    m_host.isRunning = true;
    m_indicator->tick();
    QVERIFY(m_indicator->tooltip() != nullptr);
    QVERIFY(m_indicator->tooltip() != first);
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("kept"));
    QVERIFY(!m_indicator->textEdit()->isHidden());

    m_indicator->tooltip()->close();
    m_indicator->setTargetWindowOffset(-9999, -9999, QString(), false);
    QVERIFY(m_indicator->tooltip() != nullptr);
    m_indicator->tooltip()->close();
    m_indicator->setHint(QString());
    QVERIFY(m_indicator->tooltip() != nullptr);
    QVERIFY(m_indicator->textEdit()->isHidden());
}

void TestTutorialIndicator::destructionLogsAndDeletesTheWindows()
{
    const QPointer<QPushButton> next = TestIndicator::next();
    const QPointer<TutorialTooltip> tooltip = m_indicator->tooltip();
    m_indicator->close();
    LogCapture log;
    m_indicator.reset();
    QVERIFY(log.contains(QStringLiteral("TutorialIndicator::~TutorialIndicator 94")));
    QVERIFY(log.contains(QStringLiteral("TutorialTooltip::~TutorialTooltip 61")));
    QVERIFY(next.isNull());
    QVERIFY(tooltip.isNull());
}

void TestTutorialIndicator::anyIconKindIsTaken_data()
{
    QTest::addColumn<int>("kind");
    for (const int kind : {kMin, -1, 0, 5, 6, 7, kMax}) {
        QTest::addRow("%d", kind) << kind;
    }
}

void TestTutorialIndicator::anyIconKindIsTaken()
{
    QFETCH(int, kind);
    m_indicator->setIconKind(kind);
    m_indicator->showTooltip();
    LogCapture log;
    m_indicator->tick();
    QVERIFY(!m_indicator->tooltip()->grab().isNull());
    QVERIFY(log.warnings().isEmpty());
    QCOMPARE(m_indicator->state("iconKind").toInt(), kind);
}

void TestTutorialIndicator::anyTargetIsTaken_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    for (const int x : {kMin, -70000, 70000, kMax}) {
        for (const int y : {kMin, -70000, 70000, kMax}) {
            QTest::addRow("%d, %d", x, y) << x << y;
        }
    }
}

void TestTutorialIndicator::anyTargetIsTaken()
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

QTEST_MAIN(TestTutorialIndicator)
#include "tst_TutorialIndicator.moc"
