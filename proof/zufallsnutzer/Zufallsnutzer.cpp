#include "Zufallsnutzer.h"

#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "document/saetze/Pfeil.h"
#include "document/saetze/Textbox.h"

#include "app/Befehle.h"
#include "app/Datenimport.h"
#include "app/Formulare.h"
#include "commands/Menuetafel.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

/// What the user does, steps parted by "|". %p a person, %b the bar of a couple, %e an empty place, %x any place,
/// %= the same place again, %m an entry of the menu of what stands at a place, %z one of the twins' menu, %t a tool,
/// %F a frame round one element or two, %C one round a couple, %T, %B and %f what he does in the form of a text, a
/// relationship, what stood at the last place, %o the entry that opens the last one, %d a form and the menu that opens
/// it, %c any command, %A an answer, %s and %S a start, %k a project file, %n a name that is too long, %a what he does
/// when he is offered kept versions, %K a key, %V one that leads or moves somewhere. What happens more often stands
/// here twice.
// clang-format off
constexpr std::string_view Anfang =
    "profil muster.txt\nW\tK\t1;Eva;Öz;W;1.1.90;J;N;J;N;\t\nW\tK\t2;Jo_;;M;;N;J;N;J;\t\nend\nprofil zufall.xyz\nW\tINFO"
    "\ttitle\tFall_1\nW\tOBJECT\t1\tÖz_Eva_f_1980_1_0_1_$\nend\n%s|store cboTextboxen \"3_15_Arial_11_0_0_0_0_0_A B\"|"
    "pick cboRaster 1|store cboTextboxen 12_16.5_Arial_8_255_1_0_0_2_zwei#Zeilen|save zufall.kwp|load zufall.kwp";
constexpr std::string_view Handlungen[] = {
    "tool %t|click %e", "tool 1|click %e|tool 3|click %e", "tool 11|click %e|tool 11|click %e", "drag %F", "key Ctrl+V",
    "click %p|tool 12|move %p|%Bclick %=|click %p|tool 13|move %p|click %=|click %p|tool 14|move %b|click %=", "%d",
    "click %p|tool 14|move %b|click %=|click %p|tool 14|move %b|click %=|click %p|tool 12|move %p|%Bclick %=", "%d",
    "click %p|tool 13|move %p|click %=", "tool 1|click %e|click %=|tool 14|move %b|click %=", "drag %F|drag %= %e",
    "drag %C|popup %z\ntool zwillinge", "drag %F|popup mnuTwinsEineiig\nrclick %=", "drag %F|drag %= %e|drag %= %e",
    "drag %F|popup mnuTwinszweiiig\nrclick %=", "drag %F|press cmdDelete", "%Apress mnuAnordnen", "drag %F|%Apress mnuAnordnen4", "drag %F|press mnuSymbolGrößer", "click %x",
    "drag %F|key Ctrl+C|key Ctrl+V", "drag %F|key Ctrl+X|key Ctrl+V", "popup %m\nrclick %=", "drag %x %e", "drag %p %e",
    "popup %m\nrclick %=|rclick %=", "drag %b %e", "drag %x %x", "click %x|drag %= %e", "click %x|key Del", "key Del",
    "key Ctrl+C", "key Ctrl+X", "key Ctrl+Z|key Ctrl+Z|key Ctrl+Y|key Ctrl+Y", "tool 9|drag %e %e", "wheel up", "%A%c",
    "tool 15|drag %e %e", "wheel down", "down left %x|move %x|move %x", "down right %x|move %x|up %=", "move %x|up %=",
    "move %x|key Del|move %x|up %=", "save zufall.kwp|load zufall.kwp", "pick cboRaster 2", "tool 10|%Tclick %e",
    "click %x|%fdblclick %=\nwait 100", "click %x|%fdblclick %=\nwait 100", "click %x|%fpopup %o\nrclick %=", "%c|%A%c",
    "%fdblclick %=\nwait 100|%fwait 100", "%A%A%A%c|%c", "drop 0 %e", "%A%A%Apress mnuNeu", "%A%Apress mnuBeenden|%s",
    "%A%A%Apress mnuÖffnen", "%Apress mnuRecent(1)", "%Apress mnuRecent(2)", "%A%Apress mnuSichernUnter", "drop 1 %e",
    "press btnAuswahlZuBild|%A%Adrag %e %e", "press btnClipboard|%Adrag %x %e", "%A%Apress mnuExportieren", "hover %t",
    "press btnClipboard|down left %x|move %x|%c|move %x|up %=", "press btnClipboard|%A%c|%Adrag %x %e",
    "key %K|key %K|key Space|key %K", "key %K|key Space|key %K|key Space", "key %K|key Alt+%V\nkey Alt+%V\nkey Enter",
    "key %K|key Alt+%V\nkey Alt+%V\nkey Escape", "key Space|key Alt+%V\nkey Alt+%V\nwait 1000", "key %K|key Enter",
    "tool %t|key %V|key Enter|key Shift+%V|key Enter", "tool %t|key %V|key %K|key Enter", "key Home|key %K|key Space",
    "key Tab|key Space|tool 13|key %K|key Enter", "key Tab|key Space|tool 14|key %K|key Enter", "key %K|popup %m\nkey Menu",
    "key Ctrl+A|key Alt+%V\nkey Alt+%V\nkey Enter", "down left %x|move %x|key %K|move %x|up %=", "key %K|key %K|key Del",
};
constexpr std::string_view Tasten[] = {"Tab", "Shift+Tab", "Up", "Down", "Left", "Right", "Ctrl+Up", "Ctrl+Down",
    "Ctrl+Left", "Ctrl+Right", "Shift+Up", "Shift+Down", "Shift+Left", "Shift+Right", "Home", "End", "Ctrl+A", "Escape",
    "Escape", "F2", "Shift+F10", "PageUp", "Shift+PageDown", "Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+J", "F1", "F6",
    "Ctrl+F a", "Ctrl+F öz"};
