#pragma once

#include "../ProjectFixture.h"

/// A project with its first map on show and @p cell marked.
inline void begin(ProjectRoom &room, const QPoint &cell)
{
    room.create();
    room.choose("maps", 0);
    room.project.board().setCursor(cell);
}

/// An event that has been made on the cell by its window.
inline void makeEvent(ProjectRoom &room, const QPoint &cell)
{
    room.project.board().setCursor(cell);
    DataLayer *draft = room.project.drafts().begin();
    room.run("event.edit");
    room.run("draft.accept");
    room.project.drafts().drop(draft);
}

inline constexpr auto kList = "data/Map{maps}/events/{events}/pages/{eventPages}/list";
