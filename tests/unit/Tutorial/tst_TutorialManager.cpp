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

    void listsItsSignalsInOrder();
    void listsItsSlotsInOrder();
    void listsItsInvokablesInOrder();
    void listsItsPropertiesInOrder();
    void publishesItself();
    void takesItsDocumentAlong();
    void announcesEachCommandOfAPayload();

    void answersPositionsOfBothKindsFromOneTable();
    void tellsTheCurrentWindowKey();
    void movesTheIndicatorByName();
    void endsThePlaybackWithBye();
    void followsTheStateOfTheApplication();
    void keepsTheOverlaysInStepAHundredTimesASecond();
    void ticksPlaybackAndLinkInThisOrder();
    void sendsTheLearnersAnswers();
    void announcesAChangeOfModifiedOnly();
    void announcesAnEmptyClipboardOnce();
    void reportsThatItIsReady();
    void supportsNoMaking();
    void answersTheCursorPosition();

private:
    /// Greets, and starts a playback.
    void play();
    void tick();

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

void tst_TutorialManager::listsItsSignalsInOrder()
{
    QCOMPARE(methodsOf(TutorialManager::staticMetaObject, QMetaMethod::Signal),
             (QStringList{
                 QStringLiteral("void received(QString)"), QStringLiteral("void modifiedChanged()"),
                 QStringLiteral("void jumpLinkChanged(QString)"), QStringLiteral("void mimeTypeChanged()"),
                 QStringLiteral("void tutorialNameChanged()"), QStringLiteral("void localeChanged()"),
                 QStringLiteral("void locale2Changed()"), QStringLiteral("void actionIdChanged(int)"),
                 QStringLiteral("void currentWindowKeyChanged()")}));
}

void tst_TutorialManager::listsItsSlotsInOrder()
{
    QCOMPARE(methodsOf(TutorialManager::staticMetaObject, QMetaMethod::Slot),
             (QStringList{QStringLiteral("void onApplicationStateChanged(Qt::ApplicationState)"),
                          QStringLiteral("void onReceived(QString)"), QStringLiteral("void onReadyRead()"),
                          QStringLiteral("void onConnected()"), QStringLiteral("void onDisconnected()"),
                          QStringLiteral("void onTimerTimeout()"),
                          QStringLiteral("void onStateChanged(QLocalSocket::LocalSocketState)")}));
}

void tst_TutorialManager::listsItsInvokablesInOrder()
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

void tst_TutorialManager::listsItsPropertiesInOrder()
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

void tst_TutorialManager::publishesItself()
{
    QCOMPARE(TutorialManager::instance(), m_fixture->manager.get());
    m_fixture->manager.reset();
    QCOMPARE(TutorialManager::instance(), nullptr);
}

void tst_TutorialManager::takesItsDocumentAlong()
{
    LogCapture log;
    m_fixture->manager.reset();
    const QStringList lines = log.lines();
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).contains(QStringLiteral("TutorialManager::~TutorialManager")));
    QVERIFY(lines.at(1).contains(QStringLiteral("TutorialEditor::Manager::~Manager")));
    QVERIFY(lines.at(2).contains(QStringLiteral("TutorialManager::~TutorialManager")));
}

void tst_TutorialManager::announcesEachCommandOfAPayload()
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

void tst_TutorialManager::answersPositionsOfBothKindsFromOneTable()
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

void tst_TutorialManager::tellsTheCurrentWindowKey()
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

void tst_TutorialManager::movesTheIndicatorByName()
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

void tst_TutorialManager::play()
{
    m_fixture->receive({greeting(), QStringLiteral("en_US")});
    m_fixture->receive({QStringLiteral("start")});
}

void tst_TutorialManager::tick()
{
    QTimerEvent event(0);
    QCoreApplication::sendEvent(m_fixture->manager.get(), &event);
}

