#include "window/EventPlaces.h"

#include "window/EditorWindow.h"
#include "window/EditorWindows.h"

#include <algorithm>
#include <array>

namespace {

using In = EventPlace::In;

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

constexpr int kTroopsTab = 7;
constexpr int kCommonEventsTab = 11;
/// What the tabs of the window with the database have.
constexpr std::array<const char *, 13> kLists = {
    "data/Actors",   "data/Classes",      "data/Skills", "data/Items",  "data/Weapons",
    "data/Armors",   "data/Enemies",      "data/Troops", "data/States", "data/Animations",
    "data/Tilesets", "data/CommonEvents", "data/System"};

/// -1 for a list that has no tab.
int tabOf(const EventPlace &place)
{
    if (place.in == In::kTroops) {
        return kTroopsTab;
    }
    if (place.in == In::kCommonEvents) {
        return kCommonEventsTab;
    }
    const auto list = std::find_if(kLists.cbegin(), kLists.cend(),
                                   [&place](const char *name) { return place.list == QLatin1String(name); });
    return list == kLists.cend() ? -1 : int(list - kLists.cbegin());
}

} // namespace

EventPlaces::EventPlaces(EditorWindows *windows, const EditorView &view)
    : m_windows(windows)
    , m_view(view)
{
}

bool EventPlaces::show(const EventPlace &place) const
{
    if (m_view.stack->size() != 1 || !m_view.project->isOpen()) {
        return false;
    }
    return place.in == In::kMap ? showOnMap(place) : showInDatabase(place);
}

bool EventPlaces::showOnMap(const EventPlace &place) const
{
    Project &project = *m_view.project;
    const QVector<Row> maps = project.sources().rows(str("maps"), project.files());
    const bool isThere =
        std::any_of(maps.cbegin(), maps.cend(), [&place](const Row &row) { return row.number == place.map; });
    if (!isThere) {
        return false;
    }
    project.files().select(str("maps"), place.map);
    const QVector<MapEvents::Event> events = project.board().events();
    const auto event = std::find_if(events.cbegin(), events.cend(), [&place](const MapEvents::Event &one) {
        return one.number == place.event;
    });
    project.run(str("mode.event"), project.files());
    if (event == events.cend()) {
        return true; // the map is what there is to see
    }
    project.board().setCursor(event->cell);
    const QString key = str("EventEditorMain");
    m_windows->open(key);
    EditorWindow *const window = m_view.window(key);
    window->run(str("event.edit"));
    if (place.page > 0) {
        window->setCurrentRow(str("eventPages"), place.page - 1);
    }
    selectRow(str("data/Map{maps}/events/{events}/pages/{eventPages}/list"), place, &window->layer());
    return true;
}

bool EventPlaces::showInDatabase(const EventPlace &place) const
{
    const int tab = tabOf(place);
    if (tab < 0) {
        return false;
    }
    const bool isTroop = place.in == In::kTroops;
    const QString list = str(kLists.at(size_t(tab)));
    Project &project = *m_view.project;
    const bool isEntry = place.in != In::kDatabase || place.event > 0;
    if (isEntry && !project.sources().entry(list, place.event, project.files()).isObject()) {
        return false;
    }
    const QString key = str("DatabaseMain");
    m_windows->open(key);
    EditorWindow *const window = m_view.window(key);
    window->setCurrentRow(str("databaseTab"), tab);
    if (isEntry) {
        window->layer().select(list, place.event);
    }
    if (isTroop && place.page > 0) {
        window->setCurrentRow(str("data/Troops/{troops}/pages"), place.page - 1);
    }
    if (place.in != In::kDatabase) {
        selectRow(isTroop ? str("data/Troops/{troops}/pages/{pages}/list")
                          : str("data/CommonEvents/{commonEvents}/list"),
                  place, &window->layer());
    }
    return true;
}

void EventPlaces::selectRow(const QString &list, const EventPlace &place, DataLayer *layer) const
{
    if (place.line > 0) {
        const QString source = str("commands ") + list;
        const RowSources &sources = m_view.project->sources();
        layer->select(source, place.line - 1);
        // What belongs to a command has no row of its own.
        sources.setCurrentRow(source, sources.currentRow(source, *layer), *layer);
    }
}
