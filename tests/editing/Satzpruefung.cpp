#include "Zufallsnutzer.h"

#include "app/Projekt.h"
#include "app/Startangaben.h"
#include "commands/Menuetafel.h"
#include "document/saetze/Satz.h"
#include "editing/Leinwand.h"
#include "output/Arbeitsbereich.h"
#include "platform/Bedienelemente.h"
#include "rendering/Ansicht.h"

#include <cmath>
#include <fstream>
#include <iterator>

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
bool Nahe(std::string_view a, std::string_view b) { return std::abs(ZahlLesen(a) - ZahlLesen(b)) < 0.06; }

struct Sammler {
    const Stand &s;
    const Dokument &d = s.dokument;
    std::vector<Verstoß> Liste{};

    void Soll(bool gut, const char *art, Wer wer) {
        if (!gut) Liste.push_back({art, std::move(wer)});
    }
    void Nummern(const Satzliste &liste, const char *vorsatz, const char *art = "double number") {
        std::set<std::string> da;
        for (const auto &satz : liste) Soll(da.insert(satz.substr(0, 3)).second, art, {vorsatz + satz.substr(0, 3)});
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
        Soll(eltern.empty() || (linie && Felder(*linie)[KindFeld::PLinie] == eltern), "parents without child line",
             {"P" + nr, "L" + eltern});
        if (marke.empty()) return;
        const std::string anderer = marke.substr(2);
        const Wer wer{"P" + nr, "P" + anderer};
        const auto *satz = Finden(d.cboPersonen, anderer);
        if (!satz || anderer == nr) return Soll(false, "twin of one side", wer);
        const Felder z(*satz);
        Soll(z[PersonFeld::Zwilling] == marke.substr(0, 2) + nr, "twin of one side", wer);
        Soll(z[PersonFeld::ElternLinie] == eltern, "twins of different parents", wer);
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
        const Wer wer{"P" + std::string(b[BezFeld::PersNr1]), "P" + std::string(b[BezFeld::PersNr2])};
        Soll(wer[0] != wer[1], "relationship to oneself", wer);
        Ende(b[BezFeld::PersNr1], b[BezFeld::LinieX1], b[BezFeld::LinieY1], "end of relationship", wer);
        Ende(b[BezFeld::PersNr2], b[BezFeld::LinieX2], b[BezFeld::LinieY2], "end of relationship", wer);
    }
    /// A list of what is selected: positions, or numbers, where the store has such.
    void Gewählt(const Satzliste &auswahl, const Satzliste &speicher, int ab) {
        for (const auto &e : auswahl)
            Soll(IstNummer(e) ? Finden(speicher, e) != nullptr
                              : ZahlLesen(e) >= ab && ZahlLesen(e) < speicher.Anzahl() + ab,
                 "selected what isn't there", {e});
    }
    void Auswahlen() {
        Gewählt(s.auswahl.lstMovedText, d.cboTextboxen, 0);
        Gewählt(s.auswahl.lstMovedKreisLinien, d.cboFreehandlines, 1);
        Gewählt(s.auswahl.lstMovedPfeile, d.cboPfeile, 0);
        Gewählt(s.auswahl.lstMovedPers, d.cboPersonen, 1);
        Gewählt(s.auswahl.lstMovedPLines, d.cboPartnerschaftsLinien, 1);
        Soll(s.lage.Aktion >= Aktion::Nichts && s.lage.Aktion <= Aktion::LegendeGefasst &&
                 s.lage.Aktion != Aktion::ElternPrüfen,
             "unknown Aktion", {});
    }
};

