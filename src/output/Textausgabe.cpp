#include "output/Textausgabe.h"

#include "document/Dateien.h"
#include "document/Texte.h"
#include "output/Fehlertexte.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"
#include "rendering/Zeichenflaeche.h"

#include <algorithm>

namespace kw {

namespace {

constexpr Zweisprachig Zieltitel{"Bericht speichern unter", "Save Report As"};
constexpr double Zeilenlänge = 59;     ///< font sizes: 9 points of it stay on the narrowest sheet's 19 cm
constexpr std::size_t Blattlänge = 56; ///< lines
constexpr double Schriftgrad = 9;
constexpr double Zeilenhöhe = 0.44; ///< cm
constexpr double Rand = 1;

/// Of a character by its first byte, in font sizes; none of the usual fonts' is wider.
double Zeichenbreite(char erstes) {
    if (IstFortsetzung(erstes)) return 0;
    const auto byte = static_cast<unsigned char>(erstes);
    if (byte >= 0xE1) return 1; // scripts of whole squares
    if (byte >= 0x80 || (byte >= 'A' && byte <= 'Z')) return std::string_view("MW").find(erstes) < 2 ? 0.95 : 0.75;
    return std::string_view("mw@%").find(erstes) == std::string_view::npos ? 0.56 : 1;
}

/// Bytes of what stays on a line, less those behind the last blank of a longer text.
std::size_t Umbruchstelle(std::string_view text) {
    std::size_t i = 0;
    for (double platz = Zeilenlänge; i < text.size(); ++i)
        if ((platz -= Zeichenbreite(text[i])) < 0 && !IstFortsetzung(text[i])) break;
    if (i == text.size()) return i;
    const std::size_t lücke = text.substr(0, i).rfind(' ');
    return lücke == std::string_view::npos || lücke < i / 2 ? i : lücke + 1;
}

} // namespace

void TextSpeichern(Benutzer &benutzer, Sprache sprache, const std::string &titel, const std::string &text) {
    const Dateiwahl wahl{std::string(Zieltitel.In(sprache)), titel, "Text (*.txt)|*.txt", benutzer.Desktopordner()};
    const auto datei = ZieldateiWählen(benutzer, wahl, sprache);
    if (!datei) return;
    if (const auto grund = Fehlgrund([&] { return DateiSchreiben(*datei, text).Grund; }))
        NichtGeschriebenMelden(benutzer, sprache, *datei, *grund);
}

std::vector<std::vector<std::string>> Textblätter(const std::string &text) {
    std::vector<std::vector<std::string>> blätter(1);
    const auto zeile = [&](std::string_view teil) {
        if (blätter.back().size() == Blattlänge) blätter.emplace_back();
        blätter.back().emplace_back(teil);
    };
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t ende = std::min(text.find('\n', i), text.size());
        std::string_view rest = std::string_view(text).substr(i, ende - i);
        do {
            const std::size_t stück = Umbruchstelle(rest);
            zeile(rest.substr(0, stück));
            rest.remove_prefix(stück);
        } while (!rest.empty());
        i = ende + 1;
    }
    return blätter;
}

void TextblattZeichnen(Zeichenfläche &papier, const std::string &kopf, const std::vector<std::string> &zeilen) {
    papier.FontName = "Arial";
    papier.FontSize = Schriftgrad * papier.Faktor();
    papier.FontItalic = papier.FontUnderline = false;
    papier.FontTransparent = true;
    papier.ForeColor = Schwarz;
    papier.CurrentY = Rand;
    const auto drucken = [&](const std::string &zeile, bool fett) {
        papier.FontBold = fett;
        const double y = papier.CurrentY;
        papier.CurrentX = Rand;
        papier.Print(zeile);
        papier.CurrentY = y + Zeilenhöhe;
    };
    drucken(kopf, true);
    papier.CurrentY += Zeilenhöhe;
    for (const std::string &zeile : zeilen) drucken(zeile, false);
}

} // namespace kw
