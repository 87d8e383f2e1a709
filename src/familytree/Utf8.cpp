#include "familytree/Utf8.h"

#include "document/Texte.h"
#include "familytree/Umbruch.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace kw {

namespace {

constexpr bool IstHohes(char16_t z) { return z >= 0xD800 && z < 0xDC00; }
constexpr bool IstTiefes(char16_t z) { return z >= 0xDC00 && z < 0xE000; }

/// The first byte behind `stelle` that isn't ASCII.
std::size_t HinterAscii(std::string_view text, std::size_t stelle) {
    constexpr std::uint64_t HoheBits = 0x8080808080808080U;
    for (std::uint64_t acht = 0; stelle + sizeof acht <= text.size(); stelle += sizeof acht) {
        std::memcpy(&acht, text.data() + stelle, sizeof acht);
        if (acht & HoheBits) break;
    }
    while (stelle < text.size() && static_cast<unsigned char>(text[stelle]) < 0x80) ++stelle;
    return stelle;
}

/// Whether a second byte can follow that first one: rules out overlong forms, surrogates and what is beyond Unicode.
bool ZweitesPasst(unsigned char erstes, unsigned char zweites) {
    switch (erstes) {
    case 0xE0: return zweites >= 0xA0;
    case 0xED: return zweites < 0xA0;
    case 0xF0: return zweites >= 0x90;
    case 0xF4: return zweites < 0x90;
    default: return true;
    }
}

std::u16string Einheiten(std::string bytes, bool großesEndeVorn) {
    std::u16string einheiten(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < einheiten.size(); ++i) {
        const auto a = static_cast<unsigned char>(bytes[2 * i]), b = static_cast<unsigned char>(bytes[2 * i + 1]);
        einheiten[i] = static_cast<char16_t>(großesEndeVorn ? a << 8 | b : b << 8 | a);
    }
    return einheiten;
}

void PaareHeilen(std::u16string &text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (!IstHohes(text[i]) || IstTiefes(text[i + 1])) continue;
        const auto wert = Fortsetzungswert<char16_t>(text, i + 1);
        if (wert < text.size() && IstTiefes(text[wert])) Nachziehen(text, i, 1, wert);
    }
}

} // namespace

void Utf8Anfügen(std::string &utf8, char32_t zeichen) {
    const auto byte = [&utf8](char32_t wert) { utf8 += static_cast<char>(wert); };
    if (zeichen < 0x80) return byte(zeichen);
    if (zeichen < 0x800) {
        byte(0xC0 | zeichen >> 6);
    } else if (zeichen < 0x10000) {
        byte(0xE0 | zeichen >> 12);
        byte(0x80 | (zeichen >> 6 & 0x3F));
    } else {
        byte(0xF0 | zeichen >> 18);
        byte(0x80 | (zeichen >> 12 & 0x3F));
        byte(0x80 | (zeichen >> 6 & 0x3F));
    }
    byte(0x80 | (zeichen & 0x3F));
}

Utf8Anfang ErstesUtf8(std::string_view text) {
    const auto erstes = static_cast<unsigned char>(text[0]);
    if (erstes < 0x80) return {1, 0, true};
    if (erstes < 0xC2 || erstes > 0xF4) return {1, 0, false};
    const std::size_t länge = erstes >= 0xF0 ? 4 : erstes >= 0xE0 ? 3 : 2;
    std::size_t da = 1;
    for (; da < länge && da < text.size() && IstFortsetzung(text[da]); ++da)
        if (da == 1 && !ZweitesPasst(erstes, static_cast<unsigned char>(text[1]))) break;
    return {da, länge - da, da == länge};
}

std::string_view UnzerteilterAnfang(std::string_view text, std::size_t höchstens) {
    if (text.size() <= höchstens) return text;
    while (höchstens > 0 && IstFortsetzung(text[höchstens])) --höchstens;
    return text.substr(0, höchstens);
}

bool IstUtf8(std::string_view text) {
    for (std::size_t i = 0; (i = HinterAscii(text, i)) < text.size();) {
        const auto anfang = ErstesUtf8(text.substr(i));
        if (!anfang.Ganz) return false;
        i += anfang.Länge;
    }
    return true;
}

bool Utf8Heilen(std::string &text) {
    bool gültig = true;
    for (std::size_t i = 0; (i = HinterAscii(text, i)) < text.size();) {
        const auto anfang = ErstesUtf8(std::string_view(text).substr(i));
        const auto ende = i + anfang.Länge;
        if (!anfang.Ganz) {
            const auto wert = anfang.Fehlend ? Fortsetzungswert<char>(text, ende) : std::string::npos;
            const bool zerschnitten = wert < text.size() && IstFortsetzung(text[wert]);
            if (zerschnitten) {
                Nachziehen(text, i, anfang.Länge, wert);
                continue;
            }
            gültig = false;
        }
        i = ende;
    }
    return gültig;
}

std::string Utf8Ersetzt(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    while (!text.empty()) {
        const auto anfang = ErstesUtf8(text);
        if (anfang.Ganz) utf8 += text.substr(0, anfang.Länge);
        else Utf8Anfügen(utf8, Ersatzzeichen);
        text.remove_prefix(anfang.Länge);
    }
    return utf8;
}

std::string AusUtf16(std::string bytes, bool großesEndeVorn) {
    const bool ungerade = bytes.size() % 2 != 0;
    auto einheiten = Einheiten(std::move(bytes), großesEndeVorn);
    PaareHeilen(einheiten);
    std::string utf8;
    utf8.reserve(einheiten.size() + einheiten.size() / 8);
    for (std::size_t i = 0; i < einheiten.size(); ++i) {
        const char16_t z = einheiten[i];
        if (!IstHohes(z)) {
            Utf8Anfügen(utf8, IstTiefes(z) ? Ersatzzeichen : z);
        } else if (i + 1 < einheiten.size() && IstTiefes(einheiten[i + 1])) {
            Utf8Anfügen(utf8, 0x10000U + ((z & 0x3FFU) << 10U | (einheiten[++i] & 0x3FFU)));
        } else {
            Utf8Anfügen(utf8, Ersatzzeichen);
            if (i + 1 == einheiten.size()) return utf8; // half a pair and half a unit are one piece
        }
    }
    if (ungerade) Utf8Anfügen(utf8, Ersatzzeichen);
    return utf8;
}

} // namespace kw
