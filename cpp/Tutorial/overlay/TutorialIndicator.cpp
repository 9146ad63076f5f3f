#include "Tutorial/overlay/TutorialIndicator.h"

#include "Tutorial/link/CommandWords.h"
#include "Tutorial/overlay/HintDocument.h"
#include "Tutorial/overlay/IndicatorSettings.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/OverlayHost.h"
#include "Tutorial/overlay/OverlayWindow.h"
#include "Tutorial/overlay/TutorialTooltip.h"
#include "tool/LogLine.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>
#include <QTextDocument>

#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\Tutorial\overlay\TutorialIndicator.cpp)";
constexpr int kTickMs = 100;

} // namespace

TutorialIndicator::TutorialIndicator(QWidget *parent, OverlayHost *manager, const QFont &font)
    : QWidget(parent)
    , m_manager(manager)
    , m_pictures(IndicatorPictures::load())
{
    setAttribute(Qt::WA_QuitOnClose, false);
    makeTooltip();
    m_buttons = std::make_unique<IndicatorButtons>(
        std::array<QString, IndicatorButtons::kCount>{tr("Next"), tr("Yes"), tr("No")}, font);
    m_timerId = startTimer(kTickMs, Qt::CoarseTimer);
    connectButtons();
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
    m_buttons->disconnect(this); // one may become active when a bubble goes
}

void TutorialIndicator::connectButtons()
{
    connect(m_buttons->window(IndicatorButtons::kNext), &QAbstractButton::clicked, this,
            &TutorialIndicator::nextClicked);
    connect(m_buttons->window(IndicatorButtons::kYes), &QAbstractButton::clicked, this,
            &TutorialIndicator::yesClicked);
    connect(m_buttons->window(IndicatorButtons::kNo), &QAbstractButton::clicked, this,
            &TutorialIndicator::noClicked);
    // No window manager knows this widget, so it hears of its activation from the buttons.
    connect(m_buttons.get(), &IndicatorButtons::activationChanged, this, [this] {
        QEvent change(QEvent::ActivationChange);
        QCoreApplication::sendEvent(this, &change);
    });
}

void TutorialIndicator::makeTooltip()
{
    if (m_tooltip != nullptr) {
        return;
    }
    m_tooltips.push_back(
        std::make_unique<TutorialTooltip>(m_state, m_pictures, [this] { return elapsedMs(); }));
    m_tooltip = m_tooltips.back().get();
    m_state.updateTextEditSize = m_state.updateTextEditSize || !m_state.hint.isEmpty();
    const BubbleEvents &events = m_tooltip->events();
    connect(&events, &BubbleEvents::paintedWhole, this, [this] { m_state.repaintAll = false; });
    connect(&events, &BubbleEvents::activationChanged, this,
            [this, tooltip = m_tooltip] { tooltip->logActivation(isActive()); });
    connect(&events, &BubbleEvents::closed, this, [this] { m_tooltip = nullptr; });
}

void TutorialIndicator::showStep(const IndicatorUpdate &update, const QFont &font)
{
    setTargetWindowOffset(update.target.x(), update.target.y(), update.windowKey, update.arrow);
    setHint(update.hint, font);
    init(update.next, update.yesNo);
    setIconKind(update.iconKind);
    showTooltip();
}

void TutorialIndicator::setTargetWindowOffset(int x, int y, const QString &windowKey, bool arrowVisible)
{
    logDebug(kSource, "TutorialIndicator::setTargetWindowOffset", 102) << x << y << windowKey << arrowVisible;
    makeTooltip();
    m_state.setTarget({x, y}, windowKey, arrowVisible);
}

void TutorialIndicator::setNewXy(int x, int y)
{
    m_state.placement.newX = x;
    m_state.placement.newY = y;
}

void TutorialIndicator::setHint(const QString &hint, const QFont &font)
{
    makeTooltip();
    m_state.setHint(hint);
    if (m_state.hint.isEmpty()) {
        m_tooltip->hideHint();
        return;
    }
    // Text edits go on using it, closed bubbles and new ones alike, so it lives as long as the process.
    static auto *const document = new QTextDocument;
    showHintIn(document, font);
}

void TutorialIndicator::showHintIn(QTextDocument *document, const QFont &font)
{
    fillHintDocument(document, m_state.hint, font);
    m_tooltip->showHint(document);
    m_state.updateTextEditSize = true;
}

