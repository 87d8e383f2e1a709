#include "keyboard/Tastendruck.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

struct Wort {
    std::string_view Text;
    kw::Taste Taste;
};
constexpr Wort Wörter[] = {
    {"Up", Taste::Hoch},
    {"Down", Taste::Runter},
    {"Left", Taste::Links},
    {"Right", Taste::Rechts},
    {"Home", Taste::Anfang},
    {"End", Taste::Ende},
    {"PageUp", Taste::BildHoch},
    {"PageDown", Taste::BildRunter},
    {"Tab", Taste::Tabulator},
    {"Space", Taste::Leer},
    {"Enter", Taste::Eingabe},
    {"Escape", Taste::Escape},
    {"Menu", Taste::Menü},
    {"F1", Taste::F1},
    {"F2", Taste::F2},
    {"F6", Taste::F6},
    {"F10", Taste::F10},
    {"A", Taste::A},
    {"F", Taste::F},
    {"J", Taste::J},
    {"+", Taste::Plus},
    {"=", Taste::Gleich},
    {"-", Taste::Minus},
    {"0", Taste::Null},
};

bool Abziehen(std::string_view &wort, std::string_view vorne) {
    if (!wort.starts_with(vorne)) return false;
    wort.remove_prefix(vorne.size());
    return true;
}

} // namespace

std::optional<Tastendruck> TasteLesen(std::string_view wort) {
    const bool strg = Abziehen(wort, "Ctrl+");
    const bool alt = Abziehen(wort, "Alt+");
    const bool umschalt = Abziehen(wort, "Shift+");
    const auto *zeile =
        std::find_if(std::begin(Wörter), std::end(Wörter), [&](const Wort &w) { return w.Text == wort; });
    if (zeile == std::end(Wörter)) return std::nullopt;
    return Tastendruck{zeile->Taste, strg, alt, umschalt};
}

} // namespace kw
