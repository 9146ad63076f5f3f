#include "project/ProjectState.h"

#include "project/DataRootsJson.h"
#include "project/Project.h"

namespace {

const QLatin1String kFolder("folder");
const QLatin1String kFiles("files");
const QLatin1String kStep("step");
const QLatin1String kBefore("before");
const QLatin1String kLayer("layer");

/// What brings the project's files to these: all that differ, and those that are not among them.
DataRoots wayTo(const DataRoots &wanted, const DataFiles &files)
{
    DataRoots way = wanted;
    const QStringList names = files.names();
    for (const QString &name : names) {
        if (!way.contains(name)) {
            way.insert(name, QJsonValue(QJsonValue::Undefined));
        }
    }
    return way;
}

DataRoots present(const DataFiles &files)
{
    DataRoots roots;
    const QStringList names = files.names();
    for (const QString &name : names) {
        roots.insert(name, files.file(name));
    }
    return roots;
}

} // namespace

QJsonObject ProjectState::save(Project &project)
{
    DataFiles &files = project.files();
    QJsonObject state{{kFolder, files.folder()}};
    state.insert(kFiles, DataRootsJson::save(present(files)));
    state.insert(kStep, files.lastStep());
    state.insert(kBefore, DataRootsJson::save(files.beforeLastStep()));
    state.insert(kLayer, files.saveSelf());
    return state;
}

bool ProjectState::restore(const QJsonObject &state, Project &project)
{
    DataFiles &files = project.files();
    const QString folder = state.value(kFolder).toString();
    if (folder.isEmpty()) {
        files.close();
        return true;
    }
    QString error;
    if (folder != files.folder() && !files.open(folder, &error)) {
        return false;
    }
    const DataRoots wanted = DataRootsJson::load(state.value(kFiles).toObject());
    if (!files.goToStep(state.value(kStep).toString())) {
        DataRoots before = wanted;
        const DataRoots changed = DataRootsJson::load(state.value(kBefore).toObject());
        for (auto root = changed.begin(); root != changed.end(); ++root) {
            before.insert(root.key(), root.value());
        }
        if (!changed.isEmpty()) {
            files.change(wayTo(before, files), QString());
        }
    }
    files.change(wayTo(wanted, files), QString());
    files.loadSelf(state.value(kLayer).toObject());
    return true;
}
