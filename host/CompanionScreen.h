#pragma once

#include "host/HostCommands.h"

#include <QObject>
#include <QRect>

#include <optional>

class HostEditor;

/// Keeps the companion's picture of the screen true: which windows are open, where they are, where the bubble
/// is, and the editor's own tooltips. Positions are global screen pixels.
class CompanionScreen : public QObject
{
    Q_OBJECT

public:
    /// @p editor outlives it.
    explicit CompanionScreen(HostEditor *editor, QObject *parent = nullptr);

    /// A lesson begins: overlays may show, and the windows are told.
    void start();
    void stop();

    /// Shows a step, or what takes its place.
    void tell(const IndicatorUpdate &update);
    /// Moves the bubble and nothing else.
    void move(const QPoint &place);
    /// Moves the bubble so that its arrow points at the middle of the main window: there a person looks. A
    /// step without a place leaves it there; before the first one it is in the corner of the screen.
    void moveToMiddle();

    /// Where the bubble's window was sent last; nothing before the first lesson.
    [[nodiscard]] std::optional<QPoint> place() const { return m_place; }

Q_SIGNALS:
    /// A command for the companion, as HostCommands builds them.
    void sends(const QString &command);

private:
    void tellStackAnew();
    void onMoved(const QString &windowKey, const QPoint &origin);
    void tellScreen();
    void tellApplicationSize();
    void hideTooltip();

    HostEditor *m_editor;
    bool m_plays = false;
    /// A tooltip was hidden before the lesson: with its start it would come back.
    bool m_hasOldTooltip = false;
    std::optional<QPoint> m_place;
    /// As they were told last in this lesson.
    std::optional<QRect> m_screen;
    QSize m_applicationSize;
};
