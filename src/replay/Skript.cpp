#include "replay/Skript.h"

#include "app/Befehle.h"
#include "document/Codepage.h"
#include "document/Felder.h"
#include "document/Profil.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <map>
#include <utility>

#include <stdlib.h>

namespace kw {

struct Wiedergabe::Programm {
    Programm(std::ostream &aus, const Startangaben &start)
        : benutzer(aus), haupt({benutzer, drucker, uhr}, leinwand, start) {}
    DrehbuchBenutzer benutzer;
    DrehbuchDrucker drucker;
    DrehbuchUhr uhr;
    Aufzeichnung leinwand;
    frmMain haupt;
    Namen namen{haupt};
};

namespace {

/// Splits at blanks; double quotes hold blanks together, also inside a word, with \" and \\ in them.
std::vector<std::string> Zerlegt(const std::string &zeile) {
    std::vector<std::string> wörter;
    bool imWort = false;
    bool inAnführung = false;
    for (size_t i = 0; i < zeile.size(); ++i) {
        const char c = zeile[i];
        if (!inAnführung && (c == ' ' || c == '\t')) {
            imWort = false;
            continue;
        }
        if (!imWort) wörter.emplace_back();
        imWort = true;
        if (c == '"') inAnführung = !inAnführung;
        else if (inAnführung && c == '\\' && i + 1 < zeile.size() && (zeile[i + 1] == '"' || zeile[i + 1] == '\\'))
            wörter.back() += zeile[++i];
        else wörter.back() += c;
    }
    if (inAnführung) throw Skriptfehler("quotation mark not closed");
    return wörter;
}

std::vector<std::string> Geteilt(std::string_view text, char trenner) {
    std::vector<std::string> teile;
    for (bool mehr = true; mehr;) {
        mehr = text.find(trenner) != std::string_view::npos;
        teile.emplace_back(Abgetrennt(text, trenner));
    }
    return teile;
}

int Zahl(const std::string &text) {
    if (text.empty() || text.find_first_not_of("-0123456789.") != std::string::npos)
        throw Skriptfehler("not a number: " + text);
    const int zahl = Ganzzahl(ZahlLesen(text));
    constexpr int Grenze = 10'000'000; // twips, milliseconds or pixels: more is a slip
    if (zahl < -Grenze || zahl > Grenze) throw Skriptfehler("number out of range: " + text);
    return zahl;
}

const std::string &Wort(const std::vector<std::string> &w, size_t i) {
    if (i >= w.size()) throw Skriptfehler("a word is missing");
    return w[i];
}

/// The words from `i` on, blanks between them.
std::string Ab(const std::vector<std::string> &w, size_t i) {
    std::string text = Wort(w, i);
    for (++i; i < w.size(); ++i) text += " " + w[i];
    return text;
}

Datum DatumAus(const std::string &text) {
    const auto teile = Geteilt(text, '-');
    const Datum datum{Zahl(Wort(teile, 0)), Zahl(Wort(teile, 1)), Zahl(Wort(teile, 2))};
    if (DatumLesen(text, Datumsfolge::JahrMonatTag) != datum) throw Skriptfehler("not a date: " + text);
    return datum;
}

Datumsfolge FolgeAus(const std::string &text) {
    if (text == "de") return Datumsfolge::TagMonatJahr;
    if (text == "us") return Datumsfolge::MonatTagJahr;
    if (text == "iso") return Datumsfolge::JahrMonatTag;
    throw Skriptfehler("unknown locale: " + text);
}

} // namespace

Wiedergabe::Wiedergabe(std::ostream &aus) : aus_(aus) {
    std::error_code fehler;
    std::string muster = (std::filesystem::temp_directory_path(fehler) / "kinwright-replay-XXXXXX").string();
    if (::mkdtemp(muster.data())) ordner_ = muster;
}

Wiedergabe::~Wiedergabe() {
    std::error_code fehler;
    if (!ordner_.empty()) std::filesystem::remove_all(ordner_, fehler);
}

int Wiedergabe::Ausführen(std::istream &skript) {
    std::string zeile;
    while (std::getline(skript, zeile)) {
        ++zeilennummer_;
        try {
            Zeile(zeile, skript);
        } catch (const Skriptfehler &fehler) {
            aus_ << "line " << zeilennummer_ << ": " << fehler.what() << "\n";
            return 2;
        }
    }
    AntwortenPrüfen();
    return gescheitert_ ? 1 : 0;
}

void Wiedergabe::AntwortenPrüfen() {
    if (!programm_ || programm_->benutzer.Antworten.empty()) return;
    aus_ << "answers left over: " << programm_->benutzer.Antworten.size() << "\n";
    gescheitert_ = true;
}

void Wiedergabe::Zeile(const std::string &roh, std::istream &skript) {
    std::string zeile = roh;
    if (zeile.ends_with('\r')) zeile.pop_back();
    if (zeile.starts_with('#')) return;
    const Wörter w = Zerlegt(zeile);
    if (w.empty()) return;
    const std::map<std::string, std::function<void()>> befehle{
        {"start", [&] { Starten(w); }},
        {"store", [&] { Ablegen(w); }},
        {"set", [&] { Setzen(w); }},
        {"load", [&] { Läuft().haupt.projekt.Öffnen(Ab(w, 1)); }},
        {"save",
         [&] {
             Läuft().haupt.projekt.Projektdatei = Ab(w, 1);
             Läuft().haupt.projekt.ProjektSchreiben();
         }},
        {"print", [&] { Drucken(w); }},
        {"expect", [&] { Erwarten(zeile); }},
        {"draw", [&] { Zeichnen(w); }},
        {"age", [&] { AlterBerechnen(w.size() > 1 ? Ab(w, 1) : ""); }},
        {"profil", [&] { Profilaufrufe(Ab(w, 1), skript); }},
        {"wait", [&] { Warten(Zahl(Wort(w, 1))); }},
        {"raise", [&] { ZeitgeberAuslösen(Wort(w, 1)); }},
        {"answer", [&] { Beantworten(w); }},
        {"close", [&] { Schließen(); }},
        {"menu", [&] { MenüWählen(Wort(w, 1)); }},
        {"wheel",
         [&] {
             if (Wort(w, 1) != "up" && w[1] != "down") throw Skriptfehler("unknown word: " + w[1]);
             Läuft().haupt.bereich.Mausrad(w[1] == "up");
         }},
        {"resize", [&] { GrößeÄndern(w); }},
        {"pick", [&] { Wählen(w); }},
    };
    const auto befehl = befehle.find(w[0]);
    if (befehl == befehle.end()) throw Skriptfehler("unknown command: " + w[0]);
    befehl->second();
}

void Wiedergabe::Starten(const Wörter &w) {
    AntwortenPrüfen();
    if (ordner_.empty()) throw Skriptfehler("no folder for the run's own settings; see TMPDIR");
    constexpr std::string_view Bekannt[] = {"ini", "cmd", "today", "screen", "printers", "margins", "locale"};
    std::map<std::string, std::string> angaben{{"today", "2026-03-12"}, {"screen", "1920x1080"}, {"locale", "de"}};
    for (size_t i = 1; i < w.size(); ++i) {
        std::string_view rest = w[i];
        const std::string name(Abgetrennt(rest, '='));
        if (std::find(std::begin(Bekannt), std::end(Bekannt), name) == std::end(Bekannt))
            throw Skriptfehler("unknown word: " + name);
        angaben[name] = rest;
    }
    const auto bild = Geteilt(angaben["screen"], 'x');
    Startangaben start;
    start.Kommandozeile = angaben["cmd"];
    start.IniDatei = angaben.contains("ini") ? angaben["ini"] : ordner_ + "/prog" + std::to_string(++starts_) + ".ini";
    start.BildschirmBreite = Zahl(Wort(bild, 0)) * TwipsJePixel;
    start.BildschirmHöhe = Zahl(Wort(bild, 1)) * TwipsJePixel;
    programm_ = std::make_unique<Programm>(aus_, start);
    Programm &p = *programm_;
    p.uhr.Tag = DatumAus(angaben["today"]);
    p.uhr.Reihenfolge = FolgeAus(angaben["locale"]);
    if (!angaben["printers"].empty()) p.drucker.Namen = Geteilt(angaben["printers"], ';');
    if (angaben.contains("margins")) {
        const auto rand = Geteilt(angaben["margins"], ',');
        p.drucker.Rand = {ZahlLesen(Wort(rand, 0)), ZahlLesen(Wort(rand, 1)), ZahlLesen(Wort(rand, 2)),
                          ZahlLesen(Wort(rand, 3))};
    }
    alter_ = std::make_unique<Altersberechnung>(p.uhr);
    p.haupt.Laden();
}

Wiedergabe::Programm &Wiedergabe::Läuft() {
    if (!programm_) Starten({});
    return *programm_;
}

void Wiedergabe::Ablegen(const Wörter &w) {
    const auto &listen = Läuft().namen.Listen;
    const auto liste = listen.find(Wort(w, 1));
    if (liste == listen.end()) throw Skriptfehler("unknown store: " + w[1]);
    liste->second->Anhängen(Ab(w, 2));
}

void Wiedergabe::Setzen(const Wörter &w) {
    Programm &p = Läuft();
    const auto variable = p.namen.Variablen.find(Wort(w, 1));
    if (variable == p.namen.Variablen.end() || !variable->second.Setzen)
        throw Skriptfehler("no variable to set: " + w[1]);
    variable->second.Setzen(w.size() > 2 ? Ab(w, 2) : "");
}

std::string Wiedergabe::Wert(const std::string &name) {
    Programm &p = Läuft();
    if (const auto v = p.namen.Variablen.find(name); v != p.namen.Variablen.end()) return v->second.Lesen();
    if (const auto l = p.namen.Listen.find(name); l != p.namen.Listen.end()) return std::to_string(l->second->Anzahl());
    throw Skriptfehler("unknown name: " + name);
}

std::string Wiedergabe::Zustand(const std::string &frage, const std::string &name) {
    const Bedienelement *element = Läuft().haupt.bedienung.Finden(name);
    if (!element) throw Skriptfehler("unknown element: " + name);
    if (frage == "caption") return element->Caption;
    if (frage == "enabled") return std::to_string(element->Enabled);
    if (frage == "visible") return std::to_string(element->Visible);
    if (frage == "checked") return std::to_string(element->Checked);
    throw Skriptfehler("unknown word: " + frage);
}

void Wiedergabe::Erwarten(const std::string &zeile) {
    const size_t gleich = zeile.find(" = ");
    const bool leer = gleich == std::string::npos && zeile.ends_with(" =");
    if (gleich == std::string::npos && !leer) throw Skriptfehler("expect NAME = VALUE");
    const Wörter links = Zerlegt(zeile.substr(0, leer ? zeile.size() - 2 : gleich));
    std::string soll(leer ? "" : Getrimmt(std::string_view(zeile).substr(gleich + 3)));
    if (soll.size() > 1 && soll.starts_with('"') && soll.ends_with('"')) soll = Ab(Zerlegt(soll), 0);
    const std::string ist = links.size() > 2 ? Zustand(links[1], links[2]) : Wert(Wort(links, 1));
    if (ist == soll) return;
    aus_ << "line " << zeilennummer_ << ": expected " << Ab(links, 1) << " = " << soll << ", found " << ist << "\n";
    gescheitert_ = true;
}

void Wiedergabe::Drucken(const Wörter &w) {
    Programm &p = Läuft();
    const std::string &name = Wort(w, 1);
    if (name == "boxes") {
        aus_ << p.benutzer.Kästen;
        p.benutzer.Kästen.clear();
        return;
    }
    if (name == "shape") {
        const auto fläche = p.namen.Flächen.find(Wort(w, 2));
        if (fläche == p.namen.Flächen.end()) throw Skriptfehler("unknown shape: " + w[2]);
        const Steuerfläche s = fläche->second();
        aus_ << w[2] << " " << s.Left << " " << s.Top << " " << s.Width << " " << s.Height
             << (s.Visible ? " visible\n" : " hidden\n");
        return;
    }
    if (w.size() > 2) { // caption|enabled|visible|checked NAME
        const std::string zustand = Zustand(name, w[2]);
        aus_ << name << " " << w[2] << " = " << zustand << "\n";
        return;
    }
    if (const auto liste = p.namen.Listen.find(name); liste != p.namen.Listen.end()) {
        aus_ << name << " " << liste->second->Anzahl() << "\n";
        for (const auto &satz : *liste->second) aus_ << "  " << satz << "\n";
        return;
    }
    aus_ << name << " = " << Wert(name) << "\n";
}

void Wiedergabe::Zeichnen(const Wörter &w) {
    Programm &p = Läuft();
    Aufzeichnung papier;
    Aufzeichnung &fläche = w.size() > 1 ? papier : p.leinwand;
    fläche.Text.clear();
    fläche.Schreibt = true;
    if (w.size() == 1) p.haupt.Vorschau();
    else if (w[1] != "printing") throw Skriptfehler("unknown word: " + w[1]);
    else {
        const Ansicht &a = p.haupt.ansicht;
        const auto twips = [](double cm) { return static_cast<int>(std::nearbyint(cm * TwipsJeCm)); };
        papier.GrößeSetzen(twips(a.SeitenBreite), twips(a.SeitenHöhe));
        papier.PixelJeCm = DruckPixelJeCm;
        papier.Scale(a.SeitenBreite, a.SeitenHöhe, 1);
        Zeichnung bild = p.haupt.DasBild();
        DruckZeichnen(papier, bild);
    }
    fläche.Schreibt = false;
    aus_ << fläche.Text;
}

void Wiedergabe::Warten(int ms) {
    DrehbuchBenutzer &b = Läuft().benutzer;
    const int ende = b.Jetzt + ms;
    while (true) {
        const auto nächster = std::min_element(b.ZeitgeberListe.begin(), b.ZeitgeberListe.end(),
                                               [](const auto &x, const auto &y) { return x.Fällig < y.Fällig; });
        if (nächster == b.ZeitgeberListe.end() || nächster->Fällig > ende) break;
        b.Jetzt = nächster->Fällig;
        ZeitgeberAuslösen(std::string(nächster->Name));
    }
    b.Jetzt = ende;
}

void Wiedergabe::ZeitgeberAuslösen(const std::string &name) {
    Programm &p = Läuft();
    if (name != "Timer2") throw Skriptfehler("unknown timer: " + name);
    std::erase_if(p.benutzer.ZeitgeberListe, [&](const auto &z) { return z.Name == name; });
    p.haupt.ZeitgeberAbgelaufen(name);
}

void Wiedergabe::Beantworten(const Wörter &w) {
    const std::map<std::string, Antwort> knöpfe{
        {"yes", Antwort::Ja}, {"no", Antwort::Nein}, {"cancel", Antwort::Abbrechen}, {"ok", Antwort::Ok}};
    DrehbuchBenutzer::Vorbereitet antwort;
    if (Wort(w, 1) == "file" || w[1] == "colour") {
        using Art = DrehbuchBenutzer::Vorbereitet::Art;
        antwort.Wofür = w[1] == "file" ? Art::Datei : Art::Farbwert;
        antwort.Wert = Ab(w, 2);
        antwort.Abgebrochen = antwort.Wert == "cancel";
    } else {
        const auto knopf = knöpfe.find(w[1]);
        if (knopf == knöpfe.end()) throw Skriptfehler("unknown answer: " + w[1]);
        antwort.Knopf = knopf->second;
    }
    Läuft().benutzer.Antworten.push_back(antwort);
}

void Wiedergabe::Schließen() { aus_ << (Läuft().haupt.Schließen() ? "closed\n" : "open\n"); }

void Wiedergabe::MenüWählen(const std::string &name) {
    Programm &p = Läuft();
    const Befehl *befehl = BefehlFinden(name);
    if (!befehl) throw Skriptfehler("unknown menu entry: " + name);
    const Bedienelement *element = p.haupt.bedienung.Finden(name);
    if (element && !(element->Enabled && element->Visible)) {
        aus_ << "disabled " << name << "\n";
        return;
    }
    befehl->Ausführen(p.haupt);
    if (std::exchange(p.benutzer.SchließenVerlangt, false)) Schließen();
}

void Wiedergabe::AlterBerechnen(const std::string &text) {
    Läuft();
    alter_->AlterAusDatum(text);
    aus_ << alter_->strGebDatumText << "\n"
         << alter_->strAlterText << "\n"
         << alter_->strGebJahrText << "\n"
         << alter_->bDatumUngueltig << "\n";
}

void Wiedergabe::Profilaufrufe(const std::string &datei, std::istream &skript) {
    const auto zeigen = [&](char art, std::string text) {
        const size_t länge = NachCodepage(text).size();
        std::replace(text.begin(), text.end(), '\0', '|');
        aus_ << art << " " << länge << " [" << text << "]\n";
    };
    std::string zeile;
    while (std::getline(skript, zeile)) {
        ++zeilennummer_;
        if (zeile.ends_with('\r')) zeile.pop_back();
        if (zeile == "end") return;
        if (zeile.empty()) continue;
        const auto t = Geteilt(zeile, '\t');
        const std::string &abschnitt = Wort(t, 1);
        if (t[0] == "W")
            aus_ << "W " << ProfilSchreiben(datei, abschnitt, Wort(t, 2), t.size() > 3 ? t[3] : "") << "\n";
        else if (t[0] == "D") aus_ << "D " << ProfilSchreiben(datei, abschnitt, std::nullopt, "") << "\n";
        else if (t[0] == "R") zeigen('R', ProfilLesen(datei, abschnitt, Wort(t, 2)));
        else if (t[0] == "K") zeigen('K', ProfilLesen(datei, abschnitt, std::nullopt));
        else throw Skriptfehler("unknown call: " + t[0]);
    }
    throw Skriptfehler("profil without end");
}

void Wiedergabe::GrößeÄndern(const Wörter &w) { Läuft().haupt.bereich.GrößeÄndern(Zahl(Wort(w, 1)), Zahl(Wort(w, 2))); }

void Wiedergabe::Wählen(const Wörter &w) {
    if (Wort(w, 1) != "cboBildGröße") throw Skriptfehler("unknown list: " + w[1]);
    Arbeitsbereich &bereich = Läuft().haupt.bereich;
    const int i = Zahl(Wort(w, 2));
    if (i < 0 || i >= bereich.cboBildGröße.Anzahl()) throw Skriptfehler("no such entry: " + w[2]);
    bereich.ZoomWählen(i);
}

} // namespace kw
