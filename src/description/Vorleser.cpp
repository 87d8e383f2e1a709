#include "description/Vorleser.h"

#include "description/Zeilenvergleich.h"
#include "rendering/Ansicht.h"

#include <utility>

namespace kw {

void Vorleser::Zuhören() {
    if (!std::exchange(hörtZu_, true)) Auffrischen();
}

void Vorleser::Auffrischen() {
    if (hörtZu_) zeilen_ = Elementzeilen(seite_);
}

std::string Vorleser::NachEreignis() {
    if (!hörtZu_) return {};
    const std::vector<Elementzeile> vorher = std::exchange(zeilen_, Elementzeilen(seite_));
    return Ergebnistext(vorher, zeilen_, seite_.ansicht.Sprache);
}

} // namespace kw
