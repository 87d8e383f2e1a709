#include "familytree/Leerraum.h"

#include "document/Texte.h"

#include <algorithm>
#include <array>
#include <string>

namespace kw {

namespace {

using namespace std::string_view_literals;

/// Those behind ASCII. U+2000 to U+200A are told apart by their last byte.
constexpr std::array AndereBlanks{"\xC2\x85"sv,     "\xC2\xA0"sv,     "\xE1\x9A\x80"sv, "\xE2\x80\xA8"sv,
                                  "\xE2\x80\xA9"sv, "\xE2\x80\xAF"sv, "\xE2\x81\x9F"sv, "\xE3\x80\x80"sv};
constexpr std::string_view Geviertreihe = "\xE2\x80";

constexpr bool IstKurzesBlank(char c) { return (c >= '\t' && c <= '\r') || (c >= '\x1C' && c <= ' '); }

std::size_t LeerraumHinten(std::string_view text) {
    for (std::size_t länge = 1; länge <= std::min<std::size_t>(text.size(), 3); ++länge)
        if (LeerraumVorn(text.substr(text.size() - länge)) == länge) return länge;
    return 0;
}

} // namespace

std::size_t LeerraumVorn(std::string_view text) {
    if (text.empty()) return 0;
    if (static_cast<unsigned char>(text[0]) < 0x80) return IstKurzesBlank(text[0]) ? 1 : 0;
    if (text.starts_with(Geviertreihe) && text.size() > 2 && IstFortsetzung(text[2]) && text[2] <= '\x8A') return 3;
    const auto *const blank =
        std::find_if(AndereBlanks.begin(), AndereBlanks.end(), [&](auto b) { return text.starts_with(b); });
    return blank == AndereBlanks.end() ? 0 : blank->size();
}

std::string_view Randlos(std::string_view text) {
    while (const auto länge = LeerraumVorn(text)) text.remove_prefix(länge);
    while (const auto länge = LeerraumHinten(text)) text.remove_suffix(länge);
    return text;
}

bool IstGeglättet(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c > ' ' && c < 0x80) continue;
        if (LeerraumVorn(text.substr(i)) == 0) continue;
        if (c != ' ' || LeerraumVorn(text.substr(i + 1)) > 0) return false;
    }
    return true;
}

std::string EinfacheKlammeraffen(std::string_view text) {
    std::string einfach;
    einfach.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        einfach += text[i];
        if (text.substr(i, 2) == "@@") ++i;
    }
    return einfach;
}

std::string MitBlanksFür(std::string_view zeichen, std::string_view text) {
    std::string mit(text);
    for (char &c : mit)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7F' || zeichen.find(c) != std::string_view::npos) c = ' ';
    return mit;
}

std::string Geglättet(std::string_view text) {
    std::string glatt;
    for (auto rest = Randlos(text); !rest.empty();) {
        const auto blank = LeerraumVorn(rest);
        if (blank == 0) glatt += rest[0];
        else if (!glatt.ends_with(' ')) glatt += ' ';
        rest.remove_prefix(std::max<std::size_t>(blank, 1));
    }
    return glatt;
}

} // namespace kw
