#include "window/MenuKey.h"

#include "window/EditorWindow.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

/// A widget of the editor's that has no text menu; nullptr for any other object.
QWidget *listOrMap(QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (widget == nullptr || qobject_cast<QLineEdit *>(widget) != nullptr ||
        qobject_cast<QTextEdit *>(widget) != nullptr || qobject_cast<QPlainTextEdit *>(widget) != nullptr ||
        qobject_cast<QAbstractSpinBox *>(widget) != nullptr) {
        return nullptr;
    }
    for (const QWidget *above = widget; above != nullptr; above = above->parentWidget()) {
        if (qobject_cast<const EditorWindow *>(above) != nullptr) {
            return widget;
        }
    }
    return nullptr;
}

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

void rightClick(QWidget *widget)
{
    if (auto *list = qobject_cast<QAbstractItemView *>(widget)) {
        list->scrollTo(list->currentIndex());
    }
    const QRect current = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const QPoint spot = current.isValid() ? current.center() : widget->rect().center();
    auto *area = qobject_cast<QAbstractScrollArea *>(widget);
    QWidget *const target = area != nullptr ? area->viewport() : widget;
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent click(type, spot, target->mapTo(target->window(), spot), target->mapToGlobal(spot),
                          Qt::RightButton, type == QEvent::MouseButtonPress ? Qt::RightButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(target, &click);
    }
}

} // namespace

MenuKey::MenuKey(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool MenuKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isMenuKey(*static_cast<QKeyEvent *>(event))) {
        if (QWidget *const widget = listOrMap(watched)) {
            rightClick(widget);
            return true;
        }
    }
    // The same key, as the window system tells of it once more.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard &&
        listOrMap(watched) != nullptr) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}
