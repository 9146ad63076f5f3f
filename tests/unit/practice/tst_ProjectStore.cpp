#include "PracticeTranslator.h"
#include "Unprivileged.h"
#include "project/ProjectStore.h"

#include <QDir>
#include <QJsonArray>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class tst_ProjectStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheFilesIntoANewFolder();
    void givesTheFolderTheUsualPermissions();
    void tellsTheFullPathOfARelativePlace();
    void touchesNothingThatIsThere();
    void keepsTheNameThatGetsANumber();
    void passesOverALinkToNowhere();
    void saysWhereNothingCanBeWritten();
    void refusesNamesThatAreNoFolder_data();
    void refusesNamesThatAreNoFolder();
    void refusesInTheLanguageOfThePerson_data();
    void refusesInTheLanguageOfThePerson();
    void refusesPathsThatLeadOut_data();
    void refusesPathsThatLeadOut();
    void leavesNothingBehindWhenAFileCannotBeWritten();
    void hasNoFilesBeforeAProjectIsOpen();
};

void tst_ProjectStore::writesTheFilesIntoANewFolder()
{
    const QTemporaryDir room;
    ProjectStore store;
    QSignalSpy changed(&store, &ProjectStore::changed);
    QString error;
    QVERIFY2(store.create(room.filePath(QStringLiteral("made/for/it")), QStringLiteral("Harbour"),
                          {{QStringLiteral("data/Actors.json"), QStringLiteral("[null,\"\u5730\"]")},
                           {QStringLiteral("data/broken.json"), QStringLiteral("[")}},
                          &error),
             qPrintable(error));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(store.path(), room.filePath(QStringLiteral("made/for/it/Harbour")));
    QCOMPARE(store.file(QStringLiteral("data/Actors.json")).array().at(1).toString(),
             QStringLiteral("\u5730"));
    QVERIFY(store.file(QStringLiteral("data/broken.json")).isNull());
    QVERIFY(store.file(QStringLiteral("data/none.json")).isNull());
}

void tst_ProjectStore::givesTheFolderTheUsualPermissions()
{
    const QTemporaryDir room;
    QVERIFY(QDir(room.path()).mkdir(QStringLiteral("usual")));
    ProjectStore store;
    QString error;
    QVERIFY(
        store.create(room.path(), QStringLiteral("P"), {{QStringLiteral("data/a.json"), QString()}}, &error));
    const auto usual = QFile::permissions(room.filePath(QStringLiteral("usual")));
    QCOMPARE(QFile::permissions(room.filePath(QStringLiteral("P"))), usual);
    QCOMPARE(QFile::permissions(room.filePath(QStringLiteral("P/data"))), usual);
    QCOMPARE(QDir(room.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({QStringLiteral("P"), QStringLiteral("usual")}));
}

void tst_ProjectStore::tellsTheFullPathOfARelativePlace()
{
    const QTemporaryDir room;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(room.path()));
    ProjectStore store;
    QString error;
    const bool isMade = store.create(QStringLiteral("games"), QStringLiteral("P"),
                                     {{QStringLiteral("data/a.json"), QStringLiteral("[1]")}}, &error);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY2(isMade, qPrintable(error));
    QCOMPARE(store.path(), QDir(room.path()).canonicalPath() + QStringLiteral("/games/P"));
    QVERIFY(store.file(QStringLiteral("data/a.json")).isArray());
}

void tst_ProjectStore::touchesNothingThatIsThere()
{
    const QTemporaryDir room;
    ProjectStore store;
    QString error;
    const QMap<QString, QString> first = {{QStringLiteral("a.json"), QStringLiteral("[1]")}};
    QVERIFY(store.create(room.path(), QStringLiteral("P"), first, &error));
    QVERIFY(store.create(room.path(), QStringLiteral("P"),
                         {{QStringLiteral("a.json"), QStringLiteral("[2]")}}, &error));
    QCOMPARE(store.path(), room.filePath(QStringLiteral("P (2)")));
    QCOMPARE(store.file(QStringLiteral("a.json")).array().at(0).toInt(), 2);
    QFile old(room.filePath(QStringLiteral("P/a.json")));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("[1]"));
}

