#include "editing/Kinder.h"

#include "document/Verweise.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Geometrie.h"
#include "editing/Gesten.h"
#include "editing/Linien.h"
#include "editing/Marker.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <vector>

namespace kw {

namespace {

/// Makes the selected person a child of the partnership under the pointer. Its line hangs on the bar above the
/// child, or on the bar's nearest end. False when there is no such person or line.
bool KindLinieAnlegen(Dokument &d, int plinie, int kind) {
    if (!Gültig(d.cboPartnerschaftsLinien, plinie) || !Gültig(d.cboPersonen, kind)) return false;
    const PartnerschaftSatz balken(d.cboPartnerschaftsLinien.Satz(plinie), Lücken::Leer);
    const std::string nr(Nummer(d.cboPartnerschaftsLinien.Satz(plinie)));
    PersonBau person(d.cboPersonen.Satz(kind));
    d.cboPersonen.Ersetzen(kind, person.ElternLinie(nr).Text());

    const auto [links, rechts] = balken.Balkenbereich();
    const double x = person.Stand().PosX();
    KindBau linie;
    linie.KindNr(person.Stand().Nr()).Kindart("0").PLinie(nr);
    linie.KindX(Gerundet(x, 1)).LinieX(Gerundet(std::clamp(x, links, rechts), 1));
    linie.KindY(person.Stand().PosYText()).LinieY(balken.BalkenY2Text());
    d.cboKindlinien.Anhängen(linie.Text());
    return true;
}

/// Whether the couple of a partnership are that person, or come from it.
bool StammtVon(const Dokument &d, int plinie, int person) {
    if (!Gültig(d.cboPartnerschaftsLinien, plinie) || !Gültig(d.cboPersonen, person)) return false;
    std::vector<int> offen{plinie};
    std::unordered_set<int> gesehen{plinie};
    while (!offen.empty()) {
        const PartnerschaftSatz linie(d.cboPartnerschaftsLinien.Satz(offen.back()), Lücken::Leer);
        offen.pop_back();
        for (const auto nr : {linie.PersNr1(), linie.PersNr2()}) {
            const int i = PersonMitNr(d, nr);
            if (i == person) return true;
            if (i < 0) continue;
            const int eltern = PLinieMitNr(d, PersonSatz(d.cboPersonen.Satz(i), Lücken::Leer).ElternLinie());
            if (eltern >= 0 && gesehen.insert(eltern).second) offen.push_back(eltern);
        }
    }
    return false;
}

double PosY(const Dokument &d, int person) { return PersonSatz(d.cboPersonen.Satz(person), Lücken::Leer).PosY(); }

double PosX(const Dokument &d, int person) { return PersonSatz(d.cboPersonen.Satz(person), Lücken::Leer).PosX(); }

/// The other twin of a person; empty when it has none.
std::string_view ZwillingVon(const Dokument &d, int person) {
    return PersonSatz(d.cboPersonen.Satz(person), Lücken::Leer).ZwillingNr();
}

/// The middle between a person and its twin; nothing when it has none that exists.
std::optional<double> ZwillingsMitte(const Dokument &d, const Bezüge &bezüge, int person) {
    if (person < 0) return std::nullopt;
    const auto nr = ZwillingVon(d, person);
    const int anderer = nr.empty() ? -1 : bezüge.Person(nr);
    if (anderer < 0) return std::nullopt;
    return (PosX(d, person) + PosX(d, anderer)) / 2;
}

/// Where the line of a child can hang; where it hangs when its parents' line doesn't exist.
std::pair<double, double> BereichVon(const Dokument &d, const Bezüge &bezüge, const KindSatz &kindlinie) {
    const int linie = bezüge.PLinie(kindlinie.PLinie());
    if (linie < 0) return {kindlinie.LinieX(), kindlinie.LinieX()};
    return PartnerschaftSatz(d.cboPartnerschaftsLinien.Satz(linie), Lücken::Leer).Balkenbereich();
}

} // namespace

bool KindLinieGetroffen(std::string_view satz, double x, double y, double auswahlGröße) {
    const KindSatz linie(satz);
    return linie.Vollständig() &&
           SegmentGetroffen(linie.KindX(), linie.KindY() - auswahlGröße / 2, linie.LinieX(), linie.LinieY(), x, y);
}

int KindLinieBei(const Dokument &d, double x, double y, double auswahlGröße) {
    return ErsterSatz(d.cboKindlinien,
                      [&](const std::string &satz) { return KindLinieGetroffen(satz, x, y, auswahlGröße); });
}

bool KindLinieTreffer(Werkbank &w, double x, double y) {
    const int i = KindLinieBei(w.dokument, x, y, w.lage.AuswahlGröße);
    if (i >= 0) KindLinieFassen(w, i);
    return i >= 0;
}

void KindLinieFassen(Werkbank &w, int position) {
    w.lage.KindAuswahl = position;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.Aktion = Aktion::KindlinieGewählt;
    w.fenster.Vorschau();
}

void KindLinieLoslassen(Werkbank &w, const Ereignis &) { w.lage.Angebot.Löschen = true; }

bool KannKindWerden(const Dokument &d, const Leinwandlage &lage) {
    const int person = lage.PersAuswahl - 1;
    return Gültig(d.cboPersonen, person) && ZahlLesen(lage.PersNr) >= 1 &&
           !PersonSatz(d.cboPersonen.Satz(person), Lücken::Leer).HatEltern();
}

void mnuKindVon(Werkbank &w) {
    RubberStart(w);
    w.lage.Aktion = Aktion::KindZiehen;
    w.lage.PLinieUnterMaus = false;
    w.fenster.Vorschau(); // the person that the line starts from shows
}

void KindLinkZiehen(Werkbank &w, const Ereignis &e) {
    // From the top of the symbol.
    w.auflagen.Line2.Legen(w.lage.GummiX, w.lage.GummiY - w.lage.SymbolGröße / 2, e.X, e.Y);
    w.auflagen.Line2.Visible = true;
    const bool vorher = w.lage.PLinieUnterMaus;
    const int vorige = w.lage.PLinieAuswahl;
    w.lage.PLinieUnterMaus = PLinieTreffer(w, e.X, e.Y);
    if (w.lage.PLinieUnterMaus != vorher || (vorher && w.lage.PLinieAuswahl != vorige)) w.fenster.Vorschau();
}

void KindLinkZeigen(Werkbank &w, int plinie, const Ereignis &e) {
    KindLinkZiehen(w, e);
    PLinieFassen(w, plinie);
    w.lage.PLinieUnterMaus = true;
    w.fenster.Vorschau();
}

bool KannKindSein(const Dokument &d, int plinie, int person) {
    return Gültig(d.cboPartnerschaftsLinien, plinie) && !StammtVon(d, plinie, person);
}

bool KindLinkBeenden(Werkbank &w, const Ereignis &) {
    if (w.lage.Aktion != Aktion::KindZiehen) return false;
    const int plinie = w.lage.PLinieUnterMaus ? w.lage.PLinieAuswahl : -1;
    const int kind = w.lage.PersAuswahl - 1;
    const bool kreis = StammtVon(w.dokument, plinie, kind);
    const bool angelegt = !kreis && KindLinieAnlegen(w.dokument, plinie, kind);
    if (!angelegt) w.lage.Hinweis = kreis ? &Absage::KeinKreis : &Absage::KeineEltern;
    w.lage.Aktion = Aktion::Nichts; // before the redraw, which marks the bar under the pointer
    w.lage.PLinieUnterMaus = false;
    w.lage.PersRecord.clear();
    LinkAufräumen(w.lage, w.auflagen);
    w.auswahl.lstMovedPLines.Leeren();
    MarkerEntfernen(w);
    if (angelegt) w.fenster.Sichern();
    return true;
}

void KindArtSetzen(Werkbank &w, std::string_view art) {
    Satzliste &linien = w.dokument.cboKindlinien;
    const int i = w.lage.KindAuswahl;
    if (!Gültig(linien, i)) return;
    KindBau linie(linien.Satz(i));
    const std::string alt(linie.Stand().Kindart());
    linien.Ersetzen(i, linie.Kindart(art == "A" ? "1" : art == "P" ? "2" : "0").Text());
    w.lage.Aktion = Aktion::Nichts;
    if (linie.Stand().Kindart() != alt) w.fenster.Sichern();
    w.fenster.Vorschau();
}

void KindLinieEntfernen(Werkbank &w) {
    if (!Gültig(w.dokument.cboKindlinien, w.lage.KindAuswahl)) return;
    KindlinieEntfernen(w.dokument, w.lage.KindAuswahl);
    w.lage.KindAuswahl = -1;
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.lage.Angebot.Löschen = false;
    w.fenster.Vorschau();
}

void KinderAnpassen(Dokument &d, const Bezüge &bezüge, std::string_view partnerschaft) {
    const PartnerschaftSatz balken(partnerschaft);
    const auto [links, rechts] = balken.Balkenbereich();
    for (const int i : bezüge.KinderVon(balken.Nr())) {
        KindBau linie(d.cboKindlinien.Satz(i));
        const auto mitte = ZwillingsMitte(d, bezüge, bezüge.Person(linie.Stand().KindNr()));
        const double x = mitte.value_or(linie.Stand().KindX());
        linie.LinieX(Gerundet(std::clamp(x, links, rechts), 2)).LinieY(balken.BalkenY2());
        d.cboKindlinien.Ersetzen(i, linie.TextOhneBlanks());
    }
}

void KinderMitbewegen(Dokument &d, const Gruppenzug &zug) {
    const Bezüge bezüge(d);
    for (int i = 0; i < d.cboKindlinien.Anzahl(); ++i) {
        const KindSatz linie(d.cboKindlinien.Satz(i));
        const int person = bezüge.Person(linie.KindNr());
        if (!linie.Vollständig() || person < 0) continue;
        const int balken = bezüge.PLinie(linie.PLinie());
        const PartnerschaftSatz eltern(balken < 0 ? std::string_view() : d.cboPartnerschaftsLinien.Satz(balken),
                                       Lücken::Leer);
        const auto zwilling = ZwillingVon(d, person);
        const bool selbst = zug.Nimmt(linie.KindNr());
        const int mit = selbst + zug.Nimmt(eltern.PersNr1()) + zug.Nimmt(eltern.PersNr2()) + zug.Nimmt(zwilling);
        if (mit == 0) continue;
        KindBau neu(d.cboKindlinien.Satz(i));
        if (mit == (zwilling.empty() ? 3 : 4)) {
            neu.Verschieben(zug.DeltaX, zug.DeltaY);
        } else {
            if (selbst) neu.KindX(Gerundet(PosX(d, person), 2)).KindY(Gerundet(PosY(d, person), 2));
            const auto [links, rechts] = BereichVon(d, bezüge, linie);
            const double x = ZwillingsMitte(d, bezüge, person).value_or(neu.Stand().KindX());
            neu.LinieX(Gerundet(std::clamp(x, links, rechts), 2));
            if (balken >= 0) neu.LinieY(eltern.BalkenY2());
        }
        d.cboKindlinien.Ersetzen(i, neu.Text());
    }
}

void KindlinieNachziehen(Dokument &d, const Bezüge &bezüge, std::string_view nr, double x, double y) {
    const int i = bezüge.Kindlinie(nr);
    if (i < 0 || !KindSatz(d.cboKindlinien.Satz(i)).Vollständig()) return;
    KindBau linie(d.cboKindlinien.Satz(i));
    const auto [links, rechts] = BereichVon(d, bezüge, linie.Stand());
    linie.KindX(Gerundet(x, 2)).KindY(Gerundet(y, 2)).LinieX(Gerundet(std::clamp(x, links, rechts), 2));
    d.cboKindlinien.Ersetzen(i, linie.TextOhneBlanks());

    // Twins' lines meet at one point of the bar.
    const int person = bezüge.Person(nr);
    const auto mitte = ZwillingsMitte(d, bezüge, person);
    if (!mitte) return;
    for (const int kind : {i, bezüge.Kindlinie(ZwillingVon(d, person))}) {
        if (kind < 0) continue;
        KindBau zwilling(d.cboKindlinien.Satz(kind));
        zwilling.LinieX(Gerundet(std::clamp(*mitte, links, rechts), 2));
        d.cboKindlinien.Ersetzen(kind, zwilling.TextOhneBlanks());
    }
}

} // namespace kw
