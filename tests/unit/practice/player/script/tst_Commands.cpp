#include "SmallGame.h"
#include "player/script/commands/AllCommands.h"

#include <QDir>
#include <QTest>

/// Each event command does what it says: an event has it in a list, and a script asks the event.
class tst_Commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aCommandDoesWhatItSays_data();
    void aCommandDoesWhatItSays();
    void everyCommandWithAFormIsKnownAndTested();
    void whatCannotBeDoneIsNamedWithItsPlace_data();
    void whatCannotBeDoneIsNamedWithItsPlace();
};

namespace {

struct Row
{
    QByteArray name;
    QByteArray commands;
    /// Follows when the event was asked.
    QString script;
};

QVector<Row> *rows()
{
    static QVector<Row> rows;
    return &rows;
}

void addRow(const char *name, const char *commands, const char *script)
{
    rows()->append({name, commands, QString::fromUtf8(script)});
}

void addMessageRows()
{
    addRow("101 message", R"({"code":101,"indent":0,"parameters":["mila",0,0,0,"Mila"]},
        {"code":401,"indent":0,"parameters":["Hello, \\n[1]! \\v[3] \\c[2]red\\c[0] \\\\"]},
        {"code":401,"indent":0,"parameters":["Second line"]},
        {"code":121,"indent":0,"parameters":[1,1,0]})",
           R"(set variable 3 = 12
              expect speaker Mila
              expect message "Hello, Mila! 12 red \ Second line"
              wait 90
              expect switch 1 off
              go on
              expect switch 1 on)");
    addRow("101 a message of five lines has two pages", R"({"code":101,"indent":0,"parameters":["",0,0,2]},
        {"code":401,"indent":0,"parameters":["1"]},{"code":401,"indent":0,"parameters":["2"]},
        {"code":401,"indent":0,"parameters":["3"]},{"code":401,"indent":0,"parameters":["4"]},
        {"code":401,"indent":0,"parameters":["fifth"]})",
           "expect message \"1 2 3 4\"\nact\nexpect message fifth\nact\nwait\nexpect no message");
    const char *const choices = R"({"code":101,"indent":0,"parameters":["",0,0,2]},
        {"code":401,"indent":0,"parameters":["Well?"]},
        {"code":102,"indent":0,"parameters":[["Yes","No"],-2,0,2,0]},
        {"code":402,"indent":0,"parameters":[0,"Yes"]},{"code":121,"indent":1,"parameters":[1,1,0]},
        {"code":0,"indent":1,"parameters":[]},
        {"code":402,"indent":0,"parameters":[1,"No"]},{"code":121,"indent":1,"parameters":[2,2,0]},
        {"code":0,"indent":1,"parameters":[]},
        {"code":403,"indent":0,"parameters":[]},{"code":121,"indent":1,"parameters":[3,3,0]},
        {"code":0,"indent":1,"parameters":[]},
        {"code":404,"indent":0,"parameters":[]},{"code":121,"indent":0,"parameters":[4,4,0]})";
    addRow("102 the message stays beside the choices", choices,
           "expect choices Yes No\nexpect message \"Well?\"");
    addRow("102 the first choice", choices,
           "choose Yes\nexpect switch 4 on\nexpect switch 1 on\nexpect switch 2 off\nexpect switch 3 off");
    addRow("402 the second choice", choices,
           "choose 2\nexpect switch 4 on\nexpect switch 1 off\nexpect switch 2 on\nexpect switch 3 off");
    addRow("403 cancelled", choices,
           "expect choices Yes No\npress cancel\nexpect switch 4 on\nexpect switch 3 on\nexpect switch 1 "
           "off\nexpect switch 2 off");
    addRow("102 cancelling may be not allowed", R"({"code":102,"indent":0,"parameters":[["A","B"],-1,0,2,0]},
        {"code":402,"indent":0,"parameters":[0,"A"]},{"code":0,"indent":1,"parameters":[]},
        {"code":402,"indent":0,"parameters":[1,"B"]},{"code":121,"indent":1,"parameters":[2,2,0]},
        {"code":0,"indent":1,"parameters":[]},{"code":404,"indent":0,"parameters":[]})",
           "expect choices A B\npress cancel\nexpect choices A B\npress down\nact\nexpect switch 2 on");
    addRow("103 a number", R"({"code":103,"indent":0,"parameters":[5,3]})",
           "enter 42\nexpect variable 5 = 42");
    addRow("104 an item", R"({"code":104,"indent":0,"parameters":[5,0]})",
           "expect panel items\nexpect choices Herb\nchoose Herb\nexpect variable 5 = 1");
    addRow("105 scrolling text", R"({"code":105,"indent":0,"parameters":[8,false]},
        {"code":405,"indent":0,"parameters":["Once upon a time"]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect panel scroll\nexpect message \"Once upon\"\nexpect switch 1 off\nwait 400\nexpect switch "
           "1 on");
    addRow("108 a comment says nothing", R"({"code":108,"indent":0,"parameters":[]},
        {"code":408,"indent":0,"parameters":["psst"]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect switch 1 on\nexpect no message");
}

void addFlowRows()
{
    const char *const branch = R"({"code":111,"indent":0,"parameters":[%1]},
        {"code":121,"indent":1,"parameters":[1,1,0]},{"code":0,"indent":1,"parameters":[]},
        {"code":411,"indent":0,"parameters":[]},{"code":121,"indent":1,"parameters":[2,2,0]},
        {"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]},
        {"code":121,"indent":0,"parameters":[3,3,0]})";
    struct Condition
    {
        const char *name;
        const char *parameters;
        bool holds;
    };
    const Condition conditions[] = {
        {"111 switch ON", "0,9,0,0,0,0,\"\"", true},
        {"111 switch OFF", "0,9,1,0,0,0,\"\"", false},
        {"111 variable =", "1,8,0,0,0,5,\"\"", true},
        {"111 variable >=", "1,8,0,1,0,6,\"\"", false},
        {"111 variable <=", "1,8,0,2,0,5,\"\"", true},
        {"111 variable >", "1,8,0,3,0,4,\"\"", true},
        {"111 variable <", "1,8,0,4,0,5,\"\"", false},
        {"111 variable is another", "1,8,0,5,0,5,\"\"", false},
        {"111 variable and variable", "1,8,0,0,1,10,\"\"", true},
        {"111 self switch", "2,0,0,0,0,0,\"A\"", false},
        {"111 timer", "3,0,0,2,0,0,\"\"", true},
        {"111 actor in the party", "4,1,0,0,0,0,\"\"", true},
        {"111 actor not in the party", "4,2,0,0,0,0,\"\"", false},
        {"111 class", "4,1,0,0,1,1,\"\"", true},
        {"111 skill", "4,1,0,0,2,1,\"\"", true},
        {"111 skill that is not known", "4,1,0,0,2,2,\"\"", false},
        {"111 weapon", "4,1,0,0,3,1,\"\"", true},
        {"111 armor", "4,1,0,0,4,1,\"\"", true},
        {"111 state", "4,1,0,0,5,2,\"\"", false},
        {"111 the hero looks right", "6,-1,0,0,0,3,\"\"", true},
        {"111 the event looks at the hero", "6,0,0,0,0,2,\"\"", true},
        {"111 gold", "7,0,0,1,0,100,\"\"", true},
        {"111 item", "8,1,0,0,0,0,\"\"", true},
        {"111 item that is not there", "8,2,0,0,0,0,\"\"", false},
        {"111 weapon in the bag", "9,1,0,0,0,0,\"\"", false},
        {"111 weapon that is worn", "9,1,0,0,1,0,\"\"", true},
        {"111 armor that is worn", "10,1,0,0,1,0,\"\"", true},
    };
    for (const Condition &condition : conditions) {
        const QString commands = QString::fromUtf8(branch).arg(QString::fromUtf8(condition.parameters));
        const char *const script =
            condition.holds
                ? "expect switch 3 on\nexpect switch 1 on\nexpect switch 2 off\nexpect no problems"
                : "expect switch 3 on\nexpect switch 1 off\nexpect switch 2 on\nexpect no problems";
        addRow(condition.name, commands.toUtf8().constData(), script);
    }
    const char *const loop = R"({"code":112,"indent":0,"parameters":[]},
        {"code":122,"indent":1,"parameters":[1,1,1,0,1]},
        {"code":111,"indent":1,"parameters":[1,1,0,1,0,3,""]},{"code":113,"indent":2,"parameters":[]},
        {"code":0,"indent":2,"parameters":[]},{"code":412,"indent":1,"parameters":[]},
        {"code":122,"indent":1,"parameters":[2,2,1,0,1]},
        {"code":0,"indent":1,"parameters":[]},{"code":413,"indent":0,"parameters":[]},
        {"code":121,"indent":0,"parameters":[3,3,0]})";
    addRow("112 113 a loop, until it is left", loop,
           "expect switch 3 on\nexpect variable 1 = 3\nexpect variable 2 = 2\nexpect no problems");
    addRow("114 the event ends",
           R"({"code":121,"indent":0,"parameters":[1,1,0]},{"code":114,"indent":0,"parameters":[]},
        {"code":121,"indent":0,"parameters":[2,2,0]})",
           "expect switch 1 on\nwait 30\nexpect switch 2 off");
    addRow("115 116 a jump to a label", R"({"code":116,"indent":0,"parameters":["there"]},
        {"code":121,"indent":0,"parameters":[2,2,0]},{"code":115,"indent":0,"parameters":["there"]},
        {"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect switch 1 on\nexpect switch 2 off");
    addRow("117 a common event",
           R"({"code":117,"indent":0,"parameters":[1]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect switch 1 on\nexpect switch 7 on");
    addRow("121 switches",
           R"({"code":121,"indent":0,"parameters":[1,3,0]},{"code":121,"indent":0,"parameters":[2,2,1]},
        {"code":121,"indent":0,"parameters":[9,9,1]})",
           "expect switch 3 on\nexpect switch 1 on\nexpect switch 2 off\nexpect switch 9 off");
    addRow("121 switches, the last one first", R"({"code":121,"indent":0,"parameters":[3,1,0]})",
           "expect switch 3 on\nexpect switch 1 on\nexpect switch 2 on");
    addRow("122 variables: all operations", R"({"code":122,"indent":0,"parameters":[1,2,0,0,7]},
        {"code":122,"indent":0,"parameters":[1,1,1,0,3]},{"code":122,"indent":0,"parameters":[1,1,3,1,2]},
        {"code":122,"indent":0,"parameters":[1,1,2,0,1]},{"code":122,"indent":0,"parameters":[3,3,0,1,1]},
        {"code":122,"indent":0,"parameters":[3,3,4,0,10]},{"code":122,"indent":0,"parameters":[4,4,0,0,17]},
        {"code":122,"indent":0,"parameters":[4,4,5,0,5]})",
           "expect variable 4 = 2\nexpect variable 1 = 69\nexpect variable 2 = 7\nexpect variable 3 = 6");
    addRow(
        "122 by chance",
        R"({"code":122,"indent":0,"parameters":[1,1,0,2,3,5]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect switch 1 on\nexpect variable 1 >= 3\nexpect variable 1 <= 5");
    addRow("123 a self switch", R"({"code":123,"indent":0,"parameters":["B",0]})",
           "expect self switch 1 1 B on\nexpect self switch 1 1 A off");
    addRow("124 the timer",
           R"({"code":124,"indent":0,"parameters":[0,2]},{"code":230,"indent":0,"parameters":[60]},
        {"code":111,"indent":0,"parameters":[3,0,0,0,0,1,""]},{"code":121,"indent":1,"parameters":[1,1,0]},
        {"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]})",
           "wait 80\nexpect switch 1 on");
    addRow("230 a wait",
           R"({"code":230,"indent":0,"parameters":[100]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "wait 90\nexpect switch 1 off\nwait 20\nexpect switch 1 on");
}

void addPartyAndActorRows()
{
    addRow("125 gold",
           R"({"code":125,"indent":0,"parameters":[0,0,50]},{"code":125,"indent":0,"parameters":[1,1,8]})",
           "expect gold = 145");
    addRow("126 items",
           R"({"code":126,"indent":0,"parameters":[1,0,0,3]},{"code":126,"indent":0,"parameters":[1,1,0,1]})",
           "expect item 1 = 3");
    addRow(
        "127 weapons",
        R"({"code":127,"indent":0,"parameters":[2,0,0,2,false]},{"code":127,"indent":0,"parameters":[1,1,0,1,true]})",
        "expect weapon 2 = 2\nexpect no problems");
    addRow(
        "127 a weapon is taken from who wears it",
        R"({"code":127,"indent":0,"parameters":[1,1,0,1,true]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect weapon of 1 = 1\nexpect switch 1 on\nexpect weapon of 1 = 0\nexpect weapon 1 = 0");
    addRow(
        "127 a weapon that is worn stays",
        R"({"code":127,"indent":0,"parameters":[1,1,0,1,false]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect switch 1 on\nexpect weapon of 1 = 1");
    addRow("128 armors", R"({"code":128,"indent":0,"parameters":[1,0,0,1,false]})", "expect armor 1 = 1");
    addRow(
        "129 the party",
        R"({"code":129,"indent":0,"parameters":[2,0,false]},{"code":129,"indent":0,"parameters":[1,1,false]})",
        "expect party 2");
    addRow(
        "129 somebody of the party begins anew",
        R"({"code":316,"indent":0,"parameters":[0,1,0,0,2,false]},{"code":129,"indent":0,"parameters":[1,0,true]},
        {"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect switch 1 on\nexpect level 1 = 1\nwait 5\nexpect hero looks mila");
    addRow("311 HP, and nobody is knocked out", R"({"code":311,"indent":0,"parameters":[0,1,1,0,500,false]})",
           "expect hp 1 = 1");
    addRow("311 HP by a variable", R"({"code":311,"indent":0,"parameters":[0,0,1,1,8,true]})",
           "expect hp 1 = 35");
    addRow("311 everybody is knocked out", R"({"code":311,"indent":0,"parameters":[0,0,1,0,500,true]})",
           "expect hp 1 = 0\nwait 60\nexpect panel gameOver");
    addRow("312 MP", R"({"code":312,"indent":0,"parameters":[0,1,1,0,4]})", "expect mp 1 = 6");
    addRow("313 a state", R"({"code":313,"indent":0,"parameters":[0,1,0,2]})", "expect state 1 2 on");
    addRow("313 a state is taken away",
           R"({"code":313,"indent":0,"parameters":[0,1,0,2]},{"code":313,"indent":0,"parameters":[0,0,1,2]},
        {"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect switch 1 on\nexpect state 1 2 off");
    addRow(
        "314 recovery",
        R"({"code":311,"indent":0,"parameters":[0,1,1,0,30,false]},{"code":312,"indent":0,"parameters":[0,1,1,0,9]},
        {"code":314,"indent":0,"parameters":[0,0]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect switch 1 on\nexpect hp 1 = 40\nexpect mp 1 = 10");
    addRow("315 EXP, with a message", R"({"code":315,"indent":0,"parameters":[0,0,0,0,6,true]})",
           "expect exp 1 = 6\nexpect level 1 = 2\nexpect message Mila");
    addRow(
        "316 levels",
        R"({"code":316,"indent":0,"parameters":[0,1,0,0,2,false]},{"code":111,"indent":0,"parameters":[4,1,0,0,2,2,""]},
        {"code":121,"indent":1,"parameters":[1,1,0]},{"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]})",
        "expect level 1 = 3\nexpect switch 1 on\nexpect no message");
    addRow("317 skills",
           R"({"code":317,"indent":0,"parameters":[0,1,0,2]},{"code":317,"indent":0,"parameters":[0,1,1,1]},
        {"code":111,"indent":0,"parameters":[4,1,0,0,2,2,""]},{"code":121,"indent":1,"parameters":[1,1,0]},
        {"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]},
        {"code":111,"indent":0,"parameters":[4,1,0,0,2,1,""]},{"code":121,"indent":1,"parameters":[2,2,0]},
        {"code":0,"indent":1,"parameters":[]},{"code":412,"indent":0,"parameters":[]},{"code":121,"indent":0,"parameters":[3,3,0]})",
           "expect switch 3 on\nexpect switch 1 on\nexpect switch 2 off");
    addRow(
        "318 equipment",
        R"({"code":127,"indent":0,"parameters":[2,0,0,1,false]},{"code":318,"indent":0,"parameters":[1,0,2]},
        {"code":318,"indent":0,"parameters":[1,1,0]})",
        "expect armor 1 = 1\nexpect weapon 1 = 1\nexpect weapon 2 = 0\nexpect no problems");
    addRow("319 a name", R"({"code":319,"indent":0,"parameters":[1,"Milla"]})", "expect name 1 Milla");
    addRow("320 name input",
           R"({"code":320,"indent":0,"parameters":[1,8]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect panel name\nexpect switch 1 off\nwait 2\npress cancel 4\ntype Emmi\npress act\nexpect "
           "switch 1 on\nexpect name 1 Emmi");
}

void addSceneRows()
{
    addRow(
        "201 transfer",
        R"({"code":201,"indent":0,"parameters":[0,2,5,6,1,0]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect map 2\nexpect at 5 6\nexpect switch 1 on");
    addRow(
        "201 transfer by variables",
        R"({"code":122,"indent":0,"parameters":[1,3,0,0,2]},{"code":201,"indent":0,"parameters":[1,1,2,3,0,2]})",
        "expect map 2\nexpect at 2 2");
    addRow("202 event location", R"({"code":202,"indent":0,"parameters":[0,0,7,4,4]})",
           "expect event 1 at 7 4");
    addRow(
        "205 a movement route of another",
        R"({"code":205,"indent":0,"parameters":[0,{"list":[{"code":3},{"code":1},{"code":13},{"code":17,"parameters":[5]},{"code":0}],
        "repeat":false,"skippable":false,"wait":true}]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect switch 1 on\nexpect event 1 at 4 2\nexpect switch 5 on");
    addRow(
        "205 a movement route of the hero, that passes by what is in the way",
        R"({"code":205,"indent":0,"parameters":[-1,{"list":[{"code":3},{"code":2},{"code":16,"parameters":[0,2]},{"code":0}],
        "repeat":false,"skippable":true,"wait":true}]},{"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect switch 1 on\nexpect at 1 3");
    addRow("207 an animation is waited for",
           R"({"code":207,"indent":0,"parameters":[0,1,true]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect animation 1\nwait 14\nexpect switch 1 off\nwait 15\nexpect switch 1 on");
    addRow("208 a balloon is waited for",
           R"({"code":208,"indent":0,"parameters":[-1,1,true]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect balloon 1\nwait 49\nexpect switch 1 off\nwait 20\nexpect switch 1 on");
    addRow("209 the event is gone",
           R"({"code":209,"indent":0,"parameters":[]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect switch 1 on\nwalk to 3 1\nexpect at 3 1");
    addRow(
        "302 a shop",
        R"({"code":302,"indent":0,"parameters":[0,1,0,0,false]},{"code":605,"indent":0,"parameters":[1,2,1,5]},
        {"code":121,"indent":0,"parameters":[1,1,0]})",
        "expect panel gold\nexpect switch 1 off\nwait 2\nchoose Buy\nexpect choices Herb Sword\nchoose "
        "Sword\nexpect "
        "panel number\npress act\nexpect weapon 2 = 1\nexpect gold = 95\nexpect switch 1 off\npress cancel\n"
        "wait 2\npress cancel\nexpect switch 1 on");
    addRow("302 a shop that buys nothing", R"({"code":302,"indent":0,"parameters":[0,1,0,0,true]})",
           "choose Sell\nwait 5\nexpect choices Buy Sell Leave");
    addRow("303 the menu",
           R"({"code":303,"indent":0,"parameters":[]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect panel menu\nwait 2\npress cancel\nexpect switch 1 on");
    addRow("304 saving",
           R"({"code":304,"indent":0,"parameters":[]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect panel save\nwait 2\npress cancel\nexpect switch 1 on");
    addRow("305 game over", R"({"code":305,"indent":0,"parameters":[]})", "expect panel gameOver");
    addRow("306 back to the title", R"({"code":306,"indent":0,"parameters":[]})", "expect panel title");
}

void addSoundAndPictureRows()
{
    addRow("231 232 a picture", R"({"code":231,"indent":0,"parameters":[3,"lamp",0,0,10,20,100,100,255,0]},
        {"code":232,"indent":0,"parameters":[3,1,0,50,60,50,50,128,1,20,true]},{"code":121,"indent":0,"parameters":[1,1,0]})",
           "expect picture 3 lamp\nexpect switch 1 on");
    addRow("233 a picture is gone",
           R"({"code":231,"indent":0,"parameters":[3,"lamp",0,0,10,20,100,100,255,0]},
        {"code":230,"indent":0,"parameters":[30]},{"code":233,"indent":0,"parameters":[3]})",
           "expect picture 3 lamp\nwait 40\nexpect picture 3 \"\"");
    addRow("241 music",
           R"({"code":241,"indent":0,"parameters":[{"file":"spring","volume":80,"pitch":100,"pan":0}]})",
           "expect music spring");
    addRow("242 music fades out", R"({"code":242,"indent":0,"parameters":[2]})", "expect music \"\"");
    addRow("243 a sound",
           R"({"code":243,"indent":0,"parameters":[{"file":"bell","volume":80,"pitch":100,"pan":0}]})",
           "expect sound bell");
}

