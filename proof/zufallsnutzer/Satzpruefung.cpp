#include "Zufallsnutzer.h"

#include "app/Projekt.h"
#include "app/Startangaben.h"
#include "commands/Menuetafel.h"
#include "document/Doppelnummern.h"
#include "document/saetze/Satz.h"
#include "editing/Leinwand.h"
#include "output/Arbeitsbereich.h"
#include "platform/Bedienelemente.h"
#include "rendering/Ansicht.h"

#include <fstream>
#include <iterator>
#include <span>

namespace kw {

namespace {

/// All that the rules look at; nothing else here reaches into the window.
Stand StandVon(const Einblick &h) {
    const double breite = h.picVorschau.Width(), höhe = h.picVorschau.Height();
    return {h.dokument,
            h.lage,
            h.auswahl,
            h.ring,
            h.ansicht,
            h.bedienung,
            h.projekt.Projektdatei,
            h.start.IniDatei,
            {},
            std::max(breite / h.start.BildschirmBreite, höhe / h.start.BildschirmHöhe),
            breite < höhe,
            h.bereich.cboBildGröße.ListIndex,
            h.projekt.Geändert};
}

auto Ringstand(const UndoRing &r) { return std::tuple(r.UndoPos(), r.UndoSchritte(), r.RedoSchritte()); }
auto Frei(const Dokument &d) { return std::tie(d.lstGelöschtePersNr, d.lstGelöschtePLinien); }
/// What forms set beside records.
auto Gewähltes(const Stand &s) {
    const Dokument &d = s.dokument;
    return std::tuple(d.Papiercode, d.Seitenlage, d.LegendeSichtbar, d.LegendeQuer, d.OhneStandardsymbole,
                      s.ansicht.Altersanzeige, s.ansicht.bDruckrandAnzeigen);
}

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

/// What a step asks for, as far as the rules tell steps apart.
struct Verlangt {
    explicit Verlangt(const std::string &zeile) : Zeile(zeile) {
        const size_t wort = zeile.rfind("press ");
        if (wort != zeile.npos) Befehl = zeile.substr(wort + 6); // no name when other lines follow
    }
    template <typename... Text> bool Beginnt(Text... anfang) const { return (Zeile.starts_with(anfang) || ...); }
    template <typename... Text> bool Ist(Text... name) const { return ((Befehl == name) || ...); }
    template <typename... Text> bool In(Text... menü) const { return (GehörtZu(Befehl, menü) || ...); }

    bool Zurück() const { return Zeile == "key Ctrl+Z" || Ist("mnuRückgängig", "btnUndo"); }
    bool Vor() const { return Zeile == "key Ctrl+Y" || Ist("mnuWiederholen", "btnRedo"); }
    bool Startet() const { return Zeile.find("start ") != Zeile.npos; }
    bool Neu() const { return Ist("mnuNeu", "btnNeuesProjekt"); }
    bool WähltDatei() const { return Ist("mnuÖffnen", "btnÖffnen"); }
    bool Öffnet() const { return Neu() || WähltDatei() || Befehl.starts_with("mnuRecent"); }
    bool Wartet() const { return Zeile.find("wait ") != Zeile.npos; } ///< for the file of the command line
    bool Zoomt() const {
        return Beginnt("wheel", "key Ctrl++", "key Ctrl+-", "key Ctrl+0", "key Ctrl+J") || In("btnZoom") ||
               Ist("btnBildGrößer", "btnBildKleiner");
    }
    /// Goes about on the page by keys.
    bool Wandert() const {
        constexpr std::string_view Tasten[] = {"Tab",       "Shift+Tab",  "Up",   "Down",      "Left",    "Right",
                                               "Ctrl+Down", "Ctrl+Right", "Home", "Ctrl+Left", "Ctrl+Up", "End"};
        return Beginnt("key Ctrl+F") || std::any_of(std::begin(Tasten), std::end(Tasten), [this](auto taste) {
                   return Zeile == "key " + std::string(taste);
               });
    }
    /// Chosen where all shows, saves or prints, and none of those that do something all the same.
    bool ZeigtNur() const {
        return (Beginnt("wheel", "pick") || In("mnuDatei", "mnuAnsicht", "mnuHelp", Werkzeugband, Fensterteile)) &&
               !Zurück() && !Vor() && !In("mnuSymbolGröße") && !Ist("btnClipboard", "btnAuswahlZuBild");
    }

