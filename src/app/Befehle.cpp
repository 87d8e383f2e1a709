#include "app/Befehle.h"

#include "app/Anzeige.h"
#include "app/Darstellung.h"
#include "app/Datenimport.h"
#include "app/Projekt.h"
#include "app/Stammbaumimport.h"
#include "app/Startangaben.h"
#include "arrangement/Anordnen.h"
#include "commands/Menuetafel.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Chronik.h"
#include "document/Texte.h"
#include "document/UndoRing.h"
#include "document/Zahlen.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Bildausschnitt.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Linien.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "editing/Werkzeuge.h"
#include "editing/Zwischenablage.h"
#include "output/Arbeitsbereich.h"
#include "output/Druckwerk.h"
#include "output/basBildExport.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"

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
    MarkierungsListBoxenLöschen(u.werkbank.auswahl, u.werkbank.lage);
}

void SymbolBearbeiten(Befehlsumgebung &u, int) {
    if (!Getrimmt(u.werkbank.lage.PersRecord).empty()) u.werkbank.fenster.FormÖffnen(Name::frmSymbol);
}

void PLinieBearbeiten(Befehlsumgebung &u, int) {
    u.werkbank.fenster.FormÖffnen(Name::frmPLinien);
    u.werkbank.lage.Aktion = Aktion::PLinieBearbeitet;
    u.werkbank.lage.Angebot.Löschen = false; // the line isn't selected any more
}

void TextBearbeiten(Befehlsumgebung &u, int) {
    u.werkbank.lage.Aktion = Aktion::TextDialog;
    u.werkbank.fenster.FormÖffnen(Name::frmKommentar);
}

void LegendeAktualisieren(Befehlsumgebung &u, int) {
    LegendeAufbauen(u.werkbank.dokument, u.werkbank.legende);
    u.werkbank.fenster.Vorschau();
}

/// One step back or forward in the ring; afterwards nothing is selected and no gesture runs. Also the way back to what
/// the file holds is a change.
template <bool (UndoRing::*Gehen)(Dokument &)> void Schritt(Befehlsumgebung &u, int) {
    if (!(u.ring.*Gehen)(u.werkbank.dokument)) return;
    u.anzeige.UndoKnöpfeZeigen();
    u.werkbank.fenster.AlsGeändertMerken();
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
    const std::string &datei = u.bedienung[Name::mnuDatei].Caption;
    const char *sprache = datei == "Datei" ? "de" : datei == "File" ? "en" : nullptr;
    if (!sprache) return;
    const std::string anleitung = "file://" + u.start.Hilfeordner + "/" + sprache + "/index.htm";
    if (!u.werkbank.benutzer.AdresseÖffnen(anleitung)) u.werkbank.lage.Hinweis = &Absage::KeinAnzeiger;
}

void UpdateStarten(Befehlsumgebung &u, int) {
    if (!u.werkbank.benutzer.ProgrammStarten("kw_update")) u.werkbank.lage.Hinweis = &Absage::KeinProgramm;
}

