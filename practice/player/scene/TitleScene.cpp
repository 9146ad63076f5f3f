#include "player/scene/TitleScene.h"

#include "player/scene/Game.h"
#include "player/scene/SaveFiles.h"
#include "player/scene/SaveScene.h"

namespace player {

namespace {

constexpr int kWidth = 240;
constexpr int kLowest = 296;
const QRect kHelp(8, 304, 624, 48);
const QRect kTitle(40, 40, 560, 72);

} // namespace

TitleScene::TitleScene() = default;

ListRow TitleScene::row(const QString &command, const QString &text, bool hasSaves)
{
    ListRow row;
    if (command == QLatin1String("newGame")) {
        row = {tr("New game"), {}, {}, {}, kNewGame};
    } else if (command == QLatin1String("continue")) {
        row = {tr("Continue"), {}, {}, hasSaves ? QString() : tr("There is no saved game yet."), kContinue};
    } else if (command == QLatin1String("options")) {
        row = {tr("Options"), {}, {}, tr("There is nothing to set in test play."), kOptions};
    } else if (command == QLatin1String("credits")) {
        row = {tr("Credits"), {}, {}, tr("There are no credits in test play."), kCredits};
    } else if (command == QLatin1String("quit")) {
        row = {tr("Quit"), {}, {}, {}, kQuit};
    }
    if (!row.text.isEmpty() && !text.isEmpty()) {
        row.text = text;
    }
    return row;
}

void TitleScene::list(const Game &game)
{
    QVector<TitleCommand> commands = game.data().system.titleCommands;
    if (commands.isEmpty()) {
        commands = {
            {QStringLiteral("newGame"), {}}, {QStringLiteral("continue"), {}}, {QStringLiteral("quit"), {}}};
    }
    const bool hasSaves = SaveFiles(game.settings().saveFolder).hasAny();
    QVector<ListRow> rows;
    for (const TitleCommand &command : qAsConst(commands)) {
        const ListRow its = row(command.command, command.text, hasSaves);
        if (!its.text.isEmpty()) {
            rows.append(its);
        }
    }
    if (rows.isEmpty()) {
        rows.append(row(QStringLiteral("newGame"), {}, hasSaves));
    }
    const int height = 24 + 24 * qMin(int(rows.size()), 6);
    m_list = ListPanel(QStringLiteral("title"),
                       QRect((Frame::kWidth - kWidth) / 2, kLowest - height, kWidth, height));
    m_list.setRows(rows);
    if (hasSaves && rows.size() > 1 && rows.at(1).value == kContinue) {
        m_list.setCurrent(1);
    }
    m_isListed = true;
}

void TitleScene::resume(int, Game *)
{
    m_isListed = false;
}

void TitleScene::tick(const Input &input, Game *game)
{
    if (!m_isListed) {
        list(*game);
        game->setMusic(game->data().system.titleMusic);
        return;
    }
    if (m_list.tick(input) != RowCursor::Result::kChosen) {
        return;
    }
    switch (m_list.current()->value) {
    case kNewGame:
        game->beginNewGame();
        break;
    case kContinue:
        game->push(std::make_unique<SaveScene>(SaveScene::Mode::kLoad));
        break;
    default:
        game->end();
    }
}

void TitleScene::show(const Game &game, Frame *frame) const
{
    const SystemEntry &system = game.data().system;
    frame->title = system.titleBackdrop;
    // One that nobody has made yet says at least what is being played.
    const bool isPlain = system.titleBackdrop.isEmpty() && system.titleCommands.isEmpty();
    const QString name = system.gameTitle.isEmpty() ? game.settings().name : system.gameTitle;
    if ((system.showsTitle || isPlain) && !name.isEmpty()) {
        Panel title;
        title.role = QStringLiteral("gameTitle");
        title.rect = kTitle;
        title.background = Panel::Background::kDim;
        title.title = name;
        frame->panels.append(title);
    }
    if (!m_list.help().isEmpty()) {
        Panel help = ListPanel::helpPanel(m_list.help());
        help.rect = kHelp;
        frame->panels.append(help);
    }
    frame->panels.append(m_list.panel());
}

} // namespace player
