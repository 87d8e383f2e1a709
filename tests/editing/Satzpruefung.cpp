#include "Zufallsnutzer.h"

#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>

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
    {&Dokument::cboTextboxen, "zz*zzfffk*|zz"},
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
    // As the program itself writes it, and no farther away than this user goes.
    case 'z': return ZahlSchreiben(ZahlLesen(t)) == t && std::abs(ZahlLesen(t)) < 1000;
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
    /// A single position counts only while `Aktion` says that it is selected.
    void Auswahlen() {
        Gewählt("text", s.auswahl.lstMovedText, d.cboTextboxen, 0);
        Gewählt("circle", s.auswahl.lstMovedKreisLinien, d.cboFreehandlines, 1);
        Gewählt("arrow", s.auswahl.lstMovedPfeile, d.cboPfeile, 0);
        Gewählt("person", s.auswahl.lstMovedPers, d.cboPersonen, 1);
        Gewählt("line", s.auswahl.lstMovedPLines, d.cboPartnerschaftsLinien, 1);
        const auto einzeln = [&](const char *was, int wert, const Satzliste &speicher, int ab, std::set<int> aktionen) {
            if (aktionen.contains(s.lage.Aktion)) Stelle(was, std::to_string(wert), ab, speicher.Anzahl() - 1 + ab);
        };
        einzeln("PersAuswahl", s.lage.PersAuswahl, d.cboPersonen, 1, {3, 12, 13, 15});
        einzeln("BezAuswahl", s.lage.BezAuswahl, d.cboBeziehungsLinien, 0, {4});
        einzeln("PLinieAuswahl", s.lage.PLinieAuswahl, d.cboPartnerschaftsLinien, 0, {5, 8});
        einzeln("KindAuswahl", s.lage.KindAuswahl, d.cboKindlinien, 0, {6});
        einzeln("TextAuswahl", s.lage.TextAuswahl, d.cboTextboxen, 0, {10, 11, 20});
        einzeln("KreisAuswahl", s.lage.KreisAuswahl, d.cboFreehandlines, 1, {19});
        einzeln("PfeilAuswahl", s.lage.PfeilAuswahl, d.cboPfeile, 0, {26, 27, 28, 29});
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

    bool OhneSicherung() const { return Alt.ring.UndoPos() == Neu.ring.UndoPos(); }
};

/// Whether the list has the number of `wer` as an entry.
bool Enthält(const Satzliste &liste, const std::string &wer) {
    return std::find(liste.begin(), liste.end(), wer.substr(1)) != liste.end();
}

/// The field of a person, empty for nobody.
std::string FeldVon(const Dokument &d, const std::string &wer, int feld) {
    const auto *satz = Finden(d.cboPersonen, wer.substr(1));
    return satz ? std::string(Felder(*satz)[feld]) : "";
}

/// Counted numbers begin behind `ab`; as many as that are given in one line.
bool Gezählt(const Verstoß &v, int ab, int viele) {
    const int zähler = std::stoi(v.Wer[0].substr(1)) - ab;
    return zähler >= 1 && zähler <= viele;
}

