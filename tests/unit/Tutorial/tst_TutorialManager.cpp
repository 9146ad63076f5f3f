#include "LogCapture.h"
#include "ManagerFixture.h"

#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialIndicator.h"
#include "Tutorial/overlay/TutorialLog.h"
#include "Tutorial/overlay/TutorialTooltip.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTimerEvent>

namespace {

QStringList methodsOf(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == type) {
            names.append(QString::fromLatin1(method.typeName()) + QLatin1Char(' ') +
                         QString::fromLatin1(method.methodSignature()));
        }
    }
    return names;
}

QString greeting()
{
    return QStringLiteral("fromServer");
}

} // namespace

class tst_TutorialManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void lists_its_signals_in_order();
    void lists_its_slots_in_order();
    void lists_its_invokables_in_order();
    void lists_its_properties_in_order();
    void publishes_itself();
    void takes_its_document_along();
    void announces_each_command_of_a_payload();

    void answers_positions_of_both_kinds_from_one_table();
    void tells_the_current_window_key();
    void pops_nothing_silently_from_an_empty_stack();
    void empties_the_stack_at_the_start_only();
    void keeps_the_rectangle_when_start_has_too_few_fields();
    void takes_the_rectangle_while_running();
    void creates_only_the_log_when_started_before_the_greeting();
    void creates_the_overlays_once();
    void shows_the_bubble_with_each_update();
    void moves_the_indicator_by_name();
    void shows_and_hides_the_editor_tooltip();
    void shows_the_editor_tooltip_again_while_a_playback_is_on();
    void drops_a_popup_when_an_overlay_becomes_active();
    void announces_a_change_of_modified_only();
    void announces_an_empty_clipboard_once();
    void reports_that_it_is_ready();
    void supports_no_making();
    void answers_the_cursor_position();
    void survives_hostile_numbers();

private:
    std::unique_ptr<ManagerFixture> m_fixture;
};

void tst_TutorialManager::init()
{
    QSettings().clear();
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
}

void tst_TutorialManager::cleanup()
{
    m_fixture.reset();
    deleteOverlays();
}

void tst_TutorialManager::lists_its_signals_in_order()
{
    QCOMPARE(methodsOf(TutorialManager::staticMetaObject, QMetaMethod::Signal),
             (QStringList{
                 QStringLiteral("void received(QString)"), QStringLiteral("void modifiedChanged()"),
                 QStringLiteral("void jumpLinkChanged(QString)"), QStringLiteral("void mimeTypeChanged()"),
                 QStringLiteral("void tutorialNameChanged()"), QStringLiteral("void localeChanged()"),
                 QStringLiteral("void locale2Changed()"), QStringLiteral("void actionIdChanged(int)"),
                 QStringLiteral("void currentWindowKeyChanged()")}));
}

void tst_TutorialManager::lists_its_slots_in_order()
{
    QCOMPARE(methodsOf(TutorialManager::staticMetaObject, QMetaMethod::Slot),
             (QStringList{QStringLiteral("void onApplicationStateChanged(Qt::ApplicationState)"),
                          QStringLiteral("void onReceived(QString)"), QStringLiteral("void onReadyRead()"),
                          QStringLiteral("void onConnected()"), QStringLiteral("void onDisconnected()"),
                          QStringLiteral("void onTimerTimeout()"),
                          QStringLiteral("void onStateChanged(QLocalSocket::LocalSocketState)")}));
}

void tst_TutorialManager::lists_its_invokables_in_order()
{
    QCOMPARE(
        methodsOf(TutorialManager::staticMetaObject, QMetaMethod::Method),
        (QStringList{QStringLiteral("QPoint getXy(QString)"), QStringLiteral("QString getCurrentWindowKey()"),
                     QStringLiteral("void clearMimeData()"), QStringLiteral("bool connected()"),
                     QStringLiteral("bool isMakingSupported()"),
                     QStringLiteral("void copyTutorialItemList(QList<int>)"),
                     QStringLiteral("QList<int> pasteTutorialItemList()"),
                     QStringLiteral("void requestClose()"), QStringLiteral("QString save()"),
                     QStringLiteral("QString getTutorialJson()"), QStringLiteral("void unload()"),
                     QStringLiteral("void startFromId(int)"), QStringLiteral("void startFromId()"),
                     QStringLiteral("QString loadTutorial(QString)"), QStringLiteral("QPoint getCursorPos()"),
                     QStringLiteral("void updateIndicatorXyWindowKey(int,int,QString)"),
                     QStringLiteral("QString feedbackTranslation()")}));
}

