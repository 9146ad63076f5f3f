#include "FrameRecorder.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

QByteArray bytes(const char *text, int size)
{
    return QByteArray(text, size);
}

} // namespace

class tst_FrameReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOverTheCommandsOfOneRead_data();
    void handsOverTheCommandsOfOneRead();
    void reassemblesAStreamThatIsSplitAtEveryByte();
    void joinsSingleBytes();
    void waitsForTheWholeFrameWithoutParsing();
    void takesAnySeparatorByte();
    void dropsWhatCameWithACommandThatEndsTheRead();
    void keepsAnInvalidHeaderAndReportsItAtEveryRead();
    void saysNothingOfABadLeadByteInAShortRead();
    void losesTheReadAtAnInvalidSize_data();
    void losesTheReadAtAnInvalidSize();
    void acceptsWhatTheNumberParserAccepts_data();
    void acceptsWhatTheNumberParserAccepts();
    void deliversTheTextBeforeItMissesTheTerminator();
    void survivesRandomBytes();
};

void tst_FrameReader::handsOverTheCommandsOfOneRead_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QStringList>("events");
    const auto row = [](const char *name, const QByteArray &data, const QStringList &events) {
        QTest::newRow(name) << data << events;
    };
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    row("one frame", Frames::ofHost("a"), {a});
    row("two frames in order", Frames::ofHost("a") + Frames::ofHost("b"), {a, b});
    row("two commands in one payload",
        Frames::ofHost("a\x02"
                       "b"),
        {a, b});
    row("an empty part is an empty command",
        Frames::ofHost("a\x02\x02"
                       "b"),
        {a, QString(), b});
    row("an empty part at the end", Frames::ofHost("a\x02"), {a, QString()});
    row("length 0 holds no command", Frames::ofHost("") + Frames::ofHost("b"), {b});
    row("upper case digits",
        "0"
        "0000000A"
        "\x02"
        "0123456789" +
            bytes("\0", 1),
        {QStringLiteral("0123456789")});
    row("non-ASCII", Frames::ofHost("\xe6\xac\xa1"), {QStringLiteral("次")});
    row("an inner zero byte ends the text, and the next frame is looked for behind it",
        "0"
        "00000003"
        "\x02"
        "a" +
            bytes("\0", 1) +
            "0"
            "00000001"
            "\x02"
            "b" +
            bytes("\0", 1),
        {a, b});
    row("a length that is too small delivers up to the zero byte",
        "0"
        "00000001"
        "\x02"
        "abc" +
            bytes("\0", 1) + Frames::ofHost("b"),
        {QStringLiteral("abc"), b});
    row("a zero byte as separator ends the frame in its header", Frames::ofHost("0", '\0'),
        {QStringLiteral("0")});
}

void tst_FrameReader::handsOverTheCommandsOfOneRead()
{
    QFETCH(QByteArray, data);
    QFETCH(QStringList, events);
    FrameReader reader;
    Recorder recorder;
    reader.read(data, recorder);
    QCOMPARE(recorder.events, events);
}

void tst_FrameReader::reassemblesAStreamThatIsSplitAtEveryByte()
{
    const QByteArray stream = Frames::ofHost("start\x01"
                                             "1") +
                              Frames::ofHost("stop\x02"
                                             "contents") +
                              Frames::ofHost("") + Frames::ofHost("\xc3\xa9");
    const QStringList expected = {QStringLiteral("start\x01"
                                                 "1"),
                                  QStringLiteral("stop"), QStringLiteral("contents"), QStringLiteral("é")};
    for (int split = 0; split <= stream.size(); ++split) {
        FrameReader reader;
        Recorder recorder;
        reader.read(stream.left(split), recorder);
        reader.read(stream.mid(split), recorder);
        QVERIFY2(recorder.events == expected, qPrintable(QStringLiteral("split at %1").arg(split)));
    }
}

