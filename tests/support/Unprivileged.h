#pragma once

#include <QtGlobal>

#include <sys/prctl.h>
#include <unistd.h>

/// While it lives, file permissions hold: root, who is refused nothing, becomes nobody. Whoever else runs the
/// test stays who they are. Directories on the way have to be open to others.
class Unprivileged
{
public:
    Unprivileged()
        : m_isRoot(geteuid() == 0)
    {
        become(kNobody);
    }
    ~Unprivileged() { become(0); }
    Q_DISABLE_COPY_MOVE(Unprivileged)

private:
    static constexpr uid_t kNobody = 65534;

    void become(uid_t user) const
    {
        if (!m_isRoot) {
            return;
        }
        if (setresuid(user, user, 0) != 0) {
            qFatal("cannot become the user %u", unsigned(user));
        }
        // The kernel hides a process that has changed its user from the leak checker.
        prctl(PR_SET_DUMPABLE, 1);
    }

    bool m_isRoot;
};
