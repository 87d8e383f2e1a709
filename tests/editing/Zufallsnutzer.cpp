#include "Zufallsnutzer.h"

#include "app/Befehle.h"
#include "document/Felder.h"
#include "document/Zahlen.h"

namespace kw {

namespace {

/// What the user does, lines parted by "|". %p a person, %b the bar of a couple, %e an empty place, %x any place,
/// %= the same place again, %m an entry of the menu of what stands at a place, %z one of the twins' menu, %t a tool,
/// %F a frame round one element or two, %C one round a couple. What shall happen more often stands here twice.
constexpr std::string_view Anfang =
    "start|store cboTextboxen \"3_15_Arial_11_0_0_0_0_0_Ein Text\"|pick cboRaster 1|"
    "store cboTextboxen 12_16.5_Arial_8_255_1_0_0_2_zwei#Zeilen|save zufall.kwp|load zufall.kwp";
// clang-format off
constexpr std::string_view Handlungen[] = {
    "tool %t|click %e", "tool 1|click %e", "tool 3|click %e", "tool 11|click %e", "tool 11|click %e",
    "click %p|tool 12|move %p|click %=", "click %p|tool 12|move %p|click %=", "click %p|tool 13|move %p|click %=",
    "click %p|tool 13|move %p|click %=", "click %p|tool 14|move %b|click %=", "click %p|tool 14|move %b|click %=",
    "click %p|tool 14|move %b|click %=", "tool 1|click %e|click %=|tool 14|move %b|click %=",
    "drag %C|popup %z|tool zwillinge", "drag %C|popup %z|tool zwillinge", "drag %F|popup mnuTwinsEineiig|rclick %=",
    "drag %F|popup mnuTwinszweiiig|rclick %=", "drag %F", "drag %F|drag %= %e", "drag %F|drag %= %e",
    "drag %F|drag %= %e", "drag %F|press cmdDelete", "drag %F|menu mnuSymbolGrößer", "drag %F|key Ctrl+C|key Ctrl+V",
    "drag %F|key Ctrl+X|key Ctrl+V", "key Ctrl+V", "popup %m|rclick %=", "popup %m|rclick %=|rclick %=",
    "drag %x %e", "drag %p %e", "drag %b %e", "drag %x %x", "click %x|drag %= %e", "click %x", "click %x|key Del",
    "key Del", "key Ctrl+C", "key Ctrl+X", "key Ctrl+Z", "key Ctrl+Z|key Ctrl+Z|key Ctrl+Y|key Ctrl+Y",
    "tool 9|drag %e %e", "tool 15|drag %e %e", "down left %x|move %x|move %x", "down right %x|move %x|up %=", "move %x|up %=",
    "move %x|key Del|move %x|up %=", "dblclick %x|wait 100", "save zufall.kwp|load zufall.kwp", "pick cboRaster 0",
    "pick cboRaster 2", "wheel up", "menu mnuLegendeAnzeigen",
};
// clang-format on

} // namespace

/// Half way between two fields' places, where a line can be hit. Y stands behind X where nothing else is said.
void Zufallsnutzer::Merken(std::vector<Ort> &orte, const Satzliste &speicher, std::string_view menü, int x1, int x2,
                           int y1) {
    for (const auto &satz : speicher) {
        const Felder f(satz);
        const auto mitte = [&](int a, int b) { return (ZahlLesen(f[a]) + ZahlLesen(f[b])) / 2; };
        orte.push_back({mitte(x1, x2), y1 ? mitte(y1, y1 + 1) : mitte(x1 + 1, x2 + 1), menü});
    }
}

void Zufallsnutzer::Umsehen(const Stand &stand) {
    const Dokument &d = stand.dokument;
    for (auto *orte : {&personen_, &balken_, &alle_}) orte->clear();
    Merken(personen_, d.cboPersonen, "mnuPerson", PersonFeld::PosX, PersonFeld::PosX);
    Merken(balken_, d.cboPartnerschaftsLinien, "mnuPLinie", PLinieFeld::BalkenX1, PLinieFeld::BalkenX2);
    Merken(alle_, d.cboKindlinien, "mnuKindLinie", KindFeld::KindX, KindFeld::LinieX, KindFeld::KindY);
    Merken(alle_, d.cboBeziehungsLinien, "mnuBezLinie", BezFeld::LinieX1, BezFeld::LinieX2);
    Merken(alle_, d.cboPfeile, "mnuPfeil1", PfeilFeld::PfeilX1, PfeilFeld::PfeilX2);
    Merken(alle_, d.cboPfeile, "mnuPfeil1", PfeilFeld::PfeilX2, PfeilFeld::PfeilX2);
    Merken(alle_, d.cboTextboxen, "mnuTextBox", TextFeld::TextX, TextFeld::TextX);
    for (const std::string_view satz : d.cboFreehandlines)
        alle_.push_back({ZahlLesen(satz), ZahlLesen(satz.substr(satz.find('^') + 1)) + 0.05, "mnuKreislinie"});
    for (const auto *orte : {&personen_, &balken_}) alle_.insert(alle_.end(), orte->begin(), orte->end());
    if (stand.lage.Aktion == AktionGruppeGewählt)
        alle_.push_back({stand.auflagen.shpBox.Left + 0.2, stand.auflagen.shpBox.Top + 0.2, "mnuAuswahlBox"});
}

/// One of them, seldom a place where nothing is, often a little off.
const Zufallsnutzer::Ort &Zufallsnutzer::Wählen(const std::vector<Ort> &orte) {
    const bool leer = orte.empty() || Würfel(12) == 0;
    letzter_ = leer ? Ort{Würfel(300) / 10.0 - 1, Würfel(220) / 10.0 - 1} : orte[zufall_() % orte.size()];
    if (Würfel(3) == 0) letzter_.X += (Würfel(13) - 6) / 20.0;
    if (Würfel(3) == 0) letzter_.Y += (Würfel(13) - 6) / 20.0;
    return letzter_;
}

std::string Zufallsnutzer::Eintrag(std::string_view menü) {
    std::vector<std::string_view> namen;
    for (const auto &zeile : Menütafel())
        if (BefehlFinden(zeile.Name) && GehörtZu(zeile.Name, menü)) namen.push_back(zeile.Name);
    return std::string(namen[zufall_() % namen.size()]);
}

std::string Zufallsnutzer::Eingesetzt(char platzhalter) {
    const auto text = [](double x, double y) {
        return ZahlSchreiben(Gerundet(x, 2)) + " " + ZahlSchreiben(Gerundet(y, 2));
    };
    const auto rahmen = [&](Ort a, Ort b, double rand) {
        return text(std::min(a.X, b.X) - rand, std::min(a.Y, b.Y) - rand) + " " +
               text(std::max(a.X, b.X) + rand, std::max(a.Y, b.Y) + rand);
    };
    switch (platzhalter) {
    case 'm': return Eintrag(Wählen(alle_).Menü);
    case 'z': return Eintrag("mnuZwillinge");
    case 't': return std::to_string(1 + Würfel(20));
    case 'C':
        Wählen(balken_);
        letzter_.Y -= 1; // between the partners
        return rahmen(letzter_, letzter_, 2.5);
    case 'F': {
        const Ort b = Wählen(alle_);
        return rahmen(Würfel(2) ? b : Wählen(alle_), b, 0.2 + Würfel(15) / 5.0);
    }
    case 'p': Wählen(personen_); break;
    case 'b': Wählen(balken_); break;
    case 'e': Wählen({}); break;
    case 'x': Wählen(alle_); break;
    default: break;
    }
    return text(letzter_.X, letzter_.Y);
}

std::vector<std::string> Zufallsnutzer::Nächstes(const Stand &stand, bool antwortOffen) {
    constexpr size_t Voll = 60; // elements, arrows counted twice
    Umsehen(stand);
    std::string_view handlung = Anfang;
    const auto hat = [&](std::string_view wort) { return handlung.find(wort) != std::string_view::npos; };
    while (!neu_ && (handlung == Anfang || (genau_ && (hat("load") || hat("Ctrl+V") || hat("Ctrl+Z")))))
        handlung = Handlungen[zufall_() % std::size(Handlungen)];
    if (alle_.size() > Voll && (handlung.starts_with("tool") || hat("Ctrl+V"))) handlung = "drag %F|key Del";
    neu_ = false;
    std::vector<std::string> zeilen(1);
    for (size_t i = 0; i < handlung.size(); ++i) {
        if (handlung[i] == '|') zeilen.emplace_back();
        else if (handlung[i] == '%') zeilen.back() += Eingesetzt(handlung[++i]);
        else zeilen.back() += handlung[i];
    }
    if (antwortOffen) std::erase_if(zeilen, [](const auto &zeile) { return zeile.starts_with("popup"); });
    return zeilen;
}

} // namespace kw
