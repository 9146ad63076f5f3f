#pragma once

#include <QAbstractButton>

#include <functional>

/// Shows a picture in a frame and can be clicked like a button.
class PictureBox : public QAbstractButton
{
    Q_OBJECT

public:
    /// Gives the picture in a size, in pixels.
    using Draw = std::function<QPixmap(const QSize &size)>;

    explicit PictureBox(Draw draw, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Draw m_draw;
};
