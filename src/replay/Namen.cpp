#include "replay/Namen.h"

#include "app/Darstellung.h"
#include "app/Datenimport.h"
#include "app/Programmversion.h"
#include "app/Projekt.h"
#include "document/Einstellungen.h"
#include "document/Papier.h"
#include "document/UndoRing.h"
#include "editing/Ablage.h"
#include "editing/Leinwandlage.h"
#include "output/Arbeitsbereich.h"
#include "output/Druckwerk.h"
#include "platform/Bedienelemente.h"
#include "platform/Benutzer.h"
#include "rendering/Ansicht.h"
#include "rendering/Auswahl.h"
#include "rendering/Legende.h"
#include "replay/Einblick.h"

#include <algorithm>

namespace kw {

namespace {

// Twips: what of the window nothing in the program lays out.
constexpr int BandÜberstand = 100;
constexpr int EckeLinks = 320;
constexpr int EckeOben = 890;

int Ganzzahl(const std::string &text) { return AusText<int>(text); }

} // namespace

Namen::Namen(const Einblick &h, const Benutzer &benutzer) {
    Startwerte(h, benutzer);
    Programmnamen(h);
    Dokumentnamen(h);
    Ansichtsnamen(h);
    Auswahllisten(h);
    Arbeitsflächen(h.bereich);
    Leinwandnamen(h.lage);
    Auflagennamen(h.auflagen);
}

void Namen::Startwerte(const Einblick &h, const Benutzer &benutzer) {
    const Einstellungen &e = h.einstellungen;
    textvorlage_ = "-5_-5_" + e.stdfontname + "_" + e.stdfont_m + "_0_0_0_0_0__0_0";
    Variablen["Textvorlage"] = Von(textvorlage_);
    for (const Papier &papier : Papiere) cboPaperSize_.Einträge.Anhängen(std::string(papier.Name));
    cboPaperSize_.ListIndex = 1;
    for (auto &name : benutzer.Schriftarten()) combo1_.Einträge.Anhängen(std::move(name));
    combo2_.Einträge = {"8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "26", "28", "36"};
    combo3_.Einträge = {"Standard", "Fett", "Kursiv", "Fett-Kursiv"};
    combo1_.ListIndex = combo1_.Einträge.Leer() ? -1 : 0;
    combo2_.ListIndex = 2;
    combo3_.ListIndex = 0;
}

void Namen::Programmnamen(const Einblick &h) {
    Variablen.insert({
        {"Programmversion", Abgeleitet([] { return std::string(Programmversion); })},
        {"IniDatei", Von(h.projekt.IniDatei)},
        {"Projektdatei", Von(h.projekt.Projektdatei)},
        {"Kommandozeile", Von(h.Kommandozeile)},
        {"title", Von(h.projekt.Titel)},
        {"Geändert", Von(h.projekt.Geändert)},
        {"ImportModus", Von(h.projekt.ImportModus)},
        {"SpeichernAbgebrochen", Von(h.projekt.SpeichernAbgebrochen)},
        {"DruckerVorhanden", Von(h.druck.DruckerVorhanden)},
        {"LetzterPfad", Von(h.einstellungen.LetzterPfad)},
        {"stdfontname", Von(h.einstellungen.stdfontname)},
        {"stdfont_s", Von(h.einstellungen.stdfont_s)},
        {"stdfont_m", Von(h.einstellungen.stdfont_m)},
        {"stdfont_l", Von(h.einstellungen.stdfont_l)},
        {"GrößeNormal", Abgeleitet([] { return GrößeNormal; })},
        {"GrößeKlein", Abgeleitet([] { return GrößeKlein; })},
        {"BalkenAbstand", Abgeleitet([] { return BalkenAbstand; })},
        {"UndoTiefe", Abgeleitet([] { return UndoRing::UndoTiefe; })},
        {"UndoPos", Abgeleitet([h] { return h.ring.UndoPos(); })},
        {"UndoSchritte", Abgeleitet([h] { return h.ring.UndoSchritte(); })},
        {"RedoSchritte", Abgeleitet([h] { return h.ring.RedoSchritte(); })},
        {"UndoFüllung", Abgeleitet([h] { return h.ring.UndoFüllung(); })},
        {"KopierModus", Von(h.ablage.KopierModus)},
        {"KopierPunkt", Von(h.ablage.KopierPunkt)},
        {"KopierBreite", Von(h.ablage.KopierBreite)},
        {"KopierHöhe", Von(h.ablage.KopierHöhe)},
    });
    for (int i = 1; i <= Chronik::Plätze; ++i)
        Variablen["Chronik(" + std::to_string(i) + ")"] = Abgeleitet([h, i] { return h.einstellungen.Zuletzt[i]; });
}

void Namen::Dokumentnamen(const Einblick &h) {
    Dokument &d = h.dokument;
    Variablen.insert({
        {"Papiercode", Von(d.Papiercode)},
        {"Papierformat", Von(d.Papiercode)},
        {"Seitenlage", Von(d.Seitenlage)},
        {"Seitenausrichtung", Von(d.Seitenlage)},
        {"LegendeSichtbar", Von(d.LegendeSichtbar)},
        {"LegendeX", Von(d.LegendeX)},
        {"LegendeY", Von(d.LegendeY)},
        {"LegendeQuer", Von(d.LegendeQuer)},
        {"OhneStandardsymbole", Von(d.OhneStandardsymbole)},
        {"optQuer", Von(d.LegendeQuer)},
        {"chkAlleSymbole", Abgeleitet([&d] { return !d.OhneStandardsymbole; })},
        {"LegendeBreite", Von(h.legende.LegendeBreite)},
        {"LegendeHoehe", Von(h.legende.LegendeHoehe)},
    });
    for (const auto &zeile : SpeicherTabelle) Listen[std::string(zeile.Name)] = &(d.*zeile.Liste);
    Listen.insert({{"lstGelöschtePersNr", &d.lstGelöschtePersNr},
                   {"lstGelöschtePLinien", &d.lstGelöschtePLinien},
                   {"lstMovedPers", &h.auswahl.lstMovedPers},
                   {"lstMovedPLines", &h.auswahl.lstMovedPLines},
                   {"lstMovedText", &h.auswahl.lstMovedText},
                   {"lstMovedKreisLinien", &h.auswahl.lstMovedKreisLinien},
                   {"lstMovedPfeile", &h.auswahl.lstMovedPfeile},
                   {"cboTextDateizeilen", &h.import.cboTextDateizeilen},
                   {"lstLegende", &h.legende.lstLegende},
                   {"ZA_Personen", &h.ablage.ZA_Personen},
                   {"ZA_PLines", &h.ablage.ZA_PLines},
                   {"ZA_KindLinien", &h.ablage.ZA_KindLinien},
                   {"ZA_Textboxen", &h.ablage.ZA_Textboxen},
                   {"ZA_Kreislinien", &h.ablage.ZA_Kreislinien},
                   {"ZA_Pfeile", &h.ablage.ZA_Pfeile}});
}

void Namen::Ansichtsnamen(const Einblick &h) {
    Ansicht &a = h.ansicht;
    Variablen.insert({
        {"Sprache",
         {[&a] { return std::string(Kürzel(a.Sprache)); }, [&a](const std::string &t) { a.Sprache = SpracheAus(t); }}},
        {"Farbschema", Von(a.Farbschema)},
        {"Altersanzeige", Von(a.Altersanzeige)},
        {"StrichFaktor", Von(a.StrichFaktor)},
        {"Glättungsgrad", Von(a.Glättungsgrad)},
        {"hsGlättungsgrad", Von(a.Glättungsgrad)},
        {"Rasterweite", Von(a.Rasterweite)},
        {"bRasterAnzeigen", Von(a.bRasterAnzeigen)},
        {"bDruckLaeuft", Abgeleitet([] { return false; })}, // only drawing is told
        {"bDruckrandAnzeigen", Von(a.bDruckrandAnzeigen)},
        {"DruckrandLinks", Von(a.DruckrandLinks)},
        {"DruckrandRechts", Von(a.DruckrandRechts)},
        {"DruckrandOben", Von(a.DruckrandOben)},
        {"DruckrandUnten", Von(a.DruckrandUnten)},
        {"Markierfarbe", Von(a.Markierfarbe)},
        {"Pfeilfarbe", Von(a.Pfeilfarbe)},
        {"Skalierung", Von(a.Skalierung)},
    });
    for (size_t i = 0; i < a.Linienfarben.size(); ++i)
        Variablen["Linienfarben(" + std::to_string(i + 1) + ")"] = Von(a.Linienfarben[i]);
}

void Namen::Auswahllisten(const Einblick &h) {
    const std::map<std::string, Auswahlliste *> auswahllisten{{"cboRaster", &h.cboRaster},
                                                              {"cboPaperSize", &cboPaperSize_},
                                                              {"cboBildGröße", &h.bereich.cboBildGröße},
                                                              {"Combo1", &combo1_},
                                                              {"Combo2", &combo2_},
                                                              {"Combo3", &combo3_}};
    for (const auto &[name, liste] : auswahllisten) {
        Listen[name] = &liste->Einträge;
        Variablen[name + ".index"] = Von(liste->ListIndex);
    }
    const auto angekreuzt = [&elemente = h.bedienung](const std::string &papier) {
        std::string schlüssel = "key" + papier;
        std::erase(schlüssel, ' ');
        return elemente.Finden(schlüssel)->Checked;
    };
    Variablen["cboPaperSize.index"].Lesen = [&liste = cboPaperSize_, angekreuzt] {
        const auto &papiere = liste.Einträge;
        const auto papier = std::find_if(papiere.begin(), papiere.end(), angekreuzt);
        if (papier != papiere.end()) liste.ListIndex = static_cast<int>(papier - papiere.begin());
        return std::to_string(liste.ListIndex); // of a paper that has no name, the last one that had
    };
    // These two apply a choice at once.
    Variablen["cboBildGröße.index"].Setzen = [h](const std::string &text) { h.bereich.ZoomWählen(Ganzzahl(text)); };
    Variablen["cboRaster.index"].Setzen = [h](const std::string &text) { h.darstellung.RasterWählen(Ganzzahl(text)); };
    Listen["cboBildGr_e"] = Listen["cboBildGröße"];
    Variablen["cboBildGr_e.index"] = Variablen["cboBildGröße.index"];
}

void Namen::Arbeitsflächen(Arbeitsbereich &b) {
    const std::map<std::string, std::function<Steuerfläche()>> flächen{
        {"picBack", [&b] { return b.picBack; }},
        {"picVorschau", [&b] { return b.picVorschau(); }},
        {"Coolbar1",
         [&b] {
             return Steuerfläche{0, 0, b.HScroll1.Width + BandÜberstand};
         }},
        {"imgCorner",
         [&b] {
             return Steuerfläche{b.VScroll1.Left + b.BalkenRechts - EckeLinks,
                                 b.picBack.Height + b.FrameOben - EckeOben};
         }},
        {"VScroll1", [&b]() -> Steuerfläche { return b.VScroll1; }},
        {"HScroll1", [&b]() -> Steuerfläche { return b.HScroll1; }},
        {"shpSchatten", [&b] { return b.shpSchatten; }}};
    for (const auto &eintrag : flächen) {
        const auto fläche = eintrag.second;
        Formen[eintrag.first] = [fläche] {
            const Steuerfläche s = fläche();
            return AlsText(s.Left) + " " + AlsText(s.Top) + " " + AlsText(s.Width) + " " + AlsText(s.Height);
        };
        Sichtbar[eintrag.first] = [fläche] { return fläche().Visible; };
    }
    Variablen.insert({{"MausradIndex", Von(b.MausradIndex)},
                      {"VScroll1.Value", Abgeleitet([&b] { return b.VScroll1.Value; })},
                      {"HScroll1.Value", Abgeleitet([&b] { return b.HScroll1.Value; })},
                      {"VScroll1.Max", Von(b.VScroll1.Max)},
                      {"HScroll1.Max", Von(b.HScroll1.Max)}});
}

} // namespace kw
