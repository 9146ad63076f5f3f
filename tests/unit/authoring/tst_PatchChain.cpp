#include "Scratch.h"
#include "Tutorial/preset/PresetData.h"
#include "Unprivileged.h"
#include "make-patch/PatchChain.h"
#include "tool/StringPatch.h"

#include <QHash>
#include <QObject>
#include <QScopedPointer>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Texts = QHash<QString, QByteArray>;

/// Makes a file whose name need not be text, which Qt's classes cannot.
void putBytes(const QByteArray &path)
{
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0 || write(file, "b", 1) != 1 || close(file) != 0)
        qFatal("cannot write a file whose name is no text");
}

} // namespace

class tst_PatchChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void replayGivesEachStepsFiles();
    void stepsAreOrderedByNumber();
    void unchangedFileGetsAnIdentityPatch();
    void newFileHasAnEmptyBase();
    void vanishedFileIsRefused();
    void vanishedFileMayBeAllowed();
    void fileThatComesBackHasAnEmptyBase();
    void allowedFileThatStaysIsRefused();
    void otherFilesBesideTheStepsAreIgnored();
    void badStepsAreRefused_data();
    void badStepsAreRefused();
    void misspeltStepsAreRefused_data();
    void misspeltStepsAreRefused();
    void zeroBeforeTheNumberIsWarnedOf();
    void fileThatIsNoJsonIsRefused_data();
    void fileThatIsNoJsonIsRefused();
    void everyKindOfJsonIsTaken();
    void stepWithMoreThanAnAnswerHoldsIsRefused();
    void chainIsReplacedWhole();
    void missingParentIsMade();
    void foreignFilesAreNotReplaced();
    void linkedDirectoryAmongThePatchesIsNotReplaced();
    void patchesThatMayNotBeReadAreNotReplaced();
    void nameThatIsNoTextAmongThePatchesIsNotReplaced();
    void dataFileWhoseNameIsNoTextIsRefused();
    void sourcesAreNeverReplaced();
    void fileInTheWayIsRefused();
    void nestedDirectoriesAreRefused();
    void linkIntoTheSourcesIsRefused();
    void stepsThatMayNotBeReadAreRefused();
    void directoryThatCannotBeWrittenIsRefused();
    void failureLeavesTheOldChain();
    void nothingIsLeftBeside();

private:
    /// Empty when the chain was made, otherwise the reason.
    [[nodiscard]] QString make(const QStringList &mayVanish = {}) const
    {
        return makeIn(m_scratch->path("patches"), mayVanish);
    }
    [[nodiscard]] QString makeIn(const QString &patchDirectory, const QStringList &mayVanish = {}) const
    {
        PatchChain chain(m_scratch->path("steps"), patchDirectory, mayVanish);
        QString error;
        if (chain.make(error) != error.isEmpty())
            qFatal("a result and a reason that do not fit: %s", qPrintable(error));
        return error;
    }
    /// Replays the chain over @p steps as the companion does, and gives the texts of the last.
    [[nodiscard]] Texts replay(const QList<int> &steps) const
    {
        Texts texts;
        for (const int step : steps) {
            const QByteArray data = "patches/step" + QByteArray::number(step) + "/data";
            Texts next;
            const QStringList names = m_scratch->entries(data.constData());
            for (const QString &name : names) {
                const QString file = name.chopped(int(qstrlen("-patch")));
                const QByteArray patch = m_scratch->get((data + '/' + name.toUtf8()).constData());
                std::string result;
                if (!StringPatch::ApplyStringPatch(texts.value(file).toStdString(), patch, result))
                    qFatal("a bad patch: %s", qPrintable(name));
                next.insert(file, QByteArray::fromStdString(result));
            }
            texts = next;
        }
        return texts;
    }

    QScopedPointer<Scratch> m_scratch;
};

void tst_PatchChain::init()
{
    m_scratch.reset(new Scratch);
}

