#include "SystemService/SystemService.h"
#include "Tutorial/TutorialManager.h"
#include "Tutorial/localisation/Translators.h"
#include "Tutorial/overlay/OverlayStyle.h"
#include "UndoRedo/UndoRedo.h"
#include "platform/Platform.h"
#include "tool/EndSignals.h"
#include "tool/LogLine.h"

#include <QApplication>
#include <QLocale>
#include <QPointer>

#include <csignal>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\main)";

} // namespace

int main(int argc, char **argv)
{
#ifdef SIGPIPE
    // Who reads the log may go away: a line that nobody takes must not end the process.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    // Qt::AA_X11InitThreads: out of use since Qt 5.15, where naming it is warned about.
    QCoreApplication::setAttribute(static_cast<Qt::ApplicationAttribute>(10));
    Platform::takeScreenPixels();
    if (const QString reason = Platform::takeWindowSystem(); !reason.isEmpty()) {
        logDebug(kSource, "main", 98) << reason;
    }
    QApplication application(argc, argv);
    Platform::keepServerWarningsOut();
    QCoreApplication::setApplicationName(QStringLiteral("Tutorial"));
    QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELMORAN"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("velmoran.example"));
    // Overlays are closed and made anew while nothing is shown; only the link ends the process.
    QApplication::setQuitOnLastWindowClosed(false);
    OverlayStyle::apply();
    const EndSignals endSignals;

    const QStringList arguments = QCoreApplication::arguments();
    const QString locale = arguments.size() >= 3 ? arguments.at(2) : QStringLiteral("en_US");
    const LoadedTranslator loaded = loadTranslator(locale, &application);
    logDebug(kSource, "main", 122) << QLatin1String(":/translations/") + locale << loaded.loaded;
    QCoreApplication::installTranslator(loaded.translator);

    SystemService systemService(&application);
    // With an empty key the manager deletes itself while the loop runs.
    const QPointer<TutorialManager> manager = new TutorialManager(&application);
    UndoRedo undoRedo(&application, manager);
    UndoRedo::publish(&undoRedo);
    QLocale::setDefault(QLocale(QLocale::C, QLocale::AnyCountry));

    QObject::connect(&endSignals, &EndSignals::received, &application, [manager] {
        if (manager != nullptr) {
            manager->requestClose();
        } else {
            QCoreApplication::quit();
        }
    });

    const int status = QApplication::exec();
    delete manager;
    return status;
}
