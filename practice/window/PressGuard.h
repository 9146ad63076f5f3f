#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Swallows what a person presses in the editor for a moment: the second click of a double click on a button
/// of the companion, which by then is gone, is not meant for what lies below.
class PressGuard : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMs = 400;

    explicit PressGuard(QObject *parent = nullptr);

    /// The moment begins.
    void begin();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QElapsedTimer m_since;
    /// A press was swallowed, and its release has not come.
    bool m_holds = false;
};
