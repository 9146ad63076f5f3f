#include "Tutorial/overlay/IndicatorSettings.h"

#include <QtTest>

namespace {

// A value of its own under each key.
QVariantMap eachKeyItsValue()
{
    return {{QStringLiteral("tooltip"), true},
            {QStringLiteral("textEditX"), 1},
            {QStringLiteral("textEditY"), 2},
            {QStringLiteral("newX"), 3},
            {QStringLiteral("newY"), 4},
            {QStringLiteral("lastX"), 5},
            {QStringLiteral("lastY"), 6},
            {QStringLiteral("upsideDown"), true},
            {QStringLiteral("mirror"), true},
            {QStringLiteral("repaintAll"), true},
            {QStringLiteral("updateTextEditSize"), true},
            {QStringLiteral("hintHeight"), 7},
            {QStringLiteral("tooltipX"), 8},
            {QStringLiteral("tooltipY"), 9},
            {QStringLiteral("nextButtonX"), 10},
            {QStringLiteral("nextButtonY"), 11},
            {QStringLiteral("yesButtonX"), 12},
            {QStringLiteral("yesButtonY"), 13},
            {QStringLiteral("noButtonX"), 14},
            {QStringLiteral("noButtonY"), 15},
            {QStringLiteral("windowKey"), QStringLiteral("MapWindow")},
            {QStringLiteral("offsetX"), 16},
            {QStringLiteral("offsetY"), 17},
            {QStringLiteral("arrowVisible"), true},
            {QStringLiteral("hint"), QStringLiteral("Press <Next>")},
            {QStringLiteral("nextWindowEnabled"), true},
            {QStringLiteral("yesNoWindowEnabled"), true},
            {QStringLiteral("iconKind"), 18}};
}

} // namespace

/// The settings of an indicator without the indicator.
class tst_IndicatorSettingsMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachMemberHasItsKey();
    void eachKeyGoesBothWays_data();
    void eachKeyGoesBothWays();
    void mapWithoutBubbleHasNoPlaceOfTheHint();
    void emptyMapReadsAsNothing();
    void valuesThatDoNotConvertReadAsNothing();
    void otherKeysAreIgnored();
};

void tst_IndicatorSettingsMap::eachMemberHasItsKey()
{
    const IndicatorSettings settings = IndicatorSettings::fromMap(eachKeyItsValue());
    QVERIFY(settings.tooltip);
    QCOMPARE(settings.textEdit, QPoint(1, 2));
    const Placement &placement = settings.state.placement;
    QCOMPARE(QPoint(placement.newX, placement.newY), QPoint(3, 4));
    QCOMPARE(QPoint(placement.lastX, placement.lastY), QPoint(5, 6));
    QVERIFY(placement.upsideDown && placement.mirror);
    QVERIFY(settings.state.repaintAll && settings.state.updateTextEditSize);
    QCOMPARE(settings.state.hintHeight, 7);
    QCOMPARE(settings.tooltipPlace, QPoint(8, 9));
    QCOMPARE(settings.nextButton, QPoint(10, 11));
    QCOMPARE(settings.yesButton, QPoint(12, 13));
    QCOMPARE(settings.noButton, QPoint(14, 15));
    QCOMPARE(settings.state.windowKey, QStringLiteral("MapWindow"));
    QCOMPARE(QPoint(settings.state.offsetX, settings.state.offsetY), QPoint(16, 17));
    QCOMPARE(settings.state.hint, QStringLiteral("Press <Next>"));
    QVERIFY(settings.state.arrowVisible);
    QVERIFY(settings.state.nextWindowEnabled && settings.state.yesNoWindowEnabled);
    QCOMPARE(settings.state.iconKind, 18);
}

void tst_IndicatorSettingsMap::eachKeyGoesBothWays_data()
{
    QTest::addColumn<QString>("key");
    const QVariantMap map = eachKeyItsValue();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        QTest::newRow(qPrintable(entry.key())) << entry.key();
    }
}

void tst_IndicatorSettingsMap::eachKeyGoesBothWays()
{
    QFETCH(QString, key);
    QCOMPARE(IndicatorSettings::fromMap(eachKeyItsValue()).toMap(), eachKeyItsValue());
    // Without the one key, it and no other reads as nothing; the bubble's takes the place of the hint along.
    QVariantMap map = eachKeyItsValue();
    map.remove(key);
    QVariantMap expected = eachKeyItsValue();
    const QVariant value = expected.value(key);
    expected.insert(key, value.userType() == QMetaType::Bool  ? QVariant(false)
                         : value.userType() == QMetaType::Int ? QVariant(0)
                                                              : QVariant(QString()));
    if (key == QLatin1String("tooltip")) {
        expected.remove(QStringLiteral("textEditX"));
        expected.remove(QStringLiteral("textEditY"));
    }
    QCOMPARE(IndicatorSettings::fromMap(map).toMap(), expected);
}

void tst_IndicatorSettingsMap::mapWithoutBubbleHasNoPlaceOfTheHint()
{
    IndicatorSettings settings = IndicatorSettings::fromMap(eachKeyItsValue());
    settings.tooltip = false;
    const QVariantMap map = settings.toMap();
    QCOMPARE(map.value(QStringLiteral("tooltip")), QVariant(false));
    QVERIFY(!map.contains(QStringLiteral("textEditX")));
    QVERIFY(!map.contains(QStringLiteral("textEditY")));
    QCOMPARE(map.size(), eachKeyItsValue().size() - 2);
}

void tst_IndicatorSettingsMap::emptyMapReadsAsNothing()
{
    const IndicatorSettings settings = IndicatorSettings::fromMap({});
    QVERIFY(!settings.tooltip);
    QVERIFY(!settings.state.arrowVisible);
    QCOMPARE(settings.state.hintHeight, 0);
    QCOMPARE(settings.state.iconKind, 0);
    QCOMPARE(settings.state.offsetX, 0);
    QCOMPARE(settings.nextButton, QPoint(0, 0));
}

void tst_IndicatorSettingsMap::valuesThatDoNotConvertReadAsNothing()
{
    const QVariantMap bad{{QStringLiteral("newX"), QStringLiteral("seven")},
                          {QStringLiteral("hintHeight"), QVariantList{1}},
                          {QStringLiteral("mirror"), QVariantMap{}},
                          {QStringLiteral("tooltipX"), QStringLiteral("12")}};
    const IndicatorSettings settings = IndicatorSettings::fromMap(bad);
    QCOMPARE(settings.state.placement.newX, 0);
    QCOMPARE(settings.state.hintHeight, 0);
    QVERIFY(!settings.state.placement.mirror);
    QCOMPARE(settings.tooltipPlace, QPoint(12, 0));
}

void tst_IndicatorSettingsMap::otherKeysAreIgnored()
{
    QVariantMap map = eachKeyItsValue();
    map.insert(QStringLiteral("opacity"), 0.5);
    QCOMPARE(IndicatorSettings::fromMap(map).toMap(), eachKeyItsValue());
}

QTEST_APPLESS_MAIN(tst_IndicatorSettingsMap)
#include "tst_IndicatorSettingsMap.moc"
