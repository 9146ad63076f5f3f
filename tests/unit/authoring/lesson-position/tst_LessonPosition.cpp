#include <QProcess>
#include <QTest>

/// The program as a person calls it.
class tst_LessonPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
};

void tst_LessonPosition::answers_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    QTest::addColumn<QByteArray>("in");
    const QString tree = QStringLiteral("--tree");
    const QString fixture = QStringLiteral(FIXTURE_DIR);
    const QString window = QStringLiteral("MainWindow");
    QTest::newRow("a position") << QStringList({tree, fixture, window, QStringLiteral("rows"),
                                                QStringLiteral("row"), QStringLiteral("1")})
                                << 0 << QStringLiteral("\"x\":7,\n\"y\":-27,\n") << QString() << QByteArray();
    QTest::newRow("the controls of a window")
        << QStringList({tree, fixture, window}) << 0 << QStringLiteral("tools\nrows\ntabs\nmap\n")
        << QString() << QByteArray();
    QTest::newRow("lines")
        << QStringList({tree, fixture, QStringLiteral("--lines")}) << 0
        << QStringLiteral("\"x\":7, \"y\":-27,\n! the window has no control \"knob\"\ntools rows tabs map\n")
        << QString() << QByteArray("MainWindow rows row 1\nMainWindow knob\nMainWindow");
    QTest::newRow("lines and a window")
        << QStringList({tree, fixture, QStringLiteral("--lines"), window}) << 2 << QString()
        << QStringLiteral("lesson-position: name a window, or give --lines; --help shows how\n")
        << QByteArray();
    QTest::newRow("no window") << QStringList({tree, fixture}) << 2 << QString()
                               << QStringLiteral(
                                      "lesson-position: name a window, or give --lines; --help shows how\n")
                               << QByteArray();
    QTest::newRow("an unknown option")
        << QStringList(QStringLiteral("--perfect")) << 2 << QString()
        << QStringLiteral("lesson-position: Unknown option 'perfect'.\n") << QByteArray();
    QTest::newRow("an unknown control")
        << QStringList({tree, fixture, window, QStringLiteral("knob")}) << 2 << QString()
        << QStringLiteral("lesson-position: the window has no control \"knob\"\n") << QByteArray();
    QTest::newRow("an unknown window")
        << QStringList({tree, fixture, QStringLiteral("Cellar")}) << 2 << QString()
        << QStringLiteral("lesson-position: %1/practice/descriptions describes no window \"Cellar\", only "
                          "MainWindow MapView "
                          "Menu NewProject\n")
               .arg(fixture)
        << QByteArray();
}

void tst_LessonPosition::answers()
{
    QFETCH(QStringList, arguments);
    QProcess process;
    QFETCH(QByteArray, in);
    process.start(QStringLiteral(LESSON_POSITION), arguments);
    process.write(in);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QTEST(QString::fromUtf8(process.readAllStandardError()), "err");
    QTEST(QString::fromUtf8(process.readAllStandardOutput()), "out");
    QTEST(process.exitCode(), "status");
}

QTEST_GUILESS_MAIN(tst_LessonPosition)
#include "tst_LessonPosition.moc"
