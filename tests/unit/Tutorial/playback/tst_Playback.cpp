#include "LogCapture.h"
#include "OverlayWindows.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/IndicatorUpdate.h"
#include "Tutorial/overlay/TutorialLog.h"
#include "Tutorial/overlay/TutorialTooltip.h"
#include "Tutorial/playback/Playback.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>

#include <memory>

namespace {

/// Counts how often a widget comes and goes.
class Blinks final : public QObject
{
public:
    explicit Blinks(QWidget *widget) { widget->installEventFilter(this); }

    int shown = 0;
    int hidden = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        shown += event->type() == QEvent::Show ? 1 : 0;
        hidden += event->type() == QEvent::Hide ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

/// A step with the button Next.
IndicatorUpdate step()
{
    IndicatorUpdate update;
    update.target = {30, 40};
    update.windowKey = QStringLiteral("MainWindow");
    update.hint = QStringLiteral("hint");
    update.arrow = true;
    update.next = true;
    update.iconKind = 3;
    return update;
}

} // namespace

/// The overlays and what the host editor told, without a link. The ticks come from the test, which never runs
/// the event loop in between: nothing else moves.
class tst_Playback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hidesAtTheNextTick();
    void keepsTheOverlaysAfter29HiddenTicks();
    void buildsTheOverlaysAnewAfter30HiddenTicks();
    void staysWhileThisProcessIsActive();
    void blinksOnceWithinTenTicks();
    void hidesTheLogWhenTheHostShowsItself();
    void buildsAnewAtEachShowUntilTheHostHidesAgain();
    void comesBackAtOnceWithinTenTicks();
    void comesBackWithoutAnIndicator();
    void ignoresOtherStatesOfTheApplication();
    void leavesTheTooltipAloneWhenThePlaybackStops();

    void makesTheOverlaysOnce();
    void makesOnlyTheLogWhenItStartsBeforeTheGreeting();
    void showsAStepWithoutAPlaybackForAMoment();
    void needsAnIndicatorToShowAStep();
    void aimsWithTheArrowAsItIs();
    void showsTheTooltipAgainWhileAPlaybackIsOn();
    void handsTheLearnersAnswersUp();
    void beginsWithNoWindowOpen();
    void announcesWindowsThatComeAndGo();
    void dropsAPopupWhenAnOverlayBecomesActive();
    void keepsPositionsAndSizes();
    void takesTheFontForTheLocale();

private:
    void hide() { m_playback->hostHid(); }
    void show() { m_playback->hostCameBack(); }
    void tick(int count = 1);
    /// Whether every overlay is on the screen, or none; fails the test when it is neither.
    bool allShown();

    std::unique_ptr<Playback> m_playback;
    QPointer<TutorialIndicator> m_indicator;
    QPointer<TutorialLog> m_log;
};

void tst_Playback::init()
{
    m_playback = std::make_unique<Playback>();
    m_playback->createOverlays();
    m_playback->setHostRect({0, 0, 800, 600});
    m_playback->start();
    m_playback->showStep(step());
    m_playback->showTooltip(QStringLiteral("text"), {90, 90});
    m_indicator = topLevels<TutorialIndicator>().value(0);
    m_log = topLevels<TutorialLog>().value(0);
    QVERIFY(!m_indicator.isNull() && !m_log.isNull());
    QCoreApplication::processEvents();
    m_playback->setApplicationState(Qt::ApplicationInactive);
    QVERIFY(allShown());
}

void tst_Playback::cleanup()
{
    m_playback.reset();
    deleteOverlays();
}

void tst_Playback::tick(int count)
{
    for (int i = 0; i < count; ++i) {
        m_playback->tick();
    }
}

bool tst_Playback::allShown()
{
    int shown = 0;
    int windows = 0;
    QStringList names;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        const bool isNext = widget->objectName() == QLatin1String("nextButton");
        if (isNext || qobject_cast<const TutorialTooltip *>(widget) ||
            qobject_cast<const TutorialLog *>(widget) || qobject_cast<const EditorTooltip *>(widget)) {
            ++windows;
            shown += widget->isVisible() ? 1 : 0;
            names.append(QLatin1String(widget->metaObject()->className()) +
                         (widget->isVisible() ? QStringLiteral(" shown") : QStringLiteral(" hidden")));
        }
    }
    if (windows < 4 || (shown != 0 && shown != 4)) {
        QTest::qFail(qPrintable(names.join(QStringLiteral(", "))), __FILE__, __LINE__);
    }
    return shown == 4;
}

