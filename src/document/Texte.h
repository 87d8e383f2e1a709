#pragma once

#include <string>
#include <string_view>

// Texts as memory holds them, in UTF-8.
namespace kw {

/// Characters of a UTF-8 text.
int Zeichenzahl(std::string_view text);

/// `text` without the blanks around it.
std::string_view Getrimmt(std::string_view text);

} // namespace kw
