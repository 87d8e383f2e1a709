#pragma once

#include <bit>
#include <cstdint>

namespace kw {

/// Numbers that look random and are the same in every run on every machine.
class Zufall {
  public:
    explicit Zufall(std::uint64_t anfang) : stand_(anfang) {}

    std::uint64_t Nächste() {
        stand_ += 0x9E3779B97F4A7C15U;
        std::uint64_t z = stand_;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31U);
    }
    /// 0 to `grenze` - 1
    int Unter(int grenze) { return static_cast<int>(((Nächste() >> 32U) * static_cast<std::uint64_t>(grenze)) >> 32U); }
    /// 0 in half of all cases, 1 in a quarter, and so on, up to `grenze`
    int Wenig(int grenze) {
        const int anzahl = std::countr_zero(Nächste() | (std::uint64_t{1} << 62U));
        return anzahl < grenze ? anzahl : grenze;
    }
    /// Times 256: how often a thing halves before it ends, in smooth steps. What stays below `x` does so in one of 2^x
    /// cases.
    int Ausdauer() {
        const std::uint64_t z = Nächste();
        const int ganze = std::countl_zero(z | 1U);
        const auto rest = static_cast<int>((z << static_cast<unsigned>(ganze + 1)) >> 56U);
        return ganze * 256 + 255 - rest;
    }

  private:
    std::uint64_t stand_;
};

} // namespace kw
