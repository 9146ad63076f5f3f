#include "project/StateParts.h"

#include <utility>

void StateParts::add(const QString &name, Save save, Load load)
{
    m_parts.insert(name, {std::move(save), std::move(load)});
}

void StateParts::addCopied(const QString &name, Save save, Load load)
{
    add(name, std::move(save), std::move(load));
    m_copied.append(name);
}

QJsonObject StateParts::saveCopied() const
{
    QJsonObject parts;
    for (const QString &name : m_copied) {
        parts.insert(name, m_parts.value(name).save());
    }
    return parts;
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
