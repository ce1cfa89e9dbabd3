#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// What the server sends for one request: its bytes as they are, so that it can misbehave in every way.
struct Serverantwort {
    std::string kopf;                       ///< up to the empty line, with it
    std::string rumpf;                      ///< whatever the head says about it
    std::size_t stueck = std::string::npos; ///< the body goes out in pieces of so many bytes
    std::chrono::milliseconds pause{0};     ///< before each piece of the body
    bool bleibtOffen = false;               ///< nothing more comes, but the connection stays until the client goes
    bool brichtAb = false;                  ///< the connection ends with a reset
};

/// 200 with the body and its length.
Serverantwort antworte(std::string rumpf);
/// A status line such as "404 Not Found", with the body and its length.
Serverantwort antworteMitStatus(const std::string& status, std::string rumpf = "no such file");
/// A head of these lines before the body.
Serverantwort antworteMitKopf(const std::vector<std::string>& zeilen, std::string rumpf);

/// An HTTP server on a free port of 127.0.0.1, on a thread of its own, for one client after the other. A path without
/// an answer gives 404.
class Testserver {
public:
    Testserver();
    ~Testserver();
    Testserver(const Testserver&) = delete;
    Testserver& operator=(const Testserver&) = delete;

    void setze(const std::string& pfad, Serverantwort antwort);
    int port() const { return port_; }
    /// "http://127.0.0.1:port" and the path.
    std::string url(const std::string& pfad) const;
    /// The heads of all requests so far, as they came.
    std::vector<std::string> anfragen() const;
    /// Bytes of bodies sent so far.
    std::size_t gesendet() const { return gesendet_; }
    /// Waits until so many bytes of bodies have gone out. False if that takes longer than ten seconds.
    bool warteBisGesendet(std::size_t bytes) const;
    /// Waits for the count of requests. False if that takes longer than ten seconds.
    bool warteBisAnfragen(std::size_t anzahl) const;
    void beende();

private:
    void bediene();
    void bedieneEinen(int client);
    void sendeAntwort(int client, const Serverantwort& antwort);
    bool sende(int client, const char* bytes, std::size_t anzahl);
    bool wartet(int datei, short ereignisse, std::chrono::milliseconds hoechstens) const;
    std::string liesAnfrage(int client) const;
    Serverantwort antwortAuf(const std::string& anfrage) const;

    int horcht_ = -1;
    int wecker_[2] = {-1, -1}; ///< a pipe that ends all waiting when it is closed
    int port_ = 0;
    std::atomic<std::size_t> gesendet_ = 0;
    mutable std::mutex schloss_;
    std::map<std::string, Serverantwort> antworten_;
    std::vector<std::string> anfragen_;
    std::thread faden_;
};

/// A port of 127.0.0.1 on which nobody listens.
int freierPort();

/// A port of 127.0.0.1 that leaves every attempt to connect without an answer: the queue before it is full.
class VollerPort {
public:
    VollerPort();
    ~VollerPort();
    VollerPort(const VollerPort&) = delete;
    VollerPort& operator=(const VollerPort&) = delete;

    int port() const { return port_; }

private:
    int horcht_;
    int port_;
    std::vector<int> wartende_;
};
