#include "DescriptionFiles.h"
#include "lesson/description/WindowDescription.h"

#include <QtTest>

namespace {

const char *const kText = R"({"en_US": "a", "ja_JP": "b", "zh_CN": "c"})";

/// A window "Box" of 200 x 100 with one button, in which one piece is replaced by another.
QByteArray box(const QByteArray &piece = QByteArray(), const QByteArray &replacement = QByteArray())
{
    QByteArray text = R"({
 "key": "Box", "kind": "window", "size": [200, 100], "place": [10, 20], "title": TEXT,
 "controls": [
  {"type": "button", "name": "ok", "geometry": [100, 60, 90, 30], "label": TEXT, "default": true,
   "click": {"run": "map.undo", "close": true, "open": "Other"}}
 ]
})";
    if (!piece.isEmpty()) {
        Q_ASSERT(text.contains(piece));
        text.replace(piece, replacement);
    }
    return text.replace("TEXT", kText);
}

} // namespace

class tst_WindowDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAWindow();
    void readsAListATabRowAndAnAction();
    void leavesTheFieldsOfATypeToItsReader();
    void readsListsOfCommandsAndWhatTheyAdd();
    void readsWhatAControlRequires();
    void readsContextMenus();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void tellsTheLineOfASyntaxError();
    void tellsAMissingFile();
    void tellsAllErrorsAtOnce();
};

void tst_WindowDescription::readsAWindow()
{
    const DescriptionFiles files;
    QStringList errors;
    const auto window = WindowDescription::read(files.write(QStringLiteral("Box.json"), box()), &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(window.key, QStringLiteral("Box"));
    QVERIFY(window.kind == WindowDescription::Kind::kWindow);
    QCOMPARE(window.size, QSize(200, 100));
    QCOMPARE(window.place, QPoint(10, 20));
    QCOMPARE(window.title.value(QStringLiteral("ja_JP")), QStringLiteral("b"));
    QCOMPARE(window.controls.size(), 1);
    const ControlDescription &button = window.controls.first();
    QCOMPARE(button.geometry, QRect(100, 60, 90, 30));
    QCOMPARE(button.label.value(QStringLiteral("zh_CN")), QStringLiteral("c"));
    QCOMPARE(button.click.run, QStringList{QStringLiteral("map.undo")});
    QVERIFY(button.click.close);
    QCOMPARE(button.click.open, QStringLiteral("Other"));
    QVERIFY(button.doubleClick.isEmpty());
}

void tst_WindowDescription::readsAListATabRowAndAnAction()
{
    const DescriptionFiles files;
    QStringList errors;
    const QByteArray text = QByteArray(R"({
 "key": "Pane", "kind": "part", "partOf": "Box", "size": [200, 100], "place": [0, 0], "title": TEXT,
 "controls": [
  {"type": "list", "name": "rows", "geometry": [0, 0, 90, 50], "rowHeight": 24, "source": "maps",
   "contextMenu": {"popup": "MapPopup"}},
  {"type": "tabs", "name": "tabs", "geometry": [0, 50, 90, 24], "tabWidth": 45, "source": "tileTab",
   "tabs": [TEXT, TEXT]},
  {"type": "toolButton", "name": "open", "geometry": [90, 0, 90, 24], "action": "fileOpen",
   "actionState": "open", "click": {"open": "Other", "begin": "map.new"}},
  {"type": "toolButton", "name": "play", "geometry": [90, 30, 90, 24], "action": "play",
   "actionState": "open", "actionEnds": true, "click": {"run": "play.project"}}
 ]
})")
                                .replace("TEXT", kText);
    const auto part = WindowDescription::read(files.write(QStringLiteral("Pane.json"), text), &errors);
    QCOMPARE(errors, QStringList());
    QVERIFY(part.kind == WindowDescription::Kind::kPart);
    QCOMPARE(part.owner, QStringLiteral("Box"));
    QCOMPARE(part.controls[0].rowHeight, 24);
    QCOMPARE(part.controls[0].tabWidths, QVector<int>());
    QCOMPARE(part.controls[0].contextMenu.popup, QStringLiteral("MapPopup"));
    QCOMPARE(part.controls[1].tabWidths, QVector<int>{45});
    QCOMPARE(part.controls[2].actionName, QStringLiteral("fileOpen"));
    QCOMPARE(part.controls[2].actionState, QStringLiteral("open"));
    QVERIFY(!part.controls[2].actionEnds);
    QVERIFY(part.controls[3].actionEnds);
    QCOMPARE(part.controls[2].click.begin, QStringList{QStringLiteral("map.new")});
}

