#include "LogCapture.h"
#include "PatchBytes.h"
#include "tool/StringPatch.h"

#include <QObject>
#include <QRandomGenerator>
#include <QTest>

#include <initializer_list>
#include <stdexcept>

#include <sys/resource.h>

namespace {

using PatchBytes::header;

/// The most memory that this process has held at one time.
qint64 mostResidentBytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

/// Bytes from numbers, for patches written out in the tests.
QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values) {
        result.append(char(value));
    }
    return result;
}

QByteArray numbered(int count)
{
    QByteArray result;
    for (int i = 0; i < count; ++i) {
        result.append(char(i * 7 + i / 256));
    }
    return result;
}

/// What the format says, said as slowly as it can be: one buffer, one byte at a time. Only for patches that
/// stay within their bounds.
QByteArray applySlowly(const QByteArray &base, const QByteArray &patch)
{
    const auto byteAt = [&patch](int at) {
        return int(static_cast<unsigned char>(patch.at(at)));
    };
    const int targetSize = byteAt(0) | byteAt(1) << 8 | byteAt(2) << 16 | byteAt(3) << 24;
    QByteArray buffer = base + QByteArray(targetSize, '\0');
    int write = base.size();
    int read = 4;
    while (read < patch.size()) {
        const int tag = byteAt(read++);
        const bool isCopy = tag >= 250;
        const int offsetWidth = !isCopy ? 0 : tag < 252 ? 4 : tag < 254 ? 3 : 2;
        const int lengthWidth = isCopy ? (tag % 2 == 0 ? 2 : 1) : tag + 1;
        int offset = 0;
        for (int i = 0; i < offsetWidth; ++i) {
            offset |= byteAt(read++) << 8 * i;
        }
        int length = 1;
        for (int i = 0; i < lengthWidth; ++i) {
            length += byteAt(read++) << 8 * i;
        }
        for (int i = 0; i < length; ++i) {
            buffer[write++] = isCopy ? char(buffer.at(offset++)) : patch.at(read++);
        }
    }
    return buffer.mid(base.size());
}

} // namespace

class tst_StringPatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void applies_data();
    void applies();
    void baseAndResultMayBeTheSameString();
    void invalidTagFails_data();
    void invalidTagFails();
    void everyTagOutsideTheTableIsInvalid();
    void overflowingSizeThrows_data();
    void overflowingSizeThrows();
    void invalidTagComesBeforeOverflow();
    void corruptPatchesAreHarmless_data();
    void corruptPatchesAreHarmless();
    void everyTruncationIsHarmless();
    void randomPatchesMatchTheSlowWay();
    void randomBytesAreHarmless();
    void hugeTargetOfABrokenPatchTakesNoMemory();
};

