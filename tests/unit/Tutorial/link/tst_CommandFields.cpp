#include "Tutorial/link/CommandFields.h"

#include <QTest>

class tst_CommandFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEmptyFields();
    void readsAMissingFieldAsEmptyAndZero();
    void readsDecimalNumbersOnly_data();
    void readsDecimalNumbersOnly();
    void namesTheWordAlone_data();
    void namesTheWordAlone();
    void joinsWhatItSplits();
    void leavesTheLastOfVeryManyFieldsWhole();
};

void tst_CommandFields::keepsEmptyFields()
{
    const CommandFields fields(QStringLiteral("a\x01\x01"
                                              "b\x01"));
    QCOMPARE(fields.count(), 4);
    QCOMPARE(fields.text(1), QString());
    QCOMPARE(fields.text(2), QStringLiteral("b"));
}

void tst_CommandFields::readsAMissingFieldAsEmptyAndZero()
{
    const CommandFields fields{QString()};
    QCOMPARE(fields.count(), 1);
    QCOMPARE(fields.text(5), QString());
    QCOMPARE(fields.number(5), 0);
}

void tst_CommandFields::readsDecimalNumbersOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("plain") << QStringLiteral("42") << 42;
    QTest::newRow("negative") << QStringLiteral("-9999") << -9999;
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << 0;
    QTest::newRow("fraction") << QStringLiteral("1.5") << 0;
    QTest::newRow("beyond int") << QStringLiteral("99999999999") << 0;
    QTest::newRow("word") << QStringLiteral("left") << 0;
}

void tst_CommandFields::readsDecimalNumbersOnly()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QCOMPARE(CommandFields(QStringLiteral("word\x01") + text).number(1), number);
}

void tst_CommandFields::namesTheWordAlone_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("word");
    QTest::newRow("alone") << QStringLiteral("bye") << QStringLiteral("bye");
    QTest::newRow("with fields") << QStringLiteral("bye\x01now\x01") << QStringLiteral("bye");
    QTest::newRow("none before the fields") << QStringLiteral("\x01"
                                                              "bye")
                                            << QString();
    QTest::newRow("empty") << QString() << QString();
}

void tst_CommandFields::namesTheWordAlone()
{
    QFETCH(QString, command);
    QFETCH(QString, word);
    QVERIFY(CommandFields::word(command) == word);
    QCOMPARE(CommandFields(command).text(0), word);
}

void tst_CommandFields::joinsWhatItSplits()
{
    const QString command = QStringLiteral("indicator\x01update\x01\x01"
                                           "7");
    QCOMPARE(CommandFields::join(CommandFields(command).all()), command);
}

void tst_CommandFields::leavesTheLastOfVeryManyFieldsWhole()
{
    const QString most(CommandFields::kMostFields - 1, CommandFields::kSeparator);
    QCOMPARE(CommandFields(most).count(), CommandFields::kMostFields);
    const QString more = most + QStringLiteral("a\x01\x01") + QLatin1Char('b');
    const CommandFields fields(more);
    QCOMPARE(fields.count(), CommandFields::kMostFields);
    QCOMPARE(fields.text(CommandFields::kMostFields - 1), QStringLiteral("a\x01\x01") + QLatin1Char('b'));
    QCOMPARE(CommandFields::join(fields.all()), more);
}

QTEST_APPLESS_MAIN(tst_CommandFields)
#include "tst_CommandFields.moc"
