#include "LibraryTest.h"

/// What is said of a scenario file: of its form, its steps and the ways between them.
class tst_LessonScenario : public LibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsCrLfInAScenario();
    void namesTheFinding_data();
    void namesTheFinding();
    void saysOneThingOfAWrongLine_data();
    void saysOneThingOfAWrongLine();
    void refusesWhatTheCompanionReadsOtherwise_data();
    void refusesWhatTheCompanionReadsOtherwise();
    void refusesWhatTheCompanionCannotLoad_data();
    void refusesWhatTheCompanionCannotLoad();
    void takesClicksInAnyOrder_data();
    void takesClicksInAnyOrder();
    void namesAWaitForAWindowThatNoWayHasOpened_data();
    void namesAWaitForAWindowThatNoWayHasOpened();
};

void tst_LessonScenario::acceptsCrLfInAScenario()
{
    QByteArray bytes = readFile(path(scenarioFile()));
    QVERIFY(writeFile(path(scenarioFile()), bytes.replace("\n", "\r\n")));
    QCOMPARE(errors(), QStringList());
}

void tst_LessonScenario::namesTheFinding_data()
{
    addFindingColumns();
    const auto row = [](const char *name, const QByteArray &from, const QByteArray &to, const char *finding) {
        addFindingRow(name, scenarioFile(), from, to, finding);
    };
#define IN_SCENARIO "resource/qml/Tutorial/TutorialStep1.js:"

    row("scenario without byte order mark", "\xEF\xBB\xBF", "",
        IN_SCENARIO "1: the file has to begin with the byte order mark EF BB BF");
    row("scenario that is not UTF-8", "Welcome", "Welc\xFFme",
        "resource/qml/Tutorial/TutorialStep1.js: the file is not valid UTF-8");
    row("mixed line ends", "\"id\":1,\n", "\"id\":1,\r\n",
        IN_SCENARIO "3: this line does not end in LF as it has to");
    row("final line end", "\n];", "\n];\n",
        IN_SCENARIO "87: the file has to end with the closing bracket, without a line end");
    row("other head", "var scenario = [", "var scenario=[",
        IN_SCENARIO "1: the first line has to be \"var scenario = [\"");
    row("no closing bracket", "\n];", "",
        IN_SCENARIO "86: \"];\" has to be the last line, and to stand once");
    row("text behind the closing bracket", "\n];", "\n];\nmore",
        IN_SCENARIO "87: \"];\" has to be the last line, and to stand once");
    row("text between items", "    },\n    {\n\"id\":2", "    },\n// two\n    {\n\"id\":2",
        IN_SCENARIO
        "19: an item begins with a line of four blanks and \"{\", and nothing else stands between items");
    row("item that is not closed", "    },\n    {\n\"id\":2", "    {\n\"id\":2",
        IN_SCENARIO "18: item 1: the item has to be closed by a line of four blanks and \"}\"");
    row("no comma between items", "    },\n    {\n\"id\":2", "    }\n    {\n\"id\":2",
        IN_SCENARIO "18: item 1: a comma has to stand between two items");
    row("comma behind the last item", "    }\n];", "    },\n];",
        IN_SCENARIO "86: item 5: no comma stands behind the last item");
    row("no comma behind a field", "\"x\":0,\n", "\"x\":0\n",
        IN_SCENARIO "41: item 3: every field but the last ends with a comma");
    row("no blanks behind the last field", "\"prohibited\":false    \n", "\"prohibited\":false\n",
        IN_SCENARIO "17: item 1: the last field ends with four blanks and no comma");
    row("field with an indent", "\"x\":0,", " \"x\":0,",
        IN_SCENARIO "41: item 3, \"x\": without blanks around its parts the field is \"x\":0");
    row("field behind the last", "\"prohibited\":false    ", "\"prohibited\":false,\n\"z\":0    ",
        IN_SCENARIO "18: item 1, \"z\": no field has this name");
    row("missing field", "\"x\":0,\n", "", IN_SCENARIO "36: item 3, \"x\": the field is missing");
    row("field twice", "\"x\":0,\n", "\"x\":0,\n\"x\":0,\n",
        IN_SCENARIO "42: item 3, \"x\": the field stands twice");
    row("fields out of order", "\"x\":0,\n\"y\":-104,\n", "\"y\":-104,\n\"x\":0,\n",
        IN_SCENARIO "42: item 3, \"x\": the field has to stand before \"y\"");
    row("number in quotes", "\"x\":0,", "\"x\":\"0\",",
        IN_SCENARIO "41: item 3, \"x\": \"0\" is not a whole number");
    row("text without quotes", "\"name\":\"Welcome\"", "\"name\":Welcome",
        IN_SCENARIO "4: item 1, \"name\": Welcome is not a text in double quotes");
    row("truth value as a number", "\"folder\":false", "\"folder\":0",
        IN_SCENARIO "5: item 1, \"folder\": 0 is not true or false");
    row("hint that is no call", "qsTr(\"#1\")", "\"Welcome\"",
        IN_SCENARIO "11: item 1, \"hint\": \"Welcome\" is not qsTr(\"#N\")");

    row("id twice", "\"id\":5,", "\"id\":4,",
        IN_SCENARIO "70: item 4, \"id\": the item in line 53 has the same id");
    row("negative id", "\"id\":5,", "\"id\":-5,", IN_SCENARIO "70: item -5, \"id\": an id is 0 or more");
    row("jump to nowhere", "\"jump\":5,", "\"jump\":9,",
        IN_SCENARIO "36: item 3, \"jump\": no item has the id 9");
    row("jumpNo to nowhere", "\"jumpNo\":4,", "\"jumpNo\":9,",
        IN_SCENARIO "19: item 2, \"jumpNo\": no item has the id 9");
    row("step that no way reaches", "\"jumpNo\":4,", "\"jumpNo\":3,",
        IN_SCENARIO "53: item 4: no way through the lesson reaches this step");
    row("way for no without a question", "\"jump\":5,\n\"jumpNo\":-1", "\"jump\":5,\n\"jumpNo\":4",
        IN_SCENARIO "36: item 3, \"jumpNo\": only a step with the condition yesNo has a way for no");

    row("unknown window", "\"windowKey\":\"MainWindow\"", "\"windowKey\":\"Window\"",
        IN_SCENARIO "19: item 2, \"windowKey\": no window has the key \"Window\"");
    row("unknown window in a condition", "windowState,NewProject,open", "windowState,OldProject,open",
        IN_SCENARIO "36: item 3, \"condition\": no window has the key \"OldProject\"");
    row("action that no window has", "action,fileOpen,open", "action,fileShut,open",
        IN_SCENARIO "53: item 4, \"condition\": no window has the action \"fileShut\"");
    row("action with another last word", "action,fileOpen,open", "action,fileOpen,",
        IN_SCENARIO "53: item 4, \"condition\": the action fileOpen reports \"action,fileOpen,open\"");
    row("context menu that there is not", "action,fileOpen,open", "popup,RowPopup",
        IN_SCENARIO "53: item 4, \"condition\": no context menu is called \"RowPopup\"");
    row("click on what there is not", "action,fileOpen,open", "mouseEvent,Chart,click",
        IN_SCENARIO "53: item 4, \"condition\": no window has the target \"Chart\"");
    row("right click on what there is not", "action,fileOpen,open", "menuEvent,Chart,click",
        IN_SCENARIO "53: item 4, \"condition\": no window has the target \"Chart\"");
    const auto noControl = [&row](const char *condition, const char *missing) {
        const QByteArray error =
            QByteArray(IN_SCENARIO "53: item 4, \"condition\": the window MainWindow has ") + missing +
            "; lesson-position MainWindow lists its controls";
        row(condition, "action,fileOpen,open", condition, error.constData());
    };
    noControl("tabView,tabview,1", "no row of tabs with a tab 1");
    noControl("comboBox,moveType,1", "no combo box \"moveType\"");
    noControl("checked,rows,1", "no check box \"rows\"");
    noControl("radioButton,RadioButton,3", "no radio button with the index 3");
    noControl("spinBox,=,35 %", "no number field that can show \"35 %\"");
    noControl("textLength,name,3", "no text field \"name\"");
    row("unknown condition", "action,fileOpen,open", "act,fileOpen,open",
        IN_SCENARIO "53: item 4, \"condition\": \"act\" is not a condition type");
    row("unknown icon", "\"icon\":\"eye\"", "\"icon\":\"ear\"",
        IN_SCENARIO "2: item 1, \"icon\": \"ear\" is not an icon");
    row("unknown command", "presetData,step1", "presetData,one",
        IN_SCENARIO "36: item 3, \"command\": \"presetData,one\" is not of the form presetData,stepN");
    row("half a position", "\"x\":62,", "\"x\":-9999,",
        IN_SCENARIO "53: item 4, \"y\": a step without position has -9999 in both x and y");
    row("left of the window", "\"x\":62,", "\"x\":-39,",
        IN_SCENARIO "53: item 4, \"x\": the arrow's tip would be at -1, outside the window's width of 800");
    row("right of the window", "\"x\":62,", "\"x\":762,",
        IN_SCENARIO "53: item 4, \"x\": the arrow's tip would be at 800, outside the window's width of 800");
    row("above the window", "\"y\":118,", "\"y\":-133,",
        IN_SCENARIO "70: item 5, \"y\": the arrow's tip would be at -1, outside the window's height of 600");
    row("below the window", "\"y\":118,", "\"y\":468,",
        IN_SCENARIO "70: item 5, \"y\": the arrow's tip would be at 600, outside the window's height of 600");
    row("arrow that points at nothing", "\"x\":62,", "\"x\":400,",
        IN_SCENARIO
        "53: item 4, \"x\": the arrow's tip would be at (438, 28), where the window has no control");
    row("hint of another number", "qsTr(\"#3\")", "qsTr(\"#4\")",
        IN_SCENARIO "36: item 3, \"hint\": the hint shows text 4, the translationId says 3");
    row("folder", "\"folder\":false", "\"folder\":true",
        IN_SCENARIO "2: item 1, \"folder\": a lesson has no folders");
    row("prohibited step", "\"prohibited\":false", "\"prohibited\":true",
        IN_SCENARIO "2: item 1, \"prohibited\": no step of a lesson is prohibited");
#undef IN_SCENARIO
}

