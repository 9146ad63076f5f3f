#include "XWindows.h"
#include "pilot/Action.h"
#include "pilot/x11/XEye.h"
#include "pilot/x11/XHand.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QShortcut>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kSoonMs = 30000;

constexpr QPoint kPlace(300, 200); // of the window in which it is clicked and typed

/// A window that remembers what the mouse did in it.
class MouseWindow : public QWidget
{
public:
    using QWidget::QWidget;

    QStringList m_seen;

protected:
    void mousePressEvent(QMouseEvent *event) override { note("press", event); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { note("double", event); }

private:
    void note(const char *what, const QMouseEvent *event)
    {
        const char *const button = event->button() == Qt::RightButton ? "right" : "left";
        m_seen += QStringLiteral("%1 %2 %3,%4")
                      .arg(QLatin1String(button), QLatin1String(what))
                      .arg(event->pos().x())
                      .arg(event->pos().y());
    }
};

SeenOverlays::Window onScreen(const QWidget &widget)
{
    return {QRect(XWindows::positionOf(widget.winId()), widget.size()), static_cast<quint32>(widget.winId())};
}

} // namespace

/// The pilot's hand and eye on real windows: those of this program stand for editor and companion at once.
class tst_HandAndEye : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void seesTheWindowsOfAProcess();
    void seesNoneThatIsHidden();
    void seesNoneOfAnotherProcess();
    void clicksWithEitherButton();
    void aDoubleClickIsOne();
    void pressesAButtonWhereverItHasGone();
    void missesAButtonThatIsGone();
    void typesWhatTheKeyboardHas();
    void typesNothingOfWhatItHasNot();
    void knowsWhereAClickGoes();
    void knowsWhetherAButtonIsCovered();
    void takesAPictureOfTheScreen();

private:
    /// A frameless window like the companion's.
    std::unique_ptr<QWidget> showOverlay(const QRect &rect);
    [[nodiscard]] Action actionAt(Action::Kind kind, const QPoint &inWindow) const;
    [[nodiscard]] bool isReady(const QPoint &inWindow);

    std::shared_ptr<const XConnection> m_x;
    std::unique_ptr<XEye> m_eye;
    std::unique_ptr<XHand> m_hand;
    std::unique_ptr<MouseWindow> m_window;
};

void tst_HandAndEye::initTestCase()
{
    QString error;
    m_x = XConnection::open(&error);
    QVERIFY2(m_x != nullptr, qPrintable(error));
}

void tst_HandAndEye::init()
{
    m_eye = std::make_unique<XEye>(m_x);
    m_eye->setCompanion(QCoreApplication::applicationPid());
    m_hand = std::make_unique<XHand>(m_x);
    m_window = std::make_unique<MouseWindow>();
    m_window->setGeometry(QRect(kPlace, QSize(400, 300)));
    m_window->show();
    // It may come up without the focus, as a window manager pleases; a click gives it.
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get(), kSoonMs));
    QTRY_VERIFY_WITH_TIMEOUT(isReady(QPoint(5, 5)), kSoonMs);
}

void tst_HandAndEye::cleanup()
{
    m_window.reset();
}

std::unique_ptr<QWidget> tst_HandAndEye::showOverlay(const QRect &rect)
{
    auto overlay =
        std::make_unique<MouseWindow>(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    overlay->setAttribute(Qt::WA_ShowWithoutActivating);
    overlay->setGeometry(rect);
    overlay->show();
    return QTest::qWaitForWindowExposed(overlay.get(), kSoonMs) ? std::move(overlay) : nullptr;
}

Action tst_HandAndEye::actionAt(Action::Kind kind, const QPoint &inWindow) const
{
    return {kind, XWindows::positionOf(m_window->winId()) + inWindow, 0, {}, 0};
}

bool tst_HandAndEye::isReady(const QPoint &inWindow)
{
    return m_eye->takesClickAt(XWindows::positionOf(m_window->winId()) + inWindow);
}

void tst_HandAndEye::seesTheWindowsOfAProcess()
{
    const std::unique_ptr<QWidget> bubble = showOverlay({500, 300, 640, 480});
    const std::unique_ptr<QWidget> no = showOverlay({756, 400, 64, 32});
    const std::unique_ptr<QWidget> yes = showOverlay({700, 400, 64, 32});
    QVERIFY(bubble != nullptr && no != nullptr && yes != nullptr);
    const auto isSeen = [&] {
        const std::optional<SeenOverlays> seen = m_eye->overlays();
        return seen && seen->bubble == onScreen(*bubble).rect &&
               seen->buttons == QVector<SeenOverlays::Window>{onScreen(*yes), onScreen(*no)};
    };
    QTRY_VERIFY_WITH_TIMEOUT(isSeen(), kSoonMs);
    bubble->move(450, 250);
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::positionOf(bubble->winId()), QPoint(450, 250), kSoonMs);
    QVERIFY(isSeen());
}

