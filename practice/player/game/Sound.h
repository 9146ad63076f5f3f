#pragma once

#include <QJsonObject>
#include <QString>

namespace player {

/// Music or a sound, by the name that the data files have for it; empty is silence.
struct Sound
{
    QString file;
    /// In percent.
    int volume = 100;
    /// In percent.
    int pitch = 100;
    /// -100 left to 100 right.
    int pan = 0;

    [[nodiscard]] static Sound fromJson(const QJsonValue &value);
    [[nodiscard]] QJsonObject toJson() const;

    friend bool operator==(const Sound &left, const Sound &right)
    {
        return left.file == right.file && left.volume == right.volume && left.pitch == right.pitch &&
               left.pan == right.pan;
    }
    friend bool operator!=(const Sound &left, const Sound &right) { return !(left == right); }
};

} // namespace player
