#pragma once

#include "lesson/description/DescriptionSet.h"
#include "window/EditorWindow.h"
#include "window/MainFrame.h"
#include "window/control/ControlReader.h"

#include <QHash>

#include <memory>

/// Makes all windows of the editor from their descriptions.
class WindowBuilder
{
public:
    /// The windows that were made. The frame owns them all.
    struct Windows
    {
        std::unique_ptr<MainFrame> frame;
        EditorWindow *main = nullptr;
        /// Windows and parts by key, context menus by name.
        QHash<QString, EditorWindow *> byName;
    };

    /// Key of the main window.
    static QString mainKey();

    /// Reads the controls of all windows. Adds a line to @p errors for each thing that is wrong with one;
    /// nothing must be made then. What @p context points at outlives the windows.
    WindowBuilder(const DescriptionSet &descriptions, const ControlContext &context, QStringList *errors);

    /// All windows, hidden.
    [[nodiscard]] Windows make() const;

private:
    struct Plan
    {
        ControlDescription description;
        ControlMaker maker;
    };

    void read(const QString &window, const QVector<ControlDescription> &controls, QStringList *errors);
    EditorWindow *makeWindow(const QString &name, const QSize &size, QWidget *parent,
                             Qt::WindowFlags flags) const;
    void makeMain(Windows *windows) const;
    void makePart(const WindowDescription &description, Windows *windows) const;
    void makeDialog(const WindowDescription &description, Windows *windows) const;
    void makePopup(const PopupDescription &popup, const LocalText &title, Windows *windows) const;

    const DescriptionSet &m_descriptions;
    ControlContext m_context;
    /// By window or context menu, in the order of their description.
    QHash<QString, QVector<Plan>> m_controls;
};
