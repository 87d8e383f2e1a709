#pragma once

#include <array>
#include <stdexcept>
#include <string_view>

namespace kw {

/// A reader asked for a field behind the end of a record: the record is damaged. Each routine treats
/// this as its own rule says (a load ends, a drawing passes the record over).
class FeldFehlt : public std::out_of_range {
  public:
    FeldFehlt() : std::out_of_range("Feld fehlt") {}
};

/// A record split at every "_" without allocating: the fields are views into the record's text, which
/// must outlive them. Fields are addressed from 0; no record kind has more than `Höchstzahl` of them
/// (points of a circle line are walked with `Abgetrennt` instead).
class Felder {
  public:
    static constexpr int Höchstzahl = 16;

    explicit Felder(std::string_view satz, char trenner = '_') {
        while (true) {
            const auto ende = satz.find(trenner);
            if (anzahl_ < Höchstzahl) felder_[static_cast<size_t>(anzahl_)] = satz.substr(0, ende);
            ++anzahl_;
            if (ende == std::string_view::npos) return;
            satz.remove_prefix(ende + 1);
        }
    }

    /// How many fields the record has, those behind `Höchstzahl` included. Never 0: an empty record is
    /// one empty field.
    int Anzahl() const { return anzahl_; }

    /// Field `i`. Throws `FeldFehlt` behind the end.
    std::string_view operator[](int i) const {
        if (i < 0 || i >= anzahl_ || i >= Höchstzahl) throw FeldFehlt();
        return felder_[static_cast<size_t>(i)];
    }

    /// Field `i`, or the empty text behind the end.
    std::string_view OderLeer(int i) const {
        return i < 0 || i >= anzahl_ || i >= Höchstzahl ? std::string_view{} : felder_[static_cast<size_t>(i)];
    }

  private:
    std::array<std::string_view, Höchstzahl> felder_;
    int anzahl_ = 0;
};

/// Takes the part before the next `trenner` off the front of `rest`; without one, all of it.
inline std::string_view Abgetrennt(std::string_view &rest, char trenner) {
    const auto ende = rest.find(trenner);
    const auto teil = rest.substr(0, ende);
    rest = ende == std::string_view::npos ? std::string_view{} : rest.substr(ende + 1);
    return teil;
}

} // namespace kw
