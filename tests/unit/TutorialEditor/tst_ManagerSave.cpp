#include "DocumentFixture.h"
#include "LogCapture.h"
#include "Unprivileged.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

/// A lesson file in the form of the library, with a folder and every field.
const char *const kTwoLevels = "var scenario = [\n"
                               "    {\n"
                               "\"id\":1,\n"
                               "\"name\":\"Part\",\n"
                               "\"folder\":true,\n"
                               "\"children\":[\n"
                               "        {\n"
                               "\"id\":3,\n"
                               "\"name\":\"A \\\"b\\\"\",\n"
                               "\"folder\":false,\n"
                               "\"translationId\":2,\n"
                               "\"x\":10,\n"
                               "\"y\":-20,\n"
                               "\"windowKey\":\"MainWindow\",\n"
                               "\"condition\":\"click,\",\n"
                               "\"hint\":qsTr(\"#2\"),\n"
                               "\"icon\":\"eye\",\n"
                               "\"jump\":4,\n"
                               "\"jumpNo\":5,\n"
                               "\"command\":\"presetData,step2\",\n"
                               "\"showArrow\":false,\n"
                               "\"prohibited\":true        \n"
                               "        }\n"
                               "]    \n"
                               "    },\n"
                               "    {\n"
                               "\"id\":2,\n"
                               "\"name\":\"B\",\n"
                               "\"folder\":false,\n"
                               "\"translationId\":1,\n"
                               "\"x\":-9999,\n"
                               "\"y\":-9999,\n"
                               "\"windowKey\":\"\",\n"
                               "\"condition\":\"\",\n"
                               "\"hint\":qsTr(\"#1\"),\n"
                               "\"icon\":\"click\",\n"
                               "\"jump\":-1,\n"
                               "\"jumpNo\":-1,\n"
                               "\"command\":\"\",\n"
                               "\"showArrow\":true,\n"
                               "\"prohibited\":false    \n"
                               "    }\n"
                               "];";

} // namespace

/// The text of a document, and its way into the file.
class tst_ManagerSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheFormOfTheLibrary();
    void writesHintsAsTextWhenNotTranslated();
    void compactTextKeepsTheBreaksBetweenItems();
    void anEmptyDocumentIsAnEmptyArray();
    void aNodeWithoutItemIsLeftOut();
    void theFirstOfTwoItemsWithOneIdIsWritten();

    void aSavedFileLoadsToTheSameTree();
    void savingMarksThePositionAsSaved();
    void savingWithoutAFileSaysSo();
    void aFailedSaveIsReportedAndStaysModified_data();
    void aFailedSaveIsReportedAndStaysModified();
    void aReadOnlyFileIsNotSaved();
    void theLibraryIsInTheFormOfTheWriter();
};

void tst_ManagerSave::writesTheFormOfTheLibrary()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kTwoLevels), QStringList());
    LogCapture log;
    QCOMPARE(fixture.document.getScenario(true), QString::fromUtf8(kTwoLevels));
    QVERIFY(log.contains(QStringLiteral("TutorialEditor::Manager::getScenario 414")));
}

void tst_ManagerSave::writesHintsAsTextWhenNotTranslated()
{
    FixedTranslator translator;
    translator.texts = {{QStringLiteral("Lesson|#2"), QStringLiteral("say \"%1\"")},
                        {QStringLiteral("Lesson|#1"), QStringLiteral("line\nbreak")}};
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kTwoLevels), QStringList());
    const QString expected =
        QString::fromUtf8(kTwoLevels)
            .replace(QStringLiteral("qsTr(\"#2\")"), QStringLiteral("\"say \\\"%1\\\"\""))
            .replace(QStringLiteral("qsTr(\"#1\")"), QStringLiteral("\"line\\nbreak\""));
    QCOMPARE(fixture.document.getScenario(false), expected);
}

