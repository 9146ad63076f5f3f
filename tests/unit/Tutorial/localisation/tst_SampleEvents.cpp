#include "LogCapture.h"
#include "SampleTexts.h"

#include <QtTest>

namespace {

/// A list of common events with one event that holds @p commands.
QString commonEvents(const QString &commands)
{
    return QStringLiteral(R"([null,{"list":[%1],"name":"n"}])").arg(commands);
}

QString command(int code, const QString &parameters)
{
    return QStringLiteral(R"({"code":%1,"parameters":%2})").arg(code).arg(parameters);
}

} // namespace

class tst_SampleEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void translatedTextIsWrittenWhateverItIs();
    void commandWarnings_data();
    void commandWarnings();
    void changesBeforeAWarningStay();
    void listWarnings_data();
    void listWarnings();
    void mapEvents_data();
    void mapEvents();
    void mapWarnings_data();
    void mapWarnings();
    void nameIsKeptThoughPagesAreMissing();
    void mapGoesOnBehindPagesThatEndedTheirWalk();
};

void tst_SampleEvents::commands_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, int code, const char *parameters, const char *result) {
        QTest::newRow(name) << code << QString::fromUtf8(parameters) << QString::fromUtf8(result);
    };
    row("101", 101, R"(["a","b","c","d","e","f"])", R"(["a","b","c","d","T:e","f"])");
    row("101, number", 101, R"(["a","b","c","d",5])", R"(["a","b","c","d",5])");
    row("101, four", 101, R"(["a","b","c","d"])", R"(["a","b","c","d"])");
    row("101, none", 101, "[]", "[]");
    row("102", 102, R"([["a","b"],1,"c"])", R"([["T:a","T:b"],1,"c"])");
    row("102, mixed", 102, R"([["a",null,5,"b",["c"]]])", R"([["T:a",null,5,"T:b",["c"]]])");
    row("102, no choice", 102, "[[],1]", "[[],1]");
    row("401", 401, R"(["a","b"])", R"(["T:a","b"])");
    row("401, null", 401, "[null]", "[null]");
    row("402", 402, R"(["a","b","c"])", R"(["a","T:b","c"])");
    row("402, number", 402, R"(["a",5])", R"(["a",5])");
    row("405", 405, R"(["a","b"])", R"(["T:a","b"])");
    row("405, number", 405, R"([5,"b"])", R"([5,"b"])");
    row("other code", 108, R"(["a",["b"]])", R"(["a",["b"]])");
    row("other code, none", 0, "[]", "[]");
}

void tst_SampleEvents::commands()
{
    QFETCH(int, code);
    QFETCH(QString, parameters);
    QFETCH(QString, result);
    LogCapture log;
    // Between two other commands, which come out as well.
    const QString before = command(401, QStringLiteral(R"(["first"])"));
    const QString behind = command(401, QStringLiteral(R"(["last"])"));
    const QString json =
        commonEvents(QStringList{before, QStringLiteral("null"), command(code, parameters), behind}.join(
            QLatin1Char(',')));
    const QString expected =
        commonEvents(QStringList{command(401, QStringLiteral(R"(["T:first"])")), QStringLiteral("null"),
                                 command(code, result), command(401, QStringLiteral(R"(["T:last"])"))}
                         .join(QLatin1Char(',')));
    QCOMPARE(translatedJson(QStringLiteral("translateCommonEvent"), json), expected);
    QCOMPARE(log.warnings(), QStringList());
}

void tst_SampleEvents::translatedTextIsWrittenWhateverItIs()
{
    QStringList asked;
    JsonWrapper wrapper(commonEvents(command(401, QStringLiteral(R"([""])")) + QLatin1Char(',') +
                                     command(401, QStringLiteral(R"(["gone"])")) + QLatin1Char(',') +
                                     command(102, QStringLiteral(R"([["","gone"]])"))));
    translateCommonEvent(
        [&asked](const QString & /*context*/, const QString &text) {
            asked.append(text);
            return text.isEmpty() ? QStringLiteral("from nothing") : QString();
        },
        QStringLiteral("T"), wrapper);
    QCOMPARE(asked, (QStringList{QString(), QStringLiteral("gone"), QString(), QStringLiteral("gone")}));
    QCOMPARE(wrapper.toJson(),
             commonEvents(command(401, QStringLiteral(R"(["from nothing"])")) + QLatin1Char(',') +
                          command(401, QStringLiteral(R"([""])")) + QLatin1Char(',') +
                          command(102, QStringLiteral(R"([["from nothing",""]])"))));
}

