#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

/// What a twin command makes, by `ZwillingsArt` 1 to 6.
struct Zwillingsart {
    int Typ1, Typ2;
    std::string_view Marke;
};
constexpr Zwillingsart Arten[] = {{TypMännlich, TypWeiblich, "2E"}, {TypWeiblich, TypWeiblich, "2E"},
                                  {TypMännlich, TypMännlich, "2E"}, {TypMännlich, TypWeiblich, "1E"},
                                  {TypWeiblich, TypWeiblich, "1E"}, {TypMännlich, TypMännlich, "1E"}};
constexpr double AbstandUnterBalken = 1.5 * GrößeNormal;

constexpr Zweisprachig ZuViele{"Zu viele Personen markiert!", "To many people marked!"};
constexpr Zweisprachig ErstDieEltern{
    "Bitte markieren Sie zunächst die Eltern, indem Sie einen Auswahlrahmen umd diese ziehen!",
    "Please first mark the parents by dragging a selection frame around them!"};

void Melden(Werkbank &w, const Zweisprachig &text) {
    w.benutzer.Fragen(
        {"Kinwright Information ", std::string(text.In(w.ansicht.Sprache)), Knöpfe::Ok, Zeichen::Warnung});
    AuswahlrahmenParken(w.auflagen);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.Hinweis = &Absage::KeinPaar;
}

/// The marks of somebody who is born by a command are all "0", that of the age at death too.
std::string NeuerZwilling(std::string_view nr, int typ, double x, double y, double größe) {
    PersonBau person(NeuePerson(nr, typ, x, y, größe));
    return person.Sterbealter("0").Text();
}

std::string Zwillingsband(const std::array<std::string, 2> &nummern, double x1, double x2, double y) {
    BeziehungBau band;
    return band.Beziehungsart("0").Ende1(x1, y).Ende2(x2, y).PersNr1(nummern[0]).PersNr2(nummern[1]).Text();
}

/// New twins below the partnership at `linie`; both their lines meet the bar at one point.
void Anlegen(Dokument &d, const Zwillingsart &art, int linie, const Ansicht &a, double größe) {
    const std::string plinie(Nummer(d.cboPartnerschaftsLinien.Satz(linie)));
    const PartnerschaftBau bau(d.cboPartnerschaftsLinien.Satz(linie));
    const PartnerschaftSatz balken = bau.Stand();
    const double mitte = (balken.BalkenX1() + balken.BalkenX2()) / 2;
    const double gerastert = Gerastert(mitte, a.Rasterweite);
    const auto aufSeite = [&](double ort, double seite) {
        return Gerundet(ort < 0 || ort > seite ? RasterZwischen(ort, a.Rasterweite, 0, seite) : ort, 1);
    };
    const double y = aufSeite(Gerastert(balken.BalkenY2(), a.Rasterweite) + AbstandUnterBalken, a.SeitenHöhe);
    const std::array x{aufSeite(gerastert + GrößeNormal, a.SeitenBreite),
                       aufSeite(gerastert - GrößeNormal, a.SeitenBreite)};
    Nummernvergabe neue = d.PersNummern();
    const std::array nummern{neue.Nächste(), neue.Nächste()};
    for (size_t i = 0; i < 2; ++i) {
        PersonBau person(NeuerZwilling(nummern[i], i == 0 ? art.Typ1 : art.Typ2, x[i], y, größe));
        d.cboPersonen.Anhängen(person.ElternLinie(plinie).Zwilling(std::string(art.Marke) + nummern[1 - i]).Text());
        KindBau kind;
        kind.KindNr(nummern[i]).Kindart("0").PLinie(plinie).KindX(x[i]).KindY(y);
        d.cboKindlinien.Anhängen(kind.LinieX(mitte).LinieY(balken.BalkenY2Text()).Text());
    }
    if (art.Marke != "1E") return;
    // Twice: identical twins rest on the pair. Meant.
    for (int i = 0; i < 2; ++i) d.cboBeziehungsLinien.Anhängen(Zwillingsband(nummern, x[0], x[1], y));
}

