#pragma once

#include <QAbstractButton>

class EditorProject;
class MapPainter;

/// Shows one of the project's pictures in a frame and can be clicked like a button.
class PictureBox : public QAbstractButton
{
    Q_OBJECT

public:
    /// @p project and @p painter outlive the box; @p picture is one of EditorProject::pictures().
    PictureBox(EditorProject *project, MapPainter *painter, QString picture, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    EditorProject *m_project;
    MapPainter *m_painter;
    QString m_picture;
};