void tst_Playback::hidesAtTheNextTick()
{
    hide();
    QVERIFY(allShown());
    tick();
    QVERIFY(!allShown());
    tick(5);
    QVERIFY(!allShown());
    show();
    QVERIFY(allShown());
}

void tst_Playback::keepsTheOverlaysAfter29HiddenTicks()
{
    const EditorTooltip *tooltip = m_playback->editorTooltip();
    hide();
    tick(29);
    LogCapture log;
    show();
    tick();
    QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 29")));
    QVERIFY(allShown());
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(m_playback->editorTooltip(), tooltip);
}

void tst_Playback::buildsTheOverlaysAnewAfter30HiddenTicks()
{
    const QVariantMap before = m_indicator->getSettings();
    const EditorTooltip *tooltip = m_playback->editorTooltip();
    hide();
    tick(30);
    LogCapture log;
    show();
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    tick();
    QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 30")));
    QVERIFY(allShown());
    QVERIFY(m_playback->editorTooltip() != tooltip);
    QVERIFY(m_playback->editorTooltip()->isVisible());

    // The closed ones keep out of sight until the process ends.
    QVERIFY(!m_log->isVisible());
    QCOMPARE(m_indicator->tooltip(), nullptr);
    QList<TutorialIndicator *> indicators = topLevels<TutorialIndicator>();
    QCOMPARE(indicators.size(), 2);
    QVERIFY(indicators.removeOne(m_indicator));
    QVERIFY(indicators.constFirst()->tooltip()->isVisible());
    const QVariantMap after = indicators.constFirst()->getSettings();
    const QStringList carried = {QStringLiteral("newX"),      QStringLiteral("newY"),
                                 QStringLiteral("windowKey"), QStringLiteral("hint"),
                                 QStringLiteral("iconKind"),  QStringLiteral("nextWindowEnabled"),
                                 QStringLiteral("offsetX"),   QStringLiteral("arrowVisible")};
    for (const QString &name : carried) {
        QVERIFY(before.contains(name));
        QCOMPARE(after.value(name), before.value(name));
    }
}

void tst_Playback::staysWhileThisProcessIsActive()
{
    m_playback->setApplicationState(Qt::ApplicationActive);
    hide();
    tick(40);
    QVERIFY(allShown());
    m_playback->setApplicationState(Qt::ApplicationInactive);
    QVERIFY(!allShown());
    LogCapture log;
    show();
    tick();
    QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 0")));
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
}

void tst_Playback::blinksOnceWithinTenTicks()
{
    const Blinks bubble(m_indicator->tooltip());
    show();
    QCOMPARE(bubble.hidden, 1);
    QCOMPARE(bubble.shown, 1);
    for (int later = 1; later < 10; ++later) {
        tick();
        show();
    }
    QCOMPARE(bubble.hidden, 1);
    QCOMPARE(bubble.shown, 1);
    tick();
    show();
    QCOMPARE(bubble.hidden, 2);
    QVERIFY(allShown());
}

void tst_Playback::hidesTheLogWhenTheHostShowsItself()
{
    QVERIFY(m_log->isVisible());
    const Blinks log(m_log);
    const Blinks bubble(m_indicator->tooltip());
    show();
    // How often is another matter: a window that goes changes what is active.
    QVERIFY(log.hidden > 0);
    QVERIFY(bubble.hidden > 0);
    QVERIFY(allShown());
}

void tst_Playback::buildsAnewAtEachShowUntilTheHostHidesAgain()
{
    hide();
    tick(30);
    for (int rebuilt = 1; rebuilt <= 2; ++rebuilt) {
        LogCapture log;
        const EditorTooltip *const tooltip = m_playback->editorTooltip();
        show();
        tick();
        QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 30")));
        QVERIFY(m_playback->editorTooltip() != tooltip);
        tick(10);
    }
    hide();
    const EditorTooltip *const tooltip = m_playback->editorTooltip();
    show();
    tick();
    QCOMPARE(m_playback->editorTooltip(), tooltip);
}

