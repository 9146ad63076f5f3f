#include "window/GuidedWindows.h"

#include "lesson/description/ControlSpots.h"
#include "lesson/description/KnownWords.h"
#include "window/EditorWindow.h"
#include "window/EventPlaces.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

struct GuidedWindows::Guides
{
    Guides(GuidedWindows *windows, const EditorView &view,
           std::function<void(const QString &, const QPoint &)> popUp)
        : ways(view.descriptions)
        , finder(view)
        , hand(&finder)
        , hints(view, &finder)
        , keeper(windows, view, std::move(popUp))
        , places(windows, view)
    {
    }

    EditorWays ways;
    ControlFinder finder;
    ControlHand hand;
    BackHints hints;
    StateKeeper keeper;
    EventPlaces places;
};

GuidedWindows::GuidedWindows()
    : m_focus([this] { return topWindow(); })
{
    connect(&m_tips, &HoverTips::hovered, this, &HostEditor::hovered);
    connect(&m_tips, &HoverTips::unhovered, this, &HostEditor::unhovered);
    connect(&m_cover, &PlayCover::changed, this, &HostEditor::viewChanged);
}

GuidedWindows::~GuidedWindows() = default;

void GuidedWindows::setView(const EditorView &view,
                            std::function<void(const QString &, const QPoint &)> popUp)
{
    m_view = view;
    m_guides = std::make_unique<Guides>(this, view, std::move(popUp));
    const QStringList keys = view.descriptions->keys();
    for (const QString &key : keys) {
        const EditorWindow *const window = view.window(key);
        const auto areas = window != nullptr ? window->findChildren<QAbstractScrollArea *>()
                                             : QList<QAbstractScrollArea *>();
        for (const QAbstractScrollArea *const area : areas) {
            for (const QScrollBar *const bar : {area->verticalScrollBar(), area->horizontalScrollBar()}) {
                connect(bar, &QScrollBar::valueChanged, this, &HostEditor::viewChanged);
            }
        }
    }
}

QString GuidedWindows::windowOf(const QString &windowKey) const
{
    return m_guides->ways.windowOf(windowKey);
}

std::optional<ControlSpot> GuidedWindows::controlAt(const QString &windowKey, const QPoint &point) const
{
    return m_guides->finder.controlAt(windowKey, point);
}

std::optional<ControlSpot> GuidedWindows::controlFor(const Step &step) const
{
    std::optional<ControlSpot> shown = HostEditor::controlFor(step);
    if (!shown || step.windowKey == m_view.descriptions->popupKey() || canCause(*shown, step.condition)) {
        return shown;
    }
    // It may be behind another tab.
    const QVector<ControlSpot> spots = controlsAt(*m_view.descriptions, step.windowKey, step.spot());
    const auto found = std::find_if(spots.cbegin(), spots.cend(), [this, &step](const ControlSpot &spot) {
        return canCause(spot, step.condition);
    });
    return found != spots.cend() ? *found : shown;
}

std::optional<QRect> GuidedWindows::rectOf(const ControlSpot &spot) const
{
    return PlayCover::isWayOut(spot) ? m_cover.leaveRect() : m_guides->finder.rectOf(spot);
}

void GuidedWindows::reveal(const ControlSpot &spot)
{
    m_guides->finder.reveal(spot);
}

bool GuidedWindows::canCause(const ControlSpot &spot, const Condition &condition) const
{
    return m_guides->ways.canCause(spot, condition);
}

bool GuidedWindows::addsUp(const ControlSpot &spot) const
{
    return m_guides->ways.addsUp(spot);
}

bool GuidedWindows::offers(const ControlSpot &spot, const Condition &condition) const
{
    if (condition.type() != Condition::Type::kComboBox) {
        return true;
    }
    const auto *const box = qobject_cast<const QComboBox *>(m_guides->finder.widgetOf(spot));
    return box == nullptr || condition.value().toInt() < box->count();
}

