#include "project/JsonPointer.h"
#include "project/JsonText.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QtTest>

namespace {

QJsonValue parsed(const QByteArray &text)
{
    JsonText::Problem problem;
    const std::optional<QJsonValue> value = JsonText::parse(text, &problem);
    return value ? *value : QJsonValue(QJsonValue::Undefined);
}

/// A value with some depth; the same generator gives the same one.
QJsonValue randomValue(QRandomGenerator *dice, int depth)
{
    switch (dice->bounded(depth > 0 ? 7 : 5)) {
    case 0:
        return dice->bounded(1000) / 8.0;
    case 1:
        return dice->bounded(2) == 1;
    case 2:
        return QJsonValue();
    case 3:
        return QStringLiteral("a \"b\\, [{\u5730}] %1").arg(dice->bounded(9));
    case 4:
        return dice->bounded(9);
    case 5: {
        QJsonArray list;
        for (int i = dice->bounded(5); i > 0; --i) {
            list.append(randomValue(dice, depth - 1));
        }
        return list;
    }
    default: {
        QJsonObject object;
        for (int i = dice->bounded(5); i > 0; --i) {
            object.insert(QStringLiteral("k/~\"%1").arg(dice->bounded(6)), randomValue(dice, depth - 1));
        }
        return object;
    }
    }
}

/// @p value with something in it changed.
QJsonValue altered(const QJsonValue &value, QRandomGenerator *dice)
{
    if (value.isArray() && dice->bounded(4) != 0) {
        QJsonArray list = value.toArray();
        const int at = list.isEmpty() ? 0 : dice->bounded(int(list.size()));
        const int what = list.isEmpty() ? 1 : dice->bounded(3);
        if (what == 0) {
            list.removeAt(at);
        } else if (what == 1) {
            list.insert(at, randomValue(dice, 1));
        } else {
            list.replace(at, altered(list.at(at), dice));
        }
        return list;
    }
    if (value.isObject() && dice->bounded(4) != 0) {
        QJsonObject object = value.toObject();
        const QStringList keys = object.keys();
        const int what = keys.isEmpty() ? 1 : dice->bounded(3);
        if (what == 1) {
            object.insert(QStringLiteral("new%1").arg(dice->bounded(3)), randomValue(dice, 1));
        } else {
            const QString key = keys.at(dice->bounded(int(keys.size())));
            if (what == 0) {
                object.remove(key);
            } else {
                object.insert(key, altered(object.value(key), dice));
            }
        }
        return object;
    }
    return randomValue(dice, 1);
}

} // namespace

class tst_JsonText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesOnlyWhatDiffers_data();
    void changesOnlyWhatDiffers();
    void theSameValueGivesTheSameBytes_data();
    void theSameValueGivesTheSameBytes();
    void anyChangeIsReadBack();
    void tellsTheLineOfAMistake();
    void writesValuesInOneLine();
};

void tst_JsonText::changesOnlyWhatDiffers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char *name, const char *text, const char *pointer, const char *value,
                        const char *result) {
        QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(pointer) << QByteArray(value)
                            << QByteArray(result);
    };
    row("order and numbers of the others stay", R"({"z": 1.0, "b": 1e2, "a": -0.50})", "/b", "3",
        R"({"z": 1.0, "b": 3, "a": -0.50})");
    row("a new member stands as the last one does", "{\n  \"z\": 1,\n  \"b\": 2\n}\n", "/a", "3",
        "{\n  \"z\": 1,\n  \"b\": 2,\n  \"a\": 3\n}\n");
    row("the first member goes", "{\n  \"z\": 1,\n  \"b\": 2\n}", "/z", "", "{\n  \"b\": 2\n}");
    row("the last member goes", "{\n  \"z\": 1,\n  \"b\": 2\n}", "/b", "", "{\n  \"z\": 1\n}");
    row("the only member goes", "{ \"z\" : 1 }", "/z", "", "{ }");
    row("into an empty object", "{ }", "/a", "1", "{\"a\":1 }");
    row("a new element", "[\n 1,\n 2\n]", "/2", "3", "[\n 1,\n 2,\n 3\n]");
    row("an element that goes leaves the others", "[ 1.0,  2.0,\n  3.0 ]", "/0", "", "[  2.0,\n  3.0 ]");
    row("blanks before commas", "[1 , 2.0 ,3]", "/0", "7", "[7 , 2.0 ,3]");
    row("rows of a map stay", "{\"data\": [ 1,  1,\n   10, 12]}", "/data/3", "7",
        "{\"data\": [ 1,  1,\n   10, 7]}");
    row("a text with brackets", R"(["]},{", "\"\\", 1.0])", "/1", R"("x")", R"(["]},{", "x", 1.0])");
    row("a byte order mark", "\xEF\xBB\xBF[1.0, 2]\n", "/1", "3", "\xEF\xBB\xBF[1.0, 3]\n");
    row("an escaped key", R"({"\u0061\/b": 1.0, "c": 2})", "/c", "3", R"({"\u0061\/b": 1.0, "c": 3})");
    row("of two members with one key the last counts", R"({"a": 1, "b": 2, "a": {"c": 3}})", "/a/c", "4",
        R"({ "b": 2, "a": {"c": 4}})");
    row("another kind of value", R"({"a": [1, 2.0]})", "/a", R"({"b": 1})", R"({"a": {"b":1}})");
}

