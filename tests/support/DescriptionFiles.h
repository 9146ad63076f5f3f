#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

/// A folder of description files that a test writes for itself.
class DescriptionFiles
{
public:
    /// Writes the file and gives its path.
    QString write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        return file.fileName();
    }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};