/// A rule that the program breaks by its own rules: the kinds of faults, and when it does.
struct Macke {
    std::string_view Name, Arten;
    bool (*Gilt)(const Schritt &, const Verstoß &);
};
const Macke Macken[] = {
    {"numbers are counted where too few free ones are listed", "double number",
     [](const Schritt &s, const Verstoß &v) { // a couple takes two
         const Dokument &d = s.Alt.dokument;
         if (v.Wer[0][0] == 'L')
             return d.lstGelöschtePLinien.Leer() && Gezählt(v, d.cboPartnerschaftsLinien.Anzahl(), 1);
         return d.lstGelöschtePersNr.Anzahl() < 2 && Gezählt(v, d.cboPersonen.Anzahl(), 2);
     }},
    {"a paste counts on from the last record's number", "double number",
     [](const Schritt &s, const Verstoß &v) {
         const bool person = v.Wer[0][0] == 'P';
         const Satzliste &alte = person ? s.Alt.dokument.cboPersonen : s.Alt.dokument.cboPartnerschaftsLinien;
         const Satzliste &neue = person ? s.Neu.ablage.ZA_Personen : s.Neu.ablage.ZA_PLines;
         return Enthält(person ? s.Neu.auswahl.lstMovedPers : s.Neu.auswahl.lstMovedPLines, v.Wer[0]) &&
                Gezählt(v, alte.Leer() ? 0 : std::stoi(alte.Letzter()), neue.Anzahl());
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
    {"a circle line in hand waits for its snapshot", "change without snapshot in cboFreehandlines",
     [](const Schritt &s, const Verstoß &) { return s.Neu.lage.Aktion == AktionKreisGewählt; }},
    {"a person just placed waits for its snapshot", "change without snapshot in cboPersonen",
     [](const Schritt &s, const Verstoß &) { return s.Neu.lage.Aktion == AktionPersonSetzen; }},
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

bool Prüfung::AntwortOffen() {
    const auto &benutzer = wiedergabe_.Läuft().benutzer;
    return !benutzer.Antworten.empty() || !benutzer.Menüwahlen.empty();
}

/// A number that two records share excuses whatever else is wrong with it, for the rest of the document's life.
std::string Prüfung::Zeile(const std::string &zeile) {
    const bool loslassen = zeile.starts_with("up"); // only where the pointer is, as every face does
    if (loslassen && (wiedergabe_.Läuft().Taste == TasteKeine || zeile_ != "move" + zeile.substr(2))) return "";
    vorige_ = std::exchange(zeile_, zeile);
    wiedergabe_.Zeile(zeile);
    aus_.str({});
    const frmMain &h = wiedergabe_.Läuft().haupt;
    alt_ = std::exchange(Jetzt, {h.dokument, h.lage, h.auflagen, h.auswahl, h.ablage, h.ring});
    if (zeile.starts_with("start")) entschuldigt_.clear();
    EntschuldigungenEinfügen();
    auto verstöße = Verstöße(Jetzt);
    for (auto &v : Übergang()) verstöße.push_back(std::move(v));
    const Schritt schritt{alt_, Jetzt, zeile_};
    for (const auto &v : verstöße) {
        if (entschuldigt_.contains(v.Text())) continue;
        const auto doppelt = [&](const auto &wer) { return entschuldigt_.contains("double number: " + wer); };
        const auto *macke = std::find_if(std::begin(Macken), std::end(Macken), [&](const Macke &m) {
            return m.Arten.find(v.Art) != std::string_view::npos && m.Gilt(schritt, v);
        });
        const bool folgt = std::any_of(v.Wer.begin(), v.Wer.end(), doppelt);
        if (macke == std::end(Macken) && !folgt) return v.Text();
        ++Entschuldigt[macke == std::end(Macken) ? "follows from a double number" : std::string(macke->Name)];
        if (!v.Wer.empty()) entschuldigt_.insert(v.Text());
    }
    const bool offen = Jetzt.lage.Aktion == AktionKreisGewählt || Jetzt.lage.Aktion == AktionPersonSetzen;
    if (!offen || !schritt.OhneSicherung()) bekannt_ = Jetzt.dokument;
    return "";
}

/// What is excused in a record that was copied is so in the copy, too, under its new number.
void Prüfung::EntschuldigungenEinfügen() {
    if (Jetzt.dokument.cboPersonen.Anzahl() <= alt_.dokument.cboPersonen.Anzahl()) return;
    for (const auto &[art, liste] :
         {std::pair(" P", &Zwischenablage::ZA_Personen), {" L", &Zwischenablage::ZA_PLines}}) {
        const Satzliste &alte = alt_.ablage.*liste, &neue = Jetzt.ablage.*liste;
        for (int i = 0; alte.Anzahl() == neue.Anzahl() && i < alte.Anzahl(); ++i)
            for (std::string text : std::set(entschuldigt_))
                if (const auto stelle = text.find(art + alte.Satz(i).substr(0, 3)); stelle != std::string::npos)
                    entschuldigt_.insert(text.replace(stelle, 5, art + neue.Satz(i).substr(0, 3)));
    }
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
    if (platz != vorher || lädt) plätze_[platz] = Jetzt.dokument;
    else falsch = zeile_.starts_with("store") ? "" : Unterschied(bekannt_, Jetzt.dokument);
    if (!falsch.empty()) return {{"change without snapshot" + falsch, {}}};
    return {};
}

} // namespace kw
