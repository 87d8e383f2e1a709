#include "replay/Aufzeichnung.h"

#include "document/Texte.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kw {

namespace {

/// Marks wholly left of or above this are parked, and not recorded.
constexpr double Rand = -1;

std::string Hex(Farbe farbe) {
    const Farbe f = Aufgelöst(farbe);
    char text[8];
    std::snprintf(text, sizeof text, "%02X%02X%02X", f & 0xFFU, f >> 8U & 0xFFU, f >> 16U & 0xFFU);
    return text;
}

std::string Reihe(std::initializer_list<double> werte) {
    std::string text;
    for (const double wert : werte) text += " " + Knapp(wert);
    return text;
}

bool Geparkt(double rechts, double unten) { return rechts < Rand || unten < Rand; }

} // namespace

std::string Knapp(double wert) {
    char puffer[400];
    std::snprintf(puffer, sizeof puffer, "%.4f", wert);
    std::string text = puffer;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string InAnführung(std::string_view text) {
    std::string ergebnis = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') ergebnis += '\\';
        ergebnis += c;
    }
    return ergebnis + "\"";
}

std::string Aufzeichnung::Füllung() const { return " fill=" + (FillStyle == Gefüllt ? Hex(FillColor) : "none"); }

double Aufzeichnung::Punkt() const { return 2.54 / 72 / Faktor(); }

void Aufzeichnung::Ebene(std::string_view name) {
    if (Schreibt) Text.append("layer ").append(name).append("\n");
}

void Aufzeichnung::Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe) {
    if (!Schreibt || Geparkt(std::max(x1, x2), std::max(y1, y2))) return;
    const bool kasten = (flags & Kasten) == Kasten;
    Text += (kasten ? "box" : "line") + Reihe({x1, y1, x2, y2}) + " pen=" + Hex(Stift(flags, farbe)) +
            " width=" + std::to_string(DrawWidth) + " style=" + std::to_string(DrawStyle) + (kasten ? Füllung() : "") +
            "\n";
}

void Aufzeichnung::Circle(int flags, double x, double y, double radius, Farbe farbe) {
    if (!Schreibt || Geparkt(x + radius, y + radius)) return;
    Text += "circle" + Reihe({x, y, radius}) + " pen=" + Hex(Stift(flags, farbe)) +
            " width=" + std::to_string(DrawWidth) + Füllung() + "\n";
}

void Aufzeichnung::Torte(int flags, double x, double y, double radius, Farbe farbe, double von, double bis) {
    if (!Schreibt || Geparkt(x + radius, y + radius)) return;
    Text += "arc" + Reihe({x, y, radius, von, bis}) + " pen=" + Hex(Stift(flags, farbe)) +
            " width=" + std::to_string(DrawWidth) + Füllung() + "\n";
}

void Aufzeichnung::Polygon(std::span<const Bildpunkt> punkte) {
    if (!Schreibt || punkte.empty()) return;
    Bildpunkt äußerster = punkte.front();
    for (const auto &p : punkte) äußerster = {std::max(äußerster.X, p.X), std::max(äußerster.Y, p.Y)};
    const double pixel = PixelJeCm > 0 ? PixelJeCm : BildschirmPixelJeCm * Faktor();
    if (Geparkt(äußerster.X / pixel, äußerster.Y / pixel)) return;
    Text += "polygon";
    for (const auto &p : punkte) Text += " " + std::to_string(p.X) + "," + std::to_string(p.Y);
    Text += " pen=" + Hex(ForeColor) + " width=" + std::to_string(DrawWidth) + Füllung() + "\n";
}

void Aufzeichnung::TextZeichnen(std::string_view text) {
    if (!Schreibt || Geparkt(CurrentX + TextWidth(text), CurrentY + TextHeight())) return;
    Text += "text" + Reihe({CurrentX, CurrentY}) + " " + InAnführung(text) + " font=" + InAnführung(FontName) +
            " size=" + Knapp(FontSize / Faktor()) + " bold=" + std::to_string(FontBold) +
            " italic=" + std::to_string(FontItalic) + " underline=" + std::to_string(FontUnderline) +
            " color=" + Hex(ForeColor) + " opaque=" + std::to_string(!FontTransparent) + "\n";
}

double Aufzeichnung::TextWidth(std::string_view text) { return Zeichenzahl(text) * 0.6 * FontSize * Punkt(); }

double Aufzeichnung::TextHeight() { return 1.2 * FontSize * Punkt(); }

} // namespace kw
