#include "Satzpruefung.h"

#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

using Wer = std::vector<std::string>;

/// The form of a store's records, a letter a field; what stands behind "|" may be absent.
constexpr std::pair<Satzliste Dokument::*, std::string_view> Satzformen[] = {
    {&Dokument::cboPersonen, "Nczzzf*ff***nw|e"},
    {&Dokument::cboPartnerschaftsLinien, "NszzzzNNzzzzf*"},
    {&Dokument::cboKindlinien, "NkNzzzz"},
    {&Dokument::cboBeziehungsLinien, "ebzzzzNN"},
    {&Dokument::cboPfeile, "pzzzz"},
    {&Dokument::cboTextboxen, "zz*zzfffk*|zz"},
};

bool Dreistellig(std::string_view t) {
    return t.size() == 3 && t.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Written as the program writes numbers, and not beyond what this user can reach.
bool IstZahl(std::string_view t) { return ZahlSchreiben(ZahlLesen(t)) == t && std::abs(ZahlLesen(t)) < 1000; }

bool Passt(char art, std::string_view t) {
    const auto unter = [&](std::string_view codes) { return t.size() == 1 && codes.find(t) != codes.npos; };
    switch (art) {
    case 'N': return Dreistellig(t);
    case 'n': return t.empty() || Dreistellig(t);
    case 'w': return t.empty() || ((t.starts_with("1E") || t.starts_with("2E")) && Dreistellig(t.substr(2)));
    case 'z': return IstZahl(t);
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
    std::string_view rest = satz;
    while (!rest.empty()) {
        std::string_view y = Abgetrennt(rest, '_');
        if (rest.empty() && !std::string_view(satz).starts_with(y)) return false; // not closed
        const auto x = Abgetrennt(y, '^');
        if (!IstZahl(x) || !IstZahl(y)) return false;
    }
    return !satz.empty() && !satz.ends_with('_');
}

bool Nahe(double a, double b) { return std::abs(a - b) < 0.06; } // places are written with one or two decimals
bool Nahe(std::string_view a, std::string_view b) { return Nahe(ZahlLesen(a), ZahlLesen(b)); }

/// Collects what a state breaks.
struct Sammler {
    const Stand &s;
    const Dokument &d = s.dokument;
    std::vector<Verstoß> Liste{};

    void Soll(bool gut, const char *art, Wer wer) {
        if (!gut) Liste.push_back({art, std::move(wer)});
    }
    void Formen() {
        for (const auto &[speicher, form] : Satzformen)
            for (const auto &satz : d.*speicher) Soll(FormStimmt(form, satz), "Form", {satz});
        for (const auto &satz : d.cboFreehandlines) Soll(KreisStimmt(satz), "Form", {satz});
    }
    void Nummern(const Satzliste &liste, const char *vorsatz) {
        std::map<std::string, int> zahl;
        for (const auto &satz : liste)
            if (++zahl[satz.substr(0, 3)] == 2) Soll(false, "double number", {vorsatz + satz.substr(0, 3)});
    }
    /// The end of a line at a person: (x, y) is where the person stands.
    void Ende(std::string_view nr, std::string_view x, std::string_view y, const char *art, const Wer &wer) {
        const auto *person = SatzFinden(d.cboPersonen, nr);
        Soll(person, "line without person", wer);
        if (!person) return;
        const Felder p(*person);
        Soll(Nahe(x, p[PersonFeld::PosX]) && (y.empty() || Nahe(y, p[PersonFeld::PosY])), art, wer);
    }
    void Personen() {
        for (const auto &satz : d.cboPersonen) {
            const Felder p(satz);
            const std::string nr(p[0]), eltern(p[PersonFeld::ElternLinie]), marke(p[PersonFeld::Zwilling]);
            const auto eigene = std::count_if(d.cboKindlinien.begin(), d.cboKindlinien.end(),
                                              [&](const auto &k) { return k.starts_with(nr); });
            const auto *kind = SatzFinden(d.cboKindlinien, nr);
            if (!eltern.empty())
                Soll(eigene == 1 && Felder(*kind)[KindFeld::PLinie] == eltern, "parents without child line",
                     {"P" + nr, "L" + eltern});
            if (marke.empty()) continue;
            const std::string anderer = marke.substr(2);
            const Wer wer{"P" + nr, "P" + anderer};
            const auto *zwilling = SatzFinden(d.cboPersonen, anderer);
            Soll(zwilling && anderer != nr, "twin is nobody", wer);
            if (!zwilling) continue;
            const Felder z(*zwilling);
            Soll(z[PersonFeld::Zwilling] == marke.substr(0, 2) + nr, "twin of one side", wer);
            Soll(z[PersonFeld::ElternLinie] == eltern, "twins of different parents", wer);
            const auto *linie = SatzFinden(d.cboKindlinien, anderer);
            if (kind && linie)
                Soll(Nahe(Felder(*kind)[KindFeld::LinieX], Felder(*linie)[KindFeld::LinieX]), "twins don't meet", wer);
        }
    }
    void Partnerschaften() {
        using namespace PLinieFeld;
        for (const auto &satz : d.cboPartnerschaftsLinien) {
            const Felder l(satz);
            const std::string nr = "L" + std::string(l[Nr]), a(l[PersNr1]), b(l[PersNr2]);
            Soll(a != b, "line to itself", {nr, "P" + a});
            Soll(Nahe(l[BalkenY1], l[BalkenY2]), "sloping bar", {nr});
            Ende(a, l[AnschlussX1], l[AnschlussY1], "end of leg", {nr, "P" + a});
            Ende(b, l[AnschlussX2], l[AnschlussY2], "end of leg", {nr, "P" + b});
            Ende(a, l[BalkenX1], {}, "end of bar", {nr, "P" + a});
            Ende(b, l[BalkenX2], {}, "end of bar", {nr, "P" + b});
        }
    }
    void Kinder() {
        using namespace KindFeld;
        for (const auto &satz : d.cboKindlinien) {
            const Felder k(satz);
            const Wer wer{"P" + std::string(k[KindNr]), "L" + std::string(k[PLinie])};
            Ende(k[KindNr], k[KindX], k[KindY], "end at child", wer);
            if (const auto *person = SatzFinden(d.cboPersonen, k[KindNr]))
                Soll(Felder(*person)[PersonFeld::ElternLinie] == k[PLinie], "child line without parents", wer);
            const auto *eltern = SatzFinden(d.cboPartnerschaftsLinien, k[PLinie]);
            Soll(eltern, "child line without line", wer);
            if (!eltern) continue;
            const Felder l(*eltern);
            const double a = ZahlLesen(l[PLinieFeld::BalkenX1]), b = ZahlLesen(l[PLinieFeld::BalkenX2]);
            const double x = ZahlLesen(k[LinieX]);
            Soll(Nahe(k[LinieY], l[PLinieFeld::BalkenY2]) && Nahe(std::clamp(x, std::min(a, b), std::max(a, b)), x),
                 "child line off the bar", wer);
        }
    }
    void Beziehungen() {
        using namespace BezFeld;
        std::map<Wer, int> zahl;
        for (const auto &satz : d.cboBeziehungsLinien) {
            const Felder b(satz);
            const Wer wer{"P" + std::string(b[PersNr1]), "P" + std::string(b[PersNr2])};
            Soll(wer[0] != wer[1] && ++zahl[wer] <= 2, "line too many", wer); // identical twins have two
            Ende(b[PersNr1], b[LinieX1], b[LinieY1], "end of relationship", wer);
            Ende(b[PersNr2], b[LinieX2], b[LinieY2], "end of relationship", wer);
        }
    }
    void Stelle(const char *was, const std::string &wert, int von, int bis) {
        const double zahl = ZahlLesen(wert);
        Soll(std::to_string(static_cast<int>(zahl)) == wert && zahl >= von && zahl <= bis, "out of range", {was, wert});
    }
    /// What is selected: the lists always, a single position while `Aktion` says that it is the one.
    void Auswahlen() {
        const int aktion = s.lage.Aktion;
        const auto liste = [&](const char *was, const Satzliste &stellen, const Satzliste &speicher, int ab) {
            for (const auto &e : stellen) Stelle(was, e, ab, speicher.Anzahl() - 1 + ab);
        };
        const auto nummern = [&](const char *was, const Satzliste &auswahl, const Satzliste &speicher) {
            for (const auto &e : auswahl) Soll(SatzFinden(speicher, e), "selected is nobody", {was, e});
        };
        const auto einzeln = [&](const char *was, int wert, const Satzliste &speicher, int ab, std::set<int> aktionen) {
            if (aktionen.contains(aktion)) Stelle(was, std::to_string(wert), ab, speicher.Anzahl() - 1 + ab);
        };
        liste("text", s.auswahl.lstMovedText, d.cboTextboxen, 0);
        liste("circle", s.auswahl.lstMovedKreisLinien, d.cboFreehandlines, 1);
        liste("arrow", s.auswahl.lstMovedPfeile, d.cboPfeile, 0);
        const Satzliste &personen = s.auswahl.lstMovedPers;
        if (!personen.Leer() && !Dreistellig(personen.Satz(0)))
            liste("person", personen, d.cboPersonen, 1); // in a link
        else nummern("person", personen, d.cboPersonen);
        const Satzliste &linien = s.auswahl.lstMovedPLines;
        if (!linien.Leer() && !Dreistellig(linien.Satz(0))) liste("line", linien, d.cboPartnerschaftsLinien, 1); // a click
        else nummern("line", linien, d.cboPartnerschaftsLinien);
        einzeln("PersAuswahl", s.lage.PersAuswahl, d.cboPersonen, 1, {3, 12, 13, 15});
        einzeln("BezAuswahl", s.lage.BezAuswahl, d.cboBeziehungsLinien, 0, {4});
        einzeln("PLinieAuswahl", s.lage.PLinieAuswahl, d.cboPartnerschaftsLinien, 0, {5, 8});
        einzeln("KindAuswahl", s.lage.KindAuswahl, d.cboKindlinien, 0, {6});
        einzeln("TextAuswahl", s.lage.TextAuswahl, d.cboTextboxen, 0, {10, 11, 20});
        einzeln("KreisAuswahl", s.lage.KreisAuswahl, d.cboFreehandlines, 1, {19});
        einzeln("PfeilAuswahl", s.lage.PfeilAuswahl, d.cboPfeile, 0, {26, 27, 28, 29});
    }
    void Lagen() {
        static const std::set<int> unbekannt{2, 7, 21, 22, 23}; // 23 holds inside a single command only
        Stelle("Aktion", std::to_string(s.lage.Aktion), 0, 30);
        Soll(!unbekannt.contains(s.lage.Aktion), "unknown Aktion", {std::to_string(s.lage.Aktion)});
        Stelle("UndoSchritte", std::to_string(s.ring.UndoSchritte()), 0, UndoRing::UndoTiefe - 1);
        Stelle("RedoSchritte", std::to_string(s.ring.RedoSchritte()), 0, UndoRing::UndoTiefe - 1);
        Stelle("UndoPos", std::to_string(s.ring.UndoPos()), 1, UndoRing::UndoTiefe);
        const auto parken = [&](const char *was, std::initializer_list<double> orte) {
            const auto weit = std::count_if(orte.begin(), orte.end(), [](double ort) { return ort < -500; });
            const auto geparkt = std::count(orte.begin(), orte.end(), Geparkt);
            Soll(weit == geparkt && (weit == 0 || weit == std::ssize(orte)), "half parked", {was});
        };
        const Auflagen &a = s.auflagen;
        for (const auto &l : {a.Line1, a.Line2, a.Line5, a.MarkLine[0], a.MarkLine[4]})
            parken("a line", {l.X1, l.Y1, l.X2, l.Y2});
        for (const auto &f : {a.shpMask, a.shpBox, a.shpPerson}) parken("a shape", {f.Left, f.Top});
    }
};

/// Whether two documents are the same but for what drawing and rewriting add to records: if not, the store's name.
std::string Unterschied(const Dokument &a, const Dokument &b) {
    const auto form = [](const SpeicherZeile &zeile, const std::string &satz) {
        if (zeile.Liste == &Dokument::cboFreehandlines) return satz;
        const Felder f(satz);
        std::string text;
        for (int i = 0; i < zeile.Pflichtfelder; ++i) text.append(f.OderLeer(i)) += '_';
        return text;
    };
    for (const auto &zeile : SpeicherTabelle) {
        const auto &x = a.*zeile.Liste, &y = b.*zeile.Liste;
        if (!std::equal(x.begin(), x.end(), y.begin(), y.end(),
                        [&](const auto &m, const auto &n) { return form(zeile, m) == form(zeile, n); }))
            return " in " + std::string(zeile.Name);
    }
    return "";
}

/// A line that broke a rule.
struct Schritt {
    const Stand &Alt, &Neu;
    std::string_view Zeile;

    bool Einfügen() const { return Zeile == "key Ctrl+V" || Zeile.starts_with("rclick"); } // by key or menu
};

/// Whether the selection has the number of `wer`.
bool Enthält(const Satzliste &auswahl, const std::string &wer) {
    return std::find(auswahl.begin(), auswahl.end(), wer.substr(1)) != auswahl.end();
}

/// The stores and free numbers that a number is from.
struct Nummernkreis {
    const Satzliste &Speicher, &Frei, &Kopien;
    int Nr;
};
Nummernkreis KreisVon(const Stand &s, const std::string &wer) {
    const Dokument &d = s.dokument;
    const int nr = std::stoi(wer.substr(1));
    if (wer[0] == 'P') return {d.cboPersonen, d.lstGelöschtePersNr, s.ablage.ZA_Personen, nr};
    return {d.cboPartnerschaftsLinien, d.lstGelöschtePLinien, s.ablage.ZA_PLines, nr};
}

/// A rule that the program breaks by its own rules: which kinds of faults, and when that holds.
struct Macke {
    std::string_view Name;
    std::string_view Arten;
    bool (*Gilt)(const Schritt &, const Verstoß &);
};
const Macke Macken[] = {
    {"cmdDelete takes lines but does not free their children", "parents without child line",
     [](const Schritt &s, const Verstoß &v) {
         return s.Zeile == "press cmdDelete" && Enthält(s.Alt.auswahl.lstMovedPLines, v.Wer[1]);
     }},
    {"numbers are counted where no free one is listed", "double number",
     [](const Schritt &s, const Verstoß &v) {
         const Nummernkreis kreis = KreisVon(s.Alt, v.Wer[0]);
         const int zähler = kreis.Nr - kreis.Speicher.Anzahl();
         return kreis.Frei.Anzahl() < 2 && (zähler == 1 || zähler == 2); // a couple takes two
     }},
    {"a paste counts on from the last record's number", "double number",
     [](const Schritt &s, const Verstoß &v) {
         const Nummernkreis kreis = KreisVon(s.Alt, v.Wer[0]);
         const int letzte = kreis.Speicher.Leer() ? 0 : std::stoi(kreis.Speicher.Letzter());
         return s.Einfügen() && kreis.Nr > letzte && kreis.Nr <= letzte + kreis.Kopien.Anzahl();
     }},
    {"a circle line's drag waits for the release with its snapshot", "change without snapshot in cboFreehandlines",
     [](const Schritt &s, const Verstoß &) { return s.Neu.lage.Aktion == AktionKreisGewählt; }},
    {"a placed person waits for the release with its snapshot", "change without snapshot in cboPersonen",
     [](const Schritt &s, const Verstoß &) { return s.Neu.lage.Aktion == AktionPersonSetzen; }},
    {"what is released where it was pressed snaps to the raster without a snapshot",
     "change without snapshot",
     [](const Schritt &s, const Verstoß &v) {
         const std::pair<int, const char *> stellen[] = {
             {AktionPersonGewählt, "cboPersonen"}, {AktionTextGewählt, "cboTextboxen"}, {AktionPfeilEnde2, "cboPfeile"}};
         return std::any_of(std::begin(stellen), std::end(stellen), [&](const auto &stelle) {
             return s.Neu.lage.Aktion == stelle.first && v.Art.ends_with(stelle.second);
         });
     }},
    {"a person that snapped so leaves its lines behind", "end of leg, end of bar, end at child, end of relationship",
     [](const Schritt &s, const Verstoß &) {
         return s.Neu.lage.Aktion == AktionPersonGewählt && s.Alt.ring.UndoPos() == s.Neu.ring.UndoPos();
     }},
    {"copied twins have no parents until each is linked alone", "twins of different parents, twins don't meet",
     [](const Schritt &s, const Verstoß &) { return s.Alt.lage.Aktion == AktionKindZiehen; }},
    {"a group's bar moves without the partner outside the group", "end of bar",
     [](const Schritt &s, const Verstoß &v) {
         return s.Alt.lage.Aktion == AktionGruppeGewählt && Enthält(s.Alt.auswahl.lstMovedPLines, v.Wer[0]) &&
                !Enthält(s.Alt.auswahl.lstMovedPers, v.Wer[1]);
     }},
};

} // namespace

const std::string *SatzFinden(const Satzliste &liste, std::string_view nr) {
    const auto satz = std::find_if(liste.begin(), liste.end(), [&](const auto &x) { return x.starts_with(nr); });
    return satz == liste.end() ? nullptr : &*satz;
}

std::string Verstoß::Text() const {
    std::string text = Art + ":";
    for (const auto &wer : Wer) text += " " + wer;
    return text;
}

bool Prüfung::AntwortOffen() {
    const auto &benutzer = wiedergabe_.Läuft().benutzer;
    return !benutzer.Antworten.empty() || !benutzer.Menüwahlen.empty();
}

std::string Prüfung::Zeile(const std::string &zeile) {
    if (zeile.starts_with("up") && wiedergabe_.Läuft().Taste == TasteKeine) return ""; // no face sends that
    vorige_ = std::exchange(zeile_, zeile);
    aus_.str({});
    wiedergabe_.Zeile(zeile);
    const frmMain &h = wiedergabe_.Läuft().haupt;
    alt_ = std::exchange(neu_, {h.dokument, h.lage, h.auflagen, h.auswahl, h.ablage, h.ring});
    if (zeile.starts_with("start")) entschuldigt_.clear();
    Sammler sammler{neu_};
    sammler.Formen();
    if (!sammler.Liste.empty()) return sammler.Liste[0].Text(); // the rest counts on the form
    sammler.Nummern(neu_.dokument.cboPersonen, "P");
    sammler.Nummern(neu_.dokument.cboPartnerschaftsLinien, "L");
    sammler.Personen();
    sammler.Partnerschaften();
    sammler.Kinder();
    sammler.Beziehungen();
    sammler.Auswahlen();
    sammler.Lagen();
    const auto übergang = Übergang();
    sammler.Liste.insert(sammler.Liste.end(), übergang.begin(), übergang.end());
    std::string fehler = Beurteilt(sammler.Liste);
    const bool offen = neu_.lage.Aktion == AktionKreisGewählt || neu_.lage.Aktion == AktionPersonSetzen;
    if (!offen || neu_.ring.UndoPos() != alt_.ring.UndoPos()) bekannt_ = neu_.dokument;
    return fehler;
}

/// A number that two records share excuses whatever else is wrong with it, for the rest of the document's life.
std::string Prüfung::Beurteilt(const std::vector<Verstoß> &verstöße) {
    const Schritt schritt{alt_, neu_, zeile_};
    EntschuldigungenEinfügen();
    for (const auto &v : verstöße) {
        if (entschuldigt_.contains(v.Text())) continue;
        const auto *macke = std::find_if(std::begin(Macken), std::end(Macken), [&](const Macke &m) {
            const bool gemeint = m.Arten.find(v.Art) != std::string_view::npos || v.Art.starts_with(m.Arten);
            return gemeint && m.Gilt(schritt, v);
        });
        const bool folgt =
            std::any_of(v.Wer.begin(), v.Wer.end(), [&](const auto &w) { return entschuldigt_.contains("double number: " + w); });
        if (macke == std::end(Macken) && !folgt) return v.Text();
        ++gezählt_[macke == std::end(Macken) ? "follows from a double number" : std::string(macke->Name)];
        if (!v.Wer.empty()) entschuldigt_.insert(v.Text());
    }
    return "";
}

/// What is excused in a record that was copied is so in the copy, too, under its new number.
void Prüfung::EntschuldigungenEinfügen() {
    if (neu_.dokument.cboPersonen.Anzahl() <= alt_.dokument.cboPersonen.Anzahl()) return;
    for (const auto &[vorsatz, liste] : {std::pair(" P", &Zwischenablage::ZA_Personen), {" L", &Zwischenablage::ZA_PLines}}) {
        const Satzliste &alte = alt_.ablage.*liste, &neue = neu_.ablage.*liste;
        for (int i = 0; alte.Anzahl() == neue.Anzahl() && i < alte.Anzahl(); ++i)
            for (std::string text : std::set(entschuldigt_))
                if (const auto stelle = text.find(vorsatz + alte.Satz(i).substr(0, 3)); stelle != std::string::npos)
                    entschuldigt_.insert(text.replace(stelle, 5, vorsatz + neue.Satz(i).substr(0, 3)));
    }
}

std::vector<Verstoß> Prüfung::Übergang() {
    const std::string anders = Unterschied(alt_.dokument, neu_.dokument);
    const bool lädt = zeile_.starts_with("load");
    const int platz = neu_.ring.UndoPos();
    if (lädt && vorige_ == "save" + zeile_.substr(4) && !anders.empty())
        return {{"loading does not give back" + anders, {}}};
    if (neu_.ring.RedoSchritte() != alt_.ring.RedoSchritte() && platz != alt_.ring.UndoPos() && plätze_.contains(platz) &&
        (zeile_ == "key Ctrl+Z" || zeile_ == "key Ctrl+Y")) {
        const std::string falsch = Unterschied(plätze_[platz], neu_.dokument);
        return falsch.empty() ? std::vector<Verstoß>() : std::vector<Verstoß>{{"undo does not give back" + falsch, {}}};
    }
    for (int p = alt_.ring.UndoPos(); p != platz; p = p % UndoRing::UndoTiefe + 1) // a line may take several
        if (p != alt_.ring.UndoPos()) plätze_.erase(p);
    if (platz != alt_.ring.UndoPos() || lädt || zeile_.starts_with("start")) plätze_[platz] = neu_.dokument;
    else if (const auto neues = Unterschied(bekannt_, neu_.dokument); !neues.empty() && !zeile_.starts_with("store"))
        return {{"change without snapshot" + neues, {}}};
    return {};
}

} // namespace kw
