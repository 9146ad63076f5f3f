#include "FakeHost.h"
#include "XWindows.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QSet>
#include <QWidget>
#include <QtTest>

namespace {

const QSize kBubble(640, 480);
const QSize kButton(64, 32);
const QSize kTooltip(320, 240);
const QSize kLog(1, 1);
const QColor kBelow(40, 96, 160);

constexpr int kSoonMs = 30000;

constexpr int kNext = 1;
constexpr int kYesNo = 2;
constexpr int kArrow = 4;
constexpr int kNoIcon = 6;

constexpr int kTicksToRebuild = 30;

// The host editor's window: below the overlays, of one colour, counting what the mouse does to it.
class WindowBelow final : public QWidget
{
public:
    int presses = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event)
        QPainter(this).fillRect(rect(), kBelow);
    }
    void mousePressEvent(QMouseEvent *event) override
    {
        Q_UNUSED(event)
        ++presses;
    }
};

QStringList idsOf(const QVector<XWindows::Window> &windows)
{
    QStringList ids;
    for (const XWindows::Window &window : windows) {
        ids += window.id;
    }
    ids.sort();
    return ids;
}

QStringList placesOf(const QVector<XWindows::Window> &windows)
{
    QStringList places;
    for (const XWindows::Window &window : windows) {
        places += QStringLiteral("%1x%2 at %3,%4")
                      .arg(window.rect.width())
                      .arg(window.rect.height())
                      .arg(window.rect.x())
                      .arg(window.rect.y());
    }
    places.sort();
    return places;
}

// What tells the screen's @p area from @p picture drawn at @p at in it, on the host editor's window; nothing
// when they look the same. What is partly transparent is blended by the compositor here and by Qt there,
// which round differently; everything else must be exact.
QString difference(const QRect &area, const QImage &picture, const QPoint &at)
{
    const QImage seen = XWindows::screenshot(area);
    if (seen.size() != area.size()) {
        return QStringLiteral("no screenshot");
    }
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QPoint inside = QPoint(x, y) - at;
            const QColor over =
                picture.rect().contains(inside) ? picture.pixelColor(inside) : QColor(0, 0, 0, 0);
            const int alpha = over.alpha();
            const int tolerance = alpha == 0 || alpha == 255 ? 0 : 3;
            const auto blend = [alpha](int above, int below) {
                return (above * alpha + below * (255 - alpha)) / 255;
            };
            const QColor expected(blend(over.red(), kBelow.red()), blend(over.green(), kBelow.green()),
                                  blend(over.blue(), kBelow.blue()));
            const QColor pixel = seen.pixelColor(x, y);
            if (qAbs(pixel.red() - expected.red()) > tolerance ||
                qAbs(pixel.green() - expected.green()) > tolerance ||
                qAbs(pixel.blue() - expected.blue()) > tolerance) {
                return QStringLiteral("%1 instead of %2 at %3,%4, alpha %5")
                    .arg(pixel.name(), expected.name())
                    .arg(x)
                    .arg(y)
                    .arg(alpha);
            }
        }
    }
    return {};
}

// Waits until the screen looks so; gives the last difference when it never did.
QString lastDifference(const QRect &area, const QImage &picture, const QPoint &at)
{
    QString last;
    FakeHost::waitFor([&] {
        last = difference(area, picture, at);
        return last.isEmpty();
    });
    return last;
}

QImage picture(const QString &name)
{
    return QImage(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/png/%1.png").arg(name));
}

} // namespace

/// The program's windows as the X server and the people before it have them.
class tst_CompanionWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowsAreOverlays();
    void restsThreePixelsShort();
    void mirrorsAndReturns();
    void turnsUpsideDownAndBack();
    void noTargetKeepsTheBubbleInPlace();
    void clicksReachTheWindowBelow();
    void eachClickOnAButtonIsOneCommand();
    void staysOnTop();
    void focusStaysInTheHostEditor();
    void shortAbsenceKeepsTheWindows();
    void longAbsenceRebuildsTheWindows();
    void hostThatWasNeverHiddenMayShowItself();
    void nothingIsShownBeforeTheStart();
    void logWindowShowsNothing();
    void tooltipFadesStepByStep();
    void arrowIsPaintedAtBothEnds_data();
    void arrowIsPaintedAtBothEnds();

