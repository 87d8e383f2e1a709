#include "replay/Skript.h"

#include "app/Startangaben.h"
#include "app/frmMain.h"
#include "document/Felder.h"
#include "document/Zahlen.h"
#include "replay/Programm.h"
#include "replay/Skriptbefehle.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <utility>

#include <stdlib.h>

namespace kw {

namespace {

using Befehlsverzeichnis = std::map<std::string_view, decltype(Skriptbefehl::Ausführen)>;

Befehlsverzeichnis AlleBefehle() {
    Befehlsverzeichnis alle{{"start", [](Wiedergabe &lauf, const Wörter &w, const std::string &) { lauf.Starten(w); }}};
    for (const auto &gruppe : {Zeigerbefehle(), Bedienbefehle(), Zustandsbefehle(), Einzelaufrufe(), Dateibefehle()})
        for (const Skriptbefehl &befehl : gruppe) alle[befehl.Name] = befehl.Ausführen;
    return alle;
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

using Angaben = std::map<std::string, std::string>;

/// What the line says beyond the defaults.
Angaben AngabenAus(const Wörter &w) {
    constexpr std::string_view Bekannt[] = {"ini",     "cmd",    "today",     "screen", "printers",
                                            "margins", "locale", "documents", "state"};
    Angaben angaben{{"today", "2026-03-12"}, {"screen", "1920x1080"}, {"locale", "de"}};
    for (size_t i = 1; i < w.size(); ++i) {
        std::string_view rest = w[i];
        const std::string name(Abgetrennt(rest, '='));
        if (std::find(std::begin(Bekannt), std::end(Bekannt), name) == std::end(Bekannt))
            throw Skriptfehler("unknown word: " + name);
        angaben[name] = rest;
    }
    return angaben;
}

void PlattformEinrichten(Programm &p, Angaben &angaben) {
    p.uhr.Tag = DatumAus(angaben["today"]);
    p.uhr.Reihenfolge = FolgeAus(angaben["locale"]);
    if (!angaben["printers"].empty()) p.drucker.Namen = Geteilt(angaben["printers"], ';');
    if (!angaben.contains("margins")) return;
    const auto rand = Geteilt(angaben["margins"], ',');
    p.drucker.Rand = {ZahlLesen(Wort(rand, 0)), ZahlLesen(Wort(rand, 1)), ZahlLesen(Wort(rand, 2)),
                      ZahlLesen(Wort(rand, 3))};
}

} // namespace

std::vector<std::string> Befehlsnamen() {
    std::vector<std::string> namen;
    for (const auto &[name, befehl] : AlleBefehle()) namen.emplace_back(name);
    return namen;
}

Wiedergabe::Wiedergabe(std::ostream &aus_) : aus(aus_) {
    std::error_code fehler;
    std::string muster = (std::filesystem::temp_directory_path(fehler) / "kinwright-replay-XXXXXX").string();
    if (::mkdtemp(muster.data())) ordner_ = muster;
}

Wiedergabe::~Wiedergabe() {
    Beenden();
    std::error_code fehler;
    if (!ordner_.empty()) std::filesystem::remove_all(ordner_, fehler);
}

int Wiedergabe::Ausführen(std::istream &skript) {
    skript_ = &skript;
    std::string zeile;
    try {
        while (NächsteZeile(zeile)) Zeile(zeile);
    } catch (const Skriptfehler &fehler) {
        aus << "line " << zeilennummer_ << ": " << fehler.what() << "\n";
        skript_ = nullptr;
        return 2;
    }
    skript_ = nullptr;
    AntwortenPrüfen();
    return gescheitert_ ? 1 : 0;
}

bool Wiedergabe::NächsteZeile(std::string &zeile) {
    if (!skript_ || !std::getline(*skript_, zeile)) return false;
    ++zeilennummer_;
    if (zeile.ends_with('\r')) zeile.pop_back();
    return true;
}

void Wiedergabe::Zeile(const std::string &zeile) {
    static const Befehlsverzeichnis Befehle = AlleBefehle();
    if (zeile.starts_with('#')) return;
    const Wörter w = Zerlegt(zeile);
    if (w.empty()) return;
    const auto befehl = Befehle.find(w[0]);
    if (befehl == Befehle.end()) throw Skriptfehler("unknown command: " + w[0]);
    befehl->second(*this, w, zeile);
    // The window is asked to close behind the event that wants it, as a desktop does.
    if (programm_ && std::exchange(programm_->benutzer.SchließenVerlangt, false)) Zeile("close");
}

void Wiedergabe::Abstürzen() { programm_.reset(); }

void Wiedergabe::Beenden() {
    if (programm_) programm_->haupt->Beenden();
    programm_.reset();
}

void Wiedergabe::Starten(const Wörter &w) {
    AntwortenPrüfen();
    Beenden();
    if (ordner_.empty()) throw Skriptfehler("no folder for the run's own settings; see TMPDIR");
    Angaben angaben = AngabenAus(w);
    ++starts_;
    const auto bild = Geteilt(angaben["screen"], 'x');
    Startangaben start;
    start.Kommandozeile = angaben["cmd"];
    start.IniDatei = angaben.contains("ini") ? angaben["ini"] : ordner_ + "/prog" + std::to_string(starts_) + ".ini";
    // The program stands beside settings that a script names, else where the script runs.
    start.Programmordner = std::filesystem::path(angaben["ini"]).parent_path().string();
    if (start.Programmordner.empty()) start.Programmordner = ".";
    start.Dokumentordner = angaben.contains("documents") ? angaben["documents"] : ordner_;
    start.Netzordner = angaben.contains("state") ? angaben["state"] : ordner_ + "/netz" + std::to_string(starts_);
    start.Hilfeordner = "/usr/share/kinwright/help";
    start.BildschirmBreite = Zahl(Wort(bild, 0)) * TwipsJePixel;
    start.BildschirmHöhe = Zahl(Wort(bild, 1)) * TwipsJePixel;
    programm_ = std::make_unique<Programm>(aus, start);
    programm_->benutzer.FormularSpielen = [this](Formular &form, const std::vector<std::string> &zeilen) {
        Formularspiel(*this, form).Spielen(zeilen);
    };
    programm_->benutzer.Schirm = {0, 0, Zahl(Wort(bild, 0)), Zahl(Wort(bild, 1))};
    PlattformEinrichten(*programm_, angaben);
    programm_->Laden();
}

Programm &Wiedergabe::Läuft() {
    if (!programm_) Starten({});
    return *programm_;
}

void Wiedergabe::Scheitern(const std::string &befund) {
    aus << "line " << zeilennummer_ << ": " << befund << "\n";
    gescheitert_ = true;
}

void Wiedergabe::AntwortenPrüfen() {
    if (!programm_) return;
    const DrehbuchBenutzer &b = programm_->benutzer;
    if (!b.Antworten.empty()) aus << "answers left over: " << b.Antworten.size() << "\n";
    if (!b.Menüwahlen.empty()) aus << "popups left over: " << b.Menüwahlen.size() << "\n";
    if (!b.Formulare.empty()) aus << "forms left over: " << b.Formulare.size() << "\n";
    gescheitert_ = gescheitert_ || !b.Antworten.empty() || !b.Menüwahlen.empty() || !b.Formulare.empty();
}

} // namespace kw
