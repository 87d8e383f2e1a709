#pragma once

#include "arrangement/Familienauszug.h"
#include "arrangement/Seitenplatz.h"
#include "arrangement/Umzug.h"
#include "editing/Werkbank.h"

#include <optional>
#include <vector>

namespace kw {

/// Seeks new places for the persons of a selected group, or of the whole page. Changes nothing.
class Ordner {
  public:
    explicit Ordner(Werkbank &w);

    /// Whether anybody of them has a bond to another.
    bool HatFamilien() const { return !auszug_.Personen.empty(); }
    /// cm, of those with a bond.
    double GrößtesSymbol() const;

    /// The places for symbols of at most that size; `eng`: as near to each other as can be read. Nothing where the page
    /// has no room.
    std::optional<Umzug> Versuchen(double größe, bool eng);

    struct Platzbedarf {
        double Breite, Höhe; ///< cm
    };
    /// What the last try would have needed.
    Platzbedarf Bedarf() const { return bedarf_; }

    static constexpr double Seitenrand = 1; ///< that stays free, cm

  private:
    Ort Stelle(int person) const;
    Umgebung Kasten(int person, Ort ort, double größe) const;
    std::vector<Umgebung> Hindernisse() const;
    std::vector<Umgebung> Linienkästen(const Familienlage &lage) const;
    bool EinzelneMitnehmen(Umzug &umzug) const;
    Umgebung Seite() const;

    Werkbank &w_;
    std::vector<int> gefragte_; ///< who may move, positions in the store
    Familienauszug auszug_;
    Platzbedarf bedarf_{};
};

} // namespace kw
