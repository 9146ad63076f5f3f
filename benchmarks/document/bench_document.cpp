// Time to load a lesson and to hand it over, per item, for lessons of growing length: it must stay flat, and
// the program fails when the slowest length takes more than kFlatWithin times the fastest.
//
// Then the time of single steps of an author on a document of 10,000 items in a tree of depth 5; the program
// fails when one takes longer than kInteractiveSeconds.

#include "Tutorial/localisation/ScenarioTexts.h"
#include "TutorialEditor/ItemClipboard.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioSource.h"
#include "TutorialEditor/TutorialItemData.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>

namespace {

constexpr double kFlatWithin = 2.0;
constexpr double kInteractiveSeconds = 0.5;
constexpr int kDepth = 5;
constexpr int kItems = 10000;
constexpr int kPasted = 1000;

/// Processor time of @p work: on a busy machine the time on the wall would say more about its neighbours.
double cpuSeconds(const std::function<void()> &work)
{
    const std::clock_t begin = std::clock();
    work();
    return double(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// Log lines are written as ever, and dropped at the door.
void dropLine(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*line*/) {}

QString item(int id)
{
    return QStringLiteral(
               "{\"id\":%1,\"name\":\"item %1\",\"folder\":false,\"translationId\":%2,\"x\":120,\"y\":-40,"
               "\"windowKey\":\"MainWindow\",\"condition\":\"click,\",\"hint\":qsTr(\"#%2\"),"
               "\"icon\":\"click\",\"jump\":-1,\"jumpNo\":-1,\"command\":\"\",\"showArrow\":true,"
               "\"prohibited\":false}")
        .arg(id)
        .arg(id % 137 + 1);
}

QString flatScenario(int count)
{
    QString text = QStringLiteral("var scenario = [");
    for (int id = 1; id <= count; ++id) {
        text += (id == 1 ? QString() : QStringLiteral(",\n")) + item(id);
    }
    return text + QStringLiteral("];");
}

/// Folders of six down to the depth, until @p left items are used up.
QString nestedItems(int depth, int *nextId, int *left)
{
    QString text;
    for (int i = 0; (i < 6 || depth == 1) && *left > 0; ++i) {
        --*left;
        const int id = (*nextId)++;
        text += i == 0 ? QString() : QStringLiteral(",");
        if (depth < kDepth) {
            text +=
                QStringLiteral("{\"id\":%1,\"name\":\"folder %1\",\"folder\":true,\"children\":[").arg(id);
            text += nestedItems(depth + 1, nextId, left) + QStringLiteral("]}");
        } else {
            text += item(id);
        }
    }
    return text;
}

bool load(TutorialEditor::Manager *document, const QString &path, const QString &text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           document->setContents(path).isEmpty();
}

void dropItems(TutorialEditor::Manager *document)
{
    const QList<TutorialItemData *> items = document->tree()->items;
    document->clear();
    qDeleteAll(items);
}

bool growingLessons(TutorialEditor::Manager *document, const ScenarioTexts &texts, const QString &path)
{
    double fastest = std::numeric_limits<double>::max();
    double slowest = 0;
    std::puts("   items  load us/item  hand-over us/item");
    for (const int count : {100, 1000, 10000, 100000}) {
        const int rounds = std::max(1, 20000 / count);
        const QString text = flatScenario(count);
        double loading = 0;
        double handing = 0;
        for (int round = 0; round < rounds; ++round) {
            bool loaded = false;
            loading += cpuSeconds([&] { loaded = load(document, path, text); });
            handing += cpuSeconds([&] {
                QStringList errors;
                const QString handed =
                    texts.translateScript(scenarioArray(document->getScenario(false)), &errors);
                loaded = loaded && errors.isEmpty() && handed.count(QStringLiteral("\"id\":")) == count;
            });
            dropItems(document);
            if (!loaded) {
                std::puts("the lesson did not load");
                return false;
            }
        }
        const double perItem = 1e6 / rounds / count;
        std::printf("%8d  %12.2f  %17.2f\n", count, loading * perItem, handing * perItem);
        fastest = std::min(fastest, (loading + handing) * perItem);
        slowest = std::max(slowest, (loading + handing) * perItem);
    }
    std::printf("slowest to fastest: %.2f, allowed %.2f\n", slowest / fastest, kFlatWithin);
    return slowest <= kFlatWithin * fastest;
}

bool authorsSteps(TutorialEditor::Manager *document, UndoRedo *undoRedo, const QString &path)
{
    int nextId = 1;
    int left = kItems;
    if (!load(document, path, QLatin1Char('[') + nestedItems(1, &nextId, &left) + QLatin1Char(']')) ||
        document->tree()->items.size() != kItems) {
        std::puts("the document did not load");
        return false;
    }
    QString folderText = QStringLiteral("[ {\"id\":1,\"name\":\"item 7\",\"folder\":true,\"children\":[");
    QString listText = QStringLiteral("[ ");
    for (int id = 2; id <= kPasted + 1; ++id) {
        const QString comma = id == 2 ? QString() : QStringLiteral(",");
        const QString text = QStringLiteral("{\"id\":%1,\"name\":\"item 7\",\"translationId\":5}").arg(id);
        folderText += comma + text;
        listText += comma + text;
    }
    folderText += QStringLiteral("]} ]");
    listText += QStringLiteral(" ]");

    bool fast = true;
    const auto measure = [&fast](const char *what, const std::function<void()> &work) {
        const double seconds = cpuSeconds(work);
        std::printf("%-34s %9.3f ms\n", what, seconds * 1e3);
        fast = fast && seconds <= kInteractiveSeconds;
    };
    const auto paste = [&](const QString &text) {
        ItemClipboard::paste(text.toUtf8(), document, document->texts());
    };
    ItemTree *tree = document->tree();
    std::printf("%d items, depth %d\n", kItems, kDepth);
    measure("find every hundredth item", [&] {
        int found = 0;
        for (int id = 1; id <= kItems; id += 100) {
            found += findItem(tree, id) != nullptr && findData(&tree->items, id) != nullptr ? 1 : 0;
        }
        fast = fast && found == kItems / 100;
    });
    QList<int> everyTenth;
    for (int id = 10; id <= kItems; id += 10) {
        everyTenth << id;
    }
    measure("copy every tenth item",
            [&] { fast = ItemClipboard::copy(tree, everyTenth).has_value() && fast; });
    undoRedo->beginSequence(QStringLiteral("paste"));
    measure("paste 1,000 items as one step", [&] { paste(listText); });
    undoRedo->endSequence();
    measure("undo the paste", [&] { undoRedo->undo(); });
    measure("redo the paste", [&] { undoRedo->redo(); });
    measure("undo it again", [&] { undoRedo->undo(); });
    undoRedo->beginSequence(QStringLiteral("paste"));
    measure("paste a folder of 1,000 as one step", [&] { paste(folderText); });
    undoRedo->endSequence();
    measure("undo that", [&] { undoRedo->undo(); });
    const int before = tree->items.size();
    measure("paste 1,000 items", [&] { paste(listText); });
    measure("paste a folder of 1,000", [&] { paste(folderText); });
    fast = fast && before == kItems && tree->items.size() == kItems + 2 * kPasted + 1;
    measure("save", [&] { fast = document->save().isEmpty() && fast; });
    std::printf("allowed for one step: %.0f ms\n", kInteractiveSeconds * 1e3);
    dropItems(document);
    return fast;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    qInstallMessageHandler(dropLine);
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("Lesson.js"));
    ScenarioTexts texts;
    if (!texts.loadSecond()) {
        std::puts("the catalogue \"en_US\" is not there");
        return 1;
    }
    texts.setContext(QStringLiteral("TutorialStep1"));
    UndoRedo undoRedo;
    TutorialEditor::Manager document(&texts, [&undoRedo] { return &undoRedo; });
    const bool flat = growingLessons(&document, texts, path);
    const bool fast = authorsSteps(&document, &undoRedo, path);
    return flat && fast ? 0 : 1;
}
