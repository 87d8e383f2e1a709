#include "familytree/Leerraum.h"
#include "familytree/Uebernahme.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

enum class Kindwort { Nichts, Leiblich, Adoptiert, Pflegekind, Anderes };

Kindwort Gedeutet(std::string_view wort) {
    constexpr std::array<std::string_view, 5> Leibliche{"birth", "biological", "natural", "leiblich", "sealing"};
    if (wort.empty()) return Kindwort::Nichts;
    if (wort.starts_with("adopt")) return Kindwort::Adoptiert;
    if (wort.starts_with("foster")) return Kindwort::Pflegekind;
    const bool leiblich =
        std::any_of(Leibliche.begin(), Leibliche.end(), [&](std::string_view l) { return wort.starts_with(l); });
    return leiblich ? Kindwort::Leiblich : Kindwort::Anderes;
}

/// What both parents' words come to: they must agree, or one say nothing.
Kindwort Gemeinsam(Kindwort a, Kindwort b) {
    if (a == b || b == Kindwort::Nichts) return a;
    return a == Kindwort::Nichts ? b : Kindwort::Anderes;
}

} // namespace

int Kindart(const Stammperson &person, const Stammfamilie &familie, Übernahmebericht *bericht) {
    std::uint32_t zeile = person.Ort.Zeile;
    for (const auto &herkunft : person.Eltern)
        if (herkunft.Familie == familie.Kennung) zeile = herkunft.Zeile;
    std::string text(person.Kindschaft(familie.Kennung));
    auto wort = Gedeutet(text);
    if (wort == Kindwort::Nichts) {
        const auto kind = std::find_if(familie.Kinder.begin(), familie.Kinder.end(),
                                       [&](const Stammkind &k) { return k.Kennung == person.Kennung; });
        if (kind != familie.Kinder.end()) {
            wort = Gemeinsam(Gedeutet(kind->ZumMann), Gedeutet(kind->ZurFrau));
            text = std::string(kind->ZumMann).append("/").append(kind->ZurFrau);
            zeile = kind->Zeile;
        }
    }
    if (wort != Kindwort::Pflegekind &&
        std::any_of(person.Adoptionen.begin(), person.Adoptionen.end(),
                    [&](const Adoption &a) { return !a.Familie.empty() && a.Familie == familie.Kennung; }))
        wort = Kindwort::Adoptiert;
    if (wort == Kindwort::Anderes && bericht)
        bericht->Hinzu(Befundart::KindschaftGeändert, zeile, Anzeigename(person), Geglättet(text));
    return wort == Kindwort::Adoptiert ? 1 : wort == Kindwort::Pflegekind ? 2 : 0;
}

int Elternvorrang(const Stammperson &person, const Stammfamilie &familie, bool adoptionVorGeburt) {
    const int art = Kindart(person, familie, nullptr);
    return art == 1 && adoptionVorGeburt ? -1 : art;
}

} // namespace kw
