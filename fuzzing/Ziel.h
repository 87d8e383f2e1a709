#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What a target does with one input: reads it as what its name says. A fault ends the program, as does an exception
/// that comes out of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl);

namespace kw {

inline std::string_view AlsText(const std::uint8_t *bytes, std::size_t anzahl) {
    return {reinterpret_cast<const char *>(bytes), anzahl}; // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

/// Ends the program when what should hold doesn't.
inline void Halten(bool gilt, const char *was) {
    if (gilt) return;
    std::fprintf(stderr, "doesn't hold: %s\n", was);
    std::abort();
}

} // namespace kw
