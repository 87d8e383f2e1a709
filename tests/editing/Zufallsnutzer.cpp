#include "Zufallsnutzer.h"

#include "app/Befehle.h"
#include "document/Felder.h"
#include "document/Zahlen.h"

#include <array>

namespace kw {

namespace {

/// What the user does, lines parted by "|". %p a person, %b the bar of a couple, %e an empty place, %x any place,
/// %= the same place again, %m an entry of the menu of what stands at a place, %z one of the twins' menu, %t a tool,
/// %F a frame round any two elements, %C one round a couple. More often is said by saying it twice.
constexpr std::string_view Handlungen[] = {
    "tool %t|click %e", "tool 1|click %e", "tool 3|click %e", "tool 11|click %e", "tool 11|click %e",
    "click %p|tool 12|move %p|click %=", "click %p|tool 12|move %p|click %=", "click %p|tool 13|move %p|click %=",
    "click %p|tool 13|move %p|click %=", "click %p|tool 14|move %b|click %=", "click %p|tool 14|move %b|click %=",
    "click %p|tool 14|move %b|click %=", "click %p|tool 14|move %b|click %=", "tool 1|click %e|click %=|tool 14|move %b|click %=",
    "drag %C|popup %z|tool zwillinge", "drag %C|popup %z|tool zwillinge", "drag %F|popup mnuTwinsEineiig|rclick %=",
    "drag %F|popup mnuTwinszweiiig|rclick %=", "drag %F", "drag %F|drag %= %e", "drag %F|drag %= %e",
    "drag %F|drag %= %e", "drag %F|press cmdDelete", "drag %F|menu mnuSymbolGrößer", "drag %F|key Ctrl+C|key Ctrl+V",
    "drag %F|key Ctrl+X|key Ctrl+V", "key Ctrl+V", "popup %m|rclick %=", "popup %m|rclick %=|rclick %=", "drag %x %e",
    "drag %p %e", "drag %b %e", "drag %x %x", "click %x|drag %= %e", "click %x", "click %x|key Del", "key Del",
    "key Ctrl+C", "key Ctrl+X", "key Ctrl+Z", "key Ctrl+Z|key Ctrl+Z|key Ctrl+Y|key Ctrl+Y", "tool 9|drag %e %e",
    "tool 15|drag %e %e", "down left %x|move %x|move %x", "down right %x", "up %x", "move %x|key Del|up %x",
    "dblclick %x|wait 100", "save zufall.kwp|load zufall.kwp", "pick cboRaster 0", "pick cboRaster 2", "wheel up",
    "menu mnuLegendeAnzeigen",
};

} // namespace

std::vector<std::string> Zufallsnutzer::Anfang() {
    return {"start",
            "store cboTextboxen \"3_15_Arial_11_0_0_0_0_0_Ein Text\"",
            "store cboTextboxen 12_16.5_Arial_8_255_1_0_0_2_zwei#Zeilen",
            "pick cboRaster " + std::to_string(Würfel(3)),
            "save zufall.kwp",
            "load zufall.kwp"};
}

/// Half way between two fields' places, where a line can be hit.
void Zufallsnutzer::Merken(std::vector<Ort> &orte, const Satzliste &speicher, std::string_view menü, int x1, int x2) {
    for (const auto &satz : speicher) {
        const Felder f(satz);
        const int schritt = menü == "mnuKindLinie" ? 2 : 1; // child lines have both X before both Y
        orte.push_back({(ZahlLesen(f[x1]) + ZahlLesen(f[x2])) / 2,
                        (ZahlLesen(f[x1 + schritt]) + ZahlLesen(f[x2 + schritt])) / 2, menü});
    }
}

void Zufallsnutzer::Umsehen(const Stand &stand) {
    const Dokument &d = stand.dokument;
    for (auto *orte : {&personen_, &balken_, &alle_}) orte->clear();
    Merken(personen_, d.cboPersonen, "mnuPerson", PersonFeld::PosX, PersonFeld::PosX);
    Merken(balken_, d.cboPartnerschaftsLinien, "mnuPLinie", PLinieFeld::BalkenX1, PLinieFeld::BalkenX2);
    Merken(alle_, d.cboKindlinien, "mnuKindLinie", KindFeld::KindX, KindFeld::LinieX);
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

std::string Zufallsnutzer::Text(Ort ort) const {
    return ZahlSchreiben(Gerundet(ort.X, 2)) + " " + ZahlSchreiben(Gerundet(ort.Y, 2));
}

std::string Zufallsnutzer::Eingesetzt(char platzhalter) {
    const auto wählen = [&](const std::vector<Ort> &orte) {
        letzter_ = orte.empty() || Würfel(12) == 0 ? Ort{Würfel(300) / 10.0 - 1, Würfel(220) / 10.0 - 1} : Eines(orte);
        if (Würfel(3) == 0) letzter_.X += (Würfel(13) - 6) / 20.0, letzter_.Y += (Würfel(13) - 6) / 20.0;
        return letzter_;
    };
    const auto eintrag = [&](std::string_view menü) {
        std::vector<std::string_view> namen;
        for (const auto &zeile : Menütafel())
            if (BefehlFinden(zeile.Name) && GehörtZu(zeile.Name, menü)) namen.push_back(zeile.Name);
        return std::string(Eines(namen));
    };
    switch (platzhalter) {
    case 'p': return Text(wählen(personen_));
    case 'b': return Text(wählen(balken_));
    case 'e': return Text(wählen({}));
    case 'x': return Text(wählen(alle_));
    case 'm': return eintrag(wählen(alle_).Menü);
    case 'z': return eintrag("mnuZwillinge");
    case 't': return std::to_string(1 + Würfel(20));
    case 'C': {
        const Ort bar = wählen(balken_);
        letzter_.Y -= 1;
        return Text({bar.X - 2.5, bar.Y - 2.5}) + " " + Text({bar.X + 2.5, bar.Y + Würfel(3) * 1.5 - 1});
    }
    case 'F': {
        const Ort b = wählen(alle_), a = Würfel(2) ? b : wählen(alle_);
        const double rand = 0.2 + Würfel(15) / 5.0;
        return Text({std::min(a.X, b.X) - rand, std::min(a.Y, b.Y) - rand}) + " " +
               Text({std::max(a.X, b.X) + rand, std::max(a.Y, b.Y) + rand});
    }
    default: return Text(letzter_);
    }
}

std::vector<std::string> Zufallsnutzer::Nächstes(const Stand &stand, bool antwortOffen) {
    Umsehen(stand);
    const bool voll = personen_.size() > 40; // then nothing is placed but by pasting
    std::vector<std::string> zeilen(1);
    std::string_view handlung = Eines(Handlungen);
    const auto hat = [&](std::string_view wort) { return handlung.find(wort) != std::string_view::npos; };
    while (genau_ && (hat("load") || hat("Ctrl+V") || hat("Ctrl+Z"))) handlung = Eines(Handlungen);
    if (voll && handlung.starts_with("tool")) handlung = "drag %F|key Del";
    for (size_t i = 0; i < handlung.size(); ++i) {
        if (handlung[i] == '|') zeilen.emplace_back();
        else if (handlung[i] == '%') zeilen.back() += Eingesetzt(handlung[++i]);
        else zeilen.back() += handlung[i];
    }
    if (antwortOffen) std::erase_if(zeilen, [](const auto &zeile) { return zeile.starts_with("popup"); });
    return zeilen;
}

} // namespace kw
