#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// A line of a script that can't be read.
struct Skriptfehler : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Wörter = std::vector<std::string>;

/// Splits at blanks; double quotes hold blanks together, also inside a word, with \" and \\ in them.
Wörter Zerlegt(const std::string &zeile);
/// The parts between the separators, empty ones too.
Wörter Geteilt(std::string_view text, char trenner);
/// Word `i`; a script error when the line ends before it.
const std::string &Wort(const Wörter &w, size_t i);
/// The words from `i` on, blanks between them.
std::string Ab(const Wörter &w, size_t i);
/// A text in one line of output: what ends a line is written out, "\n".
std::string EineZeile(const std::string &text);

/// A word that is a decimal number, "." being the decimal mark.
double Dezimalzahl(const std::string &text);
/// The same as a whole number.
int Zahl(const std::string &text);

} // namespace kw
