#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kPlayMs = 200000;

} // namespace

/// What a play leaves in the project, and what is said of it.
class tst_PilotOutcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isWhatTheFileSays_data();
    void isWhatTheFileSays();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_PilotOutcome::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkpath(QStringLiteral("scenarios/desk")));
    QVERIFY(folder.mkpath(QStringLiteral("translations")));
    const QDir trials(QStringLiteral(TRIALS));
    for (const char *const file : {"scenarios/desk/NewProject.js", "translations/en_US.ts"}) {
        const QString name = QString::fromLatin1(file);
        QVERIFY(QFile::copy(trials.filePath(name), folder.filePath(name)));
    }
}

void tst_PilotOutcome::isWhatTheFileSays_data()
{
    QTest::addColumn<QByteArray>("outcome");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("as it is to be") << QByteArray(R"({"always": {"data/MapInfos/1/parentId": 0}})") << 0
                                    << QByteArray();
    QTest::newRow("otherwise") << QByteArray(R"({"always": {"data/MapInfos/1/parentId": 7}})") << 1
                               << QByteArray("NewProject (en_US, yes): broken: NewProject.outcome.json: "
                                             "data/MapInfos/1/parentId is to be 7 and is 0\n");
}

void tst_PilotOutcome::isWhatTheFileSays()
{
    QFETCH(QByteArray, outcome);
    QFETCH(int, status);
    QFETCH(QByteArray, said);
    QFile file(m_folder->filePath(QStringLiteral("scenarios/desk/NewProject.outcome.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(outcome);
    file.close();
    QProcess editor;
    editor.start(
        QStringLiteral(PRACTICE_PROGRAM),
        {QStringLiteral("--pilot"), QStringLiteral("--locale=en_US"),
         QStringLiteral("--scenario=") + m_folder->filePath(QStringLiteral("scenarios/desk/NewProject.js")),
         QStringLiteral("--broken=") + m_folder->path()});
    QVERIFY(editor.waitForFinished(kPlayMs));
    const QByteArray errors = editor.readAllStandardError();
    QCOMPARE(editor.exitCode(), status);
    QVERIFY2(said.isEmpty() ? !errors.contains("broken") : errors.contains(said), errors.constData());
}

QTEST_GUILESS_MAIN(tst_PilotOutcome)
#include "tst_PilotOutcome.moc"
