#include "FakeOverlayHost.h"
#include "LogCapture.h"
#include "TestTooltip.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QTextDocument>
#include <QtTest>

#include <limits>
#include <memory>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

void tick(EditorTooltip *tooltip, int count = 1)
{
    for (int i = 0; i < count; ++i) {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(tooltip, &event);
    }
}

// An opacity is kept in 255 steps.
int stepsOf(double opacity)
{
    return static_cast<int>(opacity * 255.0 + 0.001);
}

int steps(const EditorTooltip *tooltip)
{
    return qRound(tooltip->windowOpacity() * 255.0);
}

int counter(const EditorTooltip *tooltip, const char *name)
{
    return tooltip->getSettings().value(QLatin1String(name)).toInt();
}

} // namespace

class tst_EditorTooltip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isBuiltHidden();
    void methodTableIsComplete();
    void showsTheText();
    void laterTextTakesItsPlace();
    void isCentredOnItsTextEdit_data();
    void isCentredOnItsTextEdit();
    void textEditIsAsLargeAsItsDocument();
    void emptyTextShowsTheWindowAlone();
    void staysInvisibleForOneHundredTicks();
    void fadesInStaysAndFadesOut();
    void anotherShowRestarts();
    void hiddenItStandsStill();
    void emptyTextRunsThroughItsTimes();
    void settingsHoldExactlyTheirKeys();
    void settingsCarryAllButTheOpacity();
    void settingsOfEmptyTextHideTheTextEdit();
    void emptyMapReadsAsZero();
    void anyPointIsTaken_data();
    void anyPointIsTaken();
    void changesAreLogged();
    void closingIsToldAndEndsIt();
    void destructionEndsTheTimerAndLogs();

private:
    void show(const QString &text, int x = 300, int y = 200) { m_tooltip->show(text, x, y); }
    TestTooltip *tooltip() { return m_tooltip.get(); }
    QTextEdit *textEdit() { return m_tooltip->textEdit(); }

    FakeOverlayHost m_host;
    std::unique_ptr<TestTooltip> m_tooltip;
};

void tst_EditorTooltip::init()
{
    m_host = FakeOverlayHost();
    m_tooltip = std::make_unique<TestTooltip>(&m_host);
}

void tst_EditorTooltip::cleanup()
{
    m_tooltip.reset();
}

