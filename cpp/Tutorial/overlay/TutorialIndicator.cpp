#include "Tutorial/overlay/TutorialIndicator.h"

#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/HintDocument.h"
#include "Tutorial/overlay/IndicatorUpdate.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/OverlayHost.h"
#include "Tutorial/overlay/OverlayWindow.h"
#include "Tutorial/overlay/Placement.h"
#include "Tutorial/overlay/TutorialTooltip.h"
#include "tool/LogLine.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTextDocument>
#include <QTextEdit>

namespace {

constexpr auto kSource = "..\\..\\tutorial\\cpp\\Tutorial\\overlay\\TutorialIndicator.cpp";
constexpr int kTickMs = 100;
constexpr int kButtonWidth = 64;
constexpr int kButtonHeight = 32;
// Characters. More than any screen shows of a hint, and few enough to be laid out without holding up the
// event loop, as a hint of megabytes would for minutes.
constexpr int kLongestHint = 8000;

void storePosition(QVariantMap &settings, const QString &name, const QWidget *widget)
{
    const QPoint position = widget != nullptr ? KeepPlace::placeOf(widget) : QPoint();
    settings.insert(name + QLatin1Char('X'), position.x());
    settings.insert(name + QLatin1Char('Y'), position.y());
}

QPoint storedPosition(const QVariantMap &settings, const QString &name)
{
    return {settings.value(name + QLatin1Char('X')).toInt(), settings.value(name + QLatin1Char('Y')).toInt()};
}

} // namespace

TutorialIndicator::TutorialIndicator(QWidget *parent, OverlayHost *manager)
    : QWidget(parent)
    , m_arrow(QStringLiteral(":/resource/png/arrow.png"))
    , m_click(QStringLiteral(":/resource/png/click.png"))
    , m_doubleClick(QStringLiteral(":/resource/png/double_click.png"))
    , m_rightClick(QStringLiteral(":/resource/png/right_click.png"))
    , m_eye(QStringLiteral(":/resource/png/eye.png"))
    , m_wait(QStringLiteral(":/resource/png/wait.png"))
    , m_keyboard(QStringLiteral(":/resource/png/keyboard.png"))
    , m_manager(manager)
{
    setAttribute(Qt::WA_QuitOnClose, false);
    makeTooltip();
    const QFont font = m_manager->overlayFont();
    m_nextButton = makeButton(QStringLiteral("nextButton"), tr("Next"), font);
    m_yesButton = makeButton(QStringLiteral("yesButton"), tr("Yes"), font);
    m_noButton = makeButton(QStringLiteral("noButton"), tr("No"), font);
    m_timerId = startTimer(kTickMs, Qt::CoarseTimer);
    connect(m_nextButton, &QAbstractButton::clicked, this, &TutorialIndicator::nextClicked);
    connect(m_yesButton, &QAbstractButton::clicked, this, &TutorialIndicator::yesClicked);
    connect(m_noButton, &QAbstractButton::clicked, this, &TutorialIndicator::noClicked);
    m_elapsed.start();
    hideTooltip();
    hideButtons();
}

TutorialIndicator::~TutorialIndicator()
{
    logDebug(kSource, "TutorialIndicator::~TutorialIndicator", 94);
    if (m_timerId != 0) {
        killTimer(m_timerId);
    }
    for (const std::unique_ptr<QWidget> &window : m_windows) {
        window->removeEventFilter(this); // an active one may tell of its end
    }
}

void TutorialIndicator::showStep(const IndicatorUpdate &update)
{
    setTargetWindowOffset(update.target.x(), update.target.y(), update.windowKey, update.arrow);
    setHint(update.hint);
    init(update.next, update.yesNo);
    setIconKind(update.iconKind);
    showTooltip();
}

void TutorialIndicator::setTargetWindowOffset(int x, int y, const QString &windowKey, bool arrowVisible)
{
    logDebug(kSource, "TutorialIndicator::setTargetWindowOffset", 102) << x << y << windowKey << arrowVisible;
    makeTooltip();
    m_windowKey = windowKey;
    m_offsetX = x;
    m_offsetY = y;
    if (x == IndicatorUpdate::kNoTarget && y == IndicatorUpdate::kNoTarget) {
        m_arrowVisible = false;
        return;
    }
    setNewXy(x, y);
    m_arrowVisible = arrowVisible;
}

