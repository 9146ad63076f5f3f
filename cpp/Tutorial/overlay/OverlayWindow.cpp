#include "Tutorial/overlay/OverlayWindow.h"

#include "Tutorial/overlay/ClickThrough.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/OwnWindowGroup.h"
#include "Tutorial/overlay/Placement.h"
#include "Tutorial/overlay/StayHidden.h"

#include <QApplication>
#include <QTextDocument>
#include <QTextEdit>
#include <QWindow>

void prepareOverlay(QWidget *overlay, Qt::WindowFlags more)
{
    overlay->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | more);
    overlay->setAttribute(Qt::WA_TranslucentBackground);
    overlay->setAttribute(Qt::WA_ShowWithoutActivating);
    new OwnWindowGroup(overlay);
    new StayHidden(overlay);
    if (more.testFlag(Qt::WindowTransparentForInput)) {
        new ClickThrough(overlay);
    }
}

void setOverlayShown(QWidget *overlay, bool shown)
{
    if (overlay != nullptr && overlay->isHidden() == shown) {
        overlay->setVisible(shown);
    }
}

void moveOverlay(QWidget *overlay, const QPoint &place)
{
    if (overlay != nullptr) {
        KeepPlace::moveTo(overlay, clampToReach(place));
    }
}

void closeOverlay(QWidget *overlay)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // The close goes by way of the native window there, and one that was hidden early lost it.
    if (overlay->windowHandle() != nullptr) {
        overlay->windowHandle()->create();
    }
#endif
    overlay->close();
}

bool isTheActiveWindow(const QWidget *overlay)
{
    return overlay != nullptr && QApplication::activeWindow() == overlay;
}

void prepareOverlayText(QTextEdit *textEdit, int margin)
{
    textEdit->setAutoFormatting(QTextEdit::AutoAll);
    textEdit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textEdit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textEdit->setWindowFlag(Qt::WindowTransparentForInput);
    // With it a blinking cursor would stand in the text while the window is active.
    textEdit->setFocusPolicy(Qt::NoFocus);
    textEdit->document()->setDocumentMargin(margin);
}
