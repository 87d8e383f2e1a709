#include "Zufallsnutzer.h"

#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

namespace kw {

namespace {

using Wer = std::vector<std::string>;

/// The form of a store's records, a letter a field (see `Passt`); a record may end at "|".
constexpr std::pair<Satzliste Dokument::*, std::string_view> Satzformen[] = {
    {&Dokument::cboPersonen, "Nczzzf*ff***nw|e"},
    {&Dokument::cboPartnerschaftsLinien, "NszzzzNNzzzzf*"},
    {&Dokument::cboKindlinien, "NkNzzzz"},
    {&Dokument::cboBeziehungsLinien, "ebzzzzNN"},
    {&Dokument::cboPfeile, "pzzzz"},
    {&Dokument::cboTextboxen, "zz**zfffk*|zz"},
};

bool IstNummer(std::string_view t) {
    return t.size() == 3 && t.find_first_not_of("0123456789") == std::string_view::npos;
}

bool Passt(char art, std::string_view t) {
    const auto unter = [&](std::string_view codes) { return t.size() == 1 && codes.find(t) != codes.npos; };
    switch (art) {
    case 'N': return IstNummer(t);
    case 'n': return t.empty() || IstNummer(t);
    case 'w': return t.empty() || ((t.starts_with("1E") || t.starts_with("2E")) && IstNummer(t.substr(2)));
    // As the program itself writes it, and no larger than this user makes it.
    case 'z': return ZahlSchreiben(ZahlLesen(t)) == t && std::abs(ZahlLesen(t)) < 100000;
    case 'e': return t.empty();
    case 'f': return t.empty() || unter("01");
    case 's': return t.empty() || unter("0123");
    case 'c': return unter("12345679") || t == "10" || t == "11" || t == "12";
    case 'k': return unter("012");
    case 'b': return unter("01234567");
    case 'p': return unter("12");
    default: return true;
    }
}

bool FormStimmt(std::string_view form, const std::string &satz) {
    const Felder f(satz);
    int i = 0;
    for (const char art : form) {
        if (art == '|' && f.Anzahl() == i) return true;
        if (art != '|' && !Passt(art, f.OderLeer(i++))) return false;
    }
    return f.Anzahl() == i;
}

bool KreisStimmt(const std::string &satz) {
    for (std::string_view rest = satz; !rest.empty();) {
        std::string_view y = Abgetrennt(rest, '_');
        if (rest.empty() && !satz.starts_with(std::string(y) + "_")) return false; // not closed
        const auto x = Abgetrennt(y, '^');
        if (!Passt('z', x) || !Passt('z', y)) return false;
    }
    return !satz.empty() && !satz.ends_with('_');
}

const std::string *Finden(const Satzliste &liste, std::string_view nr) {
    const auto satz = std::find_if(liste.begin(), liste.end(), [&](const auto &x) { return x.starts_with(nr); });
    return satz == liste.end() ? nullptr : &*satz;
}

/// Places are written with one or two decimals.
bool Nahe(std::string_view a, std::string_view b) { return std::abs(ZahlLesen(a) - ZahlLesen(b)) < 0.06; }

struct Sammler {
    const Stand &s;
    const Dokument &d = s.dokument;
    std::vector<Verstoß> Liste{};