void tst_WindowDescription::leavesTheFieldsOfATypeToItsReader()
{
    const DescriptionFiles files;
    QStringList errors;
    const QString path = files.write(QStringLiteral("Box.json"),
                                     box(R"("default": true)", R"("range": [1, 2], "suffix": " %")"));
    const auto window = WindowDescription::read(path, &errors);
    QCOMPARE(errors, QStringList());
    const JsonPlace own = window.controls.first().own;
    QCOMPARE(own.file, path);
    QCOMPARE(own.place, QStringLiteral("controls[0]."));
    QCOMPARE(own.object.keys(), (QStringList{QStringLiteral("range"), QStringLiteral("suffix")}));
}

void tst_WindowDescription::readsListsOfCommandsAndWhatTheyAdd()
{
    const DescriptionFiles files;
    QStringList errors;
    const QString path = files.write(
        QStringLiteral("Box.json"),
        box(R"("run": "map.undo")",
            R"("run": ["map.undo", "list.add data/Items"], "begin": ["list.edit data/Items"], "entry": {"hp": 1})"));
    const ControlAction click = WindowDescription::read(path, &errors).controls.value(0).click;
    QCOMPARE(errors, QStringList());
    QCOMPARE(click.run, (QStringList{QStringLiteral("map.undo"), QStringLiteral("list.add data/Items")}));
    QCOMPARE(click.begin, QStringList{QStringLiteral("list.edit data/Items")});
    QCOMPARE(click.entry, QJsonValue(QJsonObject{{QStringLiteral("hp"), 1}}));
    const QString plain = files.write(QStringLiteral("Box.json"), box());
    QVERIFY(WindowDescription::read(plain, &errors).controls.value(0).click.entry.isUndefined());
}

void tst_WindowDescription::readsWhatAControlRequires()
{
    const DescriptionFiles files;
    QStringList errors;
    const QString path =
        files.write(QStringLiteral("Box.json"), box(R"("default": true)",
                                                    R"("shownWhen": {"source": "databaseTab", "rows": [0, 3]},
               "enabledWhen": [{"field": "kind", "is": ["hp", 1]}, {"field": "on", "is": [true]}])"));
    const ControlDescription control = WindowDescription::read(path, &errors).controls.value(0);
    QCOMPARE(errors, QStringList());
    QCOMPARE(control.shownWhen.size(), 1);
    QCOMPARE(control.shownWhen[0].source, QStringLiteral("databaseTab"));
    QCOMPARE(control.shownWhen[0].rows, (QVector<int>{0, 3}));
    QCOMPARE(control.enabledWhen.size(), 2);
    QCOMPARE(control.enabledWhen[0].field, QStringLiteral("kind"));
    QCOMPARE(control.enabledWhen[0].values, (QVector<QJsonValue>{QStringLiteral("hp"), 1}));
    QCOMPARE(control.enabledWhen[1].values, QVector<QJsonValue>{true});
    QVERIFY(control.own.object.isEmpty());
}

void tst_WindowDescription::readsContextMenus()
{
    const DescriptionFiles files;
    QStringList errors;
    const QByteArray text = QByteArray(R"({
 "key": "Menu", "kind": "popup", "size": [100, 30], "title": TEXT,
 "popups": [{"name": "Small", "size": [100, 30],
   "controls": [{"type": "entry", "name": "first", "geometry": [0, 0, 100, 30], "label": TEXT}]}]
})")
                                .replace("TEXT", kText);
    const auto menu = WindowDescription::read(files.write(QStringLiteral("Menu.json"), text), &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(menu.popups.size(), 1);
    QCOMPARE(menu.popups.first().name, QStringLiteral("Small"));
    QCOMPARE(menu.popups.first().controls.first().name, QStringLiteral("first"));
}

void tst_WindowDescription::tellsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<QByteArray>("replacement");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *piece, const char *replacement, const char *error) {
        QTest::newRow(name) << QByteArray(piece) << QByteArray(replacement) << QString::fromLatin1(error);
    };
    row("outside the window", "[100, 60, 90, 30]", "[120, 60, 90, 30]",
        "controls[0].geometry: reaches out of the window; keep it inside its size");
    row("three numbers for a rectangle", "[100, 60, 90, 30]", "[100, 60, 90]",
        "controls[0].geometry: must be a list of 4 whole numbers");
    row("misspelt field", R"("kind": "window")", R"("kind": "window", "palce": [1, 2])",
        "palce: is not a field that is known here; remove it or correct its name");
    row("text for a flag", R"("kind": "window")", R"("kind": "window", "draft": "yes")",
        "draft: must be true or false");
    row("something to begin in no window", R"("open": "Other")", R"("begin": "map.new")",
        "controls[0].click: begins something in no window; give it an open, too");
    row("missing language", R"("title": TEXT)", R"("title": {"en_US": "a", "ja_JP": "b"})",
        "title: needs a text for \"zh_CN\"");
    row("unknown kind", R"("kind": "window")", R"("kind": "windw")",
        "kind: \"windw\" is unknown; use one of: window, part, popup, area");
    row("file of another name", R"("key": "Box")", R"("key": "Bag")",
        "key: the file of this key must be called \"Bag.json\"");
    row("controls that are no list", R"("controls": [)", R"("controls": 3, "more": [)",
        "controls: must be a list, [ ... ]");
    row("a control that is no object", R"("controls": [)", R"("controls": [7,)",
        "controls[0]: must be an object, { ... }");
    row("an action that does nothing", R"({"run": "map.undo", "close": true, "open": "Other"})", "{}",
        "controls[0].click: does nothing; give it a run, close, open or popup, or remove it");
    row("an entry that nothing adds", R"("run": "map.undo", "close": true)", R"("close": true, "entry": 1)",
        "controls[0].click: has an entry that nothing adds; give it a run or begin that does");
    row("commands that are no texts", R"("run": "map.undo")", R"("run": ["map.undo", 7])",
        "controls[0].click.run: must be a list of texts");
    row("rows that are none", R"("default": true)", R"("shownWhen": {"source": "tabs", "rows": [-1]})",
        "controls[0].shownWhen.rows: must be a list of rows, counted from 0");
    row("no values", R"("default": true)", R"("enabledWhen": [{"field": "kind"}])",
        "controls[0].enabledWhen[0].is: must be a list of the values that will do");
    row("a requirement of nothing", R"("default": true)", R"("enabledWhen": {"is": [1]})",
        "controls[0].enabledWhen.field: must be a text");
    row("a misspelt requirement", R"("default": true)",
        R"("enabledWhen": {"field": "a", "is": [1], "row": 1})",
        "controls[0].enabledWhen.row: is not a field that is known here; remove it or correct its name");
    row("an action that is no object", R"({"run": "map.undo", "close": true, "open": "Other"})", R"("close")",
        "controls[0].click: must be an object, { ... }");
    row("twice the same name", R"("controls": [)",
        R"("controls": [{"type": "label", "name": "ok", "geometry": [0, 0, 9, 9], "label": TEXT},)",
        "controls[1].name: \"ok\" stands here twice; give each control its own");
    row("a state that no action has", R"("type": "button")",
        R"("type": "toolButton", "action": "x", "actionState": "shut")",
        "controls[0].actionState: must be \"open\", \"close\" or empty");
    row("a part of nothing", R"("kind": "window")", R"("kind": "part")", "partOf: must be a text");
    row("half a pixel", R"("place": [10, 20])", R"("place": [10, 20], "closesAfterMs": 0.5)",
        "closesAfterMs: must be a whole number");
    row("rows without height", R"("type": "button")", R"("type": "list", "rowHeight": 0)",
        "controls[0].rowHeight: must be above 0");
}

