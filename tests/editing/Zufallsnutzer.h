#pragma once

#include "Satzpruefung.h"

#include <random>

namespace kw {

/// A user who draws families at random, in lines of the replay language. The same seed gives the same user.
class Zufallsnutzer {
  public:
    explicit Zufallsnutzer(unsigned long saat) : zufall_(saat) {}
    /// What the user finds on the page when he comes.
    std::vector<std::string> Anfang();
    /// What he does next: a few lines that belong together. While an answer waits he prepares no other.
    std::vector<std::string> Nächstes(const Stand &stand, bool antwortOffen);

  private:
    struct Ort {
        double X = 0;
        double Y = 0;
        std::string_view Menü = "mnuSymbolEinfügen"; ///< of what stands there
    };
    int Würfel(int seiten) { return static_cast<int>(zufall_() % static_cast<unsigned>(seiten)); }
    template <typename Liste> const auto &Eines(const Liste &liste) {
        return *(std::data(liste) + Würfel(static_cast<int>(std::size(liste))));
    }
    void Umsehen(const Stand &stand);
    void Merken(std::vector<Ort> &orte, const Satzliste &speicher, std::string_view menü, int x1, int x2);
    std::string Eingesetzt(char platzhalter);
    std::string Text(Ort ort) const;

    std::mt19937_64 zufall_;
    const bool genau_ = Würfel(2) == 0; ///< leaves out what can give a number twice, so that all rules are kept
    std::vector<Ort> personen_, balken_, alle_; ///< what a pointer can hit
    Ort letzter_;
};

} // namespace kw
