#pragma once

#include "player/game/Problem.h"

#include <QVector>
#include <QWidget>

class QLabel;
class QListWidget;

namespace player {

struct GameData;

/// Where the problem lies, in the words of a person who made the project: names of map and event, page and
/// line. Empty for what has no place.
[[nodiscard]] QString placeInWords(const Problem &problem, const GameData &data);

/// What a game could not do, a row each, with how often it happened. It is hidden until there is something to
/// tell.
class LogPane : public QWidget
{
    Q_OBJECT

public:
    /// So many are kept; of a game that has more wrong with it, the first ones tell most.
    static constexpr int kMostRows = 200;

    /// @p gameData outlives the pane.
    explicit LogPane(const GameData *gameData, QWidget *parent = nullptr);

    void add(const QVector<Problem> &problems);
    /// The place that was asked for last could be shown, or not, as windows of the editor are open.
    void setReached(bool isReached);
    [[nodiscard]] int rows() const { return int(m_problems.size()); }

Q_SIGNALS:
    /// The person wants to see the place in the editor.
    void placeAsked(const player::Problem &problem);

private:
    /// Writes what is known of the problem in this row.
    void write(int row);

    const GameData *m_data;
    QLabel *m_heading;
    QListWidget *m_list;
    QVector<Problem> m_problems;
};

} // namespace player