void tst_ManagerSave::compactTextKeepsTheBreaksBetweenItems()
{
    DocumentFixture fixture;
    QCOMPARE(
        fixture.load(
            R"([{"id":1,"name":"f","folder":true,"children":[]},{"id":2,"name":"g","folder":true,"children":[]}])"),
        QStringList());
    QString text = QStringLiteral("before ");
    fixture.document.getJsonText(0, &fixture.tree()->root, &fixture.tree()->items, &text, true, false);
    QCOMPARE(text, QStringLiteral("before [{\"id\":1,\"name\":\"f\",\"folder\":true,\"children\":[]},\n"
                                  "{\"id\":2,\"name\":\"g\",\"folder\":true,\"children\":[]}]"));
}

void tst_ManagerSave::anEmptyDocumentIsAnEmptyArray()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.document.getScenario(true), QStringLiteral("var scenario = [\n\n];"));
    QCOMPARE(fixture.load(R"([{"id":1,"name":"f","folder":true,"prohibited":true}])"), QStringList());
    QCOMPARE(fixture.document.getScenario(true),
             QStringLiteral("var scenario = [\n    {\n\"id\":1,\n\"name\":\"f\",\n\"folder\":true,\n"
                            "\"children\":[\n\n]    \n    }\n];"));
}

void tst_ManagerSave::aNodeWithoutItemIsLeftOut()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(R"([{"id":2,"name":"f","folder":true}])"), QStringList());
    const QString whole = fixture.document.getScenario(true);
    fixture.tree()->root.children.prepend(Node(1, false));
    fixture.tree()->root.children.append(Node(3, false));
    LogCapture log;
    QCOMPARE(fixture.document.getScenario(true), whole);
    const QString source = QStringLiteral("..\\..\\tutorial\\cpp\\TutorialEditor\\Manager.cpp ");
    QCOMPARE(
        log.warnings(),
        (QStringList{source + QStringLiteral("TutorialEditor::Manager::getJsonText 462 data not found 1"),
                     source + QStringLiteral("TutorialEditor::Manager::getJsonText 462 data not found 3")}));
}

void tst_ManagerSave::theFirstOfTwoItemsWithOneIdIsWritten()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(R"([{"id":1,"name":"first"},{"id":1,"name":"second"}])"), QStringList());
    const QString text = fixture.document.getScenario(true);
    QCOMPARE(text.count(QStringLiteral("\"first\"")), 2);
    QCOMPARE(text.count(QStringLiteral("\"second\"")), 0);
}

void tst_ManagerSave::aSavedFileLoadsToTheSameTree()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kTwoLevels), QStringList());
    LogCapture log;
    QCOMPARE(fixture.document.save(), QString());
    QVERIFY(log.contains(QStringLiteral("TutorialEditor::Manager::save 431")));
    const QByteArray saved = contentOf(fixture.document.fileName());
    QCOMPARE(saved, QByteArray("\xEF\xBB\xBF") + kTwoLevels);
    const QString text = fixture.document.getScenario(false);
    const QString shape = fixture.shape();
    fixture.document.clear();
    QCOMPARE(fixture.document.setContents(fixture.document.fileName()), QStringList());
    QCOMPARE(fixture.shape(), shape);
    QCOMPARE(fixture.document.getScenario(false), text);
    QCOMPARE(fixture.document.save(), QString());
    QCOMPARE(contentOf(fixture.document.fileName()), saved);
}

void tst_ManagerSave::savingMarksThePositionAsSaved()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    fixture.item(1)->setName(QStringLiteral("b"));
    fixture.undoRedo().endSingle();
    QVERIFY(fixture.host.modified);
    QCOMPARE(fixture.document.save(), QString());
    QVERIFY(!fixture.host.modified);
    fixture.undoRedo().undo();
    QVERIFY(fixture.host.modified);
}

