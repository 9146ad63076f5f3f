#include "AuthoringTest.h"
#include "LogCapture.h"

#include <QDomDocument>
#include <QSignalSpy>

/// The document and its translations, saved by name as an author's tool does it, to files on disk.
class tst_AuthoringSave : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void savingBeforeALoadSaysSo();
    void aFailedSaveStaysModified_data();
    void aFailedSaveStaysModified();
    void aSaveGoesThroughWhenTheObstacleIsGone();
    void theLessonsAreSavedAsTheyAreCommitted();

    void translationsAndLessonAreSaved();
    void theLessonIsNotSavedWithoutTheFirstTranslation();
    void theFirstTranslationStaysWithoutTheSecond();
    void theMessageComesInTheLanguageOfTheAuthor_data();
    void theMessageComesInTheLanguageOfTheAuthor();
    void aLessonThatFailsBehindItsTranslationsSaysSo();
    void savedTranslationsFollowTheLocales();

private:
    [[nodiscard]] bool modifyAndBlock(const QString &blockedTranslation) const;
};

void tst_AuthoringSave::savingBeforeALoadSaysSo()
{
    QCOMPARE(m_tool->text("save"), QStringLiteral("Tutorial not loaded yet."));
    m_tool->manager()->setProperty("locale", QStringLiteral("ja_JP"));
    const QString translated = m_tool->text("save");
    QVERIFY(!translated.isEmpty());
    QVERIFY(translated != QStringLiteral("Tutorial not loaded yet."));
    QCOMPARE(translated, QCoreApplication::translate("TutorialEditor::Manager", "Tutorial not loaded yet."));
}

void tst_AuthoringSave::aFailedSaveStaysModified_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("the directory is gone") << QStringLiteral("missing");
    QTest::newRow("a directory stands in the way") << QStringLiteral("directory");
    QTest::newRow("nothing can be written there") << QStringLiteral("read-only");
    QTest::newRow("the disk is full") << QStringLiteral("full");
}

void tst_AuthoringSave::aFailedSaveStaysModified()
{
    QFETCH(QString, obstacle);
    if (obstacle == QLatin1String("read-only")) {
        // The lessons inside the program: no right of the person who runs this opens them for writing.
        QCOMPARE(m_tool->load(QStringLiteral(":/qml/Tutorial/TutorialStep1.js")), QString());
    } else {
        QVERIFY(QDir(m_tool->path(QString())).mkdir(QStringLiteral("lessons")));
        const QString file = m_tool->file(QStringLiteral("lessons/Lesson.js"), lessonText());
        QCOMPARE(m_tool->load(file), QString());
        QVERIFY(QFile::remove(file));
        if (obstacle == QLatin1String("missing")) {
            QVERIFY(QDir().rmdir(m_tool->path(QStringLiteral("lessons"))));
        } else if (obstacle == QLatin1String("directory")) {
            QVERIFY(QDir().mkdir(file));
        } else {
            QVERIFY(QFile::exists(QStringLiteral("/dev/full")));
            QVERIFY(QFile::link(QStringLiteral("/dev/full"), file));
        }
    }
    const int id = TutorialEditor::Manager::instance()->tree()->items.constFirst()->id;
    m_tool->change(QStringLiteral("move"), id, "y", 12345);
    const QString before = m_tool->document();
    QVERIFY(m_tool->modified());
    QSignalSpy changed(m_tool->manager(), &TutorialManager::modifiedChanged);
    LogCapture log;
    QCOMPARE(m_tool->text("save"), QStringLiteral("Failed to save."));
    QVERIFY(m_tool->modified());
    QCOMPARE(changed.size(), 0);
    QCOMPARE(m_tool->document(), before);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY2(log.warnings().constFirst().contains(QStringLiteral(" DataSupport::writeFile ")),
             qPrintable(log.warnings().constFirst()));
    QVERIFY(m_tool->undo());
    QVERIFY(!m_tool->modified());
}

void tst_AuthoringSave::aSaveGoesThroughWhenTheObstacleIsGone()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("move"), 1, "y", 12345);
    QVERIFY(QFile::remove(lesson()));
    QVERIFY(QDir().mkdir(lesson()));
    QCOMPARE(m_tool->text("save"), QStringLiteral("Failed to save."));
    QVERIFY(QDir().rmdir(lesson()));
    QCOMPARE(m_tool->text("save"), QString());
    QVERIFY(!m_tool->modified());
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->item(1)->y, 12345);
}

void tst_AuthoringSave::theLessonsAreSavedAsTheyAreCommitted()
{
    const QDir library(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial"));
    const QStringList names = library.entryList({QStringLiteral("TutorialStep*.js")});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        const QByteArray committed = m_tool->contentOf(library.filePath(name));
        const QString file = m_tool->file(name, committed);
        QCOMPARE(m_tool->load(file), QString());
        QCOMPARE(m_tool->manager()->property("tutorialName").toString(), QFileInfo(name).baseName());
        const QString document = m_tool->document();
        QCOMPARE(m_tool->text("save"), QString());
        // A lesson may have carriage returns at its line ends. They do not survive, and all else does.
        QVERIFY2(m_tool->contentOf(file) == QByteArray(committed).replace("\r\n", "\n"), qPrintable(name));
        QCOMPARE(m_tool->load(file), QString());
        QCOMPARE(m_tool->document(), document);
    }
}

