#include "replay/Skriptbefehle.h"

#include "app/frmMain.h"
#include "replay/Programm.h"

#include <cmath>
#include <utility>

namespace kw {

namespace {

struct Ort {
    double X; ///< cm on the page
    double Y;
};

Ort OrtAus(const Wörter &w, size_t i) { return {Dezimalzahl(Wort(w, i)), Dezimalzahl(Wort(w, i + 1))}; }

int TasteAus(const std::string &wort) {
    if (wort == "left") return TasteLinks;
    if (wort == "right") return TasteRechts;
    throw Skriptfehler("unknown word: " + wort);
}

void Drücken(Programm &p, int taste, Ort ort) {
    p.Taste = taste;
    p.haupt->MouseDown(taste, ort.X, ort.Y);
}

void Bewegen(Programm &p, Ort ort) { p.haupt->MouseMove(p.Taste, ort.X, ort.Y); }

void Loslassen(Programm &p, Ort ort) { p.haupt->MouseUp(std::exchange(p.Taste, TasteKeine), ort.X, ort.Y); }

void Klicken(Programm &p, int taste, Ort ort) {
    Bewegen(p, ort);
    Drücken(p, taste, ort);
    Loslassen(p, ort);
}

void Ziehen(Programm &p, Ort von, Ort nach) {
    constexpr int Schritte = 4;
    Bewegen(p, von);
    Drücken(p, TasteLinks, von);
    for (int i = 1; i <= Schritte; ++i) {
        const double anteil = static_cast<double>(i) / Schritte;
        Bewegen(p, {std::lerp(von.X, nach.X, anteil), std::lerp(von.Y, nach.Y, anteil)});
    }
    Loslassen(p, nach);
}

void Rad(Programm &p, const std::string &richtung) {
    if (richtung != "up" && richtung != "down") throw Skriptfehler("unknown word: " + richtung);
    p.innen.bereich.Mausrad(richtung == "up");
}

constexpr Skriptbefehl Tabelle[] = {
    {"down", [](auto &lauf, auto &w, auto &) { Drücken(lauf.Läuft(), TasteAus(Wort(w, 1)), OrtAus(w, 2)); }},
    {"move", [](auto &lauf, auto &w, auto &) { Bewegen(lauf.Läuft(), OrtAus(w, 1)); }},
    {"up", [](auto &lauf, auto &w, auto &) { Loslassen(lauf.Läuft(), OrtAus(w, 1)); }},
    {"dblclick",
     [](auto &lauf, auto &w, auto &) {
         const Ort ort = OrtAus(w, 1);
         lauf.Läuft().haupt->DblClick(ort.X, ort.Y);
     }},
    {"click", [](auto &lauf, auto &w, auto &) { Klicken(lauf.Läuft(), TasteLinks, OrtAus(w, 1)); }},
    {"rclick", [](auto &lauf, auto &w, auto &) { Klicken(lauf.Läuft(), TasteRechts, OrtAus(w, 1)); }},
    {"drag", [](auto &lauf, auto &w, auto &) { Ziehen(lauf.Läuft(), OrtAus(w, 1), OrtAus(w, 3)); }},
    {"wheel", [](auto &lauf, auto &w, auto &) { Rad(lauf.Läuft(), Wort(w, 1)); }},
};

} // namespace

std::span<const Skriptbefehl> Zeigerbefehle() { return Tabelle; }

} // namespace kw
