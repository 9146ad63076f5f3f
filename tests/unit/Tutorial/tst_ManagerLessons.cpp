#include "ManagerFixture.h"

#include <QSignalSpy>

/// Lessons in the whole manager: their names, how they are handed over, and how they go.
class tst_ManagerLessons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void handsOverFromAnId();
    void announcesALessonNameOnce();
    void unloads();
    void tellsTheHostOfAPositionWithoutAnIndicator();
    void savesNothingWithoutAFile();

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

void tst_ManagerLessons::handsOverFromAnId()
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
}

void tst_ManagerLessons::announcesALessonNameOnce()
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

void tst_ManagerLessons::tellsTheHostOfAPositionWithoutAnIndicator()
{
    QVERIFY(QMetaObject::invokeMethod(m_fixture->manager.get(), "updateIndicatorXyWindowKey",
                                      Q_ARG(int, -9999), Q_ARG(int, 0), Q_ARG(QString, QString())));
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("indicator\x01updateXYWindowKey\x01-9999\x01"
                                                      "0\x01"));
}

void tst_ManagerLessons::savesNothingWithoutAFile()
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
