#include "DocumentFixture.h"
#include "DocumentModel.h"
#include "LogCapture.h"
#include "TutorialEditor/InsertTreeItemCommand.h"
#include "TutorialEditor/ItemClipboard.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"
#include "tool/JsonWrapper.h"

#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

namespace {

constexpr int kSequences = 100;
constexpr int kSteps = 120;

/// Runs the same random steps on the document and on the model of it.
class Machine
{
public:
    explicit Machine(quint32 seed)
        : m_random(seed)
    {
        m_fixture.undoRedo().setClock([this] { return QTime(0, 0).addMSecs(m_nowMs); });
    }

    /// What was done last, for a message.
    [[nodiscard]] QString trace() const { return m_trace.join(QLatin1Char('\n')); }

    void step();
    /// Empty, or how the document differs from the model.
    [[nodiscard]] QString difference();

private:
    struct Action
    {
        int weight;
        void (Machine::*run)();
    };

    void load();
    void insert();
    void modify();
    void setName();
    void copy();
    void paste();
    void beginSingle();
    void endSingle();
    void beginSequence();
    void endSequence();
    void setUnmergeable();
    void undo();
    void redo();
    void undoForGood();
    void save();
    void saveAndLoad();
    void clear();

    void note(const QString &text) { m_trace << text; }
    int number(int from, int below) { return m_random.bounded(from, below); }
    [[nodiscard]] int someId();
    ModelNode randomNode(int depth, ModelItems *items, QString *json);

