#include "LibraryTest.h"

#include <QRegularExpression>

/// What is said of the library around the scenarios: its list, catalogues, windows, census and files.
class tst_LessonLibrary : public LibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsNothingInASoundLibrary();
    void countsAMissingLessonAsWrongInACompleteLibrary();
    void namesTheFirstFigureThatIsOffInACompleteLibrary_data();
    void namesTheFirstFigureThatIsOffInACompleteLibrary();
    void takesPartsOfTermsForNoSlips_data();
    void takesPartsOfTermsForNoSlips();
    void asksLaterLessonsForTheirOpening_data();
    void asksLaterLessonsForTheirOpening();
    void doesNotExistWithoutItsList();
    void readsEverythingAnewEachTime();
    void namesTheFinding_data();
    void namesTheFinding();
    void saysOnceWhatConcernsNoLanguage();
    void namesTheLanguageThatLacksAText_data();
    void namesTheLanguageThatLacksAText();
    void namesAFileThatIsGone_data();
    void namesAFileThatIsGone();
    void namesALessonThatIsNotInTheList();
    void namesTextsOfALessonThatIsGone();
    void checksScenarioFilesInAFolder();
    void takesTheCatalogueOfAFileFirst();
    void namesAFolderWithoutScenarioFiles();
};

void tst_LessonLibrary::findsNothingInASoundLibrary()
{
    LessonLibrary library(m_folder->path());
    QVERIFY(library.exists());
    QCOMPARE(
        lines(library.check(false)),
        QStringList(QStringLiteral("resource/qml/Tutorial/TutorialList.js:3: TutorialStep2: note: the lesson "
                                   "has no scenario file yet")));
}

void tst_LessonLibrary::countsAMissingLessonAsWrongInACompleteLibrary()
{
    const Findings findings = LessonLibrary(m_folder->path()).check(true);
    QCOMPARE(findings.size(), 1);
    QVERIFY(findings.first().kind == Finding::Kind::kError);
    QCOMPARE(findings.first().item, QStringLiteral("TutorialStep2"));
}

void tst_LessonLibrary::namesTheFirstFigureThatIsOffInACompleteLibrary_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char *name, const char *from, const char *to, const char *figure) {
        QTest::newRow(name)
            << QByteArray(from) << QByteArray(to)
            << QStringLiteral("authoring/lesson-check/census.json: all, %1").arg(QString::fromUtf8(figure));
    };
    row("items", "\"items\": 5", "\"items\": 6", "\"items\": the lessons have 5 together, the row says 6");
    row("window", "\"MainWindow\": 4", "\"MainWindow\": 5, \"Copying\": 1",
        "\"windows Copying\": the lessons have 0 together, the row says 1");
    row("highest text", "\"maxTranslationId\": 4", "\"maxTranslationId\": 137",
        "\"maxTranslationId\": the lessons have 4 together, the row says 137");
    row("commands", "\"commands\": 1", "\"commands\": 18",
        "\"commands\": the lessons have 1 together, the row says 18");
    row("no row", "\"all\"", "\"every\"", "\"commands\": the lessons have 1 together, the row says 0");
}

void tst_LessonLibrary::namesTheFirstFigureThatIsOffInACompleteLibrary()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    // The row stands behind those of the lessons.
    QByteArray table = readFile(path(censusFile()));
    const int at = int(table.indexOf(from, table.indexOf("\"all\"")));
    QVERIFY2(at >= 0, from.constData());
    QVERIFY(writeFile(path(censusFile()), table.replace(at, from.size(), to)));
    QCOMPARE(errors(), QStringList());
    const QStringList found = lines(LessonLibrary(m_folder->path()).check(true));
    QCOMPARE(found.filter(QStringLiteral("together")), QStringList(finding));
}

void tst_LessonLibrary::takesPartsOfTermsForNoSlips_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("slips");
    const QString japanese = catalogueFile("ja_JP");
    QTest::newRow("term") << japanese << QByteArray("パーティーです。") << 0;
    QTest::newRow("word in the term's place") << japanese << QByteArray("パーティです。") << 1;
    QTest::newRow("both") << japanese << QByteArray("パーティーのパーティ。") << 1;
    QTest::newRow("part of another word") << catalogueFile("en_US") << QByteArray("Tilesets.") << 0;
    QTest::newRow("at the end") << catalogueFile("en_US") << QByteArray("A TileSet") << 1;
}

