#pragma once

#include "document/Satzliste.h"

#include <string>
#include <unordered_set>

namespace kw {

/// Hands out numbers for new records of one store, so that no two of them ever share one: whatever names a number means
/// one record.
class Nummernvergabe {
  public:
    /// `freie` are the store's free numbers, of which those that are handed out go; without any it counts on behind
    /// `gezählt`.
    Nummernvergabe(const Satzliste &speicher, Satzliste &freie, int gezählt);

    /// The first free number, else the next one; the lowest that no record has when that one is in use.
    std::string Nächste();

  private:
    Satzliste &freie_;
    int gezählt_;
    std::unordered_set<std::string> vergeben_;
};

} // namespace kw
