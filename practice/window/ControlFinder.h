#pragma once

#include "host/EditorState.h"
#include "lesson/ControlSpot.h"
#include "lesson/description/DescriptionSet.h"

#include <QRect>
#include <QStringList>

#include <functional>
#include <optional>

class EditorWindow;
class Project;
class QWidget;

/// What there is to look at among the windows of the editor; all of it outlives who looks.
struct EditorView
{
    const DescriptionSet *descriptions = nullptr;
    Project *project = nullptr;
    /// The window or part with a key, or the context menu with a name; nullptr for none.
    std::function<EditorWindow *(const QString &)> window;
    /// The context menu that is open; nullptr for none.
    std::function<EditorWindow *()> popup;
    /// Keys of the open windows without the menu, last on top.
    const QStringList *stack = nullptr;
    QString locale;
};

/// Finds controls, rows, tabs and cells where they are at present. Global screen pixels.
class ControlFinder
{
public:
    explicit ControlFinder(const EditorView &view);

    /// The control at @p point of the window with this key, in the pixels of positions in a lesson: of
    /// several that take turns there, the one that shows.
    [[nodiscard]] std::optional<ControlSpot> controlAt(const QString &windowKey, const QPoint &point) const;

    /// The widget of the control, whether it shows or not; nullptr when there is none.
    [[nodiscard]] QWidget *widgetOf(const ControlSpot &spot) const;
    /// The widget that takes the mouse for it.
    [[nodiscard]] QWidget *targetOf(const ControlSpot &spot) const;

    /// The context menu that is open; nullptr for none.
    [[nodiscard]] QWidget *menu() const;

    /// Where it can be used; nothing while it cannot be seen, is grey or its window is blocked.
    [[nodiscard]] std::optional<QRect> rectOf(const ControlSpot &spot) const;
    void reveal(const ControlSpot &spot) const;

    /// As HostEditor has them.
    [[nodiscard]] QString meaningOf(const ControlSpot &spot) const;
    [[nodiscard]] QVector<ControlSpot> chosen() const;

    /// How a person calls it: the text of the row, tab or button; else its accessible name.
    [[nodiscard]] QString nameOf(const ControlSpot &spot) const;

private:
    [[nodiscard]] bool isUsable(const ControlSpot &spot) const;
    /// Rectangle of the spot's part in @p target, which is its target; all of it without a part.
    [[nodiscard]] QRect partRect(const ControlSpot &spot, const QWidget *target) const;
    void addChosen(const QString &key, QVector<ControlSpot> *spots) const;

    EditorView m_view;
};
