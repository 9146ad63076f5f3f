#pragma once

#include <QElapsedTimer>
#include <QObject>

class MainFrame;
class QWidget;

/// Keeps mouse and keys from everything in the editor but the window on top. Qt's own modal windows would
/// block the whole frame of the main window, and with it the lesson strip, which has to stay of use. Where
/// one window closes, the keyboard goes to the one below it.
class InputBlock : public QObject
{
    Q_OBJECT

public:
    /// @p frame outlives the block.
    explicit InputBlock(MainFrame *frame, QObject *parent = nullptr);

    /// @p window is on top now; nullptr, or one in the frame, blocks nothing.
    void setTop(QWidget *window);
    /// Whether a dialog keeps @p widget from being used.
    [[nodiscard]] bool blocks(const QWidget *widget) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// From the main window to the one on top.
    void handKeyboardOn();

    MainFrame *m_frame;
    QWidget *m_top = nullptr;
    QElapsedTimer m_topSince;
};
