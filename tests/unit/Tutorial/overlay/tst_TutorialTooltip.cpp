#include "IndicatorTest.h"
#include "LogCapture.h"
#include "Tutorial/overlay/IndicatorPictures.h"
#include "Tutorial/overlay/IndicatorState.h"
#include "Tutorial/overlay/OverlayWindow.h"

#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QColor kBefore(200, 30, 60);

QImage blankWindow()
{
    QImage image(640, 480, QImage::Format_ARGB32_Premultiplied);
    image.fill(kBefore);
    return image;
}

// What one paint makes of a window that was full of one colour.
QImage paintedOver(TutorialTooltip *tooltip)
{
    QImage image = blankWindow();
    tooltip->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

void erase(QImage *image, const QVector<QRect> &rects)
{
    QPainter painter(image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &rect : rects) {
        painter.fillRect(rect, Qt::transparent);
    }
}

void draw(QImage *image, const QImage &picture, const QPoint &at)
{
    QPainter painter(image);
    painter.drawImage(at, picture);
}

QImage picture(const QString &name)
{
    return QImage(QStringLiteral(":/resource/png/%1.png").arg(name))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QVector<QRect> erasedRects(bool mirror)
{
    return mirror ? QVector<QRect>{{256, 0, 128, 144}, {200, 0, 56, 56}}
                  : QVector<QRect>{{0, 0, 128, 144}, {128, 0, 56, 56}};
}

} // namespace

class tst_TutorialTooltip : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowIsBuiltAsOverlay();
    void textEditIsBuiltFixed();
    void hintAtConstructionIsTakenAsItStands();
    void methodTableIsComplete();
    void arrowBounces_data();
    void arrowBounces();
    void iconStandsBesideTheArrow_data();
    void iconStandsBesideTheArrow();
    void hiddenArrowIsErasedAndTheIconStays();
    void repaintAllErasesTheWindowOnce_data();
    void repaintAllErasesTheWindowOnce();
    void nothingRemainsOfThePaintBefore();
    void picturesAreSmoothOnAScaledScreen();
    void activationIsLogged();
    void otherChangesAreNotLogged();
    void closingForgetsTextAndWindow();
    void showsAStateWithoutAnIndicator();
    void tellsOfItsWholePaintOnly();
    void tellsOfItsEndOnce();

private:
    void turn(bool upsideDown, bool mirror);
};

void tst_TutorialTooltip::turn(bool upsideDown, bool mirror)
{
    QVariantMap settings = m_indicator->getSettings();
    settings.insert(QStringLiteral("upsideDown"), upsideDown);
    settings.insert(QStringLiteral("mirror"), mirror);
    m_indicator->setSettings(settings);
}

