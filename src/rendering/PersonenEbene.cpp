#include "document/Nachschlagen.h"
#include "document/saetze/Person.h"
#include "rendering/Beschriftung.h"
#include "rendering/Ebenen.h"
#include "rendering/Seite.h"
#include "rendering/Symbole.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace kw {

namespace {

/// Draws the persons of one redraw, in store order.
class Personenzeichner {
  public:
    Personenzeichner(Zeichenfläche &fläche, const Zeichnung &z, double faktor)
        : f(fläche), z_(z), faktor_(faktor), nummern_(z.dokument.cboPersonen), alter_(z.uhr),
          pixelJeCm_(z.PixelJeCm(faktor)) {
        if (z.Druck) return;
        for (const auto &eintrag : z.auswahl.lstMovedPers) ++gewählt_[Ganzzahl16(ZahlLesen(eintrag))];
    }

    void Zeichnen(int position) {
        const PersonSatz person(z_.dokument.cboPersonen.Satz(position));
        const double x = person.PosX();
        const double y = person.PosY();
        const double größe = person.Groesse();
        const double links = Gerundet(x - größe / 2, 2);
        const double oben = Gerundet(y - größe / 2, 2);
        f.FillColor = SymbolFüllfarbe(z_.ansicht.Farbschema);
        Zwillingsband(person, x, y);

        Symbol symbol(f, {links, oben, x, y, größe}, pixelJeCm_, z_.Symbolstrich(), z_.ansicht.Farbschema);
        const int kennzahl = SymbolKennzahl(person.Symboltyp());
        f.ForeColor = Schwarz;
        symbol.Zeichnen(kennzahl, MarkenVon(person), Hervorgehoben(person, position));
        if (ZeigtNamen(person)) PersonBeschriften(f, z_.ansicht, alter_, person, x, y, oben, größe, faktor_);
    }

  private:
    /// Joins identical twins, once a pair.
    void Zwillingsband(const PersonSatz &person, double x, double y) {
        if (!person.Eineiig() || verbunden_.contains(person.Nr())) return;
        const std::string_view nr = person.ZwillingNr();
        const int partner = nummern_.Position(nr);
        if (partner < 0) return;
        const PersonSatz anderer(z_.dokument.cboPersonen.Satz(partner));
        if (!anderer.HatOrt()) return;
        f.DrawWidth = z_.Symbolstrich();
        f.Line(LinieFarbig, Gerundet(x, 1), Gerundet(y, 1), Gerundet(anderer.PosX(), 1), Gerundet(anderer.PosY(), 1),
               Schwarz);
        verbunden_.insert(nr);
    }

    static Marken MarkenVon(const PersonSatz &person) {
        return {person.IndexPerson(), person.Verstorben(), person.Sucht(), person.Erkrankung()};
    }

    Symbol::Hervorhebung Hervorgehoben(const PersonSatz &person, int position) const {
        if (z_.Druck) return {.Druck = true};
        // In a link gesture the list holds positions. Where the link starts shows in any case.
        const Gestenlage &geste = z_.geste;
        const bool link = IstLink(geste.Aktion);
        const bool zieht = link && geste.Aktion != Aktion::KindZiehen;
        const auto gewählt = gewählt_.find(zieht ? position + 1 : Ganzzahl16(ZahlLesen(person.Nr())));
        const int mal = gewählt == gewählt_.end() ? 0 : gewählt->second;
        return {zieht && position + 1 == geste.ZielPerson,
                link && position + 1 == geste.PersAuswahl ? std::max(mal, 1) : mal};
    }

    Zeichenfläche &f;
    const Zeichnung &z_;
    double faktor_;
    Nummernverzeichnis nummern_;
    Altersberechnung alter_;
    double pixelJeCm_;
    std::unordered_map<int, int> gewählt_;
    std::unordered_set<std::string_view> verbunden_; ///< twins whose band is drawn
};

} // namespace

Textbefund PersonenEbene(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    f.Ebene("personen");
    DruckrandZeichnen(f, z);
    f.DrawStyle = StilDurchgezogen;
    f.ForeColor = Schwarz;
    f.FillStyle = Gefüllt;
    f.FontName = "Arial";
    f.FontSize = 9 * faktor;
    f.FontBold = false;
    f.Line(Linie, -2, -2, -2, -2); // off the page: parks the pen

    Personenzeichner zeichner(f, z, faktor);
    for (int i = 0; i < z.dokument.cboPersonen.Anzahl(); ++i) try {
            zeichner.Zeichnen(i);
        } catch (const FeldFehlt &) { // a damaged person isn't drawn, the others are
        }
    return TextboxenZeichnen(f, z, faktor);
}

} // namespace kw
