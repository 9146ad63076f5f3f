#include "LogCapture.h"
#include "Tutorial/localisation/SourceTextScanner.h"

#include <QHash>
#include <QtTest>

namespace {

/// Knows a few texts by "context/text" and gives back all others.
QString firstLookup(const QString &context, const QString &text)
{
    static const QHash<QString, QString> texts{
        {QStringLiteral("TutorialStep11/#1"), QStringLiteral("eleven one")},
        {QStringLiteral("TutorialStep11/#5"), QStringLiteral("five")},
        {QStringLiteral("TutorialStep11/#6"), QStringLiteral("say \"hi\"\nnow\\")},
        {QStringLiteral("TutorialStep11/#8"), QStringLiteral("#changed")},
        {QStringLiteral("TutorialStep11/a\"b"), QStringLiteral("quote found")},
        {QStringLiteral("TutorialStep11/a\tb"), QStringLiteral("tab found")},
        {QStringLiteral("ctx/text"), QStringLiteral("context text")},
        {QStringLiteral("ctx/a\",\"b"), QStringLiteral("never")},
    };
    return texts.value(context + QLatin1Char('/') + text, text);
}

QString secondLookup(const QString &context, const QString &text)
{
    static const QHash<QString, QString> texts{
        {QStringLiteral("TutorialStep11/#2"), QStringLiteral("second two")},
        {QStringLiteral("ctx/#2"), QStringLiteral("context two")},
        {QStringLiteral("TutorialStep11/plain"), QStringLiteral("never")},
        {QStringLiteral("TutorialStep11/#8"), QStringLiteral("never")},
    };
    return texts.value(context + QLatin1Char('/') + text);
}

QString context()
{
    return QStringLiteral("TutorialStep11");
}

} // namespace

class tst_SourceTextScanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueAtTheStart_data();
    void valueAtTheStart();
    void failures_data();
    void failures();
    void scripts_data();
    void scripts();
    void lists_data();
    void lists();
    void textThatIsNoJsonStringReadsAsTheDescriptionOfItsWrapper();
    void deepArgumentsAreRead();
    void deepArgumentsThatAreNotClosedAreReported();

private:
    SourceTextScanner m_scanner{firstLookup, secondLookup};
};

