#include "Zufallsnutzer.h"

#include "app/Befehle.h"
#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

/// What the user does, steps parted by "|". %p a person, %b the bar of a couple, %e an empty place, %x any place,
/// %= the same place again, %m an entry of the menu of what stands at a place, %z one of the twins' menu, %t a tool,
/// %F a frame round one element or two, %C one round a couple, %(NAME) what he does in that form, %f in the form of
/// what stood at the last place, %o the entry that opens it, %d a form and the menu that opens it. What shall happen
/// more often stands here twice.
constexpr std::string_view Anfang =
    "start|store cboTextboxen \"3_15_Arial_11_0_0_0_0_0_Ein Text\"|pick cboRaster 1|"
    "store cboTextboxen 12_16.5_Arial_8_255_1_0_0_2_zwei#Zeilen|save zufall.kwp|load zufall.kwp";
// clang-format off
constexpr std::string_view Handlungen[] = {
    "tool %t|click %e", "tool 1|click %e", "tool 3|click %e", "tool 11|click %e", "tool 11|click %e",
    "click %p|tool 12|move %p|%(frmBezLinien)click %=", "click %p|tool 12|move %p|%(frmBezLinien)click %=",
    "click %p|tool 13|move %p|click %=", "click %p|tool 13|move %p|click %=", "click %p|tool 14|move %b|click %=",
    "click %p|tool 14|move %b|click %=", "click %p|tool 14|move %b|click %=",
    "tool 1|click %e|click %=|tool 14|move %b|click %=", "drag %C|popup %z\ntool zwillinge",
    "drag %C|popup %z\ntool zwillinge", "drag %F|popup mnuTwinsEineiig\nrclick %=",
    "drag %F|popup mnuTwinszweiiig\nrclick %=", "drag %F", "drag %F|drag %= %e", "drag %F|drag %= %e",
    "drag %F|drag %= %e", "drag %F|press cmdDelete", "drag %F|menu mnuSymbolGrößer", "drag %F|key Ctrl+C|key Ctrl+V",
    "drag %F|key Ctrl+X|key Ctrl+V", "key Ctrl+V", "popup %m\nrclick %=", "popup %m\nrclick %=|rclick %=",
    "drag %x %e", "drag %p %e", "drag %b %e", "drag %x %x", "click %x|drag %= %e", "click %x", "click %x|key Del",
    "key Del", "key Ctrl+C", "key Ctrl+X", "key Ctrl+Z", "key Ctrl+Z|key Ctrl+Z|key Ctrl+Y|key Ctrl+Y",
    "tool 9|drag %e %e", "tool 15|drag %e %e", "down left %x|move %x|move %x", "down right %x|move %x|up %=", "move %x|up %=",
    "move %x|key Del|move %x|up %=", "save zufall.kwp|load zufall.kwp", "pick cboRaster 0", "pick cboRaster 2", "wheel up",
    "menu mnuLegendeAnzeigen", "tool 10|%(frmKommentar)click %e", "click %x|%fdblclick %=\nwait 100", "%d", "%d",
    "click %x|%fdblclick %=\nwait 100", "click %x|%fpopup %o\nrclick %=", "%fdblclick %=\nwait 100|%fwait 100",
};

/// The forms, what opens them, and what the user does there: lines parted by "|", then how he ends it, with nothing by
/// the close box. %w is a text, %n a number or date, %i a digit. No "_" goes into an institution's name: that is one
/// field too many, by the form's own rules.
struct Formularweg {
    std::string_view Menü, Eintrag, Name, Zeilen, Enden;
};
constexpr Formularweg Formularwege[] = {
    {"mnuPerson", "mnuSymbolBearbeiten", "frmSymbol",
     "wait 200|type txtVorname %w|set txtVorname %w|set txtNachname %w|type txtGeburtsdatum %n|set txtGeburtsdatum %n|"
     "type txtAlter %n|set txtAlter %n|clear txtAlter|leave txtAlter|press txtGeburtsdatum|pick cboSymbol %i|wait 60|"
     "press chkVerstorben|set chkSucht 1|press chkIndexPerson|set txtSterbealter %w|set txtInstitution \" Amt#\"",
     "press cmdOK|press cmdOK|press cmdOK|press CancelButton|press cmdLöschen|"},
    {"mnuPLinie", "mnuPLiniebearbeiten", "frmPLinien",
     "press Option1|press Option2|press Option4|press Option5|type txtVerheiratet %n|set txtVerheiratet %w|wait 200|"
     "set txtNichtEhelich %n|set txtGetrennt %w|set txtGeschieden %w|press Check1|set txtGeschieden %n",
     "press Command1|press Command1|press Command2|"},
    {"mnuBezLinie", "mnuBLinieBearbeiten", "frmBezLinien",
     "press optNormal|press optEng|press optVerschmolzen|press optAbbruch|press optVerschm_Konflikthaft",
     "press Command1|press Command1|press Command1|press Command2|press Command3|"},
    {"mnuTextBox", "mnuTextbearbeiten", "frmKommentar",
     "type Text1 %w|type Text1 \\n|set Text1 x\\ny|set Text1 %w|clear Text1|set cboSchriftart %w|pick cboSchriftart %i|set cboFontSize %n|"
     "type cboFontSize %i|pick cboFontSize %i|press btnSchriftgr_e(0)|press btnSchriftgr_e(2)|press btnStyle(0)|"
     "press btnMid|press btnRight|press imgColor|press cmdEigenschaften",
     "press Command2|press Command2|press Command2|press Command3|"},
    {"", "mnuLegendeEinstellungen", "frmLegende", "press chkLegendeAnzeigen|press chkAlleSymbole|press optHoch|press optQuer",
     "press cmdOK|press cmdAbbrechen|"},
    {"", "mnuSchriftart", "frmSchrift",
     "wait 10|set cboSchriftart %w|set cboFontsize1 %n|set cboFontsize2 %n|pick cboFontsize3 %i|press cmdStandardWerte",
     "press cmdOK|press Command5|"},
    {"", "mnuAltersangabe", "frmSymbGlobal", "press optAltersanzeige(0)|press optAltersanzeige(1)|press optAltersanzeige(2)",
     "press cmdOK|press cmdAbbrechen|"},
    {"", "mnuSeiteEinrichten", "frmSeiteEinrichten", "pick cboPapierformat %i|press Option1|press Option2|press Check1",
     "press cmdOK|press cmdAbbrechen|"},
    {"", "mnuEinstellungen", "frmEinstellungen", "pick Combo1 %i", "press cmdOK|press cmdAbbrechen|"},
    {"", "mnuDrucken", "frmDrucken", "type txtCopies %n|press cmdDBBildUp|press cmdDBBildDown", "press cmdOK|press cmdAbbrechen|"},
};
constexpr std::string_view Texte = "Anna|Öz|_|#|a_b|\"zwei Worte\"|¶|\\b|ß=[;]|$7|\"\"|102";
constexpr std::string_view Zahlen = "12.03.1975|1976|31.02.2001|2999|0|45|9|121|1.1|\\b|12/3/75|1799|-3|28.2.04|\"\"|1e5";
constexpr size_t Elementformulare = 4;
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
    if (d.LegendeSichtbar) alle_.push_back({d.LegendeX + 0.2, d.LegendeY + 0.2});
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

