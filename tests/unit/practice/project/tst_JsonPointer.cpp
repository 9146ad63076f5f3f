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
