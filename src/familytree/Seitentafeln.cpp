#include "familytree/Seitentafeln.h"

#include "familytree/Umbruch.h"
#include "familytree/Utf8.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <utf8proc.h>
#include <utility>

namespace kw {

namespace {

// One row for 32 bytes. What has no character shows as U+FFFD.
// clang-format off
constexpr Seitentafel Tafel1252 =
    u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";
constexpr Seitentafel Tafel437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr Seitentafel Tafel850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
constexpr Seitentafel TafelMac =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
    u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
    u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
    u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";

/// ANSEL's letters, from A1 on.
constexpr Seitentafel AnselBuchstaben =
    u"ŁØĐÞÆŒʹ·♭®±ƠƯʼ\uFFFDʻłøđþæœʺı£ð\uFFFDơư□■°ℓ℗©♯¿¡ß€\uFFFD\uFFFD\uFFFD\uFFFDeoß";
/// Its marks, from E0 on.
constexpr Seitentafel AnselMarken =
    u"\u0309\u0300\u0301\u0302\u0303\u0304\u0306\u0307\u0308\u030C\u030A\uFE20\uFE21\u0315\u030B\u0310"
    u"\u0327\u0328\u0323\u0324\u0325\u0333\u0332\u0326\u031C\u032E\uFE22\uFE23\u0338\uFFFD\u0313\uFFFD";
// clang-format on

constexpr unsigned char ErsterBuchstabe = 0xA1;
constexpr unsigned char ErsteMarke = 0xE0;

constexpr bool IstZeilenende(char c) { return c == '\r' || c == '\n'; }

bool IstMarke(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= ErsteMarke && AnselMarken[byte - ErsteMarke] != Ersatzzeichen;
}

char32_t Anselzeichen(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) return byte;
    const bool gibtEs = byte >= ErsterBuchstabe && byte < ErsterBuchstabe + AnselBuchstaben.size();
    return gibtEs ? AnselBuchstaben[byte - ErsterBuchstabe] : Ersatzzeichen;
}

/// Composes what stands in `text` from `von` on.
void Zusammensetzen(std::string &text, std::size_t von) {
    utf8proc_uint8_t *ergebnis = nullptr;
    const auto *const zerlegt = reinterpret_cast<const utf8proc_uint8_t *>(text.data() + von); // NOLINT(*reinterpret*)
    const auto länge = utf8proc_map(zerlegt, static_cast<utf8proc_ssize_t>(text.size() - von), &ergebnis,
                                    static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> halter(ergebnis, &std::free);
    if (länge < 0) return;
    const std::string neu(ergebnis, ergebnis + länge);
    text.replace(von, std::string::npos, neu);
}

/// Marks at the end of a line go on to the letter that the continued line begins with.
void MarkenHeilen(std::string &bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (!IstMarke(bytes[i])) continue;
        const auto von = i;
        while (i < bytes.size() && IstMarke(bytes[i])) ++i;
        const auto wert = Fortsetzungswert<char>(bytes, i);
        if (wert < bytes.size() && !IstZeilenende(bytes[wert])) Nachziehen(bytes, von, i - von, wert);
    }
}

} // namespace

Seitentafel Windows1252() { return Tafel1252; }
Seitentafel Dos437() { return Tafel437; }
Seitentafel Dos850() { return Tafel850; }
Seitentafel MacRoman() { return TafelMac; }

std::string AusSeite(std::string_view bytes, Seitentafel tafel) {
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        Utf8Anfügen(utf8, byte < 0x80 ? byte : tafel[byte - 0x80U]);
    }
    return utf8;
}

std::string AusAnsel(std::string bytes) {
    MarkenHeilen(bytes);
    std::string utf8, marken;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    std::size_t zeile = 0;
    bool zusammenzusetzen = false;
    for (const char c : bytes) {
        if (IstMarke(c)) {
            Utf8Anfügen(marken, AnselMarken[static_cast<unsigned char>(c) - ErsteMarke]);
            continue;
        }
        if (IstZeilenende(c)) {
            if (std::exchange(zusammenzusetzen, false)) Zusammensetzen(utf8, zeile);
            zeile = utf8.size() + 1;
        }
        Utf8Anfügen(utf8, Anselzeichen(c));
        zusammenzusetzen = zusammenzusetzen || !marken.empty();
        utf8 += marken;
        marken.clear();
    }
    if (zusammenzusetzen) Zusammensetzen(utf8, zeile);
    return utf8;
}

} // namespace kw
