#include "app/Befehle.h"

#include "app/frmMain.h"
#include "document/Texte.h"
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
template <void (*Routine)(Werkbank &)> void Auf(frmMain &h, int) { Routine(h.werkbank); }

void Werkzeug(frmMain &h, int nummer) { WerkzeugDrücken(h.werkbank, nummer); }

void Zwillinge(frmMain &h, int art) { ZwillingeEinfügen(h.werkbank, art); }

void Bildauswahl(frmMain &h, int inDatei) { BildauswahlBeginnen(h.werkbank, inDatei != 0); }

void Farbschema(frmMain &h, int schema) { h.darstellung.FarbschemaWählen(schema); }

void Papier(frmMain &h, int code) { h.darstellung.PapierWählen(code); }

void Lage(frmMain &h, int seitenlage) { h.darstellung.LageWählen(seitenlage); }

/// The paste entries of the context menus go when they have been used.
void EinfügenImKontext(frmMain &h, int) {
    h.bedienung["mnuEinfügen8"].Visible = h.bedienung["mnustr15"].Visible = false;
    Einfügen(h.werkbank);
}

void AuswahlLöschenImKontext(frmMain &h, int) {
    AuswahlLöschen(h.werkbank);
    MarkierungsListBoxenLöschen(h.werkbank);
}

void SymbolBearbeiten(frmMain &h, int) {
    if (!Getrimmt(h.lage.PersRecord).empty()) h.FormÖffnen("frmSymbol");
}

void PLinieBearbeiten(frmMain &h, int) {
    h.FormÖffnen("frmPLinien");
    h.lage.Aktion = Aktion::PLinieBearbeitet;
}

void TextBearbeiten(frmMain &h, int) {
    h.lage.Aktion = Aktion::TextDialog;
    h.FormÖffnen("frmKommentar");
}

void LegendeAktualisieren(frmMain &h, int) {
    LegendeAufbauen(h.dokument, h.legende);
    h.Vorschau();
}

void DruckränderUmschalten(frmMain &h, int) {
    if (h.druck.RänderUmschalten()) h.Vorschau();
}

void LegendeUmschalten(frmMain &h, int) {
    h.LegendeZeigen(!h.bedienung["btnLegende"].Checked);
    h.projekt.Geändert = true; // the project holds it, no snapshot does
}

