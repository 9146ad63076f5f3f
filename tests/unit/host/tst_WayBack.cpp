#include "host/WayBack.h"

#include <QTest>

namespace {

using Does = Way::Does;

Way way(const char *by, const char *from, Does does, const char *to, const char *icon = "click")
{
    const QString window = QString::fromLatin1(from);
    return {{window, QString::fromLatin1(by)},
            QString::fromLatin1(icon),
            window,
            does,
            QString::fromLatin1(to),
            false};
}

OpenWindows open(const QStringList &names)
{
    OpenWindows windows;
    for (const QString &name : names) {
        windows.append({name, name.endsWith(QLatin1String("Popup")), {}, {}});
    }
    return windows;
}

/// The windows of a small editor: a list with a menu, a dialog with a dialog of its own, and a chain of
/// dialogs of which each closes when it opens the next.
Ways someWays()
{
    return {way("cancel", "Properties", Does::kCloses, "Properties"),
            way("ok", "Properties", Does::kCloses, "Properties"),
            way("close", "Picture", Does::kCloses, "Picture"),
            way("list", "Main", Does::kPopsUp, "ListPopup", "rightClick"),
            way("list", "Main", Does::kOpens, "Properties", "doubleClick"),
            way("@dismiss", "ListPopup", Does::kCloses, "ListPopup"),
            way("ListPopup/new", "ListPopup", Does::kOpens, "New"),
            way("cancel", "New", Does::kCloses, "New"),
            way("picture", "Properties", Does::kOpens, "Picture"),
            way("tool", "Main", Does::kOpens, "First"),
            way("go", "First", Does::kCloses, "First"),
            way("go", "First", Does::kOpens, "Second")};
}

} // namespace

class tst_WayBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheFirstUse_data();
    void findsTheFirstUse();
    void knowsHowTheWindowHasToComeUp();
    void aUseThatOpensOneOrTheOtherLeadsToEach_data();
    void aUseThatOpensOneOrTheOtherLeadsToEach();
    void endsWhereWaysGoRoundForEver();
};

void tst_WayBack::findsTheFirstUse_data()
{
    QTest::addColumn<QStringList>("from");
    QTest::addColumn<QStringList>("to");
    QTest::addColumn<QString>("use");
    const auto row = [](const char *name, const QStringList &from, const QStringList &to, const char *use) {
        QTest::newRow(name) << from << to << QString::fromLatin1(use);
    };
    const QString main = QStringLiteral("Main");
    const QString properties = QStringLiteral("Properties");
    const QString picture = QStringLiteral("Picture");
    const QString popup = QStringLiteral("ListPopup");
    const QString second = QStringLiteral("Second");
    row("nowhere to go", {main}, {main}, "");
    row("the window was closed", {main}, {main, properties}, "doubleClick list");
    row("two windows were closed", {main}, {main, properties, picture}, "doubleClick list");
    row("the upper of two was closed", {main, properties}, {main, properties, picture}, "click picture");
    row("a dialog is on top; what stands first is liked best", {main, properties}, {main}, "click cancel");
    row("two dialogs are on top", {main, properties, picture}, {main}, "click close");
    row("a menu is gone", {main}, {main, popup}, "rightClick list");
    row("a window of a menu was closed", {main}, {main, QStringLiteral("New")}, "rightClick list");
    row("that menu is open", {main, popup}, {main, QStringLiteral("New")}, "click ListPopup/new");
    row("a menu is to go", {main, popup}, {main}, "click @dismiss");
    row("any press closes a menu", {main, popup}, {main, properties}, "doubleClick list");
    row("another dialog is there", {main, properties}, {main, QStringLiteral("New")}, "click cancel");
    row("what closes itself and opens the next", {main}, {main, second}, "click tool");
    row("and is used for what it opens", {main, QStringLiteral("First")}, {main, second}, "click go");
    row("no way out", {main, second}, {main}, "");
    row("no way in", {main}, {main, QStringLiteral("Copying")}, "");
}

void tst_WayBack::findsTheFirstUse()
{
    QFETCH(QStringList, from);
    QFETCH(QStringList, to);
    const std::optional<Way> first =
        WayBack(someWays()).first(open(from), [to = open(to)](const OpenWindows &windows) {
            return std::equal(to.cbegin(), to.cend(), windows.cbegin(), windows.cend(),
                              [](const OpenWindow &a, const OpenWindow &b) { return a.isLike(b); });
        });
    QTEST(first ? first->icon + QLatin1Char(' ') + first->by.control : QString(), "use");
    if (QTest::currentDataTag() == QByteArray("and is used for what it opens")) {
        QCOMPARE(first->does, Does::kOpens);
    }
}

void tst_WayBack::knowsHowTheWindowHasToComeUp()
{
    const ControlSpot row3{QStringLiteral("Main"), QStringLiteral("list"), 3};
    OpenWindows wanted = open({QStringLiteral("Main"), QStringLiteral("Properties")});
    wanted.last().cause = row3;
    OpenWindows now = wanted;
    now.last().cause.part = 0;
    const auto isThere = [&wanted](const OpenWindows &windows) {
        return windows.size() == 2 && windows.constLast().isLike(wanted.constLast());
    };
    const WayBack search(someWays());
    QCOMPARE(search.first(now, isThere)->by.control, QStringLiteral("cancel"));
    QVERIFY(!search.first(wanted, isThere));
    now.last().cause = ControlSpot();
    QVERIFY(!search.first(now, isThere));
}

void tst_WayBack::aUseThatOpensOneOrTheOtherLeadsToEach_data()
{
    QTest::addColumn<QString>("window");
    QTest::newRow("the first") << QStringLiteral("Command");
    QTest::newRow("the second") << QStringLiteral("Choice");
    QTest::newRow("the first menu") << QStringLiteral("EventPopup");
    QTest::newRow("the second menu") << QStringLiteral("MapPopup");
}

void tst_WayBack::aUseThatOpensOneOrTheOtherLeadsToEach()
{
    QFETCH(QString, window);
    const Ways ways{way("commands", "Main", Does::kOpens, "Command", "doubleClick"),
                    way("commands", "Main", Does::kOpens, "Choice", "doubleClick"),
                    way("commands", "Main", Does::kPopsUp, "EventPopup", "rightClick"),
                    way("commands", "Main", Does::kPopsUp, "MapPopup", "rightClick")};
    const QString main = QStringLiteral("Main");
    const std::optional<Way> first = WayBack(ways).first(open({main}), [&](const OpenWindows &windows) {
        return windows.size() == 2 && windows.constLast().name == window;
    });
    QVERIFY(first);
    QCOMPARE(first->windowKey, window);
}

void tst_WayBack::endsWhereWaysGoRoundForEver()
{
    Ways ways;
    for (int i = 0; i < 40; ++i) {
        for (int j = 0; j < 40; ++j) {
            const QByteArray from = "Window" + QByteArray::number(i);
            ways.append(way("go", from.constData(), Does::kOpens,
                            ("Window" + QByteArray::number(j)).constData(),
                            QByteArray::number(j).constData()));
        }
    }
    const std::optional<Way> first = WayBack(ways).first(
        open({QStringLiteral("Window0")}), [](const OpenWindows & /*windows*/) { return false; });
    QVERIFY(!first);
}

QTEST_GUILESS_MAIN(tst_WayBack)
#include "tst_WayBack.moc"
