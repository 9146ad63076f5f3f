#include "IndicatorTest.h"
#include "TestTooltip.h"
#include "Tutorial/overlay/OverlayStyle.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QtTest>

#include <cmath>

namespace {

constexpr int kClear = 8; // pixels of room that a reader sees around a text

int lightness(const QImage &image, const QPoint &at)
{
    return image.pixelColor(at).lightness();
}

// Where the text is: the only dark thing within the panel's line and its round corners.
QRect inkOf(const QImage &image)
{
    const QRegion inside =
        QRegion(image.rect().adjusted(5, 10, -5, -11)) + image.rect().adjusted(10, 5, -10, -6);
    QRect ink;
    for (const QRect &part : inside) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (lightness(image, {x, y}) < 100) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
    }
    return ink;
}

double linear(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
}

// As the Web Content Accessibility Guidelines define it: texts need 4.5, outlines 3.
double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

QImage pictureOf(const QPushButton *button, QStyle::State state, const QString &caption,
                 const QColor &behind = Qt::transparent)
{
    QImage image(button->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(behind);
    QPainter painter(&image);
    painter.setFont(button->font());
    QStyleOptionButton option;
    option.initFrom(button);
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | state;
    option.text = caption;
    button->style()->drawControl(QStyle::CE_PushButton, &option, &painter, button);
    return image;
}

QImage pictureOf(const QPushButton *button, QStyle::State state)
{
    return pictureOf(button, state, button->text());
}

// What differs from the same button without a caption.
QRect captionOf(const QPushButton *button, const QString &caption)
{
    const QImage with = pictureOf(button, QStyle::State_None, caption);
    const QImage without = pictureOf(button, QStyle::State_None, QString());
    QRect ink;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

QVector<QPushButton *> allButtons()
{
    const QVector<QPushButton *> buttons{TestIndicator::next(), TestIndicator::yes(), TestIndicator::no()};
    for (const QPushButton *const button : buttons) {
        button->ensurePolished();
    }
    return buttons;
}

} // namespace

class tst_OverlayStyle : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void fontIsLargeEnough();
    void hintHasRoomAroundIt_data();
    void hintHasRoomAroundIt();
    void tooltipHasRoomAroundIt();
    void panelIsLightUnderDarkTextWhateverThePalette();
    void panelHasRoundCorners();
    void panelStandsOutOnAnyWindow_data();
    void panelStandsOutOnAnyWindow();
    void buttonShowsItsStates();
    void captionsCanBeRead();
    void buttonsStandOutOnAnyWindow_data();
    void buttonsStandOutOnAnyWindow();
    void buttonTakesClicksWhereItIsDrawn();
    void yesAndNoStandApart();
    void yesAndNoAreNotOfEqualWeight();
    void captionsFitTheButtons_data();
    void captionsFitTheButtons();
    void captionThatFitsIsNotShrunk();
    void otherWidgetsAreLeftAlone();
};

void tst_OverlayStyle::initTestCase()
{
    OverlayStyle::apply();
}

void tst_OverlayStyle::fontIsLargeEnough()
{
    QFont font = QApplication::font();
    QVERIFY(font.pointSizeF() >= 10.5);
    font.setPointSizeF(7.0);
    QApplication::setFont(font);
    OverlayStyle::apply();
    QCOMPARE(QApplication::font().pointSizeF(), 10.5);
    font.setPointSizeF(14.0);
    QApplication::setFont(font);
    OverlayStyle::apply();
    QCOMPARE(QApplication::font().pointSizeF(), 14.0);
    font.setPointSizeF(10.5);
    QApplication::setFont(font);
}

void tst_OverlayStyle::hintHasRoomAroundIt_data()
{
    QTest::addColumn<QString>("hint");
    QTest::newRow("one line") << QStringLiteral("Press Next.");
    QTest::newRow("lines") << QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix");
    QTest::newRow("wrapped") << QStringLiteral(
        "Click the map in the list at the left, and then look at the view in "
        "the middle: it shows the map that you have chosen.");
    QTest::newRow("japanese") << QString::fromUtf8("\xe5\xb7\xa6\xe3\x81\xae\xe3\x83\xaa\xe3\x82\xb9\xe3\x83"
                                                   "\x88\xe3\x81\xae\xe3\x83\x9e\xe3\x83\x83\xe3\x83\x97"
                                                   "\xe3\x82\x92\xe3\x82\xaf\xe3\x83\xaa\xe3\x83\x83\xe3\x82"
                                                   "\xaf\xe3\x81\x97\xe3\x81\xa6\xe3\x81\x8f\xe3\x81\xa0"
                                                   "\xe3\x81\x95\xe3\x81\x84\xe3\x80\x82");
    QTest::newRow("backslashes") << QStringLiteral("\\n\\n\\n and C:\\maps\\one\nbelow");
}

