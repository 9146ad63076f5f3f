#include "LogCapture.h"
#include "SystemService/SystemService.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

/// Takes the place of the desktop for one kind of address.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    explicit UrlCatcher(const QString &scheme)
        : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(m_scheme, this, "take");
    }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(m_scheme); }
    Q_DISABLE_COPY(UrlCatcher)

    [[nodiscard]] QStringList opened() const { return m_opened; }
    Q_INVOKABLE void take(const QUrl &url) { m_opened.append(url.toString()); }

private:
    QString m_scheme;
    QStringList m_opened;
};

} // namespace

class tst_SystemService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void invokablesStandInTheirOrder();
    void invokablesWorkByName();
    void settingsHaveTheirDefaults();
    void settingsAreKept();
    void settingsUseTheirKeys();
    void listsStandInTheirOrder();
    void debugAndDevelopAreFalse();
    void outputPathIsInTheDocuments();
    void materialPathIsTheParentOfTheDocuments();
    void urlsAndLocalFilesAreConverted();
    void applicationPathIsThatOfTheProgram();
    void browserOpensTheUrl();
    void folderOpensAsALocalFile();
    void existenceOfFilesAndDirectories();
    void directoryIsEmptyUntilItHoldsAFile();
    void loadFileReadsUtf8();
    void loadFileWarnsWhenItCannotOpen();
    void base64OfAllBytes();
    void base64WarnsWhenItCannotOpen();
    void base64OfAShortReadIsEmptyWithoutAMessage();
    void base64OfAHugeFileIsEmptyWithoutAMessage_data();
    void base64OfAHugeFileIsEmptyWithoutAMessage();
    void filenameBaseEndsAtTheFirstDot_data();
    void filenameBaseEndsAtTheFirstDot();

private:
    QTemporaryDir m_settingsDir;
    SystemService m_service;
};

