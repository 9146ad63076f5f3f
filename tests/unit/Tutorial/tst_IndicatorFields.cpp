#include "Tutorial/IndicatorFields.h"
#include "Tutorial/link/CommandFields.h"

#include <QtTest>

class tst_IndicatorFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreReadByTheirPlace();
    void eachFlagHasItsBit_data();
    void eachFlagHasItsBit();
    void missingFieldsReadAsNothing();
    void badNumbersReadAsZero();
};

namespace {

IndicatorUpdate read(const QStringList &fields)
{
    return indicatorUpdate(CommandFields(
        CommandFields::join(QStringList{QStringLiteral("indicator"), QStringLiteral("update")} + fields)));
}

} // namespace

void tst_IndicatorFields::fieldsAreReadByTheirPlace()
{
    const IndicatorUpdate update =
        read({QStringLiteral("300"), QStringLiteral("-9999"), QStringLiteral("MapWindow"),
              QStringLiteral("Two\nlines"), QStringLiteral("4"), QStringLiteral("3")});
    QCOMPARE(update.target, QPoint(300, -9999));
    QCOMPARE(update.windowKey, QStringLiteral("MapWindow"));
    QCOMPARE(update.hint, QStringLiteral("Two\nlines"));
    QCOMPARE(update.arrow, true);
    QCOMPARE(update.iconKind, 3);
}

void tst_IndicatorFields::eachFlagHasItsBit_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("yesNo");
    QTest::addColumn<bool>("arrow");
    QTest::newRow("none") << 0 << false << false << false;
    QTest::newRow("next") << 1 << true << false << false;
    QTest::newRow("yes and no") << 2 << false << true << false;
    QTest::newRow("arrow") << 4 << false << false << true;
    QTest::newRow("all") << 7 << true << true << true;
    QTest::newRow("bits of no meaning") << 8 << false << false << false;
    QTest::newRow("bits of no meaning besides") << 0x7ffffff9 << true << false << false;
    QTest::newRow("below zero") << -1 << true << true << true;
}

void tst_IndicatorFields::eachFlagHasItsBit()
{
    QFETCH(int, flags);
    const IndicatorUpdate update =
        read({QString(), QString(), QString(), QString(), QString::number(flags), QString()});
    QTEST(update.next, "next");
    QTEST(update.yesNo, "yesNo");
    QTEST(update.arrow, "arrow");
}

void tst_IndicatorFields::missingFieldsReadAsNothing()
{
    const IndicatorUpdate update = read({});
    QCOMPARE(update.target, QPoint(0, 0));
    QCOMPARE(update.windowKey, QString());
    QCOMPARE(update.hint, QString());
    QVERIFY(!update.arrow && !update.next && !update.yesNo);
    // 0, the click: what a number that is not there reads as.
    QCOMPARE(update.iconKind, 0);
}

void tst_IndicatorFields::badNumbersReadAsZero()
{
    const QString bad = QStringLiteral("9999999999");
    const IndicatorUpdate update =
        read({bad, QStringLiteral("0x10"), QString(), QString(), QStringLiteral("seven"), bad});
    QCOMPARE(update.target, QPoint(0, 0));
    QVERIFY(!update.arrow && !update.next && !update.yesNo);
    QCOMPARE(update.iconKind, 0);
}

QTEST_APPLESS_MAIN(tst_IndicatorFields)
#include "tst_IndicatorFields.moc"
