#include "lesson-check/LessonLibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

QString listFile()
{
    return QStringLiteral("resource/qml/Tutorial/TutorialList.js");
}
QString scenarioFile()
{
    return QStringLiteral("resource/qml/Tutorial/TutorialStep1.js");
}
QString censusFile()
{
    return QStringLiteral("authoring/lesson-check/census.json");
}
QString catalogueFile(const char *locale)
{
    return QStringLiteral("resource/translations/%1.ts").arg(QLatin1String(locale));
}

void copyTree(const QString &from, const QString &to)
{
    QDir(to).mkpath(QStringLiteral("."));
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString target = QDir(to).filePath(entry.fileName());
        if (entry.isDir())
            copyTree(entry.filePath(), target);
        else
            QVERIFY(QFile::copy(entry.filePath(), target));
    }
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QStringList lines(const Findings &findings)
{
    QStringList all;
    for (const Finding &finding : findings)
        all.append(finding.toString());
    return all;
}

} // namespace

/// Each row spoils a sound little library in one place and says which finding has to name that place.
class tst_LessonLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsNothingInASoundLibrary();
    void acceptsCrLfInAScenario();
    void countsAMissingLessonAsWrongInACompleteLibrary();
    void doesNotExistWithoutItsList();
    void readsEverythingAnewEachTime();
    void namesTheFinding_data();
    void namesTheFinding();
    void saysOneThingOfAWrongLine_data();
    void saysOneThingOfAWrongLine();
    void saysOnceWhatConcernsNoLanguage();
    void namesTheLanguageThatLacksAText_data();
    void namesTheLanguageThatLacksAText();
    void namesAClickThatEndsTwoSteps_data();
    void namesAClickThatEndsTwoSteps();
    void namesAFileThatIsGone_data();
    void namesAFileThatIsGone();
    void namesALessonThatIsNotInTheList();
    void namesTextsOfALessonThatIsGone();

private:
    [[nodiscard]] QString path(const QString &file) const { return QDir(m_folder->path()).filePath(file); }
    void replace(const QString &file, const QByteArray &from, const QByteArray &to);
    [[nodiscard]] QStringList errors() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_LessonLibrary::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    copyTree(QStringLiteral(FIXTURE_DIR), m_folder->path());
}

void tst_LessonLibrary::replace(const QString &file, const QByteArray &from, const QByteArray &to)
{
    QByteArray bytes = readFile(path(file));
    const int at = bytes.indexOf(from);
    QVERIFY2(at >= 0, from.constData());
    bytes.replace(at, from.size(), to);
    QVERIFY(writeFile(path(file), bytes));
}

QStringList tst_LessonLibrary::errors() const
{
    Findings findings = LessonLibrary(m_folder->path()).check(false);
    const auto isNote = [](const Finding &finding) {
        return finding.kind == Finding::Kind::kNote;
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isNote), findings.end());
    return lines(findings);
}

void tst_LessonLibrary::findsNothingInASoundLibrary()
{
    LessonLibrary library(m_folder->path());
    QVERIFY(library.exists());
    QCOMPARE(
        lines(library.check(false)),
        QStringList(QStringLiteral("resource/qml/Tutorial/TutorialList.js:3: TutorialStep2: note: the lesson "
                                   "has no scenario file yet")));
}

void tst_LessonLibrary::acceptsCrLfInAScenario()
{
    QByteArray bytes = readFile(path(scenarioFile()));
    QVERIFY(writeFile(path(scenarioFile()), bytes.replace("\n", "\r\n")));
    QCOMPARE(errors(), QStringList());
}

void tst_LessonLibrary::countsAMissingLessonAsWrongInACompleteLibrary()
{
    const Findings findings = LessonLibrary(m_folder->path()).check(true);
    QCOMPARE(findings.size(), 1);
    QVERIFY(findings.first().kind == Finding::Kind::kError);
    QCOMPARE(findings.first().item, QStringLiteral("TutorialStep2"));
}

void tst_LessonLibrary::doesNotExistWithoutItsList()
{
    QVERIFY(QFile::remove(path(listFile())));
    QVERIFY(!LessonLibrary(m_folder->path()).exists());
}

