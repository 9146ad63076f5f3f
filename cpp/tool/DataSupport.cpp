#include "tool/DataSupport.h"

#include "tool/LogLine.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>
#include <limits>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\tool\DataSupport)";
// The most that a byte array can hold, its own header and terminator set aside.
constexpr qint64 kMostBytes = std::numeric_limits<int>::max() - 64;

} // namespace

bool DataSupport::readFile(const QString &path, QByteArray &bytes)
{
    return readFile(QFileInfo(path), bytes);
}

bool DataSupport::readFile(const QFileInfo &info, QByteArray &bytes)
{
    const QString path = info.filePath();
    QFile file(path);
    // Opening a pipe would wait for someone to write to it.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        logWarning(kSource, "DataSupport::readFile", 133) << "Failed to open" << path;
        return false;
    }
    QDataStream stream(&file);
    const qint64 size = file.size();
    logDebug(kSource, "DataSupport::readFile", 137) << size;
    bytes.resize(int(std::min(size, kMostBytes)));
    const int count = stream.readRawData(bytes.data(), bytes.size());
    file.close();
    logDebug(kSource, "DataSupport::readFile", 141) << count << bytes.size();
    if (count != size) {
        std::fill(bytes.begin() + std::max(count, 0), bytes.end(), '\0');
        logWarning(kSource, "DataSupport::readFile", 143) << "read bytes differs" << count << size;
        return false;
    }
    return true;
}

bool DataSupport::writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    // Unbuffered, so that the count is what the system took and not what a buffer did.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        logWarning(kSource, "DataSupport::writeFile", 153) << "Failed to open" << path;
        return false;
    }
    QDataStream stream(&file);
    const int count = stream.writeRawData(bytes.constData(), bytes.size());
    file.close();
    if (count != bytes.size()) {
        logWarning(kSource, "DataSupport::writeFile", 160) << "write bytes differs" << count << bytes.size();
        return false;
    }
    return true;
}

bool DataSupport::fileExists(const QString &path)
{
    return QFileInfo::exists(path);
}

QString DataSupport::resourcePath(const QString &name)
{
    return QStringLiteral(":/%1").arg(name);
}
