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