void ZwillingeAnlegen(Werkbank &w, const Zwillingsart &art, std::string_view eltern1, std::string_view eltern2) {
    const int linie = PLinieZwischen(w.dokument, eltern1, eltern2);
    if (linie < 0) return;
    w.lage.PLinieAuswahl = linie;
    w.auflagen.shpMask.Parken();
    Anlegen(w.dokument, art, linie, w.ansicht, w.lage.SymbolGröße);
    AuswahlrahmenParken(w.auflagen);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

/// The guard in front of the twin commands: exactly two persons must be selected.
void ElternPrüfen(Werkbank &w, const Zwillingsart &art) {
    const Satzliste &gewählte = w.auswahl.lstMovedPers;
    if (gewählte.Anzahl() > 2) {
        Melden(w, ZuViele);
    } else if (gewählte.Anzahl() == 2) {
        const std::string a = w.lage.Spur.PersNrA = gewählte.Satz(0); // the lists are emptied on the way
        const std::string b = w.lage.Spur.PersNrB = gewählte.Satz(1);
        w.lage.Aktion = Aktion::ElternPrüfen;
        PartnerschaftAnlegen(w, {PersonMitNr(w.dokument, a), PersonMitNr(w.dokument, b)});
        ZwillingeAnlegen(w, art, a, b);
    } else {
        Melden(w, ErstDieEltern);
    }
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
}

/// The parents' line of two siblings without twins; empty when they are none.
std::string GemeinsameEltern(const Dokument &d, const std::string &eins, const std::string &zwei) {
    std::array<std::string, 2> eltern;
    size_t i = 0;
    for (const std::string &nr : {eins, zwei}) {
        const int person = PersonMitNr(d, nr);
        if (person < 0 || !PersonSatz(d.cboPersonen.Satz(person), Lücken::Leer).Zwilling().empty()) return {};
        const int linie = KindLinieVon(d, nr);
        if (linie < 0) return {};
        eltern[i++] = Getrimmt(KindSatz(d.cboKindlinien.Satz(linie), Lücken::Leer).PLinie());
    }
    return eltern[0] == eltern[1] ? eltern[0] : std::string();
}

} // namespace

void ZwillingeEinfügen(Werkbank &w, int art) {
    constexpr int TypZwilling = 13; // of the command; no record has it
    w.lage.Spur.ZwillingsArt = std::clamp(art, 1, static_cast<int>(std::size(Arten)));
    w.lage.SymbolTyp = TypZwilling;
    w.lage.SymbolGröße = GrößeNormal;
    ElternPrüfen(w, Arten[w.lage.Spur.ZwillingsArt - 1]);
}

void ZwillingeBereit(Werkbank &w) {
    const Satzliste &gewählte = w.auswahl.lstMovedPers;
    const std::string eltern =
        gewählte.Anzahl() == 2 ? GemeinsameEltern(w.dokument, gewählte.Satz(0), gewählte.Satz(1)) : std::string();
    w.lage.Angebot.Zwillinge = !eltern.empty();
    if (!eltern.empty()) w.lage.Zwillingspaar = gewählte.Satz(0) + "_" + gewählte.Satz(1) + "_" + eltern;
}

void ZwillingeErklären(Werkbank &w, std::string_view mark) {
    Dokument &d = w.dokument;
    const std::string paar = w.lage.Zwillingspaar;
    const Felder teile(paar);
    const int linie = PLinieMitNr(d, teile.OderLeer(2));
    const int a = PersonMitNr(d, teile.OderLeer(0));
    const int b = PersonMitNr(d, teile.OderLeer(1));
    if (paar.empty() || linie < 0 || a < 0 || b < 0) return;
    double summe = 0;
    for (const auto &[position, anderer] : {std::pair(a, teile[1]), std::pair(b, teile[0])}) {
        PersonBau person(d.cboPersonen.Satz(position));
        summe += person.Stand().PosX();
        d.cboPersonen.Ersetzen(position, person.Zwilling(std::string(mark).append(anderer)).Text());
    }
    const auto [links, rechts] = PartnerschaftSatz(d.cboPartnerschaftsLinien.Satz(linie), Lücken::Leer).Balkenbereich();
    const double mitte = Gerundet(std::clamp(summe / 2, links, rechts), 2);
    for (const int i : {KindLinieVon(d, teile[0]), KindLinieVon(d, teile[1])})
        if (i >= 0) d.cboKindlinien.Ersetzen(i, KindBau(d.cboKindlinien.Satz(i)).LinieX(mitte).Text());
    w.lage.Angebot.Zwillinge = false;
    AuswahlrahmenParken(w.auflagen);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void cmdZwillinge(Werkbank &w) {
    constexpr int TypZwilling = 8; // of the button; there is no such symbol to place
    Leinwandlage &lage = w.lage;
    const Leinwandlage vorher = lage;
    lage.Aktion = Aktion::PersonSetzen;
    lage.SymbolGröße = GrößeNormal;
    lage.SymbolTyp = TypZwilling;
    w.fenster.PopupÖffnen(Name::mnuZwillinge);
    if (lage.Aktion != Aktion::PersonSetzen) return;
    // A dismissed menu arms nothing: what was selected or armed stays so.
    lage.Aktion = vorher.Aktion;
    lage.SymbolGröße = vorher.SymbolGröße;
    lage.SymbolTyp = vorher.SymbolTyp;
}

} // namespace kw
