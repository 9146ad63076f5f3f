#include "EditorFixture.h"
#include "WindowHands.h"
#include "lesson/description/DescriptionSet.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>

namespace {

/// How many windows may stand on top of each other.
constexpr int kDeepest = 4;

using Bytes = QMap<QString, QByteArray>;

Bytes bytesIn(const QString &folder)
{
    Bytes files;
    const QDir data(folder + str("/data"));
    const QStringList names = data.entryList({str("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(data.filePath(name));
        files.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return files;
}

DataRoots valuesIn(DataLayer &layer, const QStringList &names)
{
    DataRoots values;
    for (const QString &name : names) {
        values.insert(name, layer.file(name));
    }
    return values;
}

/// Changes all that can be changed in all windows, each of them opened as a person opens it.
class Changer
{
public:
    Changer(Editor *editor, const DescriptionSet *windows)
        : m_editor(*editor)
        , m_windows(*windows)
    {
    }

    void changeAll()
    {
        openFrom(str("MainWindow"), 0);
        openFrom(str("MapEditTreeBox"), 0);
        const WindowDescription &menus = m_windows[m_windows.popupKey()];
        for (const PopupDescription &menu : menus.popups) {
            if (!isOfMainWindow(menu)) {
                continue; // it is for what stands in a dialog
            }
            for (const ControlDescription &entry : menu.controls) {
                const QString window = entry.click.open;
                if (!window.isEmpty() && !m_windows.openedFrom(window).isEmpty()) {
                    markCell(entry.name == str("editEvent"));
                    EditorWindow *from = m_editor->window(menu.name);
                    open(from, entry.click, 0, [from, &entry] { from->act(entry.click, QPoint()); });
                }
            }
        }
    }

    /// Windows that were opened, and those of them whose changes came into what lies below.
    QSet<QString> visited;
    QSet<QString> changed;

private:
    void openFrom(const QString &key, int depth)
    {
        EditorWindow *window = m_editor->window(key);
        const QVector<ControlDescription> &controls = m_windows[key].controls;
        for (const ControlDescription &control : controls) {
            const ControlAction &action = control.click.isEmpty() ? control.doubleClick : control.click;
            const QString opener = key + QLatin1Char(' ') + control.name;
            const bool isOther = control.name == str("fileNew") || control.name == str("fileOpen");
            if (depth < kDeepest && !action.open.isEmpty() && !action.close && !isOther &&
                !m_opened.contains(opener) && canUse(window, control.name)) {
                m_opened.insert(opener);
                auto *list = window->findChild<RowList *>(control.name, Qt::FindDirectChildrenOnly);
                open(window, action, depth, [window, list, &action] {
                    // A list says which of its rows it is.
                    if (list != nullptr) {
                        Q_EMIT list->rowOpened(list->currentRow());
                    } else {
                        window->act(action, QPoint());
                    }
                });
            }
        }
    }

    void open(EditorWindow *from, const ControlAction &action, int depth, const std::function<void()> &use)
    {
        DataLayer &below = *m_editor->project()->drafts().top();
        // What a ready-made event is made from stands in the draft alone.
        const QStringList names = m_editor->project()->files().names() + QStringList{str("quick")};
        const DataRoots before = valuesIn(below, names);
        if (from->chosen(action) == nullptr) {
            return;
        }
        const auto windowsBefore = m_editor->openWindows().size();
        use();
        if (m_editor->openWindows().size() == windowsBefore) {
            return;
        }
        // A list chooses by the row which window that is.
        const QString key = m_editor->openWindows().constLast();
        visited.insert(key);
        if (canUse(m_editor->window(key), str("add"))) {
            button(key, "add")->click();
        }
        eachTab(key, [this, key, depth] {
            WindowHands::useShown(m_editor->window(key));
            openFrom(key, depth + 1);
        });
        // One that is accepted may open another one.
        while (m_editor->openWindows().size() > windowsBefore) {
            accept(m_editor->openWindows().constLast());
        }
        if (valuesIn(below, names) != before) {
            changed.insert(key);
        }
    }

    /// In the order of the tabs that the window has at the top.
    void eachTab(const QString &key, const std::function<void()> &change)
    {
        EditorWindow *window = m_editor->window(key);
        auto *tabs = window->findChild<QTabBar *>(str("tabs"), Qt::FindDirectChildrenOnly);
        const int count = tabs != nullptr ? tabs->count() : 0;
        change();
        for (int tab = 0; tab < count; ++tab) {
            tabs->setCurrentIndex(tab);
            change();
        }
    }

    void accept(const QString &key)
    {
        EditorWindow *window = m_editor->window(key);
        for (const ControlDescription &control : m_windows[key].controls) {
            if (control.name == str("ok") && canUse(window, control.name)) {
                button(key, "ok")->click();
            }
        }
        m_editor->close(key);
    }

    [[nodiscard]] bool isOfMainWindow(const PopupDescription &menu) const
    {
        const QVector<ControlDescription> controls = m_windows.controlsIn(str("MainWindow"));
        return std::any_of(controls.cbegin(), controls.cend(), [&menu](const ControlDescription &control) {
            const auto actions = control.actions();
            return std::any_of(actions.cbegin(), actions.cend(),
                               [&menu](const auto &action) { return action.second.popup == menu.name; });
        });
    }

    /// The cell of an event, or one where a new event can go.
    void markCell(bool hasEvent)
    {
        MapBoard &board = m_editor->project()->board();
        const QVector<MapEvents::Event> events = board.events();
        QPoint cell = events.isEmpty() ? QPoint() : events.constFirst().cell;
        const auto isTaken = [&cell](const MapEvents::Event &event) {
            return event.cell == cell;
        };
        while (!hasEvent && std::any_of(events.cbegin(), events.cend(), isTaken)) {
            cell += QPoint(1, 0);
        }
        board.setCursor(cell);
    }

    [[nodiscard]] QAbstractButton *button(const QString &key, const char *name) const
    {
        return m_editor->window(key)->findChild<QAbstractButton *>(str(name), Qt::FindDirectChildrenOnly);
    }

    static bool canUse(const EditorWindow *window, const QString &name)
    {
        return WindowHands::canUse(window->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly));
    }

    Editor &m_editor;
    const DescriptionSet &m_windows;
    QSet<QString> m_opened;
};

/// The sample project as its last lesson leaves it, in a folder of its own.
void copySample(const QString &folder)
{
    QVERIFY(QDir(folder).mkpath(str("data")));
    const Bytes sample = bytesIn(str(TUTORIAL_SOURCE_DIR "/resource/preset/step19"));
    QVERIFY(!sample.isEmpty());
    for (auto file = sample.begin(); file != sample.end(); ++file) {
        QFile copy(folder + str("/data/") + file.key());
        QVERIFY(copy.open(QIODevice::WriteOnly));
        QCOMPARE(copy.write(file.value()), qint64(file.value().size()));
    }
}

} // namespace

/// What is changed in any window is in one history, and in the next session it is what was saved.
class tst_ChangesKept : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasChangedEverywhereLoadsAsItWasSaved();
};

void tst_ChangesKept::whatWasChangedEverywhereLoadsAsItWasSaved()
{
    QTemporaryDir place;
    copySample(place.path());
    const Bytes original = bytesIn(place.path());
    QStringList errors;
    const auto windows =
        DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    Editor editor;
    editor->open(str("MainWindow"));
    DataFiles &files = editor->project()->files();
    QString error;
    QVERIFY2(files.open(place.path(), &error), qPrintable(error));
    const DataRoots atFirst = valuesIn(files, files.names());

    editor.clickRow("MainWindow", "tiles", 3);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(48, 48));
    editor.run("mode.event");
    Changer changer(&editor, &windows);
    changer.changeAll();
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});

    // Every window that was opened, but the one that only looks for something.
    QStringList silent = (changer.visited - changer.changed).values();
    silent.sort();
    QCOMPARE(silent.join(QLatin1Char(' ')), str("EventSearcher"));
    QVERIFY2(changer.visited.size() >= 25,
             qPrintable(QStringList(changer.visited.values()).join(QLatin1Char(' '))));
    // Every file.
    const QStringList names = files.names();
    QStringList unchanged;
    for (const QString &name : names) {
        if (files.file(name) == atFirst.value(name) && !name.startsWith(str("data/Map0"))) {
            unchanged.append(name);
        }
    }
    QCOMPARE(unchanged.join(QLatin1Char(' ')), QString());

    const DataRoots changed = valuesIn(files, names);
    editor.click("MainWindow", "fileSave");
    QCOMPARE(files.changedFiles(), QStringList());
    const Bytes saved = bytesIn(place.path());

    // The next session.
    Editor next;
    next->open(str("MainWindow"));
    DataFiles &again = next->project()->files();
    QVERIFY2(again.open(place.path(), &error), qPrintable(error));
    QCOMPARE(again.names(), names);
    for (const QString &name : names) {
        QVERIFY2(again.file(name) == changed.value(name), qPrintable(name));
    }
    next.click("MainWindow", "fileSave");
    QCOMPARE(bytesIn(place.path()), saved);

    // One history, back to the first step and forth again.
    QVERIFY(files.history().count() > 5);
    while (files.history().canUndo()) {
        editor.click("MainWindow", "editUndo");
    }
    QCOMPARE(valuesIn(files, files.names()), atFirst);
    QVERIFY(!editor.find<QWidget>("MainWindow", "editUndo")->isEnabled());
    editor.click("MainWindow", "fileSave");
    QCOMPARE(bytesIn(place.path()), original);
    while (files.history().canRedo()) {
        editor.click("MainWindow", "editRedo");
    }
    QVERIFY(!editor.find<QWidget>("MainWindow", "editRedo")->isEnabled());
    QCOMPARE(valuesIn(files, names), changed);
    editor.click("MainWindow", "fileSave");
    QCOMPARE(bytesIn(place.path()), saved);
}

QTEST_MAIN(tst_ChangesKept)
#include "tst_ChangesKept.moc"
