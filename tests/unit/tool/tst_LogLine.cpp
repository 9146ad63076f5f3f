#include "LogCapture.h"
#include "tool/LogLine.h"

#include <QTest>

#include <limits>

/// Lines of the log: what stands in front, and what becomes of a text that is too long for one.
class tst_LogLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithSourceFunctionAndNumber();
    void writesWholeWhatFits();
    void writesListsInBrackets();
    void cutsWhatWouldNotFit_data();
    void cutsWhatWouldNotFit();
    void countsEscapesAsTheyAreWritten();
    void sharesTheRoomOfALine();
    void hasRoomForTheLongestPrintablePayload();
};

namespace {

QString lineOf(int most, const QString &text)
{
    QString written;
    LogLine(QDebug(&written).nospace(), most) << text;
    return written;
}

QStringList manyTexts()
{
    QStringList texts;
    for (int i = 0; i < 1 << 19; ++i) {
        texts.append(QString());
    }
    return texts;
}

} // namespace

void tst_LogLine::beginsWithSourceFunctionAndNumber()
{
    LogCapture log;
    logDebug("source", "Class::function", 12) << QStringLiteral("text") << 3;
    logWarning("source", "Class::function", 13) << QByteArray("\x80");
    QCOMPARE(log.debugs(), QStringList{QStringLiteral("source Class::function 12 \"text\" 3")});
    QCOMPARE(log.warnings(), QStringList{QStringLiteral("source Class::function 13 \"\\x80\"")});
}

void tst_LogLine::writesWholeWhatFits()
{
    LogCapture log;
    const QVariantMap map = {{QStringLiteral("number"), 1}, {QStringLiteral("text"), QStringLiteral("c")}};
    logDebug("s", "f", 1) << QString()
                          << QByteArray("\x01"
                                        "a")
                          << map << "plain" << true;
    QString expected;
    QDebug(&expected) << "s"
                      << "f" << 1 << QString()
                      << QByteArray("\x01"
                                    "a")
                      << map << "plain" << true;
    QCOMPARE(log.lines(), QStringList{expected.trimmed()});
}

void tst_LogLine::writesListsInBrackets()
{
    LogCapture log;
    const QStringList texts = {QStringLiteral("a\x01"), QString(), QStringLiteral("b")};
    logDebug("s", "f", 1) << texts << QStringList() << QList<int>{1, 2} << "plain";
    QCOMPARE(log.lines(), QStringList{QStringLiteral(R"(s f 1 ("a\u0001", "", "b") () (1, 2) plain)")});
}

void tst_LogLine::cutsWhatWouldNotFit_data()
{
    QTest::addColumn<QVariant>("value");
    const QString text(1 << 20, QChar(3));
    QTest::newRow("text") << QVariant(text);
    QTest::newRow("bytes") << QVariant(QByteArray(1 << 20, '\x80'));
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("first"), text, QStringLiteral("last")});
    QTest::newRow("list of many") << QVariant(manyTexts());
    QTest::newRow("map") << QVariant(
        QVariantMap{{QStringLiteral("first"), 1}, {QStringLiteral("key"), text}});
}

void tst_LogLine::cutsWhatWouldNotFit()
{
    QFETCH(QVariant, value);
    constexpr int kMost = 1 << 20;
    QString written;
    {
        LogLine line(QDebug(&written).nospace(), kMost);
        switch (value.userType()) {
        case QMetaType::QString:
            line << value.toString();
            break;
        case QMetaType::QByteArray:
            line << value.toByteArray();
            break;
        case QMetaType::QStringList:
            line << value.toStringList();
            break;
        default:
            line << value.toMap();
        }
    }
    // All that there is room for, but for a piece of the text that does not fit whole.
    QVERIFY2(written.size() < kMost + 100, qPrintable(QString::number(written.size())));
    QVERIFY2(written.size() > kMost / 2, qPrintable(QString::number(written.size())));
    QVERIFY(written.endsWith(QLatin1String("(cut)")));
    QVERIFY(!written.contains(QStringLiteral("last")));
}

void tst_LogLine::countsEscapesAsTheyAreWritten()
{
    // The same number of characters: printed as they are they fit, escaped they do not.
    constexpr int kSize = 1 << 20;
    constexpr int kMost = 2 * kSize;
    const QString plain(kSize, QLatin1Char('x'));
    QCOMPARE(lineOf(kMost, plain), QLatin1Char('"') + plain + QLatin1Char('"'));
    QVERIFY(lineOf(kMost, QString(kSize, QChar(3))).endsWith(QLatin1String("(cut)")));
}

void tst_LogLine::sharesTheRoomOfALine()
{
    constexpr int kSize = 1 << 20;
    const QString text(kSize, QLatin1Char('x'));
    QString written;
    LogLine(QDebug(&written).nospace(), 2 * kSize) << text << text << text;
    QVERIFY(written.startsWith(QLatin1Char('"') + text + QLatin1Char('"')));
    QVERIFY(written.size() < 2 * kSize + 100);
    QCOMPARE(written.count(QStringLiteral("(cut)")), 2);
}

void tst_LogLine::hasRoomForTheLongestPrintablePayload()
{
    constexpr qint64 kMostPayload = qint64(1) << 28;
    QVERIFY(LogLine::kMostCharacters > kMostPayload + 1000);
    // Four bytes each, in a container of Qt.
    QVERIFY(qint64(LogLine::kMostCharacters) * 4 < std::numeric_limits<int>::max() - 1000000);
}

QTEST_APPLESS_MAIN(tst_LogLine)
#include "tst_LogLine.moc"
