#include "replay/Namen.h"

#include "document/Zahlen.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace kw {

namespace {

template <typename T> std::string AlsText(const T &wert) {
    if constexpr (std::is_convertible_v<T, std::string>) return wert;
    else if constexpr (std::is_floating_point_v<T>) return ZahlSchreiben(wert);
    else return std::to_string(static_cast<long>(wert));
}

template <typename T> Variable Von(T &wert) {
    return {[&wert] { return AlsText(wert); },
            [&wert](const std::string &text) {
                if constexpr (std::is_convertible_v<T, std::string>) wert = text;
                else if constexpr (std::is_same_v<T, bool>) wert = ZahlLesen(text) != 0;
                else if constexpr (std::is_floating_point_v<T>) wert = ZahlLesen(text);
                else
                    wert =
                        static_cast<T>(std::clamp(ZahlLesen(text), static_cast<double>(std::numeric_limits<T>::min()),
                                                  static_cast<double>(std::numeric_limits<T>::max())));
            }};
}

template <typename Lesen> Variable Abgeleitet(Lesen lesen) {
    return {[lesen] { return AlsText(lesen()); }, nullptr};
}

} // namespace

int Ganzzahl(double wert) {
    constexpr double Grenze = 2147483647;
    return static_cast<int>(std::clamp(wert, -Grenze, Grenze));
}

