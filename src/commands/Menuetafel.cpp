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
    {Name::mnuDatei, Menüleiste, {"Datei", "File"}, {"D", "F"}},
    {Name::mnuNeu, Name::mnuDatei, {"&Neu", "New"}, {"N", "N"}, "Ctrl+N"},
    {Name::mnuÖffnen, Name::mnuDatei, {"&Öffnen...", "Open..."}, {"Ö", "O"}, "Ctrl+O"},
    {Name::mnuSpeichern, Name::mnuDatei, {"&Speichern", "Save"}, {"S", "S"}, "Ctrl+S"},
    {Name::mnuSichernUnter, Name::mnuDatei, {"Speichern unter ...", "Save As ..."}, {"u", "A"}},
    {Name::mnuStammbaum, Name::mnuDatei, {"Stammbaum übernehmen ...", "Import Family Tree ..."}, {"t", "I"}},
    {Name::mnuStr1, Name::mnuDatei, {"-", "-"}},
    {Name::mnuExportieren, Name::mnuDatei, {"Als Bild exportieren", "Export as image"}, {"A", "E"}},
    {Name::mnuPDF_Export, Name::mnuDatei, {"Als PDF exportieren", "Export as PDF"}, {"P", "D"}},
    {Name::mnuStammbaumExport,
     Name::mnuDatei,
     {"Stammbaum exportieren ...", "Export Family Tree ..."},
     {"x", "F"},
     "",
     Gesperrt},
    {Name::mnuOhneNamen,
     Name::mnuDatei,
     {"Ohne Namen exportieren ...", "Export Without Names ..."},
     {"O", "W"},
     "",
     Gesperrt},
    {Name::mnuStr3, Name::mnuDatei, {"-", "-"}, {}, "", true, Versteckt},
    {Name::mnuZuletztGeöffnet,
     Name::mnuDatei,
     {"Zuletzt geöffnete Dateien ...", "Last Open Files ..."},
     {"Z", "L"},
     "",
     Gesperrt,
     Versteckt},
    {"mnuRecent(1)", Name::mnuZuletztGeöffnet, {}, {"1", "1"}, "", true, Versteckt},
    {"mnuRecent(2)", Name::mnuZuletztGeöffnet, {}, {"2", "2"}, "", true, Versteckt},
    {"mnuRecent(3)", Name::mnuZuletztGeöffnet, {}, {"3", "3"}, "", true, Versteckt},
    {"mnuRecent(4)", Name::mnuZuletztGeöffnet, {}, {"4", "4"}, "", true, Versteckt},
    {Name::mnuStr4, Name::mnuDatei, {"-", "-"}},
    {Name::mnuSeiteEinrichten, Name::mnuDatei, {"Seite einrichten", "Page Setup"}, {"i", "u"}},
    {Name::mnuDrucken, Name::mnuDatei, {"Drucken", "Print"}, {"D", "P"}, "Ctrl+P"},
    {Name::mnuStr5, Name::mnuDatei, {"-", "-"}},
    {Name::mnuBeenden, Name::mnuDatei, {"Beenden", "Exit"}, {"B", "x"}},

    {Name::mnuBearbeiten, Menüleiste, {"Bearbeiten", "Edit "}, {"B", "E"}},
    {Name::mnuRückgängig, Name::mnuBearbeiten, {"Rückgängig", "Undo      "}, {"R", "U"}, "Ctrl+Z", Gesperrt},
    {Name::mnuWiederholen, Name::mnuBearbeiten, {"Wiederherstellen", "Redo"}, {"W", "R"}, "Ctrl+Y", Gesperrt},
    {Name::mnuStr6, Name::mnuBearbeiten, {"-", "-"}},
    {Name::mnuAusschneiden, Name::mnuBearbeiten, {"&Ausschneiden", "Cut"}, {"A", "t"}, "Ctrl+X", Gesperrt},
    {Name::mnuKopieren, Name::mnuBearbeiten, {"&Kopieren", "Copy"}, {"K", "C"}, "Ctrl+C", Gesperrt},
    {Name::mnuEinfügen, Name::mnuBearbeiten, {"&Einfügen", "Paste"}, {"E", "P"}, "Ctrl+V", Gesperrt},
    {Name::mnuStr7, Name::mnuBearbeiten, {"-", "-"}},
    {Name::mnuLöschen1, Name::mnuBearbeiten, {"Löschen", "Delete        Del"}, {"L", "D"}, "Del", Gesperrt},
    {Name::mnuAnordnen, Name::mnuBearbeiten, {"Anordnen", "Arrange"}, {"n", "A"}},

    // The menu of tools, also the context menu of the empty page.
    {Name::mnuSymbolEinfügen, Menüleiste, {"Einfügen", "Insert"}, {"E", "I"}},
    {Name::mnuEinfügenMännlich, Name::mnuSymbolEinfügen, {"Männlich", "Male"}, {"M", "M"}},
    {Name::mnuEinfügenWeiblich, Name::mnuSymbolEinfügen, {"Weiblich", "Female"}, {"W", "F"}},
    {Name::mnuDivers, Name::mnuSymbolEinfügen, {"Divers", "Gender Nonconforming"}, {"D", "G"}},
    {Name::mnuTransgender_mw, Name::mnuSymbolEinfügen, {"Transgender", "Transgender"}, {"T", "T"}},
    {Name::mnuWeiblichZuMännlich, Name::mnuTransgender_mw, {"Weiblich zu Männlich", "Female > Male"}, {"W", "F"}},
    {Name::mnuMännlichZuWeiblich, Name::mnuTransgender_mw, {"Männlich zu Weiblich", "Male > Female"}, {"M", "M"}},
    {Name::mnuUngeboren, Name::mnuSymbolEinfügen, {"Ungeboren", "Unborn"}, {"U", "U"}},
    {Name::mnuEinfügenSchwanger, Name::mnuUngeboren, {"Schwangerschaft", "Pregnancy"}, {"S", "P"}},
    {Name::mnuEinfügenAbtreibung, Name::mnuUngeboren, {"Abtreibung", "Abortion"}, {"A", "A"}},
    {Name::mnuEinfügenFehlgeburt, Name::mnuUngeboren, {"Fehlgeburt", "Miscarriage"}, {"F", "M"}},
    {Name::mnuEinfügenTotgeburt, Name::mnuUngeboren, {"Totgeburt", "Stillbirth"}, {"T", "S"}},
    {Name::mnuEinfügenTotgeburtMännlich,
     Name::mnuEinfügenTotgeburt,
     {"Totgeburt Männlich", "Stillbirth Male"},
     {"M", "M"}},
    {Name::mnuEinfügenTotgeburtWeiblich,
     Name::mnuEinfügenTotgeburt,
     {"Totgeburt Weiblich", "Stillbirth Female"},
     {"W", "F"}},
    {Name::mnuEinfügenZwillinge, Name::mnuSymbolEinfügen, {"Zwillinge", "Twins"}, {"Z", "w"}},
    {Name::mnuMenü_ZweieiigeZwillinge,
     Name::mnuEinfügenZwillinge,
     {"Zweieiige Zwillinge", "Dizygotic Twins"},
     {"Z", "D"}},
    {Name::mnuEinfügen_mw1, Name::mnuMenü_ZweieiigeZwillinge, {"Männlich - Weiblich", "Male - Female"}, {"M", "M"}},
    {Name::mnuEinfügen_ww1, Name::mnuMenü_ZweieiigeZwillinge, {"Weiblich - Weiblich", "Female - Female"}, {"W", "F"}},
    {Name::mnuEinfügen_mm1, Name::mnuMenü_ZweieiigeZwillinge, {"Männlich - Männlich", "Male - Male"}, {"n", "a"}},
    {Name::mnuMenü_EineiigeZwillinge,
     Name::mnuEinfügenZwillinge,
     {"Eineiige Zwillinge", "Monozygotic Twins"},
     {"E", "M"}},
    {Name::mnuEinfügen_mw2, Name::mnuMenü_EineiigeZwillinge, {"Männlich - Weiblich", "Male - Female"}, {"M", "M"}},
    {Name::mnuEinfügen_ww2, Name::mnuMenü_EineiigeZwillinge, {"Weiblich - Weiblich", "Female - Female"}, {"W", "F"}},
    {Name::mnuEinfügen_mm2, Name::mnuMenü_EineiigeZwillinge, {"Männlich - Männlich", "Male - Male"}, {"n", "a"}},
    {Name::mnuEinfügenEltern, Name::mnuSymbolEinfügen, {"Eltern", "Parents"}, {"E", "P"}},
    {Name::mnuPfeil, Name::mnuSymbolEinfügen, {"Zeiger / Pfeil", "Pointer / Arrow"}, {"P", "A"}},
    {Name::mnuDoppelpfeil, Name::mnuSymbolEinfügen, {"Doppelpfeil", "Double Arrow"}, {"o", "D"}},
    {Name::mnuEinfügenTextfeld, Name::mnuSymbolEinfügen, {"Textfeld", "Textbox"}, {"x", "x"}},
    {Name::mnuEinfügenKreislinie, Name::mnuSymbolEinfügen, {"Kreislinie", "Circular Line"}, {"K", "C"}},
    {Name::mnuAnordnen2, Name::mnuSymbolEinfügen, {"Anordnen", "Arrange"}, {"n", "n"}},
    {Name::mnustr15, Name::mnuSymbolEinfügen, {"-", "-"}, {}, "", true, Versteckt},
    {Name::mnuEinfügen8, Name::mnuSymbolEinfügen, {"Einfügen", "Paste"}, {"f", "s"}, "", Gesperrt, Versteckt},

    {Name::mnuAnsicht, Menüleiste, {"Ansicht", "View"}, {"A", "V"}},
    {Name::mnuWerkzeugleiste, Name::mnuAnsicht, {"Werkzeugleiste ausblenden", "Hide Toolbar"}, {"W", "T"}},
    {Name::mnuRasterAnzeigen, Name::mnuAnsicht, {"Raster anzeigen", "Show Grid"}, {"R", "G"}},
    {Name::mnuRastergroesse, Name::mnuAnsicht, {"Rastergröße", "Grid Size"}, {"g", "S"}},
    {Name::mnuRasterKlein, Name::mnuRastergroesse, {"Standard (3 mm)", "Standard (3 mm)"}, {"S", "S"}},
    {Name::mnuRasterGroß, Name::mnuRastergroesse, {"Groß (6 mm)", "Large (6 mm)"}, {"G", "L"}},
    {Name::mnuLegende, Name::mnuAnsicht, {"Legende", "Legend"}, {"L", "L"}},
    {Name::mnuLegendeEinstellungen, Name::mnuLegende, {"Legende bearbeiten", "Edit Legend"}, {"b", "E"}},
    {Name::mnuLegendeAktualisieren, Name::mnuLegende, {"Legende aktualisieren", "Update Legend"}, {"a", "U"}},
    {Name::mnuLegendeAnzeigen, Name::mnuLegende, {"Legende einblenden", "Show Legend"}, {"e", "S"}},
    {Name::mnuFarbschema, Name::mnuAnsicht, {"Farbschema", "Color Scheme"}, {"F", "C"}},
    {Name::mnuSchwarzWeiß, Name::mnuFarbschema, {"Schwarz / Weiß", "Black / White"}, {"S", "B"}},
    {Name::mnuGraustufen, Name::mnuFarbschema, {"Graustufen", "Grayscale"}, {"G", "G"}},
    {Name::mnuFarbig, Name::mnuFarbschema, {"Farbig", "Colored"}, {"F", "C"}},
    {Name::mnuSchriftart, Name::mnuAnsicht, {"Standardeinstellungen für Schrift", "Default Font Settings"}, {"S", "F"}},
    {Name::mnuAltersangabe, Name::mnuAnsicht, {"Darstellung der Altersangabe", "Age Display"}, {"D", "A"}},
    {Name::mnuSymbolGröße, Name::mnuAnsicht, {"Symbolgröße", "Icon Size"}, {"y", "I"}},
    {Name::mnuSymbolKleiner, Name::mnuSymbolGröße, {"Kleiner", "Smaller"}, {"K", "S"}},
    {Name::mnuSymbolGrößer, Name::mnuSymbolGröße, {"Größer", "Bigger"}, {"G", "B"}},

    {Name::mnuHelp, Menüleiste, {"?", "?"}, {"?", "?"}},
    {Name::mnuHilfethemen, Name::mnuHelp, {"Online Hilfe / Anleitung", "Online Help"}, {"O", "H"}},
    {Name::mnuInfo, Name::mnuHelp, {"Über dieses Programm ...", "About ..."}, {"P", "A"}},
    {Name::mnuEinstellungen, Name::mnuHelp, {"Sprache / Language", "Language ..."}, {"S", "L"}},
    {Name::mnuUpdate, Name::mnuHelp, {"Updates ...", "Updates ..."}, {"U", "U"}},
    {Name::mnuFassungen, Name::mnuHelp, {"Gesicherte Fassungen ...", "Kept Versions ..."}, {"G", "K"}},

    {Name::mnuPerson, Kontextmenü, {}},
    {Name::mnuSymbolBearbeiten, Name::mnuPerson, {"Bearbeiten ", "Edit  "}, {"B", "E"}},
    {Name::mnuStr2, Name::mnuPerson, {"-", "-"}},
    {Name::mnuBeziehungErstellen2, Name::mnuPerson, {"Beziehungslinie", "Relationship Line"}, {"z", "R"}},
    {Name::mnuPartnerschaftsLinie, Name::mnuPerson, {"Partnerschaftslinie ", "Partnership Line"}, {"P", "P"}},
    {Name::mnuKindVon, Name::mnuPerson, {"Als Kind verknüpfen", "Link as Child"}, {"v", "L"}},
    {Name::mnustr14, Name::mnuPerson, {"-", "-"}, {}, "", true, Versteckt},
    {Name::mnuStr8, Name::mnuPerson, {"-", "-"}},
    {Name::mnuSymbolVergrößern, Name::mnuPerson, {"Symbol vergrößern", "Enlarge Symbol"}, {"g", "g"}},
    {Name::mnuSymbolVerkleinern, Name::mnuPerson, {"Symbol verkleinern", "Decrease Symbol"}, {"i", "S"}},
    {Name::mnuStr9, Name::mnuPerson, {"-", "-"}},
    {Name::mnuAusschneiden2, Name::mnuPerson, {"Ausschneiden", "Cut"}, {"A", "t"}},
    {Name::mnuKopieren2, Name::mnuPerson, {"Kopieren", "Copy"}, {"K", "C"}},
    {Name::mnuSymbolLöschen, Name::mnuPerson, {"Löschen", "Delete"}, {"L", "D"}},

    {Name::mnuBezLinie, Kontextmenü, {}},
    {Name::mnuBLinieBearbeiten, Name::mnuBezLinie, {" Bearbeiten", " Edit"}, {"B", "E"}},
    {Name::mnuBezLinieLöschen, Name::mnuBezLinie, {" Löschen ", " Delete "}, {"L", "D"}},

    {Name::mnuPLinie, Kontextmenü, {}},
    {Name::mnuPLiniebearbeiten, Name::mnuPLinie, {"Bearbeiten", "Edit"}, {"B", "E"}},
    {Name::mnuPLineLöschen, Name::mnuPLinie, {"Löschen", "Delete"}, {"L", "D"}},

    {Name::mnuKindLinie, Kontextmenü, {}},
    {Name::mnuLeiblichesKind, Name::mnuKindLinie, {"Leiblich", "Natural Child"}, {"b", "N"}},
    {Name::mnuAdoptiert, Name::mnuKindLinie, {"Adoptiert", "Adopted Child"}, {"A", "A"}},
    {Name::mnuPflegekind, Name::mnuKindLinie, {"Pflegekind", "Foster Child"}, {"P", "F"}},
    {Name::mnuStr10, Name::mnuKindLinie, {"-", "-"}},
    {Name::mnuKindLinieLöschen, Name::mnuKindLinie, {"Löschen", "Delete"}, {"L", "D"}},

    {Name::mnuPfeil1, Kontextmenü, {}},
    {Name::mnuPfeilLöschen, Name::mnuPfeil1, {"Löschen", "Delete"}, {"L", "D"}},

    {Name::mnuKreislinie, Kontextmenü, {}},
    {Name::mnuKreisLinieLöschen, Name::mnuKreislinie, {"Löschen", "Delete"}, {"L", "D"}},

    {Name::mnuTextBox, Kontextmenü, {}},
    {Name::mnuTextbearbeiten, Name::mnuTextBox, {"Bearbeiten", "Edit"}, {"B", "E"}},
    {Name::mnuStr11, Name::mnuTextBox, {"-", "-"}},
    {Name::mnuTextBoxAusschneiden, Name::mnuTextBox, {"Ausschneiden", "Cut"}, {"A", "t"}},
    {Name::mnuTextBoxKopieren, Name::mnuTextBox, {"Kopieren", "Copy"}, {"K", "C"}},
    {Name::mnuTextboxLöschen, Name::mnuTextBox, {"Löschen", "Delete"}, {"L", "D"}},

    {Name::mnuZwillinge, Kontextmenü, {}},
    {Name::mnuZweieiige_Zwillinge, Name::mnuZwillinge, {"Zweieiige Zwillinge", "Dizygotic Twins"}, {"Z", "D"}},
    {Name::mnuZwillinge_männlich_weiblich,
     Name::mnuZweieiige_Zwillinge,
     {"Männlich - Weiblich", "Male - Female"},
     {"M", "M"}},
    {Name::mnuZwillinge_weiblich_weiblich,
     Name::mnuZweieiige_Zwillinge,
     {"Weiblich - Weiblich", "Female - Female"},
     {"W", "F"}},
    {Name::mnuZwilling_Männlich_Männlich,
     Name::mnuZweieiige_Zwillinge,
     {"Männlich - Männlich", "Male - Male"},
     {"n", "a"}},
    {Name::mnuEineiigeZwillinge, Name::mnuZwillinge, {"Eineiige Zwillinge", "Monozygotic Twins"}, {"E", "M"}},
    {Name::mnuZwillingeEineiig_männlich_weiblich,
     Name::mnuEineiigeZwillinge,
     {"Männlich - Weiblich", "Male - Female"},
     {"M", "M"}},
    {Name::mnuZwillingeEineiig_weiblich_weiblich,
     Name::mnuEineiigeZwillinge,
     {"Weiblich - Weiblich", "Female - Female"},
     {"W", "F"}},
    {Name::mnuZwillingeeineiig_männlich_männlich,
     Name::mnuEineiigeZwillinge,
     {"Männlich - Männlich", "Male - Male"},
     {"n", "a"}},

    {Name::mnuAuswahlBox, Kontextmenü, {}},
    {Name::mnuAusschneiden4, Name::mnuAuswahlBox, {"Ausschneiden", "Cut"}, {"A", "t"}},
    {Name::mnuKopieren4, Name::mnuAuswahlBox, {"Kopieren", "Copy"}, {"K", "C"}},
    {Name::mnuLöschen4, Name::mnuAuswahlBox, {"Löschen", "Delete"}, {"L", "D"}},
    {Name::mnuAnordnen4, Name::mnuAuswahlBox, {"Anordnen", "Arrange"}, {"n", "A"}},
    {Name::mnuMakeTwins,
     Name::mnuAuswahlBox,
     {"Als Zwillinge darstellen", "Represent As Twins"},
     {"Z", "R"},
     "",
     true,
     Versteckt},
    {Name::mnuTwinszweiiig, Name::mnuMakeTwins, {"Zweieiige Zwillinge", "Dizygotic Twins"}, {"Z", "D"}},
    {Name::mnuTwinsEineiig, Name::mnuMakeTwins, {"Eineiige Zwillinge", "Monozygotic Twins"}, {"E", "M"}},

    {Name::mnuZwischenablage, Kontextmenü, {}},
    {Name::mnuEinfügen7, Name::mnuZwischenablage, {"Einfügen", "Paste"}, {"E", "P"}},

    {Name::btnNeuesProjekt, Werkzeugband, {"Neu", "New"}},
    {Name::btnÖffnen, Werkzeugband, {"Öffnen ...", "Open..."}},
    {Name::btnSpeichern, Werkzeugband, {"Speichern", "Save"}},
    {Name::btnDrucken, Werkzeugband, {"Drucken...", "Print..."}},
    {Name::btnUndo, Werkzeugband, {"Rückgängig", "Undo"}, {}, "", Gesperrt},
    {Name::btnRedo, Werkzeugband, {"Wiederherstellen", "Redo"}, {}, "", Gesperrt},
    {Name::btnHochformat, Werkzeugband, {"Hochformat", "Portrait"}},
    {Name::btnQuerformat, Werkzeugband, {"Querformat", "Landscape"}},
    {Name::btnGitterZeichnen, Werkzeugband, {"Raster anzeigen", "Grid"}},
    {Name::btnBlattränder,
     Werkzeugband,
     {"Druckränder für den Default-Printer anzeigen:  ", "Show Print Margins For The Default-Printer:  "}},
    {Name::btnPapier, Werkzeugband, {"Papierformat", "Paper Size"}},
    {Name::keyDINA4, Name::btnPapier, {"DIN A4", "DIN A4"}, {"4", "4"}},
    {Name::keyDINA5, Name::btnPapier, {"DIN A5", "DIN A5"}, {"5", "5"}},
    {Name::keyUSLetter, Name::btnPapier, {"US Letter", "US Letter"}, {"L", "L"}},
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
    {Name::keySchwarzweiß, Name::btnFarbschema, {"Monochrom", "Monochrome"}, {"M", "M"}},
    {Name::keyGraustufen, Name::btnFarbschema, {"Graustufen", "Grayscale"}, {"G", "G"}},
    {Name::keyFarbig, Name::btnFarbschema, {"Farbig", "Colored"}, {"F", "C"}},
    {Name::btnClipboard,
     Werkzeugband,
     {"Auswahl als Bild in Zwischenablage kopieren", "Copy selection as image to clipboard"}},
    {Name::btnAuswahlZuBild, Werkzeugband, {"Auswahl als Bild speichern", "Save selection as image"}},
    {Name::btnImport, Werkzeugband, {"Importierte Personen", "Imported Persons"}, {}, "", Gesperrt, Versteckt},

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
    {Name::cmdDelete, Palette, {"Löschen", "Delete"}, {}, "", Gesperrt},

    {Name::cmdRänder, Fensterteile, {"Druckränder ...", "Print Margins ..."}},
    {Name::lblTool, Fensterteile, {}},
    {Name::lblHinweis, Fensterteile, {}},  // why nothing came of a gesture
    {Name::lblStatus, Fensterteile, {}},   // that, or what comes next, or what the pointer is over
    {Name::lblEinstieg, Fensterteile, {}}, // on a page on which nothing was ever done: how to begin
    {Name::picToolTipp, Fensterteile, {}, {}, "", true, Versteckt},
    {Name::imgVariable, Fensterteile, {}, {}, "", true, Versteckt},
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

Kennstelle KennstelleIn(const Menüzeile &zeile, std::string_view caption, Sprache sprache) {
    std::string text(caption);
    if (caption == zeile.Caption.In(sprache)) std::erase(text, '&');
    const std::string_view buchstabe = zeile.Kennbuchstabe.In(sprache);
    size_t stelle = buchstabe.empty() ? std::string::npos : text.find(buchstabe);
    for (size_t i = stelle; i != std::string::npos; i = text.find(buchstabe, i + 1))
        if (i == 0 || text[i - 1] == ' ') {
            stelle = i;
            break;
        }
    if (stelle == std::string::npos) return {text, ""};
    return {text.substr(0, stelle), text.substr(stelle)};
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
