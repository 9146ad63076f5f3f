#include "TestPlay.h"

#include "host/LessonSession.h"
#include "player/game/GameReader.h"
#include "player/scene/NewGame.h"
#include "player/view/PlayerWindow.h"
#include "window/EditorWindows.h"
#include "window/MapPainter.h"
#include "window/Pictures.h"

#include <QDir>
#include <QRandomGenerator>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

/// Where a lesson's bubble is seen, from the place that it was sent to: it may stand on either side.
constexpr QRect kBubble(0, 0, 400, 250);
constexpr int kMirroredLeft = 308;

QStringList drawingsOf(const StartData &start)
{
    QStringList drawings;
    for (const StartData::Tile &tile : start.tiles) {
        drawings.append(tile.drawing);
    }
    return drawings;
}

/// Tiles as the editor's map has them. @p start outlives them.
player::Artwork::TileArt tileArt(const StartData *start, const std::shared_ptr<const player::GameData> &data)
{
    return [painter = std::make_shared<MapPainter>(start), start, data](int tile, int tileSet, int pixels) {
        const player::TileSetEntry *const entry = data->tileSets.find(tileSet);
        const auto isIt = [entry](const StartData::TileSet &look) {
            return entry != nullptr && look.image == entry->image;
        };
        const auto look = std::find_if(start->tileSets.cbegin(), start->tileSets.cend(), isIt);
        const int number =
            look != start->tileSets.cend() ? int(look - start->tileSets.cbegin()) : qMax(0, tileSet - 1);
        return painter->tile(tile - 1, number, pixels);
    };
}

} // namespace

TestPlay::TestPlay(EditorWindows *windows, const LessonSession *session, QWidget *strip, QObject *parent)
    : QObject(parent)
    , m_windows(windows)
    , m_session(session)
    , m_strip(strip)
{
    windows->setPlayer([this](const PlayRequest &request) { play(request); });
    connect(windows, &EditorWindows::playEndAsked, this, &TestPlay::stop);
    connect(windows, &EditorWindows::projectLeft, this, &TestPlay::stop);
    connect(windows, &EditorWindows::mainWindowClosed, this, &TestPlay::stop);
}

TestPlay::~TestPlay()
{
    m_windows->setPlayer({});
    if (m_window != nullptr) {
        m_window->disconnect(this);
        delete m_window;
    }
}

void TestPlay::play(const PlayRequest &request)
{
    stop();
    m_request = request;
    const auto data = player::GameReader::read(request.files, drawingsOf(*request.start));
    player::GameSettings settings;
    settings.start = request.troop > 0 ? player::StartWith::kBattleTest : player::StartWith::kTitle;
    settings.troop = request.troop;
    settings.seed = QRandomGenerator::global()->generate64();
    settings.name = QDir(request.folder).dirName();
    settings.saveFolder = QDir(request.folder).filePath(QStringLiteral("save"));
    auto artwork = std::make_unique<player::Artwork>(tileArt(request.start, data), &Pictures::load);
    m_window = new player::PlayerWindow(player::newGame(data, settings), std::move(artwork),
                                        QDir(request.folder).dirName(), m_strip->window());
    connect(m_window, &player::PlayerWindow::left, this, &TestPlay::onLeft);
    connect(m_window, &player::PlayerWindow::restartAsked, this, &TestPlay::playAgain);
    connect(m_window, &player::PlayerWindow::placeAsked, this, &TestPlay::showPlace);
    m_windows->setPlayWindow(m_window, [window = m_window] { return window->leaveRect(); });
    m_window->showBeside(inSight(), m_strip->window()->windowHandle()->screen()->availableGeometry());
}

void TestPlay::playAgain()
{
    if (m_request.troop == 0) {
        m_windows->play();
        return;
    }
    // The dialog that a battle was begun from is still open, and its project the same.
    const PlayRequest same = m_request;
    play(same);
}

void TestPlay::stop()
{
    if (m_window != nullptr) {
        m_window->close();
    }
}

void TestPlay::onLeft()
{
    m_window->deleteLater();
    m_window = nullptr;
    m_windows->tellPlayed();
    Q_EMIT ended();
}

void TestPlay::takeFocus()
{
    if (m_window != nullptr) {
        m_window->raise();
        m_window->activateWindow();
    }
}

void TestPlay::showPlace(const player::Problem &problem)
{
    EventPlace place;
    if (problem.file == QLatin1String("data/Troops.json")) {
        place.in = EventPlace::In::kTroops;
    } else if (problem.file == QLatin1String("data/CommonEvents.json")) {
        place.in = EventPlace::In::kCommonEvents;
    } else if (problem.map == 0) {
        place.in = EventPlace::In::kDatabase;
        place.list = QString(problem.file).remove(QStringLiteral(".json"));
    }
    place.map = problem.map;
    place.event = problem.event > 0 ? problem.event : problem.entry;
    place.page = problem.page;
    place.line = problem.line;
    m_window->setPlaceReached(m_windows->showPlace(place));
}

QVector<QRect> TestPlay::inSight() const
{
    QVector<QRect> rects{QRect(m_strip->mapToGlobal(QPoint()), m_strip->size())};
    if (const std::optional<QPoint> bubble = m_session->bubblePlace()) {
        const QRect right = kBubble.translated(*bubble);
        const bool hasRoom = right.right() <= m_strip->window()->frameGeometry().right();
        rects.append(hasRoom ? right : right.translated(-kMirroredLeft, 0));
    }
    return rects;
}
