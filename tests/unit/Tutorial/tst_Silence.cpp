#include "Tutorial/TutorialManager.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimerEvent>

namespace {

// The end of the companion is the end of its process, so each row has a process of its own: this program,
// called with a key, this word, and what is to happen to the manager: a number of ticks, or "heard" for bytes
// that arrive.
constexpr const char *kTickWord = "--tick";
constexpr const char *kHeardWord = "heard";
constexpr int kStillAlive = 7;

int runTicks(int argc, char **argv)
{
    QApplication application(argc, argv);
    TutorialManager manager; // nobody listens
    for (int i = 3; i < argc; ++i) {
        if (qstrcmp(argv[i], kHeardWord) == 0) {
            manager.onReadyRead();
            continue;
        }
        for (int tick = QByteArray(argv[i]).toInt(); tick > 0; --tick) {
            QTimerEvent event(0);
            QCoreApplication::sendEvent(&manager, &event);
        }
    }
    return kStillAlive;
}

} // namespace

/// The silence limit and the heartbeat of the whole manager, without waiting for either.
class tst_Silence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsTheProcessAtThe300thSilentTick_data();
    void endsTheProcessAtThe300thSilentTick();
};

void tst_Silence::endsTheProcessAtThe300thSilentTick_data()
{
    QTest::addColumn<QStringList>("happenings");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("heartbeats");
    const QString heard = QString::fromLatin1(kHeardWord);
    const auto ticks = [](int count) {
        return QString::number(count);
    };
    QTest::newRow("9 ticks") << QStringList{ticks(9)} << kStillAlive << 0;
    QTest::newRow("10 ticks") << QStringList{ticks(10)} << kStillAlive << 1;
    QTest::newRow("299 ticks") << QStringList{ticks(299)} << kStillAlive << 29;
    QTest::newRow("300 ticks") << QStringList{ticks(300)} << 0 << 29;
    QTest::newRow("bytes, and 299 ticks again")
        << QStringList{ticks(299), heard, ticks(299)} << kStillAlive << 59;
    QTest::newRow("bytes, and 300 ticks") << QStringList{ticks(299), heard, ticks(300)} << 0 << 59;
}

void tst_Silence::endsTheProcessAtThe300thSilentTick()
{
    QFETCH(QStringList, happenings);
    QFETCH(int, status);
    QFETCH(int, heartbeats);
    const QTemporaryDir settings;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    const QStringList arguments{settings.path().section(QLatin1Char('/'), -1),
                                QString::fromLatin1(kTickWord)};
    process.start(QCoreApplication::applicationFilePath(), arguments + happenings);
    QVERIFY(process.waitForFinished());
    const QByteArray log = process.readAllStandardError();
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == status, log.constData());
    QCOMPARE(log.count("TutorialManager::send 1396 \"alive\""), heartbeats);
    QCOMPARE(log.count("TutorialManager::requestClose 1535"), status == 0 ? 1 : 0);
}

int main(int argc, char **argv)
{
    if (argc > 3 && qstrcmp(argv[2], kTickWord) == 0) {
        return runTicks(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    tst_Silence test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_Silence.moc"
