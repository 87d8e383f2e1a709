#include "document/Texte.h"

#include <algorithm>

namespace kw {

namespace {

struct Codebereich {
    char32_t Von, Bis;
};
constexpr Codebereich Steuernde[] = {{0, 0x1F},       {0x7F, 0x9F},                       // control characters
                                     {0x61C, 0x61C},  {0x200E, 0x200F}, {0x2028, 0x202E}, // directions and separators
                                     {0x2066, 0x2069}};

/// Whether a terminal may get this: a byte that begins a character, and those that follow it.
bool IstHarmlos(std::string_view zeichen) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(zeichen[i]); };
    constexpr char32_t Kleinste[] = {0, 0, 0x80, 0x800, 0x10000}; // by the number of bytes; a longer form is none
    constexpr unsigned Anfänge[] = {0, 0, 0xC0, 0xE0, 0xF0};
    const size_t n = zeichen.size();
    if (n == 1) return byte(0) >= ' ' && byte(0) < 0x7F;
    if (n > 4 || byte(0) < Anfänge[n] || byte(0) >= (n == 4 ? 0xF8U : Anfänge[n + 1])) return false;
    char32_t code = byte(0) - Anfänge[n];
    for (size_t i = 1; i < n; ++i) code = code << 6U | (byte(i) & 0x3FU);
    if (code < Kleinste[n] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return false;
    return std::none_of(std::begin(Steuernde), std::end(Steuernde),
                        [&](Codebereich b) { return code >= b.Von && code <= b.Bis; });
}

} // namespace

int Zeichenzahl(std::string_view text) {
    return static_cast<int>(text.size()) - static_cast<int>(std::count_if(text.begin(), text.end(), IstFortsetzung));
}

std::string_view Getrimmt(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) return {};
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

std::string Ersetzt(std::string text, std::string_view alt, std::string_view neu) {
    for (size_t i = text.find(alt); i != std::string::npos; i = text.find(alt, i + neu.size()))
        text.replace(i, alt.size(), neu);
    return text;
}

std::string Ohne(std::string_view text, char zeichen) {
    std::string rest(text);
    std::erase(rest, zeichen);
    return rest;
}

std::string FürTerminal(std::string_view text) {
    std::string zeile;
    for (size_t i = 0, n = 0; i < text.size(); i += n) {
        for (n = 1; i + n < text.size() && IstFortsetzung(text[i + n]);) ++n;
        const std::string_view zeichen = text.substr(i, n);
        if (IstHarmlos(zeichen)) zeile += zeichen;
        else zeile += '?';
    }
    return zeile;
}

std::string MitAbsatzzeichen(std::string_view text) { return Ersetzt(std::string(text), "_", Absatzzeichen); }

std::string OhneAbsatzzeichen(std::string_view text) { return Ersetzt(std::string(text), Absatzzeichen, "_"); }

} // namespace kw
