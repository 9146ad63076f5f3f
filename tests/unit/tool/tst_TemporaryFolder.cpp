#include "tool/TemporaryFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <unistd.h>

namespace {

const QString kName = QStringLiteral("Folder");

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// The text of a lock that the process with this number and name took.
QByteArray lockOf(qint64 processId, const QByteArray &name)
{
    return QByteArray::number(processId) + '\n' + name + '\n' + QSysInfo::machineHostName().toLocal8Bit() +
           '\n';
}

/// A number that no process has.
qint64 deadProcess()
{
    QProcess process;
    process.start(QStringLiteral("true"), QStringList());
    const qint64 processId = process.waitForStarted() ? process.processId() : 0;
    process.waitForFinished();
    return processId;
}

} // namespace

/// Folders of this process and what others have left: all in a folder of temporary files of the test.
class tst_TemporaryFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void livesAsLongAsItsObject();
    void goesWithAllThatIsInIt();
    void saysWhyThereIsNone();
    void clearsWhatTheDeadLeft();
    void keepsWhatALivingProcessHolds();
    void takesNoOtherProcessForTheDeadOne();
    void leavesAloneWhatHasNoLock();
    void leavesAloneWhatIsNotItsOwn();
    void leavesAloneWhatIsAnotherUsers();
    void clearsNothingThroughALink();

private:
    /// A folder as a process with this number and name left it behind. Its path.
    QString leftBy(const QString &folder, qint64 processId, const QByteArray &name = "Folder");
    [[nodiscard]] QString at(const QString &name) const { return m_temporary->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_temporary;
    QByteArray m_usual;
};

void tst_TemporaryFolder::init()
{
    m_temporary = std::make_unique<QTemporaryDir>();
    m_usual = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(m_temporary->path()));
    QCoreApplication::setApplicationName(kName);
}

void tst_TemporaryFolder::cleanup()
{
    m_usual.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_usual);
    m_temporary.reset();
}

QString tst_TemporaryFolder::leftBy(const QString &folder, qint64 processId, const QByteArray &name)
{
    const bool isMade = QDir().mkpath(at(folder) + QStringLiteral("/inner")) &&
                        write(at(folder) + QStringLiteral("/inner/file"), "x") &&
                        write(at(folder) + QStringLiteral("/lock"), lockOf(processId, name));
    return isMade ? at(folder) : QString();
}

