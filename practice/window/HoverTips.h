#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Tells when the mouse rests on a control that has a tool tip. While a companion shows the tips, Qt does
/// not.
class HoverTips : public QObject
{
    Q_OBJECT

public:
    explicit HoverTips(QObject *parent = nullptr);

    /// Whether somebody else shows what hovered() tells.
    void setShownElsewhere(bool shown);

Q_SIGNALS:
    /// @p centre in global screen pixels, below the control.
    void hovered(const QString &text, const QPoint &centre);
    void unhovered();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void leave();

    bool m_shownElsewhere = false;
    QPointer<QWidget> m_hovered;
};
