#include "DocumentFixture.h"
#include "LogCapture.h"

#include <QMetaMethod>
#include <QTest>

/// The document as an object, and what it takes from a file.
class tst_Manager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theInstanceLivesAsLongAsTheObject();
    void theMetaObjectIsBare();

    void loadsWhatTheFormAllows_data();
    void loadsWhatTheFormAllows();
    void refusesWhatIsNoArray_data();
    void refusesWhatIsNoArray();
    void aFileThatDoesNotOpenLeavesTheItems();
    void anItemWithoutIdIsLeftOutAndNamed();
    void aScannerFailureIsAnErrorAndLoadingGoesOn();
    void textsAreTranslatedOnLoad();
    void loadingLeavesTheHistory();
    void loadingIsLogged();

    void namelessItemsGetNumberedNames();
    void numberedNamesUseTheWordOfTheLocale();
    void aFolderAndAnItemCountApart();

    void clearDropsItemsAndHistory();
    void worksWithoutAHistory();
};

void tst_Manager::theInstanceLivesAsLongAsTheObject()
{
    const ScenarioTexts texts;
    LogCapture log;
    QCOMPARE(TutorialEditor::Manager::instance(), nullptr);
    {
        TutorialEditor::Manager document(&texts);
        QCOMPARE(TutorialEditor::Manager::instance(), &document);
        QCOMPARE(document.tree()->root.id, -1);
        QVERIFY(document.tree()->root.folder);
        QCOMPARE(document.fileName(), QString());
    }
    QCOMPARE(TutorialEditor::Manager::instance(), nullptr);
    const QString source = QStringLiteral("..\\..\\tutorial\\cpp\\TutorialEditor\\Manager.cpp ");
    QCOMPARE(log.debugs(), (QStringList{source + QStringLiteral("TutorialEditor::Manager::Manager 276"),
                                        source + QStringLiteral("TutorialEditor::Manager::~Manager 284")}));
}

void tst_Manager::theMetaObjectIsBare()
{
    const QMetaObject &meta = TutorialEditor::Manager::staticMetaObject;
    QCOMPARE(meta.className(), "TutorialEditor::Manager");
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_Manager::loadsWhatTheFormAllows_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shape");
    QTest::newRow("scenario") << QByteArray("var scenario = [{\"id\":1},{\"id\":2}];")
                              << QStringLiteral("1 2");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFvar scenario = [{\"id\":1}];")
                                     << QStringLiteral("1");
    QTest::newRow("bare array") << QByteArray("[{\"id\":1}]") << QStringLiteral("1");
    QTest::newRow("carriage returns")
        << QByteArray("var scenario = [\r\n{\"id\":1}\r\n];\r\n") << QStringLiteral("1");
    QTest::newRow("no item") << QByteArray("var scenario = [];") << QString();
    QTest::newRow("folder") << QByteArray("[{\"id\":1,\"folder\":true,\"children\":[{\"id\":2}]},{\"id\":3}]")
                            << QStringLiteral("1F[2] 3");
    QTest::newRow("children of a leaf")
        << QByteArray("[{\"id\":1,\"children\":[{\"id\":2}]}]") << QStringLiteral("1[2]");
    QTest::newRow("comments") << QByteArray("/* a */\n// b\nvar scenario = [\n  // c\n \n{\"id\":1}\n];\n")
                              << QStringLiteral("1");
    QTest::newRow("a block comment ends in a line comment")
        << QByteArray("/* a\n// b */\n[{\"id\":1}]") << QStringLiteral("1");
    QTest::newRow("a block comment begins in a line comment")
        << QByteArray("[{\"id\":1}\n// /*\n,{\"id\":2}\n// */\n]") << QStringLiteral("1");
    QTest::newRow("the head and the end in comments")
        << QByteArray("/* var scenario = [ */\n// ];\nvar scenario = [{\"id\":1}];") << QStringLiteral("1");
    QTest::newRow("zero byte in a text")
        << QByteArray("[{\"id\":1,\"name\":\"a\0b\"},{\"id\":2}]", 32) << QStringLiteral("1 2");
    QTest::newRow("the same id twice") << QByteArray("[{\"id\":1},{\"id\":1}]") << QStringLiteral("1 1");
}

void tst_Manager::loadsWhatTheFormAllows()
{
    QFETCH(QByteArray, bytes);
    DocumentFixture fixture;
    QCOMPARE(fixture.load(bytes), QStringList());
    QTEST(fixture.shape(), "shape");
    QCOMPARE(fixture.document.fileName(), fixture.path(QStringLiteral("Lesson.js")));
}

void tst_Manager::refusesWhatIsNoArray_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("object") << QByteArray("{\"id\":1}");
    QTest::newRow("number") << QByteArray("12");
    QTest::newRow("broken") << QByteArray("var scenario = [{\"id\":1}");
    QTest::newRow("a zero byte and more behind the end") << QByteArray("[{\"id\":1}]\0more", 15);
    QTest::newRow("comment behind code") << QByteArray("[{\"id\":1} // first\n]");
    QTest::newRow("an end inside a text") << QByteArray("var scenario = [{\"id\":1,\"name\":\"a];\"}];");
    QTest::newRow("a comment begins inside a text")
        << QByteArray("[{\"id\":1,\"name\":\"/*\"},{\"id\":2,\"name\":\"*/\"}]x");
}

