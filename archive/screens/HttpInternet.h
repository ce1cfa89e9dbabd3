#pragma once

#include "archive/logic/HttpKopf.h"
#include "archive/logic/Internet.h"

#include <QElapsedTimer>

#include <chrono>
#include <functional>
#include <memory>

class QNetworkProxy;
class QTcpSocket;

/// HTTP for the download client, spoken on one socket without a thread of its own. It holds one session, one connection
/// and one request at a time.
///
/// Only an operation that connects turns the event loop, and keeps the user's input out; whoever wants to let the user
/// act while an operation waits does that when it is asked.
class HttpInternet final : public Internet {
public:
    /// Is asked at least every 16 ms while an operation waits, also when bytes come all the time; false breaks the
    /// operation off.
    using Warten = std::function<bool()>;

    /// After `frist` without a byte an operation gives up.
    explicit HttpInternet(Warten warten, std::chrono::milliseconds frist = std::chrono::seconds(30));
    ~HttpInternet() override;

    InternetGriff InternetOpenA(std::string_view agent) override;
    InternetGriff InternetConnectA(InternetGriff sitzung, const std::string& host, int port,
                                   const std::string& benutzer, const std::string& kennwort) override;
    InternetGriff HttpOpenRequestA(InternetGriff verbindung, std::string_view verb, const std::string& objekt,
                                   std::string_view version) override;
    bool HttpSendRequestA(InternetGriff anfrage) override;
    std::optional<std::string> HttpQueryInfoA(InternetGriff anfrage, int stufe, std::size_t hoechstens) override;
    bool InternetReadFile(InternetGriff anfrage, std::span<char> puffer, std::size_t& gelesen) override;
    void InternetCloseHandle(InternetGriff griff) override;

private:
    QNetworkProxy proxy() const;
    bool verbinde();
    bool sende();
    bool empfangeKopf();
    bool empfangeEinenKopf();
    bool warteAufDaten();
    bool darfWarten(const QElapsedTimer& seit) const;

    Warten warten_;
    std::chrono::milliseconds frist_;
    HttpAnfrage anfrage_;
    HttpKopf kopf_;
    std::int64_t rest_ = 0; ///< bytes of the body still to come
    std::unique_ptr<QTcpSocket> socket_;
};
