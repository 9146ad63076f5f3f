#pragma once

#include "../SlimeGame.h"
#include "player/scene/NewGame.h"

#include <QTest>

/// A running game whose scenes a test drives by keys, and reads by the panels that are seen.
struct SceneRun
{
    explicit SceneRun(const SlimeGame &small, const player::GameSettings &settings = {})
        : owned(player::newGame(small.data, settings))
        , game(*owned)
    {
        game.state() = small.state;
    }

    /// Puts a scene above all others, and lets it begin.
    template<typename S, typename... Arguments>
    void open(Arguments &&...arguments)
    {
        game.push(std::make_unique<S>(std::forward<Arguments>(arguments)...));
        wait(2);
    }

    void wait(int ticks)
    {
        for (int tick = 0; tick < ticks; ++tick) {
            game.tick();
        }
    }

    void press(player::GameKey key)
    {
        player::Input input;
        input.pressed = {key};
        input.held = {key};
        game.tick(input);
        game.tick();
    }
    void act() { press(player::GameKey::kAct); }
    void cancel() { press(player::GameKey::kCancel); }

    /// Puts the cursor of the uppermost list on the row that begins with this text; false when there is none.
    bool pointAt(const QString &text)
    {
        const int count = list() != nullptr ? int(list()->rows.size()) : 0;
        for (int step = 0; step <= 2 * count; ++step) {
            const player::Panel *panel = list();
            if (panel != nullptr && panel->rows.value(panel->current).text.startsWith(text)) {
                return true;
            }
            const bool goesRight = panel != nullptr && panel->columns > 1;
            press(goesRight ? player::GameKey::kRight : player::GameKey::kDown);
        }
        return false;
    }
    bool choose(const QString &text)
    {
        const bool isThere = pointAt(text);
        if (isThere) {
            act();
        }
        return isThere;
    }

    /// Hurries on until a list is there, or the scene has ended; false when neither comes.
    bool hurry(const char *role, int ticks = 2000)
    {
        for (int tick = 0; tick < ticks; ++tick) {
            if (list() != nullptr && list()->role == QLatin1String(role)) {
                return true;
            }
            player::Input input;
            input.pressed = {player::GameKey::kAct};
            input.held = input.pressed;
            game.tick(input);
        }
        return false;
    }

    [[nodiscard]] const player::Panel *list() const { return game.frame().list(); }
    [[nodiscard]] QString role() const { return list() != nullptr ? list()->role : QString(); }
    [[nodiscard]] QString help() const
    {
        const player::Panel *panel = game.frame().panel("help");
        return panel != nullptr ? panel->lines.value(0).text() : QString();
    }
    [[nodiscard]] QStringList rows() const
    {
        QStringList rows;
        if (list() != nullptr) {
            for (const player::PanelRow &row : list()->rows) {
                rows.append(row.text);
            }
        }
        return rows;
    }
    [[nodiscard]] bool isEnabled(int row) const
    {
        return list() != nullptr && list()->rows.value(row).isEnabled;
    }

    std::unique_ptr<player::Game> owned;
    player::Game &game;
};
