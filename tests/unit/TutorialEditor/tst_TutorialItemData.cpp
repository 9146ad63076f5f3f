#include "DocumentFixture.h"
#include "LogCapture.h"
#include "TutorialEditor/ItemClipboard.h"
#include "TutorialEditor/PropertyHash.h"
#include "tool/JsonWrapper.h"

#include <QTest>

#include <memory>

class tst_TutorialItemData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anIdAloneGivesTheDefaults();
    void allFieldsOfAStepAreRead();
    void aFolderReadsProhibitedAndNothingElse();
    void followWindowStandsInForAMissingWindowKey_data();
    void followWindowStandsInForAMissingWindowKey();
    void hint2IsTheTranslationOfTheNumber_data();
    void hint2IsTheTranslationOfTheNumber();
    void aFieldOfAnotherTypeReadsAsNothing();
    void withoutAnIdThereIsNoItem_data();
    void withoutAnIdThereIsNoItem();
    void toJsonHasAllFieldsInTheirOrder();
    void toJsonOfANumberBelowZeroIsPlain();
    void toJsonReadsBack();
    void setNameOutsideATransactionAssigns();
    void setNameInATransactionLeavesTheNameAlone();
    void setNameInATransactionAssignsWithoutADocument();
    void setNameAsksTheDocumentHoweverTheItemCame();
    void setTranslationIdAssigns();
    void theChangeNoteNamesTheItem();

    void propertiesRememberTheirOrder();
    void removingAPropertyTakesTheLastMention();
    void propertiesCompareByContent();
    void aMissingPropertyHasTheDefault();

private:
    [[nodiscard]] static std::unique_ptr<TutorialItemData> read(const char *json)
    {
        const ScenarioTexts texts;
        return std::unique_ptr<TutorialItemData>(
            TutorialItemData::fromJson(JsonWrapper(QString::fromUtf8(json)), texts));
    }
};

void tst_TutorialItemData::anIdAloneGivesTheDefaults()
{
    const auto data = read(R"({"id":7})");
    QVERIFY(data);
    QCOMPARE(data->id, 7);
    QCOMPARE(data->name, QString());
    QCOMPARE(data->translationId, -1);
    QCOMPARE(data->x, -9999);
    QCOMPARE(data->y, -9999);
    QCOMPARE(data->windowKey, QString());
    QCOMPARE(data->condition, QString());
    QCOMPARE(data->icon, QStringLiteral("click"));
    QCOMPARE(data->hint, QString());
    QCOMPARE(data->hint2, QStringLiteral("#-1"));
    QCOMPARE(data->jump, -1);
    QCOMPARE(data->jumpNo, -1);
    QCOMPARE(data->command, QString());
    QVERIFY(data->showArrow);
    QVERIFY(!data->prohibited);
    const TutorialItemData fresh;
    QCOMPARE(fresh.id, -1);
    QCOMPARE(fresh.icon, QStringLiteral("click"));
    QCOMPARE(fresh.hint2, QString());
}

void tst_TutorialItemData::allFieldsOfAStepAreRead()
{
    const auto data =
        read(R"({"id":7,"name":"n","folder":false,"translationId":4,"x":1,"y":-2,"windowKey":"W",
        "condition":"click,","hint":"h","hint2":"ignored","icon":"eye","jump":3,"jumpNo":6,"command":"presetData,step2",
        "showArrow":false,"prohibited":true})");
    QVERIFY(data);
    QCOMPARE(data->name, QStringLiteral("n"));
    QCOMPARE(data->translationId, 4);
    QCOMPARE(data->x, 1);
    QCOMPARE(data->y, -2);
    QCOMPARE(data->windowKey, QStringLiteral("W"));
    QCOMPARE(data->condition, QStringLiteral("click,"));
    QCOMPARE(data->hint, QStringLiteral("h"));
    QCOMPARE(data->hint2, QStringLiteral("#4"));
    QCOMPARE(data->icon, QStringLiteral("eye"));
    QCOMPARE(data->jump, 3);
    QCOMPARE(data->jumpNo, 6);
    QCOMPARE(data->command, QStringLiteral("presetData,step2"));
    QVERIFY(!data->showArrow);
    QVERIFY(data->prohibited);
}

