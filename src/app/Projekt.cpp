#include "app/Projekt.h"

#include "app/Anzeige.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Chronik.h"
#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/Einstellungen.h"
#include "document/Felder.h"
#include "document/ProjektDatei.h"
#include "document/UndoRing.h"
#include "editing/Ablage.h"
#include "editing/Fensterdienste.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"
#include "rendering/Ansicht.h"
#include "rendering/Legende.h"

#include <filesystem>

namespace kw {

namespace {

constexpr Zweisprachig SpeichernTitel{"Genogramm speichern unter ...", "Save genogram as ..."};
constexpr Zweisprachig SpeichernName{"Genogrammprojekt 1", "Genogram Project 1"};
constexpr Zweisprachig SpeichernFilter{"Kinwright Datei (*.kwp)|*.kwp", "kinwright file (*.kwp)|*.kwp"};
constexpr Zweisprachig ÖffnenTitel{"Genogrammprojekt öffnen", "Open genogram project"};
constexpr Zweisprachig ÖffnenFilter{"Kinwright Datei (*.kwp)|*.kwp", "kinwright  file (*.kwp)|*.kwp"};
constexpr Zweisprachig Änderungsfrage{"Möchten Sie die Änderungen im aktuellen Projekt speichern?",
                                      "Do you want to save the changes in the current project?"};
constexpr Zweisprachig FehltTitel{"Fehler", "Error"};
constexpr Zweisprachig FehltText{"Datei konnte nicht gefunden werden!", "The file could not be found!"};

} // namespace

Projekt::Projekt(Inhalt inhalt, Umfeld umfeld, std::string einstellungsDatei)
    : inhalt_(inhalt), umfeld_(std::move(umfeld)), einstellungsDatei_(std::move(einstellungsDatei)) {}

std::string Projekt::Text(const Zweisprachig &text) const { return std::string(text.In(umfeld_.ansicht.Sprache)); }

void Projekt::ProjektLaden() {
    inhalt_.dokument.LegendeSichtbar = false;
    inhalt_.legende.lstLegende.Leeren();
    umfeld_.anzeige.LegendeZeigen();
    inhalt_.zuletzt.Aktualisieren(Projektdatei);
    umfeld_.anzeige.ChronikZeigen();
    IniDatei = Projektdatei;
    Titel = "Kinwright  " + Projektdatei;
    InhaltLesen();
    umfeld_.fenster.Vorschau();
    umfeld_.fenster.Sichern();
    Geändert = false;
    umfeld_.benutzer.AnzeigeAuffrischen();
}

/// One error target for the whole reading: what fails leaves what was read so far. The lists of free
/// numbers are rebuilt at the end only, so a failed load leaves them empty.
void Projekt::InhaltLesen() {
    Dokument &dokument = inhalt_.dokument;
    std::string inhalt;
    DateiLesen(Projektdatei, inhalt); // a file that can't be read is an empty one
    const Profil profil(std::move(inhalt));

    SeiteLesen(profil, dokument);
    umfeld_.dienste.SeiteAnwenden();
    try {
        SpeicherLesen(profil, dokument);
        LegendeLesen(profil, dokument);
        umfeld_.anzeige.LegendeZeigen();
        LegendeAufbauen(dokument, inhalt_.legende);
        dokument.FreieNummernAufbauen();
    } catch (const FeldFehlt &) { // a damaged project, or an old one without a legend
    }
}

/// Before another project comes.
void Projekt::RingUndAuswahlLeeren() {
    inhalt_.ring.Leeren();
    umfeld_.anzeige.UndoKnöpfeZeigen();
    umfeld_.abwählen();
    umfeld_.anzeige.MöglichesZeigen();
}

void Projekt::Öffnen(const std::string &datei) {
    RingUndAuswahlLeeren();
    FreieNummernLeeren(); // those of the project before may be in use in this one, which need not say its own
    Projektdatei = datei;
    ProjektLaden();
}

void Projekt::ProjektSchreiben() {
    IniDatei = Projektdatei;
    std::string inhalt;
    const bool neu = !DateiVorhanden(Projektdatei);
    // A file that is there but can't be read would lose its foreign keys: it isn't written either.
    if (neu || DateiLesen(Projektdatei, inhalt).Gelungen()) {
        Profil profil(std::move(inhalt));
        ProjektEintragen(inhalt_.dokument, profil);
        DateiSchreiben(Projektdatei, profil.Inhalt());
    }
    Geändert = false;
    inhalt_.zuletzt.Eintragen(Projektdatei);
    umfeld_.anzeige.ChronikZeigen();
    umfeld_.benutzer.AnzeigeAuffrischen();
}

void Projekt::Speichern() {
    std::error_code fehler; // a folder that can't be made loses the file, as one that can't be written does
    if (ImportModus) std::filesystem::create_directories(Pfad(Projektdatei), fehler);
    if (Projektdatei.empty() && !ImportModus) SpeichernUnter();
    else ProjektSchreiben();
}

void Projekt::SpeichernUnter() {
    const Dateiwahl wahl{Text(SpeichernTitel), Text(SpeichernName), Text(SpeichernFilter),
                         umfeld_.benutzer.Desktopordner()};
    const auto datei = ZieldateiWählen(umfeld_.benutzer, wahl, umfeld_.ansicht.Sprache,
                                       {Ersetzungsfrage.Deutsch, "Do you want to replace?"});
    SpeichernAbgebrochen = SpeichernAbgebrochen || !datei;
    if (!datei) return;
    Projektdatei = *datei;
    ProjektSchreiben();
    Titel = Projektdatei;
    umfeld_.benutzer.AnzeigeAuffrischen();
}

bool Projekt::NachÄnderungenFragen() {
    if (!Geändert) return true;
    switch (umfeld_.benutzer.Fragen({"Kinwright", Text(Änderungsfrage), Knöpfe::JaNeinAbbrechen, Zeichen::Frage})) {
    case Antwort::Ja: Speichern(); return !SpeichernAbgebrochen;
    case Antwort::Nein: return true;
    default: return false;
    }
}

void Projekt::mnuÖffnen() {
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen()) return;
    IniDatei = einstellungsDatei_;
    std::string ordner = LetzterOrdner(IniDatei);
    if (ordner.empty()) ordner = umfeld_.benutzer.Desktopordner();
    const auto datei = umfeld_.benutzer.DateiÖffnen({Text(ÖffnenTitel), "", Text(ÖffnenFilter), ordner});
    if (!datei) return;
    Projektdatei = *datei;
    if (!DateiVorhanden(Projektdatei)) return;
    Öffnen(Projektdatei);
    inhalt_.zuletzt.Eintragen(Projektdatei);
    umfeld_.anzeige.ChronikZeigen();
}

