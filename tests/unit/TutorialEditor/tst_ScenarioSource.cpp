#include "TutorialEditor/ScenarioSource.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

namespace {

/// The block comments taken out one by one, each time from the start.
QString blockCommentsOneByOne(QString text)
{
    for (;;) {
        const int start = text.indexOf(QStringLiteral("/*"));
        const int end = start < 0 ? -1 : text.indexOf(QStringLiteral("*/"), start + 2);
        if (end < 0) {
            return text;
        }
        text.remove(start, end + 2 - start);
    }
}

/// The line comments taken out in place, with the position moving through the text.
QString lineCommentsInPlace(QString text)
{
    int position = 0;
    for (;;) {
        const int end = text.indexOf(QLatin1Char('\n'), position);
        if (end < 0) {
            return text;
        }
        int first = position;
        while (text.at(first) == QLatin1Char(' ') || text.at(first) == QLatin1Char('\t')) {
            ++first;
        }
        if (text.mid(first, 2) == QStringLiteral("//")) {
            text.remove(position, end + 1 - position);
        } else {
            position = end + 1;
        }
    }
}

} // namespace

class tst_ScenarioSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blockComments_data();
    void blockComments();
    void lineComments_data();
    void lineComments();
    void onePassGivesWhatTheStepsGive();
    void theArrayIsCutOut_data();
    void theArrayIsCutOut();
};

void tst_ScenarioSource::blockComments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    QTest::newRow("none") << QStringLiteral("abc") << QStringLiteral("abc");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("one") << QStringLiteral("a/* x */b") << QStringLiteral("ab");
    QTest::newRow("over lines") << QStringLiteral("a/*\n*\n*/b/**/c") << QStringLiteral("abc");
    QTest::newRow("unclosed") << QStringLiteral("a/* x */b/* y") << QStringLiteral("ab/* y");
    QTest::newRow("the opening does not close itself") << QStringLiteral("a/*/b") << QStringLiteral("a/*/b");
    QTest::newRow("the end alone") << QStringLiteral("a*/b") << QStringLiteral("a*/b");
    QTest::newRow("inside a string") << QStringLiteral("\"a/*b\",\"c*/d\"") << QStringLiteral("\"ad\"");
    QTest::newRow("a cut brings a comment together") << QStringLiteral("//**/* x */a") << QStringLiteral("a");
    QTest::newRow("brought together but unclosed") << QStringLiteral("//**/* x") << QStringLiteral("/* x");
    QTest::newRow("brought together twice")
        << QStringLiteral("///**//**/**/a") << blockCommentsOneByOne(QStringLiteral("///**//**/**/a"));
}

void tst_ScenarioSource::blockComments()
{
    QFETCH(QString, text);
    QTEST(withoutBlockComments(text), "left");
}

void tst_ScenarioSource::lineComments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    QTest::newRow("whole line") << QStringLiteral("a\n// x\nb\n") << QStringLiteral("a\nb\n");
    QTest::newRow("behind blanks") << QStringLiteral("a\n \t // x\nb\n") << QStringLiteral("a\nb\n");
    QTest::newRow("behind code") << QStringLiteral("a // x\nb\n") << QStringLiteral("a // x\nb\n");
    QTest::newRow("first line") << QStringLiteral("//x\nb") << QStringLiteral("b");
    QTest::newRow("several") << QStringLiteral("//x\n//y\n  //z\n") << QString();
    QTest::newRow("last line without a line feed") << QStringLiteral("a\n//x") << QStringLiteral("a\n//x");
    QTest::newRow("empty lines") << QStringLiteral("\n\na\n\n") << QStringLiteral("\n\na\n\n");
    QTest::newRow("blank-only line") << QStringLiteral("a\n  \t\n//x\nb\n") << QStringLiteral("a\n  \t\nb\n");
    QTest::newRow("blank-only line with a carriage return")
        << QStringLiteral("a\r\n  \r\n//x\r\nb\r\n") << QStringLiteral("a\r\n  \r\nb\r\n");
    QTest::newRow("one slash") << QStringLiteral("/\n/ /x\n") << QStringLiteral("/\n/ /x\n");
}

void tst_ScenarioSource::lineComments()
{
    QFETCH(QString, text);
    QTEST(withoutLineComments(text), "left");
}

void tst_ScenarioSource::onePassGivesWhatTheStepsGive()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QString letters = QStringLiteral("//**a \n\t\r");
    for (int round = 0; round < 20000; ++round) {
        QString text;
        const int length = random.bounded(24);
        for (int i = 0; i < length; ++i) {
            text += letters.at(random.bounded(letters.size()));
        }
        QCOMPARE(withoutBlockComments(text), blockCommentsOneByOne(text));
        QCOMPARE(withoutLineComments(text), lineCommentsInPlace(text));
    }
}

void tst_ScenarioSource::theArrayIsCutOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("array");
    QTest::newRow("scenario") << QStringLiteral("var scenario = [\n1];\n") << QStringLiteral("[\n1]\n");
    QTest::newRow("bare array") << QStringLiteral("[1]") << QStringLiteral("[1]");
    QTest::newRow("head only") << QStringLiteral("var scenario = [1]") << QStringLiteral("[1]");
    QTest::newRow("end only") << QStringLiteral("[1];") << QStringLiteral("[1]");
    QTest::newRow("the first end wins")
        << QStringLiteral("var scenario = [\"a];b\"];") << QStringLiteral("[\"a]b\"];");
    QTest::newRow("an end before the head") << QStringLiteral("];var scenario = [") << QStringLiteral("][");
    QTest::newRow("other blanks") << QStringLiteral("var scenario=[1];")
                                  << QStringLiteral("var scenario=[1]");
}

void tst_ScenarioSource::theArrayIsCutOut()
{
    QFETCH(QString, text);
    QTEST(scenarioArray(text), "array");
}

QTEST_MAIN(tst_ScenarioSource)
#include "tst_ScenarioSource.moc"
