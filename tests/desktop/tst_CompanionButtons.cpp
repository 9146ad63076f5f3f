#include "CompanionWindowsTest.h"

#include <QtTest>

#include <algorithm>

namespace {

struct Dress
{
    QRect body;  // what of the window can be seen
    QRect inner; // the part of it within its outlines
    QRect ink;   // the caption, which may reach into the outlines only by mistake
};

// How a button looks on the host editor's window, in pixels of the button's window.
Dress dressOf(const QRect &window, const QColor &behind)
{
    const QImage seen = XWindows::screenshot(window);
    Dress dress;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            if (seen.pixelColor(x, y) != behind) {
                dress.body |= QRect(x, y, 1, 1);
            }
        }
    }
    dress.inner = dress.body.adjusted(2, 2, -2, -2);
    // No caption comes to the upper corner, and its fill begins below the round of it.
    const QColor fill = seen.pixelColor(dress.inner.left() + 4, dress.inner.top() + 1);
    for (int y = dress.inner.top() + 4; y <= dress.inner.bottom() - 4; ++y) {
        for (int x = dress.inner.left(); x <= dress.inner.right(); ++x) {
            if (seen.pixelColor(x, y) != fill) {
                dress.ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return dress;
}

} // namespace

/// The program's buttons as the learner sees and clicks them.
class tst_CompanionButtons : public CompanionWindowsTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyColumnSendsItsOwnWord();
    void captionsFitWhateverTheFontSize_data();
    void captionsFitWhateverTheFontSize();

private:
    /// The buttons, from left to right.
    QVector<XWindows::Window> buttons() const;
    QColor behind() const { return m_below->grab().toImage().pixelColor(0, 0); }
    void clickColumns(int step);
    void verifyCaptions(int flags, int count);
};

QVector<XWindows::Window> tst_CompanionButtons::buttons() const
{
    QVector<XWindows::Window> windows = overlays(kButton);
    std::sort(windows.begin(), windows.end(), [](const XWindows::Window &one, const XWindows::Window &other) {
        return one.rect.x() < other.rect.x();
    });
    return windows;
}

// Each click on Yes is followed by one on No, for the window manager raises what was clicked, and the windows
// of the two overlap.
void tst_CompanionButtons::clickColumns(int step)
{
    QTRY_COMPARE_WITH_TIMEOUT(buttons().size(), 2, kSoonMs);
    const QRect yes = buttons().constFirst().rect;
    const QRect no = buttons().constLast().rect;
    QCOMPARE(no.topLeft() - yes.topLeft(), QPoint(56, 0));
    const int middle = yes.top() + 18;
    QVector<int> columns[2];
    const auto isDrawn = [&] {
        // Where Yes is drawn, then nothing, and then where No is drawn.
        const QImage row = XWindows::screenshot({yes.left(), middle, 120, 1});
        const QColor nothing = behind();
        columns[0].clear();
        columns[1].clear();
        bool gap = false;
        for (int x = 0; x < row.width(); ++x) {
            const bool drawn = row.pixelColor(x, 0) != nothing;
            gap = gap || (!drawn && !columns[0].isEmpty());
            if (drawn) {
                columns[gap ? 1 : 0] += yes.left() + x;
            }
        }
        return columns[0].size() >= 40 && columns[0].size() == columns[1].size();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isDrawn(), kSoonMs);
    const QString words[] = {QStringLiteral("yes"), QStringLiteral("no")};
    int clicks = m_host->payloads().size();
    for (int i = 0; i < columns[0].size(); i += step) {
        for (const int which : {0, 1}) {
            // From the sides that face each other outwards.
            const int column = which == 0 ? columns[0][columns[0].size() - 1 - i] : columns[1][i];
            XWindows::click({column, middle});
            QVERIFY2(m_host->waitForPayloads(++clicks), qPrintable(QString::number(column)));
            QVERIFY2(m_host->payloads().constLast() == words[which],
                     qPrintable(QStringLiteral("column %1 of %2 sent %3")
                                    .arg(i)
                                    .arg(words[which], m_host->payloads().constLast())));
        }
    }
    QVERIFY(m_host->syncBothWays());
    QCOMPARE(m_host->payloads().size(), clicks);
}