Namen::Namen(frmMain &h) {
    Dokument &d = h.dokument;
    Ansicht &a = h.ansicht;
    Variablen = {
        {"Programmversion", Abgeleitet([] { return std::string(frmMain::Programmversion); })},
        {"Sprache", Von(a.Sprache)},
        {"IniDatei", Von(h.IniDatei)},
        {"Projektdatei", Von(h.projekt.Projektdatei)},
        {"Kommandozeile", Von(h.Kommandozeile)},
        {"title", Von(h.projekt.Titel)},
        {"Geändert", Von(h.projekt.Geändert)},
        {"SpeichernAbgebrochen", Von(h.projekt.SpeichernAbgebrochen)},
        {"DruckerVorhanden", Von(h.DruckerVorhanden)},
        {"LetzterPfad", Von(h.einstellungen.LetzterPfad)},
        {"stdfontname", Von(h.einstellungen.stdfontname)},
        {"stdfont_s", Von(h.einstellungen.stdfont_s)},
        {"stdfont_m", Von(h.einstellungen.stdfont_m)},
        {"stdfont_l", Von(h.einstellungen.stdfont_l)},
        {"GrößeNormal", Abgeleitet([] { return frmMain::GrößeNormal; })},
        {"GrößeKlein", Abgeleitet([] { return frmMain::GrößeKlein; })},
        {"BalkenAbstand", Abgeleitet([] { return frmMain::BalkenAbstand; })},
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
        {"Farbschema", Von(a.Farbschema)},
        {"Altersanzeige", Von(a.Altersanzeige)},
        {"StrichFaktor", Von(a.StrichFaktor)},
        {"Glättungsgrad", Von(a.Glättungsgrad)},
        {"hsGlättungsgrad", Von(a.Glättungsgrad)},
        {"Textvorlage", Von(h.Textvorlage)},
        {"Rasterweite", Von(a.Rasterweite)},
        {"bRasterAnzeigen", Von(a.bRasterAnzeigen)},
        {"bDruckLaeuft", Von(a.bDruckLaeuft)},
        {"bDruckrandAnzeigen", Von(a.bDruckrandAnzeigen)},
        {"DruckrandLinks", Von(a.DruckrandLinks)},
        {"DruckrandRechts", Von(a.DruckrandRechts)},
        {"DruckrandOben", Von(a.DruckrandOben)},
        {"DruckrandUnten", Von(a.DruckrandUnten)},
        {"Markierfarbe", Von(a.Markierfarbe)},
        {"Pfeilfarbe", Von(a.Pfeilfarbe)},
        {"Skalierung", Von(a.Skalierung)},
        {"Aktion", Von(h.geste.Aktion)},
        {"ZielPerson", Von(h.geste.ZielPerson)},
        {"PLinieAuswahl", Von(h.geste.PLinieAuswahl)},
        {"PLinieUnterMaus", Von(h.geste.PLinieUnterMaus)},
        {"KindAuswahl", Von(h.geste.KindAuswahl)},
        {"MausradIndex", Von(h.bereich.MausradIndex)},
        {"UndoTiefe", Abgeleitet([] { return UndoRing::UndoTiefe; })},
        {"UndoPos", Abgeleitet([&h] { return h.ring.UndoPos(); })},
        {"UndoSchritte", Abgeleitet([&h] { return h.ring.UndoSchritte(); })},
        {"RedoSchritte", Abgeleitet([&h] { return h.ring.RedoSchritte(); })},
        {"UndoFüllung", Abgeleitet([&h] { return h.ring.UndoFüllung(); })},
    };
    for (size_t i = 0; i < a.Linienfarben.size(); ++i)
        Variablen["Linienfarben(" + std::to_string(i + 1) + ")"] = Von(a.Linienfarben[i]);
    for (int i = 1; i <= Chronik::Plätze; ++i)
        Variablen["Chronik(" + std::to_string(i) + ")"] = Abgeleitet([&h, i] { return h.einstellungen.Zuletzt[i]; });

    for (const auto &zeile : SpeicherTabelle) Listen[std::string(zeile.Name)] = &(d.*zeile.Liste);
    Listen.insert({{"lstGelöschtePersNr", &d.lstGelöschtePersNr},
                   {"lstGelöschtePLinien", &d.lstGelöschtePLinien},
                   {"lstMovedPers", &h.auswahl.lstMovedPers},
                   {"lstMovedPLines", &h.auswahl.lstMovedPLines},
                   {"lstMovedText", &h.auswahl.lstMovedText},
                   {"lstMovedKreisLinien", &h.auswahl.lstMovedKreisLinien},
                   {"lstMovedPfeile", &h.auswahl.lstMovedPfeile},
                   {"lstLegende", &h.legende.lstLegende}});
    const std::map<std::string, Auswahlliste *> auswahllisten{{"cboRaster", &h.cboRaster},
                                                              {"cboPaperSize", &h.cboPaperSize},
                                                              {"cboBildGröße", &h.bereich.cboBildGröße},
                                                              {"Combo1", &h.Combo1},
                                                              {"Combo2", &h.Combo2},
                                                              {"Combo3", &h.Combo3}};
    for (const auto &[name, liste] : auswahllisten) {
        Listen[name] = &liste->Einträge;
        Variablen[name + ".index"] = Von(liste->ListIndex);
    }
    Variablen["cboBildGröße.index"].Setzen = [&h](const std::string &text) {
        h.bereich.ZoomWählen(Ganzzahl(ZahlLesen(text)));
    };
    Variablen["cboRaster.index"].Setzen = [&h](const std::string &text) { h.RasterWählen(Ganzzahl(ZahlLesen(text))); };
    Listen["cboBildGr_e"] = Listen["cboBildGröße"];
    Variablen["cboBildGr_e.index"] = Variablen["cboBildGröße.index"];

    Flächen = {{"picBack", [&h] { return h.bereich.picBack; }},
               {"picVorschau", [&h] { return h.bereich.picVorschau(); }},
               {"Coolbar1", [&h] { return h.bereich.Coolbar1; }},
               {"imgCorner", [&h] { return h.bereich.imgCorner; }},
               {"VScroll1", [&h]() -> Steuerfläche { return h.bereich.VScroll1; }},
               {"HScroll1", [&h]() -> Steuerfläche { return h.bereich.HScroll1; }},
               {"shpSchatten", [&h] { return h.bereich.shpSchatten; }}};
    Variablen["VScroll1.Value"] = Abgeleitet([&h] { return h.bereich.VScroll1.Value; });
    Variablen["HScroll1.Value"] = Abgeleitet([&h] { return h.bereich.HScroll1.Value; });
    Variablen["VScroll1.Max"] = Von(h.bereich.VScroll1.Max);
    Variablen["HScroll1.Max"] = Von(h.bereich.HScroll1.Max);
}

} // namespace kw
