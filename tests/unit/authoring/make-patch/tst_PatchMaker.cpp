#include "make-patch/PatchMaker.h"
#include "tool/StringPatch.h"

#include <QObject>
#include <QRandomGenerator>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <ctime>

namespace {

/// Makes a patch and applies it, whatever PatchMaker has proven by itself.
QByteArray patchFor(const std::string &base, const std::string &target)
{
    QByteArray patch("as it was");
    QString error;
    if (!PatchMaker::makePatch(base, target, patch, error)) {
        qFatal("%s", qPrintable(error));
    }
    std::string result;
    if (!StringPatch::ApplyStringPatch(base, patch, result) || result != target) {
        qFatal("the patch does not give the target");
    }
    return patch;
}

std::string randomBytes(QRandomGenerator &random, std::size_t size)
{
    std::string bytes(size, '\0');
    for (char &byte : bytes) {
        byte = char(random.bounded(256U));
    }
    return bytes;
}

std::string randomBits(QRandomGenerator &random, std::size_t size)
{
    std::string bits(size, 'a');
    for (char &bit : bits) {
        bit = char('a' + int(random.bounded(2U)));
    }
    return bits;
}

/// A text of @p size bytes made of few words, so that it repeats itself.
std::string randomText(QRandomGenerator &random, std::size_t size)
{
    static const char *const words[] = {
        "village", "shop", " ", "\n", "{\"id\":", "},", "\xe6\x9d\x91", "a", "b", "0"};
    std::string text;
    while (text.size() < size) {
        text += words[random.bounded(10U)];
    }
    text.resize(size);
    return text;
}

/// The JSON of a data file whose items resemble each other, a little more than a million bytes.
std::string megabyteOfJson()
{
    std::string json = "[null";
    for (int i = 1; json.size() < 1048576; ++i) {
        json += ",\n{\"id\":" + std::to_string(i) + ",\"name\":\"Item " + std::to_string(i * 7 % 97) +
                "\",\"description\":\"A thing of some use.\",\"price\":" + std::to_string(i * 31 % 1009) +
                ",\"traits\":[{\"code\":22,\"dataId\":0,\"value\":0.95}],\"note\":\"\"}";
    }
    return json + "\n]";
}

/// Inserts, removes, moves or overwrites a piece of @p text.
void edit(QRandomGenerator &random, std::string &text)
{
    const std::size_t at = random.bounded(quint32(text.size() + 1));
    const std::size_t count = random.bounded(40U);
    switch (random.bounded(4U)) {
    case 0:
        text.insert(at, randomText(random, count));
        break;
    case 1:
        text.erase(at, count);
        break;
    case 2: {
        const std::string piece = text.substr(at, count);
        text.erase(at, count);
        text.insert(random.bounded(quint32(text.size() + 1)), piece);
        break;
    }
    default:
        text.replace(at, count, randomBytes(random, count));
        break;
    }
}

} // namespace

Q_DECLARE_METATYPE(std::string)

class tst_PatchMaker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallestForm_data();
    void smallestForm();
    void identityOfAMegabyteIsTiny_data();
    void identityOfAMegabyteIsTiny();
    void oneWordEditOfAMegabyteOfJsonIsTiny();
    void manyEditsCostAFewBytesEach();
    void movedBlockIsCopied();
    void noiseCostsLittleMoreThanItself();
    void matchesBehindLongNoiseAreFoundWhole();
    void progressIsTold();
    void repetitionIsOverlappingCopy();
    void randomEditsRoundTrip();
    void unrelatedTextsRoundTrip();
    void timeGrowsWithLengthOnly_data();
    void timeGrowsWithLengthOnly();
};

