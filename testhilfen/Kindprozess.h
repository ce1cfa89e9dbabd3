#pragma once

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `tue` in a process of its own, so that what it does to that process stays there. Gives the exit status.
template <class Tue> int imKindprozess(Tue tue)
{
    const pid_t kind = ::fork();
    if (kind == 0)
        ::_exit(tue());
    int zustand = 0;
    ::waitpid(kind, &zustand, 0);
    return WIFEXITED(zustand) ? WEXITSTATUS(zustand) : -1;
}

/// root may write everywhere, so it becomes somebody else. False if that fails.
inline bool werdeGewoehnlich()
{
    constexpr uid_t kNiemand = 65534;
    return ::geteuid() != 0 || (::setgid(kNiemand) == 0 && ::setuid(kNiemand) == 0);
}

/// From here on no file of this process grows beyond `bytes`: as on a full disk, a write fails halfway.
inline bool begrenzeDateien(rlim_t bytes)
{
    const rlimit grenze{bytes, RLIM_INFINITY};
    return ::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &grenze) == 0;
}
