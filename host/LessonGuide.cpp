#include "host/LessonGuide.h"

#include "host/HostEditor.h"
#include "host/StepRule.h"
#include "host/WayBack.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

/// The windows without the menu that may be open above them.
OpenWindows withoutMenu(const OpenWindows &open)
{
    return !open.isEmpty() && open.constLast().isMenu ? open.mid(0, open.size() - 1) : open;
}

bool areAlike(const OpenWindows &one, const OpenWindows &another)
{
    return std::equal(one.cbegin(), one.cend(), another.cbegin(), another.cend(),
                      [](const OpenWindow &a, const OpenWindow &b) { return a.isLike(b); });
}

bool isTyping(const EditorEvent &event)
{
    return event.type == QLatin1String("textLength") || event.type == QLatin1String("spinBox");
}

bool isPress(const EditorEvent &event)
{
    return event.type == QLatin1String("pressed");
}

} // namespace

LessonGuide::LessonGuide(HostEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &LessonGuide::endTurn);
    m_help.setSingleShot(true);
    m_help.setInterval(kHelpAfterMs);
    connect(&m_help, &QTimer::timeout, this, &LessonGuide::offerHelp);
    connect(editor, &HostEditor::pushed, this, &LessonGuide::follow);
    connect(editor, &HostEditor::popped, this, &LessonGuide::follow);
    connect(editor, &HostEditor::popupAbandoned, this, &LessonGuide::follow);
    connect(editor, &HostEditor::viewChanged, this, &LessonGuide::follow);
}

void LessonGuide::beginLesson(const StepStart &known)
{
    m_trail = WindowTrail();
    m_trail.assign(known.open);
    m_trail.setLastCauses(known.lastCauses);
    m_trail.follow(m_editor->openWindows());
}

void LessonGuide::beginStep(const Step &step)
{
    m_runs = true;
    ++m_number;
    m_step = step;
    m_pointed.reset();
    m_settled = false;
    m_wrongMoves = 0;
    m_wrongClicks = 0;
    m_offered = false;
    m_stray = Stray::kNot;
    m_way.reset();
    m_couldPutBack = false;
    takeStart();
    m_turn.start();
    if (wantsEvent()) {
        m_help.start();
    } else {
        m_help.stop();
    }
}

void LessonGuide::end()
{
    m_runs = false;
    m_turn.stop();
    m_help.stop();
    m_stray = Stray::kNot;
    m_way.reset();
}

bool LessonGuide::counts(const EditorEvent &event, bool meets)
{
    follow();
    m_trail.take(event);
    if (!m_runs || m_restoring) {
        return false;
    }
    if (isPress(event)) {
        m_pressedIn = m_number;
    }
    if (event.type == QLatin1String("mouseEvent") && m_pressedIn != 0 && m_pressedIn != m_number) {
        // The button went down in a step that is over, and what the stroke has drawn belongs to that one.
        m_settled = false;
        return false;
    }
    // A menu is gone when its entry reports.
    const bool isOtherMenu = !m_start.open.isEmpty() && m_start.open.constLast().isMenu &&
                             event.cause.control.startsWith(m_trail.lastMenu().name + QLatin1Char('/')) &&
                             !m_trail.lastMenu().isLike(m_start.open.constLast());
    const bool isElsewhere = isOtherMenu || (isAstray() && m_stray != Stray::kCovered);
    if (meets && !isElsewhere && StepRule(m_editor, m_step, m_pointed).counts(event)) {
        return true;
    }
    blame(event);
    return false;
}

bool LessonGuide::canPutBack() const
{
    if (!m_runs || !m_settled || m_start.state.isEmpty()) {
        return false;
    }
    return m_stray == Stray::kProject || (isAstray() && !m_way) ||
           (m_wrongMoves > 0 && m_editor->dataMark() != m_start.dataMark);
}

bool LessonGuide::restore(const StepStart &start)
{
    if (start.state.isEmpty()) {
        return false;
    }
    bool restored = false;
    {
        const QScopedValueRollback<bool> restoring(m_restoring, true);
        restored = m_editor->restore(start.state);
    }
    m_trail.assign(start.open);
    m_trail.setLastCauses(start.lastCauses);
    m_trail.follow(m_editor->openWindows());
    if (m_runs) {
        m_start.dataMark = m_editor->dataMark();
        m_wrongMoves = 0;
        endTurn();
    }
    return restored;
}

void LessonGuide::takeStartAnew()
{
    if (m_runs && m_wrongMoves == 0) {
        m_settled = false;
        m_turn.start();
    }
}

void LessonGuide::follow()
{
    m_trail.follow(m_editor->openWindows());
    if (m_runs && !m_restoring) {
        m_turn.start();
    }
}

void LessonGuide::endTurn()
{
    m_blamed = false;
    if (!m_settled) {
        takeStart();
        m_settled = true;
    }
    const Stray stray = strayed();
    std::optional<Way> way = findWay(stray);
    if (way && !m_editor->rectOf(way->by)) {
        m_editor->reveal(way->by);
    } else if (stray == Stray::kNot && m_pointed && !m_editor->rectOf(*m_pointed)) {
        m_editor->reveal(*m_pointed);
    }
    const bool isNew = std::exchange(m_stray, stray) != stray;
    const bool isOther = std::exchange(m_way, way) != way;
    const bool couldPutBack = std::exchange(m_couldPutBack, canPutBack());
    if (isNew || isOther || couldPutBack != m_couldPutBack) {
        Q_EMIT changed();
    }
    Q_EMIT turned();
}