void tst_SampleEvents::commandWarnings_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("warning");

    const auto row = [](const char *entry, const char *warning) {
        QTest::newRow(warning) << QString::fromUtf8(entry) << QString::fromUtf8(warning);
    };
    row(R"(["%"])", R"(787 listItem is not object "[\"％\"]")");
    row(R"({"parameters":["%"]})", R"(791 listItem does not contain key "{\"parameters\":[\"％\"]}" "code")");
    row(R"({"code":401,"x":"%"})",
        R"(795 listItem does not contain key "{\"code\":401,\"x\":\"％\"}" "parameters")");
    row(R"({"code":401,"parameters":{"x":"%"}})", R"(800 parametersWrapper is not array "{\"x\":\"％\"}")");
    row(R"({"code":401,"parameters":null})", R"(800 parametersWrapper is not array "null")");
    row(R"({"code":102,"parameters":[]})", R"(820 parametersWrapper is too short "[]")");
    row(R"({"code":102,"parameters":[{"x":"%"}]})", R"(825 parameterWrapper is not array "{\"x\":\"％\"}")");
    row(R"({"code":102,"parameters":[null]})", R"(825 parameterWrapper is not array "null")");
    row(R"({"code":401,"parameters":[]})", R"(844 parametersWrapper is too short "[]")");
    row(R"({"code":405,"parameters":[],"a":1})", R"(844 parametersWrapper is too short "[]")");
    row(R"({"code":402,"parameters":["%"]})", R"(858 parametersWrapper is too short "[\"％\"]")");
}

void tst_SampleEvents::commandWarnings()
{
    QFETCH(QString, entry);
    QFETCH(QString, warning);
    const QString good = command(401, QStringLiteral(R"(["a"])"));
    const QString translated = command(401, QStringLiteral(R"(["T:a"])"));
    LogCapture log;
    JsonWrapper wrapper(
        QStringLiteral(R"([{"list":[%1]},{"list":[%1,%2,%1]},{"list":[%1]}])").arg(good, entry));
    translateEvent(sampleTranslation, QStringLiteral("T"), wrapper);
    const JsonWrapper expected(
        QStringLiteral(R"([{"list":[%1]},{"list":[%1,%2,%3]},{"list":[%3]}])").arg(translated, entry, good));
    QCOMPARE(wrapper.toJson(), expected.toJson());
    QCOMPARE(log.warnings().size(), 1);
    QCOMPARE(log.warnings().constFirst().section(QLatin1Char(' '), 1),
             QStringLiteral("translateEvent ") + warning);
}

void tst_SampleEvents::changesBeforeAWarningStay()
{
    LogCapture log;
    // The choices before the bad command are written back before its walk ends.
    const QString json = commonEvents(command(102, QStringLiteral(R"([["a","b"]])")) + QLatin1Char(',') +
                                      command(401, QStringLiteral("[]")));
    QCOMPARE(translatedJson(QStringLiteral("translateCommonEvent"), json),
             commonEvents(command(102, QStringLiteral(R"([["T:a","T:b"]])")) + QLatin1Char(',') +
                          command(401, QStringLiteral("[]"))));
    QCOMPARE(log.warnings().size(), 1);
}

void tst_SampleEvents::listWarnings_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("warning");

    const auto row = [](const char *json, const char *warning) {
        QTest::newRow(warning) << QString::fromUtf8(json) << QString::fromUtf8(warning);
    };
    row(R"({"x":"%"})", R"(758 wrapper is not array "{\"x\":\"％\"}")");
    row(R"([null,["%"]])", R"(768 item is not object "[\"％\"]")");
    row(R"([{"x":"%"}])", R"(772 item does not contain key "{\"x\":\"％\"}" "list")");
    row(R"([{"list":{"x":"%"}}])", R"(777 listWrapper is not array "{\"x\":\"％\"}")");
    row(R"([{"list":null}])", R"(777 listWrapper is not array "null")");
}

void tst_SampleEvents::listWarnings()
{
    QFETCH(QString, json);
    QFETCH(QString, warning);
    LogCapture log;
    QCOMPARE(translatedJson(QStringLiteral("translateCommonEvent"), json), json);
    QCOMPARE(log.warnings().size(), 1);
    QCOMPARE(log.warnings().constFirst().section(QLatin1Char(' '), 1),
             QStringLiteral("translateEvent ") + warning);
}

void tst_SampleEvents::mapEvents_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const char *json, const char *result) {
        QTest::newRow(name) << QString::fromUtf8(json) << QString::fromUtf8(result);
    };
    row("no events", R"({"events":[]})", R"({"events":[]})");
    row("null events", R"({"events":null})", R"({"events":null})");
    row("name and pages",
        R"({"displayName":"m","events":[null,{"name":"n","pages":[{"list":[)"
        R"({"code":401,"parameters":["a"]}]},null,{"list":[]}]}],"width":5})",
        R"({"displayName":"m","events":[null,{"name":"T:n","pages":[{"list":[)"
        R"({"code":401,"parameters":["T:a"]}]},null,{"list":[]}]}],"width":5})");
    row("name is no text",
        R"({"events":[{"name":5,"pages":[]},{"name":null,"pages":[]},{"name":"","pages":[]}]})",
        R"({"events":[{"name":5,"pages":[]},{"name":null,"pages":[]},{"name":"","pages":[]}]})");
    row("name stays", R"({"events":[{"name":"=a","pages":[]},{"name":"-b","pages":[]}]})",
        R"({"events":[{"name":"=a","pages":[]},{"name":"-b","pages":[]}]})");
}

void tst_SampleEvents::mapEvents()
{
    QFETCH(QString, json);
    QFETCH(QString, result);
    LogCapture log;
    QCOMPARE(translatedJson(QStringLiteral("translateMapEvent"), json), result);
    QCOMPARE(log.warnings(), QStringList());
}

void tst_SampleEvents::mapWarnings_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("warning");

    const auto row = [](const char *json, const char *result, const char *warning) {
        QTest::newRow(warning) << QString::fromUtf8(json) << QString::fromUtf8(result)
                               << QString::fromUtf8(warning);
    };
    row(R"(["%"])", R"(["%"])", R"(894 wrapper is not object "[\"％\"]")");
    row(R"({"x":"%"})", R"({"x":"%"})",
        R"(898 wrapper does not contain eventsKey "{\"x\":\"％\"}" "events")");
    row(R"({"events":{"x":"%"}})", R"({"events":{"x":"%"}})",
        R"(906 eventsWrapper is not array "{\"x\":\"％\"}")");
    row(R"({"events":[{"name":"a","pages":[]},["%"],{"name":"b","pages":[]}]})",
        R"({"events":[{"name":"T:a","pages":[]},["%"],{"name":"b","pages":[]}]})",
        R"(916 eventItem is not object "[\"％\"]")");
    row(R"({"events":[{"name":"a","pages":[]},{"x":"%"},{"name":"b","pages":[]}]})",
        R"({"events":[{"name":"T:a","pages":[]},{"x":"%"},{"name":"b","pages":[]}]})",
        R"(920 eventItem does not contain nameKey "{\"x\":\"％\"}" "name")");
    row(R"({"events":[{"name":"a","pages":[]},{"name":5,"x":"%"},{"name":"b","pages":[]}]})",
        R"({"events":[{"name":"T:a","pages":[]},{"name":5,"x":"%"},{"name":"b","pages":[]}]})",
        R"(937 eventItem does not contain pagesKey "{\"name\":5,\"x\":\"％\"}" "pages")");
}

void tst_SampleEvents::mapWarnings()
{
    QFETCH(QString, json);
    QFETCH(QString, result);
    QFETCH(QString, warning);
    LogCapture log;
    QCOMPARE(translatedJson(QStringLiteral("translateMapEvent"), json), result);
    QCOMPARE(log.warnings().size(), 1);
    QCOMPARE(log.warnings().constFirst().section(QLatin1Char(' '), 1),
             QStringLiteral("translateMapEvent ") + warning);
}

void tst_SampleEvents::nameIsKeptThoughPagesAreMissing()
{
    LogCapture log;
    QCOMPARE(
        translatedJson(QStringLiteral("translateMapEvent"), QStringLiteral(R"({"events":[{"name":"a"}]})")),
        QStringLiteral(R"({"events":[{"name":"T:a"}]})"));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.contains(QStringLiteral(R"("{\"name\":\"T:a\"}" "pages")")));
}

void tst_SampleEvents::mapGoesOnBehindPagesThatEndedTheirWalk()
{
    LogCapture log;
    const QString json = QStringLiteral(R"({"events":[)"
                                        R"({"name":"a","pages":null},)"
                                        R"({"name":"b","pages":[{"list":[{"code":401,"parameters":["x"]},)"
                                        R"({"code":401,"parameters":[]},{"code":401,"parameters":["y"]}]}]},)"
                                        R"({"name":"c","pages":[]}]})");
    QCOMPARE(translatedJson(QStringLiteral("translateMapEvent"), json),
             QStringLiteral(R"({"events":[)"
                            R"({"name":"T:a","pages":null},)"
                            R"({"name":"T:b","pages":[{"list":[{"code":401,"parameters":["T:x"]},)"
                            R"({"code":401,"parameters":[]},{"code":401,"parameters":["y"]}]}]},)"
                            R"({"name":"T:c","pages":[]}]})"));
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(
        log.warnings().at(0).contains(QStringLiteral("translateEvent 758 wrapper is not array \"null\"")));
    QVERIFY(
        log.warnings().at(1).contains(QStringLiteral("translateEvent 844 parametersWrapper is too short")));
}

QTEST_GUILESS_MAIN(tst_SampleEvents)
#include "tst_SampleEvents.moc"
