#include "window/ToolIcon.h"

#include "window/Pictures.h"

#include <QPainter>
#include <QPixmap>
#include <QStringList>

namespace {

QString folder()
{
    return QStringLiteral("icons");
}

/// How many pixels of a picture are one of a button, for screens of twice the usual resolution.
constexpr int kScale = 2;

constexpr double kPale = 0.35;

QPixmap paleCopy(const QPixmap &picture)
{
    QPixmap copy(picture.size());
    copy.setDevicePixelRatio(kScale);
    copy.fill(Qt::transparent);
    QPainter painter(&copy);
    painter.setOpacity(kPale);
    painter.drawPixmap(0, 0, picture);
    return copy;
}

} // namespace

QStringList toolIcons()
{
    return Pictures::namesIn(folder());
}

QIcon toolIcon(const QString &name)
{
    QIcon icon;
    QPixmap picture = Pictures::load(folder(), name);
    if (!picture.isNull()) {
        picture.setDevicePixelRatio(kScale);
        icon.addPixmap(picture, QIcon::Normal);
        icon.addPixmap(paleCopy(picture), QIcon::Disabled);
    }
    return icon;
}

QIcon editorIcon()
{
    return QIcon(Pictures::load(QStringLiteral("editor"), QStringLiteral("icon")));
}