void tst_LessonLibrary::readsEverythingAnewEachTime()
{
    LessonLibrary library(m_folder->path());
    const QStringList first = lines(library.check(false));
    QCOMPARE(lines(library.check(false)), first);
}

void tst_LessonLibrary::namesTheFinding_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char *name, const QString &file, const QByteArray &from, const QByteArray &to,
                        const char *finding) {
        QTest::newRow(name) << file << from << to << QString::fromUtf8(finding);
    };
    const QString scenario = scenarioFile();
    const QString list = listFile();
    const QString english = catalogueFile("en_US");
    const QString chinese = catalogueFile("zh_CN");
    const QString mainWindow = QStringLiteral("practice/windows/MainWindow.json");
#define IN_SCENARIO "resource/qml/Tutorial/TutorialStep1.js:"
#define IN_LIST "resource/qml/Tutorial/TutorialList.js:"

    row("scenario without byte order mark", scenario, "\xEF\xBB\xBF", "",
        IN_SCENARIO "1: the file has to begin with the byte order mark EF BB BF");
    row("scenario that is not UTF-8", scenario, "Welcome", "Welc\xFFme",
        "resource/qml/Tutorial/TutorialStep1.js: the file is not valid UTF-8");
    row("mixed line ends", scenario, "\"id\":1,\n", "\"id\":1,\r\n",
        IN_SCENARIO "3: this line does not end in LF as it has to");
    row("final line end", scenario, "\n];", "\n];\n",
        IN_SCENARIO "87: the file has to end with the closing bracket, without a line end");
    row("other head", scenario, "var scenario = [", "var scenario=[",
        IN_SCENARIO "1: the first line has to be \"var scenario = [\"");
    row("no closing bracket", scenario, "\n];", "",
        IN_SCENARIO "86: \"];\" has to be the last line, and to stand once");
    row("text behind the closing bracket", scenario, "\n];", "\n];\nmore",
        IN_SCENARIO "87: \"];\" has to be the last line, and to stand once");
    row("text between items", scenario, "    },\n    {\n\"id\":2", "    },\n// two\n    {\n\"id\":2",
        IN_SCENARIO
        "19: an item begins with a line of four blanks and \"{\", and nothing else stands between items");
    row("item that is not closed", scenario, "    },\n    {\n\"id\":2", "    {\n\"id\":2",
        IN_SCENARIO "18: item 1: the item has to be closed by a line of four blanks and \"}\"");
    row("no comma between items", scenario, "    },\n    {\n\"id\":2", "    }\n    {\n\"id\":2",
        IN_SCENARIO "18: item 1: a comma has to stand between two items");
    row("comma behind the last item", scenario, "    }\n];", "    },\n];",
        IN_SCENARIO "86: item 5: no comma stands behind the last item");
    row("no comma behind a field", scenario, "\"x\":0,\n", "\"x\":0\n",
        IN_SCENARIO "41: item 3: every field but the last ends with a comma");
    row("no blanks behind the last field", scenario, "\"prohibited\":false    \n", "\"prohibited\":false\n",
        IN_SCENARIO "17: item 1: the last field ends with four blanks and no comma");
    row("field with an indent", scenario, "\"x\":0,", " \"x\":0,",
        IN_SCENARIO "41: item 3, \"x\": without blanks around its parts the field is \"x\":0");
    row("field behind the last", scenario, "\"prohibited\":false    ", "\"prohibited\":false,\n\"z\":0    ",
        IN_SCENARIO "18: item 1, \"z\": no field has this name");
    row("missing field", scenario, "\"x\":0,\n", "", IN_SCENARIO "36: item 3, \"x\": the field is missing");
    row("field twice", scenario, "\"x\":0,\n", "\"x\":0,\n\"x\":0,\n",
        IN_SCENARIO "42: item 3, \"x\": the field stands twice");
    row("fields out of order", scenario, "\"x\":0,\n\"y\":-122,\n", "\"y\":-122,\n\"x\":0,\n",
        IN_SCENARIO "42: item 3, \"x\": the field has to stand before \"y\"");
    row("number in quotes", scenario, "\"x\":0,", "\"x\":\"0\",",
        IN_SCENARIO "41: item 3, \"x\": \"0\" is not a whole number");
    row("text without quotes", scenario, "\"name\":\"Welcome\"", "\"name\":Welcome",
        IN_SCENARIO "4: item 1, \"name\": Welcome is not a text in double quotes");
    row("truth value as a number", scenario, "\"folder\":false", "\"folder\":0",
        IN_SCENARIO "5: item 1, \"folder\": 0 is not true or false");
    row("hint that is no call", scenario, "qsTr(\"#1\")", "\"Welcome\"",
        IN_SCENARIO "11: item 1, \"hint\": \"Welcome\" is not qsTr(\"#N\")");

    row("id twice", scenario, "\"id\":5,", "\"id\":4,",
        IN_SCENARIO "70: item 4, \"id\": the item in line 53 has the same id");
    row("negative id", scenario, "\"id\":5,", "\"id\":-5,",
        IN_SCENARIO "70: item -5, \"id\": an id is 0 or more");
    row("jump to nowhere", scenario, "\"jump\":5,", "\"jump\":9,",
        IN_SCENARIO "36: item 3, \"jump\": no item has the id 9");
    row("jumpNo to nowhere", scenario, "\"jumpNo\":4,", "\"jumpNo\":9,",
        IN_SCENARIO "19: item 2, \"jumpNo\": no item has the id 9");
    row("step that no way reaches", scenario, "\"jumpNo\":4,", "\"jumpNo\":3,",
        IN_SCENARIO "53: item 4: no way through the lesson reaches this step");
    row("way for no without a question", scenario, "\"jump\":5,\n\"jumpNo\":-1", "\"jump\":5,\n\"jumpNo\":4",
        IN_SCENARIO "36: item 3, \"jumpNo\": only a step with the condition yesNo has a way for no");

    row("unknown window", scenario, "\"windowKey\":\"MainWindow\"", "\"windowKey\":\"Window\"",
        IN_SCENARIO "19: item 2, \"windowKey\": no window has the key \"Window\"");
    row("unknown window in a condition", scenario, "windowState,NewProject,open",
        "windowState,OldProject,open",
        IN_SCENARIO "36: item 3, \"condition\": no window has the key \"OldProject\"");
    row("action that no window has", scenario, "action,fileOpen,open", "action,fileShut,open",
        IN_SCENARIO "53: item 4, \"condition\": no window has the action \"fileShut\"");
    row("action with another last word", scenario, "action,fileOpen,open", "action,fileOpen,",
        IN_SCENARIO "53: item 4, \"condition\": the action fileOpen reports \"action,fileOpen,open\"");
    row("unknown condition", scenario, "action,fileOpen,open", "act,fileOpen,open",
        IN_SCENARIO "53: item 4, \"condition\": \"act\" is not a condition type");
    row("unknown icon", scenario, "\"icon\":\"eye\"", "\"icon\":\"ear\"",
        IN_SCENARIO "2: item 1, \"icon\": \"ear\" is not an icon");
    row("unknown command", scenario, "presetData,step1", "presetData,one",
        IN_SCENARIO "36: item 3, \"command\": \"presetData,one\" is not of the form presetData,stepN");
    row("half a position", scenario, "\"x\":62,", "\"x\":-9999,",
        IN_SCENARIO "53: item 4, \"y\": a step without position has -9999 in both x and y");
    row("left of the window", scenario, "\"x\":62,", "\"x\":-39,",
        IN_SCENARIO "53: item 4, \"x\": the arrow's tip would be at -1, outside the window's width of 800");
    row("right of the window", scenario, "\"x\":62,", "\"x\":762,",
        IN_SCENARIO "53: item 4, \"x\": the arrow's tip would be at 800, outside the window's width of 800");
    row("above the window", scenario, "\"y\":100,", "\"y\":-151,",
        IN_SCENARIO "70: item 5, \"y\": the arrow's tip would be at -1, outside the window's height of 600");
    row("below the window", scenario, "\"y\":100,", "\"y\":450,",
        IN_SCENARIO "70: item 5, \"y\": the arrow's tip would be at 600, outside the window's height of 600");
    row("arrow that points at nothing", scenario, "\"x\":62,", "\"x\":400,",
        IN_SCENARIO
        "53: item 4, \"x\": the arrow's tip would be at (438, 28), where the window has no control");
    row("hint of another number", scenario, "qsTr(\"#3\")", "qsTr(\"#4\")",
        IN_SCENARIO "36: item 3, \"hint\": the hint shows text 4, the translationId says 3");
    row("folder", scenario, "\"folder\":false", "\"folder\":true",
        IN_SCENARIO "2: item 1, \"folder\": a lesson has no folders");
    row("prohibited step", scenario, "\"prohibited\":false", "\"prohibited\":true",
        IN_SCENARIO "2: item 1, \"prohibited\": no step of a lesson is prohibited");
    row("description without size", mainWindow, "\"size\"", "\"extent\"",
        "practice/windows/MainWindow.json: a window's description is a JSON object with \"key\" and "
        "\"size\"");

    row("text that a language lacks", chinese, "<source>#3</source>", "<source>#33</source>",
        IN_SCENARIO "36: item 3, \"translationId\": the text #3 is missing in zh_CN");
    row("text that is never used", chinese, "<source>#3</source>", "<source>#33</source>",
        "resource/translations/zh_CN.ts:36: TutorialStep1, \"#33\": the text is never used");
    row("text that only the others have", chinese, "<source>Next</source>", "<source>Further</source>",
        "resource/translations/zh_CN.ts: Words, \"Next\": another language has this text, this one does not");
    row("number that is left out", scenario, "\"translationId\":2,", "\"translationId\":3,",
        "resource/qml/Tutorial/TutorialStep1.js: \"translationId\": the number 2 is left out");
    row("title that a language lacks", english, "<source>#2</source>", "<source>#22</source>",
        IN_LIST "3: TutorialStep2, \"title\": the text #2 is missing in en_US");
    row("title that is never used", english, "<source>#2</source>", "<source>#22</source>",
        "resource/translations/en_US.ts:21: TutorialList, \"#22\": the text is never used");
    row("empty translation", english, "<translation>Welcome.</translation>", "<translation> </translation>",
        "resource/translations/en_US.ts:28: TutorialStep1, \"#1\": the translation is empty");
    row("unfinished translation", english, "<translation>Welcome.",
        "<translation type=\"unfinished\">Welcome.",
        "resource/translations/en_US.ts:28: TutorialStep1, \"#1\": the translation is marked unfinished");
    row("text twice in a catalogue", english, "<source>#4</source>", "<source>#3</source>",
        "resource/translations/en_US.ts:40: TutorialStep1, \"#3\": the text stands twice");
    row("context twice", english, "<name>TutorialStep1</name>", "<name>Words</name>",
        "resource/translations/en_US.ts:27: Words: the context stands twice");
    row("lost place marker", english, "<translation>Cannot read %1", "<translation>Cannot read it",
        "resource/translations/en_US.ts:10: Words, \"Cannot read %1\": the translation lacks the place "
        "marker %1");
    row("catalogue of another language", english, "language=\"en_US\"", "language=\"en_GB\"",
        "resource/translations/en_US.ts:3: the root has to be TS with the language \"en_US\"");
    row("catalogue that is no XML", english, "</context>", "</contexts>",
        "resource/translations/en_US.ts:14: Opening and ending tag mismatch.");
    row("hint that is too high", english, "Welcome.", QByteArray("Welcome.\n").repeated(60),
        "resource/translations/en_US.ts:28: TutorialStep1, \"#1\": the hint does not fit the bubble:");

    row("other head of the list", list, "var list = [", "var lists = [",
        IN_LIST "1: the first line has to be \"var list = [\"");
    row("list that is not closed", list, "\r\n];", "\r\n]", IN_LIST "4: the last line has to be \"];\"");
    row("list with LF", list, "[\r\n", "[\n", IN_LIST "1: this line does not end in CRLF as it has to");
    row("entry of another form", list, "\t{\"filename\"", "{\"filename\"",
        IN_LIST "2: an entry has the form <tab>{\"filename\":\"...\",\"title\":qsTr(\"#N\")}");
    row("no comma between entries", list, "},\r\n", "}\r\n",
        IN_LIST "2: a comma stands between two entries and not behind the last");
    row("lesson twice in the list", list, "TutorialStep2", "TutorialStep1",
        IN_LIST "3: TutorialStep1 stands in the list twice");
    row("scenario that is not in the bundle", QStringLiteral("resource/scenarios.qrc"), "TutorialStep1.js",
        "Other.js", "resource/scenarios.qrc: the file qml/Tutorial/TutorialStep1.js is not in the bundle");

    row("table that is no JSON", censusFile(), "{", "",
        "authoring/lesson-check/census.json: the table is not a JSON object:");
    row("lesson without a row", censusFile(), "TutorialStep1", "TutorialStep3",
        "authoring/lesson-check/census.json: TutorialStep1: the table has no row for this lesson");
    const auto figure = [&](const char *name, const QByteArray &from, const QByteArray &to, const char *has,
                            const char *says) {
        const QString text =
            QStringLiteral("resource/qml/Tutorial/TutorialStep1.js: \"%1\": the lesson has %2, its "
                           "row in authoring/lesson-check/census.json says %3");
        QTest::newRow(qPrintable(QStringLiteral("census of %1").arg(QLatin1String(name))))
            << censusFile() << from << to
            << text.arg(QLatin1String(name), QLatin1String(has), QLatin1String(says));
    };
    figure("items", "\"items\": 5", "\"items\": 6", "5", "6");
    figure("windows MainWindow", "\"MainWindow\": 4", "\"MainWindow\": 3", "4", "3");
    figure("windows Copying", "\"MainWindow\": 4", "\"MainWindow\": 4, \"Copying\": 1", "0", "1");
    figure("conditions yesNo", "\"yesNo\": 1, ", "", "1", "0");
    figure("icons eye", "\"eye\": 3", "\"eye\": 2", "3", "2");
    figure("noPosition", "\"noPosition\": 2", "\"noPosition\": 1", "2", "1");
    figure("jumps", "\"jumps\": 2", "\"jumps\": 3", "2", "3");
    figure("jumpNos", "\"jumpNos\": 1", "\"jumpNos\": 0", "1", "0");
    figure("maxTranslationId", "\"maxTranslationId\": 4", "\"maxTranslationId\": 5", "4", "5");
    figure("command", "\"command\": \"presetData,step1\"", "\"command\": \"\"", "\"presetData,step1\"",
           "\"\"");
