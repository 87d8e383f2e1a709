#pragma once

#include "document/Satzliste.h"

namespace kw {

/// A list that one entry is chosen from, as a combo box shows it. `ListIndex` -1 is no choice.
struct Auswahlliste {
    Satzliste Einträge;
    int ListIndex = -1;

    int Anzahl() const { return Einträge.Anzahl(); }
    /// The chosen entry, or the empty text.
    const std::string &Text() const {
        static const std::string leer;
        return ListIndex >= 0 && ListIndex < Anzahl() ? Einträge.Satz(ListIndex) : leer;
    }
};

} // namespace kw
