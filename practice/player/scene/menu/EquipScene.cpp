#include "player/scene/menu/EquipScene.h"

#include "player/scene/Game.h"
#include "player/scene/Terms.h"
#include "player/scene/menu/PartyPanel.h"

namespace player {

namespace {

const QRect kFigures(8, 64, 250, 168);
const QRect kWorn(266, 64, 366, 96);
const QRect kChoices(266, 168, 366, 184);

ListRow worn(const QString &kind, const GearEntry *gear)
{
    return {kind,
            gear != nullptr ? gear->name : Terms::nothing(),
            gear != nullptr ? gear->description : QString(),
            {},
            0};
}

} // namespace

EquipScene::EquipScene(int place)
    : m_place(place)
    , m_worn(QStringLiteral("equip"), kWorn)
    , m_choices(QStringLiteral("choices"), kChoices)
{
}

const Actor *EquipScene::actor(const Game &game) const
{
    return game.state().knownActor(game.state().fighters().value(m_place));
}

void EquipScene::listWorn(const Game &game)
{
    m_isListed = true;
    const Actor *its = actor(game);
    if (its == nullptr) {
        return;
    }
    m_worn.setTitle(its->name);
    m_worn.setRows({worn(Terms::weapon(), game.data().weapons.find(its->weapon)),
                    worn(Terms::armor(), game.data().armors.find(its->armor))});
}

void EquipScene::listChoices(const Game &game)
{
    const QMap<int, int> &bag = isWeapon() ? game.state().weapons : game.state().armors;
    const Entries<GearEntry> &entries = isWeapon() ? game.data().weapons : game.data().armors;
    QVector<ListRow> rows;
    for (auto held = bag.cbegin(); held != bag.cend(); ++held) {
        const GearEntry *gear = entries.find(held.key());
        if (gear != nullptr && held.value() > 0) {
            rows.append(
                {gear->name, QStringLiteral("× %1").arg(held.value()), gear->description, {}, held.key()});
        }
    }
    const Actor *its = actor(game);
    const bool wears = its != nullptr && (isWeapon() ? its->weapon : its->armor) > 0;
    rows.append(
        {Terms::nothing(), {}, tr("Take it off."), wears ? QString() : tr("Nothing is worn here."), 0});
    m_choices.setRows(rows);
    m_choices.setCurrent(0);
}

void EquipScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        listWorn(*game);
        return;
    }
    const RowCursor::Result result = (m_isChoosing ? m_choices : m_worn).tick(input);
    if (result == RowCursor::Result::kCancelled) {
        if (m_isChoosing) {
            m_isChoosing = false;
        } else {
            game->pop();
        }
    } else if (result == RowCursor::Result::kChosen) {
        if (m_isChoosing) {
            putOn(game);
        } else {
            m_isChoosing = true;
            listChoices(*game);
        }
    }
}

void EquipScene::putOn(Game *game)
{
    GameState &state = game->state();
    Actor *its = state.actor(state.fighters().value(m_place), game->data());
    state.equip(its, isWeapon() ? Goods::kWeapon : Goods::kArmor, m_choices.current()->value, game->data());
    m_isChoosing = false;
    listWorn(*game);
}

void EquipScene::show(const Game &game, Frame *frame) const
{
    const Actor *its = actor(game);
    if (its == nullptr) {
        return;
    }
    Actor would = *its;
    if (m_isChoosing && m_choices.current() != nullptr) {
        (isWeapon() ? would.weapon : would.armor) = m_choices.current()->value;
    }
    Panel figures;
    figures.role = QStringLiteral("figures");
    figures.rect = kFigures;
    figures.lines = PartyPanel::figures(would, game.data(), its);
    frame->panels.append(ListPanel::helpPanel(m_isChoosing ? m_choices.help() : m_worn.help()));
    frame->panels.append(figures);
    frame->panels.append(m_worn.panel());
    if (m_isChoosing) {
        frame->panels.append(m_choices.panel());
    }
}

} // namespace player