void addBattleRows()
{
    const char *const battle = R"({"code":301,"indent":0,"parameters":[0,1,true,true]},
        {"code":601,"indent":0,"parameters":[]},{"code":121,"indent":1,"parameters":[1,1,0]},{"code":0,"indent":1,"parameters":[]},
        {"code":602,"indent":0,"parameters":[]},{"code":121,"indent":1,"parameters":[2,2,0]},{"code":0,"indent":1,"parameters":[]},
        {"code":603,"indent":0,"parameters":[]},{"code":121,"indent":1,"parameters":[3,3,0]},{"code":0,"indent":1,"parameters":[]},
        {"code":604,"indent":0,"parameters":[]},{"code":121,"indent":0,"parameters":[4,4,0]})";
    addRow("301 a battle that is won", battle,
           "expect battle\nwin battle\nexpect switch 4 on\nexpect switch 1 on\nexpect switch 2 off\nexpect "
           "switch 3 off\nexpect music village");
    addRow("602 a battle that is fled from", battle,
           "flee battle\nexpect switch 4 on\nexpect switch 2 on\nexpect switch 1 off\nexpect switch 3 off");
    addRow("603 a battle that is lost", battle,
           "lose battle\nexpect switch 4 on\nexpect switch 3 on\nexpect switch 1 off\nexpect switch 2 off");
    addRow("301 fought", battle,
           "fight\nexpect switch 4 on\nexpect switch 1 on\nexpect gold = 102\nexpect exp 1 = 3");
    addRow("301 a lost battle ends the game", R"({"code":301,"indent":0,"parameters":[0,1,false,false]})",
           "lose battle\nexpect panel gameOver");
}

} // namespace

