#pragma once

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// What the views and writers of all kinds of records are made of. A record is text, and that text is the only
// representation: a view reads it by the names of its fields, a writer changes some of them and leaves the others as
// they stand, byte for byte.
namespace kw {

/// The number that records of persons, partnership lines and child lines begin with: their first three characters.
constexpr std::string_view Nummer(std::string_view satz) { return satz.substr(0, 3); }

/// How a field behind the end of a damaged record is read: throws `FeldFehlt`, or as an empty text, which is 0.
enum class Lücken { Fehler, Leer };

/// A record that is split no further than to the field that was asked for. Allocates nothing; gives views into the
/// text, which must outlive them.
class Satzsicht {
  public:
    /// Whether there are at least that many fields.
    bool HatFelder(int anzahl) const { return Geteilt(anzahl - 1); }

  protected:
    static constexpr int Höchstzahl = 16; ///< no kind of record has more fields

    Satzsicht(std::string_view satz, Lücken lücken) : satz_(satz), lücken_(lücken) {}

    std::string_view Text(int feld) const {
        if (!Geteilt(feld)) return Fehlendes();
        const std::size_t anfang = feld == 0 ? 0 : enden_[static_cast<std::size_t>(feld - 1)] + std::size_t{1};
        return satz_.substr(anfang, enden_[static_cast<std::size_t>(feld)] - anfang);
    }
    double Zahl(int feld) const { return ZahlLesen(Text(feld)); }
    bool Ja(int feld) const { return Text(feld) == "1"; }

  private:
    /// Splits up to that field; false when the record ends before it.
    bool Geteilt(int feld) const {
        while (geteilt_ <= feld && !amEnde_) {
            const auto ende = satz_.find('_', anfang_);
            amEnde_ = ende == std::string_view::npos;
            anfang_ = amEnde_ ? satz_.size() : ende + 1;
            enden_[static_cast<std::size_t>(geteilt_++)] = static_cast<std::uint32_t>(amEnde_ ? satz_.size() : ende);
        }
        return feld < geteilt_;
    }
    std::string_view Fehlendes() const {
        if (lücken_ == Lücken::Fehler) throw FeldFehlt();
        return {};
    }

    std::string_view satz_;
    Lücken lücken_;
    mutable bool amEnde_ = false;
    mutable int geteilt_ = 0;
    mutable std::size_t anfang_ = 0;
    mutable std::array<std::uint32_t, Höchstzahl>
        enden_; ///< of the fields that were split, behind their last character
};

/// A record being written. It has exactly the fields of its kind: missing ones are empty, further ones go. Numbers get
/// the form that records have.
class Satzbau {
  public:
    Satzbau(std::string_view satz, int felder);
    const std::string &Text() const { return text_; }
    /// Without any blank, as moved lines are stored.
    std::string TextOhneBlanks() const;

  protected:
    /// Of a field that the record doesn't have nothing stays: only a text box, damaged, has fewer than its kind.
    void Setzen(int feld, std::string_view text);
    void Setzen(int feld, double zahl) { Setzen(feld, std::string_view(ZahlSchreiben(zahl))); }
    /// Adds `um` to the number of a field.
    void Erhöhen(int feld, double um);

  private:
    std::string text_;
    int felder_;
};

} // namespace kw
