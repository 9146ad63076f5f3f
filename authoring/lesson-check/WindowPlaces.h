#pragma once

#include "lesson-check/Finding.h"

#include <QHash>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

class QJsonObject;

/// Where a control stands, in pixels from the top left corner of its window's contents.
struct ControlPlace
{
    QString name; ///< in a context menu: the menu's name, a slash, the entry's name
    QRect geometry;
    int rowHeight = 0; ///< of a list, else 0
    int tabWidth = 0;  ///< of a tab row, else 0
};

/// The windows that a lesson may point into and what is in them, from the practice editor's descriptions.
class WindowPlaces
{
public:
    WindowPlaces() = default;

    /// Reads every description in the folder @p path. What is wrong with one is appended to @p findings,
    /// under the name of the folder @p shownPath.
    WindowPlaces(const QString &path, const QString &shownPath, Findings &findings);

    [[nodiscard]] bool isKnown(const QString &windowKey) const { return m_windows.contains(windowKey); }

    /// Size of the window's contents in pixels; empty for a window that is not known.
    [[nodiscard]] QSize size(const QString &windowKey) const { return m_windows.value(windowKey).size; }

    /// The controls of a window, then those of its parts, with positions in the window. Empty for a window
    /// that is not known.
    [[nodiscard]] QVector<ControlPlace> controls(const QString &windowKey) const;

    /// What the action @p name reports as its last word, one for each control that has it ("" is one, too).
    /// Empty when no window has the action.
    [[nodiscard]] QStringList actionStates(const QString &name) const { return m_actions.values(name); }

    /// All keys, sorted.
    [[nodiscard]] QStringList keys() const;

private:
    struct Window
    {
        QSize size;
        QString partOf; ///< key of the window that this is a part of, or empty
        QPoint place;   ///< of a part, in that window
        QVector<ControlPlace> controls;
    };

    [[nodiscard]] QVector<ControlPlace> readControls(const QJsonObject &window, const QString &prefix);

    QHash<QString, Window> m_windows;
    QMultiHash<QString, QString> m_actions;
};
