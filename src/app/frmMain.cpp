#include "app/frmMain.h"

#include "app/Befehle.h"
#include "app/Formulare.h"
#include "commands/Menuetafel.h"
#include "dialogs/frmEinstellungen.h"
#include "document/Dateien.h"
#include "document/Texte.h"
#include "editing/Abwahl.h"
#include "editing/Werkzeuge.h"
#include "output/NamenloseAusgabe.h"
#include "output/Stammbaumziel.h"
#include "output/Textausgabe.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"
#include "platform/Drucker.h"
#include "rendering/Seite.h"
#include "rendering/Zeichnung.h"

#include <optional>
#include <utility>

namespace kw {

namespace {

constexpr int FassungenVerzögerung = 100; ///< ms; before anything else is opened
constexpr int StartVerzögerung = 200;     ///< ms; lets the window finish painting first
constexpr int SpracheVerzögerung = 300;   ///< ms
constexpr int ZoomBeimStart = 2;          ///< "100 %", whatever the settings say

} // namespace

std::string Entpackt(std::string_view kommandozeile) {
    std::string_view text = Getrimmt(kommandozeile);
    if (text.size() > 1 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
    return std::string(text);
}

frmMain::frmMain(Plattform plattform_, Zeichenfläche &canvas, Startangaben startangaben)
    : plattform(plattform_), start(std::move(startangaben)), picVorschau(canvas),
      bereich(canvas, ansicht, start.BildschirmBreite, start.BildschirmHöhe,
              {[this] { Vorschau(); },
               [this] {
                   anzeige.ZoomZeigen();
                   anzeige.MöglichesZeigen();
               }}),
      einstellungsablage(start.IniDatei), druck(plattform.drucker, plattform.benutzer, ansicht, dokument),
      anzeige(bedienung, {dokument, ansicht, auswahl, lage, ablage, ring, einstellungen.Zuletzt, bereich, cboRaster,
                          druck, import}),
      darstellung(ansicht, dokument, cboRaster, bereich, anzeige, plattform.drucker, *this),
      hinweis(bedienung, plattform.benutzer), wegweiser(bedienung, {dokument, ansicht, auswahl, lage, ring, tastatur}),
      bildexport(plattform.benutzer, plattform.bilder, bereich, ansicht,
                 {[this] { NichtsAuswählen(werkbank); }, [this](Zeichenfläche &papier) { AufPapier(papier); }}),
      netz(start.Netzordner), projekt({dokument, legende, ring, ablage, einstellungen.Zuletzt, netz},
                                      {ansicht, anzeige, plattform.benutzer, *this, *this,
                                       [this] {
                                           NichtsAuswählen(werkbank);
                                           tastatur.Vergessen();
                                       }},
                                      start.IniDatei),
      import(start, {dokument, lage, ansicht}, projekt, plattform.benutzer, *this),
      stammbaum(plattform.benutzer, ansicht, start.IniDatei, [this](Formularname name) { FormÖffnen(name); }),
      werkbank{dokument, ansicht, auswahl, lage, auflagen, ablage, legende, picVorschau, plattform.benutzer, *this},
      leinwand(werkbank), Kommandozeile(Entpackt(start.Kommandozeile)) {
    BedienelementeAnlegen(bedienung);
}

void frmMain::Laden() {
    ansicht.Sprache = Sprache::Englisch;
    // Asking for printers can take longer than all the rest of the start.
    plattform.benutzer.NachErstemBild([this] {
        DruckerErmitteln();
        netz.Aufräumen();
    });
    ansicht.StrichFaktor = 1;
    SeiteBestimmen(dokument, ansicht);
    ListenFüllen();
    ZweiteStufe();
    darstellung.LinienfarbenSetzen();
    anzeige.FarbschemaZeigen();
    // Every start begins in landscape and in colour. The ticks and the colours of the lines can still
    // follow the scheme of the last run: that mismatch is meant.
    dokument.Seitenlage = 2;
    ansicht.Farbschema = SchemaFarbig;
    darstellung.SeiteÜbernehmen();
    bereich.GrößeÄndern(start.BildschirmBreite, start.BildschirmHöhe);
    if (!einstellungen.Werkzeugleiste) darstellung.WerkzeugleisteUmschalten();
    Sichern();
    bereich.Bildgrößenveränderung();
    ZeitgeberStellen();
    projekt.Geändert = false;
    projekt.Loslassen(); // an empty page is nothing to keep
    einstellungsablage.Ausgangslage(AktuelleEinstellungen());
    NachEreignis();
}

/// What the start leaves for when the window has been painted.
void frmMain::ZeitgeberStellen() {
    const auto stellen = [this](const char *name, int ms) { plattform.benutzer.ZeitgeberStarten(name, ms); };
    if (netz.HatUnbeantwortete()) stellen("tmrFassungen", FassungenVerzögerung);
    if (Datenimport::IstVerlangt(start.Kommandozeile)) stellen("Timer5", StartVerzögerung);
    else if (!Getrimmt(Kommandozeile).empty()) stellen("Timer2", StartVerzögerung);
    if (einstellungen.OhneSprache) stellen("tmrLanguage", SpracheVerzögerung);
}

void frmMain::ListenFüllen() {
    cboRaster.Einträge = {"3", "6", "9"};
    darstellung.RasterSetzen(0);
    bereich.ZoomListeFuellen();
}

/// The settings, with their defaults; a damaged file gives defaults and no message.
void frmMain::ZweiteStufe() {
    projekt.IniDatei = start.IniDatei;
    einstellungen = einstellungsablage.Lesen();
    ansicht.Farbschema = einstellungen.Farbschema;
    ansicht.Altersanzeige = einstellungen.Altersanzeige;
    ansicht.Sprache = einstellungen.Sprache;
    dokument.Seitenlage = einstellungen.Orientation;
    anzeige.Beschriften();
    darstellung.RasterSetzen(einstellungen.Raster);
    bereich.cboBildGröße.ListIndex = ZoomBeimStart;
    anzeige.ChronikZeigen();
    dokument.Papiercode = einstellungen.Papiercode;
}

/// A print system that takes its time is asked again until it answers.
void frmMain::DruckerErmitteln() {
    constexpr int Nachfragen = 2000; // ms
    if (!druck.Ermitteln()) plattform.benutzer.ZeitgeberStarten("tmrDrucker", Nachfragen);
    anzeige.DruckerZeigen();
}

bool frmMain::Schließen() {
    const bool gefragt = projekt.Geändert;
    if (!SitzungBeenden()) return false;
    if (gefragt) anzeige.UndoKnöpfeSperren();
    projekt.Loslassen();
    return true;
}

/// What was offered to be taken back while it went on is no step when nothing was to be kept.
void frmMain::TastenlaufBeenden() {
    const bool unterwegs = tastatur.IstUnterwegs();
    tastatur.LaufBeenden();
    if (unterwegs) anzeige.UndoKnöpfeZeigen();
}

bool frmMain::SitzungBeenden() {
    TastenlaufBeenden();
    leinwand.GesteAbbrechen(); // what stands on the page already counts as a change
    projekt.SpeichernAbgebrochen = false;
    aufgegeben_ = false;
    if (!projekt.NachÄnderungenFragen()) return false;
    aufgegeben_ = projekt.Geändert;
    EinstellungenSichern();
    return true;
}

/// What was given up goes only now: until here somebody else could have kept the session.
void frmMain::Beenden() {
    tastatur.LaufBeenden();
    Festhalten();
    if (aufgegeben_) projekt.Loslassen();
    EinstellungenSichern();
}

Einstellungen frmMain::AktuelleEinstellungen() const {
    Einstellungen e = einstellungen;
    e.Orientation = dokument.Seitenlage;
    e.LetzterPfad = Pfad(projekt.Projektdatei);
    e.Zoom = bereich.cboBildGröße.ListIndex;
    e.Farbschema = ansicht.Farbschema;
    e.Papiercode = dokument.Papiercode;
    e.Raster = cboRaster.ListIndex;
    e.Werkzeugleiste = bereich.WerkzeugleisteSichtbar();
    return e;
}

void frmMain::EinstellungenSichern() {
    projekt.IniDatei = start.IniDatei;
    einstellungen = AktuelleEinstellungen();
    if (const auto stand = plattform.benutzer.Fensterstand()) einstellungen.Fenster = stand;
    if (plattform.drucker.DeviceName()) einstellungen.Orientation = plattform.drucker.Orientation();
    einstellungsablage.Abschließen(einstellungen);
}

/// What the user has given up stays so: the clock is no sign that the session goes on, unless it brings something new.
void frmMain::ZeitgeberAbgelaufen(std::string_view name) {
    const auto aufgegeben = aufgegeben_ ? std::optional(dokument) : std::nullopt;
    if (name == "tmrFassungen" && netz.HatUnbeantwortete()) FormÖffnen(Name::frmFassungen);
    if (name == "Timer2" && !Getrimmt(Kommandozeile).empty()) KommandozeileÖffnen();
    if (name == "Timer3" && !Getrimmt(lage.PersRecord).empty()) FormÖffnen(Name::frmSymbol);
    if (name == "Timer4") Vorschau();
    if (name == "Timer5") DatenÜbernehmen();
    if (name == "tmrDrucker") DruckerErmitteln();
    if (name == "tmrLanguage" && !spracheErfragt_) SpracheErfragen();
    if (name == "tmrToolTipp") hinweis.Zeigen();
    if (name == "tmrLauf") TastenlaufBeenden();
    NachEreignis();
    aufgegeben_ = aufgegeben && projekt.Geändert && aufgegeben->GleicherStand(dokument);
}

/// The command line's project. One that came from the safety net before it is asked about. A family tree opens a form,
/// which is to speak the user's language from the first start on.
void frmMain::KommandozeileÖffnen() {
    if (!Stammbaumimport::IstStammbaum(Kommandozeile)) {
        if (projekt.NachÄnderungenFragen()) projekt.Öffnen(Kommandozeile);
        return;
    }
    if (einstellungen.OhneSprache) SpracheErfragen();
    stammbaum.Öffnen(Kommandozeile);
}

/// Brings the safety net up to date with what the event has done. That it can't be is said once.
void frmMain::Festhalten() {
    static constexpr Zweisprachig NetzFehlt{
        "Das Sicherheitsnetz kann nicht geschrieben werden. Bitte speichern Sie öfter.",
        "The safety net can't be written. Please save more often."};
    const bool gehalten = projekt.Nachführen();
    if (!gehalten && !netzGemeldet_) lage.Hinweis = &NetzFehlt;
    netzGemeldet_ = !gehalten;
}

/// What every event ends with: the safety net has its outcome, what can be chosen follows, the face shows it, the
/// settings file has it.
void frmMain::NachEreignis() {
    aufgegeben_ = false;
    Festhalten();
    tastatur.NachEreignis();
    anzeige.MöglichesZeigen();
    wegweiser.Zeigen();
    ansager.NachEreignis();
    plattform.benutzer.AnzeigeAuffrischen();
    einstellungsablage.Nachführen(AktuelleEinstellungen());
}

void frmMain::PopupÖffnen(Befehlsname menü) {
    NachEreignis(); // what the press has selected shows beside the open menu
    if (const auto gewählt = plattform.benutzer.PopupZeigen(menü)) BefehlAusführen(*gewählt);
}

void frmMain::FormÖffnen(Formularname name) {
    Dialogumgebung umgebung = FürFormulare();
    const auto form = FormularErzeugen(name, umgebung);
    plattform.benutzer.FormZeigen(*form);
}

Dialogumgebung frmMain::FürFormulare() {
    return {werkbank, einstellungen, einstellungsablage, plattform.uhr, plattform.drucker,
            *this,    netz,          stammbaum.Vorlage()};
}

Befehlsumgebung frmMain::FürBefehle() {
    return {werkbank, projekt,    darstellung, anzeige, bereich,   import, stammbaum,
            druck,    bildexport, ring,        *this,   bedienung, start};
}

/// At the very first start, and until one has been chosen.
void frmMain::SpracheErfragen() {
    spracheErfragt_ = true;
    Dialogumgebung umgebung = FürFormulare();
    frmEinstellungen form(umgebung, true);
    plattform.benutzer.FormZeigen(form);
}

/// What the command line hands over comes on a page that is laid out.
void frmMain::DatenÜbernehmen() {
    plattform.benutzer.AnzeigeAuffrischen();
    bereich.Bildgrößenveränderung();
    import.Startaufruf();
}

void frmMain::LegendeZeigen(bool sichtbar) {
    dokument.LegendeSichtbar = sichtbar;
    anzeige.LegendeZeigen();
    if (sichtbar) LegendeAufbauen(dokument, legende);
    Vorschau();
}

void frmMain::SeiteAnwenden() {
    anzeige.DruckränderZeigen();
    darstellung.SeiteGeändert();
}

bool frmMain::GenogrammDrucken() {
    return druck.GenogrammDrucken([this](Zeichenfläche &papier) { AufPapier(papier); }, projekt.Projektdatei);
}

void frmMain::AusschnittAusgeben(const Bildausschnitt &cm, bool inDatei) {
    if (inDatei) bildexport.AuswahlAlsBildSpeichern(cm, projekt.Projektdatei);
    else bildexport.AusschnittKopieren(cm);
}

bool frmMain::FassungÖffnen(const std::string &name) {
    const auto fassung = netz.Lesen(name);
    if (!fassung || !projekt.FassungÖffnen(*fassung)) return false;
    Festhalten();
    return true;
}

bool frmMain::StammbaumSpeichern(const std::string &inhalt) {
    return kw::StammbaumSpeichern(plattform.benutzer, ansicht.Sprache, projekt.Projektdatei, inhalt);
}

bool frmMain::OhneNamenExportieren(Lebenszeit zeit) {
    const Ausgabewege wege{plattform.benutzer, plattform.bilder, plattform.uhr};
    return OhneNamenAusgeben(wege, dokument, ansicht, zeit, projekt.Projektdatei);
}

bool frmMain::NeuesProjekt(const Dokument &seite, const std::string &quelle) {
    if (!projekt.NeuMit(seite, quelle)) return false;
    Festhalten();
    return true;
}

void frmMain::TextSpeichern(const std::string &titel, const std::string &text) {
    kw::TextSpeichern(plattform.benutzer, ansicht.Sprache, titel, text);
}

void frmMain::TextDrucken(const std::string &titel, const std::string &text) { druck.TextDrucken(titel, text); }

void frmMain::mnuBearbeiten_Öffnen() {
    lage.Angebot.Ausschneiden = lage.Angebot.Kopieren = auswahl.HatKopierbares();
    lage.Angebot.Einfügen = ablage.HatEtwas();
    anzeige.MöglichesZeigen();
}

Zeichnung frmMain::DasBild() const { return {dokument, ansicht, auswahl, lage, legende, plattform.uhr}; }

void frmMain::Übernehmen(const Zeichenbefund &befund) { Anwenden(befund, dokument, ansicht, lage, legende); }

void frmMain::AufPapier(Zeichenfläche &papier) { Übernehmen(DruckZeichnen(papier, DasBild())); }

void frmMain::Vorschau() {
    SeiteBestimmen(dokument, ansicht);
    Übernehmen(VorschauZeichnen(picVorschau, DasBild()));
    plattform.benutzer.AnzeigeAuffrischen();
}

void frmMain::Sichern() {
    ring.Sichern(dokument);
    anzeige.UndoKnöpfeZeigen();
    projekt.Geändert = true;
}

} // namespace kw
