#include "TutorialEditor/UsedValues.h"

#include "TutorialEditor/TutorialItemData.h"

#include <QStringList>

namespace {

QList<int> numbersOf(const QList<TutorialItemData *> &items, int (*number)(const TutorialItemData &))
{
    QList<int> numbers;
    numbers.reserve(items.size());
    for (const TutorialItemData *data : items) {
        numbers.append(number(*data));
    }
    return numbers;
}

QStringList namesOf(const QList<TutorialItemData *> &items)
{
    QStringList names;
    names.reserve(items.size());
    for (const TutorialItemData *data : items) {
        names.append(data->name);
    }
    return names;
}

} // namespace

UsedValues::UsedValues(const QList<TutorialItemData *> &items)
    : ids(numbersOf(items, [](const TutorialItemData &data) { return data.id; }), 1)
    , names(namesOf(items))
    , translationIds(numbersOf(items, [](const TutorialItemData &data) { return data.translationId; }), 1)
{
}
