#include "shell/logic/OffeneDatei.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

OffeneDatei::OffeneDatei(const std::filesystem::path& pfad, int wie, unsigned rechte)
    : nummer_(::open(pfad.c_str(), wie | O_CLOEXEC | O_NONBLOCK, rechte))
{}

OffeneDatei::OffeneDatei(OffeneDatei&& andere) noexcept : nummer_(std::exchange(andere.nummer_, -1)) {}

OffeneDatei& OffeneDatei::operator=(OffeneDatei&& andere) noexcept
{
    std::swap(nummer_, andere.nummer_);
    return *this;
}

OffeneDatei::~OffeneDatei()
{
    schliesse();
}

bool OffeneDatei::schliesse()
{
    const int nummer = std::exchange(nummer_, -1);
    return nummer < 0 || ::close(nummer) == 0;
}
