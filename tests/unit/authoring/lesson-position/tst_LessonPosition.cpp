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
    const QString tree = QStringLiteral("--tree");
    const QString fixture = QStringLiteral(FIXTURE_DIR);
    const QString window = QStringLiteral("MainWindow");
    QTest::newRow("a position") << QStringList({tree, fixture, window, QStringLiteral("rows"),
                                                QStringLiteral("row"), QStringLiteral("1")})
                                << 0 << QStringLiteral("\"x\":7,\n\"y\":-27,\n") << QString();
    QTest::newRow("the controls of a window") << QStringList({tree, fixture, window}) << 0
                                              << QStringLiteral("tools\nrows\ntabs\nmap\n") << QString();
    QTest::newRow("no window") << QStringList({tree, fixture}) << 2 << QString()
                               << QStringLiteral("lesson-position: name a window; --help shows how\n");
    QTest::newRow("an unknown option") << QStringList(QStringLiteral("--perfect")) << 2 << QString()
                                       << QStringLiteral("lesson-position: Unknown option 'perfect'.\n");
    QTest::newRow("an unknown control")
        << QStringList({tree, fixture, window, QStringLiteral("knob")}) << 2 << QString()
        << QStringLiteral("lesson-position: the window has no control \"knob\"\n");
    QTest::newRow("an unknown window")
        << QStringList({tree, fixture, QStringLiteral("Cellar")}) << 2 << QString()
        << QStringLiteral("lesson-position: %1/practice/descriptions describes no window \"Cellar\", only "
                          "MainWindow MapView "
                          "Menu NewProject\n")
               .arg(fixture);
}

void tst_LessonPosition::answers()
{
    QFETCH(QStringList, arguments);
    QProcess process;
    process.start(QStringLiteral(LESSON_POSITION), arguments);
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QTEST(QString::fromUtf8(process.readAllStandardError()), "err");
    QTEST(QString::fromUtf8(process.readAllStandardOutput()), "out");
    QTEST(process.exitCode(), "status");
}

QTEST_GUILESS_MAIN(tst_LessonPosition)
#include "tst_LessonPosition.moc"
