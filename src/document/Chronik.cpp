#include "document/Chronik.h"

#include "document/Texte.h"

#include <algorithm>

namespace kw {

bool Chronik::Enthält(std::string_view pfad) const {
    return std::find(pfade_.begin(), pfade_.end(), pfad) != pfade_.end();
}

void Chronik::Aktualisieren(std::string_view projektdatei) {
    if (!Getrimmt(projektdatei).empty()) Eintragen(projektdatei);
}

void Chronik::Eintragen(std::string_view projektdatei) {
    if (Enthält(projektdatei)) return;
    pfade_.back() = projektdatei;
    Vorziehen(projektdatei);
}

void Chronik::Vorziehen(std::string_view pfad) {
    const auto platz = std::find(pfade_.begin(), pfade_.end(), pfad);
    if (platz != pfade_.end()) std::rotate(pfade_.begin(), platz, platz + 1);
}

void Chronik::Nachvollziehen(const Chronik &vorher, const Chronik &jetzt) {
    // What came forward stands before all that kept its order.
    const auto &neu = jetzt.pfade_;
    std::size_t vorn = neu.size();
    auto alt = vorher.pfade_.rbegin();
    while (vorn > 0) {
        alt = std::find(alt, vorher.pfade_.rend(), neu[vorn - 1]);
        if (alt == vorher.pfade_.rend()) break;
        ++alt;
        --vorn;
    }
    while (vorn > 0) {
        const std::string &pfad = neu[--vorn];
        Eintragen(pfad);
        Vorziehen(pfad);
    }
}

} // namespace kw
