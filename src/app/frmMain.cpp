#include "app/frmMain.h"

#include "app/Befehle.h"
#include "app/Formulare.h"
#include "document/Dateien.h"
#include "document/Papier.h"
#include "document/Zahlen.h"
#include "editing/Marker.h"
#include "editing/Werkzeuge.h"
#include "rendering/Seite.h"

namespace kw {

namespace {

constexpr int OeffnenVerzögerung = 200; ///< ms; lets the window finish painting first
constexpr int ZoomBeimStart = 2;        ///< "100 %", whatever the settings say

struct Schema {
    const char *Menü;
    const char *Knopf;
};
constexpr Schema Schemata[] = {
    {"mnuSchwarzWeiß", "keySchwarzweiß"}, {"mnuGraustufen", "keyGraustufen"}, {"mnuFarbig", "keyFarbig"}};

/// The toolbar's key of a paper: "keyDINA4".
std::string Papierschlüssel(const Papier &papier) {
    std::string schlüssel = "key" + std::string(papier.Name);
    std::erase(schlüssel, ' ');
    return schlüssel;
}

} // namespace

std::string Entpackt(std::string_view kommandozeile) {
    std::string_view text = Getrimmt(kommandozeile);
    if (text.size() > 1 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
    return std::string(text);
}

frmMain::frmMain(Plattform plattform_, Zeichenfläche &canvas, Startangaben startangaben)
    : plattform(plattform_), start(std::move(startangaben)), picVorschau(canvas),
      bereich(canvas, ansicht, start.BildschirmBreite, start.BildschirmHöhe,
              {[this] { Vorschau(); }, [this] { ZoomAnzeigen(); }}),
      projekt(*this), werkbank{dokument, ansicht, auswahl,   lage,        auflagen,
                               ablage,   legende, bedienung, picVorschau, plattform.benutzer,
                               *this},
      leinwand(werkbank), Kommandozeile(Entpackt(start.Kommandozeile)) {
    BedienelementeAnlegen(bedienung);
}

void frmMain::Laden() {
    ansicht.Sprache = "en";
    // Asking for printers or fonts can take longer than all the rest of the start.
    plattform.benutzer.NachErstemBild([this] {
        SchriftlisteFüllen();
        DruckerErmitteln();
    });
    ansicht.StrichFaktor = 1;
    SeiteBestimmen(dokument, ansicht);
    ListenFüllen();
    ZweiteStufe();
    LinienfarbenSetzen();
    FarbschemaAnzeigen();
    // Every start begins in landscape and in colour. The ticks and the colours of the lines can still
    // follow the scheme of the last run: that mismatch is meant.
    dokument.Seitenlage = 2;
    ansicht.Farbschema = SchemaFarbig;
    SeiteAnzeigen();
    bereich.GrößeÄndern(start.BildschirmBreite, start.BildschirmHöhe);
    if (!einstellungen.Werkzeugleiste) WerkzeugleisteUmschalten();
    Sichern();
    bereich.Bildgrößenveränderung();
    if (!Getrimmt(Kommandozeile).empty()) plattform.benutzer.ZeitgeberStarten("Timer2", OeffnenVerzögerung);
    projekt.Geändert = false;
    NachEreignis();
}

void frmMain::ListenFüllen() {
    cboRaster.Einträge = {"3", "6", "9"};
    RasterWählen(0);
    Combo2.Einträge = {"8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "26", "28", "36"};
    Combo3.Einträge = {"Standard", "Fett", "Kursiv", "Fett-Kursiv"};
    for (const Papier &papier : Papiere) cboPaperSize.Einträge.Anhängen(std::string(papier.Name));
    cboPaperSize.ListIndex = 1;
    bereich.ZoomListeFuellen();
}

/// The settings, with their defaults; a damaged file gives defaults and no message.
void frmMain::ZweiteStufe() {
    IniDatei = start.IniDatei;
    einstellungen = EinstellungenAus(IniDatei);

    Textvorlage = "-5_-5_" + einstellungen.stdfontname + "_" + einstellungen.stdfont_m + "_0_0_0_0_0__0_0";
    ansicht.Farbschema = einstellungen.Farbschema;
    ansicht.Altersanzeige = einstellungen.Altersanzeige;
    ansicht.Sprache = einstellungen.Sprache;
    dokument.Seitenlage = einstellungen.Orientation;
    Beschriften(bedienung, ansicht.Sprache);
    RasterWählen(einstellungen.Raster);
    bereich.cboBildGröße.ListIndex = ZoomBeimStart;
    ChronikAnzeigen();
    dokument.Papiercode = einstellungen.Papiercode;
}

void frmMain::SchriftlisteFüllen() {
    Combo1.Einträge.Leeren();
    for (auto &name : plattform.benutzer.Schriftarten()) Combo1.Einträge.Anhängen(std::move(name));
    Combo1.ListIndex = Combo1.Einträge.Leer() ? -1 : 0;
    Combo2.ListIndex = 2;
    Combo3.ListIndex = 0;
}

void frmMain::DruckerErmitteln() {
    DruckerVorhanden = plattform.drucker.DeviceName().has_value();
    if (!DruckerVorhanden) return;
    const Druckränder ränder = plattform.drucker.Ränder();
    ansicht.DruckrandLinks = ränder.Links;
    ansicht.DruckrandRechts = ränder.Rechts;
    ansicht.DruckrandOben = ränder.Oben;
    ansicht.DruckrandUnten = ränder.Unten;
}

bool frmMain::Schließen() {
    projekt.SpeichernAbgebrochen = false;
    const bool gefragt = projekt.Geändert;
    if (!projekt.NachÄnderungenFragen()) return false;
    if (gefragt) UndoKnöpfeSperren();
    EinstellungenSichern();
    return true;
}

void frmMain::EinstellungenSichern() {
    IniDatei = start.IniDatei; // it may still name a project
    einstellungen.Orientation = DruckerVorhanden ? plattform.drucker.Orientation() : dokument.Seitenlage;
    einstellungen.LetzterPfad = Pfad(projekt.Projektdatei);
    einstellungen.Zoom = bereich.cboBildGröße.ListIndex;
    einstellungen.Farbschema = ansicht.Farbschema;
    einstellungen.Papiercode = dokument.Papiercode;
    einstellungen.Raster = cboRaster.ListIndex;
    einstellungen.Werkzeugleiste = bereich.WerkzeugleisteSichtbar();
    EinstellungenSchreiben(einstellungen, IniDatei);
}

void frmMain::ZeitgeberAbgelaufen(std::string_view name) {
    if (name == "Timer2" && !Getrimmt(Kommandozeile).empty()) projekt.Öffnen(Kommandozeile);
    if (name == "Timer3" && !Getrimmt(lage.PersRecord).empty()) FormÖffnen("frmSymbol");
    if (name == "Timer4") Vorschau();
    NachEreignis();
}

/// What every event ends with: the palette follows, the face shows it.
void frmMain::NachEreignis() {
    PaletteAuffrischen(werkbank);
    plattform.benutzer.AnzeigeAuffrischen();
}

void frmMain::MouseDown(int taste, double x, double y) {
    leinwand.MouseDown(taste, x, y);
    NachEreignis();
}

void frmMain::MouseMove(int taste, double x, double y) { leinwand.MouseMove(taste, x, y); }

void frmMain::MouseUp(int taste, double x, double y) {
    leinwand.MouseUp(taste, x, y);
    NachEreignis();
}

void frmMain::DblClick(double x, double y) {
    leinwand.DblClick(x, y);
    NachEreignis();
}

bool frmMain::BefehlAusführen(std::string_view name) {
    const Befehl *befehl = BefehlFinden(name);
    if (!befehl) return false;
    if (GehörtZu(name, "mnuBearbeiten")) mnuBearbeiten_Öffnen();
    for (const Menüzeile *zeile = MenüzeileFinden(name); zeile; zeile = MenüzeileFinden(zeile->Menü))
        if (const Bedienelement &element = bedienung[zeile->Name]; !element.Enabled || !element.Visible) return false;
    leinwand.GesteAbbrechen();
    befehl->Ausführen(*this);
    NachEreignis();
    return true;
}

void frmMain::PopupÖffnen(std::string_view menü) {
    if (const auto gewählt = plattform.benutzer.PopupZeigen(menü)) BefehlAusführen(*gewählt);
}

void frmMain::FormÖffnen(std::string_view name) {
    Dialogumgebung umgebung{werkbank, einstellungen, start.IniDatei, plattform.uhr, plattform.drucker, *this};
    const auto form = FormularErzeugen(name, umgebung);
    plattform.benutzer.FormZeigen(*form);
}

void frmMain::LegendeZeigen(bool sichtbar) {
    bedienung["btnLegende"].Checked = sichtbar;
    Legende();
}

void frmMain::SeiteAnwenden() {
    bedienung["btnBlattränder"].Checked = ansicht.bDruckrandAnzeigen;
    SeiteAnzeigen();
    bereich.Bildgrößenveränderung();
}

void frmMain::GenogrammDrucken() {
    plattform.drucker.OrientationSetzen(bedienung["btnQuerformat"].Checked ? 2 : 1);
    Zeichnung bild = DasBild();
    plattform.drucker.Drucken({NameOhneKennung(DateiName(projekt.Projektdatei)), ansicht.Farbschema == SchemaFarbig,
                               ansicht.SeitenBreite, ansicht.SeitenHöhe,
                               [&](Zeichenfläche &papier) { DruckZeichnen(papier, bild); }});
}

void frmMain::mnuBearbeiten_Öffnen() {
    bedienung["mnuAusschneiden"].Enabled = bedienung["mnuKopieren"].Enabled = auswahl.HatKopierbares();
    bedienung["mnuEinfügen"].Enabled = ablage.HatEtwas();
}

void frmMain::cmdUndo() {
    if (ring.Rückgängig(dokument)) NachSchrittImRing();
}

void frmMain::cmdredo() {
    if (ring.Wiederholen(dokument)) NachSchrittImRing();
}

void frmMain::NachSchrittImRing() {
    UndoKnöpfeSetzen();
    NichtsAuswählen();
    Vorschau();
}

void frmMain::NichtsAuswählen() {
    AllesAbwählen(werkbank);
    bedienung["mnuLöschen1"].Enabled = bedienung["mnuAusschneiden"].Enabled = false;
    PaletteAuffrischen(werkbank);
}

void frmMain::Vorschau() {
    Zeichnung bild = DasBild();
    VorschauZeichnen(picVorschau, bild);
    plattform.benutzer.AnzeigeAuffrischen();
}

void frmMain::Sichern() {
    ring.Sichern(dokument);
    UndoKnöpfeSetzen();
    projekt.Geändert = true;
}

void frmMain::UndoKnöpfeSetzen() {
    bedienung["btnUndo"].Enabled = bedienung["mnuRückgängig"].Enabled = ring.UndoSchritte() >= 1;
    bedienung["btnRedo"].Enabled = bedienung["mnuWiederholen"].Enabled = ring.RedoSchritte() >= 1;
}

void frmMain::UndoKnöpfeSperren() { bedienung["btnUndo"].Enabled = bedienung["btnRedo"].Enabled = false; }

void frmMain::AuswahlUndRingLeeren() {
    ring.Leeren();
    UndoKnöpfeSetzen();
    NichtsAuswählen();
}

void frmMain::Legende() {
    dokument.LegendeSichtbar = bedienung["btnLegende"].Checked;
    LegendenknopfBeschriften();
    if (dokument.LegendeSichtbar) LegendeAufbauen(dokument, legende);
    Vorschau();
}

void frmMain::LegendenknopfBeschriften() {
    const bool sichtbar = dokument.LegendeSichtbar;
    bedienung["btnLegende"].Caption = IstDeutsch() ? sichtbar ? "Legende ausblenden" : "Legende anzeigen"
                                      : sichtbar   ? "Hide Legend"
                                                   : "Show Legend";
}

void frmMain::WerkzeugleisteUmschalten() {
    const bool zeigen = !bereich.WerkzeugleisteSichtbar();
    if (zeigen) bereich.WerkzeugleisteZeigen();
    else bereich.WerkzeugleisteVerbergen();
    bedienung["mnuWerkzeugleiste"].Caption = IstDeutsch()
                                                 ? zeigen ? "Werkzeugleiste ausblenden" : "Werkzeugleiste einblenden"
                                             : zeigen ? "Hide Toolbar"
                                                      : "Show Toolbar";
}

void frmMain::FarbschemaWählen(int schema) {
    ansicht.Farbschema = schema;
    FarbschemaAnzeigen();
    LinienfarbenSetzen();
    Vorschau();
}

void frmMain::LinienfarbenSetzen() { ansicht.Linienfarben = LinienfarbenFür(ansicht.Farbschema); }

void frmMain::FarbschemaAnzeigen() {
    for (int i = 0; i < 3; ++i)
        bedienung[Schemata[i].Menü].Checked = bedienung[Schemata[i].Knopf].Checked = i == ansicht.Farbschema;
}

void frmMain::SeiteAnzeigen() {
    for (int i = 0; i < static_cast<int>(Papiere.size()); ++i) {
        const Papier &papier = Papiere[static_cast<size_t>(i)];
        const bool gilt = papier.Code == dokument.Papiercode;
        bedienung[Papierschlüssel(papier)].Checked = gilt;
        if (!gilt) continue;
        bedienung["btnPapier"].Caption = papier.Name;
        cboPaperSize.ListIndex = i;
    }
    bedienung["btnHochformat"].Checked = dokument.Seitenlage == 1;
    bedienung["btnQuerformat"].Checked = dokument.Seitenlage != 1;
}

void frmMain::ZoomAnzeigen() {
    const std::string zoom = ZahlSchreiben(ZahlLesen(bereich.cboBildGröße.Text())) + "%";
    bedienung["btnZoom"].Caption = zoom;
    bedienung.NurAnkreuzen("keyZoom", "keyZoom" + zoom.substr(0, zoom.size() - 1));
    bedienung["btnBildGrößer"].Enabled = bereich.KannVergrößern();
    bedienung["btnBildKleiner"].Enabled = bereich.KannVerkleinern();
}

void frmMain::RasterWählen(int listIndex) {
    cboRaster.ListIndex = listIndex;
    ansicht.Rasterweite = ZahlLesen(cboRaster.Text()) / 10;
}

void frmMain::ChronikAnzeigen() {
    bool einer = false;
    for (int i = 1; i <= Chronik::Plätze; ++i) {
        const std::string &pfad = einstellungen.Zuletzt[i];
        Bedienelement &eintrag = bedienung["mnuRecent(" + std::to_string(i) + ")"];
        eintrag.Caption = "  " + std::to_string(i) + " " + DateiName(pfad);
        eintrag.Visible = !pfad.empty();
        einer = einer || eintrag.Visible;
    }
    bedienung["mnuZuletztGeöffnet"].Visible = bedienung["mnuStr3"].Visible = einer;
    bedienung["mnuZuletztGeöffnet"].Enabled = einer;
}

} // namespace kw