void tst_HandAndEye::seesNoneThatIsHidden()
{
    const std::unique_ptr<QWidget> button = showOverlay({700, 400, 64, 32});
    QVERIFY(button);
    QTRY_COMPARE_WITH_TIMEOUT(m_eye->overlays().value_or(SeenOverlays()).buttons.size(), 1, kSoonMs);
    button->hide();
    QTRY_VERIFY_WITH_TIMEOUT(m_eye->overlays() == SeenOverlays(), kSoonMs);
}

void tst_HandAndEye::seesNoneOfAnotherProcess()
{
    const std::unique_ptr<QWidget> button = showOverlay({700, 400, 64, 32});
    QVERIFY(button);
    QTRY_COMPARE_WITH_TIMEOUT(m_eye->overlays().value_or(SeenOverlays()).buttons.size(), 1, kSoonMs);
    m_eye->setCompanion(QCoreApplication::applicationPid() + 1);
    QVERIFY(m_eye->overlays() == SeenOverlays());
}

void tst_HandAndEye::clicksWithEitherButton()
{
    QCOMPARE(m_hand->perform(actionAt(Action::Kind::kClick, {40, 50})), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(m_window->m_seen, QStringList{QStringLiteral("left press 40,50")}, kSoonMs);
    QCOMPARE(m_hand->perform(actionAt(Action::Kind::kRightClick, {60, 70})), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(m_window->m_seen.value(1), QStringLiteral("right press 60,70"), kSoonMs);
}

void tst_HandAndEye::aDoubleClickIsOne()
{
    QCOMPARE(m_hand->perform(actionAt(Action::Kind::kDoubleClick, {40, 50})), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(
        m_window->m_seen,
        (QStringList{QStringLiteral("left press 40,50"), QStringLiteral("left double 40,50")}), kSoonMs);
}

void tst_HandAndEye::pressesAButtonWhereverItHasGone()
{
    const std::unique_ptr<QWidget> button = showOverlay({700, 400, 64, 32});
    QVERIFY(button);
    const Action press{Action::Kind::kPressButton, {21, 16}, onScreen(*button).id, {}, 0};
    button->move(350, 260);
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::positionOf(button->winId()), QPoint(350, 260), kSoonMs);
    QCOMPARE(m_hand->perform(press), Hand::Result::kDone);
    const auto &seen = static_cast<const MouseWindow *>(button.get())->m_seen;
    QTRY_COMPARE_WITH_TIMEOUT(seen, QStringList{QStringLiteral("left press 21,16")}, kSoonMs);
    QVERIFY(m_window->m_seen.isEmpty());
}

void tst_HandAndEye::missesAButtonThatIsGone()
{
    std::unique_ptr<QWidget> button = showOverlay({350, 260, 64, 32});
    QVERIFY(button);
    const Action press{Action::Kind::kPressButton, {21, 16}, onScreen(*button).id, {}, 0};
    button->hide();
    QTRY_COMPARE_WITH_TIMEOUT(m_hand->perform(press), Hand::Result::kMissed, kSoonMs);
    button.reset();
    QCOMPARE(m_hand->perform(press), Hand::Result::kMissed);
    // The window that is below now got none of it: its next click is its first.
    QCOMPARE(m_hand->perform(actionAt(Action::Kind::kClick, {40, 50})), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(m_window->m_seen, QStringList{QStringLiteral("left press 40,50")}, kSoonMs);
}

void tst_HandAndEye::typesWhatTheKeyboardHas()
{
    QLineEdit line(m_window.get());
    line.setGeometry(20, 20, 200, 30);
    line.setText(QStringLiteral("before"));
    line.show();
    QSignalSpy entered(&line, &QLineEdit::returnPressed);
    const Action click = actionAt(Action::Kind::kClick, line.geometry().center());
    QCOMPARE(m_hand->perform(click), Hand::Result::kDone);
    QTRY_VERIFY_WITH_TIMEOUT(line.hasFocus() && m_eye->takesKeysAt(click.place), kSoonMs);
    const QString text = QStringLiteral("Village 35, a_B!");
    QCOMPARE(m_hand->perform({Action::Kind::kSelectAll, {}, 0, {}, 0}), Hand::Result::kDone);
    QCOMPARE(m_hand->perform({Action::Kind::kType, {}, 0, text, 0}), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(line.text(), text, kSoonMs);
    QCOMPARE(entered.size(), 0);
    QCOMPARE(m_hand->perform({Action::Kind::kEnter, {}, 0, {}, 0}), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(entered.size(), 1, kSoonMs);
    const QShortcut escape(QKeySequence(Qt::Key_Escape), m_window.get());
    QSignalSpy escaped(&escape, &QShortcut::activated);
    QCOMPARE(m_hand->perform({Action::Kind::kEscape, {}, 0, {}, 0}), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(escaped.size(), 1, kSoonMs);
}

void tst_HandAndEye::typesNothingOfWhatItHasNot()
{
    QLineEdit line(m_window.get());
    line.setGeometry(20, 20, 200, 30);
    line.show();
    QCOMPARE(m_hand->perform(actionAt(Action::Kind::kClick, line.geometry().center())), Hand::Result::kDone);
    QTRY_VERIFY_WITH_TIMEOUT(line.hasFocus(), kSoonMs);
    QCOMPARE(m_hand->perform({Action::Kind::kType, {}, 0, QStringLiteral("a\u6751")}),
             Hand::Result::kImpossible);
    QCOMPARE(m_hand->perform({Action::Kind::kType, {}, 0, QStringLiteral("b")}), Hand::Result::kDone);
    QTRY_COMPARE_WITH_TIMEOUT(line.text(), QStringLiteral("b"), kSoonMs);
}

void tst_HandAndEye::knowsWhereAClickGoes()
{
    const Action click = actionAt(Action::Kind::kClick, {200, 150});
    QVERIFY(m_eye->takesClickAt(click.place));
    QCOMPARE(m_hand->perform(click), Hand::Result::kDone);
    QTRY_VERIFY_WITH_TIMEOUT(m_eye->takesKeysAt(click.place), kSoonMs);
    QVERIFY(!m_eye->takesClickAt(QPoint(5, 955)));
    // A dialog keeps the clicks from its parent, wherever the window manager has it.
    QDialog dialog(m_window.get());
    dialog.resize(200, 150);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog, kSoonMs));
    const auto inDialog = [&dialog] {
        return XWindows::positionOf(dialog.winId()) + QPoint(20, 20);
    };
    QTRY_VERIFY_WITH_TIMEOUT(m_eye->takesClickAt(inDialog()), kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_eye->takesKeysAt(inDialog()), kSoonMs);
    const QPoint besideDialog = XWindows::positionOf(m_window->winId()) + QPoint(3, 3);
    QVERIFY(!m_eye->takesClickAt(besideDialog));
    QVERIFY(!m_eye->takesKeysAt(besideDialog));
}

void tst_HandAndEye::knowsWhetherAButtonIsCovered()
{
    const std::unique_ptr<QWidget> button = showOverlay({700, 400, 64, 32});
    QVERIFY(button != nullptr);
    const auto id = quint32(button->winId());
    QTRY_VERIFY_WITH_TIMEOUT(m_eye->takesPressAt(id, {21, 16}), kSoonMs);
    const std::unique_ptr<QWidget> above = showOverlay({700, 400, 40, 32});
    QVERIFY(above != nullptr);
    above->raise(); // a window manager may show below what came first
    QTRY_VERIFY_WITH_TIMEOUT(!m_eye->takesPressAt(id, {21, 16}), kSoonMs);
    QVERIFY(m_eye->takesPressAt(id, {50, 16}));
    button->hide();
    QTRY_VERIFY_WITH_TIMEOUT(!m_eye->takesPressAt(id, {50, 16}), kSoonMs);
}

void tst_HandAndEye::takesAPictureOfTheScreen()
{
    QPalette red;
    red.setColor(QPalette::Window, QColor(200, 10, 20));
    m_window->setPalette(red);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("screen.png"));
    const QPoint spot = XWindows::positionOf(m_window->winId()) + QPoint(50, 50);
    const auto colour = [&] {
        return m_eye->takePicture(path) ? QImage(path).pixelColor(spot) : QColor();
    };
    QTRY_COMPARE_WITH_TIMEOUT(colour(), QColor(200, 10, 20), kSoonMs);
    QCOMPARE(QImage(path).size(), QSize(1280, 960));
    QVERIFY(!m_eye->takePicture(folder.filePath(QStringLiteral("nowhere/screen.png"))));
}

QTEST_MAIN(tst_HandAndEye)
#include "tst_HandAndEye.moc"