void tst_Commands::initTestCase()
{
    addMessageRows();
    addFlowRows();
    addPartyAndActorRows();
    addSceneRows();
    addSoundAndPictureRows();
    addBattleRows();
}

void tst_Commands::aCommandDoesWhatItSays_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QString>("script");
    for (const Row &row : qAsConst(*rows())) {
        QTest::newRow(row.name.constData()) << row.commands << row.script;
    }
}

void tst_Commands::aCommandDoesWhatItSays()
{
    QFETCH(QByteArray, commands);
    QFETCH(QString, script);
    sample::Play play(smallGame::filesWith(commands), smallGame::onMap());
    // What the conditions of the rows find.
    const QString start = QStringLiteral("set switch 9 on\nset variable 8 = 5\nset variable 10 = 5\n"
                                         "give gold 100\ngive item 1\nask 3 1\n");
    QCOMPARE(play.run(start + script), QString());
}

void tst_Commands::everyCommandWithAFormIsKnownAndTested()
{
    // What an event of the map cannot do has its test in tst_BattleCommands; that of the screen in
    // tst_ScreenCommands.
    QSet<int> tested = {203, 206, 221, 222, 223, 224, 225, 226, 331, 332, 333, 334, 335, 336, 337};
    for (const Row &row : qAsConst(*rows())) {
        const QJsonArray commands = smallGame::json("[" + row.commands + "]").toArray();
        for (const QJsonValue &command : commands) {
            tested.insert(command.toObject().value(QLatin1String("code")).toInt());
        }
    }
    const QDir folder(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/commands"));
    const QStringList files = folder.entryList({QStringLiteral("*.json")});
    QVERIFY(files.size() > 60);
    for (const QString &file : files) {
        const int code = file.chopped(5).toInt();
        QVERIFY2(player::allCommands().knows(code), qPrintable(file));
        QVERIFY2(tested.contains(code), qPrintable(file));
    }
}

void tst_Commands::whatCannotBeDoneIsNamedWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const char *command, const char *text) {
        QTest::newRow(name) << QByteArray(command) << QString::fromUtf8(text);
    };
    add("a code that nobody knows", R"({"code":999,"indent":0,"parameters":[]})", "no command 999");
    add("an item", R"({"code":126,"indent":0,"parameters":[77,0,0,1]})", "no item 77");
    add("a weapon", R"({"code":127,"indent":0,"parameters":[77,0,0,1,false]})", "no weapon 77");
    add("an armor", R"({"code":128,"indent":0,"parameters":[-3,0,0,1,false]})", "no armor -3");
    add("an actor", R"({"code":129,"indent":0,"parameters":[77,0,false]})", "no actor 77");
    add("an actor by a variable", R"({"code":311,"indent":0,"parameters":[1,40,0,0,1,false]})", "no actor 0");
    add("a state", R"({"code":313,"indent":0,"parameters":[0,1,0,77]})", "no state 77");
    add("a skill", R"({"code":317,"indent":0,"parameters":[0,1,0,77]})", "no skill 77");
    add("a switch", R"({"code":121,"indent":0,"parameters":[0,2000000000,0]})", "no switch or variable 0");
    add("a variable", R"({"code":122,"indent":0,"parameters":[1,2000000000,0,0,1]})",
        "no switch or variable 2000000000");
    add("a division by 0", R"({"code":122,"indent":0,"parameters":[1,1,4,0,0]})", "divided by 0");
    add("a common event", R"({"code":117,"indent":0,"parameters":[77]})", "no common event 77");
    add("a label", R"({"code":116,"indent":0,"parameters":["nowhere"]})", "no label");
    add("a loop that is none", R"({"code":113,"indent":0,"parameters":[]})", "no loop");
    add("a map", R"({"code":201,"indent":0,"parameters":[0,77,0,0,0,0]})", "no map 77");
    add("a cell", R"({"code":201,"indent":0,"parameters":[0,2,500,-1,0,0]})", "no cell 500, -1");
    add("an event", R"({"code":206,"indent":0,"parameters":[77,0]})", "no event 77");
    add("an animation", R"({"code":207,"indent":0,"parameters":[0,77,true]})", "no animation 77");
    add("a balloon", R"({"code":208,"indent":0,"parameters":[0,77,true]})", "no balloon 77");
    add("a picture", R"({"code":231,"indent":0,"parameters":[200,"x"]})", "no picture 200");
    add("a picture that is not shown", R"({"code":232,"indent":0,"parameters":[2]})", "not shown");
    add("a troop", R"({"code":301,"indent":0,"parameters":[0,77,false,false]})", "no troop 77");
    add("an enemy outside of a battle", R"({"code":331,"indent":0,"parameters":[0,0,0,1,false]})",
        "outside of a battle");
    add("a variable that something goes by", R"({"code":125,"indent":0,"parameters":[0,1,77777]})",
        "no switch or variable 77777");
    add("a variable that is another", R"({"code":122,"indent":0,"parameters":[1,1,0,1,0]})",
        "no switch or variable 0");
    add("a switch that is asked", R"({"code":111,"indent":0,"parameters":[0,0,1]})",
        "no switch or variable 0");
    add("a variable that is asked", R"({"code":111,"indent":0,"parameters":[1,-4,0,0,0,0]})",
        "no switch or variable -4");
    add("nobody who puts something on", R"({"code":318,"indent":0,"parameters":[0,0,0]})", "no actor 0");
    add("nobody who is called", R"({"code":319,"indent":0,"parameters":[0,"X"]})", "no actor 0");
    add("nobody who gets a name", R"({"code":320,"indent":0,"parameters":[0,8]})", "no actor 0");
    add("a movement",
        R"({"code":205,"indent":0,"parameters":[0,{"list":[{"code":28},{"code":0}],"wait":false}]})",
        "no movement 28");
    add("a switch of a movement",
        R"({"code":205,"indent":0,"parameters":[0,{"list":[{"code":18,"parameters":[10000]},{"code":0}]}]})",
        "no switch or variable 10000");
    add("a condition", R"({"code":111,"indent":0,"parameters":[99]})", "no condition 99");
}

void tst_Commands::whatCannotBeDoneIsNamedWithItsPlace()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, text);
    const QByteArray before = R"({"code":108,"indent":0,"parameters":[]},)";
    const QByteArray after = R"(,{"code":121,"indent":0,"parameters":[1,1,0]})";
    sample::Play play(smallGame::filesWith(before + command + after), smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nexpect switch 1 on")), QString());
    const QVector<player::Problem> problems = play.hand().problems();
    QVERIFY(!problems.isEmpty());
    const player::Problem &problem = problems.constFirst();
    QVERIFY2(problem.text.contains(text), qPrintable(problem.text));
    QCOMPARE(problem.file, QStringLiteral("data/Map001.json"));
    QCOMPARE(problem.map, 1);
    QCOMPARE(problem.event, 1);
    QCOMPARE(problem.page, 1);
    QCOMPARE(problem.line, 2);
}

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_Commands.moc"
