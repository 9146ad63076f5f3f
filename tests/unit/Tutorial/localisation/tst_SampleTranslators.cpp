#include "LogCapture.h"
#include "SampleTexts.h"

#include <QtTest>

class tst_SampleTranslators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreReplaced_data();
    void textsAreReplaced();
    void warnings_data();
    void warnings();
    void onlyRowsForLessonsRun();
    void rowsRunInOrderAndPassOverUnknownNames();
    void rowBehindAFailedOneStillRuns();
    void eachNameCallsItsFunction();
    void wrapperOfAValueIsChangedToo();
    void textThatFailedToParseIsReported();
};

void tst_SampleTranslators::textsAreReplaced_data()
{
    QTest::addColumn<QString>("translator");
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const char *translator, const char *json, const char *result) {
        QTest::newRow(name) << QString::fromUtf8(translator) << QString::fromUtf8(json)
                            << QString::fromUtf8(result);
    };
    const char *key = "translateKeyText";
    row("key", key, R"({"b":1,"k":"a"})", R"({"b":1,"k":"T:a"})");
    row("key, null", key, R"({"k":null})", R"({"k":null})");
    row("key, empty", key, R"({"k":""})", R"({"k":""})");
    row("key, number", key, R"({"k":5})", R"({"k":5})");
    row("key, same", key, R"({"k":"=a"})", R"({"k":"=a"})");
    row("key, nothing", key, R"({"k":"-a"})", R"({"k":"-a"})");

    const char *arrayKey = "translateArrayKeyText";
    row("array of things", arrayKey,
        R"([null,{"k":"a","x":"a"},{"k":"=b"},{"k":"-c"},{"k":""},{"k":null},{"k":"d"}])",
        R"([null,{"k":"T:a","x":"a"},{"k":"=b"},{"k":"-c"},{"k":""},{"k":null},{"k":"T:d"}])");
    row("empty array of things", arrayKey, "[]", "[]");

    const char *keyArray = "translateKeyArrayText";
    row("array under a key", keyArray, R"({"k":["a",null,"","=b","-c",5,{"k":"x"},"d"],"l":["a"]})",
        R"({"k":["T:a",null,"","=b","-c",5,{"k":"x"},"T:d"],"l":["a"]})");
    row("null under a key", keyArray, R"({"k":null})", R"({"k":null})");

    const char *keyKeyArray = "translateKeyKeyArrayText";
    row("array under two keys", keyKeyArray,
        R"({"k":{"l":["a",null,"","=b","-c",5,"d"],"m":["a"]},"l":["a"]})",
        R"({"k":{"l":["T:a",null,"","=b","-c",5,"T:d"],"m":["a"]},"l":["a"]})");
    row("null under the first key", keyKeyArray, R"({"k":null})", R"({"k":null})");
    row("null under the second key", keyKeyArray, R"({"k":{"l":null}})", R"({"k":{"l":null}})");

    const char *anyKey = "translateKeyKeyAnyKeyText";
    row("any key", anyKey,
        R"({"k":{"l":{"a":"a","b":null,"c":"","d":"=d","e":"-e","f":5,"g":"g"},"m":"a"},"l":"a"})",
        R"({"k":{"l":{"a":"T:a","b":null,"c":"","d":"=d","e":"-e","f":5,"g":"T:g"},"m":"a"},"l":"a"})");
    row("any key, null under the first", anyKey, R"({"k":null})", R"({"k":null})");
    row("any key, null under the second", anyKey, R"({"k":{"l":null}})", R"({"k":{"l":null}})");
}

void tst_SampleTranslators::textsAreReplaced()
{
    QFETCH(QString, translator);
    QFETCH(QString, json);
    QFETCH(QString, result);
    LogCapture log;
    QCOMPARE(translatedJson(translator, json, QStringLiteral("k"), QStringLiteral("l")), result);
    QCOMPARE(log.warnings(), QStringList());
}