void tst_LessonScenario::namesTheFinding()
{
    checkFindingRow();
}

void tst_LessonScenario::saysOneThingOfAWrongLine_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char *name, const char *from, const char *to, const char *finding) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to)
                            << QStringLiteral("resource/qml/Tutorial/TutorialStep1.js:") +
                                   QString::fromLatin1(finding);
    };
    row("blanks", "\"icon\":\"eye\",", "\"icon\" : \"eye\",",
        "12: item 1, \"icon\": without blanks around its parts the field is \"icon\":\"eye\"");
    row("blank before the comma", "\"icon\":\"eye\",", "\"icon\":\"eye\" ,",
        "12: item 1, \"icon\": without blanks around its parts the field is \"icon\":\"eye\"");
    row("name without quotes",
        "\"icon\":", "icon:", "12: item 1: a field has the form \"key\":value; \"icon\" has to stand here");
    row("name that is misspelt",
        "\"icon\":", "\"icn\":", "12: item 1, \"icn\": no field has this name; \"icon\" has to stand here");
    row("empty line for a field", "\"id\":5,", "",
        "71: a field has the form \"key\":value; \"id\" has to stand here");
    row("text without quotes", "\"icon\":\"eye\"", "\"icon\":eye",
        "12: item 1, \"icon\": eye is not a text in double quotes");
    row("semicolon for the comma", "\"icon\":\"eye\",", "\"icon\":\"eye\";",
        "12: item 1: every field but the last ends with a comma");
    row("comma behind the last field", "\"prohibited\":false    ", "\"prohibited\":false,",
        "17: item 1: the last field ends with four blanks and no comma");
    row("id in quotes", "\"id\":3,", "\"id\":\"3\",", "37: \"id\": \"3\" is not a whole number");
    row("translationId in quotes", "\"translationId\":2,", "\"translationId\":\"2\",",
        "23: item 2, \"translationId\": \"2\" is not a whole number");
    row("hint that is no call", "qsTr(\"#1\")", "\"#1\"", "11: item 1, \"hint\": \"#1\" is not qsTr(\"#N\")");
    row("position in quotes", "\"x\":0,", "\"x\":\"0\",", "41: item 3, \"x\": \"0\" is not a whole number");
    row("window without quotes", "\"windowKey\":\"MainWindow\"", "\"windowKey\":MainWindow",
        "26: item 2, \"windowKey\": MainWindow is not a text in double quotes");
    row("condition without quotes", "\"condition\":\"yesNo\"", "\"condition\":yesNo",
        "27: item 2, \"condition\": yesNo is not a text in double quotes");
    row("command without quotes", "\"command\":\"presetData,step1\"", "\"command\":presetData",
        "49: item 3, \"command\": presetData is not a text in double quotes");
    row("jump in quotes", "\"jump\":5,", "\"jump\":\"5\",",
        "47: item 3, \"jump\": \"5\" is not a whole number");
    row("missing field", "\"condition\":\"yesNo\",\n", "", "19: item 2, \"condition\": the field is missing");
}

