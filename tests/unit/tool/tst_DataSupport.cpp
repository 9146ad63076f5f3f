#include "LogCapture.h"
#include "Unprivileged.h"
#include "tool/DataSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString messageSource()
{
    return QStringLiteral("..\\..\\tutorial\\cpp\\tool\\DataSupport");
}

QByteArray allBytes()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.append(char(i));
    }
    return bytes;
}

} // namespace

class tst_DataSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndReadsBack_data();
    void writesAndReadsBack();
    void readLogsSizeAndCount();
    void writeIsSilentWhenItSucceeds();
    void readOfMissingFileLeavesBytesAlone();
    void readOfDirectoryFails();
    void readOfUnreadableFileFails();
    void readOfAPipeDoesNotWait();
    void readsAnEntryOfAListedDirectory();
    void readOfAnEntryThatIsGoneFails();
    void readOfAListedPipeDoesNotWait();
    void readThatEndsEarlyKeepsTheFilesSize();
    void readsResources();
    void writeToMissingDirectoryFails();
    void writeToReadOnlyPlaceFails();
    void writeToReadOnlyFileFails();
    void writeToFullDeviceFails_data();
    void writeToFullDeviceFails();
    void writeTruncates();
    void existsForFilesAndDirectories();
    void resourcePathPutsTheNameBehindTheRoot();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};

void tst_DataSupport::writesAndReadsBack_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one zero byte") << QByteArray(1, '\0');
    QTest::newRow("every byte") << allBytes();
    QTest::newRow("line breaks") << QByteArray("a\r\nb\nc\r");
    QTest::newRow("3 MB") << allBytes().repeated(12 * 1024);
}

void tst_DataSupport::writesAndReadsBack()
{
    QFETCH(QByteArray, bytes);
    const QString file = path(QStringLiteral("round-trip"));
    QVERIFY(DataSupport::writeFile(file, bytes));
    QCOMPARE(QFileInfo(file).size(), qint64(bytes.size()));
    QByteArray read("something else");
    QVERIFY(DataSupport::readFile(file, read));
    QCOMPARE(read, bytes);
}

void tst_DataSupport::readLogsSizeAndCount()
{
    const QString file = path(QStringLiteral("logged"));
    QVERIFY(DataSupport::writeFile(file, "12345"));
    QByteArray bytes;
    LogCapture log;
    QVERIFY(DataSupport::readFile(file, bytes));
    QCOMPARE(log.debugs(), QStringList({messageSource() + QStringLiteral(" DataSupport::readFile 137 5"),
                                        messageSource() + QStringLiteral(" DataSupport::readFile 141 5 5")}));
    QCOMPARE(log.warnings(), QStringList());
}

void tst_DataSupport::writeIsSilentWhenItSucceeds()
{
    LogCapture log;
    QVERIFY(DataSupport::writeFile(path(QStringLiteral("silent")), "12345"));
    QCOMPARE(log.lines(), QStringList());
}

void tst_DataSupport::readOfMissingFileLeavesBytesAlone()
{
    const QString file = path(QStringLiteral("missing"));
    QByteArray bytes("as it was");
    LogCapture log;
    QVERIFY(!DataSupport::readFile(file, bytes));
    QCOMPARE(bytes, QByteArray("as it was"));
    QCOMPARE(log.lines(), log.warnings());
    QCOMPARE(
        log.warnings(),
        QStringList{
            QStringLiteral("%1 DataSupport::readFile 133 Failed to open \"%2\"").arg(messageSource(), file)});
}

void tst_DataSupport::readOfDirectoryFails()
{
    QByteArray bytes;
    LogCapture log;
    QVERIFY(!DataSupport::readFile(m_directory.path(), bytes));
    QVERIFY(log.contains(QStringLiteral("DataSupport::readFile 133 Failed to open")));
}

void tst_DataSupport::readOfUnreadableFileFails()
{
    const QString file = path(QStringLiteral("secret"));
    QVERIFY(DataSupport::writeFile(file, "12345"));
    QCOMPARE(chmod(qPrintable(file), 0), 0);
    QCOMPARE(chmod(qPrintable(m_directory.path()), 0755), 0);
    QByteArray bytes("as it was");
    LogCapture log;
    {
        const Unprivileged nobody;
        QVERIFY(!DataSupport::readFile(file, bytes));
    }
    QCOMPARE(bytes, QByteArray("as it was"));
    QCOMPARE(
        log.lines(),
        QStringList{
            QStringLiteral("%1 DataSupport::readFile 133 Failed to open \"%2\"").arg(messageSource(), file)});
}

