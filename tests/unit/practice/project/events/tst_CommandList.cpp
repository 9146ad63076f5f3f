#include "EventCommandsFixture.h"

#include <QRandomGenerator>

/// Lists of event commands are edited, each command with all that belongs to it.
class tst_CommandList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsARowForEachCommand_data();
    void showsARowForEachCommand();
    void insertsWithAllThatBelongsToIt_data();
    void insertsWithAllThatBelongsToIt();
    void insertsWhereThePersonIs_data();
    void insertsWhereThePersonIs();
    void removesWithAllThatBelongsToIt_data();
    void removesWithAllThatBelongsToIt();
    void aChangeThatChangesNothingKeepsEveryByte_data();
    void aChangeThatChangesNothingKeepsEveryByte();
    void linesBecomeEntries();
    void linesThatStayKeepWhatNobodyKnows();
    void aNewTextOfAChoiceIsThatOfItsBranch();
    void listsOfChoicesStayWithTheirChoice();
    void emptyChoicesAtTheEndGo();
    void theWayOutHasAListOfItsOwn();
    void theSecondListComesAndGoes();
    void outcomesComeWithTheirParameters();
    void goodsAreOneList();
    void oneIsTheFirstAndTheLast();
    void severalReachFromTheFirstToTheLast();
    void parametersBetweenAreFilled();
    void membersThatNobodyKnowsStay();
    void copiesAreIndentedFromZero();
    void pastesAtTheIndentOfTheRow();
    void anEmptyListGetsItsEnd();
    void codesThatNobodyKnowsStay();
    void randomEditsKeepTheListSound();

private:
    EventCommands m_table = table();
};

void tst_CommandList::showsARowForEachCommand_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("rows");
    QTest::newRow("empty") << QByteArray("0") << str("0");
    QTest::newRow("a message hides its lines") << QByteArray("101 401:a 401:b 230 0") << str("0 3 4");
    QTest::newRow("a line without a message") << QByteArray("401:a 0") << str("0 1");
    QTest::newRow("lines of another indent") << QByteArray("101 .401:a 0") << str("0 1 2");
    QTest::newRow("choices show their branches")
        << QByteArray("102 402 .101 .401:a .0 402 .0 404 0") << str("0 1 2 4 5 6 7 8");
    QTest::newRow("goods") << QByteArray("302 605 605 0") << str("0 3");
}

void tst_CommandList::showsARowForEachCommand()
{
    QFETCH(QByteArray, list);
    QFETCH(QString, rows);
    QStringList seen;
    const QVector<int> places = CommandList(&m_table, commands(list)).rows();
    for (const int place : places) {
        seen.append(QString::number(place));
    }
    QCOMPARE(seen.join(QLatin1Char(' ')), rows);
}

void tst_CommandList::insertsWithAllThatBelongsToIt_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("list");
    QTest::newRow("wait") << 230 << str("230 0");
    QTest::newRow("message without lines") << 101 << str("101 0");
    QTest::newRow("choices") << 102 << str("102 402 .0 402 .0 404 0");
    QTest::newRow("branch") << 111 << str("111 .0 412 0");
    QTest::newRow("loop") << 112 << str("112 .0 413 0");
    QTest::newRow("battle that cannot be lost") << 301 << str("301 0");
    QTest::newRow("shop") << 302 << str("302 0");
}

void tst_CommandList::insertsWithAllThatBelongsToIt()
{
    QFETCH(int, code);
    QFETCH(QString, list);
    CommandList edited(&m_table, commands("0"));
    QCOMPARE(edited.insert(0, CommandList::newForm(m_table, code)), 0);
    QCOMPARE(codes(edited.entries()), list);
}