void tst_LessonScenario::saysOneThingOfAWrongLine()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    replace(scenarioFile(), from, to);
    QCOMPARE(errors(), QStringList(finding));
}

void tst_LessonScenario::refusesWhatTheCompanionReadsOtherwise_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char *name, const char *from, const char *to, const char *finding) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to)
                            << QStringLiteral("resource/qml/Tutorial/TutorialStep1.js:") +
                                   QString::fromLatin1(finding);
    };
#define END "the companion takes \"];\" for the end of the lesson, also inside a text; write \"] ;\""
#define OPEN "the companion takes \"/*\" for the beginning of a comment, also inside a text; write \"/ *\""
#define CLOSE "the companion takes \"*/\" for the end of a comment, also inside a text; write \"* /\""
    row("end in a name", "\"Welcome\"", "\"a[0]; b\"", "4: item 1, \"name\": " END);
    row("end in a window", "\"windowKey\":\"MainWindow\"", "\"windowKey\":\"];\"",
        "26: item 2, \"windowKey\": " END);
    row("end in a condition", "\"condition\":\"yesNo\"", "\"condition\":\"yesNo];\"",
        "27: item 2, \"condition\": " END);
    row("end in an icon", "\"icon\":\"eye\"", "\"icon\":\"];eye\"", "12: item 1, \"icon\": " END);
    row("end in a command", "presetData,step1", "presetData,step1];", "49: item 3, \"command\": " END);
    row("end with an escape", "\"Welcome\"", "\"a]\\u003b\"", "4: item 1, \"name\": " END);
    row("comment that begins", "\"Welcome\"", "\"a /* b\"", "4: item 1, \"name\": " OPEN);
    row("comment that begins with an escape", "\"Welcome\"", "\"a \\/* b\"", "4: item 1, \"name\": " OPEN);
    row("comment that ends", "\"Welcome\"", "\"a */ b\"", "4: item 1, \"name\": " CLOSE);
    row("whole comment", "\"Welcome\"", "\"a /* b */ c\"", "4: item 1, \"name\": " OPEN);
    row("comment in a command", "presetData,step1", "presetData,step1/*", "49: item 3, \"command\": " OPEN);
