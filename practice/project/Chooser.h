#pragma once

#include "project/Commands.h"
#include "project/Fields.h"

/// What a window that chooses something is to choose it for: a picture for an enemy, a switch for a
/// condition. The window that opens it says so by "choose.into PATH KIND". The place that the path means at
/// that moment is the root "choice" in the layer of the window that was opened; "choice.kind" is what is to
/// be chosen there.
class Chooser
{
public:
    /// @p sources outlive the chooser.
    explicit Chooser(const RowSources *sources);

    /// Adds the command "choose.into", the field "choice.kind", the root "choice" and, for places that hold a
    /// number, the list "choice.number", whose one row is the entry with it.
    void addTo(Commands &commands, Fields &fields, RowSources &sources);

private:
    void chooseInto(DataLayer &layer, const CommandCall &call) const;

    const RowSources *m_sources;
};
