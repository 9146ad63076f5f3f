#include "DescriptionFiles.h"
#include "lesson/description/WindowDescription.h"

#include <QtTest>

namespace {

const char *const kText = R"({"en_US": "a", "ja_JP": "b", "zh_CN": "c"})";

/// A window with a tool button "save" and this menu bar.
QByteArray windowWith(const QByteArray &menus)
{
    return QByteArray(R"({
 "key": "Box", "kind": "window", "size": [200, 100], "minimumSize": [150, 80], "place": [10, 20], "title": TEXT,
 "controls": [{"type": "toolButton", "name": "save", "geometry": [0, 0, 60, 48], "grows": "right",
               "anchor": "bottom", "label": TEXT}],
 "menus": MENUS
})")
        .replace("MENUS", menus)
        .replace("TEXT", kText);
}

} // namespace

/// The menu bar of a window, and what follows the window's size.
class tst_MenuDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsMenus();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void controlsFollowTheSizeOfTheirWindow_data();
    void controlsFollowTheSizeOfTheirWindow();
};

void tst_MenuDescription::readsMenus()
{
    const DescriptionFiles files;
    QStringList errors;
    const QByteArray menus = R"([{"label": TEXT, "entries": [
        {"button": "save", "label": TEXT, "keys": ["Ctrl+S", "F2"]}, {"line": true},
        {"does": "quit", "label": TEXT}, {"run": "map.new", "label": TEXT}]}])";
    const auto window =
        WindowDescription::read(files.write(QStringLiteral("Box.json"), windowWith(menus)), &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(window.minimumSize, QSize(150, 80));
    QVERIFY(window.controls.first().stretch.right);
    QVERIFY(!window.controls.first().stretch.down);
    QVERIFY(window.controls.first().stretch.isAtBottom);
    QCOMPARE(window.menus.size(), 1);
    const QVector<MenuEntryDescription> &entries = window.menus.first().entries;
    QCOMPARE(entries.size(), 4);
    QCOMPARE(entries.at(0).button, QStringLiteral("save"));
    QCOMPARE(entries.at(0).keys, (QStringList{QStringLiteral("Ctrl+S"), QStringLiteral("F2")}));
    QCOMPARE(entries.at(0).label.value(QStringLiteral("ja_JP")), QStringLiteral("b"));
    QVERIFY(entries.at(1).isLine());
    QCOMPARE(entries.at(2).does, QStringLiteral("quit"));
    QCOMPARE(entries.at(3).run, QStringLiteral("map.new"));
}

void tst_MenuDescription::tellsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("error");
    QTest::newRow("no such button") << QByteArray(R"({"button": "open", "label": TEXT})")
                                    << QStringLiteral("button: \"open\" is unknown; use one of: save");
    QTest::newRow("nothing to do") << QByteArray(R"({"label": TEXT})")
                                   << QStringLiteral(
                                          "label: needs one of button, entry, run and does beside it");
    QTest::newRow("two things to do")
        << QByteArray(R"({"label": TEXT, "button": "save", "run": "map.new"})")
        << QStringLiteral("label: needs one of button, entry, run and does beside it");
    QTest::newRow("unknown") << QByteArray(R"({"label": TEXT, "button": "save", "key": "F2"})")
                             << QStringLiteral(
                                    "key: is not a field that is known here; remove it or correct its name");
    QTest::newRow("unknown deed") << QByteArray(R"({"label": TEXT, "does": "cut"})")
                                  << QStringLiteral(
                                         "does: \"cut\" is unknown; use one of: copy, paste, delete, quit");
}

void tst_MenuDescription::tellsWhatIsWrong()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, error);
    const DescriptionFiles files;
    QStringList errors;
    const QString path = files.write(QStringLiteral("Box.json"),
                                     windowWith(R"([{"label": TEXT, "entries": [)" + entry + "]}]"));
    const auto window = WindowDescription::read(path, &errors);
    QCOMPARE(errors, QStringList{path + QStringLiteral(": menus[0].entries[0].") + error});
}

void tst_MenuDescription::controlsFollowTheSizeOfTheirWindow_data()
{
    QTest::addColumn<bool>("right");
    QTest::addColumn<bool>("down");
    QTest::addColumn<bool>("atBottom");
    QTest::addColumn<QRect>("place");
    QTest::newRow("keeps its place") << false << false << false << QRect(10, 20, 30, 40);
    QTest::newRow("to the right") << true << false << false << QRect(10, 20, 35, 40);
    QTest::newRow("down") << false << true << false << QRect(10, 20, 30, 33);
    QTest::newRow("at the bottom") << true << false << true << QRect(10, 13, 35, 40);
}

void tst_MenuDescription::controlsFollowTheSizeOfTheirWindow()
{
    QFETCH(bool, right);
    QFETCH(bool, down);
    QFETCH(bool, atBottom);
    Stretch stretch;
    stretch.right = right;
    stretch.down = down;
    stretch.isAtBottom = atBottom;
    QTEST(stretch.apply({10, 20, 30, 40}, {5, -7}), "place");
}

QTEST_GUILESS_MAIN(tst_MenuDescription)
#include "tst_MenuDescription.moc"
