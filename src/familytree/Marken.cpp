#include "familytree/Marken.h"

#include "familytree/Leerraum.h"
#include "familytree/Utf8.h"

#include <algorithm>
#include <utf8proc.h>

namespace kw {

namespace {

std::string Umgeschrieben(std::string_view text, char von, char bis, int um) {
    std::string neu(text);
    for (char &c : neu)
        if (c >= von && c <= bis) c = static_cast<char>(c + um);
    return neu;
}

constexpr int Schritt = 'a' - 'A';

constexpr bool IstBuchstabe(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
constexpr bool IstZiffer(char c) { return c >= '0' && c <= '9'; }

/// Takes `von` to `bis` characters of a kind, and a blank behind them unless they end the text.
bool Genommen(std::string_view &text, std::size_t von, std::size_t bis, bool (*art)(char)) {
    std::size_t anzahl = 0;
    while (anzahl < text.size() && art(text[anzahl])) ++anzahl;
    if (anzahl < von || anzahl > bis) return false;
    text.remove_prefix(anzahl);
    if (text.empty()) return true;
    if (text[0] != ' ') return false;
    text.remove_prefix(1);
    return true;
}

} // namespace

std::string InGroßbuchstaben(std::string_view text) { return Umgeschrieben(text, 'a', 'z', -Schritt); }
std::string InKleinbuchstaben(std::string_view text) { return Umgeschrieben(text, 'A', 'Z', Schritt); }

std::string Großbuchstabe(std::string_view text) {
    if (text.empty()) return {};
    const auto anfang = text.substr(0, ErstesUtf8(text).Länge);
    if (anfang == "ß") return "SS"; // the one of the western code pages that has no capital of one character
    utf8proc_int32_t zeichen = 0;
    const auto *const bytes = reinterpret_cast<const utf8proc_uint8_t *>(anfang.data()); // NOLINT(*reinterpret*)
    if (utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(anfang.size()), &zeichen) < 0) return std::string(anfang);
    std::string groß;
    Utf8Anfügen(groß, static_cast<char32_t>(utf8proc_toupper(zeichen)));
    return groß;
}

std::string_view Zeiger(std::string_view wert) {
    wert = Randlos(wert);
    if (wert.size() < 3 || !wert.starts_with('@') || !wert.ends_with('@')) return {};
    wert = wert.substr(1, wert.size() - 2);
    return wert == "VOID" || wert.find_first_of("@#") != std::string_view::npos ? std::string_view() : wert;
}

bool IstNein(std::string_view wert) {
    wert = Randlos(wert);
    return wert == "N" || wert == "n";
}

bool IstTagesdatum(std::string_view datum) {
    constexpr std::string_view Kalender = "@#D";
    if (InGroßbuchstaben(datum.substr(0, Kalender.size())) == Kalender) {
        const auto ende = datum.find("@ ", Kalender.size());
        if (ende == std::string_view::npos || ende == Kalender.size()) return false;
        const auto name = datum.substr(Kalender.size(), ende - Kalender.size());
        const auto imWort = [](char c) { return IstBuchstabe(c) || IstZiffer(c) || c == '_' || (c & 0x80) != 0; };
        if (!std::all_of(name.begin(), name.end(), imWort)) return false;
        datum.remove_prefix(ende + 2);
    }
    return Genommen(datum, 1, 2, IstZiffer) && !datum.empty() && Genommen(datum, 3, 3, IstBuchstabe) &&
           !datum.empty() && Genommen(datum, 3, 4, IstZiffer) && datum.empty();
}

} // namespace kw