void tst_TutorialItemData::aFolderReadsProhibitedAndNothingElse()
{
    const auto data =
        read(R"({"id":7,"name":"n","folder":true,"translationId":4,"x":3,"icon":"eye","prohibited":true})");
    QVERIFY(data);
    QCOMPARE(data->name, QStringLiteral("n"));
    QCOMPARE(data->x, -9999);
    QCOMPARE(data->translationId, -1);
    QCOMPARE(data->icon, QStringLiteral("click"));
    QCOMPARE(data->hint2, QString());
    QVERIFY(data->prohibited);
}

void tst_TutorialItemData::followWindowStandsInForAMissingWindowKey_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("windowKey");
    QTest::newRow("alone") << QByteArray(R"({"id":1,"followWindow":"F"})") << QStringLiteral("F");
    QTest::newRow("with a key") << QByteArray(R"({"id":1,"followWindow":"F","windowKey":"W"})")
                                << QStringLiteral("W");
    QTest::newRow("with an empty key")
        << QByteArray(R"({"id":1,"followWindow":"F","windowKey":""})") << QString();
    QTest::newRow("with a key that is no text")
        << QByteArray(R"({"id":1,"followWindow":"F","windowKey":5})") << QString();
}

void tst_TutorialItemData::followWindowStandsInForAMissingWindowKey()
{
    QFETCH(QByteArray, json);
    const auto data = read(json.constData());
    QVERIFY(data);
    QTEST(data->windowKey, "windowKey");
}

void tst_TutorialItemData::hint2IsTheTranslationOfTheNumber_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("hint2");
    QTest::newRow("known") << QByteArray(R"({"id":1,"translationId":4,"hint":"h"})")
                           << QStringLiteral("four");
    QTest::newRow("no number") << QByteArray(R"({"id":1})") << QStringLiteral("minus one");
    QTest::newRow("unknown") << QByteArray(R"({"id":1,"translationId":5})") << QStringLiteral("#5");
    QTest::newRow("translated to nothing")
        << QByteArray(R"({"id":1,"translationId":6})") << QStringLiteral("#6");
}

void tst_TutorialItemData::hint2IsTheTranslationOfTheNumber()
{
    QFETCH(QByteArray, json);
    FixedTranslator translator;
    translator.texts = {{QStringLiteral("Lesson|#4"), QStringLiteral("four")},
                        {QStringLiteral("Lesson|#-1"), QStringLiteral("minus one")},
                        {QStringLiteral("Lesson|#6"), QLatin1String("")},
                        {QStringLiteral("Other|#5"), QStringLiteral("five")}};
    ScenarioTexts texts;
    texts.setContext(QStringLiteral("Lesson"));
    const std::unique_ptr<TutorialItemData> data(
        TutorialItemData::fromJson(JsonWrapper(QString::fromUtf8(json)), texts));
    QVERIFY(data);
    QTEST(data->hint2, "hint2");
}

void tst_TutorialItemData::aFieldOfAnotherTypeReadsAsNothing()
{
    const auto data = read(R"({"id":1,"name":5,"translationId":"4","x":"3","y":1.5,"windowKey":null,"icon":[],
        "jump":null,"showArrow":1,"prohibited":"true"})");
    QVERIFY(data);
    QCOMPARE(data->name, QString());
    QCOMPARE(data->translationId, 0);
    QCOMPARE(data->x, 0);
    QCOMPARE(data->y, 0);
    QCOMPARE(data->windowKey, QString());
    QCOMPARE(data->icon, QString());
    QCOMPARE(data->hint2, QStringLiteral("#0"));
    QCOMPARE(data->jump, 0);
    QVERIFY(!data->showArrow);
    QVERIFY(!data->prohibited);
    // What is not true is a step, whatever else it is.
    QCOMPARE(read(R"({"id":1,"folder":"true","x":3})")->x, 3);
}

void tst_TutorialItemData::withoutAnIdThereIsNoItem_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *json, const char *reason) {
        QTest::newRow(name) << QByteArray(json) << QString::fromLatin1(reason);
    };
    const char *missing = R"("m_object doesn't have key: id")";
    const char *noObject = R"("[id] is applied for kValue.")";
    row("object", R"([{"name":"n"}])", missing);
    row("empty object", "[{}]", missing);
    row("array", R"([["id"]])", noObject);
    row("string", R"(["id"])", noObject);
    row("number", "[12]", noObject);
    row("null", "[null]", noObject);
}

