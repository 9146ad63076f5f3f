#include "JsonSamples.h"

#include <QObject>
#include <QTest>

#include <utility>

namespace {

using Kind = JsonWrapper::Kind;
using Call = std::function<void(JsonWrapper &)>;

/// The text that @p call throws on @p wrapper; null if it throws nothing.
QString thrown(JsonWrapper &wrapper, const Call &call)
{
    try {
        call(wrapper);
    } catch (const QString &message) {
        return message;
    }
    return QString();
}

} // namespace

Q_DECLARE_METATYPE(Call)

/// What is logged of a text that cannot be read, and what a call throws that does not go with the kind.
class tst_JsonWrapperErrors : public QObject
{
    Q_OBJECT

private:
    static void addRows(const char *operation, const Call &call,
                        const QList<std::pair<const char *, const char *>> &messages)
    {
        for (const auto &[name, message] : messages) {
            QTest::addRow("%s on %s", operation, name)
                << call << QString::fromLatin1(name) << QString::fromUtf8(message);
        }
    }

private Q_SLOTS:
    void emptyTextWarns();
    void brokenTextWarnsWithTheErrorOfTheSecondParse();
    void misuseThrows_data();
    void misuseThrows();
    void literalMessagesAreLoggedUnquoted();
};

void tst_JsonWrapperErrors::emptyTextWarns()
{
    LogCapture log;
    const JsonWrapper wrapper{QString()};
    QCOMPARE(int(wrapper.kind()), int(Kind::kMax));
    QVERIFY(wrapper.parseFailed());
    QCOMPARE(log.lines(),
             QStringList{messageSource() + QStringLiteral(" JsonWrapper::JsonWrapper 44 jsonStr is empty.")});
    QCOMPARE(wrapper.toJson(), QString());
    QCOMPARE(wrapper.toString(), QString());
}

void tst_JsonWrapperErrors::brokenTextWarnsWithTheErrorOfTheSecondParse()
{
    // "{" ends at offset 1, "[{]" fails at another place with another error.
    const QString text = QStringLiteral("{");
    QJsonParseError first;
    QJsonParseError second;
    QJsonDocument::fromJson("{", &first);
    QJsonDocument::fromJson("[{]", &second);
    QVERIFY(first.error != second.error || first.offset != second.offset);

    LogCapture log;
    const JsonWrapper wrapper(text);
    QCOMPARE(int(wrapper.kind()), int(Kind::kDoc));
    QVERIFY(wrapper.parseFailed());
    QVERIFY(wrapper.isNull());
    QVERIFY(!wrapper.isArray());
    QVERIFY(!wrapper.isObject());
    QCOMPARE(wrapper.toJson(), QString());
    QCOMPARE(log.warnings(),
             QStringList{QStringLiteral("%1 JsonWrapper::JsonWrapper 60 Json parse error %2 %3 \"%4\" \"{\"")
                             .arg(messageSource())
                             .arg(int(second.error))
                             .arg(second.offset)
                             .arg(second.errorString())});
}

