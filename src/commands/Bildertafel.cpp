#include "commands/Bildertafel.h"

#include "platform/Befehlsnamen.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

struct Bildzeile {
    std::string_view Name;
    std::string_view Bild;
};

constexpr Bildzeile Tafel[] = {
    {Name::mnuNeu, "neu"},
    {Name::mnuÖffnen, "oeffnen"},
    {Name::mnuSpeichern, "speichern"},
    {Name::mnuSichernUnter, "speichern-unter"},
    {Name::mnuStammbaum, "stammbaum"},
    {Name::mnuExportieren, "bild-export"},
    {Name::mnuPDF_Export, "pdf-export"},
    {Name::mnuStammbaumExport, "stammbaum-export"},
    {Name::mnuOhneNamen, "ohne-namen"},
    {Name::mnuZuletztGeöffnet, "zuletzt"},
    {Name::mnuSeiteEinrichten, "seite"},
    {Name::mnuDrucken, "drucken"},
    {Name::mnuBeenden, "beenden"},

    {Name::mnuRückgängig, "rueckgaengig"},
    {Name::mnuWiederholen, "wiederholen"},
    {Name::mnuAusschneiden, "ausschneiden"},
    {Name::mnuAusschneiden2, "ausschneiden"},
    {Name::mnuAusschneiden4, "ausschneiden"},
    {Name::mnuTextBoxAusschneiden, "ausschneiden"},
    {Name::mnuKopieren, "kopieren"},
    {Name::mnuKopieren2, "kopieren"},
    {Name::mnuKopieren4, "kopieren"},
    {Name::mnuTextBoxKopieren, "kopieren"},
    {Name::mnuEinfügen, "einfuegen"},
    {Name::mnuEinfügen7, "einfuegen"},
    {Name::mnuEinfügen8, "einfuegen"},
    {Name::mnuLöschen1, "loeschen"},
    {Name::mnuLöschen4, "loeschen"},
    {Name::mnuAnordnen, "anordnen"},
    {Name::mnuAnordnen2, "anordnen"},
    {Name::mnuAnordnen4, "anordnen"},
    {Name::mnuSymbolLöschen, "loeschen"},
    {Name::mnuBezLinieLöschen, "loeschen"},
    {Name::mnuPLineLöschen, "loeschen"},
    {Name::mnuKindLinieLöschen, "loeschen"},
    {Name::mnuPfeilLöschen, "loeschen"},
    {Name::mnuKreisLinieLöschen, "loeschen"},
    {Name::mnuTextboxLöschen, "loeschen"},

    {Name::mnuEinfügenMännlich, "cmdSymb(1)"},
    {Name::mnuEinfügenWeiblich, "cmdSymb(2)"},
    {Name::mnuDivers, "cmdSymb(20)"},
    {Name::mnuTransgender_mw, "cmdSymb(18)"},
    {Name::mnuWeiblichZuMännlich, "cmdSymb(18)"},
    {Name::mnuMännlichZuWeiblich, "cmdSymb(19)"},
    {Name::mnuUngeboren, "cmdSymb(3)"},
    {Name::mnuEinfügenSchwanger, "cmdSymb(3)"},
    {Name::mnuEinfügenAbtreibung, "cmdSymb(7)"},
    {Name::mnuEinfügenFehlgeburt, "cmdSymb(4)"},
    {Name::mnuEinfügenTotgeburt, "cmdSymb(5)"},
    {Name::mnuEinfügenTotgeburtMännlich, "cmdSymb(5)"},
    {Name::mnuEinfügenTotgeburtWeiblich, "cmdSymb(6)"},
    {Name::mnuEinfügenZwillinge, "cmdSymb(8)"},
    {Name::mnuEinfügenEltern, "cmdSymb(11)"},
    {Name::mnuPfeil, "cmdSymb(15)"},
    {Name::mnuDoppelpfeil, "cmdSymb(16)"},
    {Name::mnuEinfügenTextfeld, "cmdSymb(10)"},
    {Name::mnuEinfügenKreislinie, "cmdSymb(9)"},
    // The palette's picture of twins shows one of these six pairs only.
    {Name::mnuMenü_ZweieiigeZwillinge, "zwillinge-zweieiig"},
    {Name::mnuEinfügen_mw1, "zwillinge-mw"},
    {Name::mnuEinfügen_ww1, "zwillinge-ww"},
    {Name::mnuEinfügen_mm1, "zwillinge-mm"},
    {Name::mnuMenü_EineiigeZwillinge, "zwillinge-eineiig"},
    {Name::mnuEinfügen_mw2, "zwillinge-eineiig-mw"},
    {Name::mnuEinfügen_ww2, "zwillinge-eineiig-ww"},
    {Name::mnuEinfügen_mm2, "zwillinge-eineiig-mm"},
    {Name::mnuZweieiige_Zwillinge, "zwillinge-zweieiig"},
    {Name::mnuZwillinge_männlich_weiblich, "zwillinge-mw"},
    {Name::mnuZwillinge_weiblich_weiblich, "zwillinge-ww"},
    {Name::mnuZwilling_Männlich_Männlich, "zwillinge-mm"},
    {Name::mnuEineiigeZwillinge, "zwillinge-eineiig"},
    {Name::mnuZwillingeEineiig_männlich_weiblich, "zwillinge-eineiig-mw"},
    {Name::mnuZwillingeEineiig_weiblich_weiblich, "zwillinge-eineiig-ww"},
    {Name::mnuZwillingeeineiig_männlich_männlich, "zwillinge-eineiig-mm"},
    {Name::mnuMakeTwins, "cmdSymb(8)"},
    {Name::mnuTwinszweiiig, "zwillinge-zweieiig"},
    {Name::mnuTwinsEineiig, "zwillinge-eineiig"},

    {Name::mnuSymbolBearbeiten, "bearbeiten"},
    {Name::mnuBLinieBearbeiten, "bearbeiten"},
    {Name::mnuPLiniebearbeiten, "bearbeiten"},
    {Name::mnuTextbearbeiten, "bearbeiten"},
    {Name::mnuBeziehungErstellen2, "cmdSymb(12)"},
    {Name::mnuPartnerschaftsLinie, "cmdSymb(13)"},
    {Name::mnuKindVon, "cmdSymb(14)"},
    {Name::mnuSymbolVergrößern, "symbol-groesser"},
    {Name::mnuSymbolVerkleinern, "symbol-kleiner"},

    {Name::mnuWerkzeugleiste, "palette"},
    {Name::mnuRasterAnzeigen, "raster"},
    {Name::mnuRastergroesse, "rasterweite"},
    {Name::mnuLegende, "legende"},
    {Name::mnuLegendeEinstellungen, "bearbeiten"},
    {Name::mnuLegendeAktualisieren, "aktualisieren"},
    {Name::mnuLegendeAnzeigen, "anzeigen"},
    {Name::mnuFarbschema, "farbschema-farbig"},
    {Name::mnuSchriftart, "schrift"},
    {Name::mnuAltersangabe, "alter"},
    {Name::mnuSymbolGröße, "symbolgroesse"},
    {Name::mnuSymbolKleiner, "symbol-kleiner"},
    {Name::mnuSymbolGrößer, "symbol-groesser"},

    {Name::mnuHilfethemen, "hilfe"},
    {Name::mnuInfo, "info"},
    {Name::mnuEinstellungen, "sprache"},
    {Name::mnuUpdate, "update"},

    {Name::btnNeuesProjekt, "neu"},
    {Name::btnÖffnen, "oeffnen"},
    {Name::btnSpeichern, "speichern"},
    {Name::btnDrucken, "drucken"},
    {Name::btnUndo, "rueckgaengig"},
    {Name::btnRedo, "wiederholen"},
    {Name::btnHochformat, "hochformat"},
    {Name::btnQuerformat, "querformat"},
    {Name::btnGitterZeichnen, "raster"},
    {Name::btnBlattränder, "blattraender"},
    {Name::btnPapier, "papier"},
    {Name::btnZoom, "zoom"},
    {Name::btnBildGrößer, "zoom-groesser"},
    {Name::btnBildKleiner, "zoom-kleiner"},
    {Name::btnWerkzeugleiste, "palette"},
    {Name::btnLegende, "legende"},
    {Name::btnFarbschema, "farbschema-farbig"},
    // The button of the drop-down wears that of the ticked row.
    {Name::keySchwarzweiß, "farbschema-sw"},
    {Name::keyGraustufen, "farbschema-grau"},
    {Name::keyFarbig, "farbschema-farbig"},
    {Name::btnClipboard, "bild-ablage"},
    {Name::btnAuswahlZuBild, "bild-datei"},
    {Name::btnImport, "import"},
};

} // namespace

std::string_view Bildname(std::string_view name) {
    const auto i = std::find_if(std::begin(Tafel), std::end(Tafel), [&](const Bildzeile &z) { return z.Name == name; });
    return i == std::end(Tafel) ? std::string_view() : i->Bild;
}

} // namespace kw
