#pragma once

#include "layout/Familiengraph.h"

#include <vector>

// A document's persons and their bonds, as the layout engine takes them.
namespace kw {

class PersonSatz;
class Zeichenfläche;
struct Dokument;

struct Familienauszug {
    Familiengraph Graph;
    std::vector<int> Personen; ///< position in the store of each person of the graph
    std::vector<int> Linien;   ///< position of the partnership line of each family
};

/// Those of `personen`, positions in the store, who have a partner, a child or parents among them, with the lines
/// between them. Their places and their bars' heights are those of the page. `fläche` measures names; its font changes.
Familienauszug FamilienUnter(const Dokument &dokument, const std::vector<int> &personen, Zeichenfläche &fläche);

/// Whether the person stands in a couple as a man, as a woman or as neither.
Geschlecht GeschlechtVon(const PersonSatz &person);

} // namespace kw