    QRandomGenerator m_random;
    DocumentFixture m_fixture;
    DocumentModel m_model;
    std::optional<QByteArray> m_clipboard;
    QString m_failure;
    QStringList m_trace;
    int m_nowMs = 0;
};

void Machine::step()
{
    static const Action kActions[] = {
        {2, &Machine::load},         {12, &Machine::insert},        {20, &Machine::modify},
        {5, &Machine::setName},      {4, &Machine::copy},           {6, &Machine::paste},
        {10, &Machine::beginSingle}, {12, &Machine::endSingle},     {6, &Machine::beginSequence},
        {8, &Machine::endSequence},  {2, &Machine::setUnmergeable}, {14, &Machine::undo},
        {9, &Machine::redo},         {3, &Machine::undoForGood},    {3, &Machine::save},
        {2, &Machine::saveAndLoad},  {1, &Machine::clear},
    };
    int total = 0;
    for (const Action &action : kActions) {
        total += action.weight;
    }
    int choice = number(0, total);
    for (const Action &action : kActions) {
        choice -= action.weight;
        if (choice < 0) {
            (this->*action.run)();
            return;
        }
    }
}

int Machine::someId()
{
    const QList<TutorialItemData *> &items = m_fixture.tree()->items;
    return items.isEmpty() || number(0, 8) == 0 ? number(-2, 40) : items.at(number(0, items.size()))->id;
}

ModelNode Machine::randomNode(int depth, ModelItems *items, QString *json)
{
    static const QStringList kNames{QString(), QStringLiteral("a"), QStringLiteral("a(1)"),
                                    QStringLiteral("b"), QStringLiteral("item002")};
    const auto item = std::make_shared<ModelItem>();
    ModelNode node;
    node.id = item->id = number(1, 30);
    node.folder = depth < 3 && number(0, 3) == 0;
    item->name = kNames.at(number(0, kNames.size()));
    items->push_back(item);
    *json += QStringLiteral("{\"id\":%1,\"name\":\"%2\"").arg(item->id).arg(item->name);
    if (node.folder) {
        *json += QStringLiteral(",\"folder\":true");
    } else {
        item->translationId = number(1, 20);
        item->x = number(-9, 9);
        item->hint = QStringLiteral("h%1").arg(number(0, 5));
        item->hint2 = QStringLiteral("#%1").arg(item->translationId);
        *json += QStringLiteral(",\"translationId\":%1,\"x\":%2,\"hint\":\"%3\"")
                     .arg(item->translationId)
                     .arg(item->x)
                     .arg(item->hint);
    }
    if (node.folder || (depth < 3 && number(0, 10) == 0)) {
        *json += QStringLiteral(",\"children\":[");
        const int count = number(0, 4);
        for (int i = 0; i < count; ++i) {
            *json += i == 0 ? QString() : QStringLiteral(",");
            node.children.push_back(randomNode(depth + 1, items, json));
        }
        *json += QLatin1Char(']');
    }
    *json += QLatin1Char('}');
    return node;
}

void Machine::load()
{
    ModelPart file{{-1, true, {}}, {}};
    QString json = QStringLiteral("var scenario = [");
    const int count = number(0, 6);
    for (int i = 0; i < count; ++i) {
        json += i == 0 ? QString() : QStringLiteral(",");
        file.root.children.push_back(randomNode(0, &file.items, &json));
    }
    json += QStringLiteral("];");
    note(QStringLiteral("load %1").arg(json));
    if (!m_fixture.load(json.toUtf8()).isEmpty()) {
        m_failure = QStringLiteral("the load reported an error");
    }
    m_model.load(file);
}

void Machine::insert()
{
    const int parent = number(0, 3) == 0 ? -1 : someId();
    const int index = number(-1, 4);
    const int id = number(1, 40);
    note(QStringLiteral("insert %1 into %2 at %3").arg(id).arg(parent).arg(index));
    const JsonWrapper json(QStringLiteral("{\"id\":%1,\"name\":\"new\"}").arg(id));
    const auto item = std::make_shared<ModelItem>();
    item->id = id;
    item->name = QStringLiteral("new");
    item->hint2 = QStringLiteral("#-1");
    insertTreeItem(&m_fixture.document, parent, index, id, TutorialItemData::fromJson(json, m_fixture.texts),
                   QString(), {});
    m_model.insert(parent, index, item);
}

void Machine::modify()
{
    static const QStringList kTargets{QStringLiteral("x"), QStringLiteral("translationId"),
                                      QStringLiteral("hint"), QStringLiteral("showArrow"),
                                      QStringLiteral("nothing")};
    const int id = someId();
    const QString target = kTargets.at(number(0, kTargets.size()));
    const QVariant value = number(0, 10);
    note(QStringLiteral("modify %1 %2 %3").arg(id).arg(target, value.toString()));
    PropertyHash properties;
    properties.insert(QStringLiteral("target"), target);
    m_fixture.undoRedo().addCommand(
        ModifyTutorialItemDataCommand(&m_fixture.document, id, properties, value, QStringLiteral("note"))
            .clone());
    m_model.modify(id, target, value);
}

void Machine::setName()
{
    const int id = someId();
    if (TutorialItemData *data = m_fixture.item(id)) {
        const QString name = QString(QLatin1Char(static_cast<char>('a' + number(0, 4))));
        note(QStringLiteral("name %1 %2").arg(id).arg(name));
        data->setName(name);
        m_model.setName(id, name);
    }
}

void Machine::copy()
{
    QList<int> ids;
    const int count = number(0, 4);
    for (int i = 0; i < count; ++i) {
        ids << qMax(0, someId());
    }
    note(QStringLiteral("copy %1 items").arg(count));
    const auto payload = ItemClipboard::copy(m_fixture.tree(), ids);
    if (m_model.copy(ids) != payload.has_value()) {
        m_failure = QStringLiteral("copying went another way");
    }
    if (payload) {
        m_clipboard = payload;
    }
}

void Machine::paste()
{
    note(QStringLiteral("paste"));
    const QList<int> ids =
        ItemClipboard::paste(m_clipboard.value_or(QByteArray()), &m_fixture.document, m_fixture.texts);
    if (m_model.paste() != ids) {
        m_failure = QStringLiteral("other ids were given");
    }
}

void Machine::beginSingle()
{
    static const int kPauses[] = {0, 500, 999, 1000, 2000};
    m_nowMs += kPauses[number(0, 5)];
    const QString name = number(0, 3) == 0 ? QStringLiteral("other") : QStringLiteral("drag");
    note(QStringLiteral("begin single %1 at %2").arg(name).arg(m_nowMs));
    m_fixture.undoRedo().beginSingle(name);
    m_model.beginSingle(name, m_nowMs);
}

void Machine::endSingle()
{
    note(QStringLiteral("end single"));
    m_fixture.undoRedo().endSingle();
    m_model.endSingle();
}

void Machine::beginSequence()
{
    note(QStringLiteral("begin sequence"));
    m_fixture.undoRedo().beginSequence(QStringLiteral("drag"));
    m_model.beginSequence(QStringLiteral("drag"), m_nowMs);
}

void Machine::endSequence()
{
    note(QStringLiteral("end sequence"));
    m_fixture.undoRedo().endSequence();
    m_model.endSequence();
}

void Machine::setUnmergeable()
{
    note(QStringLiteral("set unmergeable"));
    m_fixture.undoRedo().setUnmergeable();
    m_model.setUnmergeable();
}

void Machine::undo()
{
    note(QStringLiteral("undo"));
    m_fixture.undoRedo().undo();
    m_model.undo();
}

void Machine::redo()
{
    note(QStringLiteral("redo"));
    m_fixture.undoRedo().redo();
    m_model.redo();
}

void Machine::undoForGood()
{
    note(QStringLiteral("undo for good"));
    m_fixture.undoRedo().undoAndMakeUnredoable();
    m_model.undoAndMakeUnredoable();
}

void Machine::save()
{
    if (m_fixture.document.fileName().isEmpty()) {
        return;
    }
    note(QStringLiteral("save"));
    if (!m_fixture.document.save().isEmpty()) {
        m_failure = QStringLiteral("saving failed");
    }
    m_model.save();
}

void Machine::saveAndLoad()
{
    if (m_fixture.document.fileName().isEmpty()) {
        return;
    }
    note(QStringLiteral("save and load"));
    if (!m_fixture.document.save().isEmpty() ||
        !m_fixture.document.setContents(m_fixture.document.fileName()).isEmpty()) {
        m_failure = QStringLiteral("saving and loading failed");
    }
    m_model.saveAndLoad();
}

void Machine::clear()
{
    note(QStringLiteral("clear"));
    m_fixture.document.clear();
    m_model.clear();
}

QString Machine::difference()
{
    QStringList texts;
    for (const TutorialItemData *data : qAsConst(m_fixture.tree()->items)) {
        texts << DocumentModel::textOf(
            {data->id, data->name, data->translationId, data->x, data->hint, data->hint2, data->showArrow});
    }
    const auto compare = [](const char *what, const QString &actual, const QString &expected) {
        return actual == expected ? QString()
                                  : QStringLiteral("%1:\n  is       %2\n  expected %3\n")
                                        .arg(QLatin1String(what), actual, expected);
    };
    const auto flag = [](bool value) {
        return value ? QStringLiteral("true") : QStringLiteral("false");
    };
    const UndoRedo &history = m_fixture.undoRedo();
    return m_failure + compare("tree", m_fixture.shape(), m_model.shape()) +
           compare("items", texts.join(QStringLiteral(" | ")),
                   m_model.itemTexts().join(QStringLiteral(" | "))) +
           compare("canUndo", flag(history.canUndo()), flag(m_model.canUndo())) +
           compare("canRedo", flag(history.canRedo()), flag(m_model.canRedo())) +
           compare("modified", flag(m_fixture.host.modified), flag(m_model.modified()));
}

} // namespace

/// Long random runs through the document, its history and its clipboard. TUTORIAL_TEST_SEED repeats a run.
class tst_DocumentStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomStepsKeepToTheModel();
};

void tst_DocumentStates::randomStepsKeepToTheModel()
{
    const int given = qEnvironmentVariableIntValue("TUTORIAL_TEST_SEED");
    const quint32 seed =
        given != 0 ? static_cast<quint32>(given) : QRandomGenerator::global()->generate() >> 1U;
    qInfo("TUTORIAL_TEST_SEED=%u", seed);
    for (quint32 sequence = 0; sequence < kSequences; ++sequence) {
        QString difference;
        QString trace;
        {
            LogCapture log;
            Machine machine(seed + sequence);
            for (int step = 0; step < kSteps && difference.isEmpty(); ++step) {
                machine.step();
                difference = machine.difference();
                log.clear();
            }
            trace = machine.trace();
        }
        QVERIFY2(
            difference.isEmpty(),
            qPrintable(
                QStringLiteral("TUTORIAL_TEST_SEED=%1\n%2\n%3").arg(seed + sequence).arg(trace, difference)));
    }
}

QTEST_MAIN(tst_DocumentStates)
#include "tst_DocumentStates.moc"
