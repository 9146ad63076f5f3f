#include "PatchBytes.h"
#include "ProgramDirectory.h"
#include "tool/JsonWrapper.h"

#include <QJsonArray>

#include <new>

/// The texts of the reply: how they are translated and written.
class tst_PresetTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replyIsOneJsonObject();
    void tableKeysAreRegularExpressions();
    void onlyRowsForLessonsRun();
    void fileOutsideTheTableIsNotTranslated();
    void eachRequestUsesItsOwnTable();
    void textsThatAreNoJson_data();
    void textsThatAreNoJson();
    void lackOfMemoryEndsTheRequest();
    void textsThatMakeTooMuchDataEndTheRequest();
    void unwrittenBytesAreAText();
    void textThatIsNotUtf8IsReplaced();
    void textIsCompactAndEscaped();
};

void tst_PresetTexts::replyIsOneJsonObject()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Other.json-patch"),
                    PatchBytes::insertion("{ \"a\" : \"x/y\" }\n"));
    QCOMPARE(program.reply(step(1)), QStringLiteral(R"({"data/Other.json":"{\"a\":\"x/y\"}"})"));
    program.addFile(step(1), QStringLiteral("Second.json-patch"), PatchBytes::insertion("[]"));
    const QString first = QStringLiteral(R"("data/Other.json":"{\"a\":\"x/y\"}")");
    const QString second = QStringLiteral(R"("data/Second.json":"[]")");
    const QString reply = program.reply(step(1));
    // The members stand in no order of their own.
    QVERIFY(reply == QStringLiteral("{%1,%2}").arg(first, second) ||
            reply == QStringLiteral("{%1,%2}").arg(second, first));
}

void tst_PresetTexts::tableKeysAreRegularExpressions()
{
    const ProgramDirectory program;
    const QByteArray map = R"({"events":[{"name":"inn","pages":[]}]})";
    const QByteArray things = R"([{"name":"inn"}])";
    program.addFile(step(1), QStringLiteral("Map001.json-patch"), PatchBytes::insertion(map));
    program.addFile(step(1), QStringLiteral("MapInfos.json-patch"), PatchBytes::insertion(things));
    program.addFile(step(1), QStringLiteral("Items.json-patch"),
                    PatchBytes::insertion(R"([{"name":"a","description":""}])"));
    program.addFile(step(1), QStringLiteral("ItemsXjson-patch"),
                    PatchBytes::insertion(R"([{"name":"a","description":"b"}])"));
    program.addFile(step(1), QStringLiteral("MyItems.json-patch"),
                    PatchBytes::insertion(R"([{"name":"a"}])"));
    program.addFile(step(1), QStringLiteral("Items.json2-patch"), PatchBytes::insertion(R"([{"name":"a"}])"));
    LogCapture log;
    const QJsonObject reply = program.replyObject(step(1));
    const QJsonObject expected{
        {QStringLiteral("data/Map001.json"),
         QStringLiteral(R"({"events":[{"name":"Tutorial:inn","pages":[]}]})")},
        {QStringLiteral("data/MapInfos.json"), QStringLiteral(R"([{"name":"Tutorial:inn"}])")},
        {QStringLiteral("data/Items.json"), QStringLiteral(R"([{"description":"","name":"Tutorial:a"}])")},
        {QStringLiteral("data/ItemsXjson"),
         QStringLiteral(R"([{"description":"Tutorial:b","name":"Tutorial:a"}])")},
        {QStringLiteral("data/MyItems.json"), QStringLiteral(R"([{"name":"a"}])")},
        {QStringLiteral("data/Items.json2"), QStringLiteral(R"([{"name":"a"}])")}};
    QCOMPARE(reply, expected);
    QCOMPARE(log.warnings(), QStringList());
}

void tst_PresetTexts::onlyRowsForLessonsRun()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("System.json-patch"),
                    PatchBytes::insertion(R"({"currencyUnit":"G","switches":["door"]})"));
    LogCapture log;
    QCOMPARE(program.replyObject(step(1)).value(QStringLiteral("data/System.json")).toString(),
             QStringLiteral(R"({"currencyUnit":"G","switches":["Tutorial:door"]})"));
    QCOMPARE(log.warnings(), QStringList());
}

void tst_PresetTexts::fileOutsideTheTableIsNotTranslated()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Other.json-patch"), PatchBytes::insertion(R"([{"name":"a"}])"));
    QCOMPARE(program.replyObject(step(1)).value(QStringLiteral("data/Other.json")).toString(),
             QStringLiteral(R"([{"name":"a"}])"));
}

void tst_PresetTexts::eachRequestUsesItsOwnTable()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Other.json-patch"),
                    PatchBytes::insertion(R"({"a":"x","b":"y"})"));
    const auto textWith = [&program](const QString &file, const QString &key) {
        const SampleTable table{
            {file,
             {{QStringLiteral("translateKeyText"), QStringLiteral("tutorial"), QStringLiteral("T"), key}}}};
        const QString reply = presetData(step(1), program.path(), table, translation);
        return reply.section(QLatin1Char(':'), 1).remove(QLatin1Char('\\'));
    };
    const QString a = QStringLiteral(R"("{"a":"T:x","b":"y"}"})");
    const QString b = QStringLiteral(R"("{"a":"x","b":"T:y"}"})");
    const QString none = QStringLiteral(R"("{"a":"x","b":"y"}"})");
    const QString file = QStringLiteral("Other.json");
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(textWith(file, QStringLiteral("a")), a);
        QCOMPARE(textWith(file, QStringLiteral("b")), b);
        QCOMPARE(textWith(QStringLiteral("Items.json"), QStringLiteral("b")), none);
    }
}

