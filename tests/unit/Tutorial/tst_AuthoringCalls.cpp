#include "LogCapture.h"
#include "Tutorial/AuthoringCalls.h"
#include "Tutorial/localisation/Languages.h"
#include "tool/JsonWrapper.h"

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QUndoCommand>

#include <memory>

namespace {

const QString kSource =
    QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");
const QString kFirstLesson = QStringLiteral(":/qml/Tutorial/TutorialStep1.js");
const QString kNothing = QStringLiteral("start\x01var scenario = [\n\n];\x01-1");

/// Counts what the document tells of itself.
class FakeHistory final : public UndoHistory
{
public:
    [[nodiscard]] bool inTransaction() const override { return false; }
    [[nodiscard]] bool mergeable() const override { return false; }
    void addCommand(std::unique_ptr<QUndoCommand> command) override { command->redo(); }
    void markSaved() override { ++saved; }
    void clear() override { ++cleared; }
    void setUndoNote(const QString & /*note*/) override {}

    int saved = 0;
    int cleared = 0;
};

} // namespace

/// The scenario that is open, without a link, overlays and undo history.
class tst_AuthoringCalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void handsOverFromAnId();
    void handsOverATextThatHoldsAnEnd();
    void handsOverInTheLanguageOfTheMoment();
    void keepsTheBaseNameOfALesson_data();
    void keepsTheBaseNameOfALesson();
    void takesTheTextsByTheBaseName_data();
    void takesTheTextsByTheBaseName();
    void announcesALessonNameOnce();
    void announcesALessonNameBeforeTheLessonIsThere();
    void givesOneErrorALine();
    void takesAnOddNameOfALesson_data();
    void takesAnOddNameOfALesson();
    void unloads();
    void listsTheLessonsInTheLanguageOfTheMoment();

    void savesNothingWithoutAFile();
    void savesWhatItLoaded();
    void savesTranslationsOfBothLocalesFirst();
    void savesNoScenarioWithoutItsTranslations_data();
    void savesNoScenarioWithoutItsTranslations();
    void savesNoTranslationsIntoTheProgram();

    void pastesWhatWasCopied();
    void anUnknownIdLeavesTheClipboard();
    void noIdsAreAListToo();
    void pastesNothingFromAnEmptyClipboard();
    void announcesAChangeOfTheClipboardOnly();
    void announcesAChangeOfModifiedOnly();
    void remembersTheUndoNote();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString file(const QString &name, const QByteArray &bytes) const;
    [[nodiscard]] static QByteArray contentOf(const QString &path);
    [[nodiscard]] QString document() const { return m_calls->startCommand(-1); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Languages> m_languages;
    FakeHistory m_history;
    std::unique_ptr<AuthoringCalls> m_calls;
};

void tst_AuthoringCalls::init()
{
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("translations")));
    m_languages = std::make_unique<Languages>();
    m_languages->greet(QStringLiteral("en_US"));
    m_history = FakeHistory();
    m_calls = std::make_unique<AuthoringCalls>(
        *m_languages, [this] { return &m_history; }, [this](const QString &name) { return path(name); });
}

