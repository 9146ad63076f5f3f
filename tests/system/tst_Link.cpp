#include "FakeHost.h"

#include <QRandomGenerator>
#include <QTest>

/// Frames on the wire, in both directions.
class tst_Link : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsTheCommandsOfOnePayloadInOrder();
    void runsTwoFramesOfOneReadInOrder();
    void sendsAliveEachSecond();
    void framesItsAnswers();
    void countsBytesInTheLengthOfAnAnswer();
    void dropsWhatStandsBehindByeAndStays();
    void keepsReportingAnInvalidHeader();
    void recoversAfterAnInvalidPayloadSize();
    void recoversAfterAMissingTerminator();
    void logs128CharactersOfWhatItSendsAndSendsAll();
    void waitsForNoHostThatStopsReading();
    void takesNoMemoryAheadOfAHugeLength();
    void endsWhenTheHostClosesItsWritingSide();
    void survivesEveryFieldInEveryPlace();
    void survivesHostileBytes();
    void survivesHostileCommands();
};

namespace {

QStringList askForList()
{
    return {QStringLiteral("tutorialList")};
}

QByteArrayList commandWords()
{
    return {"start",
            "stop",
            "contents",
            "tutorialList",
            "state",
            "indicator",
            "log",
            "windowStack",
            "tutorial",
            "windowPosition",
            "fromServer",
            "showTooltip",
            "controlPosition",
            "applicationWindowSize",
            "requestPresetData",
            "hideTooltip"};
}

QByteArrayList hostileFields()
{
    return {"",      "0",    "-1",    "-9999",        "2147483647", "-2147483648", "99999999999",
            "show",  "hide", "push",  "pop",          "update",     "updateXy",    "append",
            "ja_JP", "-",    "step1", "step99999",    "../../x",    "%1%2",        "<b>&\\\n",
            "\xff",  "7",    "Popup", "TutorialStep1"};
}

} // namespace

void tst_Link::runsTheCommandsOfOnePayloadInOrder()
{
    FakeHost host;
    QVERIFY(host.start());
    host.write(Frames::ofHost("tutorialList\x02\x02unknown\x02tutorial\x01TutorialStep1\x02tutorialList"));
    QVERIFY(host.waitForPayloads(3));
    const QStringList payloads = host.payloads();
    QVERIFY(payloads.at(0).startsWith(QStringLiteral("tutorialList\x01")));
    QVERIFY(payloads.at(1).startsWith(QStringLiteral("start\x01")));
    QVERIFY(payloads.at(2).startsWith(QStringLiteral("tutorialList\x01")));
}

void tst_Link::runsTwoFramesOfOneReadInOrder()
{
    FakeHost host;
    QVERIFY(host.start());
    host.write(Frames::ofHost("tutorial\x01TutorialStep1") + Frames::ofHost("") +
               Frames::ofHost("tutorialList"));
    QVERIFY(host.waitForPayloads(2));
    QVERIFY(host.payloads().at(0).startsWith(QStringLiteral("start\x01")));
    QVERIFY(host.payloads().at(1).startsWith(QStringLiteral("tutorialList\x01")));
}

void tst_Link::sendsAliveEachSecond()
{
    FakeHost host;
    host.stampLog();
    QVERIFY(host.start());
    QVERIFY(FakeHost::waitFor([&host] { return host.aliveCount() >= 6 && host.heartbeats() >= 6; }));
    const QVector<qint64> gaps = host.sortedHeartbeatGaps();
    QVERIFY(gaps.size() >= 5);
    // Ten ticks lie between two heartbeats. After one that came late the next two follow early.
    QVERIFY2(gaps.constFirst() > 750, qPrintable(QString::number(gaps.constFirst())));
    const qint64 usual = gaps.at(gaps.size() / 2);
    QVERIFY2(usual > 850 && usual < 1300, qPrintable(QString::number(usual)));
}

void tst_Link::framesItsAnswers()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(FakeHost::waitFor([&host] { return !host.receivedBytes().isEmpty(); }));
    QVERIFY(host.receivedBytes().startsWith(QByteArray("100000005\x02"
                                                       "alive\0",
                                                       16)));
}

void tst_Link::countsBytesInTheLengthOfAnAnswer()
{
    FakeHost host;
    QVERIFY(host.start(QStringLiteral("ja_JP")));
    host.send(askForList());
    QVERIFY(host.waitForPayloads(1));
    const QString list = host.payloads().at(0);
    const QByteArray utf8 = list.toUtf8();
    QVERIFY(utf8.size() > list.size());
    QVERIFY(host.receivedBytes().contains(Frames::ofCompanion(utf8)));
}

void tst_Link::dropsWhatStandsBehindByeAndStays()
{
    FakeHost host;
    QVERIFY(host.start());
    host.write(Frames::ofHost("tutorialList\x02"
                              "bye\x01now\x02tutorialList") +
               Frames::ofHost("tutorialList"));
    // What follows must not come with the same read.
    QVERIFY(host.waitForPayloads(1));
    QVERIFY(host.syncBothWays());
    QCOMPARE(host.payloads().size(), 1);
    QCOMPARE(host.process().state(), QProcess::Running);
}

void tst_Link::keepsReportingAnInvalidHeader()
{
    FakeHost host;
    QVERIFY(host.start());
    const QString warning = QStringLiteral("TutorialManager::onReadyRead 396 Invalid header");
    host.write("Xnonsense");
    QVERIFY(host.waitForLog(warning + QStringLiteral(" \"Xnonsense\"")));
    host.write(Frames::ofHost("tutorialList"));
    QVERIFY(FakeHost::waitFor([&] { return host.log().count(warning) == 2; }));
    QVERIFY(host.payloads().isEmpty());
    QCOMPARE(host.process().state(), QProcess::Running);
}

