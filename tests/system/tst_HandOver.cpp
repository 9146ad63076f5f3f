#include "FakeHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

/// The list of lessons and the scenario as the host editor gets them.
class tst_HandOver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lists19LessonsWithTitles_data();
    void lists19LessonsWithTitles();
    void handsOverACompleteScript_data();
    void handsOverACompleteScript();
    void differsBetweenLanguagesInTheHintsOnly();
    void sendsNoByteOrderMark();
    void fallsBackToEnglishForALanguageWithoutCatalogue();

private:
    static QJsonArray scenario(const QString &locale);
};

namespace {

QStringList allLocales()
{
    return {QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN")};
}

void addLocales()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = allLocales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

} // namespace

QJsonArray tst_HandOver::scenario(const QString &locale)
{
    FakeHost host;
    if (!host.start(locale)) {
        return {};
    }
    host.send({QStringLiteral("tutorial"), QStringLiteral("TutorialStep1")});
    if (!host.waitForPayloads(1)) {
        return {};
    }
    const QString prefix = QStringLiteral("start\x01var scenario = ");
    const QString suffix = QStringLiteral(";\x01-1");
    const QString payload = host.payloads().at(0);
    if (!payload.startsWith(prefix) || !payload.endsWith(suffix)) {
        qWarning() << "unexpected hand-over" << payload.left(60) << payload.right(20);
        return {};
    }
    const QString script = payload.mid(prefix.size(), payload.size() - prefix.size() - suffix.size());
    return QJsonDocument::fromJson(script.toUtf8()).array();
}

void tst_HandOver::lists19LessonsWithTitles_data()
{
    addLocales();
}

void tst_HandOver::lists19LessonsWithTitles()
{
    QFETCH(QString, locale);
    FakeHost host;
    QVERIFY(host.start(locale));
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(1));
    const QString prefix = QStringLiteral("tutorialList\x01");
    QVERIFY(host.payloads().at(0).startsWith(prefix));
    const QJsonDocument list = QJsonDocument::fromJson(host.payloads().at(0).mid(prefix.size()).toUtf8());
    QVERIFY(list.isArray());
    QCOMPARE(list.array().size(), 19);
    for (int i = 0; i < 19; ++i) {
        const QJsonObject entry = list.array().at(i).toObject();
        QCOMPARE(entry.keys(), (QStringList{QStringLiteral("filename"), QStringLiteral("title")}));
        QCOMPARE(entry.value(QStringLiteral("filename")).toString(),
                 QStringLiteral("TutorialStep%1").arg(i + 1));
        const QString title = entry.value(QStringLiteral("title")).toString();
        QVERIFY2(!title.isEmpty() && !title.startsWith(QLatin1Char('#')), qPrintable(title));
    }
}

void tst_HandOver::handsOverACompleteScript_data()
{
    addLocales();
}

void tst_HandOver::handsOverACompleteScript()
{
    QFETCH(QString, locale);
    const QJsonArray items = scenario(locale);
    QCOMPARE(items.size(), 86);
    const QStringList fields = {
        QStringLiteral("command"),    QStringLiteral("condition"), QStringLiteral("folder"),
        QStringLiteral("hint"),       QStringLiteral("icon"),      QStringLiteral("id"),
        QStringLiteral("jump"),       QStringLiteral("jumpNo"),    QStringLiteral("name"),
        QStringLiteral("prohibited"), QStringLiteral("showArrow"), QStringLiteral("translationId"),
        QStringLiteral("windowKey"),  QStringLiteral("x"),         QStringLiteral("y")};
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        QCOMPARE(item.keys(), fields);
        const QString hint = item.value(QStringLiteral("hint")).toString();
        QVERIFY2(!hint.isEmpty() && !hint.startsWith(QLatin1Char('#')) &&
                     !hint.contains(QStringLiteral("qsTr(")),
                 qPrintable(hint));
    }
}

void tst_HandOver::differsBetweenLanguagesInTheHintsOnly()
{
    QList<QJsonArray> scenarios;
    const QStringList locales = allLocales();
    for (const QString &locale : locales) {
        QJsonArray items = scenario(locale);
        QVERIFY(!items.isEmpty());
        for (int i = 0; i < items.size(); ++i) {
            QJsonObject item = items.at(i).toObject();
            item.remove(QStringLiteral("hint"));
            items[i] = item;
        }
        scenarios.append(items);
    }
    QCOMPARE(scenarios.at(1), scenarios.at(0));
    QCOMPARE(scenarios.at(2), scenarios.at(0));
}

void tst_HandOver::sendsNoByteOrderMark()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("tutorialList")});
    host.send({QStringLiteral("tutorial"), QStringLiteral("TutorialStep1")});
    host.send({QStringLiteral("requestPresetData"), QStringLiteral("step2")});
    QVERIFY(host.waitForPayloads(3));
    QVERIFY(host.payloads().at(0).startsWith(QStringLiteral("tutorialList\x01[")));
    QVERIFY(host.payloads().at(1).startsWith(QStringLiteral("start\x01var scenario = [")));
    QVERIFY(host.payloads().at(2).startsWith(QStringLiteral("feedbackPresetData\x01{")));
    QVERIFY(!host.receivedBytes().contains("\xEF\xBB\xBF"));
}

void tst_HandOver::fallsBackToEnglishForALanguageWithoutCatalogue()
{
    QCOMPARE(scenario(QStringLiteral("xx_YY")), scenario(QStringLiteral("en_US")));
}

QTEST_GUILESS_MAIN(tst_HandOver)
#include "tst_HandOver.moc"
