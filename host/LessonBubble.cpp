#include "host/LessonBubble.h"

#include "host/HostEditor.h"
#include "host/LessonGuide.h"
#include "host/ScenarioRunner.h"

#include <algorithm>
#include <utility>

namespace {

/// How long the arrow is away before it glides in again, so that the eye follows it.
constexpr int kGlideMs = 600;

} // namespace

LessonBubble::LessonBubble(HostEditor *editor, CompanionScreen *screen, const ScenarioRunner *runner,
                           const LessonGuide *guide, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_screen(screen)
    , m_runner(runner)
    , m_guide(guide)
{
    m_glide.setSingleShot(true);
    m_glide.setInterval(kGlideMs);
    connect(&m_glide, &QTimer::timeout, this, &LessonBubble::tell);
    connect(editor, &HostEditor::popped, this, &LessonBubble::onWindowGone);
    connect(editor, &HostEditor::popupAbandoned, this, &LessonBubble::onWindowGone);
    connect(editor, &HostEditor::moved, this, &LessonBubble::onMoved);
}

void LessonBubble::tell()
{
    const Step &step = m_runner->step();
    const std::optional<QPoint> place = target();
    m_pointing = place.has_value();
    const bool isAtPutBack = place && m_guide->isAstray() && !m_guide->wayBack();
    if (std::exchange(m_isAtPutBack, isAtPutBack) && !place) {
        // At the screen's edge a step without a place would have its buttons where nobody sees them.
        m_screen->moveToMiddle();
    }
    IndicatorUpdate update;
    update.place = place;
    update.windowKey = step.windowKey;
    update.hint = step.hint;
    update.next = step.condition.type() == Condition::Type::kNext;
    update.yesNo = step.condition.type() == Condition::Type::kYesNo;
    update.arrow = step.showArrow;
    update.iconKind = LessonWords::iconKind(step.icon);
    if (m_guide->isAstray()) {
        const std::optional<Way> &way = m_guide->wayBack();
        const QString hint = way                     ? m_editor->hintBack(*way, step)
                             : m_guide->canPutBack() ? m_editor->hintToPutBack(step)
                                                     : QString();
        update.hint = hint.isEmpty() ? step.hint : hint;
        update.next = false;
        update.yesNo = false;
        update.arrow = true;
        const QString icon = place ? QStringLiteral("click") : QString();
        update.iconKind = LessonWords::iconKind(way ? way->icon : icon);
    }
    m_hint = update.hint;
    m_screen->tell(update);
    Q_EMIT told();
}

void LessonBubble::glideIn()
{
    m_screen->moveToMiddle();
    m_glide.start();
}

void LessonBubble::follow()
{
    const std::optional<QPoint> place = target();
    if (place && m_pointing && place != m_screen->place() && !m_glide.isActive()) {
        m_screen->move(*place);
    } else if (place && !m_pointing && m_guide->isAstray()) {
        // The button to put things back has come up.
        tell();
    }
}

std::optional<QPoint> LessonBubble::target() const
{
    if (!m_runner->isRunning()) {
        return {};
    }
    if (m_guide->isAstray()) {
        const std::optional<Way> &way = m_guide->wayBack();
        const std::optional<QPoint> spot = way                     ? m_editor->spotOf(way->by)
                                           : m_guide->canPutBack() ? m_editor->spotToPutBack()
                                                                   : std::nullopt;
        return spot ? std::optional(*spot - LessonWords::kTip) : std::nullopt;
    }
    const Step &step = m_runner->step();
    const std::optional<QPoint> origin = step.hasPosition() ? m_editor->origin(step.windowKey) : std::nullopt;
    if (!origin) {
        return {};
    }
    const QPoint place = *origin + QPoint(step.x, step.y);
    // A row or cell that was scrolled or zoomed is what the step means, and not the place where it was.
    const std::optional<ControlSpot> &pointed = m_guide->pointed();
    const std::optional<QRect> rect =
        pointed && pointed->part >= 0 ? m_editor->rectOf(*pointed) : std::nullopt;
    const bool isElsewhere = rect && !rect->contains(place + LessonWords::kTip);
    return isElsewhere ? rect->center() - LessonWords::kTip : place;
}

bool LessonBubble::lacksWindow() const
{
    return m_runner->isRunning() && m_runner->step().hasPosition() && !target();
}

QString LessonBubble::windowToOpen() const
{
    if (!lacksWindow()) {
        return {};
    }
    const QStringList open = m_editor->openWindows();
    QStringList closed = {m_runner->step().windowKey};
    for (int i = 0; i < closed.size(); ++i) {
        // Of several windows, one that the lesson knows.
        QStringList from = m_editor->openedFrom(closed.at(i));
        std::stable_partition(from.begin(), from.end(),
                              [this](const QString &key) { return m_runner->scenario().hasStepIn(key); });
        for (const QString &key : from) {
            if (open.contains(key)) {
                return closed.at(i);
            }
            if (!closed.contains(key)) {
                closed += key;
            }
        }
    }
    return closed.constFirst();
}

void LessonBubble::onMoved(const QString &windowKey)
{
    if (!m_runner->isRunning()) {
        return;
    }
    const std::optional<QPoint> place = target();
    if (place && m_pointing && place != m_screen->place()) {
        m_screen->move(*place);
    } else if (place && !m_pointing && windowKey == m_runner->step().windowKey) {
        tell();
    }
}

void LessonBubble::onWindowGone()
{
    if (m_runner->isRunning() && m_pointing && !target()) {
        tell();
    }
}
