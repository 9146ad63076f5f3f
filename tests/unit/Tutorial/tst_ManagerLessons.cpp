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
    void hands_over_a_text_that_holds_an_end();
    void keeps_the_base_name_of_a_lesson_data();
    void keeps_the_base_name_of_a_lesson();
    void takes_the_texts_by_the_base_name_data();
    void takes_the_texts_by_the_base_name();
    void announces_a_lesson_name_once();
    void announces_a_lesson_name_before_the_lesson_is_there();
    void gives_one_error_a_line();
    void takes_an_odd_name_from_the_host_data();
    void takes_an_odd_name_from_the_host();
    void unloads();
    void tells_the_host_of_a_position_without_an_indicator();
    void saves_nothing_without_a_file();
    void saves_no_translations_into_the_program();

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

void tst_ManagerLessons::hands_over_a_text_that_holds_an_end()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("own.js")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(var scenario = [{"id":1,"name":"a","hint":"b\u005d;c"}];)");
    file.close();
    QCOMPARE(m_fixture->manager->loadTutorial(file.fileName()), QString());
    m_fixture->manager->startFromId();
    // The end that is taken off is the first one, wherever it stands.
    const QString payload = m_fixture->nextPayload();
    QVERIFY2(payload.contains(QStringLiteral("\"hint\":\"b]c\"")), qPrintable(payload));
    QVERIFY2(payload.endsWith(QStringLiteral("\n];;\x01-1")), qPrintable(payload));
}

void tst_ManagerLessons::keeps_the_base_name_of_a_lesson_data()
{
    QTest::addColumn<QString>("filename");
    QTest::newRow("resource") << QStringLiteral(":/qml/Tutorial/TutorialStep1.js");
    QTest::newRow("bare") << QStringLiteral("TutorialStep1");
    QTest::newRow("directories only") << QStringLiteral("/some/where/TutorialStep1");
    QTest::newRow("ending only") << QStringLiteral("TutorialStep1.js");
}

void tst_ManagerLessons::keeps_the_base_name_of_a_lesson()
{
    QFETCH(QString, filename);
    QCOMPARE(m_fixture->manager->loadTutorial(filename), QString());
    QCOMPARE(m_fixture->manager->tutorialName(), QStringLiteral("TutorialStep1"));
}

void tst_ManagerLessons::takes_the_texts_by_the_base_name_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("hint");
    QTranslator english;
    QVERIFY(english.load(QStringLiteral(":/translations/en_US.qm")));
    const QString text = english.translate("TutorialStep1", "#2");
    QVERIFY(text.size() > 2);
    QTest::newRow("with ending") << QStringLiteral("TutorialStep1.js") << text;
    QTest::newRow("without ending") << QStringLiteral("TutorialStep1") << text;
    QTest::newRow("one ending is dropped") << QStringLiteral("TutorialStep1.js.js") << QStringLiteral("#2");
}

void tst_ManagerLessons::takes_the_texts_by_the_base_name()
{
    QFETCH(QString, name);
    QFETCH(QString, hint);
    QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"([{"id":1,"translationId":2,"hint":qsTr("#2")}])");
    file.close();
    QCOMPARE(m_fixture->manager->loadTutorial(file.fileName()), QString());
    m_fixture->manager->startFromId();
    const QString payload = m_fixture->nextPayload();
    QVERIFY2(payload.contains(QStringLiteral("\n\"hint\":%1,\n").arg(JsonWrapper::getJsonString(hint))),
             qPrintable(payload));
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

void tst_ManagerLessons::announces_a_lesson_name_before_the_lesson_is_there()
{
    TutorialManager *manager = m_fixture->manager.get();
    QString name;
    connect(manager, &TutorialManager::tutorialNameChanged, manager, [manager, &name] {
        name = manager->tutorialName();
        manager->startFromId();
    });
    QCOMPARE(manager->loadTutorial(QStringLiteral(":/qml/Tutorial/TutorialStep1.js")), QString());
    QCOMPARE(name, QStringLiteral("TutorialStep1"));
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("start\x01var scenario = [\n\n];\x01-1"));
}

void tst_ManagerLessons::gives_one_error_a_line()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("own.js")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(var scenario = [{"name":"a"},{"id":1},2];)");
    file.close();
    QCOMPARE(m_fixture->manager->loadTutorial(file.fileName()),
             QStringLiteral("Item 1 is left out: it is no object with an \"id\"\n"
                            "Item 3 is left out: it is no object with an \"id\""));
    QCOMPARE(m_fixture->manager->tutorialName(), QStringLiteral("own"));
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

void tst_ManagerLessons::saves_no_translations_into_the_program()
{
    LogCapture log;
    QString message;
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "feedbackTranslation",
                                      Q_RETURN_ARG(QString, message)));
    QCOMPARE(message, QStringLiteral("Failed to save translation."));
    const QString start =
        QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");
    const QString path = QStringLiteral("translations/en_US.ts");
    QCOMPARE(log.debugs().mid(0, 3),
             (QStringList{start + QStringLiteral("feedbackTranslation 1779"),
                          start + QStringLiteral("getExistsFilename 1402 \"%1\"").arg(path),
                          start + QStringLiteral("getExistsFilename 1405 \":/%1\"").arg(path)}));
    QCOMPARE(log.warnings().constLast(),
             start + QStringLiteral("saveTranslation 1857 Failed to save \":/%1\"").arg(path));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_ManagerLessons>(argc, argv);
}
#include "tst_ManagerLessons.moc"
