// Takes a picture of all that the practice editor can show: every window with each of its tabs, and the form
// of every event command. scripts/window-pictures runs it.
//
//     window-pictures FOLDER LOCALE light|dark

#include "EveryWindow.h"
#include "Palettes.h"
#include "SampleFiles.h"

#include <QDir>
#include <QStyleFactory>

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        qCritical("usage: window-pictures FOLDER LOCALE light|dark");
        return 2;
    }
    const QDir folder(arguments.at(1));
    QApplication::setStyle(QStyleFactory::create(str("Fusion")));
    QApplication::setPalette(arguments.at(3) == str("dark") ? darkPalette() : lightPalette());
    SampleEditor editor(qPrintable(arguments.at(2)), sample::catalogue(arguments.at(2)));
    bool isSaved = QDir().mkpath(folder.path());
    const auto look = [&folder, &isSaved](const QString &what, EditorWindow *window) {
        QString name = what;
        QWidget *const seen = window->isWindow() ? window : window->window();
        const QString path = folder.filePath(name.replace(QLatin1Char(' '), QLatin1Char('-')) + str(".png"));
        isSaved = seen->grab().save(path) && isSaved;
    };
    EveryWindow every(&editor, look);
    every.visitAll();
    for (const PopupDescription &popup : every.windows()[every.windows().popupKey()].popups) {
        editor->window(popup.name)->show();
        look(popup.name, editor->window(popup.name));
        editor->window(popup.name)->hide();
    }
    if (!isSaved) {
        qCritical("cannot write to %s", qPrintable(folder.path()));
    }
    return isSaved ? 0 : 1;
}
