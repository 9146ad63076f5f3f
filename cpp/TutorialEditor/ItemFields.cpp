#include "TutorialEditor/ItemFields.h"

#include "tool/JsonWrapper.h"

#include <algorithm>
#include <type_traits>

namespace {

using Number = ItemField::Number;
using Text = ItemField::Text;
using Flag = ItemField::Flag;

// The length is given as only g++ can count it while it compiles.
constexpr ItemFields kFields{{
    {"translationId", Number{&ItemValues::translationId, -1}},
    {"x", Number{&ItemValues::x, -9999}},
    {"y", Number{&ItemValues::y, -9999}},
    {"windowKey", Text{&ItemValues::windowKey, {}}, "followWindow"},
    {"condition", Text{&ItemValues::condition, {}}},
    {"hint", Text{&ItemValues::hint, {}}},
    {"hint2", Text{&ItemValues::hint2, {}}},
    {"icon", Text{&ItemValues::icon, QLatin1String("click", 5)}},
    {"jump", Number{&ItemValues::jump, -1}},
    {"jumpNo", Number{&ItemValues::jumpNo, -1}},
    {"command", Text{&ItemValues::command, {}}},
    {"showArrow", Flag{&ItemValues::showArrow, true}},
    {"prohibited", Flag{&ItemValues::prohibited, false}, nullptr, true},
}};

void readValue(const JsonWrapper &json, int *value)
{
    *value = json.toInt();
}

void readValue(const JsonWrapper &json, QString *value)
{
    *value = json.toString();
}

void readValue(const JsonWrapper &json, bool *value)
{
    *value = json.toBool();
}

} // namespace

ItemValues::ItemValues()
{
    for (const ItemField &field : kFields) {
        field.setToStart(this);
    }
}

QVariant ItemField::value(const ItemValues &values) const
{
    return std::visit([&](auto place) { return QVariant::fromValue(values.*(place.member)); }, slot);
}

void ItemField::setValue(ItemValues *values, const QVariant &value) const
{
    std::visit(
        [&](auto place) {
            using Value = std::decay_t<decltype(values->*(place.member))>;
            values->*(place.member) = value.value<Value>();
        },
        slot);
}

void ItemField::setToStart(ItemValues *values) const
{
    std::visit(
        [&](auto place) {
            using Value = std::decay_t<decltype(values->*(place.member))>;
            values->*(place.member) = Value(place.start);
        },
        slot);
}

void ItemField::read(const JsonWrapper &json, ItemValues *values) const
{
    std::visit([&](auto place) { readValue(json, &(values->*(place.member))); }, slot);
}

bool ItemField::is(QString ItemValues::*member) const
{
    const Text *text = std::get_if<Text>(&slot);
    return text != nullptr && text->member == member;
}

const ItemFields &itemFields()
{
    return kFields;
}

const ItemField *findItemField(const QString &key)
{
    const auto *const found = std::find_if(kFields.begin(), kFields.end(), [&key](const ItemField &field) {
        return key == QLatin1String(field.key);
    });
    return found == kFields.end() ? nullptr : found;
}
