#pragma once

#include "project/events/EventPlace.h"
#include "window/ControlFinder.h"

class DataLayer;
class EditorWindows;

/// Leads a person to a place in the database, or among the event commands: shows the map with the event
/// marked, opens the window in which the commands are changed, and selects page and row there.
class EventPlaces
{
public:
    /// @p windows outlive the places.
    EventPlaces(EditorWindows *windows, const EditorView &view);

    /// False, with nothing done, when there is no such place any more, or while a dialog is open: what is
    /// typed there is not to be lost.
    bool show(const EventPlace &place) const;

private:
    bool showOnMap(const EventPlace &place) const;
    bool showInDatabase(const EventPlace &place) const;
    void selectRow(const QString &list, const EventPlace &place, DataLayer *layer) const;

    EditorWindows *m_windows;
    EditorView m_view;
};