struct Zeile {
    std::string_view Name;
    void (*Ausführen)(frmMain &, int wert);
    int Wert = 0;
};
constexpr Zeile Tabelle[] = {
    {"mnuNeu", [](frmMain &h, int) { h.projekt.mnuNeu(); }},
    {"mnuÖffnen", [](frmMain &h, int) { h.projekt.mnuÖffnen(); }},
    {"mnuSpeichern", [](frmMain &h, int) { h.projekt.Speichern(); }},
    {"mnuSichernUnter", [](frmMain &h, int) { h.projekt.SpeichernUnter(); }},
    {"mnuExportieren", [](frmMain &h, int) { h.bildexport.SeiteExportieren(h.projekt.Projektdatei); }},
    {"mnuPDF_Export", [](frmMain &h, int) { h.PdfErzeugen(); }},
    {"btnClipboard", Bildauswahl, false},
    {"btnAuswahlZuBild", Bildauswahl, true},
    {"mnuBeenden", [](frmMain &h, int) { h.plattform.benutzer.FensterSchließen(); }},

    {"mnuRückgängig", [](frmMain &h, int) { h.cmdUndo(); }},
    {"mnuWiederholen", [](frmMain &h, int) { h.cmdredo(); }},
    {"cmdUndo", [](frmMain &h, int) { h.cmdUndo(); }},
    {"cmdredo", [](frmMain &h, int) { h.cmdredo(); }},
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

    {"mnuEinfügenMännlich", Werkzeug, 1},
    {"mnuEinfügenWeiblich", Werkzeug, 2},
    {"mnuEinfügenSchwanger", Werkzeug, 3},
    {"mnuEinfügenFehlgeburt", Werkzeug, 4},
    {"mnuEinfügenTotgeburtMännlich", Werkzeug, 5},
    {"mnuEinfügenTotgeburtWeiblich", Werkzeug, 6},
    {"mnuEinfügenAbtreibung", Werkzeug, 7},
    {"mnuEinfügenKreislinie", Werkzeug, WerkzeugKreislinie},
    {"mnuEinfügenTextfeld", Werkzeug, WerkzeugText},
    {"mnuEinfügenEltern", Werkzeug, WerkzeugEltern},
    {"mnuPfeil", Werkzeug, WerkzeugPfeil},
    {"mnuDoppelpfeil", Werkzeug, WerkzeugDoppelpfeil},
    {"mnuWeiblichZuMännlich", Werkzeug, 18},
    {"mnuMännlichZuWeiblich", Werkzeug, 19},
    {"mnuDivers", Werkzeug, 20},
    {"mnuEinfügen_mw1", Zwillinge, 1},
    {"mnuEinfügen_ww1", Zwillinge, 2},
    {"mnuEinfügen_mm1", Zwillinge, 3},
    {"mnuEinfügen_mw2", Zwillinge, 4},
    {"mnuEinfügen_ww2", Zwillinge, 5},
    {"mnuEinfügen_mm2", Zwillinge, 6},
    {"mnuZwillinge_männlich_weiblich", Zwillinge, 1},
    {"mnuZwillinge_weiblich_weiblich", Zwillinge, 2},
    {"mnuZwilling_Männlich_Männlich", Zwillinge, 3},
    {"mnuZwillingeEineiig_männlich_weiblich", Zwillinge, 4},
    {"mnuZwillingeEineiig_weiblich_weiblich", Zwillinge, 5},
    {"mnuZwillingeeineiig_männlich_männlich", Zwillinge, 6},
    {"mnuTwinszweiiig", [](frmMain &h, int) { ZwillingeErklären(h.werkbank, "2E"); }},
    {"mnuTwinsEineiig", [](frmMain &h, int) { ZwillingeErklären(h.werkbank, "1E"); }},

    {"mnuSymbolBearbeiten", SymbolBearbeiten},
    {"mnuBeziehungErstellen2", Auf<mnuBeziehungErstellen2>},
    {"mnuPartnerschaftsLinie", Auf<mnuPartnerschaftsLinie>},
    {"mnuKindVon", Auf<mnuKindVon>},
    {"mnuSymbolVergrößern", Auf<mnuSymbolVergrößern>},
    {"mnuSymbolVerkleinern", Auf<mnuSymbolVerkleinern>},
    {"mnuSymbolLöschen", Auf<mnuSymbolLöschen>},
    {"mnuBLinieBearbeiten", [](frmMain &h, int) { h.FormÖffnen("frmBezLinien"); }},
    {"mnuBezLinieLöschen", Auf<BezLinieLöschen>},
    {"mnuPLiniebearbeiten", PLinieBearbeiten},
    {"mnuPLineLöschen", Auf<PLinieLöschen>},
    {"mnuLeiblichesKind", [](frmMain &h, int) { KindArtSetzen(h.werkbank, ""); }},
    {"mnuAdoptiert", [](frmMain &h, int) { KindArtSetzen(h.werkbank, "A"); }},
    {"mnuPflegekind", [](frmMain &h, int) { KindArtSetzen(h.werkbank, "P"); }},
    {"mnuKindLinieLöschen", Auf<KindLinieEntfernen>},
    {"mnuPfeilLöschen", Auf<PfeilLöschen>},
    {"mnuKreisLinieLöschen", Auf<KreisLinieLöschen>},
    {"mnuTextbearbeiten", TextBearbeiten},
    {"mnuTextboxLöschen", Auf<TextLöschen>},

    {"mnuWerkzeugleiste", [](frmMain &h, int) { h.darstellung.WerkzeugleisteUmschalten(); }},
    {"mnuRasterAnzeigen", [](frmMain &h, int) { h.darstellung.RasterUmschalten(); }},
    {"mnuRasterKlein", [](frmMain &h, int) { h.darstellung.RasterWählen(0); }},
    {"mnuRasterGroß", [](frmMain &h, int) { h.darstellung.RasterWählen(1); }},
    {"mnuLegendeEinstellungen", [](frmMain &h, int) { h.FormÖffnen("frmLegende"); }},
    {"mnuLegendeAktualisieren", LegendeAktualisieren},
    {"mnuLegendeAnzeigen", LegendeUmschalten},
    {"mnuSchwarzWeiß", Farbschema, SchemaSchwarzWeiß},
    {"mnuGraustufen", Farbschema, SchemaGraustufen},
    {"mnuFarbig", Farbschema, SchemaFarbig},
    {"mnuSchriftart", [](frmMain &h, int) { h.FormÖffnen("frmSchrift"); }},
    {"mnuAltersangabe", [](frmMain &h, int) { h.FormÖffnen("frmSymbGlobal"); }},
    {"mnuSeiteEinrichten", [](frmMain &h, int) { h.FormÖffnen("frmSeiteEinrichten"); }},
    {"btnHochformat", Lage, 1},
    {"btnQuerformat", Lage, 2},
    {"keyDINA4", Papier, 9},
    {"keyDINA5", Papier, 11},
    {"keyUSLetter", Papier, 1},
    {"btnBlattränder", DruckränderUmschalten},
    {"cmdRänder", [](frmMain &h, int) { h.druck.DruckrandBericht(); }},
    {"mnuDrucken", [](frmMain &h, int) { h.FormÖffnen("frmDrucken"); }},
    {"mnuEinstellungen", [](frmMain &h, int) { h.FormÖffnen("frmEinstellungen"); }},
    {"mnuHilfethemen", [](frmMain &h, int) { h.HilfeÖffnen(); }},
    {"mnuUpdate", [](frmMain &h, int) { h.plattform.benutzer.ProgrammStarten("kw_update"); }},
    {"btnImport", [](frmMain &h, int) { h.import.ListeUmschalten(); }},
    {"mnuInfo", [](frmMain &h, int) { h.FormÖffnen("frmInfo"); }},
    {"mnuSymbolKleiner", [](frmMain &h, int) { GrößeÄndern(h.werkbank, -GrößenSchritt); }},
    {"mnuSymbolGrößer", [](frmMain &h, int) { GrößeÄndern(h.werkbank, GrößenSchritt); }},
    {"btnBildGrößer", [](frmMain &h, int) { h.bereich.Vergrößern(); }},
    {"btnBildKleiner", [](frmMain &h, int) { h.bereich.Verkleinern(); }},

    {"cmdZwillinge", Auf<cmdZwillinge>},
};

