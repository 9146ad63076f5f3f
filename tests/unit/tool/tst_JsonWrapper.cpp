#include "CpuTime.h"
#include "JsonSamples.h"

#include <QObject>
#include <QTest>

#include <utility>

namespace {

using Kind = JsonWrapper::Kind;

} // namespace

Q_DECLARE_METATYPE(JsonWrapper::Kind)

/// What each kind of wrapper is made from, gives and takes.
class tst_JsonWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindsHaveTheirNumbers();
    void textGivesKind_data();
    void textGivesKind();
    void valueGivesKindValue();
    void indexReaches_data();
    void indexReaches();
    void indexOutsideAnArrayIsUndefined();
    void indexOnBareObjectBringsTheKeyIntoBeing();
    void keyReaches_data();
    void keyReaches();
    void missingKeyIsNullWithoutAnyMessage();
    void containsLooksUp();
    void keysAreSorted();
    void lengthCounts();
    void toArrayCopies();
    void predicates_data();
    void predicates();
    void toBoolAndToInt_data();
    void toBoolAndToInt();
    void setKeyOverwritesAndInserts_data();
    void setKeyOverwritesAndInserts();
    void setIndexOverwrites_data();
    void setIndexOverwrites();
    void setIndexNeverAppends();
    void setCallsChain();
    void editReachesParentOnlyWhenWrittenBack();
    void manyEditsOfALongArrayStayQuick();
};

void tst_JsonWrapper::kindsHaveTheirNumbers()
{
    QCOMPARE(int(Kind::kDoc), 0);
    QCOMPARE(int(Kind::kArray), 1);
    QCOMPARE(int(Kind::kObject), 2);
    QCOMPARE(int(Kind::kValue), 3);
    QCOMPARE(int(Kind::kMax), 4);
}

void tst_JsonWrapper::textGivesKind_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("json");
    QTest::newRow("array") << QStringLiteral("[1, [2]]") << Kind::kDoc << QStringLiteral("[1,[2]]");
    QTest::newRow("object") << QStringLiteral("{\"a\": {}}") << Kind::kDoc << QStringLiteral("{\"a\":{}}");
    QTest::newRow("blanks around") << QStringLiteral(" [ ] \n") << Kind::kDoc << QStringLiteral("[]");
    QTest::newRow("string") << QStringLiteral("\"abc\"") << Kind::kValue << QStringLiteral("\"abc\"");
    QTest::newRow("number") << QStringLiteral("12") << Kind::kValue << QStringLiteral("12");
    QTest::newRow("negative") << QStringLiteral("-1.5") << Kind::kValue << QStringLiteral("-1.5");
    QTest::newRow("true") << QStringLiteral("true") << Kind::kValue << QStringLiteral("true");
    QTest::newRow("null") << QStringLiteral("null") << Kind::kValue << QStringLiteral("null");
    QTest::newRow("list without brackets") << QStringLiteral("1,2") << Kind::kValue << QStringLiteral("1");
    QTest::newRow("list of arrays") << QStringLiteral("[1],[2]") << Kind::kValue << QStringLiteral("[1]");
    QTest::newRow("blank only") << QStringLiteral("  ") << Kind::kValue << QStringLiteral("null");
    QTest::newRow("place marker") << QStringLiteral("\"%1 %2\"") << Kind::kValue
                                  << QStringLiteral("\"%1 %2\"");
    QTest::newRow("beyond Latin") << QStringLiteral("\"\u6751\u4eba\"") << Kind::kValue
                                  << QStringLiteral("\"\u6751\u4eba\"");
}

void tst_JsonWrapper::textGivesKind()
{
    QFETCH(QString, text);
    QFETCH(Kind, kind);
    LogCapture log;
    const JsonWrapper wrapper(text);
    QCOMPARE(int(wrapper.kind()), int(kind));
    QVERIFY(!wrapper.parseFailed());
    QTEST(wrapper.toJson(), "json");
    QCOMPARE(log.warnings(), QStringList());
}