void tst_PresetTexts::textsThatAreNoJson_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("no JSON") << QByteArray("{") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("number") << QByteArray("12") << QStringLiteral("12");
    QTest::newRow("null") << QByteArray("null") << QStringLiteral("null");
}

void tst_PresetTexts::textsThatAreNoJson()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Items.json-patch"), PatchBytes::insertion(bytes));
    LogCapture log;
    const QJsonObject reply = program.replyObject(step(1));
    QCOMPARE(reply.keys(), QStringList{QStringLiteral("data/Items.json")});
    QCOMPARE(reply.value(QStringLiteral("data/Items.json")), QJsonValue(text));
    // Each of the two rows of the file complains.
    QCOMPARE(
        warningTexts(log).filter(QStringLiteral("translateArrayKeyText 574 wrapper is not array")).size(), 2);
}

void tst_PresetTexts::lackOfMemoryEndsTheRequest()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Items.json-patch"),
                    PatchBytes::insertion(R"([{"name":"a","description":"b"}])"));
    LogCapture log;
    const QString reply = presetData(
        step(1), program.path(), buildSampleTable(),
        [](const QString & /*context*/, const QString & /*text*/) -> QString { throw std::bad_alloc(); });
    QVERIFY(reply.isNull());
    QCOMPARE(
        warningTexts(log),
        QStringList{source() + QStringLiteral("1072 Not enough memory for the data files of \"step1\"")});
}

void tst_PresetTexts::textsThatMakeTooMuchDataEndTheRequest()
{
    // Sixteen texts of one character, each of which becomes as many as all of them may be longer.
    constexpr int kTexts = 16;
    QByteArray switches = "a";
    for (int i = 1; i < kTexts; ++i) {
        switches += "\",\"a";
    }
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("System.json-patch"),
                    PatchBytes::insertion("{\"switches\":[\"" + switches + "\"]}"));
    const auto isAnswered = [&program](int length) {
        return !presetData(step(1), program.path(), buildSampleTable(),
                           [length](const QString & /*context*/, const QString & /*text*/) {
                               return QString(length, QLatin1Char('b'));
                           })
                    .isNull();
    };
    constexpr int kMost = int(kMostPresetBytes) / kTexts + 1;
    LogCapture log;
    QVERIFY(isAnswered(kMost));
    QCOMPARE(log.warnings(), QStringList());
    QVERIFY(!isAnswered(kMost + 1));
    QCOMPARE(warningTexts(log),
             QStringList{source() +
                         QStringLiteral("1057 Too much data for an answer with the texts of \"step1\"")});
}

void tst_PresetTexts::unwrittenBytesAreAText()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Other.json-patch"), PatchBytes::header(5));
    LogCapture log;
    const QString zeroes(5, QChar(0));
    const QString expected = JsonWrapper(zeroes).toJson();
    log.clear();
    const QJsonObject reply = program.replyObject(step(1));
    QCOMPARE(reply.keys(), QStringList{QStringLiteral("data/Other.json")});
    QCOMPARE(reply.value(QStringLiteral("data/Other.json")).toString(), expected);
    QVERIFY(!log.contains(QStringLiteral("jsonStr is empty."))); // five characters came, not none
}

void tst_PresetTexts::textThatIsNotUtf8IsReplaced()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Other.json-patch"),
                    PatchBytes::insertion("[\"a\xff\xfe"
                                          "b\"]"));
    LogCapture log;
    const QString replaced =
        QStringLiteral("[\"a") + QString(2, QChar(QChar::ReplacementCharacter)) + QStringLiteral("b\"]");
    QCOMPARE(program.replyObject(step(1)).value(QStringLiteral("data/Other.json")).toString(), replaced);
    QCOMPARE(log.warnings(), QStringList());
}

void tst_PresetTexts::textIsCompactAndEscaped()
{
    const ProgramDirectory program;
    const QString text = QString::fromUtf8("{\n  \"b\": [ 1, 2.5 ],\n  \"a\": \"\\u6f22 \u5b57 \\\"q\\\" "
                                           "\\\\ \\n \\u0001 \\u007f \U0001F600\"\n}\n");
    program.addFile(step(1), QStringLiteral("O \"th\".json-patch"), PatchBytes::insertion(text.toUtf8()));
    const QString compact =
        QString::fromUtf8(QJsonDocument::fromJson(text.toUtf8()).toJson(QJsonDocument::Compact));
    const QString escaped =
        QString::fromUtf8(QJsonDocument(QJsonArray{compact}).toJson(QJsonDocument::Compact));
    QCOMPARE(program.reply(step(1)), QStringLiteral("{\"data/O \\\"th\\\".json\":") +
                                         escaped.mid(1, escaped.size() - 2) + QLatin1Char('}'));
}

QTEST_GUILESS_MAIN(tst_PresetTexts)
#include "tst_PresetTexts.moc"
