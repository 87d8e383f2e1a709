#include "editing/Texte.h"

#include "document/Nachschlagen.h"
#include "document/saetze/Textbox.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

#include <utility>

namespace kw {

namespace {

constexpr double RandLinks = 0.1;   ///< the frame of a text box begins that far left of it
constexpr double MaskeMehr = 0.22;  ///< the drag mask is that much wider than the text
constexpr int NachDemEreignis = 60; ///< ms

bool ImKasten(std::string_view satz, const Auswahlkasten &kasten, double /*raster*/) {
    const TextSatz box(satz);
    return box.HatMaße() &&
           kasten.Überlappt(box.TextX(), box.TextY(), box.TextX() + box.TextBreite(), box.TextY() + box.TextHoehe());
}

std::string Verschoben(std::string_view satz, double dx, double dy) { return TextBau(satz).Verschieben(dx, dy).Text(); }

void Umgeben(std::string_view satz, Umgebung &umgebung) {
    const TextSatz box(satz, Lücken::Leer);
    umgebung.Aufnehmen(box.TextX(), box.TextY(), box.TextBreite(), box.TextHoehe());
}

} // namespace

const Gruppenart TexteInGruppen{
    &Dokument::cboTextboxen, &Auswahl::lstMovedText, 0, &Zwischenablage::ZA_Textboxen, ImKasten, Verschoben, Umgeben};

int TextboxBei(const Dokument &d, double x, double y) {
    double breite = 0;
    double höhe = 0;
    for (int i = 0; i < d.cboTextboxen.Anzahl(); ++i) {
        const TextSatz box(d.cboTextboxen.Satz(i), Lücken::Leer);
        if (!box.HatOrt()) continue;
        if (box.HatBreite()) {
            breite = box.TextBreite();
            höhe = box.TextHoehe();
        }
        if (Zwischen(x, box.TextX(), box.TextX() + breite) && Zwischen(y, box.TextY(), box.TextY() + höhe)) return i;
    }
    return -1;
}

void TextboxAuswählen(Werkbank &w, int position) {
    Leinwandlage &lage = w.lage;
    Gummi1Parken(w.auflagen);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    lage.PersRecord.clear();
    lage.TextAuswahl = position;
    lage.ElementArt = "Textbox";
    lage.TextRecord = w.dokument.cboTextboxen.Satz(position);
    const TextSatz box(lage.TextRecord, Lücken::Leer);
    lage.AuswahlX = box.TextX() - RandLinks;
    lage.AuswahlY = box.TextY();
    const double breite = lage.Spur.MarkerBreite = box.TextBreite() + MaskeMehr;
    const double höhe = lage.Spur.MarkerHöhe = lage.TextRahmenUnten;
    Auflagenform &maske = w.auflagen.shpMask;
    maske.Visible = false;
    maske.Shape = Umriss::Rechteck;
    maske.Legen(box.TextX(), box.TextY(), breite, höhe);
}

void NeuenTextAufSeite(Dokument &d, const Ansicht &ansicht) {
    const int i = d.cboTextboxen.Anzahl() - 1;
    TextBau box(d.cboTextboxen.Satz(i));
    const double x = box.Stand().TextX();
    const double y = box.Stand().TextY();
    const double halbeBreite = box.Stand().TextBreite() / 2;
    const double halbeHöhe = box.Stand().TextHoehe() / 2;
    const bool drauf = x + halbeBreite <= ansicht.SeitenBreite && y + halbeHöhe <= ansicht.SeitenHöhe;
    if (drauf) return;
    box.Ort(Gerundet(RasterX(ansicht, x, halbeBreite), 1), Gerundet(RasterY(ansicht, y, halbeHöhe), 1));
    d.cboTextboxen.Ersetzen(i, box.Text());
}

bool TextSetzen(Werkbank &w, const Ereignis &e) {
    if (w.lage.Aktion != Aktion::TextGesetzt) return false;
    w.lage.AuswahlX = Gerundet(RasterX(w.ansicht, e.X), 1);
    w.lage.AuswahlY = Gerundet(RasterY(w.ansicht, e.Y), 1);
    w.fenster.FormÖffnen(Name::frmKommentar);
    w.lage.Zeiger = Mauszeiger::Pfeil;
    return true;
}

bool TextWarGefasst(Werkbank &w, const Ereignis &) {
    if (w.lage.Aktion != Aktion::TextGefasst) return false;
    w.lage.Aktion = Aktion::TextDialog;
    w.fenster.FormÖffnen(Name::frmKommentar);
    return false;
}

bool TextTreffen(Werkbank &w, const Ereignis &e) {
    const int i = TextboxBei(w.dokument, e.X, e.Y);
    if (i >= 0) TextFassen(w, i, e);
    return i >= 0;
}

void TextFassen(Werkbank &w, int position, const Ereignis &e) {
    TextboxAuswählen(w, position);
    w.auswahl.lstMovedText.Anhängen(std::to_string(position));
    w.lage.VersatzX = e.X - w.auflagen.shpMask.Left;
    w.lage.VersatzY = e.Y - w.auflagen.shpMask.Top;
    w.lage.Aktion = Aktion::TextGefasst;
    w.fenster.Vorschau();
}

void TextZiehen(Werkbank &w, const Ereignis &e) {
    const TextSatz box(w.lage.TextRecord, Lücken::Leer);
    Auflagenform &maske = w.auflagen.shpMask;
    const double breite = box.TextBreite();
    const double höhe = box.TextHoehe();
    maske.Legen(RasterX(w.ansicht, e.X - w.lage.VersatzX, breite / 2),
                RasterY(w.ansicht, e.Y - w.lage.VersatzY, höhe / 2), breite, höhe);
    maske.Visible = true;
}

void TextLoslassen(Werkbank &w, const Ereignis &e) {
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    if (e.Rechts()) {
        w.lage.Aktion = Aktion::MenüOffen;
        w.fenster.PopupÖffnen(Name::mnuTextBox);
        return;
    }
    Satzliste &boxen = w.dokument.cboTextboxen;
    const Auflagenform maske = std::exchange(w.auflagen.shpMask, {});
    w.lage.Aktion = Aktion::TextGewählt;
    if (!HatSichBewegt(w.lage, e) || !Gültig(boxen, w.lage.TextAuswahl)) return;
    const std::string alt = boxen.Satz(w.lage.TextAuswahl);
    w.lage.TextRecord =
        TextBau(alt).Ort(RasterZehntel(w.ansicht, maske.Left), RasterZehntel(w.ansicht, maske.Top)).Text();
    boxen.Ersetzen(w.lage.TextAuswahl, w.lage.TextRecord);
    if (w.lage.TextRecord != alt) w.fenster.Sichern();
    w.benutzer.ZeitgeberStarten("Timer4", NachDemEreignis); // redraws, once, behind the event
}

void TextLöschen(Werkbank &w) {
    w.auswahl.lstMovedText.Leeren();
    if (!Gültig(w.dokument.cboTextboxen, w.lage.TextAuswahl)) return;
    w.dokument.cboTextboxen.Entfernen(w.lage.TextAuswahl);
    MarkerParken(w.lage, w.auflagen);
    LöschenAbschließen(w);
}

void LetzteTextboxLöschen(Werkbank &w) {
    w.lage.ElementArt.clear();
    if (!Gültig(w.dokument.cboTextboxen, w.lage.TextAuswahl)) return;
    w.dokument.cboTextboxen.Entfernen(w.lage.TextAuswahl);
    PositionenVergessen(w.lage);
    w.auswahl.lstMovedText.Leeren();
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace kw
