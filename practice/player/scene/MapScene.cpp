#include "player/scene/MapScene.h"

#include "player/scene/Game.h"
#include "player/script/Walker.h"

#include <QCoreApplication>

#include <utility>

namespace player {

namespace {

constexpr int kFadeTicks = 24;
/// Steps to the next battle by chance.
constexpr int kFewestSteps = 12;
constexpr int kMostSteps = 36;
/// Ticks after which a route that does not get on is said to be stuck.
constexpr int kPatience = 5 * GameState::kTicksPerSecond;

QString mapFile(int map)
{
    return QStringLiteral("data/Map%1.json").arg(map, 3, 10, QLatin1Char('0'));
}

} // namespace

MapScene::MapScene(Game *game)
    : m_game(game)
    , m_world(&game->data(), &game->state())
    , m_events(&game->data(), &m_world, this, [game](const Problem &problem) { game->tell(problem); })
    , m_hero(&m_world)
{
    // A saved game goes on with what was heard.
    enterMap(game->state().music.file.isEmpty());
}

void MapScene::enterMap(bool takesMusic)
{
    m_world.enter();
    m_view.enter(m_world.map());
    m_hero.forgetWay();
    GameState &state = m_game->state();
    m_heroCell = state.hero.cell;
    m_stepsToEncounter = state.random.between(kFewestSteps, kMostSteps);
    if (m_world.map() == nullptr) {
        Problem problem;
        problem.file = mapFile(state.map);
        problem.map = state.map;
        problem.text =
            QCoreApplication::translate("TestPlay", "There is no map to be on: nothing can be seen.");
        m_game->tell(problem);
    } else if (takesMusic && m_world.map()->music.file != state.music.file) {
        m_game->setMusic(m_world.map()->music);
    }
}

bool MapScene::isBusy() const
{
    return m_events.isRunning() || m_talk.isTalking() || isTransferring() || m_isAway;
}

void MapScene::tick(const Input &input, Game *game)
{
    m_view.tick();
    m_fade.tick();
    // The key that ends a talk does nothing else.
    const bool wasTalking = m_talk.isTalking();
    m_talk.tick(input, game);
    tickTransfer();
    m_world.refresh();
    if (m_transferPhase == Phase::kNone) {
        m_events.tick();
    }
    if (m_isAway) {
        return;
    }
    if (m_transferPhase == Phase::kNone) {
        const Walker::Play play = [game](const Sound &sound) {
            game->play(sound);
        };
        const bool wasMoving = game->state().hero.isMoving();
        Walker::tickHero(&m_world, play);
        Walker::tickEvents(&m_world, play);
        tellStuck(game->state().hero);
        for (const World::Event &event : qAsConst(m_world.events())) {
            tellStuck(event.character);
        }
        if (wasMoving && !game->state().hero.isMoving()) {
            heroArrived();
        }
        if (!wasTalking) {
            tickHero(input);
        }
    }
    m_world.refresh();
}

/// Also where no event waits for the route: a hero who cannot get on can do nothing else.
void MapScene::tellStuck(const Character &who)
{
    if (who.hasRoute && who.blockedTicks == kPatience) {
        Problem problem = who.routeOf;
        problem.text =
            QCoreApplication::translate("TestPlay", "The route has not got on for %1 seconds: something "
                                                    "is in the way.")
                .arg(kPatience / GameState::kTicksPerSecond);
        m_game->tell(problem);
    }
}

void MapScene::tickHero(const Input &input)
{
    const QVector<int> meetings = m_world.takeMeetings();
    Character &hero = m_game->state().hero;
    hero.image.clear();
    if (const Actor *const leader = m_game->state().knownActor(m_game->state().party.value(0))) {
        hero.image = leader->image;
    }
    if (isBusy() || m_world.map() == nullptr) {
        return;
    }
    m_events.forgetAutoruns();
    if (const int waiting = std::exchange(m_game->state().waitingCommonEvent, 0)) {
        if (const CommonEventEntry *const event = m_game->data().commonEvents.find(waiting)) {
            m_events.startCommon(*event);
        }
        return;
    }
    for (const int id : meetings) {
        World::Event *const event = m_world.event(id);
        if (event != nullptr && event->page != nullptr && event->page->trigger == Trigger::kMeetsPlayer) {
            m_events.start(event);
            return;
        }
    }
    if (hero.isMoving() || hero.hasRoute || hero.pause > 0) {
        return;
    }
    if (input.isPressed(GameKey::kMenu)) {
        m_hero.forgetWay();
        openMenu();
    } else if (World::Event *const event = m_hero.tick(input)) {
        m_hero.forgetWay();
        m_events.start(event);
    }
}

void MapScene::heroArrived()
{
    const QPoint cell = m_game->state().hero.cell;
    if (cell == m_heroCell || isBusy()) {
        m_heroCell = cell;
        return;
    }
    m_heroCell = cell;
    if (World::Event *const event = m_hero.arrive()) {
        m_hero.forgetWay();
        m_events.start(event);
    } else {
        countStep();
    }
}

void MapScene::countStep()
{
    if (!m_game->hasEncounters() || m_world.map()->encounters.isEmpty() || --m_stepsToEncounter > 0) {
        return;
    }
    m_stepsToEncounter = m_game->state().random.between(kFewestSteps, kMostSteps);
    const int troop = randomTroop();
    if (m_game->data().troops.find(troop) == nullptr) {
        Problem problem;
        problem.file = mapFile(m_game->state().map);
        problem.map = m_game->state().map;
        problem.text =
            QCoreApplication::translate("TestPlay", "There is no troop %1; nobody fights.").arg(troop);
        m_game->tell(problem);
        return;
    }
    fight({troop, true, false});
}

int MapScene::randomTroop()
{
    if (m_world.map() == nullptr) {
        return 0;
    }
    int sum = 0;
    for (const Encounter &encounter : m_world.map()->encounters) {
        sum += encounter.weight;
    }
    if (sum == 0) {
        return 0;
    }
    int left = m_game->state().random.between(1, sum);
    for (const Encounter &encounter : m_world.map()->encounters) {
        left -= encounter.weight;
        if (left <= 0) {
            return encounter.troop;
        }
    }
    return 0;
}

bool MapScene::transfer(const Transfer &transfer)
{
    m_transfer = transfer;
    m_transferPhase = Phase::kLeaves;
    m_fade.slideTo(1, transfer.fade == 2 ? 0 : kFadeTicks);
    return true;
}

void MapScene::tickTransfer()
{
    if (m_transferPhase == Phase::kNone || m_fade.isSliding()) {
        return;
    }
    if (m_transferPhase == Phase::kArrives) {
        m_transferPhase = Phase::kNone;
        return;
    }
    GameState &state = m_game->state();
    Character &hero = state.hero;
    hero.cell = m_transfer.cell;
    hero.at = m_transfer.cell;
    hero.ticksLeft = 0;
    hero.isJumping = false;
    if (m_transfer.direction != kNowhere) {
        hero.direction = m_transfer.direction;
    }
    m_heroCell = hero.cell;
    if (m_transfer.map != state.map) {
        state.map = m_transfer.map;
        m_events.leaveMap();
        enterMap(true);
    }
    m_fade.slideTo(0, m_transfer.fade == 2 ? 0 : kFadeTicks);
    m_transferPhase = m_transfer.fade == 2 ? Phase::kNone : Phase::kArrives;
}

void MapScene::play(const Sound &sound)
{
    m_game->play(sound);
}

void MapScene::setMusic(const Sound &music, int fadeTicks)
{
    m_game->setMusic(music, fadeTicks);
}

bool MapScene::scrollMap(int direction, int cells, int speed)
{
    m_view.scroll(direction, cells, speed);
    return true;
}

void MapScene::go(std::unique_ptr<Scene> scene)
{
    m_isAway = true;
    m_game->push(std::move(scene));
}

bool MapScene::openMenu()
{
    go(m_game->make().menu());
    return true;
}

bool MapScene::openSave()
{
    go(m_game->make().save());
    return true;
}

bool MapScene::openShop(const QVector<ShopGoods> &goods, bool onlyBuys)
{
    go(m_game->make().shop(goods, onlyBuys));
    return true;
}

bool MapScene::openNameInput(int actor, int letters)
{
    go(m_game->make().nameInput(actor, letters));
    return true;
}

bool MapScene::fight(const BattleWish &wish)
{
    m_musicBefore = m_game->state().music;
    m_isFighting = true;
    m_canLose = wish.canLose;
    m_hero.forgetWay();
    go(m_game->make().battle(wish, false, *m_game));
    return true;
}

bool MapScene::gameOver()
{
    m_isAway = true;
    m_game->begin(m_game->make().gameOver());
    return true;
}

bool MapScene::toTitle()
{
    m_isAway = true;
    m_game->beginTitle();
    return true;
}

void MapScene::resume(int result, Game *game)
{
    m_isAway = false;
    m_result = result;
    if (m_isFighting) {
        m_isFighting = false;
        game->setMusic(m_musicBefore);
        if (result == int(BattleOutcome::kLost) && !m_canLose) {
            gameOver();
        }
    }
}

void MapScene::show(const Game &game, Frame *frame) const
{
    m_view.show(m_world, game.state().hero, frame);
    m_talk.show(game, frame);
    frame->fade = m_fade.value();
    frame->fadeColour = m_transfer.fade == 1 ? Qt::white : Qt::black;
}

} // namespace player
