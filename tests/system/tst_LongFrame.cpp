#include "FakeHost.h"

#include <QTest>

/// Frames of a size that no host editor has reason to send, on the real link.
class tst_LongFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliversAPayloadOf256MiB();
    void passesOverALongerOne();
    void survivesACommandOfSeparators();
};

namespace {

constexpr int kMostPayload = 1 << 28;
const QByteArray kAsk = "tutorialList";

/// Text of @p character between @p start and @p end, @p size bytes together.
QByteArray filled(const QByteArray &start, char character, const QByteArray &end, int size)
{
    return start + QByteArray(size - start.size() - end.size(), character) + end;
}

} // namespace

void tst_LongFrame::deliversAPayloadOf256MiB()
{
    FakeHost host;
    QVERIFY(host.start());
    // Its last command is answered, and so is the frame behind it.
    QVERIFY(host.writeAll(Frames::ofHost(filled("contents\x01", 'x', '\x02' + kAsk, kMostPayload))));
    host.write(Frames::ofHost(kAsk));
    QVERIFY(host.waitForPayloads(2));
    QVERIFY(!host.log().contains(QStringLiteral("TutorialManager::onReadyRead")));
}

void tst_LongFrame::passesOverALongerOne()
{
    FakeHost host;
    // A sanitizer holds back what has been freed.
    QProcessEnvironment environment = host.process().processEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), environment.value(QStringLiteral("ASAN_OPTIONS")) +
                                                           QStringLiteral(":quarantine_size_mb=1"));
    host.process().setProcessEnvironment(environment);
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const qint64 before = host.mostMemory();
    QVERIFY(before > 0);
    QVERIFY(host.writeAll(Frames::ofHost(filled("contents\x01", '\0', '\x02' + kAsk, kMostPayload + 1))));
    host.write(Frames::ofHost(kAsk));
    QVERIFY(host.waitForPayloads(1));
    QVERIFY(host.syncBothWays());
    QCOMPARE(host.payloads().size(), 1);
    QVERIFY2(host.log().contains(QStringLiteral(
                 "TutorialManager::onReadyRead 368 Invalid payload size \"010000001\\x02\"\n")),
             qPrintable(host.log()));
    QCOMPARE(host.log().count(QStringLiteral("TutorialManager::onReadyRead")), 1);
    const qint64 grown = host.mostMemory() - before;
    QVERIFY2(grown < kMostPayload / 8, qPrintable(QString::number(grown)));
}

void tst_LongFrame::survivesACommandOfSeparators()
{
    // A list of Qt has no room for so many fields.
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.writeAll(Frames::ofHost(filled("contents", '\x01', {}, kMostPayload))));
    host.write(Frames::ofHost(kAsk));
    QVERIFY(host.waitForPayloads(1));
}

QTEST_GUILESS_MAIN(tst_LongFrame)
#include "tst_LongFrame.moc"
