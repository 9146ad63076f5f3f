#include "FakeOverlayHost.h"
#include "Tutorial/overlay/TutorialLog.h"

#include <QApplication>
#include <QWindow>
#include <QtTest>

class tst_TutorialLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltAsOneHiddenPixel();
    void leavesNoNativeWindowToActivate();
    void methodTableIsComplete();
    void activationEndsThePopup();
    void lostActivationDoesNotEndThePopup();
    void otherChangesAreNotPassedOn();
};

void tst_TutorialLog::isBuiltAsOneHiddenPixel()
{
    FakeOverlayHost host;
    const TutorialLog log(nullptr, &host);
    QCOMPARE(log.windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QVERIFY(log.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(log.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(log.geometry(), QRect(-1, -1, 1, 1));
    QVERIFY(log.isHidden());
}

void tst_TutorialLog::leavesNoNativeWindowToActivate()
{
    FakeOverlayHost host;
    TutorialLog log(nullptr, &host);
    QCOMPARE(log.windowHandle()->handle(), nullptr);
    log.show();
    QVERIFY(log.windowHandle()->handle() != nullptr);
    QCOMPARE(log.geometry(), QRect(-1, -1, 1, 1));
    QCOMPARE(log.windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
}

void tst_TutorialLog::methodTableIsComplete()
{
    const QMetaObject &meta = TutorialLog::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("changeEvent(QEvent*)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void tst_TutorialLog::activationEndsThePopup()
{
    FakeOverlayHost host;
    TutorialLog log(nullptr, &host);
    host.calls.clear();
    log.show();
    log.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &log);
    QCOMPARE(host.calls, QStringList({QStringLiteral("activated"), QStringLiteral("visibility")}));
}

void tst_TutorialLog::lostActivationDoesNotEndThePopup()
{
    FakeOverlayHost host;
    TutorialLog log(nullptr, &host);
    log.show();
    log.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &log);
    host.calls.clear();
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &other);
    QCOMPARE(host.calls, QStringList(QStringLiteral("visibility")));
}

void tst_TutorialLog::otherChangesAreNotPassedOn()
{
    FakeOverlayHost host;
    TutorialLog log(nullptr, &host);
    host.calls.clear();
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&log, &event);
    QVERIFY(host.calls.isEmpty());
}

QTEST_MAIN(tst_TutorialLog)
#include "tst_TutorialLog.moc"
