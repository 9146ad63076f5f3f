#include "player/scene/BattleView.h"

#include "player/battle/Battle.h"
#include "player/game/GameData.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

constexpr int kLinesOfLog = 2;
const QRect kLog(8, 8, 624, 72);
constexpr int kFlashTicks = 8;
constexpr int kTicksOfPicture = 4;

/// The field of a troop is as high as the screen, and its members stand around their places. Here the lower
/// part is needed for the party: everybody moves up.
QPoint feetOf(const QPoint &at)
{
    return {at.x(), 64 + qBound(0, at.y(), Frame::kHeight) * 2 / 3};
}

bool isPoints(Note::Kind kind)
{
    return kind == Note::Kind::kLosesHp || kind == Note::Kind::kGainsHp;
}

} // namespace

void BattleView::show(const Battle &battle, const GameData &data, Frame *frame) const
{
    showEnemies(battle, data, frame);
    showParty(battle, data, frame);
    showLog(frame);
}

void BattleView::showEnemies(const Battle &battle, const GameData &data, Frame *frame) const
{
    const QVector<Fighter> troop = battle.fighters().standing(true);
    for (const Fighter &fighter : troop) {
        const Enemy *enemy = battle.fighters().enemy(fighter);
        FrameBattler shown;
        shown.name = battle.fighters().name(fighter);
        shown.image = enemy->image;
        shown.at = feetOf(enemy->at);
        shown.hp = enemy->hp;
        shown.maxHp = enemy->maxHp(data);
        shown.isSelected = aimedAt == fighter;
        if (hasLatest && latest.who == fighter) {
            shown.flashes = latest.kind == Note::Kind::kLosesHp && ticks < kFlashTicks;
            shown.popup = isPoints(latest.kind) ? QString::number(latest.amount) : QString();
            const AnimationEntry *entry = data.animations.find(animation);
            const int picture = ticks / kTicksOfPicture;
            if (entry != nullptr && picture < entry->frames) {
                shown.animation = animation;
                shown.animationFrame = picture;
            }
        }
        frame->battlers.append(shown);
    }
}

void BattleView::showParty(const Battle &battle, const GameData &data, Frame *frame) const
{
    const QVector<Fighter> party = battle.fighters().party();
    Panel panel;
    panel.role = QStringLiteral("status");
    const int height = 24 + 24 * qMax(1, int(party.size()));
    panel.rect = QRect(196, Frame::kHeight - 8 - height, 436, height);
    for (const Fighter &fighter : party) {
        const Actor *actor = battle.fighters().actor(fighter);
        const QString states = Terms::states(battle.fighters().states(fighter), data);
        const QString name = battle.fighters().name(fighter);
        const int place = int(panel.lines.size());
        panel.lines.append(PanelLine(states.isEmpty() ? name : name + QStringLiteral(" · ") + states));
        const int top = 10 + 24 * place;
        panel.gauges.append({Terms::hp(), actor->hp, actor->maxHp(data), QRect(212, top, 112, 22)});
        panel.gauges.append({Terms::mp(), actor->mp, actor->maxMp(data), QRect(336, top, 88, 22)});
        if (fighter == asked || fighter == aimedAt) {
            panel.lines.last().runs.first().colour = 6;
        }
    }
    frame->panels.append(panel);
}

void BattleView::showLog(Frame *frame) const
{
    if (log.isEmpty()) {
        return;
    }
    Panel panel;
    panel.role = QStringLiteral("log");
    panel.rect = kLog;
    const QStringList seen = log.mid(qMax(0, int(log.size()) - kLinesOfLog));
    for (const QString &line : seen) {
        panel.lines.append(PanelLine(line));
    }
    frame->panels.append(panel);
}

} // namespace player
