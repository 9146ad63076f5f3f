#include "Frames.h"
#include "host/CompanionFrameReader.h"
#include "host/HostFrame.h"

#include <QRandomGenerator>
#include <QTest>

class tst_HostFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsHostFrames_data();
    void buildsHostFrames();
    void readsFramesSplitAnywhere();
    void readsFramesByteByByte();
    void readsManyFramesAtOnce();
    void readsAnEmptyFrame();
    void recoversBehindTheNextZeroByte_data();
    void recoversBehindTheNextZeroByte();
    void standsAnyBytes();
};

void tst_HostFrames::buildsHostFrames_data()
{
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QByteArray>("frame");
    QTest::newRow("one") << QStringList{QStringLiteral("stop")} << QByteArray("000000004\x02stop\0", 15);
    QTest::newRow("two") << QStringList{QStringLiteral("stop"), QStringLiteral("bye")}
                         << QByteArray("000000008\x02stop\x02"
                                       "bye\0",
                                       19);
    QTest::newRow("bytes, not characters") << QStringList{QStringLiteral("\u5730\u56fe")}
                                           << QByteArray("000000006\x02\xE5\x9C\xB0\xE5\x9B\xBE\0", 17);
    QTest::newRow("26 bytes in hexadecimal") << QStringList{QString(26, QLatin1Char('x'))}
                                             << QByteArray("00000001a\x02") + QByteArray(26, 'x') + '\0';
}

void tst_HostFrames::buildsHostFrames()
{
    QFETCH(QStringList, commands);
    QTEST(hostFrame(commands), "frame");
}

void tst_HostFrames::readsFramesSplitAnywhere()
{
    const QByteArray bytes =
        Frames::ofCompanion("alive") + Frames::ofCompanion("start\x01[\xE5\x9C\xB0]\x01-1");
    const QStringList expected{QStringLiteral("alive"), QStringLiteral("start\u0001[\u5730]\u0001-1")};
    for (int cut = 0; cut <= bytes.size(); ++cut) {
        CompanionFrameReader reader;
        const CompanionFrameReader::Result first = reader.read(bytes.left(cut));
        const CompanionFrameReader::Result second = reader.read(bytes.mid(cut));
        QCOMPARE(first.commands + second.commands, expected);
        QCOMPARE(first.problems + second.problems, QStringList());
    }
}

void tst_HostFrames::readsFramesByteByByte()
{
    CompanionFrameReader reader;
    QStringList commands;
    const QByteArray bytes = Frames::ofCompanion("next") + Frames::ofCompanion("yes");
    for (const char byte : bytes) {
        const CompanionFrameReader::Result result = reader.read(QByteArray(1, byte));
        QCOMPARE(result.problems, QStringList());
        commands += result.commands;
    }
    QCOMPARE(commands, (QStringList{QStringLiteral("next"), QStringLiteral("yes")}));
}

void tst_HostFrames::readsManyFramesAtOnce()
{
    CompanionFrameReader reader;
    const QByteArray one = Frames::ofCompanion("alive");
    QCOMPARE(reader.read(one.repeated(1000) + one.left(5)).commands.size(), 1000);
    QCOMPARE(reader.read(one.mid(5)).commands.size(), 1);
}

void tst_HostFrames::readsAnEmptyFrame()
{
    CompanionFrameReader reader;
    QCOMPARE(reader.read(Frames::ofCompanion(QByteArray())).commands, QStringList{QString()});
}

void tst_HostFrames::recoversBehindTheNextZeroByte_data()
{
    QTest::addColumn<QByteArray>("bad");
    QTest::newRow("a wrong lead byte") << QByteArray("000000004\x02next\0", 15);
    QTest::newRow("uppercase digits") << QByteArray("10000000A\x02") + QByteArray(10, 'x') + '\0';
    QTest::newRow("no digits") << QByteArray("1 0000004\x02next\0", 15);
    QTest::newRow("a sign") << QByteArray("1-0000004\x02next\0", 15);
    QTest::newRow("beyond int") << QByteArray("1ffffffff\x02next\0", 15);
    QTest::newRow("larger than any") << QByteArray("17fffffff\x02next\0", 15);
    QTest::newRow("a wrong separator") << QByteArray("100000004\x01next\0", 15);
    QTest::newRow("a length too small") << QByteArray("100000003\x02next\0", 15);
    QTest::newRow("a length too large by one, and no zero there")
        << QByteArray("100000004\x02nex\0\0x\0", 17);
    QTest::newRow("not UTF-8") << QByteArray("100000002\x02\xE5\x9C\0", 13);
    QTest::newRow("text without a frame") << QByteArray("hello\0", 6);
}

void tst_HostFrames::recoversBehindTheNextZeroByte()
{
    QFETCH(QByteArray, bad);
    const QByteArray bytes = bad + Frames::ofCompanion("next");
    for (int cut = 0; cut <= bytes.size(); ++cut) {
        CompanionFrameReader reader;
        const CompanionFrameReader::Result first = reader.read(bytes.left(cut));
        const CompanionFrameReader::Result second = reader.read(bytes.mid(cut));
        QVERIFY(!(first.problems + second.problems).isEmpty());
        QCOMPARE((first.commands + second.commands).constLast(), QStringLiteral("next"));
    }
}

void tst_HostFrames::standsAnyBytes()
{
    const QVector<QByteArray> pieces = {"1",    "00000004", "0000000", "\x02", QByteArray(1, '\0'),
                                        "next", "\xE5",     "Zz"};
    QRandomGenerator random(20261120);
    CompanionFrameReader reader;
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes;
        for (int left = random.bounded(8); left > 0; --left) {
            bytes += pieces.at(random.bounded(pieces.size()));
        }
        reader.read(bytes);
    }
    // Whatever state that left: enough zero bytes end it, and the next frame is read.
    reader.read(QByteArray(4096, '\0'));
    QCOMPARE(reader.read(Frames::ofCompanion("next")).commands, QStringList{QStringLiteral("next")});
}

QTEST_APPLESS_MAIN(tst_HostFrames)
#include "tst_HostFrames.moc"
