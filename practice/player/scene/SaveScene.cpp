#include "player/scene/SaveScene.h"

#include "player/game/GameData.h"
#include "player/scene/Game.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

const QRect kList(8, 64, 624, 288);
const QRect kQuestion(220, 140, 200, 72);

/// Who is in the party, and the leader's level.
QString partyText(const GameState &state)
{
    QStringList names;
    const QVector<int> party = state.fighters();
    for (const int id : party) {
        if (const Actor *actor = state.knownActor(id)) {
            names.append(names.isEmpty()
                             ? QStringLiteral("%1 %2 %3")
                                   .arg(actor->name, Terms::level(), QString::number(actor->level))
                             : actor->name);
        }
    }
    return Terms::list(names);
}

QString placeText(const GameState &state, const GameData &data)
{
    const MapData *map = data.maps.find(state.map);
    if (map == nullptr) {
        return QStringLiteral("?");
    }
    return map->displayName.isEmpty() ? map->name : map->displayName;
}

} // namespace

SaveScene::SaveScene(Mode mode)
    : m_mode(mode)
    , m_list(mode == Mode::kSave ? QStringLiteral("save") : QStringLiteral("load"), kList)
    , m_question(QStringLiteral("choices"), kQuestion)
{
    m_list.setTitle(mode == Mode::kSave ? tr("Save") : tr("Continue"));
    m_question.setRows({{Terms::yes(), {}, {}, {}, 1}, {Terms::no(), {}, {}, {}, 0}});
}

void SaveScene::list(const Game &game)
{
    const SaveFiles files(game.settings().saveFolder);
    m_slots.clear();
    QVector<ListRow> rows;
    for (int slot = 0; slot < SaveFiles::kSlots; ++slot) {
        m_slots.append(files.read(slot, game.data()));
        rows.append(row(slot, files, game.data()));
    }
    m_list.setRows(rows);
    if (!m_isListed) {
        pointAtNewest();
    }
    m_isListed = true;
}

/// Whoever loads goes on from there, and whoever saves has it there.
void SaveScene::pointAtNewest()
{
    int newest = -1;
    for (int slot = 0; slot < m_slots.size(); ++slot) {
        const SaveSlot &its = m_slots.at(slot);
        if (its.state && (newest < 0 || its.when > m_slots.at(newest).when)) {
            newest = slot;
        }
    }
    if (newest >= 0) {
        m_list.setCurrent(newest);
    }
}

ListRow SaveScene::row(int slot, const SaveFiles &files, const GameData &data) const
{
    const SaveSlot &its = m_slots.at(slot);
    const QString number = QString::number(slot + 1);
    ListRow row;
    row.value = slot;
    if (its.isEmpty) {
        row.text = QStringLiteral("%1  —").arg(number);
        row.help = tr("Nothing is saved here yet.");
    } else if (its.state) {
        row.text =
            QStringLiteral("%1  %2 · %3").arg(number, placeText(*its.state, data), partyText(*its.state));
        row.rightText = Terms::playTime(its.state->ticks);
        row.help = its.warning;
    } else {
        row.text = QStringLiteral("%1  ?").arg(number);
        row.help = its.error;
    }
    if (m_mode == Mode::kLoad && !its.state) {
        row.reason = row.help;
    }
    if (m_mode == Mode::kSave && !files.canSave()) {
        row.reason = tr("There is no place to save: save the project in the editor first.");
    }
    if (row.help.isEmpty()) {
        row.help = m_mode == Mode::kSave ? tr("Save here?") : tr("Go on from here?");
    }
    return row;
}

void SaveScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        list(*game);
        return;
    }
    if (!m_notice.isEmpty()) {
        if (input.isPressed(GameKey::kAct) || input.isPressed(GameKey::kCancel) || input.row) {
            m_notice.clear();
            if (m_isDone) {
                game->pop();
            }
        }
        return;
    }
    ListPanel &list = m_isAsking ? m_question : m_list;
    const RowCursor::Result result = list.tick(input);
    if (result == RowCursor::Result::kCancelled) {
        if (m_isAsking) {
            m_isAsking = false;
        } else {
            game->pop();
        }
    } else if (result == RowCursor::Result::kChosen) {
        choose(game);
    }
}

void SaveScene::choose(Game *game)
{
    const SaveSlot &slot = m_slots.at(m_list.currentRow());
    const bool hasToAsk = m_mode == Mode::kSave ? !slot.isEmpty : !slot.warning.isEmpty();
    if (!m_isAsking && hasToAsk) {
        m_isAsking = true;
        // A key too many replaces nothing.
        m_question.setCurrent(m_mode == Mode::kSave ? 1 : 0);
        return;
    }
    const bool isWanted = !m_isAsking || m_question.current()->value == 1;
    m_isAsking = false;
    if (isWanted) {
        carryOut(game);
    }
}

void SaveScene::carryOut(Game *game)
{
    const int slot = m_list.currentRow();
    if (m_mode == Mode::kLoad) {
        game->beginSaved(*m_slots.at(slot).state);
        return;
    }
    QString error;
    const SaveFiles files(game->settings().saveFolder);
    m_isDone = files.write(slot, game->state(), game->data(), &error);
    m_notice = m_isDone ? tr("The game is saved.") : error;
    list(*game);
}

void SaveScene::show(const Game &, Frame *frame) const
{
    QString help = m_list.help();
    if (!m_notice.isEmpty()) {
        help = m_notice;
    } else if (m_isAsking && m_mode == Mode::kSave) {
        help = tr("Replace what is saved here?");
    }
    frame->panels.append(m_list.panel());
    Panel panel = ListPanel::helpPanel(help);
    panel.isWaiting = !m_notice.isEmpty();
    frame->panels.append(panel);
    if (m_isAsking) {
        frame->panels.append(m_question.panel());
    }
}

} // namespace player