void tst_PatchChain::replayGivesEachStepsFiles()
{
    m_scratch->put("steps/step2/data/Actors.json", "[null,{\"id\":1}]");
    m_scratch->put("steps/step2/data/System.json", "{}");
    m_scratch->put("steps/step3/data/Actors.json", "[null,{\"id\":1},{\"id\":2}]");
    m_scratch->put("steps/step3/data/System.json", "{}");
    m_scratch->put("steps/step3/data/Map001.json", "[]");
    PatchChain chain(m_scratch->path("steps"), m_scratch->path("patches"), {});
    QString error;
    QVERIFY2(chain.make(error), qPrintable(error));
    QCOMPARE(chain.stepCount(), 2);
    QCOMPARE(chain.patchCount(), 5);
    qint64 bytes = 0;
    for (const char *patch : {"step2/data/Actors", "step2/data/System", "step3/data/Actors",
                              "step3/data/System", "step3/data/Map001"})
        bytes +=
            m_scratch->get(QByteArray("patches/").append(patch).append(".json-patch").constData()).size();
    QCOMPARE(chain.patchBytes(), bytes);
    QCOMPARE(replay({2}), Texts({{QStringLiteral("Actors.json"), "[null,{\"id\":1}]"},
                                 {QStringLiteral("System.json"), "{}"}}));
    QCOMPARE(replay({2, 3}), Texts({{QStringLiteral("Actors.json"), "[null,{\"id\":1},{\"id\":2}]"},
                                    {QStringLiteral("System.json"), "{}"},
                                    {QStringLiteral("Map001.json"), "[]"}}));
}

void tst_PatchChain::stepsAreOrderedByNumber()
{
    // By their names, step10 would be the base of step9.
    const QByteArray common(",\"what all of the steps have in common\"]");
    for (const int step : {2, 9, 10, 19})
        m_scratch->put(("steps/step" + QByteArray::number(step) + "/data/A.json").constData(),
                       '[' + QByteArray::number(step) + common);
    QCOMPARE(make(), QString());
    for (const QList<int> &steps : {QList<int>{2}, QList<int>{2, 9}, QList<int>{2, 9, 10}})
        QCOMPARE(replay(steps).value(QStringLiteral("A.json")),
                 '[' + QByteArray::number(steps.constLast()) + common);
}

void tst_PatchChain::unchangedFileGetsAnIdentityPatch()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step2/data/A.json"})
        m_scratch->put(file, "[23456789]");
    QCOMPARE(make(), QString());
    QCOMPARE(m_scratch->get("patches/step2/data/A.json-patch"), QByteArray("\x0a\0\0\0\xff\0\0\x9", 8));
}

void tst_PatchChain::newFileHasAnEmptyBase()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step2/data/A.json", "steps/step2/data/B.json"})
        m_scratch->put(file, "[23456789]");
    QCOMPARE(make(), QString());
    const QByteArray patch = QByteArray("\x0a\0\0\0\0\x9", 6) + "[23456789]";
    QCOMPARE(m_scratch->get("patches/step1/data/A.json-patch"), patch);
    QCOMPARE(m_scratch->get("patches/step2/data/B.json-patch"), patch);
}

void tst_PatchChain::vanishedFileIsRefused()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step1/data/B.json", "steps/step1/data/C.json",
                             "steps/step2/data/B.json"})
        m_scratch->put(file, "[]");
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("step2/data lacks")) &&
                 error.contains(QStringLiteral(": A.json, C.json.")) &&
                 error.contains(QStringLiteral("--allow-vanish")),
             qPrintable(error));
    QVERIFY(!m_scratch->has("patches"));
    QVERIFY(make({QStringLiteral("A.json")}).contains(QStringLiteral(": C.json.")));
}

void tst_PatchChain::vanishedFileMayBeAllowed()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step1/data/B.json", "steps/step2/data/B.json"})
        m_scratch->put(file, "[]");
    QCOMPARE(make({QStringLiteral("A.json")}), QString());
    QCOMPARE(replay({1, 2}), Texts({{QStringLiteral("B.json"), "[]"}}));
}

void tst_PatchChain::fileThatComesBackHasAnEmptyBase()
{
    m_scratch->put("steps/step1/data/A.json", "[23456789]");
    QVERIFY(QDir().mkpath(m_scratch->path("steps/step2/data")));
    m_scratch->put("steps/step3/data/A.json", "[23456789]");
    QCOMPARE(make({QStringLiteral("A.json")}), QString());
    QVERIFY(m_scratch->has("patches/step2/data"));
    QCOMPARE(replay({1, 2}), Texts());
    QCOMPARE(replay({1, 2, 3}), Texts({{QStringLiteral("A.json"), "[23456789]"}}));
}

void tst_PatchChain::allowedFileThatStaysIsRefused()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QCOMPARE(make({QStringLiteral("a.json")}),
             QStringLiteral("a.json was allowed to vanish, and no step leaves it out"));
    QVERIFY(!m_scratch->has("patches"));
}

