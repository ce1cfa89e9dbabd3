#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Number of the HTTP scheme in `UrlTeile::nScheme`.
inline constexpr int INTERNET_SCHEME_HTTP = 3;

/// Longest canonical URL, in bytes.
inline constexpr std::size_t kMaxUrl = 1024;

/// A URL taken apart. Escapes are resolved in the user data and in the path; in the path those stay that would change
/// its meaning there: of "%", "/", "?", "#" and of control characters.
struct UrlTeile {
    std::string Scheme;    ///< lower case, at most 32 bytes
    int nScheme = -1;      ///< 1 ftp, 2 gopher, 3 http, 4 https, 5 file, 6 news, 7 mailto; -1 any other
    std::string HostName;  ///< lower case, at most 256 bytes; an IPv6 address without its brackets
    int nPort = 0;         ///< the one in the URL, else the usual one of the scheme, else 0
    std::string UserName;  ///< at most 128 bytes
    std::string Password;  ///< at most 128 bytes
    std::string UrlPath;   ///< at most 2048 bytes; begins with "/" if there is a host
    std::string ExtraInfo; ///< query with its "?", at most 1024 bytes, escapes as they are
};

/// The canonical form: scheme and host in lower case, "." and ".." in the path resolved, everything escaped that no
/// request may hold, nothing escaped in the path that needs no escape, the fragment left out. Nothing if the URL has no
/// scheme, holds a control character or is longer than `kMaxUrl`.
std::optional<std::string> InternetCanonicalizeUrlA(std::string_view url);

/// Takes a canonical URL apart. Nothing if it has no scheme, if a part is longer than said above, if a port is outside
/// 1..65535, or if one of the schemes with a host lacks it.
std::optional<UrlTeile> InternetCrackUrlA(std::string_view url);

/// `text` with every byte escaped that may not stand in a path or a query. Escapes that are there stay.
std::string maskiere(std::string_view text);

/// The part of a path behind its last "/", as a file name. Nothing if it is empty, "." or "..", or if it holds a
/// separator ("/" or "\", escaped ones too) or a control character.
std::optional<std::string> dateinameAusPfad(std::string_view urlPath);
