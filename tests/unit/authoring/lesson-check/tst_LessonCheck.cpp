#include <QProcess>
#include <QTest>

namespace {

struct Run
{
    int status = -1;
    QString out;
    QString err;
};

Run run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(LESSON_CHECK), arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

/// The program as a person calls it.
class tst_LessonCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysThatNothingIsWrong();
    void saysHowMuchIsWrong();
    void showsItsOptions();
    void refusesOtherCommandLines_data();
    void refusesOtherCommandLines();
};

void tst_LessonCheck::saysThatNothingIsWrong()
{
    const Run checked = run({QStringLiteral(FIXTURE_DIR)});
    QCOMPARE(checked.status, 0);
    QCOMPARE(checked.out.split(QLatin1Char('\n')),
             QStringList(
                 {QStringLiteral("resource/qml/Tutorial/TutorialList.js:3: TutorialStep2: note: the lesson "
                                 "has no scenario file yet"),
                  QStringLiteral("no findings"), QString()}));
    QCOMPARE(checked.err, QString());
}

void tst_LessonCheck::saysHowMuchIsWrong()
{
    const Run checked = run({QStringLiteral("--complete"), QStringLiteral(FIXTURE_DIR)});
    QCOMPARE(checked.status, 1);
    QCOMPARE(checked.out.split(QLatin1Char('\n')),
             QStringList(
                 {QStringLiteral("resource/qml/Tutorial/TutorialList.js:3: TutorialStep2: the lesson has no "
                                 "scenario file yet"),
                  QStringLiteral("1 finding"), QString()}));
}

void tst_LessonCheck::showsItsOptions()
{
    const Run checked = run({QStringLiteral("--help")});
    QCOMPARE(checked.status, 0);
    QVERIFY2(checked.out.contains(QLatin1String("--complete")), qPrintable(checked.out));
}

void tst_LessonCheck::refusesOtherCommandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown option") << QStringList(QStringLiteral("--perfect"))
                                    << QStringLiteral("lesson-check: Unknown option 'perfect'.");
    QTest::newRow("two directories") << QStringList(
                                            {QStringLiteral(FIXTURE_DIR), QStringLiteral(FIXTURE_DIR)})
                                     << QStringLiteral("lesson-check: One directory at most.");
    QTest::newRow("directory without lessons")
        << QStringList(QStringLiteral("/"))
        << QStringLiteral(
               "lesson-check: / has no resource/qml/Tutorial/TutorialList.js; name the source tree");
}

void tst_LessonCheck::refusesOtherCommandLines()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Run checked = run(arguments);
    QCOMPARE(checked.status, 2);
    QCOMPARE(checked.out, QString());
    QCOMPARE(checked.err.section(QLatin1Char('\n'), 0, 0), message);
}

QTEST_GUILESS_MAIN(tst_LessonCheck)
#include "tst_LessonCheck.moc"
