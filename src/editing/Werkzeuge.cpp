#include "editing/Werkzeuge.h"

#include "document/Nachschlagen.h"
#include "editing/Abwahl.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"

#include <algorithm>

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

/// Whether a link has a person to start from: the one that is marked.
bool HatPerson(const Dokument &d, const Auswahl &auswahl, const Leinwandlage &lage) {
    if (!Gültig(d.cboPersonen, lage.PersAuswahl - 1)) return false;
    const auto nr = Nummer(d.cboPersonen.Satz(lage.PersAuswahl - 1));
    const Satzliste &markiert = auswahl.lstMovedPers;
    return markiert.Anzahl() == 1 && Nummer(markiert.Satz(0)) == nr;
}

bool LinktPersonen(int nummer) {
    return nummer == WerkzeugBeziehung || nummer == WerkzeugPartnerschaft || nummer == WerkzeugKind;
}

const Werkzeug *WerkzeugFinden(int nummer) {
    const auto *werkzeug =
        std::find_if(std::begin(Werkzeuge), std::end(Werkzeuge), [&](const Werkzeug &z) { return z.Nummer == nummer; });
    return werkzeug == std::end(Werkzeuge) ? nullptr : werkzeug;
}

/// The links start from the selected person; without one nothing is armed.
bool LinkBeginnen(Werkbank &w, int nummer, bool brauchbar) {
    if (!LinktPersonen(nummer)) return false;
    if (!brauchbar) w.lage.Aktion = Aktion::Nichts;
    else if (nummer == WerkzeugBeziehung) mnuBeziehungErstellen2(w);
    else if (nummer == WerkzeugPartnerschaft) mnuPartnerschaftsLinie(w);
    else mnuKindVon(w);
    return true;
}

} // namespace

std::string WerkzeugName(int nummer) { return "cmdSymb(" + std::to_string(nummer) + ")"; }

bool WerkzeugBrauchbar(int nummer, const Dokument &d, const Auswahl &auswahl, const Leinwandlage &lage) {
    if (!LinktPersonen(nummer)) return true;
    if (IstLink(lage.Aktion)) return WerkzeugGedrückt(nummer, lage); // which ends it
    return HatPerson(d, auswahl, lage) && (nummer != WerkzeugKind || KannKindWerden(d, lage));
}

bool IstBereit(const Leinwandlage &lage) { return lage.BildAuswahl || IstWerkzeug(lage.Aktion); }

bool WerkzeugGedrückt(int nummer, const Leinwandlage &lage) {
    const Werkzeug *werkzeug = WerkzeugFinden(nummer);
    if (!werkzeug || lage.Aktion != werkzeug->Aktion) return false;
    if (werkzeug->PfeilArt) return werkzeug->PfeilArt == lage.PfeilArt;
    return lage.Aktion != Aktion::PersonSetzen || werkzeug->Typ == lage.SymbolTyp;
}

void WerkzeugDrücken(Werkbank &w, int nummer) {
    if (nummer == WerkzeugZwillinge) { // works on what is selected, so it arms and empties nothing. Meant.
        cmdZwillinge(w);
        return;
    }
    Leinwandlage &lage = w.lage;
    const bool brauchbar = WerkzeugBrauchbar(nummer, w.dokument, w.auswahl, lage);
    lage.Aktion = Aktion::PersonSetzen;
    AuswahlAufgeben(w);
    lage.Zeiger = nummer < WerkzeugZwillinge ? Mauszeiger::Person : Mauszeiger::Pfeil;
    if (LinkBeginnen(w, nummer, brauchbar)) return;
    const Werkzeug *werkzeug = WerkzeugFinden(nummer);
    if (!werkzeug) return;
    lage.Aktion = werkzeug->Aktion;
    if (werkzeug->Typ) {
        lage.SymbolTyp = werkzeug->Typ;
        lage.SymbolGröße = werkzeug->Größe;
    }
    if (werkzeug->PfeilArt) lage.PfeilArt = werkzeug->PfeilArt;
    if (nummer == WerkzeugKreislinie) lage.KreisAuswahl = 0;
}

} // namespace kw
