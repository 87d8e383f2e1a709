#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Blanks of every script, in UTF-8: what programs put around names and dates is more than the keyboard's.
namespace kw {

/// Bytes of the blank that `text` begins with; 0 when it begins with something else or is empty.
std::size_t LeerraumVorn(std::string_view text);

/// `text` without the blanks around it.
std::string_view Randlos(std::string_view text);

/// Whether each blank inside of `text`, which has none around it, is a single space.
bool IstGeglättet(std::string_view text);

/// `text` with one "@" for two, as the format doubles them.
std::string EinfacheKlammeraffen(std::string_view text);

/// `text` with a blank for each of `zeichen` and for what steers a terminal or a printer.
std::string MitBlanksFür(std::string_view zeichen, std::string_view text);

/// One line of it: single spaces, none around it.
std::string Geglättet(std::string_view text);

} // namespace kw
