#include "CompanionWindowsTest.h"

#include <QtTest>

/// The entry "Popup" on top of the companion's window stack: a popup of the host editor closes when another
/// window becomes active, so the entry goes when an overlay does, and at no other time.
class tst_CompanionPopup : public CompanionWindowsTest
{
    Q_OBJECT

private Q_SLOTS:
    void clickOnNextEndsThePopup();
    void oneActivationEndsOnePopup();
    void nextActivationEndsTheNextPopup();
    void otherWindowsStayOnTheStack();
    void returnToTheHostEditorEndsNoPopup();
    void hiddenOverlaysEndNoPopup();

protected:
    void prepare(FakeHost &host) override { host.probe(); }

private:
    /// Begins a playback with these windows on the stack, and a step with these buttons.
    void playWith(const QStringList &stack, int buttons);
    void push(const QString &windowKey);
    bool clickNextOrYes() { return clickButton(kNextOrYesPlace, {20, 16}); }
    bool clickNo() { return clickButton(kNoPlace, {40, 16}); }
    void returnToTheHostEditor();
    /// What the window on top was, change by change, once the program has come to rest.
    QStringList changes();

    static constexpr QPoint kNextOrYesPlace{397 + 128, 297 + 64 + 56};
    static constexpr QPoint kNoPlace{397 + 128 + 56, 297 + 64 + 56};
    int m_seen = 0;
};

void tst_CompanionPopup::playWith(const QStringList &stack, int buttons)
{
    QTRY_VERIFY_WITH_TIMEOUT(m_host->probed().contains(QStringLiteral("watching")), kSoonMs);
    play();
    for (const QString &windowKey : stack) {
        push(windowKey);
    }
    update(400, 300, QString(), buttons);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    m_seen = m_host->probed().size();
    QCOMPARE(m_host->probed().constLast(), stack.constLast());
    QCOMPARE(XWindows::activeWindow(), m_below->winId());
}

void tst_CompanionPopup::push(const QString &windowKey)
{
    m_host->send({QStringLiteral("windowStack"), QStringLiteral("push"), windowKey});
}

void tst_CompanionPopup::returnToTheHostEditor()
{
    XWindows::click({60, 800});
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::activeWindow(), m_below->winId(), kSoonMs);
}

QStringList tst_CompanionPopup::changes()
{
    // Qt tells of a lost activation when no other window took it in a while: a heartbeat lies between.
    return waitForBeats(2) ? m_host->probed().mid(m_seen) : QStringList(QStringLiteral("no heartbeat"));
}

void tst_CompanionPopup::clickOnNextEndsThePopup()
{
    playWith({QStringLiteral("MainWindow"), QStringLiteral("Popup")}, kNext);
    QVERIFY(clickNextOrYes());
    QVERIFY(m_host->waitForPayloads(1));
    QCOMPARE(m_host->payloads(), QStringList(QStringLiteral("next")));
    QCOMPARE(changes(), QStringList(QStringLiteral("MainWindow")));
}

void tst_CompanionPopup::oneActivationEndsOnePopup()
{
    playWith({QStringLiteral("MainWindow"), QStringLiteral("Popup"), QStringLiteral("Popup"),
              QStringLiteral("Popup")},
             kYesNo);
    QVERIFY(clickNextOrYes());
    QVERIFY(m_host->waitForPayloads(1));
    QCOMPARE(changes(), QStringList(QStringLiteral("Popup")));
    // Another click on the button that is active is no activation.
    QVERIFY(clickNextOrYes());
    QVERIFY(m_host->waitForPayloads(2));
    QCOMPARE(changes(), QStringList(QStringLiteral("Popup")));
    // From one button to the other is one.
    QVERIFY(clickNo());
    QVERIFY(m_host->waitForPayloads(3));
    QCOMPARE(changes(), QStringList({QStringLiteral("Popup"), QStringLiteral("Popup")}));
}

void tst_CompanionPopup::nextActivationEndsTheNextPopup()
{
    playWith({QStringLiteral("MainWindow"), QStringLiteral("Popup")}, kNext);
    QStringList expected;
    for (int round = 1; round <= 3; ++round) {
        QVERIFY(clickNextOrYes());
        QVERIFY(m_host->waitForPayloads(round));
        expected += QStringLiteral("MainWindow");
        QCOMPARE(changes(), expected);
        returnToTheHostEditor();
        push(QStringLiteral("Popup"));
        expected += QStringLiteral("Popup");
        QCOMPARE(changes(), expected);
    }
}

void tst_CompanionPopup::otherWindowsStayOnTheStack()
{
    playWith({QStringLiteral("MainWindow"), QStringLiteral("Popup"), QStringLiteral("Menu")}, kNext);
    QVERIFY(clickNextOrYes());
    QVERIFY(m_host->waitForPayloads(1));
    QCOMPARE(changes(), QStringList());
}

void tst_CompanionPopup::returnToTheHostEditorEndsNoPopup()
{
    playWith({QStringLiteral("MainWindow")}, kNext);
    QVERIFY(clickNextOrYes());
    QVERIFY(m_host->waitForPayloads(1));
    // A menu opens under the click that takes the focus back: word of it may come before the change does.
    push(QStringLiteral("Popup"));
    returnToTheHostEditor();
    QCOMPARE(changes(), QStringList(QStringLiteral("Popup")));
    // Nor do the overlays take the focus back.
    QCOMPARE(XWindows::activeWindow(), m_below->winId());
}

void tst_CompanionPopup::hiddenOverlaysEndNoPopup()
{
    playWith({QStringLiteral("MainWindow"), QStringLiteral("Popup")}, kNext);
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 3, kSoonMs);
    QCOMPARE(changes(), QStringList());
    // Shown again, they go on as before: an active one keeps them all, until the host editor has the focus.
    QVERIFY(clickNextOrYes());
    QVERIFY(m_host->waitForPayloads(1));
    QCOMPARE(changes(), QStringList(QStringLiteral("MainWindow")));
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QVERIFY(waitForBeats(2));
    QCOMPARE(overlays().size(), 3);
    returnToTheHostEditor();
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    QCOMPARE(changes(), QStringList(QStringLiteral("MainWindow")));
}

QTEST_MAIN(tst_CompanionPopup)
#include "tst_CompanionPopup.moc"
