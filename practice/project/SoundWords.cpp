#include "project/SoundWords.h"

SoundWords::SoundWords(const RowSources *sources, const Fields *fields)
    : m_sources(sources)
    , m_fields(fields)
{
}

void SoundWords::addTo(Commands &commands, Fields &fields)
{
    fields.add(QStringLiteral("sound.canBeHeard"), [this](const DataLayer & /*layer*/) {
        return QVariant(m_listener != nullptr && m_listener->canBeHeard());
    });
    commands.add(
        QStringLiteral("sound.listen"),
        [this](DataLayer &layer) {
            if (m_listener != nullptr) {
                m_listener->listen(m_fields->value(QStringLiteral("choice.kind"), layer).toString(),
                                   chosen(layer));
            }
        },
        {},
        [this](const DataLayer &layer, const QString & /*argument*/) {
            return m_listener != nullptr && m_listener->canBeHeard() &&
                   !chosen(layer)[QStringLiteral("file")].toString().isEmpty();
        });
    commands.add(
        QStringLiteral("sound.stop"),
        [this] {
            if (m_listener != nullptr) {
                m_listener->stop();
            }
        },
        {},
        [this](const DataLayer & /*layer*/, const QString & /*argument*/) {
            return m_listener != nullptr && m_listener->isPlaying();
        });
}

QJsonValue SoundWords::chosen(const DataLayer &layer) const
{
    const std::optional<DataPlace> place = m_sources->place(QStringLiteral("choice"), layer);
    return place ? layer.value(place->file, place->pointer) : QJsonValue();
}
