#pragma once

#include "familytree/Kalender.h"
#include "familytree/Paarangaben.h"
#include "familytree/Personenangaben.h"
#include "familytree/Uebernahmebericht.h"
#include "familytree/Uebernahmeregeln.h"
#include "familytree/Verwandtschaft.h"

#include <cstdint>
#include <span>
#include <vector>

namespace kw {

/// A person as the page will have it. Numbers are places in these lists, `Keine` is none.
struct Übernahmeperson {
    std::uint32_t Quelle = Keine; ///< among the file's persons; `Keine` for an unknown parent, "?"
    Personenangaben Angaben;
    Kalendertag Geboren;        ///< for the order of siblings; the year 0 when it isn't known
    std::uint32_t Paar = Keine; ///< whose child the person is
    int Kindart = 0;            ///< as child lines number it: 0 natural, 1 adopted, 2 foster child
    std::uint32_t Zwilling = Keine;
    bool Eineiig = false;
};

/// A couple: what becomes a partnership line.
struct Übernahmepaar {
    std::uint32_t Erster = Keine, Zweiter = Keine; ///< the first is HUSB where the file has one
    Paarangaben Angaben;
    std::vector<std::uint32_t> Kinder; ///< in the file's order
};

/// Two who may be twins, for the question to the user.
struct Zwillingsvorschlag {
    std::uint32_t Einer = Keine, Anderer = Keine;
};

struct Übernahme {
    std::vector<Übernahmeperson> Personen; ///< those taken, in the given order; then those that were added
    std::vector<Übernahmepaar> Paare;
    std::vector<Zwillingsvorschlag> Vorschläge; ///< that no rule has answered
    Übernahmebericht Bericht;
};

/// Brings persons of a family tree, by their places in it, and what joins them into the terms of a page. All that comes
/// of it holds together: nobody is their own ancestor, every couple has two partners, two persons have one line, a
/// child one couple. Who was taken but not their only known co-parent gets that one; unknown parents become "?".
Übernahme Übertragen(const Stammbaum &baum, const Verwandtschaft &verwandte, std::span<const std::uint32_t> genommen,
                     const Übernahmeregeln &regeln);

/// How a person is a child of a family: as child lines number it. `bericht` may be nullptr.
int Kindart(const Stammperson &person, const Stammfamilie &familie, Übernahmebericht *bericht);

/// Of so many families somebody's parents are chosen; more are a broken file's.
constexpr std::size_t GenugEltern = 64;
/// Which parents are taken before others: the lower the sooner.
int Elternvorrang(const Stammperson &person, const Stammfamilie &familie, bool adoptionVorGeburt);

} // namespace kw
