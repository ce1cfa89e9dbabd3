#pragma once

#include <filesystem>

/// An open file or folder, closed with the object. Programs started later do not inherit it.
class OffeneDatei {
public:
    OffeneDatei() = default;
    /// Opens as the system's `open` does: `wie` is such as O_RDONLY, `rechte` those of a new file, less what the user's
    /// mask takes away. Never waits, not even for a pipe. After a failure the object is false and `errno` tells why.
    explicit OffeneDatei(const std::filesystem::path& pfad, int wie, unsigned rechte = 0666);
    OffeneDatei(OffeneDatei&& andere) noexcept;
    OffeneDatei& operator=(OffeneDatei&& andere) noexcept;
    ~OffeneDatei();

    explicit operator bool() const { return nummer_ >= 0; }
    int nummer() const { return nummer_; }

    /// Closes at once. False, with `errno`, if the system says then that something was not written.
    bool schliesse();

private:
    int nummer_{-1};
};
