#include "replay/Woerter.h"

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

Wörter Zerlegt(const std::string &zeile) {
    Wörter wörter;
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

Wörter Geteilt(std::string_view text, char trenner) {
    Wörter teile;
    for (bool mehr = true; mehr;) {
        mehr = text.find(trenner) != std::string_view::npos;
        teile.emplace_back(Abgetrennt(text, trenner));
    }
    return teile;
}

const std::string &Wort(const Wörter &w, size_t i) {
    if (i >= w.size()) throw Skriptfehler("a word is missing");
    return w[i];
}

std::string Ab(const Wörter &w, size_t i) {
    std::string text = Wort(w, i);
    for (++i; i < w.size(); ++i) text += " " + w[i];
    return text;
}

std::string EineZeile(const std::string &text) { return Ersetzt(text, "\n", "\\n"); }

double Dezimalzahl(const std::string &text) {
    const auto ziffern = std::string_view(text).substr(text.starts_with('-') ? 1 : 0);
    if (ziffern.find_first_not_of("0123456789.") != std::string_view::npos ||
        ziffern.find_first_not_of('.') == std::string_view::npos || std::count(ziffern.begin(), ziffern.end(), '.') > 1)
        throw Skriptfehler("not a number: " + text);
    const double zahl = ZahlLesen(text);
    constexpr double Grenze = 10'000'000; // centimetres, twips, milliseconds or pixels: more is a slip
    if (zahl < -Grenze || zahl > Grenze) throw Skriptfehler("number out of range: " + text);
    return zahl;
}

int Zahl(const std::string &text) { return static_cast<int>(Dezimalzahl(text)); }

} // namespace kw
