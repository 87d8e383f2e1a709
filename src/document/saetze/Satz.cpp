#include "document/saetze/Satz.h"

#include <algorithm>

namespace kw {

namespace {

/// Where field `feld` stands in a record that has it.
struct Stelle {
    std::size_t Anfang, Ende;
};

Stelle StelleVon(std::string_view satz, int feld) {
    std::size_t anfang = 0;
    for (; feld > 0; --feld) anfang = satz.find('_', anfang) + 1;
    return {anfang, std::min(satz.find('_', anfang), satz.size())};
}

} // namespace

Satzbau::Satzbau(std::string_view satz, int felder) : text_(satz), felder_(felder) {
    const auto trenner = std::count(satz.begin(), satz.end(), '_');
    if (trenner >= felder) text_.resize(StelleVon(satz, felder).Anfang - 1);
    else text_.append(static_cast<std::size_t>(felder - 1 - trenner), '_');
}

void Satzbau::Setzen(int feld, std::string_view text) {
    if (feld >= felder_) return;
    const Stelle stelle = StelleVon(text_, feld);
    text_.replace(stelle.Anfang, stelle.Ende - stelle.Anfang, text);
}

void Satzbau::Erhöhen(int feld, double um) {
    if (feld >= felder_) return;
    const Stelle stelle = StelleVon(text_, feld);
    const double alt = ZahlLesen(std::string_view(text_).substr(stelle.Anfang, stelle.Ende - stelle.Anfang));
    Setzen(feld, OhneRauschen(alt + um));
}

std::string Satzbau::TextOhneBlanks() const {
    std::string satz = text_;
    std::erase(satz, ' ');
    return satz;
}

} // namespace kw
