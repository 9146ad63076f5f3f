#include "Tutorial/playback/HostWindows.h"

#include <QTest>

class tst_HostWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheApplicationWindowWhenNoneIsOpen();
    void namesTheWindowOnTop();
    void popsNothingFromAnEmptyStack();
    void popsOnlyAnOpenPopupAsPopup();
    void keepsTheLatestPositionOfAKey();
    void remembersNoPositionUnderAnEmptyKey();
    void keepsTheApplicationSize();
};

void tst_HostWindows::namesTheApplicationWindowWhenNoneIsOpen()
{
    HostWindows windows;
    QCOMPARE(windows.current(), QStringLiteral("ApplicationWindow"));
    windows.push(QStringLiteral("MainWindow"));
    windows.clear();
    QCOMPARE(windows.current(), QStringLiteral("ApplicationWindow"));
}

void tst_HostWindows::namesTheWindowOnTop()
{
    HostWindows windows;
    windows.push(QStringLiteral("MainWindow"));
    windows.push(QStringLiteral("NewProject"));
    QCOMPARE(windows.current(), QStringLiteral("NewProject"));
    QVERIFY(windows.pop());
    QCOMPARE(windows.current(), QStringLiteral("MainWindow"));
}

void tst_HostWindows::popsNothingFromAnEmptyStack()
{
    HostWindows windows;
    QVERIFY(!windows.pop());
    QVERIFY(!windows.popPopup());
}

void tst_HostWindows::popsOnlyAnOpenPopupAsPopup()
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

void tst_HostWindows::keepsTheLatestPositionOfAKey()
{
    HostWindows windows;
    QCOMPARE(windows.position(QStringLiteral("MainWindow")), QPoint(0, 0));
    windows.setPosition(QStringLiteral("MainWindow"), QPoint(3, -4));
    windows.setPosition(QStringLiteral("MainWindow"), QPoint(5, 6));
    QCOMPARE(windows.position(QStringLiteral("MainWindow")), QPoint(5, 6));
}

void tst_HostWindows::remembersNoPositionUnderAnEmptyKey()
{
    HostWindows windows;
    windows.setPosition(QString(), QPoint(3, 4));
    QCOMPARE(windows.position(QString()), QPoint(0, 0));
}

void tst_HostWindows::keepsTheApplicationSize()
{
    HostWindows windows;
    QCOMPARE(windows.applicationSize(), QSize(0, 0));
    windows.setApplicationSize(QSize(1280, 960));
    QCOMPARE(windows.applicationSize(), QSize(1280, 960));
}

QTEST_APPLESS_MAIN(tst_HostWindows)
#include "tst_HostWindows.moc"