void tst_AuthoringCalls::cleanup()
{
    m_calls.reset();
    m_languages.reset();
    qDeleteAll(
        QCoreApplication::instance()->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
}

QString tst_AuthoringCalls::file(const QString &name, const QByteArray &bytes) const
{
    QFile target(path(name));
    return target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() ? target.fileName()
                                                                                    : QString();
}

QByteArray tst_AuthoringCalls::contentOf(const QString &path)
{
    QFile source(path);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("<unreadable>");
}

void tst_AuthoringCalls::handsOverFromAnId()
{
    QCOMPARE(document(), kNothing);
    QCOMPARE(m_calls->load(kFirstLesson), QString());
    const QString command = m_calls->startCommand(7);
    QVERIFY(command.startsWith(QStringLiteral("start\x01var scenario = [\n    {\n\"id\":1,\n")));
    QVERIFY(command.endsWith(QStringLiteral("\n    }\n];\x01"
                                            "7")));
    QVERIFY(m_calls->startCommand(-1).endsWith(QStringLiteral(";\x01-1")));
    QCOMPARE(command.count(QChar(1)), 2);
}

void tst_AuthoringCalls::handsOverATextThatHoldsAnEnd()
{
    const QString own =
        file(QStringLiteral("own.js"), R"(var scenario = [{"id":1,"name":"a","hint":"b\u005d;c"}];)");
    QCOMPARE(m_calls->load(own), QString());
    // The end that is taken off is the first one, wherever it stands.
    QVERIFY2(document().contains(QStringLiteral("\"hint\":\"b]c\"")), qPrintable(document()));
    QVERIFY2(document().endsWith(QStringLiteral("\n];;\x01-1")), qPrintable(document()));
}

void tst_AuthoringCalls::handsOverInTheLanguageOfTheMoment()
{
    // Loading translates the hints; what is handed over is what was loaded.
    QCOMPARE(m_calls->load(kFirstLesson), QString());
    const QString english = document();
    m_languages->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(document(), english);
    QCOMPARE(m_calls->load(kFirstLesson), QString());
    const QString japanese = document();
    QVERIFY(japanese != english);
    QCOMPARE(japanese.count(QStringLiteral("\"id\":")), english.count(QStringLiteral("\"id\":")));
}

void tst_AuthoringCalls::keepsTheBaseNameOfALesson_data()
{
    QTest::addColumn<QString>("filename");
    QTest::newRow("resource") << kFirstLesson;
    QTest::newRow("bare") << QStringLiteral("TutorialStep1");
    QTest::newRow("directories only") << QStringLiteral("/some/where/TutorialStep1");
    QTest::newRow("ending only") << QStringLiteral("TutorialStep1.js");
}

void tst_AuthoringCalls::keepsTheBaseNameOfALesson()
{
    QFETCH(QString, filename);
    QCOMPARE(m_calls->load(filename), QString());
    QCOMPARE(m_calls->tutorialName(), QStringLiteral("TutorialStep1"));
    QCOMPARE(m_languages->texts().context(), QStringLiteral("TutorialStep1"));
}

void tst_AuthoringCalls::takesTheTextsByTheBaseName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("hint");
    QTranslator english;
    QVERIFY(english.load(QStringLiteral(":/translations/en_US.qm")));
    const QString text = english.translate("TutorialStep1", "#2");
    QVERIFY(text.size() > 2);
    QTest::newRow("with ending") << QStringLiteral("TutorialStep1.js") << text;
    QTest::newRow("without ending") << QStringLiteral("TutorialStep1") << text;
    QTest::newRow("one ending is dropped") << QStringLiteral("TutorialStep1.js.js") << QStringLiteral("#2");
}

