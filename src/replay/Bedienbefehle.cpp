#include "app/Befehle.h"
#include "app/frmMain.h"
#include "commands/Menuetafel.h"
#include "editing/Werkzeuge.h"
#include "keyboard/Tastendruck.h"
#include "replay/Programm.h"
#include "replay/Skriptbefehle.h"

#include <algorithm>
#include <map>

namespace kw {

namespace {

/// What the user chooses, wherever it stands; menus, toolbar and palette need no roads of their own.
void Auslösen(Wiedergabe &lauf, const std::string &name) {
    Programm &p = lauf.Läuft();
    if (!p.innen.bedienung.Finden(name) && !BefehlFinden(name)) throw Skriptfehler("unknown name: " + name);
    if (!p.haupt->BefehlAusführen(name)) lauf.aus << "disabled " << name << "\n";
}

void WerkzeugWählen(Wiedergabe &lauf, const std::string &wort) {
    if (wort == "zwillinge") return Auslösen(lauf, "cmdZwillinge");
    const int nummer = Zahl(wort);
    if (nummer < 1 || nummer > WerkzeugAnzahl) throw Skriptfehler("no such tool: " + wort);
    Auslösen(lauf, WerkzeugName(nummer));
}

/// A shortcut of the menus, or a key on the page, pressed and let go. Text behind it is what a search is for.
void TasteTippen(Wiedergabe &lauf, const Wörter &w) {
    const std::string &kürzel = Wort(w, 1);
    const auto tafel = Menütafel();
    const auto zeile = std::find_if(tafel.begin(), tafel.end(), [&](const Menüzeile &z) { return z.Kürzel == kürzel; });
    if (!kürzel.empty() && zeile != tafel.end()) return Auslösen(lauf, std::string(zeile->Name));
    const auto taste = TasteLesen(kürzel);
    if (!taste) throw Skriptfehler("unknown key: " + kürzel);
    frmMain &haupt = *lauf.Läuft().haupt;
    if (taste->Ist(Taste::F, true)) {
        haupt.PersonSuchen(w.size() > 2 ? Ab(w, 2) : "");
        return;
    }
    haupt.TasteDrücken(*taste);
    if (taste->Ist(Taste::Leer)) haupt.LeertasteLoslassen();
}

void MenüwahlVormerken(Wiedergabe &lauf, const std::string &name) {
    if (!MenüzeileFinden(name)) throw Skriptfehler("unknown name: " + name);
    lauf.Läuft().benutzer.Menüwahlen.push_back(name);
}

/// Takes the lines up to `end`: what the user does in the next form of that name.
void FormularVormerken(Wiedergabe &lauf, const std::string &name) {
    Formularskript skript{name, {}};
    std::string zeile;
    while (lauf.NächsteZeile(zeile)) {
        if (zeile == "end") {
            lauf.Läuft().benutzer.Formulare.push_back(std::move(skript));
            return;
        }
        skript.Zeilen.push_back(zeile);
    }
    throw Skriptfehler("form without end");
}

void Beantworten(Wiedergabe &lauf, const Wörter &w) {
    static const std::map<std::string_view, Antwort> Knopfwörter{
        {"yes", Antwort::Ja}, {"no", Antwort::Nein}, {"cancel", Antwort::Abbrechen}, {"ok", Antwort::Ok}};
    DrehbuchBenutzer::Vorbereitet antwort;
    if (Wort(w, 1) == "file" || w[1] == "colour") {
        using Art = DrehbuchBenutzer::Vorbereitet::Art;
        antwort.Wofür = w[1] == "file" ? Art::Datei : Art::Farbwert;
        antwort.Wert = Ab(w, 2);
        antwort.Abgebrochen = antwort.Wert == "cancel";
    } else {
        const auto knopf = Knopfwörter.find(w[1]);
        if (knopf == Knopfwörter.end()) throw Skriptfehler("unknown answer: " + w[1]);
        antwort.Knopf = knopf->second;
    }
    lauf.Läuft().benutzer.Antworten.push_back(antwort);
}

/// The lists of the toolbar, and what a choice in them does.
struct Wahlliste {
    std::string_view Name;
    const Auswahlliste &(*Liste)(const Einblick &);
    void (*Wählen)(const Einblick &, int);
};

constexpr Wahlliste Wahllisten[] = {
    {"cboBildGröße", [](const Einblick &h) -> const Auswahlliste & { return h.bereich.cboBildGröße; },
     [](const Einblick &h, int i) { h.bereich.ZoomWählen(i); }},
    {"cboRaster", [](const Einblick &h) -> const Auswahlliste & { return h.cboRaster; },
     [](const Einblick &h, int i) { h.darstellung.RasterWählen(i); }},
};

void Wählen(Wiedergabe &lauf, const std::string &name, const std::string &index) {
    const auto wahl = std::find_if(std::begin(Wahllisten), std::end(Wahllisten),
                                   [&](const Wahlliste &liste) { return liste.Name == name; });
    if (wahl == std::end(Wahllisten)) throw Skriptfehler("unknown list: " + name);
    const Einblick &innen = lauf.Läuft().innen;
    const int i = Zahl(index);
    if (i < 0 || i >= wahl->Liste(innen).Anzahl()) throw Skriptfehler("no such entry: " + index);
    wahl->Wählen(innen, i);
}

void ZeitgeberAuslösen(Programm &p, const std::string &name) {
    constexpr std::string_view Bekannt[] = {"Timer2",      "Timer3",      "Timer4", "Timer5",
                                            "tmrLanguage", "tmrToolTipp", "tmrLauf"};
    const auto gestartet = std::erase_if(p.benutzer.ZeitgeberListe, [&](const auto &z) { return z.Name == name; });
    if (gestartet == 0 && std::find(std::begin(Bekannt), std::end(Bekannt), name) == std::end(Bekannt))
        throw Skriptfehler("unknown timer: " + name);
    p.haupt->ZeitgeberAbgelaufen(name);
}

void Warten(Programm &p, int ms) {
    DrehbuchBenutzer &b = p.benutzer;
    const int ende = b.Jetzt + ms;
    while (true) {
        const auto nächster = std::min_element(b.ZeitgeberListe.begin(), b.ZeitgeberListe.end(),
                                               [](const auto &x, const auto &y) { return x.Fällig < y.Fällig; });
        if (nächster == b.ZeitgeberListe.end() || nächster->Fällig > ende) break;
        b.Jetzt = nächster->Fällig;
        ZeitgeberAuslösen(p, std::string(nächster->Name));
    }
    b.Jetzt = ende;
}

void Ablegen(Wiedergabe &lauf, const Wörter &w) {
    Programm &p = lauf.Läuft();
    const int zeile = Zahl(Wort(w, 1));
    if (zeile < 0 || zeile >= static_cast<int>(p.innen.import.Listenzeilen.size()))
        throw Skriptfehler("no such row: " + w[1]);
    if (w.size() == 2) return p.haupt->ImportzeileEinsetzen(zeile); // by Enter
    p.haupt->ImportzeileAblegen(zeile, Dezimalzahl(Wort(w, 2)), Dezimalzahl(Wort(w, 3)));
}

/// What the next output that goes there meets with: `memory` of pictures and print jobs, `program` of another program
/// that is to start, the rest of print jobs.
void Stören(Programm &p, const std::string &wort) {
    constexpr std::string_view Bekannt[] = {"memory", "printer", "job", "pdf", "program"};
    if (std::find(std::begin(Bekannt), std::end(Bekannt), wort) == std::end(Bekannt))
        throw Skriptfehler("unknown failure: " + wort);
    p.benutzer.OhneProgramm = wort == "program";
    if (p.benutzer.OhneProgramm) return;
    p.drucker.Störung = wort;
    p.bilder.OhneSpeicher = wort == "memory";
}

/// What other programs have put on the desktop's clipboard.
void AblageFüllen(Programm &p, const std::string &wort) {
    if (wort != "text" && wort != "picture" && wort != "empty") throw Skriptfehler("unknown word: " + wort);
    p.benutzer.Ablage = wort != "empty";
}

/// Moves the window: its left and upper edge, width and height, in pixels; and `maximized`.
void FensterStellen(Programm &p, const Wörter &w) {
    if (w.size() > 5 && w[5] != "maximized") throw Skriptfehler("unknown word: " + w[5]);
    p.benutzer.Fenster = {{Zahl(Wort(w, 1)), Zahl(Wort(w, 2)), Zahl(Wort(w, 3)), Zahl(Wort(w, 4))}, w.size() > 5};
}

constexpr Skriptbefehl Tabelle[] = {
    {"tool", [](auto &lauf, auto &w, auto &) { WerkzeugWählen(lauf, Wort(w, 1)); }},
    {"press", [](auto &lauf, auto &w, auto &) { Auslösen(lauf, Wort(w, 1)); }},
    {"menu", [](auto &lauf, auto &w, auto &) { Auslösen(lauf, Wort(w, 1)); }},
    {"toolbar", [](auto &lauf, auto &w, auto &) { Auslösen(lauf, Wort(w, 1)); }},
    {"key", [](auto &lauf, auto &w, auto &) { TasteTippen(lauf, w); }},
    {"form", [](auto &lauf, auto &w, auto &) { FormularVormerken(lauf, Wort(w, 1)); }},
    {"popup", [](auto &lauf, auto &w, auto &) { MenüwahlVormerken(lauf, Wort(w, 1)); }},
    {"answer", [](auto &lauf, auto &w, auto &) { Beantworten(lauf, w); }},
    {"pick", [](auto &lauf, auto &w, auto &) { Wählen(lauf, Wort(w, 1), Wort(w, 2)); }},
    {"hover", [](auto &lauf, auto &w, auto &) { lauf.Läuft().haupt->PaletteBerührt(Zahl(Wort(w, 1))); }},
    {"drop", [](auto &lauf, auto &w, auto &) { Ablegen(lauf, w); }},
    {"hand", [](auto &lauf, auto &w, auto &) { lauf.Läuft().haupt->DateiÜbernehmen(w.size() > 1 ? Ab(w, 1) : ""); }},
    {"fail", [](auto &lauf, auto &w, auto &) { Stören(lauf.Läuft(), Wort(w, 1)); }},
    {"resize",
     [](auto &lauf, auto &w, auto &) { lauf.Läuft().innen.bereich.GrößeÄndern(Zahl(Wort(w, 1)), Zahl(Wort(w, 2))); }},
    {"clipboard", [](auto &lauf, auto &w, auto &) { AblageFüllen(lauf.Läuft(), Wort(w, 1)); }},
    {"window", [](auto &lauf, auto &w, auto &) { FensterStellen(lauf.Läuft(), w); }},
    {"close",
     [](auto &lauf, auto &, auto &) { lauf.aus << (lauf.Läuft().haupt->Schließen() ? "closed\n" : "open\n"); }},
    {"logout",
     [](auto &lauf, auto &, auto &) {
         lauf.aus << (lauf.Läuft().haupt->SitzungBeenden() ? "session ends\n" : "session stays\n");
     }},
    {"terminate", [](auto &lauf, auto &, auto &) { lauf.Läuft().haupt->Beenden(); }},
    {"wait", [](auto &lauf, auto &w, auto &) { Warten(lauf.Läuft(), Zahl(Wort(w, 1))); }},
    {"raise", [](auto &lauf, auto &w, auto &) { ZeitgeberAuslösen(lauf.Läuft(), Wort(w, 1)); }},
};

} // namespace

std::span<const Skriptbefehl> Bedienbefehle() { return Tabelle; }

} // namespace kw
