#include "document/Fingerabdruck.h"

#include <array>
#include <charconv>
#include <xxhash.h>

namespace kw {

namespace {
constexpr std::string_view Ziffern = "0123456789abcdef";
constexpr std::size_t Hälfte = 16;
} // namespace

Fingerabdruck FingerabdruckVon(std::string_view inhalt) {
    const XXH128_hash_t wert = XXH3_128bits(inhalt.data(), inhalt.size());
    return {wert.high64, wert.low64};
}

std::string AlsText(const Fingerabdruck &abdruck) {
    std::string text;
    for (const auto wert : {abdruck.Hoch, abdruck.Tief})
        for (int bit = 60; bit >= 0; bit -= 4) text += Ziffern[(wert >> bit) & 15U];
    return text;
}

std::optional<Fingerabdruck> FingerabdruckAus(std::string_view text) {
    if (text.size() != 2 * Hälfte || text.find_first_not_of(Ziffern) != std::string_view::npos) return {};
    Fingerabdruck abdruck;
    std::from_chars(text.data(), text.data() + Hälfte, abdruck.Hoch, 16);
    std::from_chars(text.data() + Hälfte, text.data() + text.size(), abdruck.Tief, 16);
    return abdruck;
}

} // namespace kw