void tst_ManagerSave::savingWithoutAFileSaysSo()
{
    FixedTranslator translator;
    DocumentFixture fixture;
    QCOMPARE(fixture.document.save(), QStringLiteral("Tutorial not loaded yet."));
    translator.texts = {
        {QStringLiteral("TutorialEditor::Manager|Tutorial not loaded yet."), QStringLiteral("leer")}};
    QCOMPARE(fixture.document.save(), QStringLiteral("leer"));
}

void tst_ManagerSave::aFailedSaveIsReportedAndStaysModified_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("missing directory") << QStringLiteral("missing/Lesson.js");
    QTest::newRow("a directory stands in the way") << QStringLiteral(".");
    QTest::newRow("read-only file system") << QStringLiteral(":/qml/Tutorial/NoLesson.js");
    QTest::newRow("full disk") << QStringLiteral("/dev/full");
}

void tst_ManagerSave::aFailedSaveIsReportedAndStaysModified()
{
    QFETCH(QString, fileName);
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    if (fileName.startsWith(QStringLiteral("/dev/"))) {
        // The device would be read without end, so it takes the place of the loaded file.
        QVERIFY(QFile::exists(fileName));
        QVERIFY(QFile::remove(fixture.document.fileName()));
        QVERIFY(QFile::link(fileName, fixture.document.fileName()));
    } else {
        const bool resource = fileName.startsWith(QLatin1Char(':'));
        QCOMPARE(fixture.document.setContents(resource ? fileName : fixture.path(fileName)), QStringList());
    }
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    fixture.item(1)->setName(QStringLiteral("b"));
    fixture.undoRedo().endSingle();
    QVERIFY(fixture.host.modified);
    LogCapture log;
    QCOMPARE(fixture.document.save(), QStringLiteral("Failed to save."));
    QVERIFY(fixture.host.modified);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY2(log.warnings().constFirst().contains(QStringLiteral("DataSupport::writeFile 1")),
             qPrintable(log.warnings().constFirst()));
}

void tst_ManagerSave::aReadOnlyFileIsNotSaved()
{
    const QByteArray scenario = "[{\"id\":1,\"name\":\"a\"}]";
    DocumentFixture fixture;
    QCOMPARE(fixture.load(scenario), QStringList());
    const QString file = fixture.document.fileName();
    const QByteArray before = contentOf(file);
    const QFileDevice::Permissions readable =
        QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
    QVERIFY(QFile::setPermissions(file, readable));
    QVERIFY(QFile::setPermissions(QFileInfo(file).path(), readable | QFileDevice::WriteOwner |
                                                              QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                                              QFileDevice::ExeOther));
    fixture.undoRedo().beginSingle(QStringLiteral("rename"));
    fixture.item(1)->setName(QStringLiteral("b"));
    fixture.undoRedo().endSingle();
    LogCapture log;
    {
        const Unprivileged nobody;
        QVERIFY(QFileInfo(file).isReadable());
        QCOMPARE(fixture.document.save(), QStringLiteral("Failed to save."));
    }
    QVERIFY(fixture.host.modified);
    QCOMPARE(contentOf(file), before);
    QVERIFY(log.contains(QStringLiteral("DataSupport::writeFile 153 Failed to open \"%1\"").arg(file)));
}

void tst_ManagerSave::theLibraryIsInTheFormOfTheWriter()
{
    // Some of the files have carriage returns, which the writer never makes; all else is the same byte for
    // byte.
    const QDir library(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial"));
    const QStringList files = library.entryList({QStringLiteral("TutorialStep*.js")});
    QVERIFY(!files.isEmpty());
    for (const QString &name : files) {
        DocumentFixture fixture;
        const QByteArray source = contentOf(library.filePath(name));
        QCOMPARE(fixture.load(source), QStringList());
        QCOMPARE(fixture.document.save(), QString());
        QCOMPARE(contentOf(fixture.document.fileName()), QByteArray(source).replace("\r\n", "\n"));
    }
}

QTEST_MAIN(tst_ManagerSave)
#include "tst_ManagerSave.moc"