void tst_SourceTextScanner::valueAtTheStart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("rest");

    const auto row = [](const char *name, const char *text, const char *value, const char *rest) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(value) << QString::fromUtf8(rest);
    };
    row("empty", "", "", "");
    row("plain string", "\"plain\" rest", "\"plain\"", " rest");
    row("empty plain string", "\"\"x", "\"\"", "x");
    row("plain string keeps escapes", "\"a\\\"b\\n\",", "\"a\\\"b\\n\"", ",");
    row("plain string takes no arguments", "\"%1\".arg(\"a\")", "\"%1\"", ".arg(\"a\")");
    row("identifier", "qsTr(\"#1\")", "\"eleven one\"", "");
    row("identifier with rest", "qsTr(\"#1\"),\n", "\"eleven one\"", ",\n");
    row("text is escaped", "qsTr(\"#6\")", "\"say \\\"hi\\\"\\nnow\\\\\"", "");
    row("escaped quote is decoded", "qsTr(\"a\\\"b\")", "\"quote found\"", "");
    row("escapes are decoded", "qsTr(\"a\\tb\")", "\"tab found\"", "");
    row("first closing pair ends", "qsTr(\"x\\\")y\")", "\"kDoc\"", "y\")");
    row("empty call", "qsTr(\"\")", "\"\"", "");
    row("plain text in a call", "qsTr(\"plain\")", "\"plain\"", "");
    row("second translator", "qsTr(\"#2\")", "\"second two\"", "");
    row("identifier nobody knows", "qsTr(\"#9\")", "\"#9\"", "");
    row("changed text is final", "qsTr(\"#8\")", "\"#changed\"", "");
    row("context call, blank", "QT_TRANSLATE_NOOP(\"ctx\", \"text\")", "\"context text\"", "");
    row("context call, no blank", "QT_TRANSLATE_NOOP(\"ctx\",\"text\")", "\"context text\"", "");
    row("context call, second translator", "QT_TRANSLATE_NOOP(\"ctx\", \"#2\")", "\"context two\"", "");
    row("context call, nobody knows", "QT_TRANSLATE_NOOP(\"ctx\", \"#1\")", "\"#1\"", "");
    row("blank wins over an earlier separator", "QT_TRANSLATE_NOOP(\"a\",\"b\", \"text\")", "\"text\"", "");
    row("blank wins from behind the call too", "QT_TRANSLATE_NOOP(\"ctx\",\"text\")\", \"x", "\"x\"",
        "\", \"x");
    row("separator behind the closing pair reads to the end", "QT_TRANSLATE_NOOP(\"a\")\", \"text",
        "\"text\"", "\", \"text");
    row("empty text", "QT_TRANSLATE_NOOP(\"ctx\", \"\")", "\"\"", "");
    row("opening quote closes", "QT_TRANSLATE_NOOP(\")z\", \"text", "\"text\"", "z\", \"text");
    row("one argument", "qsTr(\"a %1\").arg(\"3\");", "\"a 3\"", ";");
    row("plain and translated argument", "qsTr(\"%1 of %2\").arg(\"3\").arg(qsTr(\"#5\"))", "\"3 of five\"",
        "");
    row("lowest marker first", "qsTr(\"%7 %3\").arg(\"a\").arg(\"b\")", "\"b a\"", "");
    row("marker in an argument", "qsTr(\"%1\").arg(\"x%1\").arg(\"y\")", "\"xy\"", "");
    row("argument keeps its escapes", "qsTr(\"%1\").arg(qsTr(\"#6\"))", "\"say \\\"hi\\\"\\nnow\\\\\"", "");
    row("argument of an argument", "qsTr(\"<%1>\").arg(qsTr(\"(%1)\").arg(\"in\"))!", "\"<(in)>\"", "!");
    row("arguments of a context call", "QT_TRANSLATE_NOOP(\"c\", \"%1\").arg(\"a\")", "\"a\"", "");
    row("context call as an argument", "qsTr(\"%1\").arg(QT_TRANSLATE_NOOP(\"ctx\", \"text\"))",
        "\"context text\"", "");
}

void tst_SourceTextScanner::valueAtTheStart()
{
    QFETCH(QString, text);
    QFETCH(QString, value);
    QFETCH(QString, rest);
    LogCapture log; // what the JSON reader says about odd texts
    QString left = QStringLiteral("left over");
    QStringList errors;
    QCOMPARE(m_scanner.parseTranslatable(text, context(), &left, &errors), value);
    QCOMPARE(left, rest);
    QCOMPARE(errors, QStringList());
}