void tst_TutorialManager::lists_its_properties_in_order()
{
    const QMetaObject &meta = TutorialManager::staticMetaObject;
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        properties.append(QStringLiteral("%1 %2 %3 %4")
                              .arg(QString::fromLatin1(property.typeName()),
                                   QString::fromLatin1(property.name()),
                                   property.isWritable() ? QStringLiteral("rw") : QStringLiteral("r"),
                                   QString::fromLatin1(property.notifySignal().name())));
    }
    QCOMPARE(properties, (QStringList{QStringLiteral("bool modified rw modifiedChanged"),
                                      QStringLiteral("QString mimeType r mimeTypeChanged"),
                                      QStringLiteral("QString tutorialName r tutorialNameChanged"),
                                      QStringLiteral("QString currentWindowKey r currentWindowKeyChanged"),
                                      QStringLiteral("QString locale rw localeChanged"),
                                      QStringLiteral("QString locale2 rw locale2Changed")}));
}

void tst_TutorialManager::publishes_itself()
{
    QCOMPARE(TutorialManager::instance(), m_fixture->manager.get());
    m_fixture->manager.reset();
    QCOMPARE(TutorialManager::instance(), nullptr);
}

void tst_TutorialManager::takes_its_document_along()
{
    LogCapture log;
    m_fixture->manager.reset();
    const QStringList lines = log.lines();
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).contains(QStringLiteral("TutorialManager::~TutorialManager")));
    QVERIFY(lines.at(1).contains(QStringLiteral("TutorialEditor::Manager::~Manager")));
    QVERIFY(lines.at(2).contains(QStringLiteral("TutorialManager::~TutorialManager")));
}

void tst_TutorialManager::announces_each_command_of_a_payload()
{
    QSignalSpy spy(m_fixture->manager.get(), &TutorialManager::received);
    m_fixture->write(QByteArray("00000000c\x02"
                                "one\x01"
                                "1\x02\x02two\x01\x02\0"
                                "00000000c\x02"
                                "three\x02"
                                "bye\x02no\0",
                                46));
    QTRY_COMPARE(spy.size(), 5);
    const QStringList expected = {QStringLiteral("one\x01"
                                                 "1"),
                                  QString(), QStringLiteral("two\x01"), QString(), QStringLiteral("three")};
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(spy.at(i).at(0).toString(), expected.at(i));
    }
    // The next read is whole again, and nothing of the one before comes late.
    m_fixture->write(QByteArray("000000004\x02"
                                "four\0",
                                15));
    QTRY_COMPARE(spy.size(), 6);
    QCOMPARE(spy.at(5).at(0).toString(), QStringLiteral("four"));
}

void tst_TutorialManager::answers_positions_of_both_kinds_from_one_table()
{
    m_fixture->receive({QStringLiteral("windowPosition"), QStringLiteral("MainWindow"), QStringLiteral("12"),
                        QStringLiteral("-34")});
    m_fixture->receive({QStringLiteral("controlPosition"), QStringLiteral("saveButton"), QStringLiteral("5"),
                        QStringLiteral("6")});
    m_fixture->receive(
        {QStringLiteral("controlPosition"), QString(), QStringLiteral("7"), QStringLiteral("8")});
    QPoint position;
    TutorialManager *manager = m_fixture->manager.get();
    QVERIFY(QMetaObject::invokeMethod(manager, "getXy", Q_RETURN_ARG(QPoint, position),
                                      Q_ARG(QString, QStringLiteral("MainWindow"))));
    QCOMPARE(position, QPoint(12, -34));
    QCOMPARE(manager->getXy(QStringLiteral("saveButton")), QPoint(5, 6));
    QCOMPARE(manager->getXy(QString()), QPoint(0, 0));
    QCOMPARE(manager->getXy(QStringLiteral("unknown")), QPoint(0, 0));
}