void tst_StringPatch::applies_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("patch");
    QTest::addColumn<QByteArray>("result");

    QTest::newRow("header only, no target") << QByteArray("abc") << header(0) << QByteArray();
    QTest::newRow("header only, five zeros") << QByteArray() << header(5) << QByteArray(5, '\0');
    QTest::newRow("header only, five zeros behind a base")
        << QByteArray("abc") << header(5) << QByteArray(5, '\0');
    QTest::newRow("copy of the whole base")
        << QByteArray("abc") << header(3) + bytes({255, 0, 0, 2}) << QByteArray("abc");
    QTest::newRow("source runs into the write position")
        << QByteArray("ab") << header(4) + bytes({255, 1, 0, 3}) << QByteArray("bbbb");
    QTest::newRow("source repeats two bytes")
        << QByteArray("ab") << header(7) + bytes({255, 0, 0, 6}) << QByteArray("abababa");
    QTest::newRow("source repeats three bytes of the result")
        << QByteArray("x") << header(10) + bytes({0, 2, 'a', 'b', 'c', 255, 1, 0, 6})
        << QByteArray("abcabcabca");
    QTest::newRow("source at the write position is zero")
        << QByteArray("ab") << header(4) + bytes({0, 0, 'x', 255, 3, 0, 1, 0, 0, 'y'})
        << bytes({'x', 0, 0, 'y'});
    QTest::newRow("source ahead of the write position is zero")
        << QByteArray("ab") << header(4) + bytes({255, 4, 0, 0, 0, 0, 'y'}) << bytes({0, 'y', 0, 0});
    QTest::newRow("copy from bytes written, empty base")
        << QByteArray() << header(4) + bytes({0, 1, 'a', 'b', 255, 0, 0, 1}) << QByteArray("abab");
    QTest::newRow("tag 1 with stored length 0")
        << QByteArray() << header(1) + bytes({1, 0, 0, 'a'}) << QByteArray("a");
    QTest::newRow("tag 0 with stored length 255")
        << QByteArray() << header(256) + bytes({0, 255}) + numbered(256) << numbered(256);
    QTest::newRow("tag 1 with stored length 256")
        << QByteArray() << header(257) + bytes({1, 0, 1}) + numbered(257) << numbered(257);
    QTest::newRow("tag 1 with stored length 65535")
        << QByteArray() << header(65536) + bytes({1, 255, 255}) + numbered(65536) << numbered(65536);
    QTest::newRow("inserts read no offset")
        << QByteArray("base") << header(4) + bytes({0, 0, 250, 1, 0, 0, 251, 0, 1, 252, 253})
        << bytes({250, 251, 252, 253});
    QTest::newRow("bytes that nothing wrote stay zero")
        << QByteArray("ab") << header(5) + bytes({255, 0, 0, 1}) << QByteArray("ab\0\0\0", 5);

    const QByteArray base = numbered(0x10203 + 0x10001);
    QTest::newRow("tag 250: 4 bytes, 2 bytes")
        << base << header(0x10000) + bytes({250, 3, 2, 1, 0, 255, 255}) << base.mid(0x10203, 0x10000);
    QTest::newRow("tag 251: 4 bytes, 1 byte")
        << base << header(0x100) + bytes({251, 3, 2, 1, 0, 255}) << base.mid(0x10203, 0x100);
    QTest::newRow("tag 252: 3 bytes, 2 bytes")
        << base << header(0x102) + bytes({252, 3, 2, 1, 1, 1}) << base.mid(0x10203, 0x102);
    QTest::newRow("tag 253: 3 bytes, 1 byte")
        << base << header(0x10) + bytes({253, 3, 2, 1, 15}) << base.mid(0x10203, 0x10);
    QTest::newRow("tag 254: 2 bytes, 2 bytes")
        << base << header(0x301) + bytes({254, 3, 2, 0, 3}) << base.mid(0x203, 0x301);
    QTest::newRow("tag 255: 2 bytes, 1 byte")
        << base << header(0x10) + bytes({255, 3, 2, 15}) << base.mid(0x203, 0x10);
    QTest::newRow("numbers are unsigned")
        << base << header(1) + bytes({255, 255, 255, 0}) << base.mid(0xffff, 1);
    const QByteArray large = numbered(0x1020304 + 4);
    QTest::newRow("offset of four bytes")
        << large << header(4) + bytes({251, 4, 3, 2, 1, 3}) << large.mid(0x1020304, 4);
}

void tst_StringPatch::applies()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, patch);
    QFETCH(QByteArray, result);
    std::string text = "something else";
    LogCapture log;
    QVERIFY(StringPatch::ApplyStringPatch(base.toStdString(), patch, text));
    QCOMPARE(QByteArray::fromStdString(text), result);
    QCOMPARE(applySlowly(base, patch), result);
    QCOMPARE(log.lines(), QStringList());
}

void tst_StringPatch::baseAndResultMayBeTheSameString()
{
    std::string text = "abc";
    QVERIFY(StringPatch::ApplyStringPatch(text, header(6) + bytes({255, 0, 0, 5}), text));
    QCOMPARE(text, std::string("abcabc"));
}

void tst_StringPatch::invalidTagFails_data()
{
    QTest::addColumn<QByteArray>("patch");
    QTest::addColumn<int>("tag");
    QTest::newRow("2 at once") << header(3) + bytes({2}) << 2;
    QTest::newRow("249 at once") << header(3) + bytes({249, 0, 0, 0}) << 249;
    QTest::newRow("2 after a good copy") << header(3) + bytes({255, 0, 0, 2, 2}) << 2;
    QTest::newRow("249 after a good insert") << header(3) + bytes({0, 1, 'a', 'b', 249}) << 249;
    QTest::newRow("behind a full target") << header(1) + bytes({0, 0, 'a', 0, 0, 'b', 128}) << 128;
    QTest::newRow("huge target") << header(0x7fffffff) + bytes({2}) << 2;
}

void tst_StringPatch::invalidTagFails()
{
    QFETCH(QByteArray, patch);
    QFETCH(int, tag);
    std::string text = "as it was";
    LogCapture log;
    QVERIFY(!StringPatch::ApplyStringPatch(std::string(), patch, text));
    QCOMPARE(text, std::string("as it was"));
    QCOMPARE(log.lines(), log.warnings());
    QCOMPARE(log.warnings(), QStringList{QStringLiteral("..\\..\\tutorial\\cpp\\tool\\StringPatch.cpp "
                                                        "StringPatch::ApplyStringPatch 284 Invalid tag %1")
                                             .arg(tag)});
}

void tst_StringPatch::everyTagOutsideTheTableIsInvalid()
{
    for (int tag = 0; tag < 256; ++tag) {
        std::string text;
        LogCapture log;
        const bool isValid = tag < 2 || tag >= 250;
        QCOMPARE(StringPatch::ApplyStringPatch("base", header(4) + bytes({tag, 0, 0, 0, 0, 0, 0}), text),
                 isValid);
        QCOMPARE(log.warnings().isEmpty(), isValid);
    }
}

