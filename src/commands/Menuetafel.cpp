#include "commands/Menuetafel.h"

#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace kw {

namespace {

constexpr bool Gesperrt = false;  // as Enabled
constexpr bool Versteckt = false; // as Visible

// Blanks at the ends of captions are part of them; menus show them trimmed.
constexpr Menüzeile Tafel[] = {
    {Name::mnuDatei, Menüleiste, {"Datei", "File"}},
    {Name::mnuNeu, Name::mnuDatei, {"&Neu", "New"}, "Ctrl+N"},
    {Name::mnuÖffnen, Name::mnuDatei, {"&Öffnen...", "Open..."}, "Ctrl+O"},
    {Name::mnuSpeichern, Name::mnuDatei, {"&Speichern", "Save"}, "Ctrl+S"},
    {Name::mnuSichernUnter, Name::mnuDatei, {"Speichern unter ...", "Save As ..."}},
    {Name::mnuStr1, Name::mnuDatei, {"-", "-"}},
    {Name::mnuExportieren, Name::mnuDatei, {"Als Bild exportieren", "Export as image"}},
    {Name::mnuPDF_Export, Name::mnuDatei, {"Als PDF exportieren", "Export as PDF"}},
    {Name::mnuStr3, Name::mnuDatei, {"-", "-"}, "", true, Versteckt},
    {Name::mnuZuletztGeöffnet,
     Name::mnuDatei,
     {"Zuletzt geöffnete Dateien ...", "Last Open Files ..."},
     "",
     Gesperrt,
     Versteckt},
    {"mnuRecent(1)", Name::mnuZuletztGeöffnet, {}, "", true, Versteckt},
    {"mnuRecent(2)", Name::mnuZuletztGeöffnet, {}, "", true, Versteckt},
    {"mnuRecent(3)", Name::mnuZuletztGeöffnet, {}, "", true, Versteckt},
    {"mnuRecent(4)", Name::mnuZuletztGeöffnet, {}, "", true, Versteckt},
    {Name::mnuStr4, Name::mnuDatei, {"-", "-"}},
    {Name::mnuSeiteEinrichten, Name::mnuDatei, {"Seite einrichten", "Page Setup"}},
    {Name::mnuDrucken, Name::mnuDatei, {"Drucken", "Print"}, "Ctrl+P"},
    {Name::mnuStr5, Name::mnuDatei, {"-", "-"}},
    {Name::mnuBeenden, Name::mnuDatei, {"Beenden", "Exit"}},

    {Name::mnuBearbeiten, Menüleiste, {"Bearbeiten", "Edit "}},
    {Name::mnuRückgängig, Name::mnuBearbeiten, {"Rückgängig", "Undo      "}, "Ctrl+Z", Gesperrt},
    {Name::mnuWiederholen, Name::mnuBearbeiten, {"Wiederherstellen", "Redo"}, "Ctrl+Y", Gesperrt},
    {Name::mnuStr6, Name::mnuBearbeiten, {"-", "-"}},
    {Name::mnuAusschneiden, Name::mnuBearbeiten, {"&Ausschneiden", "Cut"}, "Ctrl+X", Gesperrt},
    {Name::mnuKopieren, Name::mnuBearbeiten, {"&Kopieren", "Copy"}, "Ctrl+C", Gesperrt},
    {Name::mnuEinfügen, Name::mnuBearbeiten, {"&Einfügen", "Paste"}, "Ctrl+V", Gesperrt},
    {Name::mnuStr7, Name::mnuBearbeiten, {"-", "-"}},
    {Name::mnuLöschen1, Name::mnuBearbeiten, {"Löschen", "Delete        Del"}, "Del", Gesperrt},

    // The menu of tools, also the context menu of the empty page.
    {Name::mnuSymbolEinfügen, Menüleiste, {"Einfügen", "Insert"}},
    {Name::mnuEinfügenMännlich, Name::mnuSymbolEinfügen, {"Männlich", "Male"}},
    {Name::mnuEinfügenWeiblich, Name::mnuSymbolEinfügen, {"Weiblich", "Female"}},
    {Name::mnuDivers, Name::mnuSymbolEinfügen, {"Divers", "Gender Nonconforming"}},
    {Name::mnuTransgender_mw, Name::mnuSymbolEinfügen, {"Transgender", "Transgender"}},
    {Name::mnuWeiblichZuMännlich, Name::mnuTransgender_mw, {"Weiblich zu Männlich", "Female > Male"}},
    {Name::mnuMännlichZuWeiblich, Name::mnuTransgender_mw, {"Männlich zu Weiblich", "Male > Female"}},
    {Name::mnuUngeboren, Name::mnuSymbolEinfügen, {"Ungeboren", "Unborn"}},
    {Name::mnuEinfügenSchwanger, Name::mnuUngeboren, {"Schwangerschaft", "Pregnancy"}},
    {Name::mnuEinfügenAbtreibung, Name::mnuUngeboren, {"Abtreibung", "Abortion"}},
    {Name::mnuEinfügenFehlgeburt, Name::mnuUngeboren, {"Fehlgeburt", "Miscarriage"}},
    {Name::mnuEinfügenTotgeburt, Name::mnuUngeboren, {"Totgeburt", "Stillbirth"}},
    {Name::mnuEinfügenTotgeburtMännlich, Name::mnuEinfügenTotgeburt, {"Totgeburt Männlich", "Stillbirth Male"}},
    {Name::mnuEinfügenTotgeburtWeiblich, Name::mnuEinfügenTotgeburt, {"Totgeburt Weiblich", "Stillbirth Female"}},
    {Name::mnuEinfügenZwillinge, Name::mnuSymbolEinfügen, {"Zwillinge", "Twins"}},
    {Name::mnuMenü_ZweieiigeZwillinge, Name::mnuEinfügenZwillinge, {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {Name::mnuEinfügen_mw1, Name::mnuMenü_ZweieiigeZwillinge, {"Männlich - Weiblich", "Male - Female"}},
    {Name::mnuEinfügen_ww1, Name::mnuMenü_ZweieiigeZwillinge, {"Weiblich - Weiblich", "Female - Female"}},
    {Name::mnuEinfügen_mm1, Name::mnuMenü_ZweieiigeZwillinge, {"Männlich - Männlich", "Male - Male"}},
    {Name::mnuMenü_EineiigeZwillinge, Name::mnuEinfügenZwillinge, {"Eineiige Zwillinge", "Monozygotic Twins"}},
    {Name::mnuEinfügen_mw2, Name::mnuMenü_EineiigeZwillinge, {"Männlich - Weiblich", "Male - Female"}},
    {Name::mnuEinfügen_ww2, Name::mnuMenü_EineiigeZwillinge, {"Weiblich - Weiblich", "Female - Female"}},
    {Name::mnuEinfügen_mm2, Name::mnuMenü_EineiigeZwillinge, {"Männlich - Männlich", "Male - Male"}},
    {Name::mnuEinfügenEltern, Name::mnuSymbolEinfügen, {"Eltern", "Parents"}},
    {Name::mnuPfeil, Name::mnuSymbolEinfügen, {"Zeiger / Pfeil", "Pointer / Arrow"}},
    {Name::mnuDoppelpfeil, Name::mnuSymbolEinfügen, {"Doppelpfeil", "Double Arrow"}},
    {Name::mnuEinfügenTextfeld, Name::mnuSymbolEinfügen, {"Textfeld", "Textbox"}},
    {Name::mnuEinfügenKreislinie, Name::mnuSymbolEinfügen, {"Kreislinie", "Circular Line"}},
    {Name::mnustr15, Name::mnuSymbolEinfügen, {"-", "-"}, "", true, Versteckt},
    {Name::mnuEinfügen8, Name::mnuSymbolEinfügen, {"Einfügen", "Paste"}, "", Gesperrt, Versteckt},

    {Name::mnuAnsicht, Menüleiste, {"Ansicht", "View"}},
    {Name::mnuWerkzeugleiste, Name::mnuAnsicht, {"Werkzeugleiste ausblenden", "Hide Toolbar"}},
    {Name::mnuRasterAnzeigen, Name::mnuAnsicht, {"Raster anzeigen", "Show Grid"}},
    {Name::mnuRastergroesse, Name::mnuAnsicht, {"Rastergröße", "Grid Size"}},
    {Name::mnuRasterKlein, Name::mnuRastergroesse, {"Standard (3 mm)", "Standard (3 mm)"}},
    {Name::mnuRasterGroß, Name::mnuRastergroesse, {"Groß (6 mm)", "Large (6 mm)"}},
    {Name::mnuLegende, Name::mnuAnsicht, {"Legende", "Legend"}},
    {Name::mnuLegendeEinstellungen, Name::mnuLegende, {"Legende bearbeiten", "Edit Legend"}},
    {Name::mnuLegendeAktualisieren, Name::mnuLegende, {"Legende aktualisieren", "Update Legend"}},
    {Name::mnuLegendeAnzeigen, Name::mnuLegende, {"Legende einblenden", "Show Legend"}},
    {Name::mnuFarbschema, Name::mnuAnsicht, {"Farbschema", "Color Scheme"}},
    {Name::mnuSchwarzWeiß, Name::mnuFarbschema, {"Schwarz / Weiß", "Black / White"}},
    {Name::mnuGraustufen, Name::mnuFarbschema, {"Graustufen", "Grayscale"}},
    {Name::mnuFarbig, Name::mnuFarbschema, {"Farbig", "Colored"}},
    {Name::mnuSchriftart, Name::mnuAnsicht, {"Standardeinstellungen für Schrift", "Default Font Settings"}},
    {Name::mnuAltersangabe, Name::mnuAnsicht, {"Darstellung der Altersangabe", "Age Display"}},
    {Name::mnuSymbolGröße, Name::mnuAnsicht, {"Symbolgröße", "Icon Size"}},
    {Name::mnuSymbolKleiner, Name::mnuSymbolGröße, {"Kleiner", "Smaller"}},
    {Name::mnuSymbolGrößer, Name::mnuSymbolGröße, {"Größer", "Bigger"}},

    {Name::mnuHelp, Menüleiste, {"?", "?"}},
    {Name::mnuHilfethemen, Name::mnuHelp, {"Online Hilfe / Anleitung", "Online Help"}},
    {Name::mnuInfo, Name::mnuHelp, {"Über dieses Programm ...", "About ..."}},
    {Name::mnuEinstellungen, Name::mnuHelp, {"Sprache / Language", "Language ..."}},
    {Name::mnuUpdate, Name::mnuHelp, {"Updates ...", "Updates ..."}},
    {Name::mnuFassungen, Name::mnuHelp, {"Gesicherte Fassungen ...", "Kept Versions ..."}},

    {Name::mnuPerson, Kontextmenü, {}},
    {Name::mnuSymbolBearbeiten, Name::mnuPerson, {"Bearbeiten ", "Edit  "}},
    {Name::mnuStr2, Name::mnuPerson, {"-", "-"}},
    {Name::mnuBeziehungErstellen2, Name::mnuPerson, {"Beziehungslinie", "Relationship Line"}},
    {Name::mnuPartnerschaftsLinie, Name::mnuPerson, {"Partnerschaftslinie ", "Partnership Line"}},
    {Name::mnuKindVon, Name::mnuPerson, {"Als Kind verknüpfen", "Link as Child"}},
    {Name::mnustr14, Name::mnuPerson, {"-", "-"}, "", true, Versteckt},
    {Name::mnuStr8, Name::mnuPerson, {"-", "-"}},
    {Name::mnuSymbolVergrößern, Name::mnuPerson, {"Symbol vergrößern", "Enlarge Symbol"}},
    {Name::mnuSymbolVerkleinern, Name::mnuPerson, {"Symbol verkleinern", "Decrease Symbol"}},
    {Name::mnuStr9, Name::mnuPerson, {"-", "-"}},
    {Name::mnuAusschneiden2, Name::mnuPerson, {"Ausschneiden", "Cut"}},
    {Name::mnuKopieren2, Name::mnuPerson, {"Kopieren", "Copy"}},
    {Name::mnuSymbolLöschen, Name::mnuPerson, {"Löschen", "Delete"}},

    {Name::mnuBezLinie, Kontextmenü, {}},
    {Name::mnuBLinieBearbeiten, Name::mnuBezLinie, {" Bearbeiten", " Edit"}},
    {Name::mnuBezLinieLöschen, Name::mnuBezLinie, {" Löschen ", " Delete "}},

    {Name::mnuPLinie, Kontextmenü, {}},
    {Name::mnuPLiniebearbeiten, Name::mnuPLinie, {"Bearbeiten", "Edit"}},
    {Name::mnuPLineLöschen, Name::mnuPLinie, {"Löschen", "Delete"}},

    {Name::mnuKindLinie, Kontextmenü, {}},
    {Name::mnuLeiblichesKind, Name::mnuKindLinie, {"Leiblich", "Natural Child"}},
    {Name::mnuAdoptiert, Name::mnuKindLinie, {"Adoptiert", "Adopted Child"}},
    {Name::mnuPflegekind, Name::mnuKindLinie, {"Pflegekind", "Foster Child"}},
    {Name::mnuStr10, Name::mnuKindLinie, {"-", "-"}},
    {Name::mnuKindLinieLöschen, Name::mnuKindLinie, {"Löschen", "Delete"}},

    {Name::mnuPfeil1, Kontextmenü, {}},
    {Name::mnuPfeilLöschen, Name::mnuPfeil1, {"Löschen", "Delete"}},

    {Name::mnuKreislinie, Kontextmenü, {}},
    {Name::mnuKreisLinieLöschen, Name::mnuKreislinie, {"Löschen", "Delete"}},

    {Name::mnuTextBox, Kontextmenü, {}},
    {Name::mnuTextbearbeiten, Name::mnuTextBox, {"Bearbeiten", "Edit"}},
    {Name::mnuStr11, Name::mnuTextBox, {"-", "-"}},
    {Name::mnuTextBoxAusschneiden, Name::mnuTextBox, {"Ausschneiden", "Cut"}},
    {Name::mnuTextBoxKopieren, Name::mnuTextBox, {"Kopieren", "Copy"}},
    {Name::mnuTextboxLöschen, Name::mnuTextBox, {"Löschen", "Delete"}},

    {Name::mnuZwillinge, Kontextmenü, {}},
    {Name::mnuZweieiige_Zwillinge, Name::mnuZwillinge, {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {Name::mnuZwillinge_männlich_weiblich, Name::mnuZweieiige_Zwillinge, {"Männlich - Weiblich", "Male - Female"}},
    {Name::mnuZwillinge_weiblich_weiblich, Name::mnuZweieiige_Zwillinge, {"Weiblich - Weiblich", "Female - Female"}},
    {Name::mnuZwilling_Männlich_Männlich, Name::mnuZweieiige_Zwillinge, {"Männlich - Männlich", "Male - Male"}},
    {Name::mnuEineiigeZwillinge, Name::mnuZwillinge, {"Eineiige Zwillinge", "Monozygotic Twins"}},
    {Name::mnuZwillingeEineiig_männlich_weiblich, Name::mnuEineiigeZwillinge, {"Männlich - Weiblich", "Male - Female"}},
    {Name::mnuZwillingeEineiig_weiblich_weiblich,
     Name::mnuEineiigeZwillinge,
     {"Weiblich - Weiblich", "Female - Female"}},
    {Name::mnuZwillingeeineiig_männlich_männlich, Name::mnuEineiigeZwillinge, {"Männlich - Männlich", "Male - Male"}},

    {Name::mnuAuswahlBox, Kontextmenü, {}},
    {Name::mnuAusschneiden4, Name::mnuAuswahlBox, {"Ausschneiden", "Cut"}},
    {Name::mnuKopieren4, Name::mnuAuswahlBox, {"Kopieren", "Copy"}},
    {Name::mnuLöschen4, Name::mnuAuswahlBox, {"Löschen", "Delete"}},
    {Name::mnuMakeTwins, Name::mnuAuswahlBox, {"Als Zwillinge darstellen", "Represent As Twins"}, "", true, Versteckt},
    {Name::mnuTwinszweiiig, Name::mnuMakeTwins, {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {Name::mnuTwinsEineiig, Name::mnuMakeTwins, {"Eineiige Zwillinge", "Monozygotic Twins"}},

    {Name::mnuZwischenablage, Kontextmenü, {}},
    {Name::mnuEinfügen7, Name::mnuZwischenablage, {"Einfügen", "Paste"}},

    {Name::btnNeuesProjekt, Werkzeugband, {"Neu", "New"}},
    {Name::btnÖffnen, Werkzeugband, {"Öffnen ...", "Open..."}},
    {Name::btnSpeichern, Werkzeugband, {"Speichern", "Save"}},
    {Name::btnDrucken, Werkzeugband, {"Drucken...", "Print..."}},
    {Name::btnUndo, Werkzeugband, {"Rückgängig", "Undo"}, "", Gesperrt},
    {Name::btnRedo, Werkzeugband, {"Wiederherstellen", "Redo"}, "", Gesperrt},
    {Name::btnHochformat, Werkzeugband, {"Hochformat", "Portrait"}},
    {Name::btnQuerformat, Werkzeugband, {"Querformat", "Landscape"}},
    {Name::btnGitterZeichnen, Werkzeugband, {"Raster anzeigen", "Grid"}},
    {Name::btnBlattränder,
     Werkzeugband,
     {"Druckränder für den Default-Printer anzeigen:  ", "Show Print Margins For The Default-Printer:  "}},
    {Name::btnPapier, Werkzeugband, {"Papierformat", "Paper Size"}},
    {Name::keyDINA4, Name::btnPapier, {"DIN A4", "DIN A4"}},
    {Name::keyDINA5, Name::btnPapier, {"DIN A5", "DIN A5"}},
    {Name::keyUSLetter, Name::btnPapier, {"US Letter", "US Letter"}},
    {Name::btnZoom, Werkzeugband, {"Zoom", "Zoom"}},
    {Name::keyZoom80, Name::btnZoom, {"80%", "80%"}},
    {Name::keyZoom90, Name::btnZoom, {"90%", "90%"}},
    {Name::keyZoom100, Name::btnZoom, {"100%", "100%"}},
    {Name::keyZoom110, Name::btnZoom, {"110%", "110%"}},
    {Name::keyZoom120, Name::btnZoom, {"120%", "120%"}},
    {Name::keyZoom130, Name::btnZoom, {"130%", "130%"}},
    {Name::keyZoom140, Name::btnZoom, {"140%", "140%"}},
    {Name::keyZoom150, Name::btnZoom, {"150%", "150%"}},
    {Name::keyZoom160, Name::btnZoom, {"160%", "160%"}},
    {Name::keyZoom170, Name::btnZoom, {"170%", "170%"}},
    {Name::keyZoom180, Name::btnZoom, {"180%", "180%"}},
    {Name::keyZoom190, Name::btnZoom, {"190%", "190%"}},
    {Name::keyZoom200, Name::btnZoom, {"200%", "200%"}},
    {Name::keyZoom210, Name::btnZoom, {"210%", "210%"}},
    {Name::keyZoom220, Name::btnZoom, {"220%", "220%"}},
    {Name::keyZoom230, Name::btnZoom, {"230%", "230%"}},
    {Name::keyZoom240, Name::btnZoom, {"240%", "240%"}},
    {Name::keyZoom250, Name::btnZoom, {"250%", "250%"}},
    {Name::btnBildGrößer, Werkzeugband, {"Vergrößern", "Zoom In"}},
    {Name::btnBildKleiner, Werkzeugband, {"Verkleinern", "Zoom Out"}},
    {Name::btnWerkzeugleiste, Werkzeugband, {"Werkzeugleiste", "Toolbar"}},
    {Name::btnLegende, Werkzeugband, {"Legende", "Legend"}},
    {Name::btnFarbschema, Werkzeugband, {"Farbschema", "Color Scheme"}},
    {Name::keySchwarzweiß, Name::btnFarbschema, {"Monochrom", "Monochrome"}},
    {Name::keyGraustufen, Name::btnFarbschema, {"Graustufen", "Grayscale"}},
    {Name::keyFarbig, Name::btnFarbschema, {"Farbig", "Colored"}},
    {Name::btnClipboard,
     Werkzeugband,
     {"Auswahl als Bild in Zwischenablage kopieren", "Copy selection as image to clipboard"}},
    {Name::btnAuswahlZuBild, Werkzeugband, {"Auswahl als Bild speichern", "Save selection as image"}},
    {Name::btnImport, Werkzeugband, {"Importierte Personen", "Imported Persons"}, "", Gesperrt, Versteckt},

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
    {Name::cmdZwillinge, Palette, {"Zwillinge", "Twins"}},
    {Name::cmdDelete, Palette, {"Löschen", "Delete"}, "", Gesperrt},

    {Name::cmdRänder, Fensterteile, {"Druckränder ...", "Print Margins ..."}},
    {Name::lblTool, Fensterteile, {}},
    {Name::lblHinweis, Fensterteile, {}},  // why nothing came of a gesture
    {Name::lblStatus, Fensterteile, {}},   // that, or what comes next, or what the pointer is over
    {Name::lblEinstieg, Fensterteile, {}}, // on a page on which nothing was ever done: how to begin
    {Name::picToolTipp, Fensterteile, {}, "", true, Versteckt},
    {Name::imgVariable, Fensterteile, {}, "", true, Versteckt},
};

struct Paar {
    std::string_view Knopf, Menü;
};
constexpr Paar Gleiche[] = {
    {Name::btnNeuesProjekt, Name::mnuNeu},
    {Name::btnÖffnen, Name::mnuÖffnen},
    {Name::btnSpeichern, Name::mnuSpeichern},
    {Name::btnDrucken, Name::mnuDrucken},
    {Name::btnUndo, Name::mnuRückgängig},
    {Name::btnRedo, Name::mnuWiederholen},
    {Name::cmdUndo, Name::mnuRückgängig},
    {Name::cmdredo, Name::mnuWiederholen},
    {Name::btnGitterZeichnen, Name::mnuRasterAnzeigen},
    {Name::btnWerkzeugleiste, Name::mnuWerkzeugleiste},
    {Name::btnLegende, Name::mnuLegendeAnzeigen},
    {Name::keySchwarzweiß, Name::mnuSchwarzWeiß},
    {Name::keyGraustufen, Name::mnuGraustufen},
    {Name::keyFarbig, Name::mnuFarbig},
};

/// Beside the choices of the toolbar's lists.
constexpr std::string_view Ankreuzbare[] = {
    Name::mnuLegendeAnzeigen, Name::mnuSchwarzWeiß,    Name::mnuGraustufen,     Name::mnuFarbig,
    Name::mnuRasterGroß,      Name::mnuRasterKlein,    Name::btnHochformat,     Name::btnQuerformat,
    Name::btnBlattränder,     Name::btnGitterZeichnen, Name::btnWerkzeugleiste, Name::btnLegende,
    Name::btnAuswahlZuBild,   Name::btnImport,
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

bool IstAnkreuzbar(std::string_view name) {
    return std::find(std::begin(Ankreuzbare), std::end(Ankreuzbare), name) != std::end(Ankreuzbare);
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
