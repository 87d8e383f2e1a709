#pragma once

#include "editing/Elemente.h"
#include "keyboard/Seitencursor.h"

#include <functional>
#include <optional>
#include <string_view>

// Ways from one element of the page to another: round the page, along the family, by place, by name. None changes
// anything. Nothing is the answer where a way ends.
namespace kw {

enum class Richtung { Hoch, Runter, Links, Rechts };

/// Which elements a way knows.
using Elementfilter = std::function<bool(Element)>;

/// The next one round the page, or the one before; without a start the first, or the last.
std::optional<Element> Nächstes(const Dokument &dokument, std::optional<Element> von, bool rückwärts,
                                const Elementfilter &kennt);
/// The first of those, or the last.
std::optional<Element> Äußerstes(const Dokument &dokument, bool letztes, const Elementfilter &kennt);

/// Along the family. Of a person: up the left parent, down the leftmost child, to the sides partners and full siblings
/// in one row. Of a partnership its partners and its leftmost child, of a relationship its persons, of a child line its
/// bar and the child. Ties: the upper one, then the store's order.
std::optional<Element> Verwandtes(const Dokument &dokument, Element von, Richtung richtung);
/// Whether the family leads from that kind in that direction; where it doesn't, places do.
bool HatVerwandte(Elementart art, Richtung richtung);

/// By place, from the middle of `rahmen`: of those that have their middle on that side first the nearest along of which
/// overlaps `rahmen` crosswise, else the nearest by straight distance.
std::optional<Element> Benachbartes(const Dokument &dokument, const Legendenblatt &legende, const Umgebung &rahmen,
                                    Richtung richtung, const Elementfilter &kennt);
/// What places lead to where nothing says otherwise: no lines, which lie across everything.
bool HatEinenPlatz(Element element);

/// The first person with a name that begins with `text`, else that holds it, in the stores' order from behind `von` on
/// and round; case doesn't count.
std::optional<Element> PersonNamens(const Dokument &dokument, std::string_view text, std::optional<Element> von);

} // namespace kw
