#include "JsonSamples.h"

#include <QDate>
#include <QObject>
#include <QTest>

namespace {

QJsonArray smallArray()
{
    return {1, QStringLiteral("two")};
}
QJsonObject smallObject()
{
    return {{QStringLiteral("b"), 1}, {QStringLiteral("a"), QJsonArray()}};
}

} // namespace

class tst_JsonWrapperText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toJson_data();
    void toJson();
    void scalarsAreLoggedWithBothTexts();
    void containersAndNullAreNotLogged();
    void toString_data();
    void toString();
    void notation_data();
    void notation();
    void unknownTypesWarn_data();
    void unknownTypesWarn();
    void unknownElementLeavesItsPlaceEmpty();
    void hashMembersStandInTheOrderOfTheHash();
    void placeMarkersInAKeyAreFilledIn();
    void escapedTextReadsBack_data();
    void escapedTextReadsBack();
};

void tst_JsonWrapperText::toJson_data()
{
    QTest::addColumn<Wrapper>("wrapper");
    QTest::addColumn<QString>("compact");
    QTest::addColumn<QString>("indented");
    const auto row = [](const char *name, const JsonWrapper &wrapper, const char *compact,
                        const char *indented) {
        QTest::newRow(name) << Wrapper(wrapper) << QString::fromUtf8(compact) << QString::fromUtf8(indented);
    };
    const char *array = "[\n    1,\n    \"two\"\n]\n";
    const char *object = "{\n    \"a\": [\n    ],\n    \"b\": 1\n}\n";
    row("doc array", JsonWrapper(QStringLiteral("[1, \"two\"]")), "[1,\"two\"]", array);
    row("doc object", JsonWrapper(QStringLiteral("{\"b\": 1, \"a\": []}")), "{\"a\":[],\"b\":1}", object);
    row("array", BareWrapper(smallArray()), "[1,\"two\"]", array);
    row("object", BareWrapper(smallObject()), "{\"a\":[],\"b\":1}", object);
    row("value array", JsonWrapper(QJsonValue(smallArray())), "[1,\"two\"]", array);
    row("value object", JsonWrapper(QJsonValue(smallObject())), "{\"a\":[],\"b\":1}", object);
    row("value null", JsonWrapper(QJsonValue()), "null", "null");
    row("value true", JsonWrapper(QJsonValue(true)), "true", "\n    true\n]");
    row("value number", JsonWrapper(QJsonValue(12)), "12", "\n    12\n]");
    row("value string", JsonWrapper(QJsonValue(QStringLiteral("abc"))), "\"abc\"", "\n    \"abc\"\n]");
    row("value beyond Latin", JsonWrapper(QJsonValue(QStringLiteral("\u6751 \U0001F600"))),
        "\"\u6751 \U0001F600\"", "\n    \"\u6751 \U0001F600\"\n]");
    row("value undefined", JsonWrapper(QJsonValue(QJsonValue::Undefined)), "null", "\n    null\n]");
}

void tst_JsonWrapperText::toJson()
{
    QFETCH(Wrapper, wrapper);
    QTEST(wrapper->toJson(), "compact");
    QTEST(wrapper->toJson(false), "compact");
    QTEST(wrapper->toJson(true), "indented");
}

void tst_JsonWrapperText::scalarsAreLoggedWithBothTexts()
{
    LogCapture log;
    QCOMPARE(JsonWrapper(QStringLiteral("12")).toJson(), QStringLiteral("12"));
    QCOMPARE(log.debugs(),
             QStringList{messageSource() + QStringLiteral(" JsonWrapper::toJson 468 \"[12]\" \"12\"")});
}

void tst_JsonWrapperText::containersAndNullAreNotLogged()
{
    LogCapture log;
    for (const JsonWrapper &wrapper :
         {JsonWrapper(QJsonValue()), JsonWrapper(QJsonValue(smallArray())),
          JsonWrapper(QJsonValue(smallObject())), JsonWrapper(QStringLiteral("[1]"))}) {
        QVERIFY(!wrapper.toJson().isEmpty());
    }
    QCOMPARE(log.lines(), QStringList());
}

void tst_JsonWrapperText::toString_data()
{
    QTest::addColumn<Wrapper>("wrapper");
    QTest::addColumn<QString>("text");
    QTest::newRow("doc array") << Wrapper(JsonWrapper(QStringLiteral("[1]"))) << QStringLiteral("kDoc");
    QTest::newRow("doc object") << Wrapper(JsonWrapper(QStringLiteral("{}"))) << QStringLiteral("kDoc");
    QTest::newRow("array") << Wrapper(JsonWrapper(BareWrapper(smallArray()))) << QStringLiteral("kArray(2)");
    QTest::newRow("empty array") << Wrapper(JsonWrapper(BareWrapper(QJsonArray())))
                                 << QStringLiteral("kArray(0)");
    QTest::newRow("object") << Wrapper(JsonWrapper(BareWrapper(smallObject())))
                            << QStringLiteral("kObject(a, b)");
    QTest::newRow("empty object") << Wrapper(JsonWrapper(BareWrapper(QJsonObject())))
                                  << QStringLiteral("kObject()");
    QTest::newRow("value string") << Wrapper(JsonWrapper(QStringLiteral("\"abc\""))) << QStringLiteral("abc");
    QTest::newRow("value escapes") << Wrapper(JsonWrapper(QStringLiteral("\"a\\n\\u6751\"")))
                                   << QStringLiteral("a\n\u6751");
    QTest::newRow("value number") << Wrapper(JsonWrapper(QStringLiteral("12"))) << QString();
    QTest::newRow("value array") << Wrapper(JsonWrapper(QJsonValue(smallArray()))) << QString();
    QTest::newRow("value null") << Wrapper(JsonWrapper(QJsonValue())) << QString();
}

