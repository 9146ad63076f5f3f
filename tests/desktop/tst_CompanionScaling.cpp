#include "FakeHost.h"
#include "XWindows.h"

#include <QtTest>

namespace {

constexpr int kSoonMs = 30000;

void announceResolution(const QString &dotsPerInch)
{
    const QString name = QStringLiteral("RESOURCE_MANAGER");
    if (dotsPerInch.isEmpty()) {
        XWindows::run(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("-remove"), name});
        return;
    }
    XWindows::run(QStringLiteral("xprop"),
                  {QStringLiteral("-root"), QStringLiteral("-f"), name, QStringLiteral("8s"),
                   QStringLiteral("-set"), name, QStringLiteral("Xft.dpi:\t%1\n").arg(dotsPerInch)});
}

} // namespace

/// A desktop may ask Qt to draw everything larger. The host editor tells places in the screen's own pixels,
/// and the program keeps to them.
class tst_CompanionScaling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void windowsStandAtThePixelsThatTheHostNames_data();
    void windowsStandAtThePixelsThatTheHostNames();
};

void tst_CompanionScaling::cleanup()
{
    announceResolution({});
}

void tst_CompanionScaling::windowsStandAtThePixelsThatTheHostNames_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::newRow("no scaling") << QString() << QString();
    QTest::newRow("one and a half") << QStringLiteral("QT_SCALE_FACTOR") << QStringLiteral("1.5");
    QTest::newRow("twice") << QStringLiteral("QT_SCALE_FACTOR") << QStringLiteral("2");
    QTest::newRow("the screen, one and a half")
        << QStringLiteral("QT_SCREEN_SCALE_FACTORS") << QStringLiteral("1.5");
    QTest::newRow("the screen, twice") << QStringLiteral("QT_SCREEN_SCALE_FACTORS") << QStringLiteral("2");
    // By the resolution, which is announced to be twice the usual.
    QTest::newRow("by itself") << QStringLiteral("QT_AUTO_SCREEN_SCALE_FACTOR") << QStringLiteral("1");
    QTest::newRow("by the present switch")
        << QStringLiteral("QT_ENABLE_HIGHDPI_SCALING") << QStringLiteral("1");
}

void tst_CompanionScaling::windowsStandAtThePixelsThatTheHostNames()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    FakeHost host;
    if (!variable.isEmpty()) {
        QProcessEnvironment environment = host.process().processEnvironment();
        environment.insert(variable, value);
        host.process().setProcessEnvironment(environment);
    }
    if (value == QLatin1String("1")) {
        announceResolution(QStringLiteral("192"));
    }
    QVERIFY(host.start());
    host.answerHeartbeats();
    host.send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    host.send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
               QStringLiteral("960")});
    host.send({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("400"),
               QStringLiteral("300"), QStringLiteral("MainWindow"), QString(), QStringLiteral("3"),
               QStringLiteral("6")});
    const QStringList places{QStringLiteral("1x1 at 0,0"), QStringLiteral("640x480 at 397,297"),
                             QStringLiteral("64x32 at 525,417"), QStringLiteral("64x32 at 525,417"),
                             QStringLiteral("64x32 at 581,417")};
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::placesOf(XWindows::mapped(host.process().processId())), places,
                              kSoonMs);
    host.disconnectLink();
    QVERIFY(host.waitForEnd());
}

QTEST_GUILESS_MAIN(tst_CompanionScaling)
#include "tst_CompanionScaling.moc"