void tst_JsonWrapperErrors::misuseThrows_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");

    addRows("[index]", [](JsonWrapper &wrapper) { wrapper[0]; },
            {{"doc object", "[index] is applied for m_doc which is not Array."},
             {"array", ""},
             {"object", ""},
             {"value array", ""},
             {"value object", ""},
             {"value string", "[index] is applied for kValue."},
             {"value null", "[index] is applied for kValue."},
             {"max", "[index] is applied for kMax."}});
    addRows("constant [index]", [](JsonWrapper &wrapper) { std::as_const(wrapper)[0]; },
            {{"doc object", "[index] is applied for m_doc which is not Array."},
             {"object", ""},
             {"value string", "[index] is applied for kValue."},
             {"max", "[index] is applied for kMax."}});
    addRows("[key]", [](JsonWrapper &wrapper) { wrapper[QStringLiteral("k")]; },
            {{"doc array", "[k] is applied for m_doc which is not Object."},
             {"array", "[k] is applied for kArray."},
             {"object", "m_object doesn't have key: k"},
             {"value array", "[k] is applied for kValue."},
             {"value string", "[k] is applied for kValue."},
             {"value null", "[k] is applied for kValue."},
             {"max", "[k] is applied for kMax."}});
    addRows("contains", [](JsonWrapper &wrapper) { (void)wrapper.contains(QStringLiteral("k")); },
            {{"doc array", "contains() is called for m_doc which is not Object."},
             {"array", "contains() is called for kArray."},
             {"object", ""},
             {"value array", "contains() is called for kValue."},
             {"value string", "contains() is called for kValue."},
             {"max", "contains() is called for kMax."}});
    addRows("keys", [](JsonWrapper &wrapper) { (void)wrapper.keys(); },
            {{"doc array", "keys() is called for m_doc which is not Object."},
             {"array", "keys() is called for kArray"},
             {"object", ""},
             {"value array", "keys() is called for kValue."},
             {"value string", "keys() is called for kValue."},
             {"max", "keys() is called for kMax."}});
    addRows("length", [](JsonWrapper &wrapper) { (void)wrapper.length(); },
            {{"doc object", "length() is called for m_doc which is not Array."},
             {"array", ""},
             {"object", "length() is called for kObject."},
             {"value object", "length() is called for kValue."},
             {"value string", "length() is called for kValue."},
             {"max", "length() is called for kMax."}});
    addRows("toArray", [](JsonWrapper &wrapper) { (void)wrapper.toArray(); },
            {{"doc object", "toArray() is called for kDoc."},
             {"array", ""},
             {"object", "toArray() is called for kObject."},
             {"value object", "toArray() is called for kValue."},
             {"value string", "toArray() is called for kValue."},
             {"max", "toArray() is called for kMax."}});
    addRows("toValue", [](JsonWrapper &wrapper) { (void)wrapper.toValue(); },
            {{"doc array", "toValue() is called for kDoc."},
             {"doc object", "toValue() is called for kDoc."},
             {"array", "toValue() is called for kArray."},
             {"object", "toValue() is called for kObject."},
             {"value string", ""},
             {"max", "toArray() is called for kMax."}});
    const QString key = QStringLiteral("k");
    const QList<std::pair<const char *, const char *>> keyMessages{
        {"doc array", "set() is called for kDoc."},
        {"doc object", ""},
        {"array", "set() is called for kArray."},
        {"object", ""},
        {"value array", "set() is called for kValue."},
        {"value null", "set() is called for kValue."},
        {"max", "set() is called for kMax."}};
    addRows(
        "set key to text", [key](JsonWrapper &wrapper) { wrapper.set(key, key); }, keyMessages);
    addRows(
        "set key to array", [key](JsonWrapper &wrapper) { wrapper.set(key, QJsonArray()); }, keyMessages);
    addRows(
        "set key to value", [key](JsonWrapper &wrapper) { wrapper.set(key, QJsonValue(1)); }, keyMessages);
    const QList<std::pair<const char *, const char *>> indexMessages{
        {"doc array", ""},
        {"doc object", "set() is called for kDoc."},
        {"array", ""},
        {"object", "set() is called for kObject."},
        {"value object", "set() is called for kValue."},
        {"value string", "set() is called for kValue."},
        {"max", "set() is called for kMax."}};
    addRows(
        "set index to text", [key](JsonWrapper &wrapper) { wrapper.set(0, key); }, indexMessages);
    addRows(
        "set index to value", [](JsonWrapper &wrapper) { wrapper.set(0, QJsonValue(1)); }, indexMessages);
}

void tst_JsonWrapperErrors::misuseThrows()
{
    QFETCH(Call, call);
    QFETCH(QString, name);
    QFETCH(QString, message);
    JsonWrapper wrapper = sample(name);
    const QString before = wrapper.toJson();
    LogCapture log;
    QCOMPARE(thrown(wrapper, call), message);
    QCOMPARE(log.warnings(), QStringList());
    if (message.isEmpty()) {
        QCOMPARE(log.lines(), QStringList());
        return;
    }
    QCOMPARE(log.lines().size(), 1);
    QVERIFY(log.lines().constFirst().startsWith(messageSource() +
                                                QStringLiteral(" JsonWrapper::errorHandler 1158 ")));
    QVERIFY(log.contains(message));
    QCOMPARE(wrapper.toJson(), before);
}

void tst_JsonWrapperErrors::literalMessagesAreLoggedUnquoted()
{
    JsonWrapper wrapper = sample(QStringLiteral("array"));
    LogCapture log;
    thrown(wrapper, [](JsonWrapper &array) { (void)array.keys(); });
    thrown(wrapper, [](JsonWrapper &array) { array[QStringLiteral("k")]; });
    const QString start = messageSource() + QStringLiteral(" JsonWrapper::errorHandler 1158 ");
    QCOMPARE(log.debugs(), QStringList({start + QStringLiteral("keys() is called for kArray"),
                                        start + QStringLiteral("\"[k] is applied for kArray.\"")}));
}

QTEST_GUILESS_MAIN(tst_JsonWrapperErrors)
#include "tst_JsonWrapperErrors.moc"
