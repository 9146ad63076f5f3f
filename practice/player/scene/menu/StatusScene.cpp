#include "player/scene/menu/StatusScene.h"

#include "player/scene/Game.h"
#include "player/scene/ListPanel.h"
#include "player/scene/Terms.h"
#include "player/scene/menu/PartyPanel.h"

namespace player {

namespace {

const QRect kWho(8, 64, 624, 120);
const QRect kFigures(8, 192, 300, 160);
const QRect kGear(316, 192, 316, 160);

QString nameOr(const QString &name)
{
    return name.isEmpty() ? Terms::nothing() : name;
}

} // namespace

StatusScene::StatusScene(int place)
    : m_place(place)
{
}

void StatusScene::tick(const Input &input, Game *game)
{
    const int party = qMax(1, int(game->state().fighters().size()));
    if (input.isPressed(GameKey::kCancel) || input.isPressed(GameKey::kAct)) {
        game->pop();
    } else if (input.isPressed(GameKey::kRight) || input.isPressed(GameKey::kDown)) {
        m_place = (m_place + 1) % party;
    } else if (input.isPressed(GameKey::kLeft) || input.isPressed(GameKey::kUp)) {
        m_place = (m_place + party - 1) % party;
    }
}

void StatusScene::show(const Game &game, Frame *frame) const
{
    const GameData &data = game.data();
    const Actor *actor = game.state().knownActor(game.state().fighters().value(m_place));
    if (actor == nullptr) {
        return;
    }
    Panel who;
    who.role = QStringLiteral("status");
    who.rect = kWho;
    who.face = actor->image;
    const QString states = Terms::states(actor->states, data);
    const int missing = Actor::expOfLevel(actor->level + 1) - actor->exp;
    //: %1 is a number of points of experience.
    const QString next = tr("%1 EXP to the next level").arg(missing);
    who.lines = {
        PanelLine(QStringLiteral("%1  %2").arg(actor->name, data.classes.name(actor->classId))),
        PanelLine(QStringLiteral("%1 %2  %3 %4")
                      .arg(Terms::level(), QString::number(actor->level), Terms::exp(),
                           QString::number(actor->exp))),
        PanelLine(actor->level >= actor->maxLevel ? tr("No higher level.") : next),
        PanelLine(states),
    };
    who.isWaiting = true;
    who.gauges = {{Terms::hp(), actor->hp, actor->maxHp(data), QRect(460, 12, 148, 22)},
                  {Terms::mp(), actor->mp, actor->maxMp(data), QRect(460, 40, 148, 22)}};
    Panel figures;
    figures.role = QStringLiteral("figures");
    figures.rect = kFigures;
    figures.lines = PartyPanel::figures(*actor, data);
    Panel gear;
    gear.role = QStringLiteral("equip");
    gear.rect = kGear;
    gear.lines = {
        PanelLine(QStringLiteral("%1  %2").arg(Terms::weapon(), nameOr(data.weapons.name(actor->weapon)))),
        PanelLine(QStringLiteral("%1  %2").arg(Terms::armor(), nameOr(data.armors.name(actor->armor)))),
    };
    const QString more = game.state().fighters().size() > 1 ? tr("Left and right: the others") : QString();
    frame->panels += QVector<Panel>{ListPanel::helpPanel(more), who, figures, gear};
}

} // namespace player
