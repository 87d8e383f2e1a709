#pragma once

#include "platform/Sprache.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// What can be wrong with a family tree's file.
enum class Warnungsart {
    KeineZeile,      ///< a line without level or tag: it continues the line before it
    ErsteEbene,      ///< a file that doesn't begin at level 0
    Ebenensprung,    ///< a level that lies more than one above the line that it lies in
    DoppelteKennung, ///< two records of one kind with one name: the later one is meant
    KindDoppelt,     ///< a family names a child twice
    KindFehlt,       ///< a family names a child that isn't in the file
};
constexpr std::size_t Warnungsarten = 6;

struct Warnung {
    Warnungsart Art{};
    std::uint32_t Zeile = 0;
    std::string_view Kennung; ///< of the record or, of a missing child, the child
    std::string_view Kind;
};

/// What was found wrong, in order. All are counted; of each kind the first thousand are kept, since a file that is no
/// family tree at all has one a line.
class Warnungen {
  public:
    static constexpr std::size_t Höchstens = 1000;

    void Hinzu(const Warnung &warnung);
    void Hinzu(Warnungsart art, std::uint32_t zeile) { Hinzu({art, zeile, {}, {}}); }
    const std::vector<Warnung> &Liste() const { return liste_; }
    std::size_t Anzahl(Warnungsart art) const { return anzahl_[static_cast<std::size_t>(art)]; }

  private:
    std::vector<Warnung> liste_;
    std::array<std::size_t, Warnungsarten> anzahl_{};
};

/// A warning as a sentence, without its line's number.
std::string Warnungstext(const Warnung &warnung, Sprache sprache);

} // namespace kw
