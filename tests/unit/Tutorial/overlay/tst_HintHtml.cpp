#include "Tutorial/overlay/HintHtml.h"

#include <QTextDocument>
#include <QtTest>

class tst_HintHtml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data();
    void converts();
    void everyCharacterAppearsLiterally();
};

void tst_HintHtml::converts_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QString>("html");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("plain") << QStringLiteral("Press Next") << QStringLiteral("Press Next");
    QTest::newRow("markup characters")
        << QStringLiteral("<b>\"&\"</b>") << QStringLiteral("&lt;b&gt;&quot;&amp;&quot;&lt;/b&gt;");
    QTest::newRow("backslash") << QStringLiteral("a\\b") << QStringLiteral("a<tt>&#x5c;</tt>b");
    QTest::newRow("two backslashes") << QStringLiteral("\\\\")
                                     << QStringLiteral("<tt>&#x5c;</tt><tt>&#x5c;</tt>");
    QTest::newRow("line feed") << QStringLiteral("a\nb") << QStringLiteral("a<br />b");
    QTest::newRow("blank line") << QStringLiteral("a\n\nb") << QStringLiteral("a<br /><br />b");
    QTest::newRow("written-out markup")
        << QStringLiteral("<br />&#x5c;") << QStringLiteral("&lt;br /&gt;&amp;#x5c;");
    QTest::newRow("apostrophe") << QStringLiteral("it's") << QStringLiteral("it's");
}

void tst_HintHtml::converts()
{
    QFETCH(QString, hint);
    QTEST(hintToHtml(hint), "html");
}

void tst_HintHtml::everyCharacterAppearsLiterally()
{
    const QString hint = QString::fromUtf8("C:\\maps\\<1> \"x\" & y\n\xe6\xac\xa1\xe3\x81\xb8");
    QTextDocument document;
    document.setHtml(hintToHtml(hint));
    QCOMPARE(document.toPlainText(), hint);
}

QTEST_MAIN(tst_HintHtml)
#include "tst_HintHtml.moc"
