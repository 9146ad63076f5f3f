#include "CompanionWindowsTest.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

constexpr int kTicksToRebuild = 30;

} // namespace

/// When the program's windows are on the screen, and that they leave the focus alone.
class tst_CompanionVisibility : public CompanionWindowsTest
{
    Q_OBJECT

private Q_SLOTS:
    void focusStaysInTheHostEditor();
    void shortAbsenceKeepsTheWindows();
    void longAbsenceRebuildsTheWindows();
    void hostThatWasNeverHiddenMayShowItself();
    void nothingIsShownBeforeTheStart();
    void logWindowShowsNothing();
    void tooltipFadesStepByStep();
};

void tst_CompanionVisibility::focusStaysInTheHostEditor()
{
    const auto verifyFocus = [this] {
        // A heartbeat lies between: whoever wanted the focus has had a second to take it.
        QVERIFY(waitForBeats(2));
        QCOMPARE(XWindows::activeWindow(), m_below->winId());
        QVERIFY(m_below->isActiveWindow());
    };
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    verifyFocus();
    m_host->send({QStringLiteral("start")});
    QTRY_VERIFY_WITH_TIMEOUT(!overlays().isEmpty(), kSoonMs);
    verifyFocus();
    update(400, 300, QStringLiteral("Hint"), kNext | kYesNo | kArrow);
    m_host->send(
        {QStringLiteral("showTooltip"), QStringLiteral("Tip"), QStringLiteral("700"), QStringLiteral("600")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    verifyFocus();
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    verifyFocus();
}

void tst_CompanionVisibility::shortAbsenceKeepsTheWindows()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    const QStringList places = XWindows::placesOf(overlays());
    const QRegularExpression line(QStringLiteral("TutorialManager::timerEvent 427 (\\d+)\\n"));
    QStringList ids;
    int ticks = kTicksToRebuild;
    // The program says itself how long the host editor was away; what a slow machine drew out is not short.
    for (int absence = 1; absence <= 20 && ticks >= kTicksToRebuild; ++absence) {
        ids = idsOf(overlays());
        const int logged = m_host->log().size();
        m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
        QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
        m_host->send({QStringLiteral("state"), QStringLiteral("show")});
        // The next "show" within ten ticks would be none.
        QVERIFY(FakeHost::waitFor([&] {
            return m_host->log().mid(logged).contains(QLatin1String("m_logHideIgnoreTimeout now 0\n"));
        }));
        const QRegularExpressionMatch match = line.match(m_host->log(), logged);
        QVERIFY(match.hasMatch());
        ticks = match.captured(1).toInt();
        QTRY_COMPARE_WITH_TIMEOUT(XWindows::placesOf(overlays()), places, kSoonMs);
    }
    QVERIFY2(ticks < kTicksToRebuild, qPrintable(QString::number(ticks)));
    QCOMPARE(idsOf(overlays()), ids);
}

void tst_CompanionVisibility::longAbsenceRebuildsTheWindows()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow, 0);
    m_host->send(
        {QStringLiteral("showTooltip"), QStringLiteral("Tip"), QStringLiteral("700"), QStringLiteral("600")});
    verifyBubbleAt({397, 297});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    const QStringList ids = idsOf(overlays());
    const QStringList places = XWindows::placesOf(overlays());
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    // A heartbeat is ten ticks: between the first of four and the last lie thirty.
    QVERIFY(waitForBeats(4));
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    const QRegularExpression line(QStringLiteral("TutorialManager::timerEvent 427 (\\d+)\\n"));
    QVERIFY(FakeHost::waitFor([&] { return line.match(m_host->log()).hasMatch(); }));
    const int ticks = line.match(m_host->log()).captured(1).toInt();
    QVERIFY2(ticks >= kTicksToRebuild, qPrintable(QString::number(ticks)));
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::placesOf(overlays()), places, kSoonMs);
    const QStringList rebuilt = idsOf(overlays());
    for (const QString &id : rebuilt) {
        QVERIFY(!ids.contains(id));
    }
    verifyBubbleAt({397, 297});
    QCOMPARE(lastDifference({397 + 128, 297, 48, 56}, picture(QStringLiteral("click")), {}), QString());
}

void tst_CompanionVisibility::hostThatWasNeverHiddenMayShowItself()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    const QStringList ids = idsOf(overlays());
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QVERIFY(m_host->waitForLog(QStringLiteral("m_logHideIgnoreTimeout now 0")));
    QTRY_COMPARE_WITH_TIMEOUT(idsOf(overlays()), ids, kSoonMs);
    verifyBubbleAt({397, 297});
}

