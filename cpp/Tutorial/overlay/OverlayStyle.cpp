#include "Tutorial/overlay/OverlayStyle.h"

#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialTooltip.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTextEdit>

namespace {

constexpr qreal kPanelRadius = 6.0;
constexpr int kPanelPadding = 6;
constexpr qreal kSmallestPointSize = 10.5;

const QColor kPanelFill(255, 253, 244);
const QColor kPanelLine(96, 82, 44);
const QColor kText(33, 30, 22);
const QColor kButtonFill(38, 104, 178);
const QColor kButtonHover(57, 128, 207);
const QColor kButtonPressed(24, 74, 133);
const QColor kButtonLine(255, 255, 255, 200);
const QColor kButtonText(255, 255, 255);

// The widget may still be under construction: only its parent is known for what it is then.
bool isHintText(const QWidget *widget)
{
    return widget != nullptr && qobject_cast<const TutorialTooltip *>(widget->parentWidget()) != nullptr;
}

bool isTooltipText(const QWidget *widget)
{
    return widget != nullptr && qobject_cast<const EditorTooltip *>(widget->parentWidget()) != nullptr;
}

bool isFloatingButton(const QWidget *widget)
{
    return widget != nullptr && widget->windowType() == Qt::Tool &&
           qobject_cast<const QPushButton *>(widget) != nullptr;
}

void drawPanel(QPainter *painter, const QRect &rect, const QColor &fill, const QColor &line)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(fill);
    painter->setPen(QPen(line, 1.0));
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), kPanelRadius, kPanelRadius);
    painter->restore();
}

// The window of No begins 8 pixels before that of Yes ends, and both begin where the hint's panel ends: the
// body keeps clear of all of them.
QRect buttonBody(const QRect &window)
{
    return window.adjusted(0, 4, -10, 0);
}

void drawButton(QPainter *painter, const QStyleOptionButton &option)
{
    const QRect body = buttonBody(option.rect);
    const bool pressed = option.state.testFlag(QStyle::State_Sunken);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    const bool reachedByKey = option.state.testFlag(QStyle::State_HasFocus) &&
                              option.state.testFlag(QStyle::State_KeyboardFocusChange);
    const QColor &fill = pressed ? kButtonPressed : hovered ? kButtonHover : kButtonFill;
    drawPanel(painter, body, fill, kButtonLine);
    if (reachedByKey) {
        drawPanel(painter, body.adjusted(3, 3, -3, -3), fill, kButtonText);
    }
    painter->setPen(kButtonText);
    painter->drawText(pressed ? body.translated(0, 1) : body, Qt::AlignCenter | Qt::TextShowMnemonic,
                      option.text);
}

} // namespace

OverlayStyle::OverlayStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

void OverlayStyle::apply()
{
    QApplication::setStyle(new OverlayStyle);
    QFont font = QApplication::font();
    if (font.pointSizeF() < kSmallestPointSize) {
        font.setPointSizeF(kSmallestPointSize);
        QApplication::setFont(font);
    }
}

void OverlayStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    auto *const textEdit = qobject_cast<QTextEdit *>(widget);
    if (textEdit != nullptr && (isHintText(textEdit) || isTooltipText(textEdit))) {
        QPalette palette = textEdit->palette();
        palette.setColor(QPalette::Text, kText);
        palette.setColor(QPalette::Base, kPanelFill);
        textEdit->setPalette(palette);
        textEdit->viewport()->setAutoFillBackground(false);
    }
}

void OverlayStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_ShapedFrame && (isHintText(widget) || isTooltipText(widget))) {
        drawPanel(painter, option->rect, kPanelFill, kPanelLine);
    } else if (element == CE_PushButton && button != nullptr && isFloatingButton(widget)) {
        drawButton(painter, *button);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

QRect OverlayStyle::subElementRect(SubElement element, const QStyleOption *option,
                                   const QWidget *widget) const
{
    if (element == SE_ShapedFrameContents && isHintText(widget)) {
        return option->rect.adjusted(kPanelPadding, 0, -kPanelPadding, 0);
    }
    // The tooltip's text edit is exactly as wide as its document.
    if (element == SE_ShapedFrameContents && isTooltipText(widget)) {
        return option->rect;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}
