#include "Tutorial/overlay/OverlayStyle.h"

#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/OverlayButton.h"
#include "Tutorial/overlay/TutorialTooltip.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QTextEdit>

namespace {

constexpr qreal kPanelRadius = 6.0;
constexpr qreal kShadow = 3.0;

const QColor kPanelFill(255, 253, 244);
const QColor kPanelLine(96, 82, 44);
const QColor kShadowLayer(0, 0, 0, 34);
const QColor kText(33, 30, 22);

// The widget may still be under construction: only its parent is known for what it is then.
bool isHintText(const QWidget *widget)
{
    return widget != nullptr && qobject_cast<const TutorialTooltip *>(widget->parentWidget()) != nullptr;
}

bool isTooltipText(const QWidget *widget)
{
    return widget != nullptr && qobject_cast<const EditorTooltip *>(widget->parentWidget()) != nullptr;
}

// The shadow falls inside of @p rect, for nothing may be drawn beyond it.
void drawPanel(QPainter *painter, const QRect &rect)
{
    const QRectF panel = QRectF(rect).adjusted(kShadow, kShadow - 1.0, -kShadow, -kShadow - 1.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(kShadowLayer);
    for (qreal reach = kShadow; reach > 0.0; reach -= 1.0) {
        const qreal radius = kPanelRadius + reach;
        painter->drawRoundedRect(panel.adjusted(-reach, 1.0 - reach, reach, 1.0 + reach), radius, radius);
    }
    painter->setBrush(kPanelFill);
    painter->setPen(QPen(kPanelLine, 1.0));
    painter->drawRoundedRect(panel.adjusted(0.5, 0.5, -0.5, -0.5), kPanelRadius, kPanelRadius);
    painter->restore();
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
    } else if (OverlayButton::isOne(widget)) {
        // What is not drawn takes no clicks: the windows of Yes and No overlap.
        widget->setMask(OverlayButton::body(widget));
    }
}

void OverlayStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_ShapedFrame && (isHintText(widget) || isTooltipText(widget))) {
        drawPanel(painter, option->rect);
    } else if (element == CE_PushButton && button != nullptr && OverlayButton::isOne(widget)) {
        OverlayButton::draw(painter, *button, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

QRect OverlayStyle::subElementRect(SubElement element, const QStyleOption *option,
                                   const QWidget *widget) const
{
    // The margin of the document keeps the text clear of the panel's line.
    if (element == SE_ShapedFrameContents && (isHintText(widget) || isTooltipText(widget))) {
        return option->rect;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}
