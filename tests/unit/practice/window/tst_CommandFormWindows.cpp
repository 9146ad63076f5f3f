#include "EditorFixture.h"
#include "SampleEvents.h"
#include "lesson/LessonWords.h"
#include "project/events/EventCommands.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace {

/// Button, frame and margins of a combo box, beside its text.
constexpr int kRoomInBox = 32;
constexpr int kRoomInButton = 12;

/// The editor with the sample project of one step, and the window of an event open.
class EventDesk
{
public:
    explicit EventDesk(const QString &locale, int step = sample::kLastStep)
        : editor(qPrintable(locale))
    {
        editor.openProject();
        QMap<QString, QString> files;
        const sample::Files sources = sample::readStep(step);
        for (auto file = sources.begin(); file != sources.end(); ++file) {
            files.insert(str("data/") + file.key(), QString::fromUtf8(file.value().toJson()));
        }
        if (!editor->replaceFiles(files)) {
            qFatal("the sample project is refused");
        }
        editor->open(str("EventEditorMain"));
    }

    /// Edits the list of commands at this path from here on.
    void edit(const QString &path)
    {
        m_path = path;
        events()->run(str("commands.of ") + path);
    }

    [[nodiscard]] QVector<Row> rows() const { return events()->rows(source()); }

    /// Opens the form of the command in this row, as a double click does.
    void openRow(int row)
    {
        events()->setCurrentRow(source(), row);
        editor->open(str("EventCommand"));
        form()->run(str("command.edit"));
    }

    /// Opens the form of a new command.
    void openNew(const QString &tab, int code)
    {
        const QVector<int> codes = commands().codesIn(tab);
        events()->setCurrentRow(str("commandTab"), int(EventCommands::tabs().indexOf(tab)));
        events()->setCurrentRow(str("commandsOfTab"), int(codes.indexOf(code)));
        editor->open(str("EventCommand"));
        form()->run(str("command.new"));
    }

    [[nodiscard]] EditorWindow *events() const { return editor->window(str("EventEditorMain")); }
    [[nodiscard]] EditorWindow *form() const { return editor->window(str("EventCommand")); }
    [[nodiscard]] const EventCommands &commands() const { return editor->project()->start().eventCommands; }

    mutable Editor editor;

private:
    [[nodiscard]] QString source() const { return str("commands ") + m_path; }

    QString m_path;
};

/// Where the lists of commands of the sample project stand, as paths.
QStringList listPaths(const sample::Files &files)
{
    QStringList paths;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString name = str("data/") + file.key().chopped(5);
        const QJsonArray lists = file.key() == str("CommonEvents.json") || file.key() == str("Troops.json")
                                     ? file.value().array()
                                     : sample::objectsIn(file.value().object(), "events");
        const QString way = file.value().isArray() ? name : name + str("/events");
        for (int entry = 0; entry < lists.size(); ++entry) {
            const int pages = sample::objectsIn(lists.at(entry), "pages").size();
            for (int page = 0; page < pages; ++page) {
                paths.append(str("%1/%2/pages/%3/list").arg(way).arg(entry).arg(page));
            }
            if (lists.at(entry).toObject().contains(str("list"))) {
                paths.append(str("%1/%2/list").arg(way).arg(entry));
            }
        }
    }
    return paths;
}

/// The controls of all forms, shown or not.
template<typename Widget>
QVector<Widget *> controlsOfForms(const EditorWindow *window)
{
    QVector<Widget *> found;
    const auto all = window->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->objectName().contains(QLatin1Char('/'))) {
            found.append(widget);
        }
    }
    return found;
}

template<typename Widget>
QStringList tooNarrow(const EditorWindow *window)
{
    QStringList findings;
    const QVector<Widget *> controls = controlsOfForms<Widget>(window);
    for (const Widget *control : controls) {
        if (control->sizeHint().width() > control->width()) {
            findings.append(control->objectName());
        }
    }
    return findings;
}