void tst_JsonWrapper::valueGivesKindValue()
{
    LogCapture log;
    for (const QJsonValue &value : {QJsonValue(), QJsonValue(1), QJsonValue(QStringLiteral("a")),
                                    QJsonValue(sampleArray()), QJsonValue(sampleObject())}) {
        const JsonWrapper wrapper(value);
        QCOMPARE(int(wrapper.kind()), int(Kind::kValue));
        QVERIFY(!wrapper.parseFailed());
        QCOMPARE(wrapper.toValue(), value);
    }
    QCOMPARE(log.lines(), QStringList());
}

void tst_JsonWrapper::indexReaches_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");
    QTest::addColumn<QJsonValue>("value");
    for (const char *name : {"doc array", "array", "value array"}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name) << 0 << QJsonValue(QStringLiteral("zero"));
    }
    for (const char *name : {"object", "value object"}) {
        QTest::addRow("%s by decimal key", name)
            << QString::fromLatin1(name) << 3 << QJsonValue(QStringLiteral("three"));
        QTest::addRow("%s without the key", name) << QString::fromLatin1(name) << 4 << QJsonValue();
    }
}

void tst_JsonWrapper::indexReaches()
{
    QFETCH(QString, name);
    QFETCH(int, index);
    QFETCH(QJsonValue, value);
    JsonWrapper wrapper = sample(name);
    QCOMPARE(std::as_const(wrapper)[index].toValue(), value);
    const JsonWrapper reached = wrapper[index];
    QCOMPARE(int(reached.kind()), int(Kind::kValue));
    QVERIFY(!reached.parseFailed());
    QCOMPARE(reached.toValue(), value);
    QCOMPARE(reached.isNull(), value.isNull());
}

void tst_JsonWrapper::indexOutsideAnArrayIsUndefined()
{
    for (const char *name : {"doc array", "array", "value array"}) {
        JsonWrapper wrapper = sample(QString::fromLatin1(name));
        for (const int index : {-1, 4}) {
            QVERIFY(wrapper[index].toValue().isUndefined());
            QCOMPARE(wrapper[index].toString(), QString());
        }
    }
}

void tst_JsonWrapper::indexOnBareObjectBringsTheKeyIntoBeing()
{
    BareWrapper wrapper{sampleObject()};
    std::as_const(wrapper)[7];
    QVERIFY(!wrapper.contains(QStringLiteral("7")));
    wrapper[7];
    QVERIFY(wrapper.contains(QStringLiteral("7")));
    QVERIFY(wrapper[QStringLiteral("7")].isNull());
}

void tst_JsonWrapper::keyReaches_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"doc object", "object", "value object"}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
}

void tst_JsonWrapper::keyReaches()
{
    QFETCH(QString, name);
    const JsonWrapper wrapper = sample(name);
    const JsonWrapper reached = wrapper[QStringLiteral("b")];
    QCOMPARE(int(reached.kind()), int(Kind::kValue));
    QCOMPARE(reached.toInt(), 2);
    QVERIFY(wrapper[QStringLiteral("a")].isNull());
}

void tst_JsonWrapper::missingKeyIsNullWithoutAnyMessage()
{
    for (const char *name : {"doc object", "value object"}) {
        const JsonWrapper wrapper = sample(QString::fromLatin1(name));
        LogCapture log;
        QVERIFY(wrapper[QStringLiteral("missing")].isNull());
        QCOMPARE(log.lines(), QStringList());
        QVERIFY(!wrapper.contains(QStringLiteral("missing")));
    }
}

void tst_JsonWrapper::containsLooksUp()
{
    for (const char *name : {"doc object", "object", "value object"}) {
        const JsonWrapper wrapper = sample(QString::fromLatin1(name));
        QVERIFY(wrapper.contains(QStringLiteral("a")));
        QVERIFY(!wrapper.contains(QStringLiteral("A")));
    }
}

