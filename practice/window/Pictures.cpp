#include "window/Pictures.h"

#include <QDir>

namespace {

QDir directoryOf(const QString &folder)
{
    return QDir(QStringLiteral(":/practice/pictures/") + folder);
}

} // namespace

// Of a library's bundle, which nothing else refers to. The macro wants no namespace around it.
static void takeBundle()
{
    Q_INIT_RESOURCE(pictures);
}

QStringList Pictures::namesIn(const QString &folder)
{
    takeBundle();
    QStringList names;
    const QStringList files = directoryOf(folder).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        names.append(QFileInfo(file).completeBaseName());
    }
    return names;
}

QPixmap Pictures::load(const QString &folder, const QString &name)
{
    takeBundle();
    return QPixmap(directoryOf(folder).filePath(name + QStringLiteral(".png")));
}
