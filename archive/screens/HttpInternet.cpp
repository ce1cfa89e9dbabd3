#include "archive/screens/HttpInternet.h"

#include "shell/elements/Utf8.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <limits>

namespace {

constexpr InternetGriff kSitzung = 1;
constexpr InternetGriff kVerbindung = 2;
constexpr InternetGriff kAnfrage = 3;

constexpr int kScheibe = 10;                       ///< milliseconds of one wait
constexpr qint64 kLesepuffer = qint64{256} * 1024; ///< most bytes that the socket holds ready
constexpr int kMaxVorlaeufige = 8;                 ///< answers of the kind "100 Continue" before the real one

/// This machine itself is reached without a proxy, whatever its setting says.
bool istDieserRechner(const QString& host)
{
    return host == "localhost" || QHostAddress(host).isLoopback();
}

bool sprichtHttp(const QNetworkProxy& proxy)
{
    return proxy.type() == QNetworkProxy::HttpProxy || proxy.type() == QNetworkProxy::HttpCachingProxy;
}

} // namespace

HttpInternet::HttpInternet(Warten warten, std::chrono::milliseconds frist) : warten_(std::move(warten)), frist_(frist)
{}

HttpInternet::~HttpInternet() = default;

InternetGriff HttpInternet::InternetOpenA(std::string_view agent)
{
    anfrage_ = {};
    anfrage_.agent = agent;
    return kSitzung;
}

InternetGriff HttpInternet::InternetConnectA(InternetGriff sitzung, const std::string& host, int port,
                                             const std::string& benutzer, const std::string& kennwort)
{
    constexpr int kHoechsterPort = 65535;
    if (sitzung != kSitzung || host.empty() || port < 1 || port > kHoechsterPort)
        return 0;
    anfrage_.host = host;
    anfrage_.port = port;
    anfrage_.benutzer = benutzer;
    anfrage_.kennwort = kennwort;
    return kVerbindung;
}

InternetGriff HttpInternet::HttpOpenRequestA(InternetGriff verbindung, std::string_view verb, const std::string& objekt,
                                             std::string_view version)
{
    if (verbindung != kVerbindung)
        return 0;
    anfrage_.verb = verb;
    anfrage_.objekt = objekt;
    anfrage_.version = version;
    return kAnfrage;
}

bool HttpInternet::HttpSendRequestA(InternetGriff anfrage)
{
    return anfrage == kAnfrage && verbinde() && sende() && empfangeKopf();
}

std::optional<std::string> HttpInternet::HttpQueryInfoA(InternetGriff anfrage, int stufe, std::size_t hoechstens)
{
    std::optional<std::string> wert;
    if (anfrage == kAnfrage && stufe == HTTP_QUERY_STATUS_CODE && kopf_.status != 0)
        wert = std::to_string(kopf_.status);
    else if (anfrage == kAnfrage && stufe == HTTP_QUERY_CONTENT_LENGTH)
        wert = kopf_.ContentLength();
    return wert && wert->size() <= hoechstens ? wert : std::nullopt;
}

bool HttpInternet::InternetReadFile(InternetGriff anfrage, std::span<char> puffer, std::size_t& gelesen)
{
    gelesen = 0;
    if (anfrage != kAnfrage || !socket_)
        return false;
    while (gelesen < puffer.size() && rest_ > 0) {
        const auto platz = std::min(static_cast<std::int64_t>(puffer.size() - gelesen), rest_);
        const qint64 stueck = socket_->read(puffer.data() + gelesen, platz);
        if (stueck > 0) {
            gelesen += static_cast<std::size_t>(stueck);
            rest_ -= stueck;
        } else if (!warteAufDaten()) {
            return false;
        } else if (socket_->bytesAvailable() == 0) {
            rest_ = 0; // the server has closed
        }
    }
    return true;
}

void HttpInternet::InternetCloseHandle(InternetGriff griff)
{
    if (griff == kAnfrage) {
        socket_.reset();
        kopf_ = {};
        rest_ = 0;
    }
}