void tst_TemporaryFolder::livesAsLongAsItsObject()
{
    QString path;
    {
        const TemporaryFolder folder;
        path = folder.path();
        QVERIFY(QDir(path).exists());
        QCOMPARE(QFileInfo(path).path(), m_temporary->path());
        QVERIFY(QFileInfo(path).fileName().startsWith(kName + QLatin1Char('-')));
        QCOMPARE(folder.errorString(), QString());
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryFolder::goesWithAllThatIsInIt()
{
    TemporaryFolder folder;
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("a/b")));
    QVERIFY(write(folder.path() + QStringLiteral("/a/b/file"), "x"));
    folder.remove();
    QVERIFY(!QFileInfo::exists(folder.path()));
    folder.remove();
    QCOMPARE(QDir(m_temporary->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_TemporaryFolder::saysWhyThereIsNone()
{
    qputenv("TMPDIR", QFile::encodeName(at(QStringLiteral("file"))));
    QVERIFY(write(at(QStringLiteral("file")), "x"));
    TemporaryFolder folder;
    QVERIFY(!folder.errorString().isEmpty());
    folder.remove();
    QVERIFY(QFileInfo::exists(at(QStringLiteral("file"))));
}

void tst_TemporaryFolder::clearsWhatTheDeadLeft()
{
    const QString first = leftBy(QStringLiteral("Folder-aaaaaa"), deadProcess());
    const QString second = leftBy(QStringLiteral("Folder-Zz0000"), deadProcess());
    // The number has gone to a process of another name: this one.
    const QString third = leftBy(QStringLiteral("Folder-cccccc"), QCoreApplication::applicationPid());
    QVERIFY(!first.isEmpty() && !second.isEmpty() && !third.isEmpty());
    const TemporaryFolder folder;
    QVERIFY(!QFileInfo::exists(first));
    QVERIFY(!QFileInfo::exists(second));
    QVERIFY(!QFileInfo::exists(third));
    QVERIFY(QFileInfo::exists(folder.path()));
}

void tst_TemporaryFolder::keepsWhatALivingProcessHolds()
{
    const TemporaryFolder first;
    const TemporaryFolder second;
    QVERIFY(QFileInfo::exists(first.path()));
    QVERIFY(QFileInfo::exists(second.path()));
}

void tst_TemporaryFolder::takesNoOtherProcessForTheDeadOne()
{
    // Whatever the lock says of its process, one that is held is that of a living one.
    const TemporaryFolder living;
    const QString lock = living.path() + QStringLiteral("/lock");
    QFile file(lock);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.resize(0));
    QVERIFY(file.write(lockOf(deadProcess(), "Folder")) > 0);
    file.close();
    const TemporaryFolder folder;
    QVERIFY(QFileInfo::exists(living.path()));
    QVERIFY(QFileInfo::exists(lock));
}

void tst_TemporaryFolder::leavesAloneWhatHasNoLock()
{
    QVERIFY(QDir(m_temporary->path()).mkpath(QStringLiteral("Folder-aaaaaa")));
    const TemporaryFolder folder;
    QVERIFY(QFileInfo::exists(at(QStringLiteral("Folder-aaaaaa"))));
}

void tst_TemporaryFolder::leavesAloneWhatIsNotItsOwn()
{
    const QStringList names{QStringLiteral("Other-aaaaaa"),    QStringLiteral("Folder-aaaaa"),
                            QStringLiteral("Folder-aaaaaaa"),  QStringLiteral("Folder"),
                            QStringLiteral("MyFolder-aaaaaa"), QStringLiteral("Folder-b-aaaaaa")};
    for (const QString &name : names) {
        QVERIFY(!leftBy(name, deadProcess()).isEmpty());
    }
    const TemporaryFolder folder;
    for (const QString &name : names) {
        QVERIFY2(QFileInfo::exists(at(name) + QStringLiteral("/inner/file")), qPrintable(name));
    }
}

void tst_TemporaryFolder::leavesAloneWhatIsAnotherUsers()
{
    constexpr uid_t kNobody = 65534;
    const QString path = leftBy(QStringLiteral("Folder-aaaaaa"), deadProcess());
    if (::chown(QFile::encodeName(path).constData(), kNobody, kNobody) != 0) {
        // The empty text is for the dots of the macro, which clang does not let stand for nothing.
        QSKIP("Only root can give a folder to another user.", "");
    }
    const TemporaryFolder folder;
    QVERIFY(QFileInfo::exists(path + QStringLiteral("/inner/file")));
    QVERIFY(QFileInfo::exists(path + QStringLiteral("/lock")));
}

void tst_TemporaryFolder::clearsNothingThroughALink()
{
    const QString target = leftBy(QStringLiteral("precious"), deadProcess());
    QVERIFY(QFile::link(target, at(QStringLiteral("Folder-aaaaaa"))));
    const QString stale = leftBy(QStringLiteral("Folder-bbbbbb"), deadProcess());
    QVERIFY(QFile::link(target, stale + QStringLiteral("/link")));
    const TemporaryFolder folder;
    QVERIFY(!QFileInfo::exists(stale));
    QVERIFY(QFileInfo::exists(target + QStringLiteral("/inner/file")));
    QVERIFY(QFileInfo::exists(target + QStringLiteral("/lock")));
}

QTEST_GUILESS_MAIN(tst_TemporaryFolder)
#include "tst_TemporaryFolder.moc"
