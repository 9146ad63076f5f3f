#include "PatchChainTest.h"
#include "Tutorial/preset/PresetData.h"
#include "Unprivileged.h"

#include <QTest>

#include <sys/stat.h>

/// Which steps a chain is made of, and which are refused.
class tst_PatchChainSteps : public PatchChainTest
{
    Q_OBJECT

private Q_SLOTS:
    void badStepsAreRefused_data();
    void badStepsAreRefused();
    void misspeltStepsAreRefused_data();
    void misspeltStepsAreRefused();
    void zeroBeforeTheNumberIsWarnedOf();
    void fileThatIsNoJsonIsRefused_data();
    void fileThatIsNoJsonIsRefused();
    void everyKindOfJsonIsTaken();
    void stepWithMoreThanAnAnswerHoldsIsRefused();
    void dataFileWhoseNameIsNoTextIsRefused();
    void nestedDirectoriesAreRefused();
    void stepsThatMayNotBeReadAreRefused();
};

void tst_PatchChainSteps::badStepsAreRefused_data()
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

void tst_PatchChainSteps::badStepsAreRefused()
{
    QFETCH(QByteArrayList, files);
    QFETCH(QString, part);
    for (const QByteArray &file : files) {
        m_scratch->put(file.constData(), "[]");
    }
    const QString error = make();
    QVERIFY2(error.contains(part), qPrintable(error));
    QVERIFY(!m_scratch->has("patches"));
}

void tst_PatchChainSteps::misspeltStepsAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"stepp2", "Step3", "STEP3", "step 4", "step4 ", "step", "step3x", "step-5",
                             "step5.bak", "xstep2", "setp6", "7", "step\xef\xbc\x91"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void tst_PatchChainSteps::misspeltStepsAreRefused()
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

void tst_PatchChainSteps::zeroBeforeTheNumberIsWarnedOf()
{
    // The program looks for the folder by the name that is asked for.
    for (const char *file :
         {"steps/step0/data/A.json", "steps/step02/data/A.json", "steps/step10/data/A.json"}) {
        m_scratch->put(file, "[]");
    }
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

void tst_PatchChainSteps::fileThatIsNoJsonIsRefused_data()
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

void tst_PatchChainSteps::fileThatIsNoJsonIsRefused()
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

void tst_PatchChainSteps::everyKindOfJsonIsTaken()
{
    const QList<QByteArray> texts{"[]", " {}\n", "12", "\"a\"", "null", "\xef\xbb\xbf[]"};
    for (int i = 0; i < texts.size(); ++i) {
        m_scratch->put(("steps/step1/data/" + QByteArray::number(i) + ".json").constData(), texts.at(i));
    }
    QCOMPARE(make(), QString());
}

void tst_PatchChainSteps::stepWithMoreThanAnAnswerHoldsIsRefused()
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

void tst_PatchChainSteps::dataFileWhoseNameIsNoTextIsRefused()
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

void tst_PatchChainSteps::nestedDirectoriesAreRefused()
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

void tst_PatchChainSteps::stepsThatMayNotBeReadAreRefused()
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

QTEST_GUILESS_MAIN(tst_PatchChainSteps)
#include "tst_PatchChainSteps.moc"