void tst_JsonWrapper::keysAreSorted()
{
    const QStringList keys{QStringLiteral("3"), QStringLiteral("a"), QStringLiteral("b")};
    for (const char *name : {"doc object", "object", "value object"}) {
        QCOMPARE(sample(QString::fromLatin1(name)).keys(), keys);
    }
}

void tst_JsonWrapper::lengthCounts()
{
    for (const char *name : {"doc array", "array", "value array"}) {
        QCOMPARE(sample(QString::fromLatin1(name)).length(), 4);
    }
}

void tst_JsonWrapper::toArrayCopies()
{
    for (const char *name : {"doc array", "array", "value array"}) {
        QCOMPARE(sample(QString::fromLatin1(name)).toArray(), sampleArray());
    }
}

void tst_JsonWrapper::predicates_data()
{
    QTest::addColumn<Wrapper>("wrapper");
    QTest::addColumn<bool>("isArray");
    QTest::addColumn<bool>("isObject");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<bool>("isString");
    const auto row = [](const char *name, const JsonWrapper &wrapper, bool array, bool object, bool null,
                        bool string) {
        QTest::newRow(name) << Wrapper(wrapper) << array << object << null << string;
    };
    for (const char *name : {"doc array", "array", "value array"}) {
        row(name, sample(QString::fromLatin1(name)), true, false, false, false);
    }
    for (const char *name : {"doc object", "object", "value object"}) {
        row(name, sample(QString::fromLatin1(name)), false, true, false, false);
    }
    row("value string", sample(QStringLiteral("value string")), false, false, false, true);
    row("value null", sample(QStringLiteral("value null")), false, false, true, false);
    row("value number", JsonWrapper(QJsonValue(1)), false, false, false, false);
    row("value undefined", JsonWrapper(QJsonValue(QJsonValue::Undefined)), false, false, false, false);
    row("max", sample(QStringLiteral("max")), false, false, false, false);
}

void tst_JsonWrapper::predicates()
{
    QFETCH(Wrapper, wrapper);
    LogCapture log;
    QTEST(wrapper->isArray(), "isArray");
    QTEST(wrapper->isObject(), "isObject");
    QTEST(wrapper->isNull(), "isNull");
    QTEST(wrapper->isString(), "isString");
    QCOMPARE(log.lines(), QStringList());
}

void tst_JsonWrapper::toBoolAndToInt_data()
{
    QTest::addColumn<Wrapper>("wrapper");
    QTest::addColumn<bool>("boolean");
    QTest::addColumn<int>("integer");
    const auto row = [](const char *name, const JsonWrapper &wrapper, bool boolean, int integer) {
        QTest::newRow(name) << Wrapper(wrapper) << boolean << integer;
    };
    row("true", parsed("true"), true, 0);
    row("false", parsed("false"), false, 0);
    row("12", parsed("12"), false, 12);
    row("-3", parsed("-3"), false, -3);
    row("fraction", parsed("1.5"), false, 0);
    row("beyond int", parsed("4294967296"), false, 0);
    row("string", parsed("\"12\""), false, 0);
    for (const char *name :
         {"doc array", "doc object", "array", "object", "value array", "value null", "max"}) {
        row(name, sample(QString::fromLatin1(name)), false, 0);
    }
}

void tst_JsonWrapper::toBoolAndToInt()
{
    QFETCH(Wrapper, wrapper);
    QTEST(wrapper->toBool(), "boolean");
    QTEST(wrapper->toInt(), "integer");
}

void tst_JsonWrapper::setKeyOverwritesAndInserts_data()
{
    keyReaches_data();
}

void tst_JsonWrapper::setKeyOverwritesAndInserts()
{
    QFETCH(QString, name);
    JsonWrapper wrapper = sample(name);
    const Kind kind = wrapper.kind();
    wrapper.set(QStringLiteral("b"), QStringLiteral("text"));
    wrapper.set(QStringLiteral("c"), QJsonArray{1, 2});
    wrapper.set(QStringLiteral("d"), QJsonValue(true));
    QCOMPARE(int(wrapper.kind()), int(kind));
    QCOMPARE(wrapper.toJson(), QStringLiteral(R"({"3":"three","a":null,"b":"text","c":[1,2],"d":true})"));
}

