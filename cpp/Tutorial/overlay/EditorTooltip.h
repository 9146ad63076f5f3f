#pragma once

#include <QString>
#include <QVariantMap>
#include <QWidget>

class MayLeaveScreen;
class OverlayHost;
class QTextEdit;

/// A short-lived text bubble at a screen point: after a second it fades in, stays for 5 seconds and fades
/// out, then stands invisible until it is hidden or shown anew. It takes no input. One tick is 10 ms; a
/// hidden window's ticks do not count. Closing it deletes the text edit and makes the manager forget the
/// window; it does not delete the window.
class EditorTooltip : public QWidget
{
    Q_OBJECT

public:
    /// @p manager must outlive the window; it is not owned.
    EditorTooltip(QWidget *parent, OverlayHost *manager);
    ~EditorTooltip() override;

    using QWidget::show;
    /// Shows @p text on the manager's tooltip, centred on (@p x, @p y) in screen pixels; builds the tooltip
    /// and hands it to the manager if there is none. An empty text shows the window without its text edit.
    static void show(OverlayHost *manager, const QString &text, int x, int y);

    /// The state that a rebuilt tooltip takes over. The opacity is not part of what is read back: it starts
    /// from 0 and stays there until the next step of a fade.
    [[nodiscard]] QVariantMap getSettings() const;
    void setSettings(const QVariantMap &settings);

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void present(const QString &text, int x, int y);
    void setText(const QString &text);
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