/// All that is wrong with a state. Broken records end the search, since the other rules count on their form.
std::vector<Verstoß> Verstöße(const Stand &stand) {
    Sammler sammler{stand};
    const Dokument &d = stand.dokument;
    for (const auto &[speicher, form] : Satzformen)
        for (const auto &satz : d.*speicher) sammler.Soll(FormStimmt(form, satz), "form", {satz});
    for (const auto &satz : d.cboFreehandlines)
        sammler.Soll(satz.find_first_not_of("0123456789.-^_") == satz.npos, "form", {satz});
    if (!sammler.Liste.empty()) return sammler.Liste;
    sammler.Nummern(d.cboPersonen, "P");
    sammler.Nummern(d.cboPartnerschaftsLinien, "L");
    sammler.Nummern(d.cboKindlinien, "P", "two child lines");
    for (const auto &satz : d.cboPersonen) sammler.Person(Felder(satz));
    for (const auto &satz : d.cboPartnerschaftsLinien) sammler.Partnerschaft(Felder(satz));
    for (const auto &satz : d.cboKindlinien) sammler.Kind(Felder(satz));
    for (const auto &satz : d.cboBeziehungsLinien) sammler.Beziehung(Felder(satz));
    sammler.Auswahlen();
    return sammler.Liste;
}

/// What comes of changes, beside the records.
auto Ringstand(const UndoRing &r) { return std::tuple(r.UndoPos(), r.UndoSchritte(), r.RedoSchritte()); }
auto Frei(const Dokument &d) { return std::tie(d.lstGelöschtePersNr, d.lstGelöschtePLinien); }

/// Where two documents differ, " in STORE", but for what drawing and rewriting add to records; empty when nowhere.
std::string Unterschied(const Dokument &a, const Dokument &b) {
    for (const auto &zeile : SpeicherTabelle) {
        const auto gleich = [&](const std::string &x, const std::string &y) {
            const int felder = zeile.Liste == &Dokument::cboFreehandlines ? 0 : zeile.Pflichtfelder;
            return x == y || (felder > 0 && Satzbau(x, felder).Text() == Satzbau(y, felder).Text());
        };
        const Satzliste &x = a.*zeile.Liste, &y = b.*zeile.Liste;
        if (!std::equal(x.begin(), x.end(), y.begin(), y.end(), gleich)) return " in " + std::string(zeile.Name);
    }
    return "";
}

/// The same for what a command leaves as it was that only shows, saves or prints. It ends a running gesture.
std::string Unterschied(const Stand &a, const Stand &b) {
    const bool anders = Ringstand(a.ring) != Ringstand(b.ring) || Frei(a.dokument) != Frei(b.dokument);
    return anders && !a.lage.Gedrückt ? " beside the records" : Unterschied(a.dokument, b.dokument);
}

/// Whether the list has the number of `wer` as an entry.
bool Enthält(const Satzliste &liste, const std::string &wer) {
    return std::find(liste.begin(), liste.end(), wer.substr(1)) != liste.end();
}

// clang-format off
/// What menus, toolbar or canvas show that isn't so.
std::string Anzeigefehler(const Einblick &h) {
    const Ansicht &a = h.ansicht;
    const int zoom = h.bereich.cboBildGröße.ListIndex, papier = h.dokument.Papiercode, lage = h.dokument.Seitenlage;
    const auto ist = [&](std::string_view name) { return h.bedienung[name].Checked; };
    std::map<std::string, bool> soll{
        {"keyDINA4", papier == 9}, {"keyDINA5", papier == 11}, {"keyUSLetter", papier == 1},
        {"btnHochformat", lage == 1}, {"btnQuerformat", lage != 1}, {"mnuRasterKlein", a.Rasterweite < 0.5},
        {"mnuRasterGroß", a.Rasterweite > 0.5}, {"btnLegende", h.dokument.LegendeSichtbar},
        {"btnGitterZeichnen", a.bRasterAnzeigen}, {"btnBlattränder", a.bDruckrandAnzeigen},
        {"btnAuswahlZuBild", h.lage.BildAuswahl && h.lage.bAuswahlInDatei},
        {"btnImport", h.bedienung["imgVariable"].Visible}, {"keySchwarzweiß", ist("mnuSchwarzWeiß")},
        {"keyGraustufen", ist("mnuGraustufen")}, {"keyFarbig", ist("mnuFarbig")},
        {"mnuFarbig", !ist("mnuGraustufen") && !ist("mnuSchwarzWeiß")}};
    for (int i = 0; i < 18; ++i) soll["keyZoom" + std::to_string(80 + 10 * i)] = i == zoom;
    for (const auto &[name, wert] : soll)
        if (ist(name) != wert) return "wrong tick: " + name;
    const int breite = h.picVorschau.Width(), höhe = h.picVorschau.Height();
    const double größe = std::max(breite * 1.0 / h.start.BildschirmBreite, höhe * 1.0 / h.start.BildschirmHöhe);
    if (std::abs(größe - 0.72 - 0.09 * zoom) > 0.001 || (lage == 1) != (breite < höhe)) return "canvas of another size";
    const bool fremd = h.lage.Aktion != Aktion::Nichts && h.lage.Aktion != Aktion::RahmenZiehen;
    if (h.lage.BildAuswahl && (fremd || h.lage.Zeiger != Mauszeiger::Kreuz)) return "region with another tool";
    return (h.ring.UndoSchritte() > 0) == h.bedienung["mnuRückgängig"].Enabled ? "" : "undo enabled or not";
}

