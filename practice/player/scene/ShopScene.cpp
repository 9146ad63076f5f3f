#include "player/scene/ShopScene.h"

#include "player/scene/Game.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

const QRect kCommands(8, 64, 440, 48);
const QRect kPurse(456, 64, 176, 48);
const QRect kList(8, 120, 320, 232);
const QRect kComparison(336, 120, 296, 232);
const QRect kHowMany(150, 168, 340, 72);
constexpr int kManyAtOnce = 10;
/// What the shop pays, as a part of the price.
constexpr int kSellingPart = 2;

const GearEntry *gearOf(const ShopGoods &goods, const GameData &data)
{
    switch (Goods(goods.kind)) {
    case Goods::kWeapon:
        return data.weapons.find(goods.id);
    case Goods::kArmor:
        return data.armors.find(goods.id);
    default:
        return nullptr;
    }
}

QString descriptionOf(const ShopGoods &goods, const GameData &data)
{
    if (const GearEntry *gear = gearOf(goods, data)) {
        return gear->description;
    }
    const ItemEntry *item = data.items.find(goods.id);
    return item != nullptr ? item->description : QString();
}

} // namespace

ShopScene::ShopScene(const QVector<ShopGoods> &goods, bool onlyBuys)
    : m_goods(goods)
    , m_onlyBuys(onlyBuys)
    , m_commands(QStringLiteral("shop"), kCommands, 3)
{
    listCommands();
}

void ShopScene::listCommands()
{
    const QString noSelling = m_onlyBuys ? tr("This shop only sells.") : QString();
    m_commands.setRows({
        {tr("Buy"), {}, tr("What would you like?"), {}, kBuy},
        {tr("Sell"), {}, tr("Sell something from your bag."), noSelling, kSell},
        {tr("Leave"), {}, tr("Come again!"), {}, kLeave},
    });
}

void ShopScene::listGoods(const Game &game)
{
    QVector<ListRow> rows;
    for (int place = 0; place < m_goods.size(); ++place) {
        const ShopGoods &goods = m_goods.at(place);
        const Goods kind = Goods(goods.kind);
        QString reason;
        if (goods.price > game.state().gold) {
            reason = tr("You do not have enough money.");
        } else if (game.state().count(kind, goods.id) >= GameState::kMostGoods) {
            reason = tr("You cannot carry more of this.");
        }
        const QString help = descriptionOf(goods, game.data());
        const bool hasBoth = !help.isEmpty() && !reason.isEmpty();
        rows.append({Terms::thing(kind, goods.id, game.data()), Terms::gold(goods.price, game.data()), help,
                     hasBoth ? help + QLatin1Char(' ') + reason : reason, place});
    }
    m_list = ListPanel(QStringLiteral("goods"), kList);
    m_list.setEmptyText(tr("There is nothing for sale."));
    m_list.setRows(rows);
}

void ShopScene::listBag(const Game &game)
{
    const GameState &state = game.state();
    const GameData &data = game.data();
    QVector<ListRow> rows;
    m_bag.clear();
    const auto append = [&](Goods kind, const QMap<int, int> &held, const auto &entries) {
        for (auto its = held.cbegin(); its != held.cend(); ++its) {
            const auto *entry = entries.find(its.key());
            if (entry == nullptr || its.value() <= 0) {
                continue;
            }
            const int price = entry->price / kSellingPart;
            const QString reason = price > 0 ? QString() : tr("The shop does not buy this.");
            rows.append({QStringLiteral("%1 × %2").arg(entry->name, QString::number(its.value())),
                         Terms::gold(price, data), entry->description, reason, int(m_bag.size())});
            m_bag.append({int(kind), its.key(), price});
        }
    };
    append(Goods::kItem, state.items, data.items);
    append(Goods::kWeapon, state.weapons, data.weapons);
    append(Goods::kArmor, state.armors, data.armors);
    m_list = ListPanel(QStringLiteral("bag"), kList);
    m_list.setEmptyText(tr("The bag is empty."));
    m_list.setRows(rows);
}

void ShopScene::refresh(const Game &game)
{
    const int row = m_list.currentRow();
    if (isSelling()) {
        listBag(game);
    } else {
        listGoods(game);
    }
    m_list.setCurrent(row);
}

void ShopScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        listGoods(*game);
        m_isListed = true;
        return;
    }
    if (m_step == Step::kHowMany) {
        tickHowMany(input, game);
        return;
    }
    switch ((m_step == Step::kCommands ? m_commands : m_list).tick(input)) {
    case RowCursor::Result::kChosen:
        chosen(game);
        break;
    case RowCursor::Result::kCancelled:
        if (m_step == Step::kCommands) {
            game->pop();
        } else {
            m_step = Step::kCommands;
        }
        break;
    default:
        break;
    }
}

void ShopScene::chosen(Game *game)
{
    if (m_step != Step::kCommands) {
        askHowMany(*game);
        return;
    }
    switch (m_commands.current()->value) {
    case kBuy:
        m_step = m_before = Step::kBuy;
        listGoods(*game);
        break;
    case kSell:
        m_step = m_before = Step::kSell;
        listBag(*game);
        break;
    default:
        game->pop();
    }
}