#undef IN_LIST
#undef IN_SCENARIO
}

void tst_LessonLibrary::namesTheFinding()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    replace(file, from, to);
    const QStringList found = errors();
    const auto isIt = [&](const QString &line) {
        return finding.endsWith(QLatin1Char(':')) ? line.startsWith(finding) : line == finding;
    };
    QVERIFY2(std::any_of(found.cbegin(), found.cend(), isIt),
             qPrintable(QStringLiteral("not among: ") + found.join(QLatin1Char('\n'))));
}

void tst_LessonLibrary::saysOneThingOfAWrongLine_data()
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

void tst_LessonLibrary::saysOneThingOfAWrongLine()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    replace(scenarioFile(), from, to);
    QCOMPARE(errors(), QStringList(finding));
}

void tst_LessonLibrary::saysOnceWhatConcernsNoLanguage()
{
    replace(scenarioFile(), "\"translationId\":2,", "\"translationId\":3,");
    QCOMPARE(errors().filter(QStringLiteral("the number 2 is left out")).size(), 1);
}

void tst_LessonLibrary::namesTheLanguageThatLacksAText_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("text of a lesson") << QStringLiteral("<source>#3</source>");
    QTest::newRow("title") << QStringLiteral("<source>#2</source>");
    QTest::newRow("other text") << QStringLiteral("<source>Next</source>");
}

