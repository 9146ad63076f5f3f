#include "project/JsonPointer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

const QByteArray kItems = R"({"list": [null, {"name": "Herb", "a/b": 1, "m~n": 2, "": 3}], "3": 4})";

} // namespace

class tst_JsonPointer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsValues_data();
    void findsValues();
    void changesValues_data();
    void changesValues();
    void refusesWaysThroughNothing_data();
    void refusesWaysThroughNothing();
    void makesMembersOnTheWay_data();
    void makesMembersOnTheWay();
    void theOnlyMemberHasANameAndAValue_data();
    void theOnlyMemberHasANameAndAValue();
    void theOnlyMemberIsChanged_data();
    void theOnlyMemberIsChanged();
    void escapedWordsAreFoundAgain_data();
    void escapedWordsAreFoundAgain();
};

void tst_JsonPointer::findsValues_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QByteArray>("found");
    const auto row = [](const char *pointer, const char *found) {
        QTest::newRow(pointer) << QString::fromLatin1(pointer) << QByteArray(found);
    };
    row("", kItems.constData());
    row("/list/1/name", R"("Herb")");
    row("/list/0", "null");
    row("/list/1/a~1b", "1");
    row("/list/1/m~0n", "2");
    row("/list/1/", "3");
    row("/3", "4");
    row("/list/2", "");
    row("/list/-", "");
    row("/list/01", "");
    row("/list/+1", "");
    row("/list/-1", "");
    row("/other", "");
    row("/3/name", "");
    row("list", "");
    row("/m~2n", "");
    row("/m~", "");
}

void tst_JsonPointer::findsValues()
{
    QFETCH(QString, pointer);
    QFETCH(QByteArray, found);
    const QJsonValue value = JsonPointer::value(json(kItems), pointer);
    QCOMPARE(value.isUndefined(), found.isEmpty());
    if (!found.isEmpty()) {
        QCOMPARE(value, json(found));
    }
}

void tst_JsonPointer::changesValues_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char *name, const char *pointer, const char *value, const char *result) {
        QTest::newRow(name) << QString::fromLatin1(pointer) << QByteArray(value) << QByteArray(result);
    };
    row("the whole value", "", "7", "7");
    row("a member", "/a", "7", R"({"a": 7, "b": [1, {"c": 2}]})");
    row("a new member", "/d", "7", R"({"a": 0, "b": [1, {"c": 2}], "d": 7})");
    row("no member", "/a", "", R"({"b": [1, {"c": 2}]})");
    row("deep down", "/b/1/c", R"("x")", R"({"a": 0, "b": [1, {"c": "x"}]})");
    row("an element", "/b/0", "7", R"({"a": 0, "b": [7, {"c": 2}]})");
    row("behind the last element", "/b/2", "7", R"({"a": 0, "b": [1, {"c": 2}, 7]})");
    row("behind the last element, too", "/b/-", "7", R"({"a": 0, "b": [1, {"c": 2}, 7]})");
    row("no element", "/b/0", "", R"({"a": 0, "b": [{"c": 2}]})");
    row("nothing behind the last element", "/b/2", "", R"({"a": 0, "b": [1, {"c": 2}]})");
    row("a member that was not there", "/d", "", R"({"a": 0, "b": [1, {"c": 2}]})");
}

void tst_JsonPointer::changesValues()
{
    QFETCH(QString, pointer);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, result);
    const QJsonValue root = json(R"({"a": 0, "b": [1, {"c": 2}]})");
    const QJsonValue wanted = value.isEmpty() ? QJsonValue(QJsonValue::Undefined) : json(value);
    const std::optional<QJsonValue> changed = JsonPointer::with(root, pointer, wanted);
    QVERIFY(changed.has_value());
    QCOMPARE(*changed, json(result));
}

void tst_JsonPointer::refusesWaysThroughNothing_data()
{
    QTest::addColumn<QString>("pointer");
    for (const char *pointer : {"/x/name", "/b/3", "/b/5/name", "/a/name", "/b/x", "/b/1/c/0", "a", "/~"}) {
        QTest::newRow(pointer) << QString::fromLatin1(pointer);
    }
}

void tst_JsonPointer::refusesWaysThroughNothing()
{
    QFETCH(QString, pointer);
    const QJsonValue root = json(R"({"a": 0, "b": [1, {"c": 2}]})");
    QVERIFY(!JsonPointer::with(root, pointer, 7).has_value());
}

void tst_JsonPointer::makesMembersOnTheWay_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char *pointer, const char *result) {
        QTest::newRow(pointer) << QString::fromLatin1(pointer) << QByteArray(result);
    };
    row("/n", R"({"a": 0, "b": [1, {"c": null}], "n": 7})");
    row("/n/name", R"({"a": 0, "b": [1, {"c": null}], "n": {"name": 7}})");
    row("/b/1/c/d/e", R"({"a": 0, "b": [1, {"c": {"d": {"e": 7}}}]})");
    row("/b/2", R"({"a": 0, "b": [1, {"c": null}, 7]})");
    // What is there is not made into something else, and no element is made for its members.
    row("/a/name", "");
    row("/b/0/name", "");
    row("/b/2/name", "");
    row("/b/5", "");
}

