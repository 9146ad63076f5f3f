#pragma once

#include <QString>
#include <QVector>

namespace player {

/// Something that could not be done, and the place in the project that asks for it.
struct Problem
{
    /// Name of the data file, such as "data/Map001.json"; empty for what concerns no file.
    QString file;
    /// Number of the map, 0 for none.
    int map = 0;
    /// Number of the event on the map, of the common event or of the troop, 0 for none.
    int event = 0;
    /// Page of the event or troop, from 1, 0 for none.
    int page = 0;
    /// Row of the command in its list, from 1, 0 for none.
    int line = 0;
    QString text;
    /// Number of any other entry of the data file, which the text has the name of; 0 for none.
    int entry = 0;
    /// How often it happened since it was told last; no part of what it is.
    int times = 1;

    /// Place and text in one line.
    [[nodiscard]] QString toString() const;

    /// Whether both are about the same command.
    [[nodiscard]] bool isAtSameLine(const Problem &other) const
    {
        return line > 0 && line == other.line && page == other.page && event == other.event &&
               map == other.map && file == other.file;
    }

    /// Adds it to problems that are to be told: one that is among them already is counted there. False for
    /// that.
    bool addTo(QVector<Problem> *problems) const;

    friend bool operator==(const Problem &left, const Problem &right)
    {
        return left.file == right.file && left.map == right.map && left.event == right.event &&
               left.page == right.page && left.line == right.line && left.entry == right.entry &&
               left.text == right.text;
    }
};

} // namespace player
