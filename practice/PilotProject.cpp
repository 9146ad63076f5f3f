#include "PilotProject.h"

#include "project/ProjectFolder.h"
#include "project/StartData.h"
#include "window/TileDrawing.h"

bool putProject(const QString &folder, const QString &locale, QString *error)
{
    QStringList errors;
    const StartData start =
        StartData::read(QStringLiteral(":/descriptions/data"), tileDrawings(), locale, &errors);
    if (!errors.isEmpty()) {
        *error = errors.constFirst();
        return false;
    }
    return ProjectFolder::create(folder, start.texts.value(QStringLiteral("projectName")), start.files(),
                                 error)
        .has_value();
}
