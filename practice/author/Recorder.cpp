#include "author/Recorder.h"

#include "host/HostEditor.h"
#include "lesson/Condition.h"
#include "lesson/LessonWords.h"
#include "lesson/description/ControlSpots.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// What a step waits for rather than for what stands behind it: most of what a person does has several
/// effects.
constexpr std::array<const char *, 10> kTelling = {"popup",       "list",      "tabView", "comboBox",
                                                   "radioButton", "checked",   "spinBox", "action",
                                                   "menuEvent",   "mouseEvent"};

/// What a step is called that is done with keys and points nowhere.
constexpr auto kKeys = "Keys";

int rankOf(const EditorEvent &event)
{
    constexpr int kMost = static_cast<int>(kTelling.size());
    if (event.type == QLatin1String("windowState")) {
        return event.value == QLatin1String("open") ? kMost + 2 : kMost + 1;
    }
    const auto *const found = std::find_if(kTelling.cbegin(), kTelling.cend(), [&event](const char *type) {
        return event.type == QLatin1String(type);
    });
    // "pressed" and "textLength" count where nothing else came of it.
    return found == kTelling.cend() ? 1 : kMost - static_cast<int>(found - kTelling.cbegin());
}

/// The condition that the event meets.
QString conditionOf(const EditorEvent &event)
{
    const QString text = event.type + QLatin1Char(',') + event.target;
    const bool hasLast = !event.value.isEmpty() || event.type == QLatin1String("action");
    // The hint says that a click is to be a drag, and no condition does.
    const QString last = event.value == QLatin1String("drag") ? QStringLiteral("click") : event.value;
    return hasLast ? text + QLatin1Char(',') + last : text;
}

} // namespace

Recorder::Recorder(HostEditor *editor, DescriptionSet windows, const LessonRecord &record, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_windows(std::move(windows))
    , m_record(record)
{
    connect(editor, &HostEditor::happened, this, &Recorder::hear);
}

void Recorder::press(Press kind, const QPoint &place)
{
    if (kind == Press::kDoubleClick && m_step) {
        // The first press of it has made the step.
        m_step->icon = QStringLiteral("doubleClick");
        return;
    }
    finish();
    m_step = stepAt(place);
    m_step->icon = kind == Press::kRightClick ? QStringLiteral("rightClick") : QStringLiteral("click");
}

void Recorder::type(Keys keys)
{
    if (m_step && m_rank > 1) {
        finish();
    }
    m_hasText = m_hasText || keys == Keys::kText;
    if (!m_step) {
        m_step = RecordedStep{QString::fromLatin1(kKeys), {}, keyboardWindow(), {}, {}};
    }
    m_step->icon = QStringLiteral("keyboard");
}

void Recorder::finish()
{
    m_rank = 0;
    const bool hasText = std::exchange(m_hasText, false);
    const std::optional<RecordedStep> done = std::exchange(m_step, std::nullopt);
    if (!done) {
        return;
    }
    if (!done->condition.isEmpty()) {
        add(*done);
    } else if (hasText) {
        RecordedStep typed = *done;
        typed.condition = QStringLiteral("click,"); // Next, once it is typed
        add(typed);
    }
}

void Recorder::hear(const EditorEvent &event)
{
    const bool closesByItself = event.type == QLatin1String("windowState") &&
                                event.value == QLatin1String("close") && m_windows.contains(event.target) &&
                                m_windows[event.target].closesAfterMs > 0;
    if (closesByItself) {
        finish();
        const QSize size = m_windows.size(event.target);
        add({QStringLiteral("Wait for %1").arg(event.target),
             QPoint(size.width() / 2, size.height() / 2) - LessonWords::kTip, event.target,
             conditionOf(event), QStringLiteral("wait")});
        return;
    }
    if (m_step && rankOf(event) >= m_rank) {
        m_rank = rankOf(event);
        m_step->condition = conditionOf(event);
        const std::optional<Condition> condition = Condition::parse(m_step->condition);
        if (m_step->icon != QLatin1String("keyboard")) {
            pointAt(event.cause);
        } else if (!event.cause.isNone() && !pointsAt(event.cause) &&
                   (!m_hasText || (condition && condition->isOfControl()))) {
            // The click before had no effect, and the keys went elsewhere.
            m_step->name = QString::fromLatin1(kKeys);
            m_step->position.reset();
        }
        if (!m_step->position && condition && condition->isOfControl()) {
            m_step->windowKey = event.windowKey; // where it counts
        }
    }
}

void Recorder::add(const RecordedStep &step)
{
    m_record.add(step);
    const QString problem = m_record.write();
    if (!problem.isEmpty()) {
        Q_EMIT problemFound(problem);
    }
    Q_EMIT recorded(step);
}

bool Recorder::pointsAt(const ControlSpot &spot) const
{
    return m_step->name == spot.control && m_step->windowKey == spot.windowKey;
}

void Recorder::pointAt(const ControlSpot &spot)
{
    const std::optional<QPoint> middle =
        pointsAt(spot) || spot.isNone() ? std::nullopt : pointOf(m_windows, spot);
    if (middle) {
        *m_step = {spot.control, *middle - LessonWords::kTip, spot.windowKey, m_step->condition,
                   m_step->icon};
    }
}

QString Recorder::keyboardWindow() const
{
    const QStringList open = m_editor->openWindows();
    const QString top = open.isEmpty() ? QStringLiteral("ApplicationWindow") : open.constLast();
    return top == QLatin1String("Popup") ? QStringLiteral("Menu") : top;
}

RecordedStep Recorder::stepAt(const QPoint &place) const
{
    QStringList open = m_editor->openWindows();
    const std::optional<QPoint> menu = m_editor->origin(QStringLiteral("Menu"));
    QString key;
    if (!open.isEmpty() && open.constLast() == QLatin1String("Popup")) {
        // A press beside the menu closes it, and is for the window below.
        const bool isInMenu = menu && m_editor->controlAt(QStringLiteral("Menu"), place - *menu);
        key = isInMenu ? QStringLiteral("Menu") : QString();
        open.removeLast();
    }
    if (key.isEmpty()) {
        key = open.isEmpty() ? QStringLiteral("ApplicationWindow") : open.constLast();
    }
    RecordedStep step{key, {}, key, {}, {}};
    const std::optional<QPoint> origin = m_editor->origin(key);
    if (!origin) {
        return step;
    }
    step.position = place - *origin - LessonWords::kTip;
    if (const std::optional<ControlSpot> spot = m_editor->controlAt(key, place - *origin)) {
        if (const std::optional<QPoint> middle = pointOf(m_windows, *spot)) {
            step = {spot->control, *middle - LessonWords::kTip, spot->windowKey, {}, {}};
        }
    }
    return step;
}
