#include "SystemService/SystemService.h"

#include "tool/LogLine.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTextStream>
#include <QUrl>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\SystemService\SystemService.cpp)";

// Four characters stand for three bytes, and a text takes less than 2^30 characters.
constexpr qint64 kMostBytesForBase64 = (qint64(1) << 30) / 4 * 3 - 1024;

QString settingText(const QString &key, const QString &fallback = {})
{
    return QSettings().value(key, fallback).toString();
}

void storeSetting(const QString &key, const QVariant &value)
{
    QSettings().setValue(key, value);
}

QString playerPathnameKey()
{
    return QStringLiteral("playerPathname");
}
QString runtimePathnameKey()
{
    return QStringLiteral("runtimePathname");
}
QString debugLocaleKey()
{
    return QStringLiteral("debugLocale");
}
QString developPortFixedKey()
{
    return QStringLiteral("developPortFixed");
}
QString developPortKey()
{
    return QStringLiteral("developPort");
}

} // namespace

SystemService::SystemService(QObject *parent)
    : QObject(parent)
{
}

void SystemService::openDesktopBrowser(const QString &url)
{
    QDesktopServices::openUrl(QUrl(url));
}

QString SystemService::getDefaultOutputPath()
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation);
    if (locations.isEmpty()) {
        return {};
    }
    return locations.first() + QLatin1Char('/') + QStringLiteral("Output");
}

QString SystemService::getDefaultMaterialPath()
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation);
    if (locations.isEmpty()) {
        return {};
    }
    return QFileInfo(locations.first() + QStringLiteral("/..")).absoluteFilePath();
}

QString SystemService::getUrlFromLocalFile(const QString &file)
{
    return QUrl::fromLocalFile(file).toString();
}

QString SystemService::getLocalFileFromUrl(const QString &url)
{
    return QUrl(url).toLocalFile();
}

QString SystemService::getApplicationPath()
{
    return QCoreApplication::applicationDirPath();
}

void SystemService::openDesktopFolder(const QString &folder)
{
    QDesktopServices::openUrl(QUrl(QUrl::fromLocalFile(folder).toString()));
}

bool SystemService::debug()
{
    return false;
}

bool SystemService::develop()
{
    return false;
}

QStringList SystemService::getStyleList()
{
    return {QStringLiteral("Default"), QStringLiteral("Material"), QStringLiteral("Universal")};
}

bool SystemService::fileExists(const QString &path)
{
    return QFileInfo::exists(path);
}

bool SystemService::dirEmpty(const QString &path)
{
    // The count includes "." and "..".
    return QDir(path).count() < 3;
}

bool SystemService::isDir(const QString &path)
{
    return QFileInfo(path).isDir();
}

QString SystemService::loadFile(const QString &filename)
{
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly)) {
        logWarning(kSource, "SystemService::loadFile", 199) << "failed to read" << filename;
        return {};
    }
    QTextStream stream(&file);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec("UTF-8"); // which Qt 6 takes unless told otherwise
#endif
    return stream.readAll();
}

QString SystemService::getBase64FromFile(const QString &filename)
{
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly)) {
        logWarning(kSource, "SystemService::getBase64FromFile", 214) << "failed to read" << filename;
        return {};
    }
    if (file.size() > kMostBytesForBase64) {
        return {};
    }
    QDataStream stream(&file);
    QByteArray bytes(static_cast<int>(file.size()), Qt::Uninitialized);
    if (stream.readRawData(bytes.data(), bytes.size()) != bytes.size()) {
        return {};
    }
    return QString::fromLatin1(bytes.toBase64());
}

QString SystemService::getPlayerPathname()
{
    return settingText(playerPathnameKey());
}

void SystemService::setPlayerPathname(const QString &pathname)
{
    storeSetting(playerPathnameKey(), pathname);
}

QString SystemService::getRuntimePathname()
{
    return settingText(runtimePathnameKey());
}

void SystemService::setRuntimePathname(const QString &pathname)
{
    storeSetting(runtimePathnameKey(), pathname);
}

QString SystemService::getDebugLocale()
{
    return settingText(debugLocaleKey(), QStringLiteral("en_US"));
}

void SystemService::setDebugLocale(const QString &locale)
{
    storeSetting(debugLocaleKey(), locale);
}

QStringList SystemService::getDebugLocaleList()
{
    return {QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN"), QStringLiteral("Raw")};
}

QVariantMap SystemService::getDevelopPortInfo()
{
    const QSettings settings;
    return {{QStringLiteral("portFixed"), settings.value(developPortFixedKey(), false).toBool()},
            {QStringLiteral("port"), settings.value(developPortKey(), 1234).toInt()}};
}

void SystemService::setDevelopPortInfo(bool portFixed, int port)
{
    storeSetting(developPortFixedKey(), portFixed);
    storeSetting(developPortKey(), port);
}

QString SystemService::getFilenameBase(const QString &filename)
{
    return QFileInfo(filename).baseName();
}
