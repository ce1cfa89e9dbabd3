#include "archive/logic/cURL.h"

bool cURL::GetURL(std::string_view url)
{
    const auto kanonisch = InternetCanonicalizeUrlA(url);
    if (!kanonisch)
        return false;
    auto teile = InternetCrackUrlA(*kanonisch);
    if (!teile)
        return false;
    teile_ = std::move(*teile);
    return true;
}
