#include "project/Fields.h"

#include <utility>

Fields::Fields(const RowSources *sources)
    : m_sources(sources)
{
}

void Fields::add(const QString &name, Read read, Write write)
{
    m_fields.insert(name, {std::move(read), std::move(write)});
}

QString Fields::problemOf(const QString &name) const
{
    if (!m_fields.contains(name) && m_sources->isPath(name)) {
        return m_sources->problemOfPath(name);
    }
    return m_fields.contains(name)
               ? QString()
               : QStringLiteral("\"%1\" is unknown; use a path in the data files, such as "
                                "data/Items/{items}/price, or one of: %2")
                     .arg(name, names().join(QStringLiteral(", ")));
}

QVariant Fields::value(const QString &name, const DataLayer &layer) const
{
    const auto field = m_fields.constFind(name);
    if (field != m_fields.constEnd()) {
        return field->read(layer);
    }
    const std::optional<DataPlace> place = m_sources->place(name, layer);
    return place ? layer.value(place->file, place->pointer).toVariant() : QVariant();
}

void Fields::setValue(const QString &name, const QVariant &value, DataLayer &layer) const
{
    const auto field = m_fields.constFind(name);
    if (field != m_fields.constEnd() && field->write) {
        field->write(layer, value);
    } else if (const std::optional<DataPlace> place = m_sources->place(name, layer)) {
        layer.set(place->file, place->pointer,
                  value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue(QJsonValue::Undefined));
    }
}

void Fields::choose(const QString &name, const Row &row, DataLayer &layer) const
{
    const QLatin1String nameOfMember("/@name");
    const QJsonValue chosen = row.chosen();
    if (row.start.isUndefined() || !name.endsWith(nameOfMember)) {
        setValue(name, chosen.toVariant(), layer);
    } else if (value(name, layer).toString() != chosen.toString()) {
        setValue(name.chopped(nameOfMember.size()), QVariantMap{{chosen.toString(), row.start.toVariant()}},
                 layer);
    }
}
