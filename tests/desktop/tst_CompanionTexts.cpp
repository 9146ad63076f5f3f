#include "CompanionWindowsTest.h"

#include <QFile>
#include <QRegularExpression>
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
    void tooltipGoesOnAfterAnAbsence();
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

void tst_CompanionTexts::tooltipGoesOnAfterAnAbsence()
{
    const QRegularExpression absence(QStringLiteral("TutorialManager::timerEvent 427 (\\d+)\\n"));
    play();
    // An absence of three seconds rebuilds the window, and a slow machine draws a shorter one out: then
    // again.
    bool kept = false;
    for (int attempt = 0; attempt < 10 && !kept; ++attempt) {
        m_host->send({QStringLiteral("showTooltip"), QStringLiteral("Going on"), QStringLiteral("700"),
                      QStringLiteral("600")});
        QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 1, kSoonMs);
        const QString id = overlays(kTooltip).constFirst().id;
        const int logged = m_host->log().size();
        m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
        QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
        const int opacity = XWindows::opacitySteps(id);
        // Longer than what was left of the second before it fades in.
        QVERIFY(waitForBeats(2));
        QCOMPARE(XWindows::opacitySteps(id), opacity);
        m_host->send({QStringLiteral("state"), QStringLiteral("show")});
        QTRY_COMPARE_WITH_TIMEOUT(overlays(kTooltip).size(), 1, kSoonMs);
        QVERIFY(FakeHost::waitFor([&] { return absence.match(m_host->log(), logged).hasMatch(); }));
        kept = overlays(kTooltip).constFirst().id == id && opacity < 255;
        if (kept) {
            // It fades in and out, as if nothing had been between.
            QTRY_COMPARE_WITH_TIMEOUT(XWindows::opacitySteps(id), 255, kSoonMs);
            QTRY_COMPARE_WITH_TIMEOUT(XWindows::opacitySteps(id), 0, kSoonMs);
            QCOMPARE(overlays(kTooltip).size(), 1);
        }
    }
    QVERIFY(kept);
}

QTEST_MAIN(tst_CompanionTexts)
#include "tst_CompanionTexts.moc"