void tst_PatchChain::otherFilesBesideTheStepsAreIgnored()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step1/notes.txt", "steps/README.md",
                             "steps/step2.txt", "steps/data/A.json", "steps/pictures/step3.png"})
        m_scratch->put(file, "[]");
    QCOMPARE(make(), QString());
    QCOMPARE(m_scratch->entries("patches"), QStringList{QStringLiteral("step1")});
    QCOMPARE(m_scratch->entries("patches/step1"), QStringList{QStringLiteral("data")});
}

void tst_PatchChain::badStepsAreRefused_data()
{
    QTest::addColumn<QByteArrayList>("files");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *name, const QByteArrayList &files, const char *part) {
        QTest::newRow(name) << files << QString::fromLatin1(part);
    };
    row("no such directory", {}, "steps is not a directory");
    row("no step", {"steps/README.md"}, "steps has no directory \"stepN\"");
    row("step that is a file", {"steps/step1"}, "steps/step1 is not a directory");
    row("number beyond int", {"steps/step99999999999/data/A.json"},
        "steps/step99999999999 is not a directory");
    row("two of one number", {"steps/step1/data/A.json", "steps/step01/data/A.json"}, "have the same number");
    row("step without data", {"steps/step1/A.json"}, "steps/step1/data is missing");
    row("data that is a file", {"steps/step1/data"}, "steps/step1/data is missing");
    row("file that is no JSON", {"steps/step1/data/A.json", "steps/step1/data/A.json~"},
        "A.json~ is no data file");
    row("hidden file", {"steps/step1/data/.keep"}, "steps/step1/data/.keep is no data file");
    row("directory among the data", {"steps/step1/data/B.json/A.json"},
        "steps/step1/data/B.json is no data file");
}

void tst_PatchChain::badStepsAreRefused()
{
    QFETCH(QByteArrayList, files);
    QFETCH(QString, part);
    for (const QByteArray &file : files)
        m_scratch->put(file.constData(), "[]");
    const QString error = make();
    QVERIFY2(error.contains(part), qPrintable(error));
    QVERIFY(!m_scratch->has("patches"));
}

void tst_PatchChain::misspeltStepsAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"stepp2", "Step3", "STEP3", "step 4", "step4 ", "step", "step3x", "step-5",
                             "step5.bak", "xstep2", "setp6", "7", "step\xef\xbc\x91"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void tst_PatchChain::misspeltStepsAreRefused()
{
    QFETCH(QString, name);
    const QByteArray directory = "steps/" + name.toUtf8();
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put((directory + "/data/A.json").constData(), "[]");
    QCOMPARE(make(),
             QStringLiteral("%1 looks like a step, and the name of a step is \"step\" and a number, as "
                            "in \"step2\": rename it, or move it elsewhere")
                 .arg(m_scratch->path(directory.constData())));
    QVERIFY(!m_scratch->has("patches"));
}

void tst_PatchChain::zeroBeforeTheNumberIsWarnedOf()
{
    // The program looks for the folder by the name that is asked for.
    for (const char *file :
         {"steps/step0/data/A.json", "steps/step02/data/A.json", "steps/step10/data/A.json"})
        m_scratch->put(file, "[]");
    PatchChain chain(m_scratch->path("steps"), m_scratch->path("patches"), {});
    QString error;
    QVERIFY2(chain.make(error), qPrintable(error));
    QCOMPARE(
        chain.warnings(),
        QStringList{QStringLiteral("%1 answers a request for \"step02\" and none for \"step2\": rename it "
                                   "if lessons ask for that")
                        .arg(m_scratch->path("steps/step02"))});
    QCOMPARE(m_scratch->entries("patches").size(), 3);
}

void tst_PatchChain::fileThatIsNoJsonIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("place");
    const auto row = [](const char *name, const QByteArray &text, const char *place) {
        QTest::newRow(name) << text << QString::fromLatin1(place);
    };
    row("empty", "", "line 1, column 1: this is no JSON: it is empty.");
    row("blanks", " \n", "this is no JSON: it is empty.");
    row("word", "abc", "line 1, column ");
    row("comma too many", "[\n  1,\n  2,\n]", "line 4, column ");
    row("cut short", "[\n1", "line 2, column ");
    row("more behind", "[]\n[]", "line 2, column ");
    row("two numbers", "1,2", "line 1, column ");
    row("not UTF-8", "[\n\"\xff\"]", "line 2, column ");
    row("columns are characters", "[\"\xe6\xbc\xa2\xe5\xad\x97\" x]", "line 1, column 8");
}