Ways GuidedWindows::ways() const
{
    Ways ways = m_guides->ways.all();
    const EditorWindow *const menu = m_view.popup();
    if (menu != nullptr) {
        // A grey entry is of no use before the menu comes up elsewhere.
        const auto isGrey = [this, menu](const Way &way) {
            const QWidget *const entry =
                way.from == menu->key() ? m_guides->finder.widgetOf(way.by) : nullptr;
            return entry != nullptr && !entry->isEnabled();
        };
        ways.erase(std::remove_if(ways.begin(), ways.end(), isGrey), ways.end());
    }
    return ways;
}

QString GuidedWindows::meaningOf(const ControlSpot &spot) const
{
    return m_guides->finder.meaningOf(spot);
}

QVector<ControlSpot> GuidedWindows::chosen() const
{
    return m_guides->finder.chosen();
}

std::optional<UnknownWord> GuidedWindows::unknownWord(const Step &step) const
{
    const DescriptionSet &windows = *m_view.descriptions;
    const QString window = KnownWords::windowProblem(step.windowKey, windows);
    if (!window.isEmpty()) {
        return UnknownWord{step.id, step.windowKey, window};
    }
    const QString condition = KnownWords::conditionProblem(step.condition, step.windowKey, windows);
    return condition.isEmpty() ? std::nullopt
                               : std::optional(UnknownWord{step.id, step.conditionText, condition});
}

QString GuidedWindows::projectId() const
{
    return projectFolder();
}

QString GuidedWindows::dataMark() const
{
    return m_guides->keeper.dataMark();
}

EditorState GuidedWindows::state() const
{
    return m_guides->keeper.state();
}

bool GuidedWindows::restore(const EditorState &state)
{
    return m_guides->keeper.restore(state);
}

bool GuidedWindows::perform(const ControlUse &use)
{
    if (use.kind == ControlUse::Kind::kEnd) {
        const bool isKnown = use.text == QLatin1String("play");
        if (isKnown) {
            Q_EMIT playEndAsked();
        }
        return isKnown;
    }
    if (PlayCover::isWayOut(use.spot)) {
        Q_EMIT playEndAsked();
        return true;
    }
    if (use.spot.control.isEmpty()) {
        const QWidget *const top = topWindow();
        return top != nullptr && ControlHand::performAt(top->focusWidget(), use);
    }
    return m_guides->hand.perform(use);
}

QString GuidedWindows::hintBack(const Way &way, const Step &step) const
{
    return m_guides->hints.hint(way, step);
}

QString GuidedWindows::hintToPutBack(const Step & /*step*/) const
{
    return BackHints::hintToPutBack();
}

std::optional<QPoint> GuidedWindows::spotToPutBack() const
{
    const bool isThere = m_putBackButton != nullptr && m_putBackButton->isVisible();
    return isThere ? std::optional(m_putBackButton->mapToGlobal(m_putBackButton->rect().center()))
                   : std::nullopt;
}

void GuidedWindows::setPutBackButton(QWidget *button)
{
    m_putBackButton = button;
    button->installEventFilter(this);
}

bool GuidedWindows::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == m_putBackButton &&
        (type == QEvent::Show || type == QEvent::Move || type == QEvent::Resize)) {
        Q_EMIT viewChanged();
    }
    return EditorWindows::eventFilter(watched, event);
}

bool GuidedWindows::showPlace(const EventPlace &place)
{
    return m_guides->places.show(place);
}

void GuidedWindows::takeFocusBack()
{
    m_presses.begin();
    m_focus.begin();
}

QWidget *GuidedWindows::topWindow() const
{
    const bool isOpen = m_view.stack != nullptr && !m_view.stack->isEmpty();
    return isOpen ? m_view.window(m_view.stack->constLast())->window() : nullptr;
}

void GuidedWindows::setTipsShownElsewhere(bool shown)
{
    m_tips.setShownElsewhere(shown);
}