void tst_CommandList::insertsWhereThePersonIs_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("list");
    const QString list = str("102 402 .0 402 .0 404 101 401 0");
    QTest::newRow("ahead of the choices") << 0 << str("230 102 402 .0 402 .0 404 101 401 0");
    QTest::newRow("on a branch: in its list") << 1 << str("102 402 .230 .0 402 .0 404 101 401 0");
    QTest::newRow("at the end of a list") << 2 << str("102 402 .230 .0 402 .0 404 101 401 0");
    QTest::newRow("on the second branch") << 3 << str("102 402 .0 402 .230 .0 404 101 401 0");
    QTest::newRow("on the end: behind it") << 5 << str("102 402 .0 402 .0 404 230 101 401 0");
    QTest::newRow("on a line: ahead of its message") << 7 << str("102 402 .0 402 .0 404 230 101 401 0");
    QTest::newRow("at the end of all") << 8 << str("102 402 .0 402 .0 404 101 401 230 0");
    QTest::newRow("nowhere: at the end of all") << -1 << str("102 402 .0 402 .0 404 101 401 230 0");
}

void tst_CommandList::insertsWhereThePersonIs()
{
    QFETCH(int, row);
    QFETCH(QString, list);
    CommandList edited(&m_table, commands("102 402 .0 402 .0 404 101 401 0"));
    const int place = edited.insert(row, CommandList::newForm(m_table, 230));
    QCOMPARE(codes(edited.entries()), list);
    QCOMPARE(edited.codeAt(place), 230);
}

void tst_CommandList::removesWithAllThatBelongsToIt_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("left");
    QTest::newRow("message with lines") << QByteArray("101 401:a 401:b 230 0") << 0 << str("230 0");
    QTest::newRow("choices with lists in lists")
        << QByteArray("102 402 .102 .402 ..230 ..0 .404 .0 404 230 0") << 0 << str("230 0");
    QTest::newRow("inner choices") << QByteArray("102 402 .102 .402 ..230 ..0 .404 .0 404 230 0") << 2
                                   << str("102 402 .0 404 230 0");
    QTest::newRow("the second of two alike")
        << QByteArray("111 .0 412 111 .0 412 0") << 3 << str("111 .0 412 0");
    QTest::newRow("a branch alone cannot go")
        << QByteArray("102 402 .0 404 0") << 1 << str("102 402 .0 404 0");
    QTest::newRow("an end cannot go") << QByteArray("102 402 .0 404 0") << 4 << str("102 402 .0 404 0");
    QTest::newRow("unknown, with what is indented further")
        << QByteArray("999 .230 .0 230 0") << 0 << str("230 0");
}

void tst_CommandList::removesWithAllThatBelongsToIt()
{
    QFETCH(QByteArray, list);
    QFETCH(int, row);
    QFETCH(QString, left);
    CommandList edited(&m_table, commands(list));
    edited.remove(row);
    QCOMPARE(codes(edited.entries()), left);
}

void tst_CommandList::aChangeThatChangesNothingKeepsEveryByte_data()
{
    QTest::addColumn<QByteArray>("list");
    for (const char *list :
         {"101 401:a 401:b 0", "101 0", "101 401: 0", "102 404 0", "111 .230 .0 411 .101 .401:x .0 412 0",
          "111 .0 412 0", "112 .113 .0 413 0", "301 0", "302 605:x 605:y 0", "999:a .230 .0 0"}) {
        QTest::newRow(list) << QByteArray(list);
    }
}

void tst_CommandList::aChangeThatChangesNothingKeepsEveryByte()
{
    QFETCH(QByteArray, list);
    const QJsonArray before = commands(list);
    CommandList edited(&m_table, before);
    edited.change(0, edited.form(0));
    QCOMPARE(edited.entries(), before);
}

void tst_CommandList::linesBecomeEntries()
{
    CommandList edited(&m_table, commands("101 401:a 0"));
    QJsonObject form = edited.form(0);
    QCOMPARE(form.value(str("lines")).toString(), str("a"));
    form.insert(str("lines"), str("one\ntwo\n\nfour"));
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("101 401 401 401 401 0"));
    QCOMPARE(edited.form(0).value(str("lines")).toString(), str("one\ntwo\n\nfour"));
    form.insert(str("lines"), QString());
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("101 0"));
}