/// A step that broke a rule, and the states before and behind it.
struct Schritt {
    const Stand &Alt, &Neu;
    const std::string &Zeile;
    const std::set<std::string> &Entschuldigt;

    /// A paste leaves the copies selected.
    bool Eingefügt(const std::string &wer) const {
        return Neu.dokument.cboPersonen.Anzahl() > Alt.dokument.cboPersonen.Anzahl() &&
               Enthält(wer[0] == 'P' ? Neu.auswahl.lstMovedPers : Neu.auswahl.lstMovedPLines, wer);
    }
};

/// A rule that the program breaks by its own rules: the kinds of faults, all when none is named, and when it does.
struct Macke {
    std::string_view Name, Arten;
    bool (*Gilt)(const Schritt &, const Verstoß &);
};
const Macke Macken[] = {
    {"numbers are counted where too few free ones are listed (a couple takes two), and by a paste", "double number",
     [](const Schritt &s, const Verstoß &v) {
         const Dokument &d = s.Alt.dokument;
         return s.Eingefügt(v.Wer[0]) ||
                (v.Wer[0][0] == 'P' ? d.lstGelöschtePersNr.Anzahl() < 2 : d.lstGelöschtePLinien.Leer()); }},
    {"a copy has the faults of what was copied", "",
     [](const Schritt &s, const Verstoß &v) { return !s.Entschuldigt.empty() && s.Eingefügt(v.Wer[0]); }},
    {"cmdDelete takes lines but does not free their children", "parents without child line",
     [](const Schritt &s, const Verstoß &v) {
         return s.Zeile.ends_with("press cmdDelete") && Enthält(s.Alt.auswahl.lstMovedPLines, v.Wer[1]); }},
    {"a group's bar moves without the partner outside the group", "end of bar",
     [](const Schritt &s, const Verstoß &v) {
         return s.Alt.lage.Aktion == Aktion::GruppeGewählt && Enthält(s.Alt.auswahl.lstMovedPLines, v.Wer[0]) &&
                !Enthält(s.Alt.auswahl.lstMovedPers, v.Wer[1]); }},
    {"copied twins have no parents, and get them one by one", "twins of different parents",
     [](const Schritt &s, const Verstoß &) { return s.Alt.lage.Aktion == Aktion::KindZiehen; }},
    {"a person who was given a child line without parents can get another", "two child lines",
     [](const Schritt &s, const Verstoß &v) {
         const std::string ohne = "child line without parents: " + v.Wer[0];
         return s.Entschuldigt.lower_bound(ohne) != s.Entschuldigt.lower_bound(ohne + "~"); }},
};
// clang-format on

} // namespace

