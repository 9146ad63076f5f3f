#include "player/scene/NameScene.h"

#include "player/scene/Game.h"
#include "player/scene/ListPanel.h"

#include <QTextBoundaryFinder>

namespace player {

namespace {

constexpr int kColumns = 10;
constexpr int kMostLetters = 16;
/// An action key that was meant for the message before does not take the name.
constexpr int kDeafTicks = 20;
const QRect kName(8, 64, 624, 120);
const QRect kGrid(8, 192, 624, 160);

} // namespace

NameScene::NameScene(int actor, int letters)
    : m_actor(actor)
    , m_most(qBound(1, letters, kMostLetters))
{
}

QStringList NameScene::lettersOf(const QString &text)
{
    QStringList letters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int from = 0;
    for (int to = int(finder.toNextBoundary()); to > from; to = int(finder.toNextBoundary())) {
        letters.append(text.mid(from, to - from));
        from = to;
    }
    return letters;
}

void NameScene::begin(const Game &game)
{
    m_hasBegun = true;
    const Actor *actor = game.state().knownActor(m_actor);
    const ActorEntry *entry = game.data().actors.find(m_actor);
    if (actor != nullptr) {
        m_name = lettersOf(actor->name).mid(0, m_most);
        m_face = actor->image;
    } else if (entry != nullptr) {
        m_name = lettersOf(entry->name).mid(0, m_most);
        m_face = entry->image;
    }
    //: The letters from which a name can be put together, in the order in which they are shown, 10 in a row.
    //: Take those that names in your language are written with.
    m_grid = lettersOf(tr("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-'. "));
    m_cursor = RowCursor(int(m_grid.size()) + 2, kColumns);
    // A name that is there is taken by one key; what ends the input is not hidden below the letters.
    if (!m_name.isEmpty()) {
        pointAtDone();
    }
}

bool NameScene::isFull() const
{
    return m_name.size() >= m_most;
}

void NameScene::type(const QString &text)
{
    const QStringList letters = lettersOf(text);
    for (const QString &letter : letters) {
        if (!isFull() && QChar::isPrint(letter.toUcs4().constFirst())) {
            m_name.append(letter);
        }
    }
}

void NameScene::eraseLast()
{
    if (!m_name.isEmpty()) {
        m_name.removeLast();
    }
}

void NameScene::tick(const Input &input, Game *game)
{
    if (!m_hasBegun) {
        begin(*game);
        return;
    }
    ++m_ticks;
    if (!input.typed.isEmpty()) {
        type(input.typed);
        m_ticks = kDeafTicks;
        // Who types is done with the enter key.
        pointAtDone();
    }
    // What is typed has done its work: the keys that move are for the grid.
    switch (m_cursor.tick(input)) {
    case RowCursor::Result::kChosen:
        if (m_ticks >= kDeafTicks || input.row) {
            choose(game);
        }
        break;
    case RowCursor::Result::kCancelled:
        eraseLast();
        if (m_name.isEmpty()) {
            m_cursor.setCurrent(0);
        }
        break;
    default:
        break;
    }
}

void NameScene::choose(Game *game)
{
    const int row = m_cursor.current();
    if (row < m_grid.size()) {
        type(m_grid.at(row));
        if (isFull()) {
            pointAtDone();
        }
        return;
    }
    if (row == m_grid.size()) {
        eraseLast();
        return;
    }
    const QString name = m_name.join(QString()).trimmed();
    if (name.isEmpty()) {
        return;
    }
    if (Actor *actor = game->state().actor(m_actor, game->data())) {
        actor->name = name;
    }
    game->pop();
}

void NameScene::pointAtDone()
{
    m_cursor.setCurrent(int(m_grid.size()) + 1);
}

QString NameScene::help() const
{
    if (m_name.join(QString()).trimmed().isEmpty()) {
        return tr("Type a name, or choose its letters.");
    }
    if (isFull()) {
        //: %1 is a number.
        return tr("A name has %1 letters at most.").arg(m_most);
    }
    return tr("Type, or choose letters. “Done” takes the name.");
}

void NameScene::show(const Game &, Frame *frame) const
{
    frame->panels.append(ListPanel::helpPanel(help()));
    Panel name;
    name.role = QStringLiteral("typed");
    name.rect = kName;
    name.face = m_face;
    name.title = tr("Name");
    QStringList places = m_name;
    while (places.size() < m_most) {
        places.append(QStringLiteral("_"));
    }
    name.lines = {PanelLine(places.join(QLatin1Char(' ')))};
    frame->panels.append(name);
    Panel grid;
    grid.role = QStringLiteral("name");
    grid.rect = kGrid;
    for (const QString &letter : m_grid) {
        PanelRow row;
        row.text = letter == QLatin1String(" ") ? QStringLiteral("␣") : letter;
        row.isEnabled = !isFull();
        grid.rows.append(row);
    }
    PanelRow erase;
    erase.text = QStringLiteral("⌫");
    PanelRow done;
    done.text = tr("Done");
    done.isEnabled = !m_name.join(QString()).trimmed().isEmpty();
    grid.rows += QVector<PanelRow>{erase, done};
    m_cursor.show(&grid);
    frame->panels.append(grid);
}

} // namespace player