constexpr std::string_view Wege[] = {"Up", "Down", "Left", "Right", "PageUp", "PageDown", "Home", "End"};
/// Of a user who is out of luck.
constexpr std::string_view Störungen[] = {
    "crash\n%S|%await 100", "crash\n%S cmd=%k|%await 100|%Await 100", "down left %x|move %x|crash\n%S|%await 100",
    "crash\n%s", "%S|%await 100", "%A%A%apress mnuFassungen", "key Ctrl+S", "answer yes\nkey Ctrl+S",
    "answer no\nanswer file %k\nkey Ctrl+S", "%Akey Ctrl+S", "answer file fehlt/1.kwp\npress mnuSichernUnter",
    "answer file %n\npress mnuSichernUnter", "answer file %k/1.kwp\npress mnuSichernUnter",
    "disk folder ordner.kwp|answer file ordner.kwp\npress mnuSichernUnter", "disk remove %k|%Akey Ctrl+S", "disk copy %k %k",
    "disk cut %k 0|answer yes\nkey Ctrl+S", "disk cut %k 30", "disk cut %k 75", "disk remove %k", "disk copy %k %k",
    "disk folder 3|answer file 3/1.kwp\npress mnuSichernUnter|%c|disk remove 3|key Ctrl+S",
    "answer yes\nanswer file fehlt/1.kwp\nanswer ok\npress mnuNeu", "disk copy %k %k|%A%Apress mnuSichernUnter",
    "answer yes\nanswer file %n\nanswer ok\npress mnuBeenden", "profil %k\nW\tINFO\ttitle\t%t\nend|%Akey Ctrl+S",
    "profil %k\nW\tINFO\ttitle\t%t\nend|answer yes\nkey Ctrl+S", "profil %k\nW\tINFO\ttitle\t%t\nend",
};
constexpr std::string_view Starts[] = {" cmd=\"/dataimport zufall\"\nwait 200", " cmd=zufall.kwp\nwait 200",
    " printers=\"Laser;Microsoft Print to PDF\" margins=0.4,0.5,1,0"};
constexpr std::string_view Worte[] = {"yes", "no", "cancel", "file cancel", "file 1.kwp", "file 2.kwp", "file 1.bmp",
    "file fehlt/1.kwp", "file 1.ged"};
constexpr std::string_view Projekte[] = {"1.kwp", "2.kwp", "zufall.kwp", "3/1.kwp"};
constexpr std::string_view Gruppen[] = {Menüleiste, "mnuDatei", Werkzeugband, Palette, Fensterteile};

/// What opens forms: an entry of the menu of such a place, or of the menu bar.
struct Tür {
    std::string_view Menü, Eintrag, Form;
};
constexpr Tür Türen[] = {
    {"mnuPerson", "mnuSymbolBearbeiten", "frmSymbol"}, {"mnuPLinie", "mnuPLiniebearbeiten", "frmPLinien"},
    {"mnuBezLinie", "mnuBLinieBearbeiten", "frmBezLinien"}, {"mnuTextBox", "mnuTextbearbeiten", "frmKommentar"},
    {"", "mnuLegendeEinstellungen", "frmLegende"}, {"", "mnuSchriftart", "frmSchrift"},
    {"", "mnuDrucken", "frmDrucken"}, {"", "mnuAltersangabe", "frmSymbGlobal"},
    {"", "mnuSeiteEinrichten", "frmSeiteEinrichten"}, {"", "mnuEinstellungen", "frmEinstellungen"},
    {"", "mnuStammbaumExport", "frmStammbaumExport"},
};
constexpr size_t OrtsTüren = 4;
constexpr std::string_view Texte[] = {
    "Anna", "Öz", "_", "#", "a_b", "\"zwei Worte\"", "¶", "\\b", "ß=[;]", "$7", "\"\"", "12.03.1975", "1976",
    "31.02.2001", "2999", "0", "45", "9", "121", "1.1", "12/3/75", "1799", "-3", "28.2.04", "1e5",
};
// clang-format on