bool tst_AuthoringSave::modifyAndBlock(const QString &blockedTranslation) const
{
    if (!m_tool->load(lesson()).isEmpty()) {
        return false;
    }
    m_tool->change(QStringLiteral("move"), 1, "x", 77);
    return blockedTranslation.isEmpty() || QDir().mkdir(m_tool->path(blockedTranslation));
}

void tst_AuthoringSave::translationsAndLessonAreSaved()
{
    QVERIFY(modifyAndBlock(QString()));
    LogCapture log;
    QCOMPARE(m_tool->text("feedbackTranslation"), QString());
    QVERIFY(log.contains(sourceLabel() + QStringLiteral("TutorialManager::feedbackTranslation 1779")));
    QVERIFY(log.warnings().isEmpty());
    const QByteArray empty = QDomDocument().toByteArray(4);
    QCOMPARE(m_tool->contentOf(m_tool->path(QStringLiteral("translations/en_US.ts"))), empty);
    QCOMPARE(m_tool->contentOf(m_tool->path(QStringLiteral("translations/ja_JP.ts"))), empty);
    QVERIFY(m_tool->contentOf(lesson()).contains("\"x\":77"));
    QVERIFY(!m_tool->modified());
}

void tst_AuthoringSave::theLessonIsNotSavedWithoutTheFirstTranslation()
{
    const QString first = QStringLiteral("translations/en_US.ts");
    QVERIFY(modifyAndBlock(first));
    LogCapture log;
    QCOMPARE(m_tool->text("feedbackTranslation"), QStringLiteral("Failed to save translation."));
    QCOMPARE(log.warnings().constLast(),
             sourceLabel() + QStringLiteral("TutorialManager::saveTranslation 1857 Failed to save \"%1\"")
                                 .arg(m_tool->path(first)));
    QVERIFY(!QFileInfo::exists(m_tool->path(QStringLiteral("translations/ja_JP.ts"))));
    QCOMPARE(m_tool->contentOf(lesson()), lessonText());
    QVERIFY(m_tool->modified());
}

void tst_AuthoringSave::theFirstTranslationStaysWithoutTheSecond()
{
    const QString second = QStringLiteral("translations/ja_JP.ts");
    QVERIFY(modifyAndBlock(second));
    LogCapture log;
    QCOMPARE(m_tool->text("feedbackTranslation"), QStringLiteral("Failed to save translation."));
    QCOMPARE(log.warnings().constLast(),
             sourceLabel() + QStringLiteral("TutorialManager::saveTranslation 1863 Failed to save \"%1\"")
                                 .arg(m_tool->path(second)));
    QVERIFY(QFileInfo(m_tool->path(QStringLiteral("translations/en_US.ts"))).isFile());
    QCOMPARE(m_tool->contentOf(lesson()), lessonText());
    QVERIFY(m_tool->modified());
}

void tst_AuthoringSave::theMessageComesInTheLanguageOfTheAuthor_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("en_US") << QStringLiteral("Failed to save translation.");
    QTest::newRow("ja_JP") << QStringLiteral("翻訳を保存できませんでした。");
    QTest::newRow("zh_CN") << QStringLiteral("无法保存翻译。");
}

void tst_AuthoringSave::theMessageComesInTheLanguageOfTheAuthor()
{
    QFETCH(QString, message);
    const QString locale = QString::fromLatin1(QTest::currentDataTag());
    m_tool->manager()->setProperty("locale", locale);
    QVERIFY(modifyAndBlock(QStringLiteral("translations/%1.ts").arg(locale)));
    QCOMPARE(m_tool->text("feedbackTranslation"), message);
}

void tst_AuthoringSave::aLessonThatFailsBehindItsTranslationsSaysSo()
{
    QVERIFY(modifyAndBlock(QString()));
    QVERIFY(QFile::remove(lesson()));
    QVERIFY(QDir().mkdir(lesson()));
    QCOMPARE(m_tool->text("feedbackTranslation"), QStringLiteral("Failed to save."));
    QVERIFY(QFileInfo(m_tool->path(QStringLiteral("translations/en_US.ts"))).isFile());
    QVERIFY(QFileInfo(m_tool->path(QStringLiteral("translations/ja_JP.ts"))).isFile());
    QVERIFY(m_tool->modified());
}

void tst_AuthoringSave::savedTranslationsFollowTheLocales()
{
    m_tool->manager()->setProperty("locale", QStringLiteral("zh_CN"));
    m_tool->manager()->setProperty("locale2", QStringLiteral("ja_JP"));
    QVERIFY(modifyAndBlock(QString()));
    QCOMPARE(m_tool->text("feedbackTranslation"), QString());
    QCOMPARE(QDir(m_tool->path(QStringLiteral("translations"))).entryList(QDir::Files),
             (QStringList{QStringLiteral("ja_JP.ts"), QStringLiteral("zh_CN.ts")}));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_AuthoringSave>(argc, argv);
}

#include "tst_AuthoringSave.moc"