void tst_PatchMaker::smallestForm_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QByteArray>("patch");
    const auto size = [](int value) {
        return QByteArray(1, char(value)) + char(value >> 8) + char(value >> 16) + char(value >> 24);
    };
    QRandomGenerator random(1);
    const QByteArray noise = QByteArray::fromStdString(randomBytes(random, 0x1000000 + 300));

    QTest::newRow("nothing from nothing") << QByteArray() << QByteArray() << size(0);
    QTest::newRow("nothing from something") << QByteArray("abc") << QByteArray() << size(0);
    QTest::newRow("zeros need no operation") << QByteArray("abc") << QByteArray(1000, '\0') << size(1000);
    QTest::newRow("one byte") << QByteArray() << QByteArray("a") << size(1) + QByteArray("\0\0a", 3);
    QTest::newRow("too short to copy")
        << QByteArray("abcd") << QByteArray("abcd") << size(4) + QByteArray("\0\3abcd", 6);
    QTest::newRow("one-byte length") << noise.left(256) << noise.left(256)
                                     << size(256) + QByteArray("\xff\0\0\xff", 4);
    QTest::newRow("two-byte length") << noise.left(257) << noise.left(257)
                                     << size(257) + QByteArray("\xfe\0\0\0\1", 5);
    QTest::newRow("longest operation")
        << noise.left(65536) << noise.left(65536) << size(65536) + QByteArray("\xfe\0\0\xff\xff", 5);
    QTest::newRow("more than the longest operation")
        << noise.left(65545) << noise.left(65545)
        << size(65545) + QByteArray("\xfe\0\0\xff\xff\xfd\0\0\1\x8", 10);
    QTest::newRow("last two-byte offset")
        << noise.left(0xffff + 20) << noise.mid(0xffff, 20) << size(20) + QByteArray("\xff\xff\xff\x13", 4);
    QTest::newRow("first three-byte offset")
        << noise.left(0x10000 + 20) << noise.mid(0x10000, 20) << size(20) + QByteArray("\xfd\0\0\1\x13", 5);
    QTest::newRow("three-byte offset, two-byte length")
        << noise.left(0x10000 + 300) << noise.mid(0x10000, 300)
        << size(300) + QByteArray("\xfc\0\0\1\x2b\1", 6);
    QTest::newRow("four-byte offset, two-byte length")
        << noise << noise.mid(0x1000000, 300) << size(300) + QByteArray("\xfa\0\0\0\1\x2b\1", 7);
    QTest::newRow("insert of 257") << QByteArray() << noise.left(257)
                                   << size(257) + QByteArray("\1\0\1", 3) + noise.left(257);
    QTest::newRow("insert of more than one operation holds")
        << QByteArray() << noise.left(65537)
        << size(65537) + QByteArray("\1\xff\xff", 3) + noise.left(65536) + QByteArray("\0\0", 2) +
               noise.mid(65536, 1);
}

void tst_PatchMaker::smallestForm()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, target);
    QFETCH(QByteArray, patch);
    QCOMPARE(patchFor(base.toStdString(), target.toStdString()), patch);
}

void tst_PatchMaker::identityOfAMegabyteIsTiny_data()
{
    QTest::addColumn<std::string>("text");
    QRandomGenerator random(2);
    QTest::newRow("JSON") << megabyteOfJson();
    QTest::newRow("noise") << randomBytes(random, 1 << 20);
    QTest::newRow("one letter") << std::string(1 << 20, 'a');
}

void tst_PatchMaker::identityOfAMegabyteIsTiny()
{
    QFETCH(std::string, text);
    const int size = patchFor(text, text).size();
    QVERIFY2(size < 130, qPrintable(QString::number(size)));
}

void tst_PatchMaker::oneWordEditOfAMegabyteOfJsonIsTiny()
{
    const std::string base = megabyteOfJson();
    for (const std::size_t place : {base.size() / 7, base.size() / 2, base.size() - 300}) {
        std::string target = base;
        const std::size_t word = target.find("thing", place);
        QVERIFY(word != std::string::npos);
        target.replace(word, 5, "remedy");
        QVERIFY(patchFor(base, target).size() < 400);
        QVERIFY(patchFor(target, base).size() < 400);
    }
}

void tst_PatchMaker::manyEditsCostAFewBytesEach()
{
    const std::string base = megabyteOfJson();
    std::string target = base;
    constexpr std::size_t kEdits = 100;
    for (std::size_t i = kEdits; i > 0; --i) {
        target.replace(target.find("thing", base.size() / (kEdits + 1) * i), 5, "remedy");
    }
    const int size = patchFor(base, target).size();
    QVERIFY2(size < int(kEdits) * 30, qPrintable(QString::number(size)));
}

void tst_PatchMaker::movedBlockIsCopied()
{
    const std::string base = megabyteOfJson();
    const std::string target = base.substr(400000, 100000) + base.substr(0, 400000) + base.substr(500000);
    const int size = patchFor(base, target).size();
    QVERIFY2(size < 200, qPrintable(QString::number(size)));
}

void tst_PatchMaker::noiseCostsLittleMoreThanItself()
{
    QRandomGenerator random(3);
    const std::string target = randomBytes(random, 1 << 20);
    QVERIFY(patchFor(randomBytes(random, 1 << 20), target).size() < int(target.size()) + 100);
}

