#include "host/LessonGuide.h"

#include "host/HostEditor.h"
#include "host/ScenarioRunner.h"
#include "host/StepRule.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

bool isTyping(const EditorEvent &event)
{
    return event.type == QLatin1String("textLength") || event.type == QLatin1String("spinBox");
}

/// In so many turns a control is used in vain before something must be wrong with it: a double click is up
/// to four turns, and the first may have missed.
constexpr int kMostVainUses = 6;

/// So many times a way back comes up again after it was gone: then it leads round in a circle.
constexpr int kMostRounds = 3;

bool isPress(const EditorEvent &event)
{
    return event.type == QLatin1String("pressed");
}

/// Whether the icon of the step asks for a use of the mouse.
bool isMouseAct(const Step &step)
{
    return step.icon == QLatin1String("click") || step.icon == QLatin1String("doubleClick") ||
           step.icon == QLatin1String("rightClick");
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
    connect(editor, &HostEditor::used, this, &LessonGuide::takeUse);
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
    m_leftBehind = known.leftBehind;
}

void LessonGuide::beginStep(const ScenarioRunner &runner, bool canGoBack)
{
    noteLeftBehind();
    m_runs = true;
    ++m_number;
    m_canGoBack = canGoBack;
    m_needs.step = runner.step();
    const Step *const behind = runner.stepBehind();
    m_behind = behind != nullptr ? std::optional(*behind) : std::nullopt;
    m_needs.earlier = EarlierSteps(m_editor, runner.scenario(), runner.index());
    m_needs.pointed.reset();
    m_settled = false;
    m_wrongMoves = 0;
    m_wrongClicks = 0;
    m_offered = false;
    m_isUsed = false;
    m_isUsedNow = false;
    m_vainSteps = 0;
    m_changes = 0;
    m_stray = Stray::kNot;
    m_way.reset();
    m_beganAstray = false;
    m_isWayUsed = false;
    m_vainUses = 0;
    m_goneWays.clear();
    m_hasUsedWay = false;
    m_couldPutBack = false;
    m_wasDamaged = false;
    m_wasGone = false;
    m_looksElsewhere = false;
    m_choosesElsewhere = false;
    m_hasReturned = false;
    m_left.clear();
    takeStart();
    m_turn.start();
    if (asksForAct()) {
        m_help.start();
    } else {
        m_help.stop();
    }
}

void LessonGuide::end()
{
    m_runs = false;
    m_choosesElsewhere = false;
    m_leftBehind.clear();
    m_turn.stop();
    m_help.stop();
    m_stray = Stray::kNot;
    m_way.reset();
}

LessonGuide::Verdict LessonGuide::judge(const EditorEvent &event)
{
    follow();
    m_trail.take(event);
    if (!m_runs || m_restoring) {
        return Verdict::kNothing;
    }
    noteUse(event.cause);
    if (isPress(event)) {
        m_pressedIn = m_number;
    }
    const bool isRelease = event.type == QLatin1String("mouseEvent");
    const int pressedIn = isRelease ? std::exchange(m_pressedIn, 0) : 0;
    if (pressedIn != 0 && pressedIn != m_number) {
        // The button went down in a step that is over, and what the stroke has drawn belongs to that one.
        m_settled = false;
        return Verdict::kNothing;
    }
    // A menu is gone when its entry reports.
    const bool isOtherMenu = !m_needs.start.open.isEmpty() && m_needs.start.open.constLast().isMenu &&
                             event.cause.control.startsWith(m_trail.lastMenu().name + QLatin1Char('/')) &&
                             !m_trail.lastMenu().isLike(m_needs.start.open.constLast());
    const bool isOnlyHindered =
        m_stray == Stray::kCovered || m_stray == Stray::kBehind || m_stray == Stray::kEnded;
    const bool isElsewhere = isOtherMenu || (isAstray() && !isOnlyHindered);
    if (!isElsewhere && m_needs.step.condition.isMetBy(event, m_needs.step.windowKey) &&
        StepRule(m_editor, m_needs.step, m_needs.pointed).counts(event)) {
        return Verdict::kDone;
    }
    if (!isElsewhere && !m_looksElsewhere && m_ahead.isDoneBy(event)) {
        return Verdict::kRanAhead;
    }
    blame(event);
    return Verdict::kNothing;
}

