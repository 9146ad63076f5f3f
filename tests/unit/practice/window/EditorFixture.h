#pragma once

#include "window/EditorWindowSet.h"
#include "window/control/MapView.h"
#include "window/control/RowList.h"

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QtTest>

#include <utility>

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A set of windows and everything that it told, one line each and in order.
class Editor
{
public:
    explicit Editor(const char *locale = "en_US")
        : m_set(EditorWindowSet::create(str(locale), &m_errors))
    {
        if (m_set == nullptr) {
            qFatal("%s", qPrintable(m_errors.join(QLatin1Char('\n'))));
        }
        m_set->setProjectsFolder(m_folder.path());
        QObject::connect(
            m_set.get(), &EditorWindows::happened, m_set.get(), [this](const EditorEvent &event) {
                told.append(QStringList{event.type, event.target, event.value}.join(QLatin1Char(',')) +
                            str(" in ") + event.windowKey);
            });
        QObject::connect(m_set.get(), &EditorWindows::pushed, m_set.get(),
                         [this](const QString &key) { told.append(str("push ") + key); });
        QObject::connect(m_set.get(), &EditorWindows::popped, m_set.get(),
                         [this](const QString &key) { told.append(str("pop ") + key); });
        QObject::connect(m_set.get(), &EditorWindows::visibilityChanged, m_set.get(),
                         [this](bool visible) { told.append(visible ? str("visible") : str("invisible")); });
        QObject::connect(m_set.get(), &EditorWindows::popupAbandoned, m_set.get(),
                         [this] { told.append(str("abandoned")); });
        QObject::connect(m_set.get(), &EditorWindows::mainWindowClosed, m_set.get(),
                         [this] { told.append(str("main window closed")); });
    }

    void openProject()
    {
        m_set->open(str("MainWindow"));
        run("newProject.create");
        told.clear();
    }

    void run(const char *command) { m_set->project()->run(str(command), m_set->project()->files()); }
    [[nodiscard]] const GameMap *shownMap() const { return m_set->project()->board().map(); }
    [[nodiscard]] QVector<Row> rows(const char *source) const
    {
        return m_set->project()->sources().rows(str(source), m_set->project()->files());
    }
    /// Where projects are made.
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    EditorWindowSet *operator->() const { return m_set.get(); }

    /// The main window as the desktop has it, around its contents.
    [[nodiscard]] QWidget *frame() const { return m_set->window(str("MainWindow"))->window(); }

    /// Presses and releases a key as the window system does: in whatever has the focus, or as its shortcut.
    static void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focusWindow(), Qt::Key(key), modifiers);
    }
    static void type(const char *text)
    {
        for (const char *letter = text; *letter != 0; ++letter) {
            QTest::keyClick(focusWindow(), *letter);
        }
    }
    /// Once the window system knows of the window that came up or went away last.
    static QWindow *focusWindow()
    {
        QCoreApplication::processEvents();
        return QGuiApplication::focusWindow();
    }

    template<typename Widget>
    Widget *find(const char *window, const char *name) const
    {
        auto *widget = m_set->window(str(window))->findChild<Widget *>(str(name));
        if (widget == nullptr) {
            qFatal("no %s in %s", name, window);
        }
        return widget;
    }

    void click(const char *window, const char *name)
    {
        QTest::mouseClick(find<QAbstractButton>(window, name), Qt::LeftButton);
    }

    void clickRow(const char *window, const char *name, int row, Qt::MouseButton button = Qt::LeftButton)
    {
        auto *list = find<RowList>(window, name);
        QTest::mouseClick(list->viewport(), button, {}, rowCentre(list, row));
    }

    void doubleClickRow(const char *window, const char *name, int row)
    {
        auto *list = find<RowList>(window, name);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, rowCentre(list, row));
    }

    [[nodiscard]] MapView *map() const
    {
        return m_set->window(str("MainWindowClient_mapEditorView"))->findChild<MapView *>();
    }

    /// What was told since the last call.
    QStringList takeTold() { return std::exchange(told, {}); }

    QStringList told;

private:
    static QPoint rowCentre(RowList *list, int row)
    {
        // Rows that have only just changed are laid out when there is time.
        list->doItemsLayout();
        return list->visualItemRect(list->item(row)).center();
    }

    QTemporaryDir m_folder;
    QStringList m_errors;
    std::unique_ptr<EditorWindowSet> m_set;
};
/// What is told when the window @p key opens.
inline QStringList opened(const char *key)
{
    return {str("push %1").arg(str(key)), str("windowState,%1,open in %1").arg(str(key))};
}

/// What is told when the window @p key closes.
inline QStringList closed(const char *key)
{
    return {str("pop %1").arg(str(key)), str("windowState,%1,close in %1").arg(str(key))};
}
