#include "testhilfen/Testserver.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cstdint>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds kGeduld{10};

/// A socket that listens on a free port of this machine, with so many that may wait before it.
int horche(int wartende = SOMAXCONN)
{
    const int datei = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in adresse{};
    adresse.sin_family = AF_INET;
    adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (datei < 0 || ::bind(datei, reinterpret_cast<sockaddr*>(&adresse), sizeof adresse) != 0 ||
        ::listen(datei, wartende) != 0)
        throw std::runtime_error("no socket to listen on");
    return datei;
}

int portVon(int datei)
{
    sockaddr_in adresse{};
    socklen_t laenge = sizeof adresse;
    ::getsockname(datei, reinterpret_cast<sockaddr*>(&adresse), &laenge);
    return ntohs(adresse.sin_port);
}

template <class Bedingung> bool warteAuf(Bedingung bedingung)
{
    const auto ende = std::chrono::steady_clock::now() + kGeduld;
    while (!bedingung()) {
        if (std::chrono::steady_clock::now() > ende)
            return false;
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
    return true;
}

} // namespace

Serverantwort antworteMitKopf(const std::vector<std::string>& zeilen, std::string rumpf)
{
    Serverantwort antwort;
    for (const std::string& zeile : zeilen)
        antwort.kopf += zeile + "\r\n";
    antwort.kopf += "\r\n";
    antwort.rumpf = std::move(rumpf);
    return antwort;
}

Serverantwort antworteMitStatus(const std::string& status, std::string rumpf)
{
    const std::string laenge = "Content-Length: " + std::to_string(rumpf.size());
    return antworteMitKopf({"HTTP/1.1 " + status, "Content-Type: text/plain", laenge}, std::move(rumpf));
}

Serverantwort antworte(std::string rumpf)
{
    return antworteMitStatus("200 OK", std::move(rumpf));
}

int freierPort()
{
    const int datei = horche();
    const int port = portVon(datei);
    ::close(datei);
    return port;
}

VollerPort::VollerPort() : horcht_(horche(0)), port_(portVon(horcht_))
{
    constexpr int kHoechstens = 64;
    sockaddr_in adresse{};
    adresse.sin_family = AF_INET;
    adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    adresse.sin_port = htons(static_cast<std::uint16_t>(port_));
    bool voll = false;
    while (!voll && wartende_.size() < kHoechstens) {
        wartende_.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        // It does not wait: whether the connection stands is for poll to say.
        static_cast<void>(::connect(wartende_.back(), reinterpret_cast<sockaddr*>(&adresse), sizeof adresse));
        pollfd verbunden{wartende_.back(), POLLOUT, 0};
        voll = ::poll(&verbunden, 1, 200) == 0;
    }
    if (!voll)
        throw std::runtime_error("the queue of a socket is never full");
}

VollerPort::~VollerPort()
{
    for (const int wartender : wartende_)
        ::close(wartender);
    ::close(horcht_);
}

Testserver::Testserver() : horcht_(horche()), port_(portVon(horcht_))
{
    if (::pipe2(wecker_, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    faden_ = std::thread([this] { bediene(); });
}

Testserver::~Testserver()
{
    beende();
}

void Testserver::beende()
{
    if (!faden_.joinable())
        return;
    ::close(wecker_[1]);
    faden_.join();
    ::close(wecker_[0]);
    ::close(horcht_);
}

void Testserver::setze(const std::string& pfad, Serverantwort antwort)
{
    const std::scoped_lock sperre(schloss_);
    antworten_[pfad] = std::move(antwort);
}

std::string Testserver::url(const std::string& pfad) const
{
    return "http://127.0.0.1:" + std::to_string(port_) + pfad;
}

std::vector<std::string> Testserver::anfragen() const
{
    const std::scoped_lock sperre(schloss_);
    return anfragen_;
}

bool Testserver::warteBisGesendet(std::size_t bytes) const
{
    return warteAuf([&] { return gesendet_ >= bytes; });
}

bool Testserver::warteBisAnfragen(std::size_t anzahl) const
{
    return warteAuf([&] { return anfragen().size() >= anzahl; });
}

/// True if the file is ready in time; false too once the server is to end.
bool Testserver::wartet(int datei, short ereignisse, std::chrono::milliseconds hoechstens) const
{
    pollfd dateien[] = {{datei, ereignisse, 0}, {wecker_[0], 0, 0}};
    return ::poll(dateien, 2, static_cast<int>(hoechstens.count())) > 0 && dateien[1].revents == 0;
}

void Testserver::bediene()
{
    constexpr std::chrono::milliseconds kOhneEnde{-1};
    while (wartet(horcht_, POLLIN, kOhneEnde)) {
        const int client = ::accept4(horcht_, nullptr, nullptr, SOCK_CLOEXEC);
        if (client >= 0)
            bedieneEinen(client);
    }
}

void Testserver::bedieneEinen(int client)
{
    const std::string anfrage = liesAnfrage(client);
    if (!anfrage.empty()) {
        {
            const std::scoped_lock sperre(schloss_);
            anfragen_.push_back(anfrage);
        }
        sendeAntwort(client, antwortAuf(anfrage));
    }
    ::close(client);
}

std::string Testserver::liesAnfrage(int client) const
{
    std::string anfrage;
    while (anfrage.find("\r\n\r\n") == std::string::npos) {
        char puffer[4096];
        if (!wartet(client, POLLIN, kGeduld))
            return {};
        const ssize_t gelesen = ::recv(client, puffer, sizeof puffer, 0);
        if (gelesen <= 0)
            return {};
        anfrage.append(puffer, static_cast<std::size_t>(gelesen));
    }
    return anfrage;
}

Serverantwort Testserver::antwortAuf(const std::string& anfrage) const
{
    const std::size_t anfang = anfrage.find(' ') + 1;
    const std::string pfad = anfrage.substr(anfang, anfrage.find(' ', anfang) - anfang);
    const std::scoped_lock sperre(schloss_);
    const auto antwort = antworten_.find(pfad);
    return antwort == antworten_.end() ? antworteMitStatus("404 Not Found") : antwort->second;
}

void Testserver::sendeAntwort(int client, const Serverantwort& antwort)
{
    bool lebt = sende(client, antwort.kopf.data(), antwort.kopf.size());
    for (std::size_t ab = 0; lebt && ab < antwort.rumpf.size();) {
        const std::size_t anzahl = std::min(antwort.stueck, antwort.rumpf.size() - ab);
        const bool weg = antwort.pause.count() > 0 && wartet(client, POLLRDHUP, antwort.pause);
        lebt = !weg && sende(client, antwort.rumpf.data() + ab, anzahl);
        ab += anzahl;
        gesendet_ += lebt ? anzahl : 0;
    }
    if (antwort.bleibtOffen)
        wartet(client, POLLRDHUP, kGeduld * 6);
    if (antwort.brichtAb) {
        const linger sofort{1, 0};
        ::setsockopt(client, SOL_SOCKET, SO_LINGER, &sofort, sizeof sofort);
    } else {
        ::shutdown(client, SHUT_WR);
    }
}

bool Testserver::sende(int client, const char* bytes, std::size_t anzahl)
{
    while (anzahl > 0) {
        if (!wartet(client, POLLOUT, kGeduld * 6))
            return false;
        const ssize_t gesendet = ::send(client, bytes, anzahl, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (gesendet < 0)
            return false;
        bytes += gesendet;
        anzahl -= static_cast<std::size_t>(gesendet);
    }
    return true;
}
