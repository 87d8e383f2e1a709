#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kw {

/// What stands for a character that can't be read.
constexpr char32_t Ersatzzeichen = 0xFFFD;

/// Appends a character of Unicode.
void Utf8Anfügen(std::string &utf8, char32_t zeichen);

/// The beginning of a text in UTF-8: a whole character, or the longest part of one that could have become one.
struct Utf8Anfang {
    std::size_t Länge = 0;   ///< bytes that belong together; at least 1
    std::size_t Fehlend = 0; ///< bytes that the character lacks; 0 when it is whole or can't be one
    bool Ganz = false;       ///< it is a character
};
/// `text` isn't empty. Overlong forms and surrogates are no characters.
Utf8Anfang ErstesUtf8(std::string_view text);

/// The beginning of `text` in at most that many bytes, no character of it cut.
std::string_view UnzerteilterAnfang(std::string_view text, std::size_t höchstens);

/// Whether all of it is UTF-8.
bool IstUtf8(std::string_view text);

/// Brings characters together that a continued line cuts. Says whether all of `text` is UTF-8 then.
bool Utf8Heilen(std::string &text);

/// `text` with U+FFFD for each part of it that is no UTF-8.
std::string Utf8Ersetzt(std::string_view text);

/// The text of UTF-16 without a byte order mark; halves of pairs and an odd byte become U+FFFD.
std::string AusUtf16(std::string bytes, bool großesEndeVorn);

} // namespace kw
