#pragma once

#include <QString>
#include <QVector>

/// One thing that is wrong in the lesson library, or worth a note, and where it stands.
struct Finding
{
    enum class Kind {
        kError,
        kNote, ///< does not make the library unsound
    };

    Kind kind = Kind::kError;
    QString file;  ///< relative to the project's root
    int line = 0;  ///< counted from 1; 0 when the finding has no line of its own
    QString item;  ///< id of the scenario item, or the name of a catalogue's context; may be empty
    QString field; ///< name of the field, or the source text of a message; may be empty
    QString text;  ///< what is wrong, and what would mend it where that is not plain

    /// The finding as one line for a terminal: place, item, field, text.
    [[nodiscard]] QString toString() const;
};

using Findings = QVector<Finding>;
