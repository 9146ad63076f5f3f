#include "PatchBytes.h"
#include "ProgramDirectory.h"
#include "tool/LogLine.h"

#include <QtTest>

#include <limits>

namespace {

qint64 longestLine = 0; ///< In characters.

/// Does to a line what it takes to print it.
void encodeLine(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &line)
{
    longestLine = qMax(longestLine, qint64(line.size()));
    const QByteArray encoded = line.toUtf8();
    QVERIFY(!encoded.isEmpty());
}

} // namespace

/// What the largest data files do that there is an answer for. A log line that memory or a container runs out
/// for ends the process, and this test with it.
class tst_PresetLimit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worstCharactersAreAnswered_data();
    void worstCharactersAreAnswered();
};

void tst_PresetLimit::worstCharactersAreAnswered_data()
{
    QTest::addColumn<char>("character");
    QTest::addColumn<char>("quote");
    QTest::addColumn<bool>("isJson");
    QTest::addColumn<qint64>("perByte");
    // One text that stands in a line twice: as "\\xEF\\xBF\\xBD", for which the line is cut, and as
    // "\\\\u0001".
    QTest::newRow("text that is no UTF-8") << '\xff' << '"' << true << qint64(24);
    QTest::newRow("text of control characters") << '\x01' << '"' << true << qint64(14);
    // As "\\u0001", once.
    QTest::newRow("no JSON") << '\x01' << ' ' << false << qint64(6);
}

void tst_PresetLimit::worstCharactersAreAnswered()
{
    QFETCH(char, character);
    QFETCH(char, quote);
    QFETCH(bool, isJson);
    QFETCH(qint64, perByte);
    QByteArray text(int(kMostPresetBytes), character);
    text.front() = quote;
    text.back() = quote;
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Other.json-patch"), PatchBytes::insertion(text));
    longestLine = 0;
    const QtMessageHandler previousHandler = qInstallMessageHandler(&encodeLine);
    const QString reply = program.reply(step(1));
    qInstallMessageHandler(previousHandler);
    // The line was as long as it can be; where it is cut, but for a piece of the text that did not fit whole.
    const qint64 whole = perByte * (text.size() - 10);
    constexpr qint64 kLongestCut = LogLine::kMostCharacters - (1 << 20);
    QVERIFY2(longestLine > qMin(whole, kLongestCut), qPrintable(QString::number(longestLine)));
    // It also fits in an encoding of four bytes a character.
    QVERIFY(4 * longestLine < std::numeric_limits<int>::max());
    QVERIFY(reply.startsWith(QStringLiteral("{\"data/Other.json\":")));
    QCOMPARE(reply.size() > text.size(), isJson);
}

QTEST_GUILESS_MAIN(tst_PresetLimit)
#include "tst_PresetLimit.moc"
