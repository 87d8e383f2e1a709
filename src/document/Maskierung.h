#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// Whether this byte stands for itself there.
constexpr bool BleibtUnmaskiert(char c) { return c > ' ' && c < '\x7F' && c != '%' && c != '"' && c != '\''; }

/// Any bytes as printable ASCII without blanks, quotation marks and "%": all others stand as "%C5".
std::string Maskiert(std::string_view bytes);

/// The inverse; nothing when the text can't come from `Maskiert`.
std::optional<std::string> Demaskiert(std::string_view text);

} // namespace kw