std::string ZuLangerName() {
    std::string name;
    for (int i = 0; i < 60; ++i) name += "lang-";
    return name + ".kwp";
}

} // namespace

template <typename Satz>
void Zufallsnutzer::Merken(std::vector<Ort> &orte, const Satzliste &speicher, std::string_view menü,
                           std::pair<double, double> (*ort)(const Satz &)) {
    for (const auto &satz : speicher) try {
            const auto [x, y] = ort(Satz(satz));
            orte.push_back({x, y, menü});
        } catch (const FeldFehlt &) {
            continue; // of a damaged file: it can't be seen
        }
}

void Zufallsnutzer::Umsehen() {
    const Dokument &d = innen_->dokument;
    for (auto *orte : {&personen_, &balken_, &alle_}) orte->clear();
    // Half way between the ends of a line it can be hit.
    Merken<PersonSatz>(personen_, d.cboPersonen, "mnuPerson", [](auto &p) { return std::pair(p.PosX(), p.PosY()); });
    Merken<PartnerschaftSatz>(balken_, d.cboPartnerschaftsLinien, "mnuPLinie", [](auto &l) {
        return std::pair((l.BalkenX1() + l.BalkenX2()) / 2, (l.BalkenY1() + l.BalkenY2()) / 2);
    });
    Merken<KindSatz>(alle_, d.cboKindlinien, "mnuKindLinie",
                     [](auto &l) { return std::pair((l.KindX() + l.LinieX()) / 2, (l.KindY() + l.LinieY()) / 2); });
    Merken<BeziehungSatz>(alle_, d.cboBeziehungsLinien, "mnuBezLinie", [](auto &l) {
        return std::pair((l.LinieX1() + l.LinieX2()) / 2, (l.LinieY1() + l.LinieY2()) / 2);
    });
    Merken<PfeilSatz>(alle_, d.cboPfeile, "mnuPfeil1",
                      [](auto &p) { return std::pair((p.X1() + p.X2()) / 2, (p.Y1() + p.Y2()) / 2); });
    Merken<PfeilSatz>(alle_, d.cboPfeile, "mnuPfeil1", [](auto &p) { return std::pair(p.X2(), p.Y2()); });
    Merken<TextSatz>(alle_, d.cboTextboxen, "mnuTextBox", [](auto &t) { return std::pair(t.TextX(), t.TextY()); });
    for (const std::string_view satz : d.cboFreehandlines)
        alle_.push_back({ZahlLesen(satz), ZahlLesen(satz.substr(satz.find('^') + 1)) + 0.05, "mnuKreislinie"});
    for (const auto *orte : {&personen_, &balken_}) alle_.insert(alle_.end(), orte->begin(), orte->end());
    if (d.LegendeSichtbar) alle_.push_back({d.LegendeX + 0.2, d.LegendeY + 0.2});
    if (innen_->lage.Aktion == Aktion::GruppeGewählt)
        alle_.push_back({innen_->auflagen.shpBox.Left + 0.2, innen_->auflagen.shpBox.Top + 0.2, "mnuAuswahlBox"});
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

/// Lines for that form, whatever controls it has; without a last button it is left by its close box.
std::string Zufallsnutzer::Formularzeilen(std::string_view name) {
    Dialogumgebung umgebung = innen_->FürFormulare();
    const auto form = FormularErzeugen(name, umgebung);
    std::string zeilen = "answer colour 255\nform " + std::string(name) + (Würfel(3) ? "\nwait 200\n" : "\n"), danach;
    bool offen = true;
    for (int i = Würfel(25), mit = Würfel(3) ? 0 : 1; offen && i >= mit; --i) {
        const auto &wer = i ? form->Reihenfolge()[zufall_() % form->Reihenfolge().size()] : form->Vorgabeknopf;
        const Art art = (*form)[wer].Kind;
        const bool kombiniert = art == Art::Kombination, text = art == Art::Textfeld || art == Art::Textblock;
        const std::string ende = art == Art::Textblock ? "\\n" : Würfel(4) ? "" : "\nleave " + wer;
        if (art == Art::Beschriftung) continue;
        if (art == Art::Liste || (kombiniert && Würfel(2))) zeilen += "pick " + wer + " " + std::to_string(Würfel(10));
        else if ((text || kombiniert) && Würfel(6))
            zeilen +=
                (Würfel(2) ? "type " : "set ") + wer + " " + std::string(Texte[zufall_() % std::size(Texte)]) + ende;
        else zeilen += "press " + wer;
        offen = wer != form->Vorgabeknopf && wer != form->Abbruchknopf && (*form)[wer].Caption != "Delete";
        zeilen += "\n";
        if (wer == "cmdEigenschaften") danach += Formularzeilen("frmSchrift");
    }
    return zeilen + "end\n" + danach;
}

/// He opens, keeps or deletes one of those that are offered, or closes the form.
std::string Zufallsnutzer::Angebotszeilen() {
    constexpr std::array Taten{"press cmdÖffnen\n", "press cmdÖffnen\n", "press cmdBehalten\n", "press cmdLöschen\n",
                               ""};
    std::string zeilen = "form frmFassungen\n";
    if (Würfel(2)) zeilen += "pick lstFassungen " + std::to_string(Würfel(4)) + "\n";
    return zeilen + Taten[zufall_() % Taten.size()] + "end\n";
}

std::string Zufallsnutzer::Start(std::string_view worte) const {
    std::string zeile = "start";
    if (!netz_.empty()) zeile.append(" state=").append(netz_);
    return zeile.append(worte);
}

std::string Zufallsnutzer::Eingesetzt(char platzhalter) {
    const auto text = [](double x, double y) {
        return ZahlSchreiben(Gerundet(x, 2)) + " " + ZahlSchreiben(Gerundet(y, 2));
    };
    const auto rahmen = [&](Ort a, Ort b, double rand) {
        return text(std::min(a.X, b.X) - rand, std::min(a.Y, b.Y) - rand) + " " +
               text(std::max(a.X, b.X) + rand, std::max(a.Y, b.Y) + rand);
    };
    const auto *hier = std::find_if(std::begin(Türen), std::end(Türen),
                                    [&](const Tür &tür) { return tür.Menü == letzter_.Menü || tür.Menü.empty(); });
    switch (platzhalter) {
    case 'f': return Formularzeilen(hier->Form);
    case 'o': return std::string(hier->Eintrag);
    case 'T': return Formularzeilen("frmKommentar");
    case 'B': return Formularzeilen("frmBezLinien");
    case 'd': {
        const Tür &tür = Türen[OrtsTüren + zufall_() % (std::size(Türen) - OrtsTüren)];
        return Formularzeilen(tür.Form) + "press " + std::string(tür.Eintrag);
    }
    case 'm': return Eintrag(Wählen(alle_).Menü);
    case 'z': return Eintrag("mnuZwillinge");
    case 'K': return std::string(Tasten[zufall_() % std::size(Tasten)]);
    case 'V': return std::string(Wege[zufall_() % std::size(Wege)]);
    case 't': return std::to_string(1 + Würfel(20));
    case 's': return Start(Starts[zufall_() % std::size(Starts)]);
    case 'S': return Start("");
    case 'k': return std::string(Projekte[zufall_() % std::size(Projekte)]);
    case 'n': return ZuLangerName();
    case 'a': return Würfel(6) ? Angebotszeilen() : "";
    case 'A': return "answer " + std::string(Worte[zufall_() % std::size(Worte)]) + "\n";
    case 'c': return "press " + Eintrag(Gruppen[zufall_() % std::size(Gruppen)]);
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

std::string_view Zufallsnutzer::Handlung(const Einblick &innen) {
    constexpr size_t Selten = 10;
    if (std::exchange(neu_, false)) return Anfang;
    while (true) {
        const bool gestört = !netz_.empty() && Würfel(Selten) == 0;
        const std::string_view handlung =
            gestört ? Störungen[zufall_() % std::size(Störungen)] : Handlungen[zufall_() % std::size(Handlungen)];
        const auto hat = [&](std::string_view wort) { return handlung.find(wort) != std::string_view::npos; };
        if (alle_.size() > 60 && (handlung.starts_with("tool") || hat("Ctrl+V"))) return "drag %F|key Del";
        const bool ohneZiel = hat("drop") && innen.import.Listenzeilen.empty();
        const bool ungenau = hat("load") || hat("Ctrl+V") || hat("Ctrl+Z") || hat("ffnen") || hat("Recent");
        if (!ohneZiel && !(genau_ && ungenau)) return handlung;
    }
}

std::vector<std::string> Zufallsnutzer::Nächstes(const Einblick &innen) {
    innen_ = &innen;
    Umsehen();
    const std::string_view handlung = Handlung(innen);
    std::vector<std::string> schritte(1);
    for (size_t i = 0; i < handlung.size(); ++i) {
        if (handlung[i] == '|') schritte.emplace_back();
        else if (handlung[i] == '%') schritte.back() += Eingesetzt(handlung[++i]);
        else schritte.back() += handlung[i];
    }
    return schritte;
}

} // namespace kw
