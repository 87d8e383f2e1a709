#include "editing/Kinder.h"

#include "document/Verweise.h"
#include "editing/Marker.h"
#include "editing/Satzbau.h"

#include <algorithm>

namespace kw {

std::pair<double, double> Balkenbereich(std::string_view partnerschaft) {
    const Felder feld(partnerschaft);
    return std::minmax(
        {ZahlLesen(feld.OderLeer(PLinieFeld::BalkenX1)), ZahlLesen(feld.OderLeer(PLinieFeld::BalkenX2))});
}

bool KindLinieAnlegen(Werkbank &w) {
    Dokument &d = w.dokument;
    const int linie = w.lage.PLinieAuswahl;
    const int kind = w.lage.PersAuswahl - 1;
    if (linie < 0 || linie >= d.cboPartnerschaftsLinien.Anzahl()) return false;
    if (kind < 0 || kind >= d.cboPersonen.Anzahl()) return false;
    const std::string &partnerschaft = d.cboPartnerschaftsLinien.Satz(linie);
    const std::string plinie = partnerschaft.substr(0, 3);
    Feldbau person(d.cboPersonen.Satz(kind), PersonFeld::Anzahl);
    d.cboPersonen.Ersetzen(kind, person.Setzen(PersonFeld::ElternLinie, plinie).Text());

    const auto [links, rechts] = Balkenbereich(partnerschaft);
    const double x = person.Zahl(PersonFeld::PosX);
    Feldbau satz("", KindFeld::Anzahl);
    satz.Setzen(KindFeld::KindNr, person.Feld(PersonFeld::Nr)).Setzen(KindFeld::Kindart, "0");
    satz.Setzen(KindFeld::PLinie, plinie)
        .Setzen(KindFeld::KindX, Gerundet(x, 1))
        .Setzen(KindFeld::LinieX, Gerundet(std::clamp(x, links, rechts), 1))
        .Setzen(KindFeld::KindY, person.Feld(PersonFeld::PosY))
        .Setzen(KindFeld::LinieY, Felder(partnerschaft).OderLeer(PLinieFeld::BalkenY2));
    d.cboKindlinien.Anhängen(satz.Text());
    return true;
}

void KindArtSetzen(Werkbank &w, std::string_view art) {
    Satzliste &linien = w.dokument.cboKindlinien;
    const int i = w.lage.KindAuswahl;
    if (i < 0 || i >= linien.Anzahl()) return;
    Feldbau satz(linien.Satz(i), KindFeld::Anzahl);
    const std::string alt(satz.Feld(KindFeld::Kindart));
    linien.Ersetzen(i, satz.Setzen(KindFeld::Kindart, art == "A" ? "1" : art == "P" ? "2" : "0").Text());
    w.lage.Aktion = Aktion::Nichts;
    if (satz.Feld(KindFeld::Kindart) != alt) w.fenster.Sichern();
    w.fenster.Vorschau();
}

void KindLinieEntfernen(Werkbank &w) {
    if (!Gültig(w.dokument.cboKindlinien, w.lage.KindAuswahl)) return;
    KindlinieEntfernen(w.dokument, w.lage.KindAuswahl);
    w.lage.KindAuswahl = -1;
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.bedienung["mnuLöschen1"].Enabled = false;
    w.fenster.Vorschau();
}

} // namespace kw
