#pragma once

#include <QVector>
#include <QWidget>

#include <optional>

namespace player {

/// The line below a game that says which key does what; a click on a key presses it. In a narrow window its
/// letters are smaller, and what still finds no room is left out as a whole.
class KeyLine : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLine(QWidget *parent = nullptr);

    /// How many of the keys are told in a line of so many pixels.
    [[nodiscard]] int toldWithin(int width) const;
    [[nodiscard]] int count() const { return int(m_hints.size()); }

    /// Where the cap of the key is seen, in pixels of the line; empty where it was left out.
    [[nodiscard]] QRect capOf(Qt::Key key) const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The key was pressed with the mouse.
    void pressed(Qt::Key key);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    struct Cap
    {
        Qt::Key key;
        QString text;
    };
    /// Keys, with what they do.
    struct Hint
    {
        QVector<Cap> caps;
        QString meaning;
    };
    /// What stands where: a cap, or what the caps before it do, which has no key.
    struct Piece
    {
        QRect rect;
        QString text;
        std::optional<Qt::Key> key;
    };

    [[nodiscard]] QFont letters(int pixels) const;
    /// The largest letters with which all of it fits, or the smallest that can be read.
    [[nodiscard]] int lettersWithin(int width) const;
    [[nodiscard]] int widthOf(const Hint &hint, const QFontMetrics &metrics) const;
    [[nodiscard]] int widthOf(int hints, const QFontMetrics &metrics) const;

    /// What is told, from the left to the right.
    [[nodiscard]] QVector<Piece> pieces() const;

    QVector<Hint> m_hints;
};

} // namespace player
