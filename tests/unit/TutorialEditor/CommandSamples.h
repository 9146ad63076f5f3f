#pragma once

#include "TutorialEditor/PropertyHash.h"
#include "TutorialEditor/TutorialItemData.h"

#include <memory>

/// A document to change.
inline constexpr const char *kItems =
    R"([{"id":1,"name":"a","folder":true,"children":[{"id":2,"name":"b"},{"id":3,"name":"c"}]},
                              {"id":4,"name":"d"}])";

/// What a change of one field is made with.
inline PropertyHash target(const char *name)
{
    PropertyHash properties;
    properties.insert(QStringLiteral("target"), QLatin1String(name));
    return properties;
}

inline std::unique_ptr<TutorialItemData> itemWithId(int id)
{
    auto data = std::make_unique<TutorialItemData>();
    data->setId(id);
    return data;
}
