#pragma once

#include <QRect>

class QPainter;
class QStyleOptionButton;
class QWidget;

/// The look of the floating buttons. Next and Yes are the way on and filled; No, told by its object name, is
/// drawn lighter.
namespace OverlayButton {

[[nodiscard]] bool isOne(const QWidget *widget);

/// What of the window of @p button is drawn and can be clicked, in pixels of the window. The windows of Yes
/// and No overlap; their bodies do not.
[[nodiscard]] QRect body(const QWidget *button);

/// Draws @p button in the state of @p option. A caption that is too large for the body is drawn smaller.
void draw(QPainter *painter, const QStyleOptionButton &option, const QWidget *button);

} // namespace OverlayButton
