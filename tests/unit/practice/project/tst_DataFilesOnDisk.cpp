#include "DataFilesTest.h"
#include "Unprivileged.h"

#include <QJsonArray>

#include <sys/stat.h>

class tst_DataFilesOnDisk : public DataFilesTest
{
    Q_OBJECT

private Q_SLOTS:
    void modifiedMeansUnlikeTheDisk();
    void savesOnlyWhatChanged();
    void savesWhatItOpensAgainByteForByte();
    void whatIsTypedAfterSavingIsAStepOfItsOwn();
    void savesNoneWhenOneCannotBeWritten();
    void savesIntoAFolderThatIsGone();
    void savesIntoADataFolderThatIsGone();
    void aFileThatComesBackKeepsItsBytes();
    void linksAndPermissionsStay();
    void replacesAllFiles();
    void replacesNothingWhenOneIsBroken();
    void replacesNothingWhenAPathLeadsOut_data();
    void replacesNothingWhenAPathLeadsOut();

private:
    const QTemporaryDir m_outside;
};

void tst_DataFilesOnDisk::modifiedMeansUnlikeTheDisk()
{
    open();
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    QCOMPARE(m_files->changedFiles(), QStringList{kItems});
    m_files->undo();
    QVERIFY(m_files->changedFiles().isEmpty());
    m_files->redo();
    QVERIFY(m_files->save(&m_error));
    QVERIFY(m_files->changedFiles().isEmpty());
    m_files->undo();
    QCOMPARE(m_files->changedFiles(), QStringList{kItems});
    QVERIFY(m_files->save(&m_error));
    QCOMPARE(m_folder->read(kItems), kItemsText);
}

void tst_DataFilesOnDisk::savesOnlyWhatChanged()
{
    open();
    QVERIFY(QFile::remove(m_folder->path(kActors)));
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    QVERIFY2(m_files->save(&m_error), qPrintable(m_error));
    QCOMPARE(m_folder->all(), QStringList{QStringLiteral("Items.json")});
    // The blanks, the order and the way in which the price is written are the author's.
    QCOMPARE(m_folder->read(kItems), QByteArray(kItemsText).replace("Herb", "Bread"));
}

void tst_DataFilesOnDisk::savesWhatItOpensAgainByteForByte()
{
    open();
    m_files->set(kItems, QStringLiteral("/2"), QJsonArray{1, 2.5, QStringLiteral("\u5730")});
    m_files->set(kItems, QStringLiteral("/1/price"), 9);
    QVERIFY(m_files->save(&m_error));
    const QByteArray saved = m_folder->read(kItems);

    DataFiles again;
    QVERIFY(again.open(m_folder->path(), &m_error));
    QCOMPARE(again.file(kItems), m_files->file(kItems));
    QVERIFY(again.save(&m_error));
    QCOMPARE(m_folder->read(kItems), saved);
    again.set(kItems, name(1), QStringLiteral("Bread"));
    QVERIFY(again.save(&m_error));
    again.undo();
    QVERIFY(again.save(&m_error));
    QCOMPARE(m_folder->read(kItems), saved);
}

void tst_DataFilesOnDisk::whatIsTypedAfterSavingIsAStepOfItsOwn()
{
    open();
    m_files->set(kItems, name(1), QStringLiteral("Br"));
    QVERIFY(m_files->save(&m_error));
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    m_files->undo();
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Br"));
}

void tst_DataFilesOnDisk::savesNoneWhenOneCannotBeWritten()
{
    open();
    m_files->set(kActors, QStringLiteral("/1"), QStringLiteral("Mila"));
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    QCOMPARE(chmod(qPrintable(m_folder->path()), 0755), 0);
    QCOMPARE(chmod(qPrintable(m_folder->path(kActors)), 0666), 0);
    QCOMPARE(chmod(qPrintable(m_folder->path(QStringLiteral("data"))), 0555), 0);
    {
        const Unprivileged nobody;
        QVERIFY(!m_files->save(&m_error));
    }
    QCOMPARE(chmod(qPrintable(m_folder->path(QStringLiteral("data"))), 0755), 0);
    QVERIFY2(m_error.contains(m_folder->path(kActors)) &&
                 m_error.contains(QStringLiteral("Permission denied")),
             qPrintable(m_error));
    QVERIFY2(m_error.contains(QStringLiteral("save again")), qPrintable(m_error));
    QCOMPARE(m_folder->read(kItems), kItemsText);
    QCOMPARE(m_folder->read(kActors), QByteArray("[null]"));
    QCOMPARE(m_folder->all(), (QStringList{QStringLiteral("Actors.json"), QStringLiteral("Items.json")}));
    // Nothing is lost: it is all there, and can be saved.
    QCOMPARE(m_files->changedFiles(), (QStringList{kActors, kItems}));
    QCOMPARE(m_files->history().count(), 2);
    QVERIFY(m_files->save(&m_error));
    QVERIFY(m_folder->read(kItems).contains("Bread"));
}

