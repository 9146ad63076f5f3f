#include "LogCapture.h"
#include "ManagerFixture.h"

#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialLog.h"
#include "Tutorial/overlay/TutorialTooltip.h"

#include <QPointer>
#include <QPushButton>
#include <QTimerEvent>

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

} // namespace

/// What the overlays do when the host editor hides and shows itself. The ticks come from the test, which
/// never runs the event loop in between: nothing else moves.
class tst_HostVisibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hides_at_the_next_tick();
    void keeps_the_overlays_after_29_hidden_ticks();
    void builds_the_overlays_anew_after_30_hidden_ticks();
    void stays_while_this_process_is_active();
    void blinks_once_within_ten_ticks();
    void hides_the_log_when_the_host_shows_itself();
    void builds_anew_at_each_show_until_the_host_hides_again();
    void comes_back_at_once_within_ten_ticks();
    void comes_back_without_an_indicator();
    void follows_the_state_of_the_application();
    void keeps_the_overlays_in_step_a_hundred_times_a_second();
    void ignores_other_states_of_the_application();
    void leaves_the_tooltip_alone_when_the_playback_stops();
    void ends_the_playback_with_bye();

private:
    void receive(const QString &word, const QString &field) { m_fixture->receive({word, field}); }
    void hide() { receive(QStringLiteral("state"), QStringLiteral("hide")); }
    void show() { receive(QStringLiteral("state"), QStringLiteral("show")); }
    void tick(int count = 1);
    /// Whether every overlay is on the screen, or none; fails the test when it is neither.
    bool allShown();

    std::unique_ptr<ManagerFixture> m_fixture;
    QPointer<TutorialIndicator> m_indicator;
    QPointer<TutorialLog> m_log;
};

void tst_HostVisibility::init()
{
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
    receive(QStringLiteral("fromServer"), QStringLiteral("en_US"));
    m_fixture->receive({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"),
                        QStringLiteral("800"), QStringLiteral("600")});
    m_fixture->receive({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("30"),
                        QStringLiteral("40"), QStringLiteral("MainWindow"), QStringLiteral("hint"),
                        QStringLiteral("5"), QStringLiteral("3")});
    m_fixture->receive(
        {QStringLiteral("showTooltip"), QStringLiteral("text"), QStringLiteral("90"), QStringLiteral("90")});
    m_indicator = topLevels<TutorialIndicator>().value(0);
    m_log = topLevels<TutorialLog>().value(0);
    QVERIFY(m_indicator && m_log);
    QCoreApplication::processEvents();
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(allShown());
}

void tst_HostVisibility::cleanup()
{
    m_fixture.reset();
    deleteOverlays();
}

void tst_HostVisibility::tick(int count)
{
    for (int i = 0; i < count; ++i) {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(m_fixture->manager.get(), &event);
    }
}

bool tst_HostVisibility::allShown()
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

void tst_HostVisibility::hides_at_the_next_tick()
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

void tst_HostVisibility::keeps_the_overlays_after_29_hidden_ticks()
{
    const EditorTooltip *tooltip = m_fixture->manager->editorTooltip();
    hide();
    tick(29);
    LogCapture log;
    show();
    tick();
    QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 29")));
    QVERIFY(allShown());
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(m_fixture->manager->editorTooltip(), tooltip);
}

void tst_HostVisibility::builds_the_overlays_anew_after_30_hidden_ticks()
{
    const QVariantMap before = m_indicator->getSettings();
    const EditorTooltip *tooltip = m_fixture->manager->editorTooltip();
    hide();
    tick(30);
    LogCapture log;
    show();
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    tick();
    QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 30")));
    QVERIFY(allShown());
    QVERIFY(m_fixture->manager->editorTooltip() != tooltip);
    QVERIFY(m_fixture->manager->editorTooltip()->isVisible());

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

void tst_HostVisibility::stays_while_this_process_is_active()
{
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationActive);
    hide();
    tick(40);
    QVERIFY(allShown());
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!allShown());
    LogCapture log;
    show();
    tick();
    QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 0")));
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
}

void tst_HostVisibility::blinks_once_within_ten_ticks()
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

void tst_HostVisibility::hides_the_log_when_the_host_shows_itself()
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

void tst_HostVisibility::builds_anew_at_each_show_until_the_host_hides_again()
{
    hide();
    tick(30);
    for (int rebuilt = 1; rebuilt <= 2; ++rebuilt) {
        LogCapture log;
        const EditorTooltip *const tooltip = m_fixture->manager->editorTooltip();
        show();
        tick();
        QVERIFY(log.contains(QStringLiteral("TutorialManager::timerEvent 427 30")));
        QVERIFY(m_fixture->manager->editorTooltip() != tooltip);
        tick(10);
    }
    hide();
    const EditorTooltip *const tooltip = m_fixture->manager->editorTooltip();
    show();
    tick();
    QCOMPARE(m_fixture->manager->editorTooltip(), tooltip);
}

void tst_HostVisibility::comes_back_at_once_within_ten_ticks()
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

void tst_HostVisibility::comes_back_without_an_indicator()
{
    cleanup();
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
    m_fixture->receive({QStringLiteral("start")});
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationInactive);
    hide();
    tick();
    const TutorialLog *log = topLevels<TutorialLog>().constFirst();
    QVERIFY(!log->isVisible());
    show();
    QVERIFY(log->isVisible());
}

void tst_HostVisibility::follows_the_state_of_the_application()
{
    hide();
    tick();
    QVERIFY(!allShown());
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(allShown());
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!allShown());
}

void tst_HostVisibility::keeps_the_overlays_in_step_a_hundred_times_a_second()
{
    const QTimer *timer = m_fixture->manager->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer && timer->isActive());
    QCOMPARE(timer->interval(), 10);
    m_log->hide();
    QTRY_VERIFY(m_log->isVisible());
}

void tst_HostVisibility::ignores_other_states_of_the_application()
{
    hide();
    tick();
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationSuspended);
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationHidden);
    QVERIFY(!allShown());
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationActive);
    QVERIFY(allShown());
    m_fixture->manager->onApplicationStateChanged(Qt::ApplicationSuspended);
    QVERIFY(allShown());
}

void tst_HostVisibility::leaves_the_tooltip_alone_when_the_playback_stops()
{
    m_fixture->receive({QStringLiteral("stop")});
    m_fixture->manager->updateOverlayVisibility();
    QVERIFY(!m_indicator->tooltip()->isVisible());
    QVERIFY(!m_log->isVisible());
    QVERIFY(m_fixture->manager->editorTooltip()->isVisible());
}

void tst_HostVisibility::ends_the_playback_with_bye()
{
    QVERIFY(m_fixture->manager->running());
    m_fixture->write("000000003\x02"
                     "bye");
    m_fixture->write(QByteArray(1, '\0'));
    QTRY_VERIFY(!m_fixture->manager->running());
    QVERIFY(!m_indicator->tooltip()->isVisible());
}

int main(int argc, char **argv)
{
    return runWithKey<tst_HostVisibility>(argc, argv);
}
#include "tst_HostVisibility.moc"
