#include "Tutorial/overlay/IndicatorButtons.h"

#include "Tutorial/overlay/IndicatorState.h"
#include "Tutorial/overlay/KeepPlace.h"
#include "Tutorial/overlay/OverlayWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr QSize kSize(64, 32);
// By these OverlayButton tells one from another.
constexpr std::array<const char *, IndicatorButtons::kCount> kNames{"nextButton", "yesButton", "noButton"};

std::array<bool, IndicatorButtons::kCount> wanted(const IndicatorState &state)
{
    return {state.nextWindowEnabled, state.yesNoWindowEnabled, state.yesNoWindowEnabled};
}

bool isHeldByTheMouse(const QObject *button)
{
    const auto *const held = qobject_cast<const QPushButton *>(button);
    return held != nullptr && held->isDown() && QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

} // namespace

IndicatorButtons::IndicatorButtons(const std::array<QString, kCount> &captions, const QFont &font)
{
    for (std::size_t i = 0; i < kCount; ++i) {
        m_windows[i] = std::make_unique<QPushButton>(captions[i]);
        QPushButton *const button = m_windows[i].get();
        m_open[i] = button;
        button->setObjectName(QLatin1String(kNames[i]));
        prepareOverlay(button);
        button->setMinimumSize(kSize);
        button->setMaximumSize(kSize);
        button->setFont(font);
        button->hide();
        new KeepPlace(button);
        button->installEventFilter(this);
    }
}

IndicatorButtons::~IndicatorButtons()
{
    for (const std::unique_ptr<QPushButton> &button : m_windows) {
        button->removeEventFilter(this); // an active one may tell of its end
    }
}

void IndicatorButtons::follow(const IndicatorState &state) const
{
    const std::array<bool, kCount> shown = wanted(state);
    for (std::size_t i = 0; i < kCount; ++i) {
        setOverlayShown(m_open[i], shown[i]);
    }
}

void IndicatorButtons::showWanted(const IndicatorState &state) const
{
    const std::array<bool, kCount> shown = wanted(state);
    for (std::size_t i = 0; i < kCount; ++i) {
        if (shown[i]) {
            setOverlayShown(m_open[i], true);
        }
    }
}

void IndicatorButtons::hide() const
{
    for (QPushButton *button : m_open) {
        setOverlayShown(button, false);
    }
}

QPoint IndicatorButtons::place(Button button) const
{
    return m_open[button] != nullptr ? KeepPlace::placeOf(m_open[button]) : QPoint();
}

void IndicatorButtons::move(Button button, const QPoint &place) const
{
    moveOverlay(m_open[button], place);
}

void IndicatorButtons::move(const ButtonPlaces &places) const
{
    move(kNext, places.nextAndYes);
    move(kYes, places.nextAndYes);
    move(kNo, places.no);
}

bool IndicatorButtons::isActive() const
{
    return std::any_of(m_open.cbegin(), m_open.cend(), isTheActiveWindow);
}

void IndicatorButtons::close()
{
    for (QPushButton *&button : m_open) {
        if (button != nullptr) {
            closeOverlay(button);
            button = nullptr;
        }
    }
}

bool IndicatorButtons::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ActivationChange &&
        (isTheActiveWindow(qobject_cast<QWidget *>(watched)) || !isActive())) {
        Q_EMIT activationChanged();
    }
    // The host may take the keyboard back while the person presses; the button would give the press up.
    if (event->type() == QEvent::FocusOut && isHeldByTheMouse(watched)) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}
