#include "window/ControlHand.h"

#include "lesson/QuotedRow.h"
#include "window/EditorWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QSpinBox>

namespace {

using Kind = ControlUse::Kind;

/// As far as a hint's "to the lower right" has to go to show, in pixels.
constexpr QPoint kDragBy(100, 68);

/// A mouse above one widget.
class Mouse
{
public:
    Mouse(QWidget *target, const QPoint &at)
        : m_target(target)
        , m_at(at)
    {
    }

    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        if (m_target != nullptr) {
            const QPoint local = m_target->mapFromGlobal(m_at);
            QMouseEvent event(type, local, m_target->window()->mapFromGlobal(m_at), m_at, button, buttons,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(m_target, &event);
        }
    }

    void press(Qt::MouseButton button, QEvent::Type type = QEvent::MouseButtonPress)
    {
        send(type, button, button);
    }
    void release(Qt::MouseButton button) { send(QEvent::MouseButtonRelease, button, Qt::NoButton); }

    void moveTo(const QPoint &at)
    {
        m_at = at;
        send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    }

private:
    QPointer<QWidget> m_target;
    QPoint m_at;
};

void click(QWidget *target, const QPoint &at, Qt::MouseButton button)
{
    Mouse mouse(target, at);
    mouse.press(button);
    mouse.release(button);
}

void doubleClick(QWidget *target, const QPoint &at)
{
    Mouse mouse(target, at);
    mouse.press(Qt::LeftButton);
    mouse.release(Qt::LeftButton);
    mouse.press(Qt::LeftButton, QEvent::MouseButtonDblClick);
    mouse.release(Qt::LeftButton);
}

void drag(QWidget *target, const QPoint &at)
{
    Mouse mouse(target, at);
    mouse.press(Qt::LeftButton);
    const QRect room(target->mapToGlobal(QPoint()), target->size());
    const QPoint to = at + kDragBy;
    mouse.moveTo({qMin(to.x(), room.right()), qMin(to.y(), room.bottom())});
    mouse.release(Qt::LeftButton);
}

void pressKey(QWidget *widget, int key, const QString &text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &release);
}

void selectAll(QWidget *widget)
{
    if (auto *const edit = qobject_cast<QLineEdit *>(widget)) {
        edit->selectAll();
    } else if (auto *const box = qobject_cast<QAbstractSpinBox *>(widget)) {
        box->selectAll();
    }
}

void type(QWidget *widget, const ControlUse &use)
{
    const QPointer<QWidget> alive = widget;
    widget->setFocus();
    if (!use.text.isEmpty()) {
        selectAll(widget);
        for (const QChar letter : use.text) {
            pressKey(widget, letter.toUpper().unicode(), QString(letter));
        }
    }
    if (use.pressesEnter && alive != nullptr) {
        pressKey(widget, Qt::Key_Return, QStringLiteral("\r"));
    }
}

bool isControl(const QWidget *widget)
{
    return widget != nullptr && widget->isEnabled() &&
           qobject_cast<const EditorWindow *>(widget->parentWidget()) != nullptr;
}

bool choose(QWidget *widget, int number)
{
    auto *const box = qobject_cast<QComboBox *>(widget);
    if (box == nullptr || number < 0 || number >= box->count()) {
        return false;
    }
    box->setCurrentIndex(number);
    Q_EMIT box->activated(number);
    return true;
}

bool chooseQuoted(QComboBox *box, const QString &hint)
{
    QStringList rows;
    for (int row = 0; row < box->count(); ++row) {
        rows.append(box->itemText(row));
    }
    return choose(box, quotedRow(hint, rows, QString()));
}

} // namespace

ControlHand::ControlHand(const ControlFinder *finder)
    : m_finder(finder)
{
}

bool ControlHand::perform(const ControlUse &use) const
{
    if (use.spot.control == ControlSpot::dismiss()) {
        QWidget *const menu = m_finder->menu();
        if (menu != nullptr) {
            pressKey(menu, Qt::Key_Escape);
        }
        return menu != nullptr;
    }
    if (!m_finder->rectOf(use.spot)) {
        m_finder->reveal(use.spot);
    }
    const std::optional<QRect> rect = m_finder->rectOf(use.spot);
    QWidget *const target = m_finder->targetOf(use.spot);
    if (!rect || !target->isEnabled()) {
        return false;
    }
    QWidget *const widget = m_finder->widgetOf(use.spot);
    switch (use.kind) {
    case Kind::kClickQuoted:
        if (auto *const box = qobject_cast<QComboBox *>(widget)) {
            return chooseQuoted(box, use.text);
        }
        click(target, rect->center(), Qt::LeftButton);
        break;
    case Kind::kClick:
        click(target, rect->center(), Qt::LeftButton);
        break;
    case Kind::kDoubleClick:
        doubleClick(target, rect->center());
        break;
    case Kind::kRightClick:
        click(target, rect->center(), Qt::RightButton);
        break;
    case Kind::kDrag:
        drag(target, rect->center());
        break;
    case Kind::kType:
        if (use.spot.part >= 0) {
            click(target, rect->center(), Qt::LeftButton);
        }
        type(widget, use);
        break;
    case Kind::kChoose:
        return choose(widget, use.text.toInt());
    case Kind::kEnd:
        return false; // no control does that
    }
    return true;
}

bool ControlHand::performAt(QWidget *focus, const ControlUse &use)
{
    if (use.kind != Kind::kType || !isControl(focus)) {
        return false;
    }
    type(focus, use);
    return true;
}