#undef CLOSE
#undef OPEN
#undef END
}

void tst_LessonScenario::refusesWhatTheCompanionReadsOtherwise()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    replace(scenarioFile(), from, to);
    QCOMPARE(errors(), QStringList(finding));
}

void tst_LessonScenario::refusesWhatTheCompanionCannotLoad_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QStringList>("findings");
    const QString file = QStringLiteral("resource/qml/Tutorial/TutorialStep1.js: the companion ");
    QTest::newRow("translation call")
        << QByteArray("see qsTr(")
        << QStringList{
               file + QStringLiteral("cannot load it: json is not array"),
               file + QStringLiteral("finds 0 of the 5 items: it takes a text for something else, such as "
                                     "the end of a name for qsTr(; write that text in other words")};
    QTest::newRow("translation call with a context")
        << QByteArray("see QT_TRANSLATE_NOOP(")
        << QStringList{file +
                       QStringLiteral("cannot load it: not matched qsTr(\"...\"): QT_TRANSLATE_NOOP(\",")};
}

void tst_LessonScenario::refusesWhatTheCompanionCannotLoad()
{
    QFETCH(QByteArray, name);
    replace(scenarioFile(), "Welcome", name);
    QTEST(errors(), "findings");
}

void tst_LessonScenario::takesClicksInAnyOrder_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    const auto row = [](const char *name, const char *first, const char *second) {
        QTest::newRow(name) << QByteArray(first) << QByteArray(second);
    };
    row("pressed, then mouseEvent", "pressed,0,0", "mouseEvent,Map,click");
    row("mouseEvent, then pressed", "mouseEvent,Map,click", "pressed,0,0");
    row("pressed twice", "pressed,0,0", "pressed,0,0");
    row("pressed, then menuEvent", "pressed,0,0", "menuEvent,Map,click");
}