/// Rows that differ in a number only.
struct Reihe {
    std::string_view Anfang, Ende; ///< of the name, around the number
    int Von, Bis;
    void (*Ausführen)(frmMain &, int nummer);
};
constexpr Reihe Reihen[] = {
    {"cmdSymb(", ")", 1, WerkzeugAnzahl, Werkzeug},
    {"mnuRecent(", ")", 1, Chronik::Plätze, [](frmMain &h, int nummer) { h.projekt.mnuRecent(nummer); }},
    {"keyZoom", "", 80, 250, [](frmMain &h, int nummer) { h.bereich.ZoomWählen((nummer - 80) / 10); }},
};

Befehl AusReihe(std::string_view name) {
    if (!MenüzeileFinden(name)) return {};
    for (const Reihe &reihe : Reihen) {
        if (!name.starts_with(reihe.Anfang) || !name.ends_with(reihe.Ende)) continue;
        const int nummer = Ganzzahl16(ZahlLesen(name.substr(reihe.Anfang.size())));
        if (nummer >= reihe.Von && nummer <= reihe.Bis) return {reihe.Ausführen, nummer};
    }
    return {};
}

} // namespace

Befehl BefehlFinden(std::string_view name) {
    if (const auto menü = Menügleich(name); !menü.empty()) name = menü;
    const auto i =
        std::find_if(std::begin(Tabelle), std::end(Tabelle), [&](const Zeile &zeile) { return zeile.Name == name; });
    return i == std::end(Tabelle) ? AusReihe(name) : Befehl{i->Ausführen, i->Wert};
}

} // namespace kw
