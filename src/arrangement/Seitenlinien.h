#pragma once

#include "arrangement/Seitenplatz.h"

#include <set>
#include <vector>

// The lines that stand on a page, as something that others can lie on.
namespace kw {

struct Ansicht;
struct Dokument;

/// A partnership line with its legs, a child line, a relationship line, an arrow or a circle line.
struct Seitenlinie {
    std::vector<Umgebung> Kästen;  ///< narrow ones, along the line as it is drawn
    std::vector<Umgebung> Inneres; ///< of a circle line: whoever came there would be in it
    std::set<int> Personen;        ///< with whom it goes along, positions in the store

    /// Whether it stays where it is when those go.
    bool Bleibt(const std::set<int> &gehende) const;
};

/// All of them; damaged ones are none.
std::vector<Seitenlinie> LinienDerSeite(const Dokument &dokument, const Ansicht &ansicht);

} // namespace kw
