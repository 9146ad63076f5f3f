#include "player/scene/menu/ItemScene.h"

#include "player/battle/Effects.h"
#include "player/scene/Game.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

const QRect kList(8, 64, 624, 288);

} // namespace

ItemScene::ItemScene()
    : m_list(QStringLiteral("items"), kList, 2)
{
    m_list.setTitle(Terms::items());
    m_list.setEmptyText(tr("The bag is empty."));
}

void ItemScene::list(const Game &game)
{
    const GameState &state = game.state();
    QVector<ListRow> rows;
    for (auto held = state.items.cbegin(); held != state.items.cend(); ++held) {
        const ItemEntry *item = game.data().items.find(held.key());
        if (item != nullptr && held.value() > 0) {
            const QString reason = UseOnParty::reasonAgainst(item->effects, Effects::scopeOf(*item));
            const QString help = item->description;
            rows.append({item->name, QStringLiteral("× %1").arg(held.value()), help,
                         reason.isEmpty() || help.isEmpty() ? reason : help + QLatin1Char(' ') + reason,
                         held.key()});
        }
    }
    // Weapons and armor are put on elsewhere, but they are in the bag as well.
    const auto appendGear = [&](const QMap<int, int> &bag, const Entries<GearEntry> &entries) {
        for (auto held = bag.cbegin(); held != bag.cend(); ++held) {
            const GearEntry *gear = entries.find(held.key());
            if (gear != nullptr && held.value() > 0) {
                const QString reason = tr("Put it on in the menu, under Equipment.");
                const QString help = gear->description;
                rows.append({gear->name, QStringLiteral("× %1").arg(held.value()), help,
                             help.isEmpty() ? reason : help + QLatin1Char(' ') + reason, held.key()});
            }
        }
    };
    appendGear(state.weapons, game.data().weapons);
    appendGear(state.armors, game.data().armors);
    m_list.setRows(rows);
    m_isListed = true;
}

void ItemScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        list(*game);
        return;
    }
    if (m_use.isAsking()) {
        if (m_use.tick(input, game) == UseOnParty::Result::kUsed) {
            used(game);
        }
        return;
    }
    const RowCursor::Result result = m_list.tick(input);
    if (result == RowCursor::Result::kCancelled) {
        game->pop();
    } else if (result == RowCursor::Result::kChosen) {
        const ItemEntry *item = game->data().items.find(m_list.current()->value);
        m_notice.clear();
        m_use.begin(item->effects, Effects::scopeOf(*item), 0, *game);
    } else if (result == RowCursor::Result::kMoved) {
        m_notice.clear();
    }
}

void ItemScene::used(Game *game)
{
    const int id = m_list.current()->value;
    const ItemEntry *item = game->data().items.find(id);
    if (!m_use.hasWorked()) {
        m_notice = tr("It would do nothing.");
        return;
    }
    if (item->isConsumable) {
        game->state().addGoods(Goods::kItem, id, -1);
    }
    list(*game);
    if (m_use.commonEvent() > 0) {
        game->state().waitingCommonEvent = m_use.commonEvent();
        game->pop();
    }
}

void ItemScene::show(const Game &, Frame *frame) const
{
    const QString help = m_use.isAsking() ? m_use.help() : m_list.help();
    frame->panels.append(ListPanel::helpPanel(m_notice.isEmpty() ? help : m_notice));
    frame->panels.append(m_list.panel());
    if (m_use.isAsking()) {
        frame->panels.append(m_use.panel());
    }
}

} // namespace player