void tst_LessonLibrary::namesTheLanguageThatLacksAText()
{
    QFETCH(QString, source);
    const char *const locales[] = {"en_US", "ja_JP", "zh_CN"};
    for (const char *locale : locales) {
        init();
        replace(catalogueFile(locale), source.toUtf8(), "<source>Other</source>");
        const QStringList found = errors();
        QVERIFY(!found.isEmpty());
        // "Another language has this text" stands under the file of the language that lacks it.
        for (const QString &line : found) {
            const bool isOfTheOthers = line.contains(QStringLiteral("\"Other\": another language"));
            QVERIFY2(isOfTheOthers != line.contains(QLatin1String(locale)), qPrintable(line));
        }
    }
}

void tst_LessonLibrary::namesAClickThatEndsTwoSteps_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<bool>("isWrong");
    const auto row = [](const char *name, const char *first, const char *second, bool isWrong) {
        QTest::newRow(name) << QByteArray(first) << QByteArray(second) << isWrong;
    };
    row("pressed, then mouseEvent", "pressed,0,0", "mouseEvent,Map,click", true);
    row("mouseEvent, then pressed", "mouseEvent,Map,click", "pressed,0,0", false);
    row("pressed twice", "pressed,0,0", "pressed,0,0", false);
    row("pressed, then menuEvent", "pressed,0,0", "menuEvent,Map,click", false);
}