void tst_ProjectStore::keepsTheNameThatGetsANumber()
{
    const QTemporaryDir room;
    ProjectStore store;
    QString error;
    for (const QString &name : {QStringLiteral("100%1"), QStringLiteral("100%2")}) {
        const QString taken = room.filePath(name);
        QVERIFY(store.create(room.path(), name, {}, &error));
        QCOMPARE(store.path(), taken);
        QVERIFY(store.create(room.path(), name, {}, &error));
        QCOMPARE(store.path(), taken + QStringLiteral(" (2)"));
        QVERIFY(QFileInfo(store.path()).isDir());
    }
}

void tst_ProjectStore::passesOverALinkToNowhere()
{
    const QTemporaryDir room;
    QVERIFY(QFile::link(QStringLiteral("nowhere"), room.filePath(QStringLiteral("P"))));
    ProjectStore store;
    QString error;
    QVERIFY2(store.create(room.path(), QStringLiteral("P"),
                          {{QStringLiteral("a.json"), QStringLiteral("[]")}}, &error),
             qPrintable(error));
    QCOMPARE(store.path(), room.filePath(QStringLiteral("P (2)")));
    QVERIFY(QFileInfo(room.filePath(QStringLiteral("P"))).isSymLink());
}

void tst_ProjectStore::saysWhereNothingCanBeWritten()
{
    const QTemporaryDir room;
    QCOMPARE(chmod(qPrintable(room.path()), 0555), 0);
    ProjectStore store;
    QString error;
    {
        const Unprivileged nobody;
        QVERIFY(
            !store.create(room.path(), QStringLiteral("P"), {{QStringLiteral("a.json"), QString()}}, &error));
    }
    QVERIFY2(error.contains(room.path()) && error.contains(QStringLiteral("Permission denied")),
             qPrintable(error));
    QVERIFY(store.path().isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
    QCOMPARE(chmod(qPrintable(room.path()), 0755), 0);
}

void tst_ProjectStore::refusesNamesThatAreNoFolder_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"", ".", "..", "../P", "a/b", "/tmp/P"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_ProjectStore::refusesNamesThatAreNoFolder()
{
    QFETCH(QString, name);
    const QTemporaryDir room;
    ProjectStore store;
    QString error;
    QVERIFY(!store.create(room.path(), name, {{QStringLiteral("a.json"), QStringLiteral("[]")}}, &error));
    QVERIFY(error.contains(QStringLiteral("name")));
    QVERIFY(store.path().isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
}

void tst_ProjectStore::refusesInTheLanguageOfThePerson_data()
{
    QTest::addColumn<QString>("refusal");
    QTest::newRow("en_US") << QStringLiteral("A project cannot have the name \"a/b\"");
    QTest::newRow("ja_JP") << QStringLiteral("プロジェクトの名前を「a/b」にはできません。");
    QTest::newRow("zh_CN") << QStringLiteral("项目不能叫“a/b”");
}

void tst_ProjectStore::refusesInTheLanguageOfThePerson()
{
    QFETCH(QString, refusal);
    const QTemporaryDir room;
    const PracticeTranslator translator(QString::fromLatin1(QTest::currentDataTag()));
    ProjectStore store;
    QString error;
    QVERIFY(!store.create(room.path(), QStringLiteral("a/b"), {}, &error));
    QVERIFY2(error.startsWith(refusal), qPrintable(error));
}

void tst_ProjectStore::refusesPathsThatLeadOut_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"../a.json", "data/../../a.json", "/tmp/a.json", "..", ".", ""}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_ProjectStore::refusesPathsThatLeadOut()
{
    QFETCH(QString, name);
    const QTemporaryDir room;
    ProjectStore store;
    QString error;
    QVERIFY(!store.create(room.path(), QStringLiteral("P"), {{name, QStringLiteral("[]")}}, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(store.path().isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
}

void tst_ProjectStore::leavesNothingBehindWhenAFileCannotBeWritten()
{
    const QTemporaryDir room;
    ProjectStore store;
    QSignalSpy changed(&store, &ProjectStore::changed);
    QString error;
    // "a" cannot be a file and a folder.
    QVERIFY(!store.create(
        room.path(), QStringLiteral("P"),
        {{QStringLiteral("a"), QStringLiteral("x")}, {QStringLiteral("a/b.json"), QStringLiteral("[]")}},
        &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(changed.isEmpty());
    QVERIFY(QDir(room.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

void tst_ProjectStore::hasNoFilesBeforeAProjectIsOpen()
{
    const ProjectStore store;
    QVERIFY(store.file(QStringLiteral("data/Actors.json")).isNull());
}

QTEST_GUILESS_MAIN(tst_ProjectStore)
#include "tst_ProjectStore.moc"