void TutorialIndicator::setNewXy(int x, int y)
{
    m_newX = x;
    m_newY = y;
}

void TutorialIndicator::setHint(const QString &hint)
{
    makeTooltip();
    m_hint = hint.left(kLongestHint);
    if (hint.isEmpty()) {
        m_tooltip->m_textEdit->hide();
        return;
    }
    // Text edits go on using it, closed bubbles and new ones alike, so it lives as long as the process.
    static auto *const document = new QTextDocument;
    fillHintDocument(document, m_hint, m_manager->overlayFont());
    m_tooltip->m_textEdit->setDocument(document);
    m_tooltip->m_textEdit->show();
    m_updateTextEditSize = true;
}

void TutorialIndicator::setIconKind(int iconKind)
{
    m_iconKind = iconKind;
    if (m_tooltip != nullptr) {
        // Mirrored, the icon lies beside what a tick repaints.
        m_tooltip->update(m_tooltip->iconRect());
    }
}

void TutorialIndicator::init(bool next, bool yesNo)
{
    logDebug(kSource, "TutorialIndicator::init", 139) << next << yesNo;
    m_elapsed.restart();
    m_nextWindowEnabled = next;
    setOverlayShown(m_nextButton, next);
    m_yesNoWindowEnabled = yesNo;
    setOverlayShown(m_yesButton, yesNo);
    setOverlayShown(m_noButton, yesNo);
}

void TutorialIndicator::showButtons()
{
    if (m_nextWindowEnabled) {
        setOverlayShown(m_nextButton, true);
    }
    if (m_yesNoWindowEnabled) {
        setOverlayShown(m_yesButton, true);
        setOverlayShown(m_noButton, true);
    }
}

void TutorialIndicator::hideButtons()
{
    setOverlayShown(m_nextButton, false);
    setOverlayShown(m_yesButton, false);
    setOverlayShown(m_noButton, false);
}

void TutorialIndicator::showTooltip()
{
    setOverlayShown(m_tooltip, true);
}

void TutorialIndicator::hideTooltip()
{
    setOverlayShown(m_tooltip, false);
}

bool TutorialIndicator::isActive() const
{
    return isTheActiveWindow(this) || isTheActiveWindow(m_nextButton) || isTheActiveWindow(m_yesButton) ||
           isTheActiveWindow(m_noButton);
}

QVariantMap TutorialIndicator::getSettings() const
{
    QVariantMap settings;
    settings.insert(QStringLiteral("tooltip"), m_tooltip != nullptr);
    if (m_tooltip != nullptr) {
        storePosition(settings, QStringLiteral("textEdit"), m_tooltip->m_textEdit);
    }
    settings.insert(QStringLiteral("newX"), m_newX);
    settings.insert(QStringLiteral("newY"), m_newY);
    settings.insert(QStringLiteral("lastX"), m_lastX);
    settings.insert(QStringLiteral("lastY"), m_lastY);
    settings.insert(QStringLiteral("upsideDown"), m_upsideDown);
    settings.insert(QStringLiteral("mirror"), m_mirror);
    settings.insert(QStringLiteral("repaintAll"), m_repaintAll);
    settings.insert(QStringLiteral("updateTextEditSize"), m_updateTextEditSize);
    settings.insert(QStringLiteral("hintHeight"), m_hintHeight);
    storePosition(settings, QStringLiteral("tooltip"), m_tooltip);
    storePosition(settings, QStringLiteral("nextButton"), m_nextButton);
    storePosition(settings, QStringLiteral("yesButton"), m_yesButton);
    storePosition(settings, QStringLiteral("noButton"), m_noButton);
    settings.insert(QStringLiteral("windowKey"), m_windowKey);
    settings.insert(QStringLiteral("offsetX"), m_offsetX);
    settings.insert(QStringLiteral("offsetY"), m_offsetY);
    settings.insert(QStringLiteral("arrowVisible"), m_arrowVisible);
    settings.insert(QStringLiteral("hint"), m_hint);
    settings.insert(QStringLiteral("nextWindowEnabled"), m_nextWindowEnabled);
    settings.insert(QStringLiteral("yesNoWindowEnabled"), m_yesNoWindowEnabled);
    settings.insert(QStringLiteral("iconKind"), m_iconKind);
    return settings;
}

