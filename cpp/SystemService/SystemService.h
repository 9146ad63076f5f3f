#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// Settings, default paths, file queries and other small services of the desktop.
///
/// Nothing here belongs to one object: every operation is static, so that it can be called with or without an
/// instance, and invokable by name through the meta-object of one. Settings are kept by a default-constructed
/// QSettings, hence under the application's and the organisation's name.
class SystemService : public QObject
{
    Q_OBJECT

public:
    explicit SystemService(QObject *parent = nullptr);

    /// Opens the address @p url in the desktop's browser.
    Q_INVOKABLE static void openDesktopBrowser(const QString &url);
    /// The folder "Output" in the user's documents, or an empty text when the desktop names no documents
    /// folder.
    Q_INVOKABLE static QString getDefaultOutputPath();
    /// The parent of the user's documents folder as an absolute path, or an empty text when there is none.
    Q_INVOKABLE static QString getDefaultMaterialPath();
    Q_INVOKABLE static QString getUrlFromLocalFile(const QString &file);
    /// Empty when @p url is not the address of a local file.
    Q_INVOKABLE static QString getLocalFileFromUrl(const QString &url);
    /// The directory of the program.
    Q_INVOKABLE static QString getApplicationPath();
    /// Opens the local folder @p folder in the desktop's file manager.
    Q_INVOKABLE static void openDesktopFolder(const QString &folder);
    /// Always false: this is no debug build for authors.
    Q_INVOKABLE static bool debug();
    /// Always false.
    Q_INVOKABLE static bool develop();
    Q_INVOKABLE static QStringList getStyleList();
    /// True for files and directories alike.
    Q_INVOKABLE static bool fileExists(const QString &path);
    /// True for a directory with no visible entry, and for one that is missing or cannot be read.
    Q_INVOKABLE static bool dirEmpty(const QString &path);
    Q_INVOKABLE static bool isDir(const QString &path);
    /// The text of the UTF-8 file @p filename; empty, with a warning, when it cannot be opened.
    Q_INVOKABLE static QString loadFile(const QString &filename);
    /// The bytes of the file @p filename in base64; empty when it cannot be opened (with a warning) or when
    /// not all of its bytes can be read (without), as with more of them than base64 text can hold.
    Q_INVOKABLE static QString getBase64FromFile(const QString &filename);
    Q_INVOKABLE static QString getPlayerPathname();
    Q_INVOKABLE static void setPlayerPathname(const QString &pathname);
    Q_INVOKABLE static QString getRuntimePathname();
    Q_INVOKABLE static void setRuntimePathname(const QString &pathname);
    /// The locale that was chosen last, "en_US" when none was.
    Q_INVOKABLE static QString getDebugLocale();
    Q_INVOKABLE static void setDebugLocale(const QString &locale);
    /// The names that can be chosen as a locale, in the order of the selection.
    Q_INVOKABLE static QStringList getDebugLocaleList();
    /// "portFixed" (bool) and "port" (int).
    Q_INVOKABLE static QVariantMap getDevelopPortInfo();
    Q_INVOKABLE static void setDevelopPortInfo(bool portFixed, int port);
    /// The file's name without its directory and without everything from the first dot on.
    Q_INVOKABLE static QString getFilenameBase(const QString &filename);
};
