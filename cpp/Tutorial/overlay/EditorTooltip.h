#pragma once

#include <QString>
#include <QVariantMap>
#include <QWidget>

class MayLeaveScreen;
class OverlayHost;
class QFont;
class QTextEdit;

/// A short-lived text bubble at a screen point: after a second it fades in, stays for 5 seconds and fades
/// out, then stands invisible until it is hidden or shown anew. It takes no input. One tick is 10 ms; a
/// hidden window's ticks do not count. Closing it deletes the text edit and tells the manager; it does not
/// delete the window.
class EditorTooltip : public QWidget
{
    Q_OBJECT

public:
    /// @p manager must outlive the window; it is not owned.
    EditorTooltip(QWidget *parent, OverlayHost *manager);
    ~EditorTooltip() override;

    using QWidget::show;
    /// Shows @p text in @p font, centred on (@p x, @p y) in screen pixels. An empty text shows the window
    /// without its text edit.
    void show(const QString &text, int x, int y, const QFont &font);

    /// The state that a rebuilt tooltip takes over. The opacity is not part of what is read back: it starts
    /// from 0 and stays there until the next step of a fade. @p font: of the text.
    [[nodiscard]] QVariantMap getSettings() const;
    void setSettings(const QVariantMap &settings, const QFont &font);

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void setText(const QString &text, const QFont &font);
    void moveTo(const QPoint &place);
    void applyOpacity(double opacity);

    QTextEdit *m_textEdit;
    OverlayHost *m_manager;
    MayLeaveScreen *m_mayLeaveScreen = nullptr;
    int m_timerId = 0;
    int m_delay = 0;
    int m_timeout = 0;
    int m_fade = 0;
    QString m_text;
};
