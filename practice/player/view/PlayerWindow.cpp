#include "player/view/PlayerWindow.h"

#include "player/view/GameView.h"
#include "player/view/KeyLine.h"
#include "player/view/LogPane.h"
#include "player/view/WindowSpot.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace player {

namespace {

constexpr int kTicksPerSecond = GameState::kTicksPerSecond;
constexpr qint64 kNanoseconds = 1000000000;
/// A game that could not keep up goes on from there: it does not hurry to make up for it.
constexpr int kMostTicksAtOnce = 6;
constexpr int kTimerMs = 8;
/// What a window manager puts around a window, at most.
constexpr QMargins kDecoration(6, 32, 6, 6);

} // namespace

PlayerWindow::PlayerWindow(std::unique_ptr<Game> game, std::unique_ptr<Artwork> artwork, const QString &name,
                           QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_game(std::move(game))
    , m_artwork(std::move(artwork))
    , m_loudspeaker(Loudspeaker::make())
    , m_view(new GameView(&m_game->data(), m_artwork.get(), this))
    , m_keys(new KeyLine(this))
    , m_log(new LogPane(&m_game->data(), this))
{
    setObjectName(QStringLiteral("playerWindow"));
    const QString title = m_game->data().system.gameTitle;
    //: Title of the window of a game that is tried out; %1 is the name of the game.
    setWindowTitle(tr("%1 – Test play").arg(title.isEmpty() ? name : title));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_view, 1);
    column->addWidget(m_keys);
    column->addWidget(m_log);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kTimerMs);
    connect(&m_timer, &QTimer::timeout, this, &PlayerWindow::run);
    connect(m_view, &GameView::leaveAsked, this, &QWidget::close);
    connect(m_view, &GameView::restartAsked, this, &PlayerWindow::restartAsked);
    connect(m_keys, &KeyLine::pressed, m_view, &GameView::strike);
    connect(m_log, &LogPane::placeAsked, this, &PlayerWindow::placeAsked);
    tell(m_game->takeProblems());
    m_view->setFrame(m_game->frame());
    setFocusProxy(m_view);
}

PlayerWindow::~PlayerWindow() = default;

void PlayerWindow::showBeside(const QVector<QRect> &inSight, const QRect &screen)
{
    const int below = m_keys->sizeHint().height() + (m_log->rows() > 0 ? m_log->sizeHint().height() : 0);
    const QRect game = WindowSpot(screen, inSight, kDecoration + QMargins(0, 0, 0, below)).game();
    setGeometry(game.adjusted(0, 0, 0, below));
    show();
    raise();
    activateWindow();
    m_view->setFocus();
}

std::optional<QRect> PlayerWindow::leaveRect() const
{
    const QRect cap = m_keys->capOf(Qt::Key_Escape);
    return cap.isEmpty() ? std::nullopt
                         : std::optional(QRect(m_keys->mapToGlobal(cap.topLeft()), cap.size()));
}

void PlayerWindow::run()
{
    const qint64 due = m_clock.nsecsElapsed() * kTicksPerSecond / kNanoseconds - m_ticks;
    if (due <= 0) {
        return;
    }
    m_ticks += due;
    for (qint64 tick = 0; tick < qMin<qint64>(due, kMostTicksAtOnce) && !m_game->isOver(); ++tick) {
        m_game->tick(m_view->keys().take());
        if (m_loudspeaker != nullptr) {
            m_loudspeaker->hear(m_game->frame());
        }
    }
    m_view->setFrame(m_game->frame());
    tell(m_game->takeProblems());
    tell(m_artwork->takeProblems());
    if (m_game->isOver()) {
        close();
    }
}

void PlayerWindow::tell(const QVector<Problem> &problems)
{
    if (problems.isEmpty()) {
        return;
    }
    const bool isFirst = m_log->rows() == 0;
    m_log->add(problems);
    // The pane takes no room from the game, where the screen has any below it.
    const QWindow *const handle = windowHandle();
    if (isFirst && isVisible() && !isMaximized() && !isFullScreen() && handle != nullptr) {
        const int height = m_log->sizeHint().height();
        if (frameGeometry().bottom() + height <= handle->screen()->availableGeometry().bottom()) {
            resize(size() + QSize(0, height));
        }
    }
}

void PlayerWindow::setRunning(bool isRunning)
{
    m_view->setPaused(!isRunning);
    if (m_loudspeaker != nullptr) {
        m_loudspeaker->setMuted(!isRunning);
    }
    m_view->keys().letGo();
    if (isRunning) {
        m_clock.start();
        m_ticks = 0;
        m_timer.start();
    } else {
        m_timer.stop();
    }
}

void PlayerWindow::setPlaceReached(bool isReached)
{
    m_log->setReached(isReached);
}

/// In the list of what the game cannot do the key goes back to the game first.
void PlayerWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_view->hasFocus()) {
        m_view->setFocus();
        m_view->strike(Qt::Key_Escape);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PlayerWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isVisible()) {
        setRunning(isActiveWindow());
    }
}

void PlayerWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        setRunning(true);
    }
}

void PlayerWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    setRunning(false);
}

void PlayerWindow::closeEvent(QCloseEvent *event)
{
    m_timer.stop();
    event->accept();
    Q_EMIT left();
}

} // namespace player
