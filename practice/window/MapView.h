#pragma once

#include <QPoint>
#include <QWidget>

class EditorProject;
class MapPainter;

/// Shows the project's map and paints on it with the present tool. As large as the map; put it into a scroll
/// area.
class MapView : public QWidget
{
    Q_OBJECT

public:
    /// @p project and @p painter outlive the view.
    MapView(EditorProject *project, MapPainter *painter, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The left button went down on the map.
    void pressed();
    /// The left button came up again on the map.
    void clicked();
    /// The right button was clicked; @p position in global screen pixels.
    void menuRequested(const QPoint &position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void fitToMap();
    [[nodiscard]] QPoint cellAt(const QPoint &position) const;
    [[nodiscard]] bool drawsOnRelease() const;

    EditorProject *m_project;
    MapPainter *m_painter;
    bool m_drawing = false;
    QPoint m_strokeStart;
    QPoint m_strokeEnd;
    /// The cell that is marked in event mode.
    QPoint m_cursor;
};