void tst_DataFilesOnDisk::savesIntoAFolderThatIsGone()
{
    open();
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    QVERIFY(QDir(m_folder->path()).removeRecursively());
    QVERIFY2(m_files->save(&m_error), qPrintable(m_error));
    QCOMPARE(m_folder->read(kActors), QByteArray("[null]"));
    QVERIFY(m_folder->read(kItems).contains("Bread"));
}

void tst_DataFilesOnDisk::savesIntoADataFolderThatIsGone()
{
    open();
    m_files->set(kActors, QStringLiteral("/1"), QStringLiteral("Mila"));
    QVERIFY(QDir(m_folder->path(QStringLiteral("data"))).removeRecursively());
    QVERIFY2(m_files->save(&m_error), qPrintable(m_error));
    QCOMPARE(m_folder->read(kItems), kItemsText);
    QVERIFY(m_folder->read(kActors).contains("Mila"));
}

void tst_DataFilesOnDisk::aFileThatComesBackKeepsItsBytes()
{
    open();
    m_files->change({{kItems, QJsonValue(QJsonValue::Undefined)}}, QString());
    QVERIFY2(m_files->save(&m_error), qPrintable(m_error));
    QCOMPARE(m_folder->all(), QStringList{QStringLiteral("Actors.json")});
    QVERIFY(m_files->changedFiles().isEmpty());
    m_files->undo();
    QCOMPARE(m_files->changedFiles(), QStringList{kItems});
    QVERIFY2(m_files->save(&m_error), qPrintable(m_error));
    QCOMPARE(m_folder->read(kItems), kItemsText);
}

void tst_DataFilesOnDisk::linksAndPermissionsStay()
{
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("Items.json"));
    QVERIFY(QFile::rename(m_folder->path(kItems), target));
    QVERIFY(QFile::link(target, m_folder->path(kItems)));
    QCOMPARE(chmod(qPrintable(target), 0640), 0);
    open();
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    QVERIFY2(m_files->save(&m_error), qPrintable(m_error));
    QVERIFY(QFileInfo(m_folder->path(kItems)).isSymLink());
    struct stat info = {};
    QCOMPARE(stat(qPrintable(target), &info), 0);
    QCOMPARE(int(info.st_mode & 0777U), 0640);
    QVERIFY(m_folder->read(kItems).contains("Bread"));
}

void tst_DataFilesOnDisk::replacesAllFiles()
{
    open();
    m_files->set(kItems, name(1), QStringLiteral("Bread"));
    const QString skills = QStringLiteral("data/Skills.json");
    QVERIFY2(m_files->replace({{skills, QStringLiteral("[ null ]")}}, &m_error), qPrintable(m_error));
    QCOMPARE(m_files->names(), QStringList{skills});
    QCOMPARE(m_folder->all(), QStringList{QStringLiteral("Skills.json")});
    QCOMPARE(m_folder->read(skills), QByteArray("[ null ]"));
    QVERIFY(m_files->changedFiles().isEmpty());
    QVERIFY(m_files->undo().isEmpty());
}

void tst_DataFilesOnDisk::replacesNothingWhenOneIsBroken()
{
    open();
    QVERIFY(!m_files->replace({{kItems, QStringLiteral("[]")}, {kActors, QStringLiteral("[\n")}}, &m_error));
    QVERIFY2(m_error.contains(m_folder->path(kActors)), qPrintable(m_error));
    QCOMPARE(m_folder->read(kItems), kItemsText);
    QCOMPARE(m_files->value(kItems, name(1)).toString(), QStringLiteral("Herb"));
}

void tst_DataFilesOnDisk::replacesNothingWhenAPathLeadsOut_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("above") << QStringLiteral("../outside.json");
    QTest::newRow("above, from a folder") << QStringLiteral("data/../../outside.json");
    QTest::newRow("full") << m_outside.filePath(QStringLiteral("outside.json"));
}

void tst_DataFilesOnDisk::replacesNothingWhenAPathLeadsOut()
{
    QFETCH(QString, path);
    const QString target = QDir(m_folder->path()).filePath(path);
    open();
    QVERIFY(!m_files->replace({{kItems, QStringLiteral("[]")}, {path, QStringLiteral("[]")}}, &m_error));
    QVERIFY2(m_error.contains(path), qPrintable(m_error));
    QVERIFY(!QFile::exists(target));
    QCOMPARE(m_folder->read(kItems), kItemsText);
    QCOMPARE(m_folder->read(kActors), QByteArray("[null]"));
    QCOMPARE(m_files->names(), (QStringList{kActors, kItems}));
}

QTEST_APPLESS_MAIN(tst_DataFilesOnDisk)
#include "tst_DataFilesOnDisk.moc"