void TutorialIndicator::init(bool next, bool yesNo)
{
    logDebug(kSource, "TutorialIndicator::init", 139) << next << yesNo;
    m_elapsed.restart();
    m_state.nextWindowEnabled = next;
    m_state.yesNoWindowEnabled = yesNo;
    m_buttons->follow(m_state);
}

void TutorialIndicator::setIconKind(int iconKind)
{
    m_state.iconKind = iconKind;
    if (m_tooltip != nullptr) {
        m_tooltip->updateIcon();
    }
}

void TutorialIndicator::showButtons()
{
    m_buttons->showWanted(m_state);
}

void TutorialIndicator::hideButtons()
{
    m_buttons->hide();
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
    return isTheActiveWindow(this) || m_buttons->isActive();
}

QVariantMap TutorialIndicator::getSettings() const
{
    IndicatorSettings settings;
    settings.state = m_state;
    if (m_tooltip != nullptr) {
        settings.tooltip = true;
        settings.textEdit = m_tooltip->hintPlace();
        settings.tooltipPlace = KeepPlace::placeOf(m_tooltip);
    }
    settings.nextButton = m_buttons->place(IndicatorButtons::kNext);
    settings.yesButton = m_buttons->place(IndicatorButtons::kYes);
    settings.noButton = m_buttons->place(IndicatorButtons::kNo);
    return settings.toMap();
}

void TutorialIndicator::setSettings(const QVariantMap &settings, const QFont &font)
{
    logDebug(kSource, "TutorialIndicator::setSettings", 215) << settings;
    const IndicatorSettings stored = IndicatorSettings::fromMap(settings);
    m_state = stored.state;
    if (stored.tooltip) {
        makeTooltip();
        m_tooltip->moveHint(stored.textEdit);
        m_tooltip->resizeHint();
        moveOverlay(m_tooltip, stored.tooltipPlace);
        if (m_state.hint.isEmpty()) {
            m_tooltip->hideHint();
        } else {
            // Not the document of setHint: that one may still belong to a bubble that is on its way out.
            static auto *const document = new QTextDocument;
            showHintIn(document, font);
        }
    }
    m_buttons->move(IndicatorButtons::kNext, stored.nextButton);
    m_buttons->move(IndicatorButtons::kYes, stored.yesButton);
    m_buttons->move(IndicatorButtons::kNo, stored.noButton);
    m_buttons->follow(m_state);
    setIconKind(m_state.iconKind);
}

void TutorialIndicator::nextClicked()
{
    m_manager->send(CommandWords::kNext);
}

void TutorialIndicator::yesClicked()
{
    m_manager->send(CommandWords::kYes);
}

void TutorialIndicator::noClicked()
{
    m_manager->send(CommandWords::kNo);
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
    m_buttons->close();
    if (m_tooltip != nullptr) {
        closeOverlay(m_tooltip);
    }
}

qint64 TutorialIndicator::elapsedMs() const
{
    return m_elapsed.elapsed();
}

void TutorialIndicator::place()
{
    const int arrowWidth = m_pictures.arrow.width();
    const qint64 hostRight = static_cast<qint64>(m_hostRect.right()) + 1;
    const PlacementStep step = m_state.turn(hostRight, arrowWidth);
    if (step.changedSides && m_tooltip != nullptr) {
        m_tooltip->moveHintToItsSide();
    }
    if (m_tooltip == nullptr && m_running) {
        makeTooltip();
    }
    const bool measured = std::exchange(m_state.updateTextEditSize, false);
    if (measured && m_tooltip != nullptr) {
        m_state.hintHeight = m_tooltip->measureHint();
        m_tooltip->resizeHint();
    }
    const QPoint place(step.x, step.y);
    if (m_state.moveTo(place, measured)) {
        moveOverlay(m_tooltip, place);
        m_buttons->move(m_state.buttonPlaces(arrowWidth));
    }
}

void TutorialIndicator::repaintTooltip()
{
    if (m_tooltip == nullptr) {
        return;
    }
    if (m_state.repaintAll) {
        m_tooltip->repaint(0, 0, width(), height());
    } else {
        m_tooltip->repaintMoving();
    }
}