void tst_Playback::comesBackAtOnceWithinTenTicks()
{
    show();
    tick(2);
    hide();
    tick();
    QVERIFY(!allShown());
    const Blinks bubble(m_indicator->tooltip());
    LogCapture log;
    show();
    QVERIFY(allShown());
    tick();
    QCOMPARE(bubble.shown, 1);
    QCOMPARE(bubble.hidden, 0);
    QVERIFY(!log.contains(QStringLiteral("TutorialManager::timerEvent 427")));
    QVERIFY(!log.contains(QStringLiteral("m_logHideIgnoreTimeout set to 10")));
}

void tst_Playback::comesBackWithoutAnIndicator()
{
    cleanup();
    m_playback = std::make_unique<Playback>();
    m_playback->start();
    m_playback->setApplicationState(Qt::ApplicationInactive);
    hide();
    tick();
    const TutorialLog *log = topLevels<TutorialLog>().constFirst();
    QVERIFY(!log->isVisible());
    show();
    QVERIFY(log->isVisible());
}

void tst_Playback::ignoresOtherStatesOfTheApplication()
{
    hide();
    tick();
    m_playback->setApplicationState(Qt::ApplicationSuspended);
    m_playback->setApplicationState(Qt::ApplicationHidden);
    QVERIFY(!allShown());
    m_playback->setApplicationState(Qt::ApplicationActive);
    QVERIFY(allShown());
    m_playback->setApplicationState(Qt::ApplicationSuspended);
    QVERIFY(allShown());
}

void tst_Playback::leavesTheTooltipAloneWhenThePlaybackStops()
{
    m_playback->stop();
    m_playback->updateOverlayVisibility();
    QVERIFY(!m_indicator->tooltip()->isVisible());
    QVERIFY(!m_log->isVisible());
    QVERIFY(m_playback->editorTooltip()->isVisible());
}

void tst_Playback::makesTheOverlaysOnce()
{
    m_playback->createOverlays();
    QCOMPARE(topLevels<TutorialIndicator>(), QList<TutorialIndicator *>{m_indicator});
    QCOMPARE(topLevels<TutorialLog>(), QList<TutorialLog *>{m_log});
    QVERIFY(!m_indicator->isVisible()); // its windows are what shows
}

void tst_Playback::makesOnlyTheLogWhenItStartsBeforeTheGreeting()
{
    cleanup();
    m_playback = std::make_unique<Playback>();
    m_playback->start();
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(topLevels<TutorialIndicator>().size(), 0);
}

void tst_Playback::showsAStepWithoutAPlaybackForAMoment()
{
    m_playback->stop();
    const TutorialTooltip *const bubble = m_indicator->tooltip();
    QVERIFY(!bubble->isVisible());
    m_playback->showStep(step());
    QVERIFY(bubble->isVisible());
    m_playback->updateOverlayVisibility();
    QVERIFY(!bubble->isVisible());
}

void tst_Playback::needsAnIndicatorToShowAStep()
{
    cleanup();
    m_playback = std::make_unique<Playback>();
    LogCapture log;
    m_playback->showStep(step());
    m_playback->moveTarget({1, 2});
    m_playback->aim({1, 2}, QStringLiteral("MainWindow"));
    m_playback->hideTooltip();
    m_playback->updateOverlayVisibility();
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    QCOMPARE(log.lines(), QStringList());
}

void tst_Playback::aimsWithTheArrowAsItIs()
{
    for (const bool arrow : {true, false}) {
        IndicatorUpdate update = step();
        update.arrow = arrow;
        m_playback->showStep(update);
        LogCapture log;
        m_playback->aim({50, 60}, QStringLiteral("NewProject"));
        QCOMPARE(log.debugs().size(), 1);
        QVERIFY2(log.contains(QStringLiteral("TutorialIndicator::setTargetWindowOffset 102 50 60 "
                                             "\"NewProject\" %1")
                                  .arg(QVariant(arrow).toString())),
                 qPrintable(log.lines().constFirst()));
    }
}

void tst_Playback::showsTheTooltipAgainWhileAPlaybackIsOn()
{
    const EditorTooltip *const tooltip = m_playback->editorTooltip();
    m_playback->hideTooltip();
    QVERIFY(!tooltip->isVisible());
    m_playback->updateOverlayVisibility();
    QVERIFY(tooltip->isVisible());
    m_playback->stop();
    m_playback->hideTooltip();
    m_playback->updateOverlayVisibility();
    QVERIFY(!tooltip->isVisible());
    m_playback->showTooltip(QStringLiteral("more"), {10, 10});
    QCOMPARE(m_playback->editorTooltip(), tooltip);
    QVERIFY(tooltip->isVisible());
}