void tst_TutorialManager::tells_the_current_window_key()
{
    TutorialManager *manager = m_fixture->manager.get();
    QSignalSpy spy(manager, &TutorialManager::currentWindowKeyChanged);
    QCOMPARE(manager->property("currentWindowKey").toString(), QStringLiteral("ApplicationWindow"));
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("push"), QStringLiteral("MainWindow")});
    QCOMPARE(spy.size(), 1);
    QCOMPARE(manager->property("currentWindowKey").toString(), QStringLiteral("MainWindow"));
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("pop")});
    QCOMPARE(spy.size(), 2);
    QCOMPARE(manager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
}

void tst_TutorialManager::pops_nothing_silently_from_an_empty_stack()
{
    QSignalSpy spy(m_fixture->manager.get(), &TutorialManager::currentWindowKeyChanged);
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("pop")});
    m_fixture->receive(
        {QStringLiteral("windowStack"), QStringLiteral("shuffle"), QStringLiteral("MainWindow")});
    QCOMPARE(spy.size(), 0);
}

void tst_TutorialManager::empties_the_stack_at_the_start_only()
{
    TutorialManager *manager = m_fixture->manager.get();
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("push"), QStringLiteral("MainWindow")});
    QSignalSpy spy(manager, &TutorialManager::currentWindowKeyChanged);
    m_fixture->receive({QStringLiteral("start")});
    QCOMPARE(spy.size(), 1);
    QCOMPARE(manager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("push"), QStringLiteral("NewProject")});
    m_fixture->receive({QStringLiteral("start")});
    QCOMPARE(manager->getCurrentWindowKey(), QStringLiteral("NewProject"));
    QCOMPARE(spy.size(), 2);
}

void tst_TutorialManager::keeps_the_rectangle_when_start_has_too_few_fields()
{
    const QStringList full = {QStringLiteral("start"), QStringLiteral("1"), QStringLiteral("2"),
                              QStringLiteral("3"), QStringLiteral("4")};
    QVERIFY(m_fixture->manager->hostRect().isNull());
    m_fixture->receive(full);
    QCOMPARE(m_fixture->manager->hostRect(), QRect(1, 2, 3, 4));
    m_fixture->receive({QStringLiteral("stop")});
    QVERIFY(!m_fixture->manager->running());
    m_fixture->receive({QStringLiteral("start"), QStringLiteral("9"), QStringLiteral("9")});
    QCOMPARE(m_fixture->manager->hostRect(), QRect(1, 2, 3, 4));
    QVERIFY(m_fixture->manager->running());
}

void tst_TutorialManager::takes_the_rectangle_while_running()
{
    m_fixture->receive({QStringLiteral("start")});
    m_fixture->receive({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"),
                        QStringLiteral("1280"), QStringLiteral("960"), QStringLiteral("more")});
    QCOMPARE(m_fixture->manager->hostRect(), QRect(0, 0, 1280, 960));
}

void tst_TutorialManager::creates_only_the_log_when_started_before_the_greeting()
{
    m_fixture->receive({QStringLiteral("start")});
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(topLevels<TutorialIndicator>().size(), 0);
}

void tst_TutorialManager::creates_the_overlays_once()
{
    m_fixture->receive({greeting(), QStringLiteral("en_US")});
    m_fixture->receive({greeting(), QStringLiteral("zh_CN")});
    QCOMPARE(topLevels<TutorialLog>().size(), 1);
    QCOMPARE(topLevels<TutorialIndicator>().size(), 1);
    QVERIFY(!topLevels<TutorialTooltip>().constFirst()->isVisible());
    m_fixture->receive({QStringLiteral("start")});
    QVERIFY(topLevels<TutorialTooltip>().constFirst()->isVisible());
    QVERIFY(topLevels<TutorialLog>().constFirst()->isVisible());
    QVERIFY(!topLevels<TutorialIndicator>().constFirst()->isVisible());
    m_fixture->receive({QStringLiteral("stop")});
    QVERIFY(!topLevels<TutorialTooltip>().constFirst()->isVisible());
    QVERIFY(!topLevels<TutorialLog>().constFirst()->isVisible());
}

