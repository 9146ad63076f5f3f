#include "LessonPanel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

LessonPanel::LessonPanel()
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_lessons(new QComboBox)
    , m_start(new QPushButton(tr("Start")))
    , m_skip(new QPushButton(tr("Skip step")))
    , m_status(new QLabel)
{
    // As the editor's windows have it, so that the strip is as wide on every desktop.
    QFont pixelFont = font();
    pixelFont.setPixelSize(12);
    setFont(pixelFont);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(tr("Lessons"));
    m_lessons->setObjectName(QStringLiteral("lessonsComboBox"));
    m_start->setObjectName(QStringLiteral("startButton"));
    m_skip->setObjectName(QStringLiteral("skipButton"));
    m_status->setObjectName(QStringLiteral("statusLabel"));
    m_lessons->setMinimumWidth(280);
    // The longest message takes two lines, which are higher in Japanese and Chinese.
    m_status->setWordWrap(true);
    m_status->setFixedSize(280, 3 * fontMetrics().lineSpacing());
    m_start->setEnabled(false);
    m_skip->setEnabled(false);

    auto *layout = new QHBoxLayout(this);
    for (QWidget *widget : {static_cast<QWidget *>(m_lessons), static_cast<QWidget *>(m_start),
                            static_cast<QWidget *>(m_skip), static_cast<QWidget *>(m_status)}) {
        layout->addWidget(widget);
    }
    connect(m_start, &QPushButton::clicked, this,
            [this] { Q_EMIT lessonChosen(m_lessons->currentData().toString()); });
    connect(m_skip, &QPushButton::clicked, this, &LessonPanel::skipRequested);
}

void LessonPanel::setLessons(const QVector<LessonSession::Lesson> &lessons)
{
    m_lessons->clear();
    for (const LessonSession::Lesson &lesson : lessons) {
        m_lessons->addItem(QStringLiteral("%1. %2").arg(m_lessons->count() + 1).arg(lesson.title),
                           lesson.name);
    }
    m_start->setEnabled(!lessons.isEmpty());
}

void LessonPanel::showStep(const QString &lessonName, int number, int count)
{
    const int row = m_lessons->findData(lessonName);
    if (row >= 0) {
        m_lessons->setCurrentIndex(row);
    }
    m_start->setText(tr("Start again"));
    m_skip->setEnabled(true);
    //: How far the lesson is: %1 is the number of the step, %2 how many there are.
    tell(tr("Step %1 of %2").arg(number).arg(count));
}

void LessonPanel::showClosed(const QString &windowTitle)
{
    //: %1 is the title of a window that the person has closed.
    tell(tr("Open \"%1\" again, or skip the step.").arg(windowTitle));
}

void LessonPanel::showFinished()
{
    m_skip->setEnabled(false);
    tell(tr("The lesson is finished."));
}

void LessonPanel::showRefused(const QString &lessonName)
{
    m_skip->setEnabled(false);
    //: %1 is the title of a lesson.
    tell(tr("\"%1\" cannot be opened.").arg(titleOf(lessonName)));
}

void LessonPanel::setSilent(bool silent)
{
    m_status->setText(silent ? tr("The guide does not answer.") : m_told);
}

void LessonPanel::tell(const QString &text)
{
    m_told = text;
    m_status->setText(text);
}

QString LessonPanel::titleOf(const QString &lessonName) const
{
    const int row = m_lessons->findData(lessonName);
    return row < 0 ? lessonName : m_lessons->itemText(row);
}