void tst_CompanionButtons::everyColumnSendsItsOwnWord()
{
    play();
    update(400, 300, QString(), kYesNo | kArrow);
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    clickColumns(1);
    if (QTest::currentTestFailed()) {
        return;
    }
    QCOMPARE(m_below->presses, 0);
    // Also of windows that were withdrawn and came back.
    XWindows::click({60, 800});
    QTRY_COMPARE_WITH_TIMEOUT(XWindows::activeWindow(), m_below->winId(), kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("hide")});
    QTRY_COMPARE_WITH_TIMEOUT(overlays().size(), 0, kSoonMs);
    m_host->send({QStringLiteral("state"), QStringLiteral("show")});
    clickColumns(9);
    QCOMPARE(m_below->presses, 1);
}

void tst_CompanionButtons::captionsFitWhateverTheFontSize_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("dpi");
    for (const char *const locale : {"en_US", "ja_JP", "zh_CN"}) {
        for (const int dpi : {96, 120, 144, 192}) {
            QTest::addRow("%s, %d", locale, dpi) << QString::fromLatin1(locale) << dpi;
        }
    }
}

void tst_CompanionButtons::verifyCaptions(int flags, int count)
{
    update(400, 300, QStringLiteral("Hint"), flags | kArrow);
    // From here on the buttons stay where they are.
    QTRY_VERIFY_WITH_TIMEOUT(bubbleIsAt({397, 297}), kSoonMs);
    QString seen;
    const auto captionsFit = [&] {
        const QVector<XWindows::Window> shown = buttons();
        return shown.size() == count &&
               std::all_of(shown.cbegin(), shown.cend(), [&](const XWindows::Window &button) {
                   // Yes without what the window of No covers.
                   const bool isCovered = count == 2 && button.id == shown.constFirst().id;
                   const Dress dress = dressOf(button.rect.adjusted(0, 0, isCovered ? -8 : 0, 0), behind());
                   seen = QStringLiteral("caption from %1 to %2, %3 high, in the body from %4 to %5")
                              .arg(dress.ink.left())
                              .arg(dress.ink.right())
                              .arg(dress.ink.height())
                              .arg(dress.body.left())
                              .arg(dress.body.right());
                   const int leftRoom = dress.ink.left() - dress.body.left();
                   const int rightRoom = dress.body.right() - dress.ink.right();
                   return dress.body.width() >= 40 && dress.ink.height() >= 7 && leftRoom >= 3 &&
                          rightRoom >= 3 && qAbs(leftRoom - rightRoom) <= 3;
               });
    };
    QTRY_VERIFY2_WITH_TIMEOUT(captionsFit(), qPrintable(seen), kSoonMs);
}

// What desktops set for larger fonts is the X resource Xft.dpi, which Qt reads when a program starts.
void tst_CompanionButtons::captionsFitWhateverTheFontSize()
{
    QFETCH(QString, locale);
    QFETCH(int, dpi);
    m_host->disconnectLink();
    QVERIFY(m_host->waitForEnd());
    const QString resources = QStringLiteral("RESOURCE_MANAGER");
    XWindows::run(QStringLiteral("xprop"),
                  {QStringLiteral("-root"), QStringLiteral("-f"), resources, QStringLiteral("8s"),
                   QStringLiteral("-set"), resources, QStringLiteral("Xft.dpi:\t%1\n").arg(dpi)});
    m_host = std::make_unique<FakeHost>();
    QVERIFY(m_host->start(locale));
    XWindows::run(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("-remove"), resources});
    m_host->answerHeartbeats();
    m_host->send({QStringLiteral("fromServer"), locale});
    m_host->send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("1280"),
                  QStringLiteral("960")});
    verifyCaptions(kNext, 1);
    if (QTest::currentTestFailed()) {
        return;
    }
    // The size has come through: the hint is as much higher.
    const auto hintHeight = [this] {
        return buttons().constFirst().rect.y() - overlays(kBubble).constFirst().rect.y() - 56;
    };
    QTRY_VERIFY2_WITH_TIMEOUT(hintHeight() >= 24 + 14 * dpi / 96, qPrintable(QString::number(hintHeight())),
                              kSoonMs);
    verifyCaptions(kYesNo, 2);
}

QTEST_MAIN(tst_CompanionButtons)
#include "tst_CompanionButtons.moc"
