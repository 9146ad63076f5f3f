#include "window/control/ToolButtonControl.h"

#include "window/ToolIcon.h"

#include <QToolButton>

ControlMaker readToolButton(ControlReader &reader)
{
    const QString label = reader.label();
    const QString icon = reader.json().text(QStringLiteral("icon"));
    reader.oneOf(QStringLiteral("icon"), icon, toolIcons());
    const QString needs = reader.json().text(QStringLiteral("needs"), QString());
    reader.oneOf(QStringLiteral("needs"), needs, {QStringLiteral("project")});
    reader.readAction();
    reader.enableWhen(
        [needs](const EditorWindow *window) { return needs.isEmpty() || window->project().isOpen(); });
    return [label, icon, description = reader.description()](EditorWindow *window) {
        constexpr int kFontPixels = 10;
        constexpr int kIconPixels = 24;
        auto *button = new QToolButton(window);
        button->setText(label);
        button->setIcon(toolIcon(icon));
        button->setIconSize({kIconPixels, kIconPixels});
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        QFont small = window->font();
        small.setPixelSize(kFontPixels);
        button->setFont(small);
        keepFresh(button, window, [button, window, command = description.click.run.value(0)] {
            const std::optional<bool> on = window->project().commands().isOn(command);
            button->setCheckable(on.has_value());
            button->setChecked(on.value_or(false));
        });
        wireClick(button, description, window);
        return button;
    };
}
