#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

class QLockFile;

/// A folder for temporary files of this process, named after the application. It goes with the object.
///
/// A process that is killed leaves its folder behind. So that such a folder is known for what it is, each one
/// holds a file that is locked while its process lives, and making a folder removes those of dead processes:
/// of the same application and the same user, with a lock that nobody holds. One without a lock is left
/// alone.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// Empty when the folder could not be made.
    [[nodiscard]] QString path() const;
    /// Why it could not be made, as the system says it; empty when it was.
    [[nodiscard]] QString errorString() const;

    /// Removes the folder and all that is in it, now. Calling it again does nothing.
    void remove();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QLockFile> m_lock;
};