void tst_OverlayStyle::hintHasRoomAroundIt()
{
    QFETCH(QString, hint);
    m_indicator->setHint(hint);
    m_indicator->showTooltip();
    m_indicator->tick();
    QTextEdit *const textEdit = m_indicator->textEdit();
    QCOMPARE(textEdit->viewport()->geometry(), textEdit->rect());
    const QSizeF size = textEdit->document()->size();
    QVERIFY(size.height() - textEdit->height() < 1.0);
    QVERIFY(size.width() <= textEdit->width());
    const QImage tight = textEdit->grab().toImage();
    const QRect ink = inkOf(tight);
    QVERIFY(!ink.isEmpty());
    // The panel's line lies 3 pixels from the sides.
    QVERIFY2(tight.rect().adjusted(3 + kClear, 2 + kClear, -3 - kClear, -4 - kClear).contains(ink),
             qPrintable(QStringLiteral("%1..%2 of %3").arg(ink.top()).arg(ink.bottom()).arg(tight.height())));
    // Nothing is cut: a taller text edit shows no more.
    textEdit->setFixedHeight(textEdit->height() + 40);
    QCOMPARE(inkOf(textEdit->grab().toImage()), ink);
}

void tst_OverlayStyle::tooltipHasRoomAroundIt()
{
    TestTooltip tooltip(&m_host, QFont(QStringLiteral("DejaVu Serif"), 11));
    tooltip.show(QStringLiteral("The list of all maps"));
    QTextEdit *const textEdit = tooltip.textEdit();
    QCOMPARE(textEdit->viewport()->geometry(), textEdit->rect());
    QCOMPARE(textEdit->document()->defaultFont().family(), tooltip.font.family());
    const QImage tight = textEdit->grab().toImage();
    const QRect ink = inkOf(tight);
    QVERIFY(tight.rect().adjusted(8, 8, -8, -8).contains(ink));
    textEdit->resize(textEdit->size() + QSize(40, 40));
    QCOMPARE(inkOf(textEdit->grab().toImage()), ink);
}

void tst_OverlayStyle::panelIsLightUnderDarkTextWhateverThePalette()
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40), QColor(20, 20, 20)));
    m_indicator = std::make_unique<TestIndicator>(&m_host);
    m_indicator->setHint(QStringLiteral("llllllll"));
    m_indicator->showTooltip();
    m_indicator->tick();
    const QImage image = m_indicator->textEdit()->grab().toImage();
    QApplication::setPalette(before);
    QVERIFY(lightness(image, {200, image.height() / 2}) > 230);
    QVERIFY(!inkOf(image).isEmpty());
}

void tst_OverlayStyle::panelHasRoundCorners()
{
    m_indicator->setHint(QStringLiteral("text"));
    m_indicator->showTooltip();
    m_indicator->tick();
    const QImage image = m_indicator->tooltip()->grab().toImage();
    const QRect panel = m_indicator->textEdit()->geometry();
    for (const QPoint &corner :
         {panel.topLeft(), panel.topRight(), panel.bottomLeft(), panel.bottomRight()}) {
        QCOMPARE(image.pixelColor(corner).alpha(), 0);
    }
    QCOMPARE(image.pixelColor(panel.center()).alpha(), 255);
}

void tst_OverlayStyle::panelStandsOutOnAnyWindow_data()
{
    QTest::addColumn<QColor>("window");
    QTest::newRow("white") << QColor(255, 255, 255);
    QTest::newRow("grey") << QColor(128, 128, 128);
    QTest::newRow("black") << QColor(0, 0, 0);
}

