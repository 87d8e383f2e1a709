#include "app/Anzeige.h"

#include "app/frmMain.h"
#include "commands/basLanguage.h"
#include "document/Dateien.h"
#include "document/Papier.h"
#include "document/Zahlen.h"
#include "editing/Werkzeuge.h"

namespace kw {

namespace {

constexpr int HinweisVerzögerung = 500; ///< ms

struct Schema {
    const char *Menü;
    const char *Knopf;
};
constexpr Schema Schemata[] = {
    {"mnuSchwarzWeiß", "keySchwarzweiß"}, {"mnuGraustufen", "keyGraustufen"}, {"mnuFarbig", "keyFarbig"}};

/// A caption that says what the next use does.
struct Schaltertext {
    const char *AusDeutsch, *AusEnglisch; ///< while it shows
    const char *EinDeutsch, *EinEnglisch;
};
constexpr Schaltertext Legendentext{"Legende ausblenden", "Hide Legend", "Legende anzeigen", "Show Legend"};
constexpr Schaltertext Rastertext{"Raster ausblenden", "Hide Grid", "Raster anzeigen", "Show Grid"};
constexpr Schaltertext Palettentext{"Werkzeugleiste ausblenden", "Hide Toolbar", "Werkzeugleiste einblenden",
                                    "Show Toolbar"};

const char *Text(const Schaltertext &text, bool sichtbar, bool deutsch) {
    if (sichtbar) return deutsch ? text.AusDeutsch : text.AusEnglisch;
    return deutsch ? text.EinDeutsch : text.EinEnglisch;
}

/// The toolbar's key of a paper: "keyDINA4".
std::string Papierschlüssel(const Papier &papier) {
    std::string schlüssel = "key" + std::string(papier.Name);
    std::erase(schlüssel, ' ');
    return schlüssel;
}

} // namespace

void Anzeige::Beschriften() {
    frmMain &h = haupt_;
    MenuesBeschriften(h.bedienung, h.ansicht.Sprache, h.druck.DefaultPrinter);
    LegendenknopfBeschriften();
}

void Anzeige::LegendenknopfBeschriften() {
    haupt_.bedienung["btnLegende"].Caption = Text(Legendentext, haupt_.dokument.LegendeSichtbar, haupt_.IstDeutsch());
}

void Anzeige::ChronikZeigen() {
    bool einer = false;
    for (int i = 1; i <= Chronik::Plätze; ++i) {
        const std::string &pfad = haupt_.einstellungen.Zuletzt[i];
        Bedienelement &eintrag = haupt_.bedienung["mnuRecent(" + std::to_string(i) + ")"];
        eintrag.Caption = "  " + std::to_string(i) + " " + DateiName(pfad);
        eintrag.Visible = !pfad.empty();
        einer = einer || eintrag.Visible;
    }
    Bedienelement &menü = haupt_.bedienung["mnuZuletztGeöffnet"];
    menü.Enabled = menü.Visible = haupt_.bedienung["mnuStr3"].Visible = einer;
}

void Anzeige::SeiteZeigen() {
    frmMain &h = haupt_;
    for (const Papier &papier : Papiere) {
        const bool gilt = papier.Code == h.dokument.Papiercode;
        h.bedienung[Papierschlüssel(papier)].Checked = gilt;
        if (gilt) h.bedienung["btnPapier"].Caption = papier.Name;
    }
    h.bedienung["btnHochformat"].Checked = h.dokument.Seitenlage == 1;
    h.bedienung["btnQuerformat"].Checked = h.dokument.Seitenlage != 1;
}

void Anzeige::ZoomZeigen() {
    frmMain &h = haupt_;
    const std::string zoom = h.bereich.cboBildGröße.Text();
    h.bedienung["btnZoom"].Caption = zoom;
    h.bedienung.NurAnkreuzen("keyZoom", "keyZoom" + ZahlSchreiben(ZahlLesen(zoom)));
    h.bedienung["btnBildGrößer"].Enabled = h.bereich.KannVergrößern();
    h.bedienung["btnBildKleiner"].Enabled = h.bereich.KannVerkleinern();
}

void Anzeige::FarbschemaZeigen() {
    for (int i = 0; i < static_cast<int>(std::size(Schemata)); ++i)
        haupt_.bedienung[Schemata[i].Menü].Checked = haupt_.bedienung[Schemata[i].Knopf].Checked =
            i == haupt_.ansicht.Farbschema;
}

void Anzeige::RasterUmschalten() {
    const bool sichtbar = haupt_.ansicht.bRasterAnzeigen = !haupt_.ansicht.bRasterAnzeigen;
    haupt_.bedienung["btnGitterZeichnen"].Checked = sichtbar;
    haupt_.bedienung["mnuRasterAnzeigen"].Caption = Text(Rastertext, sichtbar, haupt_.IstDeutsch());
    haupt_.Vorschau();
}

/// The third entry stands in no menu and ticks the large one. Meant.
void Anzeige::RasterSetzen(int listIndex) {
    if (listIndex < 0 || listIndex >= haupt_.cboRaster.Anzahl()) return;
    haupt_.cboRaster.ListIndex = listIndex;
    haupt_.ansicht.Rasterweite = ZahlLesen(haupt_.cboRaster.Text()) / 10;
    haupt_.bedienung["mnuRasterGroß"].Checked = listIndex != 0;
    haupt_.bedienung["mnuRasterKlein"].Checked = listIndex == 0;
}

void Anzeige::RasterWählen(int listIndex) {
    RasterSetzen(listIndex);
    haupt_.Vorschau();
}

void Anzeige::FarbschemaWählen(int schema) {
    haupt_.ansicht.Farbschema = schema;
    FarbschemaZeigen();
    LinienfarbenSetzen();
    haupt_.Vorschau();
}

void Anzeige::LinienfarbenSetzen() { haupt_.ansicht.Linienfarben = LinienfarbenFür(haupt_.ansicht.Farbschema); }

void Anzeige::WerkzeugleisteUmschalten() {
    const bool zeigen = !haupt_.bereich.WerkzeugleisteSichtbar();
    if (zeigen) haupt_.bereich.WerkzeugleisteZeigen();
    else haupt_.bereich.WerkzeugleisteVerbergen();
    haupt_.bedienung["mnuWerkzeugleiste"].Caption = Text(Palettentext, zeigen, haupt_.IstDeutsch());
}

void Anzeige::PapierWählen(int papiercode) {
    if (haupt_.dokument.Papiercode != papiercode) haupt_.projekt.Geändert = true;
    haupt_.dokument.Papiercode = papiercode;
    SeiteGeändert();
}

void Anzeige::LageWählen(int seitenlage) {
    if (haupt_.dokument.Seitenlage != seitenlage) haupt_.projekt.Geändert = true;
    haupt_.dokument.Seitenlage = seitenlage;
    SeiteGeändert();
}

void Anzeige::SeiteGeändert() {
    SeiteZeigen();
    haupt_.bereich.Bildgrößenveränderung();
}

void Anzeige::PaletteBerührt(int werkzeug) {
    if (werkzeug == berührt_) return;
    berührt_ = werkzeug;
    const std::string name = werkzeug > 0 ? haupt_.bedienung[WerkzeugName(werkzeug)].Caption : "";
    haupt_.bedienung["lblTool"].Caption = haupt_.bedienung["picToolTipp"].Caption = name;
    haupt_.bedienung["picToolTipp"].Visible = false;
    if (werkzeug > 0) haupt_.plattform.benutzer.ZeitgeberStarten("tmrToolTipp", HinweisVerzögerung);
    haupt_.plattform.benutzer.AnzeigeAuffrischen();
}

void Anzeige::PalettenhinweisZeigen() { haupt_.bedienung["picToolTipp"].Visible = berührt_ > 0; }

} // namespace kw
