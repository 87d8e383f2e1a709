#include "app/Befehle.h"

#include "app/frmMain.h"
#include "document/Zahlen.h"
#include "editing/Bewegen.h"
#include "editing/Kinder.h"
#include "editing/Loeschen.h"
#include "editing/Marker.h"
#include "editing/Symbolgroesse.h"
#include "editing/Verbindungen.h"
#include "editing/Werkzeuge.h"

#include <algorithm>

namespace kw {

namespace {

/// An editing routine as a command.
template <void (*Routine)(Werkbank &)> void Auf(frmMain &h) { Routine(h.werkbank); }

template <int Nummer> void Werkzeug(frmMain &h) { WerkzeugDrücken(h.werkbank, Nummer); }

template <int Art> void Zwillinge(frmMain &h) { ZwillingeEinfügen(h.werkbank, Art); }

/// The paste entries of the context menus go when they have been used.
void EinfügenImKontext(frmMain &h) {
    h.bedienung["mnuEinfügen8"].Visible = h.bedienung["mnustr15"].Visible = false;
    Einfügen(h.werkbank);
}

void AuswahlLöschenImKontext(frmMain &h) {
    AuswahlLöschen(h.werkbank);
    MarkierungsListBoxenLöschen(h.werkbank);
}

void SymbolBearbeiten(frmMain &h) {
    if (!Getrimmt(h.lage.PersRecord).empty()) h.FormÖffnen("frmSymbol");
}

void PLinieBearbeiten(frmMain &h) {
    h.FormÖffnen("frmPLinien");
    h.lage.Aktion = AktionPLinieBearbeitet;
}

void TextBearbeiten(frmMain &h) {
    h.lage.Aktion = AktionTextDialog;
    h.FormÖffnen("frmKommentar");
}

void LegendeAktualisieren(frmMain &h) {
    LegendeAufbauen(h.dokument, h.legende);
    h.Vorschau();
}

void LegendeUmschalten(frmMain &h) {
    h.bedienung["btnLegende"].Checked = !h.bedienung["btnLegende"].Checked;
    h.Legende();
}

constexpr Befehl Tabelle[] = {
    {"mnuÖffnen", [](frmMain &h) { h.projekt.mnuÖffnen(); }},
    {"btnÖffnen", [](frmMain &h) { h.projekt.mnuÖffnen(); }},
    {"btnSpeichern", [](frmMain &h) { h.projekt.Speichern(); }},
    {"mnuSpeichern", [](frmMain &h) { h.projekt.Speichern(); }},
    {"mnuSichernUnter", [](frmMain &h) { h.projekt.SpeichernUnter(); }},
    {"mnuBeenden", [](frmMain &h) { h.plattform.benutzer.FensterSchließen(); }},

    {"mnuRückgängig", [](frmMain &h) { h.cmdUndo(); }},
    {"mnuWiederholen", [](frmMain &h) { h.cmdredo(); }},
    {"cmdUndo", [](frmMain &h) { h.cmdUndo(); }},
    {"cmdredo", [](frmMain &h) { h.cmdredo(); }},
    {"btnUndo", [](frmMain &h) { h.cmdUndo(); }},
    {"btnRedo", [](frmMain &h) { h.cmdredo(); }},
    {"mnuAusschneiden", Auf<Ausschneiden>},
    {"mnuAusschneiden2", Auf<Ausschneiden>},
    {"mnuAusschneiden4", Auf<Ausschneiden>},
    {"mnuTextBoxAusschneiden", Auf<Ausschneiden>},
    {"mnuKopieren", Auf<Kopieren>},
    {"mnuKopieren2", Auf<Kopieren>},
    {"mnuKopieren4", Auf<Kopieren>},
    {"mnuTextBoxKopieren", Auf<Kopieren>},
    {"mnuEinfügen", Auf<Einfügen>},
    {"mnuEinfügen7", Auf<Einfügen>},
    {"mnuEinfügen8", EinfügenImKontext},
    {"mnuLöschen1", Auf<mnuLöschen1>},
    {"mnuLöschen4", AuswahlLöschenImKontext},
    {"cmdDelete", Auf<cmdDelete>},

    {"mnuEinfügenMännlich", Werkzeug<1>},
    {"mnuEinfügenWeiblich", Werkzeug<2>},
    {"mnuEinfügenSchwanger", Werkzeug<3>},
    {"mnuEinfügenFehlgeburt", Werkzeug<4>},
    {"mnuEinfügenTotgeburtMännlich", Werkzeug<5>},
    {"mnuEinfügenTotgeburtWeiblich", Werkzeug<6>},
    {"mnuEinfügenAbtreibung", Werkzeug<7>},
    {"mnuEinfügenKreislinie", Werkzeug<WerkzeugKreislinie>},
    {"mnuEinfügenTextfeld", Werkzeug<WerkzeugText>},
    {"mnuEinfügenEltern", Werkzeug<WerkzeugEltern>},
    {"mnuPfeil", Werkzeug<WerkzeugPfeil>},
    {"mnuDoppelpfeil", Werkzeug<WerkzeugDoppelpfeil>},
    {"mnuWeiblichZuMännlich", Werkzeug<18>},
    {"mnuMännlichZuWeiblich", Werkzeug<19>},
    {"mnuDivers", Werkzeug<20>},
    {"mnuEinfügen_mw1", Zwillinge<1>},
    {"mnuEinfügen_ww1", Zwillinge<2>},
    {"mnuEinfügen_mm1", Zwillinge<3>},
    {"mnuEinfügen_mw2", Zwillinge<4>},
    {"mnuEinfügen_ww2", Zwillinge<5>},
    {"mnuEinfügen_mm2", Zwillinge<6>},
    {"mnuZwillinge_männlich_weiblich", Zwillinge<1>},
    {"mnuZwillinge_weiblich_weiblich", Zwillinge<2>},
    {"mnuZwilling_Männlich_Männlich", Zwillinge<3>},
    {"mnuZwillingeEineiig_männlich_weiblich", Zwillinge<4>},
    {"mnuZwillingeEineiig_weiblich_weiblich", Zwillinge<5>},
    {"mnuZwillingeeineiig_männlich_männlich", Zwillinge<6>},
    {"mnuTwinszweiiig", [](frmMain &h) { ZwillingeErklären(h.werkbank, "2E"); }},
    {"mnuTwinsEineiig", [](frmMain &h) { ZwillingeErklären(h.werkbank, "1E"); }},

    {"mnuSymbolBearbeiten", SymbolBearbeiten},
    {"mnuBeziehungErstellen2", Auf<mnuBeziehungErstellen2>},
    {"mnuPartnerschaftsLinie", Auf<mnuPartnerschaftsLinie>},
    {"mnuKindVon", Auf<mnuKindVon>},
    {"mnuSymbolVergrößern", Auf<mnuSymbolVergrößern>},
    {"mnuSymbolVerkleinern", Auf<mnuSymbolVerkleinern>},
    {"mnuSymbolLöschen", Auf<mnuSymbolLöschen>},
    {"mnuBLinieBearbeiten", [](frmMain &h) { h.FormÖffnen("frmBezLinien"); }},
    {"mnuBezLinieLöschen", Auf<BezLinieLöschen>},
    {"mnuPLiniebearbeiten", PLinieBearbeiten},
    {"mnuPLineLöschen", Auf<PLinieLöschen>},
    {"mnuLeiblichesKind", [](frmMain &h) { KindArtSetzen(h.werkbank, ""); }},
    {"mnuAdoptiert", [](frmMain &h) { KindArtSetzen(h.werkbank, "A"); }},
    {"mnuPflegekind", [](frmMain &h) { KindArtSetzen(h.werkbank, "P"); }},
    {"mnuKindLinieLöschen", Auf<KindLinieEntfernen>},
    {"mnuPfeilLöschen", Auf<PfeilLöschen>},
    {"mnuKreisLinieLöschen", Auf<KreisLinieLöschen>},
    {"mnuTextbearbeiten", TextBearbeiten},
    {"mnuTextboxLöschen", Auf<TextLöschen>},

    {"mnuWerkzeugleiste", [](frmMain &h) { h.WerkzeugleisteUmschalten(); }},
    {"mnuLegendeEinstellungen", [](frmMain &h) { h.FormÖffnen("frmLegende"); }},
    {"mnuLegendeAktualisieren", LegendeAktualisieren},
    {"mnuLegendeAnzeigen", LegendeUmschalten},
    {"mnuSchwarzWeiß", [](frmMain &h) { h.FarbschemaWählen(SchemaSchwarzWeiß); }},
    {"mnuGraustufen", [](frmMain &h) { h.FarbschemaWählen(SchemaGraustufen); }},
    {"mnuFarbig", [](frmMain &h) { h.FarbschemaWählen(SchemaFarbig); }},
    {"mnuSchriftart", [](frmMain &h) { h.FormÖffnen("frmSchrift"); }},
    {"mnuAltersangabe", [](frmMain &h) { h.FormÖffnen("frmSymbGlobal"); }},
    {"mnuSeiteEinrichten", [](frmMain &h) { h.FormÖffnen("frmSeiteEinrichten"); }},
    {"mnuDrucken", [](frmMain &h) { h.FormÖffnen("frmDrucken"); }},
    {"mnuEinstellungen", [](frmMain &h) { h.FormÖffnen("frmEinstellungen"); }},
    {"mnuInfo", [](frmMain &h) { h.FormÖffnen("frmInfo"); }},
    {"mnuSymbolKleiner", [](frmMain &h) { GrößeÄndern(h.werkbank, -GrößenSchritt); }},
    {"mnuSymbolGrößer", [](frmMain &h) { GrößeÄndern(h.werkbank, GrößenSchritt); }},
    {"btnBildGrößer", [](frmMain &h) { h.bereich.Vergrößern(); }},
    {"btnBildKleiner", [](frmMain &h) { h.bereich.Verkleinern(); }},

    {"cmdSymb(1)", Werkzeug<1>},
    {"cmdSymb(2)", Werkzeug<2>},
    {"cmdSymb(3)", Werkzeug<3>},
    {"cmdSymb(4)", Werkzeug<4>},
    {"cmdSymb(5)", Werkzeug<5>},
    {"cmdSymb(6)", Werkzeug<6>},
    {"cmdSymb(7)", Werkzeug<7>},
    {"cmdSymb(8)", Werkzeug<8>},
    {"cmdSymb(9)", Werkzeug<9>},
    {"cmdSymb(10)", Werkzeug<10>},
    {"cmdSymb(11)", Werkzeug<11>},
    {"cmdSymb(12)", Werkzeug<12>},
    {"cmdSymb(13)", Werkzeug<13>},
    {"cmdSymb(14)", Werkzeug<14>},
    {"cmdSymb(15)", Werkzeug<15>},
    {"cmdSymb(16)", Werkzeug<16>},
    {"cmdSymb(17)", Werkzeug<17>},
    {"cmdSymb(18)", Werkzeug<18>},
    {"cmdSymb(19)", Werkzeug<19>},
    {"cmdSymb(20)", Werkzeug<20>},
    {"cmdZwillinge", Auf<cmdZwillinge>},
};

} // namespace

std::span<const Befehl> BefehlsTabelle() { return Tabelle; }

const Befehl *BefehlFinden(std::string_view name) {
    const auto i =
        std::find_if(std::begin(Tabelle), std::end(Tabelle), [&](const Befehl &b) { return b.Name == name; });
    return i == std::end(Tabelle) ? nullptr : &*i;
}

} // namespace kw