void LessonGuide::takeStart()
{
    if (!m_pointed && m_step.hasPosition()) {
        m_pointed = m_editor->controlAt(m_step.windowKey, QPoint(m_step.x, m_step.y) + LessonWords::kTip);
    }
    m_start = StepStart::of(*m_editor, m_trail, m_pointed);
}

void LessonGuide::blame(const EditorEvent &event)
{
    const bool isAsked = m_pointed && event.cause.isLike(*m_pointed) &&
                         !(m_step.condition.type() == Condition::Type::kMouseEvent &&
                           event.type == QLatin1String("mouseEvent"));
    const bool leadsBack = m_way && event.cause.isLike(m_way->by);
    if (!m_settled || event.cause.isNone() || isAsked || leadsBack) {
        return;
    }
    ++m_wrongMoves;
    if (isTyping(event) || isPress(event) || std::exchange(m_blamed, true)) {
        return;
    }
    if (++m_wrongClicks >= kHelpAfterClicks) {
        offerHelp();
    }
}

void LessonGuide::offerHelp()
{
    if (m_runs && wantsEvent() && !std::exchange(m_offered, true)) {
        m_help.stop();
        Q_EMIT helpOffered();
    }
}

bool LessonGuide::wantsEvent() const
{
    using Type = Condition::Type;
    const Type type = m_step.condition.type();
    return type != Type::kNext && type != Type::kYesNo && type != Type::kWait;
}

bool LessonGuide::isThere(const OpenWindows &open) const
{
    const QString needed = m_editor->windowOf(m_step.windowKey);
    if (needed.isEmpty() || open.isEmpty()) {
        return needed.isEmpty();
    }
    const OpenWindows &begun = m_start.open;
    if (needed == QLatin1String("Popup")) {
        const OpenWindow &top = open.constLast();
        const bool isKnown = !begun.isEmpty() && begun.constLast().isMenu;
        return top.isMenu && (!isKnown || areAlike(open, begun));
    }
    const OpenWindows windows = withoutMenu(open);
    const OpenWindows begunWindows = withoutMenu(begun);
    // Where the step's window was not on top from the start, it has to get there in any way.
    const bool isKnown = !begunWindows.isEmpty() && begunWindows.constLast().name == needed;
    return isKnown ? areAlike(windows, begunWindows)
                   : !windows.isEmpty() && windows.constLast().name == needed;
}

bool LessonGuide::hasOtherMeaning() const
{
    if (!m_pointed || m_start.meaning.isEmpty()) {
        return false;
    }
    const QString meaning = m_editor->meaningOf(*m_pointed);
    return !meaning.isEmpty() && meaning != m_start.meaning;
}

LessonGuide::Stray LessonGuide::strayed() const
{
    if (!m_runs || !m_step.hasPosition()) {
        return Stray::kNot;
    }
    if (!m_start.project.isEmpty() && m_editor->projectId() != m_start.project) {
        return Stray::kProject;
    }
    if (!isThere(m_trail.open())) {
        return Stray::kWindows;
    }
    if (hasOtherMeaning() && (wayToChosen() || m_editor->dataMark() != m_start.dataMark)) {
        return Stray::kMeaning;
    }
    const bool isInMenu = m_editor->windowOf(m_step.windowKey) == QLatin1String("Popup");
    const bool hasMenu = !m_trail.open().isEmpty() && m_trail.open().constLast().isMenu;
    return !isInMenu && hasMenu && m_pointed && !m_editor->rectOf(*m_pointed) ? Stray::kCovered : Stray::kNot;
}

std::optional<Way> LessonGuide::findWay(Stray stray) const
{
    switch (stray) {
    case Stray::kWindows:
        return wayToWindows();
    case Stray::kMeaning:
        return wayToChosen();
    case Stray::kCovered: {
        const WayBack search(m_editor->ways());
        const OpenWindows below = withoutMenu(m_trail.open());
        return search.first(m_trail.open(),
                            [&below](const OpenWindows &open) { return areAlike(open, below); });
    }
    case Stray::kNot:
    case Stray::kProject:
        break;
    }
    return {};
}

std::optional<Way> LessonGuide::wayToWindows() const
{
    const WayBack search(m_editor->ways());
    std::optional<Way> way =
        search.first(m_trail.open(), [this](const OpenWindows &open) { return isThere(open); });
    if (!way) {
        return {};
    }
    if (way->by.part < 0) {
        // Of a list it is the row with which it was done before.
        const ControlSpot before = m_start.lastCauses.value(way->windowKey);
        if (before.isSameControl(way->by)) {
            way->by.part = before.part;
        }
    }
    // What is hidden behind another tab is out of reach until that is in front again.
    const std::optional<Way> chosen = m_editor->rectOf(way->by) ? std::nullopt : wayToChosen();
    return chosen ? chosen : way;
}

std::optional<Way> LessonGuide::wayToChosen() const
{
    const QVector<ControlSpot> now = m_editor->chosen();
    for (const ControlSpot &spot : m_start.chosen) {
        if (!now.contains(spot) && m_editor->rectOf(spot)) {
            return Way{spot,
                       QStringLiteral("click"),
                       m_editor->windowOf(spot.windowKey),
                       Way::Does::kShows,
                       QString(),
                       false};
        }
    }
    return {};
}
