#include "Tutorial/playback/HostWindows.h"

#include <QTest>

class tst_HostWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_the_application_window_when_none_is_open();
    void names_the_window_on_top();
    void pops_nothing_from_an_empty_stack();
    void pops_only_an_open_popup_as_popup();
    void keeps_the_latest_position_of_a_key();
    void remembers_no_position_under_an_empty_key();
    void keeps_the_application_size();
};

void tst_HostWindows::names_the_application_window_when_none_is_open()
{
    HostWindows windows;
    QCOMPARE(windows.current(), QStringLiteral("ApplicationWindow"));
    windows.push(QStringLiteral("MainWindow"));
    windows.clear();
    QCOMPARE(windows.current(), QStringLiteral("ApplicationWindow"));
}

void tst_HostWindows::names_the_window_on_top()
{
    HostWindows windows;
    windows.push(QStringLiteral("MainWindow"));
    windows.push(QStringLiteral("NewProject"));
    QCOMPARE(windows.current(), QStringLiteral("NewProject"));
    QVERIFY(windows.pop());
    QCOMPARE(windows.current(), QStringLiteral("MainWindow"));
}

void tst_HostWindows::pops_nothing_from_an_empty_stack()
{
    HostWindows windows;
    QVERIFY(!windows.pop());
    QVERIFY(!windows.popPopup());
}

void tst_HostWindows::pops_only_an_open_popup_as_popup()
{
    HostWindows windows;
    windows.push(QStringLiteral("Popup"));
    windows.push(QStringLiteral("MainWindow"));
    QVERIFY(!windows.popPopup());
    QCOMPARE(windows.current(), QStringLiteral("MainWindow"));
    QVERIFY(windows.pop());
    QVERIFY(windows.popPopup());
    QCOMPARE(windows.current(), QStringLiteral("ApplicationWindow"));
}

void tst_HostWindows::keeps_the_latest_position_of_a_key()
{
    HostWindows windows;
    QCOMPARE(windows.position(QStringLiteral("MainWindow")), QPoint(0, 0));
    windows.setPosition(QStringLiteral("MainWindow"), QPoint(3, -4));
    windows.setPosition(QStringLiteral("MainWindow"), QPoint(5, 6));
    QCOMPARE(windows.position(QStringLiteral("MainWindow")), QPoint(5, 6));
}

void tst_HostWindows::remembers_no_position_under_an_empty_key()
{
    HostWindows windows;
    windows.setPosition(QString(), QPoint(3, 4));
    QCOMPARE(windows.position(QString()), QPoint(0, 0));
}

void tst_HostWindows::keeps_the_application_size()
{
    HostWindows windows;
    QCOMPARE(windows.applicationSize(), QSize(0, 0));
    windows.setApplicationSize(QSize(1280, 960));
    QCOMPARE(windows.applicationSize(), QSize(1280, 960));
}

QTEST_APPLESS_MAIN(tst_HostWindows)
#include "tst_HostWindows.moc"