void DruckränderUmschalten(Befehlsumgebung &u, int) {
    if (!u.druck.RänderUmschalten()) return;
    u.anzeige.DruckränderZeigen();
    u.werkbank.fenster.Vorschau();
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
    {Name::mnuNeu, [](Befehlsumgebung &u, int) { u.projekt.mnuNeu(); }},
    {Name::mnuÖffnen, [](Befehlsumgebung &u, int) { u.projekt.mnuÖffnen(); }},
    {Name::mnuSpeichern, [](Befehlsumgebung &u, int) { u.projekt.Speichern(); }},
    {Name::mnuSichernUnter, [](Befehlsumgebung &u, int) { u.projekt.SpeichernUnter(); }},
    {Name::mnuStammbaum, [](Befehlsumgebung &u, int) { u.stammbaum.mnuStammbaum(); }},
    {Name::mnuExportieren, [](Befehlsumgebung &u, int) { u.bildexport.SeiteExportieren(u.projekt.Projektdatei); }},
    {Name::mnuPDF_Export, PdfErzeugen},
    {Name::mnuStammbaumExport,
     [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmStammbaumExport); }},
    {Name::mnuOhneNamen, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmOhneNamen); }},
    {Name::btnClipboard, Bildauswahl, false},
    {Name::btnAuswahlZuBild, Bildauswahl, true},
    {Name::mnuBeenden, [](Befehlsumgebung &u, int) { u.werkbank.benutzer.FensterSchließen(); }},

    {Name::mnuRückgängig, Schritt<&UndoRing::Rückgängig>},
    {Name::mnuWiederholen, Schritt<&UndoRing::Wiederholen>},
    {Name::mnuAusschneiden, Auf<Ausschneiden>},
    {Name::mnuAusschneiden2, Auf<Ausschneiden>},
    {Name::mnuAusschneiden4, Auf<Ausschneiden>},
    {Name::mnuTextBoxAusschneiden, Auf<Ausschneiden>},
    {Name::mnuKopieren, Auf<Kopieren>},
    {Name::mnuKopieren2, Auf<Kopieren>},
    {Name::mnuKopieren4, Auf<Kopieren>},
    {Name::mnuTextBoxKopieren, Auf<Kopieren>},
    {Name::mnuEinfügen, Auf<Einfügen>},
    {Name::mnuEinfügen7, Auf<Einfügen>},
    {Name::mnuEinfügen8, EinfügenImKontext},
    {Name::mnuLöschen1, Auf<mnuLöschen1>},
    {Name::mnuLöschen4, AuswahlLöschenImKontext},
    {Name::cmdDelete, Auf<mnuLöschen1>},
    {Name::mnuAnordnen, Auf<mnuAnordnen>},
    {Name::mnuAnordnen2, Auf<mnuAnordnen>},
    {Name::mnuAnordnen4, Auf<mnuAnordnen>},

    {Name::mnuEinfügenMännlich, Werkzeug, 1},
    {Name::mnuEinfügenWeiblich, Werkzeug, 2},
    {Name::mnuEinfügenSchwanger, Werkzeug, 3},
    {Name::mnuEinfügenFehlgeburt, Werkzeug, 4},
    {Name::mnuEinfügenTotgeburtMännlich, Werkzeug, 5},
    {Name::mnuEinfügenTotgeburtWeiblich, Werkzeug, 6},
    {Name::mnuEinfügenAbtreibung, Werkzeug, 7},
    {Name::mnuEinfügenKreislinie, Werkzeug, WerkzeugKreislinie},
    {Name::mnuEinfügenTextfeld, Werkzeug, WerkzeugText},
    {Name::mnuEinfügenEltern, Werkzeug, WerkzeugEltern},
    {Name::mnuPfeil, Werkzeug, WerkzeugPfeil},
    {Name::mnuDoppelpfeil, Werkzeug, WerkzeugDoppelpfeil},
    {Name::mnuWeiblichZuMännlich, Werkzeug, 18},
    {Name::mnuMännlichZuWeiblich, Werkzeug, 19},
    {Name::mnuDivers, Werkzeug, 20},
    {Name::mnuEinfügen_mw1, Zwillinge, 1},
    {Name::mnuEinfügen_ww1, Zwillinge, 2},
    {Name::mnuEinfügen_mm1, Zwillinge, 3},
    {Name::mnuEinfügen_mw2, Zwillinge, 4},
    {Name::mnuEinfügen_ww2, Zwillinge, 5},
    {Name::mnuEinfügen_mm2, Zwillinge, 6},
    {Name::mnuZwillinge_männlich_weiblich, Zwillinge, 1},
    {Name::mnuZwillinge_weiblich_weiblich, Zwillinge, 2},
    {Name::mnuZwilling_Männlich_Männlich, Zwillinge, 3},
    {Name::mnuZwillingeEineiig_männlich_weiblich, Zwillinge, 4},
    {Name::mnuZwillingeEineiig_weiblich_weiblich, Zwillinge, 5},
    {Name::mnuZwillingeeineiig_männlich_männlich, Zwillinge, 6},
    {Name::mnuTwinszweiiig, [](Befehlsumgebung &u, int) { ZwillingeErklären(u.werkbank, "2E"); }},
    {Name::mnuTwinsEineiig, [](Befehlsumgebung &u, int) { ZwillingeErklären(u.werkbank, "1E"); }},

    {Name::mnuSymbolBearbeiten, SymbolBearbeiten},
    {Name::mnuBeziehungErstellen2, Auf<mnuBeziehungErstellen2>},
    {Name::mnuPartnerschaftsLinie, Auf<mnuPartnerschaftsLinie>},
    {Name::mnuKindVon, Auf<mnuKindVon>},
    {Name::mnuSymbolVergrößern, Auf<mnuSymbolVergrößern>},
    {Name::mnuSymbolVerkleinern, Auf<mnuSymbolVerkleinern>},
    {Name::mnuSymbolLöschen, Auf<mnuSymbolLöschen>},
    {Name::mnuBLinieBearbeiten, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmBezLinien); }},
    {Name::mnuBezLinieLöschen, Auf<BezLinieLöschen>},
    {Name::mnuPLiniebearbeiten, PLinieBearbeiten},
    {Name::mnuPLineLöschen, Auf<PLinieLöschen>},
    {Name::mnuLeiblichesKind, [](Befehlsumgebung &u, int) { KindArtSetzen(u.werkbank, ""); }},
    {Name::mnuAdoptiert, [](Befehlsumgebung &u, int) { KindArtSetzen(u.werkbank, "A"); }},
    {Name::mnuPflegekind, [](Befehlsumgebung &u, int) { KindArtSetzen(u.werkbank, "P"); }},
    {Name::mnuKindLinieLöschen, Auf<KindLinieEntfernen>},
    {Name::mnuPfeilLöschen, Auf<PfeilLöschen>},
    {Name::mnuKreisLinieLöschen, Auf<KreisLinieLöschen>},
    {Name::mnuTextbearbeiten, TextBearbeiten},
    {Name::mnuTextboxLöschen, Auf<TextLöschen>},

    {Name::mnuWerkzeugleiste, [](Befehlsumgebung &u, int) { u.darstellung.WerkzeugleisteUmschalten(); }},
    {Name::mnuRasterAnzeigen, [](Befehlsumgebung &u, int) { u.darstellung.RasterUmschalten(); }},
    {Name::mnuRasterKlein, [](Befehlsumgebung &u, int) { u.darstellung.RasterWählen(0); }},
    {Name::mnuRasterGroß, [](Befehlsumgebung &u, int) { u.darstellung.RasterWählen(1); }},
    {Name::mnuLegendeEinstellungen, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmLegende); }},
    {Name::mnuLegendeAktualisieren, LegendeAktualisieren},
    {Name::mnuLegendeAnzeigen, LegendeUmschalten},
    {Name::mnuSchwarzWeiß, Farbschema, SchemaSchwarzWeiß},
    {Name::mnuGraustufen, Farbschema, SchemaGraustufen},
    {Name::mnuFarbig, Farbschema, SchemaFarbig},
    {Name::mnuSchriftart, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmSchrift); }},
    {Name::mnuAltersangabe, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmSymbGlobal); }},
    {Name::mnuSeiteEinrichten,
     [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmSeiteEinrichten); }},
    {Name::btnHochformat, Lage, 1},
    {Name::btnQuerformat, Lage, 2},
    {Name::keyDINA4, Papier, 9},
    {Name::keyDINA5, Papier, 11},
    {Name::keyUSLetter, Papier, 1},
    {Name::btnBlattränder, DruckränderUmschalten},
    {Name::cmdRänder, [](Befehlsumgebung &u, int) { u.druck.DruckrandBericht(); }},
    {Name::mnuDrucken, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmDrucken); }},
    {Name::mnuEinstellungen, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmEinstellungen); }},
    {Name::mnuHilfethemen, HilfeÖffnen},
    {Name::mnuUpdate, UpdateStarten},
    {Name::mnuFassungen, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmFassungen); }},
    {Name::btnImport, [](Befehlsumgebung &u, int) { u.import.ListeUmschalten(); }},
    {Name::mnuInfo, [](Befehlsumgebung &u, int) { u.werkbank.fenster.FormÖffnen(Name::frmInfo); }},
    {Name::mnuSymbolKleiner, [](Befehlsumgebung &u, int) { GrößeÄndern(u.werkbank, -GrößenSchritt); }},
    {Name::mnuSymbolGrößer, [](Befehlsumgebung &u, int) { GrößeÄndern(u.werkbank, GrößenSchritt); }},
    {Name::btnBildGrößer, [](Befehlsumgebung &u, int) { u.bereich.Vergrößern(); }},
    {Name::btnBildKleiner, [](Befehlsumgebung &u, int) { u.bereich.Verkleinern(); }},

    {Name::cmdZwillinge, Auf<cmdZwillinge>},
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

Befehl BefehlFinden(std::string_view name) {
    if (const auto menü = Menügleich(name); !menü.empty()) name = menü;
    const auto i =
        std::find_if(std::begin(Tabelle), std::end(Tabelle), [&](const Zeile &zeile) { return zeile.Name == name; });
    return i == std::end(Tabelle) ? AusReihe(name) : Befehl{i->Ausführen, i->Wert};
}

} // namespace kw