void tst_LessonLibrary::takesPartsOfTermsForNoSlips()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(int, slips);
    replace(file, file == catalogueFile("ja_JP") ? "ようこそ。" : "Welcome.", text);
    QCOMPARE(errors().size(), slips);
}

void tst_LessonLibrary::asksLaterLessonsForTheirOpening_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("finding");
    QTest::newRow("no question") << QByteArray("\"condition\":\"yesNo\"")
                                 << QByteArray("\"condition\":\"click,\"")
                                 << QStringLiteral(
                                        ": item 2: it has to be the yesNo step with \"jump\" 3 and "
                                        "\"jumpNo\" 6");
    QTest::newRow("command elsewhere") << QByteArray("\"id\":1,") << QByteArray("\"id\":1,")
                                       << QStringLiteral(":36: item 3, \"command\": it has to be \"\" here");
    QTest::newRow("no command where the project is made")
        << QByteArray("\"windowKey\":\"MainWindow\",\n\"condition\":\"action,fileOpen,open\"")
        << QByteArray("\"windowKey\":\"NewProject\",\n\"condition\":\"windowState,Copying,open\"")
        << QStringLiteral(":53: item 4, \"command\": it has to be \"presetData,step2\" here");
}

void tst_LessonLibrary::asksLaterLessonsForTheirOpening()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    const QString second = QStringLiteral("resource/qml/Tutorial/TutorialStep2.js");
    QVERIFY(QFile::copy(path(scenarioFile()), path(second)));
    replace(second, from, to);
    const QStringList found = errors();
    QVERIFY2(found.contains(second + finding), qPrintable(found.join(QLatin1Char('\n'))));
    QVERIFY2(
        found.filter(QRegularExpression(QStringLiteral("TutorialStep1\\.js.*(yesNo step|here$)"))).isEmpty(),
        qPrintable(found.join(QLatin1Char('\n'))));
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
    replace(scenarioFile(), "\"icon\":\"eye\"", "\"icon\":\"ear\"");
    QVERIFY(lines(library.check(false)).size() > first.size());
    replace(scenarioFile(), "\"icon\":\"ear\"", "\"icon\":\"eye\"");
    QCOMPARE(lines(library.check(false)), first);
}

void tst_LessonLibrary::namesTheFinding_data()
{
    addFindingColumns();
    const auto row = addFindingRow;
    const QString scenario = scenarioFile();
    const QString list = listFile();
    const QString english = catalogueFile("en_US");
    const QString chinese = catalogueFile("zh_CN");
    const QString mainWindow = QStringLiteral("practice/descriptions/MainWindow.json");
#define IN_LIST "resource/qml/Tutorial/TutorialList.js:"

    row("description without size", mainWindow, "\"size\"", "\"extent\"",
        "practice/descriptions/MainWindow.json: size: must be a list of 2 whole numbers");

    row("text that a language lacks", chinese, "<source>#3</source>", "<source>#33</source>",
        "resource/qml/Tutorial/TutorialStep1.js:36: item 3, \"translationId\": the text #3 is missing in "
        "zh_CN");
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
    row("end of the lesson in a text", english, "<translation>Welcome.", "<translation>a[0]; Welcome.",
        "resource/translations/en_US.ts:28: TutorialStep1, \"#1\": the companion takes \"];\" for the end of "
        "the "
        "lesson and hands it over without the semicolon; write \"] ;\"");
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
    row("hint of many lines", english, "Welcome.", "Welcome\nto\nthis\nlesson.",
        "resource/translations/en_US.ts:28: TutorialStep1, \"#1\": the hint takes 4 lines in the bubble, 3 "
        "at "
        "most; shorten it");
    row("hint whose lines are long", english, "Welcome.", QByteArray("Welcome ").repeated(16),
        "resource/translations/en_US.ts:28: TutorialStep1, \"#1\": the hint takes 6 lines in the bubble, 3 "
        "at most; shorten it");
    row("name that no window shows", chinese, "“打开”", "“开启”",
        "resource/translations/zh_CN.ts:40: TutorialStep1, \"#4\": no window shows “开启” in zh_CN; name a "
        "control by the very words of its window, and quote nothing else");
    row("name that windows show in another language", catalogueFile("ja_JP"), "「新規」", "「新建」",
        "resource/translations/ja_JP.ts:36: TutorialStep1, \"#3\": no window shows “新建” in ja_JP; name a "
        "control by the very words of its window, and quote nothing else");

    row("word off the glossary in a hint", chinese, "项目", "工程",
        "resource/translations/zh_CN.ts:32: TutorialStep1, \"#2\": “工程” is not the glossary's word; it has "
        "“项目”");
    row("word off the glossary in a window", mainWindow, "\"en_US\": \"Main\"",
        "\"en_US\": \"Tilesets, Tileset\"",
        "practice/descriptions/MainWindow.json: \"Tilesets, Tileset\": “tileset” is not the glossary's word; "
        "it "
        "has “tile set”");
    row("glossary that is no JSON", glossaryFile(), "{\"terms\"", "\"terms\"",
        "authoring/glossary.json: the table is not a JSON object with \"terms\":");
    row("term without a word in a language", glossaryFile(), "\"zh_CN\": \"图块组\"", "\"zh\": \"图块组\"",
        "authoring/glossary.json: term 2: it has no word in zh_CN");

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
}

