#pragma once

#include "lesson/EditorEvent.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

/// A window or context menu that is open, and how it came up.
struct OpenWindow
{
    /// Window key, or the name of the context menu.
    QString name;
    bool isMenu = false;
    /// What was used to open it; none where that is not known.
    ControlSpot cause;
    /// Of a window that an entry of a context menu has opened: how that menu came up.
    ControlSpot menuCause;

    /// Whether both are the same, opened in the same way as far as that is known.
    [[nodiscard]] bool isLike(const OpenWindow &other) const;
};
using OpenWindows = QVector<OpenWindow>;

/// Which windows are open and how each of them came up, followed from what the editor tells.
class WindowTrail
{
public:
    /// What is open is what the editor says, @p openWindows; how it came up stays where that was known.
    void follow(const QStringList &openWindows);
    /// The windows and the open menu, if one is, are these.
    void assign(const OpenWindows &open) { m_open = open; }
    /// Takes note of what an event says about the way to a window or menu; follow() comes before.
    void take(const EditorEvent &event);

    [[nodiscard]] const OpenWindows &open() const { return m_open; }
    /// How the context menu that was open last came up.
    [[nodiscard]] const OpenWindow &lastMenu() const { return m_lastMenu; }
    /// How each window and menu was opened last, by name.
    [[nodiscard]] const QHash<QString, ControlSpot> &lastCauses() const { return m_lastCauses; }
    void setLastCauses(const QHash<QString, ControlSpot> &causes) { m_lastCauses = causes; }

    [[nodiscard]] static QJsonObject toJson(const OpenWindow &window);
    [[nodiscard]] static OpenWindow fromJson(const QJsonObject &json);
    [[nodiscard]] static QJsonObject toJson(const ControlSpot &spot);
    [[nodiscard]] static ControlSpot spotFromJson(const QJsonObject &json);

private:
    OpenWindows m_open;
    OpenWindow m_lastMenu;
    QHash<QString, ControlSpot> m_lastCauses;
};
