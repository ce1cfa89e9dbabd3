// A download from this machine against a plain socket loop with the same chunks, both into a file.

#include "archive/logic/HttpKopf.h"
#include "archive/logic/clsDownload.h"
#include "archive/screens/HttpInternet.h"
#include "testhilfen/Testserver.h"

#include <QCoreApplication>

#include <arpa/inet.h>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using Uhr = std::chrono::steady_clock;

constexpr auto kPfad = "/lotto/ziehungen.zip";

/// A folder for the files, gone with it.
class Messordner {
public:
    Messordner() : pfad_(std::filesystem::temp_directory_path() / "tombrix-bench-download")
    {
        std::filesystem::create_directories(pfad_);
    }
    ~Messordner() { std::filesystem::remove_all(pfad_); }
    Messordner(const Messordner&) = delete;
    Messordner& operator=(const Messordner&) = delete;

    std::string datei(const char* name) const { return (pfad_ / name).string(); }
    std::string text() const { return pfad_.string() + "/"; }
    void leere() const
    {
        for (const auto& eintrag : std::filesystem::directory_iterator(pfad_))
            std::filesystem::remove(eintrag);
    }

private:
    std::filesystem::path pfad_;
};

/// Receives until the buffer is full or the server closes, as the client's read does.
std::size_t empfangeVoll(int socket, std::array<char, clsDownload::kPuffer>& puffer)
{
    std::size_t da = 0;
    while (da < puffer.size()) {
        const ssize_t stueck = ::recv(socket, puffer.data() + da, puffer.size() - da, 0);
        if (stueck <= 0)
            break;
        da += static_cast<std::size_t>(stueck);
    }
    return da;
}

/// The plain way. Returns the bytes of the body.
std::size_t ladeSchlicht(int port, const std::string& ziel)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in adresse{};
    adresse.sin_family = AF_INET;
    adresse.sin_port = htons(static_cast<std::uint16_t>(port));
    adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(socket, reinterpret_cast<sockaddr*>(&adresse), sizeof adresse) != 0)
        return 0;
    const std::string anfrage = std::string("GET ") + kPfad + " HTTP/1.1\r\nHost: h\r\n\r\n";
    if (::send(socket, anfrage.data(), anfrage.size(), 0) < 0)
        return 0;
    const int datei = ::open(ziel.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    std::array<char, clsDownload::kPuffer> puffer{};
    std::size_t gesamt = 0;
    std::size_t kopf = 0;
    for (std::size_t da = 0; (da = empfangeVoll(socket, puffer)) > 0;) {
        if (kopf == 0)
            kopf = httpKopfLaenge({puffer.data(), da}).value_or(0);
        const std::size_t ab = gesamt == 0 ? kopf : 0;
        if (::write(datei, puffer.data() + ab, da - ab) < 0)
            break;
        gesamt += da;
    }
    ::close(datei);
    ::close(socket);
    return gesamt - kopf;
}

std::size_t ladeMitClient(const Testserver& server, const std::string& ordner)
{
    HttpInternet netz({});
    clsDownload dl(
        netz,
        {[] { return std::chrono::duration_cast<std::chrono::milliseconds>(Uhr::now().time_since_epoch()).count(); },
         [] { return false; }, [] {}});
    dl.Download(server.url(kPfad), ordner);
    return static_cast<std::size_t>(dl.ReceivedBytes());
}

template <class Lade> double sekunden(benchmark::State& state, std::size_t erwartet, Lade lade)
{
    const auto beginn = Uhr::now();
    if (lade() != erwartet)
        state.SkipWithError("not all bytes have come");
    return std::chrono::duration<double>(Uhr::now() - beginn).count();
}

void downloadGegenSocketschleife(benchmark::State& state)
{
    const auto bytes = static_cast<std::size_t>(state.range(0));
    const Messordner ordner;
    Testserver server;
    server.setze(kPfad, antworte(std::string(bytes, 'z')));
    double client = 0;
    double schlicht = 0;
    for (auto _ : state) {
        ordner.leere();
        schlicht += sekunden(state, bytes, [&] { return ladeSchlicht(server.port(), ordner.datei("schlicht")); });
        const double dauer = sekunden(state, bytes, [&] { return ladeMitClient(server, ordner.text()); });
        client += dauer;
        state.SetIterationTime(dauer);
    }
    const double megabytes = static_cast<double>(bytes) * static_cast<double>(state.iterations()) / 1e6;
    state.counters["MB_s"] = megabytes / client;
    state.counters["schlicht_MB_s"] = megabytes / schlicht;
    state.counters["verhaeltnis"] = schlicht / client;
}
BENCHMARK(downloadGegenSocketschleife)
    ->Arg(118'176)
    ->Arg(8 << 20)
    ->Arg(64 << 20)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int anzahl, char** argumente)
{
    const QCoreApplication programm(anzahl, argumente);
    benchmark::Initialize(&anzahl, argumente);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
