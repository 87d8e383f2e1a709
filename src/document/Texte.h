#pragma once

#include <string>
#include <string_view>

// Texts as memory holds them, in UTF-8.
namespace kw {

/// Whether `byte` is one of those that follow the first of a UTF-8 character.
constexpr bool IstFortsetzung(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Characters of a UTF-8 text.
int Zeichenzahl(std::string_view text);

/// `text` without the blanks around it.
std::string_view Getrimmt(std::string_view text);

/// `text` with `neu` for every `alt`, from the left; what was put in isn't looked at again. `alt` must not be empty.
std::string Ersetzt(std::string text, std::string_view alt, std::string_view neu);

/// `text` without that character.
std::string Ohne(std::string_view text, char zeichen);

/// `text`, whatever its bytes are, as one line for a terminal: what would steer it (control characters of either kind,
/// marks that turn the direction of writing, bytes that are no UTF-8) shows as "?".
std::string FürTerminal(std::string_view text);

/// Stands for "_" in the stored text of a box, since "_" separates fields.
constexpr std::string_view Absatzzeichen = "¶";
std::string MitAbsatzzeichen(std::string_view text);  ///< for the record
std::string OhneAbsatzzeichen(std::string_view text); ///< as it was written

} // namespace kw