void LessonGuide::takeUse(const ControlSpot &spot)
{
    follow();
    noteUse(spot);
    if (m_runs && !m_restoring) {
        EditorEvent use;
        use.cause = spot;
        blame(use);
    }
}

std::optional<ControlUse> LessonGuide::leftUndone() const
{
    using Kind = ControlUse::Kind;
    const std::optional<ControlSpot> &spot = m_needs.pointed;
    if (!m_runs || !spot || !isMouseAct(m_needs.step) ||
        m_needs.step.condition.type() != Condition::Type::kNext) {
        return {};
    }
    const ControlUse use = ControlUse::of(m_needs.step, *spot);
    // A row or tab may have been left for another one, and clicking it twice does no harm.
    const bool isDone = m_isUsed && (spot->part < 0 || m_editor->dataMark() != m_needs.start.dataMark);
    return isDone || use.kind == Kind::kDrag ? std::nullopt : std::optional(use);
}

void LessonGuide::chooseAsBefore()
{
    if (!m_runs || !m_settled || !isLook()) {
        return;
    }
    const QScopedValueRollback<bool> restoring(m_restoring, true);
    const QVector<ControlSpot> spots = left();
    for (const ControlSpot &spot : spots) {
        m_editor->reveal(spot);
        if (m_editor->rectOf(spot)) {
            m_editor->perform({spot, ControlUse::Kind::kClick, {}, false});
        }
    }
}

std::optional<ControlUse> LessonGuide::mendOfActivity() const
{
    const bool isActivity = m_stray == Stray::kBehind || m_stray == Stray::kEnded;
    return isActivity && m_way ? std::optional(ControlUse::of(*m_way)) : std::nullopt;
}

bool LessonGuide::canPutBack() const
{
    return canRestore() && (isDamaged() || (m_choosesElsewhere && !isAstray()));
}

bool LessonGuide::canRestore() const
{
    return m_runs && m_settled && !m_needs.start.state.isEmpty();
}

bool LessonGuide::isDamaged() const
{
    return m_stray == Stray::kProject || isInVain() || (isAstray() && !m_way) ||
           (m_wrongMoves > 0 && m_editor->dataMark() != m_needs.start.dataMark);
}

