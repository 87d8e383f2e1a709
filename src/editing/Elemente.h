#pragma once

#include "editing/Geometrie.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What stands on the page, one by one and by kind, for all who can't point at it: the keyboard, the page in words.
namespace kw {

struct Auswahl;
struct Dokument;
struct Leinwandlage;
struct Legendenblatt;

/// In the order in which the keyboard walks the page.
enum class Elementart { Person, Partnerschaft, Kind, Beziehung, Text, Pfeil, Kreis, Legende };

/// Something on the page: its kind and its position in that kind's store, from 0; the legend's is 0.
struct Element {
    Elementart Art;
    int Position = 0;
    bool operator==(const Element &) const = default;
};

/// The word for a kind in scripts: "person", "partnership", "child", "relation", "text", "arrow", "circle", "legend".
std::string_view Artname(Elementart art);
/// What names the element within its kind: the number of a person, a partnership line and a child line's child; of the
/// kinds without a number the position, from 1; of the legend nothing. Empty for what isn't there.
std::string Elementschlüssel(const Dokument &dokument, Element element);

/// All that can be seen and pointed at, in the order of the kinds and of their stores; the legend while it is shown.
/// Damaged records that no gesture would hit are none.
std::vector<Element> AlleElemente(const Dokument &dokument);
/// Whether that element is there.
bool GibtEs(const Dokument &dokument, Element element);

/// The smallest box round the element as it is drawn, cm; labels don't count. Empty for what isn't there.
Umgebung Elementrahmen(const Dokument &dokument, const Legendenblatt &legende, Element element);

/// Whether the element is selected, alone or within a group; of a link gesture the person that it starts from.
bool IstGewählt(const Dokument &dokument, const Auswahl &auswahl, const Leinwandlage &lage, Element element);

} // namespace kw
