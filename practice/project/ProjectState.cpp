#include "project/ProjectState.h"

#include "project/DataRootsJson.h"
#include "project/Project.h"

namespace {

QString folderMember()
{
    return QStringLiteral("folder");
}
QString filesMember()
{
    return QStringLiteral("files");
}
QString stepMember()
{
    return QStringLiteral("step");
}
QString beforeMember()
{
    return QStringLiteral("before");
}
QString layerMember()
{
    return QStringLiteral("layer");
}

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
    QJsonObject state{{folderMember(), files.folder()}};
    state.insert(filesMember(), DataRootsJson::save(present(files)));
    state.insert(stepMember(), files.lastStep());
    state.insert(beforeMember(), DataRootsJson::save(files.beforeLastStep()));
    state.insert(layerMember(), files.saveSelf());
    return state;
}

bool ProjectState::restore(const QJsonObject &state, Project &project)
{
    DataFiles &files = project.files();
    const QString folder = state.value(folderMember()).toString();
    if (folder.isEmpty()) {
        files.close();
        return true;
    }
    QString error;
    if (folder != files.folder() && !files.open(folder, &error)) {
        return false;
    }
    const DataRoots wanted = DataRootsJson::load(state.value(filesMember()).toObject());
    if (!files.goToStep(state.value(stepMember()).toString())) {
        DataRoots before = wanted;
        const DataRoots changed = DataRootsJson::load(state.value(beforeMember()).toObject());
        for (auto root = changed.begin(); root != changed.end(); ++root) {
            before.insert(root.key(), root.value());
        }
        if (!changed.isEmpty()) {
            files.change(wayTo(before, files), QString());
        }
    }
    files.change(wayTo(wanted, files), QString());
    files.loadSelf(state.value(layerMember()).toObject());
    return true;
}
