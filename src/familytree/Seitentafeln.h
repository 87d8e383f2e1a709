#pragma once

#include <string>
#include <string_view>

// Code pages of one byte a character, and the character sets that have no byte for a letter with its accent.
namespace kw {

/// A code page: the characters of its bytes from 80 on. All below are ASCII.
using Seitentafel = std::u16string_view;

Seitentafel Windows1252(); ///< five bytes have no character there
Seitentafel Dos437();
Seitentafel Dos850();
Seitentafel MacRoman();

/// The text of a file in that code page.
std::string AusSeite(std::string_view bytes, Seitentafel tafel);

/// The text of a file in ANSEL, composed (NFC). Marks stand before their letter there, several in their order; a mark
/// whose letter begins the value of the next CONC belongs to that letter. Marks behind the last letter go.
std::string AusAnsel(std::string bytes);

} // namespace kw
