#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Most bytes of the head of an answer. A longer one is no HTTP.
inline constexpr std::size_t kMaxHttpKopf = 65'536;

/// The head of an answer: the status line and the fields.
struct HttpKopf {
    int status = 0; ///< 100..999; 0 if the status line cannot be read
    std::vector<std::pair<std::string, std::string>> felder;

    /// The value of the first field of that name, in whatever case; nothing if there is none.
    std::optional<std::string_view> feld(std::string_view name) const;
    /// The length of the body as the head gives it: its text, unchecked. Nothing if there is none, if several
    /// contradict each other, or if the body comes in an encoding of its own, so that its end is marked there.
    std::optional<std::string_view> ContentLength() const;
};

/// Length of the head at the start of `bytes`, the empty line included; nothing while it is not complete.
std::optional<std::size_t> httpKopfLaenge(std::string_view bytes);

/// False once it is clear that what begins with `bytes` is no answer of HTTP.
bool kannHttpSein(std::string_view bytes);

/// Reads a head. Lines that are no field are passed over.
HttpKopf liesHttpKopf(std::string_view kopf);

/// A length that consists of digits alone and fits in 63 bits.
std::optional<std::int64_t> httpLaenge(std::string_view text);

/// What a request says.
struct HttpAnfrage {
    std::string verb;    ///< "GET"
    std::string objekt;  ///< path and query, escaped or not
    std::string version; ///< "HTTP/1.1"
    std::string host;
    int port = 0;
    std::string benutzer;
    std::string kennwort;
    std::string agent;
    bool ueberProxy = false;   ///< the object is written with its server, for a proxy
    std::string proxyBenutzer; ///< empty: none
    std::string proxyKennwort;
};

/// The bytes of a request: one that no cache may answer, for a body without compression, on a connection that ends with
/// it. Whatever the parts hold, no line is added to the head.
std::string httpAnfragetext(const HttpAnfrage& anfrage);
