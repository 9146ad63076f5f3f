#pragma once

#include "lesson/description/DescriptionSet.h"

#include <QHash>
#include <QObject>

#include <optional>

class EditorWindow;
class MainFrame;
class OpenPopup;

/// Where the windows stand on the screen, and what is told of it. All positions are global screen pixels.
class WindowPlaces : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive the places. @p windows are windows and parts by key.
    WindowPlaces(const DescriptionSet *descriptions, MainFrame *frame, const OpenPopup *popup,
                 const QHash<QString, EditorWindow *> *windows, QObject *parent = nullptr);

    /// The rectangle of the screen that the editor is on.
    [[nodiscard]] QRect screen() const;

    /// Corner of the contents of what has this key; nothing while it is not open.
    [[nodiscard]] std::optional<QPoint> origin(const QString &key) const;

    /// Puts a window that is about to open where its description says.
    void place(EditorWindow *window) const;
    /// Where a context menu of @p size comes up that is wanted at @p position: all of it on the screen.
    [[nodiscard]] QPoint popupCorner(const QPoint &position, const QSize &size) const;

    /// Tells where the window stands, its parts and its controls, unless that was told already.
    void tell(EditorWindow *window);
    /// Tells it of the open context menu.
    void tellPopup();
    /// What was told counts no more: another window has opened, or the window has another size.
    void forgetTold() { m_told.clear(); }

Q_SIGNALS:
    void moved(const QString &key, const QPoint &origin);
    void controlMoved(const QString &name, const QPoint &position);

private:
    void tellOrigin(const QString &key);

    const DescriptionSet *m_descriptions;
    MainFrame *m_frame;
    const OpenPopup *m_popup;
    const QHash<QString, EditorWindow *> *m_windows;
    QHash<QString, QPoint> m_told;
};
