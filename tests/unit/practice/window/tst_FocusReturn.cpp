#include "window/FocusReturn.h"

#include <QDialog>
#include <QTest>
#include <QWindow>

#include <optional>

namespace {

void show(QWidget *window)
{
    window->resize(100, 60);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
}

} // namespace

/// Where the keyboard goes after a button of the companion.
class tst_FocusReturn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFocusIsBroughtBackToTheWindowOnTop();
    void aWindowThatWasThereGivesTheFocusBack();
    void aWindowThatComesLaterKeepsTheFocus();
    void aWindowInThePlaceOfOneThatHasGoneKeepsTheFocus();
    void aQuestionKeepsTheFocus();

private:
    QWidget m_below;
    QWidget m_top;
};

void tst_FocusReturn::init()
{
    show(&m_below);
    show(&m_top);
}

void tst_FocusReturn::theFocusIsBroughtBackToTheWindowOnTop()
{
    m_below.activateWindow();
    QTRY_VERIFY(m_below.isActiveWindow());
    FocusReturn focus([this] { return &m_top; });
    focus.begin();
    QTRY_VERIFY(m_top.isActiveWindow());
}

void tst_FocusReturn::aWindowThatWasThereGivesTheFocusBack()
{
    FocusReturn focus([this] { return &m_top; });
    focus.begin();
    QTRY_VERIFY(m_top.isActiveWindow());
    m_below.activateWindow();
    QTRY_VERIFY(m_top.isActiveWindow());
    QTRY_COMPARE(QGuiApplication::focusWindow(), m_top.windowHandle());
}

void tst_FocusReturn::aWindowThatComesLaterKeepsTheFocus()
{
    FocusReturn focus([this] { return &m_top; });
    focus.begin();
    QTRY_VERIFY(m_top.isActiveWindow());
    QWidget game;
    show(&game);
    game.activateWindow();
    QTRY_VERIFY(game.isActiveWindow());
    // Until its time is over, it looks again and again.
    QVERIFY(!QTest::qWaitFor([this] { return m_top.isActiveWindow(); }, FocusReturn::kMs / 4));
}

void tst_FocusReturn::aWindowInThePlaceOfOneThatHasGoneKeepsTheFocus()
{
    // Of the two, the second one has the address of the first.
    std::optional<QWindow> window;
    const auto begin = [&window] {
        window.emplace();
        window->resize(100, 60);
        window->show();
        return QTest::qWaitForWindowExposed(&*window);
    };
    QVERIFY(begin());
    FocusReturn focus([this] { return &m_top; });
    focus.begin();
    QTRY_VERIFY(m_top.isActiveWindow());
    window.reset();
    QVERIFY(begin());
    window->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), &*window);
    QVERIFY(!QTest::qWaitFor([this] { return m_top.isActiveWindow(); }, FocusReturn::kMs / 4));
}

void tst_FocusReturn::aQuestionKeepsTheFocus()
{
    FocusReturn focus([this] { return &m_top; });
    QDialog question(&m_below);
    question.setModal(true);
    show(&question);
    focus.begin();
    question.activateWindow();
    QTRY_VERIFY(question.isActiveWindow());
    QVERIFY(!QTest::qWaitFor([this] { return m_top.isActiveWindow(); }, FocusReturn::kMs / 4));
}

QTEST_MAIN(tst_FocusReturn)
#include "tst_FocusReturn.moc"