void tst_SourceTextScanner::failures_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("errors");

    const auto row = [](const char *name, const char *text, const char *value, const QStringList &errors) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(value) << errors;
    };
    row("unterminated", "\"abc", "\"abc", {QStringLiteral("unterminated \"...\": \"abc")});
    row("lone quote", "\"", "\"", {QStringLiteral("unterminated \"...\": \"")});
    row("backslash before the last quote", "\"abc\\\"", "\"abc\\\"",
        {QStringLiteral("unterminated \"...\": \"abc\\\"")});
    row("call not closed", "qsTr(\"abc", "qsTr(\"abc",
        {QStringLiteral("not matched qsTr(\"...\"): qsTr(\"abc")});
    row("context call not closed", "QT_TRANSLATE_NOOP(\"a\", \"b", "QT_TRANSLATE_NOOP(\"a\", \"b",
        {QStringLiteral("not matched qsTr(\"...\"): QT_TRANSLATE_NOOP(\"a\", \"b")});
    row("no separator", "QT_TRANSLATE_NOOP(\"ab\") x", "QT_TRANSLATE_NOOP(\"ab\") x",
        {QStringLiteral("not found \", \" or \",\": QT_TRANSLATE_NOOP(\"ab\") x")});
    row("neither form", "12, x", "12, x", {QStringLiteral("unable to parse as string: 12, x")});
    row("argument not closed", "qsTr(\"x\").arg(\"3\"", "\"x\"",
        {QStringLiteral("not closed .arg(: .arg(\"3\"")});
    row("argument is substituted though not closed", "qsTr(\"x %1\").arg(\"3\"; more", "\"x 3\"",
        {QStringLiteral("not closed .arg(: .arg(\"3\"; more")});
    row("argument missing", "qsTr(\"x %1\").arg(", "\"x \"", {QStringLiteral("not closed .arg(: .arg(")});
    row("argument is no string", "qsTr(\"x %1\").arg(345)", "\"x 45\"",
        {QStringLiteral("unable to parse as string: 345)"), QStringLiteral("not closed .arg(: .arg(345)")});
    row("argument in an argument not closed", "qsTr(\"<%1>\").arg(qsTr(\"(%1)\").arg(\"a\"", "\"<(a)>\"",
        {QStringLiteral("not closed .arg(: .arg(\"a\""),
         QStringLiteral("not closed .arg(: .arg(qsTr(\"(%1)\").arg(\"a\"")});
    row("second argument not closed", "qsTr(\"%1%2\").arg(\"a\").arg(\"b\"", "\"ab\"",
        {QStringLiteral("not closed .arg(: .arg(\"b\"")});
}

void tst_SourceTextScanner::failures()
{
    QFETCH(QString, text);
    QFETCH(QString, value);
    QFETCH(QStringList, errors);
    LogCapture log; // Qt warns about an argument without a marker
    QString rest = QStringLiteral("left over");
    QStringList found{QStringLiteral("earlier")};
    QCOMPARE(m_scanner.parseTranslatable(text, context(), &rest, &found), value);
    QCOMPARE(rest, QString());
    QCOMPARE(found, QStringList{QStringLiteral("earlier")} + errors);
}

void tst_SourceTextScanner::scripts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("failures");

    const auto row = [](const char *name, const char *text, const char *script, int failures) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(script) << failures;
    };
    row("empty", "", "", 0);
    row("no call", "var scenario = [\r\n{\"x\":1}\r\n];", "var scenario = [\r\n{\"x\":1}\r\n];", 0);
    row("only line feeds", "\n\n", "", 0);
    row("line feeds at the end", "a\n\nb\n\n\n", "a\n\nb", 0);
    row("carriage return stops the trimming", "a\n\r\n", "a\n\r", 0);
    row("calls", "[qsTr(\"#1\"), 5, qsTr(\"#2\")]\n", "[\"eleven one\", 5, \"second two\"]", 0);
    row("calls side by side", "qsTr(\"#1\")qsTr(\"#5\")", "\"eleven one\"\"five\"", 0);
    row("simple calls before context calls", "{QT_TRANSLATE_NOOP(\"ctx\", \"text\"), qsTr(\"#1\")}",
        "{\"context text\", \"eleven one\"}", 0);
    row("call in an argument of a context call", "QT_TRANSLATE_NOOP(\"c\", \"%1\").arg(qsTr(\"#5\"))",
        "\"five\"", 0);
    row("failure ends the pass and keeps the rest", "a qsTr(\"x), qsTr(\"#1", "a qsTr(\"x), qsTr(\"#1", 1);
    row("failure drops what stands behind an open argument", "a qsTr(\"#1\").arg(\"x\", qsTr(\"#5\")] end",
        "a \"eleven one\"", 1);
    row("second pass runs behind a failure of the first", "QT_TRANSLATE_NOOP(\"ctx\", \"text\") qsTr(\"x\\\"",
        "\"context text\" qsTr(\"x\\\"", 1);
}

void tst_SourceTextScanner::scripts()
{
    QFETCH(QString, text);
    QFETCH(QString, script);
    QFETCH(int, failures);
    LogCapture log;
    QStringList errors;
    QCOMPARE(m_scanner.translateScript(text, context(), &errors), script);
    QCOMPARE(errors.size(), failures);
}