    void Soll(bool gut, const char *art, Wer wer) {
        if (!gut) Liste.push_back({art, std::move(wer)});
    }
    void Nummern(const Satzliste &liste, const char *vorsatz) {
        std::map<std::string, int> zahl;
        for (const auto &satz : liste)
            if (++zahl[satz.substr(0, 3)] == 2) Soll(false, "double number", {vorsatz + satz.substr(0, 3)});
    }
    /// A line's end at a person; an empty `y` is any.
    void Ende(std::string_view nr, std::string_view x, std::string_view y, const char *art, const Wer &wer) {
        const auto *person = Finden(d.cboPersonen, nr);
        if (!person) return Soll(false, "line without person", wer);
        const Felder p(*person);
        Soll(Nahe(x, p[PersonFeld::PosX]) && (y.empty() || Nahe(y, p[PersonFeld::PosY])), art, wer);
    }
    void Person(const Felder &p) {
        const std::string nr(p[0]), eltern(p[PersonFeld::ElternLinie]), marke(p[PersonFeld::Zwilling]);
        const auto *linie = Finden(d.cboKindlinien, nr);
        const auto linien = std::count_if(d.cboKindlinien.begin(), d.cboKindlinien.end(),
                                          [&](const auto &satz) { return satz.starts_with(nr); });
        Soll(eltern.empty() || (linien == 1 && Felder(*linie)[KindFeld::PLinie] == eltern),
             "parents without child line", {"P" + nr, "L" + eltern});
        if (marke.empty()) return;
        const std::string anderer = marke.substr(2);
        const Wer wer{"P" + nr, "P" + anderer};
        const auto *satz = Finden(d.cboPersonen, anderer);
        if (!satz || anderer == nr) return Soll(false, "twin of one side", wer);
        const Felder z(*satz);
        Soll(z[PersonFeld::Zwilling] == marke.substr(0, 2) + nr, "twin of one side", wer);
        Soll(z[PersonFeld::ElternLinie] == eltern, "twins of different parents", wer);
        if (const auto *andere = Finden(d.cboKindlinien, anderer); andere && linie)
            Soll(Nahe(Felder(*linie)[KindFeld::LinieX], Felder(*andere)[KindFeld::LinieX]), "twins don't meet", wer);
    }
    void Partnerschaft(const Felder &l) {
        using namespace PLinieFeld;
        const std::string nr = "L" + std::string(l[Nr]), a(l[PersNr1]), b(l[PersNr2]);
        Soll(a != b && Nahe(l[BalkenY1], l[BalkenY2]), "no partnership", {nr, "P" + a});
        Ende(a, l[AnschlussX1], l[AnschlussY1], "end of leg", {nr, "P" + a});
        Ende(b, l[AnschlussX2], l[AnschlussY2], "end of leg", {nr, "P" + b});
        Ende(a, l[BalkenX1], {}, "end of bar", {nr, "P" + a});
        Ende(b, l[BalkenX2], {}, "end of bar", {nr, "P" + b});
    }
    void Kind(const Felder &k) {
        using namespace KindFeld;
        const Wer wer{"P" + std::string(k[KindNr]), "L" + std::string(k[PLinie])};
        Ende(k[KindNr], k[KindX], k[KindY], "end at child", wer);
        const auto *person = Finden(d.cboPersonen, k[KindNr]);
        Soll(person && Felder(*person)[PersonFeld::ElternLinie] == k[PLinie], "child line without parents", wer);
        const auto *eltern = Finden(d.cboPartnerschaftsLinien, k[PLinie]);
        if (!eltern) return Soll(false, "child line without line", wer);
        const Felder l(*eltern);
        const double a = ZahlLesen(l[PLinieFeld::BalkenX1]), b = ZahlLesen(l[PLinieFeld::BalkenX2]);
        const auto x = ZahlSchreiben(std::clamp(ZahlLesen(k[LinieX]), std::min(a, b), std::max(a, b)));
        Soll(Nahe(k[LinieX], x) && Nahe(k[LinieY], l[PLinieFeld::BalkenY2]), "child line off the bar", wer);
    }
    void Beziehung(const Felder &b) {
        using namespace BezFeld;
        const Wer wer{"P" + std::string(b[PersNr1]), "P" + std::string(b[PersNr2])};
        Soll(wer[0] != wer[1], "relationship to oneself", wer);
        Ende(b[PersNr1], b[LinieX1], b[LinieY1], "end of relationship", wer);
        Ende(b[PersNr2], b[LinieX2], b[LinieY2], "end of relationship", wer);
    }
    void Stelle(const char *was, const std::string &wert, int von, int bis) {
        const double zahl = ZahlLesen(wert);
        Soll(std::to_string(static_cast<int>(zahl)) == wert && zahl >= von && zahl <= bis, "out of range", {was, wert});
    }
    /// A list of what is selected: positions, or numbers, where the store has such.
    void Gewählt(const char *was, const Satzliste &auswahl, const Satzliste &speicher, int ab) {
        for (const auto &e : auswahl)
            if (!IstNummer(e)) Stelle(was, e, ab, speicher.Anzahl() - 1 + ab);
            else Soll(Finden(speicher, e), "out of range", {was, e});
    }
    void Auswahlen() {
        Gewählt("text", s.auswahl.lstMovedText, d.cboTextboxen, 0);
        Gewählt("circle", s.auswahl.lstMovedKreisLinien, d.cboFreehandlines, 1);
        Gewählt("arrow", s.auswahl.lstMovedPfeile, d.cboPfeile, 0);
        Gewählt("person", s.auswahl.lstMovedPers, d.cboPersonen, 1);
        Gewählt("line", s.auswahl.lstMovedPLines, d.cboPartnerschaftsLinien, 1);
    }
    void Lagen() {
        static const std::set<int> keine{2, 7, 21, 22, 23}; // 23 lasts within one command only
        Soll(s.lage.Aktion >= 0 && s.lage.Aktion <= 30 && !keine.contains(s.lage.Aktion), "unknown Aktion", {});
        Stelle("UndoSchritte", std::to_string(s.ring.UndoSchritte()), 0, UndoRing::UndoTiefe - 1);
        Stelle("RedoSchritte", std::to_string(s.ring.RedoSchritte()), 0, UndoRing::UndoTiefe - 1);
        const auto parken = [&](std::initializer_list<double> orte) {
            const auto geparkt = std::count(orte.begin(), orte.end(), Geparkt);
            const auto weit = std::count_if(orte.begin(), orte.end(), [](double ort) { return ort < Geparkt / 2; });
            Soll(weit == geparkt && (weit == 0 || weit == std::ssize(orte)), "half parked", {});
        };
        const Auflagen &a = s.auflagen;
        for (const auto &l : {a.Line1, a.Line2, a.Line5, a.MarkLine[0]}) parken({l.X1, l.Y1, l.X2, l.Y2});
        for (const auto &f : {a.shpMask, a.shpBox, a.shpPerson}) parken({f.Left, f.Top});
    }
};

/// Where two documents differ, " in STORE", but for what drawing and rewriting add to records; empty when nowhere.
std::string Unterschied(const Dokument &a, const Dokument &b) {
    for (const auto &zeile : SpeicherTabelle) {
        const auto gleich = [&](const std::string &x, const std::string &y) {
            if (zeile.Liste == &Dokument::cboFreehandlines) return x == y;
            const Felder f(x), g(y);
            for (int i = 0; i < zeile.Pflichtfelder; ++i)
                if (f.OderLeer(i) != g.OderLeer(i)) return false;
            return true;
        };
        const Satzliste &x = a.*zeile.Liste, &y = b.*zeile.Liste;
        if (!std::equal(x.begin(), x.end(), y.begin(), y.end(), gleich)) return " in " + std::string(zeile.Name);
    }
    return "";
}

/// A line that broke a rule, and the states before and behind it.
struct Schritt {
    const Stand &Alt, &Neu;
    const std::string &Zeile;
    const std::set<std::string> &Entschuldigt;