void tst_DataSupport::readOfAPipeDoesNotWait()
{
    const QString pipe = path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    const QString link = path(QStringLiteral("link to a pipe"));
    QVERIFY(QFile::link(pipe, link));
    // With both ends open here nobody waits, whatever the code under test does.
    const int ends = open(qPrintable(pipe), O_RDWR | O_CLOEXEC);
    QVERIFY(ends >= 0);
    for (const QString &file : {pipe, link}) {
        QByteArray bytes("as it was");
        LogCapture log;
        QVERIFY(!DataSupport::readFile(file, bytes));
        QCOMPARE(bytes, QByteArray("as it was"));
        QVERIFY(log.contains(QStringLiteral("DataSupport::readFile 133 Failed to open \"%1\"").arg(file)));
    }
    close(ends);
}

void tst_DataSupport::readsAnEntryOfAListedDirectory()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("listed"));
    QVERIFY(DataSupport::writeFile(file, "1"));
    const QFileInfo entry = QDir(directory.path()).entryInfoList(QDir::Files, QDir::NoSort).constFirst();
    // The size is the one when it is read, not when it was listed.
    QVERIFY(DataSupport::writeFile(file, "12345"));
    QByteArray bytes;
    LogCapture log;
    QVERIFY(DataSupport::readFile(entry, bytes));
    QCOMPARE(bytes, QByteArray("12345"));
    const QStringList lines{QStringLiteral("%1 DataSupport::readFile 137 5").arg(messageSource()),
                            QStringLiteral("%1 DataSupport::readFile 141 5 5").arg(messageSource())};
    QCOMPARE(log.lines(), lines);
}

void tst_DataSupport::readOfAnEntryThatIsGoneFails()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("listed"));
    QVERIFY(DataSupport::writeFile(file, "1"));
    const QFileInfo entry = QDir(directory.path()).entryInfoList(QDir::Files, QDir::NoSort).constFirst();
    QVERIFY(QFile::remove(file));
    QByteArray bytes("as it was");
    LogCapture log;
    QVERIFY(!DataSupport::readFile(entry, bytes));
    QCOMPARE(bytes, QByteArray("as it was"));
    QCOMPARE(
        log.lines(),
        QStringList{
            QStringLiteral("%1 DataSupport::readFile 133 Failed to open \"%2\"").arg(messageSource(), file)});
}

void tst_DataSupport::readOfAListedPipeDoesNotWait()
{
    const QTemporaryDir directory;
    const QString pipe = directory.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    const int ends = open(qPrintable(pipe), O_RDWR | O_CLOEXEC);
    QVERIFY(ends >= 0);
    const QFileInfoList entries = QDir(directory.path()).entryInfoList(QDir::System, QDir::NoSort);
    QCOMPARE(entries.size(), 1);
    QByteArray bytes("as it was");
    LogCapture log;
    QVERIFY(!DataSupport::readFile(entries.constFirst(), bytes));
    QCOMPARE(bytes, QByteArray("as it was"));
    QVERIFY(log.contains(QStringLiteral("DataSupport::readFile 133 Failed to open \"%1\"").arg(pipe)));
    close(ends);
}

void tst_DataSupport::readThatEndsEarlyKeepsTheFilesSize()
{
    // The kernel gives its attribute files the size of a page, and their text when read.
    const QString file = QStringLiteral("/sys/devices/system/cpu/online");
    const qint64 size = QFileInfo(file).size();
    QByteArray text;
    {
        QFile whole(file);
        QVERIFY(whole.open(QIODevice::ReadOnly));
        text = whole.readAll();
    }
    QVERIFY(text.size() < size);

    QByteArray bytes("something else");
    LogCapture log;
    QVERIFY(!DataSupport::readFile(file, bytes));
    QCOMPARE(qint64(bytes.size()), size);
    QCOMPARE(bytes, text + QByteArray(int(size) - text.size(), '\0'));
    QCOMPARE(
        log.debugs().constLast(),
        QStringLiteral("%1 DataSupport::readFile 141 %2 %3").arg(messageSource()).arg(text.size()).arg(size));
    QCOMPARE(log.warnings(),
             QStringList{QStringLiteral("%1 DataSupport::readFile 143 read bytes differs %2 %3")
                             .arg(messageSource())
                             .arg(text.size())
                             .arg(size)});
}