void tst_PatchChain::fileThatIsNoJsonIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, place);
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("steps/step1/data/B.json", text);
    const QString error = make();
    QVERIFY2(error.startsWith(m_scratch->path("steps/step1/data/B.json") + QStringLiteral(", line ")) &&
                 error.contains(place) && error.endsWith(QStringLiteral("Mend the file there")),
             qPrintable(error));
    QVERIFY(!m_scratch->has("patches"));
}

void tst_PatchChain::everyKindOfJsonIsTaken()
{
    const QList<QByteArray> texts{"[]", " {}\n", "12", "\"a\"", "null", "\xef\xbb\xbf[]"};
    for (int i = 0; i < texts.size(); ++i)
        m_scratch->put(("steps/step1/data/" + QByteArray::number(i) + ".json").constData(), texts.at(i));
    QCOMPARE(make(), QString());
}

void tst_PatchChain::stepWithMoreThanAnAnswerHoldsIsRefused()
{
    const QByteArray half = '[' + QByteArray(int(kMostPresetBytes) / 2 - 2, ' ') + ']';
    m_scratch->put("steps/step1/data/A.json", half);
    m_scratch->put("steps/step1/data/B.json", half);
    QCOMPARE(make(), QString());
    m_scratch->put("steps/step1/data/C.json", "[]");
    QCOMPARE(make(),
             QStringLiteral("%1 has more than %2 bytes in its files up to C.json, and the program answers "
                            "no request for more: make the files smaller")
                 .arg(m_scratch->path("steps/step1/data"))
                 .arg(kMostPresetBytes));
    QVERIFY(!m_scratch->has("patches/step1/data/C.json-patch"));
}

void tst_PatchChain::chainIsReplacedWhole()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/data/Old.json-patch", "old");
    m_scratch->put("patches/step7/data/Old.json-patch", "old");
    QCOMPARE(make(), QString());
    QCOMPARE(m_scratch->entries("patches"), QStringList{QStringLiteral("step1")});
    QCOMPARE(m_scratch->entries("patches/step1/data"), QStringList{QStringLiteral("A.json-patch")});
}

void tst_PatchChain::missingParentIsMade()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QCOMPARE(makeIn(m_scratch->path("a/b/patch/")), QString());
    QVERIFY(m_scratch->has("a/b/patch/step1/data/A.json-patch"));
    QCOMPARE(m_scratch->entries("a/b"), QStringList{QStringLiteral("patch")});
}

void tst_PatchChain::foreignFilesAreNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/.hidden/diary.txt", "dear diary");
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("diary.txt in it is no patch")), qPrintable(error));
    QCOMPARE(m_scratch->get("patches/.hidden/diary.txt"), QByteArray("dear diary"));
}

void tst_PatchChain::linkedDirectoryAmongThePatchesIsNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/data/A.json-patch", "old");
    QVERIFY(QFile::link(m_scratch->path("steps"), m_scratch->path("patches/elsewhere")));
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("patches/elsewhere in it is no patch")), qPrintable(error));
    QCOMPARE(m_scratch->entries("patches"),
             QStringList({QStringLiteral("elsewhere"), QStringLiteral("step1")}));
}

void tst_PatchChain::patchesThatMayNotBeReadAreNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/diary.txt", "dear diary");
    for (const char *open : {"", "patches"})
        QCOMPARE(chmod(qPrintable(m_scratch->path(open)), 0777), 0);
    for (const char *closed : {"patches/step1", "patches"}) {
        QCOMPARE(chmod(qPrintable(m_scratch->path(closed)), 0311), 0);
        QString error;
        {
            const Unprivileged nobody;
            error = make();
        }
        QCOMPARE(chmod(qPrintable(m_scratch->path(closed)), 0777), 0);
        QCOMPARE(error, QStringLiteral("%1 cannot be read").arg(m_scratch->path(closed)));
        QCOMPARE(m_scratch->get("patches/step1/diary.txt"), QByteArray("dear diary"));
    }
}

void tst_PatchChain::nameThatIsNoTextAmongThePatchesIsNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/data/A.json-patch", "old");
    const QByteArray path = QFile::encodeName(m_scratch->path("patches/step1/")) + '\xff';
    putBytes(path);
    QCOMPARE(make(), QStringLiteral("%1 holds the name %FF, which is not UTF-8: rename it")
                         .arg(m_scratch->path("patches/step1")));
    QCOMPARE(m_scratch->get("patches/step1/data/A.json-patch"), QByteArray("old"));
    QCOMPARE(unlink(path.constData()), 0);
}

