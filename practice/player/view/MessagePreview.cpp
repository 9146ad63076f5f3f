#include "player/view/MessagePreview.h"

#include "player/game/GameReader.h"
#include "player/scene/NewGame.h"
#include "player/view/PanelPainter.h"

#include <QPainter>

namespace player {

namespace {

const QColor kScene(0x2c, 0x3a, 0x4c);

} // namespace

QPixmap messagePreview(const Message &message, const QMap<QString, QJsonValue> &files,
                       const Artwork::PictureArt &pictures, const QSize &size)
{
    GameSettings settings;
    settings.start = StartWith::kMap;
    const std::unique_ptr<Game> game = newGame(GameReader::read(files, {}), settings);
    TalkBox box;
    box.say(message);
    box.finishPage(*game);
    Frame frame;
    box.show(*game, &frame);

    QPixmap picture(size);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    const ScreenScale scale = ScreenScale::fit(size);
    painter.translate(scale.corner);
    painter.fillRect(QRect(QPoint(), scale.size()), kScene);
    Artwork artwork({}, pictures);
    PanelPainter(&artwork).paintAll(&painter, frame.panels, scale, 0);
    return picture;
}

} // namespace player