void tst_TutorialItemData::withoutAnIdThereIsNoItem()
{
    QFETCH(QByteArray, json);
    const JsonWrapper element = JsonWrapper(QString::fromUtf8(json))[0];
    const ScenarioTexts texts;
    LogCapture log;
    QVERIFY(TutorialItemData::fromJson(element, texts) == nullptr);
    const QString source = QStringLiteral("..\\..\\tutorial\\cpp\\");
    QFETCH(QString, reason);
    QCOMPARE(log.debugs(),
             QStringList{source + QStringLiteral("tool\\JsonWrapper.cpp JsonWrapper::errorHandler 1158 ") +
                         reason});
    QCOMPARE(
        log.warnings(),
        QStringList{source +
                    QStringLiteral("TutorialEditor\\TutorialItemData.cpp TutorialItemData::fromJson 329 ") +
                    reason});
}

void tst_TutorialItemData::toJsonHasAllFieldsInTheirOrder()
{
    TutorialItemData data;
    data.setId(7);
    data.name = QStringLiteral("say \"%1\"");
    data.translationId = 4;
    data.hint = QStringLiteral("h");
    data.hint2 = QStringLiteral("h2");
    const QString expected = QStringLiteral(
        R"({"id":7,"name":"say \"%1\"","translationId":4,"x":-9999,"y":-9999,"windowKey":"","condition":"",)"
        R"("hint":"h","hint2":"h2","icon":"click","jump":-1,"jumpNo":-1,"command":"","showArrow":true,)"
        R"("prohibited":false%2})");
    QCOMPARE(data.toJson(QString()), QString(expected).remove(QStringLiteral("%2")));
    QCOMPARE(data.toJson(QStringLiteral("\"folder\":true")),
             QString(expected).replace(QStringLiteral("%2"), QStringLiteral(",\"folder\":true")));
}

void tst_TutorialItemData::toJsonOfANumberBelowZeroIsPlain()
{
    TutorialItemData data;
    data.setId(-5);
    data.translationId = -2147483647 - 1;
    const QString text = data.toJson(QString());
    QVERIFY2(text.startsWith(QStringLiteral(R"({"id":-5,"name":"","translationId":-2147483648,)")),
             qPrintable(text));
    const auto again = read(text.toUtf8().constData());
    QVERIFY(again);
    QCOMPARE(again->id, -5);
}

void tst_TutorialItemData::toJsonReadsBack()
{
    const auto data =
        read(R"({"id":7,"name":"\u3042 \\ \"\n","translationId":4,"x":1,"hint":"h","showArrow":false})");
    QVERIFY(data);
    const auto again = read(data->toJson(QString()).toUtf8().constData());
    QVERIFY(again);
    QCOMPARE(again->toJson(QString()), data->toJson(QString()));
}

void tst_TutorialItemData::setNameOutsideATransactionAssigns()
{
    DocumentFixture fixture;
    TutorialItemData data;
    data.setName(QStringLiteral("n"));
    QCOMPARE(data.name, QStringLiteral("n"));
    QVERIFY(!fixture.undoRedo().canUndo());
    UndoRedo::publish(nullptr);
    data.setName(QStringLiteral("m"));
    QCOMPARE(data.name, QStringLiteral("m"));
}

void tst_TutorialItemData::setNameInATransactionLeavesTheNameAlone()
{
    DocumentFixture fixture;
    QVERIFY(fixture.load(R"([{"id":1,"name":"old"}])").isEmpty());
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    fixture.item(1)->setName(QStringLiteral("old"));
    QVERIFY(!fixture.undoRedo().canUndo());
    fixture.item(1)->setName(QStringLiteral("new"));
    fixture.undoRedo().endSingle();
    QCOMPARE(fixture.item(1)->name, QStringLiteral("old"));
    QVERIFY(fixture.undoRedo().canUndo());
    QVERIFY(fixture.host.modified);
    fixture.undoRedo().undo();
    QCOMPARE(fixture.item(1)->name, QStringLiteral("old"));
    QCOMPARE(fixture.host.notes.last(), QStringLiteral("{ \"tutorialItemId\": 1 }"));
    fixture.undoRedo().redo();
    QCOMPARE(fixture.item(1)->name, QStringLiteral("old"));
}

