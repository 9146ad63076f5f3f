#include "player/sound/MediaLoudspeaker.h"

#include "player/sound/Tunes.h"

#include <QSaveFile>
#include <QUrl>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QAudioDeviceInfo>
#else
#include <QAudioDevice>
#include <QMediaDevices>
#endif

#include <utility>

namespace player {

namespace {

bool canBeHeard()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return !QAudioDeviceInfo::availableDevices(QAudio::AudioOutput).isEmpty();
#else
    return !QMediaDevices::audioOutputs().isEmpty();
#endif
}

QString keyOf(const QString &kind, const Sound &sound)
{
    return QStringLiteral("%1-%2-%3-%4")
        .arg(kind, sound.file, QString::number(sound.pitch), QString::number(sound.pan));
}

double loudness(const Sound &sound)
{
    return qBound(0, sound.volume, 100) / 100.0;
}

} // namespace

std::unique_ptr<Loudspeaker> Loudspeaker::make()
{
    return canBeHeard() ? std::make_unique<MediaLoudspeaker>() : nullptr;
}

void MediaLoudspeaker::hear(const Frame &frame)
{
    if (frame.music != m_asked) {
        if (frame.music.file.isEmpty() && frame.musicFadeTicks > 0 && m_music != nullptr) {
            m_fading = m_music->volume() / frame.musicFadeTicks;
            m_leaving = std::move(m_music);
        }
        change(frame.music);
    }
    if (m_leaving != nullptr) {
        const double rest = m_leaving->volume() - m_fading;
        if (rest > 0) {
            m_leaving->setVolume(rest);
        } else {
            m_leaving.reset();
        }
    }
    for (const Sound &sound : frame.sounds) {
        play(sound);
    }
}

void MediaLoudspeaker::setMuted(bool isMuted)
{
    m_isMuted = isMuted;
    for (QSoundEffect *effect : {m_music.get(), m_leaving.get()}) {
        if (effect != nullptr) {
            effect->setMuted(isMuted);
        }
    }
}

void MediaLoudspeaker::change(const Sound &music)
{
    const Sound before = std::exchange(m_asked, music);
    if (m_music != nullptr && keyOf({}, before) == keyOf({}, music)) {
        m_music->setVolume(loudness(music));
        return;
    }
    m_music.reset();
    if (music.file.isEmpty()) {
        return;
    }
    m_leaving.reset();
    m_music = made(QStringLiteral("music"), music, &Tunes::music);
    if (m_music != nullptr) {
        m_music->setLoopCount(QSoundEffect::Infinite);
        m_music->setMuted(m_isMuted);
        m_music->play();
    }
}

void MediaLoudspeaker::play(const Sound &sound)
{
    if (sound.file.isEmpty()) {
        return;
    }
    std::shared_ptr<QSoundEffect> &effect = m_sounds[keyOf({}, sound)];
    if (effect == nullptr) {
        effect = made(QStringLiteral("sound"), sound, &Tunes::noise);
    }
    if (effect != nullptr) {
        effect->setVolume(loudness(sound));
        effect->play();
    }
}

MediaLoudspeaker::Effect MediaLoudspeaker::made(const QString &kind, const Sound &sound,
                                                QByteArray (*tune)(const Sound &))
{
    // The name may hold what no file can be called.
    const QByteArray name = keyOf(kind, sound).toUtf8().toHex();
    const QString path = m_folder.filePath(QString::fromLatin1(name.right(200)) + QStringLiteral(".wav"));
    if (!QFile::exists(path)) {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(tune(sound)) < 0 || !file.commit()) {
            return nullptr; // a game without sound is still a game
        }
    }
    auto effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(path));
    effect->setVolume(loudness(sound));
    return effect;
}

} // namespace player
