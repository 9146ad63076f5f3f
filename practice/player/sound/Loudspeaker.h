#pragma once

#include "player/scene/Frame.h"

#include <memory>

namespace player {

/// Lets a game be heard, where the machine can.
class Loudspeaker
{
public:
    Loudspeaker() = default;
    Loudspeaker(const Loudspeaker &) = delete;
    Loudspeaker &operator=(const Loudspeaker &) = delete;
    virtual ~Loudspeaker() = default;

    /// What is heard in this tick. The music goes on as long as it stays the same.
    virtual void hear(const Frame &frame) = 0;
    /// Silence while the game waits.
    virtual void setMuted(bool isMuted) = 0;

    /// nullptr where nothing can be heard: the program was built without Qt Multimedia, or the machine has
    /// nothing to play on.
    [[nodiscard]] static std::unique_ptr<Loudspeaker> make();
};

} // namespace player
