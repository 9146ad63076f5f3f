#include "window/control/EditKeys.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <utility>

EditKeys::EditKeys(QWidget *control, const ControlDescription &description, Can can)
    : QObject(control)
    , m_delete(description.deleteKey)
    , m_copy(description.copyKey)
    , m_paste(description.pasteKey)
    , m_can(std::move(can))
{
}

bool EditKeys::work(QWidget *control, Qt::Key key)
{
    if (control == nullptr) {
        return false;
    }
    const auto *const keys = control->findChild<EditKeys *>(QString(), Qt::FindDirectChildrenOnly);
    return keys != nullptr ? keys->workHere(key)
                           : qobject_cast<QLineEdit *>(control) != nullptr ||
                                 qobject_cast<QPlainTextEdit *>(control) != nullptr;
}

bool EditKeys::workHere(Qt::Key key) const
{
    const ControlAction &action = key == Qt::Key_Delete ? m_delete : key == Qt::Key_C ? m_copy : m_paste;
    return !action.isEmpty() && m_can(action);
}