void tst_Playback::handsTheLearnersAnswersUp()
{
    const QSignalSpy answers(m_playback.get(), &Playback::answered);
    m_indicator->nextClicked();
    m_indicator->yesClicked();
    m_indicator->noClicked();
    QCOMPARE(answers.size(), 3);
    QCOMPARE(answers.at(0).at(0).toString(), QStringLiteral("next"));
    QCOMPARE(answers.at(1).at(0).toString(), QStringLiteral("yes"));
    QCOMPARE(answers.at(2).at(0).toString(), QStringLiteral("no"));
}

void tst_Playback::beginsWithNoWindowOpen()
{
    m_playback->stop();
    m_playback->pushWindow(QStringLiteral("MainWindow"));
    const QSignalSpy spy(m_playback.get(), &Playback::currentWindowKeyChanged);
    m_playback->start();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(m_playback->windows().current(), QStringLiteral("ApplicationWindow"));
    m_playback->pushWindow(QStringLiteral("NewProject"));
    m_playback->start();
    QCOMPARE(m_playback->windows().current(), QStringLiteral("NewProject"));
    QCOMPARE(spy.size(), 2);
    m_playback->stop();
    m_playback->stop();
    QVERIFY(!m_playback->running());
    QCOMPARE(m_playback->windows().current(), QStringLiteral("NewProject"));
}

void tst_Playback::announcesWindowsThatComeAndGo()
{
    QStringList keys;
    connect(m_playback.get(), &Playback::currentWindowKeyChanged, m_playback.get(),
            [&] { keys << m_playback->windows().current(); });
    m_playback->popWindow();
    m_playback->pushWindow(QStringLiteral("MainWindow"));
    m_playback->pushWindow(QStringLiteral("MainWindow"));
    m_playback->popWindow();
    m_playback->popWindow();
    m_playback->popWindow();
    QCOMPARE(keys, (QStringList{QStringLiteral("MainWindow"), QStringLiteral("MainWindow"),
                                QStringLiteral("MainWindow"), QStringLiteral("ApplicationWindow")}));
}

void tst_Playback::dropsAPopupWhenAnOverlayBecomesActive()
{
    m_playback->pushWindow(QStringLiteral("MainWindow"));
    m_playback->pushWindow(QStringLiteral("Popup"));
    const QSignalSpy spy(m_playback.get(), &Playback::currentWindowKeyChanged);
    m_playback->onOverlayActivated();
    QCOMPARE(m_playback->windows().current(), QStringLiteral("MainWindow"));
    m_playback->onOverlayActivated();
    QCOMPARE(m_playback->windows().current(), QStringLiteral("MainWindow"));
    QCOMPARE(spy.size(), 1);
}

void tst_Playback::keepsPositionsAndSizes()
{
    QCOMPARE(m_playback->windows().position(QStringLiteral("MainWindow")), QPoint(0, 0));
    m_playback->setPosition(QStringLiteral("MainWindow"), {3, -4});
    QCOMPARE(m_playback->windows().position(QStringLiteral("MainWindow")), QPoint(3, -4));
    LogCapture log;
    m_playback->setApplicationSize({800, -1});
    QCOMPARE(log.lines(),
             QStringList{QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp "
                                        "TutorialManager::setApplicationWindowSize 596 800 -1")});
    QCOMPARE(m_playback->windows().applicationSize(), QSize(800, -1));
    QCOMPARE(m_playback->hostRect(), QRect(0, 0, 800, 600));
}

void tst_Playback::takesTheFontForTheLocale()
{
    LogCapture log;
    const auto familyOfAStep = [this] {
        m_playback->showStep(step());
        return m_indicator->tooltip()->findChild<QTextEdit *>()->document()->defaultFont().family();
    };
    const QString latin = familyOfAStep();
    m_playback->setFontLocale(QStringLiteral("zh_CN"));
    const QString chinese = familyOfAStep();
    QVERIFY(chinese != latin);
    m_playback->setFontLocale(QStringLiteral("en_US"));
    QCOMPARE(familyOfAStep(), latin);
}

QTEST_MAIN(tst_Playback)
#include "tst_Playback.moc"
