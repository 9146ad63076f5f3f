#include "project/StateParts.h"

#include <utility>

void StateParts::add(const QString &name, Save save, Load load)
{
    m_parts.insert(name, {std::move(save), std::move(load)});
}

QJsonObject StateParts::save() const
{
    QJsonObject parts;
    for (auto part = m_parts.cbegin(); part != m_parts.cend(); ++part) {
        parts.insert(part.key(), part->save());
    }
    return parts;
}

void StateParts::load(const QJsonObject &parts) const
{
    for (auto part = m_parts.cbegin(); part != m_parts.cend(); ++part) {
        if (parts.contains(part.key())) {
            part->load(parts.value(part.key()));
        }
    }
}
