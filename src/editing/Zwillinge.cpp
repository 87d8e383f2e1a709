#include "document/Texte.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Satzbau.h"
#include "editing/Verbindungen.h"

#include <algorithm>
#include <array>
#include <span>

namespace kw {

namespace {

/// What a twin command makes, by `ZwillingsArt` 1 to 6.
struct Zwillingsart {
    std::string_view Typ1, Typ2;
    std::string_view Marke;
};
constexpr Zwillingsart Arten[] = {{"1", "2", "2E"}, {"2", "2", "2E"}, {"1", "1", "2E"},
                                  {"1", "2", "1E"}, {"2", "2", "1E"}, {"1", "1", "1E"}};
constexpr double AbstandUnterBalken = 1.5 * GrößeNormal;

void Melden(Werkbank &w, const char *deutsch, const char *englisch) {
    w.benutzer.Fragen({"Kinwright Information ", w.IstDeutsch() ? deutsch : englisch, Knöpfe::Ok, Zeichen::Warnung});
    AuswahlrahmenParken(w);
    MarkierungsListBoxenLöschen(w);
}

/// The first partnership between the two, in either order; -1 none.
int PartnerschaftZwischen(const Dokument &d, std::string_view a, std::string_view b) {
    const auto &linien = d.cboPartnerschaftsLinien;
    for (int i = 0; i < linien.Anzahl(); ++i) {
        const Felder feld(linien.Satz(i));
        const auto eins = feld.OderLeer(PLinieFeld::PersNr1);
        const auto zwei = feld.OderLeer(PLinieFeld::PersNr2);
        if ((eins == a && zwei == b) || (eins == b && zwei == a)) return i;
    }
    return -1;
}

struct Zwilling {
    std::string Nr;
    std::string_view Typ;
    double X;
};

/// New twins below the partnership at `linie`; both their lines meet the bar at one point.
void Anlegen(Werkbank &w, int linie) {
    Dokument &d = w.dokument;
    const Zwillingsart &art = Arten[w.lage.ZwillingsArt - 1];
    const std::string plinie = d.cboPartnerschaftsLinien.Satz(linie).substr(0, 3);
    const Feldbau balken(d.cboPartnerschaftsLinien.Satz(linie), PLinieFeld::Anzahl);
    const double mitte = (balken.Zahl(PLinieFeld::BalkenX1) + balken.Zahl(PLinieFeld::BalkenX2)) / 2;
    const double raster = w.ansicht.Rasterweite;
    const double gerastert = Gerastert(mitte, raster);
    const double y = Gerundet(Gerastert(balken.Zahl(PLinieFeld::BalkenY2), raster) + AbstandUnterBalken, 1);
    w.auflagen.shpMask.Parken();

    std::string nr1 = d.NeuePersNr();
    std::string nr2 = d.lstGelöschtePersNr.Leer() ? Dreistellig(d.cboPersonen.Anzahl() + 2) : d.NeuePersNr();
    const std::array<Zwilling, 2> paar{
        {{nr1, art.Typ1, Gerundet(gerastert + GrößeNormal, 1)}, {nr2, art.Typ2, Gerundet(gerastert - GrößeNormal, 1)}}};
    const std::string yText = ZahlSchreiben(y);
    for (size_t i = 0; i < 2; ++i) {
        const Zwilling &z = paar[i];
        const std::string x = ZahlSchreiben(z.X);
        d.cboPersonen.Anhängen(z.Nr + "_" + std::string(z.Typ) + "_" + x + "_" + yText + "_" +
                               ZahlSchreiben(w.lage.SymbolGröße) + "_0_0_0_0____" + plinie + "_" +
                               std::string(art.Marke) + paar[1 - i].Nr);
        d.cboKindlinien.Anhängen(z.Nr + "_0_" + plinie + "_" + x + "_" + ZahlSchreiben(mitte) + "_" + yText + "_" +
                                 std::string(balken.Feld(PLinieFeld::BalkenY2)));
    }
    if (art.Marke != "1E") return;
    const std::string band = "_0_" + ZahlSchreiben(paar[0].X) + "_" + yText + "_" + ZahlSchreiben(paar[1].X) + "_" +
                             yText + "_" + nr1 + "_" + nr2;
    for (int i = 0; i < 2; ++i) d.cboBeziehungsLinien.Anhängen(band); // twice: identical twins rest on the pair. Meant.
}

void ZwillingeAnlegen(Werkbank &w) {
    const int linie = PartnerschaftZwischen(w.dokument, w.lage.PersNrA, w.lage.PersNrB);
    if (linie < 0) return;
    w.lage.PLinieAuswahl = linie;
    Anlegen(w, linie);
    AuswahlrahmenParken(w);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

/// The guard in front of the twin commands: exactly two persons must be selected.
void ElternPrüfen(Werkbank &w) {
    const Satzliste &gewählte = w.auswahl.lstMovedPers;
    if (gewählte.Anzahl() > 2) {
        Melden(w, "Zu viele Personen markiert!", "To many people marked!");
    } else if (gewählte.Anzahl() == 2) {
        w.lage.PersNrA = gewählte.Satz(0);
        w.lage.PersNrB = gewählte.Satz(1);
        w.lage.Aktion = Aktion::ElternPrüfen;
        PartnerschaftAnlegen(w);
        ZwillingeAnlegen(w);
    } else {
        Melden(w, "Bitte markieren Sie zunächst die Eltern, indem Sie einen Auswahlrahmen umd diese ziehen!",
               "Please first mark the parents by dragging a selection frame around them!");
    }
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
}

} // namespace

void ZwillingeEinfügen(Werkbank &w, int art) {
    constexpr int TypZwilling = 13; // of the command; no record has it
    w.lage.ZwillingsArt = std::clamp(art, 1, static_cast<int>(std::size(Arten)));
    w.lage.SymbolTyp = TypZwilling;
    w.lage.SymbolGröße = GrößeNormal;
    ElternPrüfen(w);
}

void ZwillingeBereit(Werkbank &w) {
    const Dokument &d = w.dokument;
    Bedienelement &angebot = w.bedienung["mnuMakeTwins"];
    angebot.Visible = false;
    const Satzliste &gewählte = w.auswahl.lstMovedPers;
    if (gewählte.Anzahl() != 2) return;
    std::array<std::string, 2> eltern;
    for (int i = 0; i < 2; ++i) {
        const std::string &nr = gewählte.Satz(i);
        const int person = PersonMitNr(d, nr);
        if (person < 0 || !Felder(d.cboPersonen.Satz(person)).OderLeer(PersonFeld::Zwilling).empty()) return;
        const int linie = KindLinieVon(d, nr);
        if (linie < 0) return;
        eltern[static_cast<size_t>(i)] = Getrimmt(Felder(d.cboKindlinien.Satz(linie)).OderLeer(KindFeld::PLinie));
    }
    if (eltern[0].empty() || eltern[0] != eltern[1]) return;
    angebot.Visible = true;
    w.lage.Zwillingspaar = gewählte.Satz(0) + "_" + gewählte.Satz(1) + "_" + eltern[0];
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
    for (const auto &[person, anderer] : {std::pair(a, teile[1]), std::pair(b, teile[0])}) {
        Feldbau satz(d.cboPersonen.Satz(person), PersonFeld::Anzahl);
        summe += satz.Zahl(PersonFeld::PosX);
        satz.Setzen(PersonFeld::Zwilling, std::string(mark).append(anderer));
        d.cboPersonen.Ersetzen(person, satz.Text());
    }
    const auto [links, rechts] = Balkenbereich(d.cboPartnerschaftsLinien.Satz(linie));
    const double mitte = Gerundet(std::clamp(summe / 2, links, rechts), 2);
    for (const int i : {KindLinieVon(d, teile[0]), KindLinieVon(d, teile[1])}) {
        if (i < 0) continue;
        Feldbau satz(d.cboKindlinien.Satz(i), KindFeld::Anzahl);
        d.cboKindlinien.Ersetzen(i, satz.Setzen(KindFeld::LinieX, mitte).Text());
    }
    w.bedienung["mnuMakeTwins"].Visible = false;
    AuswahlrahmenParken(w);
    MarkierungsListBoxenLöschen(w);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

} // namespace kw
