#pragma once

#include "player/scene/TalkBox.h"
#include "player/view/Artwork.h"

namespace player {

/// The first page of a message as a game with these data files shows it at its beginning, once all letters
/// are there: before a dark scene, as large as the game's screen fits into @p size, in pixels.
[[nodiscard]] QPixmap messagePreview(const Message &message, const QMap<QString, QJsonValue> &files,
                                     const Artwork::PictureArt &pictures, const QSize &size);

} // namespace player
