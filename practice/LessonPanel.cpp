#include "LessonPanel.h"

#include "LocaleText.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

LessonPanel::LessonPanel(const QString &locale)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_locale(locale)
    , m_lessons(new QComboBox)
    , m_start(new QPushButton(
          localeText(locale, QStringLiteral("Start"), QStringLiteral("始める"), QStringLiteral("开始"))))
    , m_skip(new QPushButton(localeText(locale, QStringLiteral("Skip step"),
                                        QStringLiteral("この手順を飛ばす"), QStringLiteral("跳过此步"))))
    , m_status(new QLabel)
{
    // As the editor's windows have it, so that the strip is as wide on every desktop.
    QFont pixelFont = font();
    pixelFont.setPixelSize(12);
    setFont(pixelFont);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(
        localeText(locale, QStringLiteral("Lessons"), QStringLiteral("レッスン"), QStringLiteral("课程")));
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
    m_start->setText(localeText(m_locale, QStringLiteral("Start again"), QStringLiteral("最初から"),
                                QStringLiteral("重新开始")));
    m_skip->setEnabled(true);
    tell(localeText(m_locale, QStringLiteral("Step %1 of %2"), QStringLiteral("手順 %1 / %2"),
                    QStringLiteral("第 %1 步，共 %2 步"))
             .arg(number)
             .arg(count));
}

void LessonPanel::showClosed(const QString &windowTitle)
{
    tell(localeText(m_locale, QStringLiteral("Open \"%1\" again, or skip the step."),
                    QStringLiteral("「%1」をもう一度開くか、手順を飛ばしてください。"),
                    QStringLiteral("请重新打开“%1”，或跳过此步。"))
             .arg(windowTitle));
}

void LessonPanel::showFinished()
{
    m_skip->setEnabled(false);
    tell(localeText(m_locale, QStringLiteral("The lesson is finished."),
                    QStringLiteral("レッスンが終わりました。"), QStringLiteral("本课已完成。")));
}

void LessonPanel::showRefused(const QString &lessonName)
{
    m_skip->setEnabled(false);
    tell(localeText(m_locale, QStringLiteral("\"%1\" cannot be opened."),
                    QStringLiteral("「%1」を開けません。"), QStringLiteral("无法打开“%1”。"))
             .arg(titleOf(lessonName)));
}

void LessonPanel::setSilent(bool silent)
{
    m_status->setText(silent ? localeText(m_locale, QStringLiteral("The guide does not answer."),
                                          QStringLiteral("ガイドが応答しません。"),
                                          QStringLiteral("向导没有响应。"))
                             : m_told);
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
