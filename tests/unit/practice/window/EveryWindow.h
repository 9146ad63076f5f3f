#pragma once

#include "SampleEditor.h"
#include "lesson/description/DescriptionSet.h"
#include "project/events/EventCommands.h"

#include <functional>

/// Goes through all that an editor can show, as a person gets there: every window from a control that opens
/// it, with each of its tabs, every context menu, and the form of every event command.
class EveryWindow
{
public:
    /// @p look is told what is to be seen, such as "DatabaseMain tabs 3" or "EventCommand 101".
    using Look = std::function<void(const QString &what, EditorWindow *window)>;

    EveryWindow(SampleEditor *editor, Look look)
        : m_editor(*editor)
        , m_look(std::move(look))
        , m_windows(
              DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &m_errors))
    {
        if (!m_errors.isEmpty()) {
            qFatal("%s", qPrintable(m_errors.join(QLatin1Char('\n'))));
        }
    }

    void visitAll()
    {
        m_editor.run("mode.map");
        visit(str("MainWindow"));
        for (const QString &part : {str("MapEditTreeBox"), str("MainWindowClient_mapEditorView")}) {
            tell(part, m_editor->window(part));
            openFrom(part);
        }
        m_editor.run("mode.event");
        m_editor->project()->board().setCursor(firstEvent());
        for (const PopupDescription &popup : m_windows[m_windows.popupKey()].popups) {
            m_seen.insert(popup.name);
            // Those of commands and pages are of use in windows of their own only, which have buttons for the
            // same.
            if (popup.name != str("CommandPopup") && popup.name != str("EventPagePopup")) {
                openAll(popup.controls, popup.name);
            }
        }
        m_editor.run("mode.map");
    }

    /// Keys of the windows that were seen, names of the context menus, and codes of the forms.
    [[nodiscard]] const QSet<QString> &seen() const { return m_seen; }
    [[nodiscard]] const DescriptionSet &windows() const { return m_windows; }

private:
    [[nodiscard]] QPoint firstEvent() const
    {
        const auto events = m_editor->project()->board().events();
        return events.isEmpty() ? QPoint() : events.constFirst().cell;
    }

    void tell(const QString &what, EditorWindow *window)
    {
        QCoreApplication::processEvents(); // lists lay their rows out when there is time
        m_look(what, window);
    }

    void visit(const QString &key)
    {
        m_seen.insert(key);
        lookAt(key, key, 0);
        if (key == str("EventEditorMain")) {
            visitForms();
        }
    }

    /// Looks at the window with every tab of its rows of tabs from the one with this number on.
    void lookAt(const QString &key, const QString &what, int first)
    {
        EditorWindow *const window = m_editor->window(key);
        const QVector<ControlDescription> &controls = m_windows[key].controls;
        for (int number = first; number < controls.size(); ++number) {
            const ControlDescription &control = controls.at(number);
            const QString source = control.own.object.value(str("source")).toString();
            if (control.type != str("tabs") || !isSeen(window, control.name)) {
                continue;
            }
            const int count = int(window->rows(source).size());
            if (count == 0) {
                continue;
            }
            const int before = window->currentRow(source);
            for (int row = 0; row < count; ++row) {
                window->setCurrentRow(source, row);
                lookAt(key, str("%1 %2 %3").arg(what, control.name).arg(row), number + 1);
            }
            window->setCurrentRow(source, before);
            return;
        }
        tell(what, window);
        openFrom(key);
    }

    void openFrom(const QString &key) { openAll(m_windows[key].controls, key); }

    void openAll(const QVector<ControlDescription> &controls, const QString &key)
    {
        EditorWindow *const window = m_editor->window(key);
        const bool isPopup = !m_windows.contains(key);
        for (const ControlDescription &control : controls) {
            const ControlAction *action =
                window->chosen(control.click.isEmpty() ? control.doubleClick : control.click);
            if (action == nullptr || action->open.isEmpty() || action->close ||
                m_editor->openWindows().contains(action->open) ||
                !(isPopup || isSeen(window, control.name)) || !isNew(action->open, key)) {
                continue;
            }
            const QString opened = action->open;
            window->act(*action, QPoint());
            if (m_editor->openWindows().constLast() == opened) {
                visit(opened);
                m_editor->close(opened);
            }
        }
    }

    /// A chooser shows something else for each window that opens it.
    [[nodiscard]] bool isNew(const QString &key, const QString &opener)
    {
        const QString way = opener.section(QLatin1Char('/'), 0, 0) + QLatin1Char(' ') + key;
        const bool isNew = !m_ways.contains(way) || key == str("ImageSelector");
        m_ways.insert(way);
        return isNew;
    }

    void visitForms()
    {
        const QString list = str("data/Map{maps}/events/{events}/pages/{eventPages}/list");
        EditorWindow *const events = m_editor->window(str("EventEditorMain"));
        events->run(str("commands.of ") + list);
        const QStringList tabs = EventCommands::tabs();
        for (int tab = 0; tab < tabs.size(); ++tab) {
            events->setCurrentRow(str("commandTab"), tab);
            const QVector<Row> commands = events->rows(str("commandsOfTab"));
            for (int row = 0; row < commands.size(); ++row) {
                events->setCurrentRow(str("commandsOfTab"), row);
                if (!events->field(str("commandsOfTab.hasForm")).toBool()) {
                    continue;
                }
                m_editor->open(str("EventCommand"));
                EditorWindow *const form = m_editor->window(str("EventCommand"));
                form->run(str("command.new"));
                const QString code = QString::number(commands.at(row).number);
                m_seen.insert(code);
                m_seen.insert(form->key());
                tell(str("EventCommand ") + code, form);
                openFrom(form->key());
                m_editor->close(form->key());
            }
        }
    }

    static bool isSeen(const EditorWindow *window, const QString &name)
    {
        const auto *widget = window->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly);
        return widget != nullptr && widget->isVisible() && widget->isEnabled();
    }

    SampleEditor &m_editor;
    Look m_look;
    QStringList m_errors;
    DescriptionSet m_windows;
    QSet<QString> m_seen;
    /// Openers with the windows that they opened.
    QSet<QString> m_ways;
};
