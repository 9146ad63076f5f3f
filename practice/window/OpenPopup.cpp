#include "window/OpenPopup.h"

#include "window/EditorWindow.h"
#include "window/Mnemonics.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include <utility>

namespace {

/// Whether the press is beside @p popup or on its frame, which is one pixel wide and has the mouse that
/// opened it: who presses there again, without moving, means what lies below.
bool isOutside(const QWidget &widget, const QPoint &position, const QWidget &popup)
{
    return widget.window() != &popup ||
           (&widget == &popup && !popup.rect().adjusted(1, 1, -1, -1).contains(position));
}

} // namespace

OpenPopup::OpenPopup(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive) {
            abandon();
        }
    });
    qApp->installEventFilter(this);
}

void OpenPopup::open(EditorWindow *popup, const QPoint &corner)
{
    close();
    m_popup = popup;
    m_popup->setLayer(m_popup->project().drafts().top());
    m_popup->move(corner);
    m_popup->show();
    mark(nullptr);
}

void OpenPopup::close()
{
    if (m_popup != nullptr) {
        takeAway();
        Q_EMIT closed();
    }
}

void OpenPopup::abandon()
{
    if (m_popup != nullptr) {
        takeAway();
        Q_EMIT abandoned();
    }
}

void OpenPopup::takeAway()
{
    mark(nullptr);
    EditorWindow *popup = std::exchange(m_popup, nullptr);
    popup->hide();
    popup->setLayer(&popup->project().files());
}

void OpenPopup::takeAwayAgain(QWidget *widget)
{
    QWidget *const window = widget != nullptr ? widget->window() : nullptr;
    if (window != nullptr && !window->isVisible() && window->windowType() == Qt::Tool) {
        window->show();
        window->hide();
    }
}

QVector<QPushButton *> OpenPopup::entries() const
{
    QVector<QPushButton *> entries;
    const auto buttons = m_popup->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton *button : buttons) {
        if (button->isEnabled() && button->isVisibleTo(m_popup)) {
            entries.append(button);
        }
    }
    return entries;
}

void OpenPopup::mark(QPushButton *entry)
{
    if (m_marked != nullptr) {
        m_marked->setDefault(false);
    }
    m_marked = entry;
    if (m_marked != nullptr) {
        m_marked->setDefault(true);
    }
}

void OpenPopup::markNext(int step)
{
    const QVector<QPushButton *> all = entries();
    if (all.isEmpty()) {
        return;
    }
    const int count = int(all.size());
    const int present = int(all.indexOf(m_marked));
    const int first = step > 0 ? 0 : count - 1;
    mark(all.at(present < 0 ? first : (present + step + count) % count));
}

void OpenPopup::takeKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Menu:
        close();
        return;
    case Qt::Key_Down:
        markNext(1);
        return;
    case Qt::Key_Up:
        markNext(-1);
        return;
    case Qt::Key_Home:
        mark(nullptr);
        markNext(1);
        return;
    case Qt::Key_End:
        mark(nullptr);
        markNext(-1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_marked != nullptr) {
            m_marked->click();
        }
        return;
    default:
        break;
    }
    const QVector<QPushButton *> all = entries();
    for (QPushButton *entry : all) {
        const QChar letter = Mnemonics::letterOf(entry->text());
        if (!letter.isNull() && event.key() == letter.toUpper().unicode()) {
            entry->click();
            return;
        }
    }
}

bool OpenPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (m_popup == nullptr) {
        if (event->type() == QEvent::MouseButtonPress) {
            takeAwayAgain(qobject_cast<QWidget *>(watched));
        }
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (auto *widget = qobject_cast<QWidget *>(watched);
            widget != nullptr && isOutside(*widget, static_cast<QMouseEvent *>(event)->pos(), *m_popup)) {
            close();
        }
        break;
    case QEvent::Enter:
        if (auto *entry = qobject_cast<QPushButton *>(watched);
            entry != nullptr && entry->parentWidget() == m_popup && entry->isEnabled()) {
            mark(entry);
        }
        break;
    case QEvent::ShortcutOverride:
        // All keys are the menu's, also those that choose from the menu bar.
        event->accept();
        return true;
    case QEvent::KeyPress:
        takeKey(*static_cast<QKeyEvent *>(event));
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