void TutorialIndicator::setSettings(const QVariantMap &settings)
{
    logDebug(kSource, "TutorialIndicator::setSettings", 215) << settings;
    m_hint = settings.value(QStringLiteral("hint")).toString();
    m_updateTextEditSize = settings.value(QStringLiteral("updateTextEditSize")).toBool();
    if (settings.value(QStringLiteral("tooltip")).toBool()) {
        applyTooltipSettings(settings);
    }
    m_newX = settings.value(QStringLiteral("newX")).toInt();
    m_newY = settings.value(QStringLiteral("newY")).toInt();
    m_lastX = settings.value(QStringLiteral("lastX")).toInt();
    m_lastY = settings.value(QStringLiteral("lastY")).toInt();
    m_upsideDown = settings.value(QStringLiteral("upsideDown")).toBool();
    m_mirror = settings.value(QStringLiteral("mirror")).toBool();
    m_repaintAll = settings.value(QStringLiteral("repaintAll")).toBool();
    m_hintHeight = settings.value(QStringLiteral("hintHeight")).toInt();
    moveOverlay(m_nextButton, storedPosition(settings, QStringLiteral("nextButton")));
    moveOverlay(m_yesButton, storedPosition(settings, QStringLiteral("yesButton")));
    moveOverlay(m_noButton, storedPosition(settings, QStringLiteral("noButton")));
    m_windowKey = settings.value(QStringLiteral("windowKey")).toString();
    m_offsetX = settings.value(QStringLiteral("offsetX")).toInt();
    m_offsetY = settings.value(QStringLiteral("offsetY")).toInt();
    m_arrowVisible = settings.value(QStringLiteral("arrowVisible")).toBool();
    m_nextWindowEnabled = settings.value(QStringLiteral("nextWindowEnabled")).toBool();
    setOverlayShown(m_nextButton, m_nextWindowEnabled);
    m_yesNoWindowEnabled = settings.value(QStringLiteral("yesNoWindowEnabled")).toBool();
    setOverlayShown(m_yesButton, m_yesNoWindowEnabled);
    setOverlayShown(m_noButton, m_yesNoWindowEnabled);
    setIconKind(settings.value(QStringLiteral("iconKind")).toInt());
}

void TutorialIndicator::applyTooltipSettings(const QVariantMap &settings)
{
    makeTooltip();
    QTextEdit *const textEdit = m_tooltip->m_textEdit;
    textEdit->move(storedPosition(settings, QStringLiteral("textEdit")));
    textEdit->setFixedHeight(settings.value(QStringLiteral("hintHeight")).toInt());
    moveOverlay(m_tooltip, storedPosition(settings, QStringLiteral("tooltip")));
    if (m_hint.isEmpty()) {
        textEdit->hide();
        return;
    }
    // Not the document of setHint: that one may still belong to a bubble that is on its way out.
    static auto *const document = new QTextDocument;
    fillHintDocument(document, m_hint, m_manager->overlayFont());
    textEdit->setDocument(document);
    textEdit->show();
    m_updateTextEditSize = true;
}

void TutorialIndicator::nextClicked()
{
    m_manager->send(QStringLiteral("next"));
}

void TutorialIndicator::yesClicked()
{
    m_manager->send(QStringLiteral("yes"));
}

void TutorialIndicator::noClicked()
{
    m_manager->send(QStringLiteral("no"));
}

bool TutorialIndicator::eventFilter(QObject *watched, QEvent *event)
{
    // What one button loses to another is no change of the whole: the other one tells of it.
    if (event->type() == QEvent::ActivationChange &&
        (isTheActiveWindow(qobject_cast<QWidget *>(watched)) || !isActive())) {
        QEvent change(QEvent::ActivationChange);
        QCoreApplication::sendEvent(this, &change);
    }
    return QWidget::eventFilter(watched, event);
}

void TutorialIndicator::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange) {
        return;
    }
    const bool active = isActive();
    logDebug(kSource, "TutorialIndicator::changeEvent", 286) << active;
    if (active) {
        m_manager->onOverlayActivated();
    } else {
        m_activatePending = true;
    }
    m_manager->updateOverlayVisibility();
}

