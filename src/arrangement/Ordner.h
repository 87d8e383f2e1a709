#pragma once

#include "arrangement/Familienauszug.h"
#include "arrangement/Randlinien.h"
#include "arrangement/Seitenplatz.h"
#include "arrangement/Umzug.h"
#include "editing/Werkbank.h"

#include <optional>
#include <set>
#include <vector>

namespace kw {

/// Seeks new places for the persons of a selected group, or of the whole page. Changes nothing.
class Ordner {
  public:
    explicit Ordner(Werkbank &w);

    /// Whether anybody of them has a bond to another.
    bool HatFamilien() const { return !auszug_.Personen.empty(); }
    /// Whether some of those selected stay since somebody who isn't selected does.
    bool HältWenFest() const { return hältWenFest_; }
    /// cm, of those with a bond.
    double GrößtesSymbol() const;

    /// The drawing as it is, with what has to change; an empty one where nothing has to. Nothing where that doesn't
    /// become a drawing as good as one made anew.
    std::optional<Umzug> Behalten(double größe);
    /// New places for symbols of at most that size. Nothing where the page has no room.
    std::optional<Umzug> Versuchen(double größe, const Luft &luft);

    struct Platzbedarf {
        double Breite, Höhe; ///< cm
    };
    /// What the last try would have needed.
    Platzbedarf Bedarf() const { return bedarf_; }

    static constexpr double Seitenrand = 1; ///< that stays free, cm

  private:
    std::optional<Umzug> Unterbringen(const Familienlage &lage, double größe, Platzwunsch wunsch, Ort verschiebung);
    Platzwunsch Wunsch(const Umgebung &seite) const;
    Platzwunsch WunschWieGezeichnet(const Umgebung &seite) const;
    bool Mangelhaft(const Familienlage &lage, const Familienlage &neu, double größe) const;
    bool Steht(const Umzug &umzug, double raster) const;
    double GezeichnetesRaster() const;
    std::set<int> Gehende(const Umzug &umzug) const;
    Umzug NurWasSichÄndert(Umzug umzug) const;
    Ort Stelle(int person) const;
    std::vector<Umgebung> Kästen(int person, Ort ort, double größe) const;
    Umgebung Kasten(int person, Ort ort, double größe) const;
    Familiengraph AufDasBlattGeholt(double größe, double raster) const;
    bool StehtImBlatt(int person, double größe) const;
    Familienlage Gezeichnete() const;
    double ErlaubteMängel(double größe);
    double Mängel(const Umzug &umzug) const;
    bool BleibtImRand(const Umzug &umzug) const;
    /// Something that stays on the page, in boxes.
    using Hindernis = std::vector<Umgebung>;
    std::vector<Hindernis> Hindernisse() const;
    std::vector<Hindernis> Stehende() const;
    std::vector<Umgebung> Linienkästen(const Familienlage &lage) const;
    std::vector<Umgebung> Randkästen(const Familienlage &lage, Ort weg) const;
    bool EinzelneMitnehmen(Umzug &umzug, std::vector<Umgebung> belegt) const;
    Umgebung Blatt() const;
    Umgebung Seite() const;

    Werkbank &w_;
    std::vector<int> gefragte_; ///< who may move, positions in the store
    bool hältWenFest_;
    Familienauszug auszug_;
    Randlinien rand_;
    Platzbedarf bedarf_{};
};

} // namespace kw
