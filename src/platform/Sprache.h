#pragma once

#include <string_view>

namespace kw {

/// The program's two languages.
enum class Sprache { Englisch, Deutsch };

/// The language of that code in settings and scripts: "de" is German, everything else English.
constexpr Sprache SpracheAus(std::string_view kürzel) { return kürzel == "de" ? Sprache::Deutsch : Sprache::Englisch; }
constexpr std::string_view Kürzel(Sprache sprache) { return sprache == Sprache::Deutsch ? "de" : "en"; }

/// A text in both languages. `In` is the only place that picks one.
struct Zweisprachig {
    std::string_view Deutsch;
    std::string_view Englisch;

    constexpr std::string_view In(Sprache sprache) const { return sprache == Sprache::Deutsch ? Deutsch : Englisch; }
};

} // namespace kw
