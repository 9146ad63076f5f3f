#pragma once

#include "Tutorial/overlay/BubbleEvents.h"

#include <QPoint>
#include <QWidget>

#include <functional>

class QTextDocument;
class QTextEdit;
struct IndicatorPictures;
struct IndicatorState;

/// The indicator's visible window, the bubble: the hint in a text edit, and beside it the bouncing arrow and
/// the action icon. It takes no input. It shows what the state says, which it never changes; what happens to
/// it, events() tells. Closing it deletes the text edit; it does not delete the window, which must not be
/// asked for anything then.
class TutorialTooltip : public QWidget
{
    Q_OBJECT

public:
    /// Milliseconds since the arrow's bounce began.
    using Clock = std::function<qint64()>;

    /// Built hidden. A hint that the state has already is shown as it stands, and not measured. @p state and
    /// @p pictures must outlive the window.
    TutorialTooltip(const IndicatorState &state, const IndicatorPictures &pictures, Clock clock);
    ~TutorialTooltip() override;

    [[nodiscard]] const BubbleEvents &events() const { return m_events; }

    /// Shows @p document as the hint; it is not owned and must outlive the text edit.
    void showHint(QTextDocument *document);
    void hideHint();

    /// The height that the hint asks for, in pixels.
    [[nodiscard]] int measureHint();
    /// Gives the hint the height of the state.
    void resizeHint();

    /// Puts the hint on the side of the arrow where the state has it.
    void moveHintToItsSide();
    /// Where the hint is, in pixels of the window.
    void moveHint(const QPoint &place);
    [[nodiscard]] QPoint hintPlace() const;

    /// Redraws at once what changes between two ticks while the hint keeps its side.
    void repaintMoving();
    /// Redraws the icon when the event loop next runs.
    void updateIcon();

    /// Writes the line of a change of activation to the log.
    void logActivation(bool indicatorActive) const;

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildTextEdit();

    const IndicatorState &m_state;
    const IndicatorPictures &m_pictures;
    const Clock m_clock;
    BubbleEvents m_events;
    QTextEdit *m_textEdit;
};
