#include "lesson/QuotedRow.h"

#include <QTest>

class tst_QuotedRow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatTheHintQuotes_data();
    void findsWhatTheHintQuotes();
};

void tst_QuotedRow::findsWhatTheHintQuotes_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("row");
    const auto row = [](const char *name, const char *hint, const QStringList &rows, int found) {
        QTest::newRow(name) << QString::fromUtf8(hint) << rows << found;
    };
    const QStringList switches{QStringLiteral("None"), QStringLiteral("1: Game started"),
                               QStringLiteral("2: Herb found")};
    row("a part of a row", "Beside “Switch” choose “Herb found”, then click “Next”.", switches, 2);
    row("the very words before a part", "Choose “A”.",
        {QStringLiteral("All"), QStringLiteral("None"), QStringLiteral("A")}, 2);
    row("the first of two quotations", "Choose “None”, not “Herb found”.", switches, 0);
    row("in Japanese marks", "「薬草を見つけた」を選んでください。",
        {QStringLiteral("なし"), QStringLiteral("2：薬草を見つけた")}, 1);
    row("none of the rows", "Choose “Gate open”.", switches, -1);
    row("nothing quoted", "Choose the second one.", switches, -1);
    row("none quoted, but one with the name that was typed", "Choose your cloak. Then click “Next”.",
        {QStringLiteral("None"), QStringLiteral("1: Cap"), QStringLiteral("2: Village")}, 2);
    row("quoted before what was typed", "Choose “Cap”.",
        {QStringLiteral("2: Village"), QStringLiteral("1: Cap")}, 1);
    row("no rows", "Choose “Herb found”.", {}, -1);
}

void tst_QuotedRow::findsWhatTheHintQuotes()
{
    QFETCH(QString, hint);
    QFETCH(QStringList, rows);
    QTEST(quotedRow(hint, rows, QStringLiteral("Village")), "row");
}

QTEST_APPLESS_MAIN(tst_QuotedRow)
#include "tst_QuotedRow.moc"
