#include "Tutorial/overlay/EditorTooltip.h"

#include "Tutorial/overlay/HostText.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/MayLeaveScreen.h"
#include "Tutorial/overlay/OverlayHost.h"
#include "Tutorial/overlay/OverlayWindow.h"
#include "Tutorial/overlay/Placement.h"
#include "tool/LogLine.h"

#include <QEvent>
#include <QTextDocument>
#include <QTextEdit>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\Tutorial\overlay\EditorTooltip.cpp)";
constexpr int kTickMs = 10;
constexpr int kDelayTicks = 100;
constexpr int kTimeoutTicks = 500;
constexpr int kFadeTicks = 25;
constexpr int kMargin = 9; // pixels around the text; the shadow of the panel lies in it

double opacityOf(int step)
{
    return static_cast<double>(static_cast<float>(step) / static_cast<float>(kFadeTicks));
}

} // namespace

EditorTooltip::EditorTooltip(QWidget *parent, OverlayHost *manager)
    : QWidget(parent)
    , m_textEdit(new QTextEdit(this))
    , m_manager(manager)
{
    m_textEdit->setObjectName(QStringLiteral("tooltipTextEdit"));
    m_textEdit->setLineWrapMode(QTextEdit::NoWrap);
    prepareOverlayText(m_textEdit, kMargin);
    prepareOverlay(this, Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint);
    setGeometry(0, 0, 320, 240);
    m_timerId = startTimer(kTickMs, Qt::CoarseTimer);
    hide();
    new KeepPlace(this);
    m_mayLeaveScreen = new MayLeaveScreen(this, {});
}

EditorTooltip::~EditorTooltip()
{
    logDebug(kSource, "EditorTooltip::~EditorTooltip", 53);
    if (m_timerId != 0) {
        killTimer(m_timerId);
    }
}

void EditorTooltip::show(const QString &text, int x, int y, const QFont &font)
{
    m_text = text;
    if (!text.isEmpty()) {
        setText(text, font);
        m_textEdit->show();
        const QSizeF size = m_textEdit->document()->size();
        logDebug(kSource, "EditorTooltip::show", 74) << text << size.width() << size.height();
        m_textEdit->resize(truncateToInt(size.width()), truncateToInt(size.height()));
    } else {
        m_textEdit->hide();
    }
    const qint64 left = static_cast<qint64>(x) - m_textEdit->width() / 2;
    const qint64 top = static_cast<qint64>(y) - m_textEdit->height() / 2;
    moveTo({clampToInt(left), clampToInt(top)});
    applyOpacity(0.0);
    m_delay = kDelayTicks;
    m_timeout = kTimeoutTicks;
    m_fade = kFadeTicks;
    show();
}

void EditorTooltip::setText(const QString &text, const QFont &font)
{
    m_textEdit->setFont(font);
    setHostText(m_textEdit, text);
}

QVariantMap EditorTooltip::getSettings() const
{
    const QSize size = m_textEdit != nullptr ? m_textEdit->size() : QSize(0, 0);
    const QPoint place = KeepPlace::placeOf(this);
    return {{QStringLiteral("text"), m_text},          {QStringLiteral("width"), size.width()},
            {QStringLiteral("height"), size.height()}, {QStringLiteral("x"), place.x()},
            {QStringLiteral("y"), place.y()},          {QStringLiteral("windowOpacity"), windowOpacity()},
            {QStringLiteral("delay"), m_delay},        {QStringLiteral("timeout"), m_timeout},
            {QStringLiteral("fade"), m_fade}};
}

void EditorTooltip::setSettings(const QVariantMap &settings, const QFont &font)
{
    logDebug(kSource, "EditorTooltip::setSettings", 106) << settings;
    m_text = settings.value(QStringLiteral("text")).toString();
    if (!m_text.isEmpty()) {
        setText(m_text, font);
        m_textEdit->show();
        m_textEdit->resize(settings.value(QStringLiteral("width")).toInt(),
                           settings.value(QStringLiteral("height")).toInt());
    } else {
        m_textEdit->hide();
    }
    moveTo({settings.value(QStringLiteral("x")).toInt(), settings.value(QStringLiteral("y")).toInt()});
    // Not the name under which getSettings stores it: a rebuilt tooltip starts invisible.
    applyOpacity(settings.value(QStringLiteral("opacity")).toDouble());
    m_delay = settings.value(QStringLiteral("delay")).toInt();
    m_timeout = settings.value(QStringLiteral("timeout")).toInt();
    m_fade = settings.value(QStringLiteral("fade")).toInt();
}

void EditorTooltip::moveTo(const QPoint &place)
{
    m_mayLeaveScreen->setPixel(m_textEdit->rect().center());
    moveOverlay(this, place);
}

void EditorTooltip::changeEvent(QEvent *event)
{
    logDebug(kSource, "EditorTooltip::changeEvent", 127) << event->type();
    QWidget::changeEvent(event);
}

void EditorTooltip::timerEvent(QTimerEvent *event)
{
    Q_UNUSED(event)
    if (!isVisible()) {
        return;
    }
    if (m_delay >= 1) {
        if (--m_delay == 0) {
            m_fade = kFadeTicks;
        }
    } else if (m_timeout >= 1 && m_fade >= 1) {
        applyOpacity(opacityOf(kFadeTicks + 1 - m_fade));
        --m_fade;
    } else if (m_timeout >= 1) {
        if (--m_timeout == 0) {
            m_fade = kFadeTicks;
        }
    } else if (m_fade >= 1) {
        applyOpacity(opacityOf(m_fade - 1));
        --m_fade;
    }
}

void EditorTooltip::applyOpacity(double opacity)
{
    setWindowOpacity(opacity);
    // On X11 the new opacity stays in Qt's output buffer until something else is sent; painting is.
    update();
}

void EditorTooltip::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event)
    if (m_timerId != 0) {
        killTimer(m_timerId);
        m_timerId = 0;
    }
    delete m_textEdit;
    m_textEdit = nullptr;
    m_manager->onEditorTooltipClosed();
}
