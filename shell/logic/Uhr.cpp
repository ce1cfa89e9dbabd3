#include "shell/logic/Uhr.h"

#include "shell/logic/Format.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <ctime>

namespace {

using std::chrono::milliseconds;

/// Takes numbers and signs off the front of a text; once something does not fit, nothing does any more.
class Leser {
public:
    explicit Leser(std::string_view text) : rest_(text) {}

    bool gut() const { return gut_; }
    bool amEnde() const { return rest_.empty(); }

    /// Exactly `stellen` digits.
    int zahl(std::size_t stellen)
    {
        int wert = 0;
        const bool lang = rest_.size() >= stellen;
        const char* const ende = lang ? rest_.data() + stellen : rest_.data();
        const auto [bis, fehler] = std::from_chars(rest_.data(), ende, wert);
        gut_ = gut_ && lang && fehler == std::errc{} && bis == ende && wert >= 0 && rest_.front() != '-';
        rest_.remove_prefix(lang ? stellen : rest_.size());
        return wert;
    }

    void zeichen(std::string_view erlaubte)
    {
        gut_ = gut_ && !rest_.empty() && erlaubte.find(rest_.front()) != std::string_view::npos;
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
    }

    /// Digits behind a decimal point, as thousandths; finer ones are left out.
    int tausendstel()
    {
        int wert = 0;
        int stelle = 100;
        gut_ = gut_ && !rest_.empty() && rest_.find_first_not_of("0123456789") == std::string_view::npos;
        for (const char ziffer : gut_ ? rest_ : std::string_view{}) {
            wert += (ziffer - '0') * stelle;
            stelle /= 10;
        }
        rest_ = {};
        return wert;
    }

private:
    std::string_view rest_;
    bool gut_{true};
};

} // namespace

double Uhr::Timer() const
{
    const Zeitpunkt zeit = jetzt();
    const milliseconds seitMitternacht = zeit - std::chrono::floor<std::chrono::days>(zeit);
    return static_cast<double>(seitMitternacht.count()) / 1000.0;
}

std::chrono::year_month_day Uhr::heute() const
{
    return std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(jetzt()));
}

Zeitpunkt SystemUhr::jetzt() const
{
    using namespace std::chrono;
    const auto zeit = floor<milliseconds>(system_clock::now());
    const auto sekunden = floor<seconds>(zeit);
    const std::time_t seitEpoche = system_clock::to_time_t(sekunden);
    std::tm teile{};
    localtime_r(&seitEpoche, &teile);
    const local_days tag{year{teile.tm_year + 1900} / (teile.tm_mon + 1) / teile.tm_mday};
    return tag + hours{teile.tm_hour} + minutes{teile.tm_min} + seconds{teile.tm_sec} + (zeit - sekunden);
}

GestellteUhr::GestellteUhr(Zeitpunkt zeit, Lauf lauf)
    : zeit_(zeit),
      gestellt_(std::chrono::steady_clock::now()),
      lauf_(lauf)
{}

GestellteUhr::GestellteUhr() : GestellteUhr(SystemUhr().jetzt()) {}

Zeitpunkt GestellteUhr::jetzt() const
{
    if (lauf_ == Lauf::Steht)
        return zeit_;
    return zeit_ + std::chrono::floor<milliseconds>(std::chrono::steady_clock::now() - gestellt_);
}

void GestellteUhr::stelle(Zeitpunkt zeit)
{
    zeit_ = zeit;
    gestellt_ = std::chrono::steady_clock::now();
}

bool GestellteUhr::stelle(std::string_view iso)
{
    const std::optional<Zeitpunkt> zeit = liesIsoZeit(iso);
    if (zeit)
        stelle(*zeit);
    return zeit.has_value();
}

void GestellteUhr::rueckeVor(milliseconds dauer)
{
    zeit_ += dauer;
}

std::optional<Zeitpunkt> liesIsoZeit(std::string_view text)
{
    using namespace std::chrono;
    Leser leser(text);
    const year jahr{leser.zahl(4)};
    leser.zeichen("-");
    const month monat{static_cast<unsigned>(leser.zahl(2))};
    leser.zeichen("-");
    const day tag{static_cast<unsigned>(leser.zahl(2))};
    std::array<int, 3> uhrzeit{};
    int tausendstel = 0;
    if (!leser.amEnde()) {
        leser.zeichen("T ");
        uhrzeit[0] = leser.zahl(2);
        leser.zeichen(":");
        uhrzeit[1] = leser.zahl(2);
    }
    if (!leser.amEnde()) {
        leser.zeichen(":");
        uhrzeit[2] = leser.zahl(2);
    }
    if (!leser.amEnde()) {
        leser.zeichen(".,");
        tausendstel = leser.tausendstel();
    }
    const year_month_day datum = jahr / monat / tag;
    if (!leser.gut() || !datum.ok() || uhrzeit[0] > 23 || uhrzeit[1] > 59 || uhrzeit[2] > 59)
        return std::nullopt;
    return local_days{datum} + hours{uhrzeit[0]} + minutes{uhrzeit[1]} + seconds{uhrzeit[2]} +
           milliseconds{tausendstel};
}

std::string uhrtext(std::int64_t sekunden)
{
    if (sekunden < 0)
        return {};
    return Format(sekunden / 3600, "00") + ":" + Format(sekunden / 60 % 60, "00") + ":" + Format(sekunden % 60, "00");
}
