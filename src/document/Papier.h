#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kw {

/// A kind of paper: its code as printers and project files know it, and its size in portrait (cm).
struct Papier {
    int Code;
    std::string_view Name;
    double Breite;
    double Höhe;
};

/// In the order in which the list of papers shows them.
inline constexpr std::array<Papier, 3> Papiere{
    {{1, "US Letter", 21.59, 27.94}, {9, "DIN A4", 21.0, 29.7}, {11, "DIN A5", 14.8, 21.0}}};

constexpr int DinA4 = 9;
constexpr int DinA5 = 11;
constexpr int UsLetter = 1;

/// The paper of a code of these.
inline const Papier &PapierMit(int code) {
    return *std::find_if(Papiere.begin(), Papiere.end(), [code](const Papier &p) { return p.Code == code; });
}

/// The code that a text in a file names: DIN A4 for an empty one, nothing for a paper that isn't known.
inline std::optional<int> PapiercodeAus(std::string_view text) {
    if (text.empty()) return DinA4;
    for (const Papier &papier : Papiere)
        if (text == std::to_string(papier.Code)) return papier.Code;
    return std::nullopt;
}

} // namespace kw