const ShopGoods *ShopScene::current() const
{
    const ListRow *row = m_list.current();
    const QVector<ShopGoods> &goods = isSelling() ? m_bag : m_goods;
    return row != nullptr && row->value < goods.size() ? &goods.at(row->value) : nullptr;
}

void ShopScene::askHowMany(const Game &game)
{
    const ShopGoods &goods = *current();
    const int held = game.state().count(Goods(goods.kind), goods.id);
    m_number = 1;
    m_most = held;
    if (!isSelling()) {
        const int payable = goods.price > 0 ? game.state().gold / goods.price : GameState::kMostGoods;
        m_most = qMin(payable, GameState::kMostGoods - held);
    }
    m_step = Step::kHowMany;
}

void ShopScene::tickHowMany(const Input &input, Game *game)
{
    for (const GameKey key : input.pressed) {
        switch (key) {
        case GameKey::kUp:
            m_number += kManyAtOnce;
            break;
        case GameKey::kDown:
            m_number -= kManyAtOnce;
            break;
        case GameKey::kRight:
            m_number += 1;
            break;
        case GameKey::kLeft:
            m_number -= 1;
            break;
        case GameKey::kAct:
            deal(game);
            return;
        case GameKey::kCancel:
            m_step = m_before;
            return;
        case GameKey::kMenu:
            break;
        }
        m_number = qBound(1, m_number, m_most);
    }
    if (input.row) {
        deal(game);
    }
}

void ShopScene::deal(Game *game)
{
    const ShopGoods goods = *current();
    const qint64 sum = qint64(goods.price) * m_number;
    game->state().addGold(isSelling() ? sum : -sum);
    game->state().addGoods(Goods(goods.kind), goods.id, isSelling() ? -m_number : m_number);
    Sound coins;
    coins.file = QStringLiteral("coins");
    game->play(coins);
    m_step = m_before;
    refresh(*game);
}

Panel ShopScene::howMany(const GameData &data) const
{
    const ShopGoods &goods = *current();
    Panel panel;
    panel.role = QStringLiteral("number");
    panel.rect = kHowMany;
    panel.title = tr("How many?");
    PanelRow row;
    row.text = QStringLiteral("%1 × %2").arg(Terms::thing(Goods(goods.kind), goods.id, data),
                                             QString::number(m_number));
    row.rightText =
        Terms::gold(int(qMin<qint64>(qint64(goods.price) * m_number, GameState::kMostGold)), data);
    panel.rows = {row};
    panel.current = 0;
    return panel;
}

Panel ShopScene::comparison(const ShopGoods &goods, const Game &game) const
{
    Panel panel;
    panel.role = QStringLiteral("compare");
    panel.rect = kComparison;
    //: %1 is how many of a thing are in the bag.
    panel.lines.append(PanelLine(tr("In the bag: %1").arg(game.state().count(Goods(goods.kind), goods.id))));
    if (gearOf(goods, game.data()) == nullptr) {
        return panel;
    }
    const bool isWeapon = Goods(goods.kind) == Goods::kWeapon;
    const QVector<int> party = game.state().fighters();
    for (const int id : party) {
        const Actor *actor = game.state().knownActor(id);
        if (actor == nullptr) {
            continue;
        }
        Actor would = *actor;
        (isWeapon ? would.weapon : would.armor) = goods.id;
        const int before = isWeapon ? actor->attack(game.data()) : actor->defense(game.data());
        const int after = isWeapon ? would.attack(game.data()) : would.defense(game.data());
        PanelLine line(
            QStringLiteral("%1  %2 %3 → ")
                .arg(actor->name, isWeapon ? Terms::attack() : Terms::defense(), QString::number(before)));
        constexpr int kWorse = 2;
        constexpr int kBetter = 3;
        const int colour = after > before ? kBetter : kWorse;
        line.runs.append({QString::number(after), after == before ? 0 : colour});
        panel.lines.append(line);
    }
    return panel;
}

void ShopScene::show(const Game &game, Frame *frame) const
{
    const bool isAtCommands = m_step == Step::kCommands;
    QString help = isAtCommands ? m_commands.help() : m_list.help();
    if (m_step == Step::kHowMany) {
        help = tr("Left and right: by 1. Up and down: by 10.");
    }
    frame->panels.append(ListPanel::helpPanel(help));
    Panel purse;
    purse.role = QStringLiteral("gold");
    purse.rect = kPurse;
    purse.lines = {PanelLine(Terms::gold(game.state().gold, game.data()))};
    frame->panels.append(purse);
    if (isAtCommands) {
        // The one cursor that keys move is that of the commands.
        Panel list = m_list.panel();
        list.current = -1;
        frame->panels.append(list);
        frame->panels.append(m_commands.panel());
        return;
    }
    frame->panels.append(m_commands.panel());
    if (const ShopGoods *goods = current()) {
        frame->panels.append(comparison(*goods, game));
    }
    frame->panels.append(m_list.panel());
    if (m_step == Step::kHowMany) {
        frame->panels.append(howMany(game.data()));
    }
}

} // namespace player
