#include "player/game/DatabaseReader.h"

#include "player/game/JsonRead.h"

#include <QCoreApplication>

namespace player::DatabaseReader {

namespace {

using JsonRead::flag;
using JsonRead::list;
using JsonRead::member;
using JsonRead::number;
using JsonRead::text;

/// Pictures of an animation: ten seconds in a battle are 150.
constexpr int kMostPictures = 600;

NamedNumbers named(const QJsonValue &object, const char *key)
{
    NamedNumbers numbers;
    const QJsonArray entries = list(object, key);
    for (const QJsonValue &entry : entries) {
        const QJsonObject members = entry.toObject();
        for (auto it = members.begin(); it != members.end(); ++it) {
            numbers.append({it.key(), it.value().toInt()});
        }
    }
    return numbers;
}

Growth growth(const QJsonValue &entry, const char *key)
{
    const QJsonArray pair = list(member(entry, "growth"), key);
    return {pair.at(0).toInt(), pair.at(1).toInt()};
}

ActorEntry actor(const QJsonValue &json)
{
    ActorEntry entry;
    entry.classId = number(json, "classId");
    entry.maxLevel = qBound(1, number(json, "maxLevel", entry.maxLevel), 99);
    entry.initialLevel = qBound(1, number(json, "initialLevel", 1), entry.maxLevel);
    entry.image = text(json, "image");
    const QJsonArray equips = list(json, "equips");
    entry.weapon = equips.at(0).toInt();
    entry.armor = equips.at(1).toInt();
    entry.actsAlone = flag(json, "autoBattle");
    return entry;
}

ClassEntry classOf(const QJsonValue &json)
{
    ClassEntry entry;
    entry.hp = growth(json, "hp");
    entry.mp = growth(json, "mp");
    const QJsonArray learnings = list(json, "learnings");
    for (const QJsonValue &learning : learnings) {
        entry.learnings.append({number(learning, "level", 1), number(learning, "skillId")});
    }
    entry.traits = named(json, "traits");
    return entry;
}

SkillEntry skill(const QJsonValue &json)
{
    SkillEntry entry;
    entry.description = text(json, "description");
    entry.message = text(json, "message1");
    entry.mpCost = qMax(0, number(json, "mpCost"));
    entry.scope = number(json, "scope");
    entry.animation = number(json, "animationId");
    entry.effects = named(json, "effects");
    return entry;
}

ItemEntry item(const QJsonValue &json)
{
    ItemEntry entry;
    entry.description = text(json, "description");
    entry.price = qMax(0, number(json, "price"));
    entry.isKey = flag(json, "keyItem");
    entry.isConsumable = flag(json, "consumable", true);
    entry.scope = number(json, "scope", kScopeAlly);
    entry.effects = named(json, "effects");
    return entry;
}

GearEntry gear(const QJsonValue &json)
{
    GearEntry entry;
    entry.description = text(json, "description");
    entry.price = qMax(0, number(json, "price"));
    entry.attack = number(json, "attack");
    entry.defense = number(json, "defense");
    entry.traits = named(json, "traits");
    return entry;
}

EnemyEntry enemy(const QJsonValue &json)
{
    EnemyEntry entry;
    entry.image = text(json, "image");
    entry.hp = qMax(1, number(json, "hp", 1));
    entry.mp = qMax(0, number(json, "mp", entry.mp));
    entry.attack = number(json, "attack");
    entry.defense = number(json, "defense");
    entry.exp = qMax(0, number(json, "exp"));
    entry.gold = qMax(0, number(json, "gold"));
    const QJsonArray drops = list(json, "dropItems");
    for (const QJsonValue &drop : drops) {
        entry.drops.append({number(drop, "itemId"), number(drop, "denominator", 1)});
    }
    const QJsonArray actions = list(json, "actions");
    for (const QJsonValue &action : actions) {
        entry.actions.append({number(action, "skillId"), qBound(1, number(action, "rating", 5), 10),
                              number(action, "conditionType"), number(action, "conditionValue"),
                              flag(action, "onlyOnce")});
    }
    entry.traits = named(json, "traits");
    return entry;
}

TroopEntry troop(const QJsonValue &json)
{
    TroopEntry entry;
    const QJsonArray members = list(json, "members");
    for (const QJsonValue &who : members) {
        entry.members.append(
            {number(who, "enemyId"), {number(who, "x"), number(who, "y")}, flag(who, "hidden")});
    }
    const QJsonArray pages = list(json, "pages");
    for (const QJsonValue &read : pages) {
        TroopPage page;
        const QJsonValue conditions = member(read, "conditions");
        page.conditions.turn = number(conditions, "turn", -1);
        page.conditions.enemy = number(conditions, "enemyIndex");
        page.conditions.enemyHp = number(conditions, "enemyHp", -1);
        page.conditions.actor = number(conditions, "actorId", 1);
        page.conditions.actorHp = number(conditions, "actorHp", -1);
        page.conditions.switchId = number(conditions, "switchId");
        page.span = number(read, "span");
        page.list = commandsFromJson(member(read, "list"));
        entry.pages.append(page);
    }
    return entry;
}

StateEntry state(const QJsonValue &json)
{
    StateEntry entry;
    entry.messages[0] = text(json, "message1");
    entry.messages[1] = text(json, "message2");
    entry.messages[2] = text(json, "message3");
    entry.messages[3] = text(json, "message4");
    entry.restriction = number(json, "restriction");
    entry.endsWithBattle = flag(json, "removeAtBattleEnd");
    entry.autoRemovalTiming = number(json, "autoRemovalTiming");
    entry.minTurns = qMax(0, number(json, "minTurns"));
    entry.maxTurns = qMax(entry.minTurns, number(json, "maxTurns"));
    entry.traits = named(json, "traits");
    return entry;
}

AnimationEntry animation(const QJsonValue &json)
{
    AnimationEntry entry;
    entry.frames = qBound(1, number(json, "frames", 1), kMostPictures);
    entry.isOnScreen = flag(json, "onScreen");
    return entry;
}

CommonEventEntry commonEvent(const QJsonValue &json)
{
    CommonEventEntry entry;
    entry.trigger = CommonTrigger(qBound(0, number(json, "trigger"), 2));
    entry.switchId = number(json, "switchId");
    entry.list = commandsFromJson(member(json, "list"));
    return entry;
}

TileSetEntry tileSet(const QJsonValue &json)
{
    TileSetEntry entry;
    entry.image = text(json, "image");
    return entry;
}

/// The entries of one list; the file is named in a problem when it is none.
template<typename T>
void readList(const GameData::Files &files, const QString &name, T (*readEntry)(const QJsonValue &),
              Entries<T> *into, QVector<Problem> *problems)
{
    const QString file = QStringLiteral("data/%1.json").arg(name);
    const QJsonValue json = files.value(file, QJsonValue::Undefined);
    if (!json.isArray()) {
        Problem problem;
        problem.file = file;
        problem.text =
            json.isUndefined()
                ? QCoreApplication::translate("TestPlay", "The file is missing; its entries are not there.")
                : QCoreApplication::translate("TestPlay",
                                              "The file is no list of entries; they are not there.");
        problems->append(problem);
        return;
    }
    const QJsonArray entries = json.toArray();
    // Entry 0 is nobody.
    for (int id = 1; id < entries.size(); ++id) {
        if (entries.at(id).isObject()) {
            T entry = readEntry(entries.at(id));
            entry.id = id;
            entry.name = text(entries.at(id), "name");
            entry.note = text(entries.at(id), "note");
            into->insert(entry);
        }
    }
}

void checkAnimations(const GameData::Files &files, QVector<Problem> *problems)
{
    const QString file = QStringLiteral("data/Animations.json");
    const QJsonArray entries = files.value(file).toArray();
    for (int id = 1; id < entries.size(); ++id) {
        const QJsonValue entry = entries.at(id);
        const int pictures = number(entry, "frames", 1);
        if (entry.isObject() && (pictures < 1 || pictures > kMostPictures)) {
            Problem problem;
            problem.file = file;
            problem.entry = id;
            problem.text =
                QCoreApplication::translate("TestPlay", "The animation “%1” has %2 pictures; it has to have "
                                                        "1 to %3.")
                    .arg(text(entry, "name"), QString::number(pictures), QString::number(kMostPictures));
            problems->append(problem);
        }
    }
}

QStringList names(const QJsonValue &json)
{
    QStringList names;
    const QJsonArray entries = json.toArray();
    for (const QJsonValue &entry : entries) {
        names.append(entry.toString());
    }
    return names;
}

SystemEntry system(const QJsonValue &json)
{
    SystemEntry entry;
    entry.gameTitle = text(json, "gameTitle");
    entry.version = number(json, "versionId");
    entry.locale = text(json, "locale");
    const QJsonArray party = list(json, "partyMembers");
    for (const QJsonValue &who : party) {
        entry.party.append(who.toInt());
    }
    entry.startMap = number(json, "startMapId");
    entry.startCell = {number(json, "startX"), number(json, "startY")};
    entry.currency = text(json, "currencyUnit");
    entry.switches = names(member(json, "switches"));
    entry.variables = names(member(json, "variables"));
    const QJsonValue title = member(json, "titleScreen");
    entry.titleBackdrop = text(title, "background");
    entry.showsTitle = flag(title, "showTitle");
    const QJsonArray commands = list(title, "commands");
    for (const QJsonValue &command : commands) {
        entry.titleCommands.append({text(command, "command"), text(command, "text")});
    }
    entry.titleMusic = Sound::fromJson(member(json, "titleMusic"));
    entry.battleMusic = Sound::fromJson(member(json, "battleMusic"));
    const QJsonArray battlers = list(json, "testBattlers");
    for (const QJsonValue &battler : battlers) {
        const QJsonArray equips = list(battler, "equips");
        entry.testBattlers.append({number(battler, "actorId"), qBound(1, number(battler, "level", 1), 99),
                                   equips.at(0).toInt(), equips.at(1).toInt()});
    }
    return entry;
}

} // namespace

void read(const GameData::Files &files, GameData *data)
{
    QVector<Problem> *problems = &data->problems;
    readList(files, QStringLiteral("Actors"), &actor, &data->actors, problems);
    readList(files, QStringLiteral("Classes"), &classOf, &data->classes, problems);
    readList(files, QStringLiteral("Skills"), &skill, &data->skills, problems);
    readList(files, QStringLiteral("Items"), &item, &data->items, problems);
    readList(files, QStringLiteral("Weapons"), &gear, &data->weapons, problems);
    readList(files, QStringLiteral("Armors"), &gear, &data->armors, problems);
    readList(files, QStringLiteral("Enemies"), &enemy, &data->enemies, problems);
    readList(files, QStringLiteral("Troops"), &troop, &data->troops, problems);
    readList(files, QStringLiteral("States"), &state, &data->states, problems);
    readList(files, QStringLiteral("Animations"), &animation, &data->animations, problems);
    checkAnimations(files, problems);
    readList(files, QStringLiteral("CommonEvents"), &commonEvent, &data->commonEvents, problems);
    // New projects have no file of their own for these: the editor's tile sets stand in.
    if (files.contains(QStringLiteral("data/Tilesets.json"))) {
        readList(files, QStringLiteral("Tilesets"), &tileSet, &data->tileSets, problems);
    }
    const QString file = QStringLiteral("data/System.json");
    const QJsonValue json = files.value(file, QJsonValue::Undefined);
    if (!json.isObject()) {
        Problem problem;
        problem.file = file;
        problem.text = QCoreApplication::translate(
            "TestPlay", "The file is missing or no object: party and start are not known.");
        problems->append(problem);
    }
    data->system = system(json);
}

} // namespace player::DatabaseReader