void tst_CompanionVisibility::nothingIsShownBeforeTheStart()
{
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    for (int round = 0; round < 5; ++round) {
        update(400, 300, QStringLiteral("Hint"), kNext | kYesNo | kArrow);
        QVERIFY(m_host->sync());
    }
    QVERIFY(waitForBeats(2));
    QCOMPARE(XWindows::placesOf(overlays()), QStringList());
    QCOMPARE(XWindows::activeWindow(), m_below->winId());
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 5, kSoonMs);
}

void tst_CompanionVisibility::logWindowShowsNothing()
{
    // Window managers that keep windows on the screen move it into the corner.
    WindowBelow corner;
    corner.setWindowFlag(Qt::FramelessWindowHint);
    corner.setGeometry(0, 0, 60, 30);
    corner.show();
    QTRY_COMPARE_WITH_TIMEOUT(difference(corner.geometry(), QImage(), {}), QString(), kSoonMs);
    m_host->send({QStringLiteral("start")});
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::placesOf(overlays()), QStringList(QStringLiteral("1x1 at 0,0")),
                              kSoonMs);
    QVERIFY(waitForBeats(2));
    QCOMPARE(difference(corner.geometry(), QImage(), {}), QString());
}

// Nothing but the tooltip is there, so nothing else makes the program talk to the X server.
void tst_CompanionVisibility::tooltipFadesStepByStep()
{
    constexpr int kSteps = 25;
    const QStringList show{QStringLiteral("showTooltip"), QStringLiteral("Fading"), QStringLiteral("700"),
                           QStringLiteral("600")};
    m_host->send(show);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 1, kSoonMs);
    const QString id = overlays(kTooltip).constFirst().id;
    const QString opacity = QStringLiteral("_NET_WM_WINDOW_OPACITY");
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::property(id, opacity), QStringLiteral("4294967295"), kSoonMs);
    m_host->send({QStringLiteral("hideTooltip")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 0, kSoonMs);

    // The X server stamps each change, so it does not matter when xev gets to read of it.
    QProcess xev;
    xev.start(QStringLiteral("stdbuf"), {QStringLiteral("-oL"), QStringLiteral("xev"), QStringLiteral("-id"),
                                         id, QStringLiteral("-event"), QStringLiteral("property")});
    QByteArray seen;
    const auto read = [&xev, &seen] {
        seen += xev.readAllStandardOutput();
        return QString::fromLatin1(seen);
    };
    const auto isWatching = [&] {
        XWindows::run(QStringLiteral("xprop"),
                      {QStringLiteral("-id"), id, QStringLiteral("-f"), QStringLiteral("_WATCHED"),
                       QStringLiteral("8s"), QStringLiteral("-set"), QStringLiteral("_WATCHED"),
                       QStringLiteral("yes")});
        return read().contains(QStringLiteral("_WATCHED"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWatching(), kSoonMs);
    const auto changes = [&] {
        const QRegularExpression line(opacity + QStringLiteral("\\), time (\\d+)"));
        QRegularExpressionMatchIterator matches = line.globalMatch(read());
        QStringList times;
        while (matches.hasNext()) {
            times += matches.next().captured(1);
        }
        return times;
    };
    const auto moments = [](const QStringList &times) {
        return QSet<QString>(times.cbegin(), times.cend()).size();
    };
    int fadeIn = 0;
    int fadeOut = 0;
    // An X server that stands still gets to see many steps at one moment; a program that keeps them back
    // makes it so each time.
    for (int round = 0; round < 5 && qMin(fadeIn, fadeOut) <= kSteps / 2; ++round) {
        const int before = changes().size() + (round == 0 ? 1 : 0); // from the opacity of the first to none
        m_host->send(show);
        QVERIFY(FakeHost::waitFor([&] { return changes().size() >= before + 2 * kSteps; }));
        const QStringList times = changes();
        QCOMPARE(times.size(), before + 2 * kSteps);
        fadeIn = moments(times.mid(before, kSteps));
        fadeOut = moments(times.mid(before + kSteps));
    }
    QVERIFY2(qMin(fadeIn, fadeOut) > kSteps / 2, qPrintable(changes().join(QLatin1Char(' '))));
    QCOMPARE(XWindows::opacitySteps(id), 0);
    QCOMPARE(overlays(kTooltip).size(), 1);
    xev.kill();
    xev.waitForFinished();
}

QTEST_MAIN(tst_CompanionVisibility)
#include "tst_CompanionVisibility.moc"
