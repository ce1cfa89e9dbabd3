#pragma once

#include "archive/logic/Internet.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class cURL;
class OffeneDatei;

/// What the download client needs of the machine besides the network.
struct Downloadumgebung {
    std::function<std::int64_t()> GetTickCount; ///< milliseconds, from whatever beginning
    std::function<bool()> GetInputState;        ///< true if it is time to let the user act
    std::function<void()> pumpe;                ///< one turn of the event loop
};

/// Fetches one file over HTTP into a folder, chunk by chunk, on the caller's thread. One object serves any number of
/// transfers, one at a time; the figures of a transfer stand until the next one.
class clsDownload {
public:
    static constexpr std::size_t kPuffer = 8192;
    /// Most bytes of a file; a longer one counts as one of unknown length.
    static constexpr std::int32_t kHoechstgroesse = 128 << 20;

    clsDownload(Internet& internet, Downloadumgebung umgebung);
    ~clsDownload();

    /// The listener; it reads the figures. It is called after every chunk and once for every error.
    std::function<void()> Update;

    /// Fetches `url` into `folder`, which ends in a path separator. The file has the name behind the last "/" of the
    /// URL's path. An existing file is written over from its beginning and not cut, so the caller takes care of it
    /// first. Returns when the transfer has ended in any way. Does nothing while another transfer runs.
    void Download(const std::string& url, const std::string& folder);

    std::uint8_t Status() const { return werte_.status; }             ///< 1 while a transfer runs, else 0
    std::int32_t Size() const { return werte_.size; }                 ///< bytes; 0 until known
    std::int32_t ReceivedBytes() const { return werte_.received; }    ///< bytes so far
    double Speed() const { return werte_.speed; }                     ///< bytes per second spent in reads
    bool StopDownload() const { return werte_.stop; }                 ///< see the setter
    std::int32_t Downloadtime() const { return werte_.downloadtime; } ///< milliseconds since the first read began
    std::int32_t ErrorNumber() const { return werte_.fehler; }        ///< 0, 1 to 3, or a status of HTTP
    const std::string& ErrorDescription() const { return werte_.fehlertext; }

    /// True breaks the running transfer off behind the next turn of the event loop.
    void StopDownload(bool stop) { werte_.stop = stop; }

private:
    struct Werte {
        std::uint8_t status = 0;
        std::int32_t size = 0;
        std::int32_t received = 0;
        double speed = 0;
        bool stop = false;
        std::int32_t downloadtime = 0;
        std::int32_t fehler = 0;
        std::string fehlertext;
    };

    void uebertrage(const std::string& url, const std::string& folder);
    bool baueAuf(const cURL& adresse);
    bool pruefeAntwort();
    void lies(const OffeneDatei& datei);
    std::string QueryInfo(int stufe);
    void melde(std::int32_t fehler, const char* text);
    void sage();
    void CloseHandles();

    Internet& internet_;
    Downloadumgebung umgebung_;
    Werte werte_;
    InternetGriff sitzung_ = 0;
    InternetGriff verbindung_ = 0;
    InternetGriff anfrage_ = 0;
};