void tst_OverlayStyle::panelStandsOutOnAnyWindow()
{
    QFETCH(QColor, window);
    m_indicator->setHint(QStringLiteral("text\ntext"));
    m_indicator->showTooltip();
    m_indicator->tick();
    const QRect panel = m_indicator->textEdit()->geometry();
    QImage image(640, 480, QImage::Format_ARGB32_Premultiplied);
    image.fill(window);
    QPainter(&image).drawPixmap(0, 0, m_indicator->tooltip()->grab());
    // Somewhere on the way in, the line or the fill itself.
    const int middle = panel.center().x();
    double best = 0.0;
    for (int y = panel.bottom(); y > panel.bottom() - 8; --y) {
        best = qMax(best, contrast(image.pixelColor(middle, y), window));
    }
    QVERIFY2(best >= 3.0, qPrintable(QString::number(best)));
    // The shadow ends where the text edit does.
    QCOMPARE(image.pixelColor(middle, panel.bottom() + 1), window);
    if (window == QColor(Qt::white)) {
        QVERIFY(image.pixelColor(middle, panel.bottom() - 2).lightness() < 250);
    }
}

void tst_OverlayStyle::buttonShowsItsStates()
{
    for (QPushButton *const button : allButtons()) {
        QVERIFY(button->testAttribute(Qt::WA_Hover));
        const QImage plain = pictureOf(button, QStyle::State_None);
        const QImage hovered = pictureOf(button, QStyle::State_MouseOver);
        const QImage pressed = pictureOf(button, QStyle::State_Sunken);
        const QPoint inside(14, 12);
        QCOMPARE(plain.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(plain.pixelColor(inside).alpha(), 255);
        QVERIFY(hovered.pixelColor(inside) != plain.pixelColor(inside));
        QVERIFY(pressed.pixelColor(inside) != plain.pixelColor(inside));
        QVERIFY(pressed.pixelColor(inside) != hovered.pixelColor(inside));
        // Whichever way the focus came, keys go to the button from then on.
        const QImage focused = pictureOf(button, QStyle::State_HasFocus);
        double ring = 0.0;
        for (int x = button->mask().boundingRect().left(); x < 32; ++x) {
            ring = qMax(ring, contrast(focused.pixelColor(x, 12), plain.pixelColor(x, 12)));
        }
        QVERIFY2(ring >= 3.0, qPrintable(QString::number(ring)));
    }
}

void tst_OverlayStyle::captionsCanBeRead()
{
    for (const QPushButton *const button : allButtons()) {
        for (const QStyle::State state :
             {QStyle::State_None, QStyle::State_MouseOver, QStyle::State_Sunken}) {
            // A caption of nothing but ink.
            const QImage image = pictureOf(button, state, QString(QChar(0x2588)));
            const QColor ink = image.pixelColor(button->mask().boundingRect().center());
            const QColor fill = image.pixelColor(14, 12);
            QVERIFY2(contrast(ink, fill) >= 4.5, qPrintable(ink.name() + QLatin1Char(' ') + fill.name()));
        }
    }
}

void tst_OverlayStyle::buttonsStandOutOnAnyWindow_data()
{
    panelStandsOutOnAnyWindow_data();
}

void tst_OverlayStyle::buttonsStandOutOnAnyWindow()
{
    QFETCH(QColor, window);
    for (QPushButton *const button : allButtons()) {
        const QImage image = pictureOf(button, QStyle::State_None, QString(), window);
        const QRect body = button->mask().boundingRect();
        double best = 0.0;
        for (int x = body.left(); x < body.left() + 4; ++x) {
            best = qMax(best, contrast(image.pixelColor(x, body.center().y()), window));
        }
        QVERIFY2(best >= 3.0, qPrintable(QStringLiteral("%1 %2").arg(button->objectName()).arg(best)));
    }
}

void tst_OverlayStyle::buttonTakesClicksWhereItIsDrawn()
{
    for (QPushButton *const button : allButtons()) {
        QCOMPARE(button->size(), QSize(64, 32));
        const QImage image = pictureOf(button, QStyle::State_None);
        QRegion drawn;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() != 0) {
                    drawn += QRect(x, y, 1, 1);
                }
            }
        }
        QCOMPARE(drawn.boundingRect(), button->mask().boundingRect());
        QVERIFY(drawn.subtracted(button->mask()).isEmpty());
    }
}