void tst_StringPatch::overflowingSizeThrows_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<quint32>("targetSize");
    QTest::newRow("wraps to less than the base") << QByteArray("abc") << 0xffffffffU;
    QTest::newRow("wraps to nothing") << QByteArray("a") << 0xffffffffU;
    QTest::newRow("negative without a base") << QByteArray() << 0x80000000U;
    QTest::newRow("negative with a base") << QByteArray("abc") << 0x7ffffffdU;
}

void tst_StringPatch::overflowingSizeThrows()
{
    QFETCH(QByteArray, base);
    QFETCH(quint32, targetSize);
    // The operations are good ones, and touch nothing.
    const QByteArray patch = header(targetSize) + bytes({255, 0, 0, 255, 0, 1, 'a', 'b', 255, 255, 255, 255});
    std::string text = "as it was";
    QString failure;
    try {
        StringPatch::ApplyStringPatch(base.toStdString(), patch, text);
    } catch (const std::out_of_range &error) {
        failure = QString::fromLatin1(error.what());
    }
    QCOMPARE(failure, QStringLiteral("invalid string position"));
    QCOMPARE(text, std::string("as it was"));
}

void tst_StringPatch::invalidTagComesBeforeOverflow()
{
    std::string text;
    LogCapture log;
    QVERIFY(!StringPatch::ApplyStringPatch("abc", header(0xffffffffU) + bytes({2}), text));
    QCOMPARE(log.warnings().size(), 1);
}

void tst_StringPatch::corruptPatchesAreHarmless_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("patch");
    QTest::addColumn<QByteArray>("result");
    const QByteArray base("abcdef");

    QTest::newRow("no byte at all") << base << QByteArray() << QByteArray();
    QTest::newRow("half a header") << base << bytes({5, 0}) << QByteArray();
    QTest::newRow("insert without a length") << base << header(2) + bytes({0}) << QByteArray(2, '\0');
    QTest::newRow("insert with half a length") << base << header(2) + bytes({1, 0}) << QByteArray(2, '\0');
    QTest::newRow("insert without its literals") << base << header(2) + bytes({0, 1}) << QByteArray(2, '\0');
    QTest::newRow("insert with fewer literals")
        << base << header(3) + bytes({0, 2, 'x'}) << bytes({'x', 0, 0});
    QTest::newRow("insert of far more than there is")
        << base << header(3) + bytes({1, 255, 255, 'x', 'y', 'z', '!'}) << QByteArray("xyz");
    QTest::newRow("copy without an offset") << base << header(2) + bytes({255}) << QByteArray(2, '\0');
    QTest::newRow("copy with half an offset")
        << base << header(2) + bytes({250, 0, 0, 0}) << QByteArray(2, '\0');
    QTest::newRow("copy without a length") << base << header(2) + bytes({255, 0, 0}) << QByteArray(2, '\0');
    QTest::newRow("copy with half a length")
        << base << header(2) + bytes({254, 0, 0, 1}) << QByteArray(2, '\0');
    QTest::newRow("insert beyond the target")
        << base << header(2) + bytes({0, 3, 'w', 'x', 'y', 'z'}) << QByteArray("wx");
    QTest::newRow("insert into no target") << base << header(0) + bytes({0, 0, 'x'}) << QByteArray();
    QTest::newRow("copy beyond the target") << base << header(2) + bytes({255, 0, 0, 5}) << QByteArray("ab");
    QTest::newRow("repeat beyond the target")
        << base << header(3) + bytes({254, 5, 0, 255, 255}) << QByteArray("fff");
    QTest::newRow("operations behind a full target")
        << base << header(1) + bytes({255, 0, 0, 5, 255, 0, 0, 5, 0, 0, 'x'}) << QByteArray("a");
    QTest::newRow("copy from behind the buffer")
        << base << header(2) + bytes({254, 255, 255, 255, 255}) << QByteArray(2, '\0');
    QTest::newRow("copy from far behind the buffer")
        << base << header(2) + bytes({250, 255, 255, 255, 255, 255, 255}) << QByteArray(2, '\0');
    QTest::newRow("copy from behind keeps its place")
        << base << header(3) + bytes({251, 255, 255, 255, 127, 1, 0, 0, 'x'}) << bytes({0, 0, 'x'});
    QTest::newRow("copy that leaves the base for what is not written")
        << base << header(4) + bytes({255, 6, 0, 1, 0, 0, 'x'}) << bytes({0, 0, 'x', 0});
    QTest::newRow("target smaller than what is copied from it")
        << base << header(1) + bytes({0, 1, 'x', 'y', 255, 7, 0, 0}) << QByteArray("x");
}

