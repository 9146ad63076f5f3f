#include "strip/PraiseCard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kWordsWidth = 320;
constexpr int kMargin = 16;
constexpr int kFontPixels = 16;

} // namespace

PraiseCard::PraiseCard(QWidget *window)
    : QFrame(window)
    , m_words(new QLabel(this))
    , m_next(new QPushButton(tr("Next lesson"), this))
{
    setObjectName(QStringLiteral("praiseCard"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    QFont pixelFont = font();
    pixelFont.setPixelSize(kFontPixels);
    setFont(pixelFont);
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_words->setFixedWidth(kWordsWidth);
    m_next->setObjectName(QStringLiteral("praiseNextButton"));
    auto *const close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("praiseCloseButton"));
    for (QPushButton *const button : {m_next, close}) {
        // As in the strip: a click leaves the focus where the person works.
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, &QWidget::hide);
    }
    connect(m_next, &QPushButton::clicked, this, &PraiseCard::nextLessonRequested);

    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_next);
    buttons->addWidget(close);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(m_words);
    layout->addLayout(buttons);
    window->installEventFilter(this);
    hide();
}

void PraiseCard::praise(const QString &words, bool hasNextLesson, const QPoint &middle)
{
    m_words->setText(words);
    m_next->setVisible(hasNextLesson);
    setAccessibleName(words);
    layout()->activate();
    adjustSize();
    move(parentWidget()->mapFromGlobal(middle) - rect().center());
    stayInside();
    show();
    raise();
}

bool PraiseCard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        stayInside();
    }
    return QFrame::eventFilter(watched, event);
}

void PraiseCard::stayInside()
{
    const QSize room = parentWidget()->size() - size();
    move(std::clamp(x(), 0, std::max(0, room.width())), std::clamp(y(), 0, std::max(0, room.height())));
}