void tst_PatchChain::dataFileWhoseNameIsNoTextIsRefused()
{
    // A listing leaves it out, so the chain would have lacked the file without a word.
    m_scratch->put("steps/step1/data/A.json", "[]");
    const QByteArray path = QFile::encodeName(m_scratch->path("steps/step1/data/")) + "\xff.json";
    putBytes(path);
    QCOMPARE(make(), QStringLiteral("%1 holds the name %FF.json, which is not UTF-8: rename it")
                         .arg(m_scratch->path("steps/step1/data")));
    QVERIFY(!m_scratch->has("patches"));
    QCOMPARE(unlink(path.constData()), 0);
}

void tst_PatchChain::sourcesAreNeverReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    const QString error = makeIn(m_scratch->path("steps"));
    QVERIFY2(error.contains(QStringLiteral("A.json in it is no patch")), qPrintable(error));
    QCOMPARE(m_scratch->get("steps/step1/data/A.json"), QByteArray("[]"));
}

void tst_PatchChain::fileInTheWayIsRefused()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches", "a file");
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("is in the way")), qPrintable(error));
    QCOMPARE(m_scratch->get("patches"), QByteArray("a file"));
}

void tst_PatchChain::nestedDirectoriesAreRefused()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    for (const QString &place :
         {m_scratch->path("steps/patches"), m_scratch->path(), QDir().relativeFilePath(m_scratch->path())}) {
        const QString error = makeIn(place);
        QVERIFY2(error.contains(QStringLiteral("inside one another")), qPrintable(error));
    }
    QCOMPARE(m_scratch->entries(), QStringList{QStringLiteral("steps")});
    QCOMPARE(m_scratch->entries("steps"), QStringList{QStringLiteral("step1")});
}

void tst_PatchChain::linkIntoTheSourcesIsRefused()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QVERIFY(QFile::link(m_scratch->path("steps"), m_scratch->path("link")));
    for (const char *place : {"link/patches", "link/not/there/yet"}) {
        const QString error = makeIn(m_scratch->path(place));
        QVERIFY2(error.contains(QStringLiteral("inside one another")), qPrintable(error));
    }
    QCOMPARE(m_scratch->entries("steps"), QStringList{QStringLiteral("step1")});
}

void tst_PatchChain::stepsThatMayNotBeReadAreRefused()
{
    // A directory that cannot be listed looks like an empty one.
    m_scratch->put("steps/step1/data/A.json", "[]");
    QVERIFY(QDir().mkpath(m_scratch->path("out")));
    QCOMPARE(chmod(qPrintable(m_scratch->path()), 0755), 0);
    QCOMPARE(chmod(qPrintable(m_scratch->path("out")), 0777), 0);
    for (const char *closed : {"steps/step1/data", "steps"}) {
        QCOMPARE(chmod(qPrintable(m_scratch->path(closed)), 0311), 0);
        QString error;
        {
            const Unprivileged nobody;
            error = makeIn(m_scratch->path("out/patches"));
        }
        QCOMPARE(chmod(qPrintable(m_scratch->path(closed)), 0755), 0);
        QCOMPARE(error, QStringLiteral("%1 cannot be read").arg(m_scratch->path(closed)));
        QVERIFY(!m_scratch->has("out/patches"));
    }
}

void tst_PatchChain::directoryThatCannotBeWrittenIsRefused()
{
    // Not even root makes a directory in the kernel's own file system.
    m_scratch->put("steps/step1/data/A.json", "[]");
    const QString error = makeIn(QStringLiteral("/proc/patches"));
    QVERIFY2(error.contains(QStringLiteral("cannot make a directory in /proc")), qPrintable(error));
}

void tst_PatchChain::failureLeavesTheOldChain()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QCOMPARE(make(), QString());
    const QByteArray before = m_scratch->get("patches/step1/data/A.json-patch");
    m_scratch->put("steps/step1/data/A.json", "[1]");
    m_scratch->put("steps/step2/data/B.json", "[]");
    QVERIFY(!make().isEmpty());
    QCOMPARE(m_scratch->get("patches/step1/data/A.json-patch"), before);
    QCOMPARE(m_scratch->entries("patches"), QStringList{QStringLiteral("step1")});
}

void tst_PatchChain::nothingIsLeftBeside()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QCOMPARE(make(), QString());
    QCOMPARE(make(), QString());
    QVERIFY(!make({QStringLiteral("A.json")}).isEmpty());
    QCOMPARE(m_scratch->entries(), QStringList({QStringLiteral("patches"), QStringLiteral("steps")}));
}

QTEST_GUILESS_MAIN(tst_PatchChain)
#include "tst_PatchChain.moc"
