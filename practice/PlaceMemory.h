#pragma once

#include <QString>

/// The place of the project that was open last, so that the next run of the editor finds it again.
class PlaceMemory
{
public:
    /// @p file keeps it; without one nothing is kept.
    explicit PlaceMemory(QString file);

    /// The folder that holds the project's; empty while none is known, and when it is there no more.
    [[nodiscard]] QString place() const;
    /// The project in this folder is open now; an empty path is none.
    void take(const QString &projectFolder) const;

private:
    QString m_file;
};
