#include "IndicatorTest.h"
#include "LogCapture.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

namespace {

QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

/// Keeps a widget from hearing that the active window is another.
class ActivationChangeEater final : public QObject
{
public:
    explicit ActivationChangeEater(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::ActivationChange || QObject::eventFilter(watched, event);
    }
};

void activate(QWidget *widget)
{
    widget->show();
    widget->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), widget);
}

} // namespace

/// The windows of an indicator: how they are built, clicked, activated, closed and deleted.
class tst_TutorialIndicator : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void methodTableIsComplete();
    void isBuiltHidden();
    void buttonsAreBuiltAlike();
    void picturesHaveTheirSizes();
    void ticksTenTimesASecond();
    void tooltipIsShownAndHidden();
    void clickSendsOneCommand_data();
    void clickSendsOneCommand();
    void isActiveFollowsTheActiveWindow();
    void activationOfAnotherWindowIsPassedOn();
    void ownActivationEndsThePopup();
    void activeButtonEndsThePopup();
    void buttonThatTakesOverEndsThePopupOnce();
    void buttonThatIsNoLongerActiveEndsNoPopup();
    void indicatorThatIsNeverShownLeavesTheActivationAlone();
    void otherChangesAreNotPassedOn();
    void lostActivationIsTakenBackOnTheNextTick();
    void closeEndsTimerAndWindows();
    void closeForgetsATooltipWithoutANativeWindow();
    void closedIndicatorToleratesEverything();
    void closedTooltipIsReplaced();
    void destructionLogsAndDeletesTheWindows();
};

void tst_TutorialIndicator::methodTableIsComplete()
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

void tst_TutorialIndicator::isBuiltHidden()
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

void tst_TutorialIndicator::buttonsAreBuiltAlike()
{
    m_indicator.reset();
    m_indicator = std::make_unique<TestIndicator>(&m_host, QFont(QStringLiteral("Some Family")));
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

void tst_TutorialIndicator::picturesHaveTheirSizes()
{
    const QList<QPair<const char *, QSize>> pictures{
        {"arrow", {128, 128}}, {"click", {48, 56}}, {"double_click", {48, 56}}, {"right_click", {48, 56}},
        {"eye", {56, 40}},     {"wait", {48, 56}},  {"keyboard", {56, 32}}};
    for (const auto &[name, size] : pictures) {
        QCOMPARE(QPixmap(QStringLiteral(":/resource/png/%1.png").arg(QLatin1String(name))).size(), size);
    }
}

void tst_TutorialIndicator::ticksTenTimesASecond()
{
    const auto timers = timersOf(m_indicator.get());
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 100);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
}

void tst_TutorialIndicator::tooltipIsShownAndHidden()
{
    m_indicator->showTooltip();
    QVERIFY(m_indicator->tooltip()->isVisible());
    m_indicator->hideTooltip();
    QVERIFY(m_indicator->tooltip()->isHidden());
}

void tst_TutorialIndicator::clickSendsOneCommand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("command");
    QTest::newRow("next") << QStringLiteral("nextButton") << QStringLiteral("next");
    QTest::newRow("yes") << QStringLiteral("yesButton") << QStringLiteral("yes");
    QTest::newRow("no") << QStringLiteral("noButton") << QStringLiteral("no");
}

void tst_TutorialIndicator::clickSendsOneCommand()
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

void tst_TutorialIndicator::isActiveFollowsTheActiveWindow()
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

void tst_TutorialIndicator::activationOfAnotherWindowIsPassedOn()
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

void tst_TutorialIndicator::ownActivationEndsThePopup()
{
    m_indicator->init(true, false);
    activate(TestIndicator::next());
    m_host.calls.clear();
    QEvent event(QEvent::ActivationChange);
    QCoreApplication::sendEvent(m_indicator.get(), &event);
    QCOMPARE(m_host.calls, QStringList({QStringLiteral("activated"), QStringLiteral("visibility")}));
}

