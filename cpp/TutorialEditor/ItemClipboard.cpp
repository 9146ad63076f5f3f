#include "TutorialEditor/ItemClipboard.h"

#include "TutorialEditor/CopySubtree.h"
#include "TutorialEditor/ItemIndex.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/ScenarioDocument.h"
#include "TutorialEditor/TutorialItemData.h"
#include "TutorialEditor/UsedValues.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QJsonArray>
#include <QStringList>

#include <memory>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

using Node = TreeItem<TutorialItemData>;

} // namespace

QString ItemClipboard::mimeType()
{
    return QStringLiteral("TutorialItemData/ItemList");
}

QString ItemClipboard::emptyMimeType()
{
    return QStringLiteral("Empty");
}

std::optional<QByteArray> ItemClipboard::copy(ItemTree *document, const QList<int> &ids)
{
    const ItemIndex items(document->items);
    QStringList texts;
    for (const int id : ids) {
        const Node *node = findItem(document, id);
        const QString text = node == nullptr ? QString() : toJson(*node, items);
        if (text.isEmpty()) {
            logWarning(kSource, "TutorialManager::copyTutorialItemList", 1573) << "treeItem not found" << id;
            return std::nullopt;
        }
        texts << text;
    }
    const QByteArray payload =
        (QLatin1String("[ ") + texts.join(QStringLiteral(", ")) + QLatin1String(" ]")).toUtf8();
    logDebug(kSource, "TutorialManager::setMimeData", 1673) << mimeType() << payload.size();
    return payload;
}

QList<int> ItemClipboard::paste(const QByteArray &payload, ScenarioDocument *document,
                                const ScenarioTexts &texts)
{
    logDebug(kSource, "TutorialManager::pasteTutorialItemList", 1621) << payload.size();
    if (payload.isEmpty()) {
        return {};
    }
    const JsonWrapper array(QString::fromUtf8(payload));
    if (!array.isArray()) {
        return {};
    }
    UsedValues used(document->tree()->items);
    QList<int> newIds;
    const QJsonArray elements = array.toArray();
    for (int i = 0; i < elements.size(); ++i) {
        ItemTree source;
        std::unique_ptr<Node> node = createFromJson(JsonWrapper(elements.at(i)), &source.items, texts,
                                                    nullptr, QStringLiteral("Item %1").arg(i + 1));
        if (node == nullptr) {
            continue;
        }
        const int oldId = node->id;
        source.root.children.append(*node);
        node.reset();
        newIds << copySubtree(document, &used, &source, &document->tree()->root, oldId, {});
        // Children of an item that is no folder have no place to go.
        qDeleteAll(source.items);
    }
    logDebug(kSource, "TutorialManager::pasteTutorialItemList", 1649) << newIds;
    return newIds;
}
