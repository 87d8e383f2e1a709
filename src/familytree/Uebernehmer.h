#pragma once

#include "familytree/Uebernahme.h"

#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kw {

/// An import while it is made, in the order of its steps.
class Übernehmer {
  public:
    Übernehmer(const Stammbaum &baum, const Verwandtschaft &verwandte, const Übernahmeregeln &regeln)
        : baum_(baum), verwandte_(verwandte), regeln_(regeln) {}

    Übernahme Tun(std::span<const std::uint32_t> genommen);

  private:
    std::uint32_t Nehmen(std::uint32_t quelle);
    std::uint32_t Unbekannter(bool mann);
    std::uint32_t Ort(std::uint32_t quelle) const; ///< among those taken, or `Keine`
    Familienrolle Rolle(std::uint32_t quelle) const;
    void VerweisePrüfen(const Stammperson &person);
    void FamilienSammeln();

    /// The first two partners of a family, who make its couple.
    std::span<const std::uint32_t> Paarpartner(std::uint32_t familie) const;
    bool IstBrauchbar(std::uint32_t familie) const;
    void ElternWählen(std::uint32_t person);
    void ElternMelden(const Stammperson &person, std::uint32_t gewählt, int vorrang);

    void PaarAnlegen(std::uint32_t familie);
    std::pair<std::uint32_t, std::uint32_t> Partner(std::uint32_t familie, bool hatKinder);
    bool NenntFamilie(std::uint32_t person, std::string_view familie);
    void PartnerMelden(std::uint32_t familie, std::string_view wer);
    std::string Paarname(std::uint32_t familie) const;
    Übernahmepaar &Paar(std::uint32_t erster, std::uint32_t zweiter, std::uint32_t familie);
    void StatusMelden();

    void KreiseLösen();
    void ElternLösen(std::uint32_t person);

    void AngegebeneZwillinge();
    void GleichaltrigeZwillinge(std::uint32_t familie);
    bool SindGeschwister(std::uint32_t a, std::uint32_t b) const;
    void Verzwillingen(std::uint32_t a, std::uint32_t b, bool eineiig);

    const Stammbaum &baum_;
    const Verwandtschaft &verwandte_;
    const Übernahmeregeln &regeln_;
    Übernahme ergebnis_;
    std::vector<std::uint32_t> familien_;                   ///< that touch somebody taken, rising
    std::unordered_map<std::uint32_t, std::uint32_t> orte_; ///< where who is taken stands
    std::vector<std::uint32_t> elternfamilie_;              ///< of those taken
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::size_t> paare_;
    std::map<std::uint32_t, std::set<std::string_view>> genannteFamilien_; ///< by persons, of those who were asked for
    std::vector<std::uint32_t> paarzeilen_;                                ///< of the file, for each couple
};

/// Whether a relation between two persons says that they are twins.
bool IstZwillingsrolle(std::string_view rolle);

} // namespace kw
