#include "project/events/BattleEnemies.h"

#include <QJsonArray>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// The members of the troop that the list of commands belongs to; none for another list.
QJsonArray membersOf(const std::optional<DataPlace> &list, const DataLayer &layer)
{
    const QString troops = str("data/Troops.json");
    if (!list || list->file != troops) {
        return {};
    }
    const QString troop = list->pointer.section(QLatin1Char('/'), 1, 1);
    return layer.value(troops, str("/%1/members").arg(troop)).toArray();
}

} // namespace

namespace BattleEnemies {

QVector<Row> rows(const StartData &start, const QString &set, const std::optional<DataPlace> &list,
                  const DataLayer &layer)
{
    const QJsonArray members = membersOf(list, layer);
    QVector<Row> rows;
    const QVector<Choice> choices = start.choices.choices(set);
    for (const Choice &choice : choices) {
        const int place = choice.value.toInt();
        const int enemy = members.at(place)[QLatin1String("enemyId")].toInt();
        const QString name = layer.value(str("data/Enemies.json"), str("/%1/name").arg(enemy)).toString();
        const bool isNamed = place >= 0 && place < members.size() && !name.isEmpty();
        rows.append(
            {isNamed ? start.texts.value(str("enemyOfTroop")).arg(choice.text, name) : choice.text, place});
    }
    return rows;
}

} // namespace BattleEnemies
