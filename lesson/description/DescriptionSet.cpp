#include "lesson/description/DescriptionSet.h"

#include "lesson/description/FormDescription.h"

#include <QDir>

#include <algorithm>

namespace {

/// Collects what is wrong with the references of one file.
struct ReferenceCheck
{
    const DescriptionSet &set;
    const QStringList *commands;
    QString path;
    QStringList *errors;

    void fail(const QString &place, const QString &message) const
    {
        errors->append(QStringLiteral("%1: %2: %3").arg(path, place, message));
    }

    void oneOf(const QString &place, const QString &value, const QStringList &allowed) const
    {
        if (!value.isEmpty() && !allowed.contains(value)) {
            fail(place, QStringLiteral("\"%1\" is unknown; use one of: %2")
                            .arg(value, allowed.join(QStringLiteral(", "))));
        }
    }

    /// An argument is for the editor to judge.
    void commandsOf(const QString &place, const QStringList &texts) const
    {
        for (const QString &text : texts) {
            oneOf(place, text.section(QLatin1Char(' '), 0, 0), *commands);
        }
    }

    void window(const QString &place, const QString &key) const
    {
        if (!key.isEmpty() && (!set.contains(key) || set[key].kind != WindowDescription::Kind::kWindow)) {
            fail(place,
                 QStringLiteral("no window is called \"%1\"; add \"%1.json\" or correct the name").arg(key));
        }
    }

    void action(const QString &place, const ControlAction &action) const
    {
        if (commands != nullptr) {
            commandsOf(place + QStringLiteral(".run"), action.run);
            commandsOf(place + QStringLiteral(".begin"), action.begin);
        }
        window(place + QStringLiteral(".open"), action.open);
        if (!action.popup.isEmpty() && set.popup(action.popup) == nullptr) {
            fail(place + QStringLiteral(".popup"),
                 QStringLiteral("no context menu is called \"%1\"; add it to \"Menu.json\"")
                     .arg(action.popup));
        }
    }

    void menuEntry(const QString &name) const
    {
        if (name.isEmpty()) {
            return;
        }
        QStringList entries;
        const QVector<ControlDescription> controls = set.controlsIn(set.popupKey());
        for (const ControlDescription &control : controls) {
            entries.append(control.name);
        }
        oneOf(QStringLiteral("menus.entry"), name, entries);
    }

    void menu(const MenuDescription &menu) const
    {
        for (const MenuEntryDescription &entry : menu.entries) {
            menuEntry(entry.entry);
            if (commands != nullptr) {
                oneOf(QStringLiteral("menus.run"), entry.run, *commands);
            }
        }
    }

    void control(const ControlDescription &control) const
    {
        const auto actions = control.actions();
        for (const auto &[field, done] : actions) {
            action(control.name + QLatin1Char('.') + field, done);
        }
    }
};

} // namespace

DescriptionSet DescriptionSet::read(const QString &folder, const QStringList *commands, QStringList *errors)
{
    DescriptionSet set;
    const QDir directory(folder);
    const QStringList files = directory.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    if (files.isEmpty()) {
        errors->append(QStringLiteral("%1: holds no window descriptions (*.json)").arg(folder));
    }
    for (const QString &name : files) {
        const QString path = directory.filePath(name);
        const WindowDescription window = WindowDescription::read(path, errors);
        set.m_windows.insert(window.key, window);
        set.m_paths.insert(window.key, path);
    }
    const QDir forms(directory.filePath(QStringLiteral("commands")));
    const QStringList formFiles = forms.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : formFiles) {
        set.addForm(forms.filePath(name), errors);
    }
    if (errors->isEmpty()) {
        set.check(commands, errors);
    }
    return set;
}

void DescriptionSet::addForm(const QString &path, QStringList *errors)
{
    const QString key = QStringLiteral("EventCommand");
    const auto window = m_windows.find(key);
    auto reader = JsonReader::open(path, errors);
    if (!reader) {
        return;
    }
    if (window == m_windows.end()) {
        reader->addError(QStringLiteral("controls"), QStringLiteral("need the window \"%1.json\"").arg(key));
        return;
    }
    // Ahead of the window's own buttons: that is the order of the tab key.
    window->controls = FormDescription::read(*reader, window->size) + window->controls;
}

