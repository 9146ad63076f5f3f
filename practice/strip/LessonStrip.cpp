#include "strip/LessonStrip.h"

#include "window/Pictures.h"

#include <QAccessible>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

namespace {

/// As the editor's windows have it, so that the strip is as large on every desktop.
constexpr int kFontPixels = 12;
constexpr int kProgressWidth = 180;
/// Of text that is shown; Japanese and Chinese lines are higher.
constexpr int kTextLines = 3;
constexpr int kMargin = 8;
constexpr int kGap = 6;
/// How many pixels of a picture are one of the strip, for screens of twice the usual resolution.
constexpr int kPictureScale = 2;

QPixmap dragPicture()
{
    QPixmap picture = Pictures::load(QStringLiteral("strip"), QStringLiteral("drag"));
    picture.setDevicePixelRatio(kPictureScale);
    return picture;
}

QHBoxLayout *row()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(kGap);
    return layout;
}

} // namespace

LessonStrip::LessonStrip(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_minutes(new QLabel(this))
    , m_picture(new QLabel(this))
    , m_text(new QLabel(this))
    //: Opens the list of lessons.
    , m_lessons(makeButton("lessonsButton", tr("Lessons…"), 0, &LessonStrip::lessonsRequested))
    , m_startAgain(makeButton("startAgainButton", tr("Start again"), 0, &LessonStrip::startAgainRequested))
    , m_leave(makeButton("leaveButton", tr("Leave lesson"), 0, &LessonStrip::leaveRequested))
    //: One step back.
    , m_back(makeButton("backButton", tr("Back"), Qt::Key_F6, &LessonStrip::backRequested))
    //: As on the button beside the bubble.
    , m_next(makeButton("nextButton", tr("Next"), Qt::Key_F7, &LessonStrip::nextPressed))
    //: As on the button beside the bubble.
    , m_yes(makeButton("yesButton", tr("Yes"), Qt::Key_F8, &LessonStrip::answerYes))
    //: As on the button beside the bubble.
    , m_no(makeButton("noButton", tr("No"), Qt::Key_F9, &LessonStrip::answerNo))
    //: Help: the arrow shows the place again; pressed once more, the step is done for the person.
    , m_help(makeButton("helpButton", tr("Show me"), Qt::Key_F1, &LessonStrip::helpRequested))
    //: Makes everything as it was when the step began.
    , m_putBack(makeButton("putBackButton", tr("Put it back"), 0, &LessonStrip::putBackRequested))
    //: The step is done for the person, and the lesson goes on.
    , m_skip(makeButton("skipButton", tr("Skip step"), 0, &LessonStrip::skipRequested))
    , m_nextLesson(makeButton("nextLessonButton", tr("Next lesson"), 0, &LessonStrip::nextLessonRequested))
{
    setObjectName(QStringLiteral("lessonStrip"));
    QFont pixelFont = font();
    pixelFont.setPixelSize(kFontPixels);
    setFont(pixelFont);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, 0, kMargin, kGap);
    layout->setSpacing(kGap);
    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout->addWidget(line);
    buildTop();
    buildBottom();
    setState(StripState());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QPushButton *LessonStrip::makeButton(const char *objectName, const QString &text, int key,
                                     void (LessonStrip::*pressed)())
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(objectName));
    // A click leaves the focus where the person works; the tab key gets here all the same.
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, pressed] {
        (this->*pressed)();
        Q_EMIT used();
    });
    if (key != 0) {
        const QKeySequence sequence(key);
        button->setText(QStringLiteral("%1 (%2)").arg(text, sequence.toString(QKeySequence::NativeText)));
        auto *shortcut = new QShortcut(sequence, this);
        // In a dialog too.
        shortcut->setContext(Qt::ApplicationShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, button, [button] {
            if (button->isVisible()) {
                button->click();
            }
        });
    }
    return button;
}