void tst_TutorialItemData::setNameInATransactionAssignsWithoutADocument()
{
    DocumentFixture fixture;
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    TutorialItemData data;
    data.setName(QStringLiteral("n"));
    fixture.undoRedo().endSingle();
    QCOMPARE(data.name, QStringLiteral("n"));
    QVERIFY(!fixture.undoRedo().canUndo());
}

void tst_TutorialItemData::setNameAsksTheDocumentHoweverTheItemCame()
{
    DocumentFixture fixture;
    QVERIFY(fixture.load(R"([{"id":1,"name":"old","folder":true,"children":[{"id":2,"name":"old"}]}])")
                .isEmpty());
    QCOMPARE(ItemClipboard::paste(R"([ {"id":1,"name":"pasted"} ])", &fixture.document, fixture.texts),
             QList<int>{3});
    fixture.undoRedo().beginSequence(QStringLiteral("rename"));
    QCOMPARE(ItemClipboard::paste(R"([ {"id":1,"name":"inserted"} ])", &fixture.document, fixture.texts),
             QList<int>{4});
    for (int id = 1; id <= 4; ++id) {
        const QString name = fixture.item(id)->name;
        fixture.item(id)->setName(QStringLiteral("new"));
        QCOMPARE(fixture.item(id)->name, name);
    }
    fixture.undoRedo().endSequence();
    fixture.item(4)->setName(QStringLiteral("new"));
    QCOMPARE(fixture.item(4)->name, QStringLiteral("new"));
    fixture.undoRedo().undo();
}

void tst_TutorialItemData::setTranslationIdAssigns()
{
    TutorialItemData data;
    data.setTranslationId(12);
    QCOMPARE(data.translationId, 12);
    data.setTranslationId(12);
    QCOMPARE(data.translationId, 12);
}

void tst_TutorialItemData::theChangeNoteNamesTheItem()
{
    TutorialItemData data;
    data.setId(86);
    QCOMPARE(data.changeNote(), QStringLiteral("{ \"tutorialItemId\": 86 }"));
}

void tst_TutorialItemData::propertiesRememberTheirOrder()
{
    PropertyHash properties;
    properties.insert(QStringLiteral("b"), 1);
    properties.insert(QStringLiteral("a"), 2);
    properties.insert(QStringLiteral("b"), 3);
    QCOMPARE(properties.keys, (QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(properties.size(), 2);
    QCOMPARE(properties.value(QStringLiteral("b"), QString()), QStringLiteral("3"));
    const PropertyHash copy(properties);
    QCOMPARE(copy.keys, properties.keys);
    QVERIFY(copy == properties);
}

void tst_TutorialItemData::removingAPropertyTakesTheLastMention()
{
    PropertyHash properties;
    properties.insert(QStringLiteral("b"), 1);
    properties.insert(QStringLiteral("a"), 2);
    properties.insert(QStringLiteral("b"), 3);
    properties.remove(QStringLiteral("b"));
    QCOMPARE(properties.keys, (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    QVERIFY(!properties.contains(QStringLiteral("b")));
    properties.remove(QStringLiteral("missing"));
    QCOMPARE(properties.keys.size(), 2);
}

void tst_TutorialItemData::propertiesCompareByContent()
{
    PropertyHash one;
    one.insert(QStringLiteral("a"), 1);
    one.insert(QStringLiteral("b"), 2);
    PropertyHash two;
    two.insert(QStringLiteral("b"), 2);
    two.insert(QStringLiteral("a"), 1);
    QVERIFY(one == two);
    QVERIFY(one.keys != two.keys);
    two.insert(QStringLiteral("a"), 3);
    QVERIFY(one != two);
}

void tst_TutorialItemData::aMissingPropertyHasTheDefault()
{
    PropertyHash properties;
    properties.insert(QStringLiteral("flag"), true);
    properties.insert(QStringLiteral("empty"), QString());
    QCOMPARE(properties.value(QStringLiteral("flag"), QString()), QStringLiteral("true"));
    QCOMPARE(properties.value(QStringLiteral("empty"), QStringLiteral("d")), QString());
    QCOMPARE(properties.value(QStringLiteral("missing"), QStringLiteral("d")), QStringLiteral("d"));
}

QTEST_MAIN(tst_TutorialItemData)
#include "tst_TutorialItemData.moc"
