#include "editing/Gruppe.h"

#include "document/Verweise.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace kw {

namespace {

/// Kinds without a number, in the order in which a group moves and deletes them.
constexpr const Gruppenart *Arten[] = {&KreislinienInGruppen, &TexteInGruppen, &PfeileInGruppen};

Auswahlkasten Rahmenkasten(const Auflagen &auflagen) {
    const Auflagenform &box = auflagen.shpBox;
    return {box.Left, box.Top, box.Left + box.Width, box.Top + box.Height};
}

/// Enters the positions of what lies in the marquee.
void Eintragen(const Gruppenart &art, const Dokument &d, const Auswahlkasten &kasten, double raster, Auswahl &auswahl) {
    const Satzliste &speicher = d.*art.Speicher;
    Satzliste &gewählt = auswahl.*art.Gewählt;
    gewählt.Leeren();
    for (int i = 0; i < speicher.Anzahl(); ++i)
        if (art.ImKasten(speicher.Satz(i), kasten, raster)) gewählt.Anhängen(std::to_string(i + art.Erste));
}

/// The same for kinds that have a number.
void NummernEintragen(bool (*imKasten)(std::string_view, const Auswahlkasten &), const Satzliste &speicher,
                      const Auswahlkasten &kasten, Satzliste &gewählt) {
    gewählt.Leeren();
    for (const auto &satz : speicher)
        if (imKasten(satz, kasten)) gewählt.Anhängen(satz.substr(0, satz.find('_')));
}

void Mitbewegen(const Gruppenart &art, Dokument &d, const Auswahl &auswahl, double dx, double dy) {
    Satzliste &speicher = d.*art.Speicher;
    for (const auto &eintrag : auswahl.*art.Gewählt) {
        const int i = PositionAus(eintrag, speicher, art.Erste);
        if (i >= 0) speicher.Ersetzen(i, art.Verschoben(speicher.Satz(i), dx, dy));
    }
}

/// From the list's last entry on, so that the positions before it stay right.
void Entfernen(const Gruppenart &art, Dokument &d, Auswahl &auswahl) {
    Satzliste &gewählt = auswahl.*art.Gewählt;
    for (int e = gewählt.Anzahl() - 1; e >= 0; --e) {
        const int i = PositionAus(gewählt.Satz(e), d.*art.Speicher, art.Erste);
        if (i >= 0) (d.*art.Speicher).Entfernen(i);
    }
    gewählt.Leeren();
}

/// The last one first, as their numbers become free.
void PersonenEntfernen(Dokument &d, const Auswahl &auswahl) {
    const Satzliste &personen = auswahl.lstMovedPers;
    std::vector<std::string> nummern(personen.begin(), personen.end());
    std::reverse(nummern.begin(), nummern.end());
    PersonenEntfernen(d, nummern);
}

/// Those that no partner has taken along.
void BalkenEntfernen(Dokument &d, const Auswahl &auswahl) {
    for (const auto &nr : auswahl.lstMovedPLines)
        if (const int i = PLinieMitNr(d, nr); i >= 0) PartnerschaftEntfernen(d, i);
}

/// A way of whole raster steps, as near to `weg` as the page lets a frame go that reaches from `von` to `bis`. What
/// lies beyond the page already may come in, and go no further.
double Rasterweg(double weg, double raster, double von, double bis, double seite) {
    return RasterZwischen(weg, raster, std::min(0.0, -von), std::max(0.0, seite - bis));
}

} // namespace

bool RahmenBeginnen(Werkbank &w, const Ereignis &e) {
    w.lage.Aktion = Aktion::RahmenZiehen;
    w.lage.AnkerX = Raster(w.ansicht, e.X);
    w.lage.AnkerY = Raster(w.ansicht, e.Y);
    if (!e.Rechts()) return true;
    w.lage.Angebot.EinfügenImKontext = true;
    PopupÖffnen(w, Name::mnuSymbolEinfügen);
    if (w.lage.Aktion == Aktion::RahmenZiehen) RahmenAuswählen(w); // dismissed: the end of an empty marquee
    return true;
}

void RahmenZiehen(Werkbank &w, const Ereignis &e) {
    w.auflagen.shpBox.Legen(std::min(w.lage.AnkerX, e.X), std::min(w.lage.AnkerY, e.Y), std::fabs(e.X - w.lage.AnkerX),
                            std::fabs(e.Y - w.lage.AnkerY));
}

void RahmenAuswählen(Werkbank &w) {
    const Dokument &d = w.dokument;
    Auswahl &a = w.auswahl;
    const Auswahlkasten kasten = Rahmenkasten(w.auflagen);
    NummernEintragen(PersonImKasten, d.cboPersonen, kasten, a.lstMovedPers);
    ZwillingeBereit(w);
    NummernEintragen(BalkenImKasten, d.cboPartnerschaftsLinien, kasten, a.lstMovedPLines);
    for (const Gruppenart *art : Arten) Eintragen(*art, d, kasten, w.ansicht.Rasterweite, a);

    const bool etwas = !a.Leer();
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = etwas;
    w.lage.Aktion = etwas ? Aktion::GruppeGewählt : Aktion::Nichts;
    if (!etwas) AuswahlrahmenParken(w.auflagen);
    w.fenster.Vorschau();
}