void tst_LessonLibrary::namesAClickThatEndsTwoSteps()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(bool, isWrong);
    const QString wrong =
        QStringLiteral("resource/qml/Tutorial/TutorialStep1.js:70: item 5, \"condition\": the "
                       "click that ends item %1 would end this step as well, when the "
                       "button comes up");
    // Item 3 jumps to item 5, item 4 stands right before it.
    replace(scenarioFile(),
            "\"condition\":\"click,\",\n\"hint\":qsTr(\"#1\"),\n\"icon\":\"eye\",\n\"jump\":-1,\n"
            "\"jumpNo\":-1,\n\"command\":\"\",\n\"showArrow\":true,\n\"prohibited\":false    \n    }\n];",
            "\"condition\":\"" + second +
                "\",\n\"hint\":qsTr(\"#1\"),\n\"icon\":\"eye\",\n\"jump\":-1,\n\"jumpNo\":-1,\n\"command\":"
                "\"\",\n"
                "\"showArrow\":true,\n\"prohibited\":false    \n    }\n];");
    replace(scenarioFile(), "windowState,NewProject,open", first);
    QCOMPARE(errors().contains(wrong.arg(3)), isWrong);
    QVERIFY(!errors().contains(wrong.arg(4)));
    replace(scenarioFile(), "action,fileOpen,open", first);
    QCOMPARE(errors().contains(wrong.arg(4)), isWrong);
}

