#pragma once

#include <optional>
#include <string_view>

namespace kw {

/// The keys that the page and its window know, but for those of commands.
enum class Taste {
    Hoch,
    Runter,
    Links,
    Rechts,
    Anfang,
    Ende,
    BildHoch,
    BildRunter,
    Tabulator,
    Leer,
    Eingabe,
    Escape,
    Menü,
    F1,
    F2,
    F6,
    F10,
    A,
    F,
    J,
    Plus,
    Gleich,
    Minus,
    Null,
};

struct Tastendruck {
    kw::Taste Taste;
    bool Strg = false;
    bool Alt = false;
    bool Umschalt = false;
    bool Wiederholt = false; ///< the key is held down

    /// Whether it is that key with those modifiers; whether it is held doesn't matter.
    constexpr bool Ist(kw::Taste taste, bool strg = false, bool alt = false, bool umschalt = false) const {
        return Taste == taste && Strg == strg && Alt == alt && Umschalt == umschalt;
    }
};

/// The key of a script's word: "Ctrl+Alt+Shift+Up", modifiers in that order; nothing for an unknown one.
std::optional<Tastendruck> TasteLesen(std::string_view wort);

} // namespace kw
