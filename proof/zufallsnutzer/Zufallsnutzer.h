#pragma once

#include "Satzregeln.h"
#include "Verlustpruefung.h"

#include "document/Dokument.h"
#include "document/UndoRing.h"
#include "editing/Leinwandlage.h"
#include "rendering/Auswahl.h"
#include "replay/Einblick.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace kw {

/// Runs a script step by step and holds each state against the rules of the records. Where the program breaks one
/// by its own rules this is excused at the step where it arises, for these elements only.
class Prüfung {
  public:
    Prüfung() { Zeile("# start"); }
    /// Runs a line, or several that are one deed: what is left of their forms and answers goes behind them. The first
    /// fault as "kind: whom", empty when all is well.
    std::string Zeile(const std::string &zeile);
    const Einblick &Innen() { return wiedergabe_.Läuft().innen; }

  private:
    void BeiFormularenZusehen();
    std::string Satzfehler();
    std::string Schrittfehler();
    std::string Sicherungsfehler();
    std::string Rückschrittfehler(bool zurück);
    std::string Projektfehler(bool neu);

    std::ostringstream aus_;
    Wiedergabe wiedergabe_{aus_};
    std::string zeile_;
    Stand jetzt_, alt_;
    std::map<int, Dokument> plätze_;     ///< what the undo ring should hold
    std::set<std::string> entschuldigt_; ///< texts of faults
    std::string verworfen_;              ///< what forms did in this step without being confirmed
    Verlustprüfung verlust_;
};

/// A user who draws families at random, in lines of the replay language. The same seed gives the same user. With a
/// folder for the safety net he is also one who is out of luck: his saves fail, somebody else writes his files, his
/// programs are killed.
class Zufallsnutzer {
  public:
    explicit Zufallsnutzer(unsigned saat, std::string netz = "") : netz_(std::move(netz)), zufall_(saat) {}
    /// What he does next, a few steps that belong together. A step is a line, or lines that only work as one.
    std::vector<std::string> Nächstes(const Einblick &innen);

  private:
    struct Ort {
        double X = 0;
        double Y = 0;
        std::string_view Menü = "mnuSymbolEinfügen"; ///< of what stands there
    };
    int Würfel(size_t seiten) { return static_cast<int>(zufall_() % seiten); }
    void Umsehen();
    template <typename Satz>
    static void Merken(std::vector<Ort> &orte, const Satzliste &speicher, std::string_view menü,
                       std::pair<double, double> (*ort)(const Satz &));
    const Ort &Wählen(const std::vector<Ort> &orte);
    std::string Eintrag(std::string_view menü);
    std::string Formularzeilen(std::string_view name);
    std::string Angebotszeilen();
    std::string Start(std::string_view worte) const;
    std::string_view Handlung(const Einblick &innen);
    std::string Eingesetzt(char platzhalter);

    std::string netz_;
    std::mt19937_64 zufall_;
    const Einblick *innen_ = nullptr;
    const bool genau_ = Würfel(2) == 0; ///< leaves out what can give a number twice, so that all rules are kept
    bool neu_ = true;
    std::vector<Ort> personen_, balken_, alle_; ///< what a pointer can hit
    Ort letzter_;
};

} // namespace kw