void tst_PatchMaker::matchesBehindLongNoiseAreFoundWhole()
{
    // The noise is long enough for the search to go on in its longest strides.
    QRandomGenerator random(5);
    const std::string noise = randomBytes(random, 1 << 20);
    const std::string fromBase = randomBytes(random, 5001);
    const QByteArray patch =
        patchFor(fromBase, noise + fromBase + noise.substr(700001, 5003) + noise.substr(1001, 5003));
    // Three copies, and the operations of the noise.
    QVERIFY2(patch.size() < int(noise.size()) + 3 * 7 + 17 * 3 + 4,
             qPrintable(QString::number(patch.size())));
}

void tst_PatchMaker::progressIsTold()
{
    QRandomGenerator random(6);
    const std::size_t size = (3 << 20) + 4096;
    QVector<std::size_t> told;
    QByteArray patch;
    QString error;
    QVERIFY(PatchMaker::makePatch(
        {}, randomBytes(random, size), patch, error,
        [&told](std::size_t done, std::size_t all) { told << (all == size ? done : size + 1); }));
    QCOMPARE(told.size(), 4);
    QCOMPARE(told.constFirst(), std::size_t(0));
    QVERIFY(std::is_sorted(told.cbegin(), told.cend()) && told.constLast() <= size);
    told.clear();
    QVERIFY(PatchMaker::makePatch({}, "short", patch, error,
                                  [&told](std::size_t done, std::size_t /*size*/) { told << done; }));
    QVERIFY(told.isEmpty());
}

void tst_PatchMaker::repetitionIsOverlappingCopy()
{
    std::string target;
    while (target.size() < 60000) {
        target += "do re mi ";
    }
    const QByteArray patch = patchFor(std::string(), target);
    QVERIFY2(patch.size() < 24, patch.toHex().constData());
}

void tst_PatchMaker::randomEditsRoundTrip()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo() << "seed" << seed;
    QRandomGenerator random(seed);
    for (int round = 0; round < 1000; ++round) {
        const std::string base = randomText(random, random.bounded(random.bounded(20U) == 0 ? 90000U : 800U));
        std::string target = base;
        for (quint32 edits = random.bounded(10U); edits > 0; --edits) {
            edit(random, target);
        }
        const int size = patchFor(base, target).size();
        const int inserts = 1 + int(target.size()) / 65536;
        QVERIFY(size <= 4 + 3 * inserts + int(target.size()));
    }
}

void tst_PatchMaker::unrelatedTextsRoundTrip()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo() << "seed" << seed;
    QRandomGenerator random(seed);
    const auto any = [&random] {
        const std::size_t size = random.bounded(3000U);
        switch (random.bounded(4U)) {
        case 0:
            return randomBytes(random, size);
        case 1:
            return randomText(random, size);
        case 2:
            return randomBits(random, size);
        default:
            return std::string(size, char(random.bounded(2U)));
        }
    };
    for (int round = 0; round < 1000; ++round) {
        const std::string base = any();
        const std::string target = any();
        QVERIFY(patchFor(base, target).size() <= 4 + 3 + int(target.size()));
    }
}

void tst_PatchMaker::timeGrowsWithLengthOnly_data()
{
    QTest::addColumn<std::string>("base");
    QTest::addColumn<std::string>("target");
    QRandomGenerator random(4);
    const std::string bits = randomBits(random, 1 << 20);
    const std::string repeated = std::string(1 << 20, 'a');
    QTest::newRow("noise from noise") << randomBytes(random, 1 << 20) << randomBytes(random, 1 << 20);
    QTest::newRow("one letter from nothing") << std::string() << repeated;
    QTest::newRow("two letters from one") << repeated << bits;
    QTest::newRow("one letter from two") << bits << repeated;
    QTest::newRow("JSON from nothing") << std::string() << megabyteOfJson();
}

void tst_PatchMaker::timeGrowsWithLengthOnly()
{
    QFETCH(std::string, base);
    QFETCH(std::string, target);
    // A megabyte takes a second at the worst, some more under a sanitizer; with time in the square of the
    // length it would take hours. The processor's time, since other programs may want the processor too.
    const std::clock_t start = std::clock();
    patchFor(base, target);
    const std::clock_t seconds = (std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 20, qPrintable(QString::number(seconds)));
}

QTEST_GUILESS_MAIN(tst_PatchMaker)
#include "tst_PatchMaker.moc"
