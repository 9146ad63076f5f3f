#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/StartData.h"

/// Where something happens: the place on a map that is chosen in a window of its own, and the way that a
/// movement route takes. Both are begun with the paths of what they change.
///
///     place.begin command/1 command/2 command/3 command/4     map, column, row; the direction where asked
///     place.begin - command/2 command/3                       the same on the map on show
///     route.begin command/1 command/0                         a route; who takes it where asked
///
/// The root "place" of paths is then what is chosen, "route" the route.
class PlaceWords
{
public:
    /// Both outlive the words.
    PlaceWords(const StartData *start, const RowSources *sources);

    /// @p fields outlive the words, too.
    void addTo(Commands &commands, Fields &fields, RowSources &sources);

private:
    void addRoutes(Commands &commands, Fields &fields, RowSources &sources);
    void beginPlace(const QString &paths, const Fields &fields, DataLayer &layer) const;
    static void acceptPlace(const Fields &fields, DataLayer &layer);
    void beginRoute(const QString &paths, DataLayer &layer) const;
    /// The cell where who takes the route stands: the player at first, or, where the game begins on another
    /// map, at the event. The middle of the map where there is no event.
    [[nodiscard]] QPoint startOfRoute(const DataLayer &layer) const;
    [[nodiscard]] QVector<Row> targets(const DataLayer &layer) const;

    const StartData *m_start;
    const RowSources *m_sources;
};
