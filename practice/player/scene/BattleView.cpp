#include "player/scene/BattleView.h"

#include "player/battle/Battle.h"
#include "player/game/GameData.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

constexpr int kLinesOfLog = 2;
const QRect kLog(8, 8, 624, 72);
constexpr int kFlashTicks = 8;
/// Of the opacity of who falls, in a tick.
constexpr int kFadeAway = 7;
constexpr int kTicksOfPicture = 4;
/// Of the party's panel.
constexpr int kLine = 24;
/// Side of an animation over a member of the party, and its middle from the left edge of the panel.
constexpr int kAnimation = 96;
constexpr int kLeftOfAnimation = 56;

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

void BattleView::keep(const Battle &battle)
{
    m_kept.clear();
    const QVector<Fighter> fighters = battle.fighters().all();
    for (const Fighter &fighter : fighters) {
        m_kept.append({fighter, battle.fighters().hp(fighter)});
    }
}

void BattleView::follow(const Note &note)
{
    for (Kept &kept : m_kept) {
        if (kept.who == note.who && note.kind == Note::Kind::kLosesHp) {
            kept.hp = qMax(0, kept.hp - note.amount);
        } else if (kept.who == note.who && note.kind == Note::Kind::kGainsHp) {
            kept.hp += note.amount;
        }
    }
}

int BattleView::hpOf(const Battle &battle, const Fighter &fighter) const
{
    for (const Kept &kept : m_kept) {
        if (kept.who == fighter) {
            return kept.hp;
        }
    }
    return battle.fighters().hp(fighter);
}

void BattleView::show(const Battle &battle, const GameData &data, Frame *frame) const
{
    showEnemies(battle, data, frame);
    if (!hidesParty) {
        showParty(battle, data, frame);
    }
    if (!hidesLog) {
        showLog(frame);
    }
}

int BattleView::picture(const GameData &data) const
{
    const int due = ticks / kTicksOfPicture;
    const AnimationEntry *const entry = data.animations.find(animation);
    return entry != nullptr && due < entry->frames ? due : -1;
}

int BattleView::ticksOf(int animation, const GameData &data)
{
    const AnimationEntry *const entry = data.animations.find(animation);
    return entry != nullptr ? entry->frames * kTicksOfPicture : 0;
}

void BattleView::showEnemies(const Battle &battle, const GameData &data, Frame *frame) const
{
    const QVector<Fighter> troop = battle.fighters().present(true);
    for (const Fighter &fighter : troop) {
        const Enemy *enemy = battle.fighters().enemy(fighter);
        const int hp = hpOf(battle, fighter);
        const bool isStruck = hasLatest && latest.who == fighter;
        if (hp <= 0 && !isStruck) {
            continue;
        }
        FrameBattler shown;
        shown.name = battle.fighters().name(fighter);
        shown.image = enemy->image;
        shown.at = feetOf(enemy->at);
        shown.hp = hp;
        shown.opacity = hp > 0 ? 255 : qMax(0, 255 - kFadeAway * ticks);
        shown.maxHp = enemy->maxHp(data);
        shown.isSelected = aimedAt == fighter;
        if (isStruck) {
            shown.flashes = latest.kind == Note::Kind::kLosesHp && ticks < kFlashTicks;
            shown.popup = isPoints(latest.kind) ? QString::number(latest.amount) : QString();
            if (const int its = picture(data); its >= 0) {
                shown.animation = animation;
                shown.animationFrame = its;
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
        if (actor == nullptr) {
            continue;
        }
        const QString states = Terms::states(battle.fighters().states(fighter), data);
        const QString name = battle.fighters().name(fighter);
        const int place = int(panel.lines.size());
        panel.lines.append(PanelLine(states.isEmpty() ? name : name + QStringLiteral(" · ") + states));
        const int top = 10 + 24 * place;
        panel.gauges.append(
            {Terms::hp(), hpOf(battle, fighter), actor->maxHp(data), QRect(212, top, 112, 22)});
        panel.gauges.append({Terms::mp(), actor->mp, actor->maxMp(data), QRect(336, top, 88, 22)});
        if (const int its = picture(data); its >= 0 && hasLatest && latest.who == fighter) {
            const QPoint line = panel.rect.topLeft() + QPoint(kLeftOfAnimation, top + kLine / 2);
            const QPoint half(kAnimation / 2, kAnimation / 2);
            frame->animations.append({animation, its, QRect(line - half, QSize(kAnimation, kAnimation))});
        }
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
    panel.isWaiting = true; // a key hurries
    const QStringList seen = log.mid(qMax(0, int(log.size()) - kLinesOfLog));
    for (const QString &line : seen) {
        panel.lines.append(PanelLine(line));
    }
    frame->panels.append(panel);
}

} // namespace player
