#include "archive/logic/clsDownload.h"

#include "archive/logic/HttpKopf.h"
#include "archive/logic/InternetUrl.h"
#include "archive/logic/cURL.h"
#include "shell/logic/OffeneDatei.h"
#include "shell/logic/Zahlen.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <span>
#include <string_view>
#include <unistd.h>

namespace {

constexpr auto kAgent = "http sample";
constexpr std::size_t kInfoPuffer = 1024;
constexpr std::int32_t kStatusGut = 200;
constexpr std::int32_t kStatusFehlt = 404;

/// False if not all bytes could be written.
bool schreibe(const OffeneDatei& datei, std::span<const char> bytes)
{
    while (!bytes.empty()) {
        const ssize_t geschrieben = ::write(datei.nummer(), bytes.data(), bytes.size());
        if (geschrieben > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(geschrieben));
        else if (geschrieben == 0 || errno != EINTR)
            return false;
    }
    return true;
}

} // namespace

clsDownload::clsDownload(Internet& internet, Downloadumgebung umgebung)
    : internet_(internet),
      umgebung_(std::move(umgebung))
{}

clsDownload::~clsDownload() = default;

void clsDownload::Download(const std::string& url, const std::string& folder)
{
    if (Status() != 0)
        return;
    werte_ = {};
    werte_.status = 1;
    uebertrage(url, folder);
    CloseHandles();
}

void clsDownload::uebertrage(const std::string& url, const std::string& folder)
{
    cURL adresse;
    const bool verstanden = adresse.GetURL(url) && adresse.lScheme() == INTERNET_SCHEME_HTTP;
    const auto name = verstanden ? dateinameAusPfad(adresse.URLPath()) : std::nullopt;
    if (!name) {
        melde(2, "URL nicht interpretierbar");
        return;
    }
    if (!baueAuf(adresse))
        return;
    if (!internet_.HttpSendRequestA(anfrage_)) {
        melde(1, "Server nicht gefunden");
        return;
    }
    if (!pruefeAntwort())
        return;
    // Written from its beginning on, without cutting it.
    const OffeneDatei datei(folder + *name, O_WRONLY | O_CREAT);
    if (datei)
        lies(datei);
}

bool clsDownload::baueAuf(const cURL& adresse)
{
    sitzung_ = internet_.InternetOpenA(kAgent);
    if (sitzung_ == 0)
        return false;
    verbindung_ = internet_.InternetConnectA(sitzung_, adresse.HostName(), adresse.Port(), adresse.UserName(),
                                             adresse.Password());
    if (verbindung_ < 1)
        return false;
    anfrage_ = internet_.HttpOpenRequestA(verbindung_, "GET", adresse.URLPath() + adresse.URLExtraInfo(), "HTTP/1.1");
    return anfrage_ != 0;
}

bool clsDownload::pruefeAntwort()
{
    const std::int32_t status = ganzzahl(QueryInfo(HTTP_QUERY_STATUS_CODE)).value_or(0);
    if (status != kStatusGut) {
        melde(status, status == kStatusFehlt ? "Seite/Datei nicht gefunden" : "Unbekannter Fehler");
        return false;
    }
    const std::int64_t laenge = httpLaenge(QueryInfo(HTTP_QUERY_CONTENT_LENGTH)).value_or(0);
    werte_.size = laenge <= kHoechstgroesse ? static_cast<std::int32_t>(laenge) : 0;
    if (Size() == 0) {
        melde(3, "Downloadgröße 0 Byte");
        return false;
    }
    return true;
}

void clsDownload::lies(const OffeneDatei& datei)
{
    std::array<char, kPuffer> puffer{};
    std::int64_t lesezeit = 1; // so that the first speed divides by something
    const std::int64_t start = umgebung_.GetTickCount();
    std::size_t gelesen = 0;
    bool gut = true;
    do {
        const std::int64_t vorher = umgebung_.GetTickCount();
        gut = internet_.InternetReadFile(anfrage_, puffer, gelesen);
        const std::int64_t nachher = umgebung_.GetTickCount();
        gut = schreibe(datei, std::span(puffer).first(gelesen)) && gut;
        lesezeit += nachher - vorher;
        werte_.received += static_cast<std::int32_t>(gelesen);
        werte_.speed = static_cast<double>(ReceivedBytes()) / (static_cast<double>(lesezeit) / 1000.0);
        werte_.downloadtime = static_cast<std::int32_t>(nachher - start);
        sage();
        if (umgebung_.GetInputState())
            umgebung_.pumpe();
    } while (!StopDownload() && gut && gelesen >= kPuffer && ReceivedBytes() <= kHoechstgroesse);
}

std::string clsDownload::QueryInfo(int stufe)
{
    return internet_.HttpQueryInfoA(anfrage_, stufe, kInfoPuffer).value_or("");
}

void clsDownload::melde(std::int32_t fehler, const char* text)
{
    werte_.fehler = fehler;
    werte_.fehlertext = text;
    sage();
}

void clsDownload::sage()
{
    if (Update)
        Update();
}

void clsDownload::CloseHandles()
{
    for (InternetGriff* griff : {&anfrage_, &sitzung_, &verbindung_}) {
        internet_.InternetCloseHandle(*griff);
        *griff = 0;
    }
    umgebung_.pumpe();
    werte_.status = 0;
}
