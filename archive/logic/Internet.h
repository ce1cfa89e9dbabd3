#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// A session, a connection or a request; 0 is none.
using InternetGriff = std::int32_t;

/// What the download client asks of an HTTP library. The calls come in the order in which they stand here, and each
/// returns when it is done.
class Internet {
public:
    virtual ~Internet() = default;

    /// Begins a session that goes the way of the machine's own proxy setting. 0 on failure.
    virtual InternetGriff InternetOpenA(std::string_view agent) = 0;
    /// Names the server; nothing is sent yet. A value below 1 on failure.
    virtual InternetGriff InternetConnectA(InternetGriff sitzung, const std::string& host, int port,
                                           const std::string& benutzer, const std::string& kennwort) = 0;
    /// A request that no cache may answer. 0 on failure.
    virtual InternetGriff HttpOpenRequestA(InternetGriff verbindung, std::string_view verb, const std::string& objekt,
                                           std::string_view version) = 0;
    /// Sends the request and waits for the head of the answer, whatever its status; no redirect is followed. False if
    /// there is no connection or no answer.
    virtual bool HttpSendRequestA(InternetGriff anfrage) = 0;
    /// A value of the head as text, at most `hoechstens` bytes; nothing if it is missing or longer.
    virtual std::optional<std::string> HttpQueryInfoA(InternetGriff anfrage, int stufe, std::size_t hoechstens) = 0;
    /// Waits until the buffer is full or the body has ended; `gelesen` is the count. False if reading failed, with what
    /// had come before in the buffer.
    virtual bool InternetReadFile(InternetGriff anfrage, std::span<char> puffer, std::size_t& gelesen) = 0;
    /// Closes one of the three; 0 does nothing.
    virtual void InternetCloseHandle(InternetGriff griff) = 0;
};

/// Levels of `HttpQueryInfoA`.
inline constexpr int HTTP_QUERY_STATUS_CODE = 19;
inline constexpr int HTTP_QUERY_CONTENT_LENGTH = 5;