void tst_EditorTooltip::isBuiltHidden()
{
    QVERIFY(tooltip()->isHidden());
    QCOMPARE(tooltip()->geometry(), QRect(0, 0, 320, 240));
    QCOMPARE(tooltip()->windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                           Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint);
    QVERIFY(tooltip()->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(tooltip()->testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(textEdit()->lineWrapMode(), QTextEdit::NoWrap);
    QCOMPARE(textEdit()->autoFormatting(), QTextEdit::AutoAll);
    QCOMPARE(textEdit()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(textEdit()->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(textEdit()->windowFlags().testFlag(Qt::WindowTransparentForInput));
    QCOMPARE(textEdit()->focusPolicy(), Qt::NoFocus);
    QVERIFY(!textEdit()->isWindow());
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(tooltip());
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 10);
    QCOMPARE(counter(tooltip(), "delay"), 0);
    QCOMPARE(counter(tooltip(), "timeout"), 0);
    QCOMPARE(counter(tooltip(), "fade"), 0);
}

void tst_EditorTooltip::methodTableIsComplete()
{
    const QMetaObject &meta = EditorTooltip::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("changeEvent(QEvent*)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void tst_EditorTooltip::showsTheText()
{
    tooltip()->font = QFont(QStringLiteral("Some Family"));
    show(QStringLiteral("Map list"));
    QCOMPARE(textEdit()->font().family(), QStringLiteral("Some Family"));
    QVERIFY(tooltip()->isVisible());
    QVERIFY(textEdit()->isVisible());
    QCOMPARE(textEdit()->toPlainText(), QStringLiteral("Map list"));
    QCOMPARE(tooltip()->windowOpacity(), 0.0);
    QCOMPARE(counter(tooltip(), "delay"), 100);
    QCOMPARE(counter(tooltip(), "timeout"), 500);
    QCOMPARE(counter(tooltip(), "fade"), 25);
    QCOMPARE(tooltip()->size(), QSize(320, 240));
}

void tst_EditorTooltip::laterTextTakesItsPlace()
{
    show(QStringLiteral("one"));
    LogCapture log;
    show(QStringLiteral("two"));
    QCOMPARE(textEdit()->toPlainText(), QStringLiteral("two"));
    const QSizeF size = textEdit()->document()->size();
    QString line;
    QDebug(&line).nospace() << "EditorTooltip::show 74 \"two\" " << size.width() << " " << size.height();
    QCOMPARE(log.debugs().size(), 1);
    QVERIFY2(log.debugs().constFirst().endsWith(line), qPrintable(log.debugs().constFirst()));
}

void tst_EditorTooltip::isCentredOnItsTextEdit_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << QStringLiteral("Map");
    QTest::newRow("long") << QStringLiteral(
        "The list of all maps of the project, with the one that is open marked");
    QTest::newRow("lines") << QStringLiteral("one\ntwo\nthree");
}

void tst_EditorTooltip::isCentredOnItsTextEdit()
{
    QFETCH(QString, text);
    show(text, 401, 303);
    QCOMPARE(tooltip()->pos(), QPoint(401 - textEdit()->width() / 2, 303 - textEdit()->height() / 2));
}

void tst_EditorTooltip::textEditIsAsLargeAsItsDocument()
{
    show(QStringLiteral("The list of all maps of the project, with the one that is open marked"));
    const QSizeF size = textEdit()->document()->size();
    QCOMPARE(textEdit()->size(), QSize(static_cast<int>(size.width()), static_cast<int>(size.height())));
    QVERIFY(textEdit()->width() > 320);
}

void tst_EditorTooltip::emptyTextShowsTheWindowAlone()
{
    show(QStringLiteral("something"));
    const QSize size = textEdit()->size();
    LogCapture log;
    show(QString(), 500, 400);
    QVERIFY(tooltip()->isVisible());
    QVERIFY(textEdit()->isHidden());
    QCOMPARE(tooltip()->pos(), QPoint(500 - size.width() / 2, 400 - size.height() / 2));
    QVERIFY(log.lines().isEmpty());
}

void tst_EditorTooltip::staysInvisibleForOneHundredTicks()
{
    show(QStringLiteral("text"));
    for (int i = 0; i < 100; ++i) {
        tick(tooltip());
        QCOMPARE(tooltip()->windowOpacity(), 0.0);
    }
    QCOMPARE(counter(tooltip(), "delay"), 0);
    tick(tooltip());
    QCOMPARE(steps(tooltip()), stepsOf(1.0 / 25.0));
}

void tst_EditorTooltip::fadesInStaysAndFadesOut()
{
    show(QStringLiteral("text"));
    tick(tooltip(), 100);
    for (int i = 1; i <= 25; ++i) {
        tick(tooltip());
        QCOMPARE(steps(tooltip()), stepsOf(i / 25.0));
    }
    for (int i = 0; i < 500; ++i) {
        tick(tooltip());
        QCOMPARE(steps(tooltip()), 255);
    }
    QCOMPARE(counter(tooltip(), "timeout"), 0);
    QCOMPARE(counter(tooltip(), "fade"), 25);
    for (int i = 24; i >= 0; --i) {
        tick(tooltip());
        QCOMPARE(steps(tooltip()), stepsOf(i / 25.0));
    }
    tick(tooltip(), 50);
    QCOMPARE(steps(tooltip()), 0);
    QVERIFY(tooltip()->isVisible());
}

void tst_EditorTooltip::anotherShowRestarts()
{
    show(QStringLiteral("text"));
    tick(tooltip(), 100 + 25 + 500 + 10);
    QCOMPARE(steps(tooltip()), stepsOf(15.0 / 25.0));
    show(QStringLiteral("text"));
    QCOMPARE(tooltip()->windowOpacity(), 0.0);
    QCOMPARE(counter(tooltip(), "delay"), 100);
    QCOMPARE(counter(tooltip(), "timeout"), 500);
    QCOMPARE(counter(tooltip(), "fade"), 25);
    tick(tooltip(), 100);
    QCOMPARE(steps(tooltip()), 0);
    tick(tooltip());
    QCOMPARE(steps(tooltip()), stepsOf(1.0 / 25.0));
}

void tst_EditorTooltip::hiddenItStandsStill()
{
    show(QStringLiteral("text"));
    tick(tooltip(), 110);
    const QVariantMap before = tooltip()->getSettings();
    tooltip()->hide();
    tick(tooltip(), 50);
    QCOMPARE(tooltip()->getSettings(), before);
    tooltip()->show();
    tick(tooltip());
    QCOMPARE(steps(tooltip()), stepsOf(11.0 / 25.0));
}

void tst_EditorTooltip::emptyTextRunsThroughItsTimes()
{
    show(QString());
    tick(tooltip(), 125);
    QCOMPARE(steps(tooltip()), 255);
    tick(tooltip(), 525);
    QCOMPARE(steps(tooltip()), 0);
    QVERIFY(tooltip()->isVisible());
}

void tst_EditorTooltip::settingsHoldExactlyTheirKeys()
{
    show(QStringLiteral("text"), 333, 222);
    tick(tooltip(), 130);
    const QVariantMap settings = tooltip()->getSettings();
    const QVariantMap expected{{QStringLiteral("text"), QStringLiteral("text")},
                               {QStringLiteral("width"), textEdit()->width()},
                               {QStringLiteral("height"), textEdit()->height()},
                               {QStringLiteral("x"), tooltip()->x()},
                               {QStringLiteral("y"), tooltip()->y()},
                               {QStringLiteral("windowOpacity"), 1.0},
                               {QStringLiteral("delay"), 0},
                               {QStringLiteral("timeout"), 495},
                               {QStringLiteral("fade"), 0}};
    QCOMPARE(settings, expected);
    QCOMPARE(static_cast<int>(settings.value(QStringLiteral("windowOpacity")).type()),
             static_cast<int>(QMetaType::Double));
}

void tst_EditorTooltip::settingsCarryAllButTheOpacity()
{
    show(QStringLiteral("text"), 333, 222);
    tick(tooltip(), 130);
    QVariantMap settings = tooltip()->getSettings();
    TestTooltip rebuilt(&m_host);
    LogCapture log;
    rebuilt.setSettings(settings);
    QVERIFY(log.contains(QStringLiteral("EditorTooltip::setSettings 106 QMap((\"delay\"")));
    QCOMPARE(rebuilt.windowOpacity(), 0.0);
    settings.insert(QStringLiteral("windowOpacity"), 0.0);
    QCOMPARE(rebuilt.getSettings(), settings);
    QCOMPARE(rebuilt.textEdit()->toPlainText(), QStringLiteral("text"));
    QVERIFY(!rebuilt.textEdit()->isHidden());
    QVERIFY(rebuilt.isHidden());
    rebuilt.show();
    tick(&rebuilt, 495);
    QCOMPARE(steps(&rebuilt), 0);
    tick(&rebuilt);
    QCOMPARE(steps(&rebuilt), stepsOf(24.0 / 25.0));
    // The name that is read.
    rebuilt.setSettings({{QStringLiteral("opacity"), 1.0}});
    QCOMPARE(steps(&rebuilt), 255);
}

void tst_EditorTooltip::settingsOfEmptyTextHideTheTextEdit()
{
    show(QStringLiteral("text"));
    tooltip()->setSettings(
        {{QStringLiteral("x"), 7}, {QStringLiteral("y"), 8}, {QStringLiteral("width"), 9}});
    QVERIFY(textEdit()->isHidden());
    QVERIFY(textEdit()->width() != 9);
    QCOMPARE(tooltip()->pos(), QPoint(7, 8));
}

void tst_EditorTooltip::emptyMapReadsAsZero()
{
    show(QStringLiteral("text"));
    tooltip()->setSettings({});
    QCOMPARE(tooltip()->pos(), QPoint(0, 0));
    QCOMPARE(tooltip()->getSettings().value(QStringLiteral("text")).toString(), QString());
    for (const char *name : {"delay", "timeout", "fade"}) {
        QCOMPARE(counter(tooltip(), name), 0);
    }
}

void tst_EditorTooltip::anyPointIsTaken_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    for (const int x : {kMin, -70000, 70000, kMax}) {
        for (const int y : {kMin, kMax}) {
            QTest::addRow("%d, %d", x, y) << x << y;
        }
    }
}

void tst_EditorTooltip::anyPointIsTaken()
{
    QFETCH(int, x);
    QFETCH(int, y);
    show(QStringLiteral("text"), x, y);
    tick(tooltip(), 110);
    QVERIFY(tooltip()->isVisible());
    QCOMPARE(tooltip()->size(), QSize(320, 240));
    show(QStringLiteral("text"), 100, 100);
    QCOMPARE(tooltip()->pos(), QPoint(100 - textEdit()->width() / 2, 100 - textEdit()->height() / 2));
}

void tst_EditorTooltip::changesAreLogged()
{
    LogCapture log;
    QEvent event(QEvent::ActivationChange);
    QCoreApplication::sendEvent(tooltip(), &event);
    QCOMPARE(log.debugs().size(), 1);
    QVERIFY(log.debugs().constFirst().contains(QStringLiteral("EditorTooltip::changeEvent 127")));
    QVERIFY(m_host.calls.isEmpty());
}

void tst_EditorTooltip::closingIsToldAndEndsIt()
{
    show(QStringLiteral("text"));
    const QPointer<QTextEdit> text = textEdit();
    tooltip()->close();
    QCOMPARE(m_host.calls, QStringList(QStringLiteral("tooltip closed")));
    QVERIFY(text.isNull());
    QVERIFY(tooltip()->isHidden());
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(tooltip()).isEmpty());
    QCOMPARE(tooltip()->getSettings().value(QStringLiteral("width")).toInt(), 0);
}

void tst_EditorTooltip::destructionEndsTheTimerAndLogs()
{
    LogCapture log;
    {
        const EditorTooltip shortLived(nullptr, &m_host);
    }
    QVERIFY(log.contains(QStringLiteral("EditorTooltip::~EditorTooltip 53")));
}

QTEST_MAIN(tst_EditorTooltip)
#include "tst_EditorTooltip.moc"
