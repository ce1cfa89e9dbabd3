#include "shell/logic/Fortschritt.h"

#include <algorithm>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr std::int64_t kMeisteSchritte = 1 << 20;
constexpr auto kZuOft = 500us;
constexpr auto kZuSelten = 1ms;

} // namespace

Takt::Takt(Fortschritt fortschritt, Zeitquelle zeit)
    : fortschritt_(std::move(fortschritt)),
      zeit_(std::move(zeit)),
      gemeldet_(zeit_()),
      geblickt_(gemeldet_)
{}

bool Takt::blick(std::uint64_t erledigt)
{
    if (!fortschritt_ || !laeuft_) {
        bisBlick_ = kMeisteSchritte;
        return laeuft_;
    }
    const Zeit jetzt = zeit_();
    const auto seitBlick = jetzt - geblickt_;
    if (seitBlick < kZuOft)
        schritte_ = std::min(schritte_ * 2, kMeisteSchritte);
    else if (seitBlick > kZuSelten)
        schritte_ = std::max<std::int64_t>(schritte_ * kZuOft / seitBlick, 1);
    geblickt_ = jetzt;
    bisBlick_ = schritte_;
    return jetzt - gemeldet_ < kAbstand ? laeuft_ : melde(erledigt);
}

bool Takt::melde(std::uint64_t erledigt)
{
    if (fortschritt_ && laeuft_) {
        laeuft_ = fortschritt_(erledigt);
        // What the listener did with its turn is not the loop's time.
        gemeldet_ = zeit_();
        geblickt_ = gemeldet_;
    }
    return laeuft_;
}
