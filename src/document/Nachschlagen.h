#pragma once

#include "document/Satzliste.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// Every way from a number, or from an entry of a selection list, to a position in a store. Positions count from 0, -1
// is none.
namespace kw {

struct Dokument;

/// Position of the person with number `nr`, the first three characters compared; the first record with it wins.
int PersonMitNr(const Dokument &dokument, std::string_view nr);
/// The same for partnership lines.
int PLinieMitNr(const Dokument &dokument, std::string_view nr);
/// The first partnership line of the two persons in that order, compared as a whole.
int PLinieVonNach(const Dokument &dokument, std::string_view nr1, std::string_view nr2);
/// The same in either order.
int PLinieZwischen(const Dokument &dokument, std::string_view nr1, std::string_view nr2);
/// The child line of child `nr`.
int KindLinieVon(const Dokument &dokument, std::string_view nr);

/// The position that an entry of a selection list stands for, in a store that the list counts from `erste`.
int PositionAus(std::string_view eintrag, const Satzliste &speicher, int erste);
/// The same for all entries of a list.
std::unordered_set<int> PositionenAus(const Satzliste &liste, const Satzliste &speicher, int erste);
/// Position of the first record that `passt`.
template <typename Passt> int ErsterSatz(const Satzliste &speicher, Passt passt) {
    const auto satz = std::find_if(speicher.begin(), speicher.end(), passt);
    return satz == speicher.end() ? -1 : static_cast<int>(satz - speicher.begin());
}
/// The numbers that the records or entries of a list begin with.
std::set<std::string, std::less<>> NummernIn(const Satzliste &liste);
/// Whether a store has that position.
inline bool Gültig(const Satzliste &speicher, int position) { return position >= 0 && position < speicher.Anzahl(); }

/// Positions of records by the number that they begin with. Views into the store, which must not change while this is
/// used.
class Nummernverzeichnis {
  public:
    explicit Nummernverzeichnis(const Satzliste &speicher);
    /// Position of the record with `nr`, or -1.
    int Position(std::string_view nr) const;

  private:
    std::unordered_map<std::string_view, int> positionen_;
};

/// Which records name which person and which partnership, by position. Built once for a gesture that rewrites many
/// records; stays right as long as no record comes, goes or changes its numbers. Without it a group move would
/// scan every store for every person.
class Bezüge {
  public:
    explicit Bezüge(const Dokument &dokument);

    using Positionen = std::vector<int>;
    int Person(std::string_view nr) const { return Erste(personen_, nr); }
    int PLinie(std::string_view nr) const { return Erste(plinien_, nr); }
    /// The child line of a child.
    int Kindlinie(std::string_view kindNr) const { return Erste(kindlinien_, kindNr); }
    /// Lines that name the person at either end. Damaged ones name nobody.
    const Positionen &Partnerschaften(std::string_view nr) const { return Alle(partnerschaften_, nr); }
    const Positionen &Beziehungen(std::string_view nr) const { return Alle(beziehungen_, nr); }
    /// Child lines of a partnership.
    const Positionen &KinderVon(std::string_view plinie) const { return Alle(kinder_, plinie); }

  private:
    struct Streuung : std::hash<std::string_view> {
        using is_transparent = void;
    };
    template <typename T> using Verzeichnis = std::unordered_map<std::string, T, Streuung, std::equal_to<>>;
    static int Erste(const Verzeichnis<int> &verzeichnis, std::string_view nr);
    static const Positionen &Alle(const Verzeichnis<Positionen> &verzeichnis, std::string_view nr);

    Verzeichnis<int> personen_;
    Verzeichnis<int> plinien_;
    Verzeichnis<int> kindlinien_;
    Verzeichnis<Positionen> partnerschaften_;
    Verzeichnis<Positionen> beziehungen_;
    Verzeichnis<Positionen> kinder_;
};

} // namespace kw
