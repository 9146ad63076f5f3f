#include "TutorialEditor/ItemTreeOperations.h"

#include "TutorialEditor/ItemIndex.h"
#include "TutorialEditor/NameNumbers.h"
#include "TutorialEditor/TutorialItemData.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"

#include <algorithm>
#include <functional>
#include <memory>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\ItemTreeOperations.cpp)";

using Node = TreeItem<TutorialItemData>;

} // namespace

Node *findItem(ItemTree *tree, int id)
{
    const std::function<Node *(Node &)> visit = [&visit, id](Node &node) -> Node * {
        if (node.id == id) {
            return &node;
        }
        for (Node &child : node.children) {
            if (Node *found = visit(child)) {
                return found;
            }
        }
        return nullptr;
    };
    return visit(tree->root);
}

Node *findParent(Node *root, int id, int *index)
{
    *index = -1;
    const std::function<Node *(Node &)> visit = [&visit, id, index](Node &node) -> Node * {
        int place = 0;
        for (Node &child : node.children) {
            if (child.id == id) {
                *index = place;
                return &node;
            }
            if (Node *found = visit(child)) {
                return found;
            }
            ++place;
        }
        return nullptr;
    };
    return visit(*root);
}

void removeItem(ItemTree *tree, int id)
{
    int index = -1;
    if (Node *parent = findParent(&tree->root, id, &index)) {
        removeChildAt(&parent->children, index);
    }
}

void removeChildAt(QList<Node> *children, int index)
{
    if (index >= 0 && index < children->size()) {
        children->removeAt(index);
    }
}

TutorialItemData *findData(const QList<TutorialItemData *> *items, int id)
{
    const int index = indexOfData(*items, id);
    return index < 0 ? nullptr : items->at(index);
}

int indexOfData(const QList<TutorialItemData *> &items, int id)
{
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i)->id == id) {
            return i;
        }
    }
    return -1;
}

std::unique_ptr<Node> createFromJson(const JsonWrapper &json, QList<TutorialItemData *> *items,
                                     const ScenarioTexts &texts, QStringList *errors, const QString &place)
{
    const auto report = [errors](const QString &where, const QString &reason) {
        if (errors != nullptr) {
            errors->append(QStringLiteral("%1 is left out: %2").arg(where, reason));
        }
    };
    using Builder = std::function<std::unique_ptr<Node>(const JsonWrapper &, const QString &)>;
    const Builder build = [&](const JsonWrapper &value, const QString &where) -> std::unique_ptr<Node> {
        std::unique_ptr<TutorialItemData> data = TutorialItemData::fromJson(value, texts);
        if (data == nullptr) {
            report(where, QStringLiteral("it is no object with an \"id\""));
            return nullptr;
        }
        auto node = std::make_unique<Node>(data->id, false);
        items->append(data.release());
        const QString folder = QStringLiteral("folder");
        if (value.contains(folder)) {
            node->folder = value[folder].toBool();
        }
        const QString children = QStringLiteral("children");
        if (value.contains(children)) {
            int number = 0;
            const QJsonArray elements = value[children].toArray();
            for (const QJsonValue &element : elements) {
                ++number;
                const auto child =
                    build(JsonWrapper(element), QStringLiteral("%1, child %2").arg(where).arg(number));
                if (child) {
                    node->children.append(*child);
                }
            }
        }
        return node;
    };

    const int before = items->size();
    try {
        return build(json, place);
    } catch (const QString &reason) {
        logWarning(kSource, "TreeItem<class TutorialItemData>::createFromJson", 58) << reason;
        report(place, reason);
    }
    // No node refers to what was read up to there.
    qDeleteAll(items->begin() + before, items->end());
    items->erase(items->begin() + before, items->end());
    return nullptr;
}

QString toJson(const Node &node, const ItemIndex &items)
{
    const std::function<QString(const Node &)> write = [&write, &items](const Node &item) {
        const TutorialItemData *data = items.find(item.id);
        if (data == nullptr) {
            return QString();
        }
        QString extra = QStringLiteral("\"folder\":") + QLatin1String(item.folder ? "true" : "false");
        if (item.folder && !item.children.isEmpty()) {
            QStringList children;
            for (const Node &child : item.children) {
                const QString text = write(child);
                if (!text.isEmpty()) {
                    children << text;
                }
            }
            extra += QLatin1String(",\"children\":[") + children.join(QLatin1Char(',')) + QLatin1Char(']');
        }
        return data->toJson(extra);
    };
    return write(node);
}

int nextFreeNumber(QList<int> list, int start)
{
    std::sort(list.begin(), list.end());
    list.erase(list.begin(), std::lower_bound(list.begin(), list.end(), start));
    if (list.isEmpty()) {
        return start;
    }
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i) > i + start) {
            return i + start;
        }
    }
    return list.last() + 1;
}

QString uniqueName(const QStringList &names, const QString &base, int digits)
{
    bool found = false;
    int highest = 0;
    for (const QString &name : names) {
        if (!found && name == base) {
            found = true;
        } else if (const auto number = digits >= 0 ? suffixNumber(name, base) : bracketNumber(name, base)) {
            highest = qMax(highest, *number);
        }
    }
    if (digits >= 0) {
        return numberedName(base, highest, digits);
    }
    return found || digits == kAlwaysBracket ? bracketedName(base, highest) : base;
}
