#pragma once

#include "familytree/Stammbaum.h"
#include "familytree/Uebernahmebericht.h"
#include "familytree/Uebernahmeregeln.h"

#include <array>
#include <string>
#include <string_view>

namespace kw {

/// The states of a couple, as records number them.
enum class Paarstatus { Unverheiratet, Getrennt, Verheiratet, Geschieden };
constexpr std::size_t Paarstatusanzahl = 4;

/// What a partnership line's record holds of a family's facts.
struct Paarangaben {
    std::string Status;                                ///< "0" to "3", or empty
    std::array<std::string, Paarstatusanzahl> Daten{}; ///< a text a state
    bool Angenommen = false;                           ///< the file says nothing of the couple's state
    int Heiratsjahr = 0;                               ///< 0 when it isn't known
};

/// Brings a family's facts into the record's terms.
Paarangaben PaarÜbertragen(const Stammbaum &baum, const Stammfamilie &familie, std::string_view wer,
                           const Übernahmeregeln &regeln, Übernahmebericht &bericht);

/// One couple in two families: the state of the later one, each date of whoever has it. `neu` comes later in the file.
Paarangaben Vereint(const Paarangaben &alt, const Paarangaben &neu);

} // namespace kw
