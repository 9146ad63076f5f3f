#include "TutorialEditor/Manager.h"

#include "Tutorial/localisation/ScenarioTexts.h"
#include "TutorialEditor/ItemIndex.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"
#include "TutorialEditor/ScenarioSource.h"
#include "TutorialEditor/ScenarioWriter.h"
#include "TutorialEditor/TutorialItemData.h"
#include "TutorialEditor/UsedNames.h"
#include "tool/DataSupport.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"

#include <QFile>
#include <QJsonArray>

#include <functional>
#include <memory>
#include <utility>

namespace TutorialEditor {

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\Manager.cpp)";
constexpr int kNameDigits = 3;

using Node = TreeItem<TutorialItemData>;

Manager *theInstance = nullptr;

} // namespace

Manager::Manager(const ScenarioTexts *texts, HistorySource history)
    : ScenarioDocument(std::move(history))
    , m_texts(texts)
{
    logDebug(kSource, "TutorialEditor::Manager::Manager", 276);
    theInstance = this;
}

Manager::~Manager()
{
    logDebug(kSource, "TutorialEditor::Manager::~Manager", 284);
    theInstance = nullptr;
}

Manager *Manager::instance()
{
    return theInstance;
}

QStringList Manager::setContents(const QString &fileName)
{
    const char *function = "TutorialEditor::Manager::setContents";
    logDebug(kSource, function, 302) << fileName;
    m_fileName = fileName;

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        logWarning(kSource, function, 307) << "Failed to open" << fileName << file.errorString();
        return {};
    }
    const QByteArray bytes = file.readAll();
    // With its size: without, the text would end at a zero byte, and what is behind it would be lost.
    QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    text = scenarioArray(withoutLineComments(withoutBlockComments(text)));

    QStringList errors;
    logDebug(kSource, function, 349) << text.size();
    text = m_texts->translateScript(text, &errors);
    logDebug(kSource, function, 352) << text;

    dropItems();
    readItems(text, &errors);
    nameItems();
    if (!errors.isEmpty()) {
        logWarning(kSource, function, 395) << errors;
    }
    return errors;
}

void Manager::getJsonText(int level, TreeItem<TutorialItemData> *parent, QList<TutorialItemData *> *items,
                          QString *out, bool compact, bool translated)
{
    ScenarioWriter(*items, compact, translated).write(level, *parent, out);
}

QString Manager::getScenario(bool translated)
{
    QString text;
    getJsonText(0, &tree()->root, &tree()->items, &text, false, translated);
    logDebug(kSource, "TutorialEditor::Manager::getScenario", 414) << translated << text.size();
    while (text.endsWith(QLatin1Char('\r')) || text.endsWith(QLatin1Char('\n'))) {
        text.chop(1);
    }
    return QLatin1String("var scenario = ") + text + QLatin1Char(';');
}

QString Manager::save()
{
    const QString text = getScenario(true);
    logDebug(kSource, "TutorialEditor::Manager::save", 431) << m_fileName;
    if (m_fileName.isEmpty()) {
        return tr("Tutorial not loaded yet.");
    }
    if (!DataSupport::writeFile(m_fileName, QByteArrayLiteral("\xEF\xBB\xBF") + text.toUtf8())) {
        return tr("Failed to save.");
    }
    if (UndoHistory *present = history()) {
        present->markSaved();
    }
    return {};
}

void Manager::clear()
{
    if (UndoHistory *present = history()) {
        present->clear();
    }
    dropItems();
    tree()->root.id = -1;
    tree()->root.folder = true;
}

bool Manager::recordName(const TutorialItemData &item, const QString &name)
{
    UndoHistory *present = history();
    if (present == nullptr || !present->inTransaction()) {
        return false;
    }
    PropertyHash properties;
    properties.insert(QStringLiteral("target"), QStringLiteral("name"));
    present->addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(this, item.id, properties, name, item.changeNote()));
    return true;
}

void Manager::readItems(const QString &json, QStringList *errors)
{
    const JsonWrapper array(json);
    if (!array.isArray()) {
        errors->append(QStringLiteral("json is not array"));
        return;
    }
    const QJsonArray elements = array.toArray();
    QList<TutorialItemData *> items;
    for (int i = 0; i < elements.size(); ++i) {
        const std::unique_ptr<Node> node = createFromJson(JsonWrapper(elements.at(i)), &items, *m_texts,
                                                          errors, QStringLiteral("Item %1").arg(i + 1));
        if (node != nullptr) {
            tree()->root.children.append(*node);
        }
    }
    for (TutorialItemData *data : std::as_const(items)) {
        addItem(data);
    }
}

void Manager::nameItems()
{
    UsedNames names;
    for (const TutorialItemData *data : std::as_const(tree()->items)) {
        if (!data->name.isEmpty()) {
            names.add(data->name);
        }
    }
    const ItemIndex items(tree()->items);
    const QString folderWord = tr("folder");
    const QString itemWord = tr("item");
    const std::function<void(const Node &)> visit = [&](const Node &node) {
        TutorialItemData *data = node.id >= 0 ? items.find(node.id) : nullptr;
        if (data != nullptr && data->name.isEmpty()) {
            data->name = names.unique(node.folder ? folderWord : itemWord, kNameDigits);
            names.add(data->name);
        }
        for (const Node &child : node.children) {
            visit(child);
        }
    };
    visit(tree()->root);
}

void Manager::dropItems()
{
    tree()->root.children.clear();
    tree()->items.clear();
}

} // namespace TutorialEditor
