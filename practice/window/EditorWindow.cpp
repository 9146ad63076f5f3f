#include "window/EditorWindow.h"

#include "window/control/PictureBox.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace {

/// Sizes in the descriptions are made for this font, whatever the desktop's own is.
constexpr int kFontPixels = 12;

/// Both keys of the menu, one of which is not the desktop's.
bool isRedo(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

} // namespace

EditorWindow::EditorWindow(const QString &key, const QSize &size, Project *project, QWidget *parent,
                           Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_project(project)
    , m_layer(&project->files())
    , m_size(size)
{
    setObjectName(key);
    if (isWindow()) {
        setFixedSize(size);
    } else {
        resize(size);
    }
    takePixelFont(this);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *left, const QWidget *taken) {
        if ((left != nullptr && isAncestorOf(left)) || (taken != nullptr && isAncestorOf(taken))) {
            update();
        }
    });
    connect(project, &Project::changed, this, [this] {
        if (isVisible()) {
            refresh();
        }
    });
}

void EditorWindow::refresh()
{
    m_shown.clear();
    m_placesLeft.clear();
    m_hidesFocus = false;
    Q_EMIT arranged();
    Q_EMIT refreshed();
    if (m_hidesFocus) {
        focusFirstOf(m_shown);
    }
    const QVector<QWidget *> coming = std::exchange(m_coming, {});
    // What one of them puts into its field refreshes the window in between.
    const QSet<QString> left = m_placesLeft;
    for (QWidget *control : coming) {
        m_placesLeft = left;
        Q_EMIT cameUp(control);
    }
}

void EditorWindow::setAway(QWidget *control, bool isAway)
{
    const QWidget *const focus = QApplication::focusWidget();
    m_hidesFocus =
        m_hidesFocus || (isAway && focus != nullptr && (focus == control || control->isAncestorOf(focus)));
    control->setVisible(!isAway);
    if (isAway) {
        m_away.insert(control);
    } else if (m_away.remove(control)) {
        m_shown.append(control);
    }
}

QString EditorWindow::placeOf(const QString &fieldName) const
{
    const std::optional<DataPlace> place = m_project->sources().place(fieldName, *m_layer);
    return place ? place->file + place->pointer : fieldName;
}

void EditorWindow::tellOfGoing(const QWidget *control, const QString &fieldName)
{
    const QString place = placeOf(fieldName);
    m_gone.insert({control, place}, field(fieldName));
    m_placesLeft.insert(place);
}

EditorWindow::Return EditorWindow::returnOf(const QWidget *control, const QString &fieldName) const
{
    const QString place = placeOf(fieldName);
    const auto kept = m_gone.constFind({control, place});
    return {kept != m_gone.cend() ? std::optional(*kept) : std::nullopt, m_placesLeft.contains(place)};
}

void EditorWindow::takePixelFont(QWidget *widget)
{
    QFont pixelFont = widget->font();
    pixelFont.setPixelSize(kFontPixels);
    widget->setFont(pixelFont);
}

void EditorWindow::add(QWidget *control, const ControlDescription &description)
{
    control->setObjectName(description.name);
    place(control, description.geometry, description.stretch);
    m_controls.append(control);
    // Where it has the focus, the return key is its own and not the default button's.
    if (auto *button = qobject_cast<QPushButton *>(control); button != nullptr && !button->isFlat()) {
        button->setAutoDefault(true);
    }
}

void EditorWindow::place(QWidget *child, const QRect &geometry, const Stretch &stretch)
{
    m_placed.push_back({child, geometry, stretch});
    child->setGeometry(stretch.apply(geometry, size() - m_size));
}

QVector<QPair<QString, QPoint>> EditorWindow::controlPlaces() const
{
    QVector<QPair<QString, QPoint>> places;
    places.reserve(m_controls.size());
    for (const QWidget *control : m_controls) {
        places.append({control->objectName(), control->pos()});
    }
    return places;
}

QVariant EditorWindow::field(const QString &name) const
{
    return m_project->fields().value(name, *m_layer);
}

void EditorWindow::setField(const QString &name, const QVariant &value)
{
    if (isOfUse()) {
        const QScopedValueRollback<QString> now(m_changing, name);
        m_project->fields().setValue(name, value, *m_layer);
    } else if (isVisible()) {
        refresh();
    }
}

void EditorWindow::choose(const QString &name, const Row &row)
{
    if (isOfUse()) {
        const QScopedValueRollback<QString> now(m_changing, name);
        m_project->fields().choose(name, row, *m_layer);
    } else if (isVisible()) {
        refresh();
    }
}

QVector<Row> EditorWindow::rows(const QString &source) const
{
    return m_project->sources().rows(source, *m_layer);
}

int EditorWindow::currentRow(const QString &source) const
{
    return m_project->sources().currentRow(source, *m_layer);
}

void EditorWindow::setCurrentRow(const QString &source, int row)
{
    if (isOfUse()) {
        m_project->sources().setCurrentRow(source, row, *m_layer);
    } else if (isVisible()) {
        refresh();
    }
}

void EditorWindow::run(const QString &command, const QJsonValue &entry)
{
    if (!command.isEmpty()) {
        m_project->run(command, *m_layer, entry);
    }
}

void EditorWindow::report(const QString &type, const QString &target, const QString &value,
                          const ControlSpot &cause)
{
    // A form's controls have the code of their command ahead, which no condition needs.
    Q_EMIT happened(type, target.section(QLatin1Char('/'), -1), value, cause);
}

