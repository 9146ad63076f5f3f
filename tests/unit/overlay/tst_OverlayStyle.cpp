#include "Tutorial/overlay/OverlayStyle.h"

#include "IndicatorTest.h"
#include "Tutorial/overlay/EditorTooltip.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QtTest>

namespace {

int lightness(const QImage &image, const QPoint &at)
{
    return image.pixelColor(at).lightness();
}

// Rows of @p image in which something dark stands.
QVector<int> inkedRows(const QImage &image)
{
    QVector<int> rows;
    for (int y = 4; y < image.height() - 4; ++y) {
        for (int x = 8; x < image.width() - 8; ++x) {
            if (lightness(image, {x, y}) < 100) {
                rows += y;
                break;
            }
        }
    }
    return rows;
}

} // namespace

class TestOverlayStyle : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void fontIsLargeEnough();
    void panelTakesNoHeight_data();
    void panelTakesNoHeight();
    void tooltipPanelTakesNoRoom();
    void panelIsLightUnderDarkTextWhateverThePalette();
    void panelHasRoundCorners();
    void buttonShowsItsStates();
    void captionsFitTheButtons_data();
    void captionsFitTheButtons();
    void otherWidgetsAreLeftAlone();
};

void TestOverlayStyle::initTestCase()
{
    OverlayStyle::apply();
}

void TestOverlayStyle::fontIsLargeEnough()
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

void TestOverlayStyle::panelTakesNoHeight_data()
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

void TestOverlayStyle::panelTakesNoHeight()
{
    QFETCH(QString, hint);
    m_indicator->setHint(hint);
    m_indicator->showTooltip();
    m_indicator->tick();
    const QTextEdit *const textEdit = m_indicator->textEdit();
    QCOMPARE(textEdit->viewport()->height(), textEdit->height());
    const QSizeF size = textEdit->document()->size();
    QVERIFY(size.height() - textEdit->height() < 1.0);
    QVERIFY(size.width() <= textEdit->viewport()->width());
    QVERIFY(textEdit->viewport()->x() > 0);
    // All of the last line's ink is there: a taller text edit shows no more.
    const QImage tight = m_indicator->textEdit()->grab().toImage();
    m_indicator->textEdit()->setFixedHeight(textEdit->height() + 40);
    const QImage roomy = m_indicator->textEdit()->grab().toImage();
    QVERIFY(!inkedRows(tight).isEmpty());
    QCOMPARE(inkedRows(roomy), inkedRows(tight));
}

void TestOverlayStyle::tooltipPanelTakesNoRoom()
{
    EditorTooltip::show(&m_host, QStringLiteral("The list of all maps of the project"), 300, 200);
    const QTextEdit *const textEdit = m_host.tooltip->findChild<QTextEdit *>();
    QCOMPARE(textEdit->viewport()->geometry(), textEdit->rect());
    delete m_host.tooltip;
}

void TestOverlayStyle::panelIsLightUnderDarkTextWhateverThePalette()
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
    QVERIFY(!inkedRows(image).isEmpty());
}

void TestOverlayStyle::panelHasRoundCorners()
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

void TestOverlayStyle::buttonShowsItsStates()
{
    QPushButton *const button = TestIndicator::next();
    QVERIFY(button->testAttribute(Qt::WA_Hover) ||
            (button->ensurePolished(), button->testAttribute(Qt::WA_Hover)));
    const auto fill = [button](QStyle::State state) {
        QImage image(64, 32, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QStyleOptionButton option;
        option.initFrom(button);
        option.rect = image.rect();
        option.state = QStyle::State_Enabled | state;
        option.text = button->text();
        button->style()->drawControl(QStyle::CE_PushButton, &option, &painter, button);
        return image;
    };
    const QImage plain = fill(QStyle::State_None);
    const QPoint inside(6, 16);
    QCOMPARE(plain.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(plain.pixelColor(inside).alpha(), 255);
    QVERIFY(fill(QStyle::State_MouseOver).pixelColor(inside) != plain.pixelColor(inside));
    QVERIFY(fill(QStyle::State_Sunken).pixelColor(inside) != plain.pixelColor(inside));
    QVERIFY(fill(QStyle::State_Sunken).pixelColor(inside) !=
            fill(QStyle::State_MouseOver).pixelColor(inside));
    QVERIFY(fill(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange) != plain);
}

void TestOverlayStyle::captionsFitTheButtons_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("Next") << QStringLiteral("Next");
    QTest::newRow("japanese next") << QString::fromUtf8("\xe6\xac\xa1\xe3\x81\xb8");
    QTest::newRow("japanese no") << QString::fromUtf8("\xe3\x81\x84\xe3\x81\x84\xe3\x81\x88");
    QTest::newRow("chinese next") << QString::fromUtf8("\xe4\xb8\x8b\xe4\xb8\x80\xe6\xad\xa5");
}

void TestOverlayStyle::captionsFitTheButtons()
{
    QFETCH(QString, caption);
    const QFontMetrics metrics = TestIndicator::next()->fontMetrics();
    QVERIFY(metrics.horizontalAdvance(caption) <= 64 - 8);
    QVERIFY(metrics.height() <= 32 - 6);
}

void TestOverlayStyle::otherWidgetsAreLeftAlone()
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
    QVERIFY(image.pixelColor(6, 16) != TestIndicator::next()->grab().toImage().pixelColor(6, 16));
}

QTEST_MAIN(TestOverlayStyle)
#include "moc_IndicatorTest.cpp"
#include "tst_OverlayStyle.moc"