void tst_WindowDescription::tellsWhatIsWrong()
{
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, replacement);
    QFETCH(QString, error);
    const DescriptionFiles files;
    QStringList errors;
    const QString path = files.write(QStringLiteral("Box.json"), box(piece, replacement));
    WindowDescription::read(path, &errors);
    QVERIFY2(errors.contains(path + QStringLiteral(": ") + error),
             qPrintable(errors.join(QLatin1Char('\n'))));
}

void tst_WindowDescription::tellsTheLineOfASyntaxError()
{
    const DescriptionFiles files;
    QStringList errors;
    const QString path =
        files.write(QStringLiteral("Box.json"), "{\n \"key\": \"Box\",\n \"kind\" \"window\"\n}");
    WindowDescription::read(path, &errors);
    QCOMPARE(errors, QStringList{path + QStringLiteral(": line 3: missing name separator")});
    errors.clear();
    WindowDescription::read(files.write(QStringLiteral("Box.json"), "[]"), &errors);
    QCOMPARE(errors, QStringList{path + QStringLiteral(": must hold one object, { ... }")});
}

void tst_WindowDescription::tellsAMissingFile()
{
    const DescriptionFiles files;
    QStringList errors;
    const QString path = files.path(QStringLiteral("Box.json"));
    WindowDescription::read(path, &errors);
    QCOMPARE(errors, QStringList{path + QStringLiteral(": cannot be read (No such file or directory)")});
}

void tst_WindowDescription::tellsAllErrorsAtOnce()
{
    const DescriptionFiles files;
    QStringList errors;
    const QString path = files.write(QStringLiteral("Box.json"), R"({"key": "Box", "kind": "window"})");
    WindowDescription::read(path, &errors);
    QCOMPARE(errors, (QStringList{path + QStringLiteral(": title: needs a text for \"en_US\""),
                                  path + QStringLiteral(": title: needs a text for \"ja_JP\""),
                                  path + QStringLiteral(": title: needs a text for \"zh_CN\""),
                                  path + QStringLiteral(": size: must be a list of 2 whole numbers"),
                                  path + QStringLiteral(": place: must be a list of 2 whole numbers")}));
}

QTEST_APPLESS_MAIN(tst_WindowDescription)
#include "tst_WindowDescription.moc"
