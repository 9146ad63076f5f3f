#include "player/scene/BattleScene.h"

#include "player/battle/Battle.h"
#include "player/battle/Spoils.h"
#include "player/battle/TrialParty.h"
#include "player/scene/BattleOrders.h"
#include "player/scene/BattleWords.h"
#include "player/scene/Game.h"
#include "player/scene/GameOverScene.h"
#include "player/script/Interpreter.h"

#include <utility>

namespace player {

namespace {

/// How long a line can be read.
constexpr int kLineTicks = 36;
/// With the action key held down.
constexpr int kHurriedTicks = 6;
constexpr int kLinesOfMessage = 4;

Sound named(const char *file)
{
    Sound sound;
    sound.file = QString::fromLatin1(file);
    return sound;
}

BattleOutcome outcomeOf(Battle::Result result)
{
    switch (result) {
    case Battle::Result::kLost:
        return BattleOutcome::kLost;
    case Battle::Result::kFled:
    case Battle::Result::kAborted:
        return BattleOutcome::kFled;
    default:
        return BattleOutcome::kWon;
    }
}

QVector<Message> messagesOf(const QStringList &lines)
{
    QVector<Message> messages;
    for (int line = 0; line < lines.size(); line += kLinesOfMessage) {
        Message message;
        message.lines = lines.mid(line, kLinesOfMessage);
        messages.append(message);
    }
    return messages;
}

} // namespace

BattleScene::BattleScene(const BattleWish &wish, bool isTest, const Game &)
    : m_wish(wish)
    , m_isTest(isTest)
{
}

BattleScene::~BattleScene() = default;

QVector<int> BattleScene::enemies() const
{
    QVector<int> numbers;
    if (m_battle != nullptr) {
        const QVector<Fighter> standing = m_battle->fighters().standing(true);
        for (const Fighter &fighter : standing) {
            numbers.append(std::as_const(*m_battle).fighters().enemy(fighter)->id);
        }
    }
    return numbers;
}

void BattleScene::begin(Game *game)
{
    GameState &state = game->state();
    if (m_isTest) {
        joinTrialParty(game->data(), &state);
    }
    m_battle = std::make_unique<Battle>(game->data(), &state, m_wish.troop, m_wish.canFlee);
    m_orders = std::make_unique<BattleOrders>(m_battle.get(), &game->data(), &state.random);
    m_interpreter = std::make_unique<Interpreter>(&game->data(), &state, this,
                                                  [game](const Problem &problem) { game->tell(problem); });
    if (!game->data().system.battleMusic.file.isEmpty()) {
        game->setMusic(game->data().system.battleMusic);
    }
    m_hadEnemies = !m_battle->fighters().standing(true).isEmpty();
    const QStringList lines = BattleWords::appear(m_battle->fighters());
    for (const QString &line : lines) {
        m_told.append({line, {}, false, 0});
    }
    m_battle->pages().beginMoment();
}

void BattleScene::tick(const Input &input, Game *game)
{
    m_game = game;
    if (m_battle == nullptr) {
        begin(game);
    }
    const QVector<Problem> problems = m_battle->takeProblems();
    for (const Problem &problem : problems) {
        game->tell(problem);
    }
    ++m_view.ticks;
    if (m_talk.isTalking()) {
        m_talk.tick(input, game);
    }
    if (m_interpreter->isRunning()) {
        m_interpreter->tick();
    } else if (!m_talk.isTalking() && !tickLog(input, game)) {
        goOn(input, game);
    }
    m_game = nullptr;
}

bool BattleScene::tickLog(const Input &input, Game *game)
{
    const bool hurries = input.isPressed(GameKey::kAct) || input.isPressed(GameKey::kCancel);
    if (m_lineTicks > 0) {
        m_lineTicks = hurries ? 0 : m_lineTicks - 1;
        if (input.isHeld(GameKey::kAct)) {
            m_lineTicks = qMin(m_lineTicks, kHurriedTicks);
        }
        return true;
    }
    if (m_told.isEmpty()) {
        m_view.seeAll();
        return false;
    }
    const Told told = m_told.takeFirst();
    if (!told.text.isEmpty()) {
        m_view.log.append(told.text);
        m_lineTicks = kLineTicks;
    }
    m_view.latest = told.note;
    m_view.hasLatest = told.hasNote;
    m_view.animation = told.animation;
    m_lineTicks = qMax(m_lineTicks, BattleView::ticksOf(told.animation, game->data()));
    m_view.ticks = 0;
    if (told.hasNote) {
        m_view.follow(told.note);
        sound(told.note, game);
    }
    return true;
}

void BattleScene::goOn(const Input &input, Game *game)
{
    if (m_phase == Phase::kEnds || m_phase == Phase::kLeaves) {
        leave(game);
        return;
    }
    if (beginEvent()) {
        return;
    }
    if (m_battle->result() != Battle::Result::kGoesOn) {
        finish(game);
        return;
    }
    if (m_battle->hasForced()) {
        m_view.keep(*m_battle);
        tell(m_battle->next());
        m_battle->pages().beginMoment();
        return;
    }
    switch (m_phase) {
    case Phase::kTurnBegins:
        m_view.log.clear();
        m_view.hasLatest = false;
        m_battle->beginTurn();
        m_battle->pages().beginMoment();
        m_menu.begin(*m_battle);
        m_phase = Phase::kCommands;
        break;
    case Phase::kCommands: {
        const BattleMenu::Answer answer = m_menu.tick(input, m_battle.get(), game->data(), game->state());
        m_view.asked = m_menu.asked();
        m_view.aimedAt = m_menu.aimedAt();
        if (answer == BattleMenu::Answer::kNone) {
            break;
        }
        m_view.log.clear();
        m_view.asked = {};
        m_view.aimedAt = {};
        if (answer == BattleMenu::Answer::kFlee) {
            tell({m_battle->flee()});
        }
        m_battle->order();
        m_phase = Phase::kDeeds;
        break;
    }
    default:
        m_view.log.clear();
        m_view.keep(*m_battle);
        if (m_battle->hasNext()) {
            tell(m_battle->next());
        } else {
            tell(m_battle->endTurn());
            m_phase = Phase::kTurnBegins;
        }
        m_battle->pages().beginMoment();
    }
}

bool BattleScene::beginEvent()
{
    const GameData &data = m_interpreter->data();
    m_commonEvents += m_battle->takeCommonEvents();
    while (!m_commonEvents.isEmpty()) {
        const int id = m_commonEvents.takeFirst();
        if (const CommonEventEntry *event = data.commonEvents.find(id)) {
            m_interpreter->start(event->list, {QStringLiteral("data/CommonEvents.json"), 0, id, 0});
            return true;
        }
    }
    // Events that begin when all is over would have nobody to happen to.
    if (m_battle->result() == Battle::Result::kAborted || m_battle->result() == Battle::Result::kFled) {
        return false;
    }
    const int page = m_battle->pages().next(m_battle->fighters(), m_interpreter->state(), m_battle->turn());
    if (page < 0) {
        return false;
    }
    m_interpreter->start(m_battle->pages().commands(page),
                         {QStringLiteral("data/Troops.json"), 0, m_battle->troop(), page + 1});
    return true;
}

void BattleScene::tell(const QVector<Note> &notes)
{
    int animation = 0;
    bool isOnScreen = false;
    QVector<Fighter> animated;
    for (const Note &note : notes) {
        if (note.kind == Note::Kind::kUsesSkill) {
            const SkillEntry *skill = m_interpreter->data().skills.find(note.id);
            animation = skill != nullptr ? skill->animation : 0;
            animated.clear();
            const AnimationEntry *entry = m_interpreter->data().animations.find(animation);
            isOnScreen = entry != nullptr && entry->isOnScreen;
        }
        const bool isAboutDoer = note.kind == Note::Kind::kUsesSkill || note.kind == Note::Kind::kAttacks;
        // Whatever a skill does to somebody, it is seen once; over all of the screen, once for all of them.
        const bool wasSeen = isOnScreen ? !animated.isEmpty() : animated.contains(note.who);
        const bool isSeen = !isAboutDoer && !wasSeen;
        if (isSeen) {
            animated.append(note.who);
        }
        m_told.append({BattleWords::of(note, m_battle->fighters(), m_interpreter->data()), note, true,
                       isSeen ? animation : 0});
    }
}

void BattleScene::sound(const Note &note, Game *game)
{
    switch (note.kind) {
    case Note::Kind::kLosesHp:
        game->play(named("hit"));
        break;
    case Note::Kind::kGainsHp:
    case Note::Kind::kGainsMp:
        game->play(named("heal"));
        break;
    case Note::Kind::kUsesSkill:
        game->play(named("magic"));
        break;
    case Note::Kind::kFlees:
        game->play(named("steps"));
        break;
    default:
        break;
    }
}

void BattleScene::finish(Game *game)
{
    const Battle::Result result = m_battle->result();
    m_view.log.clear();
    QStringList lines;
    if (result == Battle::Result::kWon && m_hadEnemies) {
        game->setMusic(named("victory"));
        const Spoils spoils = Spoils::of(game->data(), m_battle->fighters(), &game->state());
        const QVector<Rise> rises = share(spoils, game->data(), m_battle->fighters(), &game->state());
        lines = BattleWords::won(spoils, rises, game->state(), game->data());
    } else if (result == Battle::Result::kLost) {
        lines = QStringList{BattleWords::lost()};
    }
    m_lastWords = messagesOf(lines);
    m_phase = Phase::kEnds;
}

void BattleScene::leave(Game *game)
{
    if (m_phase == Phase::kLeaves) {
        return; // this scene has ended, and gets no more than the rest of a tick
    }
    if (!m_lastWords.isEmpty()) {
        m_talk.say(m_lastWords.takeFirst());
        return;
    }
    m_phase = Phase::kLeaves;
    const Battle::Result result = m_battle->result();
    m_battle->end();
    game->pop(int(outcomeOf(result)));
}

void BattleScene::show(const Game &game, Frame *frame) const
{
    const MapData *map = game.data().maps.find(game.state().map);
    frame->backdrop = map != nullptr ? map->backdrop : QString();
    if (frame->backdrop.isEmpty()) {
        frame->backdrop = QStringLiteral("meadow");
    }
    if (m_battle == nullptr) {
        return;
    }
    const bool isAsking =
        m_phase == Phase::kCommands && !m_talk.isTalking() && !m_interpreter->isRunning() && m_told.isEmpty();
    frame->isTrialAtRest = m_isTest && !(isAsking && m_menu.canGoBack());
    BattleView view = m_view;
    view.hidesParty = m_talk.isTalking() || (isAsking && m_menu.isWide());
    view.hidesLog = isAsking;
    view.show(*m_battle, game.data(), frame);
    if (isAsking) {
        m_menu.show(frame);
    }
    m_talk.show(game, frame);
}

void BattleScene::play(const Sound &sound)
{
    if (m_game != nullptr) {
        m_game->play(sound);
    }
}

void BattleScene::setMusic(const Sound &music, int fadeTicks)
{
    if (m_game != nullptr) {
        m_game->setMusic(music, fadeTicks);
    }
}

bool BattleScene::gameOver()
{
    if (m_game != nullptr) {
        m_phase = Phase::kLeaves;
        m_game->begin(std::make_unique<GameOverScene>());
    }
    return m_game != nullptr;
}

bool BattleScene::toTitle()
{
    if (m_game != nullptr) {
        m_phase = Phase::kLeaves;
        m_game->beginTitle();
    }
    return m_game != nullptr;
}

Battlefield *BattleScene::battlefield()
{
    return m_orders.get();
}

} // namespace player
