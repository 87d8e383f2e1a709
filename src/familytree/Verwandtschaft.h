#pragma once

#include "familytree/Stammbaum.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace kw {

/// Lists of numbers, one after the other in one array.
class Nummernlisten {
  public:
    struct Eintrag {
        std::uint32_t Liste, Nummer;
    };
    Nummernlisten() = default;
    /// `anzahl` lists of the entries, each in their order, each number once a list.
    Nummernlisten(std::size_t anzahl, std::vector<Eintrag> einträge);
    std::span<const std::uint32_t> operator[](std::size_t liste) const {
        return std::span(nummern_).subspan(anfänge_[liste], anfänge_[liste + 1] - anfänge_[liste]);
    }

  private:
    std::vector<std::uint32_t> anfänge_;
    std::vector<std::uint32_t> nummern_;
};

/// Who belongs to which family, all by their places in the family tree. What only one side of a bond says counts as if
/// both did; what leads nowhere is left out. Of the persons of one name the last one is meant.
class Verwandtschaft {
  public:
    explicit Verwandtschaft(const Stammbaum &baum);

    /// All that the file calls partners of a family, each once. The first two make its couple.
    std::span<const std::uint32_t> Partner(std::uint32_t familie) const { return partner_[familie]; }
    /// Its children: as the family lists them, then those that only name the family.
    std::span<const std::uint32_t> Kinder(std::uint32_t familie) const { return kinder_[familie]; }
    /// The families in which a person is a partner, and those that it comes from, in the file's order.
    std::span<const std::uint32_t> AlsPartner(std::uint32_t person) const { return alsPartner_[person]; }
    std::span<const std::uint32_t> AlsKind(std::uint32_t person) const { return alsKind_[person]; }

  private:
    Nummernlisten partner_, kinder_, alsPartner_, alsKind_;
};

} // namespace kw
