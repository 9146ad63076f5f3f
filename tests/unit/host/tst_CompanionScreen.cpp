#include "SessionTest.h"

/// What the companion is told of the windows.
class tst_CompanionScreen : public SessionTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheWindowsBeforeTheFirstStep();
    void passesOnWhatTheWindowsDo();
    void tellsTheScreenThatTheEditorGoesTo();
    void tellsTheStackAnewAfterAnAbandonedPopup();
    void showsTheEditorsTooltips();
    void anOldTooltipDoesNotComeBackWithALesson();
};

void tst_CompanionScreen::tellsTheWindowsBeforeTheFirstStep()
{
    m_windows->open(QStringLiteral("Copying"));
    sent();
    m_session->receive(startCommand(kReading));
    QCOMPARE(sent(),
             (QStringList{QStringLiteral("start|0|0|1280|960"), QStringLiteral("windowStack|push|MainWindow"),
                          QStringLiteral("windowPosition|MainWindow|90|190"),
                          QStringLiteral("windowStack|push|Copying"),
                          QStringLiteral("windowPosition|Copying|300|400"),
                          QStringLiteral("applicationWindowSize|1100|720"),
                          // the middle of the main window, less the way from the bubble to the arrow's tip
                          QStringLiteral("indicator|updateXy|601|417"),
                          QStringLiteral("indicator|update|-9999|-9999||Read|5|3")}));
    QCOMPARE(m_session->bubblePlace(), QPoint(601, 417));
    QCOMPARE(m_problems, QStringList());
}

void tst_CompanionScreen::passesOnWhatTheWindowsDo()
{
    m_session->receive(startCommand(kReading));
    sent();
    Q_EMIT m_windows->pushed(QStringLiteral("Popup"));
    Q_EMIT m_windows->popped(QStringLiteral("Popup"));
    Q_EMIT m_windows->controlMoved(QStringLiteral("ok"), QPoint(3, 4));
    Q_EMIT m_windows->visibilityChanged(false);
    Q_EMIT m_windows->visibilityChanged(true);
    QCOMPARE(sent(), (QStringList{QStringLiteral("windowStack|push|Popup"), QStringLiteral("windowStack|pop"),
                                  QStringLiteral("controlPosition|ok|3|4"), QStringLiteral("state|hide"),
                                  QStringLiteral("state|show")}));
}

void tst_CompanionScreen::tellsTheScreenThatTheEditorGoesTo()
{
    const QString main = QStringLiteral("MainWindow");
    Q_EMIT m_windows->moved(main, QPoint(90, 40));
    sent();
    m_windows->m_screen = QRect(1280, 0, 1024, 768);
    Q_EMIT m_windows->moved(main, QPoint(1300, 40));
    // The companion would begin to play.
    QCOMPARE(sent(), QStringList{QStringLiteral("windowPosition|MainWindow|1300|40")});
    m_session->receive(startCommand(kReading));
    QCOMPARE(sent().value(0), QStringLiteral("start|1280|0|1024|768"));
    m_windows->m_screen = QRect(0, 0, 1280, 960);
    Q_EMIT m_windows->moved(main, QPoint(90, 40));
    Q_EMIT m_windows->moved(main, QPoint(91, 40));
    QCOMPARE(sent(), (QStringList{QStringLiteral("start|0|0|1280|960"),
                                  QStringLiteral("windowPosition|MainWindow|90|40"),
                                  QStringLiteral("windowPosition|MainWindow|91|40")}));
    m_session->stop();
    sent();
    m_windows->m_screen = QRect(1280, 0, 1024, 768);
    Q_EMIT m_windows->moved(main, QPoint(1300, 40));
    QCOMPARE(sent(), QStringList{QStringLiteral("windowPosition|MainWindow|1300|40")});
}

void tst_CompanionScreen::tellsTheStackAnewAfterAnAbandonedPopup()
{
    m_windows->open(QStringLiteral("Copying"));
    m_session->receive(startCommand(kPointing));
    Q_EMIT m_windows->pushed(QStringLiteral("Popup"));
    sent();
    Q_EMIT m_windows->popupAbandoned();
    const QStringList told = sent();

    // What the companion makes of it, whether it took "Popup" away by itself before, or did not.
    for (QStringList stack :
         {QStringList{QStringLiteral("MainWindow"), QStringLiteral("Copying")},
          QStringList{QStringLiteral("MainWindow"), QStringLiteral("Copying"), QStringLiteral("Popup")}}) {
        for (const QString &command : told) {
            if (command == QLatin1String("windowStack|pop")) {
                if (!stack.isEmpty()) {
                    stack.removeLast();
                }
            } else {
                QVERIFY2(command.startsWith(QLatin1String("windowStack|push|")), qPrintable(command));
                stack.append(command.section(QLatin1Char('|'), 2));
            }
        }
        QCOMPARE(stack, m_windows->openWindows());
    }
}

void tst_CompanionScreen::anOldTooltipDoesNotComeBackWithALesson()
{
    Q_EMIT m_windows->hovered(QStringLiteral("Save (Ctrl+S)"), QPoint(30, 40));
    Q_EMIT m_windows->unhovered();
    sent();
    m_session->receive(startCommand(kReading));
    const QStringList told = sent();
    const int emptied = int(told.indexOf(QStringLiteral("showTooltip||0|0")));
    QVERIFY(emptied >= 0);
    // The companion shows it again from its start on.
    QVERIFY(told.indexOf(QRegularExpression(QStringLiteral("^start\\|.*"))) > emptied);
}

void tst_CompanionScreen::showsTheEditorsTooltips()
{
    Q_EMIT m_windows->hovered(QStringLiteral("Save (Ctrl+S)"), QPoint(30, 40));
    Q_EMIT m_windows->unhovered();
    QCOMPARE(sent(),
             (QStringList{QStringLiteral("showTooltip|Save (Ctrl+S)|30|40"), QStringLiteral("hideTooltip")}));
    m_session->receive(startCommand(kReading));
    sent();
    Q_EMIT m_windows->unhovered();
    // One that is hidden while a lesson plays would come back.
    QCOMPARE(sent(), QStringList{QStringLiteral("showTooltip||0|0")});
}

QTEST_GUILESS_MAIN(tst_CompanionScreen)
#include "tst_CompanionScreen.moc"
