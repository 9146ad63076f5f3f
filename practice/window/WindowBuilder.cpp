#include "window/WindowBuilder.h"

#include "window/AccessibleNames.h"
#include "window/MainMenu.h"
#include "window/Mnemonics.h"
#include "window/control/ControlTypes.h"
#include "window/control/TabsControl.h"

#include <QAbstractButton>

namespace {

using Kind = WindowDescription::Kind;

/// Keeps the window's title: @p text with what stands in @p field in its %1, or @p title where nothing does.
void connectTitle(EditorWindow *window, const QString &field, const QString &title, const QString &text)
{
    QObject::connect(window, &EditorWindow::refreshed, window, [window, field, title, text] {
        const QString name = window->field(field).toString();
        window->setWindowTitle(name.isEmpty() ? title : text.arg(name));
    });
}

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
        declareTabs(descriptions[key].controls, context.project);
    }
    for (const QString &key : keys) {
        read(key, descriptions[key].controls, errors);
        const QString &titleField = descriptions[key].titleField;
        const QString problem =
            titleField.isEmpty() ? QString() : context.project->fields().problemOf(titleField);
        if (!problem.isEmpty()) {
            errors->append(QStringLiteral("%1.json: titleField: %2").arg(key, problem));
        }
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
    makeMain(&windows);
    const QStringList keys = m_descriptions.keys();
    for (const QString &key : keys) {
        const WindowDescription &description = m_descriptions[key];
        if (description.kind == Kind::kPart) {
            makePart(description, &windows);
        } else if (description.kind == Kind::kWindow && key != mainKey()) {
            makeDialog(description, &windows);
        }
    }
    return windows;
}

void WindowBuilder::makeMain(Windows *windows) const
{
    const WindowDescription &description = m_descriptions[mainKey()];
    windows->frame = std::make_unique<MainFrame>();
    windows->main = makeWindow(mainKey(), description.size, windows->frame.get(), Qt::Widget);
    if (description.minimumSize.isValid()) {
        windows->main->setMinimumSize(description.minimumSize);
    }
    const QStringList keys = m_descriptions.keys();
    for (const QString &key : keys) {
        for (const PopupDescription &popup : m_descriptions[key].popups) {
            makePopup(popup, m_descriptions[key].title, windows);
        }
    }
    const auto entryWith = [this, windows](const QString &name) {
        const QString popup = name.section(QLatin1Char('/'), 0, 0);
        PopupEntry entry{windows->byName.value(popup), {}};
        for (const ControlDescription &control : m_descriptions.popup(popup)->controls) {
            if (control.name == name.section(QLatin1Char('/'), 1)) {
                entry.control = control;
            }
        }
        return entry;
    };
    fillMenuBar(windows->frame->menuBar(), description.menus, windows->main, m_context.locale, entryWith);
    windows->frame->setContents(windows->main);
    windows->byName.insert(mainKey(), windows->main);
    nameControls(windows->main, description.controls, description.title.value(m_context.locale));
}

void WindowBuilder::makePart(const WindowDescription &description, Windows *windows) const
{
    EditorWindow *part = makeWindow(description.key, description.size, windows->main, Qt::Widget);
    windows->main->place(part, {description.place, description.size}, description.stretch);
    windows->byName.insert(description.key, part);
    nameControls(part, description.controls, description.title.value(m_context.locale));
}

void WindowBuilder::makeDialog(const WindowDescription &description, Windows *windows) const
{
    EditorWindow *dialog = makeWindow(description.key, description.size, windows->main, Qt::Dialog);
    const QString title = description.title.value(m_context.locale);
    dialog->setWindowTitle(title);
    if (!description.titleField.isEmpty()) {
        connectTitle(dialog, description.titleField, title, description.titleText.value(m_context.locale));
    }
    nameControls(dialog, description.controls, dialog->windowTitle());
    if (description.closesAfterMs > 0) {
        dialog->setTimedAction(description.closesAfterMs, description.after);
    }
    windows->byName.insert(description.key, dialog);
}

void WindowBuilder::makePopup(const PopupDescription &popup, const LocalText &title, Windows *windows) const
{
    EditorWindow *menu = makeWindow(popup.name, popup.size, windows->main,
                                    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    menu->setAttribute(Qt::WA_ShowWithoutActivating);
    menu->setWindowTitle(title.value(m_context.locale));
    QVector<LocalText> labels;
    for (const ControlDescription &entry : popup.controls) {
        labels.append(entry.label);
    }
    const QStringList texts = Mnemonics::give(labels, m_context.locale);
    for (int entry = 0; entry < texts.size(); ++entry) {
        const QString &name = popup.controls.at(entry).name;
        if (auto *button = menu->findChild<QAbstractButton *>(name, Qt::FindDirectChildrenOnly)) {
            button->setText(texts.at(entry));
        }
    }
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
