#include "player/scene/Terms.h"

#include "player/game/GameData.h"

namespace player {

QString Terms::currency(const GameData &data)
{
    //: The unit of money in a game, behind the amount.
    return data.system.currency.isEmpty() ? tr("G") : data.system.currency;
}

QString Terms::gold(int amount, const GameData &data)
{
    return QString::number(amount) + QLatin1Char(' ') + currency(data);
}

QString Terms::points(const Actor &actor, const GameData &data)
{
    return QStringLiteral("HP %1/%2  MP %3/%4")
        .arg(QString::number(actor.hp), QString::number(actor.maxHp(data)), QString::number(actor.mp),
             QString::number(actor.maxMp(data)));
}

QString Terms::list(const QStringList &names)
{
    //: Between the words of a list.
    return names.join(tr(", "));
}

QString Terms::states(const QMap<int, int> &states, const GameData &data)
{
    QStringList names;
    for (auto state = states.cbegin(); state != states.cend(); ++state) {
        const QString name = data.states.name(state.key());
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    return list(names);
}

QString Terms::playTime(qint64 ticks)
{
    const qint64 seconds = ticks / GameState::kTicksPerSecond;
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString Terms::thing(Goods kind, int id, const GameData &data)
{
    switch (kind) {
    case Goods::kWeapon:
        return data.weapons.name(id);
    case Goods::kArmor:
        return data.armors.name(id);
    case Goods::kItem:
        break;
    }
    return data.items.name(id);
}

} // namespace player
