#include "player/run/Hand.h"

#include "player/scene/BattleScene.h"
#include "player/scene/MapScene.h"

namespace player {

namespace {

constexpr int kTwoMinutes = 120 * GameState::kTicksPerSecond;

} // namespace

Hand::Hand(Game *game)
    : m_game(game)
    , m_problems(game->takeProblems())
{
}

void Hand::tick(const Input &input)
{
    const bool wasBattle = isBattle();
    m_game->tick(input);
    if (wasBattle && !isBattle()) {
        const MapScene *const below = map();
        // Where no map goes on, the game is over.
        m_lastBattle = below != nullptr ? BattleOutcome(below->result()) : BattleOutcome::kLost;
    }
    const QVector<Problem> problems = m_game->takeProblems();
    for (const Problem &problem : problems) {
        problem.addTo(&m_problems);
    }
    m_sounds += m_game->frame().sounds;
}

void Hand::press(GameKey key)
{
    Input input;
    input.pressed.append(key);
    input.held.append(key);
    tick(input);
    // A key that is up again counts anew.
    tick();
}

bool Hand::until(int ticks, const std::function<bool()> &holds)
{
    for (int done = 0; !holds(); ++done) {
        if (done >= ticks || m_game->isOver()) {
            return false;
        }
        tick();
    }
    return true;
}

const MapScene *Hand::map() const
{
    return dynamic_cast<const MapScene *>(scene());
}

MapScene *Hand::map()
{
    return dynamic_cast<MapScene *>(m_game->scene());
}

bool Hand::isBattle() const
{
    return dynamic_cast<const BattleScene *>(scene()) != nullptr;
}

bool Hand::isFree() const
{
    const MapScene *const here = map();
    const Character &hero = m_game->state().hero;
    return here != nullptr && !here->isBusy() && !hero.isMoving() && !hero.hasRoute;
}

bool Hand::isAsked() const
{
    if (frame().list() != nullptr) {
        return true;
    }
    for (const Panel &panel : frame().panels) {
        if (panel.isWaiting || panel.role == QLatin1String("scroll")) {
            return true;
        }
    }
    return false;
}

QString Hand::whereabouts() const
{
    return QStringLiteral("the hero stands on map %1 at %2 %3, and there is %4")
        .arg(state().map)
        .arg(state().hero.cell.x())
        .arg(state().hero.cell.y())
        .arg(seen());
}

QString Hand::textOf(const Panel &panel)
{
    QStringList texts;
    if (!panel.title.isEmpty()) {
        texts.append(panel.title + QLatin1Char(':'));
    }
    texts += panel.texts();
    for (const PanelRow &row : panel.rows) {
        texts.append(QStringLiteral("[%1]").arg(row.text));
    }
    return texts.join(QLatin1Char(' ')).simplified();
}

QString Hand::seen() const
{
    QStringList texts;
    for (const Panel &panel : frame().panels) {
        texts.append(QStringLiteral("%1 \"%2\"").arg(panel.role, textOf(panel)));
    }
    return texts.isEmpty() ? QStringLiteral("nothing") : texts.join(QStringLiteral(", "));
}

bool Hand::goOn()
{
    // An event that has just begun shows itself a tick later, and so does the next part of one.
    tick();
    tick();
    for (int done = 0; done < kTwoMinutes && !m_game->isOver(); ++done) {
        if (frame().list() != nullptr || isFree()) {
            return true;
        }
        if (isAsked()) {
            press(GameKey::kAct);
        } else {
            tick();
        }
    }
    return m_game->isOver();
}

} // namespace player
