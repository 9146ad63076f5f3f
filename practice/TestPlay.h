#pragma once

#include "project/PlayWords.h"

#include <QObject>

class EditorWindows;
class LessonSession;
class QWidget;

namespace player {
class PlayerWindow;
struct Problem;
} // namespace player

/// Lets the open project run as a game, in a window of its own beside the editor. One game runs at a time.
class TestPlay : public QObject
{
    Q_OBJECT

public:
    /// @p windows ask for a game; the one that runs stands above the window of @p strip, and leaves strip and
    /// bubble of a lesson in sight where the screen has the room. All of them outlive this.
    TestPlay(EditorWindows *windows, const LessonSession *session, QWidget *strip, QObject *parent = nullptr);
    ~TestPlay() override;

    [[nodiscard]] bool isOn() const { return m_window != nullptr; }
    /// Ends the game, if one runs.
    void stop();
    /// Gives the keyboard to the game.
    void takeFocus();

Q_SIGNALS:
    /// The game is over; the keyboard is nobody's.
    void ended();

private:
    void play(const PlayRequest &request);
    void playAgain();
    void onLeft();
    void showPlace(const player::Problem &problem);
    [[nodiscard]] QVector<QRect> inSight() const;

    EditorWindows *m_windows;
    const LessonSession *m_session;
    QWidget *m_strip;
    /// What was played last.
    PlayRequest m_request;
    /// nullptr while none runs.
    player::PlayerWindow *m_window = nullptr;
};