/// The style gives a button room that its text does not need.
QStringList tooNarrowButtons(const EditorWindow *window)
{
    QStringList findings;
    const QVector<QPushButton *> buttons = controlsOfForms<QPushButton>(window);
    for (const QPushButton *button : buttons) {
        if (button->fontMetrics().horizontalAdvance(button->text()) + kRoomInButton > button->width()) {
            findings.append(button->objectName());
        }
    }
    return findings;
}

QStringList tooNarrowBoxes(const EditorWindow *window)
{
    QStringList findings;
    const QVector<QComboBox *> boxes = controlsOfForms<QComboBox>(window);
    for (const QComboBox *box : boxes) {
        for (int item = 0; item < box->count(); ++item) {
            const QString text = box->itemText(item);
            if (box->fontMetrics().horizontalAdvance(text) + kRoomInBox > box->width()) {
                findings.append(str("%1: %2").arg(box->objectName(), text));
            }
        }
    }
    return findings;
}

QJsonObject entry(int code, const QJsonArray &parameters)
{
    return {{str("code"), code}, {str("indent"), 0}, {str("parameters"), parameters}};
}

/// What a list says of its first command, in the order of the languages.
struct Reading
{
    QJsonArray list;
    QStringList texts;
};

QVector<Reading> allReadings()
{
    QVector<Reading> all;
    const auto add = [&all](const QJsonArray &list, const QStringList &texts) {
        all.append({list, texts});
    };
    add({entry(230, {30})}, {str("Wait: 30 frames"), str("ウェイト：30フレーム"), str("等待：30 帧")});
    add({entry(101, {str(""), 0, 0, 2}), entry(401, {str("Hello.")}), entry(401, {str("Who?")})},
        {str("Message: Hello. Who?"), str("メッセージ：Hello. Who?"), str("消息：Hello. Who?")});
    add({entry(101, {str(""), 0, 0, 2, str("Mila")}), entry(401, {str("Hello.")})},
        {str("Message: Mila: Hello."), str("メッセージ：Mila：Hello."), str("消息：Mila：Hello.")});
    add({entry(102, {QJsonArray{str("A"), str("B")}, 1, 0, 2, 0}), entry(404, {})},
        {str("Choices: A, B"), str("選択肢：A、B"), str("选项：A、B")});
    add({entry(121, {1, 1, 0})},
        {str("Switch: Gate = ON"), str("スイッチ：Gate = ON"), str("开关：Gate = ON")});
    add({entry(121, {1, 2, 1})},
        {str("Switches: Gate to 2 = OFF"), str("スイッチ：Gate ～ 2 = OFF"), str("开关：Gate～2 = OFF")});
    add({entry(122, {1, 1, 1, 0, 5})}, {str("Variable: 1 += 5"), str("変数：1 += 5"), str("变量：1 += 5")});
    add({entry(111, {0, 1, 0, 0, 0, 0, str("A")}), entry(412, {})},
        {str("If: Switch Gate is ON"), str("条件分岐：スイッチ Gate が ON"),
         str("条件分支：开关 Gate 为 ON")});
    add({entry(126, {1, 0, 0, 2})},
        {str("Item: Herb, +2"), str("アイテム：Herb、+2"), str("物品：Herb，+2")});
    add({entry(314, {0, 0})},
        {str("Recover all: Whole party"), str("全回復：パーティー全体"), str("完全恢复：整个队伍")});
    add({entry(201, {0, 1, 16, 7, 1, 0})},
        {str("Transfer: Village (16, 7)"), str("場所移動：Village（16, 7）"),
         str("场所移动：Village (16, 7)")});
    add({entry(205, {-1, QJsonObject()})},
        {str("Movement route: Player"), str("移動ルート：プレイヤー"), str("移动路线：玩家")});
    add({entry(302, {0, 1, 0, 0, false}), entry(605, {1, 1, 0, 0})},
        {str("Shop: 2 goods"), str("ショップ：商品2点"), str("商店：2 种商品")});
    return all;
}

} // namespace

