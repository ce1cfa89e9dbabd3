#pragma once

#include "archive/logic/Internet.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

/// A library that answers from memory and writes down what it was asked.
struct Probeinternet final : Internet {
    bool oeffnet = true;
    bool verbindet = true;
    bool fragt = true;
    bool sendet = true;
    std::optional<std::string> status = "200";
    std::optional<std::string> laenge; ///< unset: the length of the body
    std::string rumpf;
    std::size_t bruchNach = std::string::npos; ///< reading fails behind so many bytes
    std::function<void()> beiLesen;
    std::vector<std::string> aufrufe;

    InternetGriff InternetOpenA(std::string_view agent) override
    {
        aufrufe.push_back("open " + std::string(agent));
        stelle_ = 0;
        return oeffnet ? 11 : 0;
    }
    InternetGriff InternetConnectA(InternetGriff sitzung, const std::string& host, int port,
                                   const std::string& benutzer, const std::string& kennwort) override
    {
        aufrufe.push_back("connect " + std::to_string(sitzung) + " " + host + " " + std::to_string(port) + " " +
                          benutzer + " " + kennwort);
        return verbindet ? 12 : -1;
    }
    InternetGriff HttpOpenRequestA(InternetGriff verbindung, std::string_view verb, const std::string& objekt,
                                   std::string_view version) override
    {
        aufrufe.push_back("request " + std::to_string(verbindung) + " " + std::string(verb) + " " + objekt + " " +
                          std::string(version));
        return fragt ? 13 : 0;
    }
    bool HttpSendRequestA(InternetGriff anfrage) override
    {
        aufrufe.push_back("send " + std::to_string(anfrage));
        return sendet;
    }
    std::optional<std::string> HttpQueryInfoA(InternetGriff anfrage, int stufe, std::size_t hoechstens) override
    {
        aufrufe.push_back("query " + std::to_string(anfrage) + " " + std::to_string(stufe) + " " +
                          std::to_string(hoechstens));
        return stufe == HTTP_QUERY_STATUS_CODE ? status : laenge.value_or(std::to_string(rumpf.size()));
    }
    bool InternetReadFile(InternetGriff anfrage, std::span<char> puffer, std::size_t& gelesen) override
    {
        aufrufe.push_back("read " + std::to_string(anfrage) + " " + std::to_string(puffer.size()));
        if (beiLesen)
            beiLesen();
        gelesen = std::min({puffer.size(), rumpf.size() - stelle_, bruchNach - std::min(bruchNach, stelle_)});
        std::memcpy(puffer.data(), rumpf.data() + stelle_, gelesen);
        stelle_ += gelesen;
        return stelle_ < bruchNach;
    }
    void InternetCloseHandle(InternetGriff griff) override { aufrufe.push_back("close " + std::to_string(griff)); }

private:
    std::size_t stelle_ = 0;
};
