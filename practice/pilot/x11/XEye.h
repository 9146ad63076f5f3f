#pragma once

#include "pilot/Eye.h"
#include "pilot/x11/XConnection.h"

#include <QObject>
#include <QVector>

/// Finds the companion's windows in the X server's tree of windows, and those of the editor through Qt.
class XEye : public Eye
{
public:
    explicit XEye(std::shared_ptr<const XConnection> x);

    /// Whose windows are the overlays: the process, as its windows tell it.
    void setCompanion(qint64 pid) { m_pid = pid; }

    [[nodiscard]] std::optional<SeenOverlays> overlays() override;
    [[nodiscard]] bool takesClickAt(const QPoint &spot) override;
    [[nodiscard]] bool takesPressAt(quint32 window, const QPoint &place) override;
    [[nodiscard]] bool takesKeysAt(const QPoint &spot) override;
    [[nodiscard]] int clicksHeard() override { return m_heard->clicks; }
    [[nodiscard]] bool seesList() override;
    [[nodiscard]] QStringList listRows() override;
    [[nodiscard]] QString windows() override;
    [[nodiscard]] bool takePicture(const QString &path) override;

private:
    /// Listens to all that the windows of this program get.
    struct Ear : QObject
    {
        Ear();
        bool eventFilter(QObject *watched, QEvent *event) override;
        int clicks = 0;
    };

    using Ids = QVector<xcb_window_t>;

    /// Those of @p windows that are on the screen; nothing when one of them is gone.
    [[nodiscard]] std::optional<Ids> viewable(const Ids &windows) const;
    /// Adds those of @p windows that are the companion's to @p found, and returns the children of all of
    /// them; nothing when one of them is gone.
    [[nodiscard]] std::optional<Ids> look(const Ids &windows, QVector<SeenOverlays::Window> *found) const;

    std::shared_ptr<const XConnection> m_x;
    xcb_atom_t m_pidAtom;
    qint64 m_pid = 0;
    std::unique_ptr<Ear> m_heard;
};