void tst_FrameReader::joinsSingleBytes()
{
    const QByteArray stream = Frames::ofHost("a") + Frames::ofHost("b\x02"
                                                                   "c");
    FrameReader reader;
    Recorder recorder;
    for (const char byte : stream) {
        reader.read(QByteArray(1, byte), recorder);
    }
    QCOMPARE(recorder.events, (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

void tst_FrameReader::waitsForTheWholeFrameWithoutParsing()
{
    const QByteArray whole = Frames::ofHost(QByteArray(100, 'x'));
    FrameReader reader;
    Recorder recorder;
    reader.read(whole.left(12), recorder);
    reader.read(whole.mid(12, 98), recorder);
    QVERIFY(recorder.events.isEmpty());
    reader.read(whole.mid(110), recorder);
    QCOMPARE(recorder.events, QStringList{QString(100, QLatin1Char('x'))});
}

void tst_FrameReader::takesAnySeparatorByte()
{
    for (int separator = 1; separator < 256; ++separator) {
        FrameReader reader;
        Recorder recorder;
        reader.read(Frames::ofHost("a", char(separator)), recorder);
        QCOMPARE(recorder.events, QStringList{QStringLiteral("a")});
    }
}

void tst_FrameReader::dropsWhatCameWithACommandThatEndsTheRead()
{
    FrameReader reader;
    Recorder recorder;
    reader.read(Frames::ofHost("a\x02"
                               "bye\x02"
                               "b") +
                    Frames::ofHost("c") + "0000",
                recorder);
    QCOMPARE(recorder.events, (QStringList{QStringLiteral("a"), QStringLiteral("bye")}));
    reader.read(Frames::ofHost("d"), recorder);
    QCOMPARE(recorder.events.last(), QStringLiteral("d"));
}

void tst_FrameReader::keepsAnInvalidHeaderAndReportsItAtEveryRead()
{
    FrameReader reader;
    Recorder recorder;
    reader.read(Frames::ofHost("a") + "X0000001\x02 and more", recorder);
    QCOMPARE(recorder.events, (QStringList{QStringLiteral("a"), QStringLiteral("<invalid header>")}));
    QCOMPARE(recorder.problemBytes, QByteArray("X0000001\x02 and more"));
    reader.read(Frames::ofHost("b"), recorder);
    QCOMPARE(recorder.events.last(), QStringLiteral("<invalid header>"));
    QCOMPARE(recorder.problemBytes, "X0000001\x02 and more" + Frames::ofHost("b"));
    QCOMPARE(recorder.events.size(), 3);
}

void tst_FrameReader::saysNothingOfABadLeadByteInAShortRead()
{
    FrameReader reader;
    Recorder recorder;
    reader.read("X0000001", recorder);
    QVERIFY(recorder.events.isEmpty());
    reader.read("\x02", recorder);
    QCOMPARE(recorder.events, QStringList{QStringLiteral("<invalid header>")});
}

void tst_FrameReader::losesTheReadAtAnInvalidSize_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("letters") << QByteArray("0000000g");
    QTest::newRow("below zero") << QByteArray("-0000001");
    QTest::newRow("beyond int") << QByteArray("80000000");
    QTest::newRow("blank") << QByteArray("        ");
    QTest::newRow("not UTF-8") << QByteArray("\xff\xff\xff\xff\xff\xff\xff\xff");
}

void tst_FrameReader::losesTheReadAtAnInvalidSize()
{
    QFETCH(QByteArray, digits);
    FrameReader reader;
    Recorder recorder;
    const QByteArray bad = "0" + digits +
                           "\x02"
                           "a" +
                           bytes("\0", 1);
    reader.read(Frames::ofHost("a") + bad + Frames::ofHost("b"), recorder);
    QCOMPARE(recorder.events, (QStringList{QStringLiteral("a"), QStringLiteral("<invalid size>")}));
    QCOMPARE(recorder.problemBytes, bad + Frames::ofHost("b"));
    reader.read(Frames::ofHost("c"), recorder);
    QCOMPARE(recorder.events.last(), QStringLiteral("c"));
}

void tst_FrameReader::acceptsWhatTheNumberParserAccepts_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("leading blanks") << QByteArray("       1");
    QTest::newRow("trailing blanks") << QByteArray("1       ");
    QTest::newRow("plus") << QByteArray("+0000001");
    QTest::newRow("prefix") << QByteArray("0x000001");
}

void tst_FrameReader::acceptsWhatTheNumberParserAccepts()
{
    QFETCH(QByteArray, digits);
    FrameReader reader;
    Recorder recorder;
    reader.read("0" + digits +
                    "\x02"
                    "a" +
                    bytes("\0", 1),
                recorder);
    QCOMPARE(recorder.events, QStringList{QStringLiteral("a")});
}

void tst_FrameReader::deliversTheTextBeforeItMissesTheTerminator()
{
    FrameReader reader;
    Recorder recorder;
    const QByteArray data = "0"
                            "00000001"
                            "\x02"
                            "abc";
    reader.read(data, recorder);
    QCOMPARE(recorder.events, (QStringList{QStringLiteral("abc"), QStringLiteral("<no terminator>")}));
    QCOMPARE(recorder.problemBytes, data);
    reader.read(Frames::ofHost("d"), recorder);
    QCOMPARE(recorder.events.last(), QStringLiteral("d"));
}

void tst_FrameReader::survivesRandomBytes()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArray alphabet = bytes("0011fFx \x01\x02\0\0a\xe6", 14);
    for (int round = 0; round < 2000; ++round) {
        FrameReader reader;
        Recorder recorder;
        qint64 sent = 0;
        for (int read = 0; read < 8; ++read) {
            QByteArray data;
            const int size = random.bounded(40);
            for (int i = 0; i < size; ++i) {
                data.append(alphabet.at(random.bounded(alphabet.size())));
            }
            sent += data.size();
            reader.read(data, recorder);
            QVERIFY(recorder.problemBytes.size() <= sent);
        }
    }
}

QTEST_APPLESS_MAIN(tst_FrameReader)
#include "tst_FrameReader.moc"
