#pragma once

#include <QFrame>
#include <QJsonValue>

/// Draws a value that grows with the level: the first of a pair of numbers at level 1, and the second added
/// for each level after that, up to 99.
class CurveBox : public QFrame
{
    Q_OBJECT

public:
    explicit CurveBox(QWidget *parent = nullptr);

    /// Anything but a pair of numbers is a curve along the bottom.
    void setPair(const QJsonValue &pair);

    /// The value at a level, from 1.
    [[nodiscard]] int valueAt(int level) const { return m_base + m_growth * (level - 1); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_base = 0;
    int m_growth = 0;
};