void LessonStrip::buildTop()
{
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setObjectName(QStringLiteral("titleLabel"));
    m_title->setTextFormat(Qt::PlainText);
    m_progress->setObjectName(QStringLiteral("lessonProgressBar"));
    m_progress->setAccessibleName(tr("Progress of the lesson"));
    m_progress->setFixedWidth(kProgressWidth);
    m_minutes->setObjectName(QStringLiteral("minutesLabel"));

    QHBoxLayout *top = row();
    top->addWidget(m_title);
    top->addWidget(m_progress);
    top->addWidget(m_minutes);
    top->addStretch();
    for (QPushButton *button : {m_startAgain, m_leave, m_lessons}) {
        top->addWidget(button);
    }
    static_cast<QVBoxLayout *>(layout())->addLayout(top);
}

void LessonStrip::buildBottom()
{
    m_picture->setObjectName(QStringLiteral("dragPicture"));
    m_picture->setPixmap(dragPicture());
    m_picture->setAccessibleName(tr("Picture of dragging: press the mouse button, move, let go"));
    m_text->setObjectName(QStringLiteral("textLabel"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_text->setFixedHeight(kTextLines * m_text->fontMetrics().lineSpacing());

    QHBoxLayout *bottom = row();
    bottom->addWidget(m_picture);
    bottom->addWidget(m_text, 1);
    for (QPushButton *button : {m_putBack, m_help, m_back, m_next, m_yes, m_no, m_nextLesson, m_skip}) {
        bottom->addWidget(button);
    }
    static_cast<QVBoxLayout *>(layout())->addLayout(bottom);
}

void LessonStrip::setState(const StripState &state)
{
    const bool isPlaying = state.phase == StripState::Phase::kPlaying;
    m_title->setText(state.title);
    showProgress(state);
    m_picture->setVisible(isPlaying && state.drags);
    m_startAgain->setVisible(isPlaying);
    m_leave->setVisible(isPlaying);
    m_back->setVisible(isPlaying);
    m_back->setEnabled(state.canGoBack);
    m_next->setVisible(isPlaying && !state.hasYesNo);
    m_next->setEnabled(state.hasNext);
    m_yes->setVisible(isPlaying && state.hasYesNo);
    m_no->setVisible(isPlaying && state.hasYesNo);
    // It may come while someone is about to press the button beside it.
    QSizePolicy policy = m_help->sizePolicy();
    policy.setRetainSizeWhenHidden(state.canPutBack);
    m_help->setSizePolicy(policy);
    m_help->setVisible(isPlaying && state.offersHelp);
    m_putBack->setVisible(isPlaying && state.canPutBack);
    m_skip->setVisible(isPlaying);
    m_nextLesson->setVisible(state.phase == StripState::Phase::kFinished && state.hasNextLesson);
    tell(state.text);
}

QWidget *LessonStrip::putBackButton() const
{
    return m_putBack;
}

void LessonStrip::showProgress(const StripState &state)
{
    const bool isPlaying = state.phase == StripState::Phase::kPlaying && state.steps > 0;
    m_progress->setVisible(isPlaying);
    m_minutes->setVisible(isPlaying);
    if (!isPlaying) {
        return;
    }
    m_progress->setRange(0, state.steps);
    m_progress->setValue(state.step);
    //: How far the lesson is: %1 is the number of the step, %2 how many there are.
    m_progress->setFormat(tr("%1 of %2").arg(state.step).arg(state.steps));
    m_minutes->setText(state.minutesLeft > 1
                           //: How much longer the lesson takes.
                           ? tr("about %1 minutes left").arg(state.minutesLeft)
                           //: How much longer the lesson takes.
                           : tr("about a minute left"));
}

/// Who hears the screen hears a new text at once, wherever the focus is.
void LessonStrip::tell(const QString &text)
{
    if (text == m_text->toolTip()) {
        return;
    }
    // A line break costs a line, of which there are few.
    m_text->setText(QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    // What does not fit can be read here.
    m_text->setToolTip(text);
    // The label has told by itself that its name is another one.
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