bool EditorWindow::meets(const QVector<ControlRequirement> &requirements) const
{
    const auto holds = [this](const ControlRequirement &requirement) {
        if (requirement.field.isEmpty()) {
            return requirement.rows.contains(currentRow(requirement.source));
        }
        const QVariant value = field(requirement.field);
        const QJsonValue json =
            value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue(QJsonValue::Undefined);
        return std::any_of(requirement.values.cbegin(), requirement.values.cend(),
                           [&json](const QJsonValue &wished) { return ChoiceSets::isSame(json, wished); });
    };
    return std::all_of(requirements.cbegin(), requirements.cend(), holds);
}

const ControlAction *EditorWindow::chosen(const ControlAction &action) const
{
    const ControlAction *chosen = &action;
    while (chosen != nullptr && !meets(chosen->when)) {
        chosen = chosen->otherwise.get();
    }
    return chosen;
}

void EditorWindow::act(const ControlAction &action, const QPoint &screenPosition, const ControlSpot &cause)
{
    const ControlAction *done = chosen(action);
    if (m_isBlocked || done == nullptr || done->isEmpty()) {
        return;
    }
    const auto loses = [this](const QString &command) {
        return m_project->losesChanges(command);
    };
    if (std::any_of(done->run.cbegin(), done->run.cend(), loses)) {
        Q_EMIT leaveAsked(*done, screenPosition, cause);
        return;
    }
    carryOut(*done, screenPosition, cause);
}

void EditorWindow::carryOut(const ControlAction &action, const QPoint &screenPosition,
                            const ControlSpot &cause)
{
    for (const QString &command : action.run) {
        run(command, action.entry);
    }
    Q_EMIT asked(action, screenPosition, cause);
}

void EditorWindow::setDefaultButton(QPushButton *button)
{
    m_defaultButton = button;
    button->setDefault(true);
    // While another button has the focus, the return key is that one's, and Qt takes the mark away from this
    // one. Outside of a QDialog nobody gives it back afterwards.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget * /*before*/, QWidget *now) {
        if (now != nullptr && isAncestorOf(now)) {
            const auto *pressed = qobject_cast<QPushButton *>(now);
            m_defaultButton->setDefault(pressed == nullptr || pressed == m_defaultButton);
        }
    });
}

void EditorWindow::focusFirst()
{
    focusFirstOf(m_controls);
}

void EditorWindow::focusFirstOf(const QVector<QWidget *> &controls)
{
    QWidget *first = nullptr;
    for (QWidget *control : controls) {
        const bool canBe = (control->focusPolicy() & Qt::TabFocus) != 0 && control->isEnabledTo(this) &&
                           control->isVisibleTo(this) && qobject_cast<QTabBar *>(control) == nullptr;
        // A picture comes after what is typed or chosen: the space bar opens another window there.
        const bool isPicture = qobject_cast<PictureBox *>(first) != nullptr;
        if (canBe && (first == nullptr || isPicture || control == m_firstControl)) {
            first = control;
        }
    }
    if (first == nullptr) {
        return;
    }
    first->setFocus(Qt::TabFocusReason);
    // The window is not the active one yet, so the reason alone selects nothing.
    if (auto *edit = qobject_cast<QLineEdit *>(first)) {
        edit->selectAll();
    } else if (auto *spin = qobject_cast<QAbstractSpinBox *>(first)) {
        spin->selectAll();
    }
}

void EditorWindow::setTimedAction(int ms, const ControlAction &action)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(ms);
    connect(&m_timer, &QTimer::timeout, this, [this, action] { act(action, QPoint()); });
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT closeRequested();
}

void EditorWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_defaultButton != nullptr) {
        m_defaultButton->click();
    } else if (event->key() == Qt::Key_Escape && windowFlags().testFlag(Qt::Dialog)) {
        Q_EMIT closeRequested();
    } else if (m_hasOwnLayer && isOfUse() && event->matches(QKeySequence::Undo)) {
        run(QStringLiteral("draft.undo"));
    } else if (m_hasOwnLayer && isOfUse() && isRedo(*event)) {
        run(QStringLiteral("draft.redo"));
    } else if (!changesTab(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool EditorWindow::changesTab(const QKeyEvent &event)
{
    const bool isBack = event.key() == Qt::Key_Backtab;
    if (!event.modifiers().testFlag(Qt::ControlModifier) || !(isBack || event.key() == Qt::Key_Tab)) {
        return false;
    }
    for (QWidget *control : qAsConst(m_controls)) {
        auto *const tabs = qobject_cast<QTabBar *>(control);
        if (tabs != nullptr && tabs->isVisible() && tabs->isEnabled() && tabs->count() > 1) {
            const int step = isBack ? tabs->count() - 1 : 1;
            tabs->setCurrentIndex((tabs->currentIndex() + step) % tabs->count());
            return true;
        }
    }
    return false;
}

void EditorWindow::paintEvent(QPaintEvent * /*event*/)
{
    // Its time begins when it is seen: a window that goes before the window manager has shown it may leave
    // its frame on the screen.
    if (std::exchange(m_isToBeSeen, false)) {
        m_timer.start();
    }
    QPainter painter(this);
    if (windowFlags().testFlag(Qt::FramelessWindowHint)) {
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    // A list without a frame looks the same with the focus and without.
    const QWidget *const focus = QApplication::focusWidget();
    if (qobject_cast<const QAbstractItemView *>(focus) != nullptr && focus->parentWidget() == this) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(focus->geometry().adjusted(-1, -1, 1, 1));
    }
}

void EditorWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (const Placed &placed : m_placed) {
        placed.widget->setGeometry(placed.stretch.apply(placed.geometry, size() - m_size));
    }
    Q_EMIT laidOut();
}

void EditorWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        m_gone.clear();
    }
    m_isToBeSeen = m_isToBeSeen || (hasTimedAction() && !event->spontaneous());
    refresh();
}

void EditorWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        m_isToBeSeen = false;
        m_timer.stop();
    }
}
