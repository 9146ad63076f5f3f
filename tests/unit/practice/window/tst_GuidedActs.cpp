#include "EditorFixture.h"
#include "SampleEditor.h"
#include "host/ControlUse.h"

#include <QDir>
#include <QLineEdit>

namespace {

ControlSpot spot(const char *window, const char *control, int part = -1)
{
    return {str(window), str(control), part};
}

bool use(const Editor &editor, const ControlSpot &where, ControlUse::Kind kind = ControlUse::Kind::kClick,
         const char *text = "", bool enter = false)
{
    return editor->perform({where, kind, str(text), enter});
}

} // namespace

/// What the windows do for a lesson: a step in place of the person, and all as it was at an earlier one.
class tst_GuidedActs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usesControlsAsAPersonDoes();
    void typesIntoWhatHasTheKeyboard();
    void asksForTheEndOfWhatIsPlayed();
    void bringsBackWindowsAndWhatWasTyped();
    void bringsBackAContextMenu();
    void bringsBackTheCopyingOfOneProject();
    void knowsThatSomethingElseWasCopied();
};

void tst_GuidedActs::usesControlsAsAPersonDoes()
{
    using Kind = ControlUse::Kind;
    Editor editor;
    editor.openProject();
    QVERIFY(!use(editor, spot("MapProperties", "ok")));
    QVERIFY(use(editor, spot("MapEditTreeBox", "maps", 3), Kind::kDoubleClick));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("MapProperties")}));
    QVERIFY(use(editor, spot("MapProperties", "name"), Kind::kType, "Meadow", true));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.rows("maps").at(3).text, str("Meadow"));
    QVERIFY(use(editor, spot("MapEditTreeBox", "maps", 1), Kind::kRightClick));
    QVERIFY(use(editor, spot("Menu", "MapPopup/mapProperties")));
    QVERIFY(use(editor, spot("MapProperties", "width"), Kind::kType, "31"));
    QVERIFY(editor.takeTold().contains(str("spinBox,=,31 in MapProperties")));
    QVERIFY(use(editor, spot("MapProperties", "cancel")));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_GuidedActs::typesIntoWhatHasTheKeyboard()
{
    using Kind = ControlUse::Kind;
    Editor editor;
    editor.openProject();
    const ControlSpot nothing{str("MainWindow"), {}, -1};
    QVERIFY(use(editor, spot("MapEditTreeBox", "maps", 3), Kind::kDoubleClick));
    editor.find<QWidget>("MapProperties", "width")->setFocus();
    QVERIFY(!use(editor, nothing));
    QVERIFY(use(editor, nothing, Kind::kType, "31", true));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.shownMap()->size.width(), 31);
}

void tst_GuidedActs::asksForTheEndOfWhatIsPlayed()
{
    using Kind = ControlUse::Kind;
    Editor editor;
    editor.openProject();
    int asked = 0;
    connect(editor.operator->(), &EditorWindows::playEndAsked, this, [&asked] { ++asked; });
    QVERIFY(!use(editor, {str("MainWindow"), {}, -1}, Kind::kEnd, "something else"));
    QCOMPARE(asked, 0);
    QVERIFY(use(editor, {str("MainWindow"), {}, -1}, Kind::kEnd, "play"));
    QCOMPARE(asked, 1);
}

void tst_GuidedActs::bringsBackWindowsAndWhatWasTyped()
{
    using Kind = ControlUse::Kind;
    Editor editor;
    editor.openProject();
    QVERIFY(use(editor, spot("MainWindow", "drawEllipse")));
    QVERIFY(use(editor, spot("MapEditTreeBox", "maps", 2), Kind::kDoubleClick));
    QVERIFY(use(editor, spot("MapProperties", "name"), Kind::kType, "Half"));
    const EditorState state = editor->state();
    QVERIFY(use(editor, spot("MapProperties", "name"), Kind::kType, "Other", true));
    QVERIFY(use(editor, spot("MainWindow", "drawPencil")));
    QVERIFY(use(editor, spot("MainWindow", "fileOpen")));
    QVERIFY(editor->restore(EditorState::fromJson(state.toJson())));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("MapProperties")}));
    QCOMPARE(editor.find<QLineEdit>("MapProperties", "name")->text(), str("Half"));
    QVERIFY(editor->chosen().contains(spot("MainWindow", "drawEllipse")));
    QVERIFY(use(editor, spot("MapProperties", "ok")));
    QCOMPARE(editor.rows("maps").at(2).text, str("Half"));
    QCOMPARE(editor->state().toJson().value(str("windows")).toArray().size(), 1);
}

void tst_GuidedActs::bringsBackAContextMenu()
{
    Editor editor;
    editor.openProject();
    QVERIFY(use(editor, spot("MapEditTreeBox", "maps", 2), ControlUse::Kind::kRightClick));
    const QPoint corner = *editor->origin(str("Menu"));
    const EditorState state = editor->state();
    QVERIFY(use(editor, spot("MapEditTreeBox", "maps", 0)));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    // It belongs to the main window, wherever that is now.
    const QPoint moved(20, 0);
    editor.frame()->move(editor.frame()->pos() + moved);
    QVERIFY(editor->restore(state));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("Popup")}));
    QCOMPARE(editor->origin(str("Menu")), corner + moved);
    QVERIFY(use(editor, spot("Menu", "MapPopup/mapProperties")));
    QCOMPARE(editor.find<QLineEdit>("MapProperties", "name")->text(), editor.rows("maps").at(2).text);
}

void tst_GuidedActs::bringsBackTheCopyingOfOneProject()
{
    Editor editor;
    editor->open(str("MainWindow"));
    QVERIFY(use(editor, spot("MainWindow", "fileNew")));
    QVERIFY(use(editor, spot("NewProject", "name"), ControlUse::Kind::kType, "Quest"));
    QVERIFY(use(editor, spot("NewProject", "ok")));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("Copying")}));
    const EditorState copying = EditorState::fromJson(editor->state().toJson());
    const QString quest = QDir(editor.folder()).filePath(str("Quest"));
    for (int time = 0; time < 2; ++time) {
        QTRY_COMPARE(editor->projectFolder(), quest);
        QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
        QCOMPARE(QDir(editor.folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList{str("Quest")});
        QVERIFY(editor->restore(copying));
        QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("Copying")}));
        QCOMPARE(editor->projectFolder(), QString());
    }
}

void tst_GuidedActs::knowsThatSomethingElseWasCopied()
{
    SampleEditor editor;
    editor.openDatabase(0);
    const QString nothing = editor->dataMark();
    editor.clickRow("DatabaseMain", "actors", 1);
    QCOMPARE(editor->dataMark(), nothing);
    editor.click("DatabaseMain", "actorsCopy");
    const QString copied = editor->dataMark();
    QVERIFY(copied != nothing);
    const EditorState before = editor->state();
    editor.clickRow("DatabaseMain", "actors", 0);
    QTest::keyClick(editor.find<QWidget>("DatabaseMain", "actors"), Qt::Key_C, Qt::ControlModifier);
    QVERIFY(editor->dataMark() != copied);
    QVERIFY(editor->restore(before));
    QCOMPARE(editor->dataMark(), copied);
}

QTEST_MAIN(tst_GuidedActs)
#include "tst_GuidedActs.moc"
