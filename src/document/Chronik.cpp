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

} // namespace kw