void tst_TutorialIndicator::activeButtonEndsThePopup()
{
    QWidget other;
    activate(&other);
    m_indicator->init(true, true);
    QCoreApplication::processEvents(); // this platform makes active what is shown
    for (QPushButton *button : {TestIndicator::next(), TestIndicator::yes(), TestIndicator::no()}) {
        activate(&other);
        m_host.calls.clear();
        LogCapture log;
        activate(button);
        QCOMPARE(m_host.calls, QStringList({QStringLiteral("activated"), QStringLiteral("visibility")}));
        QVERIFY(
            log.debugs().constFirst().endsWith(QStringLiteral("TutorialIndicator::changeEvent 286 true")));
    }
}

void tst_TutorialIndicator::buttonThatTakesOverEndsThePopupOnce()
{
    m_indicator->init(false, true);
    QCoreApplication::processEvents(); // this platform makes active what is shown
    activate(TestIndicator::yes());
    m_host.calls.clear();
    activate(TestIndicator::no());
    QCOMPARE(m_host.calls, QStringList({QStringLiteral("activated"), QStringLiteral("visibility")}));
}

void tst_TutorialIndicator::buttonThatIsNoLongerActiveEndsNoPopup()
{
    m_indicator->init(true, false);
    activate(TestIndicator::next());
    m_host.calls.clear();
    QWidget other;
    activate(&other);
    QCOMPARE(m_host.calls, QStringList(QStringLiteral("visibility")));
}

void tst_TutorialIndicator::indicatorThatIsNeverShownLeavesTheActivationAlone()
{
    m_indicator->init(true, false);
    activate(TestIndicator::next());
    QWidget other;
    activate(&other);
    // The tick that takes the activation back finds no window to give it to.
    m_indicator->tick();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::activeWindow(), &other);
    QCOMPARE(m_indicator->windowHandle(), nullptr);
}

void tst_TutorialIndicator::otherChangesAreNotPassedOn()
{
    LogCapture log;
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_indicator.get(), &event);
    QVERIFY(m_host.calls.isEmpty());
    QVERIFY(log.lines().isEmpty());
}

void tst_TutorialIndicator::lostActivationIsTakenBackOnTheNextTick()
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
    // Each time anew.
    activate(&other);
    m_indicator->tick();
    QTRY_COMPARE(QApplication::activeWindow(), m_indicator.get());
    // Once only: a tick without a change before it leaves the activation where it is.
    ActivationChangeEater eater(m_indicator.get());
    activate(&other);
    m_indicator->tick();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::activeWindow(), &other);
}

void tst_TutorialIndicator::closeEndsTimerAndWindows()
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
    QVERIFY(next != nullptr && next->isHidden());
    QVERIFY(yes != nullptr && yes->isHidden());
    QVERIFY(no != nullptr && no->isHidden());
    QVERIFY(tooltip != nullptr && tooltip->isHidden());
    QCOMPARE(tooltip->findChild<QTextEdit *>(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(lastWindowClosed.count(), 0);
    // Closed twice is closed.
    m_indicator->close();
    QVERIFY(timersOf(m_indicator.get()).isEmpty());
}

void tst_TutorialIndicator::closeForgetsATooltipWithoutANativeWindow()
{
    m_indicator->showTooltip();
    m_indicator->hideTooltip();
    QVERIFY(m_indicator->tooltip()->windowHandle() != nullptr);
    m_indicator->tooltip()->windowHandle()->destroy();
    m_indicator->close();
    QCOMPARE(m_indicator->tooltip(), nullptr);
    QVERIFY(!m_indicator->state("tooltip").toBool());
}

void tst_TutorialIndicator::closedIndicatorToleratesEverything()
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

void tst_TutorialIndicator::closedTooltipIsReplaced()
{
    m_indicator->setHint(QStringLiteral("kept"));
    m_indicator->tick();
    TutorialTooltip *const first = m_indicator->tooltip();
    first->close();
    QCOMPARE(m_indicator->tooltip(), nullptr);
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip(), nullptr);
    m_indicator->setRunning(true);
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

void tst_TutorialIndicator::destructionLogsAndDeletesTheWindows()
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

QTEST_MAIN(tst_TutorialIndicator)
#include "tst_TutorialIndicator.moc"
