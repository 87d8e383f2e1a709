#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

// Some programs count bytes where they break a long value into lines, and cut a character in two: its first bytes end a
// line, the others begin the value of the CONC behind it. Here the halves are brought together, in place, so that all
// line ends stay where they are.
namespace kw {

/// Where the value of the line begins that continues the one ending at `stelle`; npos when no line does. A continued
/// line is one of CONC or CONT. Works on bytes and on UTF-16.
template <class Zeichen> std::size_t Fortsetzungswert(std::basic_string_view<Zeichen> text, std::size_t stelle) {
    constexpr auto Keiner = std::basic_string_view<Zeichen>::npos;
    const auto bei = [&](std::size_t i) { return i < text.size() ? text[i] : Zeichen{0}; };
    const auto istEnde = [](Zeichen z) { return z == Zeichen{'\r'} || z == Zeichen{'\n'}; };
    const auto istBlank = [](Zeichen z) { return z == Zeichen{' '} || z == Zeichen{'\t'}; };
    if (!istEnde(bei(stelle))) return Keiner;
    stelle += istEnde(bei(stelle + 1)) && bei(stelle + 1) != bei(stelle) ? 2 : 1;
    while (istBlank(bei(stelle))) ++stelle;
    const auto ebene = stelle;
    while (bei(stelle) >= Zeichen{'0'} && bei(stelle) <= Zeichen{'9'}) ++stelle;
    if (stelle == ebene || stelle > ebene + 3 || !istBlank(bei(stelle))) return Keiner;
    while (istBlank(bei(stelle))) ++stelle;
    for (const char c : {'C', 'O', 'N'})
        if (bei(stelle++) != static_cast<Zeichen>(c)) return Keiner;
    if (bei(stelle) != Zeichen{'C'} && bei(stelle) != Zeichen{'T'}) return Keiner;
    return istBlank(bei(stelle + 1)) ? stelle + 2 : Keiner;
}

/// Puts `anzahl` characters from `von` on right before `ziel`, which lies behind them.
template <class Text> void Nachziehen(Text &text, std::size_t von, std::size_t anzahl, std::size_t ziel) {
    const auto ort = [&](std::size_t i) { return text.begin() + static_cast<std::ptrdiff_t>(i); };
    std::rotate(ort(von), ort(von + anzahl), ort(ziel));
}

} // namespace kw
