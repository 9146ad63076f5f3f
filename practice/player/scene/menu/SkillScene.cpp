#include "player/scene/menu/SkillScene.h"

#include "player/scene/Game.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

const QRect kList(8, 64, 624, 288);

} // namespace

SkillScene::SkillScene(int place)
    : m_place(place)
    , m_list(QStringLiteral("skills"), kList, 2)
{
    m_list.setEmptyText(tr("No skills yet."));
}

const Actor *SkillScene::actor(const Game &game) const
{
    return game.state().knownActor(game.state().fighters().value(m_place));
}

void SkillScene::list(Game *game)
{
    QVector<ListRow> rows;
    if (const Actor *its = actor(*game)) {
        m_list.setTitle(QStringLiteral("%1  %2").arg(its->name, Terms::points(*its, game->data())));
        const QVector<int> skills = its->usableSkills(game->data());
        for (const int id : skills) {
            const SkillEntry *skill = game->data().skills.find(id);
            if (skill == nullptr) {
                continue;
            }
            QString reason = UseOnParty::reasonAgainst(skill->effects, skill->scope);
            if (its->isKnockedOut()) {
                //: %1 is somebody's name.
                reason = tr("%1 cannot use skills now.").arg(its->name);
            } else if (skill->mpCost > its->mp) {
                reason = tr("Not enough MP.");
            }
            const bool hasBoth = !reason.isEmpty() && !skill->description.isEmpty();
            rows.append({skill->name, QStringLiteral("%1 MP").arg(skill->mpCost), skill->description,
                         hasBoth ? skill->description + QLatin1Char(' ') + reason : reason, id});
        }
    }
    m_list.setRows(rows);
    m_isListed = true;
}

void SkillScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        list(game);
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
        const SkillEntry *skill = game->data().skills.find(m_list.current()->value);
        m_notice.clear();
        m_use.begin(skill->effects, skill->scope, m_place, *game);
    } else if (result == RowCursor::Result::kMoved) {
        m_notice.clear();
    }
}

void SkillScene::used(Game *game)
{
    if (!m_use.hasWorked()) {
        m_notice = tr("It would do nothing.");
        return;
    }
    const SkillEntry *skill = game->data().skills.find(m_list.current()->value);
    Actor *its = game->state().actor(game->state().fighters().value(m_place), game->data());
    its->changeMp(-skill->mpCost, game->data());
    list(game);
    if (m_use.commonEvent() > 0) {
        game->state().waitingCommonEvent = m_use.commonEvent();
        game->pop();
    }
}

void SkillScene::show(const Game &, Frame *frame) const
{
    const QString help = m_use.isAsking() ? m_use.help() : m_list.help();
    frame->panels.append(ListPanel::helpPanel(m_notice.isEmpty() ? help : m_notice));
    frame->panels.append(m_list.panel());
    if (m_use.isAsking()) {
        frame->panels.append(m_use.panel());
    }
}

} // namespace player
