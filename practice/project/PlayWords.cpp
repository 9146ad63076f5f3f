#include "project/PlayWords.h"

PlayWords::PlayWords(const StartData *start, const DataFiles *files, const RowSources *sources)
    : m_start(start)
    , m_files(files)
    , m_sources(sources)
{
}

void PlayWords::addTo(Commands &commands)
{
    const auto canPlay = [this] {
        return m_play != nullptr && m_files->isOpen();
    };
    commands.add(
        QStringLiteral("play.project"), [this](DataLayer &layer) { play(layer, 0); }, {},
        [canPlay](const DataLayer & /*layer*/, const QString & /*argument*/) { return canPlay(); });
    commands.add(
        QStringLiteral("play.battle"), [this](DataLayer &layer) { play(layer, troop(layer)); }, {},
        [this, canPlay](const DataLayer &layer, const QString & /*argument*/) {
            return canPlay() && troop(layer) > 0;
        });
}

void PlayWords::play(const DataLayer &layer, int troop) const
{
    if (m_play == nullptr || !m_files->isOpen()) {
        return;
    }
    PlayRequest request;
    const QStringList names = m_files->names();
    for (const QString &name : names) {
        request.files.insert(name, layer.file(name));
    }
    request.folder = m_files->folder();
    request.troop = troop;
    request.start = m_start;
    m_play(request);
}

int PlayWords::troop(const DataLayer &layer) const
{
    return m_sources->number(QStringLiteral("data/Troops"), layer);
}
