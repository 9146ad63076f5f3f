#include "SoundTrial.h"

#include "player/scene/Frame.h"
#include "window/EditorWindows.h"

#include <utility>

SoundTrial::SoundTrial(EditorWindows *windows, Make make)
    : m_windows(windows)
    , m_make(std::move(make))
{
    windows->setSoundListener(this);
    connect(windows, &EditorWindows::popped, this, [this](const QString &key) {
        if (key == QLatin1String("AudioSelector")) {
            stop();
        }
    });
}

SoundTrial::~SoundTrial()
{
    m_windows->setSoundListener(nullptr);
}

bool SoundTrial::canBeHeard()
{
    // To look for what plays takes its time: not before somebody chooses a sound.
    if (m_make) {
        m_loudspeaker = std::exchange(m_make, {})();
    }
    return m_loudspeaker != nullptr;
}

void SoundTrial::listen(const QString &kind, const QJsonValue &sound)
{
    if (!canBeHeard()) {
        return;
    }
    player::Frame frame;
    const player::Sound chosen = player::Sound::fromJson(sound);
    m_isPlaying = kind == QLatin1String("music") && !chosen.file.isEmpty();
    if (m_isPlaying) {
        frame.music = chosen;
    } else {
        frame.sounds.append(chosen);
    }
    m_loudspeaker->hear(frame);
}

void SoundTrial::stop()
{
    if (m_isPlaying) {
        m_isPlaying = false;
        m_loudspeaker->hear({});
    }
}
