#include "host/JsonChange.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

namespace {

QJsonObject object(const char *text)
{
    return QJsonDocument::fromJson(QByteArray(text)).object();
}

} // namespace

class tst_JsonChange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesOneObjectOutOfAnother_data();
    void makesOneObjectOutOfAnother();
    void keepsOnlyWhatDiffers();
};

void tst_JsonChange::makesOneObjectOutOfAnother_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    row("nothing", "{}", "{}");
    row("the same", R"({"a": 1, "b": {"c": [1]}})", R"({"a": 1, "b": {"c": [1]}})");
    row("from nothing", "{}", R"({"a": {"b": {}}})");
    row("to nothing", R"({"a": {"b": {}}})", "{}");
    row("another value", R"({"a": 1, "b": 2})", R"({"a": 1, "b": "2"})");
    row("a value deep inside", R"({"a": {"b": {"c": 1, "d": 2}}})", R"({"a": {"b": {"c": 1, "d": 3}}})");
    row("a member gone deep inside", R"({"a": {"b": {"c": 1, "d": 2}}})", R"({"a": {"b": {"c": 1}}})");
    row("an object in place of a value", R"({"a": 1})", R"({"a": {"b": 1}})");
    row("a value in place of an object", R"({"a": {"b": 1}})", R"({"a": null})");
    row("an array", R"({"a": [1, 2, {"b": 3}]})", R"({"a": [1, 2, {"b": 4}]})");
    row("members called as those of a change", R"({"set": {"in": 1}})", R"({"gone": [1], "set": {"in": 2}})");
}

void tst_JsonChange::makesOneObjectOutOfAnother()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QJsonObject from = object(before.constData());
    const QJsonObject to = object(after.constData());
    QCOMPARE(JsonChange::applied(from, JsonChange::between(from, to)), to);
}

void tst_JsonChange::keepsOnlyWhatDiffers()
{
    const QJsonObject before = object(R"({"files": {"big": [1, 2, 3], "small": {"name": "a", "size": 4}}})");
    const QJsonObject after = object(R"({"files": {"big": [1, 2, 3], "small": {"name": "b", "size": 4}}})");
    QCOMPARE(JsonChange::between(before, before), QJsonObject());
    const QByteArray kept = QJsonDocument(JsonChange::between(before, after)).toJson(QJsonDocument::Compact);
    QVERIFY2(kept.contains(R"("name":"b")"), kept.constData());
    QVERIFY2(!kept.contains("big") && !kept.contains("size"), kept.constData());
}

QTEST_GUILESS_MAIN(tst_JsonChange)
#include "tst_JsonChange.moc"
