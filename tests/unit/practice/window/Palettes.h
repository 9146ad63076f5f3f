#pragma once

#include <QPalette>

/// A desktop's colours, with @p window for what is around @p base, and @p text on both.
inline QPalette desktopPalette(const QColor &window, const QColor &base, const QColor &text)
{
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Button, window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x6c, 0xb0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

inline QPalette lightPalette()
{
    return desktopPalette(QColor(0xef, 0xef, 0xef), Qt::white, Qt::black);
}

inline QPalette darkPalette()
{
    return desktopPalette(QColor(0x35, 0x35, 0x35), QColor(0x23, 0x23, 0x23), Qt::white);
}
