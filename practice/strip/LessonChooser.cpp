#include "strip/LessonChooser.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

/// As the editor's windows have it.
constexpr int kFontPixels = 12;
constexpr QSize kSize(880, 560);
/// Of a row: easy to hit.
constexpr int kRowHeight = 24;

enum Column { kTitle, kTeaches, kLength, kProgress };

} // namespace

LessonChooser::LessonChooser(QWidget *parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
    //: A button: begin the lesson.
    , m_begin(new QPushButton(tr("Start"), this))
    //: A button: go on with the lesson where it was left.
    , m_goOn(new QPushButton(tr("Go on"), this))
{
    setObjectName(QStringLiteral("lessonChooser"));
    setWindowTitle(tr("Lessons"));
    QFont pixelFont = font();
    pixelFont.setPixelSize(kFontPixels);
    setFont(pixelFont);
    m_list->setObjectName(QStringLiteral("lessonsList"));
    m_list->setAccessibleName(tr("Lessons"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setHeaderLabels({tr("Lesson"), tr("What you do in it"),
                             //: Head of a column: how long a lesson takes.
                             tr("Length"),
                             //: Head of a column: how far the person has come in a lesson.
                             tr("Progress")});
    m_begin->setObjectName(QStringLiteral("beginButton"));
    m_goOn->setObjectName(QStringLiteral("goOnButton"));

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(m_goOn, QDialogButtonBox::ActionRole);
    buttons->addButton(m_begin, QDialogButtonBox::ActionRole);
    //: A button: leave the list of lessons.
    QPushButton *const close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("closeButton"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(kSize);

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &LessonChooser::updateButtons);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, [this](const QTreeWidgetItem *item) {
        if (!item->isDisabled()) {
            chooseSelected();
        }
    });
    connect(m_begin, &QPushButton::clicked, this, [this] { Q_EMIT beginRequested(selected().name); });
    connect(m_goOn, &QPushButton::clicked, this, [this] { Q_EMIT goOnRequested(selected().name); });
    updateButtons();
}

void LessonChooser::setEntries(const QVector<LessonCourse::Entry> &entries, const QString &present)
{
    const QString before = m_entries.isEmpty() ? present : selected().name;
    m_entries = entries;
    m_list->clear();
    QTreeWidgetItem *chosen = nullptr;
    QTreeWidgetItem *firstNew = nullptr;
    for (const LessonCourse::Entry &entry : entries) {
        QTreeWidgetItem *item = makeItem(entry);
        m_list->addTopLevelItem(item);
        if (entry.canBePlayed() && entry.name == before) {
            chosen = item;
        }
        if (entry.canBePlayed() && firstNew == nullptr && !entry.progress.isDone) {
            firstNew = item;
        }
    }
    m_list->setCurrentItem(chosen != nullptr ? chosen : firstNew);
    fitColumns();
    updateButtons();
}

QTreeWidgetItem *LessonChooser::makeItem(const LessonCourse::Entry &entry) const
{
    QStringList progress;
    if (entry.progress.isDone) {
        //: The person has played the lesson to its end.
        progress.append(tr("✓ done"));
    }
    if (entry.progress.step > 0) {
        //: The lesson goes on here: %1 is the number of the step, %2 how many there are.
        progress.append(tr("step %1 of %2").arg(entry.progress.step).arg(entry.progress.steps));
    }
    if (!entry.isWritten) {
        //: The lesson does not exist yet.
        progress = QStringList{tr("not there yet")};
    } else if (entry.isRefused) {
        //: The lesson is not in the program.
        progress = QStringList{tr("cannot be opened")};
    }
    //: How long a lesson takes.
    const QString length = entry.minutes > 0 ? tr("%1 min").arg(entry.minutes) : QString();
    auto *item = new QTreeWidgetItem(
        {entry.numberedTitle(), entry.teaches, length, progress.join(QStringLiteral(", "))});
    item->setDisabled(!entry.canBePlayed());
    item->setSizeHint(kTeaches, QSize(0, kRowHeight)); // the one column that is not fitted to its texts
    item->setToolTip(kTeaches, entry.teaches);
    return item;
}

LessonCourse::Entry LessonChooser::selected() const
{
    const QList<QTreeWidgetItem *> items = m_list->selectedItems();
    return items.isEmpty() ? LessonCourse::Entry()
                           : m_entries.value(m_list->indexOfTopLevelItem(items.constFirst()));
}

void LessonChooser::fitColumns()
{
    QHeaderView *const header = m_list->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(kTeaches, QHeaderView::Stretch);
}

void LessonChooser::updateButtons()
{
    const LessonCourse::Entry entry = selected();
    const bool isChosen = entry.canBePlayed() && !entry.name.isEmpty();
    const bool goesOn = entry.progress.step > 0;
    m_goOn->setVisible(goesOn);
    m_goOn->setEnabled(isChosen);
    m_begin->setEnabled(isChosen);
    //: A button: begin the lesson anew.
    m_begin->setText(goesOn || entry.progress.isDone ? tr("Start again") : tr("Start"));
    // The return key presses it, also in the list.
    QPushButton *const usual = goesOn ? m_goOn : m_begin;
    usual->setDefault(true);
}

void LessonChooser::chooseSelected()
{
    QPushButton *const usual = m_goOn->isVisible() ? m_goOn : m_begin;
    usual->click();
}
