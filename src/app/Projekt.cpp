#include "app/Projekt.h"

#include "app/frmMain.h"
#include "document/Felder.h"
#include "document/ProjektDatei.h"
#include "output/Zieldatei.h"

#include <filesystem>

namespace kw {

void Projekt::ProjektLaden() {
    frmMain &h = haupt_;
    h.dokument.LegendeSichtbar = false;
    h.legende.lstLegende.Leeren();
    h.anzeige.LegendeZeigen();
    h.einstellungen.Zuletzt.Aktualisieren(Projektdatei);
    h.anzeige.ChronikZeigen();
    h.IniDatei = Projektdatei;
    Titel = "Kinwright  " + Projektdatei;
    InhaltLesen();
    h.Vorschau();
    h.Sichern();
    Geändert = false;
    h.plattform.benutzer.AnzeigeAuffrischen();
}

/// One error target for the whole reading: what fails leaves what was read so far. The lists of free
/// numbers are rebuilt at the end only, so a failed load leaves them as they were.
void Projekt::InhaltLesen() {
    frmMain &h = haupt_;
    std::string inhalt;
    DateiLesen(Projektdatei, inhalt); // a file that can't be read is an empty one
    const Profil profil(std::move(inhalt));

    SeiteLesen(profil, h.dokument);
    h.anzeige.SeiteZeigen();
    h.bereich.Bildgrößenveränderung();
    try {
        SpeicherLesen(profil, h.dokument);
        LegendeLesen(profil, h.dokument);
        h.anzeige.LegendeZeigen();
        LegendeAufbauen(h.dokument, h.legende);
        h.dokument.FreieNummernAufbauen();
    } catch (const FeldFehlt &) { // a damaged project, or an old one without a legend
    }
}

void Projekt::Öffnen(const std::string &datei) {
    haupt_.AuswahlUndRingLeeren();
    Projektdatei = datei;
    ProjektLaden();
}

void Projekt::ProjektSchreiben() {
    haupt_.IniDatei = Projektdatei;
    std::string inhalt;
    const bool neu = !DateiVorhanden(Projektdatei);
    // A file that is there but can't be read would lose its foreign keys: it isn't written either.
    if (neu || DateiLesen(Projektdatei, inhalt).Gelungen()) {
        Profil profil(std::move(inhalt));
        ProjektEintragen(haupt_.dokument, profil);
        DateiSchreiben(Projektdatei, profil.Inhalt());
    }
    Geändert = false;
    haupt_.einstellungen.Zuletzt.Eintragen(Projektdatei);
    haupt_.anzeige.ChronikZeigen();
    haupt_.plattform.benutzer.AnzeigeAuffrischen();
}

void Projekt::Speichern() {
    std::error_code fehler; // a folder that can't be made loses the file, as one that can't be written does
    if (ImportModus) std::filesystem::create_directories(Pfad(Projektdatei), fehler);
    if (Projektdatei.empty() && !ImportModus) SpeichernUnter();
    else ProjektSchreiben();
}

void Projekt::SpeichernUnter() {
    const bool deutsch = haupt_.IstDeutsch();
    const Dateiwahl wahl{deutsch ? "Genogramm speichern unter ..." : "Save genogram as ...",
                         deutsch ? "Genogrammprojekt 1" : "Genogram Project 1",
                         deutsch ? "Kinwright Datei (*.kwp)|*.kwp" : "kinwright file (*.kwp)|*.kwp",
                         haupt_.plattform.benutzer.Desktopordner()};
    const auto datei = ZieldateiWählen(haupt_.plattform.benutzer, wahl, deutsch, "Do you want to replace?");
    SpeichernAbgebrochen = SpeichernAbgebrochen || !datei;
    if (!datei) return;
    Projektdatei = *datei;
    ProjektSchreiben();
    Titel = Projektdatei;
    haupt_.plattform.benutzer.AnzeigeAuffrischen();
}

bool Projekt::NachÄnderungenFragen() {
    if (!Geändert) return true;
    const auto *text = haupt_.IstDeutsch() ? "Möchten Sie die Änderungen im aktuellen Projekt speichern?"
                                           : "Do you want to save the changes in the current project?";
    switch (haupt_.plattform.benutzer.Fragen({"Kinwright", text, Knöpfe::JaNeinAbbrechen, Zeichen::Frage})) {
    case Antwort::Ja: Speichern(); return !SpeichernAbgebrochen;
    case Antwort::Nein: return true;
    default: return false;
    }
}

void Projekt::mnuÖffnen() {
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen()) return;
    haupt_.IniDatei = haupt_.start.IniDatei;
    std::string ordner = ProfilLesen(haupt_.IniDatei, "DEFAULT", "lastpath");
    if (ordner.empty()) ordner = haupt_.plattform.benutzer.Desktopordner();
    const bool deutsch = haupt_.IstDeutsch();
    const auto datei = haupt_.plattform.benutzer.DateiÖffnen(
        {deutsch ? "Genogrammprojekt öffnen" : "Open genogram project", "",
         deutsch ? "Kinwright Datei (*.kwp)|*.kwp" : "kinwright  file (*.kwp)|*.kwp", ordner});
    if (!datei) return;
    Projektdatei = *datei;
    if (!DateiVorhanden(Projektdatei)) return;
    Öffnen(Projektdatei);
    haupt_.einstellungen.Zuletzt.Eintragen(Projektdatei);
    haupt_.anzeige.ChronikZeigen();
}

void Projekt::DokumentLeeren() {
    haupt_.ring.Leeren();
    haupt_.UndoKnöpfeSetzen();
    haupt_.dokument.SpeicherLeeren();
    haupt_.dokument.lstGelöschtePersNr.Leeren();
    haupt_.dokument.lstGelöschtePLinien.Leeren();
}

bool Projekt::ProjektNeu() {
    frmMain &h = haupt_;
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen()) return false; // also when the saving was given up: nothing has happened then
    DokumentLeeren();                          // with it go the steps of undo and redo
    Projektdatei.clear();
    Titel = "Kinwright";
    h.AuswahlUndRingLeeren();
    for (Satzliste *liste : {&h.ablage.ZA_PLines, &h.ablage.ZA_Personen, &h.ablage.ZA_KindLinien, &h.ablage.ZA_Pfeile,
                             &h.legende.lstLegende})
        liste->Leeren();
    h.dokument.LegendeX = LegendeStartX;
    h.dokument.LegendeY = LegendeStartY;
    Geändert = ImportModus = false;
    h.Vorschau();
    return true;
}

void Projekt::mnuNeu() {
    if (!ProjektNeu()) return;
    haupt_.Sichern();
    haupt_.LegendeZeigen(false);
    Geändert = false;
}

void Projekt::mnuRecent(int platz) {
    if (platz < 1 || platz > Chronik::Plätze) return;
    const std::string datei = haupt_.einstellungen.Zuletzt[platz];
    if (Titel == datei) return; // so only just after a save under that name
    if (!DateiVorhanden(datei)) {
        const bool deutsch = haupt_.IstDeutsch();
        haupt_.plattform.benutzer.Fragen(
            {deutsch ? "Fehler" : "Error",
             deutsch ? "Datei konnte nicht gefunden werden!" : "The file could not be found!", Knöpfe::Ok,
             Zeichen::Warnung});
        return;
    }
    haupt_.dokument.lstGelöschtePersNr.Leeren();
    haupt_.dokument.lstGelöschtePLinien.Leeren();
    Öffnen(datei);
    haupt_.einstellungen.Zuletzt.Vorziehen(platz);
    haupt_.anzeige.ChronikZeigen();
}

} // namespace kw
