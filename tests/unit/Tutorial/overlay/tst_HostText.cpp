#include "CpuTime.h"
#include "Tutorial/overlay/HostText.h"

#include <QTextEdit>
#include <QtTest>

class tst_HostText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isShown_data();
    void isShown();
    void tablesInTablesTakeNoTime();
};

void tst_HostText::isShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto asWritten = [](const char *name, const QString &text) {
        QTest::newRow(name) << text << text;
    };
    asWritten("plain", QStringLiteral("Saves the map"));
    asWritten("plain with an angle", QStringLiteral("a < b, background"));
    asWritten("picture from a file", QStringLiteral("<img src=\"/dev/zero\">"));
    asWritten("picture, blank in front", QStringLiteral("<b>x</b>< IMG src=\"/dev/zero\">"));
    asWritten("picture in entities", QStringLiteral("<b>x</b><&#105;mg src=\"/dev/zero\">"));
    asWritten("picture of a given size",
              QStringLiteral("<b>x</b><im&#103; width=5 height=5 src=\"/dev/zero\">"));
    asWritten("style sheet",
              QStringLiteral("<link rel=\"stylesheet\" type=\"text/css\" href=\"/dev/zero\">x"));
    asWritten("imported style", QStringLiteral("<style>@import \"/dev/zero\";</style>x"));
    asWritten("imported style in escapes", QStringLiteral("<style>@\\69mport \"/dev/zero\";</style>x"));
    asWritten("picture of a style", QStringLiteral("<p style=\"background-image:url(/dev/zero)\">x</p>"));
    asWritten("picture of a style in entities",
              QStringLiteral("<p style=\"&#98;ackground-image:&#117;rl(/dev/zero)\">x</p>"));
    asWritten("picture below the text", QStringLiteral("<body &#98;ackground=\"/dev/zero\">x"));
    asWritten("nine tables", QStringLiteral("<table><tr><td>").repeated(9));
    asWritten("nine tables in entities", QStringLiteral("<b></b><&#116;able><tr><td>").repeated(9));
    asWritten("wide cells", QStringLiteral("<table cellpadding=2000000000><tr><td>x</table>"));
    asWritten("wide padding", QStringLiteral("<table><tr><td style=\"padding:2000000000px\">x</table>"));
    asWritten("many tags", QStringLiteral("<b>").repeated(2667));
    QTest::newRow("rich") << QStringLiteral("<b>Save</b> the <i>map</i>") << QStringLiteral("Save the map");
    QTest::newRow("words of files and styles")
        << QStringLiteral("<b>Background</b>: url (1), img, @import, table table table table table table "
                          "table table table")
        << QStringLiteral(
               "Background: url (1), img, @import, table table table table table table table table table");
    QTest::newRow("a coloured background")
        << QStringLiteral("<p style=\"background-color:#ffffff\">map</p>") << QStringLiteral("map");
    QTest::newRow("a table") << QStringLiteral("<table><tr><td>map</td></tr></table>")
                             << QStringLiteral("\nmap\n");
}

void tst_HostText::isShown()
{
    QFETCH(QString, text);
    QTextEdit edit;
    setHostText(&edit, text);
    QTEST(edit.toPlainText(), "shown");
}

void tst_HostText::tablesInTablesTakeNoTime()
{
    QTextEdit edit;
    edit.setLineWrapMode(QTextEdit::NoWrap);
    const CpuTime time;
    setHostText(&edit, QStringLiteral("<table><tr><td>").repeated(500));
    edit.show();
    QVERIFY(edit.document()->size().height() > 0);
    QVERIFY2(time.elapsedMs() < 2000, qPrintable(QString::number(time.elapsedMs())));
}

QTEST_MAIN(tst_HostText)
#include "tst_HostText.moc"