private:
    void play();
    void update(int x, int y, const QString &hint, int flags, int icon = kNoIcon);
    bool waitForBeats(int count);
    void verifyBubbleAt(const QPoint &place);
    void verifyClicksPass(const QVector<QPoint> &spots);
    bool clickButton(const QPoint &place, const QPoint &inside);
    [[nodiscard]] qint64 pid() const { return m_host->process().processId(); }
    [[nodiscard]] QVector<XWindows::Window> overlays() const { return XWindows::mapped(pid()); }
    [[nodiscard]] QVector<XWindows::Window> overlays(const QSize &size) const
    {
        return XWindows::mapped(pid(), size);
    }
    [[nodiscard]] bool bubbleIsAt(const QPoint &place) const
    {
        const QVector<XWindows::Window> bubbles = overlays(kBubble);
        return bubbles.size() == 1 && bubbles.first().rect.topLeft() == place;
    }

    std::unique_ptr<WindowBelow> m_below;
    std::unique_ptr<FakeHost> m_host;
};

void tst_CompanionWindows::init()
{
    m_below = std::make_unique<WindowBelow>();
    m_below->setGeometry(20, 40, 1200, 880);
    m_below->show();
    m_below->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_below.get(), kSoonMs));
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::activeWindow(), m_below->winId(), kSoonMs);
    m_host = std::make_unique<FakeHost>();
    QVERIFY(m_host->start());
    m_host->answerHeartbeats();
}

void tst_CompanionWindows::cleanup()
{
    // However a test went, the program leaves quietly: nothing in its log comes from anyone but itself.
    m_host->disconnectLink();
    QVERIFY(m_host->waitForEnd());
    QCOMPARE(m_host->process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host->process().exitCode(), 0);
    const QStringList lines = m_host->log().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith(QStringLiteral("..\\..\\tutorial\\")), qPrintable(line));
    }
    m_host.reset();
    m_below.reset();
}

void tst_CompanionWindows::play()
{
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
}

void tst_CompanionWindows::update(int x, int y, const QString &hint, int flags, int icon)
{
    m_host->send({QStringLiteral("indicator"), QStringLiteral("update"), QString::number(x),
                  QString::number(y), QStringLiteral("MainWindow"), hint, QString::number(flags),
                  QString::number(icon)});
}

// Heartbeats of the program from now on, ten ticks apart.
bool tst_CompanionWindows::waitForBeats(int count)
{
    if (!m_host->sync()) {
        return false;
    }
    const int now = m_host->log().size();
    return FakeHost::waitFor([&] {
        return m_host->log().midRef(now).count(QStringLiteral("TutorialManager::send 1396 \"alive\"")) >=
               count;
    });
}

// With 64 pixels of hint height, which is what stands until a hint is measured.
void tst_CompanionWindows::verifyBubbleAt(const QPoint &place)
{
    QTRY_VERIFY2_WITH_TIMEOUT(bubbleIsAt(place), qPrintable(placesOf(overlays()).join(QStringLiteral("; "))),
                              kSoonMs);
    const QString next = QStringLiteral("64x32 at %1,%2").arg(place.x() + 128).arg(place.y() + 64 + 56);
    const QString no = QStringLiteral("64x32 at %1,%2").arg(place.x() + 128 + 56).arg(place.y() + 64 + 56);
    QTRY_COMPARE_WITH_TIMEOUT(placesOf(overlays(kButton)), QStringList({next, next, no}), kSoonMs);
    QVERIFY(bubbleIsAt(place));
}