/// One of the parts between "|".
std::string_view Zufallsnutzer::Eines(std::string_view liste) {
    for (auto weiter = Würfel(static_cast<size_t>(1 + std::count(liste.begin(), liste.end(), '|'))); weiter > 0;
         --weiter)
        Abgetrennt(liste, '|');
    return Abgetrennt(liste, '|');
}

std::string Zufallsnutzer::Eintrag(std::string_view menü) {
    std::vector<std::string_view> namen;
    for (const auto &zeile : Menütafel())
        if (BefehlFinden(zeile.Name) && GehörtZu(zeile.Name, menü)) namen.push_back(zeile.Name);
    return std::string(namen[zufall_() % namen.size()]);
}

/// The lines for that form, and for what it may open.
std::string Zufallsnutzer::Formularzeilen(std::string_view name) {
    std::string zeilen = "form " + std::string(name) + "\n";
    const auto *weg =
        std::find_if(std::begin(Formularwege), std::end(Formularwege), [&](auto &w) { return w.Name == name; });
    for (int i = Würfel(6); i > 0; --i) zeilen += Ausgefüllt(Eines(weg->Zeilen)) + "\n";
    const bool öffnet = zeilen.find("cmdEigenschaften") != zeilen.npos, fragt = zeilen.find("imgColor") != zeilen.npos;
    zeilen.append(Eines(weg->Enden)).append("\nend\n");
    return (fragt ? "answer colour 255\n" : "") + zeilen + (öffnet ? Formularzeilen("frmSchrift") : "");
}

std::string Zufallsnutzer::Eingesetzt(char platzhalter) {
    const auto text = [](double x, double y) {
        return ZahlSchreiben(Gerundet(x, 2)) + " " + ZahlSchreiben(Gerundet(y, 2));
    };
    const auto rahmen = [&](Ort a, Ort b, double rand) {
        return text(std::min(a.X, b.X) - rand, std::min(a.Y, b.Y) - rand) + " " +
               text(std::max(a.X, b.X) + rand, std::max(a.Y, b.Y) + rand);
    };
    const auto *hier = std::find_if(std::begin(Formularwege), std::end(Formularwege),
                                    [&](const auto &weg) { return weg.Menü == letzter_.Menü || weg.Menü.empty(); });
    switch (platzhalter) {
    case 'f': return Formularzeilen(hier->Name);
    case 'o': return std::string(hier->Eintrag);
    case 'd': {
        const auto &weg = Formularwege[Elementformulare + zufall_() % (std::size(Formularwege) - Elementformulare)];
        return Formularzeilen(weg.Name) + "menu " + std::string(weg.Eintrag);
    }
    case 'w': return std::string(Eines(Texte));
    case 'n': return std::string(Eines(Zahlen));
    case 'i': return std::to_string(Würfel(10));
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

std::string Zufallsnutzer::Ausgefüllt(std::string_view muster) {
    std::string text;
    for (size_t i = 0; i < muster.size(); ++i) {
        if (muster[i] != '%') text += muster[i];
        else if (muster[++i] != '(') text += Eingesetzt(muster[i]);
        else {
            const size_t name = i + 1;
            i = muster.find(')', name);
            text += Formularzeilen(muster.substr(name, i - name));
        }
    }
    return text;
}

std::vector<std::string> Zufallsnutzer::Nächstes(const Stand &stand) {
    constexpr size_t Voll = 60; // elements, arrows counted twice
    Umsehen(stand);
    std::string_view handlung = Anfang;
    const auto hat = [&](std::string_view wort) { return handlung.find(wort) != std::string_view::npos; };
    while (!neu_ && (handlung == Anfang || (genau_ && (hat("load") || hat("Ctrl+V") || hat("Ctrl+Z")))))
        handlung = Handlungen[zufall_() % std::size(Handlungen)];
    if (alle_.size() > Voll && (handlung.starts_with("tool") || hat("Ctrl+V"))) handlung = "drag %F|key Del";
    neu_ = false;
    std::vector<std::string> schritte;
    while (!handlung.empty()) schritte.push_back(Ausgefüllt(Abgetrennt(handlung, '|')));
    return schritte;
}

} // namespace kw
