#pragma once

#include <QStringList>
#include <QVector>
#include <QWidget>

namespace player {

/// The line below a game that says which key does what. In a narrow window its letters are smaller, and what
/// still finds no room is left out as a whole.
class KeyLine : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLine(QWidget *parent = nullptr);

    /// How many of the keys are told in a line of so many pixels.
    [[nodiscard]] int toldWithin(int width) const;
    [[nodiscard]] int count() const { return int(m_hints.size()); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// Keys, with what they do.
    struct Hint
    {
        QStringList caps;
        QString meaning;
    };

    [[nodiscard]] QFont letters(int pixels) const;
    /// The largest letters with which all of it fits, or the smallest that can be read.
    [[nodiscard]] int lettersWithin(int width) const;
    [[nodiscard]] int widthOf(const Hint &hint, const QFontMetrics &metrics) const;
    [[nodiscard]] int widthOf(int hints, const QFontMetrics &metrics) const;

    QVector<Hint> m_hints;
};

} // namespace player
