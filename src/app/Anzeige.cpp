#include "app/Anzeige.h"

#include "app/Datenimport.h"
#include "commands/basLanguage.h"
#include "document/Auswahlliste.h"
#include "document/Chronik.h"
#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/Papier.h"
#include "document/UndoRing.h"
#include "document/Verweise.h"
#include "document/Zahlen.h"
#include "editing/Ablage.h"
#include "editing/Leinwandlage.h"
#include "editing/Werkzeuge.h"
#include "familytree/Uebergabe.h"
#include "output/Arbeitsbereich.h"
#include "output/Druckwerk.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "rendering/Ansicht.h"
#include "rendering/Auswahl.h"

namespace kw {

namespace {

struct Schema {
    Befehlsname Menü;
    Befehlsname Knopf;
};
constexpr Schema Schemata[] = {{Name::mnuSchwarzWeiß, Name::keySchwarzweiß},
                               {Name::mnuGraustufen, Name::keyGraustufen},
                               {Name::mnuFarbig, Name::keyFarbig}};

/// A caption that says what the next use does.
struct Schaltertext {
    Zweisprachig Aus; ///< while it shows
    Zweisprachig Ein;
};
constexpr Schaltertext Legendentext{{"Legende ausblenden", "Hide Legend"}, {"Legende anzeigen", "Show Legend"}};
constexpr Schaltertext Rastertext{{"Raster ausblenden", "Hide Grid"}, {"Raster anzeigen", "Show Grid"}};
constexpr Schaltertext Palettentext{{"Werkzeugleiste ausblenden", "Hide Toolbar"},
                                    {"Werkzeugleiste einblenden", "Show Toolbar"}};

std::string_view Text(const Schaltertext &text, bool sichtbar, const Ansicht &ansicht) {
    return (sichtbar ? text.Aus : text.Ein).In(ansicht.Sprache);
}

/// The toolbar's key of a paper: "keyDINA4".
std::string Papierschlüssel(const Papier &papier) {
    std::string schlüssel = "key" + std::string(papier.Name);
    std::erase(schlüssel, ' ');
    return schlüssel;
}

} // namespace

void Anzeige::Beschriften() {
    MenuesBeschriften(bedienung_, z_.ansicht.Sprache, z_.druck.DefaultPrinter);
    LegendeZeigen();
    WerkzeugleisteZeigen();
}

void Anzeige::DruckerZeigen() { RänderknopfBeschriften(bedienung_, z_.ansicht.Sprache, z_.druck.DefaultPrinter); }

void Anzeige::LegendeZeigen() {
    Bedienelement &knopf = bedienung_[Name::btnLegende];
    knopf.Checked = bedienung_[Name::mnuLegendeAnzeigen].Checked = z_.dokument.LegendeSichtbar;
    knopf.Caption = Text(Legendentext, knopf.Checked, z_.ansicht);
}

void Anzeige::ChronikZeigen() {
    bool einer = false;
    for (int i = 1; i <= Chronik::Plätze; ++i) {
        const std::string &pfad = z_.zuletzt[i];
        Bedienelement &eintrag = bedienung_.Mit("mnuRecent(" + std::to_string(i) + ")");
        eintrag.Caption = "  " + std::to_string(i) + " " + DateiName(pfad);
        eintrag.Tipp = pfad;
        eintrag.Visible = !pfad.empty();
        einer = einer || eintrag.Visible;
    }
    Bedienelement &menü = bedienung_[Name::mnuZuletztGeöffnet];
    menü.Enabled = menü.Visible = bedienung_[Name::mnuStr3].Visible = einer;
}

void Anzeige::SeiteZeigen() {
    for (const Papier &papier : Papiere) {
        const bool gilt = papier.Code == z_.dokument.Papiercode;
        bedienung_.Mit(Papierschlüssel(papier)).Checked = gilt;
        if (gilt) bedienung_[Name::btnPapier].Caption = papier.Name;
    }
    bedienung_[Name::btnHochformat].Checked = z_.dokument.Seitenlage == 1;
    bedienung_[Name::btnQuerformat].Checked = z_.dokument.Seitenlage != 1;
}

void Anzeige::DruckränderZeigen() { bedienung_[Name::btnBlattränder].Checked = z_.ansicht.bDruckrandAnzeigen; }

void Anzeige::ZoomZeigen() {
    const std::string &zoom = z_.bereich.cboBildGröße.Text();
    bedienung_[Name::btnZoom].Caption = zoom;
    bedienung_.NurAnkreuzen("keyZoom", "keyZoom" + ZahlSchreiben(ZahlLesen(zoom)));
}

void Anzeige::FarbschemaZeigen() {
    for (int i = 0; i < static_cast<int>(std::size(Schemata)); ++i)
        bedienung_[Schemata[i].Menü].Checked = bedienung_[Schemata[i].Knopf].Checked = i == z_.ansicht.Farbschema;
}

void Anzeige::RasterZeigen() {
    bedienung_[Name::btnGitterZeichnen].Checked = z_.ansicht.bRasterAnzeigen;
    bedienung_[Name::mnuRasterAnzeigen].Caption = Text(Rastertext, z_.ansicht.bRasterAnzeigen, z_.ansicht);
}

void Anzeige::RasterweiteZeigen() {
    bedienung_[Name::mnuRasterGroß].Checked = z_.cboRaster.ListIndex != 0;
    bedienung_[Name::mnuRasterKlein].Checked = z_.cboRaster.ListIndex == 0;
}

void Anzeige::WerkzeugleisteZeigen() {
    const bool sichtbar = z_.bereich.WerkzeugleisteSichtbar();
    bedienung_[Name::btnWerkzeugleiste].Checked = sichtbar;
    bedienung_[Name::mnuWerkzeugleiste].Caption = Text(Palettentext, sichtbar, z_.ansicht);
}

void Anzeige::UndoKnöpfeZeigen(bool unterwegs) {
    const bool zurück = unterwegs || z_.ring.UndoSchritte() >= 1;
    const bool vor = !unterwegs && z_.ring.RedoSchritte() >= 1;
    bedienung_[Name::btnUndo].Enabled = bedienung_[Name::mnuRückgängig].Enabled = zurück;
    bedienung_[Name::btnRedo].Enabled = bedienung_[Name::mnuWiederholen].Enabled = vor;
}

void Anzeige::UndoKnöpfeSperren() { bedienung_[Name::btnUndo].Enabled = bedienung_[Name::btnRedo].Enabled = false; }

/// The entries for the selection, as the gestures have left them.
void Anzeige::AngebotZeigen() {
    const Angebot &angebot = z_.lage.Angebot;
    bedienung_[Name::mnuLöschen1].Enabled = angebot.Löschen;
    bedienung_[Name::mnuAusschneiden].Enabled = angebot.Ausschneiden;
    bedienung_[Name::mnuKopieren].Enabled = angebot.Kopieren;
    bedienung_[Name::mnuEinfügen].Enabled = angebot.Einfügen;
    bedienung_[Name::mnuSymbolVergrößern].Enabled = angebot.Vergrößern;
    bedienung_[Name::mnuSymbolVerkleinern].Enabled = angebot.Verkleinern;
    bedienung_[Name::mnuMakeTwins].Visible = angebot.Zwillinge;
    bedienung_[Name::mnuEinfügen8].Visible = bedienung_[Name::mnustr15].Visible = angebot.EinfügenImKontext;
    bedienung_[Name::mnuEinfügen8].Enabled = z_.ablage.HatEtwas();
    for (const Befehlsname eintrag :
         {Name::mnuBeziehungErstellen2, Name::mnuPartnerschaftsLinie, Name::mnuKindVon, Name::mnuStr2})
        bedienung_[eintrag].Visible = angebot.Verknüpfen;
    bedienung_[Name::mnuKindVon].Enabled = angebot.AlsKind;
}

void Anzeige::PaletteZeigen() {
    for (int nummer = 1; nummer <= WerkzeugAnzahl; ++nummer) {
        Bedienelement &knopf = bedienung_.Mit(WerkzeugName(nummer));
        knopf.Checked = WerkzeugGedrückt(nummer, z_.lage);
        knopf.Enabled = WerkzeugBrauchbar(nummer, z_.dokument, z_.auswahl, z_.lage);
    }
    bedienung_[Name::cmdDelete].Enabled = z_.lage.Angebot.Löschen;
    bedienung_[Name::btnAuswahlZuBild].Checked = z_.lage.BildAuswahl && z_.lage.bAuswahlInDatei;
}

/// Zooming, what needs a page with something on it, and the list of persons that another application has handed over.
void Anzeige::RestZeigen() {
    bedienung_[Name::mnuOhneNamen].Enabled = Satzzahl(z_.dokument) > 0;
    bedienung_[Name::btnBildGrößer].Enabled = z_.bereich.KannVergrößern();
    bedienung_[Name::btnBildKleiner].Enabled = z_.bereich.KannVerkleinern();
    bedienung_[Name::mnuStammbaumExport].Enabled = HatStammbaum(z_.dokument);
    Bedienelement &import = bedienung_[Name::btnImport];
    import.Visible = import.Enabled = !z_.import.Listenzeilen.empty();
    import.Checked = bedienung_[Name::imgVariable].Visible = z_.import.ListeSichtbar;
}

void Anzeige::HinweisZeigen() {
    const Zweisprachig *hinweis = z_.lage.Hinweis;
    bedienung_[Name::lblHinweis].Caption = hinweis ? hinweis->In(z_.ansicht.Sprache) : std::string_view();
}

void Anzeige::MöglichesZeigen() {
    HinweisZeigen();
    AngebotZeigen();
    PaletteZeigen();
    RestZeigen();
}

} // namespace kw
