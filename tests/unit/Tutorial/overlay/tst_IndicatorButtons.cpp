#include "Tutorial/overlay/IndicatorButtons.h"
#include "Tutorial/overlay/IndicatorState.h"
#include "Tutorial/overlay/KeepPlace.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <memory>

namespace {

using Buttons = IndicatorButtons;

void activate(QWidget *widget)
{
    widget->show();
    widget->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), widget);
}

IndicatorState wanting(bool next, bool yesNo)
{
    IndicatorState state;
    state.nextWindowEnabled = next;
    state.yesNoWindowEnabled = yesNo;
    return state;
}

} // namespace

/// The three buttons without an indicator.
class tst_IndicatorButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_buttons.reset(); }

    void areBuiltHiddenWithCaptionsAndFont();
    void followTheState_data();
    void followTheState();
    void showingHidesNothing();
    void moveEachToItsPlace();
    void farPlacesAreCutToWhatAWindowReaches();
    void oneThatBecomesActiveIsTold();
    void oneThatTakesOverFromAnotherIsToldOnce();
    void aPressCountsAlthoughTheKeyboardIsTakenBack();
    void closedOnesAreLeftAlone();
    void deletesItsWindows();

private:
    [[nodiscard]] QList<bool> shown() const
    {
        return {m_buttons->window(Buttons::kNext)->isVisible(), m_buttons->window(Buttons::kYes)->isVisible(),
                m_buttons->window(Buttons::kNo)->isVisible()};
    }

    std::unique_ptr<IndicatorButtons> m_buttons;
};

void tst_IndicatorButtons::init()
{
    m_buttons = std::make_unique<IndicatorButtons>(
        std::array<QString, Buttons::kCount>{QStringLiteral("On"), QStringLiteral("Yes!"),
                                             QStringLiteral("No!")},
        QFont(QStringLiteral("Some Family")));
}

void tst_IndicatorButtons::areBuiltHiddenWithCaptionsAndFont()
{
    QCOMPARE(shown(), QList<bool>({false, false, false}));
    QCOMPARE(m_buttons->window(Buttons::kNext)->text(), QStringLiteral("On"));
    QCOMPARE(m_buttons->window(Buttons::kYes)->text(), QStringLiteral("Yes!"));
    QCOMPARE(m_buttons->window(Buttons::kNo)->text(), QStringLiteral("No!"));
    QCOMPARE(m_buttons->window(Buttons::kNo)->font().family(), QStringLiteral("Some Family"));
    QVERIFY(!m_buttons->isActive());
}

void tst_IndicatorButtons::followTheState_data()
{
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("yesNo");
    for (const bool next : {false, true}) {
        for (const bool yesNo : {false, true}) {
            QTest::addRow("next %d, yes and no %d", next, yesNo) << next << yesNo;
        }
    }
}

void tst_IndicatorButtons::followTheState()
{
    QFETCH(bool, next);
    QFETCH(bool, yesNo);
    m_buttons->follow(wanting(!next, !yesNo));
    m_buttons->follow(wanting(next, yesNo));
    QCOMPARE(shown(), QList<bool>({next, yesNo, yesNo}));
    m_buttons->hide();
    QCOMPARE(shown(), QList<bool>({false, false, false}));
    m_buttons->showWanted(wanting(next, yesNo));
    QCOMPARE(shown(), QList<bool>({next, yesNo, yesNo}));
}

void tst_IndicatorButtons::showingHidesNothing()
{
    m_buttons->follow(wanting(true, false));
    m_buttons->showWanted(wanting(false, true));
    QCOMPARE(shown(), QList<bool>({true, true, true}));
}

void tst_IndicatorButtons::moveEachToItsPlace()
{
    ButtonPlaces places;
    places.nextAndYes = {300, 200};
    places.no = {356, 200};
    m_buttons->move(places);
    QCOMPARE(m_buttons->place(Buttons::kNext), QPoint(300, 200));
    QCOMPARE(m_buttons->place(Buttons::kYes), QPoint(300, 200));
    QCOMPARE(m_buttons->place(Buttons::kNo), QPoint(356, 200));
    m_buttons->move(Buttons::kYes, {10, 20});
    QCOMPARE(m_buttons->place(Buttons::kNext), QPoint(300, 200));
    QCOMPARE(m_buttons->window(Buttons::kYes)->pos(), QPoint(10, 20));
    // What the window manager makes of it is not where it was asked to be.
    m_buttons->window(Buttons::kYes)->move(11, 21);
    QCOMPARE(m_buttons->place(Buttons::kYes), QPoint(10, 20));
}

