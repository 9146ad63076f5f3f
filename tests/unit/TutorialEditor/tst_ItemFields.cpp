#include "TutorialEditor/ItemFields.h"
#include "tool/JsonWrapper.h"

#include <QStringList>
#include <QTest>

/// The table of the fields of an item.
class tst_ItemFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOrderIsThatOfTheFiles();
    void newValuesHaveTheStartOfEachField();
    void everyFieldIsAPlaceOfItsOwn();
    void aFieldIsFoundByItsKeyOnly();
    void valuesAreConvertedToTheKindOfTheField();
    void readingTakesWhatTheReaderMakesOfAnotherKind();
    void onlyProhibitedIsReadForFolders();
};

void tst_ItemFields::theOrderIsThatOfTheFiles()
{
    QStringList keys;
    for (const ItemField &field : itemFields()) {
        keys << QLatin1String(field.key);
    }
    QCOMPARE(
        keys.join(QLatin1Char(' ')),
        QStringLiteral("translationId x y windowKey condition hint hint2 icon jump jumpNo command showArrow "
                       "prohibited"));
}

void tst_ItemFields::newValuesHaveTheStartOfEachField()
{
    const ItemValues values;
    QCOMPARE(values.translationId, -1);
    QCOMPARE(values.x, -9999);
    QCOMPARE(values.y, -9999);
    QCOMPARE(values.icon, QStringLiteral("click"));
    QCOMPARE(values.jump, -1);
    QCOMPARE(values.jumpNo, -1);
    QVERIFY(values.showArrow);
    QVERIFY(!values.prohibited);
    QCOMPARE(values.windowKey + values.condition + values.hint + values.hint2 + values.command, QString());
}

void tst_ItemFields::everyFieldIsAPlaceOfItsOwn()
{
    for (const ItemField &field : itemFields()) {
        ItemValues values;
        const QVariant before = field.value(values);
        const QVariant other = before.type() == QVariant::Bool     ? QVariant(!before.toBool())
                               : before.type() == QVariant::String ? QVariant(QStringLiteral("other"))
                                                                   : QVariant(before.toInt() + 7);
        field.setValue(&values, other);
        for (const ItemField &each : itemFields()) {
            QCOMPARE(each.value(values), &each == &field ? other : each.value(ItemValues()));
        }
        field.setToStart(&values);
        QCOMPARE(field.value(values), before);
    }
}

void tst_ItemFields::aFieldIsFoundByItsKeyOnly()
{
    const ItemField *hint = findItemField(QStringLiteral("hint"));
    QVERIFY(hint);
    QVERIFY(hint->is(&ItemValues::hint));
    QVERIFY(!hint->is(&ItemValues::hint2));
    for (const char *key : {"", "id", "name", "folder", "X", "followWindow"}) {
        QVERIFY2(findItemField(QLatin1String(key)) == nullptr, key);
    }
}

void tst_ItemFields::valuesAreConvertedToTheKindOfTheField()
{
    ItemValues values;
    findItemField(QStringLiteral("x"))->setValue(&values, QStringLiteral("12"));
    QCOMPARE(values.x, 12);
    findItemField(QStringLiteral("showArrow"))->setValue(&values, 0);
    QVERIFY(!values.showArrow);
    findItemField(QStringLiteral("icon"))->setValue(&values, 3);
    QCOMPARE(values.icon, QStringLiteral("3"));
}

void tst_ItemFields::readingTakesWhatTheReaderMakesOfAnotherKind()
{
    ItemValues values;
    const JsonWrapper json(QStringLiteral(R"({"number":4,"list":[]})"));
    findItemField(QStringLiteral("jump"))->read(json[QStringLiteral("number")], &values);
    QCOMPARE(values.jump, 4);
    findItemField(QStringLiteral("jump"))->read(json[QStringLiteral("list")], &values);
    QCOMPARE(values.jump, json[QStringLiteral("list")].toInt());
    QCOMPARE(values.jump, 0);
}

void tst_ItemFields::onlyProhibitedIsReadForFolders()
{
    for (const ItemField &field : itemFields()) {
        QCOMPARE(field.inFolders, QLatin1String(field.key) == QLatin1String("prohibited"));
        QCOMPARE(QString::fromLatin1(field.formerKey),
                 field.is(&ItemValues::windowKey) ? QStringLiteral("followWindow") : QString());
    }
}

QTEST_APPLESS_MAIN(tst_ItemFields)
#include "tst_ItemFields.moc"