void tst_JsonText::changesOnlyWhatDiffers()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, pointer);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, result);
    const QJsonValue wanted =
        value.isEmpty() ? QJsonValue(QJsonValue::Undefined) : parsed('[' + value + ']').toArray().at(0);
    const std::optional<QJsonValue> changed = JsonPointer::with(parsed(text), pointer, wanted);
    QVERIFY(changed.has_value());
    QCOMPARE(JsonText::rewritten(text, *changed), result);
}

void tst_JsonText::theSameValueGivesTheSameBytes_data()
{
    QTest::addColumn<QString>("path");
    QDirIterator files(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset/step19/data"), QDir::Files);
    while (files.hasNext()) {
        const QString path = files.next();
        QTest::newRow(qPrintable(files.fileName())) << path;
    }
}

void tst_JsonText::theSameValueGivesTheSameBytes()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(JsonText::rewritten(text, parsed(text)), text);
    // There and back again, too.
    const QJsonValue there = *JsonPointer::with(parsed(text), QStringLiteral("/1"), QStringLiteral("x"));
    const QByteArray other = JsonText::rewritten(text, there);
    QVERIFY(other != text);
    QCOMPARE(parsed(other), there);
}

void tst_JsonText::anyChangeIsReadBack()
{
    for (quint32 seed = 1; seed <= 400; ++seed) {
        QRandomGenerator dice(seed);
        QJsonValue value = QJsonArray{randomValue(&dice, 4), randomValue(&dice, 4)};
        QByteArray text = QJsonDocument(value.toArray())
                              .toJson(seed % 2 == 0 ? QJsonDocument::Compact : QJsonDocument::Indented);
        for (int step = 0; step < 12; ++step) {
            value = altered(value, &dice);
            if (!value.isArray() && !value.isObject()) {
                value = QJsonArray{value};
            }
            const QByteArray changed = JsonText::rewritten(text, value);
            QVERIFY2(parsed(changed) == value, qPrintable(QStringLiteral("seed %1").arg(seed)));
            QCOMPARE(JsonText::rewritten(changed, value), changed);
            text = changed;
        }
    }
}

void tst_JsonText::tellsTheLineOfAMistake()
{
    JsonText::Problem problem;
    QVERIFY(!JsonText::parse("[\n 1,\n {\"a\" 2}\n]", &problem).has_value());
    QCOMPARE(problem.line, 3);
    QVERIFY(!problem.reason.isEmpty());
    QVERIFY(!JsonText::parse("", &problem).has_value());
    QCOMPARE(problem.line, 1);
}

void tst_JsonText::writesValuesInOneLine()
{
    QCOMPARE(JsonText::compact(QStringLiteral("a")), QByteArray("\"a\""));
    QCOMPARE(JsonText::compact(QJsonValue()), QByteArray("null"));
    QCOMPARE(JsonText::compact(QJsonArray{1, QJsonObject{{QStringLiteral("a"), true}}}),
             QByteArray("[1,{\"a\":true}]"));
}

QTEST_APPLESS_MAIN(tst_JsonText)
#include "tst_JsonText.moc"