void tst_Link::recoversAfterAnInvalidPayloadSize()
{
    FakeHost host;
    QVERIFY(host.start());
    host.write("0zzzzzzzz\x02tutorialList");
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onReadyRead 368 Invalid payload size")));
    host.send(askForList());
    QVERIFY(host.waitForPayloads(1));
}

void tst_Link::recoversAfterAMissingTerminator()
{
    FakeHost host;
    QVERIFY(host.start());
    host.write("000000002\x02"
               "abc");
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onReadyRead 390 Terminator not found")));
    host.send(askForList());
    QVERIFY(host.waitForPayloads(1));
}

void tst_Link::logs128CharactersOfWhatItSendsAndSendsAll()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send(askForList());
    QVERIFY(host.waitForPayloads(1));
    const QString payload = host.payloads().at(0);
    QVERIFY(payload.size() > 300);
    QVERIFY(host.sync());
    QString shown;
    QDebug(&shown) << payload.left(128);
    QVERIFY2(host.log().contains(QStringLiteral("TutorialManager::send 1396 ") + shown),
             qPrintable(host.log()));
}

void tst_Link::waitsForNoHostThatStopsReading()
{
    constexpr int kLessons = 20;
    FakeHost host;
    QVERIFY(host.start());
    host.stopReading();
    for (int lesson = 0; lesson < kLessons; ++lesson) {
        host.send({QStringLiteral("tutorial"), QStringLiteral("TutorialStep1")});
    }
    // Far more than a socket takes by itself, and still it listens.
    QVERIFY(host.sync());
    QVERIFY(host.receivedBytes().size() < 100000);
    QCOMPARE(host.log().count(QStringLiteral("TutorialManager::send 1396 \"start\\u0001var scenario")),
             kLessons);
    host.resumeReading();
    QVERIFY(host.waitForPayloads(kLessons));
    QVERIFY(host.receivedBytes().size() > 500000);
    const QStringList payloads = host.payloads();
    for (const QString &payload : payloads) {
        QVERIFY(payload == payloads.constFirst());
    }
}

void tst_Link::takesNoMemoryAheadOfAHugeLength()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const qint64 before = host.addressSpace();
    QVERIFY(before > 0);
    host.write("00fffffff\x02"
               "abc");
    host.write("def");
    const int alive = host.aliveCount();
    QVERIFY(FakeHost::waitFor([&] { return host.aliveCount() >= alive + 2; }));
    const qint64 grown = host.addressSpace() - before;
    QVERIFY2(grown < 128 * 1024 * 1024, qPrintable(QString::number(grown)));
}

void tst_Link::endsWhenTheHostClosesItsWritingSide()
{
    FakeHost host;
    QVERIFY(host.start());
    // Half a frame may wait for its rest; there will be none.
    host.write("000000010\x02 half");
    const int alive = host.aliveCount();
    QVERIFY(FakeHost::waitFor([&] { return host.aliveCount() > alive; }));
    QVERIFY(host.closeWritingSide());
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QVERIFY2(host.log().contains(QStringLiteral("TutorialManager::onDisconnected 414")),
             qPrintable(host.log()));
    QVERIFY2(host.log().contains(QStringLiteral("TutorialManager::requestClose 1535")),
             qPrintable(host.log()));
}

void tst_Link::survivesEveryFieldInEveryPlace()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    const QByteArrayList words = commandWords();
    const QByteArrayList fields = hostileFields();
    for (const QByteArray &word : words) {
        for (const QByteArray &field : fields) {
            host.write(Frames::ofHost(word + ('\x01' + field).repeated(9)));
        }
        QVERIFY2(host.sync(), word.constData());
    }
    // The overlays compute with what they were told on their next ticks.
    const int alive = host.aliveCount();
    QVERIFY(FakeHost::waitFor([&] { return host.aliveCount() > alive; }));
    QCOMPARE(host.process().state(), QProcess::Running);
}

void tst_Link::survivesHostileBytes()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArray alphabet("0011ffFx+- \x01\x02\0\0\xe6\x9c", 17);
    for (int round = 0; round < 10; ++round) {
        FakeHost host;
        QVERIFY(host.start());
        for (int write = 0; write < 40; ++write) {
            QByteArray bytes = random.bounded(2) != 0 ? QByteArray() : QByteArray("0");
            const int size = random.bounded(200);
            for (int i = 0; i < size; ++i) {
                bytes.append(alphabet.at(random.bounded(alphabet.size())));
            }
            host.write(bytes);
        }
        host.disconnectLink();
        QVERIFY(host.waitForEnd());
        QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host.process().exitCode(), 0);
    }
}

void tst_Link::survivesHostileCommands()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArrayList words = commandWords();
    const QByteArrayList fields = hostileFields();
    for (int round = 0; round < 6; ++round) {
        FakeHost host;
        QVERIFY(host.start());
        for (int i = 0; i < 150; ++i) {
            QByteArray command = words.at(random.bounded(words.size()));
            const int count = random.bounded(9);
            for (int field = 0; field < count; ++field) {
                command += '\x01' + fields.at(random.bounded(fields.size()));
            }
            host.write(Frames::ofHost(command));
        }
        QVERIFY(host.sync());
        host.disconnectLink();
        QVERIFY(host.waitForEnd());
        QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host.process().exitCode(), 0);
    }
}

QTEST_GUILESS_MAIN(tst_Link)
#include "tst_Link.moc"
