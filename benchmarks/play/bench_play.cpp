// Processor time of a frame of test play at 1280 x 720, with 100 events that wander over the map: a tick of
// the game and drawing what it shows. It is held against drawing one picture of that size, and against the
// sixtieth of a second that a frame may take.

#include "player/game/GameReader.h"
#include "player/scene/NewGame.h"
#include "player/view/FramePainter.h"
#include "window/MapPainter.h"
#include "window/Pictures.h"
#include "window/TileDrawing.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>

namespace {

using namespace player;

constexpr QSize kScreen(1280, 720);
constexpr int kEvents = 100;
constexpr int kFrames = 300;
constexpr int kRuns = 5;
constexpr double kFrameMs = 1000.0 / 60;
/// So many pictures of the screen's size can be drawn in the time of a frame, at most.
constexpr double kMostPictures = 12;

struct Look
{
    const char *name;
    int tint;
    int weather;
};

double milliseconds(std::clock_t begin)
{
    return double(std::clock() - begin) * 1000 / CLOCKS_PER_SEC;
}

QJsonObject wanderer(int id, int place, int columns)
{
    const QJsonObject page{{QStringLiteral("conditions"), QJsonObject()},
                           {QStringLiteral("image"), QStringLiteral("guard")},
                           {QStringLiteral("moveType"), 1},
                           {QStringLiteral("moveSpeed"), 4},
                           {QStringLiteral("moveFrequency"), 5},
                           {QStringLiteral("trigger"), 0},
                           {QStringLiteral("list"), QJsonArray()}};
    return {{QStringLiteral("id"), id},
            {QStringLiteral("name"), QStringLiteral("Guard")},
            {QStringLiteral("x"), place % columns},
            {QStringLiteral("y"), place / columns},
            {QStringLiteral("pages"), QJsonArray{page}}};
}

/// The sample project's last step, whose first map is a meadow with a hundred guards now.
GameData::Files files()
{
    GameData::Files files;
    const QDir folder(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset/step19/data"));
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
            files.insert(QStringLiteral("data/") + name,
                         document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()));
        }
    }
    const int start = files.value(QStringLiteral("data/System.json"))[QLatin1String("startMapId")].toInt();
    const QString name = QStringLiteral("data/Map%1.json").arg(start, 3, 10, QLatin1Char('0'));
    QJsonObject map = files.value(name).toObject();
    constexpr int kColumns = 24;
    constexpr int kRows = 16;
    QJsonArray cells;
    for (int cell = 0; cell < kColumns * kRows * MapData::kLayers; ++cell) {
        cells.append(cell < kColumns * kRows ? 1 : cell % 7 == 0 ? 12 : 0);
    }
    QJsonArray events{QJsonValue()};
    for (int id = 1; id <= kEvents; ++id) {
        events.append(wanderer(id, id * 3, kColumns));
    }
    map.insert(QStringLiteral("width"), kColumns);
    map.insert(QStringLiteral("height"), kRows);
    map.insert(QStringLiteral("data"), cells);
    map.insert(QStringLiteral("events"), events);
    map.insert(QStringLiteral("encounterList"), QJsonArray());
    files.insert(name, map);
    return files;
}

/// Milliseconds of a frame, the best of some runs.
double timeOf(Game *game, FramePainter *painter, const Look &look)
{
    QImage screen(kScreen, QImage::Format_RGB32);
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < kRuns; ++run) {
        const std::clock_t begin = std::clock();
        for (int number = 0; number < kFrames; ++number) {
            game->tick({});
            Frame frame = game->frame();
            frame.tintRed = look.tint;
            frame.weather = look.weather;
            frame.weatherPower = look.weather > 0 ? 9 : 0;
            QPainter onScreen(&screen);
            painter->paint(&onScreen, frame, game->data(), kScreen);
        }
        best = std::min(best, milliseconds(begin) / kFrames);
    }
    return best;
}

/// Milliseconds of drawing a picture of the screen's size.
double timeOfPicture()
{
    QImage screen(kScreen, QImage::Format_RGB32);
    QPixmap picture(kScreen);
    picture.fill(Qt::darkGreen);
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < kRuns; ++run) {
        const std::clock_t begin = std::clock();
        for (int number = 0; number < kFrames; ++number) {
            QPainter painter(&screen);
            painter.drawPixmap(0, 0, picture);
        }
        best = std::min(best, milliseconds(begin) / kFrames);
    }
    return best;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QStringList errors;
    const StartData start = StartData::read(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/data"),
                                            tileDrawings(), QStringLiteral("en_US"), &errors);
    QStringList tiles;
    for (const StartData::Tile &tile : start.tiles) {
        tiles.append(tile.drawing);
    }
    GameSettings settings;
    settings.start = StartWith::kMap;
    const std::unique_ptr<Game> game = newGame(GameReader::read(files(), tiles), settings);
    MapPainter mapPainter(&start);
    Artwork artwork([&mapPainter](int tile, int tileSet,
                                  int pixels) { return mapPainter.tile(tile - 1, tileSet - 1, pixels); },
                    &Pictures::load);
    FramePainter painter(&artwork);
    for (int tick = 0; tick < 120; ++tick) {
        game->tick({});
    }
    const MapData *const map = game->data().maps.find(game->frame().map);
    if (map == nullptr || map->events.size() != kEvents) {
        std::puts("the map does not have its events");
        return 1;
    }
    std::printf("%d of %d events in sight\n", int(game->frame().sprites.size()), kEvents);
    const double picture = timeOfPicture();
    std::printf("a picture of %d x %d: %.3f ms\n", kScreen.width(), kScreen.height(), picture);
    bool isGood = true;
    for (const Look &look : {Look{"fine day", 0, 0}, Look{"storm", 0, 2}, Look{"snow at night", -60, 3}}) {
        const double time = timeOf(game.get(), &painter, look);
        const double pictures = time / picture;
        std::printf("%-14s %.3f ms a frame, %.1f pictures, %.0f %% of a sixtieth of a second\n", look.name,
                    time, pictures, time * 100 / kFrameMs);
        // A tint goes through every pixel, which no picture does.
        isGood = isGood && time < kFrameMs && (look.tint != 0 || pictures <= kMostPictures);
    }
    std::printf("at most %.0f pictures without a tint, and a sixtieth of a second\n", kMostPictures);
    return isGood ? 0 : 1;
}
