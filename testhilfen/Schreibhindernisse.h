#pragma once

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

/// For as long as it lives, files of this process cannot grow beyond a few bytes: as on a full disk, writes fail
/// halfway.
class VolleScheibe {
public:
    explicit VolleScheibe(rlim_t grenze)
    {
        ::getrlimit(RLIMIT_FSIZE, &vorher_);
        const rlimit schranke{grenze, vorher_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &schranke);
    }
    VolleScheibe(const VolleScheibe&) = delete;
    VolleScheibe& operator=(const VolleScheibe&) = delete;
    ~VolleScheibe()
    {
        ::setrlimit(RLIMIT_FSIZE, &vorher_);
        std::signal(SIGXFSZ, signalVorher_);
    }

private:
    rlimit vorher_{};
    void (*signalVorher_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

/// For as long as it lives, the rights of folders hold for root too.
class OhneSonderrechte {
public:
    OhneSonderrechte() : istRoot_(::geteuid() == 0) { gilt_ = !istRoot_ || ::seteuid(kNiemand) == 0; }
    OhneSonderrechte(const OhneSonderrechte&) = delete;
    OhneSonderrechte& operator=(const OhneSonderrechte&) = delete;
    ~OhneSonderrechte()
    {
        if (istRoot_ && ::seteuid(0) != 0)
            ::_exit(1);
    }

    /// False if this machine cannot give them up.
    bool gilt() const { return gilt_; }

private:
    static constexpr uid_t kNiemand = 65534;

    bool istRoot_;
    bool gilt_;
};