void tst_SampleTranslators::warnings_data()
{
    QTest::addColumn<QString>("translator");
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("warning");

    const auto row = [](const char *translator, const char *json, const char *result, const char *warning) {
        QTest::newRow(warning) << QString::fromUtf8(translator) << QString::fromUtf8(json)
                               << QString::fromUtf8(result) << QString::fromUtf8(warning);
    };
    const char *key = "translateKeyText";
    row(key, R"(["%1"])", R"(["%1"])", R"(translateKeyText 549 wrapper is not object "[\"％1\"]")");
    row(key, R"({"a":"100 %"})", R"({"a":"100 %"})",
        R"(translateKeyText 553 wrapper does not contain key "{\"a\":\"100 ％\"}" "k")");

    const char *arrayKey = "translateArrayKeyText";
    row(arrayKey, R"({"k":"%"})", R"({"k":"%"})",
        R"(translateArrayKeyText 574 wrapper is not array "{\"k\":\"％\"}")");
    row(arrayKey, R"([{"k":"a"},["%"],{"k":"b"}])", R"([{"k":"T:a"},["%"],{"k":"b"}])",
        R"(translateArrayKeyText 584 item is not object "[\"％\"]")");
    row(arrayKey, R"([{"k":"a"},{"x":"%%"},{"k":"b"}])", R"([{"k":"T:a"},{"x":"%%"},{"k":"b"}])",
        R"(translateArrayKeyText 588 item does not contain key "{\"x\":\"％％\"}" "k")");

    const char *keyArray = "translateKeyArrayText";
    row(keyArray, R"(["%"])", R"(["%"])", R"(translateKeyArrayText 610 wrapper is not object "[\"％\"]")");
    row(keyArray, R"({"x":"%"})", R"({"x":"%"})",
        R"(translateKeyArrayText 614 wrapper does not contain key "{\"x\":\"％\"}" "k")");
    row(keyArray, R"({"k":{"x":"%"}})", R"({"k":{"x":"%"}})",
        R"(translateKeyArrayText 622 keyWrapper is not array "{\"x\":\"％\"}")");

    const char *keyKeyArray = "translateKeyKeyArrayText";
    row(keyKeyArray, R"(["%"])", R"(["%"])",
        R"(translateKeyKeyArrayText 646 wrapper is not object "[\"％\"]")");
    row(keyKeyArray, R"({"x":"%"})", R"({"x":"%"})",
        R"(translateKeyKeyArrayText 650 wrapper does not contain key "{\"x\":\"％\"}" "k")");
    row(keyKeyArray, R"({"k":["%"]})", R"({"k":["%"]})",
        R"(translateKeyKeyArrayText 658 key1Wrapper is not object "[\"％\"]")");
    row(keyKeyArray, R"({"k":{"x":"%"}})", R"({"k":{"x":"%"}})",
        R"(translateKeyKeyArrayText 662 key1Wrapper does not contain key "{\"x\":\"％\"}" "l")");
    row(keyKeyArray, R"({"k":{"l":{"x":"%"}}})", R"({"k":{"l":{"x":"%"}}})",
        R"(translateKeyKeyArrayText 670 key2Wrapper is not array "{\"x\":\"％\"}")");

    const char *anyKey = "translateKeyKeyAnyKeyText";
    row(anyKey, R"(["%"])", R"(["%"])", R"(translateKeyKeyAnyKeyText 695 wrapper is not object "[\"％\"]")");
    row(anyKey, R"({"x":"%"})", R"({"x":"%"})",
        R"(translateKeyKeyAnyKeyText 699 wrapper does not contain key "{\"x\":\"％\"}" "k")");
    row(anyKey, R"({"k":["%"]})", R"({"k":["%"]})",
        R"(translateKeyKeyAnyKeyText 707 key1Wrapper is not object "[\"％\"]")");
    row(anyKey, R"({"k":{"x":"%"}})", R"({"k":{"x":"%"}})",
        R"(translateKeyKeyAnyKeyText 711 key1Wrapper does not contain key "{\"x\":\"％\"}" "l")");
    row(anyKey, R"({"k":{"l":["%"]}})", R"({"k":{"l":["%"]}})",
        R"(translateKeyKeyAnyKeyText 719 key2Wrapper is not object "[\"％\"]")");
}

void tst_SampleTranslators::warnings()
{
    QFETCH(QString, translator);
    QFETCH(QString, json);
    QFETCH(QString, result);
    QFETCH(QString, warning);
    LogCapture log;
    QCOMPARE(translatedJson(translator, json, QStringLiteral("k"), QStringLiteral("l")), result);
    QCOMPARE(log.warnings().size(), 1);
    QCOMPARE(log.warnings().constFirst().section(QLatin1Char(' '), 1), warning);
}

void tst_SampleTranslators::onlyRowsForLessonsRun()
{
    const QString translator = QStringLiteral("translateKeyText");
    const QString key = QStringLiteral("k");
    JsonWrapper wrapper(QStringLiteral(R"({"k":"a"})"));
    runSampleRows({{translator, QStringLiteral("ja_JP"), QStringLiteral("A"), key},
                   {translator, QStringLiteral("Tutorial"), QStringLiteral("B"), key},
                   {translator, QString(), QStringLiteral("C"), key},
                   {}},
                  sampleTranslation, wrapper);
    QCOMPARE(wrapper.toJson(), QStringLiteral(R"({"k":"a"})"));
}

void tst_SampleTranslators::rowsRunInOrderAndPassOverUnknownNames()
{
    const QString filter = QStringLiteral("tutorial");
    const QString translator = QStringLiteral("translateKeyText");
    const QString key = QStringLiteral("k");
    JsonWrapper wrapper(QStringLiteral(R"({"k":"a"})"));
    LogCapture log;
    runSampleRows({{translator, filter, QStringLiteral("A"), key},
                   {QStringLiteral("translateEvent"), filter, QStringLiteral("B"), key},
                   {QStringLiteral("translatekeytext"), filter, QStringLiteral("C"), key},
                   {translator, filter, QStringLiteral("D"), key}},
                  sampleTranslation, wrapper);
    QCOMPARE(wrapper.toJson(), QStringLiteral(R"({"k":"D:A:a"})"));
    QCOMPARE(log.lines(), QStringList());
}

void tst_SampleTranslators::rowBehindAFailedOneStillRuns()
{
    const QString filter = QStringLiteral("tutorial");
    const QString translator = QStringLiteral("translateArrayKeyText");
    JsonWrapper wrapper(QStringLiteral(R"([{"k":"a","l":"b"},{"l":"c"}])"));
    LogCapture log;
    runSampleRows({{translator, filter, QStringLiteral("T"), QStringLiteral("k")},
                   {translator, filter, QStringLiteral("T"), QStringLiteral("l")}},
                  sampleTranslation, wrapper);
    QCOMPARE(wrapper.toJson(), QStringLiteral(R"([{"k":"T:a","l":"T:b"},{"l":"T:c"}])"));
    QCOMPARE(log.warnings().size(), 1);
}

void tst_SampleTranslators::eachNameCallsItsFunction()
{
    // Each function names itself when it meets a number.
    const QList<std::pair<const char *, const char *>> names{
        {"translateKeyText", "translateKeyText"},
        {"translateArrayKeyText", "translateArrayKeyText"},
        {"translateKeyArrayText", "translateKeyArrayText"},
        {"translateKeyKeyArrayText", "translateKeyKeyArrayText"},
        {"translateKeyKeyAnyKeyText", "translateKeyKeyAnyKeyText"},
        {"translateMapEvent", "translateMapEvent"},
        {"translateCommonEvent", "translateEvent"}};
    for (const auto &[name, logged] : names) {
        LogCapture log;
        QCOMPARE(translatedJson(QString::fromLatin1(name), QStringLiteral("5")), QStringLiteral("5"));
        QCOMPARE(log.warnings().size(), 1);
        QCOMPARE(log.warnings().constFirst().section(QLatin1Char(' '), 1, 1), QString::fromLatin1(logged));
    }
}

void tst_SampleTranslators::wrapperOfAValueIsChangedToo()
{
    JsonWrapper wrapper = JsonWrapper(QStringLiteral(R"([[{"k":"a"}]])"))[0];
    translateArrayKeyText(sampleTranslation, QStringLiteral("T"), QStringLiteral("k"), wrapper);
    QCOMPARE(wrapper.toJson(), QStringLiteral(R"([{"k":"T:a"}])"));
}

void tst_SampleTranslators::textThatFailedToParseIsReported()
{
    LogCapture log;
    for (const QString &text : {QString(), QStringLiteral("{")}) {
        JsonWrapper wrapper(text);
        log.clear();
        translateArrayKeyText(sampleTranslation, QStringLiteral("T"), QStringLiteral("k"), wrapper);
        QCOMPARE(log.warnings().size(), 1);
        QCOMPARE(log.warnings().constFirst().section(QLatin1Char(' '), 1),
                 QStringLiteral("translateArrayKeyText 574 wrapper is not array \"\""));
    }
}

QTEST_GUILESS_MAIN(tst_SampleTranslators)
#include "tst_SampleTranslators.moc"