void tst_DataSupport::readsResources()
{
    QByteArray bytes;
    QVERIFY(DataSupport::readFile(DataSupport::resourcePath(QStringLiteral("qml/Tutorial/TutorialList.js")),
                                  bytes));
    QVERIFY(!bytes.isEmpty());
}

void tst_DataSupport::writeToMissingDirectoryFails()
{
    const QString file = path(QStringLiteral("missing/file"));
    LogCapture log;
    QVERIFY(!DataSupport::writeFile(file, "12345"));
    QCOMPARE(log.lines(), QStringList{QStringLiteral("%1 DataSupport::writeFile 153 Failed to open \"%2\"")
                                          .arg(messageSource(), file)});
    QVERIFY(!QFileInfo::exists(file));
}

void tst_DataSupport::writeToReadOnlyPlaceFails()
{
    LogCapture log;
    QVERIFY(!DataSupport::writeFile(QStringLiteral(":/qml/Tutorial/TutorialList.js"), "12345"));
    QVERIFY(log.contains(QStringLiteral("DataSupport::writeFile 153 Failed to open")));
}

void tst_DataSupport::writeToReadOnlyFileFails()
{
    const QString file = path(QStringLiteral("read-only"));
    QVERIFY(DataSupport::writeFile(file, "12345"));
    QCOMPARE(chmod(qPrintable(file), 0444), 0);
    QCOMPARE(chmod(qPrintable(m_directory.path()), 0755), 0);
    QByteArray bytes;
    LogCapture log;
    {
        const Unprivileged nobody;
        QVERIFY(!DataSupport::writeFile(file, "67890"));
        QCOMPARE(log.lines(),
                 QStringList{QStringLiteral("%1 DataSupport::writeFile 153 Failed to open \"%2\"")
                                 .arg(messageSource(), file)});
        QVERIFY(DataSupport::readFile(file, bytes));
    }
    QCOMPARE(bytes, QByteArray("12345"));
}

void tst_DataSupport::writeToFullDeviceFails_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("few bytes") << 5;
    QTest::newRow("many bytes") << 1000000;
}

void tst_DataSupport::writeToFullDeviceFails()
{
    QFETCH(int, size);
    LogCapture log;
    QVERIFY(!DataSupport::writeFile(QStringLiteral("/dev/full"), QByteArray(size, 'x')));
    QCOMPARE(log.lines(),
             QStringList{QStringLiteral("%1 DataSupport::writeFile 160 write bytes differs -1 %2")
                             .arg(messageSource())
                             .arg(size)});
}

void tst_DataSupport::writeTruncates()
{
    const QString file = path(QStringLiteral("shrinks"));
    QVERIFY(DataSupport::writeFile(file, "a long text"));
    QVERIFY(DataSupport::writeFile(file, "short"));
    QCOMPARE(QFileInfo(file).size(), qint64(5));
    QVERIFY(DataSupport::writeFile(file, QByteArray()));
    QCOMPARE(QFileInfo(file).size(), qint64(0));
}

void tst_DataSupport::existsForFilesAndDirectories()
{
    const QString file = path(QStringLiteral("exists"));
    QVERIFY(!DataSupport::fileExists(file));
    QVERIFY(DataSupport::writeFile(file, QByteArray()));
    QVERIFY(DataSupport::fileExists(file));
    QVERIFY(DataSupport::fileExists(m_directory.path()));
    QVERIFY(DataSupport::fileExists(QStringLiteral(":/qml/Tutorial/TutorialList.js")));
    QVERIFY(!DataSupport::fileExists(QString()));
}

void tst_DataSupport::resourcePathPutsTheNameBehindTheRoot()
{
    QCOMPARE(DataSupport::resourcePath(QStringLiteral("icon/undo.png")), QStringLiteral(":/icon/undo.png"));
    QCOMPARE(DataSupport::resourcePath(QString()), QStringLiteral(":/"));
}

QTEST_GUILESS_MAIN(tst_DataSupport)
#include "tst_DataSupport.moc"