/// The forms of the event commands as a person has them before her.
class tst_CommandFormWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormHasRoomForItsTexts_data();
    void everyFormHasRoomForItsTexts();
    void aFormShowsItsOwnControlsAlone();
    void acceptingUnchangedChangesNothing();
    void aNewCommandIsPutIn();
    void thePlaceOfAPictureMayStandInVariables_data();
    void thePlaceOfAPictureMayStandInVariables();
    void aCellOutsideOfItsMapIsKeptUntilItIsChanged_data();
    void aCellOutsideOfItsMapIsKeptUntilItIsChanged();
    void noBoxStandsBlankAfterItsKindChanged();
    void enemiesOfATroopHaveTheirNames();
    void aPlaceOnThisMapIsChosenOnTheMap();
    void rowsReadWell_data() { everyFormHasRoomForItsTexts_data(); }
    void rowsReadWell();
};

void tst_CommandFormWindows::everyFormHasRoomForItsTexts_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_CommandFormWindows::everyFormHasRoomForItsTexts()
{
    QFETCH(QString, locale);
    const Editor editor(qPrintable(locale));
    const EditorWindow *window = editor->window(str("EventCommand"));
    QVERIFY(controlsOfForms<QLabel>(window).size() > 100);
    QVERIFY(controlsOfForms<QComboBox>(window).size() > 50);
    const QStringList findings = tooNarrow<QLabel>(window) + tooNarrow<QRadioButton>(window) +
                                 tooNarrow<QCheckBox>(window) + tooNarrow<QSpinBox>(window) +
                                 tooNarrowButtons(window) + tooNarrowBoxes(window);
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(QLatin1Char('\n'))));
}

void tst_CommandFormWindows::aFormShowsItsOwnControlsAlone()
{
    EventDesk desk(str("en_US"));
    desk.edit(str("data/Map001/events/1/pages/0/list"));
    desk.openNew(str("flow"), 230);
    const auto all = desk.form()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    int own = 0;
    for (const QWidget *control : all) {
        const QString name = control->objectName();
        if (name.contains(QLatin1Char('/')) && control->isVisible()) {
            QVERIFY2(name.startsWith(str("230/")), qPrintable(name));
            own += 1;
        }
    }
    QVERIFY(own > 2);
}

void tst_CommandFormWindows::acceptingUnchangedChangesNothing()
{
    EventDesk desk(str("en_US"));
    const QStringList paths = listPaths(sample::readStep(sample::kLastStep));
    QVERIFY(paths.size() > 40);
    QSet<QString> seen;
    for (const QString &path : paths) {
        desk.edit(path);
        const QVector<Row> rows = desk.rows();
        for (int row = 0; row < rows.size(); ++row) {
            // One of each kind; every one of them is changed so in the tests of the lists.
            const QString kind = rows.at(row).text.section(QLatin1Char(':'), 0, 0);
            if (seen.contains(kind)) {
                continue;
            }
            seen.insert(kind);
            desk.openRow(row);
            desk.editor.click("EventCommand", "ok");
            QVERIFY2(!desk.editor->openWindows().contains(str("EventCommand")), qPrintable(path));
        }
    }
    QVERIFY(seen.size() > 20);
    desk.events()->run(str("draft.accept"));
    QVERIFY(!desk.editor->project()->isModified());
}

void tst_CommandFormWindows::aNewCommandIsPutIn()
{
    EventDesk desk(str("en_US"));
    desk.edit(str("data/Map001/events/1/pages/0/list"));
    const int before = int(desk.rows().size());
    desk.openNew(str("flow"), 230);
    desk.editor.find<QSpinBox>("EventCommand", "230/duration")->setValue(45);
    desk.editor.click("EventCommand", "ok");
    const QVector<Row> rows = desk.rows();
    QCOMPARE(rows.size(), before + 1);
    QCOMPARE(rows.at(0).text, str("Wait: 45 frames"));
}

