#include "player/game/Sound.h"

#include "player/game/JsonRead.h"

namespace player {

Sound Sound::fromJson(const QJsonValue &value)
{
    Sound sound;
    sound.file = JsonRead::text(value, "file");
    sound.volume = qBound(0, JsonRead::number(value, "volume", sound.volume), 100);
    sound.pitch = qBound(50, JsonRead::number(value, "pitch", sound.pitch), 200);
    sound.pan = qBound(-100, JsonRead::number(value, "pan"), 100);
    return sound;
}

QJsonObject Sound::toJson() const
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("volume"), volume},
            {QStringLiteral("pitch"), pitch},
            {QStringLiteral("pan"), pan}};
}

} // namespace player
