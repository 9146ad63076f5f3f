#include "PatchChainTest.h"
#include "Unprivileged.h"

#include <QTest>

#include <sys/stat.h>

/// Where a chain is written to, what is replaced there, and what never is.
class tst_PatchChainFolder : public PatchChainTest
{
    Q_OBJECT

private Q_SLOTS:
    void chainIsReplacedWhole();
    void missingParentIsMade();
    void foreignFilesAreNotReplaced();
    void linkedDirectoryAmongThePatchesIsNotReplaced();
    void patchesThatMayNotBeReadAreNotReplaced();
    void nameThatIsNoTextAmongThePatchesIsNotReplaced();
    void sourcesAreNeverReplaced();
    void fileInTheWayIsRefused();
    void linkIntoTheSourcesIsRefused();
    void directoryThatCannotBeWrittenIsRefused();
    void failureLeavesTheOldChain();
    void nothingIsLeftBeside();
};

void tst_PatchChainFolder::chainIsReplacedWhole()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/data/Old.json-patch", "old");
    m_scratch->put("patches/step7/data/Old.json-patch", "old");
    QCOMPARE(make(), QString());
    QCOMPARE(m_scratch->entries("patches"), QStringList{QStringLiteral("step1")});
    QCOMPARE(m_scratch->entries("patches/step1/data"), QStringList{QStringLiteral("A.json-patch")});
}

void tst_PatchChainFolder::missingParentIsMade()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QCOMPARE(makeIn(m_scratch->path("a/b/patch/")), QString());
    QVERIFY(m_scratch->has("a/b/patch/step1/data/A.json-patch"));
    QCOMPARE(m_scratch->entries("a/b"), QStringList{QStringLiteral("patch")});
}

void tst_PatchChainFolder::foreignFilesAreNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/.hidden/diary.txt", "dear diary");
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("diary.txt in it is no patch")), qPrintable(error));
    QCOMPARE(m_scratch->get("patches/.hidden/diary.txt"), QByteArray("dear diary"));
}

void tst_PatchChainFolder::linkedDirectoryAmongThePatchesIsNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/data/A.json-patch", "old");
    QVERIFY(QFile::link(m_scratch->path("steps"), m_scratch->path("patches/elsewhere")));
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("patches/elsewhere in it is no patch")), qPrintable(error));
    QCOMPARE(m_scratch->entries("patches"),
             QStringList({QStringLiteral("elsewhere"), QStringLiteral("step1")}));
}

void tst_PatchChainFolder::patchesThatMayNotBeReadAreNotReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches/step1/diary.txt", "dear diary");
    for (const char *open : {"", "patches"}) {
        QCOMPARE(chmod(qPrintable(m_scratch->path(open)), 0777), 0);
    }
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

void tst_PatchChainFolder::nameThatIsNoTextAmongThePatchesIsNotReplaced()
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

void tst_PatchChainFolder::sourcesAreNeverReplaced()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    const QString error = makeIn(m_scratch->path("steps"));
    QVERIFY2(error.contains(QStringLiteral("A.json in it is no patch")), qPrintable(error));
    QCOMPARE(m_scratch->get("steps/step1/data/A.json"), QByteArray("[]"));
}

void tst_PatchChainFolder::fileInTheWayIsRefused()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("patches", "a file");
    const QString error = make();
    QVERIFY2(error.contains(QStringLiteral("is in the way")), qPrintable(error));
    QCOMPARE(m_scratch->get("patches"), QByteArray("a file"));
}

void tst_PatchChainFolder::linkIntoTheSourcesIsRefused()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QVERIFY(QFile::link(m_scratch->path("steps"), m_scratch->path("link")));
    for (const char *place : {"link/patches", "link/not/there/yet"}) {
        const QString error = makeIn(m_scratch->path(place));
        QVERIFY2(error.contains(QStringLiteral("inside one another")), qPrintable(error));
    }
    QCOMPARE(m_scratch->entries("steps"), QStringList{QStringLiteral("step1")});
}

void tst_PatchChainFolder::directoryThatCannotBeWrittenIsRefused()
{
    // Not even root makes a directory in the kernel's own file system.
    m_scratch->put("steps/step1/data/A.json", "[]");
    const QString error = makeIn(QStringLiteral("/proc/patches"));
    QVERIFY2(error.contains(QStringLiteral("cannot make a directory in /proc")), qPrintable(error));
}

void tst_PatchChainFolder::failureLeavesTheOldChain()
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

void tst_PatchChainFolder::nothingIsLeftBeside()
{
    m_scratch->put("steps/step1/data/A.json", "[]");
    QCOMPARE(make(), QString());
    QCOMPARE(make(), QString());
    QVERIFY(!make({QStringLiteral("A.json")}).isEmpty());
    QCOMPARE(m_scratch->entries(), QStringList({QStringLiteral("patches"), QStringLiteral("steps")}));
}

QTEST_GUILESS_MAIN(tst_PatchChainFolder)
#include "tst_PatchChainFolder.moc"
