#pragma once

#include <QWidget>

class QPainter;
class QTextEdit;
class TutorialIndicator;

/// The indicator's visible window: the hint in a text edit, and beside it the bouncing arrow and the action
/// icon. It takes no input. All of its state but the text edit lies in the indicator, which builds, moves and
/// repaints it. Closing it deletes the text edit and makes the indicator forget it; it does not delete the
/// window.
class TutorialTooltip : public QWidget
{
    Q_OBJECT

public:
    /// @p indicator must be a TutorialIndicator that outlives this window. It does not become the parent.
    explicit TutorialTooltip(QWidget *indicator);
    ~TutorialTooltip() override;

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    friend class TutorialIndicator;

    /// The place of the largest icon, on the side on which it is drawn, in pixels of the window.
    [[nodiscard]] QRect iconRect() const;
    void erase(QPainter &painter);
    void drawArrow(QPainter &painter) const;
    void drawIcon(QPainter &painter) const;

    TutorialIndicator *m_indicator;
    QTextEdit *m_textEdit;
};
