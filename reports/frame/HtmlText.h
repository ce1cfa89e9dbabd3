#pragma once

#include <string>
#include <string_view>

/// The character set of a page: what its charset line says and its bytes are.
enum class HtmlZeichensatz { Iso8859_1, Utf8 };

/// A text from outside as the text or the attribute value of a page: `&`, `<`, `>` and both quotation marks become
/// entities.
std::string htmlMaskiert(std::string_view text);

/// A piece of a page, UTF-8, in the bytes of the character set. A character that ISO 8859-1 lacks becomes an entity,
/// which `<style>` and `<script>` do not resolve. A stray byte, and a control character other than tab and line end,
/// becomes U+FFFD.
std::string htmlBytes(std::string_view text, HtmlZeichensatz zeichensatz);