void tst_OverlayStyle::yesAndNoStandApart()
{
    m_indicator->tick();
    QPushButton *const yes = TestIndicator::yes();
    QPushButton *const no = TestIndicator::no();
    yes->ensurePolished();
    no->ensurePolished();
    m_indicator->setTargetWindowOffset(300, 200, QString(), true);
    m_indicator->tick(20);
    QCOMPARE(no->pos() - yes->pos(), QPoint(56, 0));
    const QRect yesBody = yes->mask().boundingRect().translated(yes->pos());
    const QRect noBody = no->mask().boundingRect().translated(no->pos());
    QCOMPARE(noBody.left() - yesBody.right() - 1, 8);
    QCOMPARE(noBody.size(), yesBody.size());
    QCOMPARE(noBody.top(), yesBody.top());
}

void tst_OverlayStyle::yesAndNoAreNotOfEqualWeight()
{
    const QPoint inside(14, 12);
    const QColor next = pictureOf(TestIndicator::next(), QStyle::State_None).pixelColor(inside);
    const QColor yes = pictureOf(TestIndicator::yes(), QStyle::State_None).pixelColor(inside);
    const QColor no = pictureOf(TestIndicator::no(), QStyle::State_None).pixelColor(inside);
    QCOMPARE(yes, next);
    QVERIFY(contrast(yes, no) >= 4.5);
}

void tst_OverlayStyle::captionsFitTheButtons_data()
{
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<int>("dpi");
    for (const int dpi : {96, 120, 144, 192}) {
        QTest::addRow("english, %d", dpi)
            << QStringList{QStringLiteral("Next"), QStringLiteral("Yes"), QStringLiteral("No")} << dpi;
        QTest::addRow("japanese, %d", dpi)
            << QStringList{QStringLiteral(u"\u6b21\u3078"), QStringLiteral(u"\u306f\u3044"),
                           QStringLiteral(u"\u3044\u3044\u3048")}
            << dpi;
        QTest::addRow("chinese, %d", dpi) << QStringList{QStringLiteral(u"\u4e0b\u4e00\u6b65"),
                                                         QStringLiteral(u"\u662f"), QStringLiteral(u"\u5426")}
                                          << dpi;
    }
}

void tst_OverlayStyle::captionsFitTheButtons()
{
    QFETCH(QStringList, captions);
    QFETCH(int, dpi);
    const QVector<QPushButton *> buttons = allButtons();
    for (int i = 0; i < 3; ++i) {
        QFont font = buttons[i]->font();
        font.setPixelSize(qRound(10.5 * dpi / 72.0));
        buttons[i]->setFont(font);
        const QRect ink = captionOf(buttons[i], captions[i]);
        const QRect body = buttons[i]->mask().boundingRect();
        QVERIFY(ink.height() >= 8);
        QVERIFY2(body.adjusted(3, 3, -3, -3).contains(ink), qPrintable(captions[i]));
        // In the middle: what was cut at one side would not be.
        QVERIFY2(qAbs((ink.left() - body.left()) - (body.right() - ink.right())) <= 3,
                 qPrintable(captions[i]));
    }
}

void tst_OverlayStyle::captionThatFitsIsNotShrunk()
{
    const QString caption = QStringLiteral("Next");
    QPushButton *const next = TestIndicator::next();
    QFont font = next->font();
    QVector<int> widths;
    for (const int size : {12, 13, 14, 15}) {
        font.setPixelSize(size);
        next->setFont(font);
        const int ink = captionOf(next, caption).width();
        QVERIFY(qAbs(ink - QFontMetrics(font).tightBoundingRect(caption).width()) <= 2);
        widths += ink;
    }
    QVERIFY(widths.last() > widths.first());
}

void tst_OverlayStyle::otherWidgetsAreLeftAlone()
{
    QTextEdit textEdit;
    const QPalette before = textEdit.palette();
    textEdit.ensurePolished();
    QCOMPARE(textEdit.palette(), before);
    QVERIFY(textEdit.frameWidth() > 0);
    QVERIFY(textEdit.viewport()->autoFillBackground());
    QWidget parent;
    QPushButton button(QStringLiteral("plain"), &parent);
    button.resize(64, 32);
    QImage image = button.grab().toImage();
    QCOMPARE(image.pixelColor(0, 16).alpha(), 255);
    QVERIFY(button.mask().isEmpty());
    QVERIFY(image.pixelColor(6, 16) != TestIndicator::next()->grab().toImage().pixelColor(6, 16));
}

QTEST_MAIN(tst_OverlayStyle)
#include "tst_OverlayStyle.moc"
