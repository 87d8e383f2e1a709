#include "app/Projekt.h"

#include "app/Anzeige.h"
#include "app/Projektmeldungen.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Chronik.h"
#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/Einstellungen.h"
#include "document/Felder.h"
#include "document/ProjektDatei.h"
#include "document/Sicherheitsnetz.h"
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

/// Everything is read before anything changes. What could be read of a damaged file counts; where a whole load would
/// end, it ends.
bool Projekt::Laden(Quelle quelle) {
    const Sprache sprache = umfeld_.ansicht.Sprache;
    const Profil profil(std::move(quelle.Inhalt));
    Dokument neu = inhalt_.dokument; // a page or legend that the file doesn't tell stays
    neu.LegendeSichtbar = false;
    const Ladebefund befund = ProjektLesen(profil, neu);
    if (quelle.AusDemNetz) neu.OhneStandardsymbole = OhneStandardsymboleLesen(profil);
    if (!befund.IstProjekt) {
        umfeld_.benutzer.Fragen(KeinProjektGefunden(quelle.Projektdatei, quelle.AusDemNetz, sprache));
        return false;
    }
    RingUndAuswahlLeeren();
    FreieNummernLeeren(); // those of the project before may be in use in this one, which need not say its own
    IniDatei = Projektdatei = quelle.Projektdatei;
    Titel = Projektdatei.empty() ? "Kinwright" : "Kinwright  " + Projektdatei;
    unganz_ = befund.SpeichernVerliert();
    Anwenden(std::move(neu), befund.BisZumEnde);
    Loslassen();
    if (!befund.Unversehrt())
        umfeld_.benutzer.Fragen(NurZumTeilGeladen(Projektdatei, Ladetext(befund, sprache), quelle.AusDemNetz, sprache));
    return true;
}

/// The lists of free numbers and the legend are made at the end only: a load that was cut short has none.
void Projekt::Anwenden(Dokument &&neu, bool ganz) {
    Dokument &dokument = inhalt_.dokument;
    inhalt_.legende.lstLegende.Leeren();
    dokument.LegendeSichtbar = false;
    umfeld_.anzeige.LegendeZeigen();
    dokument.Papiercode = neu.Papiercode;
    dokument.Seitenlage = neu.Seitenlage;
    umfeld_.dienste.SeiteAnwenden();
    neu.lstGelöschtePersNr.Leeren();
    neu.lstGelöschtePLinien.Leeren();
    dokument = std::move(neu);
    if (ganz) {
        umfeld_.anzeige.LegendeZeigen();
        LegendeAufbauen(dokument, inhalt_.legende);
        dokument.FreieNummernAufbauen();
    }
    umfeld_.fenster.Vorschau();
    umfeld_.fenster.Sichern();
    Geändert = false;
    umfeld_.benutzer.AnzeigeAuffrischen();
}

/// Before another project comes.
void Projekt::RingUndAuswahlLeeren() {
    inhalt_.ring.Leeren();
    stammbaum_.clear();
    umfeld_.anzeige.UndoKnöpfeZeigen();
    umfeld_.abwählen();
    umfeld_.anzeige.MöglichesZeigen();
}

bool Projekt::Öffnen(const std::string &datei) {
    Quelle quelle{datei, {}};
    const Dateibefund befund = DateiLesen(datei, quelle.Inhalt);
    if (!befund.Gelungen()) {
        umfeld_.benutzer.Fragen(LadenGescheitert(datei, befund, umfeld_.ansicht.Sprache));
        return false;
    }
    const Fingerabdruck abdruck = FingerabdruckVon(quelle.Inhalt);
    if (!Laden(std::move(quelle))) return false;
    herkunft_ = abdruck;
    inhalt_.zuletzt.Aktualisieren(Projektdatei);
    umfeld_.anzeige.ChronikZeigen();
    return true;
}

bool Projekt::ÖffnenMitFrage(const std::string &datei) {
    SpeichernAbgebrochen = false;
    return IstDa(datei) && NachÄnderungenFragen() && Öffnen(datei);
}

bool Projekt::FassungÖffnen(const Netzeintrag &fassung) {
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen() || !Laden({fassung.Kopf.Projektdatei, fassung.Inhalt, true})) return false;
    if (!unganz_) inhalt_.netz.Ablösen(fassung.Kopf.Name); // of what is damaged the page isn't all
    herkunft_ = fassung.Kopf.Herkunft;
    unganz_ = unganz_ || fassung.Kopf.Unganz;
    ImportModus = fassung.Kopf.Import;
    Geändert = true;
    return true;
}

void Projekt::Loslassen() { inhalt_.netz.Loslassen(inhalt_.dokument); }

bool Projekt::Nachführen() {
    if (!Geändert) return true;
    Netzkopf kopf;
    kopf.Projektdatei = Projektdatei;
    kopf.Herkunft = herkunft_;
    kopf.Unganz = unganz_;
    kopf.Import = ImportModus;
    return inhalt_.netz.Festhalten(inhalt_.dokument, std::move(kopf)).Gelungen();
}