void tst_CommandList::linesThatStayKeepWhatNobodyKnows()
{
    QJsonArray list = commands("101 401:a 401:b 0");
    QJsonObject line = list.at(1).toObject();
    line.insert(str("mark"), true);
    list.replace(1, line);
    CommandList edited(&m_table, list);
    QJsonObject form = edited.form(0);
    form.insert(str("lines"), str("a\nc"));
    edited.change(0, form);
    QCOMPARE(edited.entries().at(1).toObject(), line);
    QCOMPARE(edited.form(0).value(str("lines")).toString(), str("a\nc"));
}

void tst_CommandList::aNewTextOfAChoiceIsThatOfItsBranch()
{
    CommandList edited(&m_table, {});
    edited.insert(0, CommandList::newForm(m_table, 102));
    QJsonObject form = edited.form(0);
    form.insert(str("0"), QJsonArray{str("Buy"), str("No")});
    edited.change(0, form);
    QCOMPARE(edited.entries().at(1)[QLatin1String("parameters")].toArray(), (QJsonArray{0, str("Buy")}));
    QCOMPARE(edited.entries().at(3)[QLatin1String("parameters")].toArray(), (QJsonArray{1, str("No")}));
}

void tst_CommandList::listsOfChoicesStayWithTheirChoice()
{
    CommandList edited(&m_table, {});
    edited.insert(0, CommandList::newForm(m_table, 102));
    edited.insert(1, CommandList::newForm(m_table, 230));
    QJsonObject form = edited.form(0);
    form.insert(str("0"), QJsonArray{str("a"), str("b"), str("c")});
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("102 402 .230 .0 402 .0 402 .0 404 0"));
    form.insert(str("0"), QJsonArray{str("a")});
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("102 402 .230 .0 404 0"));
}

void tst_CommandList::emptyChoicesAtTheEndGo()
{
    CommandList edited(&m_table, {});
    QJsonObject form = CommandList::newForm(m_table, 102);
    form.insert(str("0"), QJsonArray{str("a"), QString(), str("c"), QString(), QString()});
    edited.insert(0, form);
    QCOMPARE(edited.form(0).value(str("0")).toArray(), (QJsonArray{str("a"), QString(), str("c")}));
    QCOMPARE(codes(edited.entries()), str("102 402 .0 402 .0 402 .0 404 0"));
}

void tst_CommandList::theWayOutHasAListOfItsOwn()
{
    CommandList edited(&m_table, {});
    QJsonObject form = CommandList::newForm(m_table, 102);
    form.insert(str("1"), EventCommands::kWayOut);
    edited.insert(0, form);
    QCOMPARE(codes(edited.entries()), str("102 402 .0 402 .0 403 .0 404 0"));
}

void tst_CommandList::theSecondListComesAndGoes()
{
    CommandList edited(&m_table, commands("111 .230 .0 412 0"));
    QJsonObject form = edited.form(0);
    QCOMPARE(form.value(str("else")), QJsonValue(false));
    form.insert(str("else"), true);
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("111 .230 .0 411 .0 412 0"));
    QCOMPARE(edited.form(0).value(str("else")), QJsonValue(true));
    form.insert(str("else"), false);
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("111 .230 .0 412 0"));
}

void tst_CommandList::outcomesComeWithTheirParameters()
{
    CommandList edited(&m_table, {});
    edited.insert(0, CommandList::newForm(m_table, 301));
    QJsonObject form = edited.form(0);
    form.insert(str("3"), true);
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("301 601 .0 603 .0 604 0"));
    form.insert(str("2"), true);
    form.insert(str("3"), false);
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("301 601 .0 602 .0 604 0"));
    form.insert(str("2"), false);
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("301 0"));
}

