#include "project/DataLayer.h"

#include "project/JsonPointer.h"

namespace {

QString selectedMember()
{
    return QStringLiteral("selected");
}

} // namespace

DataLayer::DataLayer(DataLayer *below, QObject *parent)
    : QObject(parent)
    , m_below(below)
{
}

QJsonValue DataLayer::value(const QString &name, const QString &pointer) const
{
    return JsonPointer::value(file(name), pointer);
}

bool DataLayer::set(const QString &name, const QString &pointer, const QJsonValue &value)
{
    const QJsonValue old = file(name);
    const std::optional<QJsonValue> wanted = JsonPointer::with(old, pointer, value);
    if (!wanted || (old.isUndefined() && !pointer.isEmpty())) {
        return false;
    }
    change({{name, *wanted}}, name + pointer);
    return true;
}

int DataLayer::selected(const QString &list) const
{
    const auto own = m_selected.constFind(list);
    if (own != m_selected.constEnd()) {
        return *own;
    }
    return m_below != nullptr ? m_below->selected(list) : -1;
}

void DataLayer::select(const QString &list, int number)
{
    m_selected.insert(list, number);
    Q_EMIT changed();
}

QJsonObject DataLayer::saveSelf() const
{
    QJsonObject selected;
    for (auto list = m_selected.cbegin(); list != m_selected.cend(); ++list) {
        selected.insert(list.key(), list.value());
    }
    return {{selectedMember(), selected}};
}

void DataLayer::loadSelf(const QJsonObject &state)
{
    const QJsonObject selected = state.value(selectedMember()).toObject();
    m_selected.clear();
    for (auto list = selected.begin(); list != selected.end(); ++list) {
        m_selected.insert(list.key(), list.value().toInt());
    }
    Q_EMIT changed();
}