/// What the user doesn't confirm, or is refused by a warning, changes nothing. Only a relationship line that was drawn
/// a moment ago goes with its form.
void Prüfung::BeiFormularenZusehen() {
    Programm &p = wiedergabe_.Läuft();
    const auto übriges = [&p] {
        std::ifstream datei(p.innen.start.IniDatei);
        return std::tuple(Ringstand(p.innen.ring), std::string(std::istreambuf_iterator(datei), {}));
    };
    auto &spielen = p.benutzer.FormularSpielen;
    spielen = [=, this, &p, vorige = spielen](Formular &form, const std::vector<std::string> &zeilen) {
        Dokument vorher = p.innen.dokument;
        if (form.Name() == "frmBezLinien" && p.innen.lage.Aktion == Aktion::BeziehungZiehen)
            vorher.cboBeziehungsLinien.Entfernen(p.innen.lage.BezAuswahl);
        const auto sonst = übriges();
        vorige(form, zeilen);
        const auto warnt = [&](const char *rahmen) { return form.Finden(rahmen) && form.Finden(rahmen)->Visible; };
        const auto knopf = zeilen.empty() ? "" : zeilen.back().substr(zeilen.back().find(' ') + 1);
        if (knopf == form.Vorgabeknopf && !warnt("shpFalsch") && !warnt("shpFalsch2")) return;
        if (const auto *element = form.Finden(knopf); element && element->Caption == "Delete") return;
        std::string falsch = Unterschied(vorher, p.innen.dokument);
        if (sonst != übriges()) falsch += " in undo ring or settings file";
        if (!falsch.empty()) verworfen_ = "dismissed " + form.Name() + " changes something" + falsch;
    };
}

/// A number that two records share excuses whatever else is wrong with it, for the rest of the document's life.
std::string Prüfung::Zeile(const std::string &zeile) {
    const bool loslassen = zeile.starts_with("up"); // only where the pointer is, as every face does
    if (loslassen && (wiedergabe_.Läuft().Taste == TasteKeine || zeile_ != "move" + zeile.substr(2))) return "";
    zeile_ = zeile;
    verworfen_.clear();
    aus_.str({});
    std::istringstream zeilen(zeile);
    if (wiedergabe_.Ausführen(zeilen) == 2) return "script " + aus_.str();
    Programm &p = wiedergabe_.Läuft();
    p.benutzer.Formulare.clear();
    p.benutzer.Antworten.clear();
    p.benutzer.Menüwahlen.clear();
    if (zeile.find("start") != zeile.npos) BeiFormularenZusehen();
    const Einblick &h = p.innen;
    alt_ = std::exchange(jetzt_,
                         {h.dokument, h.lage, h.auswahl, h.ring, h.bereich.cboBildGröße.ListIndex, h.projekt.Geändert});
    const Schritt schritt{alt_, jetzt_, zeile_, entschuldigt_};
    for (const auto &v : Verstöße(jetzt_)) {
        if (entschuldigt_.contains(v.Text())) continue;
        const auto doppelt = [&](const auto &wer) { return entschuldigt_.contains("double number: " + wer); };
        const auto *macke = std::find_if(std::begin(Macken), std::end(Macken), [&](const Macke &m) {
            return (m.Arten.empty() || m.Arten.find(v.Art) != std::string_view::npos) && m.Gilt(schritt, v);
        });
        const bool folgt = std::any_of(v.Wer.begin(), v.Wer.end(), doppelt);
        if (macke == std::end(Macken) && !folgt) return v.Text();
        entschuldigt_.insert(v.Text());
    }
    if (verworfen_.empty()) verworfen_ = Übergang();
    return verworfen_.empty() ? Anzeigefehler(h) : verworfen_;
}

/// What is wrong with another project: it must be what a fresh program shows of the file.
std::string Prüfung::Projektwechsel(bool neu) {
    Wiedergabe frisch(aus_);
    if (!neu) frisch.Zeile("load " + Innen().projekt.Projektdatei);
    const Dokument &soll = frisch.Läuft().innen.dokument, &d = jetzt_.dokument;
    const auto seite = [](const Dokument &x) { return std::tie(x.Papiercode, x.Seitenlage, x.LegendeSichtbar); };
    const bool gleich = Unterschied(soll, d).empty() && (neu || seite(soll) == seite(d));
    const bool frei = Frei(soll) == Frei(d) || (!neu && soll.GleicheSätze({})); // no project: they stay
    const bool ruht = jetzt_.auswahl.Leer() && jetzt_.lage.Aktion == Aktion::Nichts;
    return gleich && (zeile_.starts_with("save") || (frei && ruht)) ? "" : "another project than it should be";
}