void tst_IndicatorButtons::farPlacesAreCutToWhatAWindowReaches()
{
    const int far = std::numeric_limits<int>::max();
    m_buttons->move(Buttons::kNext, {far, -far});
    QCOMPARE(m_buttons->place(Buttons::kNext), clampToReach({far, -far}));
}

void tst_IndicatorButtons::oneThatBecomesActiveIsTold()
{
    QWidget other;
    m_buttons->follow(wanting(true, true));
    QCoreApplication::processEvents(); // this platform makes active what is shown
    activate(&other);
    QVERIFY(!m_buttons->isActive());
    const QSignalSpy changed(m_buttons.get(), &Buttons::activationChanged);
    activate(m_buttons->window(Buttons::kYes));
    QVERIFY(m_buttons->isActive());
    QCOMPARE(changed.count(), 1);
    activate(&other);
    QVERIFY(!m_buttons->isActive());
    QCOMPARE(changed.count(), 2);
}

void tst_IndicatorButtons::oneThatTakesOverFromAnotherIsToldOnce()
{
    m_buttons->follow(wanting(true, true));
    QCoreApplication::processEvents(); // this platform makes active what is shown
    activate(m_buttons->window(Buttons::kYes));
    const QSignalSpy changed(m_buttons.get(), &Buttons::activationChanged);
    activate(m_buttons->window(Buttons::kNo));
    QCOMPARE(changed.count(), 1);
}

void tst_IndicatorButtons::aPressCountsAlthoughTheKeyboardIsTakenBack()
{
    QPushButton *const next = m_buttons->window(Buttons::kNext);
    QSignalSpy clicked(next, &QPushButton::clicked);
    QWidget editor;
    activate(next);
    QTest::mousePress(next, Qt::LeftButton);
    QVERIFY(next->isDown());
    activate(&editor);
    QVERIFY(!next->hasFocus());
    QTest::mouseRelease(next, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    // What is pressed with the keyboard is given up with it.
    activate(next);
    QTest::keyPress(next, Qt::Key_Space);
    QVERIFY(next->isDown());
    activate(&editor);
    QVERIFY(!next->isDown());
    QCOMPARE(clicked.size(), 1);
}

void tst_IndicatorButtons::closedOnesAreLeftAlone()
{
    m_buttons->follow(wanting(true, true));
    m_buttons->move(Buttons::kNo, {30, 40});
    const QPointer<QPushButton> no = m_buttons->window(Buttons::kNo);
    m_buttons->close();
    QCOMPARE(m_buttons->window(Buttons::kNo), nullptr);
    QVERIFY(no != nullptr && no->isHidden());
    m_buttons->follow(wanting(true, true));
    m_buttons->showWanted(wanting(true, true));
    m_buttons->hide();
    m_buttons->move(Buttons::kNo, {50, 60});
    QVERIFY(no->isHidden());
    QCOMPARE(KeepPlace::placeOf(no), QPoint(30, 40));
    QCOMPARE(m_buttons->place(Buttons::kNo), QPoint(0, 0));
    QVERIFY(!m_buttons->isActive());
    m_buttons->close();
}

void tst_IndicatorButtons::deletesItsWindows()
{
    m_buttons->follow(wanting(true, true));
    const QPointer<QPushButton> next = m_buttons->window(Buttons::kNext);
    const QPointer<QPushButton> no = m_buttons->window(Buttons::kNo);
    m_buttons->close();
    m_buttons.reset();
    QVERIFY(next.isNull());
    QVERIFY(no.isNull());
}

QTEST_MAIN(tst_IndicatorButtons)
#include "tst_IndicatorButtons.moc"