void tst_LessonScenario::takesClicksInAnyOrder()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    // A click belongs to the step in which the button went down, so none ends two steps.
    replace(scenarioFile(),
            "\"condition\":\"click,\",\n\"hint\":qsTr(\"#1\"),\n\"icon\":\"eye\",\n\"jump\":-1,\n"
            "\"jumpNo\":-1,\n\"command\":\"\",\n\"showArrow\":true,\n\"prohibited\":false    \n    }\n];",
            "\"condition\":\"" + second +
                "\",\n\"hint\":qsTr(\"#1\"),\n\"icon\":\"eye\",\n\"jump\":-1,\n\"jumpNo\":-1,\n\"command\":"
                "\"\",\n\"showArrow\":true,\n\"prohibited\":false    \n    }\n];");
    replace(scenarioFile(), "windowState,NewProject,open", first);
    const QStringList found = errors().filter(QStringLiteral("\"condition\""));
    QCOMPARE(found, QStringList());
}

void tst_LessonScenario::namesAWaitForAWindowThatNoWayHasOpened_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::addColumn<bool>("isWrong");
    QTest::newRow("opened on one of two ways") << QByteArray("windowState,NewProject,close") << false;
    QTest::newRow("opened by the control of a step") << QByteArray("windowState,FileDialog,close") << false;
    QTest::newRow("opened by nothing") << QByteArray("windowState,Copying,close") << true;
    QTest::newRow("asked to open") << QByteArray("windowState,Copying,open") << false;
}

void tst_LessonScenario::namesAWaitForAWindowThatNoWayHasOpened()
{
    QFETCH(QByteArray, condition);
    QFETCH(bool, isWrong);
    replace(scenarioFile(),
            "\"condition\":\"click,\",\n\"hint\":qsTr(\"#1\"),\n\"icon\":\"eye\",\n\"jump\":-1,\n"
            "\"jumpNo\":-1,\n\"command\":\"\",\n\"showArrow\":true,\n\"prohibited\":false    \n    }\n];",
            "\"condition\":\"" + condition +
                "\",\n\"hint\":qsTr(\"#1\"),\n\"icon\":\"eye\",\n\"jump\":-1,\n\"jumpNo\":-1,\n\"command\":"
                "\"\",\n\"showArrow\":true,\n\"prohibited\":false    \n    }\n];");
    const QString wrong =
        QStringLiteral("resource/qml/Tutorial/TutorialStep1.js:70: item 5, \"condition\": \"Copying\" is not "
                       "open here, so the "
                       "step would be passed at once; wait for it to open in a step before");
    QCOMPARE(errors().contains(wrong), isWrong);
}

QTEST_MAIN(tst_LessonScenario)
#include "tst_LessonScenario.moc"
