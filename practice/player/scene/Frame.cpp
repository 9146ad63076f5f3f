#include "player/scene/Frame.h"

namespace player {

QString PanelLine::text() const
{
    QString text;
    for (const Run &run : runs) {
        text += run.text;
    }
    return text;
}

QStringList Panel::texts() const
{
    QStringList texts;
    for (const PanelLine &line : lines) {
        texts.append(line.text());
    }
    return texts;
}

const Panel *Frame::list() const
{
    for (int i = int(panels.size()) - 1; i >= 0; --i) {
        // Choices may begin without a current one.
        const bool canChoose = panels.at(i).current >= 0 || panels.at(i).role == QLatin1String("choices");
        if (!panels.at(i).rows.isEmpty() && canChoose) {
            return &panels.at(i);
        }
    }
    return nullptr;
}

const Panel *Frame::panel(const char *role) const
{
    for (int i = int(panels.size()) - 1; i >= 0; --i) {
        if (panels.at(i).role == QLatin1String(role)) {
            return &panels.at(i);
        }
    }
    return nullptr;
}

} // namespace player
