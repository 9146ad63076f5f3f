#include "FilledParts.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/UsedValues.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

QStringList words(const char *text)
{
    return filledParts(QString::fromLatin1(text), QLatin1Char(' '));
}

QList<int> numbers(const char *text)
{
    QList<int> list;
    const QStringList parts = words(text);
    for (const QString &part : parts) {
        list << part.toInt();
    }
    return list;
}

} // namespace

/// Which number and which name a new item gets, asked one by one and remembered.
class tst_UsedValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextFreeNumberFillsTheLowestGap_data();
    void nextFreeNumberFillsTheLowestGap();
    void freeNumbersGiveWhatTheSearchGives();
    void uniqueNames_data();
    void uniqueNames();
    void usedNamesGiveWhatTheSearchGives();
};

void tst_UsedValues::nextFreeNumberFillsTheLowestGap_data()
{
    QTest::addColumn<QList<int>>("used");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("free");
    QTest::newRow("none used") << numbers("") << 1 << 1;
    QTest::newRow("no gap") << numbers("1 2 3") << 1 << 4;
    QTest::newRow("gap at the start") << numbers("2 3") << 1 << 1;
    QTest::newRow("gap inside") << numbers("1 3") << 1 << 2;
    QTest::newRow("unsorted") << numbers("4 1 2") << 1 << 3;
    QTest::newRow("below the start") << numbers("-9 0 1 2") << 1 << 3;
    QTest::newRow("all below the start") << numbers("1 2 3") << 10 << 10;
    QTest::newRow("another start") << numbers("1 5 6 8") << 5 << 7;
    QTest::newRow("a number twice hides a gap") << numbers("1 1 3") << 1 << 4;
    QTest::newRow("a number twice at the end") << numbers("1 2 2") << 1 << 3;
}

void tst_UsedValues::nextFreeNumberFillsTheLowestGap()
{
    QFETCH(QList<int>, used);
    QFETCH(int, start);
    QTEST(nextFreeNumber(used, start), "free");
    QCOMPARE(FreeNumbers(used, start).take(), nextFreeNumber(used, start));
}

void tst_UsedValues::freeNumbersGiveWhatTheSearchGives()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 500; ++round) {
        QList<int> used;
        const int count = random.bounded(12);
        for (int i = 0; i < count; ++i) {
            used << random.bounded(-3, 14);
        }
        const int start = random.bounded(-2, 5);
        FreeNumbers numbersLeft(used, start);
        for (int i = 0; i < 12; ++i) {
            const int expected = nextFreeNumber(used, start);
            QCOMPARE(numbersLeft.take(), expected);
            used << expected;
        }
    }
}

void tst_UsedValues::uniqueNames_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("unique");
    QTest::newRow("numbered, first") << words("") << 3 << QStringLiteral("folder001");
    QTest::newRow("numbered, next") << words("folder007") << 3 << QStringLiteral("folder008");
    QTest::newRow("numbered, not a number") << words("folder7x") << 3 << QStringLiteral("folder001");
    QTest::newRow("numbered, the base is there") << words("folder") << 3 << QStringLiteral("folder001");
    QTest::newRow("numbered, brackets do not count")
        << words("folder(5)") << 3 << QStringLiteral("folder001");
    QTest::newRow("numbered, beyond the digits")
        << words("folder12345") << 3 << QStringLiteral("folder12346");
    QTest::newRow("numbered, too large")
        << words("folder99999999999 folder2") << 3 << QStringLiteral("folder003");
    QTest::newRow("numbered, the largest int")
        << words("folder2147483647") << 3 << QStringLiteral("folder2147483648");
    QTest::newRow("numbered, a sign") << words("folder-4 folder+4") << 3 << QStringLiteral("folder001");
    QTest::newRow("numbered, no digits asked") << words("folder2") << 0 << QStringLiteral("folder3");
    QTest::newRow("brackets, base free") << words("folder(5)") << -1 << QStringLiteral("folder");
    QTest::newRow("brackets, base taken") << words("folder") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, next") << words("folder folder(5)") << -1 << QStringLiteral("folder(6)");
    QTest::newRow("brackets, before the base")
        << words("folder(5) folder") << -1 << QStringLiteral("folder(6)");
    QTest::newRow("brackets, leading zero")
        << words("folder folder(05)") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, plus sign") << words("folder folder(+5)") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, negative") << words("folder folder(-5)") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, empty") << words("folder folder()") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, twice") << words("folder folder(1)(7)") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, numbers do not count")
        << words("folder folder9") << -1 << QStringLiteral("folder(1)");
    QTest::newRow("brackets, any negative") << words("folder") << -7 << QStringLiteral("folder(1)");
    QTest::newRow("always brackets, base free") << words("") << -2 << QStringLiteral("folder(1)");
    QTest::newRow("always brackets, next") << words("folder(3)") << -2 << QStringLiteral("folder(4)");
}

void tst_UsedValues::uniqueNames()
{
    QFETCH(QStringList, names);
    QFETCH(int, digits);
    QTEST(uniqueName(names, QStringLiteral("folder"), digits), "unique");
    QTEST(UsedNames(names).unique(QStringLiteral("folder"), digits), "unique");
}

void tst_UsedValues::usedNamesGiveWhatTheSearchGives()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QStringList pieces{QStringLiteral("a"),  QStringLiteral("("), QStringLiteral(")"),
                             QStringLiteral("1"),  QStringLiteral("0"), QStringLiteral("(2)"),
                             QStringLiteral("12"), QStringLiteral("-")};
    const auto randomName = [&] {
        QString name;
        const int count = random.bounded(6);
        for (int i = 0; i < count; ++i) {
            name += pieces.at(random.bounded(pieces.size()));
        }
        return name;
    };
    for (int round = 0; round < 300; ++round) {
        QStringList names;
        UsedNames used;
        for (int i = 0; i < 25; ++i) {
            const QString base = randomName();
            const int digits = random.bounded(-3, 4);
            const QString expected = uniqueName(names, base, digits);
            QCOMPARE(used.unique(base, digits), expected);
            const QString added = random.bounded(2) == 0 ? expected : randomName();
            names << added;
            used.add(added);
        }
    }
}

QTEST_MAIN(tst_UsedValues)
#include "tst_UsedValues.moc"
