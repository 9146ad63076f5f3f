#pragma once

#include "player/scene/RowCursor.h"
#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

/// Gives an actor a name, typed or chosen letter by letter.
class NameScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(NameScene)

public:
    /// @p actor is the number, @p letters how many the name may have.
    NameScene(int actor, int letters);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    void begin(const Game &game);
    void type(const QString &text);
    void eraseLast();
    void choose(Game *game);
    void pointAtDone();
    [[nodiscard]] bool isFull() const;
    [[nodiscard]] QString help() const;
    /// Letters as a person counts them: what two code units make is one.
    [[nodiscard]] static QStringList lettersOf(const QString &text);

    int m_actor;
    int m_most;
    bool m_hasBegun = false;
    int m_ticks = 0;
    QStringList m_name;
    /// The letters that can be chosen; behind them stand the rows to erase and to end.
    QStringList m_grid;
    RowCursor m_cursor;
    QString m_face;
};

} // namespace player
