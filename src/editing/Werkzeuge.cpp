#include "editing/Werkzeuge.h"

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"
#include "editing/Marker.h"

namespace kw {

namespace {

/// What a button arms.
struct Werkzeug {
    int Nummer;
    kw::Aktion Aktion;
    int Typ = 0;      ///< kind of person that it places
    double Größe = 0; ///< of that symbol, cm
    int PfeilArt = 0; ///< arrow or double arrow
};
constexpr int TypEltern = 22; ///< of the parents' tool; no record has it

constexpr Werkzeug Werkzeuge[] = {
    {1, Aktion::PersonSetzen, TypMännlich, GrößeNormal},
    {2, Aktion::PersonSetzen, TypWeiblich, GrößeNormal},
    {3, Aktion::PersonSetzen, TypSchwangerschaft, GrößeKlein},
    {4, Aktion::PersonSetzen, 4, GrößeKlein},
    {5, Aktion::PersonSetzen, 5, GrößeKlein},
    {6, Aktion::PersonSetzen, 6, GrößeKlein},
    {7, Aktion::PersonSetzen, 7, GrößeKlein},
    {WerkzeugKreislinie, Aktion::KreisZeichnen},
    {WerkzeugText, Aktion::TextGesetzt},
    {WerkzeugEltern, Aktion::ElternSetzen, TypEltern, GrößeNormal},
    {WerkzeugBeziehung, Aktion::BeziehungZiehen},
    {WerkzeugPartnerschaft, Aktion::PartnerschaftZiehen},
    {WerkzeugKind, Aktion::KindZiehen},
    {WerkzeugPfeil, Aktion::PfeilZeichnen, 0, 0, 1},
    {WerkzeugDoppelpfeil, Aktion::PfeilZeichnen, 0, 0, 2},
    {17, Aktion::PersonSetzen, TypInstitution, GrößeNormal},
    {18, Aktion::PersonSetzen, TypWeiblichZuMännlich, GrößeNormal},
    {19, Aktion::PersonSetzen, TypMännlichZuWeiblich, GrößeNormal},
    {20, Aktion::PersonSetzen, TypDivers, GrößeNormal},
};

bool HatPerson(const Werkbank &w) {
    return w.lage.PersAuswahl > 0 && w.lage.PersAuswahl <= w.dokument.cboPersonen.Anzahl();
}

/// A child of somebody can't become another's.
bool KannKindWerden(const Werkbank &w) {
    if (!HatPerson(w) || ZahlLesen(w.lage.PersNr) < 1) return false;
    const Felder feld(w.dokument.cboPersonen.Satz(w.lage.PersAuswahl - 1));
    return Getrimmt(feld.OderLeer(PersonFeld::ElternLinie)).empty();
}

bool Brauchbar(const Werkbank &w, int nummer) {
    if (nummer == WerkzeugKind) return KannKindWerden(w);
    return (nummer != WerkzeugBeziehung && nummer != WerkzeugPartnerschaft) || HatPerson(w);
}

/// The links start from the selected person; without one nothing is armed.
bool LinkBeginnen(Werkbank &w, int nummer) {
    if (nummer != WerkzeugBeziehung && nummer != WerkzeugPartnerschaft && nummer != WerkzeugKind) return false;
    if (!Brauchbar(w, nummer)) w.lage.Aktion = Aktion::Nichts;
    else if (nummer == WerkzeugBeziehung) mnuBeziehungErstellen2(w);
    else if (nummer == WerkzeugPartnerschaft) mnuPartnerschaftsLinie(w);
    else mnuKindVon(w);
    return true;
}

bool IstGedrückt(const Leinwandlage &lage, const Werkzeug &werkzeug) {
    if (lage.Aktion != werkzeug.Aktion) return false;
    if (werkzeug.PfeilArt) return werkzeug.PfeilArt == lage.PfeilArt;
    return lage.Aktion != Aktion::PersonSetzen || werkzeug.Typ == lage.SymbolTyp;
}

} // namespace

std::string WerkzeugName(int nummer) { return "cmdSymb(" + std::to_string(nummer) + ")"; }

void WerkzeugDrücken(Werkbank &w, int nummer) {
    if (nummer == WerkzeugZwillinge) { // works on what is selected, so it arms and empties nothing. Meant.
        cmdZwillinge(w);
        return;
    }
    Leinwandlage &lage = w.lage;
    lage.Aktion = Aktion::PersonSetzen;
    AuswahlAufgeben(w);
    lage.Zeiger = nummer < WerkzeugZwillinge ? Mauszeiger::Person : Mauszeiger::Pfeil;
    if (LinkBeginnen(w, nummer)) return;
    const auto werkzeug =
        std::find_if(std::begin(Werkzeuge), std::end(Werkzeuge), [&](const Werkzeug &z) { return z.Nummer == nummer; });
    if (werkzeug == std::end(Werkzeuge)) return;
    lage.Aktion = werkzeug->Aktion;
    if (werkzeug->Typ) {
        lage.SymbolTyp = werkzeug->Typ;
        lage.SymbolGröße = werkzeug->Größe;
    }
    if (werkzeug->PfeilArt) lage.PfeilArt = werkzeug->PfeilArt;
    if (nummer == WerkzeugKreislinie) lage.KreisAuswahl = 0;
}

void PaletteAuffrischen(Werkbank &w) {
    for (const Werkzeug &werkzeug : Werkzeuge) {
        Bedienelement &knopf = w.bedienung[WerkzeugName(werkzeug.Nummer)];
        knopf.Checked = IstGedrückt(w.lage, werkzeug);
        knopf.Enabled = Brauchbar(w, werkzeug.Nummer);
    }
    w.bedienung["mnuEinfügen8"].Enabled = w.ablage.HatEtwas();
    w.bedienung["cmdDelete"].Enabled = w.lage.Aktion == Aktion::GruppeGewählt;
    w.bedienung["btnAuswahlZuBild"].Checked = w.lage.BildAuswahl && w.lage.bAuswahlInDatei;
}

} // namespace kw
