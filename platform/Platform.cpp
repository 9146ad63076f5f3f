#include "platform/Platform.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace Platform {

namespace {

constexpr auto kPlugin = "QT_QPA_PLATFORM";

bool isSet(const QProcessEnvironment &environment, const QString &variable)
{
    return !environment.value(variable).isEmpty();
}

bool isWayland(const QProcessEnvironment &environment)
{
    return isSet(environment, QStringLiteral("WAYLAND_DISPLAY")) ||
           isSet(environment, QStringLiteral("WAYLAND_SOCKET")) ||
           environment.value(QStringLiteral("XDG_SESSION_TYPE")) == QLatin1String("wayland");
}

} // namespace

Choice choose(const QProcessEnvironment &environment)
{
    if (isSet(environment, QString::fromLatin1(kPlugin)) || !isWayland(environment)) {
        return {};
    }
    if (!isSet(environment, QStringLiteral("DISPLAY"))) {
        return {
            {},
            QStringLiteral("A Wayland session without an X11 side (DISPLAY is not set): windows may stand "
                           "elsewhere than they should, and below others. Xwayland mends that.")};
    }
    return {QStringLiteral("xcb"),
            QStringLiteral("A Wayland session: the windows go through its X11 side, where they can be placed "
                           "and stay on top. QT_QPA_PLATFORM chooses another way.")};
}

QStringList scalingIn(const QProcessEnvironment &environment)
{
    QStringList found;
    for (const char *const variable :
         {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
          "QT_ENABLE_HIGHDPI_SCALING", "QT_USE_PHYSICAL_DPI", "QT_DEVICE_PIXEL_RATIO"}) {
        if (environment.contains(QString::fromLatin1(variable))) {
            found += QString::fromLatin1(variable);
        }
    }
    return found;
}

QString takeWindowSystem()
{
    const Choice choice = choose(QProcessEnvironment::systemEnvironment());
    if (!choice.plugin.isEmpty()) {
        qputenv(kPlugin, choice.plugin.toLatin1());
    }
    return choice.reason;
}

void takeScreenPixels()
{
    const QStringList variables = scalingIn(QProcessEnvironment::systemEnvironment());
    for (const QString &variable : variables) {
        qunsetenv(variable.toLatin1());
    }
    // Those above are asked for; without them it may still be the default, and in Qt 6 it always is.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
#else
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
#endif
}

void keepServerWarningsOut()
{
    // Window managers frame and drop windows while Qt asks for them: that is nobody's fault and no news.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.xcb.warning=false"));
}

} // namespace Platform
