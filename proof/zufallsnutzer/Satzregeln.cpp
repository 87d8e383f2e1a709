#include "Satzregeln.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace kw {

namespace {

using Wer = std::vector<std::string>;

/// The form of a store's records, a letter a field (see `Passt`); a record may end at "|". Points of circle lines have
/// a form of their own.
constexpr std::pair<Satzliste Dokument::*, std::string_view> Satzformen[] = {
    {&Dokument::cboPersonen, "Nczzz1*11***nw|e"},
    {&Dokument::cboPartnerschaftsLinien, "N3zzzzNNzzzz1*"},
    {&Dokument::cboKindlinien, "N2Nzzzz"},
    {&Dokument::cboBeziehungsLinien, "e7zzzzNN"},
    {&Dokument::cboPfeile, "2zzzz"},
    {&Dokument::cboTextboxen, "zz**z1112*|zz"},
};

bool IstNummer(std::string_view t) {
    return t.size() == 3 && t.find_first_not_of("0123456789") == std::string_view::npos;
}

bool Passt(char art, std::string_view t) {
    const double zahl = ZahlLesen(t);
    switch (art) {
    case '*': return true;
    case 'e': return t.empty();
    case 'N': return IstNummer(t);
    case 'n': return t.empty() || IstNummer(t);
    case 'w': return t.empty() || ((t.starts_with("1E") || t.starts_with("2E")) && IstNummer(t.substr(2)));
    case 'c': return ZahlSchreiben(zahl) == t && zahl >= 1 && zahl <= 12 && zahl != 8;
    // As the program itself writes it, and no larger than this user makes it.
    case 'z': return ZahlSchreiben(zahl) == t && std::abs(zahl) < 1e9;
    default: return t.empty() || (t.size() == 1 && t[0] >= '0' && t[0] <= art); // a code, empty for 0
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

const std::string *Finden(const Satzliste &liste, std::string_view nr) {
    const auto satz = std::find_if(liste.begin(), liste.end(), [&](const auto &x) { return x.starts_with(nr); });
    return satz == liste.end() ? nullptr : &*satz;
}

/// Places are written with one or two decimals.
bool Nahe(double a, double b) { return std::abs(a - b) < 0.06; }

std::string P(std::string_view nr) { return "P" + std::string(nr); }
std::string L(std::string_view nr) { return "L" + std::string(nr); }

/// Gathers what breaks the rule that is looked at.
struct Befund {
    const Stand &s;
    const Dokument &d = s.dokument;
    std::string_view Regel = "form";
    std::vector<Verstoß> Liste{};

    void Soll(bool gut, Wer wer) {
        if (!gut) Liste.push_back({std::string(Regel), std::move(wer)});
    }
    void EinmalJeNummer(const Satzliste &liste, const char *vorsatz) {
        std::set<std::string> da;
        for (const auto &satz : liste) Soll(da.insert(satz.substr(0, 3)).second, {vorsatz + satz.substr(0, 3)});
    }
    void GibtEs(std::string_view person, Wer wer) { Soll(Finden(d.cboPersonen, person), std::move(wer)); }
    /// A line's end is at that person, if there is one; without `y` it is anywhere above or below.
    void EndetBei(std::string_view nr, double x, std::optional<double> y, Wer wer) {
        const auto *person = Finden(d.cboPersonen, nr);
        if (!person) return;
        const PersonSatz p(*person);
        Soll(Nahe(x, p.PosX()) && (!y || Nahe(*y, p.PosY())), std::move(wer));
    }
    /// A list of what is selected: positions from `ab` on, or numbers, where the store has such.
    void Gewählt(const Satzliste &auswahl, const Satzliste &speicher, int ab) {
        for (const auto &e : auswahl)
            Soll(IstNummer(e) ? Finden(speicher, e) != nullptr
                              : ZahlLesen(e) >= ab && ZahlLesen(e) < speicher.Anzahl() + ab,
                 {e});
    }
};

// clang-format off
/// What holds for a state, and for each record of a kind.
struct Standregel {
    std::string_view Name;
    void (*Prüfen)(Befund &);
};
template <typename Sicht> struct Satzregel {
    std::string_view Name;
    void (*Prüfen)(Befund &, const Sicht &);
};

constexpr Standregel Standregeln[] = {
    {"double number", [](Befund &b) {
         b.EinmalJeNummer(b.d.cboPersonen, "P");
         b.EinmalJeNummer(b.d.cboPartnerschaftsLinien, "L"); }},
    {"two child lines", [](Befund &b) { b.EinmalJeNummer(b.d.cboKindlinien, "P"); }},
    {"selected what isn't there", [](Befund &b) {
         b.Gewählt(b.s.auswahl.lstMovedText, b.d.cboTextboxen, 0);
         b.Gewählt(b.s.auswahl.lstMovedKreisLinien, b.d.cboFreehandlines, 1);
         b.Gewählt(b.s.auswahl.lstMovedPfeile, b.d.cboPfeile, 0);
         b.Gewählt(b.s.auswahl.lstMovedPers, b.d.cboPersonen, 1);
         b.Gewählt(b.s.auswahl.lstMovedPLines, b.d.cboPartnerschaftsLinien, 1); }},
    {"unknown Aktion", [](Befund &b) {
         const Aktion a = b.s.lage.Aktion;
         b.Soll(a >= Aktion::Nichts && a <= Aktion::LegendeGefasst && a != Aktion::ElternPrüfen, {}); }},
};

/// The record of a person's twin; nothing when the mark leads to nobody or to the person itself.
const std::string *Zwilling(const Befund &b, const PersonSatz &p) {
    return p.Zwilling().empty() || p.ZwillingNr() == p.Nr() ? nullptr : Finden(b.d.cboPersonen, p.ZwillingNr());
}
Wer Paar(const PersonSatz &p) { return {P(p.Nr()), P(p.ZwillingNr())}; }

constexpr Satzregel<PersonSatz> Personenregeln[] = {
    {"parents without child line", [](Befund &b, const PersonSatz &p) {
         const auto *linie = Finden(b.d.cboKindlinien, p.Nr());
         b.Soll(p.ElternLinie().empty() || (linie && KindSatz(*linie).PLinie() == p.ElternLinie()),
                {P(p.Nr()), L(p.ElternLinie())}); }},
    {"twin of one side", [](Befund &b, const PersonSatz &p) {
         if (p.Zwilling().empty()) return;
         const auto *anderer = Zwilling(b, p);
         const std::string zurück = std::string(p.Zwilling().substr(0, 2)) + std::string(p.Nr());
         b.Soll(anderer && PersonSatz(*anderer).Zwilling() == zurück, Paar(p)); }},
    {"twins of different parents", [](Befund &b, const PersonSatz &p) {
         const auto *anderer = Zwilling(b, p);
         b.Soll(!anderer || PersonSatz(*anderer).ElternLinie() == p.ElternLinie(), Paar(p)); }},
};

Wer ErsterPartner(const PartnerschaftSatz &l) { return {L(l.Nr()), P(l.PersNr1())}; }
Wer ZweiterPartner(const PartnerschaftSatz &l) { return {L(l.Nr()), P(l.PersNr2())}; }

constexpr Satzregel<PartnerschaftSatz> Linienregeln[] = {
    {"line without person", [](Befund &b, const PartnerschaftSatz &l) {
         b.GibtEs(l.PersNr1(), ErsterPartner(l));
         b.GibtEs(l.PersNr2(), ZweiterPartner(l)); }},
    {"no partnership", [](Befund &b, const PartnerschaftSatz &l) {
         b.Soll(l.PersNr1() != l.PersNr2() && Nahe(l.BalkenY1(), l.BalkenY2()), ErsterPartner(l)); }},
    {"end of leg", [](Befund &b, const PartnerschaftSatz &l) {
         b.EndetBei(l.PersNr1(), l.AnschlussX1(), l.AnschlussY1(), ErsterPartner(l));
         b.EndetBei(l.PersNr2(), l.AnschlussX2(), l.AnschlussY2(), ZweiterPartner(l)); }},
    {"end of bar", [](Befund &b, const PartnerschaftSatz &l) {
         b.EndetBei(l.PersNr1(), l.BalkenX1(), {}, ErsterPartner(l));
         b.EndetBei(l.PersNr2(), l.BalkenX2(), {}, ZweiterPartner(l)); }},
};

Wer KindUndLinie(const KindSatz &k) { return {P(k.KindNr()), L(k.PLinie())}; }

constexpr Satzregel<KindSatz> Kindregeln[] = {
    {"line without person", [](Befund &b, const KindSatz &k) { b.GibtEs(k.KindNr(), KindUndLinie(k)); }},
    {"end at child", [](Befund &b, const KindSatz &k) {
         b.EndetBei(k.KindNr(), k.KindX(), k.KindY(), KindUndLinie(k)); }},
    {"child line without parents", [](Befund &b, const KindSatz &k) {
         const auto *person = Finden(b.d.cboPersonen, k.KindNr());
         b.Soll(person && PersonSatz(*person).ElternLinie() == k.PLinie(), KindUndLinie(k)); }},
    {"child line without line", [](Befund &b, const KindSatz &k) {
         b.Soll(Finden(b.d.cboPartnerschaftsLinien, k.PLinie()), KindUndLinie(k)); }},
    {"child line off the bar", [](Befund &b, const KindSatz &k) {
         const auto *linie = Finden(b.d.cboPartnerschaftsLinien, k.PLinie());
         if (!linie) return;
         const PartnerschaftSatz l(*linie);
         const auto [links, rechts] = std::minmax({l.BalkenX1(), l.BalkenX2()});
         b.Soll(Nahe(k.LinieX(), std::clamp(k.LinieX(), links, rechts)) && Nahe(k.LinieY(), l.BalkenY2()),
                KindUndLinie(k)); }},
};

Wer Beide(const BeziehungSatz &l) { return {P(l.PersNr1()), P(l.PersNr2())}; }

constexpr Satzregel<BeziehungSatz> Beziehungsregeln[] = {
    {"line without person", [](Befund &b, const BeziehungSatz &l) {
         b.GibtEs(l.PersNr1(), Beide(l));
         b.GibtEs(l.PersNr2(), Beide(l)); }},
    {"relationship to oneself",
     [](Befund &b, const BeziehungSatz &l) { b.Soll(l.PersNr1() != l.PersNr2(), Beide(l)); }},
    {"end of relationship", [](Befund &b, const BeziehungSatz &l) {
         b.EndetBei(l.PersNr1(), l.LinieX1(), l.LinieY1(), Beide(l));
         b.EndetBei(l.PersNr2(), l.LinieX2(), l.LinieY2(), Beide(l)); }},
};
// clang-format on

template <typename Sicht, size_t N>
void Anwenden(Befund &b, const Satzregel<Sicht> (&regeln)[N], const Satzliste &sätze) {
    for (const auto &regel : regeln) {
        b.Regel = regel.Name;
        for (const auto &satz : sätze) regel.Prüfen(b, Sicht(satz));
    }
}

void FormenPrüfen(Befund &b) {
    for (const auto &[speicher, form] : Satzformen)
        for (const auto &satz : b.d.*speicher) b.Soll(FormStimmt(form, satz), {satz});
    for (const auto &satz : b.d.cboFreehandlines) b.Soll(satz.find_first_not_of("0123456789.-^_") == satz.npos, {satz});
}

} // namespace

std::vector<Verstoß> Verstöße(const Stand &stand) {
    Befund b{stand};
    FormenPrüfen(b);
    if (!b.Liste.empty()) return b.Liste;
    for (const Standregel &regel : Standregeln) b.Regel = regel.Name, regel.Prüfen(b);
    Anwenden(b, Personenregeln, b.d.cboPersonen);
    Anwenden(b, Linienregeln, b.d.cboPartnerschaftsLinien);
    Anwenden(b, Kindregeln, b.d.cboKindlinien);
    Anwenden(b, Beziehungsregeln, b.d.cboBeziehungsLinien);
    return b.Liste;
}

namespace {

// clang-format off
/// Which entries should be ticked.
std::map<std::string, bool> Haken(const Stand &s) {
    const Dokument &d = s.dokument;
    const Ansicht &a = s.ansicht;
    std::map<std::string, bool> soll{
        {"keyDINA4", d.Papiercode == 9}, {"keyDINA5", d.Papiercode == 11}, {"keyUSLetter", d.Papiercode == 1},
        {"btnHochformat", d.Seitenlage == 1}, {"btnQuerformat", d.Seitenlage != 1},
        {"mnuRasterKlein", a.Rasterweite < 0.5}, {"mnuRasterGroß", a.Rasterweite > 0.5},
        {"btnLegende", d.LegendeSichtbar}, {"btnGitterZeichnen", a.bRasterAnzeigen},
        {"btnBlattränder", a.bDruckrandAnzeigen},
        {"btnAuswahlZuBild", s.lage.BildAuswahl && s.lage.bAuswahlInDatei},
        {"btnImport", s.bedienung.Finden("imgVariable")->Visible}};
    const auto ist = [&](std::string_view name) { return s.bedienung.Finden(name)->Checked; };
    soll["keySchwarzweiß"] = ist("mnuSchwarzWeiß");
    soll["keyGraustufen"] = ist("mnuGraustufen");
    soll["keyFarbig"] = ist("mnuFarbig");
    soll["mnuFarbig"] = !ist("mnuGraustufen") && !ist("mnuSchwarzWeiß");
    for (int i = 0; i < 18; ++i) soll["keyZoom" + std::to_string(80 + 10 * i)] = i == s.zoom;
    return soll;
}

/// A rule of what shows.
struct Anzeigeregel {
    std::string_view Name;
    bool (*Gilt)(const Stand &);
};
constexpr Anzeigeregel Anzeigeregeln[] = {
    {"canvas of another size", [](const Stand &s) {
         return std::abs(s.leinwand - 0.72 - 0.09 * s.zoom) <= 0.001 && s.hochkant == (s.dokument.Seitenlage == 1); }},
    {"region with another tool", [](const Stand &s) {
         const bool frei = s.lage.Aktion == Aktion::Nichts || s.lage.Aktion == Aktion::RahmenZiehen;
         return !s.lage.BildAuswahl || (frei && s.lage.Zeiger == Mauszeiger::Kreuz); }},
    {"undo enabled or not",
     [](const Stand &s) { return (s.ring.UndoSchritte() > 0) == s.bedienung.Finden("mnuRückgängig")->Enabled; }},
};

} // namespace

std::string Anzeigefehler(const Stand &stand) {
    for (const auto &[name, wert] : Haken(stand))
        if (stand.bedienung.Finden(name)->Checked != wert) return "wrong tick: " + name;
    for (const Anzeigeregel &regel : Anzeigeregeln)
        if (!regel.Gilt(stand)) return std::string(regel.Name);
    return "";
}

namespace {

/// A paste leaves the copies selected.
bool Eingefügt(const Schritt &s, const std::string &person) {
    const Satzliste &kopien = s.Neu.auswahl.lstMovedPers;
    return s.Neu.dokument.cboPersonen.Anzahl() > s.Alt.dokument.cboPersonen.Anzahl() &&
           std::find(kopien.begin(), kopien.end(), person.substr(1)) != kopien.end();
}

/// A rule that the program breaks by its own rules: which one, any when none is named, and when it does.
struct Macke {
    std::string_view Name, Regel;
    bool (*Gilt)(const Schritt &, const Verstoß &);
};
constexpr Macke Macken[] = {
    {"copied twins have no parents, and get them one by one; so have their copies", "twins of different parents",
     [](const Schritt &s, const Verstoß &v) {
         return s.Alt.lage.Aktion == Aktion::KindZiehen || (!s.Entschuldigt.empty() && Eingefügt(s, v.Wer[0])); }},
    {"a person who was given a child line without parents can get another", "two child lines",
     [](const Schritt &s, const Verstoß &v) {
         const std::string ohne = "child line without parents: " + v.Wer[0];
         return s.Entschuldigt.lower_bound(ohne) != s.Entschuldigt.lower_bound(ohne + "~"); }},
};
// clang-format on

} // namespace

bool IstMacke(const Schritt &schritt, const Verstoß &verstoß) {
    return std::any_of(std::begin(Macken), std::end(Macken), [&](const Macke &m) {
        return (m.Regel.empty() || m.Regel == verstoß.Art) && m.Gilt(schritt, verstoß);
    });
}

} // namespace kw
