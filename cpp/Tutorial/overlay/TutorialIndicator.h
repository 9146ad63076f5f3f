#pragma once

#include "Tutorial/overlay/IndicatorButtons.h"
#include "Tutorial/overlay/IndicatorPictures.h"
#include "Tutorial/overlay/IndicatorState.h"

#include <QElapsedTimer>
#include <QRect>
#include <QString>
#include <QVariantMap>
#include <QWidget>

#include <memory>
#include <vector>

class OverlayHost;
class QFont;
class QTextDocument;
class TutorialTooltip;

/// Marks the present step on the screen: keeps its state, and moves and repaints the bubble's window and the
/// buttons Next, Yes and No, which show that state. The widget itself is never shown; it exists for its timer
/// and its events.
///
/// All coordinates are screen pixels. Until close() the four windows exist (a bubble that was closed alone
/// comes back on the next tick while a playback is on). close() ends the timer, closes the windows and
/// forgets them; they are deleted with the indicator.
class TutorialIndicator : public QWidget
{
    Q_OBJECT

public:
    /// @p manager must outlive the indicator; it is not owned. @p font: of the buttons.
    TutorialIndicator(QWidget *parent, OverlayHost *manager, const QFont &font);
    ~TutorialIndicator() override;

    /// The host editor's rectangle in screen pixels; a null rectangle until it has said so.
    void setHostRect(const QRect &rect) { m_hostRect = rect; }

    /// Whether a playback is on: a bubble that was closed alone comes back then.
    void setRunning(bool running) { m_running = running; }

    /// Shows @p update: its target, hint in @p font, buttons and icon, and the bubble's window.
    void showStep(const IndicatorUpdate &update, const QFont &font);

    /// Sets where the bubble goes; x and y both -9999 turn the arrow off and leave the target as it was.
    /// @p windowKey is recorded only.
    void setTargetWindowOffset(int x, int y, const QString &windowKey, bool arrowVisible);

    /// Moves the target and nothing else.
    void setNewXy(int x, int y);

    /// Shows @p hint, plain text, in the bubble; an empty one hides the text. The bubble's height follows on
    /// the next tick. Of a hint longer than any screen the front is kept.
    void setHint(const QString &hint, const QFont &font);

    /// Begins a step: restarts the bounce and shows or hides the buttons.
    void init(bool next, bool yesNo);

    /// 0 click, 1 double click, 2 right click, 3 eye, 4 wait, 5 keyboard; anything else is no icon.
    void setIconKind(int iconKind);

    /// Shows the buttons that the step wants. Allocates nothing when they are shown already.
    void showButtons();
    /// Hides all buttons. Allocates nothing when they are hidden already.
    void hideButtons();

    /// Shows or hides the bubble's window if there is one. Allocates nothing when that is how it is already.
    void showTooltip();
    void hideTooltip();

    /// The bubble's window, or null while there is none.
    [[nodiscard]] TutorialTooltip *tooltip() const { return m_tooltip; }

    [[nodiscard]] bool arrowVisible() const { return m_state.arrowVisible; }

    /// Whether this widget or one of the buttons is the active window.
    [[nodiscard]] bool isActive() const;

    /// The state that a rebuilt indicator takes over with setSettings. What is missing there reads as 0 or
    /// false. @p font: of the hint.
    [[nodiscard]] QVariantMap getSettings() const;
    void setSettings(const QVariantMap &settings, const QFont &font);

public Q_SLOTS:
    void nextClicked();
    void yesClicked();
    void noClicked();

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    /// Milliseconds since the bounce began.
    [[nodiscard]] virtual qint64 elapsedMs() const;

private:
    void makeTooltip();
    void connectButtons();
    void showHintIn(QTextDocument *document, const QFont &font);
    void place();
    void repaintTooltip();

    int m_timerId = 0;
    OverlayHost *const m_manager;
    const IndicatorPictures m_pictures;
    IndicatorState m_state;
    QRect m_hostRect;
    bool m_running = false;
    QElapsedTimer m_elapsed;
    bool m_activatePending = false;

    std::unique_ptr<IndicatorButtons> m_buttons;
    TutorialTooltip *m_tooltip = nullptr;
    std::vector<std::unique_ptr<TutorialTooltip>> m_tooltips; // all that were made, closed ones too
};
