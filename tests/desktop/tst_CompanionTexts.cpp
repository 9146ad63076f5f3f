#include "CompanionWindowsTest.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

constexpr int kTextTop = 56;
constexpr int kTextWidth = 256;
constexpr int kShadowBelow = 4; // of the panel, within the height of the hint
constexpr int kRoom = 8;        // between the panel's line and the text

// The longest hint of lesson 1 in a language.
QString longestHint(const QString &locale)
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/translations/%1.ts").arg(locale));
    QString longest;
    if (!file.open(QIODevice::ReadOnly)) {
        return longest;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == QLatin1String("translation") &&
                   context == QLatin1String("TutorialStep1")) {
            const QString text = xml.readElementText();
            longest = text.size() > longest.size() ? text : longest;
        }
    }
    return longest;
}

// The rows of @p panel between its lines in which something dark stands.
QPair<int, int> inkedRows(const QImage &panel)
{
    QPair<int, int> rows(-1, -1);
    for (int y = 6; y < panel.height() - kShadowBelow - 2; ++y) {
        for (int x = 10; x < panel.width() - 10; ++x) {
            if (panel.pixelColor(x, y).lightness() < 100) {
                rows = {rows.first < 0 ? y : rows.first, y};
                break;
            }
        }
    }
    return rows;
}

} // namespace

/// The program's texts as the X server shows them.
class tst_CompanionTexts : public CompanionWindowsTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsStandBelowTheWholeHint_data();
    void buttonsStandBelowTheWholeHint();
    void tooltipGoesOnAfterAnAbsenceLongerThanItsLife();
};

void tst_CompanionTexts::buttonsStandBelowTheWholeHint_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *const locale : {"en_US", "ja_JP", "zh_CN"}) {
        QTest::newRow(locale) << QString::fromLatin1(locale);
    }
}

void tst_CompanionTexts::buttonsStandBelowTheWholeHint()
{
    QFETCH(QString, locale);
    const QString hint = longestHint(locale);
    QVERIFY(hint.size() > 40);
    m_host->send({QStringLiteral("fromServer"), locale});
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
    update(400, 300, hint, kNext | kArrow);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(overlays(kButton).size(), 1, kSoonMs);
    const QPoint corner(397 + 128, 297 + kTextTop);
    int height = 0;
    QPair<int, int> rows;
    const auto isWhole = [&] {
        const QPoint next = overlays(kButton).constFirst().rect.topLeft();
        height = next.y() - corner.y();
        if (next.x() != corner.x() || height < 60) {
            return false;
        }
        const QImage panel = XWindows::screenshot({corner, QSize(kTextWidth, height)});
        rows = inkedRows(panel);
        // The line that closes the panel, right above its shadow and the buttons.
        const int lineRow = height - kShadowBelow - 1;
        return panel.pixelColor(kTextWidth / 2, lineRow).lightness() < 110 &&
               panel.pixelColor(kTextWidth / 2, lineRow - 1).lightness() > 230 && rows.first >= 2 + kRoom &&
               rows.second < lineRow - kRoom;
    };
    QTRY_VERIFY2_WITH_TIMEOUT(
        isWhole(),
        qPrintable(QStringLiteral("text from %1 to %2 of %3").arg(rows.first).arg(rows.second).arg(height)),
        kSoonMs);
    // As many lines as such a text needs at least.
    QVERIFY(rows.second - rows.first > 40);
}

void tst_CompanionTexts::tooltipGoesOnAfterAnAbsenceLongerThanItsLife()
{
    constexpr int kLifeBeats = 7; // it begins to fade out after 6 of them, and is gone before the seventh
    play();
    m_host->send({QStringLiteral("showTooltip"), QStringLiteral("Going on"), QStringLiteral("700"),
                  QStringLiteral("600")});
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QVERIFY(m_host->sync());
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    QVERIFY(waitForBeats(kLifeBeats + 1));
    QCOMPARE(overlays().size(), 0);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    // Had its time run on, nothing of it would be left to show. It comes and goes at first: it is shown as it
    // was and built anew a moment later.
    const auto steps = [this] {
        const QVector<XWindows::Window> tooltips = overlays(kTooltip);
        return tooltips.size() == 1 ? XWindows::opacitySteps(tooltips.constFirst().id) : -1;
    };
    QTRY_COMPARE_WITH_TIMEOUT(steps(), 255, kSoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(steps(), 0, kSoonMs);
}

QTEST_MAIN(tst_CompanionTexts)
#include "tst_CompanionTexts.moc"
