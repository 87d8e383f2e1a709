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

bool NachOben(const std::string &richtung) {
    if (richtung != "up" && richtung != "down") throw Skriptfehler("unknown word: " + richtung);
    return richtung == "up";
}

Rahmenort ImRahmen(const Programm &p, Ort ort) {
    return p.innen.bereich.InRahmen(ort.X, ort.Y, p.innen.ansicht.SeitenBreite);
}

/// A notch of the wheel, over that place of the page when one is given.
void Rad(Programm &p, const Wörter &w) {
    const bool hoch = NachOben(Wort(w, 1));
    if (w.size() == 2) return p.innen.bereich.Mausrad(hoch);
    p.haupt->MausradZählen(hoch);
    p.haupt->MausradFolgen(ImRahmen(p, OrtAus(w, 2)));
}

/// `up` or `down`: a notch of the wheel that scrolls. Two numbers: two fingers, twips.
void Scrollen(Programm &p, const Wörter &w) {
    if (w.size() == 2) p.haupt->MitRadScrollen(0, NachOben(w[1]) ? 1 : -1);
    else p.haupt->ScrollenUm(Zahl(Wort(w, 1)), Zahl(Wort(w, 2)));
}

/// The hand takes the page and draws it that way, twips, in two moves.
void Schieben(Programm &p, int dx, int dy) {
    p.haupt->SeiteFassen({0, 0});
    p.haupt->SeiteSchieben({dx / 2, dy / 2});
    p.haupt->SeiteSchieben({dx, dy});
}

/// The pointer goes to a place of the page and rests there for some ticks of the clock that scrolls at the edge.
void Halten(Programm &p, Ort ort, int takte) {
    const Rahmenort zeiger = ImRahmen(p, ort);
    Bewegen(p, ort);
    for (; takte > 0 && p.haupt->AmRandScrollen(zeiger); --takte) {
        const Rahmenort null = ImRahmen(p, {0, 0});
        const double cm = p.innen.ansicht.SeitenBreite / p.innen.bereich.picVorschau().Width;
        Bewegen(p, {(zeiger.X - null.X) * cm, (zeiger.Y - null.Y) * cm});
    }
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
    {"wheel", [](auto &lauf, auto &w, auto &) { Rad(lauf.Läuft(), w); }},
    {"scroll", [](auto &lauf, auto &w, auto &) { Scrollen(lauf.Läuft(), w); }},
    {"pan", [](auto &lauf, auto &w, auto &) { Schieben(lauf.Läuft(), Zahl(Wort(w, 1)), Zahl(Wort(w, 2))); }},
    {"beside", [](auto &lauf, auto &w, auto &) { lauf.Läuft().haupt->DanebenGedrückt(TasteAus(Wort(w, 1))); }},
    {"hold", [](auto &lauf, auto &w, auto &) { Halten(lauf.Läuft(), OrtAus(w, 1), Zahl(Wort(w, 3))); }},
};

} // namespace

std::span<const Skriptbefehl> Zeigerbefehle() { return Tabelle; }

} // namespace kw