    /// A paste leaves the copies selected.
    bool Eingefügt(const std::string &wer) const;
};

/// A circle line or a person just placed waits for its snapshot until the next click.
bool InDerHand(const Stand &stand) {
    return stand.lage.Aktion == AktionKreisGewählt || stand.lage.Aktion == AktionPersonSetzen;
}

/// Whether the list has the number of `wer` as an entry.
bool Enthält(const Satzliste &liste, const std::string &wer) {
    return std::find(liste.begin(), liste.end(), wer.substr(1)) != liste.end();
}

/// The field of a person, empty for nobody.
std::string FeldVon(const Dokument &d, const std::string &wer, int feld) {
    const auto *satz = Finden(d.cboPersonen, wer.substr(1));
    return satz ? std::string(Felder(*satz)[feld]) : "";
}

bool Schritt::Eingefügt(const std::string &wer) const {
    return Neu.dokument.cboPersonen.Anzahl() > Alt.dokument.cboPersonen.Anzahl() &&
           Enthält(wer[0] == 'P' ? Neu.auswahl.lstMovedPers : Neu.auswahl.lstMovedPLines, wer);
}

/// A rule that the program breaks by its own rules: the kinds of faults, all when none is named, and when it does.
struct Macke {
    std::string_view Name, Arten;
    bool (*Gilt)(const Schritt &, const Verstoß &);
};
const Macke Macken[] = {
    {"numbers are counted where too few free ones are listed, by a paste from the last record's", "double number",
     [](const Schritt &s, const Verstoß &v) { // a couple takes two
         const bool person = v.Wer[0][0] == 'P';
         const Dokument &d = s.Alt.dokument;
         const Satzliste &alte = person ? d.cboPersonen : d.cboPartnerschaftsLinien;
         const int frei = (person ? d.lstGelöschtePersNr : d.lstGelöschtePLinien).Anzahl();
         const int kopien = (person ? s.Neu.ablage.ZA_Personen : s.Neu.ablage.ZA_PLines).Anzahl();
         const auto gezählt = [&](int ab, int viele) {
             const int nr = std::stoi(v.Wer[0].substr(1)) - ab;
             return nr >= 1 && nr <= viele;
         };
         return (frei < (person ? 2 : 1) && gezählt(alte.Anzahl(), person ? 2 : 1)) ||
                (s.Eingefügt(v.Wer[0]) && gezählt(alte.Leer() ? 0 : std::stoi(alte.Letzter()), kopien));
     }},
    {"a copy has the faults of what was copied", "",
     [](const Schritt &s, const Verstoß &v) {
         return std::any_of(v.Wer.begin(), v.Wer.end(), [&](const auto &wer) { return s.Eingefügt(wer); }) &&
                std::any_of(s.Entschuldigt.begin(), s.Entschuldigt.end(),
                            [&](const auto &text) { return text.starts_with(v.Art); });
     }},
    {"cmdDelete takes lines but does not free their children", "parents without child line",
     [](const Schritt &s, const Verstoß &v) {
         return s.Zeile == "press cmdDelete" && Enthält(s.Alt.auswahl.lstMovedPLines, v.Wer[1]);
     }},
    {"a group's bar moves without the partner outside the group", "end of bar",
     [](const Schritt &s, const Verstoß &v) {
         return s.Alt.lage.Aktion == AktionGruppeGewählt && Enthält(s.Alt.auswahl.lstMovedPLines, v.Wer[0]) &&
                !Enthält(s.Alt.auswahl.lstMovedPers, v.Wer[1]);
     }},
    {"copied twins have no parents, and get them one by one", "twins of different parents, twins don't meet",
     [](const Schritt &s, const Verstoß &) { return s.Alt.lage.Aktion == AktionKindZiehen; }},
    {"a line that goes clears the marks of its own children only", "twin of one side",
     [](const Schritt &s, const Verstoß &v) {
         return FeldVon(s.Alt.dokument, v.Wer[0], PersonFeld::ElternLinie) !=
                FeldVon(s.Alt.dokument, v.Wer[1], PersonFeld::ElternLinie);
     }},
};

} // namespace

std::string Verstoß::Text() const {
    std::string text = Art + ":";
    for (const auto &wer : Wer) text += " " + wer;
    return text;
}

std::vector<Verstoß> Verstöße(const Stand &stand) {
    Sammler sammler{stand};
    const Dokument &d = stand.dokument;
    for (const auto &[speicher, form] : Satzformen)
        for (const auto &satz : d.*speicher) sammler.Soll(FormStimmt(form, satz), "form", {satz});
    for (const auto &satz : d.cboFreehandlines) sammler.Soll(KreisStimmt(satz), "form", {satz});
    if (!sammler.Liste.empty()) return sammler.Liste;
    sammler.Nummern(d.cboPersonen, "P");
    sammler.Nummern(d.cboPartnerschaftsLinien, "L");
    for (const auto &satz : d.cboPersonen) sammler.Person(Felder(satz));
    for (const auto &satz : d.cboPartnerschaftsLinien) sammler.Partnerschaft(Felder(satz));
    for (const auto &satz : d.cboKindlinien) sammler.Kind(Felder(satz));
    for (const auto &satz : d.cboBeziehungsLinien) sammler.Beziehung(Felder(satz));
    sammler.Auswahlen();
    sammler.Lagen();
    return sammler.Liste;
}

/// What the user doesn't confirm, or is refused by a warning, changes nothing. Only a relationship line that was drawn
/// a moment ago goes with its form.
void Prüfung::BeiFormularenZusehen() {
    Programm &p = wiedergabe_.Läuft();
    const auto übriges = [&p] {
        const UndoRing &ring = p.haupt.ring;
        std::ifstream datei(p.haupt.start.IniDatei);
        return std::tuple(ring.UndoPos(), ring.UndoSchritte(), ring.RedoSchritte(),
                          std::string(std::istreambuf_iterator(datei), {}));
    };
    auto &spielen = p.benutzer.FormularSpielen;
    spielen = [=, this, &p, vorige = spielen](Formular &form, const std::vector<std::string> &zeilen) {
        Dokument vorher = p.haupt.dokument;
        if (form.Name() == "frmBezLinien" && p.haupt.lage.Aktion == AktionBeziehungZiehen)
            vorher.cboBeziehungsLinien.Entfernen(p.haupt.lage.BezAuswahl);
        const auto sonst = übriges();
        vorige(form, zeilen);
        const auto sieht = [&](const char *name) { return form.Finden(name) && form.Finden(name)->Visible; };
        const std::string ende = zeilen.empty() ? "" : zeilen.back();
        const bool weg = ende == "press cmdLöschen" || (ende == "press Command3" && form.Name() == "frmBezLinien");
        const bool bestätigt = ende == "press " + form.Vorgabeknopf && !sieht("shpFalsch") && !sieht("shpFalsch2");
        if (bestätigt || weg) return;
        std::string falsch = Unterschied(vorher, p.haupt.dokument);
        if (sonst != übriges()) falsch += " in undo ring or settings file";
        if (!falsch.empty()) verworfen_.push_back({"dismissed form changes something" + falsch, {form.Name()}});
    };
}

/// A number that two records share excuses whatever else is wrong with it, for the rest of the document's life.
std::string Prüfung::Zeile(const std::string &zeile) {
    const bool loslassen = zeile.starts_with("up"); // only where the pointer is, as every face does
    if (loslassen && (wiedergabe_.Läuft().Taste == TasteKeine || zeile_ != "move" + zeile.substr(2))) return "";
    vorige_ = std::exchange(zeile_, zeile);
    verworfen_.clear();
    aus_.str({});
    std::istringstream zeilen(zeile);
    if (wiedergabe_.Ausführen(zeilen) == 2) return "script " + aus_.str();
    Programm &p = wiedergabe_.Läuft();
    p.benutzer.Formulare.clear();
    p.benutzer.Antworten.clear();
    p.benutzer.Menüwahlen.clear();
    if (zeile.starts_with("start")) {
        BeiFormularenZusehen();
        entschuldigt_.clear();
    }
    const frmMain &h = p.haupt;
    alt_ = std::exchange(Jetzt, {h.dokument, h.lage, h.auflagen, h.auswahl, h.ablage, h.ring});
    auto verstöße = Verstöße(Jetzt);
    for (const auto &mehr : {verworfen_, Übergang()}) verstöße.insert(verstöße.end(), mehr.begin(), mehr.end());
    const Schritt schritt{alt_, Jetzt, zeile_, entschuldigt_};
    for (const auto &v : verstöße) {
        if (entschuldigt_.contains(v.Text())) continue;
        const auto doppelt = [&](const auto &wer) { return entschuldigt_.contains("double number: " + wer); };
        const auto *macke = std::find_if(std::begin(Macken), std::end(Macken), [&](const Macke &m) {
            return (m.Arten.empty() || m.Arten.find(v.Art) != std::string_view::npos) && m.Gilt(schritt, v);
        });
        const bool folgt = std::any_of(v.Wer.begin(), v.Wer.end(), doppelt);
        if (macke == std::end(Macken) && !folgt) return v.Text();
        ++Entschuldigt[macke == std::end(Macken) ? "follows from a double number" : std::string(macke->Name)];
        entschuldigt_.insert(v.Text());
    }
    return "";
}

/// What is wrong with how the document came from the state before.
std::vector<Verstoß> Prüfung::Übergang() {
    const int vorher = alt_.ring.UndoPos(), platz = Jetzt.ring.UndoPos();
    const bool lädt = zeile_.starts_with("load") || zeile_.starts_with("start");
    std::string falsch;
    if (zeile_.starts_with("load") && vorige_ == "save" + zeile_.substr(4))
        falsch = Unterschied(alt_.dokument, Jetzt.dokument);
    if (!falsch.empty()) return {{"loading does not give back" + falsch, {}}};
    if (zeile_ == "key Ctrl+Z" || zeile_ == "key Ctrl+Y") {
        const int ziel = (vorher + (zeile_ == "key Ctrl+Z" ? UndoRing::UndoTiefe - 2 : 0)) % UndoRing::UndoTiefe + 1;
        if (platz != ziel) plätze_ = {{platz, Jetzt.dokument}}; // no step left, or it ended a gesture first
        falsch = Unterschied(plätze_.try_emplace(platz, Jetzt.dokument).first->second, Jetzt.dokument);
        if (!falsch.empty()) return {{"undo does not give back" + falsch, {}}};
        return {};
    }
    for (int p = vorher; p != platz; p = p % UndoRing::UndoTiefe + 1) plätze_.erase(p % UndoRing::UndoTiefe + 1);
    if (zeile_.find("press cmdLöschen") != std::string::npos) return {}; // deletes behind its snapshot
    if (platz != vorher || lädt) plätze_[platz] = Jetzt.dokument;
    else if (!zeile_.starts_with("store") && !InDerHand(alt_) && !InDerHand(Jetzt))
        falsch = Unterschied(alt_.dokument, Jetzt.dokument);
    if (!falsch.empty()) return {{"change without snapshot" + falsch, {}}};
    return {};
}

} // namespace kw