void tst_CommandList::goodsAreOneList()
{
    CommandList edited(&m_table, {});
    QJsonObject form = CommandList::newForm(m_table, 302);
    // A value, as compilers differ about a list that is made of one list.
    const QJsonValue first = QJsonArray{0, 1, 0, 0};
    QCOMPARE(form.value(str("entries")).toArray(), (QJsonArray{first}));
    form.insert(str("entries"), QJsonArray{QJsonArray{1, 2, 0, 0}, QJsonArray{0, 3, 1, 20}});
    form.insert(str("4"), true);
    edited.insert(0, form);
    QCOMPARE(codes(edited.entries()), str("302 605 0"));
    QCOMPARE(edited.entries().at(0)[QLatin1String("parameters")].toArray(), (QJsonArray{1, 2, 0, 0, true}));
    QCOMPARE(edited.form(0).value(str("entries")), form.value(str("entries")));
    form.insert(str("entries"), QJsonArray());
    edited.change(0, form);
    QCOMPARE(codes(edited.entries()), str("302 0"));
    QCOMPARE(edited.form(0).value(str("entries")).toArray(), QJsonArray());
}

void tst_CommandList::oneIsTheFirstAndTheLast()
{
    const EventCommands commands = table();
    CommandList list(&commands, {CommandBlock::entry(121, 0, {4, 4, 1}), CommandBlock::entry(0, 0)});
    QJsonObject form = list.form(0);
    QCOMPARE(form.value(str("single")), QJsonValue(true));
    QCOMPARE(commands.find(121)->rowOf(form), str("one"));
    form.insert(str("0"), 6);
    list.change(0, form);
    QCOMPARE(list.entries().at(0), QJsonValue(CommandBlock::entry(121, 0, {6, 6, 1})));
}

void tst_CommandList::severalReachFromTheFirstToTheLast()
{
    const EventCommands commands = table();
    CommandList list(&commands, {CommandBlock::entry(121, 0, {2, 5, 1}), CommandBlock::entry(0, 0)});
    QJsonObject form = list.form(0);
    QCOMPARE(form.value(str("single")), QJsonValue(false));
    QCOMPARE(commands.find(121)->rowOf(form), str("several"));
    form.insert(str("0"), 3);
    list.change(0, form);
    QCOMPARE(list.entries().at(0), QJsonValue(CommandBlock::entry(121, 0, {3, 5, 1})));
}

void tst_CommandList::parametersBetweenAreFilled()
{
    CommandList edited(&m_table, commands("101 0"));
    QJsonObject form = edited.form(0);
    form.insert(str("2"), str("Mila"));
    edited.change(0, form);
    QCOMPARE(edited.entries().at(0)[QLatin1String("parameters")].toArray(),
             (QJsonArray{QString(), QString(), str("Mila")}));
}

void tst_CommandList::membersThatNobodyKnowsStay()
{
    QJsonObject wait = CommandBlock::entry(230, 0, {60, str("more")});
    wait.insert(str("mark"), 7);
    CommandList edited(&m_table, {wait, CommandBlock::entry(0, 0)});
    QJsonObject form = edited.form(0);
    form.insert(str("0"), 30);
    edited.change(0, form);
    wait.insert(str("parameters"), QJsonArray{30, str("more")});
    QCOMPARE(edited.entries().at(0).toObject(), wait);
}

void tst_CommandList::copiesAreIndentedFromZero()
{
    const CommandList list(&m_table, commands("111 .102 .402 ..230 ..0 .404 .0 412 0"));
    QCOMPARE(codes(list.block(1)), str("102 402 .230 .0 404"));
    QCOMPARE(list.block(2), QJsonArray());
    QCOMPARE(list.block(8), QJsonArray());
    QCOMPARE(list.block(-1), QJsonArray());
}

void tst_CommandList::pastesAtTheIndentOfTheRow()
{
    CommandList list(&m_table, commands("111 .0 412 0"));
    QCOMPARE(list.paste(1, commands("102 402 .0 404")), 1);
    QCOMPARE(codes(list.entries()), str("111 .102 .402 ..0 .404 .0 412 0"));
}

void tst_CommandList::anEmptyListGetsItsEnd()
{
    CommandList list(&m_table, {});
    list.insert(-1, CommandList::newForm(m_table, 230));
    QCOMPARE(codes(list.entries()), str("230 0"));
}

