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
    asWritten("style sheet", QStringLiteral("<link rel=\"stylesheet\" href=\"/dev/zero\">x"));
    asWritten("imported style", QStringLiteral("<style>@import \"/dev/zero\";</style>x"));
    asWritten("picture of a style", QStringLiteral("<p style=\"background-image:url(/dev/zero)\">x</p>"));
    asWritten("nine tables", QStringLiteral("<table><tr><td>").repeated(9));
    QTest::newRow("rich") << QStringLiteral("<b>Save</b> the <i>map</i>") << QStringLiteral("Save the map");
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
    QElapsedTimer timer;
    timer.start();
    setHostText(&edit, QStringLiteral("<table><tr><td>").repeated(500));
    edit.show();
    QVERIFY(edit.document()->size().height() > 0);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(tst_HostText)
#include "tst_HostText.moc"
