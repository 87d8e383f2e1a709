#include "commands/Bildertafel.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

struct Bildzeile {
    std::string_view Name;
    std::string_view Bild;
};

constexpr Bildzeile Tafel[] = {
    {"mnuNeu", "neu"},
    {"mnuÖffnen", "oeffnen"},
    {"mnuSpeichern", "speichern"},
    {"mnuSichernUnter", "speichern-unter"},
    {"mnuExportieren", "bild-export"},
    {"mnuPDF_Export", "pdf-export"},
    {"mnuZuletztGeöffnet", "zuletzt"},
    {"mnuSeiteEinrichten", "seite"},
    {"mnuDrucken", "drucken"},
    {"mnuBeenden", "beenden"},

    {"mnuRückgängig", "rueckgaengig"},
    {"mnuWiederholen", "wiederholen"},
    {"mnuAusschneiden", "ausschneiden"},
    {"mnuAusschneiden2", "ausschneiden"},
    {"mnuAusschneiden4", "ausschneiden"},
    {"mnuTextBoxAusschneiden", "ausschneiden"},
    {"mnuKopieren", "kopieren"},
    {"mnuKopieren2", "kopieren"},
    {"mnuKopieren4", "kopieren"},
    {"mnuTextBoxKopieren", "kopieren"},
    {"mnuEinfügen", "einfuegen"},
    {"mnuEinfügen7", "einfuegen"},
    {"mnuEinfügen8", "einfuegen"},
    {"mnuLöschen1", "loeschen"},
    {"mnuLöschen4", "loeschen"},
    {"mnuSymbolLöschen", "loeschen"},
    {"mnuBezLinieLöschen", "loeschen"},
    {"mnuPLineLöschen", "loeschen"},
    {"mnuKindLinieLöschen", "loeschen"},
    {"mnuPfeilLöschen", "loeschen"},
    {"mnuKreisLinieLöschen", "loeschen"},
    {"mnuTextboxLöschen", "loeschen"},

    {"mnuEinfügenMännlich", "cmdSymb(1)"},
    {"mnuEinfügenWeiblich", "cmdSymb(2)"},
    {"mnuDivers", "cmdSymb(20)"},
    {"mnuTransgender_mw", "cmdSymb(18)"},
    {"mnuWeiblichZuMännlich", "cmdSymb(18)"},
    {"mnuMännlichZuWeiblich", "cmdSymb(19)"},
    {"mnuUngeboren", "cmdSymb(3)"},
    {"mnuEinfügenSchwanger", "cmdSymb(3)"},
    {"mnuEinfügenAbtreibung", "cmdSymb(7)"},
    {"mnuEinfügenFehlgeburt", "cmdSymb(4)"},
    {"mnuEinfügenTotgeburt", "cmdSymb(5)"},
    {"mnuEinfügenTotgeburtMännlich", "cmdSymb(5)"},
    {"mnuEinfügenTotgeburtWeiblich", "cmdSymb(6)"},
    {"mnuEinfügenZwillinge", "cmdSymb(8)"},
    {"mnuEinfügenEltern", "cmdSymb(11)"},
    {"mnuPfeil", "cmdSymb(15)"},
    {"mnuDoppelpfeil", "cmdSymb(16)"},
    {"mnuEinfügenTextfeld", "cmdSymb(10)"},
    {"mnuEinfügenKreislinie", "cmdSymb(9)"},
    // The palette's picture of twins shows one of these six pairs only.
    {"mnuMenü_ZweieiigeZwillinge", "zwillinge-zweieiig"},
    {"mnuEinfügen_mw1", "zwillinge-mw"},
    {"mnuEinfügen_ww1", "zwillinge-ww"},
    {"mnuEinfügen_mm1", "zwillinge-mm"},
    {"mnuMenü_EineiigeZwillinge", "zwillinge-eineiig"},
    {"mnuEinfügen_mw2", "zwillinge-eineiig-mw"},
    {"mnuEinfügen_ww2", "zwillinge-eineiig-ww"},
    {"mnuEinfügen_mm2", "zwillinge-eineiig-mm"},
    {"mnuZweieiige_Zwillinge", "zwillinge-zweieiig"},
    {"mnuZwillinge_männlich_weiblich", "zwillinge-mw"},
    {"mnuZwillinge_weiblich_weiblich", "zwillinge-ww"},
    {"mnuZwilling_Männlich_Männlich", "zwillinge-mm"},
    {"mnuEineiigeZwillinge", "zwillinge-eineiig"},
    {"mnuZwillingeEineiig_männlich_weiblich", "zwillinge-eineiig-mw"},
    {"mnuZwillingeEineiig_weiblich_weiblich", "zwillinge-eineiig-ww"},
    {"mnuZwillingeeineiig_männlich_männlich", "zwillinge-eineiig-mm"},
    {"mnuMakeTwins", "cmdSymb(8)"},
    {"mnuTwinszweiiig", "zwillinge-zweieiig"},
    {"mnuTwinsEineiig", "zwillinge-eineiig"},

    {"mnuSymbolBearbeiten", "bearbeiten"},
    {"mnuBLinieBearbeiten", "bearbeiten"},
    {"mnuPLiniebearbeiten", "bearbeiten"},
    {"mnuTextbearbeiten", "bearbeiten"},
    {"mnuBeziehungErstellen2", "cmdSymb(12)"},
    {"mnuPartnerschaftsLinie", "cmdSymb(13)"},
    {"mnuKindVon", "cmdSymb(14)"},
    {"mnuSymbolVergrößern", "symbol-groesser"},
    {"mnuSymbolVerkleinern", "symbol-kleiner"},

    {"mnuWerkzeugleiste", "palette"},
    {"mnuRasterAnzeigen", "raster"},
    {"mnuRastergroesse", "rasterweite"},
    {"mnuLegende", "legende"},
    {"mnuLegendeEinstellungen", "bearbeiten"},
    {"mnuLegendeAktualisieren", "aktualisieren"},
    {"mnuLegendeAnzeigen", "anzeigen"},
    {"mnuFarbschema", "farbschema-farbig"},
    {"mnuSchriftart", "schrift"},
    {"mnuAltersangabe", "alter"},
    {"mnuSymbolGröße", "symbolgroesse"},
    {"mnuSymbolKleiner", "symbol-kleiner"},
    {"mnuSymbolGrößer", "symbol-groesser"},

    {"mnuHilfethemen", "hilfe"},
    {"mnuInfo", "info"},
    {"mnuEinstellungen", "sprache"},
    {"mnuUpdate", "update"},

    {"btnNeuesProjekt", "neu"},
    {"btnÖffnen", "oeffnen"},
    {"btnSpeichern", "speichern"},
    {"btnDrucken", "drucken"},
    {"btnUndo", "rueckgaengig"},
    {"btnRedo", "wiederholen"},
    {"btnHochformat", "hochformat"},
    {"btnQuerformat", "querformat"},
    {"btnGitterZeichnen", "raster"},
    {"btnBlattränder", "blattraender"},
    {"btnPapier", "papier"},
    {"btnZoom", "zoom"},
    {"btnBildGrößer", "zoom-groesser"},
    {"btnBildKleiner", "zoom-kleiner"},
    {"btnWerkzeugleiste", "palette"},
    {"btnLegende", "legende"},
    {"btnFarbschema", "farbschema-farbig"},
    // The button of the drop-down wears that of the ticked row.
    {"keySchwarzweiß", "farbschema-sw"},
    {"keyGraustufen", "farbschema-grau"},
    {"keyFarbig", "farbschema-farbig"},
    {"btnClipboard", "bild-ablage"},
    {"btnAuswahlZuBild", "bild-datei"},
    {"btnImport", "import"},
};

} // namespace

std::string_view Bildname(std::string_view name) {
    const auto i = std::find_if(std::begin(Tafel), std::end(Tafel), [&](const Bildzeile &z) { return z.Name == name; });
    return i == std::end(Tafel) ? std::string_view() : i->Bild;
}

} // namespace kw