void tst_SystemService::init()
{
    QVERIFY(m_settingsDir.isValid());
    QCoreApplication::setOrganizationName(QStringLiteral("TutorialTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_SystemService"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsDir.path());
    QSettings().clear();
}

void tst_SystemService::invokablesStandInTheirOrder()
{
    QStringList signatures;
    const QMetaObject &meta = SystemService::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    const QStringList expected{QStringLiteral("openDesktopBrowser(QString)"),
                               QStringLiteral("getDefaultOutputPath()"),
                               QStringLiteral("getDefaultMaterialPath()"),
                               QStringLiteral("getUrlFromLocalFile(QString)"),
                               QStringLiteral("getLocalFileFromUrl(QString)"),
                               QStringLiteral("getApplicationPath()"),
                               QStringLiteral("openDesktopFolder(QString)"),
                               QStringLiteral("debug()"),
                               QStringLiteral("develop()"),
                               QStringLiteral("getStyleList()"),
                               QStringLiteral("fileExists(QString)"),
                               QStringLiteral("dirEmpty(QString)"),
                               QStringLiteral("isDir(QString)"),
                               QStringLiteral("loadFile(QString)"),
                               QStringLiteral("getBase64FromFile(QString)"),
                               QStringLiteral("getPlayerPathname()"),
                               QStringLiteral("setPlayerPathname(QString)"),
                               QStringLiteral("getRuntimePathname()"),
                               QStringLiteral("setRuntimePathname(QString)"),
                               QStringLiteral("getDebugLocale()"),
                               QStringLiteral("setDebugLocale(QString)"),
                               QStringLiteral("getDebugLocaleList()"),
                               QStringLiteral("getDevelopPortInfo()"),
                               QStringLiteral("setDevelopPortInfo(bool,int)"),
                               QStringLiteral("getFilenameBase(QString)")};
    QCOMPARE(signatures, expected);
}

void tst_SystemService::invokablesWorkByName()
{
    QVERIFY(QMetaObject::invokeMethod(&m_service, "setDebugLocale", Q_ARG(QString, QStringLiteral("zh_CN"))));
    QString locale;
    QVERIFY(QMetaObject::invokeMethod(&m_service, "getDebugLocale", Q_RETURN_ARG(QString, locale)));
    QCOMPARE(locale, QStringLiteral("zh_CN"));
    QVERIFY(QMetaObject::invokeMethod(&m_service, "setDevelopPortInfo", Q_ARG(bool, true), Q_ARG(int, 4711)));
    QVariantMap info;
    QVERIFY(QMetaObject::invokeMethod(&m_service, "getDevelopPortInfo", Q_RETURN_ARG(QVariantMap, info)));
    QCOMPARE(info.value(QStringLiteral("port")).toInt(), 4711);
}

void tst_SystemService::settingsHaveTheirDefaults()
{
    QCOMPARE(SystemService::getPlayerPathname(), QString());
    QCOMPARE(SystemService::getRuntimePathname(), QString());
    QCOMPARE(SystemService::getDebugLocale(), QStringLiteral("en_US"));
    const QVariantMap expected{{QStringLiteral("portFixed"), false}, {QStringLiteral("port"), 1234}};
    QCOMPARE(SystemService::getDevelopPortInfo(), expected);
}

void tst_SystemService::settingsAreKept()
{
    SystemService::setPlayerPathname(QStringLiteral("/opt/player"));
    SystemService::setRuntimePathname(QStringLiteral("/opt/runtime"));
    SystemService::setDebugLocale(QStringLiteral("ja_JP"));
    SystemService::setDevelopPortInfo(true, 5000);
    QCOMPARE(SystemService::getPlayerPathname(), QStringLiteral("/opt/player"));
    QCOMPARE(SystemService::getRuntimePathname(), QStringLiteral("/opt/runtime"));
    QCOMPARE(SystemService::getDebugLocale(), QStringLiteral("ja_JP"));
    const QVariantMap expected{{QStringLiteral("portFixed"), true}, {QStringLiteral("port"), 5000}};
    QCOMPARE(SystemService::getDevelopPortInfo(), expected);
}

void tst_SystemService::settingsUseTheirKeys()
{
    SystemService::setPlayerPathname(QStringLiteral("a"));
    SystemService::setRuntimePathname(QStringLiteral("b"));
    SystemService::setDebugLocale(QStringLiteral("c"));
    SystemService::setDevelopPortInfo(true, 6);
    const QSettings settings;
    QStringList keys = settings.allKeys();
    keys.sort();
    QCOMPARE(keys, (QStringList{QStringLiteral("debugLocale"), QStringLiteral("developPort"),
                                QStringLiteral("developPortFixed"), QStringLiteral("playerPathname"),
                                QStringLiteral("runtimePathname")}));
    QCOMPARE(settings.value(QStringLiteral("playerPathname")).toString(), QStringLiteral("a"));
    QCOMPARE(settings.value(QStringLiteral("runtimePathname")).toString(), QStringLiteral("b"));
    QCOMPARE(settings.value(QStringLiteral("debugLocale")).toString(), QStringLiteral("c"));
    QCOMPARE(settings.value(QStringLiteral("developPortFixed")).toBool(), true);
    QCOMPARE(settings.value(QStringLiteral("developPort")).toInt(), 6);
}

void tst_SystemService::listsStandInTheirOrder()
{
    QCOMPARE(
        SystemService::getStyleList(),
        (QStringList{QStringLiteral("Default"), QStringLiteral("Material"), QStringLiteral("Universal")}));
    QCOMPARE(SystemService::getDebugLocaleList(),
             (QStringList{QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN"),
                          QStringLiteral("Raw")}));
}

void tst_SystemService::debugAndDevelopAreFalse()
{
    QVERIFY(!SystemService::debug());
    QVERIFY(!SystemService::develop());
}

void tst_SystemService::outputPathIsInTheDocuments()
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation);
    QVERIFY(!locations.isEmpty());
    QCOMPARE(SystemService::getDefaultOutputPath(), locations.first() + QStringLiteral("/Output"));
}

void tst_SystemService::materialPathIsTheParentOfTheDocuments()
{
    const QString documents =
        QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).constFirst();
    const QString path = SystemService::getDefaultMaterialPath();
    QVERIFY(QDir::isAbsolutePath(path));
    QCOMPARE(QDir::cleanPath(path), QFileInfo(documents).absolutePath());
}

void tst_SystemService::urlsAndLocalFilesAreConverted()
{
    QCOMPARE(SystemService::getUrlFromLocalFile(QStringLiteral("/tmp/a b.txt")),
             QStringLiteral("file:///tmp/a b.txt"));
    QCOMPARE(SystemService::getLocalFileFromUrl(QStringLiteral("file:///tmp/a%20b.txt")),
             QStringLiteral("/tmp/a b.txt"));
    QCOMPARE(SystemService::getLocalFileFromUrl(QStringLiteral("http://host.example/a")), QString());
}

void tst_SystemService::applicationPathIsThatOfTheProgram()
{
    QCOMPARE(SystemService::getApplicationPath(), QCoreApplication::applicationDirPath());
}

void tst_SystemService::browserOpensTheUrl()
{
    const UrlCatcher catcher(QStringLiteral("http"));
    SystemService::openDesktopBrowser(QStringLiteral("http://host.example/page?x=1"));
    QCOMPARE(catcher.opened(), QStringList{QStringLiteral("http://host.example/page?x=1")});
}