void tst_SourceTextScanner::lists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("failures");

    const auto row = [](const char *name, const char *text, const char *list, int failures) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(list) << failures;
    };
    row("whole", "var list = [\r\n\t{\"title\":qsTr(\"#1\")},\r\n\t{\"title\":qsTr(\"#5\")}\r\n];",
        "[\r\n\t{\"title\":\"eleven one\"},\r\n\t{\"title\":\"five\"}\r\n]", 0);
    row("no end", "var list = [1", "[1", 0);
    row("no head", "1];", "1]", 0);
    row("only the first of each", "var list = [var list = [];];", "[var list = []];", 0);
    row("head in front is kept", "// the list\nvar list = [];\n", "// the list\n[]\n", 0);
    row("line feeds at the end stay", "[]\n\n", "[]\n\n", 0);
    row("context calls stay", "[QT_TRANSLATE_NOOP(\"ctx\", \"text\")]",
        "[QT_TRANSLATE_NOOP(\"ctx\", \"text\")]", 0);
    row("call right behind a value is passed over", "qsTr(\"#1\")qsTr(\"#5\")", "\"eleven one\"qsTr(\"#5\")",
        0);
    row("call one behind a value is passed over", "qsTr(\"#1\"),qsTr(\"#5\")", "\"eleven one\",qsTr(\"#5\")",
        0);
    row("call two behind a value is found", "qsTr(\"#1\"), qsTr(\"#5\")", "\"eleven one\", \"five\"", 0);
    row("search passes over a call and finds the next", "qsTr(\"#1\"),qsTr(\"#5\"),qsTr(\"#5\")",
        "\"eleven one\",qsTr(\"#5\"),\"five\"", 0);
    row("failure", "var list = [qsTr(\"x];", "[qsTr(\"x]", 1);
}

void tst_SourceTextScanner::lists()
{
    QFETCH(QString, text);
    QFETCH(QString, list);
    QFETCH(int, failures);
    QStringList errors;
    QCOMPARE(m_scanner.translateList(text, context(), &errors), list);
    QCOMPARE(errors.size(), failures);
}

void tst_SourceTextScanner::textThatIsNoJsonStringReadsAsTheDescriptionOfItsWrapper()
{
    LogCapture log;
    QString rest;
    QStringList errors;
    QCOMPARE(m_scanner.parseTranslatable(QStringLiteral("qsTr(\"a\"b\")"), context(), &rest, &errors),
             QStringLiteral("\"kDoc\""));
    QCOMPARE(errors, QStringList());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.contains(QStringLiteral("Json parse error")));
}

void tst_SourceTextScanner::deepArgumentsAreRead()
{
    constexpr int kDepth = 100000;
    const QString text = QStringLiteral("qsTr(\"%1\").arg(").repeated(kDepth) + QStringLiteral("\"deep\"") +
                         QString(kDepth, QLatin1Char(')'));
    QString rest;
    QStringList errors;
    QCOMPARE(m_scanner.parseTranslatable(text + QStringLiteral(" rest"), context(), &rest, &errors),
             QStringLiteral("\"deep\""));
    QCOMPARE(rest, QStringLiteral(" rest"));
    QCOMPARE(errors, QStringList());
    QCOMPARE(m_scanner.translateScript(text, context(), &errors), QStringLiteral("\"deep\""));
}

void tst_SourceTextScanner::deepArgumentsThatAreNotClosedAreReported()
{
    constexpr int kDepth = 1000;
    const QString text = QStringLiteral("qsTr(\"%1\").arg(").repeated(kDepth) + QStringLiteral("\"deep\"");
    QStringList errors;
    QCOMPARE(m_scanner.translateScript(text, context(), &errors), QStringLiteral("\"deep\""));
    QCOMPARE(errors.size(), kDepth);
    QCOMPARE(errors.first(), QStringLiteral("not closed .arg(: .arg(\"deep\""));
    QCOMPARE(errors.last(), QStringLiteral("not closed .arg(: ") + text.mid(10));
}

QTEST_GUILESS_MAIN(tst_SourceTextScanner)
#include "tst_SourceTextScanner.moc"