void tst_Manager::refusesWhatIsNoArray()
{
    QFETCH(QByteArray, bytes);
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":5}]"), QStringList());
    QCOMPARE(fixture.load(bytes), QStringList{QStringLiteral("json is not array")});
    QCOMPARE(fixture.shape(), QString());
    QCOMPARE(fixture.ids(), QString());
}

void tst_Manager::aFileThatDoesNotOpenLeavesTheItems()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":5}]"), QStringList());
    LogCapture log;
    const QString missing = fixture.path(QStringLiteral("missing.js"));
    QCOMPARE(fixture.document.setContents(missing), QStringList());
    QCOMPARE(fixture.shape(), QStringLiteral("5"));
    QCOMPARE(fixture.document.fileName(), missing);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(
        log.warnings().constFirst().contains(QStringLiteral("TutorialEditor::Manager::setContents 307 ")));
    QVERIFY(log.warnings().constFirst().contains(missing));
    QCOMPARE(fixture.document.save(), QString());
    QCOMPARE(fixture.document.setContents(missing), QStringList());
    QCOMPARE(fixture.shape(), QStringLiteral("5"));
}

void tst_Manager::anItemWithoutIdIsLeftOutAndNamed()
{
    DocumentFixture fixture;
    LogCapture log;
    const QStringList errors = fixture.load(
        R"([{"id":1},{"name":"lost"},"text",{"id":2,"folder":true,"children":[{"id":3},{}]},{"id":4,"children":5}])");
    QCOMPARE(errors,
             (QStringList{QStringLiteral("Item 2 is left out: it is no object with an \"id\""),
                          QStringLiteral("Item 3 is left out: it is no object with an \"id\""),
                          QStringLiteral("Item 4, child 2 is left out: it is no object with an \"id\""),
                          QStringLiteral("Item 5 is left out: toArray() is called for kValue.")}));
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F[3]"));
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3"));
    QVERIFY(log.contains(QStringLiteral("TutorialEditor::Manager::setContents 395 (\"Item 2 is left out")));
}

void tst_Manager::aScannerFailureIsAnErrorAndLoadingGoesOn()
{
    DocumentFixture fixture;
    const QStringList errors = fixture.load("var scenario = [{\"id\":1,\"hint\":qsTr(\"#1}];");
    QCOMPARE(errors.size(), 2);
    QVERIFY2(errors.first().startsWith(QStringLiteral("not matched qsTr(\"")), qPrintable(errors.first()));
    QCOMPARE(errors.last(), QStringLiteral("json is not array"));
}

void tst_Manager::textsAreTranslatedOnLoad()
{
    FixedTranslator translator;
    translator.texts = {{QStringLiteral("Lesson|#1"), QStringLiteral("Click \"here\"")},
                        {QStringLiteral("Elsewhere|x"), QStringLiteral("y")}};
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"translationId\":1,\"hint\":qsTr(\"#1\"),"
                          "\"name\":QT_TRANSLATE_NOOP(\"Elsewhere\", \"x\")}]\n\n"),
             QStringList());
    QCOMPARE(fixture.item(1)->hint, QStringLiteral("Click \"here\""));
    QCOMPARE(fixture.item(1)->hint2, QStringLiteral("Click \"here\""));
    QCOMPARE(fixture.item(1)->name, QStringLiteral("y"));
}

