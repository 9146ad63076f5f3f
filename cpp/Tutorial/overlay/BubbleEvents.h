#pragma once

#include <QObject>

/// What happens to the bubble's window, for whoever keeps its state. An object of its own, since the window's
/// method table is part of what the program promises and has no signals.
class BubbleEvents final : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /// The window was erased whole and painted: IndicatorState::repaintAll is done.
    void paintedWhole();
    /// The window became active or ceased to be.
    void activationChanged();
    /// The window was closed and has no hint any more.
    void closed();
};
