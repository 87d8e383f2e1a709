#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// What a content is known by: 128 bits, so that two contents of one fingerprint don't happen. No secret, no signature.
struct Fingerabdruck {
    std::uint64_t Hoch = 0;
    std::uint64_t Tief = 0;
    bool operator==(const Fingerabdruck &) const = default;
};
Fingerabdruck FingerabdruckVon(std::string_view inhalt);
/// 32 small hexadecimal digits.
std::string AlsText(const Fingerabdruck &abdruck);
/// The inverse; nothing for any other text.
std::optional<Fingerabdruck> FingerabdruckAus(std::string_view text);

} // namespace kw
