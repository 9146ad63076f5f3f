#include "window/ControlFinder.h"

#include "lesson/description/ControlSpots.h"
#include "window/EditorWindow.h"
#include "window/control/MapView.h"
#include "window/control/RowList.h"
#include "window/control/TabRow.h"

#include <QAbstractButton>
#include <QScrollArea>

namespace {

using Kind = WindowDescription::Kind;

QScrollArea *mapArea(QWidget *widget)
{
    auto *area = qobject_cast<QScrollArea *>(widget);
    return area != nullptr && qobject_cast<MapView *>(area->widget()) != nullptr ? area : nullptr;
}

QString plain(QString text)
{
    return text.remove(QLatin1Char('&')).trimmed();
}

} // namespace

ControlFinder::ControlFinder(const EditorView &view)
    : m_view(view)
{
}

std::optional<ControlSpot> ControlFinder::controlAt(const QString &windowKey, const QPoint &point) const
{
    const bool isMenu = windowKey == m_view.descriptions->popupKey();
    const EditorWindow *const popup = m_view.popup();
    std::optional<ControlSpot> found;
    const QVector<ControlSpot> spots = controlsAt(*m_view.descriptions, windowKey, point);
    for (const ControlSpot &spot : spots) {
        if (isMenu) {
            if (popup != nullptr && spot.control.startsWith(popup->key() + QLatin1Char('/'))) {
                return spot;
            }
            continue;
        }
        const QWidget *const widget = widgetOf(spot);
        if (widget != nullptr && (!found || widget->isVisible())) {
            found = spot;
        }
    }
    return found;
}

QWidget *ControlFinder::widgetOf(const ControlSpot &spot) const
{
    const bool isEntry = spot.windowKey == m_view.descriptions->popupKey();
    EditorWindow *const window =
        m_view.window(isEntry ? spot.control.section(QLatin1Char('/'), 0, 0) : spot.windowKey);
    const QString name = isEntry ? spot.control.section(QLatin1Char('/'), 1) : spot.control;
    return window != nullptr ? window->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly) : nullptr;
}

QWidget *ControlFinder::targetOf(const ControlSpot &spot) const
{
    QWidget *const widget = widgetOf(spot);
    if (const QScrollArea *const area = mapArea(widget)) {
        return area->widget();
    }
    auto *scrolled = qobject_cast<QAbstractScrollArea *>(widget);
    return scrolled != nullptr ? scrolled->viewport() : widget;
}

QWidget *ControlFinder::menu() const
{
    return m_view.popup();
}

bool ControlFinder::isUsable(const ControlSpot &spot) const
{
    const EditorWindow *const popup = m_view.popup();
    if (spot.windowKey == m_view.descriptions->popupKey()) {
        return popup != nullptr && spot.control.startsWith(popup->key() + QLatin1Char('/'));
    }
    const WindowDescription &window = (*m_view.descriptions)[spot.windowKey];
    const QString key = window.kind == Kind::kPart ? window.owner : spot.windowKey;
    return !m_view.stack->isEmpty() && m_view.stack->constLast() == key;
}

QRect ControlFinder::partRect(const ControlSpot &spot, const QWidget *target) const
{
    QWidget *const widget = widgetOf(spot);
    if (spot.part < 0) {
        return target->rect();
    }
    if (const auto *const list = qobject_cast<RowList *>(widget)) {
        const QListWidgetItem *const item = list->item(spot.part);
        return item != nullptr ? list->visualItemRect(item) : QRect();
    }
    if (const auto *const tabs = qobject_cast<QTabBar *>(widget)) {
        return tabs->tabRect(spot.part);
    }
    if (mapArea(widget) != nullptr) {
        const int pixels = m_view.project->tools().cellPixels();
        const QPoint cell(ControlSpot::columnOf(spot.part), ControlSpot::rowOf(spot.part));
        const QRect rect(cell * pixels, QSize(pixels, pixels));
        return target->rect().contains(rect.center()) ? rect : QRect();
    }
    return target->rect();
}

