// What happens to the main window: pointer, keys, commands, what the desktop hands over. Each ends in `NachEreignis`.
#include "app/Befehle.h"
#include "app/Fenstertasten.h"
#include "app/frmMain.h"
#include "commands/Menuetafel.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Werkzeuge.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

namespace kw {

void frmMain::MouseDown(int taste, double x, double y) {
    ansager.NeuerVersuch();
    tastatur.MausGedrückt();
    gedrückt_ = bereich.InRahmen(x, y, ansicht.SeitenBreite);
    leinwand.MouseDown(taste, x, y);
    NachEreignis();
}

void frmMain::DanebenGedrückt(int taste) {
    tastatur.MausGedrückt();
    leinwand.DanebenGedrückt(taste);
    NachEreignis();
}

void frmMain::PaletteBerührt(int werkzeug) {
    wegweiser.PaletteBerührt(werkzeug);
    hinweis.PaletteBerührt(werkzeug);
}

void frmMain::MouseMove(int taste, double x, double y) {
    PaletteBerührt(0);
    tastatur.MausBewegt();
    leinwand.MouseMove(taste, x, y);
}

void frmMain::MouseUp(int taste, double x, double y) {
    anzeige.UndoKnöpfeZeigen();
    leinwand.MouseUp(taste, x, y);
    NachEreignis();
}

void frmMain::DblClick(double x, double y) {
    tastatur.MausGedrückt();
    leinwand.DblClick(x, y);
    NachEreignis();
}

/// The palette stands beside the frame.
void frmMain::GrößeÄndern(int breite, int höhe) {
    bereich.GrößeÄndern(breite, höhe);
    plattform.benutzer.AnzeigeAuffrischen();
}

void frmMain::SeiteFassen(Rahmenort hand) {
    TastenlaufBeenden(); // what keys are drawing goes on: only the page moves
    bereich.SeiteFassen(hand);
    NachEreignis();
}

void frmMain::MausradFolgen(Rahmenort zeiger) {
    const int vorher = bereich.cboBildGröße.ListIndex;
    lage.Hinweis = nullptr;
    bereich.MausradFolgen(zeiger);
    if (bereich.cboBildGröße.ListIndex == vorher)
        Absagen(bereich.KannVergrößern() ? Name::btnBildKleiner : Name::btnBildGrößer);
    wegweiser.Zeigen();
    plattform.benutzer.AnzeigeAuffrischen();
}

bool frmMain::AmRandScrollen(Rahmenort zeiger) { return leinwand.Zieht() && bereich.AmRandScrollen(zeiger, gedrückt_); }

bool frmMain::BeimImportScrollen(Rahmenort zeiger) {
    const Rahmenort mitte{bereich.picBack.Width / 2, bereich.picBack.Height / 2}; // it came from outside
    return bereich.AmRandScrollen(zeiger, mitte);
}

void frmMain::ImportzeileAblegen(int zeile, double x, double y) {
    tastatur.MausGedrückt();
    leinwand.GesteAbbrechen();
    NichtsAuswählen(werkbank);
    import.Ablegen(werkbank, zeile, x, y);
    NachEreignis();
}

void frmMain::DateiÜbernehmen(const std::string &pfad) {
    if (pfad.empty()) return;
    TastenlaufBeenden();
    leinwand.GesteAbbrechen();
    if (Stammbaumimport::IstStammbaum(pfad)) stammbaum.Öffnen(pfad);
    else projekt.ÖffnenMitFrage(pfad);
    NachEreignis();
}

/// Whether a user finds `name`, or else the menu entry that it stands for, and the menus around it, and can choose it.
bool frmMain::IstFrei(std::string_view name) const {
    const Menüzeile *zeile = MenüzeileFinden(name);
    for (zeile = zeile ? zeile : MenüzeileFinden(Menügleich(name)); zeile; zeile = MenüzeileFinden(zeile->Menü)) {
        const Bedienelement &element = *bedienung.Finden(zeile->Name);
        if (!element.Enabled || !element.Visible) return false;
    }
    return true;
}

/// Tells why a command can't be chosen, in place of what the last gesture came to.
void frmMain::Absagen(std::string_view name) {
    const Zweisprachig *grund = wegweiser.WarumGesperrt(name);
    if (!grund) return;
    if (grund == &Absage::LeereAblage && plattform.benutzer.AblageBelegt()) grund = &Absage::NurFremdes;
    lage.Hinweis = grund;
    anzeige.MöglichesZeigen();
    wegweiser.Zeigen();
    ansager.NachEreignis();
    plattform.benutzer.AnzeigeAuffrischen();
}

bool frmMain::BefehlAusführen(std::string_view name) {
    const Befehl befehl = BefehlFinden(name);
    if (!befehl) return false;
    if (GehörtZu(name, Name::mnuBearbeiten)) mnuBearbeiten_Öffnen();
    ansager.NeuerVersuch();
    if (!IstFrei(name)) {
        Absagen(name);
        return false;
    }
    const auto inHand = [this] { return IstBereit(lage) || IstLink(lage.Aktion); };
    const bool vorher = inHand();
    tastatur.VorBefehl(); // what moves comes to its end, and is what undo takes back
    leinwand.GesteAbbrechen();
    Befehlsumgebung umgebung = FürBefehle();
    befehl.Ausführen(umgebung, befehl.Nummer);
    NachEreignis();
    if (!vorher && inHand()) plattform.benutzer.FokusAufLeinwand(); // the page is what comes next
    return true;
}

void frmMain::ImportzeileEinsetzen(int zeile) {
    const int vorher = dokument.cboPersonen.Anzahl();
    const Seitenort ort = tastatur.FreierOrt();
    ImportzeileAblegen(zeile, ort.X, ort.Y);
    if (dokument.cboPersonen.Anzahl() == vorher) return;
    tastatur.ZurLetztenPerson();
    NachEreignis();
    CursorInsBild();
}

bool frmMain::TasteDrücken(const Tastendruck &taste) {
    ansager.NeuerVersuch();
    const auto vorher = tastatur.Cursor().Text(dokument);
    const bool unterwegs = tastatur.IstUnterwegs();
    const Fenstertaste *fenstertaste = FenstertasteFinden(taste);
    Befehlsumgebung umgebung = FürBefehle();
    tastatur.Benutzt();
    if (fenstertaste) tastatur.LaufBeenden();
    else if (!taste.Ist(Taste::Escape) && !lage.Gedrückt) CursorInsBild(); // a menu opens where the keyboard is
    const bool gemeint = fenstertaste ? (fenstertaste->Ausführen(umgebung), true) : tastatur.Drücken(taste);
    if (unterwegs || tastatur.IstUnterwegs()) anzeige.UndoKnöpfeZeigen(tastatur.IstUnterwegs());
    NachEreignis();
    if (tastatur.Cursor().Text(dokument) != vorher || taste.Alt) CursorInsBild();
    return gemeint;
}

void frmMain::LeertasteLoslassen() {
    tastatur.LeertasteLoslassen();
    NachEreignis();
}

void frmMain::ElementFokussieren(Element element) {
    ansager.NeuerVersuch();
    tastatur.Hinstellen(element);
    NachEreignis();
    CursorInsBild();
}

/// The page scrolls as far as it must for where the keyboard is to be seen.
void frmMain::CursorInsBild() {
    const auto &cursor = tastatur.Cursor();
    Umgebung rahmen;
    if (cursor.Ort) rahmen.Aufnehmen(cursor.Ort->X, cursor.Ort->Y);
    else if (cursor.Element()) rahmen = Elementrahmen(dokument, legende, *cursor.Element());
    if (!rahmen.Leer) bereich.InsBild({rahmen.Links, rahmen.Oben, rahmen.Rechts, rahmen.Unten});
    plattform.benutzer.AnzeigeAuffrischen();
}

bool frmMain::PersonSuchen(std::string_view text) {
    ansager.NeuerVersuch();
    const bool gefunden = tastatur.Suchen(text);
    NachEreignis();
    CursorInsBild();
    return gefunden;
}

} // namespace kw
