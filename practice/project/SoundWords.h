#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/RowSources.h"

/// Who lets music and sounds be heard while they are chosen.
class SoundListener
{
public:
    SoundListener() = default;
    SoundListener(const SoundListener &) = delete;
    SoundListener &operator=(const SoundListener &) = delete;
    virtual ~SoundListener() = default;

    /// Whether this machine has something to play on.
    [[nodiscard]] virtual bool canBeHeard() = 0;
    /// Whether there is music that stop() ends; a sound ends by itself.
    [[nodiscard]] virtual bool isPlaying() const = 0;
    /// Lets @p sound be heard, as the data files have it, in place of what was heard before. @p kind is
    /// "music" or "sound".
    virtual void listen(const QString &kind, const QJsonValue &sound) = 0;
    virtual void stop() = 0;
};

/// The commands of a window that chooses music or a sound: "sound.listen" lets it be heard as it is chosen
/// now, "sound.stop" ends that. Both are grey where there is nothing to hear; the field "sound.canBeHeard"
/// tells it.
class SoundWords
{
public:
    /// @p sources and @p fields outlive the words.
    SoundWords(const RowSources *sources, const Fields *fields);

    void addTo(Commands &commands, Fields &fields);

    /// Hands in who plays it; it outlives the words, or nullptr is handed in before it goes.
    void setListener(SoundListener *listener) { m_listener = listener; }

private:
    [[nodiscard]] QJsonValue chosen(const DataLayer &layer) const;

    const RowSources *m_sources;
    const Fields *m_fields;
    SoundListener *m_listener = nullptr;
};