void tst_JsonPointer::makesMembersOnTheWay()
{
    QFETCH(QString, pointer);
    QFETCH(QByteArray, result);
    const auto changed = JsonPointer::withWay(json(R"({"a": 0, "b": [1, {"c": null}]})"), pointer, 7);
    QCOMPARE(changed.has_value(), !result.isEmpty());
    QVERIFY(!changed || *changed == json(result));
}

void tst_JsonPointer::theOnlyMemberHasANameAndAValue_data()
{
    QTest::addColumn<QByteArray>("object");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("one member") << QByteArray(R"({"hp": 30})") << QByteArray(R"("hp")") << QByteArray("30");
    QTest::newRow("with a slash") << QByteArray(R"({"a/b": {"c": 1}})") << QByteArray(R"("a/b")")
                                  << QByteArray(R"({"c": 1})");
    QTest::newRow("no member") << QByteArray("{}") << QByteArray() << QByteArray();
    QTest::newRow("two members") << QByteArray(R"({"a": 1, "b": 2})") << QByteArray() << QByteArray();
    QTest::newRow("members of that name")
        << QByteArray(R"({"@name": 1})") << QByteArray("1") << QByteArray("1");
    QTest::newRow("no object") << QByteArray("[5]") << QByteArray() << QByteArray();
}

void tst_JsonPointer::theOnlyMemberHasANameAndAValue()
{
    QFETCH(QByteArray, object);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    const QJsonValue root = json(object);
    const auto isFound = [&root](const char *pointer, const QByteArray &wanted) {
        const QJsonValue found = JsonPointer::value(root, QString::fromLatin1(pointer));
        return wanted.isEmpty() ? found.isUndefined() : found == json(wanted);
    };
    QVERIFY(isFound("/@name", name));
    QVERIFY(isFound("/@value", value));
}

void tst_JsonPointer::theOnlyMemberIsChanged_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char *name, const char *pointer, const char *value, const char *result) {
        QTest::newRow(name) << QString::fromLatin1(pointer) << QByteArray(value) << QByteArray(result);
    };
    row("its name", "/one/@name", R"("mp")", R"({"one": {"mp": 30}, "none": {}, "two": {"a": 1, "b": 2}})");
    row("its value", "/one/@value", "5", R"({"one": {"hp": 5}, "none": {}, "two": {"a": 1, "b": 2}})");
    row("the name of none", "/none/@name", R"("hp")",
        R"({"one": {"hp": 30}, "none": {"hp": 0}, "two": {"a": 1, "b": 2}})");
    row("the value of none", "/none/@value", "5", "");
    row("the name of two", "/two/@name", R"("hp")", "");
    row("an empty name", "/one/@name", R"("")", "");
    row("a number as a name", "/one/@name", "7", "");
    row("no value", "/one/@value", "", "");
}

void tst_JsonPointer::theOnlyMemberIsChanged()
{
    QFETCH(QString, pointer);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, result);
    const QJsonValue root = json(R"({"one": {"hp": 30}, "none": {}, "two": {"a": 1, "b": 2}})");
    const QJsonValue wanted = value.isEmpty() ? QJsonValue(QJsonValue::Undefined) : json(value);
    const std::optional<QJsonValue> changed = JsonPointer::with(root, pointer, wanted);
    QCOMPARE(changed.has_value(), !result.isEmpty());
    QVERIFY(!changed || *changed == json(result));
}

void tst_JsonPointer::escapedWordsAreFoundAgain_data()
{
    QTest::addColumn<QString>("word");
    for (const char *word : {"plain", "a/b", "m~n", "~1", "~0", "~01", "/", "~", "//~~", ""}) {
        QTest::newRow(word) << QString::fromLatin1(word);
    }
}

void tst_JsonPointer::escapedWordsAreFoundAgain()
{
    QFETCH(QString, word);
    const QString pointer = QLatin1Char('/') + JsonPointer::escaped(word);
    QCOMPARE(JsonPointer::words(pointer), std::optional<QStringList>(QStringList{word}));
    const std::optional<QJsonValue> changed = JsonPointer::with(QJsonObject(), pointer, 7);
    QVERIFY(changed.has_value());
    QCOMPARE(changed->toObject().value(word).toInt(), 7);
    QCOMPARE(JsonPointer::value(*changed, pointer).toInt(), 7);
}

QTEST_APPLESS_MAIN(tst_JsonPointer)
#include "tst_JsonPointer.moc"
