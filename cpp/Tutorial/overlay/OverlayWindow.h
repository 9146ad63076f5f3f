#pragma once

#include <Qt>

class QPoint;
class QTextEdit;
class QWidget;

/// Makes a top-level widget one of the windows above the host editor's: a tool window without a frame, on top
/// of all others, translucent, that is shown without taking the focus, and with the cures that such a window
/// needs. To be called once, before the widget has a native window.
/// @p more: flags that this one has besides. Qt::WindowTransparentForInput lets clicks pass through it.
void prepareOverlay(QWidget *overlay, Qt::WindowFlags more = {});

/// Shows or hides an overlay. Null and one that is so already are left alone, and nothing is allocated then:
/// QWidget::setVisible would, even when it changes nothing.
void setOverlayShown(QWidget *overlay, bool shown);

/// Moves an overlay with a KeepPlace to @p place, screen pixels, or the nearest point that a window can be
/// moved to. Null is left alone.
void moveOverlay(QWidget *overlay, const QPoint &place);

/// Closes an overlay, which hears of it also when it has no native window at the moment.
void closeOverlay(QWidget *overlay);

/// Whether @p overlay is the active window. Null is not. QWidget::isActiveWindow() will not do: it lends
/// every parentless tool window the state "active".
[[nodiscard]] bool isTheActiveWindow(const QWidget *overlay);

/// Makes a text edit inside of such a window show its text and take nothing: no input, no focus, no scroll
/// bars.
/// @p margin: room around the text, in pixels; the panel's line and shadow lie in it.
void prepareOverlayText(QTextEdit *textEdit, int margin);
