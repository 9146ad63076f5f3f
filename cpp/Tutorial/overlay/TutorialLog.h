#pragma once

#include <QWidget>

class OverlayHost;

/// A transparent window of one pixel at (-1, -1), or where the window manager moves it: it shows nothing and
/// tells the manager when the overlays become active.
class TutorialLog : public QWidget
{
    Q_OBJECT

public:
    /// @p manager must outlive the window; it is not owned. The window ends up hidden.
    TutorialLog(QWidget *parent, OverlayHost *manager);

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

private:
    OverlayHost *m_manager;
};
