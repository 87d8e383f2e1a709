#pragma once

#include <string>
#include <string_view>

// Family trees come in whatever their programs wrote in forty years, and often say something else about it.
namespace kw {

/// A file's characters.
struct Entziffert {
    std::string Text;         ///< UTF-8, without a byte order mark
    std::string Angesagt;     ///< what the file says of itself; empty when it says nothing
    std::string_view Benutzt; ///< how it was read: "UTF-8", "ANSEL", "cp1252", ...
};

/// The text of a file's bytes. A byte order mark and the pattern of the first bytes count more than what the file says;
/// bytes that are UTF-8 are, whatever it says. A character that a continued line cuts comes whole. What can't be read
/// becomes U+FFFD. Never fails.
Entziffert Entziffern(std::string bytes);

} // namespace kw
