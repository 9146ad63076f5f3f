#pragma once

#include <QColor>
#include <QMap>
#include <QPointF>
#include <QSizeF>
#include <QString>

namespace player {

/// A number that goes to another one, tick by tick.
class Sliding
{
public:
    explicit Sliding(double value = 0)
        : m_value(value)
        , m_target(value)
    {
    }

    /// At once with 0 ticks or less.
    void slideTo(double target, int ticks);
    void tick();
    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] double target() const { return m_target; }
    [[nodiscard]] bool isSliding() const { return m_ticksLeft > 0; }

private:
    double m_value;
    double m_target;
    int m_ticksLeft = 0;
};

/// A picture that an event shows. Places are game pixels; sizes are in percent.
struct Picture
{
    QString name;
    bool isCentred = false;
    Sliding x;
    Sliding y;
    Sliding width{100};
    Sliding height{100};
    Sliding opacity{255};
    /// 0 normal, 1 additive, 2 multiply.
    int blending = 0;

    void tick();
};

/// What lies over all of the screen.
struct Screen
{
    /// -255 to 255 each; grey 0 to 255.
    Sliding red;
    Sliding green;
    Sliding blue;
    Sliding grey;
    /// 0 all to be seen, 1 nothing; the colour is black or white.
    Sliding fade;
    bool fadesToWhite = false;
    QColor flash;
    Sliding flashStrength;
    int shakePower = 0;
    int shakeSpeed = 1;
    int shakeTicks = 0;
    /// 0 none, 1 rain, 2 storm, 3 snow.
    int weather = 0;
    Sliding weatherPower;
    QMap<int, Picture> pictures;

    void tick();
    /// In game pixels.
    [[nodiscard]] QPoint shake() const;
};

} // namespace player
