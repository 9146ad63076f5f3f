#include "Tutorial/preset/JsonString.h"
#include "tool/JsonWrapper.h"

#include <QVariant>
#include <QtTest>

class tst_JsonString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCharacterIsWrittenAsTheWrapperDoes();
    void textIsAppended();
};

void tst_JsonString::everyCharacterIsWrittenAsTheWrapperDoes()
{
    for (uint character = 0; character <= 0x10FFFF; character += character < 0x10000 ? 1 : 4099) {
        if (QChar::isSurrogate(character)) {
            continue;
        }
        const QString text = QLatin1Char('a') + QString::fromUcs4(&character, 1) + QLatin1Char('b');
        QString json;
        appendJsonString(json, text);
        QVERIFY2(json == JsonWrapper::getJsonString(text), qPrintable(QString::number(character, 16)));
    }
}

void tst_JsonString::textIsAppended()
{
    QString json = QStringLiteral("{");
    appendJsonString(json, QString());
    appendJsonString(json, QStringLiteral("\"\"\n"));
    QCOMPARE(json, QStringLiteral("{\"\"\"\\\"\\\"\\n\""));
}

QTEST_GUILESS_MAIN(tst_JsonString)
#include "tst_JsonString.moc"
