#include "app/Befehle.h"

#include "app/Darstellung.h"
#include "app/Datenimport.h"
#include "app/Projekt.h"
#include "app/Startangaben.h"
#include "commands/Menuetafel.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Chronik.h"
#include "document/Texte.h"
#include "document/UndoRing.h"
#include "document/Zahlen.h"
#include "editing/Bildausschnitt.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "editing/Werkzeuge.h"
#include "editing/Zwischenablage.h"
#include "output/Arbeitsbereich.h"
#include "output/Druckwerk.h"
#include "output/basBildExport.h"
#include "platform/Benutzer.h"

#include "platform/Bedienelemente.h"
#include <algorithm>

namespace kw {

namespace {

/// An editing routine as a command.
template <void (*Routine)(Werkbank &)> void Auf(Befehlsumgebung &u, int) { Routine(u.werkbank); }

void Werkzeug(Befehlsumgebung &u, int nummer) { WerkzeugDrücken(u.werkbank, nummer); }

void Zwillinge(Befehlsumgebung &u, int art) { ZwillingeEinfügen(u.werkbank, art); }

void Bildauswahl(Befehlsumgebung &u, int inDatei) { BildauswahlBeginnen(u.werkbank, inDatei != 0); }

void Farbschema(Befehlsumgebung &u, int schema) { u.darstellung.FarbschemaWählen(schema); }

void Papier(Befehlsumgebung &u, int code) { u.darstellung.PapierWählen(code); }

void Lage(Befehlsumgebung &u, int seitenlage) { u.darstellung.LageWählen(seitenlage); }

/// The paste entries of the context menus go when they have been used.
void EinfügenImKontext(Befehlsumgebung &u, int) {
    u.werkbank.lage.Angebot.EinfügenImKontext = false;
    Einfügen(u.werkbank);
}

void AuswahlLöschenImKontext(Befehlsumgebung &u, int) {
    AuswahlLöschen(u.werkbank);
    MarkierungsListBoxenLöschen(u.werkbank);
}

void SymbolBearbeiten(Befehlsumgebung &u, int) {
    if (!Getrimmt(u.werkbank.lage.PersRecord).empty()) u.werkbank.fenster.FormÖffnen("frmSymbol");
}

void PLinieBearbeiten(Befehlsumgebung &u, int) {
    u.werkbank.fenster.FormÖffnen("frmPLinien");
    u.werkbank.lage.Aktion = Aktion::PLinieBearbeitet;
}

void TextBearbeiten(Befehlsumgebung &u, int) {
    u.werkbank.lage.Aktion = Aktion::TextDialog;
    u.werkbank.fenster.FormÖffnen("frmKommentar");
}

void LegendeAktualisieren(Befehlsumgebung &u, int) {
    LegendeAufbauen(u.werkbank.dokument, u.werkbank.legende);
    u.werkbank.fenster.Vorschau();
}

/// One step back or forward in the ring; afterwards nothing is selected and no gesture runs.
template <bool (UndoRing::*Gehen)(Dokument &)> void Schritt(Befehlsumgebung &u, int) {
    if (!(u.ring.*Gehen)(u.werkbank.dokument)) return;
    NichtsAuswählen(u.werkbank);
    u.werkbank.fenster.Vorschau();
}

/// The page as a PDF file, by the printer that writes such; it stays the current one.
void PdfErzeugen(Befehlsumgebung &u, int) {
    if (u.druck.PdfDruckerWählen()) u.dienste.GenogrammDrucken();
}

/// The manual, in the default browser. The caption of the menu bar tells the language, whatever the settings say.
/// Meant.
void HilfeÖffnen(Befehlsumgebung &u, int) {
    const std::string &datei = u.bedienung.Finden("mnuDatei")->Caption;
    const char *sprache = datei == "Datei" ? "de" : datei == "File" ? "en" : nullptr;
    if (!sprache) return;
    u.werkbank.benutzer.AdresseÖffnen("file://" + u.start.Hilfeordner + "/" + sprache + "/index.htm");
}

void DruckränderUmschalten(Befehlsumgebung &u, int) {
    if (u.druck.RänderUmschalten()) u.werkbank.fenster.Vorschau();
}

void LegendeUmschalten(Befehlsumgebung &u, int) {
    u.dienste.LegendeZeigen(!u.werkbank.dokument.LegendeSichtbar);
    u.werkbank.fenster.AlsGeändertMerken(); // the project holds it, no snapshot does
}

struct Zeile {
    std::string_view Name;
    void (*Ausführen)(Befehlsumgebung &, int wert);
    int Wert = 0;
};
constexpr Zeile Tabelle[] = {
    {"mnuNeu", [](Befehlsumgebung &u, int) { u.projekt.mnuNeu(); }},
    {"mnuÖffnen", [](Befehlsumgebung &u, int) { u.projekt.mnuÖffnen(); }},
    {"mnuSpeichern", [](Befehlsumgebung &u, int) { u.projekt.Speichern(); }},
    {"mnuSichernUnter", [](Befehlsumgebung &u, int) { u.projekt.SpeichernUnter(); }},
    {"mnuExportieren", [](Befehlsumgebung &u, int) { u.bildexport.SeiteExportieren(u.projekt.Projektdatei); }},
    {"mnuPDF_Export", PdfErzeugen},
    {"btnClipboard", Bildauswahl, false},
    {"btnAuswahlZuBild", Bildauswahl, true},
    {"mnuBeenden", [](Befehlsumgebung &u, int) { u.werkbank.benutzer.FensterSchließen(); }},

    {"mnuRückgängig", Schritt<&UndoRing::Rückgängig>},
    {"mnuWiederholen", Schritt<&UndoRing::Wiederholen>},
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
    {"mnuTwinszweiiig", [](Befehlsumgebung &u, int) { ZwillingeErklären(u.werkbank, "2E"); }},
    {"mnuTwinsEineiig", [](Befehlsumgebung &u, int) { ZwillingeErklären(u.werkbank, "1E"); }},

    {"mnuSymbolBearbeiten", SymbolBearbeiten},
    {"mnuBeziehungErstellen2", Auf<mnuBeziehungErstellen2>},
    {"mnuPartnerschaftsLinie", Auf<mnuPartnerschaftsLinie>},
    {"mnuKindVon", Auf<mnuKindVon>},
    {"mnuSymbolVergrößern", Auf<mnuSymbolVergrößern>},
    {"mnuSymbolVerkleinern", Auf<mnuSymbolVerkleinern>},
    {"mnuSymbolLöschen", Auf<mnuSymbolLöschen>},
    {"mnuBLinieBearbeiten", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmBezLinien"); }},
    {"mnuBezLinieLöschen", Auf<BezLinieLöschen>},
    {"mnuPLiniebearbeiten", PLinieBearbeiten},
    {"mnuPLineLöschen", Auf<PLinieLöschen>},
    {"mnuLeiblichesKind", [](Befehlsumgebung &u, int) { KindArtSetzen(u.werkbank, ""); }},
    {"mnuAdoptiert", [](Befehlsumgebung &u, int) { KindArtSetzen(u.werkbank, "A"); }},
    {"mnuPflegekind", [](Befehlsumgebung &u, int) { KindArtSetzen(u.werkbank, "P"); }},
    {"mnuKindLinieLöschen", Auf<KindLinieEntfernen>},
    {"mnuPfeilLöschen", Auf<PfeilLöschen>},
    {"mnuKreisLinieLöschen", Auf<KreisLinieLöschen>},
    {"mnuTextbearbeiten", TextBearbeiten},
    {"mnuTextboxLöschen", Auf<TextLöschen>},

    {"mnuWerkzeugleiste", [](Befehlsumgebung &u, int) { u.darstellung.WerkzeugleisteUmschalten(); }},
    {"mnuRasterAnzeigen", [](Befehlsumgebung &u, int) { u.darstellung.RasterUmschalten(); }},
    {"mnuRasterKlein", [](Befehlsumgebung &u, int) { u.darstellung.RasterWählen(0); }},
    {"mnuRasterGroß", [](Befehlsumgebung &u, int) { u.darstellung.RasterWählen(1); }},
    {"mnuLegendeEinstellungen", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmLegende"); }},
    {"mnuLegendeAktualisieren", LegendeAktualisieren},
    {"mnuLegendeAnzeigen", LegendeUmschalten},
    {"mnuSchwarzWeiß", Farbschema, SchemaSchwarzWeiß},
    {"mnuGraustufen", Farbschema, SchemaGraustufen},
    {"mnuFarbig", Farbschema, SchemaFarbig},
    {"mnuSchriftart", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmSchrift"); }},
    {"mnuAltersangabe", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmSymbGlobal"); }},
    {"mnuSeiteEinrichten", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmSeiteEinrichten"); }},
    {"btnHochformat", Lage, 1},
    {"btnQuerformat", Lage, 2},
    {"keyDINA4", Papier, 9},
    {"keyDINA5", Papier, 11},
    {"keyUSLetter", Papier, 1},
    {"btnBlattränder", DruckränderUmschalten},
    {"cmdRänder", [](Befehlsumgebung &u, int) { u.druck.DruckrandBericht(); }},
    {"mnuDrucken", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmDrucken"); }},
    {"mnuEinstellungen", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmEinstellungen"); }},
    {"mnuHilfethemen", HilfeÖffnen},
    {"mnuUpdate", [](Befehlsumgebung &u, int) { u.werkbank.benutzer.ProgrammStarten("kw_update"); }},
    {"btnImport", [](Befehlsumgebung &u, int) { u.import.ListeUmschalten(); }},
    {"mnuInfo", [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen("frmInfo"); }},
    {"mnuSymbolKleiner", [](Befehlsumgebung &u, int) { GrößeÄndern(u.werkbank, -GrößenSchritt); }},
    {"mnuSymbolGrößer", [](Befehlsumgebung &u, int) { GrößeÄndern(u.werkbank, GrößenSchritt); }},
    {"btnBildGrößer", [](Befehlsumgebung &u, int) { u.bereich.Vergrößern(); }},
    {"btnBildKleiner", [](Befehlsumgebung &u, int) { u.bereich.Verkleinern(); }},

    {"cmdZwillinge", Auf<cmdZwillinge>},
};

/// Rows that differ in a number only.
struct Reihe {
    std::string_view Anfang, Ende; ///< of the name, around the number
    int Von, Bis;
    void (*Ausführen)(Befehlsumgebung &, int nummer);
};
constexpr Reihe Reihen[] = {
    {"cmdSymb(", ")", 1, WerkzeugAnzahl, Werkzeug},
    {"mnuRecent(", ")", 1, Chronik::Plätze, [](Befehlsumgebung &u, int nummer) { u.projekt.mnuRecent(nummer); }},
    {"keyZoom", "", 80, 250, [](Befehlsumgebung &u, int nummer) { u.bereich.ZoomWählen((nummer - 80) / 10); }},
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

void NichtsAuswählen(Werkbank &w) {
    AllesAbwählen(w);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = false;
}

Befehl BefehlFinden(std::string_view name) {
    if (const auto menü = Menügleich(name); !menü.empty()) name = menü;
    const auto i =
        std::find_if(std::begin(Tabelle), std::end(Tabelle), [&](const Zeile &zeile) { return zeile.Name == name; });
    return i == std::end(Tabelle) ? AusReihe(name) : Befehl{i->Ausführen, i->Wert};
}

} // namespace kw
