#pragma once

#include "Tutorial/overlay/OverlayHost.h"
#include "Tutorial/playback/HostWindows.h"
#include "Tutorial/playback/Overlays.h"
#include "Tutorial/playback/PlaybackVisibility.h"
#include "TutorialFont/TutorialFont.h"

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

struct IndicatorUpdate;

/// A lesson as it plays: the overlays, whether they may be seen, and what the host editor told of its
/// windows.
///
/// Positions are global screen pixels.
class Playback final : public QObject, public OverlayHost
{
    Q_OBJECT

public:
    explicit Playback(QObject *parent = nullptr);

    /// Begins with no window open. Nothing happens when one is on already.
    void start();
    void stop();
    [[nodiscard]] bool running() const { return m_visibility.running(); }

    /// Makes the overlays of a step unless they are there. Nothing shows before a playback, or a step.
    void createOverlays();
    /// Shows a step, also without a playback. Nothing happens in these three before createOverlays().
    void showStep(const IndicatorUpdate &update) { m_overlays.showStep(update, m_font.getFont()); }
    void moveTarget(const QPoint &target) const { m_overlays.moveTarget(target); }
    void aim(const QPoint &target, const QString &windowKey) const { m_overlays.aim(target, windowKey); }
    /// Shows @p text, centred on @p centre, in the transient tooltip.
    void showTooltip(const QString &text, const QPoint &centre);
    void hideTooltip() const { m_overlays.hideEditorTooltip(); }
    /// The transient tooltip, or null while there is none.
    [[nodiscard]] const EditorTooltip *editorTooltip() const { return m_overlays.editorTooltip(); }
    /// Which font the overlays take when they are made, and hints and tooltips with their next text.
    void setFontLocale(const QString &locale) { m_font.setLocale(locale); }

    /// The host editor's windows went from the screen; the overlays follow with the next tick.
    void hostHid() { m_visibility.hostHid(); }
    /// They are back: the overlays blink, so that they come to lie above them.
    void hostCameBack();
    /// Whether a window of this process is the active one. Other states than active and inactive change
    /// nothing.
    void setApplicationState(Qt::ApplicationState state);
    /// To be called every 100 ms: what is due after the host editor hid or showed itself.
    void tick();
    void updateOverlayVisibility() override;

    [[nodiscard]] const HostWindows &windows() const { return m_windows; }
    void pushWindow(const QString &windowKey);
    void popWindow();
    void setPosition(const QString &key, const QPoint &position) { m_windows.setPosition(key, position); }
    void setApplicationSize(const QSize &size);
    /// The host editor's rectangle; a null rectangle until it has said so.
    void setHostRect(const QRect &rect) { m_overlays.setHostRect(rect); }
    [[nodiscard]] QRect hostRect() const { return m_overlays.hostRect(); }

    // What the overlays tell.
    void send(const QString &text) override { Q_EMIT answered(text); }
    void onOverlayActivated() override;
    void onEditorTooltipClosed() override { m_overlays.forgetEditorTooltip(); }

Q_SIGNALS:
    /// The learner answered with a button: the command for the host editor.
    void answered(const QString &command);
    void currentWindowKeyChanged();

private:
    Overlays m_overlays;
    HostWindows m_windows;
    PlaybackVisibility m_visibility;
    TutorialFont m_font;
};
