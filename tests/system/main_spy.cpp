// Loaded ahead of the program's libraries, this stands between main and the event loop and writes down what
// main has set up by then, which nothing else shows.

#include <QApplication>
#include <QLocale>

#include <cstdio>

#include <dlfcn.h>

namespace {

void tell(const char *name, const QString &value)
{
    std::fprintf(stderr, "main has set %s to %s\n", name, qPrintable(value));
}

QObject *childOfApplication(const char *className)
{
    const QObjectList children = qApp->children();
    for (QObject *child : children) {
        if (child->inherits(className)) {
            return child;
        }
    }
    return nullptr;
}

/// Whether the manager hears of a change of the undo history.
bool historyHasItsHost()
{
    QObject *const history = childOfApplication("UndoRedo");
    const QObject *const manager = childOfApplication("TutorialManager");
    return history != nullptr && manager != nullptr && !manager->property("modified").toBool() &&
           QMetaObject::invokeMethod(history, "onIndexChanged", Qt::DirectConnection, Q_ARG(int, 1)) &&
           manager->property("modified").toBool();
}

} // namespace

// Qt's own function: it is called from main only.
int QApplication::exec()
{
    tell("the name", QCoreApplication::applicationName());
    tell("the version", QCoreApplication::applicationVersion());
    tell("the organisation", QCoreApplication::organizationName());
    tell("the domain", QCoreApplication::organizationDomain());
    tell("the locale", QLocale().name());
    tell("the number 1234.5", QLocale().toString(1234.5));
    tell("threads of X11",
         QVariant(QCoreApplication::testAttribute(Qt::ApplicationAttribute(10))).toString());
    tell("the end with the last window", QVariant(QGuiApplication::quitOnLastWindowClosed()).toString());
    tell("the host of the history", QVariant(historyHasItsHost()).toString());
    const auto execForReal = reinterpret_cast<int (*)()>(dlsym(RTLD_NEXT, "_ZN12QApplication4execEv"));
    return execForReal != nullptr ? execForReal() : 1;
}
