#pragma once

#include "Tutorial/overlay/EditorTooltip.h"

#include <QFont>
#include <QTextEdit>

/// An EditorTooltip with a font of the test's.
class TestTooltip final : public EditorTooltip
{
public:
    explicit TestTooltip(OverlayHost *manager, const QFont &first = {})
        : EditorTooltip(nullptr, manager)
        , font(first)
    {
    }

    using QWidget::show;
    void show(const QString &text, int x = 300, int y = 200) { EditorTooltip::show(text, x, y, font); }
    void setSettings(const QVariantMap &settings) { EditorTooltip::setSettings(settings, font); }

    [[nodiscard]] QTextEdit *textEdit() const { return findChild<QTextEdit *>(); }

    QFont font; ///< of the next text
};
