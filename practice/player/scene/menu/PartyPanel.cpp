#include "player/scene/menu/PartyPanel.h"

#include "player/game/GameData.h"
#include "player/game/GameState.h"
#include "player/scene/Terms.h"

namespace player::PartyPanel {

namespace {

enum Colour { kUsual = 0, kWorse = 2, kBetter = 3 };

constexpr int kGaugeWidth = 112;

PanelLine figure(const QString &name, int now, int before)
{
    PanelLine line(QStringLiteral("%1  %2").arg(name, QString::number(before)));
    if (now != before) {
        line.runs.append({QStringLiteral(" → %1").arg(now), now > before ? kBetter : kWorse});
    }
    return line;
}

} // namespace

const QRect kRect(196, 64, 436, 288);

QVector<ListRow> rows(const GameState &state, const GameData &data)
{
    QVector<ListRow> rows;
    const QVector<int> party = state.fighters();
    for (const int id : party) {
        const Actor *actor = state.knownActor(id);
        const int place = int(rows.size());
        if (actor != nullptr) {
            rows.append(
                {actor->name, Terms::points(*actor, data), Terms::states(actor->states, data), {}, place});
        } else {
            rows.append({QStringLiteral("?"), {}, {}, {}, place});
        }
    }
    return rows;
}

Panel status(const GameState &state, const GameData &data)
{
    Panel panel;
    panel.role = QStringLiteral("status");
    panel.rect = kRect;
    const QVector<int> party = state.fighters();
    for (const int id : party) {
        const Actor *actor = state.knownActor(id);
        if (actor == nullptr) {
            continue;
        }
        const int top = 12 + 24 * int(panel.lines.size()) + 22;
        panel.lines.append(PanelLine(
            QStringLiteral("%1  %2 %3").arg(actor->name, Terms::level(), QString::number(actor->level))));
        panel.lines.append(PanelLine(Terms::states(actor->states, data)));
        panel.gauges.append({Terms::hp(), actor->hp, actor->maxHp(data), QRect(184, top, kGaugeWidth, 22)});
        panel.gauges.append({Terms::mp(), actor->mp, actor->maxMp(data), QRect(308, top, kGaugeWidth, 22)});
    }
    return panel;
}

QVector<PanelLine> figures(const Actor &actor, const GameData &data, const Actor *before)
{
    const Actor &from = before != nullptr ? *before : actor;
    return {
        figure(QStringLiteral("HP"), actor.maxHp(data), from.maxHp(data)),
        figure(QStringLiteral("MP"), actor.maxMp(data), from.maxMp(data)),
        figure(Terms::attack(), actor.attack(data), from.attack(data)),
        figure(Terms::defense(), actor.defense(data), from.defense(data)),
        figure(Terms::agility(), actor.agility(data), from.agility(data)),
    };
}

} // namespace player::PartyPanel
