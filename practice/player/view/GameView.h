#pragma once

#include "player/game/GameData.h"
#include "player/scene/Frame.h"
#include "player/view/FramePainter.h"
#include "player/view/Keys.h"

#include <QElapsedTimer>
#include <QWidget>

namespace player {

/// The screen of a game: shows the last frame, as large as it fits, and gathers what the person does there.
class GameView : public QWidget
{
    Q_OBJECT

public:
    /// @p gameData and @p artwork outlive the view.
    GameView(const GameData *gameData, Artwork *artwork, QWidget *parent = nullptr);

    void setFrame(const Frame &frame);
    [[nodiscard]] const Frame &frame() const { return m_frame; }
    /// Covers the game with a word that it waits.
    void setPaused(bool isPaused);

    [[nodiscard]] Keys &keys() { return m_keys; }
    /// Does what the key of the keyboard does.
    void strike(Qt::Key key);

    /// What the game says just now: the text of its uppermost window that says something.
    [[nodiscard]] QString words() const;
    /// Whether nothing is open in the game that the escape key would close.
    [[nodiscard]] bool isOutermost() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// The escape key was pressed where it closes nothing in the game, and not right after it did.
    void leaveAsked();
    /// The game is to begin anew.
    void restartAsked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    void click(const QPointF &place);
    void tellWords();

    const GameData *m_data;
    FramePainter m_painter;
    Keys m_keys;
    Frame m_frame;
    bool m_isPaused = false;
    /// Since something was seen that the escape key closes; not valid before the first time.
    QElapsedTimer m_sinceOpen;
    QString m_words;
};

} // namespace player