void tst_CommandFormWindows::thePlaceOfAPictureMayStandInVariables_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("show") << 231;
    QTest::newRow("move") << 232;
}

void tst_CommandFormWindows::thePlaceOfAPictureMayStandInVariables()
{
    QFETCH(const int, code);
    EventDesk desk(str("en_US"));
    desk.edit(str("data/Map001/events/1/pages/0/list"));
    desk.openNew(str("picture"), code);
    const QByteArray form = QByteArray::number(code) + '/';
    desk.editor.click("EventCommand", form + "where2");
    for (const auto &place : {std::make_pair("x", 1), std::make_pair("y", 2)}) {
        const QByteArray box = form + place.first + "Variable";
        desk.editor.click("EventCommand", box + "Choose");
        desk.editor.click("VariableSelector", "variablesMaximum");
        desk.editor.find<QSpinBox>("ChangeMaximum", "count")->setValue(3);
        desk.editor.click("ChangeMaximum", "ok");
        desk.editor.clickRow("VariableSelector", "variables", place.second);
        desk.editor.click("VariableSelector", "ok");
        QCOMPARE(desk.editor.find<QComboBox>("EventCommand", box)->currentIndex(), place.second);
    }
}

void tst_CommandFormWindows::aCellOutsideOfItsMapIsKeptUntilItIsChanged_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QJsonArray>("parameters");
    QTest::newRow("transfer") << 201 << QJsonArray{0, 1, 200, 210, 1, 0};
    QTest::newRow("event location") << 202 << QJsonArray{0, 0, 200, 210, 0};
}

void tst_CommandFormWindows::aCellOutsideOfItsMapIsKeptUntilItIsChanged()
{
    QFETCH(const int, code);
    QFETCH(const QJsonArray, parameters);
    EventDesk desk(str("en_US"));
    const QString path = str("data/Map001/events/1/pages/0/list");
    const auto read = [&desk, &path] {
        return desk.events()->field(path + str("/0/parameters")).toJsonArray();
    };
    desk.edit(path);
    desk.events()->setField(path, QJsonArray{entry(code, parameters), entry(0, {})});
    desk.openRow(0);
    desk.editor.click("EventCommand", "ok");
    QCOMPARE(read(), parameters);

    desk.openRow(0);
    const QByteArray form = QByteArray::number(code) + '/';
    auto *column = desk.editor.find<QSpinBox>("EventCommand", form + "x");
    auto *row = desk.editor.find<QSpinBox>("EventCommand", form + "y");
    QCOMPARE(column->value(), 200);
    QCOMPARE(row->value(), 210);
    column->setValue(0);
    row->setValue(0);
    column->setValue(200);
    row->setValue(210);
    QCOMPARE(column->value(), desk.events()->field(str("data/Map001/width")).toInt() - 1);
    QCOMPARE(row->value(), desk.events()->field(str("data/Map001/height")).toInt() - 1);
}

void tst_CommandFormWindows::noBoxStandsBlankAfterItsKindChanged()
{
    EventDesk desk(str("en_US"));
    desk.edit(str("data/Map001/events/1/pages/0/list"));
    int boxes = 0;
    const QStringList tabs = EventCommands::tabs();
    for (const QString &tab : tabs) {
        const QVector<int> codes = desk.commands().codesIn(tab);
        for (const int code : codes) {
            desk.openNew(tab, code);
            const QVector<QRadioButton *> kinds = controlsOfForms<QRadioButton>(desk.form());
            for (QRadioButton *kind : kinds) {
                if (!kind->isVisible()) {
                    continue;
                }
                kind->click();
                const QVector<QComboBox *> all = controlsOfForms<QComboBox>(desk.form());
                for (const QComboBox *box : all) {
                    if (box->isVisible() && box->count() > 0) {
                        QVERIFY2(box->currentIndex() >= 0,
                                 qPrintable(str("%1 after %2").arg(box->objectName(), kind->objectName())));
                        ++boxes;
                    }
                }
            }
            desk.editor->close(str("EventCommand"));
        }
    }
    QVERIFY(boxes > 50);
}

