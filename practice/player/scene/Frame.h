#pragma once

#include "player/game/Sound.h"

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

namespace player {

/// Somebody or something on the map.
struct Sprite
{
    /// Name among the pictures of characters; empty shows nothing but balloon and animation.
    QString image;
    /// Upper left corner of its cell, in cells of the map; between two cells while it walks.
    QPointF at;
    /// 1 down, 2 left, 3 right, 4 up.
    int direction = 1;
    /// 0 to 3, for the picture of a step; 0 stands.
    int step = 0;
    /// 0 to 255.
    int opacity = 255;
    /// How high above its cell it jumps, in game pixels.
    int height = 0;
    /// 0 none, 1 to 10 as the command has them.
    int balloon = 0;
    /// Number of the animation's entry, 0 for none, and its picture, from 0.
    int animation = 0;
    int animationFrame = 0;
    /// Number of the event; -1 for the hero.
    int event = -1;
};

struct ShownPicture
{
    int number = 0;
    /// Among the pictures for events.
    QString name;
    /// Where its origin lies, in game pixels.
    QPointF at;
    bool isCentred = false;
    /// In percent of the size that the drawing has.
    QSizeF scale{100, 100};
    /// 0 to 255.
    double opacity = 255;
    /// 0 normal, 1 additive, 2 multiply.
    int blending = 0;
};

struct FrameBattler
{
    QString name;
    /// Among the pictures of enemies.
    QString image;
    /// Where its feet are, in game pixels.
    QPoint at;
    int opacity = 255;
    bool isSelected = false;
    bool flashes = false;
    int animation = 0;
    int animationFrame = 0;
    /// Floats up from it, such as "12"; empty for none.
    QString popup;
    int hp = 0;
    int maxHp = 0;
};

/// An animation that nobody carries who could be seen, such as one over a member of the party in a battle.
struct FrameAnimation
{
    /// Number of its entry, and its picture, from 0.
    int animation = 0;
    int animationFrame = 0;
    /// In game pixels.
    QRect around;
};

/// Letters of one colour; 0 is the usual one.
struct Run
{
    QString text;
    int colour = 0;
};

struct PanelLine
{
    QVector<Run> runs;

    PanelLine() = default;
    PanelLine(const QString &text) // NOLINT: a plain text is a line
        : runs{{text, 0}}
    {
    }
    [[nodiscard]] QString text() const;
};

/// One row of a list on the screen.
struct PanelRow
{
    QString text;
    /// At the right edge, such as a number or a price.
    QString rightText;
    bool isEnabled = true;
};

struct Gauge
{
    /// What it measures, such as "HP".
    QString label;
    int value = 0;
    int most = 0;
    /// In game pixels, from the upper left corner of the panel.
    QRect rect;
};

/// A window of the game. What is in it is told by role and rows, so whoever looks can answer without knowing
/// the scene.
struct Panel
{
    enum class Background { kWindow = 0, kDim = 1, kTransparent = 2 };

    /// "message", "choices", "number", "items", "scroll", "menu", "gold", "status", "help", "title", "name",
    /// "shop", "save", "skills", "equip", "log", "party", "enemies", "mapName", ...
    QString role;
    /// In game pixels.
    QRect rect;
    Background background = Background::kWindow;
    QString face;
    /// Name of the speaker, or heading.
    QString title;
    QVector<PanelLine> lines;
    /// Of scrolling text: how far the lines are moved up, in game pixels.
    double scrolled = 0;
    QVector<PanelRow> rows;
    /// Rows stand in so many columns, line by line.
    int columns = 1;
    /// -1 for none.
    int current = -1;
    QVector<Gauge> gauges;
    /// A sign says that it waits for a key.
    bool isWaiting = false;

    [[nodiscard]] QStringList texts() const;
};

/// All that is seen and heard in a tick: a value. Game pixels are those of a screen of kWidth x kHeight, and
/// a cell of the map has kCell of them.
struct Frame
{
    static constexpr int kWidth = 640;
    static constexpr int kHeight = 360;
    static constexpr int kCell = 32;

    /// Number of the map that is seen; 0 for scenes without one.
    int map = 0;
    /// The cell, with fractions, at the upper left corner of the screen; negative where the map is smaller.
    QPointF origin;
    /// From back to front.
    QVector<Sprite> sprites;
    /// Among the pictures of backdrops, or of titles in the title scene.
    QString backdrop;
    QString title;
    QVector<ShownPicture> pictures;
    QVector<FrameBattler> battlers;
    /// From back to front; the last one with rows takes the keys.
    QVector<Panel> panels;
    /// Above the panels.
    QVector<FrameAnimation> animations;

    /// -255 to 255 for each colour, and how grey all is, 0 to 255.
    int tintRed = 0;
    int tintGreen = 0;
    int tintBlue = 0;
    int tintGrey = 0;
    /// Over all of it; transparent for none.
    QColor flash = Qt::transparent;
    /// 0 all to be seen, 1 nothing but the colour.
    double fade = 0;
    QColor fadeColour = Qt::black;
    /// 0 none, 1 rain, 2 storm, 3 snow, and how strong it is, 0 to 9.
    int weather = 0;
    double weatherPower = 0;
    /// In game pixels.
    QPoint shake;
    /// Such as "1:30"; empty while none runs.
    QString timer;
    /// A battle that is tried out, where the escape key has nothing to cancel: it ends the game.
    bool isTrialAtRest = false;
    /// Counts the ticks, for whatever moves by itself.
    qint64 tick = 0;

    /// What is heard; no file for silence. Over so many ticks it fades in or out.
    Sound music;
    int musicFadeTicks = 0;
    /// Begun in this tick.
    QVector<Sound> sounds;

    /// The last panel with rows of which one is the current one; nullptr for none.
    [[nodiscard]] const Panel *list() const;
    /// The last panel of this role; nullptr for none.
    [[nodiscard]] const Panel *panel(const char *role) const;
};

} // namespace player
