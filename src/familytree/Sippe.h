#pragma once

#include "familytree/Uebernahme.h"

#include <cstdint>
#include <vector>

// Whom of a family tree a page is to show: those around one person.
namespace kw {

/// By how far they are from the proband. Ancestors up, descendants down; the others hang on these.
struct Sippenwahl {
    int Hinauf = 2;   ///< generations of ancestors
    int Hinunter = 1; ///< generations of descendants
    bool Geschwister = true;
    bool TantenOnkel = true;    ///< brothers and sisters of all ancestors that are taken
    bool Cousins = false;       ///< those ones' descendants, down to the proband's generation
    bool NichtenNeffen = false; ///< descendants of brothers and sisters, as far down as the proband's own
    bool Partner = true;        ///< of all these
    bool operator==(const Sippenwahl &) const = default;
    /// Whether it takes nobody that `andere` doesn't take.
    bool IstTeilVon(const Sippenwahl &andere) const;
};

/// A family tree, and who belongs to whom in it.
struct Sippschaft {
    const Stammbaum &Baum;
    const Verwandtschaft &Verwandte;
};

/// Their places in the family tree, in its order. The proband is among them. Whoever is both (an ancestor who is an
/// aunt too) is taken once; no bond is followed twice, whatever circles the file has. Of several parents those are
/// followed that the page will show.
std::vector<std::uint32_t> Sippe(Sippschaft alle, std::uint32_t proband, const Sippenwahl &wahl,
                                 bool adoptionVorGeburt = false);

} // namespace kw
