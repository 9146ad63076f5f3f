#include "DescriptionFiles.h"
#include "lesson/description/DescriptionSet.h"

#include <QtTest>

namespace {

const QStringList kCommands{QStringLiteral("map.edit"), QStringLiteral("map.new")};

const QString kShipped = QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions");

} // namespace

class tst_DescriptionSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedDescriptionsHaveNoErrors();
    void controlsOfAWindowDoNotOverlap();
    void everyFileIsCompiledIn();
    void controlsOfPopupsAreFoundByName();
    void tellsBadReferences_data();
    void tellsBadReferences();
    void leavesNamesOfTheEditorAloneWithoutThem();
    void placesControlsInTheirWindow();
    void knowsTheStatesOfActions();
    void knowsFromWhichWindowsOneIsOpened();
    void tellsAnEmptyFolder();
};

void tst_DescriptionSet::shippedDescriptionsHaveNoErrors()
{
    QStringList errors;
    const auto set = DescriptionSet::read(kShipped, nullptr, &errors);
    QCOMPARE(errors, QStringList());
    const QStringList firstLesson{QString(),
                                  QStringLiteral("ApplicationWindow"),
                                  QStringLiteral("Copying"),
                                  QStringLiteral("ImageSelector"),
                                  QStringLiteral("MainWindow"),
                                  QStringLiteral("MainWindowClient_mapEditorView"),
                                  QStringLiteral("MapEditTreeBox"),
                                  QStringLiteral("MapLoader"),
                                  QStringLiteral("MapProperties"),
                                  QStringLiteral("Menu"),
                                  QStringLiteral("NewProject")};
    for (const QString &key : firstLesson) {
        QVERIFY2(set.contains(key), qPrintable(key));
    }
}

void tst_DescriptionSet::controlsOfAWindowDoNotOverlap()
{
    QStringList errors;
    const auto set = DescriptionSet::read(kShipped, nullptr, &errors);
    const QStringList keys = set.keys();
    for (const QString &key : keys) {
        QVector<ControlDescription> places = set[key].controls;
        for (const QString &part : keys) {
            if (set[part].kind == WindowDescription::Kind::kPart && set[part].owner == key) {
                places.append(ControlDescription());
                places.last().name = part;
                places.last().geometry = QRect(set[part].place, set[part].size);
            }
        }
        for (int left = 0; left < places.size(); ++left) {
            QVERIFY2(QRect(QPoint(), set[key].size).contains(places[left].geometry),
                     qPrintable(places[left].name));
            for (int right = left + 1; right < places.size(); ++right) {
                QVERIFY2(!places[left].geometry.intersects(places[right].geometry) ||
                             excludeEachOther(places[left].shownWhen, places[right].shownWhen),
                         qPrintable(key + QLatin1Char(' ') + places[left].name + QLatin1Char(' ') +
                                    places[right].name));
            }
        }
    }
}

void tst_DescriptionSet::everyFileIsCompiledIn()
{
    QFile list(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions.qrc"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(list.readAll());
    const QStringList names = QDir(kShipped).entryList({QStringLiteral("*.json")}, QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QVERIFY2(text.contains(QStringLiteral("<file alias=\"%1\">descriptions/%1</file>").arg(name)),
                 qPrintable(name));
    }
    const QStringList choices =
        QDir(kShipped + QStringLiteral("/choices")).entryList({QStringLiteral("*.json")}, QDir::Files);
    for (const QString &name : choices) {
        QVERIFY2(text.contains(
                     QStringLiteral("<file alias=\"choices/%1\">descriptions/choices/%1</file>").arg(name)),
                 qPrintable(name));
    }
}

void tst_DescriptionSet::controlsOfPopupsAreFoundByName()
{
    QStringList errors;
    const auto set = DescriptionSet::read(kShipped, nullptr, &errors);
    QCOMPARE(set.popupKey(), QStringLiteral("Menu"));
    QVERIFY(set.popup(QStringLiteral("MapPopup")) != nullptr);
    QVERIFY(set.popup(QStringLiteral("NoPopup")) == nullptr);
}

void tst_DescriptionSet::tellsBadReferences_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *control, const char *error) {
        QTest::newRow(name) << QByteArray(control) << QString::fromLatin1(error);
    };
    row("window", R"("type": "progress", "click": {"open": "Other"})",
        "it.click.open: no window is called \"Other\"; add \"Other.json\" or correct the name");
    row("context menu", R"("type": "progress", "contextMenu": {"popup": "Other"})",
        "it.contextMenu.popup: no context menu is called \"Other\"; add it to \"Menu.json\"");
    row("command", R"("type": "progress", "doubleClick": {"run": "map.eat"})",
        "it.doubleClick.run: \"map.eat\" is unknown; use one of: map.edit, map.new");
    row("command in a window that opens",
        R"("type": "progress", "click": {"open": "Box", "begin": "map.eat"})",
        "it.click.begin: \"map.eat\" is unknown; use one of: map.edit, map.new");
    row("command with an argument", R"("type": "list", "delete": {"run": ["map.new", "map.eat data/Items"]})",
        "it.delete.run: \"map.eat\" is unknown; use one of: map.edit, map.new");
}

