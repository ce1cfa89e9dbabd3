#pragma once

#include "archive/logic/InternetUrl.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Takes a URL text apart and keeps its parts.
class cURL {
public:
    /// True if the URL was understood; otherwise all parts keep their old values. The limits are those of `UrlTeile`.
    bool GetURL(std::string_view url);

    const std::string& URLExtraInfo() const { return teile_.ExtraInfo; }
    const std::string& URLPath() const { return teile_.UrlPath; }
    const std::string& Password() const { return teile_.Password; }
    const std::string& UserName() const { return teile_.UserName; }
    int Port() const { return teile_.nPort; }
    const std::string& HostName() const { return teile_.HostName; }
    const std::string& Scheme() const { return teile_.Scheme; }
    std::int32_t lScheme() const { return teile_.nScheme; }

private:
    UrlTeile teile_;
};