void tst_JsonWrapperText::toString()
{
    QFETCH(Wrapper, wrapper);
    QTEST(wrapper->toString(), "text");
}

void tst_JsonWrapperText::notation_data()
{
    QTest::addColumn<QVariant>("variant");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QVariant &variant, const char *text) {
        QTest::newRow(name) << variant << QString::fromUtf8(text);
    };
    row("true", true, "true");
    row("false", false, "false");
    row("int", -2147483647 - 1, "-2147483648");
    row("uint", 4294967295U, "4294967295");
    row("long long", qlonglong(-9007199254740993), "-9007199254740993");
    row("unsigned long long", qulonglong(18446744073709551615ULL), "18446744073709551615");
    row("double", 1.5, "1.5");
    row("whole double", 2.0, "2");
    row("long double", 3.14159265358979, "3.14159");
    row("large double", 1e20, "1e+20");
    row("string", QStringLiteral("abc"), "\"abc\"");
    row("empty string", QString(), "\"\"");
    row("escapes", QStringLiteral("a\"b\\c\n\t\r\b\f/\u0001"), R"("a\"b\\c\n\t\r\b\f/\u0001")");
    row("beyond Latin", QStringLiteral("\u6751\u4eba \U0001F600"), "\"\u6751\u4eba \U0001F600\"");
    row("place marker", QStringLiteral("%1 %2"), "\"%1 %2\"");
    row("list", QVariantList{1, QStringLiteral("b"), true}, "[ 1, \"b\", true ]");
    row("empty list", QVariantList(), "[  ]");
    row("nested list", QVariantList{QVariant(QVariantList{1}), QVariant(QVariantList())}, "[ [ 1 ], [  ] ]");
    row("hash", QVariantHash{{QStringLiteral("tutorialItemId"), 7}}, "{ \"tutorialItemId\": 7 }");
    row("empty hash", QVariantHash(), "{  }");
    row("key with escapes", QVariantHash{{QStringLiteral("a\"b"), false}}, "{ \"a\\\"b\": false }");
    row("hash of a list", QVariantHash{{QStringLiteral("a"), QVariantList{1, 2}}}, "{ \"a\": [ 1, 2 ] }");
}

void tst_JsonWrapperText::notation()
{
    QFETCH(QVariant, variant);
    LogCapture log;
    QTEST(JsonWrapper::getJsonString(variant), "text");
    QCOMPARE(log.lines(), QStringList());
}

void tst_JsonWrapperText::unknownTypesWarn_data()
{
    QTest::addColumn<QVariant>("variant");
    QTest::newRow("map") << QVariant(QVariantMap{{QStringLiteral("a"), 1}});
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("string list") << QVariant(QStringList{QStringLiteral("a")});
    QTest::newRow("bytes") << QVariant(QByteArray("a"));
    QTest::newRow("date") << QVariant(QDate(2020, 1, 2));
    QTest::newRow("float") << QVariant(1.5F);
}

void tst_JsonWrapperText::unknownTypesWarn()
{
    QFETCH(QVariant, variant);
    LogCapture log;
    QCOMPARE(JsonWrapper::getJsonString(variant), QString());
    QString streamed;
    QDebug(&streamed) << variant;
    QCOMPARE(log.warnings(),
             QStringList{messageSource() + QStringLiteral(" JsonWrapper::getJsonString 1206 Unknown type ") +
                         streamed.trimmed()});
}

void tst_JsonWrapperText::unknownElementLeavesItsPlaceEmpty()
{
    LogCapture log;
    QCOMPARE(JsonWrapper::getJsonString(QVariantList{1, QVariant(), 2}), QStringLiteral("[ 1, , 2 ]"));
    QCOMPARE(log.warnings().size(), 1);
}

void tst_JsonWrapperText::hashMembersStandInTheOrderOfTheHash()
{
    QVariantHash hash;
    for (int i = 0; i < 50; ++i) {
        hash.insert(QStringLiteral("key%1").arg(i), i);
    }
    QStringList members;
    for (auto it = hash.cbegin(); it != hash.cend(); ++it) {
        members << QStringLiteral("\"") + it.key() + QStringLiteral("\": ") +
                       QString::number(it.value().toInt());
    }
    QCOMPARE(JsonWrapper::getJsonString(hash),
             QStringLiteral("{ ") + members.join(QStringLiteral(", ")) + QStringLiteral(" }"));
}

void tst_JsonWrapperText::placeMarkersInAKeyAreFilledIn()
{
    QCOMPARE(JsonWrapper::getJsonString(QVariantHash{{QStringLiteral("a%2b"), 5}}),
             QStringLiteral("{ \"a5b\": 5 }"));
    // The lowest marker is the one that is filled in.
    QCOMPARE(JsonWrapper::getJsonString(QVariantHash{{QStringLiteral("a%1b"), 5}}),
             QStringLiteral("{ \"a5b\": %2 }"));
}

void tst_JsonWrapperText::escapedTextReadsBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quotes") << QStringLiteral("\"\"");
    QTest::newRow("brackets") << QStringLiteral("[\n    ]\n");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("backslashes") << QStringLiteral("\\\\n\\");
    QTest::newRow("zero") << QString(QChar(0));
    QTest::newRow("line separators") << QStringLiteral("\u2028\u2029\u0085");
}

void tst_JsonWrapperText::escapedTextReadsBack()
{
    QFETCH(QString, text);
    QCOMPARE(JsonWrapper(JsonWrapper::getJsonString(text)).toString(), text);
}

QTEST_GUILESS_MAIN(tst_JsonWrapperText)
#include "tst_JsonWrapperText.moc"
