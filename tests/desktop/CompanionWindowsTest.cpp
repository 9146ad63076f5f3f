#include "CompanionWindowsTest.h"

#include "FilledParts.h"

#include <QPainter>
#include <QtTest>

namespace {

const QColor kBelow(40, 96, 160);

} // namespace

void WindowBelow::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter(this).fillRect(rect(), kBelow);
}

void WindowBelow::mousePressEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    ++presses;
}

void CompanionWindowsTest::init()
{
    m_below = std::make_unique<WindowBelow>();
    m_below->setGeometry(20, 40, 1200, 880);
    m_below->show();
    m_below->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_below.get(), kSoonMs));
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::activeWindow(), m_below->winId(), kSoonMs);
    m_host = std::make_unique<FakeHost>();
    prepare(*m_host);
    QVERIFY(m_host->start());
    m_host->answerHeartbeats();
}

void CompanionWindowsTest::cleanup()
{
    m_host->disconnectLink();
    QVERIFY(m_host->waitForEnd());
    QCOMPARE(m_host->process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host->process().exitCode(), 0);
    const QStringList lines = filledParts(m_host->log(), QLatin1Char('\n'));
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith(QStringLiteral("..\\..\\tutorial\\")), qPrintable(line));
    }
    m_host.reset();
    m_below.reset();
}

QStringList CompanionWindowsTest::idsOf(const QVector<XWindows::Window> &windows)
{
    QStringList ids;
    for (const XWindows::Window &window : windows) {
        ids += window.id;
    }
    ids.sort();
    return ids;
}

QImage CompanionWindowsTest::picture(const QString &name)
{
    return QImage(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/png/%1.png").arg(name));
}

QString CompanionWindowsTest::difference(const QRect &area, const QImage &picture, const QPoint &at)
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

QString CompanionWindowsTest::lastDifference(const QRect &area, const QImage &picture, const QPoint &at)
{
    QString last;
    FakeHost::waitFor([&] {
        last = difference(area, picture, at);
        return last.isEmpty();
    });
    return last;
}

void CompanionWindowsTest::play()
{
    m_host->send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
}

void CompanionWindowsTest::update(int x, int y, const QString &hint, int flags, int icon)
{
    m_host->send({QStringLiteral("indicator"), QStringLiteral("update"), QString::number(x),
                  QString::number(y), QStringLiteral("MainWindow"), hint, QString::number(flags),
                  QString::number(icon)});
}

bool CompanionWindowsTest::waitForBeats(int count)
{
    if (!m_host->sync()) {
        return false;
    }
    const int now = m_host->log().size();
    return FakeHost::waitFor([&] {
        return m_host->log().mid(now).count(QStringLiteral("TutorialManager::send 1396 \"alive\"")) >= count;
    });
}

void CompanionWindowsTest::verifyBubbleAt(const QPoint &place)
{
    QTRY_VERIFY2_WITH_TIMEOUT(bubbleIsAt(place),
                              qPrintable(XWindows::placesOf(overlays()).join(QStringLiteral("; "))), kSoonMs);
    const QString next = QStringLiteral("64x32 at %1,%2").arg(place.x() + 128).arg(place.y() + 64 + 56);
    const QString no = QStringLiteral("64x32 at %1,%2").arg(place.x() + 128 + 56).arg(place.y() + 64 + 56);
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::placesOf(overlays(kButton)), QStringList({next, next, no}), kSoonMs);
    QVERIFY(bubbleIsAt(place));
}

bool CompanionWindowsTest::clickButton(const QPoint &place, const QPoint &inside)
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

#include "moc_CompanionWindowsTest.cpp"
