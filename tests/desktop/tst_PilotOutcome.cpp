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
    void isWhatTheScriptSees_data();
    void isWhatTheScriptSees();

private:
    void write(const QString &name, const QByteArray &text);
    /// Plays the scenario; the exit status, and what was said.
    void play(const QStringList &options, int *status, QByteArray *errors);

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
    write(QStringLiteral("scenarios/desk/NewProject.outcome.json"), outcome);
    int seen = -1;
    QByteArray errors;
    play({}, &seen, &errors);
    QCOMPARE(seen, status);
    QVERIFY2(said.isEmpty() ? !errors.contains("broken") : errors.contains(said), errors.constData());
}

void tst_PilotOutcome::isWhatTheScriptSees_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("as it is to be") << QByteArray("new game\nexpect map 1\n") << 0 << QByteArray();
    QTest::newRow("otherwise") << QByteArray("# Nobody is there.\nnew game\nexpect map 7\n") << 1
                               << QByteArray(
                                      "NewProject (en_US, yes): broken: NewProject.play, line 3: FAILED: "
                                      "expect map 7; seen: 1\n");
    QTest::newRow("unreadable") << QByteArray("dance\n") << 1
                                << QByteArray(
                                       "NewProject (en_US, yes): broken: NewProject.play, line 1: nobody "
                                       "knows what to do: dance\n");
}

void tst_PilotOutcome::isWhatTheScriptSees()
{
    QFETCH(QByteArray, script);
    QFETCH(int, status);
    QFETCH(QByteArray, said);
    write(QStringLiteral("NewProject.play"), script);
    const QString projects = m_folder->filePath(QStringLiteral("projects"));
    int seen = -1;
    QByteArray errors;
    play({QStringLiteral("--outcomes=") + m_folder->path(), QStringLiteral("--projects=") + projects}, &seen,
         &errors);
    QCOMPARE(seen, status);
    QVERIFY2(said.isEmpty() ? !errors.contains("broken") : errors.contains(said), errors.constData());
    // Somebody wants the project.
    QCOMPARE(QDir(projects).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

void tst_PilotOutcome::write(const QString &name, const QByteArray &text)
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void tst_PilotOutcome::play(const QStringList &options, int *status, QByteArray *errors)
{
    const QString scenario = m_folder->filePath(QStringLiteral("scenarios/desk/NewProject.js"));
    QProcess editor;
    editor.start(QStringLiteral(PRACTICE_PROGRAM),
                 QStringList{QStringLiteral("--pilot"), QStringLiteral("--locale=en_US"),
                             QStringLiteral("--scenario=") + scenario,
                             QStringLiteral("--broken=") + m_folder->path()} +
                     options);
    QVERIFY(editor.waitForFinished(kPlayMs));
    *errors = editor.readAllStandardError();
    *status = editor.exitCode();
}

QTEST_GUILESS_MAIN(tst_PilotOutcome)
#include "tst_PilotOutcome.moc"