void tst_CommandFormWindows::enemiesOfATroopHaveTheirNames()
{
    EventDesk desk(str("en_US"));
    DataFiles &files = desk.editor->project()->files();
    files.set(str("data/Enemies.json"), str("/1/name"), str("Slime"));
    files.set(str("data/Troops.json"), str("/2/pages/0/list"),
              QJsonArray{entry(335, {1}), entry(334, {-1}), entry(0, {})});
    desk.edit(str("data/Troops/2/pages/0/list"));
    QCOMPARE(desk.rows().at(0).text, str("Enemy appears: Enemy 2: Slime"));
    QCOMPARE(desk.rows().at(1).text, str("Enemy recovers: The whole troop"));
    desk.openRow(0);
    const auto *enemies = desk.editor.find<QComboBox>("EventCommand", "335/enemy");
    QCOMPARE(enemies->currentText(), str("Enemy 2: Slime"));
    QCOMPARE(enemies->itemText(2), str("Enemy 3"));
    desk.editor->close(str("EventCommand"));

    // Whichever list is edited, a row tells of its own troop.
    desk.edit(str("data/Map001/events/1/pages/0/list"));
    const QVector<Row> rows = desk.editor.rows("commands data/Troops/2/pages/0/list");
    QCOMPARE(rows.at(0).text, str("Enemy appears: Enemy 2: Slime"));
    desk.openNew(str("battle"), 335);
    QCOMPARE(enemies->itemText(1), str("Enemy 2"));
}

void tst_CommandFormWindows::aPlaceOnThisMapIsChosenOnTheMap()
{
    EventDesk desk(str("en_US"));
    desk.edit(str("data/Map001/events/1/pages/0/list"));
    desk.openNew(str("scene"), 202);
    desk.editor.click("EventCommand", "202/location");
    QCOMPARE(desk.editor->openWindows().constLast(), str("Location"));
    QVERIFY(!desk.editor.find<RowList>("Location", "maps")->isEnabled());
    desk.editor.find<QSpinBox>("Location", "x")->setValue(7);
    desk.editor.find<QSpinBox>("Location", "y")->setValue(3);
    desk.editor.click("Location", "ok");
    QCOMPARE(desk.editor.find<QSpinBox>("EventCommand", "202/x")->value(), 7);
    QCOMPARE(desk.editor.find<QSpinBox>("EventCommand", "202/y")->value(), 3);
    desk.editor.click("EventCommand", "ok");
    QCOMPARE(desk.rows().at(0).text, str("Event location: This event, (7, 3)"));
}

void tst_CommandFormWindows::rowsReadWell()
{
    QFETCH(QString, locale);
    Editor editor(qPrintable(locale));
    editor.openProject();
    DataFiles &files = editor->project()->files();
    const QJsonArray switches{QJsonValue(), str("Gate"), str("")};
    const QJsonArray variables{QJsonValue(), str("")};
    files.change(
        {{str("data/System.json"), QJsonObject{{str("switches"), switches}, {str("variables"), variables}}},
         {str("data/Items.json"), QJsonArray{QJsonValue(), QJsonObject{{str("name"), str("Herb")}}}}},
        QString());
    files.set(str("data/MapInfos.json"), str("/1/name"), str("Village"));
    const QVector<Reading> readings = allReadings();
    for (Reading reading : readings) {
        reading.list.append(entry(0, {}));
        const QJsonObject troop{{str("list"), reading.list}};
        files.set(str("data/Troops.json"), QString(), QJsonArray{QJsonValue(), troop});
        QCOMPARE(editor.rows("commands data/Troops/1/list").value(0).text,
                 reading.texts.at(LessonWords::locales().indexOf(locale)));
    }
}

QTEST_MAIN(tst_CommandFormWindows)
#include "tst_CommandFormWindows.moc"
