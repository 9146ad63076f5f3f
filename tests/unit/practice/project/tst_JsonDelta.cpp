#include "DataLayerFixture.h"
#include "project/JsonDelta.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

/// Some value of a few levels, the same for the same numbers of @p random.
QJsonValue randomValue(QRandomGenerator &random, int depth)
{
    switch (random.bounded(depth > 0 ? 5 : 3)) {
    case 0:
        return random.bounded(3);
    case 1:
        return QString::number(random.bounded(3));
    case 2:
        return QJsonValue();
    case 3: {
        QJsonArray array;
        for (int left = random.bounded(6); left > 0; --left) {
            array.append(randomValue(random, depth - 1));
        }
        return array;
    }
    default: {
        QJsonObject object;
        for (int left = random.bounded(4); left > 0; --left) {
            object.insert(QString(QLatin1Char(char('a' + random.bounded(4)))),
                          randomValue(random, depth - 1));
        }
        return object;
    }
    }
}

} // namespace

/// What differs between two values, and what makes each of them out of the other.
class tst_JsonDelta : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesEachOutOfTheOther_data();
    void makesEachOutOfTheOther();
    void makesEachOutOfTheOtherWhateverTheyAre();
    void keepsNothingThatIsNotThere();
};

void tst_JsonDelta::makesEachOutOfTheOther_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<int>("size");
    const auto row = [](const char *name, const char *before, const char *after, int size) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << size;
    };
    row("the same", R"({"a": [1, 2]})", R"({"a": [1, 2]})", 0);
    row("another value", "1", R"("x")", 2);
    row("another type", "[1]", R"({"a": 1})", 4);
    row("a member", R"({"a": 1, "b": [1, 2, 3]})", R"({"a": 2, "b": [1, 2, 3]})", 2);
    row("a new member", R"({"a": 1})", R"({"a": 1, "b": 2})", 2);
    row("no member any more", R"({"a": 1, "b": 2})", R"({"a": 1})", 2);
    row("a member that is null", R"({"a": 1})", R"({"a": null})", 2);
    row("an element", "[1, 2, 3, 4, 5, 6, 7, 8]", "[1, 2, 9, 4, 5, 6, 7, 8]", 2);
    row("most elements", "[1, 2, 3, 4, 5, 6, 7, 8]", "[1, 9, 9, 9, 9, 9, 9, 8]", 14);
    row("an element in front", "[1, 2, 3]", "[0, 1, 2, 3]", 3);
    row("an element behind", "[1, 2, 3]", "[1, 2, 3, 4]", 3);
    row("no element any more", "[1, 2, 3]", "[1, 3]", 3);
    row("one of several that are the same", "[1, 1, 1]", "[1, 1]", 3);
    row("another size altogether", "[1, 2, 3]", "[4, 5]", 7);
    row("nothing left", "[1, 2]", "[]", 4);
    row("deep down", R"([null, {"list": [{"hp": 1}, {"hp": 2}]}])",
        R"([null, {"list": [{"hp": 1}, {"hp": 3}]}])", 2);
}

void tst_JsonDelta::makesEachOutOfTheOther()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const JsonDelta delta = JsonDelta::between(json(before.constData()), json(after.constData()));
    QCOMPARE(delta.done(json(before.constData())), json(after.constData()));
    QCOMPARE(delta.undone(json(after.constData())), json(before.constData()));
    QTEST(delta.size(), "size");
}

void tst_JsonDelta::makesEachOutOfTheOtherWhateverTheyAre()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 2000; ++round) {
        const QJsonValue before = randomValue(random, 3);
        const QJsonValue after = randomValue(random, 3);
        const JsonDelta delta = JsonDelta::between(before, after);
        QCOMPARE(delta.done(before), after);
        QCOMPARE(delta.undone(after), before);
    }
}

void tst_JsonDelta::keepsNothingThatIsNotThere()
{
    const QJsonValue nothing(QJsonValue::Undefined);
    const JsonDelta made = JsonDelta::between(nothing, 7);
    QCOMPARE(made.done(nothing), QJsonValue(7));
    QVERIFY(made.undone(7).isUndefined());
    QCOMPARE(JsonDelta::between(7, nothing).size(), 2);
}

QTEST_APPLESS_MAIN(tst_JsonDelta)
#include "tst_JsonDelta.moc"
