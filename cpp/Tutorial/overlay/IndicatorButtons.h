#pragma once

#include <QObject>
#include <QPoint>

#include <array>
#include <memory>

class QFont;
class QPushButton;
struct ButtonPlaces;
struct IndicatorState;

/// The floating buttons Next, Yes and No, each a top-level window, built hidden. A closed one is left alone
/// by everything below; it is deleted with the object. Places are the windows' top left in screen pixels.
class IndicatorButtons : public QObject
{
    Q_OBJECT

public:
    enum Button { kNext, kYes, kNo };
    static constexpr int kCount = 3;

    /// @p captions in the order of the buttons.
    IndicatorButtons(const std::array<QString, kCount> &captions, const QFont &font);
    ~IndicatorButtons() override;

    /// The button's window, or null when it was closed.
    [[nodiscard]] QPushButton *window(Button button) const { return m_open[button]; }

    /// Shows those that the step wants and hides the others.
    void follow(const IndicatorState &state) const;
    /// Shows those that the step wants. Allocates nothing when they are shown already.
    void showWanted(const IndicatorState &state) const;
    /// Hides all. Allocates nothing when they are hidden already.
    void hide() const;

    /// Where a button was asked to be; (0, 0) when it was closed.
    [[nodiscard]] QPoint place(Button button) const;
    void move(Button button, const QPoint &place) const;
    void move(const ButtonPlaces &places) const;

    /// Whether one of them is the active window.
    [[nodiscard]] bool isActive() const;

    /// Closes them, one after the other.
    void close();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// One of them became the active window, or none is it any more. What one of them loses to another is
    /// told by the other alone.
    void activationChanged();

private:
    std::array<std::unique_ptr<QPushButton>, kCount> m_windows;
    std::array<QPushButton *, kCount> m_open{};
};
