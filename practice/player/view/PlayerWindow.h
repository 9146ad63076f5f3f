#pragma once

#include "player/scene/Game.h"
#include "player/sound/Loudspeaker.h"
#include "player/view/Artwork.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace player {

class GameView;
class KeyLine;
class LogPane;

/// The window of a game that is tried out: its screen, the keys, and what it could not do. The game goes on
/// while it is shown, and waits while another window has the keyboard.
class PlayerWindow : public QWidget
{
    Q_OBJECT

public:
    /// @p name is that of the project. Without a parent the window stands for itself.
    PlayerWindow(std::unique_ptr<Game> game, std::unique_ptr<Artwork> artwork, const QString &name,
                 QWidget *parent = nullptr);
    ~PlayerWindow() override;

    /// Comes up on @p screen, as large as it fits beside what is to stay in sight; all in pixels of the
    /// screen.
    void showBeside(const QVector<QRect> &inSight, const QRect &screen);

    /// What placeAsked() asked for last can be seen, or cannot for other windows of the editor.
    void setPlaceReached(bool isReached);

    /// Where a click does what the escape key does, in global pixels; nothing in a window too narrow for it.
    [[nodiscard]] std::optional<QRect> leaveRect() const;

    [[nodiscard]] Game &game() { return *m_game; }
    [[nodiscard]] GameView *view() const { return m_view; }

Q_SIGNALS:
    /// The game is over, or the person has left it: the window is closed.
    void left();
    /// The person wants the game to begin anew, with what the project is now.
    void restartAsked();
    /// The person wants to see a place in the editor.
    void placeAsked(const player::Problem &problem);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// Makes up for the time that has passed.
    void run();
    void setRunning(bool isRunning);
    void tell(const QVector<Problem> &problems);

    std::unique_ptr<Game> m_game;
    std::unique_ptr<Artwork> m_artwork;
    /// nullptr on a machine that plays nothing.
    std::unique_ptr<Loudspeaker> m_loudspeaker;
    GameView *m_view;
    KeyLine *m_keys;
    LogPane *m_log;
    QTimer m_timer;
    QElapsedTimer m_clock;
    /// Ticks since the clock was started.
    qint64 m_ticks = 0;
};

} // namespace player