void tst_LessonLibrary::namesAFileThatIsGone_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = {catalogueFile("ja_JP"), censusFile(),
                               QStringLiteral("resource/scenarios.qrc")};
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void tst_LessonLibrary::namesAFileThatIsGone()
{
    QFETCH(QString, file);
    QVERIFY(QFile::remove(path(file)));
    const QStringList found = errors();
    QVERIFY2(found.contains(file + QStringLiteral(": the file cannot be read")),
             qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_LessonLibrary::namesALessonThatIsNotInTheList()
{
    QVERIFY(
        QFile::copy(path(scenarioFile()), path(QStringLiteral("resource/qml/Tutorial/TutorialStep9.js"))));
    const QStringList found = errors();
    QVERIFY2(found.contains(
                 QStringLiteral("resource/qml/Tutorial/TutorialStep9.js: the lesson is not in the list")),
             qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_LessonLibrary::namesTextsOfALessonThatIsGone()
{
    QVERIFY(QFile::remove(path(scenarioFile())));
    QVERIFY(errors().contains(QStringLiteral("resource/translations/ja_JP.ts: TutorialStep1: no lesson has "
                                             "this name, so its texts are never used")));
}

QTEST_MAIN(tst_LessonLibrary)
#include "tst_LessonLibrary.moc"
