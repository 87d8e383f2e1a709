#pragma once

#include "layout/Familiengraph.h"

#include <string>
#include <vector>

namespace kw {

/// A family as a plain text tells it, a line each, fields between tabs:
///   P  ID  M|F|?  birth year or -  generation  name
///   F  ID  partner,partner  child,child...
/// The years and generations are for other readers: siblings are named by age, and levels follow from the bonds.
struct Familiendatei {
    Familiengraph Graph;
    std::vector<std::string> Personen, Familien; ///< their IDs
};

/// Throws `Skriptfehler` with the line that can't be read.
Familiendatei FamilieLesen(const std::string &text);

} // namespace kw
