#include "commands/Menuetafel.h"

#include "platform/Bedienelemente.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace kw {

namespace {

constexpr bool Gesperrt = false;  // as Enabled
constexpr bool Versteckt = false; // as Visible

// Blanks at the ends of captions are part of them; menus show them trimmed.
constexpr Menüzeile Tafel[] = {
    {"mnuDatei", Menüleiste, {"Datei", "File"}},
    {"mnuNeu", "mnuDatei", {"&Neu", "New"}, "Ctrl+N"},
    {"mnuÖffnen", "mnuDatei", {"&Öffnen...", "Open..."}, "Ctrl+O"},
    {"mnuSpeichern", "mnuDatei", {"&Speichern", "Save"}, "Ctrl+S"},
    {"mnuSichernUnter", "mnuDatei", {"Speichern unter ...", "Save As ..."}},
    {"mnuStr1", "mnuDatei", {"-", "-"}},
    {"mnuExportieren", "mnuDatei", {"Als Bild exportieren", "Export as image"}},
    {"mnuPDF_Export", "mnuDatei", {"Als PDF exportieren", "Export as PDF"}},
    {"mnuStr3", "mnuDatei", {"-", "-"}, "", true, Versteckt},
    {"mnuZuletztGeöffnet",
     "mnuDatei",
     {"Zuletzt geöffnete Dateien ...", "Last Open Files ..."},
     "",
     Gesperrt,
     Versteckt},
    {"mnuRecent(1)", "mnuZuletztGeöffnet", {}, "", true, Versteckt},
    {"mnuRecent(2)", "mnuZuletztGeöffnet", {}, "", true, Versteckt},
    {"mnuRecent(3)", "mnuZuletztGeöffnet", {}, "", true, Versteckt},
    {"mnuRecent(4)", "mnuZuletztGeöffnet", {}, "", true, Versteckt},
    {"mnuStr4", "mnuDatei", {"-", "-"}},
    {"mnuSeiteEinrichten", "mnuDatei", {"Seite einrichten", "Page Setup"}},
    {"mnuDrucken", "mnuDatei", {"Drucken", "Print"}, "Ctrl+P"},
    {"mnuStr5", "mnuDatei", {"-", "-"}},
    {"mnuBeenden", "mnuDatei", {"Beenden", "Exit"}},

    {"mnuBearbeiten", Menüleiste, {"Bearbeiten", "Edit "}},
    {"mnuRückgängig", "mnuBearbeiten", {"Rückgängig", "Undo      "}, "Ctrl+Z", Gesperrt},
    {"mnuWiederholen", "mnuBearbeiten", {"Wiederherstellen", "Redo"}, "Ctrl+Y", Gesperrt},
    {"mnuStr6", "mnuBearbeiten", {"-", "-"}},
    {"mnuAusschneiden", "mnuBearbeiten", {"&Ausschneiden", "Cut"}, "Ctrl+X", Gesperrt},
    {"mnuKopieren", "mnuBearbeiten", {"&Kopieren", "Copy"}, "Ctrl+C", Gesperrt},
    {"mnuEinfügen", "mnuBearbeiten", {"&Einfügen", "Paste"}, "Ctrl+V", Gesperrt},
    {"mnuStr7", "mnuBearbeiten", {"-", "-"}},
    {"mnuLöschen1", "mnuBearbeiten", {"Löschen", "Delete        Del"}, "Del", Gesperrt},

    // The menu of tools, also the context menu of the empty page.
    {"mnuSymbolEinfügen", Menüleiste, {"Einfügen", "Insert"}},
    {"mnuEinfügenMännlich", "mnuSymbolEinfügen", {"Männlich", "Male"}},
    {"mnuEinfügenWeiblich", "mnuSymbolEinfügen", {"Weiblich", "Female"}},
    {"mnuDivers", "mnuSymbolEinfügen", {"Divers", "Gender Nonconforming"}},
    {"mnuTransgender_mw", "mnuSymbolEinfügen", {"Transgender", "Transgender"}},
    {"mnuWeiblichZuMännlich", "mnuTransgender_mw", {"Weiblich zu Männlich", "Female > Male"}},
    {"mnuMännlichZuWeiblich", "mnuTransgender_mw", {"Männlich zu Weiblich", "Male > Female"}},
    {"mnuUngeboren", "mnuSymbolEinfügen", {"Ungeboren", "Unborn"}},
    {"mnuEinfügenSchwanger", "mnuUngeboren", {"Schwangerschaft", "Pregnancy"}},
    {"mnuEinfügenAbtreibung", "mnuUngeboren", {"Abtreibung", "Abortion"}},
    {"mnuEinfügenFehlgeburt", "mnuUngeboren", {"Fehlgeburt", "Miscarriage"}},
    {"mnuEinfügenTotgeburt", "mnuUngeboren", {"Totgeburt", "Stillbirth"}},
    {"mnuEinfügenTotgeburtMännlich", "mnuEinfügenTotgeburt", {"Totgeburt Männlich", "Stillbirth Male"}},
    {"mnuEinfügenTotgeburtWeiblich", "mnuEinfügenTotgeburt", {"Totgeburt Weiblich", "Stillbirth Female"}},
    {"mnuEinfügenZwillinge", "mnuSymbolEinfügen", {"Zwillinge", "Twins"}},
    {"mnuMenü_ZweieiigeZwillinge", "mnuEinfügenZwillinge", {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {"mnuEinfügen_mw1", "mnuMenü_ZweieiigeZwillinge", {"Männlich - Weiblich", "Male - Female"}},
    {"mnuEinfügen_ww1", "mnuMenü_ZweieiigeZwillinge", {"Weiblich - Weiblich", "Female - Female"}},
    {"mnuEinfügen_mm1", "mnuMenü_ZweieiigeZwillinge", {"Männlich - Männlich", "Male - Male"}},
    {"mnuMenü_EineiigeZwillinge", "mnuEinfügenZwillinge", {"Eineiige Zwillinge", "Monozygotic Twins"}},
    {"mnuEinfügen_mw2", "mnuMenü_EineiigeZwillinge", {"Männlich - Weiblich", "Male - Female"}},
    {"mnuEinfügen_ww2", "mnuMenü_EineiigeZwillinge", {"Weiblich - Weiblich", "Female - Female"}},
    {"mnuEinfügen_mm2", "mnuMenü_EineiigeZwillinge", {"Männlich - Männlich", "Male - Male"}},
    {"mnuEinfügenEltern", "mnuSymbolEinfügen", {"Eltern", "Parents"}},
    {"mnuPfeil", "mnuSymbolEinfügen", {"Zeiger / Pfeil", "Pointer / Arrow"}},
    {"mnuDoppelpfeil", "mnuSymbolEinfügen", {"Doppelpfeil", "Double Arrow"}},
    {"mnuEinfügenTextfeld", "mnuSymbolEinfügen", {"Textfeld", "Textbox"}},
    {"mnuEinfügenKreislinie", "mnuSymbolEinfügen", {"Kreislinie", "Circular Line"}},
    {"mnustr15", "mnuSymbolEinfügen", {"-", "-"}, "", true, Versteckt},
    {"mnuEinfügen8", "mnuSymbolEinfügen", {"Einfügen", "Paste"}, "", Gesperrt, Versteckt},

    {"mnuAnsicht", Menüleiste, {"Ansicht", "View"}},
    {"mnuWerkzeugleiste", "mnuAnsicht", {"Werkzeugleiste ausblenden", "Hide Toolbar"}},
    {"mnuRasterAnzeigen", "mnuAnsicht", {"Raster anzeigen", "Show Grid"}},
    {"mnuRastergroesse", "mnuAnsicht", {"Rastergröße", "Grid Size"}},
    {"mnuRasterKlein", "mnuRastergroesse", {"Standard (3 mm)", "Standard (3 mm)"}},
    {"mnuRasterGroß", "mnuRastergroesse", {"Groß (6 mm)", "Large (6 mm)"}},
    {"mnuLegende", "mnuAnsicht", {"Legende", "Legend"}},
    {"mnuLegendeEinstellungen", "mnuLegende", {"Legende bearbeiten", "Edit Legend"}},
    {"mnuLegendeAktualisieren", "mnuLegende", {"Legende aktualisieren", "Update Legend"}},
    {"mnuLegendeAnzeigen", "mnuLegende", {"Legende einblenden", "Show Legend"}},
    {"mnuFarbschema", "mnuAnsicht", {"Farbschema", "Color Scheme"}},
    {"mnuSchwarzWeiß", "mnuFarbschema", {"Schwarz / Weiß", "Black / White"}},
    {"mnuGraustufen", "mnuFarbschema", {"Graustufen", "Grayscale"}},
    {"mnuFarbig", "mnuFarbschema", {"Farbig", "Colored"}},
    {"mnuSchriftart", "mnuAnsicht", {"Standardeinstellungen für Schrift", "Default Font Settings"}},
    {"mnuAltersangabe", "mnuAnsicht", {"Darstellung der Altersangabe", "Age Display"}},
    {"mnuSymbolGröße", "mnuAnsicht", {"Symbolgröße", "Icon Size"}},
    {"mnuSymbolKleiner", "mnuSymbolGröße", {"Kleiner", "Smaller"}},
    {"mnuSymbolGrößer", "mnuSymbolGröße", {"Größer", "Bigger"}},

    {"mnuHelp", Menüleiste, {"?", "?"}},
    {"mnuHilfethemen", "mnuHelp", {"Online Hilfe / Anleitung", "Online Help"}},
    {"mnuInfo", "mnuHelp", {"Über dieses Programm ...", "About ..."}},
    {"mnuEinstellungen", "mnuHelp", {"Sprache / Language", "Language ..."}},
    {"mnuUpdate", "mnuHelp", {"Updates ...", "Updates ..."}},

    {"mnuPerson", Kontextmenü, {}},
    {"mnuSymbolBearbeiten", "mnuPerson", {"Bearbeiten ", "Edit  "}},
    {"mnuStr2", "mnuPerson", {"-", "-"}},
    {"mnuBeziehungErstellen2", "mnuPerson", {"Beziehungslinie", "Relationship Line"}},
    {"mnuPartnerschaftsLinie", "mnuPerson", {"Partnerschaftslinie ", "Partnership Line"}},
    {"mnuKindVon", "mnuPerson", {"Als Kind verknüpfen", "Link as Child"}},
    {"mnustr14", "mnuPerson", {"-", "-"}, "", true, Versteckt},
    {"mnuStr8", "mnuPerson", {"-", "-"}},
    {"mnuSymbolVergrößern", "mnuPerson", {"Symbol vergrößern", "Enlarge Symbol"}},
    {"mnuSymbolVerkleinern", "mnuPerson", {"Symbol verkleinern", "Decrease Symbol"}},
    {"mnuStr9", "mnuPerson", {"-", "-"}},
    {"mnuAusschneiden2", "mnuPerson", {"Ausschneiden", "Cut"}},
    {"mnuKopieren2", "mnuPerson", {"Kopieren", "Copy"}},
    {"mnuSymbolLöschen", "mnuPerson", {"Löschen", "Delete"}},

    {"mnuBezLinie", Kontextmenü, {}},
    {"mnuBLinieBearbeiten", "mnuBezLinie", {" Bearbeiten", " Edit"}},
    {"mnuBezLinieLöschen", "mnuBezLinie", {" Löschen ", " Delete "}},

    {"mnuPLinie", Kontextmenü, {}},
    {"mnuPLiniebearbeiten", "mnuPLinie", {"Bearbeiten", "Edit"}},
    {"mnuPLineLöschen", "mnuPLinie", {"Löschen", "Delete"}},

    {"mnuKindLinie", Kontextmenü, {}},
    {"mnuLeiblichesKind", "mnuKindLinie", {"Leiblich", "Natural Child"}},
    {"mnuAdoptiert", "mnuKindLinie", {"Adoptiert", "Adopted Child"}},
    {"mnuPflegekind", "mnuKindLinie", {"Pflegekind", "Foster Child"}},
    {"mnuStr10", "mnuKindLinie", {"-", "-"}},
    {"mnuKindLinieLöschen", "mnuKindLinie", {"Löschen", "Delete"}},

    {"mnuPfeil1", Kontextmenü, {}},
    {"mnuPfeilLöschen", "mnuPfeil1", {"Löschen", "Delete"}},

    {"mnuKreislinie", Kontextmenü, {}},
    {"mnuKreisLinieLöschen", "mnuKreislinie", {"Löschen", "Delete"}},

    {"mnuTextBox", Kontextmenü, {}},
    {"mnuTextbearbeiten", "mnuTextBox", {"Bearbeiten", "Edit"}},
    {"mnuStr11", "mnuTextBox", {"-", "-"}},
    {"mnuTextBoxAusschneiden", "mnuTextBox", {"Ausschneiden", "Cut"}},
    {"mnuTextBoxKopieren", "mnuTextBox", {"Kopieren", "Copy"}},
    {"mnuTextboxLöschen", "mnuTextBox", {"Löschen", "Delete"}},

    {"mnuZwillinge", Kontextmenü, {}},
    {"mnuZweieiige_Zwillinge", "mnuZwillinge", {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {"mnuZwillinge_männlich_weiblich", "mnuZweieiige_Zwillinge", {"Männlich - Weiblich", "Male - Female"}},
    {"mnuZwillinge_weiblich_weiblich", "mnuZweieiige_Zwillinge", {"Weiblich - Weiblich", "Female - Female"}},
    {"mnuZwilling_Männlich_Männlich", "mnuZweieiige_Zwillinge", {"Männlich - Männlich", "Male - Male"}},
    {"mnuEineiigeZwillinge", "mnuZwillinge", {"Eineiige Zwillinge", "Monozygotic Twins"}},
    {"mnuZwillingeEineiig_männlich_weiblich", "mnuEineiigeZwillinge", {"Männlich - Weiblich", "Male - Female"}},
    {"mnuZwillingeEineiig_weiblich_weiblich", "mnuEineiigeZwillinge", {"Weiblich - Weiblich", "Female - Female"}},
    {"mnuZwillingeeineiig_männlich_männlich", "mnuEineiigeZwillinge", {"Männlich - Männlich", "Male - Male"}},

    {"mnuAuswahlBox", Kontextmenü, {}},
    {"mnuAusschneiden4", "mnuAuswahlBox", {"Ausschneiden", "Cut"}},
    {"mnuKopieren4", "mnuAuswahlBox", {"Kopieren", "Copy"}},
    {"mnuLöschen4", "mnuAuswahlBox", {"Löschen", "Delete"}},
    {"mnuMakeTwins", "mnuAuswahlBox", {"Als Zwillinge darstellen", "Represent As Twins"}, "", true, Versteckt},
    {"mnuTwinszweiiig", "mnuMakeTwins", {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {"mnuTwinsEineiig", "mnuMakeTwins", {"Eineiige Zwillinge", "Monozygotic Twins"}},

    {"mnuZwischenablage", Kontextmenü, {}},
    {"mnuEinfügen7", "mnuZwischenablage", {"Einfügen", "Paste"}},

    {"btnNeuesProjekt", Werkzeugband, {"Neu", "New"}},
    {"btnÖffnen", Werkzeugband, {"Öffnen ...", "Open..."}},
    {"btnSpeichern", Werkzeugband, {"Speichern", "Save"}},
    {"btnDrucken", Werkzeugband, {"Drucken...", "Print..."}},
    {"btnUndo", Werkzeugband, {"Rückgängig", "Undo"}, "", Gesperrt},
    {"btnRedo", Werkzeugband, {"Wiederherstellen", "Redo"}, "", Gesperrt},
    {"btnHochformat", Werkzeugband, {"Hochformat", "Portrait"}},
    {"btnQuerformat", Werkzeugband, {"Querformat", "Landscape"}},
    {"btnGitterZeichnen", Werkzeugband, {"Raster anzeigen", "Grid"}},
    {"btnBlattränder",
     Werkzeugband,
     {"Druckränder für den Default-Printer anzeigen:  ", "Show Print Margins For The Default-Printer:  "}},
    {"btnPapier", Werkzeugband, {"Papierformat", "Paper Size"}},
    {"keyDINA4", "btnPapier", {"DIN A4", "DIN A4"}},
    {"keyDINA5", "btnPapier", {"DIN A5", "DIN A5"}},
    {"keyUSLetter", "btnPapier", {"US Letter", "US Letter"}},
    {"btnZoom", Werkzeugband, {"Zoom", "Zoom"}},
    {"keyZoom80", "btnZoom", {"80%", "80%"}},
    {"keyZoom90", "btnZoom", {"90%", "90%"}},
    {"keyZoom100", "btnZoom", {"100%", "100%"}},
    {"keyZoom110", "btnZoom", {"110%", "110%"}},
    {"keyZoom120", "btnZoom", {"120%", "120%"}},
    {"keyZoom130", "btnZoom", {"130%", "130%"}},
    {"keyZoom140", "btnZoom", {"140%", "140%"}},
    {"keyZoom150", "btnZoom", {"150%", "150%"}},
    {"keyZoom160", "btnZoom", {"160%", "160%"}},
    {"keyZoom170", "btnZoom", {"170%", "170%"}},
    {"keyZoom180", "btnZoom", {"180%", "180%"}},
    {"keyZoom190", "btnZoom", {"190%", "190%"}},
    {"keyZoom200", "btnZoom", {"200%", "200%"}},
    {"keyZoom210", "btnZoom", {"210%", "210%"}},
    {"keyZoom220", "btnZoom", {"220%", "220%"}},
    {"keyZoom230", "btnZoom", {"230%", "230%"}},
    {"keyZoom240", "btnZoom", {"240%", "240%"}},
    {"keyZoom250", "btnZoom", {"250%", "250%"}},
    {"btnBildGrößer", Werkzeugband, {"Vergrößern", "Zoom In"}},
    {"btnBildKleiner", Werkzeugband, {"Verkleinern", "Zoom Out"}},
    {"btnWerkzeugleiste", Werkzeugband, {"Werkzeugleiste", "Toolbar"}},
    {"btnLegende", Werkzeugband, {"Legende", "Legend"}},
    {"btnFarbschema", Werkzeugband, {"Farbschema", "Color Scheme"}},
    {"keySchwarzweiß", "btnFarbschema", {"Monochrom", "Monochrome"}},
    {"keyGraustufen", "btnFarbschema", {"Graustufen", "Grayscale"}},
    {"keyFarbig", "btnFarbschema", {"Farbig", "Colored"}},
    {"btnClipboard",
     Werkzeugband,
     {"Auswahl als Bild in Zwischenablage kopieren", "Copy selection as image to clipboard"}},
    {"btnAuswahlZuBild", Werkzeugband, {"Auswahl als Bild speichern", "Save selection as image"}},
    {"btnImport", Werkzeugband, {"Importierte Personen", "Imported Persons"}, "", Gesperrt, Versteckt},

    {"cmdSymb(1)", Palette, {"Männlich", "Male"}},
    {"cmdSymb(2)", Palette, {"Weiblich", "Female"}},
    {"cmdSymb(3)", Palette, {"Schwangerschaft", "Pregnancy"}},
    {"cmdSymb(4)", Palette, {"Fehlgeburt", "Miscarriage"}},
    {"cmdSymb(5)", Palette, {"Totgeburt männlich", "Stillbirth Male"}},
    {"cmdSymb(6)", Palette, {"Totgeburt weiblich", "Stillbirth Female"}},
    {"cmdSymb(7)", Palette, {"Abtreibung", "Abortion"}},
    {"cmdSymb(8)", Palette, {"Zwillinge", "Twins"}},
    {"cmdSymb(9)", Palette, {"Kreislinie", "Circle Line"}},
    {"cmdSymb(10)", Palette, {"Textfeld", "Text"}},
    {"cmdSymb(11)", Palette, {"Eltern", "Parents"}},
    {"cmdSymb(12)", Palette, {"Beziehungslinie", "Relationship Line"}},
    {"cmdSymb(13)", Palette, {"Partnerschaftslinie", "Partnership Line"}},
    {"cmdSymb(14)", Palette, {"Kindlinie", "Link As Child "}},
    {"cmdSymb(15)", Palette, {"Pfeil ", "Arrow"}},
    {"cmdSymb(16)", Palette, {"Doppelpfeil ", "Double Arrow"}},
    {"cmdSymb(17)", Palette, {"Institution, Einrichtung etc.", "Institution"}},
    {"cmdSymb(18)", Palette, {"Transgender - weiblich zu männlich", "Transgender - Female To Male"}},
    {"cmdSymb(19)", Palette, {"Transgender - männlich zu weiblich", "Transgender - Male To Female"}},
    {"cmdSymb(20)", Palette, {"Divers", "Gender Nonconforming"}},
    {"cmdZwillinge", Palette, {"Zwillinge", "Twins"}},
    {"cmdDelete", Palette, {"Löschen", "Delete"}, "", Gesperrt},

    {"cmdRänder", Fensterteile, {"Druckränder ...", "Print Margins ..."}},
    {"lblTool", Fensterteile, {}},
    {"picToolTipp", Fensterteile, {}, "", true, Versteckt},
    {"imgVariable", Fensterteile, {}, "", true, Versteckt},
};

struct Paar {
    std::string_view Knopf, Menü;
};
constexpr Paar Gleiche[] = {
    {"btnNeuesProjekt", "mnuNeu"},
    {"btnÖffnen", "mnuÖffnen"},
    {"btnSpeichern", "mnuSpeichern"},
    {"btnDrucken", "mnuDrucken"},
    {"btnUndo", "mnuRückgängig"},
    {"btnRedo", "mnuWiederholen"},
    {"cmdUndo", "mnuRückgängig"},
    {"cmdredo", "mnuWiederholen"},
    {"btnGitterZeichnen", "mnuRasterAnzeigen"},
    {"btnWerkzeugleiste", "mnuWerkzeugleiste"},
    {"btnLegende", "mnuLegendeAnzeigen"},
    {"keySchwarzweiß", "mnuSchwarzWeiß"},
    {"keyGraustufen", "mnuGraustufen"},
    {"keyFarbig", "mnuFarbig"},
};

} // namespace

std::span<const Menüzeile> Menütafel() { return Tafel; }

const Menüzeile *MenüzeileFinden(std::string_view name) {
    const auto zeile =
        std::find_if(std::begin(Tafel), std::end(Tafel), [&](const Menüzeile &z) { return z.Name == name; });
    return zeile == std::end(Tafel) ? nullptr : &*zeile;
}

bool IstMenü(const Menüzeile &zeile) {
    return std::any_of(std::begin(Tafel), std::end(Tafel), [&](const Menüzeile &z) { return z.Menü == zeile.Name; });
}

bool GehörtZu(std::string_view name, std::string_view menü) {
    for (const Menüzeile *z = MenüzeileFinden(name); z; z = MenüzeileFinden(z->Menü))
        if (z->Menü == menü) return true;
    return false;
}

std::string_view Menügleich(std::string_view name) {
    const auto *paar =
        std::find_if(std::begin(Gleiche), std::end(Gleiche), [&](const Paar &p) { return p.Knopf == name; });
    return paar == std::end(Gleiche) ? std::string_view() : paar->Menü;
}

void BedienelementeAnlegen(Bedienelemente &elemente) {
    for (const Menüzeile &z : Tafel)
        elemente.Anlegen(z.Name, {std::string(z.Caption.Englisch), "", z.Enabled, z.Visible, false});
}

} // namespace kw
