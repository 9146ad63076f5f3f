#include "TutorialEditor/ScenarioWriter.h"

#include "TutorialEditor/TutorialItemData.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"

#include <QStringList>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\Manager.cpp)";

QString field(const char *key, const QString &text)
{
    return QLatin1Char('"') + QLatin1String(key) + QLatin1String("\":") + text;
}

QString field(const char *key, const QVariant &value)
{
    return field(key, JsonWrapper::getJsonString(value));
}

} // namespace

ScenarioWriter::ScenarioWriter(const QList<TutorialItemData *> &items, bool compact, bool translated)
    : m_items(items)
    , m_compact(compact)
    , m_translated(translated)
{
}

void ScenarioWriter::write(int level, const TreeItem<TutorialItemData> &parent, QString *out) const
{
    const QString pad = m_compact ? QString() : QString(4 * (level + 1), QLatin1Char(' '));
    const QLatin1String lineEnd(m_compact ? "" : "\n");
    *out += QLatin1Char('[') + lineEnd;
    bool first = true;
    for (const TreeItem<TutorialItemData> &node : parent.children) {
        const TutorialItemData *data = m_items.find(node.id);
        if (data == nullptr) {
            logWarning(kSource, "TutorialEditor::Manager::getJsonText", 462) << "data not found" << node.id;
            continue;
        }
        if (!first) {
            *out += QLatin1String(",\n");
        }
        first = false;
        const QString text = fields(level, node, *data);
        if (m_compact) {
            *out += QLatin1Char('{') + text + QLatin1Char('}');
        } else {
            // The last field ends with the indent, on its own line.
            *out += pad + QLatin1String("{\n") + text + pad + QLatin1Char('\n') + pad + QLatin1Char('}');
        }
    }
    *out += lineEnd + QLatin1Char(']');
}

QString ScenarioWriter::fields(int level, const TreeItem<TutorialItemData> &node,
                               const TutorialItemData &data) const
{
    QStringList texts{field("id", QVariant(data.id)), field("name", QVariant(data.name)),
                      field("folder", QVariant(node.folder))};
    if (node.folder) {
        QString children;
        write(level + 1, node, &children);
        texts << field("children", children);
    } else {
        for (const ItemField &row : itemFields()) {
            if (row.is(&ItemValues::hint) && m_translated) {
                texts << field(row.key, QStringLiteral("qsTr(\"#%1\")").arg(data.translationId));
            } else if (!row.is(&ItemValues::hint2)) {
                texts << field(row.key, row.value(data));
            }
        }
    }
    return texts.join(m_compact ? QStringLiteral(",") : QStringLiteral(",\n"));
}
