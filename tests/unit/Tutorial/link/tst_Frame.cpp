#include "Tutorial/link/Frame.h"

#include <QTest>

class tst_Frame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framesOneCommand_data();
    void framesOneCommand();
};

void tst_Frame::framesOneCommand_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("frame");
    QTest::newRow("ASCII") << QStringLiteral("next") << QByteArray("100000004\x02next\0", 15);
    QTest::newRow("empty") << QString() << QByteArray("100000000\x02\0", 11);
    QTest::newRow("the length counts bytes")
        << QStringLiteral("次") << QByteArray("100000003\x02\xe6\xac\xa1\0", 14);
    QTest::newRow("lower case hexadecimal")
        << QString(171, QLatin1Char('x'))
        << QByteArray("1000000ab\x02") + QByteArray(171, 'x') + QByteArray(1, '\0');
}

void tst_Frame::framesOneCommand()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, frame);
    QCOMPARE(outboundFrame(command), frame);
}

QTEST_APPLESS_MAIN(tst_Frame)
#include "tst_Frame.moc"
