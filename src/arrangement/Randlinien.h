#pragma once

#include "arrangement/Familienauszug.h"
#include "editing/Geometrie.h"
#include "layout/Familienlage.h"

#include <vector>

// The child lines from those who are laid out to those who stay.
namespace kw {

struct Dokument;

/// Those of `personen`, positions in the store, whose going tears nothing: nobody whose partner stays, since the bar
/// stays then, and nobody who has a bond only to those who stay.
std::vector<int> OhneGebundene(const Dokument &dokument, const std::vector<int> &personen);

/// Tells of places for a part of a page how they suit the rest of its families. Keeps a reference to `auszug`.
class Randlinien {
  public:
    Randlinien(const Dokument &dokument, const Familienauszug &auszug);

    bool Leer() const { return linien_.empty(); }
    struct Strecke {
        int Kind; ///< position in the store
        Ort Balken, Ende;
    };
    /// The lines as they are drawn when those stand there, moved by `weg`.
    std::vector<Strecke> Strecken(const Familienlage &lage, Ort weg) const;
    /// What is wrong with the lines when those stand there, moved by `weg`, with symbols of at most that size, in the
    /// centimetres that a place without would be worth going farther for: symbols that they run through, and above all
    /// children above their parents' bar.
    double Mängel(const Familienlage &lage, Ort weg, double größe) const;
    static constexpr double Verkehrt = 1000; ///< one such child

  private:
    struct Linie {
        int Kind;    ///< position in the store
        int Familie; ///< in the graph, or none
        Umgebung Balken;
    };
    struct Symbol {
        Ort Mitte;
        double Breite;
        int ImGraph; ///< or none
    };
    Ort Mitte(const Symbol &symbol, const Familienlage &lage, Ort weg) const;

    const Familienauszug &auszug_;
    std::vector<Linie> linien_;
    std::vector<Symbol> symbole_; ///< of all persons
};

} // namespace kw