std::optional<QRect> ControlFinder::rectOf(const ControlSpot &spot) const
{
    const QWidget *const widget = widgetOf(spot);
    const QWidget *const target = targetOf(spot);
    if (target == nullptr || !target->isVisible() || !target->isEnabled() || !isUsable(spot)) {
        return {};
    }
    const QRect part = partRect(spot, target);
    const QRect rect(target->mapToGlobal(part.topLeft()), part.size());
    const QRect whole(widget->mapToGlobal(QPoint()), widget->size());
    // Of the whole map that part which shows.
    const QRect seen = spot.part < 0 ? rect & whole : rect;
    if (part.isEmpty() || !whole.contains(seen.center())) {
        return {};
    }
    const EditorWindow *const popup = m_view.popup();
    const bool isCovered =
        popup != nullptr && popup != widget->window() && popup->geometry().contains(seen.center());
    return isCovered ? std::nullopt : std::optional(seen);
}

void ControlFinder::reveal(const ControlSpot &spot) const
{
    QWidget *const widget = widgetOf(spot);
    if (spot.part < 0 || widget == nullptr) {
        return;
    }
    if (auto *const list = qobject_cast<RowList *>(widget)) {
        list->scrollToItem(list->item(spot.part));
    } else if (QScrollArea *const area = mapArea(widget)) {
        const QRect rect = partRect(spot, area->widget());
        area->ensureVisible(rect.center().x(), rect.center().y(), rect.width(), rect.height());
    }
}

QString ControlFinder::meaningOf(const ControlSpot &spot) const
{
    QWidget *const widget = widgetOf(spot);
    if (widget == nullptr || !widget->parentWidget()->isVisible()) {
        return {};
    }
    if (!widget->isVisible()) {
        return QStringLiteral("hidden");
    }
    if (!widget->isEnabled()) {
        return QStringLiteral("grey");
    }
    if (const auto *const list = qobject_cast<RowList *>(widget)) {
        const QListWidgetItem *const item = list->item(spot.part);
        return QStringLiteral("row ") + (item != nullptr ? item->text() : QString());
    }
    if (mapArea(widget) != nullptr) {
        const EditorTools &tools = m_view.project->tools();
        return QStringLiteral("map %1 tool %2 layer %3 tile %4 mode %5")
            .arg(m_view.project->board().number())
            .arg(static_cast<int>(tools.tool()))
            .arg(tools.layer())
            .arg(tools.tile())
            .arg(tools.isEventMode() ? 1 : 0);
    }
    return QStringLiteral("shown");
}

QVector<ControlSpot> ControlFinder::chosen() const
{
    QVector<ControlSpot> spots;
    for (const QString &key : *m_view.stack) {
        addChosen(key, &spots);
        const QStringList keys = m_view.descriptions->keys();
        for (const QString &part : keys) {
            const WindowDescription &description = (*m_view.descriptions)[part];
            if (description.kind == Kind::kPart && description.owner == key) {
                addChosen(part, &spots);
            }
        }
    }
    return spots;
}

void ControlFinder::addChosen(const QString &key, QVector<ControlSpot> *spots) const
{
    for (const ControlDescription &control : (*m_view.descriptions)[key].controls) {
        const ControlSpot spot{key, control.name};
        const QWidget *const widget = widgetOf(spot);
        if (widget == nullptr || !widget->isVisible()) {
            continue;
        }
        if (const auto *const tabs = qobject_cast<const QTabBar *>(widget)) {
            spots->append({key, control.name, tabs->currentIndex()});
        } else if (const auto *const list = qobject_cast<const RowList *>(widget)) {
            if (list->currentRow() >= 0) {
                spots->append({key, control.name, list->currentRow()});
            }
        } else if (const auto *const button = qobject_cast<const QAbstractButton *>(widget)) {
            if (control.type == QLatin1String("toolButton") && button->isChecked()) {
                spots->append(spot);
            }
        }
    }
}

QString ControlFinder::nameOf(const ControlSpot &spot) const
{
    const QWidget *const widget = widgetOf(spot);
    if (widget == nullptr) {
        return {};
    }
    QString name;
    if (const auto *const list = qobject_cast<const RowList *>(widget)) {
        const QListWidgetItem *const item = spot.part >= 0 ? list->item(spot.part) : nullptr;
        name = item != nullptr ? item->text().trimmed() : QString();
    } else if (const auto *const tabs = qobject_cast<const QTabBar *>(widget)) {
        name = plain(tabs->tabText(spot.part));
    } else if (const auto *const button = qobject_cast<const QAbstractButton *>(widget)) {
        name = plain(button->text());
    }
    if (name.isEmpty()) {
        name = widget->accessibleName();
    }
    return name.isEmpty() && (*m_view.descriptions).contains(spot.windowKey)
               ? (*m_view.descriptions)[spot.windowKey].title.value(m_view.locale)
               : name;
}
