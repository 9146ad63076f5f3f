#include "player/scene/MenuScene.h"

#include "player/scene/Game.h"
#include "player/scene/SaveScene.h"
#include "player/scene/Terms.h"
#include "player/scene/menu/EquipScene.h"
#include "player/scene/menu/ItemScene.h"
#include "player/scene/menu/PartyPanel.h"
#include "player/scene/menu/SkillScene.h"
#include "player/scene/menu/StatusScene.h"

namespace player {

namespace {

const QRect kCommands(8, 64, 180, 168);
const QRect kPurse(8, 240, 180, 112);
const QRect kQuestion(220, 140, 200, 72);

} // namespace

MenuScene::MenuScene()
    : m_commands(QStringLiteral("menu"), kCommands)
    , m_party(QStringLiteral("party"), PartyPanel::kRect)
    , m_question(QStringLiteral("choices"), kQuestion)
{
    m_question.setRows({{Terms::yes(), {}, {}, {}, 1}, {Terms::no(), {}, {}, {}, 0}});
}

void MenuScene::list(const Game &game)
{
    const GameState &state = game.state();
    const QString nobody = state.fighters().isEmpty() ? tr("There is nobody in the party.") : QString();
    const QString noSave = game.settings().saveFolder.isEmpty()
                               ? tr("There is no place to save: save the project in the editor first.")
                               : QString();
    m_commands.setRows({
        {Terms::items(), {}, tr("Look into the bag."), {}, kItems},
        {Terms::skills(), {}, tr("Use a skill."), nobody, kSkills},
        {tr("Equipment"), {}, tr("Change weapon and armor."), nobody, kEquipment},
        {tr("Status"), {}, tr("See what somebody can do."), nobody, kStatus},
        {tr("Save"), {}, tr("Save the game."), noSave, kSave},
        {tr("To the title"), {}, tr("Leave this game. What is not saved is lost."), {}, kToTitle},
    });
    m_party.setRows(PartyPanel::rows(state, game.data()));
    m_isListed = true;
}

void MenuScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        list(*game);
        return;
    }
    if (m_isAsking) {
        tickQuestion(input, game);
        return;
    }
    ListPanel &list = m_isChoosingActor ? m_party : m_commands;
    switch (list.tick(input)) {
    case RowCursor::Result::kChosen:
        choose(game);
        break;
    case RowCursor::Result::kCancelled:
        if (m_isChoosingActor) {
            m_isChoosingActor = false;
        } else {
            game->pop();
        }
        break;
    default:
        break;
    }
}

void MenuScene::tickQuestion(const Input &input, Game *game)
{
    const RowCursor::Result result = m_question.tick(input);
    const bool isChosen = result == RowCursor::Result::kChosen;
    if (isChosen && m_question.current()->value == 1) {
        game->beginTitle();
    }
    m_isAsking = !isChosen && result != RowCursor::Result::kCancelled;
}

void MenuScene::choose(Game *game)
{
    const int command = m_commands.current()->value;
    const bool isOfSomebody = command == kSkills || command == kEquipment || command == kStatus;
    if (isOfSomebody && !m_isChoosingActor) {
        m_isChoosingActor = true;
        return;
    }
    const int place = isOfSomebody ? m_party.current()->value : -1;
    open(command, place, game);
}

void MenuScene::open(int command, int place, Game *game)
{
    switch (command) {
    case kItems:
        game->push(std::make_unique<ItemScene>());
        break;
    case kSkills:
        game->push(std::make_unique<SkillScene>(place));
        break;
    case kEquipment:
        game->push(std::make_unique<EquipScene>(place));
        break;
    case kStatus:
        game->push(std::make_unique<StatusScene>(place));
        break;
    case kSave:
        game->push(std::make_unique<SaveScene>());
        break;
    default:
        m_isAsking = true;
        // The key that came here by mistake loses nothing.
        m_question.setCurrent(1);
    }
}

void MenuScene::resume(int, Game *game)
{
    m_isListed = false;
    if (game->state().waitingCommonEvent > 0) {
        game->pop();
    }
}

void MenuScene::show(const Game &game, Frame *frame) const
{
    // Of somebody in the party the states are told, if there are any.
    const QString states = m_isChoosingActor ? m_party.help() : QString();
    QString help = states.isEmpty() ? m_commands.help() : states;
    if (m_isAsking) {
        help = tr("Leave this game? What is not saved is lost.");
    }
    frame->panels.append(ListPanel::helpPanel(help));
    Panel purse;
    purse.role = QStringLiteral("gold");
    purse.rect = kPurse;
    purse.lines = {PanelLine(Terms::gold(game.state().gold, game.data())),
                   //: How long the game has been played; %1 is a time.
                   PanelLine(tr("Time %1").arg(Terms::playTime(game.state().ticks)))};
    const MapData *map = game.data().maps.find(game.state().map);
    if (map != nullptr) {
        purse.lines.append(PanelLine(map->displayName.isEmpty() ? map->name : map->displayName));
    }
    frame->panels.append(purse);
    if (m_isChoosingActor) {
        frame->panels.append(m_commands.panel());
        frame->panels.append(m_party.panel());
    } else {
        frame->panels.append(PartyPanel::status(game.state(), game.data()));
        frame->panels.append(m_commands.panel());
    }
    if (m_isAsking) {
        frame->panels.append(m_question.panel());
    }
}

} // namespace player