void tst_TutorialManager::shows_the_bubble_with_each_update()
{
    m_fixture->receive({greeting(), QStringLiteral("en_US")});
    const TutorialTooltip *bubble = topLevels<TutorialTooltip>().constFirst();
    QVERIFY(!bubble->isVisible());
    m_fixture->receive({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("1"),
                        QStringLiteral("2"), QStringLiteral("MainWindow"), QStringLiteral("hint"),
                        QStringLiteral("4"), QStringLiteral("0")});
    QVERIFY(bubble->isVisible());
    // Without a playback it does not stay.
    m_fixture->manager->updateOverlayVisibility();
    QVERIFY(!bubble->isVisible());
}

void tst_TutorialManager::moves_the_indicator_by_name()
{
    m_fixture->receive({greeting(), QStringLiteral("en_US")});
    m_fixture->receive({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("1"),
                        QStringLiteral("2"), QStringLiteral("MainWindow"), QStringLiteral("hint"),
                        QStringLiteral("0"), QStringLiteral("0")});
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "updateIndicatorXyWindowKey", Q_ARG(int, 30),
                                      Q_ARG(int, 40), Q_ARG(QString, QStringLiteral("NewProject"))));
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("indicator\x01updateXYWindowKey\x01"
                                                      "30\x01"
                                                      "40\x01NewProject"));
    const QVariantMap settings = topLevels<TutorialIndicator>().constFirst()->getSettings();
    QCOMPARE(settings.value(QStringLiteral("newX")).toInt(), 30);
    QCOMPARE(settings.value(QStringLiteral("newY")).toInt(), 40);
    QCOMPARE(settings.value(QStringLiteral("windowKey")).toString(), QStringLiteral("NewProject"));
    // The arrow was off and stays off.
    QCOMPARE(settings.value(QStringLiteral("arrowVisible")).toBool(), false);
    m_fixture->receive({QStringLiteral("indicator"), QStringLiteral("updateXy"), QStringLiteral("50"),
                        QStringLiteral("60")});
    const QVariantMap moved = topLevels<TutorialIndicator>().constFirst()->getSettings();
    QCOMPARE(moved.value(QStringLiteral("newX")).toInt(), 50);
    QCOMPARE(moved.value(QStringLiteral("newY")).toInt(), 60);
    QCOMPARE(moved.value(QStringLiteral("offsetX")).toInt(), 30);
}

void tst_TutorialManager::shows_and_hides_the_editor_tooltip()
{
    m_fixture->receive({QStringLiteral("hideTooltip")});
    QCOMPARE(topLevels<EditorTooltip>().size(), 0);
    m_fixture->receive({QStringLiteral("showTooltip"), QStringLiteral("text"), QStringLiteral("100"),
                        QStringLiteral("100")});
    QCOMPARE(topLevels<EditorTooltip>().size(), 1);
    QVERIFY(topLevels<EditorTooltip>().constFirst()->isVisible());
    m_fixture->receive({QStringLiteral("hideTooltip")});
    QVERIFY(!topLevels<EditorTooltip>().constFirst()->isVisible());
    // Without a playback the tooltip is left alone.
    m_fixture->manager->updateOverlayVisibility();
    QVERIFY(!topLevels<EditorTooltip>().constFirst()->isVisible());
}

