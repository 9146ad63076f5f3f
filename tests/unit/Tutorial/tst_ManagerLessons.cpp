#include "LogCapture.h"
#include "ManagerFixture.h"
#include "tool/JsonWrapper.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>

/// Lessons in the whole manager: their names, how they are handed over, and how they go.
class tst_ManagerLessons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hands_over_from_an_id();
    void announces_a_lesson_name_once();
    void takes_an_odd_name_from_the_host_data();
    void takes_an_odd_name_from_the_host();
    void unloads();
    void tells_the_host_of_a_position_without_an_indicator();
    void saves_nothing_without_a_file();

private:
    std::unique_ptr<ManagerFixture> m_fixture;
};

void tst_ManagerLessons::init()
{
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
}

void tst_ManagerLessons::cleanup()
{
    m_fixture.reset();
    deleteOverlays();
}

void tst_ManagerLessons::hands_over_from_an_id()
{
    TutorialManager *manager = m_fixture->manager.get();
    QCOMPARE(manager->loadTutorial(QStringLiteral(":/qml/Tutorial/TutorialStep1.js")), QString());
    QVERIFY(QMetaObject::invokeMethod(manager, "startFromId", Q_ARG(int, 7)));
    const QString payload = m_fixture->nextPayload();
    QVERIFY(payload.startsWith(QStringLiteral("start\x01var scenario = [\n    {\n\"id\":1,\n")));
    QVERIFY(payload.endsWith(QStringLiteral("\n    }\n];\x01"
                                            "7")));
    QVERIFY(QMetaObject::invokeMethod(manager, "startFromId"));
    QVERIFY(m_fixture->nextPayload().endsWith(QStringLiteral(";\x01-1")));
    QVERIFY(!manager->running());
}

void tst_ManagerLessons::announces_a_lesson_name_once()
{
    QSignalSpy spy(m_fixture->manager.get(), &TutorialManager::tutorialNameChanged);
    QString errors = QStringLiteral("not called");
    for (int i = 0; i < 2; ++i) {
        QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "loadTutorial",
                                          Q_RETURN_ARG(QString, errors),
                                          Q_ARG(QString, QStringLiteral(":/qml/Tutorial/TutorialStep1.js"))));
        QCOMPARE(errors, QString());
    }
    QCOMPARE(spy.size(), 1);
}

void tst_ManagerLessons::takes_an_odd_name_from_the_host_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("empty") << QString() << QString() << false;
    QTest::newRow("slash") << QStringLiteral("/") << QString() << false;
    QTest::newRow("up") << QStringLiteral("../") << QString() << false;
    QTest::newRow("ending") << QStringLiteral(".js") << QStringLiteral(".js") << false;
    QTest::newRow("with its ending") << QStringLiteral("TutorialStep1.js")
                                     << QStringLiteral("TutorialStep1.js") << false;
    QTest::newRow("out of the program")
        << QStringLiteral("../../../etc/passwd") << QStringLiteral("passwd") << false;
    QTest::newRow("up and down") << QStringLiteral("../Tutorial/TutorialStep1")
                                 << QStringLiteral("TutorialStep1") << true;
    QTest::newRow("from the root") << QStringLiteral("/TutorialStep1") << QStringLiteral("TutorialStep1")
                                   << true;
    QTest::newRow("placeholder") << QStringLiteral("%1") << QStringLiteral("%1") << false;
}

void tst_ManagerLessons::takes_an_odd_name_from_the_host()
{
    QFETCH(QString, asked);
    QFETCH(QString, name);
    QFETCH(bool, isThere);
    LogCapture log;
    m_fixture->receive({QStringLiteral("tutorial"), asked});
    QCOMPARE(m_fixture->manager->tutorialName(), name);
    const QString path = QStringLiteral("qml/Tutorial/") + asked + QStringLiteral(".js");
    const QString start = QStringLiteral(
        "..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::getExistsFilename ");
    QCOMPARE(log.debugs().mid(0, 2),
             (QStringList{start + QStringLiteral("1402 \"") + path + QLatin1Char('"'),
                          start + QStringLiteral("1405 \":/") + path + QLatin1Char('"')}));
    QCOMPARE(log.warnings().filter(QStringLiteral("Failed to open")).size(), isThere ? 0 : 1);
    // What is not there leaves the document as it stands, which is empty here, and that is handed over.
    const QString empty = QStringLiteral("start\x01var scenario = [\n\n];\x01-1");
    QCOMPARE(m_fixture->nextPayload() == empty, !isThere);
}

void tst_ManagerLessons::unloads()
{
    TutorialManager *manager = m_fixture->manager.get();
    QCOMPARE(manager->loadTutorial(QStringLiteral(":/qml/Tutorial/TutorialStep1.js")), QString());
    QSignalSpy spy(manager, &TutorialManager::tutorialNameChanged);
    QVERIFY(QMetaObject::invokeMethod(manager, "unload"));
    QVERIFY(QMetaObject::invokeMethod(manager, "unload"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(manager->tutorialName(), QString());
    manager->startFromId();
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("start\x01var scenario = [\n\n];\x01-1"));
}

void tst_ManagerLessons::tells_the_host_of_a_position_without_an_indicator()
{
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "updateIndicatorXyWindowKey",
                                      Q_ARG(int, -9999), Q_ARG(int, 0), Q_ARG(QString, QString())));
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("indicator\x01updateXYWindowKey\x01-9999\x01"
                                                      "0\x01"));
}

void tst_ManagerLessons::saves_nothing_without_a_file()
{
    QString message;
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "save", Q_RETURN_ARG(QString, message)));
    QCOMPARE(message, QStringLiteral("Tutorial not loaded yet."));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_ManagerLessons>(argc, argv);
}
#include "tst_ManagerLessons.moc"
