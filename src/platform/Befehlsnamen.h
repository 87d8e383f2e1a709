#pragma once

#include <string_view>

namespace kw {

/// The name of something that can be pressed, as the commands' table has it; for code that knows it beforehand. Only
/// the constants below have this type, so that a slip doesn't compile.
struct Befehlsname {
    std::string_view Text;
    constexpr operator std::string_view() const { return Text; } // NOLINT: it is that text
};

/// The same for a form.
struct Formularname {
    std::string_view Text;
    constexpr operator std::string_view() const { return Text; } // NOLINT: it is that text
};

namespace Name {

// Menus and their entries.
inline constexpr Befehlsname mnuDatei{"mnuDatei"};
inline constexpr Befehlsname mnuNeu{"mnuNeu"};
inline constexpr Befehlsname mnuÖffnen{"mnuÖffnen"};
inline constexpr Befehlsname mnuSpeichern{"mnuSpeichern"};
inline constexpr Befehlsname mnuSichernUnter{"mnuSichernUnter"};
inline constexpr Befehlsname mnuStammbaum{"mnuStammbaum"};
inline constexpr Befehlsname mnuStr1{"mnuStr1"};
inline constexpr Befehlsname mnuExportieren{"mnuExportieren"};
inline constexpr Befehlsname mnuPDF_Export{"mnuPDF_Export"};
inline constexpr Befehlsname mnuStammbaumExport{"mnuStammbaumExport"};
inline constexpr Befehlsname mnuOhneNamen{"mnuOhneNamen"};
inline constexpr Befehlsname mnuStr3{"mnuStr3"};
inline constexpr Befehlsname mnuZuletztGeöffnet{"mnuZuletztGeöffnet"};
inline constexpr Befehlsname mnuStr4{"mnuStr4"};
inline constexpr Befehlsname mnuSeiteEinrichten{"mnuSeiteEinrichten"};
inline constexpr Befehlsname mnuDrucken{"mnuDrucken"};
inline constexpr Befehlsname mnuStr5{"mnuStr5"};
inline constexpr Befehlsname mnuBeenden{"mnuBeenden"};
inline constexpr Befehlsname mnuBearbeiten{"mnuBearbeiten"};
inline constexpr Befehlsname mnuRückgängig{"mnuRückgängig"};
inline constexpr Befehlsname mnuWiederholen{"mnuWiederholen"};
inline constexpr Befehlsname mnuStr6{"mnuStr6"};
inline constexpr Befehlsname mnuAusschneiden{"mnuAusschneiden"};
inline constexpr Befehlsname mnuKopieren{"mnuKopieren"};
inline constexpr Befehlsname mnuEinfügen{"mnuEinfügen"};
inline constexpr Befehlsname mnuStr7{"mnuStr7"};
inline constexpr Befehlsname mnuLöschen1{"mnuLöschen1"};
inline constexpr Befehlsname mnuAnordnen{"mnuAnordnen"};
inline constexpr Befehlsname mnuAnordnen2{"mnuAnordnen2"};
inline constexpr Befehlsname mnuSymbolEinfügen{"mnuSymbolEinfügen"};
inline constexpr Befehlsname mnuEinfügenMännlich{"mnuEinfügenMännlich"};
inline constexpr Befehlsname mnuEinfügenWeiblich{"mnuEinfügenWeiblich"};
inline constexpr Befehlsname mnuDivers{"mnuDivers"};
inline constexpr Befehlsname mnuTransgender_mw{"mnuTransgender_mw"};
inline constexpr Befehlsname mnuWeiblichZuMännlich{"mnuWeiblichZuMännlich"};
inline constexpr Befehlsname mnuMännlichZuWeiblich{"mnuMännlichZuWeiblich"};
inline constexpr Befehlsname mnuUngeboren{"mnuUngeboren"};
inline constexpr Befehlsname mnuEinfügenSchwanger{"mnuEinfügenSchwanger"};
inline constexpr Befehlsname mnuEinfügenAbtreibung{"mnuEinfügenAbtreibung"};
inline constexpr Befehlsname mnuEinfügenFehlgeburt{"mnuEinfügenFehlgeburt"};
inline constexpr Befehlsname mnuEinfügenTotgeburt{"mnuEinfügenTotgeburt"};
inline constexpr Befehlsname mnuEinfügenTotgeburtMännlich{"mnuEinfügenTotgeburtMännlich"};
inline constexpr Befehlsname mnuEinfügenTotgeburtWeiblich{"mnuEinfügenTotgeburtWeiblich"};
inline constexpr Befehlsname mnuEinfügenZwillinge{"mnuEinfügenZwillinge"};
inline constexpr Befehlsname mnuMenü_ZweieiigeZwillinge{"mnuMenü_ZweieiigeZwillinge"};
inline constexpr Befehlsname mnuEinfügen_mw1{"mnuEinfügen_mw1"};
inline constexpr Befehlsname mnuEinfügen_ww1{"mnuEinfügen_ww1"};
inline constexpr Befehlsname mnuEinfügen_mm1{"mnuEinfügen_mm1"};
inline constexpr Befehlsname mnuMenü_EineiigeZwillinge{"mnuMenü_EineiigeZwillinge"};
inline constexpr Befehlsname mnuEinfügen_mw2{"mnuEinfügen_mw2"};
inline constexpr Befehlsname mnuEinfügen_ww2{"mnuEinfügen_ww2"};
inline constexpr Befehlsname mnuEinfügen_mm2{"mnuEinfügen_mm2"};
inline constexpr Befehlsname mnuEinfügenEltern{"mnuEinfügenEltern"};
inline constexpr Befehlsname mnuPfeil{"mnuPfeil"};
inline constexpr Befehlsname mnuDoppelpfeil{"mnuDoppelpfeil"};
inline constexpr Befehlsname mnuEinfügenTextfeld{"mnuEinfügenTextfeld"};
inline constexpr Befehlsname mnuEinfügenKreislinie{"mnuEinfügenKreislinie"};
inline constexpr Befehlsname mnustr15{"mnustr15"};
inline constexpr Befehlsname mnuEinfügen8{"mnuEinfügen8"};
inline constexpr Befehlsname mnuAnsicht{"mnuAnsicht"};
inline constexpr Befehlsname mnuWerkzeugleiste{"mnuWerkzeugleiste"};
inline constexpr Befehlsname mnuRasterAnzeigen{"mnuRasterAnzeigen"};
inline constexpr Befehlsname mnuRastergroesse{"mnuRastergroesse"};
inline constexpr Befehlsname mnuRasterKlein{"mnuRasterKlein"};
inline constexpr Befehlsname mnuRasterGroß{"mnuRasterGroß"};
inline constexpr Befehlsname mnuLegende{"mnuLegende"};
inline constexpr Befehlsname mnuLegendeEinstellungen{"mnuLegendeEinstellungen"};
inline constexpr Befehlsname mnuLegendeAktualisieren{"mnuLegendeAktualisieren"};
inline constexpr Befehlsname mnuLegendeAnzeigen{"mnuLegendeAnzeigen"};
inline constexpr Befehlsname mnuFarbschema{"mnuFarbschema"};
inline constexpr Befehlsname mnuSchwarzWeiß{"mnuSchwarzWeiß"};
inline constexpr Befehlsname mnuGraustufen{"mnuGraustufen"};
inline constexpr Befehlsname mnuFarbig{"mnuFarbig"};
inline constexpr Befehlsname mnuSchriftart{"mnuSchriftart"};
inline constexpr Befehlsname mnuAltersangabe{"mnuAltersangabe"};
inline constexpr Befehlsname mnuSymbolGröße{"mnuSymbolGröße"};
inline constexpr Befehlsname mnuSymbolKleiner{"mnuSymbolKleiner"};
inline constexpr Befehlsname mnuSymbolGrößer{"mnuSymbolGrößer"};
inline constexpr Befehlsname mnuHelp{"mnuHelp"};
inline constexpr Befehlsname mnuHilfethemen{"mnuHilfethemen"};
inline constexpr Befehlsname mnuInfo{"mnuInfo"};
inline constexpr Befehlsname mnuEinstellungen{"mnuEinstellungen"};
inline constexpr Befehlsname mnuUpdate{"mnuUpdate"};
inline constexpr Befehlsname mnuFassungen{"mnuFassungen"};
inline constexpr Befehlsname mnuPerson{"mnuPerson"};
inline constexpr Befehlsname mnuSymbolBearbeiten{"mnuSymbolBearbeiten"};
inline constexpr Befehlsname mnuStr2{"mnuStr2"};
inline constexpr Befehlsname mnuBeziehungErstellen2{"mnuBeziehungErstellen2"};
inline constexpr Befehlsname mnuPartnerschaftsLinie{"mnuPartnerschaftsLinie"};
inline constexpr Befehlsname mnuKindVon{"mnuKindVon"};
inline constexpr Befehlsname mnustr14{"mnustr14"};
inline constexpr Befehlsname mnuStr8{"mnuStr8"};
inline constexpr Befehlsname mnuSymbolVergrößern{"mnuSymbolVergrößern"};
inline constexpr Befehlsname mnuSymbolVerkleinern{"mnuSymbolVerkleinern"};
inline constexpr Befehlsname mnuStr9{"mnuStr9"};
inline constexpr Befehlsname mnuAusschneiden2{"mnuAusschneiden2"};
inline constexpr Befehlsname mnuKopieren2{"mnuKopieren2"};
inline constexpr Befehlsname mnuSymbolLöschen{"mnuSymbolLöschen"};
inline constexpr Befehlsname mnuBezLinie{"mnuBezLinie"};
inline constexpr Befehlsname mnuBLinieBearbeiten{"mnuBLinieBearbeiten"};
inline constexpr Befehlsname mnuBezLinieLöschen{"mnuBezLinieLöschen"};
inline constexpr Befehlsname mnuPLinie{"mnuPLinie"};
inline constexpr Befehlsname mnuPLiniebearbeiten{"mnuPLiniebearbeiten"};
inline constexpr Befehlsname mnuPLineLöschen{"mnuPLineLöschen"};
inline constexpr Befehlsname mnuKindLinie{"mnuKindLinie"};
inline constexpr Befehlsname mnuLeiblichesKind{"mnuLeiblichesKind"};
inline constexpr Befehlsname mnuAdoptiert{"mnuAdoptiert"};
inline constexpr Befehlsname mnuPflegekind{"mnuPflegekind"};
inline constexpr Befehlsname mnuStr10{"mnuStr10"};
inline constexpr Befehlsname mnuKindLinieLöschen{"mnuKindLinieLöschen"};
inline constexpr Befehlsname mnuPfeil1{"mnuPfeil1"};
inline constexpr Befehlsname mnuPfeilLöschen{"mnuPfeilLöschen"};
inline constexpr Befehlsname mnuKreislinie{"mnuKreislinie"};
inline constexpr Befehlsname mnuKreisLinieLöschen{"mnuKreisLinieLöschen"};
inline constexpr Befehlsname mnuTextBox{"mnuTextBox"};
inline constexpr Befehlsname mnuTextbearbeiten{"mnuTextbearbeiten"};
inline constexpr Befehlsname mnuStr11{"mnuStr11"};
inline constexpr Befehlsname mnuTextBoxAusschneiden{"mnuTextBoxAusschneiden"};
inline constexpr Befehlsname mnuTextBoxKopieren{"mnuTextBoxKopieren"};
inline constexpr Befehlsname mnuTextboxLöschen{"mnuTextboxLöschen"};
inline constexpr Befehlsname mnuZwillinge{"mnuZwillinge"};
inline constexpr Befehlsname mnuZweieiige_Zwillinge{"mnuZweieiige_Zwillinge"};
inline constexpr Befehlsname mnuZwillinge_männlich_weiblich{"mnuZwillinge_männlich_weiblich"};
inline constexpr Befehlsname mnuZwillinge_weiblich_weiblich{"mnuZwillinge_weiblich_weiblich"};
inline constexpr Befehlsname mnuZwilling_Männlich_Männlich{"mnuZwilling_Männlich_Männlich"};
inline constexpr Befehlsname mnuEineiigeZwillinge{"mnuEineiigeZwillinge"};
inline constexpr Befehlsname mnuZwillingeEineiig_männlich_weiblich{"mnuZwillingeEineiig_männlich_weiblich"};
inline constexpr Befehlsname mnuZwillingeEineiig_weiblich_weiblich{"mnuZwillingeEineiig_weiblich_weiblich"};
inline constexpr Befehlsname mnuZwillingeeineiig_männlich_männlich{"mnuZwillingeeineiig_männlich_männlich"};
inline constexpr Befehlsname mnuAuswahlBox{"mnuAuswahlBox"};
inline constexpr Befehlsname mnuAusschneiden4{"mnuAusschneiden4"};
inline constexpr Befehlsname mnuKopieren4{"mnuKopieren4"};
inline constexpr Befehlsname mnuLöschen4{"mnuLöschen4"};
inline constexpr Befehlsname mnuAnordnen4{"mnuAnordnen4"};
inline constexpr Befehlsname mnuMakeTwins{"mnuMakeTwins"};
inline constexpr Befehlsname mnuTwinszweiiig{"mnuTwinszweiiig"};
inline constexpr Befehlsname mnuTwinsEineiig{"mnuTwinsEineiig"};
inline constexpr Befehlsname mnuZwischenablage{"mnuZwischenablage"};
inline constexpr Befehlsname mnuEinfügen7{"mnuEinfügen7"};

// Items of the toolbar.
inline constexpr Befehlsname btnNeuesProjekt{"btnNeuesProjekt"};
inline constexpr Befehlsname btnÖffnen{"btnÖffnen"};
inline constexpr Befehlsname btnSpeichern{"btnSpeichern"};
inline constexpr Befehlsname btnDrucken{"btnDrucken"};
inline constexpr Befehlsname btnUndo{"btnUndo"};
inline constexpr Befehlsname btnRedo{"btnRedo"};
inline constexpr Befehlsname btnHochformat{"btnHochformat"};
inline constexpr Befehlsname btnQuerformat{"btnQuerformat"};
inline constexpr Befehlsname btnGitterZeichnen{"btnGitterZeichnen"};
inline constexpr Befehlsname btnBlattränder{"btnBlattränder"};
inline constexpr Befehlsname btnPapier{"btnPapier"};
inline constexpr Befehlsname btnZoom{"btnZoom"};
inline constexpr Befehlsname btnBildGrößer{"btnBildGrößer"};
inline constexpr Befehlsname btnBildKleiner{"btnBildKleiner"};
inline constexpr Befehlsname btnWerkzeugleiste{"btnWerkzeugleiste"};
inline constexpr Befehlsname btnLegende{"btnLegende"};
inline constexpr Befehlsname btnFarbschema{"btnFarbschema"};
inline constexpr Befehlsname btnClipboard{"btnClipboard"};
inline constexpr Befehlsname btnAuswahlZuBild{"btnAuswahlZuBild"};
inline constexpr Befehlsname btnImport{"btnImport"};

// Choices of its drop-downs.
inline constexpr Befehlsname keyDINA4{"keyDINA4"};
inline constexpr Befehlsname keyDINA5{"keyDINA5"};
inline constexpr Befehlsname keyUSLetter{"keyUSLetter"};
inline constexpr Befehlsname keyZoom80{"keyZoom80"};
inline constexpr Befehlsname keyZoom90{"keyZoom90"};
inline constexpr Befehlsname keyZoom100{"keyZoom100"};
inline constexpr Befehlsname keyZoom110{"keyZoom110"};
inline constexpr Befehlsname keyZoom120{"keyZoom120"};
inline constexpr Befehlsname keyZoom130{"keyZoom130"};
inline constexpr Befehlsname keyZoom140{"keyZoom140"};
inline constexpr Befehlsname keyZoom150{"keyZoom150"};
inline constexpr Befehlsname keyZoom160{"keyZoom160"};
inline constexpr Befehlsname keyZoom170{"keyZoom170"};
inline constexpr Befehlsname keyZoom180{"keyZoom180"};
inline constexpr Befehlsname keyZoom190{"keyZoom190"};
inline constexpr Befehlsname keyZoom200{"keyZoom200"};
inline constexpr Befehlsname keyZoom210{"keyZoom210"};
inline constexpr Befehlsname keyZoom220{"keyZoom220"};
inline constexpr Befehlsname keyZoom230{"keyZoom230"};
inline constexpr Befehlsname keyZoom240{"keyZoom240"};
inline constexpr Befehlsname keyZoom250{"keyZoom250"};
inline constexpr Befehlsname keySchwarzweiß{"keySchwarzweiß"};
inline constexpr Befehlsname keyGraustufen{"keyGraustufen"};
inline constexpr Befehlsname keyFarbig{"keyFarbig"};

// Buttons.
inline constexpr Befehlsname cmdZwillinge{"cmdZwillinge"};
inline constexpr Befehlsname cmdDelete{"cmdDelete"};
inline constexpr Befehlsname cmdRänder{"cmdRänder"};
inline constexpr Befehlsname cmdUndo{"cmdUndo"};
inline constexpr Befehlsname cmdredo{"cmdredo"};

// What else stands in the window.
inline constexpr Befehlsname lblTool{"lblTool"};
inline constexpr Befehlsname lblHinweis{"lblHinweis"};
inline constexpr Befehlsname lblStatus{"lblStatus"};
inline constexpr Befehlsname lblEinstieg{"lblEinstieg"};
inline constexpr Befehlsname picToolTipp{"picToolTipp"};
inline constexpr Befehlsname imgVariable{"imgVariable"};

// Forms.
inline constexpr Formularname frmSymbol{"frmSymbol"};
inline constexpr Formularname frmPLinien{"frmPLinien"};
inline constexpr Formularname frmBezLinien{"frmBezLinien"};
inline constexpr Formularname frmKommentar{"frmKommentar"};
inline constexpr Formularname frmSchrift{"frmSchrift"};
inline constexpr Formularname frmSymbGlobal{"frmSymbGlobal"};
inline constexpr Formularname frmLegende{"frmLegende"};
inline constexpr Formularname frmDrucken{"frmDrucken"};
inline constexpr Formularname frmSeiteEinrichten{"frmSeiteEinrichten"};
inline constexpr Formularname frmEinstellungen{"frmEinstellungen"};
inline constexpr Formularname frmInfo{"frmInfo"};
inline constexpr Formularname frmFassungen{"frmFassungen"};
inline constexpr Formularname frmStammbaumExport{"frmStammbaumExport"};
inline constexpr Formularname frmOhneNamen{"frmOhneNamen"};
inline constexpr Formularname frmStammbaum{"frmStammbaum"};
inline constexpr Formularname frmStammbaumbericht{"frmStammbaumbericht"};

} // namespace Name

} // namespace kw