    const std::string &Zeile;
    std::string Befehl;
};

/// A file that was to be opened or saved wasn't, which a box said.
bool IstMisslungen(const Stand &neu) {
    constexpr std::string_view Worte[] = {"could not be opened", "konnte nicht geöffnet werden", "could not be saved",
                                          "konnte nicht gespeichert werden"};
    return std::any_of(std::begin(Worte), std::end(Worte),
                       [&](auto wort) { return neu.kästen.find(wort) != neu.kästen.npos; });
}

/// What was opened is known to be damaged.
bool IstBeschädigt(const Stand &neu) {
    return neu.kästen.find("file is damaged") != neu.kästen.npos ||
           neu.kästen.find("Datei ist beschädigt") != neu.kästen.npos;
}

/// Whether a kept version may stand there now.
bool HoltZurück(const Schritt &s, const Verlangt &v) {
    const bool leer = s.Neu.ring.UndoSchritte() + s.Neu.ring.RedoSchritte() == 0;
    return v.Zeile.find("press cmdÖffnen") != v.Zeile.npos && leer && s.Neu.geändert;
}

/// Whether another project may stand there now: its snapshots have gone.
bool WechseltProjekt(const Schritt &s, const Verlangt &v) {
    if (v.Beginnt("save", "load") && IstMisslungen(s.Neu)) return false;
    const bool leer = s.Neu.ring.UndoSchritte() + s.Neu.ring.RedoSchritte() == 0 && !s.Neu.geändert;
    const bool anders = s.Alt.ring.UndoPos() != s.Neu.ring.UndoPos() || !Unterschied(s.Alt, s.Neu).empty();
    return v.Beginnt("save", "load") || v.Startet() || HoltZurück(s, v) ||
           (leer && (v.Öffnet() || v.Wartet()) && anders);
}

/// A rule of how one state comes from another.
struct Schrittregel {
    std::string_view Name;
    bool (*Gilt)(const Schritt &, const Verlangt &);
};
// clang-format off
constexpr Schrittregel Schrittregeln[] = {
    {"cancelled, but goes on", [](const Schritt &s, const Verlangt &v) {
         const bool gefragt = s.Alt.geändert && v.Öffnet();
         const bool abgebrochen =
             gefragt ? v.Beginnt("answer cancel\n") : v.WähltDatei() && v.Beginnt("answer file cancel\n");
         return !abgebrochen || (s.Alt.geändert == s.Neu.geändert && Unterschied(s.Alt, s.Neu).empty()); }},
    {"changed by showing", [](const Schritt &s, const Verlangt &v) {
         return !v.ZeigtNur() || WechseltProjekt(s, v) || Unterschied(s.Alt, s.Neu).empty(); }},
    {"changed by going about", [](const Schritt &s, const Verlangt &v) {
         const bool inHand = IstLink(s.Alt.lage.Aktion) || s.Alt.lage.Gedrückt;
         const bool selbe = s.Alt.lage.Aktion == s.Neu.lage.Aktion && s.Alt.auswahl.lstMovedPers == s.Neu.auswahl.lstMovedPers;
         return !v.Wandert() || inHand || (Unterschied(s.Alt, s.Neu).empty() && selbe); }},
    {"zoom", [](const Schritt &s, const Verlangt &v) {
         const bool darf = v.Zoomt() && s.Neu.ansicht.StrichFaktor == 1 + (s.Neu.zoom > 7);
         return s.Alt.zoom == s.Neu.zoom || darf || WechseltProjekt(s, v); }},
    {"region survives a release", [](const Schritt &s, const Verlangt &v) {
         return !v.Beginnt("click", "drag") || !s.Neu.lage.BildAuswahl; }},
};

/// What may change records without a snapshot behind it, each by a rule of the program's own.
constexpr Schrittregel OhneSicherung[] = {
    {"a script stores past the program", [](const Schritt &, const Verlangt &v) { return v.Beginnt("store"); }},
    {"a circle line or a person just placed waits for its snapshot until the next click",
     [](const Schritt &s, const Verlangt &) {
         const auto wartet = [](Aktion a) { return a == Aktion::KreisGewählt || a == Aktion::PersonSetzen; };
         return wartet(s.Alt.lage.Aktion) || wartet(s.Neu.lage.Aktion); }},
};

/// What takes a snapshot though nothing has changed since the last one.
constexpr Schrittregel SichertImmer[] = {
    {"a size command", [](const Schritt &, const Verlangt &v) { return v.In("mnuSymbolGröße"); }},
    {"a project that is opened, though it is the same",
     [](const Schritt &s, const Verlangt &v) { return v.Öffnet() && s.Neu.ring.UndoFüllung() == 1; }},
    {"a form that is confirmed",
     [](const Schritt &, const Verlangt &v) { return v.Zeile.find("form ") != std::string::npos; }},
};
// clang-format on

bool Entschuldigt(std::span<const Schrittregel> ausnahmen, const Schritt &s, const Verlangt &v) {
    return std::any_of(ausnahmen.begin(), ausnahmen.end(), [&](const auto &ausnahme) { return ausnahme.Gilt(s, v); });
}

std::string Dateiinhalt(const std::string &pfad) {
    std::ifstream datei(pfad);
    return {std::istreambuf_iterator(datei), {}};
}

/// Whether the user ended the form by OK, which no warning refused, or by the button that deletes.
bool IstBestätigt(const Formular &form, const std::vector<std::string> &zeilen) {
    const auto warnt = [&](const char *rahmen) { return form.Finden(rahmen) && form.Finden(rahmen)->Visible; };
    const auto knopf = zeilen.empty() ? "" : zeilen.back().substr(zeilen.back().find(' ') + 1);
    if (knopf == form.Vorgabeknopf) return !warnt("shpFalsch") && !warnt("shpFalsch2");
    const auto *element = form.Finden(knopf);
    return element && element->Caption == "Delete";
}

/// `name` with where two documents differ; empty when they don't.
std::string Abweichung(const std::string &name, const Dokument &soll, const Dokument &ist) {
    const std::string ort = Unterschied(soll, ist);
    return ort.empty() ? "" : name + ort;
}

} // namespace

/// What the user doesn't confirm changes nothing: no record, no snapshot, no setting.
void Prüfung::BeiFormularenZusehen() {
    Programm &p = wiedergabe_.Läuft();
    auto &spielen = p.benutzer.FormularSpielen;
    spielen = [this, &p, vorige = spielen](Formular &form, const std::vector<std::string> &zeilen) {
        Stand vorher = StandVon(p.innen);
        // A relationship line that was drawn a moment ago goes with its form.
        if (form.Name() == "frmBezLinien" && vorher.lage.Aktion == Aktion::BeziehungZiehen)
            vorher.dokument.cboBeziehungsLinien.Entfernen(vorher.lage.BezAuswahl);
        const std::string einstellungen = Dateiinhalt(vorher.einstellungsdatei);
        vorige(form, zeilen);
        if (IstBestätigt(form, zeilen)) return;
        const Stand nachher = StandVon(p.innen);
        std::string ort = Unterschied(vorher.dokument, nachher.dokument);
        if (Ringstand(vorher.ring) != Ringstand(nachher.ring)) ort += " in the undo ring";
        if (einstellungen != Dateiinhalt(nachher.einstellungsdatei)) ort += " in the settings file";
        if (Gewähltes(vorher) != Gewähltes(nachher)) ort += " in what it sets";
        if (!ort.empty()) verworfen_ = "dismissed " + form.Name() + " changes something" + ort;
    };
}

std::string Prüfung::Zeile(const std::string &zeile) {
    const bool loslassen = zeile.starts_with("up"); // only where the pointer is, as every face does
    if (loslassen && (wiedergabe_.Läuft().Taste == TasteKeine || zeile_ != "move" + zeile.substr(2))) return "";
    zeile_ = zeile;
    verworfen_.clear();
    aus_.str({});
    std::istringstream zeilen(zeile);
    verlust_.Vorher(zeile, Innen());
    if (wiedergabe_.Ausführen(zeilen) == 2) return "script: " + aus_.str();
    Programm &p = wiedergabe_.Läuft();
    p.benutzer.Formulare.clear();
    p.benutzer.Antworten.clear();
    p.benutzer.Menüwahlen.clear();
    if (zeile.find("start") != zeile.npos) BeiFormularenZusehen();
    alt_ = std::exchange(jetzt_, StandVon(p.innen));
    jetzt_.kästen = std::exchange(p.benutzer.Kästen, {});
    std::string fehler = verlust_.Nachher(zeile, alt_, jetzt_, p.Taste != TasteKeine, p.innen);
    if (fehler.empty()) fehler = Satzfehler();
    if (fehler.empty()) fehler = verworfen_;
    if (fehler.empty()) fehler = Schrittfehler();
    return fehler.empty() ? Anzeigefehler(jetzt_) : fehler;
}

/// What is wrong with the records that wasn't before, and is no quirk of the program.
std::string Prüfung::Satzfehler() {
    const Schritt schritt{alt_, jetzt_, zeile_, entschuldigt_};
    for (const auto &verstoß : Verstöße(jetzt_)) {
        if (entschuldigt_.contains(verstoß.Text())) continue;
        if (!IstMacke(schritt, verstoß) && !IstBeschädigt(jetzt_)) return verstoß.Text();
        entschuldigt_.insert(verstoß.Text());
    }
    return "";
}

/// What is wrong with how the document came from the state before.
std::string Prüfung::Schrittfehler() {
    const Schritt schritt{alt_, jetzt_, zeile_, entschuldigt_};
    const Verlangt v(zeile_);
    for (const Schrittregel &regel : Schrittregeln)
        if (!regel.Gilt(schritt, v)) return std::string(regel.Name) + Unterschied(alt_, jetzt_) + ": " + v.Befehl;
    if (WechseltProjekt(schritt, v)) {
        plätze_ = {{jetzt_.ring.UndoPos(), jetzt_.dokument}};
        return v.Startet() || HoltZurück(schritt, v) ? "" : Projektfehler(v.Neu());
    }
    return v.Zurück() || v.Vor() ? Rückschrittfehler(v.Zurück()) : Sicherungsfehler();
}

/// A change is in a snapshot, and each snapshot has one.
std::string Prüfung::Sicherungsfehler() {
    const Schritt s{alt_, jetzt_, zeile_, entschuldigt_};
    const Verlangt v(zeile_);
    const int vorher = alt_.ring.UndoPos(), platz = jetzt_.ring.UndoPos();
    const auto letzte = plätze_.find(vorher);
    // Of two, for a tool's person and for a command that takes it away at once, the second leads back.
    const bool eine = platz == vorher % UndoRing::UndoTiefe + 1;
    const bool leer = eine && letzte != plätze_.end() && Unterschied(letzte->second, jetzt_.dokument).empty();
    if (leer && !Entschuldigt(SichertImmer, s, v)) return "snapshot without change";
    for (int p = vorher; p != platz; p = p % UndoRing::UndoTiefe + 1) plätze_.erase(p % UndoRing::UndoTiefe + 1);
    if (zeile_.find("press cmdLöschen") != std::string::npos) return ""; // deletes behind its snapshot
    if (platz != vorher) plätze_[platz] = jetzt_.dokument;
    const bool darf = platz != vorher || Entschuldigt(OhneSicherung, s, v);
    return darf ? "" : Abweichung("change without snapshot", alt_.dokument, jetzt_.dokument);
}

/// Undo and redo give back what the ring's slot was filled with.
std::string Prüfung::Rückschrittfehler(bool zurück) {
    if (jetzt_.lage.Gedrückt) return ""; // it was disabled, and the gesture goes on
    const int platz = jetzt_.ring.UndoPos();
    const int ziel = (alt_.ring.UndoPos() + (zurück ? UndoRing::UndoTiefe - 2 : 0)) % UndoRing::UndoTiefe + 1;
    if (platz != ziel) plätze_ = {{platz, jetzt_.dokument}}; // no step left, or it ended a gesture first
    return Abweichung("undo does not give back", plätze_.try_emplace(platz, jetzt_.dokument).first->second,
                      jetzt_.dokument);
}

/// Another project must be what a fresh program shows of the file.
std::string Prüfung::Projektfehler(bool neu) {
    Wiedergabe frisch(aus_);
    if (!neu) frisch.Zeile("load " + jetzt_.projektdatei);
    const Dokument soll = StandVon(frisch.Läuft().innen).dokument;
    Dokument d = jetzt_.dokument;
    DoppelnummernAuflösen(d); // as every load does
    const auto seite = [](const Dokument &x) { return std::tie(x.Papiercode, x.Seitenlage, x.LegendeSichtbar); };
    const bool gleich = Unterschied(soll, d).empty() && (neu || seite(soll) == seite(d));
    const bool frei = Frei(soll) == Frei(d);
    const bool ruht = jetzt_.auswahl.Leer() && jetzt_.lage.Aktion == Aktion::Nichts;
    return gleich && (zeile_.starts_with("save") || (frei && ruht)) ? "" : "another project than it should be";
}

} // namespace kw
