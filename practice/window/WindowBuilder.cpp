#include "window/WindowBuilder.h"

#include "window/control/ControlTypes.h"

namespace {

using Kind = WindowDescription::Kind;

} // namespace

QString WindowBuilder::mainKey()
{
    return QStringLiteral("MainWindow");
}

WindowBuilder::WindowBuilder(const DescriptionSet &descriptions, const ControlContext &context,
                             QStringList *errors)
    : m_descriptions(descriptions)
    , m_context(context)
{
    const QStringList keys = descriptions.keys();
    for (const QString &key : keys) {
        read(key, descriptions[key].controls, errors);
        for (const PopupDescription &popup : descriptions[key].popups) {
            read(popup.name, popup.controls, errors);
        }
    }
}

void WindowBuilder::read(const QString &window, const QVector<ControlDescription> &controls,
                         QStringList *errors)
{
    for (const ControlDescription &control : controls) {
        m_controls[window].append({control, readControl(control, m_context, errors)});
    }
}

WindowBuilder::Windows WindowBuilder::make() const
{
    Windows windows;
    windows.main.reset(makeWindow(mainKey(), m_descriptions[mainKey()].size, nullptr, Qt::Window));
    windows.byName.insert(mainKey(), windows.main.get());
    const QStringList keys = m_descriptions.keys();
    for (const QString &key : keys) {
        const WindowDescription &description = m_descriptions[key];
        if (description.kind == Kind::kPart) {
            EditorWindow *part = makeWindow(key, description.size, windows.main.get(), Qt::Widget);
            part->move(description.place);
            windows.byName.insert(key, part);
        } else if (description.kind == Kind::kWindow && key != mainKey()) {
            makeDialog(description, &windows);
        }
        for (const PopupDescription &popup : description.popups) {
            makePopup(popup, description.title, &windows);
        }
    }
    return windows;
}

void WindowBuilder::makeDialog(const WindowDescription &description, Windows *windows) const
{
    EditorWindow *dialog = makeWindow(description.key, description.size, windows->main.get(), Qt::Dialog);
    // Blocks the editor, and not the lesson strip, with which the person passes a step.
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setWindowTitle(description.title.value(m_context.locale));
    if (description.closesAfterMs > 0) {
        dialog->setTimedAction(description.closesAfterMs, description.after);
    }
    windows->byName.insert(description.key, dialog);
}

void WindowBuilder::makePopup(const PopupDescription &popup, const LocalText &title, Windows *windows) const
{
    EditorWindow *menu = makeWindow(popup.name, popup.size, windows->main.get(),
                                    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    menu->setAttribute(Qt::WA_ShowWithoutActivating);
    menu->setWindowTitle(title.value(m_context.locale));
    windows->byName.insert(popup.name, menu);
}

EditorWindow *WindowBuilder::makeWindow(const QString &name, const QSize &size, QWidget *parent,
                                        Qt::WindowFlags flags) const
{
    auto *window = new EditorWindow(name, size, m_context.project, parent, flags);
    const QVector<Plan> controls = m_controls.value(name);
    for (const Plan &control : controls) {
        window->add(control.maker(window), control.description);
    }
    return window;
}
