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
    Vorziehen(Plätze);
}

void Chronik::Vorziehen(int platz) {
    if (platz < 1 || platz > Plätze) return;
    std::rotate(pfade_.begin(), pfade_.begin() + platz - 1, pfade_.begin() + platz);
}

} // namespace kw
