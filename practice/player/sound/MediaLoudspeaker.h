#pragma once

#include "player/sound/Loudspeaker.h"

#include <QHash>
#include <QSoundEffect>
#include <QTemporaryDir>

namespace player {

/// Plays through Qt Multimedia. Tunes become files in a folder that goes with this.
class MediaLoudspeaker : public Loudspeaker
{
public:
    void hear(const Frame &frame) override;
    void setMuted(bool isMuted) override;

private:
    using Effect = std::unique_ptr<QSoundEffect>;

    void change(const Sound &music);
    void play(const Sound &sound);
    /// What plays the sound, ready to begin; nullptr when its file cannot be written.
    [[nodiscard]] Effect made(const QString &kind, const Sound &sound, QByteArray (*tune)(const Sound &));

    QTemporaryDir m_folder;
    Sound m_asked;
    Effect m_music;
    /// Music that fades out, by so much each tick.
    Effect m_leaving;
    double m_fading = 0;
    /// By file, pitch and place: one that is heard again begins anew.
    QHash<QString, std::shared_ptr<QSoundEffect>> m_sounds;
    bool m_isMuted = false;
};

} // namespace player
