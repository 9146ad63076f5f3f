#include "window/MainMenu.h"

#include "window/EditorWindow.h"
#include "window/Mnemonics.h"
#include "window/control/ControlState.h"
#include "window/control/EditKeys.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

namespace {

struct KeyOfWord
{
    const char *word;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

constexpr KeyOfWord kKeys[] = {{"copy", Qt::Key_C, Qt::ControlModifier},
                               {"paste", Qt::Key_V, Qt::ControlModifier},
                               {"delete", Qt::Key_Delete, Qt::NoModifier}};

/// Knows what has the focus in the main window, or had it until its menu bar took it.
class FocusOfWindow : public QObject
{
public:
    FocusOfWindow(QMenuBar *bar, const EditorWindow *main)
        : QObject(bar)
        , m_bar(bar)
        , m_main(main)
    {
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, const QWidget *now) {
            if (now == m_bar) {
                m_before = before;
            }
        });
    }

    /// A control in the main window; nullptr when something else has the focus.
    [[nodiscard]] QWidget *control() const
    {
        QWidget *const focus = m_main->window()->focusWidget();
        QWidget *const control = focus == m_bar ? m_before.data() : focus;
        return m_main->isAncestorOf(control) ? control : nullptr;
    }

private:
    const QMenuBar *m_bar;
    const EditorWindow *m_main;
    QPointer<QWidget> m_before;
};

/// Presses the action's key in what has the focus in the main window.
void press(QAction *action, const KeyOfWord &key, const FocusOfWindow *focus)
{
    QWidget *const control = focus->control();
    if (control == nullptr) {
        return;
    }
    // It is the action's own shortcut, which would take it.
    action->setEnabled(false);
    QKeyEvent down(QEvent::KeyPress, key.key, key.modifiers);
    QApplication::sendEvent(control, &down);
    QKeyEvent up(QEvent::KeyRelease, key.key, key.modifiers);
    QApplication::sendEvent(control, &up);
    action->setEnabled(true);
}

/// Lets the action do what its key does in what has the focus. While @p menu is open it is grey where the key
/// would do nothing; the key itself is always passed on.
void follow(QAction *action, const KeyOfWord &key, const QMenu *menu, const FocusOfWindow *focus)
{
    QObject::connect(action, &QAction::triggered, focus, [action, focus, key] { press(action, key, focus); });
    QObject::connect(menu, &QMenu::aboutToShow, action,
                     [action, focus, key] { action->setEnabled(EditKeys::work(focus->control(), key.key)); });
    QObject::connect(menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
}

/// Lets the action be as its tool button, now and always.
void follow(QAction *action, QAbstractButton *button, EditorWindow *main)
{
    const auto take = [action, button, main] {
        action->setVisible(button->isVisibleTo(main));
        action->setEnabled(button->isEnabledTo(main));
        action->setCheckable(button->isCheckable());
        action->setChecked(button->isChecked());
    };
    QObject::connect(main, &EditorWindow::refreshed, action, take);
    QObject::connect(action, &QAction::triggered, button, [button, take] {
        button->click();
        take(); // a click that changed nothing must not change the mark either
    });
    const QString name = Mnemonics::plain(action->text());
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    button->setToolTip(keys.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, keys));
    take();
}

/// Lets the action do what the entry of a context menu does, whether that is open or not.
void follow(QAction *action, const PopupEntry &entry, EditorWindow *main)
{
    const auto take = [action, entry] {
        action->setEnabled(entry.popup->project().isOpen() && entry.popup->meets(entry.control.enabledWhen) &&
                           canRun(entry.control.click, entry.popup));
    };
    QObject::connect(main, &EditorWindow::refreshed, action, take);
    QObject::connect(action, &QAction::triggered, entry.popup, [entry] {
        entry.popup->act(entry.control.click, QCursor::pos(), entry.popup->spot(entry.control.name));
    });
    take();
}

void wire(QAction *action, const MenuEntryDescription &entry, const QMenu *menu, EditorWindow *main,
          const FocusOfWindow *focus, const FindPopupEntry &find)
{
    if (!entry.entry.isEmpty()) {
        follow(action, find(entry.entry), main);
        return;
    }
    if (!entry.button.isEmpty()) {
        follow(action, main->findChild<QAbstractButton *>(entry.button, Qt::FindDirectChildrenOnly), main);
        return;
    }
    if (!entry.run.isEmpty()) {
        QObject::connect(action, &QAction::triggered, main,
                         [main, command = entry.run] { main->run(command); });
        return;
    }
    for (const KeyOfWord &key : kKeys) {
        if (entry.does == QLatin1String(key.word)) {
            follow(action, key, menu, focus);
            return;
        }
    }
    QObject::connect(action, &QAction::triggered, main, [main] { main->window()->close(); });
}

} // namespace

void fillMenuBar(QMenuBar *bar, const QVector<MenuDescription> &menus, EditorWindow *main,
                 const QString &locale, const FindPopupEntry &find)
{
    const auto *const focus = new FocusOfWindow(bar, main);
    for (const MenuDescription &description : menus) {
        if (description.entries.isEmpty()) {
            continue;
        }
        QMenu *const menu = bar->addMenu(description.label.value(locale));
        for (const MenuEntryDescription &entry : description.entries) {
            if (entry.isLine()) {
                menu->addSeparator();
                continue;
            }
            QAction *const action = menu->addAction(entry.label.value(locale));
            QList<QKeySequence> keys;
            for (const QString &key : entry.keys) {
                keys.append(QKeySequence::fromString(key, QKeySequence::PortableText));
            }
            action->setShortcuts(keys);
            wire(action, entry, menu, main, focus, find);
        }
    }
}