bool DescriptionSet::contains(const QString &key) const
{
    return m_windows.contains(key);
}

QStringList DescriptionSet::keys() const
{
    return m_windows.keys();
}

const WindowDescription &DescriptionSet::operator[](const QString &key) const
{
    return *m_windows.constFind(key);
}

const PopupDescription *DescriptionSet::popup(const QString &name) const
{
    const auto menus = m_windows.constFind(popupKey());
    if (menus == m_windows.constEnd()) {
        return nullptr;
    }
    for (const PopupDescription &popup : menus->popups) {
        if (popup.name == name) {
            return &popup;
        }
    }
    return nullptr;
}

QString DescriptionSet::popupKey() const
{
    for (const WindowDescription &window : m_windows) {
        if (window.kind == WindowDescription::Kind::kPopup) {
            return window.key;
        }
    }
    return {};
}

QSize DescriptionSet::size(const QString &key) const
{
    const WindowDescription window = m_windows.value(key);
    // Any of the context menus may be open.
    QSize size = window.size;
    for (const PopupDescription &popup : window.popups) {
        size = size.expandedTo(popup.size);
    }
    return size;
}

QStringList DescriptionSet::openedFrom(const QString &key) const
{
    QStringList windows;
    for (const WindowDescription &window : m_windows) {
        const auto opensIt = [this, &key](const ControlDescription &control) {
            const auto actions = control.actions();
            return std::any_of(actions.cbegin(), actions.cend(),
                               [this, &key](const auto &action) { return leadsTo(key, action.second); });
        };
        if (std::any_of(window.controls.cbegin(), window.controls.cend(), opensIt)) {
            windows += window.kind == WindowDescription::Kind::kPart ? window.owner : window.key;
        }
    }
    windows.removeDuplicates();
    return windows;
}

bool DescriptionSet::leadsTo(const QString &key, const ControlAction &action) const
{
    if (action.open == key) {
        return true;
    }
    const PopupDescription *const menu = popup(action.popup);
    return menu != nullptr &&
           std::any_of(menu->controls.cbegin(), menu->controls.cend(),
                       [&key](const ControlDescription &entry) { return entry.click.open == key; });
}

QVector<ControlDescription> DescriptionSet::controlsIn(const QString &key) const
{
    const WindowDescription window = m_windows.value(key);
    QVector<ControlDescription> controls = window.controls;
    for (const PopupDescription &popup : window.popups) {
        for (const ControlDescription &entry : popup.controls) {
            controls.append(entry);
            controls.last().name = popup.name + QLatin1Char('/') + entry.name;
        }
    }
    for (const WindowDescription &part : m_windows) {
        if (part.kind != WindowDescription::Kind::kPart || part.owner != key) {
            continue;
        }
        for (const ControlDescription &control : part.controls) {
            controls.append(control);
            controls.last().geometry.translate(part.place);
        }
    }
    return controls;
}

QStringList DescriptionSet::actionStates(const QString &name) const
{
    QStringList states;
    for (const WindowDescription &window : m_windows) {
        for (const ControlDescription &control : window.controls) {
            if (control.actionName == name) {
                states.append(control.actionState);
                if (control.actionEnds) {
                    states.append(QStringLiteral("close"));
                }
            }
        }
    }
    return states;
}

void DescriptionSet::check(const QStringList *commands, QStringList *errors) const
{
    for (const WindowDescription &window : m_windows) {
        const ReferenceCheck check{*this, commands, m_paths.value(window.key), errors};
        if (window.kind == WindowDescription::Kind::kPart) {
            check.window(QStringLiteral("partOf"), window.owner);
        }
        if (window.kind == WindowDescription::Kind::kArea && window.owner != QLatin1String("screen")) {
            check.window(QStringLiteral("areaOf"), window.owner);
        }
        check.action(QStringLiteral("after"), window.after);
        for (const MenuDescription &menu : window.menus) {
            check.menu(menu);
        }
        for (const ControlDescription &control : window.controls) {
            check.control(control);
        }
        for (const PopupDescription &popup : window.popups) {
            for (const ControlDescription &control : popup.controls) {
                check.control(control);
            }
        }
    }
}