void tst_JsonWrapper::setIndexOverwrites_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"doc array", "array", "value array"}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
}

void tst_JsonWrapper::setIndexOverwrites()
{
    QFETCH(QString, name);
    JsonWrapper wrapper = sample(name);
    const Kind kind = wrapper.kind();
    wrapper.set(0, QStringLiteral("text"));
    wrapper.set(3, QJsonValue(QJsonObject()));
    QCOMPARE(int(wrapper.kind()), int(kind));
    QCOMPARE(wrapper.toJson(), QStringLiteral(R"(["text",1,true,{}])"));
}

void tst_JsonWrapper::setIndexNeverAppends()
{
    for (const char *name : {"doc array", "array", "value array"}) {
        JsonWrapper wrapper = sample(QString::fromLatin1(name));
        for (const int index : {-1, 4, 5}) {
            wrapper.set(index, QStringLiteral("text")).set(index, QJsonValue(1));
        }
        QCOMPARE(wrapper.toArray(), sampleArray());
    }
}

void tst_JsonWrapper::setCallsChain()
{
    JsonWrapper object = parsed("{}");
    JsonWrapper &same = object.set(QStringLiteral("a"), QStringLiteral("b"))
                            .set(QStringLiteral("c"), QJsonArray())
                            .set(QStringLiteral("d"), QJsonValue(1));
    QCOMPARE(&same, &object);
    QCOMPARE(object.toJson(), QStringLiteral(R"({"a":"b","c":[],"d":1})"));
}

void tst_JsonWrapper::editReachesParentOnlyWhenWrittenBack()
{
    JsonWrapper parent = parsed(R"({"child": {"name": "old"}, "list": [[1]]})");
    const JsonWrapper untouched = parent;
    JsonWrapper child = parent[QStringLiteral("child")];
    child.set(QStringLiteral("name"), QStringLiteral("new"));
    QCOMPARE(parent[QStringLiteral("child")][QStringLiteral("name")].toString(), QStringLiteral("old"));
    parent.set(QStringLiteral("child"), child.toValue());
    QCOMPARE(parent[QStringLiteral("child")][QStringLiteral("name")].toString(), QStringLiteral("new"));

    JsonWrapper list = parent[QStringLiteral("list")];
    JsonWrapper inner = list[0];
    inner.set(0, QJsonValue(2));
    list.set(0, inner.toValue());
    QCOMPARE(parent[QStringLiteral("list")].toJson(), QStringLiteral("[[1]]"));
    parent.set(QStringLiteral("list"), list.toArray());
    QCOMPARE(parent[QStringLiteral("list")].toJson(), QStringLiteral("[[2]]"));
    QCOMPARE(untouched.toJson(), QStringLiteral(R"({"child":{"name":"old"},"list":[[1]]})"));
}

void tst_JsonWrapper::manyEditsOfALongArrayStayQuick()
{
    // A copy of the array at each edit would be 2.5 thousand million elements here.
    constexpr int kCount = 50000;
    QJsonArray array;
    for (int i = 0; i < kCount; ++i) {
        array.append(i);
    }
    JsonWrapper wrapper(QString::fromUtf8(QJsonDocument(array).toJson()));
    array = QJsonArray();
    const CpuTime time;
    for (int i = 0; i < kCount; ++i) {
        wrapper.set(i, QJsonValue(-i));
    }
    QVERIFY2(time.elapsedMs() < 2000, qPrintable(QString::number(time.elapsedMs())));
    QCOMPARE(wrapper[kCount - 1].toInt(), 1 - kCount);
}

QTEST_GUILESS_MAIN(tst_JsonWrapper)
#include "tst_JsonWrapper.moc"
