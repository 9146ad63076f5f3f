#include "Tutorial/overlay/IndicatorPictures.h"

IndicatorPictures IndicatorPictures::load()
{
    return {QPixmap(QStringLiteral(":/resource/png/arrow.png")),
            {QPixmap(QStringLiteral(":/resource/png/click.png")),
             QPixmap(QStringLiteral(":/resource/png/double_click.png")),
             QPixmap(QStringLiteral(":/resource/png/right_click.png")),
             QPixmap(QStringLiteral(":/resource/png/eye.png")),
             QPixmap(QStringLiteral(":/resource/png/wait.png")),
             QPixmap(QStringLiteral(":/resource/png/keyboard.png"))}};
}

const QPixmap *IndicatorPictures::icon(int kind) const
{
    const bool known = kind >= 0 && kind < static_cast<int>(icons.size());
    return known ? &icons[static_cast<std::size_t>(kind)] : nullptr;
}
