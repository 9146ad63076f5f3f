#pragma once

#include "Tutorial/overlay/BubbleGeometry.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QString>
#include <QVariantMap>
#include <QWidget>
#include <memory>
#include <vector>

class OverlayHost;
class QPushButton;
class TutorialTooltip;
struct IndicatorUpdate;

/// Marks the present step on the screen: moves the bubble's window with its arrow, icon and hint, and the
/// buttons Next, Yes and No. The widget itself is never shown; it exists for its timer, its state and its
/// pictures.
///
/// All coordinates are screen pixels. Until close() the four windows exist (a bubble that was closed alone
/// comes back on the next tick while a playback is on). close() ends the timer, closes the windows and
/// forgets them; they are deleted with the indicator.
class TutorialIndicator : public QWidget
{
    Q_OBJECT

public:
    /// @p manager must outlive the indicator; it is not owned.
    TutorialIndicator(QWidget *parent, OverlayHost *manager);
    ~TutorialIndicator() override;

    /// Shows @p update: its target, hint, buttons and icon, and the bubble's window.
    void showStep(const IndicatorUpdate &update);

    /// Sets where the bubble goes; x and y both -9999 turn the arrow off and leave the target as it was.
    /// @p windowKey is recorded only.
    void setTargetWindowOffset(int x, int y, const QString &windowKey, bool arrowVisible);

    /// Moves the target and nothing else.
    void setNewXy(int x, int y);

    /// Shows @p hint, plain text, in the bubble; an empty one hides the text. The bubble's height follows on
    /// the next tick. Of a hint longer than any screen the front is kept.
    void setHint(const QString &hint);

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

    [[nodiscard]] bool arrowVisible() const { return m_arrowVisible; }

    /// Whether this widget or one of the buttons is the active window.
    [[nodiscard]] bool isActive() const;

    /// The state that a rebuilt indicator takes over with setSettings. What is missing there reads as 0 or
    /// false.
    [[nodiscard]] QVariantMap getSettings() const;
    void setSettings(const QVariantMap &settings);

    /// Passes on to this widget, which no window manager knows, that a button became active or ceased to be.
    bool eventFilter(QObject *watched, QEvent *event) override;

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
    friend class TutorialTooltip;

    void makeTooltip();
    QPushButton *makeButton(const QString &name, const QString &caption, const QFont &font);
    [[nodiscard]] const QPixmap *icon() const;
    void place();
    void measureHint();
    void repaintTooltip();
    void applyTooltipSettings(const QVariantMap &settings);

    int m_timerId = 0;
    QPixmap m_arrow;
    QPixmap m_click;
    QPixmap m_doubleClick;
    QPixmap m_rightClick;
    QPixmap m_eye;
    QPixmap m_wait;
    QPixmap m_keyboard;
    int m_iconKind = 6;
    int m_offsetX = -9999;
    int m_offsetY = -9999;
    QString m_windowKey;
    QString m_hint;
    int m_hintHeight = BubbleGeometry::kFirstHintHeight;
    QPushButton *m_nextButton = nullptr;
    QPushButton *m_yesButton = nullptr;
    QPushButton *m_noButton = nullptr;
    OverlayHost *m_manager;
    QElapsedTimer m_elapsed;
    int m_lastX = 0;
    int m_lastY = 0;
    int m_newX = 0;
    int m_newY = 0;
    bool m_upsideDown = false;
    bool m_mirror = false;
    bool m_repaintAll = false;
    bool m_nextWindowEnabled = false;
    bool m_yesNoWindowEnabled = false;
    bool m_updateTextEditSize = false;
    TutorialTooltip *m_tooltip = nullptr;
    bool m_arrowVisible = true;
    bool m_activatePending = false;

    std::vector<std::unique_ptr<QWidget>> m_windows; // all that were made, closed ones too
};
