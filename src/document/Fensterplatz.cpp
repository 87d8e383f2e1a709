#include "document/Fensterplatz.h"

#include "document/Felder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

namespace kw {

namespace {

constexpr int Titelhöhe = 32; ///< the frame's, above the window: about what desktops have
constexpr int Griff = 100;    ///< so much of the title bar can be grasped
constexpr int Fernste = 100000;

std::optional<int> GanzzahlAus(std::string_view text) {
    int zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler != std::errc() || ende != text.data() + text.size() || std::abs(zahl) > Fernste) return std::nullopt;
    return zahl;
}

Schirmfläche Gemeinsam(const Schirmfläche &a, const Schirmfläche &b) {
    const int links = std::max(a.Left, b.Left);
    const int oben = std::max(a.Top, b.Top);
    return {links, oben, std::max(0, std::min(a.Left + a.Width, b.Left + b.Width) - links),
            std::max(0, std::min(a.Top + a.Height, b.Top + b.Height) - oben)};
}

Schirmfläche Umfassend(std::span<const Schirmfläche> schirme) {
    Schirmfläche um = schirme.front();
    for (const Schirmfläche &s : schirme) {
        const int rechts = std::max(um.Left + um.Width, s.Left + s.Width);
        const int unten = std::max(um.Top + um.Height, s.Top + s.Height);
        um.Left = std::min(um.Left, s.Left);
        um.Top = std::min(um.Top, s.Top);
        um.Width = rechts - um.Left;
        um.Height = unten - um.Top;
    }
    return um;
}

bool IstGreifbar(const Schirmfläche &fenster, std::span<const Schirmfläche> schirme) {
    const Schirmfläche titel{fenster.Left, fenster.Top - Titelhöhe, fenster.Width, Titelhöhe};
    return std::any_of(schirme.begin(), schirme.end(), [&](const Schirmfläche &schirm) {
        const Schirmfläche sichtbar = Gemeinsam(titel, schirm);
        return sichtbar.Width >= Griff && sichtbar.Height >= Titelhöhe / 2;
    });
}

/// The screen that has most of the window, the first one when none has any.
const Schirmfläche &Nächster(const Schirmfläche &fenster, std::span<const Schirmfläche> schirme) {
    const auto anteil = [&](const Schirmfläche &schirm) {
        const Schirmfläche gemeinsam = Gemeinsam(fenster, schirm);
        return static_cast<long long>(gemeinsam.Width) * gemeinsam.Height;
    };
    return *std::max_element(schirme.begin(), schirme.end(),
                             [&](const auto &a, const auto &b) { return anteil(a) < anteil(b); });
}

} // namespace

std::string FensterlageText(const Fensterlage &lage) {
    std::string text;
    for (const int zahl : {lage.Fläche.Left, lage.Fläche.Top, lage.Fläche.Width, lage.Fläche.Height})
        text += std::to_string(zahl) + ",";
    return text + (lage.Maximiert ? "1" : "0");
}

std::optional<Fensterlage> FensterlageAus(std::string_view text) {
    const Felder teile(text, ',');
    std::array<int, 5> zahlen{};
    if (teile.Anzahl() != static_cast<int>(zahlen.size())) return std::nullopt;
    for (size_t i = 0; i < zahlen.size(); ++i) {
        const auto zahl = GanzzahlAus(teile[static_cast<int>(i)]);
        if (!zahl) return std::nullopt;
        zahlen[i] = *zahl;
    }
    const auto [links, oben, breite, höhe, maximiert] = zahlen;
    if (breite <= 0 || höhe <= 0) return std::nullopt;
    return Fensterlage{{links, oben, breite, höhe}, maximiert != 0};
}

Fensterlage AufSchirmen(const Fensterlage &lage, std::span<const Schirmfläche> schirme) {
    if (schirme.empty()) return lage;
    const Schirmfläche &f = lage.Fläche;
    const Schirmfläche um = Umfassend(schirme);
    if (IstGreifbar(f, schirme) && f.Width <= um.Width && f.Height + Titelhöhe <= um.Height) return lage;
    const Schirmfläche &schirm = Nächster(f, schirme);
    Schirmfläche neu = f;
    neu.Width = std::min(f.Width, schirm.Width);
    neu.Height = std::min(f.Height, schirm.Height - Titelhöhe);
    neu.Left = std::clamp(f.Left, schirm.Left, schirm.Left + schirm.Width - neu.Width);
    neu.Top = std::clamp(f.Top, schirm.Top + Titelhöhe, schirm.Top + schirm.Height - neu.Height);
    return {neu, lage.Maximiert};
}

} // namespace kw
