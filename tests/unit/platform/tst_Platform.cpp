#include "platform/Platform.h"

#include <QLoggingCategory>
#include <QtTest>

using Variables = QMap<QString, QString>;

namespace {

QProcessEnvironment environmentOf(const Variables &variables)
{
    QProcessEnvironment environment;
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable) {
        environment.insert(variable.key(), variable.value());
    }
    return environment;
}

} // namespace

class tst_Platform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void x11IsChosenInAWaylandSession_data();
    void x11IsChosenInAWaylandSession();
    void aSessionWithoutX11IsLeftToQtAndComplainedOf();
    void whatIsOrdinaryIsNotLogged();
    void findsEachVariableThatScales_data();
    void findsEachVariableThatScales();
    void findsTheVariablesThatScale();
    void takesScreenPixels();
    void takesTheWindowSystem();
    void theServersWarningsAloneAreKeptOut();
};

void tst_Platform::x11IsChosenInAWaylandSession_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("plugin");
    const QString display = QStringLiteral("DISPLAY");
    const QString wayland = QStringLiteral("WAYLAND_DISPLAY");
    const QString type = QStringLiteral("XDG_SESSION_TYPE");
    const QString plugin = QStringLiteral("QT_QPA_PLATFORM");
    const QString x = QStringLiteral(":0");
    const QString w = QStringLiteral("wayland-0");
    const QString xcb = QStringLiteral("xcb");
    const QString typeWayland = QStringLiteral("wayland");
    QTest::newRow("nothing is known") << Variables{} << QString();
    QTest::newRow("X11") << Variables{{display, x}, {type, QStringLiteral("x11")}} << QString();
    QTest::newRow("Wayland and X11") << Variables{{display, x}, {wayland, w}} << xcb;
    QTest::newRow("by its type") << Variables{{display, x}, {type, typeWayland}} << xcb;
    QTest::newRow("by a socket handed over")
        << Variables{{display, x}, {QStringLiteral("WAYLAND_SOCKET"), QStringLiteral("5")}} << xcb;
    QTest::newRow("Wayland without X11") << Variables{{wayland, w}, {type, typeWayland}} << QString();
    QTest::newRow("an empty X11") << Variables{{wayland, w}, {display, QString()}} << QString();
    QTest::newRow("an empty Wayland") << Variables{{wayland, QString()}, {display, x}} << QString();
    QTest::newRow("wayland is asked for")
        << Variables{{display, x}, {wayland, w}, {plugin, typeWayland}} << QString();
    QTest::newRow("another is asked for")
        << Variables{{display, x}, {wayland, w}, {plugin, QStringLiteral("offscreen")}} << QString();
    QTest::newRow("none is asked for") << Variables{{display, x}, {wayland, w}, {plugin, QString()}} << xcb;
}

void tst_Platform::x11IsChosenInAWaylandSession()
{
    QFETCH(Variables, variables);
    QFETCH(QString, plugin);
    const Platform::Choice choice = Platform::choose(environmentOf(variables));
    QCOMPARE(choice.plugin, plugin);
    QVERIFY(plugin.isEmpty() || choice.reason.contains(QStringLiteral("Wayland session")));
    QVERIFY(!choice.reason.contains(QLatin1Char('\n')));
}

void tst_Platform::aSessionWithoutX11IsLeftToQtAndComplainedOf()
{
    const Platform::Choice choice =
        Platform::choose(environmentOf({{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0")}}));
    QCOMPARE(choice.plugin, QString());
    QVERIFY2(choice.reason.contains(QStringLiteral("DISPLAY is not set")), qPrintable(choice.reason));
    QVERIFY(choice.reason.contains(QStringLiteral("Xwayland")));
}

void tst_Platform::whatIsOrdinaryIsNotLogged()
{
    QCOMPARE(Platform::choose(environmentOf({{QStringLiteral("DISPLAY"), QStringLiteral(":0")}})).reason,
             QString());
    QCOMPARE(Platform::choose(environmentOf({{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0")},
                                             {QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland")}}))
                 .reason,
             QString());
}

void tst_Platform::findsEachVariableThatScales_data()
{
    QTest::addColumn<QString>("name");
    for (const char *const name :
         {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
          "QT_ENABLE_HIGHDPI_SCALING", "QT_USE_PHYSICAL_DPI", "QT_DEVICE_PIXEL_RATIO"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_Platform::findsEachVariableThatScales()
{
    QFETCH(QString, name);
    QCOMPARE(Platform::scalingIn(environmentOf({{name, QStringLiteral("1")}})), QStringList(name));
}

void tst_Platform::findsTheVariablesThatScale()
{
    QCOMPARE(Platform::scalingIn(environmentOf({{QStringLiteral("QT_FONT_DPI"), QStringLiteral("96")}})),
             QStringList());
    QCOMPARE(Platform::scalingIn(environmentOf({{QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2")},
                                                {QStringLiteral("QT_ENABLE_HIGHDPI_SCALING"), QString()},
                                                {QStringLiteral("HOME"), QStringLiteral("/")}})),
             QStringList({QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("QT_ENABLE_HIGHDPI_SCALING")}));
}

void tst_Platform::takesScreenPixels()
{
    qputenv("QT_SCALE_FACTOR", "1.5");
    qputenv("QT_SCREEN_SCALE_FACTORS", "2");
    Platform::takeScreenPixels();
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCREEN_SCALE_FACTORS"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_DisableHighDpiScaling));
#else
    QCOMPARE(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), QByteArray("0"));
#endif
}

void tst_Platform::takesTheWindowSystem()
{
    qputenv("DISPLAY", ":0");
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(Platform::takeWindowSystem(), QString());
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("offscreen"));
    qunsetenv("QT_QPA_PLATFORM");
    QVERIFY(!Platform::takeWindowSystem().isEmpty());
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("xcb"));
}

void tst_Platform::theServersWarningsAloneAreKeptOut()
{
    const QLoggingCategory server("qt.qpa.xcb");
    const QLoggingCategory plugins("qt.qpa.plugin");
    QVERIFY(server.isWarningEnabled());
    Platform::keepServerWarningsOut();
    QVERIFY(!server.isWarningEnabled());
    QVERIFY(server.isCriticalEnabled());
    QVERIFY(plugins.isWarningEnabled());
    QVERIFY(QLoggingCategory::defaultCategory()->isDebugEnabled());
}

QTEST_APPLESS_MAIN(tst_Platform)
#include "tst_Platform.moc"
