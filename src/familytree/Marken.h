#pragma once

#include <string>
#include <string_view>

// What the values of lines mean.
namespace kw {

/// This program's own tag, below a fact that tells other programs in words what the format has no tag for: the number
/// of a person's symbol.
constexpr std::string_view Symbolmarke = "_KINWRIGHT";

/// ASCII in capital or small letters; all else stays.
std::string InGroßbuchstaben(std::string_view text);
std::string InKleinbuchstaben(std::string_view text);

/// The first character of `text` as a capital of its script; empty for none.
std::string Großbuchstabe(std::string_view text);

/// The record that a value names; empty for one that names none.
std::string_view Zeiger(std::string_view wert);

/// Whether an event says that it didn't happen.
bool IstNein(std::string_view wert);

/// Whether a date gives day, month and year, without anything that makes it less sure.
bool IstTagesdatum(std::string_view datum);

} // namespace kw
