#include "project/DataLayer.h"

#include "project/JsonPointer.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QLatin1String kSelected("selected");
const QLatin1String kMarks("marks");

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
    const std::optional<QJsonValue> wanted = JsonPointer::withWay(old, pointer, value);
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

std::optional<DataPlace> DataLayer::mark(const QString &name) const
{
    const auto own = m_marks.constFind(name);
    if (own != m_marks.constEnd()) {
        return *own;
    }
    return m_below != nullptr ? m_below->mark(name) : std::nullopt;
}

void DataLayer::setMark(const QString &name, const DataPlace &place)
{
    m_marks.insert(name, place);
    Q_EMIT changed();
}

QJsonObject DataLayer::saveSelf() const
{
    QJsonObject selected;
    for (auto list = m_selected.cbegin(); list != m_selected.cend(); ++list) {
        selected.insert(list.key(), list.value());
    }
    QJsonObject marks;
    for (auto mark = m_marks.cbegin(); mark != m_marks.cend(); ++mark) {
        marks.insert(mark.key(), QJsonArray{mark->file, mark->pointer});
    }
    return {{kSelected, selected}, {kMarks, marks}};
}

void DataLayer::loadSelf(const QJsonObject &state)
{
    const QJsonObject selected = state.value(kSelected).toObject();
    m_selected.clear();
    for (auto list = selected.begin(); list != selected.end(); ++list) {
        m_selected.insert(list.key(), list.value().toInt());
    }
    const QJsonObject marks = state.value(kMarks).toObject();
    m_marks.clear();
    for (auto mark = marks.begin(); mark != marks.end(); ++mark) {
        const QJsonArray place = mark.value().toArray();
        m_marks.insert(mark.key(), {place.at(0).toString(), place.at(1).toString()});
    }
    Q_EMIT changed();
}
