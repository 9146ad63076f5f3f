#include "DocumentModel.h"

#include "ModelCommand.h"

#include <algorithm>

namespace {

using Kind = ModelCommand::Kind;

int freeNumber(QList<int> used)
{
    std::sort(used.begin(), used.end());
    int expected = 1;
    int last = 0;
    for (const int number : qAsConst(used)) {
        if (number < 1) {
            continue;
        }
        if (number > expected) {
            return expected;
        }
        last = number;
        ++expected; // by position: a number that stands twice pushes the rest
    }
    return last + 1;
}

QString copyName(const QStringList &names, const QString &base)
{
    if (!names.contains(base)) {
        return base;
    }
    int highest = 0;
    for (const QString &name : names) {
        for (int number = highest + 1; number < 200; ++number) {
            if (name == QStringLiteral("%1(%2)").arg(base).arg(number)) {
                highest = number;
            }
        }
    }
    return QStringLiteral("%1(%2)").arg(base).arg(highest + 1);
}

QString identifier(int translationId)
{
    return QStringLiteral("#%1").arg(translationId);
}

} // namespace

QString DocumentModel::shapeOf(const ModelNode &parent)
{
    QStringList texts;
    for (const ModelNode &node : parent.children) {
        texts << QString::number(node.id) + (node.folder ? QStringLiteral("F") : QString()) +
                     (node.children.empty() ? QString() : QStringLiteral("[%1]").arg(shapeOf(node)));
    }
    return texts.join(QLatin1Char(' '));
}

QString DocumentModel::textOf(const ModelItem &item)
{
    return QStringLiteral("%1 '%2' %3 %4 '%5' '%6' %7")
        .arg(QString::number(item.id), item.name, QString::number(item.translationId),
             QString::number(item.x), item.hint, item.hint2,
             item.showArrow ? QStringLiteral("arrow") : QString());
}

QStringList DocumentModel::itemTexts() const
{
    QStringList texts;
    for (const ModelItemPtr &entry : m_items) {
        texts << textOf(*entry);
    }
    return texts;
}

ModelNode *DocumentModel::find(ModelNode *node, int id)
{
    if (node->id == id) {
        return node;
    }
    for (ModelNode &child : node->children) {
        if (ModelNode *found = find(&child, id)) {
            return found;
        }
    }
    return nullptr;
}

ModelNode *DocumentModel::findParent(ModelNode *node, int id, int *place)
{
    for (std::size_t i = 0; i < node->children.size(); ++i) {
        if (node->children[i].id == id) {
            *place = static_cast<int>(i);
            return node;
        }
        if (ModelNode *found = findParent(&node->children[i], id, place)) {
            return found;
        }
    }
    return nullptr;
}