void tst_TutorialManager::shows_the_editor_tooltip_again_while_a_playback_is_on()
{
    m_fixture->receive({QStringLiteral("start")});
    m_fixture->receive({QStringLiteral("showTooltip"), QStringLiteral("text"), QStringLiteral("100"),
                        QStringLiteral("100")});
    m_fixture->receive({QStringLiteral("hideTooltip")});
    QVERIFY(!topLevels<EditorTooltip>().constFirst()->isVisible());
    m_fixture->manager->updateOverlayVisibility();
    QVERIFY(topLevels<EditorTooltip>().constFirst()->isVisible());
}

void tst_TutorialManager::drops_a_popup_when_an_overlay_becomes_active()
{
    TutorialManager *manager = m_fixture->manager.get();
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("push"), QStringLiteral("MainWindow")});
    m_fixture->receive({QStringLiteral("windowStack"), QStringLiteral("push"), QStringLiteral("Popup")});
    QSignalSpy spy(manager, &TutorialManager::currentWindowKeyChanged);
    manager->onOverlayActivated();
    QCOMPARE(manager->getCurrentWindowKey(), QStringLiteral("MainWindow"));
    manager->onOverlayActivated();
    QCOMPARE(manager->getCurrentWindowKey(), QStringLiteral("MainWindow"));
    QCOMPARE(spy.size(), 1);
}

void tst_TutorialManager::announces_a_change_of_modified_only()
{
    TutorialManager *manager = m_fixture->manager.get();
    QSignalSpy spy(manager, &TutorialManager::modifiedChanged);
    manager->setProperty("modified", false);
    manager->setProperty("modified", true);
    manager->setProperty("modified", true);
    QCOMPARE(spy.size(), 1);
    QVERIFY(manager->modified());
}

void tst_TutorialManager::announces_an_empty_clipboard_once()
{
    TutorialManager *manager = m_fixture->manager.get();
    QSignalSpy spy(manager, &TutorialManager::mimeTypeChanged);
    QCOMPARE(manager->mimeType(), QString());
    QVERIFY(QMetaObject::invokeMethod(manager, "clearMimeData"));
    QVERIFY(QMetaObject::invokeMethod(manager, "clearMimeData"));
    QCOMPARE(manager->mimeType(), QStringLiteral("Empty"));
    QCOMPARE(spy.size(), 1);
}

void tst_TutorialManager::reports_that_it_is_ready()
{
    bool connected = false;
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "connected", Q_RETURN_ARG(bool, connected)));
    QVERIFY(connected);
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("tutorialReady"));
}

void tst_TutorialManager::supports_no_making()
{
    bool supported = true;
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "isMakingSupported",
                                      Q_RETURN_ARG(bool, supported)));
    QVERIFY(!supported);
}

void tst_TutorialManager::answers_the_cursor_position()
{
    QCursor::setPos(123, 45);
    QPoint position;
    QVERIFY(
        QMetaObject::invokeMethod(m_fixture->manager.get(), "getCursorPos", Q_RETURN_ARG(QPoint, position)));
    QCOMPARE(position, QCursor::pos());
}

void tst_TutorialManager::survives_hostile_numbers()
{
    const QStringList numbers = {QStringLiteral("2147483647"), QStringLiteral("-2147483648"),
                                 QStringLiteral("-9999"), QStringLiteral("0")};
    m_fixture->receive({greeting(), QStringLiteral("en_US")});
    for (const QString &a : numbers) {
        for (const QString &b : numbers) {
            m_fixture->receive({QStringLiteral("start"), a, b, b, a});
            m_fixture->receive({QStringLiteral("indicator"), QStringLiteral("update"), a, b,
                                QStringLiteral("key"), QStringLiteral("hint"), a, b});
            m_fixture->receive({QStringLiteral("showTooltip"), QStringLiteral("text"), a, b});
            // One tick of the indicator, which is what computes with the numbers.
            QTimerEvent tick(0);
            QCoreApplication::sendEvent(topLevels<TutorialIndicator>().constFirst(), &tick);
            QCoreApplication::processEvents();
        }
    }
    QVERIFY(m_fixture->manager->running());
}

int main(int argc, char **argv)
{
    return runWithKey<tst_TutorialManager>(argc, argv);
}
#include "tst_TutorialManager.moc"