void tst_CommandList::codesThatNobodyKnowsStay()
{
    CommandList list(&m_table, commands("998:a 230 997:b .996:c .0 0"));
    list.remove(1);
    list.insert(0, CommandList::newForm(m_table, 101));
    QCOMPARE(codes(list.entries()), str("101 998 997 .996 .0 0"));
    list.change(1, list.form(1));
    QCOMPARE(list.entries().at(1)[QLatin1String("parameters")].toArray(), QJsonArray{str("a")});
}

namespace {

/// Reads a list as a machine that knows nothing of editing would: commands at one indent, each followed by
/// what it has to be followed by, up to the end. Gives the place behind it; -1 where something is wrong.
int behindList(const QJsonArray &list, int at, int indent)
{
    const auto code = [&list](int place) {
        return list.at(place)[QLatin1String("code")].toInt(-1);
    };
    const auto isAt = [&list, &indent](int place) {
        return place < list.size() && list.at(place)[QLatin1String("indent")].toInt(-1) == indent;
    };
    while (isAt(at) && code(at) != 0) {
        const int head = code(at++);
        const QVector<int> ends{404, 412, 413, 604};
        if (head == 101 || head == 302) {
            while (isAt(at) && code(at) == (head == 101 ? 401 : 605)) {
                ++at;
            }
            continue;
        }
        const bool hasLists =
            head == 102 || head == 111 || head == 112 || (head == 301 && isAt(at) && code(at) == 601);
        if (!hasLists) {
            if (head != 230 && head != 301 && head != 999) {
                return -1;
            }
            continue;
        }
        if (head == 111 || head == 112) {
            at = behindList(list, at, indent + 1);
        }
        while (at >= 0 && isAt(at) && !ends.contains(code(at))) {
            const QVector<int> markers = head == 102   ? QVector<int>{402, 403}
                                         : head == 111 ? QVector<int>{411}
                                                       : QVector<int>{601, 602, 603};
            if (!markers.contains(code(at))) {
                return -1;
            }
            at = behindList(list, at + 1, indent + 1);
        }
        const QMap<int, int> endOf{{102, 404}, {111, 412}, {112, 413}, {301, 604}};
        if (at < 0 || !isAt(at) || code(at) != endOf.value(head)) {
            return -1;
        }
        ++at;
    }
    return isAt(at) ? at + 1 : -1;
}

} // namespace

void tst_CommandList::randomEditsKeepTheListSound()
{
    QRandomGenerator random(20260801);
    CommandList list(&m_table, commands("999 0"));
    const QVector<int> codes{230, 101, 302, 102, 111, 112, 301};
    QJsonArray copied;
    for (int i = 0; i < 1000; ++i) {
        const QVector<int> rows = list.rows();
        const int row = rows.at(random.bounded(int(rows.size())));
        switch (random.bounded(5)) {
        case 0:
        case 1:
            if (rows.size() > 150) {
                break;
            }
            list.insert(row, CommandList::newForm(m_table, codes.at(random.bounded(int(codes.size())))));
            break;
        case 2: {
            QJsonObject form = list.form(row);
            form.insert(str("else"), random.bounded(2) == 1);
            form.insert(str("2"), random.bounded(2) == 1);
            form.insert(str("lines"), QString(random.bounded(3), QLatin1Char('\n')));
            list.change(row, form);
            break;
        }
        case 3:
            if (list.codeAt(row) != 999 && rows.size() > 20) {
                list.remove(row);
            }
            break;
        default:
            if (copied.isEmpty() || random.bounded(2) == 0) {
                copied = list.block(row);
            } else if (rows.size() < 150) {
                list.paste(row, copied);
            }
        }
        QVERIFY2(behindList(list.entries(), 0, 0) == list.entries().size(),
                 qPrintable(str("step %1: ").arg(i) + ::codes(list.entries())));
    }
    QVERIFY(::codes(list.entries()).contains(str("999")));
}

QTEST_GUILESS_MAIN(tst_CommandList)
#include "tst_CommandList.moc"