int DocumentModel::indexOf(const ModelItems &items, int id)
{
    const auto found =
        std::find_if(items.begin(), items.end(), [id](const ModelItemPtr &entry) { return entry->id == id; });
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

ModelItem *DocumentModel::item(int id) const
{
    const int index = indexOf(m_items, id);
    return index < 0 ? nullptr : m_items[static_cast<std::size_t>(index)].get();
}

void DocumentModel::load(const ModelPart &file)
{
    m_root = file.root;
    m_items = file.items;
    m_usedNames.clear();
    for (const ModelItemPtr &entry : m_items) {
        if (!entry->name.isEmpty()) {
            m_usedNames << entry->name;
        }
    }
    nameItems(m_root);
}

void DocumentModel::nameItems(const ModelNode &node)
{
    ModelItem *entry = node.id < 0 ? nullptr : item(node.id);
    if (entry != nullptr && entry->name.isEmpty()) {
        const QString base = node.folder ? QStringLiteral("folder") : QStringLiteral("item");
        int highest = 0;
        for (const QString &name : qAsConst(m_usedNames)) {
            bool number = false;
            const int value = name.startsWith(base) ? name.mid(base.size()).toInt(&number) : 0;
            highest = number ? qMax(highest, value) : highest;
        }
        entry->name = QStringLiteral("%1%2").arg(base).arg(highest + 1, 3, 10, QLatin1Char('0'));
        m_usedNames << entry->name;
    }
    for (const ModelNode &child : node.children) {
        nameItems(child);
    }
}

bool DocumentModel::copyNode(const ModelNode &node, ModelNode *parent, ModelItems *items, bool forFile) const
{
    const ModelItem *entry = item(node.id);
    if (entry == nullptr) {
        return false;
    }
    auto copied = std::make_shared<ModelItem>();
    copied->id = entry->id;
    copied->name = entry->name;
    if (!node.folder) {
        *copied = *entry;
        copied->hint2 = identifier(entry->translationId);
        if (forFile) {
            copied->hint = copied->hint2;
        }
    }
    items->push_back(copied);
    ModelNode copy{node.id, node.folder, {}};
    if (node.folder) {
        for (const ModelNode &child : node.children) {
            copyNode(child, &copy, items, forFile);
        }
    }
    parent->children.push_back(copy);
    return true;
}

void DocumentModel::saveAndLoad()
{
    save();
    ModelPart file{{-1, true, {}}, {}};
    for (const ModelNode &node : m_root.children) {
        copyNode(node, &file.root, &file.items, true);
    }
    load(file);
}

void DocumentModel::save()
{
    m_saved = m_index;
    m_modified = false;
}

void DocumentModel::clear()
{
    m_saved = 0;
    m_steps.clear();
    m_openMacros.clear();
    m_index = 0;
    m_modified = false;
    m_root.children.clear();
    m_items.clear();
}

void DocumentModel::insert(int parentId, int index, const ModelItemPtr &newItem)
{
    const auto command = std::make_shared<ModelCommand>(Kind::kInsert);
    command->parentId = parentId;
    command->index = index;
    command->id = newItem->id;
    command->item = newItem;
    add(command);
}

void DocumentModel::modify(int id, const QString &target, const QVariant &value)
{
    const auto command = std::make_shared<ModelCommand>(Kind::kModify);
    command->id = id;
    command->target = target;
    command->value = value;
    add(command);
}

void DocumentModel::setName(int id, const QString &name)
{
    ModelItem *entry = item(id);
    if (entry->name == name) {
        return;
    }
    if (m_inTransaction) {
        modify(id, QStringLiteral("name"), name);
    } else {
        entry->name = name;
    }
}

bool DocumentModel::copy(const QList<int> &ids)
{
    std::vector<ModelPart> parts;
    for (const int id : ids) {
        const ModelNode *node = find(&m_root, id);
        ModelPart part{{-1, false, {}}, {}};
        if (node == nullptr || !copyNode(*node, &part.root, &part.items, false)) {
            return false;
        }
        parts.push_back(part);
    }
    m_clipboard = parts;
    return true;
}

QList<int> DocumentModel::paste()
{
    m_usedIds.clear();
    m_usedTranslationIds.clear();
    m_usedNames.clear();
    for (const ModelItemPtr &entry : m_items) {
        m_usedIds << entry->id;
        m_usedTranslationIds << entry->translationId;
        m_usedNames << entry->name;
    }
    QList<int> newIds;
    for (const ModelPart &part : m_clipboard) {
        ModelPart source{part.root, {}};
        for (const ModelItemPtr &entry : part.items) {
            source.items.push_back(std::make_shared<ModelItem>(*entry));
        }
        newIds << pasteNode(&source, &m_root, part.root.children.front().id);
    }
    return newIds;
}

int DocumentModel::pasteNode(ModelPart *source, ModelNode *parent, int id)
{
    const ModelNode *found = find(&source->root, id);
    const int place = indexOf(source->items, id);
    if (found == nullptr || place < 0) {
        return -1; // an id that stands twice leads to the first node both times
    }
    const ModelNode node = *found;
    const ModelItemPtr moved = source->items[static_cast<std::size_t>(place)];
    source->items.erase(source->items.begin() + place);
    moved->id = freeNumber(m_usedIds);
    moved->name = copyName(m_usedNames, moved->name);
    moved->translationId = freeNumber(m_usedTranslationIds);
    m_usedIds << moved->id;
    m_usedNames << moved->name;
    m_usedTranslationIds << moved->translationId;
    if (m_inTransaction) {
        insert(parent->id, -1, moved);
    } else {
        parent->children.push_back({moved->id, node.folder, {}});
        m_items.push_back(moved);
    }
    if (node.folder) {
        for (const ModelNode &child : node.children) {
            pasteNode(source, find(&source->root, id), child.id);
        }
    }
    return moved->id;
}
