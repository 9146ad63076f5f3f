#pragma once

#include <QMargins>
#include <QPointer>
#include <QWidget>

class EditorWindow;
class QMenuBar;
class QVBoxLayout;

/// The main window as the desktop has it: the menu bar, below it the contents, from whose corner the
/// positions of lessons count, and at the bottom what is docked there. The contents take the room when it is
/// resized.
class MainFrame : public QWidget
{
    Q_OBJECT

public:
    MainFrame();

    [[nodiscard]] QMenuBar *menuBar() const { return m_menuBar; }

    /// Takes over what stands below the menu bar.
    void setContents(EditorWindow *contents);

    /// Takes @p strip over and shows it below the contents, as wide as they are.
    void dock(QWidget *strip);
    /// Whether the widget is what is docked, or stands in it.
    [[nodiscard]] bool isDocked(const QWidget *widget) const;
    /// Where what is docked stands on the screen; empty while nothing is seen of it.
    [[nodiscard]] QRect stripOnScreen() const;
    /// What a window manager puts around a window, at most, in pixels.
    [[nodiscard]] static QMargins decoration();

    /// Makes room for contents of @p size, in pixels, with as much of it as @p screen has room for, and puts
    /// the corner of the contents at @p place, or as near to it as the frame stays on the screen.
    void fit(const QPoint &place, const QSize &size, const QRect &screen);

Q_SIGNALS:
    /// The frame's close button was used, or the menu's entry for it. The window is still open.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    /// As in other programs, with its first entry chosen; not while a dialog is open.
    void openFirstMenu();
    /// Heights of what stands above and below the contents when the frame is @p width wide.
    [[nodiscard]] int heightAbove(int width) const;
    [[nodiscard]] int heightBelow() const;

    QMenuBar *m_menuBar;
    QVBoxLayout *m_layout;
    EditorWindow *m_contents = nullptr;
    QPointer<QWidget> m_strip;
};