bool Projekt::ProjektSchreiben(const std::string &datei) {
    std::string inhalt;
    // A file that is there but can't be read would lose its foreign keys: it isn't written either.
    Dateibefund befund = DateiLesen(datei, inhalt);
    if (befund.Grund == Ursache::FehltDatei) befund = {};
    if (befund.Gelungen()) {
        Profil profil(std::move(inhalt));
        ProjektEintragen(inhalt_.dokument, profil);
        inhalt = profil.Inhalt();
        Schreibweise wie;
        wie.Erwartet = herkunft_.value_or(Fingerabdruck{}); // a new document expects nothing of ours there
        wie.ImmerBeiseite = unganz_;
        wie.Wahrer = &inhalt_.netz;
        befund = DateiSchreiben(datei, inhalt, wie);
    }
    if (!befund.Gelungen()) {
        Nachführen();
        umfeld_.benutzer.Fragen(SpeichernGescheitert(datei, befund, WasSicherIst(), umfeld_.ansicht.Sprache));
        return false;
    }
    IniDatei = Projektdatei = datei;
    herkunft_ = FingerabdruckVon(inhalt);
    Geändert = unganz_ = false;
    Loslassen();
    inhalt_.zuletzt.Eintragen(Projektdatei);
    umfeld_.anzeige.ChronikZeigen();
    umfeld_.benutzer.AnzeigeAuffrischen();
    return true;
}

Verbleib Projekt::WasSicherIst() const {
    if (!Geändert || inhalt_.netz.WieLosgelassen(inhalt_.dokument)) return Verbleib::Unverändert;
    return inhalt_.netz.Hält(inhalt_.dokument) ? Verbleib::ImNetz : Verbleib::NurAufDerSeite;
}

/// Its content decides, whatever its time says. A file that has gone is nobody's change, one that can't be read fails
/// when it is written.
bool Projekt::IstFremdGeändert() const {
    std::string inhalt;
    return DateiVorhanden(Projektdatei) && DateiLesen(Projektdatei, inhalt).Gelungen() &&
           FingerabdruckVon(inhalt) != herkunft_;
}

bool Projekt::Speichern() {
    std::error_code fehler; // a folder that can't be made is told when the file is written
    if (ImportModus) std::filesystem::create_directories(Pfad(Projektdatei), fehler);
    if (Projektdatei.empty() && !ImportModus) return SpeichernUnter();
    if (!IstFremdGeändert()) return ProjektSchreiben(Projektdatei);
    switch (umfeld_.benutzer.Fragen(FremdeÄnderungsfrage(Projektdatei, umfeld_.ansicht.Sprache))) {
    case Antwort::Ja: return ProjektSchreiben(Projektdatei);
    case Antwort::Nein: return SpeichernUnter();
    default: SpeichernAbgebrochen = true; return false;
    }
}

bool Projekt::SpeichernUnter() {
    Dateiwahl wahl{Text(SpeichernTitel), Text(SpeichernName), Text(SpeichernFilter), umfeld_.benutzer.Desktopordner()};
    if (Projektdatei.empty() && !stammbaum_.empty()) {
        wahl.Vorschlag = NameOhneKennung(DateiName(stammbaum_));
        wahl.Ordner = Ordner(stammbaum_);
    }
    const auto datei = ZieldateiWählen(umfeld_.benutzer, wahl, umfeld_.ansicht.Sprache,
                                       {Ersetzungsfrage.Deutsch, "Do you want to replace?"});
    SpeichernAbgebrochen = SpeichernAbgebrochen || !datei;
    if (!datei || !ProjektSchreiben(*datei)) return false;
    Titel = Projektdatei;
    umfeld_.benutzer.AnzeigeAuffrischen();
    return true;
}

bool Projekt::NachÄnderungenFragen() {
    if (!Geändert) return true;
    switch (umfeld_.benutzer.Fragen({"Kinwright", Text(Änderungsfrage), Knöpfe::JaNeinAbbrechen, Zeichen::Frage})) {
    case Antwort::Ja: return Speichern();
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
    if (datei) Öffnen(*datei); // which enters it among the recent ones
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
    Geändert = ImportModus = unganz_ = false;
    herkunft_.reset();
    umfeld_.fenster.Vorschau();
    return true;
}

/// A new project that is shown, the first step to go back to.
bool Projekt::LeereSeite() {
    if (!ProjektNeu()) return false;
    umfeld_.fenster.Sichern();
    umfeld_.dienste.LegendeZeigen(false);
    Geändert = false;
    Loslassen();
    return true;
}

void Projekt::mnuNeu() { LeereSeite(); }

bool Projekt::NeuMit(const Dokument &seite, const std::string &stammbaum) {
    if (!LeereSeite()) return false;
    stammbaum_ = stammbaum;
    Dokument &dokument = inhalt_.dokument;
    dokument.Papiercode = seite.Papiercode;
    dokument.Seitenlage = seite.Seitenlage;
    for (const SpeicherZeile &speicher : SpeicherTabelle) dokument.*speicher.Liste = seite.*speicher.Liste;
    umfeld_.dienste.SeiteAnwenden();
    umfeld_.fenster.Vorschau();
    umfeld_.fenster.Sichern();
    return true;
}

/// A file that has gone is told.
bool Projekt::IstDa(const std::string &datei) {
    const bool da = DateiVorhanden(datei);
    if (!da) umfeld_.benutzer.Fragen({Text(FehltTitel), Text(FehltText), Knöpfe::Ok, Zeichen::Warnung});
    return da;
}

void Projekt::mnuRecent(int platz) {
    if (platz < 1 || platz > Chronik::Plätze) return;
    const std::string datei = inhalt_.zuletzt[platz]; // saving can move the list
    if (Titel == datei || !IstDa(datei)) return;      // the title only just after a save under that name
    SpeichernAbgebrochen = false;
    if (!NachÄnderungenFragen() || !Öffnen(datei)) return;
    inhalt_.zuletzt.Vorziehen(datei);
    umfeld_.anzeige.ChronikZeigen();
}

} // namespace kw