void tst_StringPatch::corruptPatchesAreHarmless()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, patch);
    QFETCH(QByteArray, result);
    // Strings of exactly their size, so that a sanitizer sees one byte too many.
    std::string text;
    LogCapture log;
    QVERIFY(
        StringPatch::ApplyStringPatch(base.toStdString(), QByteArray(patch.constData(), patch.size()), text));
    QCOMPARE(QByteArray::fromStdString(text), result);
    QCOMPARE(log.lines(), QStringList());
}

void tst_StringPatch::everyTruncationIsHarmless()
{
    const std::string base = "The quick brown fox";
    const QByteArray patch = header(20) + bytes({255, 4, 0, 4,   0,   1,   'X', 'Y', 254, 0, 0, 2, 0,
                                                 1,   1, 0, 'p', 'q', 250, 19,  0,   0,   0, 7, 0});
    std::string whole;
    QVERIFY(StringPatch::ApplyStringPatch(base, patch, whole));
    QCOMPARE(QByteArray::fromStdString(whole), QByteArray("quickXYThepqquickXYT"));
    for (int size = 0; size < patch.size(); ++size) {
        std::string text;
        QVERIFY(StringPatch::ApplyStringPatch(base, patch.left(size), text));
        QCOMPARE(text.size(), std::size_t(size < 4 ? 0 : 20));
        // What the cut leaves is a beginning of the whole, then zeros.
        const std::size_t zeros = text.find('\0');
        const std::size_t written = zeros == std::string::npos ? text.size() : zeros;
        QCOMPARE(text.substr(0, written), whole.substr(0, written));
        QCOMPARE(text.substr(written), std::string(text.size() - written, '\0'));
    }
}

void tst_StringPatch::randomPatchesMatchTheSlowWay()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo() << "seed" << seed;
    QRandomGenerator random(seed);
    for (int round = 0; round < 2000; ++round) {
        const QByteArray base = numbered(int(random.bounded(300U)));
        QByteArray operations;
        quint32 written = 0;
        for (int count = int(random.bounded(12U)); count > 0; --count) {
            const int length = 1 + int(random.bounded(random.bounded(10U) == 0 ? 600U : 40U));
            const int wide = length > 256 ? 1 : int(random.bounded(2U));
            const QByteArray lengthField =
                wide ? bytes({length - 1, (length - 1) >> 8}) : bytes({length - 1});
            const quint32 readable = quint32(base.size()) + written;
            if (readable == 0 || random.bounded(3U) == 0) {
                operations += bytes({wide}) + lengthField + numbered(length);
            } else {
                const int tag = 250 + 2 * int(random.bounded(3U)) + 1 - wide;
                operations += bytes({tag}) +
                              header(random.bounded(readable))
                                  .left(tag < 252   ? 4
                                        : tag < 254 ? 3
                                                    : 2) +
                              lengthField;
            }
            written += quint32(length);
        }
        const QByteArray patch = header(written + random.bounded(3U)) + operations;
        std::string text;
        QVERIFY(StringPatch::ApplyStringPatch(base.toStdString(), patch, text));
        QCOMPARE(QByteArray::fromStdString(text), applySlowly(base, patch));
    }
}

void tst_StringPatch::randomBytesAreHarmless()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo() << "seed" << seed;
    QRandomGenerator random(seed);
    const int tags[] = {0, 1, 250, 251, 252, 253, 254, 255};
    LogCapture quiet;
    for (int round = 0; round < 20000; ++round) {
        const quint32 targetSize = random.bounded(200U);
        QByteArray patch = header(targetSize);
        for (int count = int(random.bounded(30U)); count > 0; --count) {
            patch += char(random.bounded(2U) == 0 ? tags[random.bounded(8U)] : int(random.bounded(256U)));
        }
        const std::string base(random.bounded(50U), 'b');
        std::string text = "as it was";
        if (StringPatch::ApplyStringPatch(base, patch, text)) {
            QCOMPARE(text.size(), std::size_t(targetSize));
        } else {
            QCOMPARE(text, std::string("as it was"));
        }
    }
}

void tst_StringPatch::hugeTargetOfABrokenPatchTakesNoMemory()
{
    // Room for 2 GB is reserved and never touched. An address sanitizer touches an eighth of it.
    LogCapture quiet;
    std::string text;
    const qint64 before = mostResidentBytes();
    QVERIFY(!StringPatch::ApplyStringPatch(std::string(), header(0x7fffffff) + bytes({0, 0, 'x', 2}), text));
    const qint64 grown = mostResidentBytes() - before;
    QVERIFY2(grown < 1 << 30, qPrintable(QString::number(grown)));
}

QTEST_GUILESS_MAIN(tst_StringPatch)
#include "tst_StringPatch.moc"