/// What is wrong with how the document came from the state before.
std::string Prüfung::Übergang() {
    const int vorher = alt_.ring.UndoPos(), platz = jetzt_.ring.UndoPos();
    const size_t wort = zeile_.rfind("press ");
    const std::string befehl = wort == zeile_.npos ? "" : zeile_.substr(wort + 6); // no name when other lines follow
    const auto beginnt = [&](auto... anfang) { return (zeile_.starts_with(anfang) || ...); };
    const auto ist = [&](auto... name) { return ((befehl == name) || ...); };
    const auto in = [&](auto... menü) { return (GehörtZu(befehl, menü) || ...); };
    const bool zurück = zeile_ == "key Ctrl+Z" || ist("mnuRückgängig", "btnUndo");
    const bool vor = zeile_ == "key Ctrl+Y" || ist("mnuWiederholen", "btnRedo"), startet = beginnt("start", "profil");
    const bool neu = ist("mnuNeu", "btnNeuesProjekt"), öffnet = ist("mnuÖffnen", "btnÖffnen");
    const std::string anders = Unterschied(alt_, jetzt_);
    const auto soll = [this](const Dokument &dokument, const std::string &art) {
        const std::string falsch = Unterschied(dokument, jetzt_.dokument);
        return falsch.empty() ? "" : art + falsch;
    };
    const bool fragt = alt_.geändert && (neu || öffnet), bleibt = alt_.geändert == jetzt_.geändert && anders.empty();
    if ((fragt ? beginnt("answer cancel\n") : öffnet && beginnt("answer file cancel\n")) && !bleibt)
        return "cancelled, but goes on: " + befehl;
    const bool einPlatz = jetzt_.ring.UndoSchritte() + jetzt_.ring.RedoSchritte() == 0 && !jetzt_.geändert;
    if (beginnt("save", "load") || startet ||
        (einPlatz && (neu || öffnet || befehl.starts_with("mnuRecent")) && !anders.empty())) {
        plätze_ = {{platz, jetzt_.dokument}};
        return startet ? "" : Projektwechsel(neu);
    }
    const bool zoomt = beginnt("wheel") || in("btnZoom") || ist("btnBildGrößer", "btnBildKleiner");
    const bool zeigt = beginnt("wheel", "pick") || in("mnuDatei", "mnuAnsicht", "mnuHelp", Werkzeugband, Fensterteile);
    const bool tut = zurück || vor || in("mnuSymbolGröße") || ist("btnClipboard", "btnAuswahlZuBild");
    if (zeigt && !tut && !anders.empty()) return "changed by showing" + anders;
    if (alt_.zoom != jetzt_.zoom && (!zoomt || Innen().ansicht.StrichFaktor != 1 + (jetzt_.zoom > 7))) return "zoom";
    if (beginnt("click", "drag") && jetzt_.lage.BildAuswahl) return "region survives a release";
    if (zurück || vor) {
        const int ziel = (vorher + (zurück ? UndoRing::UndoTiefe - 2 : 0)) % UndoRing::UndoTiefe + 1;
        if (platz != ziel) plätze_ = {{platz, jetzt_.dokument}}; // no step left, or it ended a gesture first
        return soll(plätze_.try_emplace(platz, jetzt_.dokument).first->second, "undo does not give back");
    }
    for (int p = vorher; p != platz; p = p % UndoRing::UndoTiefe + 1) plätze_.erase(p % UndoRing::UndoTiefe + 1);
    if (zeile_.find("press cmdLöschen") != std::string::npos) return ""; // deletes behind its snapshot
    // A circle line or a person just placed waits for its snapshot until the next click.
    const auto offen = [](Aktion aktion) { return aktion == Aktion::KreisGewählt || aktion == Aktion::PersonSetzen; };
    if (platz != vorher) plätze_[platz] = jetzt_.dokument;
    else if (!zeile_.starts_with("store") && !offen(alt_.lage.Aktion) && !offen(jetzt_.lage.Aktion))
        return soll(alt_.dokument, "change without snapshot");
    return "";
}

} // namespace kw
