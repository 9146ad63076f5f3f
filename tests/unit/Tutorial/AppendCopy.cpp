#include "AuthoringExample.h"
#include "Tutorial/TutorialManager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QTextStream>

// append-copy KEY FILE ID DX DY
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("My company")); // the settings have these names
    QCoreApplication::setApplicationName(QStringLiteral("append-copy"));

    TutorialManager manager;             // takes KEY from the command line, and makes the document
    UndoRedo history(nullptr, &manager); // goes before the manager, which it tells of each change
    UndoRedo::publish(&history);

    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 6) {
        QTextStream(stdout) << "append-copy KEY FILE ID DX DY\n";
        return 2;
    }
    const QPoint offset(arguments.at(4).toInt(), arguments.at(5).toInt());
    const QString message =
        appendMovedCopy(&manager, &history, arguments.at(2), arguments.at(3).toInt(), offset);
    QTextStream(stdout) << message;
    return message.isEmpty() ? 0 : 1;
}