void tst_TutorialTooltip::windowIsBuiltAsOverlay()
{
    const TutorialTooltip *const tooltip = m_indicator->tooltip();
    QCOMPARE(tooltip->parentWidget(), nullptr);
    QCOMPARE(tooltip->windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                         Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint);
    QVERIFY(tooltip->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(tooltip->testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(tooltip->geometry(), QRect(0, 0, 640, 480));
    QVERIFY(tooltip->isHidden());
}

void tst_TutorialTooltip::textEditIsBuiltFixed()
{
    const QTextEdit *const textEdit = m_indicator->textEdit();
    QCOMPARE(textEdit->geometry(), QRect(128, 56, 256, 64));
    QCOMPARE(textEdit->minimumSize(), QSize(256, 64));
    QCOMPARE(textEdit->maximumSize(), QSize(256, 64));
    QCOMPARE(textEdit->lineWrapMode(), QTextEdit::WidgetWidth);
    QCOMPARE(textEdit->autoFormatting(), QTextEdit::AutoAll);
    QCOMPARE(textEdit->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(textEdit->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(textEdit->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(textEdit->windowFlags().testFlag(Qt::WindowTransparentForInput));
    QCOMPARE(textEdit->focusPolicy(), Qt::NoFocus);
    QVERIFY(!textEdit->isWindow());
    QVERIFY(textEdit->isHidden());
}

void tst_TutorialTooltip::hintAtConstructionIsTakenAsItStands()
{
    m_indicator->setHint(QStringLiteral("a\\b\n<c"));
    m_indicator->tick();
    const int height = m_indicator->state("hintHeight").toInt();
    m_indicator->tooltip()->close();
    m_indicator->setTargetWindowOffset(1, 1, QString(), true);
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("a\\b\n<c"));
    QVERIFY(!m_indicator->textEdit()->toHtml().contains(QStringLiteral("<tt>")));
    QVERIFY(!m_indicator->textEdit()->isHidden());
    QCOMPARE(m_indicator->textEdit()->geometry(), QRect(128, 56, 256, height));
    QVERIFY(m_indicator->state("updateTextEditSize").toBool());
}

void tst_TutorialTooltip::methodTableIsComplete()
{
    const QMetaObject &meta = TutorialTooltip::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("changeEvent(QEvent*)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void tst_TutorialTooltip::arrowBounces_data()
{
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<qint64>("clockMs");
    QTest::addColumn<QPoint>("at");
    for (const bool mirror : {false, true}) {
        const int x = mirror ? 256 : 0;
        const char *const side = mirror ? "mirrored" : "plain";
        QTest::addRow("upright, %s, at the start", side) << false << mirror << qint64(0) << QPoint(x, 16);
        QTest::addRow("upright, %s, risen", side) << false << mirror << qint64(1500) << QPoint(x, 0);
        QTest::addRow("upright, %s, between", side) << false << mirror << qint64(1167) << QPoint(x, 7);
        QTest::addRow("upside down, %s, at the start", side) << true << mirror << qint64(0) << QPoint(x, -10);
        QTest::addRow("upside down, %s, risen", side) << true << mirror << qint64(1500) << QPoint(x, 6);
    }
}

void tst_TutorialTooltip::arrowBounces()
{
    QFETCH(bool, upsideDown);
    QFETCH(bool, mirror);
    QFETCH(qint64, clockMs);
    QFETCH(QPoint, at);
    turn(upsideDown, mirror);
    m_indicator->clockMs = clockMs;
    QImage expected = blankWindow();
    erase(&expected, erasedRects(mirror));
    draw(&expected, picture(QStringLiteral("arrow")).mirrored(mirror, upsideDown), at);
    QCOMPARE(paintedOver(m_indicator->tooltip()), expected);
}

void tst_TutorialTooltip::iconStandsBesideTheArrow_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::newRow("click") << 0 << QStringLiteral("click");
    QTest::newRow("double click") << 1 << QStringLiteral("double_click");
    QTest::newRow("right click") << 2 << QStringLiteral("right_click");
    QTest::newRow("eye") << 3 << QStringLiteral("eye");
    QTest::newRow("wait") << 4 << QStringLiteral("wait");
    QTest::newRow("keyboard") << 5 << QStringLiteral("keyboard");
    QTest::newRow("none") << 6 << QString();
    QTest::newRow("negative") << -1 << QString();
    QTest::newRow("too high") << 7 << QString();
}

void tst_TutorialTooltip::iconStandsBesideTheArrow()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    m_indicator->setIconKind(kind);
    const QImage icon = name.isEmpty() ? QImage() : picture(name);
    for (const bool upsideDown : {false, true}) {
        for (const bool mirror : {false, true}) {
            turn(upsideDown, mirror);
            m_indicator->clockMs = 1500;
            QImage expected = blankWindow();
            erase(&expected, erasedRects(mirror));
            draw(&expected, picture(QStringLiteral("arrow")).mirrored(mirror, upsideDown),
                 {mirror ? 256 : 0, upsideDown ? 6 : 0});
            draw(&expected, icon, {mirror ? 256 - icon.width() : 128, 0});
            QCOMPARE(paintedOver(m_indicator->tooltip()), expected);
        }
    }
}

void tst_TutorialTooltip::hiddenArrowIsErasedAndTheIconStays()
{
    m_indicator->setIconKind(5);
    m_indicator->setTargetWindowOffset(-9999, -9999, QString(), true);
    QImage expected = blankWindow();
    erase(&expected, erasedRects(false));
    draw(&expected, picture(QStringLiteral("keyboard")), {128, 0});
    QCOMPARE(paintedOver(m_indicator->tooltip()), expected);
}

void tst_TutorialTooltip::repaintAllErasesTheWindowOnce_data()
{
    QTest::addColumn<bool>("mirror");
    QTest::newRow("plain") << false;
    QTest::newRow("mirrored") << true;
}

void tst_TutorialTooltip::repaintAllErasesTheWindowOnce()
{
    QFETCH(bool, mirror);
    turn(false, mirror);
    QVariantMap settings = m_indicator->getSettings();
    settings.insert(QStringLiteral("repaintAll"), true);
    settings.insert(QStringLiteral("arrowVisible"), false);
    m_indicator->setSettings(settings);
    QImage expected = blankWindow();
    expected.fill(Qt::transparent);
    QCOMPARE(paintedOver(m_indicator->tooltip()), expected);
    QVERIFY(!m_indicator->state("repaintAll").toBool());
    expected = blankWindow();
    erase(&expected, erasedRects(mirror));
    QCOMPARE(paintedOver(m_indicator->tooltip()), expected);
}

void tst_TutorialTooltip::nothingRemainsOfThePaintBefore()
{
    m_indicator->tooltip()->show();
    m_indicator->clockMs = 0;
    m_indicator->tick();
    m_indicator->clockMs = 1500;
    m_indicator->tick();
    QImage expected(640, 480, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    draw(&expected, picture(QStringLiteral("arrow")), {0, 0});
    const QImage shown = m_indicator->tooltip()->grab().toImage().convertToFormat(expected.format());
    QCOMPARE(shown, expected);
}

void tst_TutorialTooltip::picturesAreSmoothOnAScaledScreen()
{
    m_indicator->clockMs = 1500;
    QImage image(1280, 960, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2.0);
    image.fill(Qt::transparent);
    m_indicator->tooltip()->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    image.setDevicePixelRatio(1.0);
    const QImage arrow = picture(QStringLiteral("arrow"));
    const QImage large = image.copy(QRect(QPoint(0, 0), 2 * arrow.size()));
    QVERIFY(large.pixelColor(80, 150).alpha() == 255);
    // Enlarged without smoothing, each pixel would be a square of four.
    QVERIFY(large.scaled(arrow.size()).scaled(large.size()) != large);
}

void tst_TutorialTooltip::activationIsLogged()
{
    LogCapture log;
    QEvent event(QEvent::ActivationChange);
    QCoreApplication::sendEvent(m_indicator->tooltip(), &event);
    QCOMPARE(log.debugs().size(), 1);
    QVERIFY(log.debugs().constFirst().contains(QStringLiteral("TutorialTooltip::changeEvent 68 false ")));
    QVERIFY(m_host.calls.isEmpty());
}

void tst_TutorialTooltip::otherChangesAreNotLogged()
{
    LogCapture log;
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_indicator->tooltip(), &event);
    QVERIFY(log.lines().isEmpty());
}

void tst_TutorialTooltip::closingForgetsTextAndWindow()
{
    const QPointer<TutorialTooltip> tooltip = m_indicator->tooltip();
    const QPointer<QTextEdit> textEdit = m_indicator->textEdit();
    tooltip->show();
    tooltip->close();
    QVERIFY(textEdit.isNull());
    QVERIFY(!tooltip.isNull());
    QVERIFY(tooltip->isHidden());
    QCOMPARE(m_indicator->tooltip(), nullptr);
    m_indicator->tick();
    QCOMPARE(m_indicator->tooltip(), nullptr);
}

void tst_TutorialTooltip::showsAStateWithoutAnIndicator()
{
    const IndicatorPictures pictures = IndicatorPictures::load();
    IndicatorState state;
    state.hintHeight = 80;
    state.iconKind = 3;
    state.placement.mirror = true;
    TutorialTooltip tooltip(state, pictures, [] { return qint64(1500); });
    QCOMPARE(tooltip.hintPlace(), QPoint(128, 56)); // until it is told
    tooltip.moveHintToItsSide();
    QCOMPARE(tooltip.hintPlace(), QPoint(0, 56));
    const QTextEdit *const textEdit = tooltip.findChild<QTextEdit *>();
    QCOMPARE(textEdit->size(), QSize(256, 80));
    state.hintHeight = 120;
    tooltip.resizeHint();
    QCOMPARE(textEdit->size(), QSize(256, 120));
    QImage expected = blankWindow();
    erase(&expected, erasedRects(true));
    draw(&expected, picture(QStringLiteral("arrow")).mirrored(true, false), {256, 0});
    draw(&expected, picture(QStringLiteral("eye")), {200, 0});
    QCOMPARE(paintedOver(&tooltip), expected);
}

void tst_TutorialTooltip::tellsOfItsWholePaintOnly()
{
    const IndicatorPictures pictures = IndicatorPictures::load();
    IndicatorState state;
    TutorialTooltip tooltip(state, pictures, [] { return qint64(0); });
    const QSignalSpy painted(&tooltip.events(), &BubbleEvents::paintedWhole);
    paintedOver(&tooltip);
    QCOMPARE(painted.count(), 0);
    state.repaintAll = true;
    paintedOver(&tooltip);
    QCOMPARE(painted.count(), 1);
    QVERIFY(state.repaintAll); // it reads the state and no more
}

void tst_TutorialTooltip::tellsOfItsEndOnce()
{
    const IndicatorPictures pictures = IndicatorPictures::load();
    const IndicatorState state;
    TutorialTooltip tooltip(state, pictures, [] { return qint64(0); });
    const QSignalSpy closed(&tooltip.events(), &BubbleEvents::closed);
    tooltip.show();
    tooltip.hide();
    QCOMPARE(closed.count(), 0);
    closeOverlay(&tooltip);
    QCOMPARE(closed.count(), 1);
}

QTEST_MAIN(tst_TutorialTooltip)
#include "tst_TutorialTooltip.moc"