void Projekt::FreieNummernLeeren() {
    inhalt_.dokument.lstGelöschtePersNr.Leeren();
    inhalt_.dokument.lstGelöschtePLinien.Leeren();
}

void Projekt::DokumentLeeren() {
    inhalt_.dokument.SpeicherLeeren();
    FreieNummernLeeren();
}

bool Projekt::ProjektNeu() {
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen()) return false; // also when the saving was given up: nothing has happened then
    DokumentLeeren();
    Projektdatei.clear();
    Titel = "Kinwright";
    RingUndAuswahlLeeren(); // with it go the steps of undo and redo
    Zwischenablage &ablage = inhalt_.ablage;
    for (Satzliste *liste : {&ablage.ZA_PLines, &ablage.ZA_Personen, &ablage.ZA_KindLinien, &ablage.ZA_BeziehungsLinien,
                             &ablage.ZA_Pfeile, &inhalt_.legende.lstLegende})
        liste->Leeren();
    inhalt_.dokument.LegendeX = LegendeStartX;
    inhalt_.dokument.LegendeY = LegendeStartY;
    Geändert = ImportModus = false;
    umfeld_.fenster.Vorschau();
    return true;
}

void Projekt::mnuNeu() {
    if (!ProjektNeu()) return;
    umfeld_.fenster.Sichern();
    umfeld_.dienste.LegendeZeigen(false);
    Geändert = false;
}

void Projekt::mnuRecent(int platz) {
    if (platz < 1 || platz > Chronik::Plätze) return;
    const std::string datei = inhalt_.zuletzt[platz]; // saving can move the list
    if (Titel == datei) return;                       // so only just after a save under that name
    if (!DateiVorhanden(datei)) {
        umfeld_.benutzer.Fragen({Text(FehltTitel), Text(FehltText), Knöpfe::Ok, Zeichen::Warnung});
        return;
    }
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen()) return;
    Öffnen(datei);
    inhalt_.zuletzt.Vorziehen(datei);
    umfeld_.anzeige.ChronikZeigen();
}

} // namespace kw
