#include "FakeHost.h"
#include "XWindows.h"

#include <QtTest>

namespace {

constexpr int kSoonMs = 30000;
constexpr QSize kBubble{640, 480};
const auto kSource = QStringLiteral("..\\..\\tutorial\\main main 98 ");

} // namespace

/// In a Wayland session: the program takes its X11 side, where its windows can be placed.
class tst_WaylandSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bubbleStandsWhereItShould();
    void logSaysSoInOneLine();
    void whatTheEnvironmentNamesIsTaken();
    void practiceEditorTakesX11Too();

private:
    void begin();
    QVector<XWindows::Window> windows() { return XWindows::mapped(m_host->process().processId(), kBubble); }

    std::unique_ptr<FakeHost> m_host;
};

void tst_WaylandSession::init()
{
    // Without them Qt takes X11 anyway, and nothing here would be tested.
    QVERIFY(qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
    QCOMPARE(qgetenv("XDG_SESSION_TYPE"), QByteArray("wayland"));
    QVERIFY(!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
    m_host = std::make_unique<FakeHost>();
}

void tst_WaylandSession::begin()
{
    QVERIFY(m_host->start());
    m_host->answerHeartbeats();
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
    m_host->send({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("400"),
                  QStringLiteral("300"), QStringLiteral("MainWindow"), QString(), QStringLiteral("3"),
                  QStringLiteral("6")});
}

void tst_WaylandSession::bubbleStandsWhereItShould()
{
    begin();
    QTRY_COMPARE_WITH_TIMEOUT(windows().size(), 1, kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(windows().value(0).rect.topLeft(), QPoint(397, 297), kSoonMs);
    m_host->send({QStringLiteral("indicator"), QStringLiteral("updateXy"), QStringLiteral("300"),
                  QStringLiteral("200")});
    QTRY_COMPARE_WITH_TIMEOUT(windows().value(0).rect.topLeft(), QPoint(300, 200), kSoonMs);
    // Also where most of it is beyond the screen, and when it comes back.
    m_host->send({QStringLiteral("indicator"), QStringLiteral("updateXy"), QStringLiteral("400"),
                  QStringLiteral("800")});
    QTRY_COMPARE_WITH_TIMEOUT(windows().value(0).rect.topLeft(), QPoint(397, 797), kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(windows().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(windows().size(), 1, kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(windows().value(0).rect.topLeft(), QPoint(397, 797), kSoonMs);
}

void tst_WaylandSession::logSaysSoInOneLine()
{
    begin();
    QVERIFY(m_host->waitForLog(kSource));
    QVERIFY(m_host->sync());
    const QStringList lines = m_host->log().split(QLatin1Char('\n')).filter(QStringLiteral("Wayland"));
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.constFirst().startsWith(kSource), qPrintable(lines.constFirst()));
    QVERIFY2(lines.constFirst().contains(QStringLiteral("X11")), qPrintable(lines.constFirst()));
}

void tst_WaylandSession::whatTheEnvironmentNamesIsTaken()
{
    QProcessEnvironment environment = m_host->process().processEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    m_host->process().setProcessEnvironment(environment);
    begin();
    QVERIFY(m_host->sync());
    QVERIFY(!m_host->log().contains(kSource));
    QCOMPARE(windows().size(), 0);
}

void tst_WaylandSession::practiceEditorTakesX11Too()
{
    QProcess editor;
    editor.setProcessChannelMode(QProcess::MergedChannels);
    editor.start(QStringLiteral(PRACTICE_PROGRAM), {QStringLiteral("--locale"), QStringLiteral("en_US")});
    // The window manager takes a new window away for a moment to put it into its frame.
    bool isSeen = false;
    const auto comesUp = [&] {
        isSeen = isSeen || !XWindows::mapped(editor.processId()).isEmpty();
        return isSeen;
    };
    QTRY_VERIFY_WITH_TIMEOUT(comesUp(), kSoonMs);
    editor.terminate();
    QVERIFY(editor.waitForFinished(kSoonMs));
    const QString said = QString::fromLocal8Bit(editor.readAll());
    QVERIFY2(said.contains(QStringLiteral("PracticeEditor: A Wayland session")), qPrintable(said));
}

QTEST_GUILESS_MAIN(tst_WaylandSession)
#include "tst_WaylandSession.moc"
