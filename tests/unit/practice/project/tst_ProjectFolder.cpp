#include "PracticeTranslator.h"
#include "Unprivileged.h"
#include "project/ProjectFolder.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

/// The folder that was made last.
class MadeFolder
{
public:
    bool create(const QString &location, const QString &name, const QMap<QString, QString> &files,
                QString *error)
    {
        const std::optional<QString> made = ProjectFolder::create(location, name, files, error);
        m_path = made.value_or(m_path);
        return made.has_value();
    }
    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QJsonDocument file(const QString &name) const
    {
        QFile file(QDir(m_path).filePath(name));
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
    }

private:
    QString m_path;
};

} // namespace

class tst_ProjectFolder : public QObject
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
    void listsFoldersThatHoldAProject();
    void writtenFilesHaveTheUsualPermissions();
    void saysThatAFolderMayNotBeListed_data();
    void saysThatAFolderMayNotBeListed();
};

void tst_ProjectFolder::writesTheFilesIntoANewFolder()
{
    const QTemporaryDir room;
    MadeFolder store;
    QString error;
    QVERIFY2(store.create(room.filePath(QStringLiteral("made/for/it")), QStringLiteral("Harbour"),
                          {{QStringLiteral("data/Actors.json"), QStringLiteral("[null,\"\u5730\"]")},
                           {QStringLiteral("data/broken.json"), QStringLiteral("[")}},
                          &error),
             qPrintable(error));
    QCOMPARE(store.path(), room.filePath(QStringLiteral("made/for/it/Harbour")));
    QCOMPARE(store.file(QStringLiteral("data/Actors.json")).array().at(1).toString(),
             QStringLiteral("\u5730"));
    QVERIFY(store.file(QStringLiteral("data/broken.json")).isNull());
    QVERIFY(store.file(QStringLiteral("data/none.json")).isNull());
}

void tst_ProjectFolder::givesTheFolderTheUsualPermissions()
{
    const QTemporaryDir room;
    QVERIFY(QDir(room.path()).mkdir(QStringLiteral("usual")));
    MadeFolder store;
    QString error;
    QVERIFY(
        store.create(room.path(), QStringLiteral("P"), {{QStringLiteral("data/a.json"), QString()}}, &error));
    const auto usual = QFile::permissions(room.filePath(QStringLiteral("usual")));
    QCOMPARE(QFile::permissions(room.filePath(QStringLiteral("P"))), usual);
    QCOMPARE(QFile::permissions(room.filePath(QStringLiteral("P/data"))), usual);
    QCOMPARE(QDir(room.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({QStringLiteral("P"), QStringLiteral("usual")}));
}

void tst_ProjectFolder::tellsTheFullPathOfARelativePlace()
{
    const QTemporaryDir room;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(room.path()));
    MadeFolder store;
    QString error;
    const bool isMade = store.create(QStringLiteral("games"), QStringLiteral("P"),
                                     {{QStringLiteral("data/a.json"), QStringLiteral("[1]")}}, &error);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY2(isMade, qPrintable(error));
    QCOMPARE(store.path(), QDir(room.path()).canonicalPath() + QStringLiteral("/games/P"));
    QVERIFY(store.file(QStringLiteral("data/a.json")).isArray());
}