void tst_DescriptionSet::tellsBadReferences()
{
    QFETCH(QByteArray, control);
    QFETCH(QString, error);
    const DescriptionFiles files;
    const QByteArray text =
        "{\"key\": \"Box\", \"kind\": \"window\", \"size\": [90, 90], \"place\": [0, 0], \"title\": TEXT,"
        "\"controls\": [{\"name\": \"it\", \"geometry\": [0, 0, 9, 9], " +
        control + "}]}";
    const QString path =
        files.write(QStringLiteral("Box.json"),
                    QByteArray(text).replace("TEXT", R"({"en_US": "a", "ja_JP": "b", "zh_CN": "c"})"));
    QStringList errors;
    DescriptionSet::read(files.folder(), &kCommands, &errors);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().startsWith(path + QStringLiteral(": ") + error), qPrintable(errors.first()));
}

void tst_DescriptionSet::leavesNamesOfTheEditorAloneWithoutThem()
{
    const DescriptionFiles files;
    files.write(QStringLiteral("Box.json"),
                QByteArray("{\"key\": \"Box\", \"kind\": \"window\", \"size\": [90, 90], \"place\": [0, 0], "
                           "\"title\": TEXT, \"controls\": [{\"name\": \"it\", \"geometry\": [0, 0, 9, 9], "
                           "\"type\": \"button\", \"click\": {\"run\": \"map.eat\"}}]}")
                    .replace("TEXT", R"({"en_US": "a", "ja_JP": "b", "zh_CN": "c"})"));
    QStringList errors;
    DescriptionSet::read(files.folder(), nullptr, &errors);
    QCOMPARE(errors, QStringList());
    DescriptionSet::read(files.folder(), &kCommands, &errors);
    QCOMPARE(errors.size(), 1);
}

void tst_DescriptionSet::placesControlsInTheirWindow()
{
    QStringList errors;
    const auto set =
        DescriptionSet::read(QStringLiteral(FIXTURE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(errors, QStringList());
    const auto placesIn = [&set](const char *key) {
        QMap<QString, QRect> places;
        const QVector<ControlDescription> controls = set.controlsIn(QString::fromLatin1(key));
        for (const ControlDescription &control : controls) {
            places.insert(control.name, control.geometry);
        }
        return places;
    };
    QCOMPARE(placesIn("MainWindow"), (QMap<QString, QRect>{{QStringLiteral("tools"), {0, 4, 200, 48}},
                                                           {QStringLiteral("rows"), {0, 60, 90, 120}},
                                                           {QStringLiteral("tabs"), {0, 200, 90, 20}},
                                                           {QStringLiteral("map"), {100, 200, 320, 320}}}));
    QCOMPARE(placesIn("MapView"), (QMap<QString, QRect>{{QStringLiteral("map"), {0, 0, 320, 320}}}));
    QCOMPARE(placesIn("Menu"), (QMap<QString, QRect>{{QStringLiteral("MapPopup/newMap"), {4, 4, 192, 26}}}));
    QVERIFY(placesIn("").isEmpty());
    QVERIFY(placesIn("Cellar").isEmpty());
    QCOMPARE(set.size(QStringLiteral("NewProject")), QSize(400, 200));
    QVERIFY(set.size(QStringLiteral("Cellar")).isEmpty());
}

void tst_DescriptionSet::knowsTheStatesOfActions()
{
    QStringList errors;
    const auto set =
        DescriptionSet::read(QStringLiteral(FIXTURE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(set.actionStates(QStringLiteral("fileOpen")), QStringList{QStringLiteral("open")});
    QCOMPARE(set.actionStates(QStringLiteral("fileClose")), QStringList());
    // What an action begins may end by itself: a game that is tried out.
    const auto shipped = DescriptionSet::read(kShipped, nullptr, &errors);
    QCOMPARE(shipped.actionStates(QStringLiteral("play")).mid(0, 2),
             (QStringList{QStringLiteral("open"), QStringLiteral("close")}));
}

void tst_DescriptionSet::knowsFromWhichWindowsOneIsOpened()
{
    QStringList errors;
    const auto set = DescriptionSet::read(kShipped, nullptr, &errors);
    const QStringList fromMain{QStringLiteral("MainWindow")};
    QCOMPARE(set.openedFrom(QStringLiteral("NewProject")), fromMain);
    // By a double click in a part of it, and by its context menus.
    QCOMPARE(set.openedFrom(QStringLiteral("MapProperties")), fromMain);
    QCOMPARE(set.openedFrom(QStringLiteral("MapLoader")), fromMain);
    QVERIFY(set.openedFrom(QStringLiteral("ImageSelector")).contains(QStringLiteral("MapProperties")));
    QVERIFY(set.openedFrom(QStringLiteral("ImageSelector")).contains(QStringLiteral("DatabaseMain")));
    QCOMPARE(set.openedFrom(QStringLiteral("MainWindow")), QStringList());
    QCOMPARE(set.openedFrom(QStringLiteral("Other")), QStringList());
}

void tst_DescriptionSet::tellsAnEmptyFolder()
{
    const DescriptionFiles files;
    QStringList errors;
    DescriptionSet::read(files.folder(), nullptr, &errors);
    QCOMPARE(errors, QStringList{files.folder() + QStringLiteral(": holds no window descriptions (*.json)")});
}

QTEST_GUILESS_MAIN(tst_DescriptionSet)
#include "tst_DescriptionSet.moc"