void tst_TutorialManager::endsThePlaybackWithBye()
{
    play();
    const TutorialTooltip *const bubble = topLevels<TutorialTooltip>().constFirst();
    QVERIFY(bubble->isVisible());
    m_fixture->write("000000003\x02"
                     "bye");
    m_fixture->write(QByteArray(1, '\0'));
    QTRY_VERIFY(!bubble->isVisible());
    m_fixture->manager->onTimerTimeout();
    QVERIFY(!bubble->isVisible());
}

void tst_TutorialManager::followsTheStateOfTheApplication()
{
    play();
    const TutorialLog *const overlay = topLevels<TutorialLog>().constFirst();
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    m_fixture->receive({QStringLiteral("state"), QStringLiteral("hide")});
    tick();
    QVERIFY(!overlay->isVisible());
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(overlay->isVisible());
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!overlay->isVisible());
}

void tst_TutorialManager::keepsTheOverlaysInStepAHundredTimesASecond()
{
    play();
    const QTimer *timer = m_fixture->manager->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer != nullptr && timer->isActive());
    QCOMPARE(timer->interval(), 10);
    TutorialLog *const overlay = topLevels<TutorialLog>().constFirst();
    overlay->hide();
    QTRY_VERIFY(overlay->isVisible());
}

void tst_TutorialManager::ticksPlaybackAndLinkInThisOrder()
{
    play();
    LogCapture log;
    m_fixture->receive({QStringLiteral("state"), QStringLiteral("show")});
    log.clear();
    // No more than ten ticks pass before the link is due; some may have before.
    QStringList lines;
    for (int i = 0; i < 10 && !log.contains(QStringLiteral("send 1396")); ++i) {
        log.clear();
        tick();
        lines = log.debugs().filter(QStringLiteral("TutorialManager::"));
    }
    QVERIFY(lines.size() >= 2);
    QVERIFY2(lines.at(lines.size() - 2).contains(QStringLiteral("timerEvent 460")),
             qPrintable(lines.join(QLatin1Char(' '))));
    QVERIFY(lines.constLast().contains(QStringLiteral("send 1396 \"alive\"")));
}

void tst_TutorialManager::sendsTheLearnersAnswers()
{
    play();
    topLevels<TutorialIndicator>().constFirst()->yesClicked();
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("yes"));
}

void tst_TutorialManager::announcesAChangeOfModifiedOnly()
{
    TutorialManager *manager = m_fixture->manager.get();
    QSignalSpy spy(manager, &TutorialManager::modifiedChanged);
    manager->setProperty("modified", false);
    manager->setProperty("modified", true);
    manager->setProperty("modified", true);
    QCOMPARE(spy.size(), 1);
    QVERIFY(manager->modified());
}

void tst_TutorialManager::announcesAnEmptyClipboardOnce()
{
    TutorialManager *manager = m_fixture->manager.get();
    QSignalSpy spy(manager, &TutorialManager::mimeTypeChanged);
    QCOMPARE(manager->mimeType(), QString());
    QVERIFY(QMetaObject::invokeMethod(manager, "clearMimeData"));
    QVERIFY(QMetaObject::invokeMethod(manager, "clearMimeData"));
    QCOMPARE(manager->mimeType(), QStringLiteral("Empty"));
    QCOMPARE(spy.size(), 1);
}

void tst_TutorialManager::reportsThatItIsReady()
{
    bool connected = false;
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "connected", Q_RETURN_ARG(bool, connected)));
    QVERIFY(connected);
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("tutorialReady"));
}

void tst_TutorialManager::supportsNoMaking()
{
    bool supported = true;
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "isMakingSupported",
                                      Q_RETURN_ARG(bool, supported)));
    QVERIFY(!supported);
}

void tst_TutorialManager::answersTheCursorPosition()
{
    QCursor::setPos(123, 45);
    QPoint position;
    QVERIFY(
        QMetaObject::invokeMethod(m_fixture->manager.get(), "getCursorPos", Q_RETURN_ARG(QPoint, position)));
    QCOMPARE(position, QCursor::pos());
}

int main(int argc, char **argv)
{
    return runWithKey<tst_TutorialManager>(argc, argv);
}
#include "tst_TutorialManager.moc"
