#pragma once

#include "document/Dokument.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kw {

/// Which records name which person and which partnership, by position. Built once for a gesture that rewrites many
/// records; stays right as long as no record comes, goes or changes its numbers. Without it a group move would
/// scan every store for every person.
class Bezüge {
  public:
    explicit Bezüge(const Dokument &dokument);

    using Positionen = std::vector<int>;
    int Person(std::string_view nr) const { return Erste(personen_, nr); }
    int PLinie(std::string_view nr) const { return Erste(plinien_, nr); }
    /// The child line of a child.
    int Kindlinie(std::string_view kindNr) const { return Erste(kindlinien_, kindNr); }
    /// Lines that name the person at either end.
    const Positionen &Partnerschaften(std::string_view nr) const { return Alle(partnerschaften_, nr); }
    const Positionen &Beziehungen(std::string_view nr) const { return Alle(beziehungen_, nr); }
    /// Child lines of a partnership.
    const Positionen &KinderVon(std::string_view plinie) const { return Alle(kinder_, plinie); }

  private:
    struct Streuung : std::hash<std::string_view> {
        using is_transparent = void;
    };
    template <typename T> using Verzeichnis = std::unordered_map<std::string, T, Streuung, std::equal_to<>>;
    static int Erste(const Verzeichnis<int> &verzeichnis, std::string_view nr);
    static const Positionen &Alle(const Verzeichnis<Positionen> &verzeichnis, std::string_view nr);

    Verzeichnis<int> personen_;
    Verzeichnis<int> plinien_;
    Verzeichnis<int> kindlinien_;
    Verzeichnis<Positionen> partnerschaften_;
    Verzeichnis<Positionen> beziehungen_;
    Verzeichnis<Positionen> kinder_;
};

} // namespace kw
