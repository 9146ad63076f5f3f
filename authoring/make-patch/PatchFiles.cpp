#include "make-patch/PatchFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// A disk that fills up takes the beginning without complaint; the rest is tried again for the reason.
bool writeAll(QSaveFile &file, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

} // namespace

bool PatchFiles::read(const QString &path, std::string &text, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    text = bytes.toStdString();
    return true;
}

bool PatchFiles::write(const QString &path, const QByteArray &bytes, QString &error)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile()) {
        // Not even a device: root would put a file in its place.
        error = QStringLiteral("cannot write %1: it is not a regular file").arg(path);
        return false;
    }
    QSaveFile file(path);
    // Flushed by hand: commit() does not see that its own flush fails, and puts the empty file in place.
    if (!file.open(QIODevice::WriteOnly) || !writeAll(file, bytes) || !file.flush() || !file.commit()) {
        error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}
