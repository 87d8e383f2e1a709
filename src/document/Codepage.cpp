#include "document/Codepage.h"

#include "document/Texte.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <clocale>
#include <cwctype>
#include <locale.h>

namespace kw {

namespace {

/// Characters of the bytes 80 to 9F; all other bytes are their own.
constexpr std::array<char16_t, 32> Sonderreihe{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void Anfügen(std::string &utf8, char32_t zeichen) {
    const auto byte = [&utf8](char32_t wert) { utf8 += static_cast<char>(wert); };
    if (zeichen < 0x80) return byte(zeichen);
    if (zeichen < 0x800) {
        byte(0xC0 | zeichen >> 6);
    } else {
        byte(0xE0 | zeichen >> 12);
        byte(0x80 | (zeichen >> 6 & 0x3F));
    }
    byte(0x80 | (zeichen & 0x3F));
}

struct Gelesen {
    char32_t Zeichen;
    size_t Länge; ///< 0: no UTF-8
};

/// The character at the start of `text`, which is not empty. Overlong forms and surrogates are no UTF-8.
Gelesen ErstesZeichen(std::string_view text) {
    const auto erstes = static_cast<unsigned char>(text[0]);
    if (erstes < 0x80) return {erstes, 1};
    const size_t länge = erstes >= 0xF0 ? 4 : erstes >= 0xE0 ? 3 : 2;
    if (erstes < 0xC2 || erstes > 0xF4 || text.size() < länge) return {0, 0};
    char32_t zeichen = erstes & (0xFFU >> (länge + 1));
    for (size_t i = 1; i < länge; ++i) {
        if (!IstFortsetzung(text[i])) return {0, 0};
        zeichen = zeichen << 6 | (static_cast<unsigned char>(text[i]) & 0x3F);
    }
    static constexpr std::array<char32_t, 5> Kleinstes{0, 0, 0x80, 0x800, 0x10000};
    const bool ersatz = zeichen >= 0xD800 && zeichen <= 0xDFFF;
    if (zeichen < Kleinstes[länge] || zeichen > 0x10FFFF || ersatz) return {0, 0};
    return {zeichen, länge};
}

char Byte(char32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<char>(zeichen);
    const auto *const stelle = std::find(Sonderreihe.begin(), Sonderreihe.end(), zeichen);
    return stelle == Sonderreihe.end() ? '?' : static_cast<char>(0x80 + (stelle - Sonderreihe.begin()));
}

} // namespace

std::string NachUtf8(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        Anfügen(utf8, byte >= 0x80 && byte < 0xA0 ? Sonderreihe[byte - 0x80U] : char32_t{byte});
    }
    return utf8;
}

std::string NachCodepage(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [zeichen, länge] = ErstesZeichen(utf8);
        bytes += länge == 0 ? '?' : Byte(zeichen);
        utf8.remove_prefix(std::max<size_t>(länge, 1));
    }
    return bytes;
}

std::string Kleingeschrieben(std::string_view utf8) {
    static const locale_t Unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr); // the user's may know less
    std::string klein;
    klein.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [zeichen, länge] = ErstesZeichen(utf8);
        const bool hatBeide = länge > 0 && länge < 4 && Unicode; // behind these hardly a script has
        if (hatBeide) Anfügen(klein, static_cast<char32_t>(::towlower_l(static_cast<wint_t>(zeichen), Unicode)));
        else klein += utf8.substr(0, std::max<size_t>(länge, 1));
        utf8.remove_prefix(std::max<size_t>(länge, 1));
    }
    return klein;
}

} // namespace kw
