#pragma once

#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace kw {

/// A record being rewritten. It has exactly the fields of its kind afterwards: missing ones are empty, further
/// ones go. Numbers get the form that records have.
class Feldbau {
  public:
    Feldbau(std::string_view satz, int felder) : anzahl_(felder) {
        const Felder alt(satz);
        for (int i = 0; i < felder; ++i) felder_[static_cast<size_t>(i)] = alt.OderLeer(i);
    }

    Feldbau &Setzen(int feld, std::string_view text) {
        felder_[static_cast<size_t>(feld)] = text;
        return *this;
    }
    Feldbau &Setzen(int feld, double zahl) { return Setzen(feld, std::string_view(ZahlSchreiben(zahl))); }
    /// Adds to the number of a field.
    Feldbau &Erhöhen(int feld, double um) { return Setzen(feld, Zahl(feld) + um); }

    double Zahl(int feld) const { return ZahlLesen(felder_[static_cast<size_t>(feld)]); }
    std::string_view Feld(int feld) const { return felder_[static_cast<size_t>(feld)]; }

    std::string Text() const {
        std::string satz = felder_[0];
        for (int i = 1; i < anzahl_; ++i) satz.append("_").append(felder_[static_cast<size_t>(i)]);
        return satz;
    }
    /// Without any blank, as rewritten lines are stored.
    std::string TextOhneBlanks() const {
        std::string satz = Text();
        std::erase(satz, ' ');
        return satz;
    }

  private:
    std::array<std::string, Felder::Höchstzahl> felder_;
    int anzahl_;
};

} // namespace kw