bool LessonGuide::isLost() const
{
    return (m_stray == Stray::kGone && m_editor->dataMark() == m_needs.start.dataMark) ||
           (m_beganAstray && isAstray() && !m_way) || isInVain();
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
        m_needs.start.dataMark = m_editor->dataMark();
        m_isUsed = false;
        m_isUsedNow = false;
        m_changes = 0;
        m_lastMark = m_needs.start.dataMark;
        m_wrongMoves = 0;
        m_vainUses = 0;
        m_goneWays.clear();
        m_hasUsedWay = false;
        m_vainSteps = 0;
        m_choosesElsewhere = false;
        m_left = left();
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

void LessonGuide::noteUse(const ControlSpot &spot)
{
    m_isWayUsed = m_isWayUsed || (m_way && spot.isLike(m_way->by));
    const bool isIt = m_runs && m_needs.pointed && spot.isLike(*m_needs.pointed);
    m_isUsed = m_isUsed || isIt;
    m_isUsedNow = m_isUsedNow || isIt;
}

void LessonGuide::endTurn()
{
    const bool isBlamed = std::exchange(m_blamed, false);
    const bool isFirst = !std::exchange(m_settled, true);
    if (isFirst) {
        takeStart();
    }
    if (std::exchange(m_isUsedNow, false)) {
        countUse();
    }
    takeReturn();
    const Whereabouts now(m_editor, &m_needs, m_trail.open());
    const Stray stray = m_runs ? lookAround(now) : Stray::kNot;
    const std::optional<Way> way = usableWay(now, stray);
    m_beganAstray = isFirst ? stray != Stray::kNot : m_beganAstray;
    const bool isNew = std::exchange(m_stray, stray) != stray;
    const bool isOther = std::exchange(m_way, way) != way;
    m_looksElsewhere = m_runs && isLook() && looksElsewhere();
    lookWhatIsChosen(isBlamed);
    m_wasDamaged = canRestore() && isDamaged();
    const bool couldPutBack = std::exchange(m_couldPutBack, canPutBack());
    if (isNew || isOther || couldPutBack != m_couldPutBack) {
        Q_EMIT changed();
    }
    Q_EMIT turned();
}

void LessonGuide::countUse()
{
    m_vainSteps += wantsWindow() ? 1 : 0;
    if (!m_needs.pointed || !m_editor->addsUp(*m_needs.pointed)) {
        return;
    }
    const QString mark = m_editor->dataMark();
    const bool isChange = std::exchange(m_lastMark, mark) != mark;
    m_changes += isChange ? 1 : 0;
    if (isChange && m_changes > ControlUse::of(m_needs.step, *m_needs.pointed).times) {
        ++m_wrongMoves;
    }
}

std::optional<Way> LessonGuide::usableWay(const Whereabouts &now, Stray stray)
{
    std::optional<Way> way = now.wayBack(stray);
    if (stray == Stray::kNot) {
        m_goneWays.clear();
    }
    const bool isUsed = std::exchange(m_isWayUsed, false);
    if (!way || m_needs.start.state.isEmpty()) {
        return way;
    }
    m_hasUsedWay = m_hasUsedWay || isUsed;
    if (m_way && way != m_way) {
        m_vainUses = 0;
        if (std::exchange(m_hasUsedWay, false)) {
            m_goneWays.append(*m_way);
        }
    } else if (isUsed) {
        ++m_vainUses;
    }
    bool isGone = false;
    if (!m_editor->rectOf(way->by)) {
        m_editor->reveal(way->by);
        isGone = way->by.part >= 0 && !m_editor->rectOf(way->by);
    }
    // What is not there, or does something else, leads nowhere, but it can be put back.
    const bool isCircle = m_goneWays.count(*way) >= kMostRounds;
    return isGone || isCircle || m_vainUses >= kMostVainUses ? std::nullopt : way;
}

Stray LessonGuide::lookAround(const Whereabouts &now)
{
    Stray stray = now.stray();
    if (stray == Stray::kGone) {
        // Scrolled away, most often.
        m_editor->reveal(*m_needs.pointed);
        stray = now.stray();
    }
    const bool isGone = stray == Stray::kGone;
    const bool wasGone = std::exchange(m_wasGone, isGone);
    if (!isGone) {
        return stray;
    }
    if (!wasGone) {
        m_turn.start(); // windows that have only just changed get another turn
    }
    const bool canBeMended =
        !m_needs.start.state.isEmpty() && (m_canGoBack || m_editor->dataMark() != m_needs.start.dataMark);
    return wasGone && wantsEvent() && canBeMended ? Stray::kGone : Stray::kNot;
}

void LessonGuide::takeStart()
{
    if (!m_needs.pointed) {
        m_needs.pointed = m_editor->controlFor(m_needs.step);
    }
    const StepStart before = std::exchange(m_needs.start, StepStart::of(*m_editor, m_trail, m_needs.pointed));
    m_needs.start.takeWindows(before, m_editor->windowOf(m_needs.step.windowKey));
    m_lastMark = m_needs.start.dataMark;
    m_needs.start.leftBehind = m_leftBehind;
    m_ahead = m_behind ? StepAhead(m_editor, *m_behind) : StepAhead();
}

void LessonGuide::blame(const EditorEvent &event)
{
    // Into what is only shown a person may type something of her own.
    const bool isForUse = !isLook() || isTyping(event);
    const bool isAsked = isForUse && m_needs.pointed && event.cause.isLike(*m_needs.pointed) &&
                         !(m_needs.step.condition.type() == Condition::Type::kMouseEvent &&
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
    if (m_runs && asksForAct() && !std::exchange(m_offered, true)) {
        m_help.stop();
        Q_EMIT helpOffered();
    }
}

bool LessonGuide::wantsEvent() const
{
    using Type = Condition::Type;
    const Type type = m_needs.step.condition.type();
    return type != Type::kNext && type != Type::kYesNo && type != Type::kWait;
}

bool LessonGuide::asksForAct() const
{
    return wantsEvent() || (m_needs.step.condition.type() == Condition::Type::kNext && !isLook());
}

bool LessonGuide::isLook() const
{
    return !wantsEvent() && !isMouseAct(m_needs.step) && m_needs.step.icon != QLatin1String("keyboard");
}

QVector<ControlSpot> LessonGuide::left() const
{
    const QVector<ControlSpot> now = m_editor->chosen();
    QVector<ControlSpot> left;
    for (const ControlSpot &spot : m_needs.start.chosen) {
        if (!now.contains(spot)) {
            left.append(spot);
        }
    }
    return left;
}

bool LessonGuide::looksElsewhere() const
{
    const QVector<ControlSpot> spots = left();
    // The first click of two has chosen a row already.
    return std::any_of(spots.cbegin(), spots.cend(), [this](const ControlSpot &spot) {
        return !m_ahead.pointed() || !spot.isSameControl(*m_ahead.pointed());
    });
}

void LessonGuide::lookWhatIsChosen(bool isBlamed)
{
    const QVector<ControlSpot> before = std::exchange(m_left, m_runs ? left() : QVector<ControlSpot>());
    const bool isMore = std::any_of(m_left.cbegin(), m_left.cend(), [&](const ControlSpot &spot) {
        const bool isAsked = m_needs.pointed && spot.isSameControl(*m_needs.pointed);
        return !isAsked && !before.contains(spot);
    });
    m_choosesElsewhere = !m_left.isEmpty() && !isLook() && (m_choosesElsewhere || (isBlamed && isMore));
}

void LessonGuide::noteLeftBehind()
{
    if (!m_choosesElsewhere) {
        return;
    }
    for (const ControlSpot &spot : qAsConst(m_left)) {
        const bool isAsked = m_needs.pointed && spot.isSameControl(*m_needs.pointed);
        if (!isAsked && !m_leftBehind.contains(spot)) {
            m_leftBehind.append(spot);
        }
    }
}

void LessonGuide::takeReturn()
{
    const QVector<ControlSpot> now = m_leftBehind.isEmpty() ? QVector<ControlSpot>() : m_editor->chosen();
    for (const ControlSpot &spot : now) {
        if (m_leftBehind.removeAll(spot) == 0) {
            continue;
        }
        m_hasReturned = true;
        QVector<ControlSpot> &chosen = m_needs.start.chosen;
        std::replace_if(
            chosen.begin(), chosen.end(),
            [&spot](const ControlSpot &other) { return other.isSameControl(spot); }, spot);
    }
    if (m_hasReturned && m_needs.pointed && left().isEmpty()) {
        m_hasReturned = false;
        m_needs.start.meaning = m_editor->meaningOf(*m_needs.pointed);
    }
}

bool LessonGuide::wantsWindow() const
{
    using Type = Condition::Type;
    const Condition &condition = m_needs.step.condition;
    return condition.type() == Type::kPopup ||
           (condition.type() == Type::kWindowState && condition.value() == QLatin1String("open"));
}

bool LessonGuide::isInVain() const
{
    return m_vainSteps >= kMostVainUses;
}
