#include "window/EditorGround.h"

#include "lesson/LessonWords.h"
#include "window/TileDrawing.h"

#include <QDir>

#include <utility>

// Outside of any namespace, as the macro needs it: the files are compiled into a static library.
static void initWindowDescriptions()
{
    Q_INIT_RESOURCE(descriptions);
}

namespace {

/// Where projects go until somebody says another place.
QString usualProjectsFolder()
{
    return QDir::home().filePath(QStringLiteral("Games"));
}

} // namespace

EditorGround EditorGround::read(const QString &locale, const QString &folder, QStringList *errors)
{
    initWindowDescriptions();
    EditorGround ground;
    ground.locale = LessonWords::locales().contains(locale) ? locale : LessonWords::locales().constFirst();
    StartData start =
        StartData::read(folder + QStringLiteral("/data"), tileDrawings(), ground.locale, errors);
    start.choices = ChoiceSets::read(folder + QStringLiteral("/choices"), ground.locale, errors);
    start.eventCommands = EventCommands::read(folder + QStringLiteral("/commands"), ground.locale, errors);
    ground.project = std::make_unique<Project>(std::move(start), usualProjectsFolder());
    ground.painter = std::make_unique<MapPainter>(&ground.project->start());
    const QStringList commands = ground.project->commands().names();
    ground.descriptions = DescriptionSet::read(folder, &commands, errors);
    return ground;
}
