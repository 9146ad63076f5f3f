#include "PatchChainTest.h"

#include <QTest>

/// What a chain of patches holds.
class tst_PatchChain : public PatchChainTest
{
    Q_OBJECT

private Q_SLOTS:
    void replayGivesEachStepsFiles();
    void stepsAreOrderedByNumber();
    void unchangedFileGetsAnIdentityPatch();
    void newFileHasAnEmptyBase();
    void vanishedFileIsRefused();
    void vanishedFileMayBeAllowed();
    void fileThatComesBackHasAnEmptyBase();
    void allowedFileThatStaysIsRefused();
    void otherFilesBesideTheStepsAreIgnored();
};

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
                              "step3/data/System", "step3/data/Map001"}) {
        bytes +=
            m_scratch->get(QByteArray("patches/").append(patch).append(".json-patch").constData()).size();
    }
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
    for (const int step : {2, 9, 10, 19}) {
        m_scratch->put(("steps/step" + QByteArray::number(step) + "/data/A.json").constData(),
                       '[' + QByteArray::number(step) + common);
    }
    QCOMPARE(make(), QString());
    for (const QList<int> &steps : {QList<int>{2}, QList<int>{2, 9}, QList<int>{2, 9, 10}}) {
        QCOMPARE(replay(steps).value(QStringLiteral("A.json")),
                 '[' + QByteArray::number(steps.constLast()) + common);
    }
}

void tst_PatchChain::unchangedFileGetsAnIdentityPatch()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step2/data/A.json"}) {
        m_scratch->put(file, "[23456789]");
    }
    QCOMPARE(make(), QString());
    QCOMPARE(m_scratch->get("patches/step2/data/A.json-patch"), QByteArray("\x0a\0\0\0\xff\0\0\x9", 8));
}

void tst_PatchChain::newFileHasAnEmptyBase()
{
    for (const char *file :
         {"steps/step1/data/A.json", "steps/step2/data/A.json", "steps/step2/data/B.json"}) {
        m_scratch->put(file, "[23456789]");
    }
    QCOMPARE(make(), QString());
    const QByteArray patch = QByteArray("\x0a\0\0\0\0\x9", 6) + "[23456789]";
    QCOMPARE(m_scratch->get("patches/step1/data/A.json-patch"), patch);
    QCOMPARE(m_scratch->get("patches/step2/data/B.json-patch"), patch);
}

void tst_PatchChain::vanishedFileIsRefused()
{
    for (const char *file : {"steps/step1/data/A.json", "steps/step1/data/B.json", "steps/step1/data/C.json",
                             "steps/step2/data/B.json"}) {
        m_scratch->put(file, "[]");
    }
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
    for (const char *file :
         {"steps/step1/data/A.json", "steps/step1/data/B.json", "steps/step2/data/B.json"}) {
        m_scratch->put(file, "[]");
    }
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
                             "steps/step2.txt", "steps/data/A.json", "steps/pictures/step3.png"}) {
        m_scratch->put(file, "[]");
    }
    QCOMPARE(make(), QString());
    QCOMPARE(m_scratch->entries("patches"), QStringList{QStringLiteral("step1")});
    QCOMPARE(m_scratch->entries("patches/step1"), QStringList{QStringLiteral("data")});
}

QTEST_GUILESS_MAIN(tst_PatchChain)
#include "tst_PatchChain.moc"
