#include "AuthoringExample.h"

#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"
#include "TutorialEditor/TutorialItemData.h"

#include <QMetaObject>

// Adds a copy of one step at the end of a lesson, with the bubble moved by offset, as one step of the undo
// history, and saves the lesson. Returns empty text, or what to tell the author.
QString appendMovedCopy(QObject *manager, QObject *history, const QString &fileName, int id, QPoint offset)
{
    // A file that does not open leaves the lesson before in place, and the next save would write that.
    QMetaObject::invokeMethod(manager, "unload");

    QString message;
    QMetaObject::invokeMethod(manager, "loadTutorial", Q_RETURN_ARG(QString, message),
                              Q_ARG(QString, fileName));
    if (!message.isEmpty()) {
        return message; // something is missing in the document now, so it must not be saved
    }
    // A file that does not open gives no message, and copying an unknown id leaves the old clipboard.
    TutorialEditor::Manager *document = TutorialEditor::Manager::instance();
    if (findData(&document->tree()->items, id) == nullptr) {
        return QStringLiteral("%1 has no step %2").arg(fileName).arg(id);
    }
    QMetaObject::invokeMethod(manager, "copyTutorialItemList", Q_ARG(QList<int>, QList<int>{id}));

    QList<int> newIds;
    QMetaObject::invokeMethod(history, "beginSequence", Q_ARG(QString, QStringLiteral("append copy")));
    QMetaObject::invokeMethod(manager, "pasteTutorialItemList", Q_RETURN_ARG(QList<int>, newIds));
    const TutorialItemData *copy = findData(&document->tree()->items, newIds.value(0));
    // A step that points at nothing has -9999 in both, and half a position is an error.
    if (copy != nullptr && (copy->x != -9999 || copy->y != -9999)) {
        changeItem(document, copy->id, QStringLiteral("x"), copy->x + offset.x());
        changeItem(document, copy->id, QStringLiteral("y"), copy->y + offset.y());
    }
    QMetaObject::invokeMethod(history, "endSequence");

    QMetaObject::invokeMethod(manager, "save", Q_RETURN_ARG(QString, message));
    return message;
}
