#include "EditorFixture.h"
#include "lesson/description/DescriptionSet.h"

#include <QDir>
#include <QFile>

namespace {

/// How many windows may stand on top of each other while all are looked at.
constexpr int kDeepest = 4;

const QString kPreset = QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset");

/// The data files of a step of the sample project, by name.
QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    const QDir data(folder + str("/data"));
    const QStringList names = data.entryList({str("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(data.filePath(name));
        files.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return files;
}

/// Goes through the windows of an editor as far as that changes nothing: every tab, every row, and whatever
/// window a control opens, which is left with OK. What a control opens is looked at once.
class Visitor
{
public:
    Visitor(Editor *editor, const DescriptionSet *windows)
        : m_editor(*editor)
        , m_windows(*windows)
    {
    }

    void visitAll()
    {
        const QStringList keys = m_windows.keys();
        for (const QString &key : keys) {
            if (m_windows[key].kind == WindowDescription::Kind::kWindow && !m_windows[key].closesAfterMs) {
                m_editor->open(key);
                visit(key, 1);
                leave(key);
            }
        }
    }

    /// Windows that were looked at.
    [[nodiscard]] const QSet<QString> &visited() const { return m_visited; }
    /// Rows and tabs that were looked at.
    [[nodiscard]] int rows() const { return m_rows; }
    /// What was changed first, and where; empty when nothing was.
    [[nodiscard]] const QString &change() const { return m_change; }

private:
    /// Tabs first: what they show has rows of its own.
    void visit(const QString &key, int depth)
    {
        m_visited.insert(key);
        visitWindowsOf(key, depth);
        visitRows(key, str("tabs"), depth);
        visitRows(key, str("list"), depth);
        look(key, str("its rows"));
    }

    void visitRows(const QString &key, const QString &type, int depth)
    {
        EditorWindow *window = m_editor->window(key);
        for (const ControlDescription &control : m_windows[key].controls) {
            const QString source = control.own.object.value(str("source")).toString();
            if (control.type != type || source.isEmpty() || control.own.object.contains(str("field")) ||
                !isSeen(window, control.name)) {
                continue;
            }
            const int count = int(window->rows(source).size());
            for (int row = 0; row < count; ++row) {
                window->setCurrentRow(source, row);
                ++m_rows;
                if (type == str("tabs")) {
                    visitRows(key, str("list"), depth);
                }
                visitWindowsOf(key, depth);
            }
        }
    }

    void visitWindowsOf(const QString &key, int depth)
    {
        EditorWindow *window = m_editor->window(key);
        for (const ControlDescription &control : m_windows[key].controls) {
            const ControlAction &action = control.click.isEmpty() ? control.doubleClick : control.click;
            const QString opener = key + QLatin1Char(' ') + control.name;
            if (depth == kDeepest || m_opened.contains(opener) || action.open.isEmpty() ||
                !isSeen(window, control.name) || action.close || changesSomething(action) ||
                m_editor->openWindows().contains(action.open)) {
                continue;
            }
            m_opened.insert(opener);
            window->act(action, QPoint());
            if (m_editor->openWindows().constLast() == action.open) {
                visit(action.open, depth + 1);
                leave(action.open);
                look(key, control.name);
            }
        }
    }

    static bool isSeen(const EditorWindow *window, const QString &name)
    {
        const auto *widget = window->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly);
        return widget != nullptr && widget->isVisible() && widget->isEnabled();
    }

    static bool changesSomething(const ControlAction &action)
    {
        const QStringList commands = action.run + action.begin;
        return std::any_of(commands.cbegin(), commands.cend(), [](const QString &command) {
            const QString verb = command.section(QLatin1Char(' '), 0, 0).section(QLatin1Char('.'), 1);
            return verb != str("edit") && verb != str("of") && verb != str("count");
        });
    }

    /// By OK, where the window has one that does nothing but accept.
    void leave(const QString &key)
    {
        EditorWindow *window = m_editor->window(key);
        for (const ControlDescription &control : m_windows[key].controls) {
            if (control.name == str("ok") && control.click.run.size() == 1 &&
                control.click.run.constFirst().endsWith(str(".accept")) && m_windows[key].isDraft) {
                window->act(control.click, QPoint());
            }
        }
        m_editor->close(key);
        look(key, str("ok"));
    }

    void look(const QString &key, const QString &what)
    {
        const QStringList changed = m_editor->project()->files().changedFiles();
        if (m_change.isEmpty() && !changed.isEmpty()) {
            m_change = str("%1 in %2 after %3").arg(changed.join(QLatin1Char(' ')), key, what);
        }
    }

    Editor &m_editor;
    const DescriptionSet &m_windows;
    QSet<QString> m_visited;
    /// Controls whose windows were looked at.
    QSet<QString> m_opened;
    int m_rows = 0;
    QString m_change;
};

} // namespace

/// Whoever opens the sample project, looks at all there is in all windows, and saves has the same files.
class tst_SampleUnchanged : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookingAtItChangesNoByte_data();
    void lookingAtItChangesNoByte();
};

void tst_SampleUnchanged::lookingAtItChangesNoByte_data()
{
    QTest::addColumn<QString>("folder");
    const QDir preset(kPreset);
    const QStringList steps = preset.entryList({str("step*")}, QDir::Dirs);
    QVERIFY(steps.size() >= 18);
    for (const QString &step : steps) {
        QTest::newRow(qPrintable(step)) << preset.filePath(step);
    }
}

void tst_SampleUnchanged::lookingAtItChangesNoByte()
{
    QFETCH(QString, folder);
    QTemporaryDir place;
    QVERIFY(QDir(place.path()).mkpath(str("data")));
    const QMap<QString, QByteArray> before = filesIn(folder);
    for (auto file = before.begin(); file != before.end(); ++file) {
        QFile copy(place.filePath(str("data/") + file.key()));
        QVERIFY(copy.open(QIODevice::WriteOnly));
        QCOMPARE(copy.write(file.value()), qint64(file.value().size()));
    }
    Editor editor;
    editor->open(str("MainWindow"));
    QString error;
    QVERIFY2(editor->project()->files().open(place.path(), &error), qPrintable(error));

    QStringList errors;
    const auto windows =
        DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    Visitor visitor(&editor, &windows);
    visitor.visitAll();
    QCOMPARE(visitor.change(), QString());
    QVERIFY(visitor.visited().contains(str("MapProperties")));
    QVERIFY(visitor.rows() > 0);
    editor.run("project.save");
    QCOMPARE(filesIn(place.path()), before);
}

QTEST_MAIN(tst_SampleUnchanged)
#include "tst_SampleUnchanged.moc"