void tst_ProjectFolder::touchesNothingThatIsThere()
{
    const QTemporaryDir room;
    MadeFolder store;
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

void tst_ProjectFolder::keepsTheNameThatGetsANumber()
{
    const QTemporaryDir room;
    MadeFolder store;
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

void tst_ProjectFolder::passesOverALinkToNowhere()
{
    const QTemporaryDir room;
    QVERIFY(QFile::link(QStringLiteral("nowhere"), room.filePath(QStringLiteral("P"))));
    MadeFolder store;
    QString error;
    QVERIFY2(store.create(room.path(), QStringLiteral("P"),
                          {{QStringLiteral("a.json"), QStringLiteral("[]")}}, &error),
             qPrintable(error));
    QCOMPARE(store.path(), room.filePath(QStringLiteral("P (2)")));
    QVERIFY(QFileInfo(room.filePath(QStringLiteral("P"))).isSymLink());
}

void tst_ProjectFolder::saysWhereNothingCanBeWritten()
{
    const QTemporaryDir room;
    QCOMPARE(chmod(qPrintable(room.path()), 0555), 0);
    MadeFolder store;
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

void tst_ProjectFolder::refusesNamesThatAreNoFolder_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"", ".", "..", "../P", "a/b", "/tmp/P"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_ProjectFolder::refusesNamesThatAreNoFolder()
{
    QFETCH(QString, name);
    const QTemporaryDir room;
    MadeFolder store;
    QString error;
    QVERIFY(!store.create(room.path(), name, {{QStringLiteral("a.json"), QStringLiteral("[]")}}, &error));
    QVERIFY(error.contains(QStringLiteral("name")));
    QVERIFY(store.path().isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
}

void tst_ProjectFolder::refusesInTheLanguageOfThePerson_data()
{
    QTest::addColumn<QString>("refusal");
    QTest::newRow("en_US") << QStringLiteral("A project cannot have the name “a/b”");
    QTest::newRow("ja_JP") << QStringLiteral("プロジェクトの名前を「a/b」にはできません。");
    QTest::newRow("zh_CN") << QStringLiteral("项目不能叫“a/b”");
}

void tst_ProjectFolder::refusesInTheLanguageOfThePerson()
{
    QFETCH(QString, refusal);
    const QTemporaryDir room;
    const PracticeTranslator translator(QString::fromLatin1(QTest::currentDataTag()));
    MadeFolder store;
    QString error;
    QVERIFY(!store.create(room.path(), QStringLiteral("a/b"), {}, &error));
    QVERIFY2(error.startsWith(refusal), qPrintable(error));
}

void tst_ProjectFolder::refusesPathsThatLeadOut_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"../a.json", "data/../../a.json", "/tmp/a.json", "..", ".", ""}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_ProjectFolder::refusesPathsThatLeadOut()
{
    QFETCH(QString, name);
    const QTemporaryDir room;
    MadeFolder store;
    QString error;
    QVERIFY(!store.create(room.path(), QStringLiteral("P"), {{name, QStringLiteral("[]")}}, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(store.path().isEmpty());
    QVERIFY(QDir(room.path()).isEmpty());
}

void tst_ProjectFolder::leavesNothingBehindWhenAFileCannotBeWritten()
{
    const QTemporaryDir room;
    MadeFolder store;
    QString error;
    // "a" cannot be a file and a folder.
    QVERIFY(!store.create(
        room.path(), QStringLiteral("P"),
        {{QStringLiteral("a"), QStringLiteral("x")}, {QStringLiteral("a/b.json"), QStringLiteral("[]")}},
        &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(QDir(room.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

void tst_ProjectFolder::listsFoldersThatHoldAProject()
{
    const QTemporaryDir room;
    QVERIFY(ProjectFolder::projectsIn(room.path()).isEmpty());
    QVERIFY(ProjectFolder::projectsIn(room.filePath(QStringLiteral("nowhere"))).isEmpty());
    MadeFolder store;
    QString error;
    for (const char *name : {"b", "A", "c", ".quiet", "50% (%1)"}) {
        QVERIFY(store.create(room.path(), QString::fromLatin1(name),
                             {{QStringLiteral("data/MapInfos.json"), QStringLiteral("[]")}}, &error));
    }
    QVERIFY(store.create(room.path(), QStringLiteral("pictures"), {}, &error));
    QCOMPARE(ProjectFolder::projectsIn(room.path()),
             (QStringList{QStringLiteral(".quiet"), QStringLiteral("50% (%1)"), QStringLiteral("A"),
                          QStringLiteral("b"), QStringLiteral("c")}));
}

void tst_ProjectFolder::writtenFilesHaveTheUsualPermissions()
{
    const QTemporaryDir room;
    QFile usual(room.filePath(QStringLiteral("usual")));
    QVERIFY(usual.open(QIODevice::WriteOnly));
    QString error;
    QVERIFY(ProjectFolder::write(room.path(), {{QStringLiteral("data/a.json"), "[]"}}, {}, &error));
    QCOMPARE(QFile::permissions(room.filePath(QStringLiteral("data/a.json"))), usual.permissions());
}

void tst_ProjectFolder::saysThatAFolderMayNotBeListed_data()
{
    QTest::addColumn<int>("permissions");
    QTest::newRow("not listed") << int(QFile::WriteOwner | QFile::ExeOwner | QFile::ExeOther);
    QTest::newRow("not entered") << int(QFile::ReadOwner | QFile::ReadOther);
}

void tst_ProjectFolder::saysThatAFolderMayNotBeListed()
{
    QFETCH(int, permissions);
    const QTemporaryDir room;
    MadeFolder store;
    QString error;
    QVERIFY(store.create(room.path(), QStringLiteral("P"),
                         {{QStringLiteral("data/MapInfos.json"), QStringLiteral("[]")}}, &error));
    const QString data = store.path() + QStringLiteral("/data");
    QCOMPARE(chmod(qPrintable(room.path()), 0755), 0);
    QVERIFY(QFile::setPermissions(data, QFile::Permissions(permissions)));
    {
        const Unprivileged nobody;
        QVERIFY(!ProjectFolder::read(store.path(), &error));
    }
    QVERIFY(QFile::setPermissions(data, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY2(error.contains(data) && error.contains(QStringLiteral("not permitted")), qPrintable(error));
}

QTEST_GUILESS_MAIN(tst_ProjectFolder)
#include "tst_ProjectFolder.moc"
