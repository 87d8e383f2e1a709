#pragma once

#include <string>
#include <string_view>

// Files hold Windows-1252, memory holds UTF-8.
namespace kw {

/// Windows-1252 to UTF-8. Every byte has a character: 81, 8D, 8F, 90 and 9D are the C1 controls of the
/// same number, so that any file survives a round trip.
std::string NachUtf8(std::string_view bytes);

/// UTF-8 to Windows-1252. A character that the code page lacks becomes "?", as does each byte that is
/// no UTF-8.
std::string NachCodepage(std::string_view utf8);

/// UTF-8 in small letters of every script, so that names can be compared; bytes that are no UTF-8 stay.
std::string Kleingeschrieben(std::string_view utf8);

} // namespace kw
