#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryFile>
#include <QTest>

namespace {

struct Run
{
    int status; ///< -1 after a crash.
    QString output;
    QString errors;
};

/// Runs @p program where there is no display.
Run run(const QString &program, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(name));
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished()) {
        qFatal("%s does not end", qPrintable(program));
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

/// The programs that a person starts by hand: what they offer, they do. They need no display for it.
class tst_CommandLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpIsPrinted_data() { programs(); }
    void helpIsPrinted();
    void versionIsPrinted_data() { programs(); }
    void versionIsPrinted();
    void nothingElseIsOffered_data() { programs(); }
    void nothingElseIsOffered();
    void wordThatIsAValueIsNoOption();
    void testPlaySaysWhatWasSeen_data();
    void testPlaySaysWhatWasSeen();

private:
    static void programs()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("make-patch") << QStringLiteral(MAKE_PATCH)
                                    << QStringList{QStringLiteral("--allow-vanish"),
                                                   QStringLiteral("--chain"), QStringLiteral("--help"),
                                                   QStringLiteral("--output"), QStringLiteral("--version")};
        QTest::newRow("lesson-check")
            << QStringLiteral(LESSON_CHECK)
            << QStringList{QStringLiteral("--complete"), QStringLiteral("--help"),
                           QStringLiteral("--scenarios"), QStringLiteral("--version")};
        QTest::newRow("lesson-position")
            << QStringLiteral(LESSON_POSITION)
            << QStringList{QStringLiteral("--help"), QStringLiteral("--lines"), QStringLiteral("--tree"),
                           QStringLiteral("--version")};
        QTest::newRow("PracticeEditor")
            << QStringLiteral(PRACTICE_PROGRAM)
            << QStringList{QStringLiteral("--broken"),    QStringLiteral("--clock"),
                           QStringLiteral("--companion"), QStringLiteral("--dump-controls"),
                           QStringLiteral("--from"),      QStringLiteral("--help"),
                           QStringLiteral("--key"),       QStringLiteral("--lesson"),
                           QStringLiteral("--locale"),    QStringLiteral("--mistakes"),
                           QStringLiteral("--outcomes"),  QStringLiteral("--pilot"),
                           QStringLiteral("--projects"),  QStringLiteral("--record"),
                           QStringLiteral("--scenario"),  QStringLiteral("--script"),
                           QStringLiteral("--shots"),     QStringLiteral("--test-play"),
                           QStringLiteral("--version"),   QStringLiteral("--way")};
    }
};

void tst_CommandLines::helpIsPrinted()
{
    QFETCH(QString, program);
    QFETCH(QStringList, options);
    for (const char *word : {"--help", "-h"}) {
        const Run result = run(program, {QString::fromLatin1(word)});
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.startsWith(QStringLiteral("Usage: ")), qPrintable(result.output));
        QStringList offered;
        static const QRegularExpression option(QStringLiteral("^  (?:-\\w, )?(--[a-z-]+)"),
                                               QRegularExpression::MultilineOption);
        auto matches = option.globalMatch(result.output);
        while (matches.hasNext()) {
            offered << matches.next().captured(1);
        }
        offered.sort();
        QCOMPARE(offered, options);
    }
}

void tst_CommandLines::versionIsPrinted()
{
    QFETCH(QString, program);
    const Run result = run(program, {QStringLiteral("--version")});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QStringLiteral("%1 %2\n").arg(QString::fromUtf8(QTest::currentDataTag()),
                                                          QStringLiteral(TUTORIAL_VERSION)));
}

void tst_CommandLines::nothingElseIsOffered()
{
    QFETCH(QString, program);
    for (const char *word : {"--help-all", "--no-such-option"}) {
        QStringList arguments{QString::fromLatin1(word)};
        if (program == QStringLiteral(PRACTICE_PROGRAM)) {
            arguments << QStringLiteral("-platform") << QStringLiteral("offscreen");
        }
        const Run result = run(program, arguments);
        QCOMPARE(result.status, 2);
        QCOMPARE(result.output, QString());
        QVERIFY2(result.errors.contains(QString::fromUtf8(QTest::currentDataTag()) + QStringLiteral(": ")) &&
                     result.errors.contains(QString::fromLatin1(word).mid(2)),
                 qPrintable(result.errors));
    }
}

void tst_CommandLines::wordThatIsAValueIsNoOption()
{
    const Run result =
        run(QStringLiteral(PRACTICE_PROGRAM), {QStringLiteral("-platform"), QStringLiteral("offscreen"),
                                               QStringLiteral("--lesson"), QStringLiteral("--help")});
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(QStringLiteral("there is no lesson --help")), qPrintable(result.errors));
    const Run positional =
        run(QStringLiteral(PRACTICE_PROGRAM),
            {QStringLiteral("-platform"), QStringLiteral("offscreen"), QStringLiteral("lesson1")});
    QCOMPARE(positional.status, 2);
    QVERIFY2(positional.errors.contains(QStringLiteral("not \"lesson1\"")), qPrintable(positional.errors));
}

void tst_CommandLines::testPlaySaysWhatWasSeen_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    QTest::newRow("as expected") << QByteArray("new game\ngo on\nexpect switch 1 on\nexpect at 11 11\n") << 0
                                 << QStringLiteral("line 3: ok: expect switch 1 on; seen: on\n"
                                                   "line 4: ok: expect at 11 11; seen: 11 11\n");
    QTest::newRow("otherwise") << QByteArray("new game\ngo on\nexpect map 2\nexpect map 1\n") << 1
                               << QStringLiteral("line 3: FAILED: expect map 2; seen: 1\n");
    QTest::newRow("unreadable") << QByteArray("expect message \"x\n") << 2 << QString();
    QTest::newRow("unknown words") << QByteArray("new game\ndance\n") << 2 << QString();
}

void tst_CommandLines::testPlaySaysWhatWasSeen()
{
    QFETCH(QByteArray, script);
    QFETCH(int, status);
    QFETCH(QString, said);
    QTemporaryFile file;
    QVERIFY(file.open());
    QCOMPARE(file.write(script), qint64(script.size()));
    file.close();
    const Run played =
        run(QStringLiteral(PRACTICE_PROGRAM),
            {QStringLiteral("--test-play"), QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset/step19"),
             QStringLiteral("--script"), file.fileName()});
    QCOMPARE(played.output, said);
    QCOMPARE(played.status, status);
    QCOMPARE(played.errors.isEmpty(), status != 2);
}

QTEST_GUILESS_MAIN(tst_CommandLines)
#include "tst_CommandLines.moc"
