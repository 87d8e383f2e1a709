#pragma once

#include "document/Dokument.h"
#include "platform/Sprache.h"

#include <string_view>

namespace kw {

/// The legend as it is derived from the diagram: the sorted codes of its entries, and the size of the
/// box at its last draw (cm).
struct Legendenblatt {
    Satzliste lstLegende;
    double LegendeBreite = 0;
    double LegendeHoehe = 0;
};

/// Fills the list afresh from the stores. An edit of the diagram doesn't do this by itself. A record
/// with too few fields adds what it has.
void LegendeAufbauen(const Dokument &dokument, Legendenblatt &blatt);

/// What stands at the entry with that code; nothing at an unknown one.
std::string_view Legendeneintrag(std::string_view code, Sprache sprache);

} // namespace kw
