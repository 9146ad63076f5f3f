#pragma once

#include "lesson/description/WindowDescription.h"

#include <QObject>

#include <functional>

/// Tells whether the keys for deleting, copying and pasting would do something in a control at present. The
/// control owns it.
class EditKeys : public QObject
{
    Q_OBJECT

public:
    using Can = std::function<bool(const ControlAction &action)>;

    /// @p can tells whether the control could do one of the actions that @p description gives to the keys.
    EditKeys(QWidget *control, const ControlDescription &description, Can can);

    /// Whether @p key, with Ctrl where it is C or V, would do something in @p control, which may be any
    /// widget: text fields have these keys always.
    [[nodiscard]] static bool work(QWidget *control, Qt::Key key);

private:
    [[nodiscard]] bool workHere(Qt::Key key) const;

    ControlAction m_delete;
    ControlAction m_copy;
    ControlAction m_paste;
    Can m_can;
};