void tst_AuthoringCalls::takesTheTextsByTheBaseName()
{
    QFETCH(QString, name);
    QFETCH(QString, hint);
    QCOMPARE(m_calls->load(file(name, R"([{"id":1,"translationId":2,"hint":qsTr("#2")}])")), QString());
    QVERIFY2(document().contains(QStringLiteral("\n\"hint\":%1,\n").arg(JsonWrapper::getJsonString(hint))),
             qPrintable(document()));
}

void tst_AuthoringCalls::announcesALessonNameOnce()
{
    const QSignalSpy spy(m_calls.get(), &AuthoringCalls::tutorialNameChanged);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(m_calls->load(kFirstLesson), QString());
    }
    QCOMPARE(spy.size(), 1);
}

void tst_AuthoringCalls::announcesALessonNameBeforeTheLessonIsThere()
{
    QString name;
    QString handedOver;
    connect(m_calls.get(), &AuthoringCalls::tutorialNameChanged, m_calls.get(), [&] {
        name = m_calls->tutorialName();
        handedOver = document();
    });
    QCOMPARE(m_calls->load(kFirstLesson), QString());
    QCOMPARE(name, QStringLiteral("TutorialStep1"));
    QCOMPARE(handedOver, kNothing);
}

void tst_AuthoringCalls::givesOneErrorALine()
{
    const QString own = file(QStringLiteral("own.js"), R"(var scenario = [{"name":"a"},{"id":1},2];)");
    QCOMPARE(m_calls->load(own), QStringLiteral("Item 1 is left out: it is no object with an \"id\"\n"
                                                "Item 3 is left out: it is no object with an \"id\""));
    QCOMPARE(m_calls->tutorialName(), QStringLiteral("own"));
}

void tst_AuthoringCalls::takesAnOddNameOfALesson_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("empty") << QString() << QString() << false;
    QTest::newRow("slash") << QStringLiteral("/") << QString() << false;
    QTest::newRow("up") << QStringLiteral("../") << QString() << false;
    QTest::newRow("ending") << QStringLiteral(".js") << QStringLiteral(".js") << false;
    QTest::newRow("with its ending") << QStringLiteral("TutorialStep1.js")
                                     << QStringLiteral("TutorialStep1.js") << false;
    QTest::newRow("out of the program")
        << QStringLiteral("../../../etc/passwd") << QStringLiteral("passwd") << false;
    QTest::newRow("up and down") << QStringLiteral("../Tutorial/TutorialStep1")
                                 << QStringLiteral("TutorialStep1") << true;
    QTest::newRow("from the root") << QStringLiteral("/TutorialStep1") << QStringLiteral("TutorialStep1")
                                   << true;
    QTest::newRow("placeholder") << QStringLiteral("%1") << QStringLiteral("%1") << false;
}

void tst_AuthoringCalls::takesAnOddNameOfALesson()
{
    QFETCH(QString, asked);
    QFETCH(QString, name);
    QFETCH(bool, isThere);
    LogCapture log;
    QCOMPARE(m_calls->loadLesson(asked), QString());
    QCOMPARE(m_calls->tutorialName(), name);
    const QString path = QStringLiteral("qml/Tutorial/") + asked + QStringLiteral(".js");
    const QString start = kSource + QStringLiteral("getExistsFilename ");
    QCOMPARE(log.debugs().mid(0, 2),
             (QStringList{start + QStringLiteral("1402 \"") + path + QLatin1Char('"'),
                          start + QStringLiteral("1405 \":/") + path + QLatin1Char('"')}));
    QCOMPARE(log.warnings().filter(QStringLiteral("Failed to open")).size(), isThere ? 0 : 1);
    // What is not there leaves the document as it stands, which is empty here.
    QCOMPARE(document() == kNothing, !isThere);
}

void tst_AuthoringCalls::unloads()
{
    QCOMPARE(m_calls->load(kFirstLesson), QString());
    QCOMPARE(m_history.cleared, 0);
    const QSignalSpy spy(m_calls.get(), &AuthoringCalls::tutorialNameChanged);
    m_calls->unload();
    m_calls->unload();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(m_calls->tutorialName(), QString());
    QCOMPARE(document(), kNothing);
    QCOMPARE(m_history.cleared, 2);
}

void tst_AuthoringCalls::listsTheLessonsInTheLanguageOfTheMoment()
{
    const QString english = m_calls->lessonList();
    QCOMPARE(JsonWrapper(english).length(), 19);
    QVERIFY(!english.contains(QStringLiteral("qsTr")));
    m_languages->greet(QStringLiteral("zh_CN"));
    const QString chinese = m_calls->lessonList();
    QCOMPARE(JsonWrapper(chinese).length(), 19);
    QVERIFY(chinese != english);
}

void tst_AuthoringCalls::savesNothingWithoutAFile()
{
    QCOMPARE(m_calls->save(), QStringLiteral("Tutorial not loaded yet."));
    QCOMPARE(m_history.saved, 0);
}

void tst_AuthoringCalls::savesWhatItLoaded()
{
    const QString own =
        file(QStringLiteral("own.js"), R"([{"id":1,"name":"a","translationId":2,"hint":qsTr("#2")}])");
    QCOMPARE(m_calls->load(own), QString());
    QCOMPARE(m_calls->save(), QString());
    QVERIFY(contentOf(own).startsWith("\xEF\xBB\xBFvar scenario = [\n    {\n\"id\":1,\n\"name\":\"a\",\n"));
    QVERIFY(contentOf(own).contains("\"hint\":qsTr(\"#2\")"));
    QCOMPARE(m_history.saved, 1);
}

void tst_AuthoringCalls::savesTranslationsOfBothLocalesFirst()
{
    m_languages->setLocale2(QStringLiteral("zh_CN"));
    LogCapture log;
    // There is no scenario to save, which shows behind the translations.
    QCOMPARE(m_calls->saveWithTranslations(), QStringLiteral("Tutorial not loaded yet."));
    QCOMPARE(log.debugs().constFirst(), kSource + QStringLiteral("feedbackTranslation 1779"));
    const QByteArray empty = QDomDocument().toByteArray(4);
    QCOMPARE(contentOf(path(QStringLiteral("translations/en_US.ts"))), empty);
    QCOMPARE(contentOf(path(QStringLiteral("translations/zh_CN.ts"))), empty);
    QVERIFY(m_calls->saveTranslations());
}

void tst_AuthoringCalls::savesNoScenarioWithoutItsTranslations_data()
{
    QTest::addColumn<QString>("blocked");
    QTest::addColumn<int>("number");
    QTest::newRow("first") << QStringLiteral("translations/en_US.ts") << 1857;
    QTest::newRow("second") << QStringLiteral("translations/ja_JP.ts") << 1863;
}

void tst_AuthoringCalls::savesNoScenarioWithoutItsTranslations()
{
    QFETCH(QString, blocked);
    QFETCH(int, number);
    const QByteArray text = R"([{"id":1}])";
    const QString own = file(QStringLiteral("own.js"), text);
    QCOMPARE(m_calls->load(own), QString());
    QVERIFY(QDir().mkdir(path(blocked)));
    LogCapture log;
    QCOMPARE(m_calls->saveWithTranslations(), QStringLiteral("Failed to save translation."));
    QCOMPARE(log.warnings().constLast(),
             kSource +
                 QStringLiteral("saveTranslation %1 Failed to save \"%2\"").arg(number).arg(path(blocked)));
    QCOMPARE(contentOf(own), text);
    QVERIFY(!m_calls->saveTranslations());
}

void tst_AuthoringCalls::savesNoTranslationsIntoTheProgram()
{
    AuthoringCalls calls(*m_languages, {});
    LogCapture log;
    QCOMPARE(calls.saveWithTranslations(), QStringLiteral("Failed to save translation."));
    const QString path = QStringLiteral("translations/en_US.ts");
    QCOMPARE(log.debugs().mid(0, 3),
             (QStringList{kSource + QStringLiteral("feedbackTranslation 1779"),
                          kSource + QStringLiteral("getExistsFilename 1402 \"%1\"").arg(path),
                          kSource + QStringLiteral("getExistsFilename 1405 \":/%1\"").arg(path)}));
    QCOMPARE(log.warnings().constLast(),
             kSource + QStringLiteral("saveTranslation 1857 Failed to save \":/%1\"").arg(path));
}

void tst_AuthoringCalls::pastesWhatWasCopied()
{
    const QString own =
        file(QStringLiteral("own.js"), R"([{"id":4,"name":"a","translationId":2},{"id":1,"name":"b"}])");
    QCOMPARE(m_calls->load(own), QString());
    m_calls->copyItems({1, 4});
    QCOMPARE(m_calls->mimeType(), QStringLiteral("TutorialItemData/ItemList"));
    QCOMPARE(m_calls->pasteItems(), (QList<int>{2, 3}));
    QVERIFY2(document().contains(QStringLiteral("\"name\":\"b(1)\"")), qPrintable(document()));
    QCOMPARE(m_calls->pasteItems(), (QList<int>{5, 6}));
    // It outlives the document.
    m_calls->unload();
    QCOMPARE(m_calls->pasteItems(), (QList<int>{1, 2}));
}

void tst_AuthoringCalls::anUnknownIdLeavesTheClipboard()
{
    QCOMPARE(m_calls->load(file(QStringLiteral("own.js"), R"([{"id":4,"name":"a"}])")), QString());
    m_calls->copyItems({4});
    LogCapture log;
    m_calls->copyItems({4, 5});
    QCOMPARE(log.warnings(), QStringList{kSource + QStringLiteral("copyTutorialItemList 1573 "
                                                                  "treeItem not found 5")});
    QCOMPARE(m_calls->pasteItems().size(), 1);
}

void tst_AuthoringCalls::noIdsAreAListToo()
{
    LogCapture log;
    m_calls->copyItems({});
    QCOMPARE(log.lines(), QStringList{kSource + QStringLiteral("setMimeData 1673 "
                                                               "\"TutorialItemData/ItemList\" 4")});
    QCOMPARE(m_calls->mimeType(), QStringLiteral("TutorialItemData/ItemList"));
    QCOMPARE(m_calls->pasteItems(), QList<int>());
}

void tst_AuthoringCalls::pastesNothingFromAnEmptyClipboard()
{
    QCOMPARE(m_calls->pasteItems(), QList<int>());
    QCOMPARE(m_calls->load(kFirstLesson), QString());
    m_calls->copyItems({1});
    m_calls->emptyClipboard();
    const QString before = document();
    QCOMPARE(m_calls->pasteItems(), QList<int>());
    QCOMPARE(document(), before);
}

void tst_AuthoringCalls::announcesAChangeOfTheClipboardOnly()
{
    const QSignalSpy spy(m_calls.get(), &AuthoringCalls::mimeTypeChanged);
    QCOMPARE(m_calls->mimeType(), QString());
    m_calls->emptyClipboard();
    m_calls->emptyClipboard();
    QCOMPARE(m_calls->mimeType(), QStringLiteral("Empty"));
    QCOMPARE(spy.size(), 1);
    m_calls->copyItems({});
    m_calls->copyItems({});
    QCOMPARE(spy.size(), 2);
}

void tst_AuthoringCalls::announcesAChangeOfModifiedOnly()
{
    const QSignalSpy spy(m_calls.get(), &AuthoringCalls::modifiedChanged);
    m_calls->setModified(false);
    m_calls->setModified(true);
    m_calls->setModified(true);
    QCOMPARE(spy.size(), 1);
    QVERIFY(m_calls->modified());
}

void tst_AuthoringCalls::remembersTheUndoNote()
{
    QCOMPARE(m_calls->undoNote(), QString());
    m_calls->setUndoNote(QStringLiteral("note"));
    QCOMPARE(m_calls->undoNote(), QStringLiteral("note"));
    m_calls->setUndoNote(QString());
    QCOMPARE(m_calls->undoNote(), QString());
}

int main(int argc, char **argv)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tutorial"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELMORAN"));
    tst_AuthoringCalls test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_AuthoringCalls.moc"
