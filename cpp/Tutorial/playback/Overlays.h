#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

class EditorTooltip;
class OverlayHost;
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
    /// @p host is what the overlays talk to; it must outlive them. Nothing is made yet.
    explicit Overlays(OverlayHost &host)
        : m_host(host)
    {
    }

    [[nodiscard]] TutorialIndicator *indicator() const { return m_indicator; }
    [[nodiscard]] EditorTooltip *editorTooltip() const { return m_editorTooltip; }
    void setEditorTooltip(EditorTooltip *tooltip) { m_editorTooltip = tooltip; }

    /// Makes the log overlay unless there is one.
    void createLog();
    /// Makes the indicator unless there is one.
    void createIndicator();

    /// Makes the log overlay, or shows the one there is.
    void createOrShowLog();

    /// Nothing happens below while there is no indicator.
    /// Shows a step, also without a playback.
    void showStep(const IndicatorUpdate &update) const;
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
    /// tooltip hand their state on; the log overlay has none.
    void rebuild();

private:
    /// Closes @p old and keeps it until the next rebuild.
    void retire(QWidget *old);

    OverlayHost &m_host;
    TutorialIndicator *m_indicator = nullptr;
    EditorTooltip *m_editorTooltip = nullptr;
    TutorialLog *m_log = nullptr;
    std::vector<QPointer<QWidget>> m_retired;
};
