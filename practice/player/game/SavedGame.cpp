#include "player/game/GameData.h"
#include "player/game/GameState.h"
#include "player/game/JsonRead.h"
#include "player/game/Numbers.h"

#include <QCoreApplication>
#include <QVariantList>

#include <algorithm>
#include <functional>

namespace player {

namespace {

using JsonRead::flag;
using JsonRead::list;
using JsonRead::member;
using JsonRead::number;
using JsonRead::text;

constexpr int kForm = 1;

QJsonObject numbersJson(const QMap<int, int> &numbers)
{
    QJsonObject json;
    for (auto it = numbers.begin(); it != numbers.end(); ++it) {
        json.insert(QString::number(it.key()), it.value());
    }
    return json;
}

/// Numbers of entries that pass, as far as they are from 1 on.
QMap<int, int> numbersFrom(const QJsonValue &value, const std::function<bool(int)> &passes, int most)
{
    QMap<int, int> numbers;
    const QJsonObject json = value.toObject();
    for (auto it = json.begin(); it != json.end(); ++it) {
        const int id = it.key().toInt();
        if (id >= 1 && passes(id)) {
            numbers.insert(id, qBound(-most, it.value().toInt(), most));
        }
    }
    return numbers;
}

QJsonArray sorted(const QSet<int> &numbers)
{
    QList<int> values = numbers.values();
    std::sort(values.begin(), values.end());
    QJsonArray json;
    for (const int value : values) {
        json.append(value);
    }
    return json;
}

QJsonObject pictureJson(const Picture &picture)
{
    return {{QStringLiteral("name"), picture.name},
            {QStringLiteral("centred"), picture.isCentred},
            {QStringLiteral("x"), picture.x.target()},
            {QStringLiteral("y"), picture.y.target()},
            {QStringLiteral("width"), picture.width.target()},
            {QStringLiteral("height"), picture.height.target()},
            {QStringLiteral("opacity"), picture.opacity.target()},
            {QStringLiteral("blending"), picture.blending}};
}

Picture pictureFrom(const QJsonValue &json)
{
    const auto sliding = [&json](const char *key) {
        return Sliding(member(json, key).toDouble());
    };
    Picture picture;
    picture.name = text(json, "name");
    picture.isCentred = flag(json, "centred");
    picture.x = sliding("x");
    picture.y = sliding("y");
    picture.width = sliding("width");
    picture.height = sliding("height");
    picture.opacity = sliding("opacity");
    picture.blending = number(json, "blending");
    return picture;
}

/// Tint, fade, weather and pictures as they are in the end; what passes by itself is over.
QJsonObject screenJson(const Screen &screen)
{
    QJsonObject pictures;
    for (auto it = screen.pictures.begin(); it != screen.pictures.end(); ++it) {
        pictures.insert(QString::number(it.key()), pictureJson(it.value()));
    }
    return {{QStringLiteral("red"), screen.red.target()},
            {QStringLiteral("green"), screen.green.target()},
            {QStringLiteral("blue"), screen.blue.target()},
            {QStringLiteral("grey"), screen.grey.target()},
            {QStringLiteral("fade"), screen.fade.target()},
            {QStringLiteral("fadesToWhite"), screen.fadesToWhite},
            {QStringLiteral("weather"), screen.weather},
            {QStringLiteral("weatherPower"), screen.weatherPower.target()},
            {QStringLiteral("pictures"), pictures}};
}

Screen screenFrom(const QJsonValue &json)
{
    const auto sliding = [&json](const char *key) {
        return Sliding(qBound(-255.0, member(json, key).toDouble(), 255.0));
    };
    Screen screen;
    screen.red = sliding("red");
    screen.green = sliding("green");
    screen.blue = sliding("blue");
    screen.grey = sliding("grey");
    screen.fade = sliding("fade");
    screen.fadesToWhite = flag(json, "fadesToWhite");
    screen.weather = qBound(0, number(json, "weather"), 3);
    screen.weatherPower = sliding("weatherPower");
    const QJsonObject pictures = member(json, "pictures").toObject();
    for (auto it = pictures.begin(); it != pictures.end(); ++it) {
        screen.pictures.insert(it.key().toInt(), pictureFrom(it.value()));
    }
    return screen;
}

QJsonArray actorsJson(const QMap<int, Actor> &actors)
{
    QJsonArray json;
    for (const Actor &actor : actors) {
        json.append(actor.toJson());
    }
    return json;
}

QJsonObject bagJson(const GameState &state)
{
    return {{QStringLiteral("gold"), state.gold},
            {QStringLiteral("items"), numbersJson(state.items)},
            {QStringLiteral("weapons"), numbersJson(state.weapons)},
            {QStringLiteral("armors"), numbersJson(state.armors)}};
}

void takeBag(const QJsonValue &json, const GameData &data, GameState *state)
{
    constexpr int kMost = GameState::kMostGoods;
    state->addGold(number(json, "gold"));
    state->items = numbersFrom(
        member(json, "items"), [&data](int id) { return data.items.find(id) != nullptr; }, kMost);
    state->weapons = numbersFrom(
        member(json, "weapons"), [&data](int id) { return data.weapons.find(id) != nullptr; }, kMost);
    state->armors = numbersFrom(
        member(json, "armors"), [&data](int id) { return data.armors.find(id) != nullptr; }, kMost);
}

void takeParty(const QJsonObject &json, const GameData &data, GameState *state)
{
    const QJsonArray actors = list(json, "actors");
    for (const QJsonValue &actor : actors) {
        const int id = number(actor, "id");
        if (data.actors.find(id) != nullptr) {
            state->actors.insert(id, Actor::fromJson(actor.toObject(), data));
        }
    }
    const QJsonArray party = list(json, "party");
    for (const QJsonValue &id : party) {
        state->join(id.toInt(), data);
    }
}

} // namespace

QJsonObject Actor::toJson() const
{
    QJsonArray known;
    for (const int skill : skills) {
        known.append(skill);
    }
    return {{QStringLiteral("id"), id},
            {QStringLiteral("name"), name},
            {QStringLiteral("image"), image},
            {QStringLiteral("classId"), classId},
            {QStringLiteral("exp"), exp},
            {QStringLiteral("hp"), hp},
            {QStringLiteral("mp"), mp},
            {QStringLiteral("weapon"), weapon},
            {QStringLiteral("armor"), armor},
            {QStringLiteral("skills"), known},
            {QStringLiteral("states"), numbersJson(states)}};
}

Actor Actor::fromJson(const QJsonObject &json, const GameData &data)
{
    Actor actor;
    actor.id = number(json, "id");
    if (const ActorEntry *entry = data.actors.find(actor.id)) {
        actor = begin(*entry, data);
    }
    actor.classId = number(json, "classId");
    actor.changeExp(qint64(number(json, "exp")) - actor.exp, data);
    actor.name = text(json, "name");
    actor.image = text(json, "image");
    actor.weapon = data.weapons.find(number(json, "weapon")) != nullptr ? number(json, "weapon") : 0;
    actor.armor = data.armors.find(number(json, "armor")) != nullptr ? number(json, "armor") : 0;
    actor.skills.clear();
    const QJsonArray skills = list(json, "skills");
    for (const QJsonValue &skill : skills) {
        if (data.skills.find(skill.toInt()) != nullptr) {
            actor.learn(skill.toInt());
        }
    }
    actor.states = numbersFrom(
        member(json, "states"), [&data](int state) { return data.states.find(state) != nullptr; }, 9999);
    actor.hp = qMax(0, number(json, "hp"));
    actor.mp = qMax(0, number(json, "mp"));
    actor.fitPoints(data);
    return actor;
}

QJsonObject GameState::toJson(const GameData &data) const
{
    QStringList selfSwitchList = selfSwitches.values();
    selfSwitchList.sort();
    return {{QStringLiteral("form"), kForm},
            {QStringLiteral("project"), data.fingerprint},
            {QStringLiteral("switches"), sorted(switches)},
            {QStringLiteral("variables"), numbersJson(variables)},
            {QStringLiteral("selfSwitches"), QJsonArray::fromStringList(selfSwitchList)},
            {QStringLiteral("bag"), bagJson(*this)},
            {QStringLiteral("party"), QJsonArray::fromVariantList([this] {
                 QVariantList who;
                 for (const int id : party) {
                     who.append(id);
                 }
                 return who;
             }())},
            {QStringLiteral("actors"), actorsJson(actors)},
            {QStringLiteral("map"), map},
            {QStringLiteral("x"), hero.cell.x()},
            {QStringLiteral("y"), hero.cell.y()},
            {QStringLiteral("direction"), hero.direction},
            {QStringLiteral("isTransparent"), hero.isTransparent},
            {QStringLiteral("speed"), hero.speed},
            {QStringLiteral("frequency"), hero.frequency},
            {QStringLiteral("isThrough"), hero.isThrough},
            {QStringLiteral("opacity"), hero.opacity},
            {QStringLiteral("timer"), isTimerOn ? timerTicks : -1},
            {QStringLiteral("ticks"), double(ticks)},
            {QStringLiteral("screen"), screenJson(screen)},
            {QStringLiteral("music"), music.toJson()},
            {QStringLiteral("random"), QString::number(random.state())}};
}

std::optional<GameState> GameState::fromJson(const QJsonObject &json, const GameData &data, QString *error,
                                             QString *warning)
{
    warning->clear();
    if (number(json, "form") != kForm) {
        *error = QCoreApplication::translate("TestPlay", "This is no saved game that can be read here.");
        return std::nullopt;
    }
    const MapData *place = data.maps.find(number(json, "map"));
    const QPoint cell(number(json, "x"), number(json, "y"));
    if (place == nullptr || !place->contains(cell)) {
        *error = QCoreApplication::translate(
                     "TestPlay", "The game was saved on map %1 at %2, %3, and the project has no such place "
                                 "any more.")
                     .arg(number(json, "map"))
                     .arg(cell.x())
                     .arg(cell.y());
        return std::nullopt;
    }
    if (text(json, "project") != data.fingerprint) {
        *warning = QCoreApplication::translate(
            "TestPlay", "The project was changed since this game was saved: some things may not fit.");
    }
    GameState state;
    const QJsonArray switches = list(json, "switches");
    for (const QJsonValue &id : switches) {
        state.switches.insert(id.toInt());
    }
    state.variables = numbersFrom(
        member(json, "variables"), [](int id) { return id <= kLargestNumber; }, kLargestVariable);
    const QJsonArray letters = list(json, "selfSwitches");
    for (const QJsonValue &letter : letters) {
        state.selfSwitches.insert(letter.toString());
    }
    takeBag(member(json, "bag"), data, &state);
    takeParty(json, data, &state);
    state.map = place->id;
    state.hero.cell = cell;
    state.hero.at = cell;
    state.hero.direction = qBound(int(kDown), number(json, "direction"), int(kUp));
    state.hero.isTransparent = flag(json, "isTransparent");
    state.hero.speed = number(json, "speed");
    state.hero.frequency = number(json, "frequency");
    state.hero.isThrough = flag(json, "isThrough");
    state.hero.opacity = qBound(0, number(json, "opacity", state.hero.opacity), 255);
    state.timerTicks = qMax(0, number(json, "timer"));
    state.isTimerOn = number(json, "timer") >= 0;
    state.ticks = qint64(qMax(0.0, member(json, "ticks").toDouble()));
    state.screen = screenFrom(member(json, "screen"));
    state.music = Sound::fromJson(member(json, "music"));
    state.random = Random(text(json, "random").toULongLong());
    return state;
}

} // namespace player
