#include "FakeEditor.h"
#include "author/ScenarioPlayer.h"
#include "host/LessonSession.h"

#include <QFile>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kSoonMs = 10000;

QByteArray scenarioOf(const QByteArray &secondCondition)
{
    return "var scenario = [{\"id\":4,\"hint\":qsTr(\"#1\"),\"condition\":\"click,\"},{\"id\":7,\"hint\":"
           "qsTr(\"#2\"),\"condition\":\"" +
           secondCondition + "\"}];";
}

QByteArray catalogueOf(const QByteArray &second)
{
    return "<TS><context><name>Harbor</name><message><source>#1</source><translation>one</translation></"
           "message>"
           "<message><source>#2</source><translation>" +
           second + "</translation></message></context></TS>";
}

} // namespace

/// The lesson of a file on disk, and what becomes of it when the files change.
class tst_ScenarioPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void beginsWhenTheCompanionIsThere();
    void beginsAtTheStepThatIsAskedFor();
    void staysAtTheStepWhenAFileChanges_data();
    void staysAtTheStepWhenAFileChanges();
    void aBrokenFileChangesNothing();
    void beginsByItselfOnceOnly();
    void beginsAgainAndGoesOn();
    void aFileThatCannotBeReadIsRefused();

private:
    void write(const QString &name, const QByteArray &contents);
    void begin(int step);
    [[nodiscard]] const Step &step() const { return m_session->runner().step(); }

    std::unique_ptr<QTemporaryDir> m_room;
    std::unique_ptr<FakeEditor> m_editor;
    std::unique_ptr<LessonSession> m_session;
    std::unique_ptr<ScenarioPlayer> m_player;
    QStringList m_problems;
};

void tst_ScenarioPlayer::init()
{
    m_room = std::make_unique<QTemporaryDir>();
    m_editor = std::make_unique<FakeEditor>();
    m_session = std::make_unique<LessonSession>(m_editor.get());
    m_problems.clear();
    write(QStringLiteral("Harbor.js"), scenarioOf("list,2"));
    write(QStringLiteral("Harbor.en_US.ts"), catalogueOf("two"));
}

void tst_ScenarioPlayer::cleanup()
{
    m_player.reset();
    m_session.reset();
    m_editor.reset();
}

void tst_ScenarioPlayer::write(const QString &name, const QByteArray &contents)
{
    // As most editors do it: the file is another one then.
    QSaveFile file(m_room->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(contents), qint64(contents.size()));
    QVERIFY(file.commit());
}

void tst_ScenarioPlayer::begin(int step)
{
    const ScenarioFile file(m_room->filePath(QStringLiteral("Harbor.js")), QStringLiteral("en_US"));
    m_player = std::make_unique<ScenarioPlayer>(file, step, m_session.get());
    connect(m_player.get(), &ScenarioPlayer::problemFound, this,
            [this](const QString &problem) { m_problems += problem; });
    m_session->receive(QStringLiteral("tutorialList\u0001[]"));
    QVERIFY(m_session->runner().isRunning());
}

void tst_ScenarioPlayer::beginsWhenTheCompanionIsThere()
{
    begin(-1);
    QCOMPARE(m_session->lessonName(), QStringLiteral("Harbor"));
    QCOMPARE(step().id, 4);
    QCOMPARE(step().hint, QStringLiteral("one"));
    QCOMPARE(m_problems, QStringList());
}

void tst_ScenarioPlayer::beginsAtTheStepThatIsAskedFor()
{
    begin(7);
    QCOMPARE(step().hint, QStringLiteral("two"));
}

void tst_ScenarioPlayer::staysAtTheStepWhenAFileChanges_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("scenario") << QStringLiteral("Harbor.js") << scenarioOf("list,3");
    QTest::newRow("texts") << QStringLiteral("Harbor.en_US.ts") << catalogueOf("three");
}

void tst_ScenarioPlayer::staysAtTheStepWhenAFileChanges()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, contents);
    begin(-1);
    m_session->receive(QStringLiteral("next"));
    QCOMPARE(step().id, 7);
    const QSignalSpy reloads(m_player.get(), &ScenarioPlayer::reloaded);
    const QString before = step().conditionText + step().hint;
    write(file, contents);
    QTRY_COMPARE_WITH_TIMEOUT(reloads.size(), 1, kSoonMs);
    QCOMPARE(step().id, 7);
    QVERIFY(step().conditionText + step().hint != before);
    // And once more: it goes on being watched.
    write(file, contents + '\n');
    QTRY_COMPARE_WITH_TIMEOUT(reloads.size(), 2, kSoonMs);
    QCOMPARE(m_problems, QStringList());
}

void tst_ScenarioPlayer::aBrokenFileChangesNothing()
{
    begin(7);
    write(QStringLiteral("Harbor.js"), "var scenario = [{");
    QTRY_VERIFY_WITH_TIMEOUT(!m_problems.isEmpty(), kSoonMs);
    QCOMPARE(step().id, 7);
    QCOMPARE(step().conditionText, QStringLiteral("list,2"));
    write(QStringLiteral("Harbor.js"), scenarioOf("list,5"));
    QTRY_COMPARE_WITH_TIMEOUT(step().conditionText, QStringLiteral("list,5"), kSoonMs);
}

void tst_ScenarioPlayer::beginsByItselfOnceOnly()
{
    begin(-1);
    m_session->stop();
    m_session->receive(QStringLiteral("tutorialList\u0001[]")); // a companion that was started again
    QVERIFY(!m_session->runner().isRunning());
}

void tst_ScenarioPlayer::beginsAgainAndGoesOn()
{
    begin(7);
    m_player->begin();
    QCOMPARE(step().id, 4);
    m_session->receive(QStringLiteral("next"));
    QCOMPARE(step().id, 7);
    m_session->stop();
    m_player->goOn();
    QCOMPARE(step().id, 7);
}

void tst_ScenarioPlayer::aFileThatCannotBeReadIsRefused()
{
    begin(-1);
    QSignalSpy refused(m_session.get(), &LessonSession::refused);
    QVERIFY(QFile::remove(m_room->filePath(QStringLiteral("Harbor.js"))));
    m_player->begin();
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.constFirst().constFirst().toString(), QStringLiteral("Harbor"));
    QVERIFY(!m_session->runner().isRunning());
    QVERIFY(!m_problems.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ScenarioPlayer)
#include "tst_ScenarioPlayer.moc"