void TutorialIndicator::timerEvent(QTimerEvent *event)
{
    Q_UNUSED(event)
    place();
    repaintTooltip();
    if (m_activatePending) {
        m_activatePending = false;
        if (!isTheActiveWindow(this)) {
            activateWindow();
        }
    }
}

void TutorialIndicator::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event)
    if (m_timerId != 0) {
        killTimer(m_timerId);
        m_timerId = 0;
    }
    for (QPushButton **button : {&m_nextButton, &m_yesButton, &m_noButton}) {
        if (*button != nullptr) {
            (*button)->close();
            *button = nullptr;
        }
    }
    if (m_tooltip != nullptr) {
        m_tooltip->close();
        m_tooltip = nullptr;
    }
}

qint64 TutorialIndicator::elapsedMs() const
{
    return m_elapsed.elapsed();
}

void TutorialIndicator::makeTooltip()
{
    if (m_tooltip == nullptr) {
        auto tooltip = std::make_unique<TutorialTooltip>(this);
        m_tooltip = tooltip.get();
        m_windows.push_back(std::move(tooltip));
    }
}

QPushButton *TutorialIndicator::makeButton(const QString &name, const QString &caption, const QFont &font)
{
    auto owned = std::make_unique<QPushButton>(caption);
    QPushButton *const button = owned.get();
    m_windows.push_back(std::move(owned));
    button->setObjectName(name);
    prepareOverlay(button);
    button->setMinimumSize(kButtonWidth, kButtonHeight);
    button->setMaximumSize(kButtonWidth, kButtonHeight);
    button->setFont(font);
    button->hide();
    new KeepPlace(button);
    button->installEventFilter(this);
    return button;
}

const QPixmap *TutorialIndicator::icon() const
{
    switch (m_iconKind) {
    case 0:
        return &m_click;
    case 1:
        return &m_doubleClick;
    case 2:
        return &m_rightClick;
    case 3:
        return &m_eye;
    case 4:
        return &m_wait;
    case 5:
        return &m_keyboard;
    default:
        return nullptr;
    }
}

void TutorialIndicator::place()
{
    const int arrowWidth = m_arrow.width();
    const qint64 hostRight = static_cast<qint64>(m_manager->hostRect().right()) + 1;
    const PlacementStep step =
        stepPlacement({m_newX, m_newY, m_lastX, m_lastY, m_upsideDown, m_mirror}, hostRight, arrowWidth);
    m_upsideDown = step.upsideDown;
    m_mirror = step.mirror;
    m_repaintAll = m_repaintAll || step.turnedOver || step.changedSides;
    if (step.changedSides && m_tooltip != nullptr) {
        m_tooltip->m_textEdit->move(BubbleGeometry::hintPlace(m_mirror, arrowWidth));
    }
    if (m_tooltip == nullptr && m_manager->running()) {
        makeTooltip();
    }
    qint64 lastY = m_lastY;
    if (m_updateTextEditSize) {
        measureHint();
        ++lastY; // the buttons stand below the text, so they move with its height even when all is at rest
    }
    if (step.x != m_lastX || step.y != lastY) {
        moveOverlay(m_tooltip, {step.x, step.y});
        const ButtonPlaces places = placeButtons(step.x, step.y, m_hintHeight, arrowWidth);
        moveOverlay(m_nextButton, places.nextAndYes);
        moveOverlay(m_yesButton, places.nextAndYes);
        moveOverlay(m_noButton, places.no);
    }
    m_lastX = step.x;
    m_lastY = step.y;
}

void TutorialIndicator::measureHint()
{
    m_updateTextEditSize = false;
    if (m_tooltip != nullptr) {
        QTextEdit *const textEdit = m_tooltip->m_textEdit;
        if (textEdit->document()->textWidth() <= 0.0) {
            // A bubble made on this very tick: nothing has given its text a width, and so a height, yet.
            textEdit->document()->setTextWidth(textEdit->maximumViewportSize().width());
        }
        m_hintHeight = truncateToInt(textEdit->document()->size().height());
        textEdit->setFixedHeight(m_hintHeight);
    }
}

void TutorialIndicator::repaintTooltip()
{
    if (m_tooltip == nullptr) {
        return;
    }
    if (m_repaintAll) {
        m_tooltip->repaint(0, 0, width(), height());
    } else {
        m_tooltip->repaint(BubbleGeometry::tickRect(m_mirror, m_arrow.size()));
    }
}
