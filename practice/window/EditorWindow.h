#pragma once

#include "lesson/description/WindowDescription.h"

#include <QWidget>

class EditorProject;
class MapPainter;
class QPushButton;

/// What the controls of all windows share; the pointers outlive the windows.
struct EditorWindowContext
{
    EditorProject *project;
    MapPainter *painter;
    QString locale;

    /// The text in the locale.
    [[nodiscard]] QString text(const LocalText &texts) const;
};

/// One window, part of a window or context menu, with the controls of its description at their places. It
/// reports what the person does and what the controls ask for; it opens and closes nothing itself.
class EditorWindow : public QWidget
{
    Q_OBJECT

public:
    /// @p flags of the top level window; without any it is a part of @p parent.
    EditorWindow(const QString &key, const QSize &size, const QVector<ControlDescription> &controls,
                 const EditorWindowContext &context, QWidget *parent, Qt::WindowFlags flags);

    [[nodiscard]] QString key() const { return objectName(); }

    /// Names of the controls with their places in this window, in pixels.
    [[nodiscard]] QVector<QPair<QString, QPoint>> controlPlaces() const;

    /// Passes on what a control did: called by the controls. @p screenPosition is where the mouse was.
    void report(const QString &type, const QString &target, const QString &value);
    void act(const ControlAction &action, const QPoint &screenPosition);

    /// The button that the return key presses.
    void setDefaultButton(QPushButton *button);

Q_SIGNALS:
    /// Something that a condition may wait for, in its words.
    void happened(const QString &type, const QString &target, const QString &value);
    /// A control was used that closes or opens something; its command has run already.
    void asked(const ControlAction &action, const QPoint &screenPosition);
    /// The frame's close button or the escape key was used. The window is still open.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    EditorProject *m_project;
    QVector<QWidget *> m_controls;
    QPushButton *m_defaultButton = nullptr;
};
