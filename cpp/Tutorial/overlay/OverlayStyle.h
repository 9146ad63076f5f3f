#pragma once

#include <QProxyStyle>

/// How the overlays look: the panel behind a hint or a tooltip and the floating buttons. It brings its own
/// colours, so that they read the same above light and dark desktops. Everything else looks as the Fusion
/// style has it.
///
/// A panel takes no room of its own: a text edit as large as its document shows all of it. The document's
/// margin holds the panel's line and shadow. A floating button is masked to what is drawn of it.
class OverlayStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// The size of the letters, in points, unless the desktop has larger ones.
    static constexpr qreal kSmallestPointSize = 10.5;

    OverlayStyle();

    /// Gives the application this style and a font large enough to read. Call once, before the first overlay.
    static void apply();

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption *option,
                                       const QWidget *widget) const override;
};