void tst_LessonLibrary::namesTheFinding()
{
    checkFindingRow();
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
        copyLibrary();
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

void tst_LessonLibrary::namesAFileThatIsGone_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = {catalogueFile("ja_JP"), censusFile(), glossaryFile(),
                               QStringLiteral("resource/scenarios.qrc")};
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << file;
    }
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

namespace {

const QString kFolder = QStringLiteral("trials/scenarios");

/// A lesson of the library as a scenario file with catalogues of its own.
void copyLesson(const QDir &root)
{
    QVERIFY(root.mkpath(QStringLiteral("trials/scenarios/desk")));
    QVERIFY(root.mkpath(QStringLiteral("trials/translations")));
    QVERIFY(QFile::copy(root.filePath(scenarioFile()),
                        root.filePath(kFolder + QStringLiteral("/desk/Harbor.js"))));
    for (const char *const locale : {"en_US", "ja_JP", "zh_CN"}) {
        QByteArray texts = readFile(root.filePath(catalogueFile(locale)));
        texts.replace("TutorialStep1", "Harbor");
        // The last context is that of the lesson.
        texts = texts.left(texts.indexOf("<context>")) + texts.mid(texts.lastIndexOf("<context>"));
        QVERIFY(writeFile(
            root.filePath(QStringLiteral("trials/translations/%1.ts").arg(QLatin1String(locale))), texts));
    }
}

} // namespace

void tst_LessonLibrary::checksScenarioFilesInAFolder()
{
    copyLesson(QDir(path(QString())));
    QCOMPARE(lines(LessonLibrary(path(QString())).checkScenarios(kFolder)), QStringList());
    replace(QStringLiteral("trials/translations/ja_JP.ts"), "<name>Harbor</name>", "<name>Haven</name>");
    const QStringList found = lines(LessonLibrary(path(QString())).checkScenarios(kFolder));
    QVERIFY2(found.filter(QStringLiteral("trials/scenarios/desk/Harbor.js"))
                     .filter(QStringLiteral("the text #1 is missing in ja_JP"))
                     .size() == 1,
             qPrintable(found.join(QLatin1Char('\n'))));
    QVERIFY2(
        found.contains(QStringLiteral("trials/translations/ja_JP.ts: Haven: no lesson has this name, so its "
                                      "texts are never used")),
        qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_LessonLibrary::takesTheCatalogueOfAFileFirst()
{
    copyLesson(QDir(path(QString())));
    const QString own = QStringLiteral("trials/scenarios/desk/Harbor.ja_JP.ts");
    QVERIFY(QFile::copy(path(QStringLiteral("trials/translations/ja_JP.ts")), path(own)));
    replace(own, "<source>#1</source>", "<source>#7</source>");
    const QStringList found = lines(LessonLibrary(path(QString())).checkScenarios(kFolder));
    QVERIFY2(found.filter(own)
                     .filter(QStringLiteral("#7"))
                     .filter(QStringLiteral("the text is never used"))
                     .size() == 1,
             qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_LessonLibrary::namesAFolderWithoutScenarioFiles()
{
    QCOMPARE(lines(LessonLibrary(path(QString())).checkScenarios(QStringLiteral("resource/icons"))),
             QStringList(QStringLiteral("resource/icons: there is no scenario file")));
}

QTEST_MAIN(tst_LessonLibrary)
#include "tst_LessonLibrary.moc"
