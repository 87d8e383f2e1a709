#include "replay/Namen.h"

#include "editing/Auflagen.h"
#include "editing/Leinwandlage.h"

namespace kw {

void Namen::Leinwandnamen(Leinwandlage &l) {
    Variablen.insert({
        {"Aktion", Von(l.Aktion)},
        {"SymbolTyp", Von(l.SymbolTyp)},
        {"SymbolGröße", Von(l.SymbolGröße)},
        {"PersAuswahl", Von(l.PersAuswahl)},
        {"PersRecord", Von(l.PersRecord)},
        {"PersNr", Von(l.PersNr)},
        {"ElementArt", Von(l.ElementArt)},
        {"TextAuswahl", Von(l.TextAuswahl)},
        {"TextRecord", Von(l.TextRecord)},
        {"TextRahmenUnten", Von(l.TextRahmenUnten)},
        {"BezAuswahl", Von(l.BezAuswahl)},
        {"PLinieAuswahl", Von(l.PLinieAuswahl)},
        {"PLinieUnterMaus", Von(l.PLinieUnterMaus)},
        {"KindAuswahl", Von(l.KindAuswahl)},
        {"PfeilAuswahl", Von(l.PfeilAuswahl)},
        {"KreisAuswahl", Von(l.KreisAuswahl)},
        {"KreisGetroffen", Von(l.KreisGetroffen)},
        {"ZielPerson", Von(l.ZielPerson)},
        {"DownX", Von(l.DownX)},
        {"DownY", Von(l.DownY)},
        {"LetztX", Von(l.LetztX)},
        {"LetztY", Von(l.LetztY)},
        {"MausX", Von(l.MausX)},
        {"MausY", Von(l.MausY)},
        {"AnkerX", Von(l.AnkerX)},
        {"AnkerY", Von(l.AnkerY)},
        {"VersatzX", Von(l.VersatzX)},
        {"VersatzY", Von(l.VersatzY)},
        {"GummiX", Von(l.GummiX)},
        {"GummiY", Von(l.GummiY)},
        {"AltX", Von(l.AltX)},
        {"AltY", Von(l.AltY)},
        {"DeltaX", Von(l.DeltaX)},
        {"DeltaY", Von(l.DeltaY)},
        {"NeuX", Von(l.Spur.NeuX)},
        {"NeuY", Von(l.Spur.NeuY)},
        {"LinieVerschoben", Von(l.LinieVerschoben)},
        {"BildAuswahl", Von(l.BildAuswahl)},
        {"bAuswahlBildAktiv", Von(l.BildAuswahl)},
        {"bAuswahlInDatei", Von(l.bAuswahlInDatei)},
        {"Gedrückt", Von(l.Gedrückt)},
        {"PfeilArt", Von(l.PfeilArt)},
        {"PfeilEndeX", Von(l.PfeilEndeX)},
        {"PfeilEndeY", Von(l.PfeilEndeY)},
        {"PunktListe", Von(l.PunktListe)},
        {"lblPersAuswahl", Von(l.lblPersAuswahl)},
        {"AuswahlX", Von(l.AuswahlX)},
        {"AuswahlY", Von(l.AuswahlY)},
        {"MarkerBreite", Von(l.Spur.MarkerBreite)},
        {"MarkerHöhe", Von(l.Spur.MarkerHöhe)},
        {"AuswahlGröße", Von(l.AuswahlGröße)},
        {"ZwillingsArt", Von(l.Spur.ZwillingsArt)},
        {"Zwillingspaar", Von(l.Zwillingspaar)},
        {"PersNrA", Von(l.Spur.PersNrA)},
        {"PersNrB", Von(l.Spur.PersNrB)},
        {"Zeiger", Abgeleitet([&l] { return l.Zeiger; })},
        {"Info.IndexPerson", Von(l.Info.IndexPerson)},
        {"Info.Verstorben", Von(l.Info.Verstorben)},
        {"Info.Sucht", Von(l.Info.Sucht)},
        {"Info.Erkrankung", Von(l.Info.Erkrankung)},
    });
    Sichtbar["Frame1(0)"] = [&l] { return l.Info.Visible; };
}

void Namen::Auflagennamen(Auflagen &a) {
    const auto linie = [this](const std::string &name, const Auflagenlinie &l) {
        Formen[name] = [&l] { return AlsText(l.X1) + " " + AlsText(l.Y1) + " " + AlsText(l.X2) + " " + AlsText(l.Y2); };
        Sichtbar[name] = [&l] { return l.Visible; };
    };
    const auto form = [this](const std::string &name, const Auflagenform &f) {
        Formen[name] = [&f] {
            return AlsText(f.Left) + " " + AlsText(f.Top) + " " + AlsText(f.Width) + " " + AlsText(f.Height);
        };
        Sichtbar[name] = [&f] { return f.Visible; };
        Variablen[name + ".Shape"] = Abgeleitet([&f] { return f.Shape; });
    };
    linie("Line1", a.Line1);
    linie("Line2", a.Line2);
    linie("Line5", a.Line5);
    for (size_t i = 0; i < a.MarkLine.size(); ++i) linie("MarkLine(" + std::to_string(i + 1) + ")", a.MarkLine[i]);
    form("shpMask", a.shpMask);
    form("shpBox", a.shpBox);
    form("shpCursor", a.shpCursor);
    form("shpPerson", a.shpPerson);
}

} // namespace kw
