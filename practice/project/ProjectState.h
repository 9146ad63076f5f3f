#pragma once

#include <QJsonObject>

class Project;

/// The open project as a value: its folder, its data files, what is selected, and the last step of its
/// history.
namespace ProjectState {

[[nodiscard]] QJsonObject save(Project &project);

/// Makes the project as it was, and its history, too, as far as it is still there: what came after can be
/// done again. Where another project was open meanwhile, the last step of then can be undone. What stands on
/// the disk stays. False when the folder cannot be opened any more; then nothing has changed.
[[nodiscard]] bool restore(const QJsonObject &state, Project &project);

} // namespace ProjectState
