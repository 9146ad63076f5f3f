#include "LogCapture.h"
#include "ManagerFixture.h"

namespace {

const QString kPath = QStringLiteral(":/qml/Tutorial/TutorialList.js");
const QString kWarning = QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp "
                                        "TutorialManager::getTutorialJson ");

} // namespace

/// What the manager makes of a list of lessons that cannot be read, or not all of it.
class tst_LessonList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aListThatIsNotThereIsEmpty();
    void aListThatCannotBeReadOnIsGivenAsItStands();

private:
    std::unique_ptr<ManagerFixture> m_fixture;
};

void tst_LessonList::init()
{
    // Both bundles are there from the start and have the same path.
    Q_CLEANUP_RESOURCE(scenarios);
    Q_CLEANUP_RESOURCE(broken_list);
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
}

void tst_LessonList::cleanup()
{
    m_fixture.reset();
    deleteOverlays();
    Q_INIT_RESOURCE(broken_list);
    Q_INIT_RESOURCE(scenarios);
}

void tst_LessonList::aListThatIsNotThereIsEmpty()
{
    LogCapture log;
    QString list = QStringLiteral("not called");
    QVERIFY(
        QMetaObject::invokeMethod(m_fixture->manager.get(), "getTutorialJson", Q_RETURN_ARG(QString, list)));
    QCOMPARE(list, QString());
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY2(log.warnings().constFirst().contains(
                 QStringLiteral("DataSupport::readFile 133 Failed to open \"%1\"").arg(kPath)),
             qPrintable(log.warnings().constFirst()));
    QCOMPARE(log.warnings().constLast(), kWarning + QStringLiteral("1421 Failed to load \"%1\"").arg(kPath));
    // The host editor is answered all the same.
    m_fixture->receive({QStringLiteral("tutorialList")});
    QCOMPARE(m_fixture->nextPayload(), QStringLiteral("tutorialList\x01"));
}

void tst_LessonList::aListThatCannotBeReadOnIsGivenAsItStands()
{
    Q_INIT_RESOURCE(broken_list);
    const QString unread = QStringLiteral("qsTr(\"#2}\n]\n");
    LogCapture log;
    QCOMPARE(m_fixture->manager->getTutorialJson(),
             QStringLiteral("[\n\t{\"filename\":\"TutorialStep1\",\"title\":\"Your first map\"},\n"
                            "\t{\"filename\":\"TutorialStep2\",\"title\":") +
                 unread);
    const QString errors = QStringLiteral(R"x(("not matched qsTr(\"...\"): qsTr(\"#2}\n]\n"))x");
    QCOMPARE(log.warnings(), QStringList{kWarning + QStringLiteral("1447 ") + errors});
}

int main(int argc, char **argv)
{
    return runWithKey<tst_LessonList>(argc, argv);
}
#include "tst_LessonList.moc"
