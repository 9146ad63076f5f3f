#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <vector>

class EditorTooltip;
class OverlayHost;
class QFont;
struct IndicatorUpdate;
class TutorialIndicator;
class TutorialLog;

/// The overlays of the process, each made when it is first needed, shown and hidden together.
///
/// Overlays are top-level widgets without a parent and are held by plain pointers. A closed one stays, since
/// a socket command may still be running inside it, until its successor is replaced too.
class Overlays
{
public:
    /// @p host is whom the overlays tell what happens to them; it must outlive them. Nothing is made yet.
    explicit Overlays(OverlayHost &host)
        : m_host(host)
    {
    }

    [[nodiscard]] TutorialIndicator *indicator() const { return m_indicator; }
    [[nodiscard]] EditorTooltip *editorTooltip() const { return m_editorTooltip; }
    /// The transient tooltip was closed from outside.
    void forgetEditorTooltip() { m_editorTooltip = nullptr; }

    /// What the indicator goes by, this one and any after it: the host editor's rectangle in screen pixels,
    /// and whether a playback is on.
    void setHostRect(const QRect &rect);
    [[nodiscard]] QRect hostRect() const { return m_hostRect; }
    void setRunning(bool running);

    /// Makes the log overlay unless there is one.
    void createLog();
    /// Makes the indicator unless there is one. @p font: of its buttons.
    void createIndicator(const QFont &font);

    /// Makes the log overlay, or shows the one there is.
    void createOrShowLog();

    /// Shows @p text in @p font, centred on @p centre in screen pixels, in the transient tooltip, which is
    /// made when there is none.
    void showTooltip(const QString &text, const QPoint &centre, const QFont &font);

    /// Nothing happens below while there is no indicator.
    /// Shows a step, its hint in @p font, also without a playback.
    void showStep(const IndicatorUpdate &update, const QFont &font) const;
    /// Moves the target, screen pixels, and nothing else.
    void moveTarget(const QPoint &target) const;
    /// Moves the target of the step, screen pixels, to another window or place; the arrow stays on or off.
    void aim(const QPoint &target, const QString &windowKey) const;

    /// The functions below skip what does not exist, and allocate nothing when nothing changes.
    void showIndicator() const;
    void showLog() const;
    void showEditorTooltip() const;
    void hideIndicator() const;
    void hideLog() const;
    void hideEditorTooltip() const;

    /// Closes every overlay there is and makes a new one in its place. The indicator and the transient
    /// tooltip hand their state on; the log overlay has none. @p font: of all texts in the new ones.
    void rebuild(const QFont &font);

private:
    /// Closes @p old and keeps it until the next rebuild.
    void retire(QWidget *old);

    OverlayHost &m_host;
    QRect m_hostRect;
    bool m_running = false;
    TutorialIndicator *m_indicator = nullptr;
    EditorTooltip *m_editorTooltip = nullptr;
    TutorialLog *m_log = nullptr;
    std::vector<QPointer<QWidget>> m_retired;
};
