#include "player/scene/Game.h"

#include <algorithm>
#include <utility>

namespace player {

namespace {

/// Problems that are told: of a game that has more wrong with it, the first ones tell most.
constexpr int kMostTold = 500;
/// A line that goes wrong with each number in turn would hide what else is wrong.
constexpr int kMostAtOneLine = 5;

} // namespace

Game::Game(std::shared_ptr<const GameData> data, const GameSettings &settings,
           std::unique_ptr<const SceneMaker> scenes)
    : m_data(std::move(data))
    , m_settings(settings)
    , m_make(std::move(scenes))
{
    m_state.random = Random(settings.seed);
    for (const Problem &problem : m_data->problems) {
        tell(problem);
    }
    switch (settings.start) {
    case StartWith::kTitle:
        beginTitle();
        break;
    case StartWith::kMap:
        beginNewGame();
        break;
    case StartWith::kBattleTest:
        m_state = GameState::begin(*m_data, settings.seed);
        begin(m_make->battle(BattleWish{settings.troop, true, true}, true, *this));
        break;
    }
    applyOrders();
    compose();
}

Game::~Game() = default;

void Game::tick(const Input &input)
{
    if (m_isOver) {
        return;
    }
    m_sounds.clear();
    ++m_state.ticks;
    m_state.screen.tick();
    if (m_state.isTimerOn) {
        m_state.timerTicks = qMax(0, m_state.timerTicks - 1);
    }
    if (Scene *const uppermost = scene()) {
        uppermost->tick(input, this);
    }
    applyOrders();
    compose();
}

QVector<Problem> Game::takeProblems()
{
    return std::exchange(m_problems, {});
}

Scene *Game::scene() const
{
    return m_scenes.empty() ? nullptr : m_scenes.back().get();
}

void Game::push(std::unique_ptr<Scene> scene)
{
    m_orders.push_back({Change::kPush, std::move(scene), 0});
}

void Game::pop(int result)
{
    m_orders.push_back({Change::kPop, nullptr, result});
}

void Game::begin(std::unique_ptr<Scene> scene)
{
    m_orders.push_back({Change::kBegin, std::move(scene), 0});
}

/// A scene that resumes may ask for more.
void Game::applyOrders()
{
    while (!m_orders.empty()) {
        std::vector<Order> orders = std::exchange(m_orders, {});
        for (Order &order : orders) {
            if (order.change == Change::kBegin) {
                m_scenes.clear();
            }
            if (order.change != Change::kPop) {
                m_scenes.push_back(std::move(order.scene));
                continue;
            }
            if (!m_scenes.empty()) {
                m_scenes.pop_back();
            }
            if (m_scenes.empty()) {
                m_isOver = true;
            } else {
                m_scenes.back()->resume(order.result, this);
            }
        }
    }
}

void Game::beginNewGame()
{
    const quint64 seed = m_state.random.state();
    m_state = GameState::begin(*m_data, seed);
    begin(m_make->map(this));
}

void Game::beginSaved(const GameState &state)
{
    m_state = state;
    begin(m_make->map(this));
}

void Game::beginTitle()
{
    const quint64 seed = m_state.random.state();
    m_state = GameState();
    m_state.random = Random(seed);
    begin(m_make->title());
}

void Game::play(const Sound &sound)
{
    if (!sound.file.isEmpty()) {
        m_sounds.append(sound);
    }
}

void Game::setMusic(const Sound &music, int fadeTicks)
{
    m_state.music = music;
    m_musicFade = fadeTicks;
}

void Game::tell(const Problem &problem)
{
    if (m_told.contains(problem)) {
        problem.addTo(&m_problems);
        return;
    }
    if (m_told.size() < kMostTold &&
        std::count_if(m_told.cbegin(), m_told.cend(), [&problem](const Problem &told) {
            return told.isAtSameLine(problem);
        }) < kMostAtOneLine) {
        m_told.append(problem);
        m_problems.append(problem);
    }
}

void Game::compose()
{
    m_frame = Frame();
    std::size_t lowest = m_scenes.empty() ? 0 : m_scenes.size() - 1;
    while (lowest > 0 && m_scenes[lowest]->isTranslucent()) {
        --lowest;
    }
    for (std::size_t i = lowest; i < m_scenes.size(); ++i) {
        m_scenes[i]->show(*this, &m_frame);
    }
    const Screen &screen = m_state.screen;
    m_frame.tick = m_state.ticks;
    m_frame.tintRed = qRound(screen.red.value());
    m_frame.tintGreen = qRound(screen.green.value());
    m_frame.tintBlue = qRound(screen.blue.value());
    m_frame.tintGrey = qRound(screen.grey.value());
    if (screen.flashStrength.value() > 0) {
        m_frame.flash = screen.flash;
        m_frame.flash.setAlpha(qBound(0, qRound(screen.flashStrength.value()), 255));
    }
    if (screen.fade.value() > m_frame.fade) {
        m_frame.fade = screen.fade.value();
        m_frame.fadeColour = screen.fadesToWhite ? Qt::white : Qt::black;
    }
    m_frame.shake = screen.shake();
    m_frame.weather = screen.weatherPower.value() > 0 ? screen.weather : 0;
    m_frame.weatherPower = screen.weatherPower.value();
    for (auto it = screen.pictures.begin(); it != screen.pictures.end(); ++it) {
        const Picture &picture = it.value();
        m_frame.pictures.append({it.key(),
                                 picture.name,
                                 {picture.x.value(), picture.y.value()},
                                 picture.isCentred,
                                 {picture.width.value(), picture.height.value()},
                                 picture.opacity.value(),
                                 picture.blending});
    }
    if (m_state.isTimerOn) {
        const int seconds = m_state.timerSeconds();
        m_frame.timer = QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
    }
    m_frame.music = m_state.music;
    m_frame.musicFadeTicks = m_musicFade;
    m_frame.sounds = m_sounds;
}

} // namespace player
