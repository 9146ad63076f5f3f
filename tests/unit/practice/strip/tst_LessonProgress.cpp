#include "Unprivileged.h"
#include "strip/LessonProgress.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kLesson = QStringLiteral("TutorialStep1");

QJsonObject bookmarkAt(int step)
{
    return {{QStringLiteral("lesson"), kLesson}, {QStringLiteral("step"), step}};
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_LessonProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aPlaceIsKeptForTheNextRun();
    void aFinishedLessonIsDoneAndBeginsAnew();
    void aForgottenPlaceLeavesTheLessonDone();
    void lessonsAreKeptApart();
    void twoEditorsKeepTheLessonsOfBoth();
    void aNameCannotLeaveTheFolder();
    void withoutAFolderItIsKeptWhileThisLives();
    void aDamagedFileIsKeptAside_data();
    void aDamagedFileIsKeptAside();
    void aDamagedBookmarkIsKeptAside();
    void numbersThatCannotBeAreMended();
    void aFolderThatCannotBeWrittenIsToldOnce();
    void aFileThatCannotBeReadIsTold();

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder->filePath(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_LessonProgress::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_LessonProgress::aPlaceIsKeptForTheNextRun()
{
    const QString folder = m_folder->filePath(QStringLiteral("not/there/yet"));
    LessonProgress(folder).reach(kLesson, 12, 86, bookmarkAt(12));
    LessonProgress later(folder);
    QCOMPARE(later.record(kLesson).step, 12);
    QCOMPARE(later.record(kLesson).steps, 86);
    QVERIFY(!later.record(kLesson).isDone);
    QCOMPARE(later.bookmark(kLesson), bookmarkAt(12));
    QCOMPARE(later.takeProblems(), QStringList());
}

void tst_LessonProgress::aFinishedLessonIsDoneAndBeginsAnew()
{
    {
        LessonProgress progress(m_folder->path());
        progress.reach(kLesson, 86, 86, bookmarkAt(86));
        progress.finish(kLesson);
    }
    LessonProgress later(m_folder->path());
    QVERIFY(later.record(kLesson).isDone);
    QCOMPARE(later.record(kLesson).step, 0);
    QCOMPARE(later.bookmark(kLesson), QJsonObject());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{QStringLiteral("progress.json")});
}

void tst_LessonProgress::aForgottenPlaceLeavesTheLessonDone()
{
    LessonProgress progress(m_folder->path());
    progress.finish(kLesson);
    progress.reach(kLesson, 4, 86, bookmarkAt(4));
    QVERIFY(progress.record(kLesson).isDone);
    progress.forgetPlace(kLesson);
    QVERIFY(progress.record(kLesson).isDone);
    QCOMPARE(progress.bookmark(kLesson), QJsonObject());
}

void tst_LessonProgress::lessonsAreKeptApart()
{
    const QString other = QStringLiteral("TutorialStep2");
    {
        LessonProgress progress(m_folder->path());
        progress.reach(kLesson, 3, 86, bookmarkAt(3));
        progress.reach(other, 5, 61, bookmarkAt(5));
        progress.finish(kLesson);
    }
    LessonProgress later(m_folder->path());
    QCOMPARE(later.record(other).step, 5);
    QCOMPARE(later.bookmark(other), bookmarkAt(5));
    QVERIFY(!later.record(other).isDone);
}

void tst_LessonProgress::twoEditorsKeepTheLessonsOfBoth()
{
    const QString other = QStringLiteral("TutorialStep2");
    LessonProgress first(m_folder->path());
    LessonProgress second(m_folder->path());
    first.reach(kLesson, 12, 86, bookmarkAt(12));
    second.finish(other);
    first.reach(kLesson, 13, 86, bookmarkAt(13));
    const LessonProgress later(m_folder->path());
    QCOMPARE(later.record(kLesson).step, 13);
    QVERIFY(later.record(other).isDone);
}

void tst_LessonProgress::aNameCannotLeaveTheFolder()
{
    const QString inside = m_folder->filePath(QStringLiteral("inside"));
    const QString name = QStringLiteral("../../up/レッスン");
    LessonProgress(inside).reach(name, 2, 9, bookmarkAt(2));
    QCOMPARE(LessonProgress(inside).bookmark(name), bookmarkAt(2));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("inside")});
    QCOMPARE(QDir(inside).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

void tst_LessonProgress::withoutAFolderItIsKeptWhileThisLives()
{
    LessonProgress progress{QString()};
    progress.reach(kLesson, 12, 86, bookmarkAt(12));
    QCOMPARE(progress.bookmark(kLesson), bookmarkAt(12));
    progress.finish(kLesson);
    QVERIFY(progress.record(kLesson).isDone);
    QCOMPARE(progress.takeProblems(), QStringList());
    QVERIFY(!LessonProgress(QString()).record(kLesson).isDone);
}

void tst_LessonProgress::aDamagedFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no JSON") << QByteArray("{\"format\": 1, \"lessons\": {\"Tuto");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a list") << QByteArray("[1, 2]");
    QTest::newRow("of another format") << QByteArray("{\"format\": 2, \"lessons\": {}}");
    QTest::newRow("without lessons") << QByteArray("{\"format\": 1, \"lessons\": 7}");
}

