#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The texts of the logic are UTF-8; the screens show QString.
inline QString qt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string utf8(const QString& text)
{
    return text.toStdString();
}
