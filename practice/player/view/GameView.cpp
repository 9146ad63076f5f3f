#include "player/view/GameView.h"

#include "player/view/PanelLayout.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace player {

namespace {

/// So long after something was closed, the escape key does not leave the game.
constexpr int kDeafMs = 300;

bool isTalk(const Panel &panel)
{
    return panel.role == QLatin1String("message") || panel.role == QLatin1String("scroll");
}

/// The escape key closes it.
bool isClosable(const Panel &panel)
{
    return panel.isWaiting || isTalk(panel) ||
           (!panel.rows.isEmpty() && panel.role != QLatin1String("title"));
}

bool waits(const Frame &frame)
{
    return std::any_of(frame.panels.cbegin(), frame.panels.cend(),
                       [](const Panel &panel) { return panel.isWaiting || isTalk(panel); });
}

QString textOf(const PanelLine &line)
{
    QString text;
    for (const Run &run : line.runs) {
        text += run.text;
    }
    return text;
}

} // namespace

GameView::GameView(const GameData *gameData, Artwork *artwork, QWidget *parent)
    : QWidget(parent)
    , m_data(gameData)
    , m_painter(artwork)
{
    setObjectName(QStringLiteral("gameView"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(Frame::kWidth / 2, Frame::kHeight / 2);
    //: Read out to those who do not see it: the part of a window in which the game is played.
    setAccessibleName(tr("The game"));
}

QSize GameView::sizeHint() const
{
    return {Frame::kWidth, Frame::kHeight};
}

void GameView::setFrame(const Frame &frame)
{
    m_frame = frame;
    if (!isOutermost() && std::any_of(frame.panels.cbegin(), frame.panels.cend(), isClosable)) {
        m_sinceOpen.start();
    }
    const bool isTyping = std::any_of(frame.panels.cbegin(), frame.panels.cend(),
                                      [](const Panel &panel) { return panel.role == QLatin1String("name"); });
    m_keys.setTyping(isTyping);
    if (testAttribute(Qt::WA_InputMethodEnabled) != isTyping) {
        setAttribute(Qt::WA_InputMethodEnabled, isTyping);
        updateMicroFocus();
    }
    tellWords();
    update();
}

void GameView::setPaused(bool isPaused)
{
    m_isPaused = isPaused;
    update();
}

QString GameView::words() const
{
    const auto says = [](const Panel &panel) {
        return !panel.lines.isEmpty() || !panel.rows.isEmpty();
    };
    const auto last = std::find_if(m_frame.panels.crbegin(), m_frame.panels.crend(), says);
    if (last == m_frame.panels.crend()) {
        return {};
    }
    QStringList words;
    if (!last->title.isEmpty()) {
        words.append(last->title);
    }
    // Choices belong to the message that asks for them.
    if (last->lines.isEmpty() && last + 1 != m_frame.panels.crend() && isTalk(*(last + 1))) {
        for (const PanelLine &line : (last + 1)->lines) {
            words.append(textOf(line));
        }
    }
    for (const PanelLine &line : last->lines) {
        words.append(textOf(line));
    }
    if (last->current >= 0 && last->current < last->rows.size()) {
        const PanelRow &row = last->rows.at(last->current);
        words.append(row.rightText.isEmpty() ? row.text : row.text + QLatin1Char(' ') + row.rightText);
    }
    return words.join(QLatin1Char('\n'));
}

void GameView::tellWords()
{
    const QString now = words();
    if (now == m_words) {
        return;
    }
    m_words = now;
    setAccessibleDescription(now);
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

bool GameView::isOutermost() const
{
    if (m_frame.isTrialAtRest) {
        return true;
    }
    // A game that begins on a map which is not there shows nothing at all.
    if (m_frame.map == 0 && m_frame.panels.isEmpty() && m_frame.battlers.isEmpty()) {
        return true;
    }
    const bool isTitle = m_frame.panel("title") != nullptr;
    return (m_frame.map != 0 || isTitle) && m_frame.battlers.isEmpty() &&
           std::none_of(m_frame.panels.cbegin(), m_frame.panels.cend(), isClosable);
}

void GameView::paintEvent(QPaintEvent * /*event*/)
{
    const qreal ratio = devicePixelRatioF();
    QPainter painter(this);
    painter.scale(1 / ratio, 1 / ratio);
    const QSize device = (QSizeF(size()) * ratio).toSize();
    m_painter.paint(&painter, m_frame, *m_data, device);
    if (m_isPaused) {
        painter.resetTransform();
        painter.fillRect(rect(), QColor(0, 0, 0, 110));
        QFont font = this->font();
        font.setPixelSize(qMax(12, height() / 20));
        painter.setFont(font);
        painter.setPen(Qt::white);
        //: Over a game that stands still because another window has the keyboard.
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("The game waits. Click here to go on."));
    }
}

void GameView::strike(Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    keyPressEvent(&press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    keyReleaseEvent(&release);
}

void GameView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !event->isAutoRepeat() && isOutermost()) {
        // Whoever cancels her way out of the menus with a key too many goes on playing.
        if (!m_sinceOpen.isValid() || m_sinceOpen.hasExpired(kDeafMs)) {
            Q_EMIT leaveAsked();
        }
        return;
    }
    if (event->key() == Qt::Key_F5) {
        if (!event->isAutoRepeat()) {
            Q_EMIT restartAsked();
        }
        return;
    }
    if (!m_keys.press(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void GameView::keyReleaseEvent(QKeyEvent *event)
{
    if (!m_keys.release(*event)) {
        QWidget::keyReleaseEvent(event);
    }
}

void GameView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        m_keys.strike(GameKey::kCancel);
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const qreal ratio = devicePixelRatioF();
    const ScreenScale scale = ScreenScale::fit((QSizeF(size()) * ratio).toSize());
    click(scale.toGame(QPointF(event->pos()) * ratio));
}

void GameView::click(const QPointF &place)
{
    if (const Panel *const list = m_frame.list()) {
        if (const int row = PanelLayout(*list).rowAt(place); row >= 0) {
            m_keys.choose(row);
        }
        return;
    }
    if (waits(m_frame) || m_frame.map == 0) {
        m_keys.strike(GameKey::kAct);
        return;
    }
    const QPointF cell = place / Frame::kCell + m_frame.origin;
    m_keys.click({qFloor(cell.x()), qFloor(cell.y())});
}

void GameView::inputMethodEvent(QInputMethodEvent *event)
{
    m_keys.type(event->commitString());
    event->accept();
}

QVariant GameView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const Panel *const name = m_frame.panel("name");
    if (query != Qt::ImCursorRectangle || name == nullptr) {
        return QWidget::inputMethodQuery(query);
    }
    const qreal ratio = devicePixelRatioF();
    const ScreenScale scale = ScreenScale::fit((QSizeF(size()) * ratio).toSize());
    const QRect place = scale.rect(name->rect).translated(scale.corner);
    return QRectF(QPointF(place.topLeft()) / ratio, QSizeF(place.size()) / ratio).toRect();
}

} // namespace player
