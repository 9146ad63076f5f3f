#include "Tutorial/overlay/TutorialTooltip.h"

#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/BubblePainter.h"
#include "Tutorial/overlay/HostText.h"
#include "Tutorial/overlay/IndicatorPictures.h"
#include "Tutorial/overlay/IndicatorState.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/MayLeaveScreen.h"
#include "Tutorial/overlay/OverlayWindow.h"
#include "tool/LogLine.h"

#include <QEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextEdit>

#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\Tutorial\overlay\TutorialTooltip.cpp)";
// In the window's pixels, and on the screen wherever the arrow points at something on it.
constexpr QPoint kOnScreen(200, 100);

} // namespace

TutorialTooltip::TutorialTooltip(const IndicatorState &state, const IndicatorPictures &pictures, Clock clock)
    : m_state(state)
    , m_pictures(pictures)
    , m_clock(std::move(clock))
    , m_textEdit(new QTextEdit(this))
{
    buildTextEdit();
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

void TutorialTooltip::buildTextEdit()
{
    const QSize size(BubbleGeometry::kHintWidth, m_state.hintHeight);
    m_textEdit->setObjectName(QStringLiteral("hintTextEdit"));
    m_textEdit->setMinimumSize(size);
    m_textEdit->setMaximumSize(size);
    m_textEdit->setGeometry(QRect(BubbleGeometry::hintPlace(false, m_pictures.arrow.width()), size));
    m_textEdit->setLineWrapMode(QTextEdit::WidgetWidth);
    m_textEdit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    prepareOverlayText(m_textEdit, BubbleGeometry::kHintMargin);
    if (!m_state.hint.isEmpty()) {
        setHostText(m_textEdit, m_state.hint);
        m_textEdit->show();
    } else {
        m_textEdit->hide();
    }
}

void TutorialTooltip::showHint(QTextDocument *document)
{
    m_textEdit->setDocument(document);
    m_textEdit->show();
}

void TutorialTooltip::hideHint()
{
    m_textEdit->hide();
}

int TutorialTooltip::measureHint()
{
    QTextDocument *const document = m_textEdit->document();
    if (document->textWidth() <= 0.0) {
        // A bubble that has just been made: nothing has given its text a width, and so a height, yet.
        document->setTextWidth(m_textEdit->maximumViewportSize().width());
    }
    return truncateToInt(document->size().height());
}

void TutorialTooltip::resizeHint()
{
    m_textEdit->setFixedHeight(m_state.hintHeight);
}

void TutorialTooltip::moveHintToItsSide()
{
    moveHint(BubbleGeometry::hintPlace(m_state.placement.mirror, m_pictures.arrow.width()));
}

void TutorialTooltip::moveHint(const QPoint &place)
{
    m_textEdit->move(place);
}

QPoint TutorialTooltip::hintPlace() const
{
    return m_textEdit->pos();
}

void TutorialTooltip::repaintMoving()
{
    repaint(BubbleGeometry::tickRect(m_state.placement.mirror, m_pictures.arrow.size()));
}

void TutorialTooltip::updateIcon()
{
    // Mirrored, the icon lies beside what a tick repaints.
    update(BubbleGeometry::iconRect(m_state.placement.mirror, m_pictures.arrow.width()));
}

void TutorialTooltip::logActivation(bool indicatorActive) const
{
    logDebug(kSource, "TutorialTooltip::changeEvent", 68) << indicatorActive << isActiveWindow();
}

void TutorialTooltip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        Q_EMIT m_events.activationChanged();
    }
}

void TutorialTooltip::paintEvent(QPaintEvent *event)
{
    const bool whole = m_state.repaintAll;
    QPainter painter(this);
    paintBubble(painter, size(), m_state, m_pictures, m_clock());
    QWidget::paintEvent(event);
    if (whole) {
        Q_EMIT m_events.paintedWhole();
    }
}

void TutorialTooltip::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event)
    delete m_textEdit;
    m_textEdit = nullptr;
    Q_EMIT m_events.closed();
}