void tst_LessonProgress::aDamagedFileIsKeptAside()
{
    QFETCH(QByteArray, bytes);
    put(path("progress.json"), bytes);
    put(path("progress.json.damaged1"), "of another time");
    LessonProgress progress(m_folder->path());
    const QStringList problems = progress.takeProblems();
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.constFirst().contains(path("progress.json.damaged2")),
             qPrintable(problems.constFirst()));
    QCOMPARE(progress.takeProblems(), QStringList());
    QCOMPARE(progress.record(kLesson).step, 0);
    progress.reach(kLesson, 2, 86, bookmarkAt(2));
    QCOMPARE(bytesOf(path("progress.json.damaged1")), QByteArray("of another time"));
    QCOMPARE(bytesOf(path("progress.json.damaged2")), bytes);
    QCOMPARE(LessonProgress(m_folder->path()).record(kLesson).step, 2);
}

void tst_LessonProgress::aDamagedBookmarkIsKeptAside()
{
    LessonProgress(m_folder->path()).reach(kLesson, 12, 86, bookmarkAt(12));
    put(path("bookmark-TutorialStep1.json"), "{");
    LessonProgress progress(m_folder->path());
    QCOMPARE(progress.takeProblems(), QStringList());
    QCOMPARE(progress.bookmark(kLesson), QJsonObject());
    QCOMPARE(progress.takeProblems().size(), 1);
    QCOMPARE(bytesOf(path("bookmark-TutorialStep1.json.damaged1")), QByteArray("{"));
}

void tst_LessonProgress::numbersThatCannotBeAreMended()
{
    put(path("progress.json"),
        "{\"format\": 1, \"lessons\": {\"TutorialStep1\": {\"step\": 90, \"steps\": 86, \"done\": "
        "\"yes\"}, \"TutorialStep2\": {\"step\": -4, \"steps\": -1}, \"TutorialStep3\": []}}");
    const LessonProgress progress(m_folder->path());
    QCOMPARE(progress.record(kLesson).step, 86);
    QVERIFY(!progress.record(kLesson).isDone);
    QCOMPARE(progress.record(QStringLiteral("TutorialStep2")).step, 0);
    QCOMPARE(progress.record(QStringLiteral("TutorialStep3")).step, 0);
}

void tst_LessonProgress::aFolderThatCannotBeWrittenIsToldOnce()
{
    const QString folder = m_folder->filePath(QStringLiteral("closed"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::setPermissions(m_folder->path(),
                                  QFile::ReadOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther));
    QVERIFY(QFile::setPermissions(folder,
                                  QFile::ReadOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther));
    LessonProgress progress(folder);
    {
        const Unprivileged nobody;
        progress.reach(kLesson, 2, 86, bookmarkAt(2));
        progress.reach(kLesson, 3, 86, bookmarkAt(3));
    }
    const QStringList problems = progress.takeProblems();
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.constFirst().contains(folder), qPrintable(problems.constFirst()));
    // The lesson goes on with what is remembered.
    QCOMPARE(progress.bookmark(kLesson), bookmarkAt(3));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    progress.reach(kLesson, 4, 86, bookmarkAt(4));
    QCOMPARE(progress.takeProblems(), QStringList());
    QCOMPARE(LessonProgress(folder).record(kLesson).step, 4);
}

void tst_LessonProgress::aFileThatCannotBeReadIsTold()
{
    LessonProgress(m_folder->path()).reach(kLesson, 12, 86, bookmarkAt(12));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                        QFile::ExeGroup | QFile::ExeOther));
    QVERIFY(QFile::setPermissions(path("progress.json"), QFile::WriteOwner));
    const Unprivileged nobody;
    LessonProgress progress(m_folder->path());
    const QStringList problems = progress.takeProblems();
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.constFirst().contains(path("progress.json")), qPrintable(problems.constFirst()));
}

QTEST_GUILESS_MAIN(tst_LessonProgress)
#include "tst_LessonProgress.moc"
