#include "FrameRecorder.h"

#include <QTest>

namespace {

constexpr int kMostPayload = 20;

} // namespace

/// Frames at the limit of what is delivered, and beyond it.
class tst_LongFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliversTheLongestPayload();
    void throwsExactlyAFrameThatIsTooLongAway_data();
    void throwsExactlyAFrameThatIsTooLongAway();
    void reportsAFrameThatIsTooLongWithItsHeader();
    void throwsMoreBytesAwayThanANumberOf32BitsCounts();
    void goesOnBehindAFrameThatIsTooLongAsAtTheStart();
    void keepsNoMoreBehindAnInvalidHeaderThanAFrameHas();
    void takesTimeInProportionToWhatComes();
};

void tst_LongFrames::deliversTheLongestPayload()
{
    FrameReader reader(kMostPayload);
    Recorder recorder;
    const QByteArray longest = Frames::ofHost(QByteArray(kMostPayload, 'x'));
    for (const char byte : longest) {
        reader.read(QByteArray(1, byte), recorder);
    }
    reader.read(longest + longest, recorder);
    const QString text(kMostPayload, QLatin1Char('x'));
    QCOMPARE(recorder.events, (QStringList{text, text, text}));
}

void tst_LongFrames::throwsExactlyAFrameThatIsTooLongAway_data()
{
    QTest::addColumn<QByteArray>("payload");
    // Neither a zero byte nor what looks like a frame ends it early.
    QTest::newRow("one byte too long") << QByteArray(kMostPayload + 1, 'x');
    QTest::newRow("zero bytes") << QByteArray(3 * kMostPayload, '\0');
    QTest::newRow("frames") << Frames::ofHost("inner").repeated(5);
}

void tst_LongFrames::throwsExactlyAFrameThatIsTooLongAway()
{
    QFETCH(QByteArray, payload);
    const QByteArray before = Frames::ofHost("a");
    const QByteArray tooLong = Frames::ofHost(payload);
    const QByteArray stream = before + tooLong +
                              Frames::ofHost("b\x02"
                                             "c") +
                              tooLong + Frames::ofHost("d");
    const QStringList events = {QStringLiteral("a"), QStringLiteral("<invalid size>"), QStringLiteral("b"),
                                QStringLiteral("c"), QStringLiteral("<invalid size>"), QStringLiteral("d")};
    for (int split = 0; split <= stream.size(); ++split) {
        FrameReader reader(kMostPayload);
        Recorder recorder;
        reader.read(stream.left(split), recorder);
        reader.read(stream.mid(split), recorder);
        QVERIFY2(recorder.events == events, qPrintable(QStringLiteral("split at %1").arg(split)));
    }
    FrameReader reader(kMostPayload);
    Recorder recorder;
    for (const char byte : stream) {
        reader.read(QByteArray(1, byte), recorder);
    }
    QCOMPARE(recorder.events, events);
}

void tst_LongFrames::reportsAFrameThatIsTooLongWithItsHeader()
{
    FrameReader reader(kMostPayload);
    Recorder recorder;
    reader.read(Frames::ofHost("a") + Frames::ofHost(QByteArray(100, 'x'), '!') + Frames::ofHost("b"),
                recorder);
    QCOMPARE(recorder.problemBytes, QByteArray("000000064!"));
    // All that there is of it when its length has come.
    reader.read("07fffffff", recorder);
    QCOMPARE(recorder.problemBytes, QByteArray("07fffffff"));
    QCOMPARE(recorder.events.count(QStringLiteral("<invalid size>")), 2);
}

void tst_LongFrames::throwsMoreBytesAwayThanANumberOf32BitsCounts()
{
    FrameReader reader;
    Recorder recorder;
    const QByteArray piece(1 << 27, 'x');
    reader.read("07fffffff\x02", recorder);
    // The payload, and the zero byte behind it.
    constexpr qint64 kUnwanted = (qint64(1) << 31) - 1 + 1;
    for (qint64 sent = 0; sent < kUnwanted; sent += piece.size()) {
        reader.read(piece, recorder);
    }
    reader.read(Frames::ofHost("b"), recorder);
    QCOMPARE(recorder.events, (QStringList{QStringLiteral("<invalid size>"), QStringLiteral("b")}));
}

void tst_LongFrames::goesOnBehindAFrameThatIsTooLongAsAtTheStart()
{
    FrameReader reader(kMostPayload);
    Recorder recorder;
    const QByteArray tooLong = Frames::ofHost(QByteArray(kMostPayload + 1, 'x'));
    reader.read(tooLong, recorder);
    reader.read("0", recorder);
    reader.read(Frames::ofHost("b").mid(1), recorder);
    reader.read(tooLong + "X and more", recorder);
    QCOMPARE(recorder.events,
             (QStringList{QStringLiteral("<invalid size>"), QStringLiteral("b"),
                          QStringLiteral("<invalid size>"), QStringLiteral("<invalid header>")}));
    QCOMPARE(recorder.problemBytes, QByteArray("X and more"));
}

void tst_LongFrames::keepsNoMoreBehindAnInvalidHeaderThanAFrameHas()
{
    FrameReader reader(kMostPayload);
    Recorder recorder;
    const QByteArray start = "X" + QByteArray(kMostPayload + 10, 'x');
    reader.read(start, recorder);
    reader.read("abc", recorder);
    QCOMPARE(recorder.problemBytes, start + "abc");
    reader.read("def", recorder);
    QCOMPARE(recorder.problemBytes, start + "def");
    QCOMPARE(recorder.events,
             (QStringList{QStringLiteral("<invalid header>"), QStringLiteral("<invalid header>"),
                          QStringLiteral("<invalid header>")}));
}

void tst_LongFrames::takesTimeInProportionToWhatComes()
{
    // Were all of them copied with each of these reads, this would take some minutes.
    const QByteArray payload(1 << 21, 'x');
    const QByteArray stream = Frames::ofHost(payload);
    FrameReader reader;
    Recorder recorder;
    for (const char byte : stream) {
        reader.read(QByteArray(1, byte), recorder);
    }
    QVERIFY(recorder.events == QStringList{QString::fromLatin1(payload)});
}

QTEST_APPLESS_MAIN(tst_LongFrames)
#include "tst_LongFrames.moc"