void tst_SystemService::folderOpensAsALocalFile()
{
    const UrlCatcher catcher(QStringLiteral("file"));
    SystemService::openDesktopFolder(QStringLiteral("/tmp/some folder"));
    QCOMPARE(catcher.opened(), QStringList{QStringLiteral("file:///tmp/some folder")});
}

void tst_SystemService::existenceOfFilesAndDirectories()
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("file"));
    const QString missing = dir.filePath(QStringLiteral("missing"));
    writeFile(file, "x");
    QVERIFY(SystemService::fileExists(file));
    QVERIFY(SystemService::fileExists(dir.path()));
    QVERIFY(!SystemService::fileExists(missing));
    QVERIFY(!SystemService::isDir(file));
    QVERIFY(SystemService::isDir(dir.path()));
    QVERIFY(!SystemService::isDir(missing));
}

void tst_SystemService::directoryIsEmptyUntilItHoldsAFile()
{
    const QTemporaryDir dir;
    QVERIFY(SystemService::dirEmpty(dir.path()));
    QVERIFY(SystemService::dirEmpty(dir.filePath(QStringLiteral("missing"))));
    writeFile(dir.filePath(QStringLiteral("file")), "");
    QVERIFY(!SystemService::dirEmpty(dir.path()));
}

void tst_SystemService::loadFileReadsUtf8()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("text"));
    const QString text = QString::fromUtf8("h\u00e9 \u6f22\n\r\nend");
    writeFile(path, text.toUtf8());
    QCOMPARE(SystemService::loadFile(path), text);
}

void tst_SystemService::loadFileWarnsWhenItCannotOpen()
{
    LogCapture log;
    QCOMPARE(SystemService::loadFile(QStringLiteral("/no/such/file")), QString());
    QCOMPARE(log.lines().size(), 1);
    QVERIFY(log.warnings().value(0).endsWith(
        QStringLiteral("SystemService::loadFile 199 failed to read \"/no/such/file\"")));
}

void tst_SystemService::base64OfAllBytes()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bytes"));
    const QByteArray bytes = QByteArray::fromHex("00ff10807f0a0d");
    writeFile(path, bytes);
    QCOMPARE(SystemService::getBase64FromFile(path), QString::fromLatin1(bytes.toBase64()));
    writeFile(path, "");
    QCOMPARE(SystemService::getBase64FromFile(path), QString());
}

void tst_SystemService::base64WarnsWhenItCannotOpen()
{
    LogCapture log;
    QCOMPARE(SystemService::getBase64FromFile(QStringLiteral("/no/such/file")), QString());
    QCOMPARE(log.lines().size(), 1);
    const QString warning = log.warnings().value(0);
    QVERIFY(warning.contains(QStringLiteral("SystemService::getBase64FromFile")));
    QVERIFY(warning.endsWith(QStringLiteral("failed to read \"/no/such/file\"")));
}

void tst_SystemService::base64OfAShortReadIsEmptyWithoutAMessage()
{
    // The kernel's files claim a page and hold less.
    const QString path = QStringLiteral("/sys/devices/system/cpu/online");
    QVERIFY2(QFileInfo(path).size() > 100, "this test needs a file that is shorter than it says");
    LogCapture log;
    QCOMPARE(SystemService::getBase64FromFile(path), QString());
    QCOMPARE(log.lines(), QStringList());
}

void tst_SystemService::base64OfAHugeFileIsEmptyWithoutAMessage_data()
{
    QTest::addColumn<qint64>("gigabytes");
    QTest::newRow("beyond a text") << qint64(1);
    QTest::newRow("beyond int") << qint64(3);
    QTest::newRow("beyond unsigned int") << qint64(5);
}

void tst_SystemService::base64OfAHugeFileIsEmptyWithoutAMessage()
{
    QFETCH(qint64, gigabytes);
    const QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("huge")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(gigabytes << 30)); // a hole: it takes no room
    file.close();
    LogCapture log;
    QCOMPARE(SystemService::getBase64FromFile(file.fileName()), QString());
    QCOMPARE(log.lines(), QStringList());
}

void tst_SystemService::filenameBaseEndsAtTheFirstDot_data()
{
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("base");
    QTest::newRow("several dots") << QStringLiteral("a.b.c") << QStringLiteral("a");
    QTest::newRow("directory") << QStringLiteral("/x.y/name.js") << QStringLiteral("name");
    QTest::newRow("no dot") << QStringLiteral("plain") << QStringLiteral("plain");
    QTest::newRow("leading dot") << QStringLiteral(".hidden") << QString();
}

void tst_SystemService::filenameBaseEndsAtTheFirstDot()
{
    QFETCH(QString, filename);
    QFETCH(QString, base);
    QCOMPARE(SystemService::getFilenameBase(filename), base);
}

QTEST_GUILESS_MAIN(tst_SystemService)
#include "tst_SystemService.moc"