void tst_Manager::loadingLeavesTheHistory()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    fixture.item(1)->setName(QStringLiteral("b"));
    fixture.undoRedo().endSingle();
    QCOMPARE(fixture.load("[{\"id\":2}]"), QStringList());
    QVERIFY(fixture.undoRedo().canUndo());
}

void tst_Manager::loadingIsLogged()
{
    DocumentFixture fixture;
    LogCapture log;
    QCOMPARE(fixture.load("[ ]\n"), QStringList());
    const QString function = QStringLiteral("TutorialEditor::Manager::setContents ");
    QVERIFY(log.contains(function + QStringLiteral("302 \"%1\"").arg(fixture.document.fileName())));
    QVERIFY(log.contains(function + QStringLiteral("349")));
    QVERIFY(log.contains(function + QStringLiteral("352 \"[ ]\"")));
    QVERIFY(!log.contains(function + QStringLiteral("395")));
    QVERIFY(log.warnings().isEmpty());
}

void tst_Manager::namelessItemsGetNumberedNames()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(R"([{"id":1},{"id":2,"name":"item007"},{"id":3,"folder":true,"children":[{"id":4},
                             {"id":5,"name":"x"}]},{"id":6,"name":""},{"id":-5}])"),
             QStringList());
    QCOMPARE(fixture.item(1)->name, QStringLiteral("item008"));
    QCOMPARE(fixture.item(2)->name, QStringLiteral("item007"));
    QCOMPARE(fixture.item(3)->name, QStringLiteral("folder001"));
    QCOMPARE(fixture.item(4)->name, QStringLiteral("item009"));
    QCOMPARE(fixture.item(5)->name, QStringLiteral("x"));
    QCOMPARE(fixture.item(6)->name, QStringLiteral("item010"));
    QCOMPARE(fixture.item(-5)->name, QString());
    QVERIFY(!fixture.undoRedo().canUndo());
}

void tst_Manager::numberedNamesUseTheWordOfTheLocale()
{
    FixedTranslator translator;
    translator.texts = {{QStringLiteral("TutorialEditor::Manager|item"), QStringLiteral("Schritt")},
                        {QStringLiteral("TutorialEditor::Manager|folder"), QStringLiteral("Ordner")}};
    DocumentFixture fixture;
    QCOMPARE(fixture.load(R"([{"id":1},{"id":2,"folder":true}])"), QStringList());
    QCOMPARE(fixture.item(1)->name, QStringLiteral("Schritt001"));
    QCOMPARE(fixture.item(2)->name, QStringLiteral("Ordner001"));
}

void tst_Manager::aFolderAndAnItemCountApart()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(R"([{"id":1},{"id":2,"folder":true},{"id":3,"folder":true},{"id":4}])"),
             QStringList());
    QCOMPARE(fixture.item(1)->name, QStringLiteral("item001"));
    QCOMPARE(fixture.item(2)->name, QStringLiteral("folder001"));
    QCOMPARE(fixture.item(3)->name, QStringLiteral("folder002"));
    QCOMPARE(fixture.item(4)->name, QStringLiteral("item002"));
}

void tst_Manager::clearDropsItemsAndHistory()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    const QString fileName = fixture.document.fileName();
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    fixture.item(1)->setName(QStringLiteral("b"));
    fixture.undoRedo().endSingle();
    fixture.tree()->root.id = 5;
    fixture.tree()->root.folder = false;
    fixture.document.clear();
    QCOMPARE(fixture.shape(), QString());
    QCOMPARE(fixture.ids(), QString());
    QCOMPARE(fixture.tree()->root.id, -1);
    QVERIFY(fixture.tree()->root.folder);
    QVERIFY(!fixture.undoRedo().canUndo());
    QVERIFY(!fixture.host.modified);
    QCOMPARE(fixture.document.fileName(), fileName);
}

void tst_Manager::worksWithoutAHistory()
{
    DocumentFixture fixture;
    UndoRedo::publish(nullptr);
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    QCOMPARE(fixture.document.save(), QString());
    fixture.document.clear();
    QCOMPARE(fixture.shape(), QString());
}

QTEST_MAIN(tst_Manager)
#include "tst_Manager.moc"
