#include "editing/Leinwand.h"

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Kinder.h"
#include "editing/Marker.h"
#include "editing/Rahmenauswahl.h"
#include "editing/Treffer.h"
#include "editing/Verbindungen.h"

namespace kw {

double Leinwand::Raster(double wert) const { return Gerastert(wert, w.ansicht.Rasterweite); }

double Leinwand::RasterZehntel(double wert) const { return Gerundet(Raster(wert), 1); }

void Leinwand::PopupÖffnen(std::string_view menü) {
    lage.Gedrückt = false; // what is picked there may arm a tool, which waits for the next press
    w.fenster.PopupÖffnen(menü);
}

/// The order decides what a press means: what is armed or selected comes before what lies under the pointer, and
/// of that circle lines come first, then persons, lines, arrows, text boxes.
void Leinwand::MouseDown(int taste, double x, double y) {
    static constexpr Schritt Schritte[] = {
        &Leinwand::Zurücksetzen,    &Leinwand::BildBeginnen,  &Leinwand::PfeilBeginnen,  &Leinwand::TextSetzen,
        &Leinwand::OrtMerken,       &Leinwand::KreisBeginnen, &Leinwand::LegendeFassen,  &Leinwand::KreisTreffen,
        &Leinwand::KreisGewählt,    &Leinwand::GruppeFassen,  &Leinwand::TextWarGefasst, &Leinwand::KindLinkBeenden,
        &Leinwand::MenüWarOffen,    &Leinwand::LinkBeenden,   &Leinwand::Setzen,         &Leinwand::PersonTreffen,
        &Leinwand::LinieWarGewählt, &Leinwand::LinieTreffen,  &Leinwand::TextTreffen,    &Leinwand::RahmenBeginnen};
    const Ereignis e{taste, x, y};
    for (const Schritt schritt : Schritte)
        if ((this->*schritt)(e)) return;
}

bool Leinwand::Zurücksetzen(const Ereignis &e) {
    // The last release got lost; a dragged circle line has moved already.
    if (std::exchange(lage.Gedrückt, true) && lage.Aktion == Aktion::KreisGewählt) KreisLoslassen(e);
    auflagen.Line5.Visible = false;
    w.bedienung["mnuLöschen1"].Enabled = false;
    auflagen.shpMask.Visible = false;
    lage.Info.Visible = false;
    w.bedienung["mnustr14"].Visible = false;
    return false;
}

/// A region of the picture can begin anywhere, whatever lies there.
bool Leinwand::BildBeginnen(const Ereignis &e) {
    if (!lage.BildAuswahl) return false;
    lage.Aktion = Aktion::RahmenZiehen;
    lage.AnkerX = Raster(e.X);
    lage.AnkerY = Raster(e.Y);
    return true;
}

bool Leinwand::PfeilBeginnen(const Ereignis &e) {
    if (lage.Aktion != Aktion::PfeilZeichnen) return false;
    lage.AnkerX = Raster(e.X);
    lage.AnkerY = Raster(e.Y);
    auflagen.Line5.Legen(lage.AnkerX, lage.AnkerY, lage.AnkerX, lage.AnkerY); // not where the last arrow was
    auflagen.Line5.Visible = true;
    return true;
}

bool Leinwand::TextSetzen(const Ereignis &e) {
    if (lage.Aktion != Aktion::TextGesetzt) return false;
    lage.AuswahlX = RasterZehntel(e.X);
    lage.AuswahlY = RasterZehntel(e.Y);
    w.fenster.FormÖffnen("frmKommentar");
    lage.Zeiger = Mauszeiger::Pfeil;
    return true;
}

bool Leinwand::OrtMerken(const Ereignis &e) {
    lage.LetztX = lage.DownX = Gerundet(e.X, 2);
    lage.LetztY = lage.DownY = Gerundet(e.Y, 2);
    return false;
}

bool Leinwand::KreisBeginnen(const Ereignis &e) {
    if (lage.Aktion != Aktion::KreisZeichnen) return false;
    lage.PunktListe = ZahlSchreiben(e.X) + "^" + ZahlSchreiben(e.Y) + "_";
    return true;
}

/// By the place of the last move, not of the press. Meant.
bool Leinwand::LegendeUnterMaus() const {
    const Dokument &d = dokument;
    return w.bedienung["btnLegende"].Checked && Kleiner(d.LegendeX, lage.MausX) && Kleiner(d.LegendeY, lage.MausY) &&
           Kleiner(lage.MausX, d.LegendeX + w.legende.LegendeBreite) &&
           Kleiner(lage.MausY, d.LegendeY + w.legende.LegendeHoehe);
}

bool Leinwand::LegendeFassen(const Ereignis &e) {
    if (!LegendeUnterMaus()) return false;
    LinkAbbrechen();
    if (lage.Aktion == Aktion::GruppeGewählt) {
        AuswahlrahmenParken(w);
        MarkierungsListBoxenLöschen(w);
    }
    lage.Aktion = Aktion::LegendeGefasst;
    Auflagenform &maske = auflagen.shpMask;
    maske.Shape = Umriss::Rechteck;
    maske.Legen(dokument.LegendeX, dokument.LegendeY, w.legende.LegendeBreite, w.legende.LegendeHoehe);
    maske.Visible = e.Links();
    lage.VersatzX = e.X - maske.Left;
    lage.VersatzY = e.Y - maske.Top;
    if (!e.Rechts()) return true;
    PopupÖffnen("mnuLegende");
    if (lage.Aktion == Aktion::LegendeGefasst) lage.Aktion = Aktion::Nichts;
    return true;
}

/// In every state that comes so far: an armed tool on a circle line selects the line and places nothing. Meant.
bool Leinwand::KreisTreffen(const Ereignis &e) {
    const int i = KreisLinieBei(dokument, e.X, e.Y);
    lage.KreisGetroffen = i >= 0;
    lage.KreisAuswahl = 0;
    if (lage.KreisGetroffen) {
        AuswahlrahmenParken(w);
        LinkAufräumen(w);
        KreisAuswählen(w, i);
    }
    w.fenster.Vorschau();
    return false;
}

bool Leinwand::KreisGewählt(const Ereignis &e) {
    if (lage.Aktion != Aktion::KreisGewählt) return false;
    MarkerEntfernen(w);
    w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = true;
    if (!lage.KreisGetroffen) { // the press only ends the selection
        w.auswahl.lstMovedKreisLinien.Leeren();
        lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
    } else if (e.Rechts()) {
        PopupÖffnen("mnuKreislinie");
    }
    return true;
}

bool Leinwand::GruppeFassen(const Ereignis &e) {
    if (lage.Aktion != Aktion::GruppeGewählt) return false;
    const Auflagenform &rahmen = auflagen.shpBox;
    lage.AltX = Gerundet(rahmen.Left, 1);
    lage.AltY = Gerundet(rahmen.Top, 1);
    const bool drin = Kleiner(rahmen.Left, e.X) && Kleiner(e.X, rahmen.Left + rahmen.Width) &&
                      Kleiner(rahmen.Top, e.Y) && Kleiner(e.Y, rahmen.Top + rahmen.Height);
    if (!drin) { // the press only ends the selection
        AuswahlrahmenParken(w);
        MarkierungsListBoxenLöschen(w);
        lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
        return true;
    }
    lage.Zeiger = Mauszeiger::Verschieben;
    lage.VersatzX = e.X - rahmen.Left;
    lage.VersatzY = e.Y - rahmen.Top;
    if (e.Rechts()) {
        lage.Zeiger = Mauszeiger::Pfeil; // no drag follows
        w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = true;
        PopupÖffnen("mnuAuswahlBox");
    }
    return true;
}

/// The release of a grabbed text box got lost.
bool Leinwand::TextWarGefasst(const Ereignis &) {
    if (lage.Aktion != Aktion::TextGefasst) return false;
    lage.Aktion = Aktion::TextDialog;
    w.fenster.FormÖffnen("frmKommentar");
    return false;
}

bool Leinwand::KindLinkBeenden(const Ereignis &) {
    if (lage.Aktion != Aktion::KindZiehen) return false;
    const bool angelegt = lage.PLinieUnterMaus && KindLinieAnlegen(w);
    lage.Aktion = Aktion::Nichts; // before the redraw, which marks the bar under the pointer
    lage.PLinieUnterMaus = false;
    lage.PersRecord.clear();
    LinkAufräumen(w);
    w.auswahl.lstMovedPLines.Leeren();
    MarkerEntfernen(w);
    if (angelegt) w.fenster.Sichern();
    return true;
}

bool Leinwand::MenüWarOffen(const Ereignis &) {
    const bool ende = lage.Aktion == Aktion::MenüOffen;
    if (ende || lage.Aktion == Aktion::Nichts) Gummi1Parken(w);
    if (ende) lage.Aktion = Aktion::Nichts;
    if (ende) lage.PersRecord.clear(); // a double click that begins so isn't meant for that person
    return ende;
}

/// The target is the person under the last move.
bool Leinwand::LinkBeenden(const Ereignis &) {
    if (lage.Aktion != Aktion::BeziehungZiehen && lage.Aktion != Aktion::PartnerschaftZiehen) return false;
    LinkAufräumen(w);
    lage.PersRecord.clear();
    MarkierungsListBoxenLöschen(w);
    if (lage.Aktion == Aktion::BeziehungZiehen) BeziehungAnlegen(w);
    else PartnerschaftAnlegen(w);
    lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::PersonTreffen(const Ereignis &e) {
    MarkerEntfernen(w);
    lage.PersAuswahl = 0;
    lage.PersRecord.clear();
    const int i = PersonBei(dokument, e.X, e.Y);
    if (i < 0) return false;
    PersonAuswählen(w, i);
    Gummi1Parken(w);
    Bedienelemente &b = w.bedienung;
    b["mnuLöschen1"].Enabled = b["mnuAusschneiden"].Enabled = true;
    const Felder feld(lage.PersRecord);
    lage.VersatzX = e.X - ZahlLesen(feld[PersonFeld::PosX]);
    lage.VersatzY = e.Y - ZahlLesen(feld[PersonFeld::PosY]);
    w.fenster.Vorschau();
    if (!e.Rechts()) return true;
    lage.Aktion = Aktion::MenüOffen;
    for (const char *eintrag : {"mnuBeziehungErstellen2", "mnuPartnerschaftsLinie", "mnuKindVon", "mnuStr2"})
        b[eintrag].Visible = lage.SymbolTyp != TypInstitution;
    b["mnuKindVon"].Enabled = Getrimmt(feld[PersonFeld::ElternLinie]).empty();
    PopupÖffnen("mnuPerson");
    return true;
}

/// A line that is selected already: its menu, or the end of the selection.
bool Leinwand::LinieWarGewählt(const Ereignis &e) {
    const char *menü = lage.Aktion == Aktion::BeziehungGewählt   ? "mnuBezLinie"
                       : lage.Aktion == Aktion::PLinieGewählt    ? "mnuPLinie"
                       : lage.Aktion == Aktion::KindlinieGewählt ? "mnuKindLinie"
                                                                 : nullptr;
    if (!menü) return false;
    if (e.Rechts()) {
        w.bedienung["mnuLöschen1"].Enabled = true;
        PopupÖffnen(menü);
        return true;
    }
    Gummi1Parken(w);
    lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::LinieTreffen(const Ereignis &e) {
    lage.Aktion = Aktion::Nichts;
    return BezLinieTreffer(e.X, e.Y) || PLinieTreffer(e.X, e.Y) || KindLinieTreffer(e.X, e.Y) ||
           PfeilTreffer(e.X, e.Y) || PfeilEndeTreffer(e.X, e.Y);
}

bool Leinwand::BezLinieTreffer(double x, double y) {
    const int i = BezLinieBei(dokument, x, y);
    if (i < 0) return false;
    lage.BezAuswahl = i;
    MarkierungsListBoxenLöschen(w);
    lage.Aktion = Aktion::BeziehungGewählt;
    w.bedienung["mnuLöschen1"].Enabled = true;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::PLinieTreffer(double x, double y) {
    w.auswahl.lstMovedPLines.Leeren();
    const int i = PLinieBei(dokument, x, y);
    if (i < 0) return false;
    lage.PLinieAuswahl = i;
    lage.LinieVerschoben = false;
    MarkierungsListBoxenLöschen(w);
    w.auswahl.lstMovedPLines.Anhängen(std::to_string(i + 1));
    if (lage.Aktion == Aktion::KindZiehen) return true; // a link gesture goes on
    lage.Aktion = Aktion::PLinieGewählt;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::KindLinieTreffer(double x, double y) {
    const int i = KindLinieBei(dokument, x, y, lage.AuswahlGröße);
    if (i < 0) return false;
    lage.KindAuswahl = i;
    MarkierungsListBoxenLöschen(w);
    lage.Aktion = Aktion::KindlinieGewählt;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::PfeilTreffer(double x, double y) {
    const int i = PfeilBei(dokument, x, y);
    if (i < 0) return false;
    lage.PfeilAuswahl = i;
    MarkierungsListBoxenLöschen(w);
    w.auswahl.lstMovedPfeile.Anhängen(std::to_string(i));
    w.bedienung["mnuAusschneiden"].Enabled = w.bedienung["mnuLöschen1"].Enabled = true;
    PfeilFassen();
    lage.Aktion = Aktion::PfeilGefasst;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::PfeilEndeTreffer(double x, double y) {
    const int ende = PfeilEndeBei(dokument, lage.PfeilAuswahl, x, y);
    if (ende == 0) return false;
    PfeilFassen();
    Auswahl übrige;
    übrige.lstMovedPfeile = w.auswahl.lstMovedPfeile; // it may show its handles, or not
    w.auswahl = übrige;
    w.bedienung["mnuAusschneiden"].Enabled = w.bedienung["mnuLöschen1"].Enabled = true;
    lage.Aktion = ende == 2 ? Aktion::PfeilEnde2 : Aktion::PfeilEnde1;
    w.fenster.Vorschau();
    return true;
}

/// Lays the arrow's overlay over it: where it stands at the release is what is stored.
void Leinwand::PfeilFassen() {
    const Felder feld(dokument.cboPfeile.Satz(lage.PfeilAuswahl));
    lage.PfeilArt = Ganzzahl16(ZahlLesen(feld[PfeilFeld::Pfeilart]));
    lage.PfeilEndeX = ZahlLesen(feld[PfeilFeld::PfeilX2]);
    lage.PfeilEndeY = ZahlLesen(feld[PfeilFeld::PfeilY2]);
    auflagen.Line5.Legen(ZahlLesen(feld[PfeilFeld::PfeilX1]), ZahlLesen(feld[PfeilFeld::PfeilY1]), lage.PfeilEndeX,
                         lage.PfeilEndeY);
}

bool Leinwand::TextTreffen(const Ereignis &e) {
    const int i = TextboxBei(dokument, e.X, e.Y);
    if (i < 0) return false;
    TextboxAuswählen(w, i);
    w.auswahl.lstMovedText.Anhängen(std::to_string(i));
    lage.VersatzX = e.X - auflagen.shpMask.Left;
    lage.VersatzY = e.Y - auflagen.shpMask.Top;
    lage.Aktion = Aktion::TextGefasst;
    w.fenster.Vorschau();
    return true;
}

bool Leinwand::Setzen(const Ereignis &) {
    if (lage.Aktion == Aktion::ElternSetzen) ElternAnlegen(w);
    else if (lage.Aktion == Aktion::PersonSetzen) PersonAnlegen(w);
    else return false;
    return true;
}

bool Leinwand::RahmenBeginnen(const Ereignis &e) {
    lage.Aktion = Aktion::RahmenZiehen;
    lage.AnkerX = Raster(e.X);
    lage.AnkerY = Raster(e.Y);
    if (!e.Rechts()) return true;
    w.bedienung["mnuEinfügen8"].Visible = w.bedienung["mnustr15"].Visible = true;
    PopupÖffnen("mnuSymbolEinfügen");
    if (lage.Aktion == Aktion::RahmenZiehen) RahmenAuswählen(w); // dismissed: the end of an empty marquee
    return true;
}

void Leinwand::DblClick(double x, double y) {
    lage.MausX = x;
    lage.MausY = y;
    const int text = TextboxBei(dokument, x, y);
    if (text >= 0) {
        TextboxAuswählen(w, text);
        lage.Aktion = Aktion::TextDialog;
        w.fenster.Vorschau();
        w.fenster.FormÖffnen("frmKommentar");
        return;
    }
    if (LegendeUnterMaus()) {
        w.fenster.FormÖffnen("frmLegende");
        return;
    }
    // A press on a selected line has just unselected it: the double click means the line all the same.
    if (lage.Aktion == Aktion::Nichts && Getrimmt(lage.PersRecord).empty())
        BezLinieTreffer(x, y) || PLinieTreffer(x, y) || KindLinieTreffer(x, y);
    struct Tür {
        kw::Aktion Aktion;
        const char *Form;
    };
    for (const auto &[aktion, form] :
         {Tür{Aktion::BeziehungGewählt, "frmBezLinien"}, Tür{Aktion::PLinieGewählt, "frmPLinien"},
          Tür{Aktion::KindlinieGewählt, nullptr}}) {
        if (lage.Aktion != aktion) continue;
        if (form) w.fenster.FormÖffnen(form);
        else w.fenster.PopupÖffnen("mnuKindLinie");
        lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
        return;
    }
    constexpr int NachDemEreignis = 60;                                                             // ms
    if (!Getrimmt(lage.PersRecord).empty()) w.benutzer.ZeitgeberStarten("Timer3", NachDemEreignis); // opens frmSymbol
}

} // namespace kw