void tst_CompanionWindows::windowsAreOverlays()
{
    play();
    update(400, 300, QStringLiteral("Hint"), kNext | kYesNo | kArrow);
    m_host->send(
        {QStringLiteral("showTooltip"), QStringLiteral("Tip"), QStringLiteral("700"), QStringLiteral("600")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    QCOMPARE(overlays(kBubble).size(), 1);
    QCOMPARE(overlays(kButton).size(), 3);
    QCOMPARE(overlays(kTooltip).size(), 1);
    QCOMPARE(overlays(kLog).size(), 1);
    const QVector<XWindows::Window> windows = overlays();
    for (const XWindows::Window &window : windows) {
        const QString type = XWindows::property(window.id, QStringLiteral("_NET_WM_WINDOW_TYPE"));
        QVERIFY2(type.startsWith(QStringLiteral("_NET_WM_WINDOW_TYPE_UTILITY")), qPrintable(type));
        QTRY_VERIFY_WITH_TIMEOUT(XWindows::property(window.id, QStringLiteral("_NET_WM_STATE"))
                                     .contains(QStringLiteral("_NET_WM_STATE_ABOVE")),
                                 kSoonMs);
        // No decorations.
        const QString hints = XWindows::property(window.id, QStringLiteral("_MOTIF_WM_HINTS"));
        QCOMPARE(hints.section(QStringLiteral(", "), 2, 2), QStringLiteral("0x0"));
    }
}

void tst_CompanionWindows::restsThreePixelsShort()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    update(300, 200, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({300, 200});
    m_host->send({QStringLiteral("indicator"), QStringLiteral("updateXy"), QStringLiteral("310"),
                  QStringLiteral("150")});
    verifyBubbleAt({307, 150});
}

void tst_CompanionWindows::mirrorsAndReturns()
{
    play();
    update(300, 200, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({297, 197});
    // It passes the mirrored place on its way and comes back to it from the right.
    update(1000, 197, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({1000 - 180 - 128, 197});
    // In the band between the two limits nothing changes.
    update(880, 197, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({880 - 180 - 128, 197});
    update(600, 197, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 197});
}

void tst_CompanionWindows::turnsUpsideDownAndBack()
{
    play();
    update(600, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 297});
    update(597, -5, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, -5 + 165});
    update(597, 64, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 64 + 165 - 3});
    update(597, 65, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({597, 65});
}

void tst_CompanionWindows::noTargetKeepsTheBubbleInPlace()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    update(-9999, -9999, QString(), kNext | kYesNo | kArrow);
    QVERIFY(m_host->sync());
    QCOMPARE(lastDifference({397, 297, 128, 144}, QImage(), {}), QString());
    verifyBubbleAt({397, 297});
}

void tst_CompanionWindows::verifyClicksPass(const QVector<QPoint> &spots)
{
    for (const QPoint &spot : spots) {
        // The window manager hears after the window itself that clicks are to pass.
        QTRY_VERIFY_WITH_TIMEOUT(XWindows::takesClick(m_below->winId(), spot), kSoonMs);
        const int before = m_below->presses;
        XWindows::click(spot);
        QTRY_COMPARE_WITH_TIMEOUT(m_below->presses, before + 1, kSoonMs);
    }
}

// Clicks a spot inside of the button whose corner is at @p place, as soon as there is one to take it.
bool tst_CompanionWindows::clickButton(const QPoint &place, const QPoint &inside)
{
    const auto isReady = [this, place, inside] {
        const QVector<XWindows::Window> buttons = overlays(kButton);
        return std::any_of(buttons.cbegin(), buttons.cend(), [place, inside](const XWindows::Window &button) {
            return button.rect.topLeft() == place &&
                   XWindows::takesClick(XWindows::idOf(button), place + inside);
        });
    };
    if (!FakeHost::waitFor(isReady)) {
        return false;
    }
    XWindows::click(place + inside);
    return true;
}

void tst_CompanionWindows::clicksReachTheWindowBelow()
{
    play();
    update(400, 300, QStringLiteral("Click through this text."), kArrow, 0);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    m_host->send({QStringLiteral("showTooltip"), QStringLiteral("Through this one too"),
                  QStringLiteral("700"), QStringLiteral("650")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 1, kSoonMs);
    const QPoint tooltip = overlays(kTooltip).constFirst().rect.topLeft();
    // The arrow, the icon, the hint, nothing in particular; and the tooltip's text and the rest of it.
    const QVector<QPoint> spots{{397 + 40, 297 + 80},  {397 + 150, 297 + 25},    {397 + 200, 297 + 66},
                                {397 + 40, 297 + 400}, tooltip + QPoint(10, 10), tooltip + QPoint(200, 200)};
    verifyClicksPass(spots);
    if (QTest::currentTestFailed()) {
        return;
    }
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 3, kSoonMs);
    verifyClicksPass(spots);
}

void tst_CompanionWindows::eachClickOnAButtonIsOneCommand()
{
    play();
    update(400, 300, QString(), kNext);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kButton).size(), 1, kSoonMs);
    const QPoint place(397 + 128, 297 + 64 + 56);
    QVERIFY(clickButton(place, {20, 16}));
    QVERIFY(m_host->waitForPayloads(1));
    QVERIFY(m_host->syncBothWays());
    QCOMPARE(m_host->payloads(), QStringList(QStringLiteral("next")));
    QCOMPARE(overlays(kButton).size(), 1);

    update(400, 300, QString(), kYesNo);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kButton).size(), 2, kSoonMs);
    QVERIFY(clickButton(place, {20, 16}));
    QVERIFY(m_host->waitForPayloads(2));
    QVERIFY(clickButton(place + QPoint(56, 0), {40, 16}));
    QVERIFY(m_host->waitForPayloads(3));
    QVERIFY(m_host->syncBothWays());
    QCOMPARE(m_host->payloads(),
             QStringList({QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no")}));
    QCOMPARE(m_below->presses, 0);
}

void tst_CompanionWindows::staysOnTop()
{
    play();
    update(400, 300, QStringLiteral("Hint"), kNext | kArrow);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    const auto isAbove = [this] {
        const QStringList order =
            XWindows::run(QStringLiteral("xprop"),
                          {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")})
                .section(QStringLiteral("# "), 1)
                .trimmed()
                .split(QStringLiteral(", "));
        const int below =
            order.indexOf(QStringLiteral("0x%1").arg(static_cast<quint64>(m_below->winId()), 0, 16));
        const QStringList ids = idsOf(overlays());
        return below >= 0 && ids.size() == 3 && std::all_of(ids.cbegin(), ids.cend(), [&](const QString &id) {
                   return order.indexOf(id) > below;
               });
    };
    QTRY_VERIFY_WITH_TIMEOUT(isAbove(), kSoonMs);
    const QString below = QString::number(m_below->winId());
    for (const char *const action : {"windowraise", "windowactivate"}) {
        XWindows::run(QStringLiteral("xdotool"), {QString::fromLatin1(action), below});
        QTRY_VERIFY_WITH_TIMEOUT(isAbove(), kSoonMs);
    }
    XWindows::click({60, 800});
    QTRY_COMPARE_WITH_TIMEOUT(m_below->presses, 1, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(isAbove(), kSoonMs);
}

void tst_CompanionWindows::focusStaysInTheHostEditor()
{
    const auto verifyFocus = [this] {
        // A heartbeat lies between: whoever wanted the focus has had a second to take it.
        QVERIFY(waitForBeats(2));
        QCOMPARE(XWindows::activeWindow(), m_below->winId());
        QVERIFY(m_below->isActiveWindow());
    };
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    verifyFocus();
    m_host->send({QStringLiteral("start")});
    QTRY_VERIFY_WITH_TIMEOUT(!overlays().isEmpty(), kSoonMs);
    verifyFocus();
    update(400, 300, QStringLiteral("Hint"), kNext | kYesNo | kArrow);
    m_host->send(
        {QStringLiteral("showTooltip"), QStringLiteral("Tip"), QStringLiteral("700"), QStringLiteral("600")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    verifyFocus();
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    verifyFocus();
}

void tst_CompanionWindows::shortAbsenceKeepsTheWindows()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    const QStringList places = placesOf(overlays());
    const QRegularExpression line(QStringLiteral("TutorialManager::timerEvent 427 (\\d+)\\n"));
    QStringList ids;
    int ticks = kTicksToRebuild;
    // The program says itself how long the host editor was away; what a slow machine drew out is not short.
    for (int absence = 1; absence <= 20 && ticks >= kTicksToRebuild; ++absence) {
        ids = idsOf(overlays());
        const int logged = m_host->log().size();
        m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
        QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
        m_host->send({QStringLiteral("state"), QStringLiteral("show")});
        // The next "show" within ten ticks would be none.
        QVERIFY(FakeHost::waitFor([&] {
            return m_host->log().midRef(logged).contains(QLatin1String("m_logHideIgnoreTimeout now 0\n"));
        }));
        const QRegularExpressionMatch match = line.match(m_host->log(), logged);
        QVERIFY(match.hasMatch());
        ticks = match.captured(1).toInt();
        QTRY_COMPARE_WITH_TIMEOUT(placesOf(overlays()), places, kSoonMs);
    }
    QVERIFY2(ticks < kTicksToRebuild, qPrintable(QString::number(ticks)));
    QCOMPARE(idsOf(overlays()), ids);
}

void tst_CompanionWindows::longAbsenceRebuildsTheWindows()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow, 0);
    m_host->send(
        {QStringLiteral("showTooltip"), QStringLiteral("Tip"), QStringLiteral("700"), QStringLiteral("600")});
    verifyBubbleAt({397, 297});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 6, kSoonMs);
    const QStringList ids = idsOf(overlays());
    const QStringList places = placesOf(overlays());
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    // A heartbeat is ten ticks: between the first of four and the last lie thirty.
    QVERIFY(waitForBeats(4));
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    const QRegularExpression line(QStringLiteral("TutorialManager::timerEvent 427 (\\d+)\\n"));
    QVERIFY(FakeHost::waitFor([&] { return line.match(m_host->log()).hasMatch(); }));
    const int ticks = line.match(m_host->log()).captured(1).toInt();
    QVERIFY2(ticks >= kTicksToRebuild, qPrintable(QString::number(ticks)));
    QTRY_COMPARE_WITH_TIMEOUT(placesOf(overlays()), places, kSoonMs);
    const QStringList rebuilt = idsOf(overlays());
    for (const QString &id : rebuilt) {
        QVERIFY(!ids.contains(id));
    }
    verifyBubbleAt({397, 297});
    QCOMPARE(lastDifference({397 + 128, 297, 48, 56}, picture(QStringLiteral("click")), {}), QString());
}

void tst_CompanionWindows::hostThatWasNeverHiddenMayShowItself()
{
    play();
    update(400, 300, QString(), kNext | kYesNo | kArrow);
    verifyBubbleAt({397, 297});
    const QStringList ids = idsOf(overlays());
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    QVERIFY(m_host->waitForLog(QStringLiteral("m_logHideIgnoreTimeout now 0")));
    QTRY_COMPARE_WITH_TIMEOUT(idsOf(overlays()), ids, kSoonMs);
    verifyBubbleAt({397, 297});
}

void tst_CompanionWindows::nothingIsShownBeforeTheStart()
{
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    for (int round = 0; round < 5; ++round) {
        update(400, 300, QStringLiteral("Hint"), kNext | kYesNo | kArrow);
        QVERIFY(m_host->sync());
    }
    QVERIFY(waitForBeats(2));
    QCOMPARE(placesOf(overlays()), QStringList());
    QCOMPARE(XWindows::activeWindow(), m_below->winId());
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 5, kSoonMs);
}

void tst_CompanionWindows::logWindowShowsNothing()
{
    // Window managers that keep windows on the screen move it into the corner.
    WindowBelow corner;
    corner.setWindowFlag(Qt::FramelessWindowHint);
    corner.setGeometry(0, 0, 60, 30);
    corner.show();
    QTRY_COMPARE_WITH_TIMEOUT(difference(corner.geometry(), QImage(), {}), QString(), kSoonMs);
    m_host->send({QStringLiteral("start")});
    QTRY_COMPARE_WITH_TIMEOUT(placesOf(overlays()), QStringList(QStringLiteral("1x1 at 0,0")), kSoonMs);
    QVERIFY(waitForBeats(2));
    QCOMPARE(difference(corner.geometry(), QImage(), {}), QString());
}

// Nothing but the tooltip is there, so nothing else makes the program talk to the X server.
void tst_CompanionWindows::tooltipFadesStepByStep()
{
    constexpr int kSteps = 25;
    const QStringList show{QStringLiteral("showTooltip"), QStringLiteral("Fading"), QStringLiteral("700"),
                           QStringLiteral("600")};
    m_host->send(show);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 1, kSoonMs);
    const QString id = overlays(kTooltip).constFirst().id;
    const QString opacity = QStringLiteral("_NET_WM_WINDOW_OPACITY");
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::property(id, opacity), QStringLiteral("4294967295"), kSoonMs);
    m_host->send({QStringLiteral("hideTooltip")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 0, kSoonMs);

    // The X server stamps each change, so it does not matter when xev gets to read of it.
    QProcess xev;
    xev.start(QStringLiteral("stdbuf"), {QStringLiteral("-oL"), QStringLiteral("xev"), QStringLiteral("-id"),
                                         id, QStringLiteral("-event"), QStringLiteral("property")});
    QByteArray seen;
    const auto read = [&xev, &seen] {
        seen += xev.readAllStandardOutput();
        return QString::fromLatin1(seen);
    };
    const auto isWatching = [&] {
        XWindows::run(QStringLiteral("xprop"),
                      {QStringLiteral("-id"), id, QStringLiteral("-f"), QStringLiteral("_WATCHED"),
                       QStringLiteral("8s"), QStringLiteral("-set"), QStringLiteral("_WATCHED"),
                       QStringLiteral("yes")});
        return read().contains(QStringLiteral("_WATCHED"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWatching(), kSoonMs);
    const auto changes = [&] {
        const QRegularExpression line(opacity + QStringLiteral("\\), time (\\d+)"));
        QRegularExpressionMatchIterator matches = line.globalMatch(read());
        QStringList times;
        while (matches.hasNext()) {
            times += matches.next().captured(1);
        }
        return times;
    };
    const auto moments = [](const QStringList &times) {
        return QSet<QString>(times.cbegin(), times.cend()).size();
    };
    int fadeIn = 0;
    int fadeOut = 0;
    // An X server that stands still gets to see many steps at one moment; a program that keeps them back
    // makes it so each time.
    for (int round = 0; round < 5 && qMin(fadeIn, fadeOut) <= kSteps / 2; ++round) {
        const int before = changes().size() + (round == 0 ? 1 : 0); // from the opacity of the first to none
        m_host->send(show);
        QVERIFY(FakeHost::waitFor([&] { return changes().size() >= before + 2 * kSteps; }));
        const QStringList times = changes();
        QCOMPARE(times.size(), before + 2 * kSteps);
        fadeIn = moments(times.mid(before, kSteps));
        fadeOut = moments(times.mid(before + kSteps));
    }
    QVERIFY2(qMin(fadeIn, fadeOut) > kSteps / 2, qPrintable(changes().join(QLatin1Char(' '))));
    QCOMPARE(XWindows::opacitySteps(id), 0);
    QCOMPARE(overlays(kTooltip).size(), 1);
    xev.kill();
    xev.waitForFinished();
}

void tst_CompanionWindows::arrowIsPaintedAtBothEnds_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QPoint>("bubble");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<bool>("upsideDown");
    QTest::newRow("upright") << QPoint(400, 300) << QPoint(397, 297) << false << false;
    QTest::newRow("mirrored") << QPoint(1000, 300) << QPoint(692, 297) << true << false;
    QTest::newRow("upside down") << QPoint(400, -5) << QPoint(397, 157) << false << true;
    QTest::newRow("upside down and mirrored") << QPoint(1000, -5) << QPoint(692, 157) << true << true;
}

void tst_CompanionWindows::arrowIsPaintedAtBothEnds()
{
    QFETCH(QPoint, target);
    QFETCH(QPoint, bubble);
    QFETCH(bool, mirror);
    QFETCH(bool, upsideDown);
    play();
    update(target.x(), target.y(), QString(), kArrow, 3);
    QTRY_VERIFY2_WITH_TIMEOUT(bubbleIsAt(bubble), qPrintable(placesOf(overlays()).join(QStringLiteral("; "))),
                              kSoonMs);
    const QImage arrow = picture(QStringLiteral("arrow")).mirrored(mirror, upsideDown);
    const QRect area(bubble + QPoint(mirror ? 256 : 0, 0), QSize(128, 144));
    // For half of every two seconds it stands at the one end, and stays near the other for a quarter of one.
    // Upside down that is -5.x, cut to -5: -6 itself lasts no longer than a moment.
    for (const int row : {upsideDown ? -10 : 16, upsideDown ? 5 : 0}) {
        QCOMPARE(lastDifference(area, arrow, {0, row}), QString());
        QVERIFY(m_host->sync());
    }
    const QImage eye = picture(QStringLiteral("eye"));
    const QRect icon(bubble + QPoint(mirror ? 256 - eye.width() : 128, 0), eye.size());
    QCOMPARE(lastDifference(icon, eye, {}), QString());
}

QTEST_MAIN(tst_CompanionWindows)
#include "tst_CompanionWindows.moc"
