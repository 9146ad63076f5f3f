#include "SampleEditor.h"
#include "WindowHands.h"
#include "lesson/Condition.h"
#include "lesson/description/KnownWords.h"
#include "window/EditorWays.h"

namespace {

/// The condition that a step has which waits for the event.
QString conditionFor(const EditorEvent &event)
{
    QStringList words{event.type, event.target};
    if (!event.value.isEmpty() || event.type == str("action")) {
        words += event.value == str("drag") ? str("click") : event.value;
    }
    return words.join(QLatin1Char(','));
}

/// Opens the form of the command in this row of this tab for a new one.
void beginCommand(SampleEditor &editor, int tab, int row)
{
    EditorWindow *events = editor->window(str("EventEditorMain"));
    events->setCurrentRow(str("commandTab"), tab);
    events->setCurrentRow(str("commandsOfTab"), row);
    editor->open(str("EventCommand"));
    editor->window(str("EventCommand"))->run(str("command.new"));
}

/// Goods are those of a shop, and without one there is nothing to fill in.
void openGoods(SampleEditor &editor)
{
    constexpr int kShop = 302;
    editor->open(str("EventEditorMain"));
    const EventCommands &commands = editor->project()->start().eventCommands;
    const QStringList tabs = EventCommands::tabs();
    for (int tab = 0; tab < tabs.size(); ++tab) {
        const int row = int(commands.codesIn(tabs.at(tab)).indexOf(kShop));
        if (row >= 0) {
            beginCommand(editor, tab, row);
        }
    }
    editor.click("EventCommand", "302/add");
}

} // namespace

/// What a lesson can say of a control, and what the control tells: one must be the other for all controls of
/// all windows, or a step waits for ever.
class tst_ReportedWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyReportIsACondition_data();
    void everyReportIsACondition();
    void everyFormReportsConditions();
    void toolsReportConditions();
    void theMapReportsConditions();

private:
    /// Hears what the editor tells from here on.
    void hear(const SampleEditor &editor);
    void take(const EditorEvent &event);

    DescriptionSet m_windows;
    QSet<QString> m_types;
    QStringList m_faults;
    int m_heard = 0;
};

void tst_ReportedWords::initTestCase()
{
    QStringList errors;
    m_windows = DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(errors, QStringList());
}

void tst_ReportedWords::hear(const SampleEditor &editor)
{
    m_types.clear();
    m_faults.clear();
    m_heard = 0;
    connect(editor.operator->(), &EditorWindows::happened, this, &tst_ReportedWords::take);
}

void tst_ReportedWords::take(const EditorEvent &event)
{
    if (event.cause.isNone()) {
        return;
    }
    ++m_heard;
    m_types.insert(event.type);
    const QString text = conditionFor(event);
    QString problem;
    const std::optional<Condition> condition = Condition::parse(text, &problem);
    if (condition) {
        problem = KnownWords::conditionProblem(*condition, event.windowKey, m_windows);
        if (problem.isEmpty() && !condition->isMetBy(event, event.windowKey)) {
            problem = str("the event does not meet it");
        }
        if (problem.isEmpty() && !EditorWays(&m_windows).canCause(event.cause, *condition)) {
            problem = str("it does not count as that of %1").arg(event.cause.control);
        }
    }
    if (!problem.isEmpty()) {
        m_faults.append(str("%1 in %2: %3").arg(text, event.windowKey, problem));
    }
}

void tst_ReportedWords::everyReportIsACondition_data()
{
    QTest::addColumn<QString>("key");
    const QStringList keys = m_windows.keys();
    for (const QString &key : keys) {
        const WindowDescription &window = m_windows[key];
        if (window.kind == WindowDescription::Kind::kWindow && window.closesAfterMs == 0) {
            QTest::newRow(qPrintable(key)) << key;
        }
    }
}

void tst_ReportedWords::everyReportIsACondition()
{
    QFETCH(QString, key);
    SampleEditor editor;
    hear(editor);
    if (key == str("Merchandise")) {
        openGoods(editor);
    }
    editor->open(key);
    WindowHands::useAll(editor->window(key));
    // Without an entry in its list, what belongs to one is grey.
    if (m_heard == 0 && editor->perform({{key, str("add")}, ControlUse::Kind::kClick, {}, false})) {
        WindowHands::useAll(editor->window(key));
    }
    QCOMPARE(m_faults, QStringList());
    const QVector<ControlDescription> &controls = m_windows[key].controls;
    const bool hasFields =
        std::any_of(controls.cbegin(), controls.cend(), [](const ControlDescription &control) {
            return control.shownWhen.isEmpty() && control.type == str("spinBox");
        });
    QVERIFY(m_heard > 0 || !hasFields);
}

void tst_ReportedWords::everyFormReportsConditions()
{
    SampleEditor editor;
    hear(editor);
    editor->open(str("EventEditorMain"));
    EditorWindow *form = editor->window(str("EventCommand"));
    const EventCommands &commands = editor->project()->start().eventCommands;
    const QStringList tabs = EventCommands::tabs();
    for (int tab = 0; tab < tabs.size(); ++tab) {
        const int count = int(commands.codesIn(tabs.at(tab)).size());
        for (int row = 0; row < count; ++row) {
            beginCommand(editor, tab, row);
            WindowHands::useAll(form);
            editor->close(str("EventCommand"));
        }
    }
    QCOMPARE(m_faults, QStringList());
    for (const char *type : {"comboBox", "checked", "spinBox", "textLength"}) {
        QVERIFY2(m_types.contains(str(type)), type);
    }
}

void tst_ReportedWords::toolsReportConditions()
{
    SampleEditor editor;
    hear(editor);
    int used = 0;
    for (const ControlDescription &control : m_windows[str("MainWindow")].controls) {
        auto *button = editor->window(str("MainWindow"))
                           ->findChild<QAbstractButton *>(control.name, Qt::FindDirectChildrenOnly);
        if (WindowHands::canUse(button) && control.name != str("fileNew") &&
            control.name != str("fileOpen")) {
            button->click();
            used += 1;
            if (!control.click.open.isEmpty()) {
                editor->close(control.click.open);
            }
        }
    }
    QCOMPARE(m_faults, QStringList());
    QVERIFY(used > 10);
    QVERIFY(m_heard >= used);
}

void tst_ReportedWords::theMapReportsConditions()
{
    SampleEditor editor;
    hear(editor);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(48, 48));
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(48, 48));
    QTest::mouseMove(editor.map(), QPoint(112, 112));
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(112, 112));
    QTest::mouseClick(editor.map(), Qt::RightButton, {}, QPoint(48, 48));
    editor->close(str("Popup"));
    editor.clickRow("MapEditTreeBox", "maps", 1);
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    QCOMPARE(m_faults, QStringList());
    QCOMPARE(m_types,
             (QSet<QString>{str("pressed"), str("mouseEvent"), str("menuEvent"), str("popup"), str("list")}));
}

QTEST_MAIN(tst_ReportedWords)
#include "tst_ReportedWords.moc"
