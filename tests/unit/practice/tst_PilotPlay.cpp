#include "PilotPlay.h"

#include <QCommandLineParser>
#include <QTest>

namespace {

/// The titles of the plays that the options ask for, or the problem with them.
QStringList titlesFor(const QStringList &options)
{
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("lesson"), QString(), QStringLiteral("N")},
                       {QStringLiteral("scenario"), QString(), QStringLiteral("file")},
                       {QStringLiteral("locale"), QString(), QStringLiteral("name"), QStringLiteral("ja_JP")},
                       {QStringLiteral("way"), QString(), QStringLiteral("answer"), QStringLiteral("yes")}});
    if (!parser.parse(QStringList{QStringLiteral("program")} + options)) {
        return {parser.errorText()};
    }
    QString problem;
    const QVector<PilotPlay> plays = pilotPlays(parser, &problem);
    QStringList titles;
    for (const PilotPlay &play : plays) {
        titles += play.title();
    }
    return problem.isEmpty() ? titles : QStringList(problem);
}

} // namespace

class tst_PilotPlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneLesson();
    void everyWayThroughAllOfThem();
    void oneFromAFile();
    void answersToSeveralQuestions();
    void knowsTheProjectThatItStartsFrom_data();
    void knowsTheProjectThatItStartsFrom();
    void whatThereIsNot_data();
    void whatThereIsNot();
};

void tst_PilotPlay::oneLesson()
{
    QCOMPARE(titlesFor({QStringLiteral("--lesson=4")}), QStringList(QStringLiteral("lesson 4 (ja_JP, yes)")));
}

void tst_PilotPlay::everyWayThroughAllOfThem()
{
    const QStringList titles = titlesFor(
        {QStringLiteral("--lesson=all"), QStringLiteral("--locale=all"), QStringLiteral("--way=both")});
    QCOMPARE(titles.size(), 19 * 3 * 2);
    QCOMPARE(titles.constFirst(), QStringLiteral("lesson 1 (en_US, yes)"));
    QCOMPARE(titles.at(1), QStringLiteral("lesson 1 (en_US, no)"));
    QCOMPARE(titles.constLast(), QStringLiteral("lesson 19 (zh_CN, no)"));
}

void tst_PilotPlay::oneFromAFile()
{
    QCOMPARE(titlesFor({QStringLiteral("--scenario=/lessons/Harbor.js"), QStringLiteral("--way=both")}),
             (QStringList{QStringLiteral("Harbor (ja_JP, yes)"), QStringLiteral("Harbor (ja_JP, no)")}));
}

void tst_PilotPlay::answersToSeveralQuestions()
{
    QCOMPARE(titlesFor({QStringLiteral("--lesson=4"), QStringLiteral("--way=yes-no")}),
             QStringList(QStringLiteral("lesson 4 (ja_JP, yes-no)")));
    PilotPlay play;
    play.way = QStringLiteral("yes-no-yes");
    QCOMPARE(play.answers(), (QVector<bool>{true, false, true}));
    play.way = QStringLiteral("no");
    QCOMPARE(play.answers(), QVector<bool>{false});
}

void tst_PilotPlay::knowsTheProjectThatItStartsFrom_data()
{
    QTest::addColumn<int>("lesson");
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("step");
    const QString first = QStringLiteral("TutorialStep1");
    QTest::newRow("the first lesson") << 1 << QString() << first << QString();
    QTest::newRow("another") << 12 << QString() << QStringLiteral("TutorialStep12")
                             << QStringLiteral("step12");
    QTest::newRow("one of a file") << 0 << QStringLiteral("a/TutorialStep3.js")
                                   << QStringLiteral("TutorialStep3") << QStringLiteral("step3");
    QTest::newRow("the first one, of a file")
        << 0 << QStringLiteral("a/TutorialStep1.js") << first << QString();
    QTest::newRow("one that has no number")
        << 0 << QStringLiteral("a/Harbor.js") << QStringLiteral("Harbor") << QString();
    QTest::newRow("one of almost that name")
        << 0 << QStringLiteral("a/TutorialStepping.js") << QStringLiteral("TutorialStepping") << QString();
}

void tst_PilotPlay::knowsTheProjectThatItStartsFrom()
{
    QFETCH(int, lesson);
    QFETCH(QString, scenario);
    PilotPlay play;
    play.lesson = lesson;
    play.scenario = scenario;
    QTEST(play.lessonName(), "name");
    QTEST(play.step(), "step");
}

void tst_PilotPlay::whatThereIsNot_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("problem");
    const QString first = QStringLiteral("--lesson=1");
    QTest::newRow("no lesson") << QStringList()
                               << QStringLiteral(
                                      "--pilot needs to know which lesson: add --lesson N, --lesson all, "
                                      "or --scenario FILE");
    QTest::newRow("lesson") << QStringList(QStringLiteral("--lesson=20"))
                            << QStringLiteral("there is no lesson \"20\"; --lesson takes 1 to 19 or all");
    QTest::newRow("locale") << QStringList{first, QStringLiteral("--locale=fr_FR")}
                            << QStringLiteral(
                                   "there is no locale \"fr_FR\"; --locale takes en_US, ja_JP, zh_CN or all");
    QTest::newRow("way") << QStringList{first, QStringLiteral("--way=all")}
                         << QStringLiteral("there is no way \"all\"; --way takes yes, no or both");
}

void tst_PilotPlay::whatThereIsNot()
{
    QFETCH(QStringList, options);
    QFETCH(QString, problem);
    QCOMPARE(titlesFor(options), QStringList(problem));
}

QTEST_GUILESS_MAIN(tst_PilotPlay)
#include "tst_PilotPlay.moc"