void RahmenLoslassen(Werkbank &w, const Ereignis &e) {
    RahmenAuswählen(w);
    if (w.lage.Aktion == Aktion::Nichts && HatSichBewegt(w.lage, e)) w.lage.Hinweis = &Absage::LeererRahmen;
}

bool ImRahmen(const Auflagen &auflagen, double x, double y) { return Rahmenkasten(auflagen).Enthält(x, y); }

bool GruppeFassen(Werkbank &w, const Ereignis &e) {
    if (w.lage.Aktion != Aktion::GruppeGewählt) return false;
    const Auflagenform &rahmen = w.auflagen.shpBox;
    w.lage.AltX = Gerundet(rahmen.Left, 1);
    w.lage.AltY = Gerundet(rahmen.Top, 1);
    if (!ImRahmen(w.auflagen, e.X, e.Y)) { // the press only ends the selection
        AuswahlrahmenParken(w.auflagen);
        MarkierungsListBoxenLöschen(w.auswahl, w.lage);
        w.lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
        return true;
    }
    RahmenFassen(w, e);
    return true;
}

void RahmenFassen(Werkbank &w, const Ereignis &e) {
    w.lage.Zeiger = Mauszeiger::Verschieben;
    w.lage.DeltaX = w.lage.DeltaY = 0;
    w.lage.VersatzX = e.X - w.auflagen.shpBox.Left;
    w.lage.VersatzY = e.Y - w.auflagen.shpBox.Top;
    if (!e.Rechts()) return;
    w.lage.Zeiger = Mauszeiger::Pfeil; // no drag follows
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    PopupÖffnen(w, Name::mnuAuswahlBox);
}

void GruppeZiehen(Werkbank &w, const Ereignis &e) {
    Leinwandlage &lage = w.lage;
    Auflagenform &rahmen = w.auflagen.shpBox;
    const double links = rahmen.Left - lage.DeltaX; // where it was taken
    const double oben = rahmen.Top - lage.DeltaY;
    const double raster = w.ansicht.Rasterweite;
    lage.DeltaX = Rasterweg(e.X - lage.VersatzX - links, raster, links, links + rahmen.Width, w.ansicht.SeitenBreite);
    lage.DeltaY = Rasterweg(e.Y - lage.VersatzY - oben, raster, oben, oben + rahmen.Height, w.ansicht.SeitenHöhe);
    rahmen.Left = links + lage.DeltaX;
    rahmen.Top = oben + lage.DeltaY;
}

void GruppeZurücksetzen(Werkbank &w) {
    w.auflagen.shpBox.Left -= std::exchange(w.lage.DeltaX, 0);
    w.auflagen.shpBox.Top -= std::exchange(w.lage.DeltaY, 0);
}

void GruppeLoslassen(Werkbank &w, const Ereignis &) {
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    const double dx = w.lage.DeltaX;
    const double dy = w.lage.DeltaY;
    if (dx == 0 && dy == 0) return;
    if (!w.auswahl.HatKopierbares()) { // bars without their partners stay
        w.lage.Hinweis = &Absage::NurBalken;
        return GruppeZurücksetzen(w);
    }
    PersonenMitbewegen(w.dokument, {NummernIn(w.auswahl.lstMovedPers), dx, dy});
    for (const Gruppenart *art : Arten) Mitbewegen(*art, w.dokument, w.auswahl, dx, dy);
    MarkerParken(w.lage, w.auflagen);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

void AuswahlLöschen(Werkbank &w) {
    const int vorher = Satzzahl(w.dokument);
    for (const Gruppenart *art : Arten) Entfernen(*art, w.dokument, w.auswahl);
    PositionenVergessen(w.lage);
    PersonenEntfernen(w.dokument, w.auswahl);
    BalkenEntfernen(w.dokument, w.auswahl);
    w.auflagen.shpMask.Parken();
    AuswahlrahmenParken(w.auflagen);
    if (Satzzahl(w.dokument) < vorher) w.fenster.Sichern();
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::Nichts;
}

void mnuLöschen1(Werkbank &w) {
    struct Löschweg {
        kw::Aktion Aktion;
        void (*Löschen)(Werkbank &);
    };
    static constexpr Löschweg Wege[] = {
        {Aktion::KindlinieGewählt, KindLinieEntfernen},
        {Aktion::KreisGewählt, KreisLinieLöschen},
        {Aktion::BeziehungGewählt, BezLinieLöschen},
        {Aktion::PLinieGewählt, PLinieLöschen},
        {Aktion::TextGewählt, TextLöschen},
        {Aktion::PfeilGewählt, PfeilLöschen},
    };
    w.lage.Info.Visible = false;
    const auto *weg =
        std::find_if(std::begin(Wege), std::end(Wege), [&](const Löschweg &g) { return g.Aktion == w.lage.Aktion; });
    if (weg != std::end(Wege)) {
        weg->Löschen(w);
    } else {
        w.lage.Aktion = Aktion::GruppeGewählt;
        AuswahlLöschen(w);
        MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    }
    w.lage.Angebot.Löschen = false;
}

void mnuSymbolLöschen(Werkbank &w) {
    w.lage.Info.Visible = false;
    if (w.lage.ElementArt == "Textbox") LetzteTextboxLöschen(w);
    else PersonLöschen(w);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    MarkerEntfernen(w);
    w.lage.Aktion = Aktion::Nichts;
    w.auflagen.shpMask.Visible = false;
    w.lage.Angebot.Löschen = false;
}

} // namespace kw
