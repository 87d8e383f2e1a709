#pragma once

#include "familytree/Verwandtschaft.h"
#include "platform/Sprache.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// Finds persons of a family tree by what somebody types: beginnings of names, years of birth and death, the file's own
/// name for a person, in any order. Capitals and accents don't count.
class Personensuche {
  public:
    /// Looks at each person once. The family tree must outlive this.
    explicit Personensuche(const Stammbaum &baum);

    struct Treffer {
        std::vector<std::uint32_t> Personen; ///< places in the family tree, in its order: the first of them
        std::size_t Anzahl = 0;              ///< of all
    };
    /// Those of whom every word of the text begins a word; without a word everybody. Of all matches the first
    /// `höchstens` are named.
    Treffer Finden(std::string_view text, std::size_t höchstens) const;

    /// The person that a command line means: by the file's own name, with or without "@"; else those whose words are
    /// all that are typed; else as above.
    Treffer Gemeint(std::string_view text, std::size_t höchstens) const;

    /// A person as a list shows it: names, years of life, the file's own name.
    std::string Zeile(std::uint32_t person) const;
    /// Persons as a list shows them together: of those with the same names and years it says besides whose child or
    /// partner each is. `verwandte` belongs to the same family tree.
    std::vector<std::string> Zeilen(std::span<const std::uint32_t> personen, const Verwandtschaft &verwandte,
                                    Sprache sprache) const;
    /// The one whose tree it is, as the file says; else its first. `Keine` where there is nobody.
    std::uint32_t Vorschlag() const;

  private:
    Treffer Suchen(std::string_view text, std::size_t höchstens, bool ganzeWorte) const;
    std::string NameUndJahre(std::uint32_t person) const;
    std::string MitKennung(std::string zeile, std::uint32_t person) const;

    const Stammbaum &baum_;
    std::string worte_;                 ///< of all persons, each word with a blank on both sides
    std::vector<std::uint32_t> anfang_; ///< of each person's; behind the last one the end
};

} // namespace kw
