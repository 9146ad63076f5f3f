#include "Tutorial/overlay/TutorialTooltip.h"

#include "Tutorial/overlay/Bounce.h"
#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/HostText.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/MayLeaveScreen.h"
#include "Tutorial/overlay/OverlayWindow.h"
#include "Tutorial/overlay/TutorialIndicator.h"
#include "tool/LogLine.h"

#include <QEvent>
#include <QPainter>
#include <QTextEdit>

namespace {

constexpr auto kSource = "..\\..\\tutorial\\cpp\\Tutorial\\overlay\\TutorialTooltip.cpp";
// In the window's pixels, and on the screen wherever the arrow points at something on it.
constexpr QPoint kOnScreen(200, 100);

} // namespace

TutorialTooltip::TutorialTooltip(QWidget *indicator)
    : m_indicator(dynamic_cast<TutorialIndicator *>(indicator))
    , m_textEdit(new QTextEdit(this))
{
    const QSize size(BubbleGeometry::kHintWidth, m_indicator->m_hintHeight);
    m_textEdit->setObjectName(QStringLiteral("hintTextEdit"));
    m_textEdit->setMinimumSize(size);
    m_textEdit->setMaximumSize(size);
    m_textEdit->setGeometry(QRect(BubbleGeometry::hintPlace(false, m_indicator->m_arrow.width()), size));
    m_textEdit->setLineWrapMode(QTextEdit::WidgetWidth);
    m_textEdit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    prepareOverlayText(m_textEdit, BubbleGeometry::kHintMargin);
    if (!m_indicator->m_hint.isEmpty()) {
        setHostText(m_textEdit, m_indicator->m_hint);
        m_textEdit->show();
        m_indicator->m_updateTextEditSize = true;
    } else {
        m_textEdit->hide();
    }

    prepareOverlay(this, Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint);
    setGeometry(QRect(QPoint(0, 0), BubbleGeometry::kWindow));
    hide();
    new KeepPlace(this);
    new MayLeaveScreen(this, kOnScreen);
}

TutorialTooltip::~TutorialTooltip()
{
    logDebug(kSource, "TutorialTooltip::~TutorialTooltip", 61);
}

void TutorialTooltip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        logDebug(kSource, "TutorialTooltip::changeEvent", 68) << m_indicator->isActive() << isActiveWindow();
    }
}

void TutorialTooltip::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    erase(painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    // On a scaled screen the pictures are enlarged; unscaled, smoothing would only blur the flipped arrow.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, painter.combinedTransform().m11() != 1.0);
    if (m_indicator->m_arrowVisible) {
        drawArrow(painter);
    }
    drawIcon(painter);
    QWidget::paintEvent(event);
}

void TutorialTooltip::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event)
    delete m_textEdit;
    m_textEdit = nullptr;
    m_indicator->m_tooltip = nullptr;
}

// The window is transparent: whatever is redrawn is erased first, and no more than that.
void TutorialTooltip::erase(QPainter &painter)
{
    const QColor nothing(0, 0, 0, 0);
    if (m_indicator->m_repaintAll) {
        painter.fillRect(0, 0, width(), height(), nothing);
        m_indicator->m_repaintAll = false;
        return;
    }
    painter.fillRect(BubbleGeometry::arrowRect(m_indicator->m_mirror, m_indicator->m_arrow.size()), nothing);
    painter.fillRect(iconRect(), nothing);
}

QRect TutorialTooltip::iconRect() const
{
    return BubbleGeometry::iconRect(m_indicator->m_mirror, m_indicator->m_arrow.width());
}

void TutorialTooltip::drawArrow(QPainter &painter) const
{
    const QPixmap &arrow = m_indicator->m_arrow;
    const bool mirror = m_indicator->m_mirror;
    const bool upsideDown = m_indicator->m_upsideDown;
    const qint64 elapsedMs = m_indicator->elapsedMs();
    const float bounce = upsideDown ? upsideDownBounceOffset(elapsedMs) : bounceOffset(elapsedMs);
    painter.save();
    painter.translate(mirror ? arrow.width() + BubbleGeometry::kHintWidth : 0,
                      upsideDown ? arrow.height() : 0);
    painter.scale(mirror ? -1 : 1, upsideDown ? -1 : 1);
    painter.drawPixmap(0, static_cast<int>(bounce), arrow);
    painter.restore();
}

void TutorialTooltip::drawIcon(QPainter &painter) const
{
    const QPixmap *const icon = m_indicator->icon();
    if (icon != nullptr) {
        painter.drawPixmap(
            BubbleGeometry::iconPlace(m_indicator->m_mirror, m_indicator->m_arrow.width(), icon->width()),
            *icon);
    }
}