/// The way to the server as the machine's setting gives it.
QNetworkProxy HttpInternet::proxy() const
{
    const QString host = qt(anfrage_.host);
    if (istDieserRechner(host))
        return QNetworkProxy::NoProxy;
    QUrl adresse;
    adresse.setScheme("http");
    adresse.setHost(host);
    adresse.setPort(anfrage_.port);
    return QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(adresse)).value(0, QNetworkProxy::NoProxy);
}

bool HttpInternet::verbinde()
{
    const QNetworkProxy weg = proxy();
    anfrage_.ueberProxy = sprichtHttp(weg);
    if (anfrage_.ueberProxy) {
        anfrage_.proxyBenutzer = utf8(weg.user());
        anfrage_.proxyKennwort = utf8(weg.password());
    }
    socket_ = std::make_unique<QTcpSocket>();
    socket_->setReadBufferSize(kLesepuffer);
    socket_->setProxy(anfrage_.ueberProxy ? QNetworkProxy(QNetworkProxy::NoProxy) : weg);
    const QString host = anfrage_.ueberProxy ? weg.hostName() : qt(anfrage_.host);
    socket_->connectToHost(host, anfrage_.ueberProxy ? weg.port() : static_cast<quint16>(anfrage_.port));

    QTimer wecker;
    wecker.start(kScheibe);
    QElapsedTimer seit;
    seit.start();
    while (socket_->state() != QAbstractSocket::ConnectedState) {
        if (socket_->state() == QAbstractSocket::UnconnectedState || !darfWarten(seit))
            return false;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

bool HttpInternet::sende()
{
    const std::string text = httpAnfragetext(anfrage_);
    const auto laenge = static_cast<qint64>(text.size());
    return socket_->write(text.data(), laenge) == laenge && socket_->flush();
}

bool HttpInternet::empfangeKopf()
{
    for (int i = 0; i <= kMaxVorlaeufige; ++i) {
        if (!empfangeEinenKopf())
            return false;
        if (kopf_.status < 100 || kopf_.status > 199)
            break;
    }
    const auto laenge = kopf_.ContentLength();
    rest_ = laenge ? httpLaenge(*laenge).value_or(0) : std::numeric_limits<std::int64_t>::max();
    return true;
}

/// Takes one head off the socket. What is no HTTP gives a head without a status. False if nothing has come at all.
bool HttpInternet::empfangeEinenKopf()
{
    for (qsizetype vorher = 0;;) {
        const QByteArray da = socket_->peek(static_cast<qint64>(kMaxHttpKopf) + 1);
        const std::string_view bytes(da.constData(), static_cast<std::size_t>(da.size()));
        const auto laenge = httpKopfLaenge(bytes);
        const bool zuEnde = da.size() == vorher && socket_->state() != QAbstractSocket::ConnectedState;
        if (laenge || !kannHttpSein(bytes) || zuEnde) {
            kopf_ = laenge && kannHttpSein(bytes.substr(0, *laenge)) ? liesHttpKopf(bytes) : HttpKopf{};
            socket_->skip(static_cast<qint64>(laenge.value_or(0)));
            return !da.isEmpty();
        }
        if (da.size() == vorher && !warteAufDaten())
            return false;
        vorher = da.size();
    }
}

/// Waits for bytes or for the end of the connection. False if it was broken off or took too long.
bool HttpInternet::warteAufDaten()
{
    QElapsedTimer seit;
    seit.start();
    const qint64 vorher = socket_->bytesAvailable();
    const auto nichtsNeues = [&] {
        return socket_->bytesAvailable() == vorher && socket_->state() == QAbstractSocket::ConnectedState;
    };
    while (nichtsNeues()) {
        if (!darfWarten(seit))
            return false;
        if (nichtsNeues()) // else it has come while somebody was asked
            socket_->waitForReadyRead(kScheibe);
    }
    return true;
}

bool HttpInternet::darfWarten(const QElapsedTimer& seit) const
{
    return seit.elapsed() * std::chrono::milliseconds(1) <= frist_ && (!warten_ || warten_());
}
